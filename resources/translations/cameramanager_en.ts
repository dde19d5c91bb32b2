<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>DriverOutputView</name>
    <message numerus="yes">
        <source>The last %n line(s) of %1, newest last:</source>
        <translation>
            <numerusform>The last %n line of %1, newest last:</numerusform>
            <numerusform>The last %n lines of %1, newest last:</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FirmwareUploadProgress</name>
    <message numerus="yes">
        <source>Elapsed: %n second(s)</source>
        <translation>
            <numerusform>Elapsed: %n second</numerusform>
            <numerusform>Elapsed: %n seconds</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>GeneralInformation</name>
    <message numerus="yes">
        <source>%n port(s)</source>
        <translation>
            <numerusform>%n port</numerusform>
            <numerusform>%n ports</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UpdateCheck</name>
    <message numerus="yes">
        <source>The update server did not answer within %n second(s).</source>
        <translation>
            <numerusform>The update server did not answer within %n second.</numerusform>
            <numerusform>The update server did not answer within %n seconds.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The update address redirects more than %n time(s).</source>
        <translation>
            <numerusform>The update address redirects more than %n time.</numerusform>
            <numerusform>The update address redirects more than %n times.</numerusform>
        </translation>
    </message>
</context>
</TS>
