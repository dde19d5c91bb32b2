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
</TS>
