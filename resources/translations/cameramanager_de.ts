<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>AdapterDiagnosis</name>
    <message>
        <location filename="../../src/network/adapterdiagnosis.cpp" line="+18"/>
        <source>%1 Gbit/s</source>
        <translation>%1 Gbit/s</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 Mbit/s</source>
        <translation>%1 Mbit/s</translation>
    </message>
    <message>
        <location line="+67"/>
        <source>Switched off</source>
        <translation>Ausgeschaltet</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>No link</source>
        <translation>Keine Verbindung</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Link up at %1</source>
        <translation>Verbindung mit %1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Link up</source>
        <translation>Verbindung besteht</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>no IPv4 address</source>
        <translation>keine IPv4-Adresse</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1; %2, %3; MTU %4; %5</source>
        <translation>%1; %2, %3; MTU %4; %5</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>DHCP</source>
        <translation>DHCP</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>static</source>
        <translation>statisch</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>ETH service bound</source>
        <translation>ETH-Dienst gebunden</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>ETH service not bound</source>
        <translation>ETH-Dienst nicht gebunden</translation>
    </message>
    <message>
        <location filename="../../src/network/adapterdiagnosis_linux.cpp" line="+115"/>
        <source>the system&apos;s routes can&apos;t be read: %1</source>
        <translation>die Routen des Systems können nicht gelesen werden: %1</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>the route lookup for %1 failed: %2</source>
        <translation>die Routenabfrage für %1 ist fehlgeschlagen: %2</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>interface %1</source>
        <translation>Schnittstelle %1</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>/proc/sys/%1 holds no number: &quot;%2&quot;</source>
        <translation>/proc/sys/%1 enthält keine Zahl: „%2“</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>%1 can&apos;t be read: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
</context>
<context>
    <name>AdapterFinding</name>
    <message>
        <location filename="../../src/network/adapterfinding.cpp" line="+11"/>
        <source>Link</source>
        <translation>Verbindung</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>IPv4 address</source>
        <translation>IPv4-Adresse</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Route to the cameras</source>
        <translation>Route zu den Kameras</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Packet size</source>
        <translation>Paketgröße</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Reverse-path filtering</source>
        <translation>Reverse-Path-Filterung</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Link-local address</source>
        <translation>Link-lokale Adresse</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Receive buffer size</source>
        <translation>Größe des Empfangspuffers</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>%1 MiB</source>
        <translation>%1 MiB</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 KiB</source>
        <translation>%1 KiB</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>%1 not checked: %2</source>
        <translation>%1 nicht geprüft: %2</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>The adapter %1 is switched off.</source>
        <translation>Der Adapter %1 ist ausgeschaltet.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Switch it on: ip link set dev %1 up</source>
        <translation>Schalten Sie ihn ein: ip link set dev %1 up</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The adapter %1 is switched off: switch it on.</source>
        <translation>Der Adapter %1 ist ausgeschaltet: Schalten Sie ihn ein.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>The adapter %1 has no link.</source>
        <translation>Der Adapter %1 hat keine Verbindung.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Check the cable, the switch and the cameras&apos; power supply.</source>
        <translation>Prüfen Sie das Kabel, den Switch und die Stromversorgung der Kameras.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The adapter %1 has no link: check the cable, the switch and the cameras&apos; power supply.</source>
        <translation>Der Adapter %1 hat keine Verbindung: Prüfen Sie das Kabel, den Switch und die Stromversorgung der Kameras.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>The adapter %1 has no IPv4 address: no DHCP server gave it one.</source>
        <translation>Der Adapter %1 hat keine IPv4-Adresse: Kein DHCP-Server hat ihm eine zugeteilt.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The adapter %1 has no IPv4 address.</source>
        <translation>Der Adapter %1 hat keine IPv4-Adresse.</translation>
    </message>
    <message>
        <location line="+2"/>
        <location line="+80"/>
        <source>Give %1 a static IPv4 address in the cameras&apos; subnet.</source>
        <translation>Geben Sie %1 eine statische IPv4-Adresse im Subnetz der Kameras.</translation>
    </message>
    <message>
        <location line="-79"/>
        <source>The adapter %1 has no IPv4 address: give it a static address in the cameras&apos; subnet.</source>
        <translation>Der Adapter %1 hat keine IPv4-Adresse: Geben Sie ihm eine statische Adresse im Subnetz der Kameras.</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Traffic to %1 leaves through %2, which has an address in the same subnet %3, not through %4.</source>
        <translation>Datenverkehr zu %1 geht über %2, das eine Adresse im selben Subnetz %3 hat, nicht über %4.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Give %1 and %2 addresses in different subnets, or remove the address of the one that serves no cameras.</source>
        <translation>Geben Sie %1 und %2 Adressen in verschiedenen Subnetzen, oder entfernen Sie die Adresse desjenigen, an dem keine Kameras hängen.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Traffic to %1 leaves through %2 instead of %3: give the two adapters different subnets.</source>
        <translation>Datenverkehr zu %1 geht über %2 statt über %3: Geben Sie den beiden Adaptern verschiedene Subnetze.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>The system routes traffic to %1 through %2, not through %3.</source>
        <translation>Das System leitet Datenverkehr zu %1 über %2, nicht über %3.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Remove the route that sends %1 to %2 (see: ip route get %1).</source>
        <translation>Entfernen Sie die Route, die %1 zu %2 leitet (siehe: ip route get %1).</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Traffic to %1 leaves through %2 instead of %3: remove the route that sends it there.</source>
        <translation>Datenverkehr zu %1 geht über %2 statt über %3: Entfernen Sie die Route, die ihn dorthin leitet.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Set the MTU of %1 to %2, or to at least %3 where the adapter takes no jumbo frames.</source>
        <translation>Setzen Sie die MTU von %1 auf %2, oder auf mindestens %3, wenn der Adapter keine Jumbo-Frames unterstützt.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>For example: ip link set dev %1 mtu %2</source>
        <translation>Zum Beispiel: ip link set dev %1 mtu %2</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The MTU of %1 is %2 bytes, too small for the cameras&apos; 2 KB packets, which need %3.</source>
        <translation>Die MTU von %1 beträgt %2 Byte, zu wenig für die 2-KB-Pakete der Kameras, die %3 benötigen.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>The MTU of %1 (%2) is too small for 2 KB packets: set it to %3, or at least %4.</source>
        <translation>Die MTU von %1 (%2) ist zu klein für 2-KB-Pakete: Setzen Sie sie auf %3, oder mindestens %4.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>The camera driver sends no 2 KB packets on %1, so the cameras there can&apos;t be reached.</source>
        <translation>Der Kameratreiber sendet auf %1 keine 2-KB-Pakete, daher sind die Kameras dort nicht erreichbar.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Switch on 2 KB packets for %1 in the ETH service&apos;s adapter settings.</source>
        <translation>Schalten Sie 2-KB-Pakete für %1 in den Adaptereinstellungen des ETH-Dienstes ein.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The driver sends no 2 KB packets on %1: switch them on in the ETH service&apos;s adapter settings.</source>
        <translation>Der Treiber sendet auf %1 keine 2-KB-Pakete: Schalten Sie sie in den Adaptereinstellungen des ETH-Dienstes ein.</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Strict reverse-path filtering (%1 = 1) drops camera replies on %2 whose sender the system would reach through another adapter.</source>
        <translation>Strikte Reverse-Path-Filterung (%1 = 1) verwirft Antworten von Kameras an %2, deren Absender das System über einen anderen Adapter erreichen würde.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Set %1 to 2 (loose): sysctl -w %1=2</source>
        <translation>Setzen Sie %1 auf 2 (locker): sysctl -w %1=2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Set %1 to 2 (loose) or 0: sysctl -w %1=2</source>
        <translation>Setzen Sie %1 auf 2 (locker) oder 0: sysctl -w %1=2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Strict reverse-path filtering on %1 drops camera replies: set %2 to 2.</source>
        <translation>Strikte Reverse-Path-Filterung an %1 verwirft Antworten von Kameras: Setzen Sie %2 auf 2.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>The adapter %1 has only the link-local address %2; cameras with a fixed address in another subnet can&apos;t be reached.</source>
        <translation>Der Adapter %1 hat nur die link-lokale Adresse %2; Kameras mit einer festen Adresse in einem anderen Subnetz sind nicht erreichbar.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>The adapter %1 has only the link-local address %2: give it a static address in the cameras&apos; subnet.</source>
        <translation>Der Adapter %1 hat nur die link-lokale Adresse %2: Geben Sie ihm eine statische Adresse im Subnetz der Kameras.</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Sockets may take at most %1 of receive buffer (net.core.rmem_max); image streams need %2, which hold about 67 ms of a 1 Gbit/s stream, so that no packets are lost while the receiver is busy.</source>
        <translation>Sockets dürfen höchstens %1 Empfangspuffer belegen (net.core.rmem_max); Bildströme brauchen %2, die etwa 67 ms eines Stroms mit 1 Gbit/s fassen, damit keine Pakete verloren gehen, während der Empfänger beschäftigt ist.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Raise it: sysctl -w net.core.rmem_max=%1, and keep it in a file below /etc/sysctl.d.</source>
        <translation>Erhöhen Sie den Wert: sysctl -w net.core.rmem_max=%1, und halten Sie ihn in einer Datei unter /etc/sysctl.d fest.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The largest receive buffer (%1) is too small for image streams: raise net.core.rmem_max to %2.</source>
        <translation>Der größte Empfangspuffer (%1) ist zu klein für Bildströme: Erhöhen Sie net.core.rmem_max auf %2.</translation>
    </message>
</context>
<context>
    <name>AdapterIpConfig</name>
    <message>
        <location filename="../../src/network/adapteripconfig.cpp" line="+41"/>
        <source>%1 is not a valid subnet mask.</source>
        <translation>%1 ist keine gültige Subnetzmaske.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 is not a valid address for a host in a subnet with mask %2.</source>
        <translation>%1 ist keine gültige Hostadresse in einem Subnetz mit der Maske %2.</translation>
    </message>
    <message>
        <location filename="../../src/network/adapteripconfig_linux.cpp" line="+49"/>
        <source>Changing the address of %1 needs administrator rights.</source>
        <translation>Zum Ändern der Adresse von %1 sind Administratorrechte erforderlich.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Setting the address of %1 failed: %2</source>
        <translation>Die Adresse von %1 konnte nicht festgelegt werden: %2</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Switching %1 to DHCP is not supported without NetworkManager.</source>
        <translation>Das Umstellen von %1 auf DHCP wird ohne NetworkManager nicht unterstützt.</translation>
    </message>
</context>
<context>
    <name>AdditionalFunctions</name>
    <message>
        <location filename="../../src/driver/bootboost.cpp" line="+30"/>
        <source>Could not read the boot boost state: %1</source>
        <translation>Der Boot-Boost-Zustand konnte nicht gelesen werden: %1</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Could not enable boot boost: %1</source>
        <translation>Boot Boost konnte nicht eingeschaltet werden: %1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Could not disable boot boost: %1</source>
        <translation>Boot Boost konnte nicht ausgeschaltet werden: %1</translation>
    </message>
    <message>
        <location line="+18"/>
        <source>Could not clear the boot boost list: %1</source>
        <translation>Die Boot-Boost-Liste konnte nicht geleert werden: %1</translation>
    </message>
    <message>
        <location line="+9"/>
        <location line="+3"/>
        <location line="+4"/>
        <source>Could not read the boot boost list: %1</source>
        <translation>Die Boot-Boost-Liste konnte nicht gelesen werden: %1</translation>
    </message>
    <message>
        <location filename="../../src/driver/driverconfiguration.cpp" line="+71"/>
        <source>Setting read-only multicast failed with code: %1</source>
        <translation>Das Einstellen von Nur-Lese-Multicast ist mit Code %1 fehlgeschlagen</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>pv_FetchRegistryValues() returned %1</source>
        <translation>pv_FetchRegistryValues() hat %1 zurückgegeben</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>onFetchTcpIp() returned %1</source>
        <translation>onFetchTcpIp() hat %1 zurückgegeben</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Failed to set Idle state! Return code: %1</source>
        <translation>Der Idle-Zustand konnte nicht gesetzt werden! Rückgabewert: %1</translation>
    </message>
    <message>
        <location filename="../../src/driver/widgets/additionalfunctions.cpp" line="+40"/>
        <source>Additional functions</source>
        <translation>Zusätzliche Funktionen</translation>
    </message>
    <message>
        <location line="+34"/>
        <source>Image memory</source>
        <translation>Bildspeicher</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Compatibility mode</source>
        <translation>Kompatibilitätsmodus</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Bulk Transfer Size</source>
        <translation>Bulk-Transfergröße</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Boot boost</source>
        <translation>Boot Boost</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Enable</source>
        <translation>Einschalten</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>e.g. 3;5-7</source>
        <translation>z. B. 3;5-7</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Camera IDs from 1 to 254, separated by &quot;;&quot;; &quot;5-7&quot; stands for 5, 6 and 7.</source>
        <translation>Kamera-IDs von 1 bis 254, getrennt durch „;“; „5-7“ steht für 5, 6 und 7.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Set ID list</source>
        <translation>ID-Liste setzen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Clear ID list</source>
        <translation>ID-Liste leeren</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Add ID</source>
        <translation>ID hinzufügen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Remove ID</source>
        <translation>ID entfernen</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Current boot boost Ids:</source>
        <translation>Aktuelle Boot-Boost-IDs:</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>CPU idle states</source>
        <translation>CPU-Ruhezustände</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Disable (battery mode)</source>
        <translation>Ausschalten (Akkubetrieb)</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Disable (mains mode)</source>
        <translation>Ausschalten (Netzbetrieb)</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Allow thread for performance optimization (IPO)</source>
        <translation>Thread zur Leistungsoptimierung erlauben (IPO)</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Multicast</source>
        <translation>Multicast</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Enable read-only multicast</source>
        <translation>Nur-Lese-Multicast einschalten</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Trusted pairing</source>
        <translation>Vertrauenswürdige Kopplung</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Enable trusted pairing mode</source>
        <translation>Vertrauenswürdige Kopplung einschalten</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Driver</source>
        <translation>Treiber</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Debug output...</source>
        <translation>Debug-Ausgabe...</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Driver flags...</source>
        <translation>Treiber-Flags...</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Reread driver settings</source>
        <translation>Treibereinstellungen neu lesen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Makes the driver read its settings files again.</source>
        <translation>Lässt den Treiber seine Einstellungsdateien neu lesen.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Reread TCP/IP settings</source>
        <translation>TCP/IP-Einstellungen neu lesen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Makes the driver read the network adapters&apos; TCP/IP settings again.</source>
        <translation>Lässt den Treiber die TCP/IP-Einstellungen der Netzwerkadapter neu lesen.</translation>
    </message>
    <message>
        <location line="+43"/>
        <source>Restart with elevated privileges!</source>
        <translation>Mit erhöhten Rechten neu starten!</translation>
    </message>
    <message>
        <location line="+29"/>
        <location line="+20"/>
        <location line="+18"/>
        <location line="+8"/>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <location line="-36"/>
        <location line="+3"/>
        <source>Wrong ID</source>
        <translation>Falsche ID</translation>
    </message>
    <message>
        <location line="-3"/>
        <source>&quot;%1&quot; is not a camera ID.</source>
        <translation>„%1“ ist keine Kamera-ID.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>The ID %1 has to be between with %2 and %3</source>
        <translation>Die ID %1 muss zwischen %2 und %3 liegen</translation>
    </message>
    <message>
        <location line="+45"/>
        <location line="+18"/>
        <location line="+35"/>
        <location line="+12"/>
        <location line="+11"/>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <location line="-58"/>
        <source>Failed to set IPO state! Return code: %1</source>
        <translation>Der IPO-Zustand konnte nicht gesetzt werden! Rückgabewert: %1</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Please restart</source>
        <translation>Bitte neu starten</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Please restart the system manually to apply this setting.</source>
        <translation>Bitte starten Sie das System von Hand neu, damit diese Einstellung wirksam wird.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>privileged feature</source>
        <translation>Funktion mit erhöhten Rechten</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>To use this feature, 
start the %1 with
elevated privileges e.g root or admin!</source>
        <translation>Um diese Funktion zu nutzen, 
starten Sie %1 mit
erhöhten Rechten, z. B. als root oder Administrator!</translation>
    </message>
    <message>
        <location line="+7"/>
        <location line="+7"/>
        <source>Memory compatibility mode</source>
        <translation>Speicher-Kompatibilitätsmodus</translation>
    </message>
    <message>
        <location line="-6"/>
        <source>The image memory compatibility mode could not be changed!
Error code: %1</source>
        <translation>Der Bildspeicher-Kompatibilitätsmodus konnte nicht geändert werden!
Fehlercode: %1</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>To completely adopt the compatibility mode please reboot your system or reconnect all cameras!</source>
        <translation>Damit der Kompatibilitätsmodus vollständig wirkt, starten Sie bitte das System neu oder schließen Sie alle Kameras neu an!</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Setting trusted pairing mode failed with code: %1</source>
        <translation>Das Einstellen der vertrauenswürdigen Kopplung ist mit Code %1 fehlgeschlagen</translation>
    </message>
    <message>
        <location line="+31"/>
        <location line="+7"/>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
</context>
<context>
    <name>ArpProber</name>
    <message>
        <location filename="../../src/network/arpprober.cpp" line="+44"/>
        <source>The adapter %1 has no IPv4 address.</source>
        <translation>Der Adapter %1 hat keine IPv4-Adresse.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 is not a valid subnet mask for adapter %2.</source>
        <translation>%1 ist keine gültige Subnetzmaske für den Adapter %2.</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>The address %1 is not on the network of adapter %2 (%3/%4).</source>
        <translation>Die Adresse %1 liegt nicht im Netz des Adapters %2 (%3/%4).</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>The address %1 is the network address of adapter %2 (%3/%4).</source>
        <translation>Die Adresse %1 ist die Netzadresse des Adapters %2 (%3/%4).</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>The address %1 is the broadcast address of adapter %2 (%3/%4).</source>
        <translation>Die Adresse %1 ist die Broadcast-Adresse des Adapters %2 (%3/%4).</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>The address %1 is the address of adapter %2 itself.</source>
        <translation>Die Adresse %1 ist die Adresse des Adapters %2 selbst.</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>No host answered for %1 on adapter %2 within %3 ms.</source>
        <translation>Kein Gerät hat innerhalb von %3 ms für %1 am Adapter %2 geantwortet.</translation>
    </message>
</context>
<context>
    <name>BootBoostIdList</name>
    <message>
        <location filename="../../src/driver/bootboostidlist.cpp" line="+83"/>
        <source>The IDs %1 could not be added to the boot boost list.
Return code: %2</source>
        <translation>Die IDs %1 konnten nicht in die Boot-Boost-Liste aufgenommen werden.
Rückgabewert: %2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The IDs %1 could not be removed from the boot boost list.
Return code: %2</source>
        <translation>Die IDs %1 konnten nicht aus der Boot-Boost-Liste entfernt werden.
Rückgabewert: %2</translation>
    </message>
</context>
<context>
    <name>Camera</name>
    <message>
        <location filename="../../src/camera/camera.cpp" line="+32"/>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <location line="+175"/>
        <source>no sensor</source>
        <translation>kein Sensor</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>invalid</source>
        <translation>ungültig</translation>
    </message>
</context>
<context>
    <name>CameraActions</name>
    <message>
        <location filename="../../src/camera/cameraactions.cpp" line="+25"/>
        <source>Camera %1 could not be opened.
Return code: %2</source>
        <translation>Kamera %1 konnte nicht geöffnet werden.
Rückgabecode: %2</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Camera %1 did not accept the identification command.
Return code: %2</source>
        <translation>Kamera %1 hat den Identifizierungsbefehl nicht angenommen.
Rückgabecode: %2</translation>
    </message>
    <message>
        <location line="+18"/>
        <source>The read-only device could not be removed.
Return code: %1</source>
        <translation>Das schreibgeschützte Gerät konnte nicht entfernt werden.
Rückgabecode: %1</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>The ETH service could not be connected.
Return code: %1</source>
        <translation>Der ETH-Dienst konnte nicht verbunden werden.
Rückgabecode: %1</translation>
    </message>
</context>
<context>
    <name>CameraList</name>
    <message>
        <location filename="../../src/camera/widgets/cameralist.cpp" line="+122"/>
        <source>&amp;Open this camera</source>
        <translation>Diese Kamera ö&amp;ffnen</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Open &amp;all available cameras</source>
        <translation>&amp;Alle verfügbaren Kameras öffnen</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>&amp;Refresh list</source>
        <translation>&amp;Liste aktualisieren</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>&amp;Identify this camera</source>
        <translation>Diese Kamera &amp;identifizieren</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>&amp;Camera information</source>
        <translation>&amp;Kamerainformationen</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Manual ETH configuration</source>
        <translation>Manuelle ETH-Konfiguration</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Add Readonly Device</source>
        <translation>Schreibgeschütztes Gerät &amp;hinzufügen</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Delete</source>
        <translation>Lö&amp;schen</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>COM port configuration</source>
        <translation>COM-Port-Konfiguration</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Restart with elevated privileges!</source>
        <translation>Starten Sie die Anwendung mit erhöhten Rechten neu!</translation>
    </message>
</context>
<context>
    <name>CameraListModel</name>
    <message>
        <location filename="../../src/camera/cameralistmodel.cpp" line="+81"/>
        <source>Free</source>
        <translation>Frei</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Avail.</source>
        <translation>Verf.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Cam. ID</source>
        <translation>Kam.-ID</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Dev. ID</source>
        <translation>Ger.-ID</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Ser. No.</source>
        <translation>Ser.-Nr.</translation>
    </message>
    <message>
        <location filename="../../src/camera/cameracelltexts.cpp" line="+21"/>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <location line="-5"/>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <location line="+51"/>
        <source>Yes (BB)</source>
        <translation>Ja (BB)</translation>
    </message>
</context>
<context>
    <name>CheckBoxEx</name>
    <message>
        <location filename="../../src/driver/widgets/checkboxex.cpp" line="+36"/>
        <source>Restart with elevated privileges!</source>
        <translation>Mit erhöhten Rechten neu starten!</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
</context>
<context>
    <name>ControlArea</name>
    <message>
        <location filename="../../src/app/widgets/controlarea.cpp" line="+84"/>
        <source>Control area</source>
        <translation>Steuerbereich</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Expert mode</source>
        <translation>Expertenmodus</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Show/hide detailed information view</source>
        <translation>Detaillierte Informationsansicht ein-/ausblenden</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Automatic parameter refresh</source>
        <translation>Automatische Parameteraktualisierung</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Enables/Disables the automatic refresh of the detailed information view</source>
        <translation>Aktiviert/deaktiviert die automatische Aktualisierung der detaillierten Informationsansicht</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Camera information</source>
        <translation>Kamerainformationen</translation>
    </message>
    <message>
        <location line="+0"/>
        <location line="+11"/>
        <source>Show additional camera information</source>
        <translation>Zusätzliche Kamerainformationen anzeigen</translation>
    </message>
    <message>
        <location line="-10"/>
        <source>General information</source>
        <translation>Allgemeine Informationen</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Show general information dialog</source>
        <translation>Dialog „Allgemeine Informationen“ anzeigen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Upload starter firmware</source>
        <translation>Starter-Firmware hochladen</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Upload a runtime firmware manually</source>
        <translation>Runtime-Firmware manuell hochladen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Create support file</source>
        <translation>Supportdatei erstellen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Create a support file with important system
 and %1 information for sending to the %2 support</source>
        <translation>Erstellt eine Supportdatei mit wichtigen Informationen zum System
 und zu %1, die Sie an den Support von %2 senden können</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>ETH network service</source>
        <translation>ETH-Netzwerkdienst</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Show network configuration dialog</source>
        <translation>Dialog für die Netzwerkkonfiguration anzeigen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Additional functions</source>
        <translation>Zusatzfunktionen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Manual ETH configuration</source>
        <translation>Manuelle ETH-Konfiguration</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Show network device configuration dialog</source>
        <translation>Dialog für die Konfiguration des Netzwerkgeräts anzeigen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Automatic ETH configuration</source>
        <translation>Automatische ETH-Konfiguration</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Automatic network configuration</source>
        <translation>Automatische Netzwerkkonfiguration</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Read support file</source>
        <translation>Supportdatei einlesen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Additional Camera Info</source>
        <translation>Zusätzliche Kamerainfos</translation>
    </message>
</context>
<context>
    <name>DeviceInfoModel</name>
    <message>
        <location filename="../../src/details/deviceflagrenderer.cpp" line="+19"/>
        <source>true</source>
        <translation>wahr</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>false</source>
        <translation>falsch</translation>
    </message>
    <message>
        <location filename="../../src/details/deviceinfomodel.cpp" line="+73"/>
        <source>Parameter</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Values</source>
        <translation>Werte</translation>
    </message>
    <message>
        <location filename="../../src/details/deviceinfotreebuilder.cpp" line="+110"/>
        <source>Starter firmware version</source>
        <translation>Version der Starter-Firmware</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Runtime firmware version</source>
        <translation>Version der Runtime-Firmware</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>%1. Hub</source>
        <translation>%1. Hub</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>%1 (Port %2)</source>
        <translation>%1 (Port %2)</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1. Controller</source>
        <translation>%1. Controller</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>ETH version</source>
        <translation>ETH-Version</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>USB version</source>
        <translation>USB-Version</translation>
    </message>
    <message>
        <location line="+5"/>
        <location line="+50"/>
        <location line="+36"/>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <location line="-85"/>
        <location line="+48"/>
        <location line="+38"/>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <location line="-84"/>
        <source>User EEPROM (8 chars)</source>
        <translation>Benutzer-EEPROM (8 Zeichen)</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+88"/>
        <source>COM port number</source>
        <translation>COM-Port-Nummer</translation>
    </message>
    <message>
        <location line="-87"/>
        <location line="+85"/>
        <source>Camera temperature</source>
        <translation>Kameratemperatur</translation>
    </message>
    <message>
        <location line="-84"/>
        <source>Device status flags</source>
        <translation>Gerätestatus-Flags</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Device control status</source>
        <translation>Gerätesteuerungsstatus</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Hardware</source>
        <translation>Hardware</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+78"/>
        <source>Sensor ID</source>
        <translation>Sensor-ID</translation>
    </message>
    <message>
        <location line="-77"/>
        <source>Image memory size</source>
        <translation>Größe des Bildspeichers</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <location line="+7"/>
        <location line="+43"/>
        <source>Network</source>
        <translation>Netzwerk</translation>
    </message>
    <message>
        <location line="-42"/>
        <location line="+43"/>
        <source>MAC address</source>
        <translation>MAC-Adresse</translation>
    </message>
    <message>
        <location line="-42"/>
        <source>Current IP address</source>
        <translation>Aktuelle IP-Adresse</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Current Subnetmask</source>
        <translation>Aktuelle Subnetzmaske</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Persistent IP address</source>
        <translation>Persistente IP-Adresse</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Persistent IP subnetmask</source>
        <translation>Persistente IP-Subnetzmaske</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>DHCP FSM state</source>
        <translation>DHCP-FSM-Zustand</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>DHCP state</source>
        <translation>DHCP-Zustand</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Enabled</source>
        <translation>Aktiviert</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>DHCP server IP</source>
        <translation>IP des DHCP-Servers</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>DHCP lease time</source>
        <translation>DHCP-Lease-Dauer</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>DHCP T1 time</source>
        <translation>DHCP-T1-Zeit</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>DHCP T2 time</source>
        <translation>DHCP-T2-Zeit</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+31"/>
        <source>IP range begin</source>
        <translation>Beginn des IP-Bereichs</translation>
    </message>
    <message>
        <location line="-30"/>
        <location line="+32"/>
        <source>IP range end</source>
        <translation>Ende des IP-Bereichs</translation>
    </message>
    <message>
        <location line="-31"/>
        <source>Paired host MAC address</source>
        <translation>MAC-Adresse des gekoppelten Hosts</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Paired host IP address</source>
        <translation>IP-Adresse des gekoppelten Hosts</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Multicast IP address</source>
        <translation>Multicast-IP-Adresse</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Link</source>
        <translation>Verbindung</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>%1 Mbits/s</source>
        <translation>%1 Mbit/s</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Local network adapter</source>
        <translation>Lokaler Netzwerkadapter</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Designation</source>
        <translation>Bezeichnung</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Driver version</source>
        <translation>Treiberversion</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Driver date</source>
        <translation>Treiberdatum</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>DHCP enabled</source>
        <translation>DHCP aktiviert</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Number of known devices</source>
        <translation>Anzahl bekannter Geräte</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Number of paired devices</source>
        <translation>Anzahl gekoppelter Geräte</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>IP address</source>
        <translation>IP-Adresse</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>IP subnetmask</source>
        <translation>IP-Subnetzmaske</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>IP range valid</source>
        <translation>IP-Bereich gültig</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Packet filter</source>
        <translation>Paketfilter</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Multicast Enabled</source>
        <translation>Multicast aktiviert</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Adapter link speed</source>
        <translation>Verbindungsgeschwindigkeit des Adapters</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 Mbit/s</source>
        <translation>%1 Mbit/s</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Device type</source>
        <translation>Gerätetyp</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Link speed</source>
        <translation>Verbindungsgeschwindigkeit</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Local driver</source>
        <translation>Lokaler Treiber</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Min. compatible starter FW</source>
        <translation>Min. kompatible Starter-FW</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Max. compatible starter FW</source>
        <translation>Max. kompatible Starter-FW</translation>
    </message>
    <message>
        <location filename="../../src/details/devicevaluerenderer.cpp" line="+24"/>
        <source>Invalid - temperature sensor defect!</source>
        <translation>Ungültig - Temperatursensor defekt!</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Invalid - temperature sensor to high!</source>
        <translation>Ungültig - Temperatur am Sensor zu hoch!</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>High Speed (USB 2.0)</source>
        <translation>High-Speed (USB 2.0)</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>SuperSpeed USB 5 Gbps</source>
        <translation>SuperSpeed USB 5 Gbit/s</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Pass all</source>
        <translation>Alle durchlassen</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Block CRGET</source>
        <translation>CRGET blockieren</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Block all</source>
        <translation>Alle blockieren</translation>
    </message>
    <message>
        <location filename="../../src/details/flagtables.cpp" line="+16"/>
        <source>Ready to operate</source>
        <translation>Betriebsbereit</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Testing current IP</source>
        <translation>Aktuelle IP wird geprüft</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Testing persistent IP</source>
        <translation>Persistente IP wird geprüft</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Testing IP range</source>
        <translation>IP-Bereich wird geprüft</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Current IP address not applicable</source>
        <translation>Aktuelle IP-Adresse nicht verwendbar</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Persistent IP address not applicable</source>
        <translation>Persistente IP-Adresse nicht verwendbar</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>IP range not applicable</source>
        <translation>IP-Bereich nicht verwendbar</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Multicast mode enabled</source>
        <translation>Multicast-Modus aktiviert</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Unpaired</source>
        <translation>Nicht gekoppelt</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+28"/>
        <source>Pairing in progress</source>
        <translation>Kopplung läuft</translation>
    </message>
    <message>
        <location line="-27"/>
        <location line="+28"/>
        <source>Paired</source>
        <translation>Gekoppelt</translation>
    </message>
    <message>
        <location line="-27"/>
        <source>Force 100Mbps</source>
        <translation>100 Mbit/s erzwingen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>No COM port</source>
        <translation>Kein COM-Port</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Needs firmware addon</source>
        <translation>Add-on-Firmware erforderlich</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Receiving starter firmware</source>
        <translation>Starter-Firmware wird empfangen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Receiving runtime firmware</source>
        <translation>Runtime-Firmware wird empfangen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Inapplicable runtime firmware</source>
        <translation>Ungeeignete Runtime-Firmware</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Inapplicable starter firmware</source>
        <translation>Ungeeignete Starter-Firmware</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Rebooting to runtime firmware</source>
        <translation>Neustart in die Runtime-Firmware</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Rebooting to starter firmware</source>
        <translation>Neustart in die Starter-Firmware</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Rebooting to failsafe firmware</source>
        <translation>Neustart in die Failsafe-Firmware</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Testing FPGA Firmware</source>
        <translation>FPGA-Firmware wird geprüft</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Receiving addon firmware</source>
        <translation>Add-on-Firmware wird empfangen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Inapplicable addon firmware</source>
        <translation>Ungeeignete Add-on-Firmware</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Hardware configuration error</source>
        <translation>Fehler in der Hardwarekonfiguration</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Runtime firmware error 0</source>
        <translation>Runtime-Firmware-Fehler 0</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Available</source>
        <translation>Verfügbar</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Accessible 1</source>
        <translation>Zugreifbar 1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Accessible 2</source>
        <translation>Zugreifbar 2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Persistent IP address used</source>
        <translation>Persistente IP-Adresse verwendet</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Compatible</source>
        <translation>Kompatibel</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Adapter uses DHCP</source>
        <translation>Adapter verwendet DHCP</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Adapter settings OK</source>
        <translation>Adaptereinstellungen OK</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Unpairing in progress</source>
        <translation>Entkopplung läuft</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Opened</source>
        <translation>Geöffnet</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Upload starter firmware</source>
        <translation>Starter-Firmware hochladen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Upload runtime firmware</source>
        <translation>Runtime-Firmware hochladen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Rebooting</source>
        <translation>Neustart</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Boot boost enabled</source>
        <translation>Boot-Boost aktiviert</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Boot boost used</source>
        <translation>Boot-Boost verwendet</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Initialized</source>
        <translation>Initialisiert</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>To be deleted</source>
        <translation>Zum Löschen vorgesehen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>To be removed</source>
        <translation>Zum Entfernen vorgesehen</translation>
    </message>
</context>
<context>
    <name>DeviceInfoView</name>
    <message>
        <location filename="../../src/details/widgets/deviceinfoview.cpp" line="+82"/>
        <source>Copy item values</source>
        <translation>Werte der Einträge kopieren</translation>
    </message>
</context>
<context>
    <name>ElevatedRestart</name>
    <message>
        <location filename="../../src/common/elevatedrestart_linux.cpp" line="+68"/>
        <source>%1 could not be started.</source>
        <translation>%1 konnte nicht gestartet werden.</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>The authorisation was refused or failed.</source>
        <translation>Die Autorisierung wurde verweigert oder ist fehlgeschlagen.</translation>
    </message>
</context>
<context>
    <name>Elevation</name>
    <message>
        <location filename="../../src/common/widgets/elevationprompt.cpp" line="+17"/>
        <source>Restart application</source>
        <translation>Anwendung neu starten</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Some features require admin privileges. Do you want to restart the application as admin?</source>
        <translation>Einige Funktionen erfordern Administratorrechte. Möchten Sie die Anwendung als Administrator neu starten?</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>This function needs admin privileges and you refused it!</source>
        <translation>Diese Funktion erfordert Administratorrechte, die Sie verweigert haben!</translation>
    </message>
</context>
<context>
    <name>EthConfig</name>
    <message>
        <location filename="../../src/network/ethconfigchecks.cpp" line="+14"/>
        <source>The IP range begin must be less than or equal to the IP range end!</source>
        <translation>Der Beginn des IP-Bereichs muss kleiner oder gleich dem Ende des IP-Bereichs sein!</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>The IP range end must not be equal to the
broadcast address of the subnet!</source>
        <translation>Das Ende des IP-Bereichs darf nicht gleich der
Broadcast-Adresse des Subnetzes sein!</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The IP range end must not be equal to the
broadcast address of the subnet!
And the host part of the IP range must not start with 0!</source>
        <translation>Das Ende des IP-Bereichs darf nicht gleich der
Broadcast-Adresse des Subnetzes sein!
Und der Hostanteil des IP-Bereichs darf nicht mit 0 beginnen!</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>The host part of the IP range must not start with 0!</source>
        <translation>Der Hostanteil des IP-Bereichs darf nicht mit 0 beginnen!</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The given address %1 is not a suitable IP for
the adapter with address %2 / %3!
Do you want to continue anyway?</source>
        <translation>Die angegebene Adresse %1 ist keine passende IP für
den Adapter mit der Adresse %2 / %3!
Möchten Sie trotzdem fortfahren?</translation>
    </message>
    <message>
        <location filename="../../src/network/widgets/ethconfig.cpp" line="+78"/>
        <source>Manual ETH Configuration</source>
        <translation>Manuelle ETH-Konfiguration</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Miscellaneous</source>
        <translation>Sonstiges</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Enable DHCP</source>
        <translation>DHCP aktivieren</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Adapter settings</source>
        <translation>Adaptereinstellungen</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>IP range begin</source>
        <translation>Beginn des IP-Bereichs</translation>
    </message>
    <message>
        <location line="-61"/>
        <source>Suggest</source>
        <translation>Vorschlagen</translation>
    </message>
    <message>
        <location line="+62"/>
        <source>IP range end</source>
        <translation>Ende des IP-Bereichs</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Device settings</source>
        <translation>Geräteeinstellungen</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Persistent IP</source>
        <translation>Persistente IP</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Subnetmask</source>
        <translation>Subnetzmaske</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Multicast settings</source>
        <translation>Multicast-Einstellungen</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Multicast IP</source>
        <translation>Multicast-IP</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Enable</source>
        <translation>Aktivieren</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Default</source>
        <translation>Standard</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Device ID: %1</source>
        <translation>Geräte-ID: %1</translation>
    </message>
    <message>
        <location line="+27"/>
        <source>The camera has no persistent IP address and uses an address from the IP range</source>
        <translation>Die Kamera hat keine persistente IP-Adresse und verwendet eine Adresse aus dem IP-Bereich</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The camera uses the persistent IP address</source>
        <translation>Die Kamera verwendet die persistente IP-Adresse</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>Checking IP addresses. Please wait...</source>
        <translation>IP-Adressen werden geprüft. Bitte warten...</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Checking IP addresses. Please wait...
%1</source>
        <translation>IP-Adressen werden geprüft. Bitte warten...
%1</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>No free address could be suggested.
%1</source>
        <translation>Es konnte keine freie Adresse vorgeschlagen werden.
%1</translation>
    </message>
    <message>
        <location line="+18"/>
        <source>Applying settings. Please wait...</source>
        <translation>Einstellungen werden übernommen. Bitte warten...</translation>
    </message>
    <message>
        <location line="+13"/>
        <location line="+58"/>
        <source>Set persistent IP</source>
        <translation>Persistente IP setzen</translation>
    </message>
    <message>
        <location line="-13"/>
        <source>Checking whether %1 is free...</source>
        <translation>Es wird geprüft, ob %1 frei ist...</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>The address %1 is already used by the device with MAC %2.
Do you want to use it anyway?</source>
        <translation>Die Adresse %1 wird bereits vom Gerät mit der MAC %2 verwendet.
Möchten Sie sie trotzdem verwenden?</translation>
    </message>
    <message>
        <location line="+40"/>
        <source>Setting of the persistent IP address or subnetmask failed.
Errorcode: %1</source>
        <translation>Das Setzen der persistenten IP-Adresse oder Subnetzmaske ist fehlgeschlagen.
Fehlercode: %1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Setting of the automatic configuration range failed.
Errorcode: %1</source>
        <translation>Das Setzen des Bereichs für die automatische Konfiguration ist fehlgeschlagen.
Fehlercode: %1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Enabling / disabling dhcp failed.
Errorcode: %1</source>
        <translation>Das Aktivieren / Deaktivieren von DHCP ist fehlgeschlagen.
Fehlercode: %1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Setting Multicast IP failed with code %1.
Likely an invalid IP?</source>
        <translation>Das Setzen der Multicast-IP ist mit Code %1 fehlgeschlagen.
Vermutlich eine ungültige IP?</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Error enabling Multicast
code %1</source>
        <translation>Fehler beim Aktivieren von Multicast
Code %1</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <location line="+32"/>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
</context>
<context>
    <name>EthConfigSettings</name>
    <message>
        <location filename="../../src/network/ethconfigsettings.cpp" line="+15"/>
        <source>Applying persistent IP settings...</source>
        <translation>Persistente IP-Einstellungen werden übernommen...</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Applying AutoCfg settings...</source>
        <translation>AutoCfg-Einstellungen werden übernommen...</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Applying DHCP settings...</source>
        <translation>DHCP-Einstellungen werden übernommen...</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Applying Multicast IP settings...</source>
        <translation>Multicast-IP-Einstellungen werden übernommen...</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Applying Multicast Enabled settings...</source>
        <translation>Multicast-Aktivierung wird übernommen...</translation>
    </message>
    <message>
        <location line="+91"/>
        <source>Done!</source>
        <translation>Fertig!</translation>
    </message>
</context>
<context>
    <name>EthDaemonConfig</name>
    <message>
        <location filename="../../src/network/ethadaptercontrol.cpp" line="+63"/>
        <source>Setting Packetfilter failed with code %1</source>
        <translation>Das Setzen des Paketfilters ist mit Code %1 fehlgeschlagen</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Setting 2k Jumbo Packets failed with code %1</source>
        <translation>Das Setzen der 2k-Jumbo-Pakete ist mit Code %1 fehlgeschlagen</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>The binding is stored, but the ETH service could not look at the adapters again.
Return code: %1</source>
        <translation>Die Bindung ist gespeichert, aber der ETH-Dienst konnte die Adapter nicht erneut einlesen.
Rückgabecode: %1</translation>
    </message>
    <message>
        <location filename="../../src/network/widgets/ethdaemonconfig.cpp" line="+45"/>
        <source>Network configuration</source>
        <translation>Netzwerkkonfiguration</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Daemon control</source>
        <translation>Dienststeuerung</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Network adapters</source>
        <translation>Netzwerkadapter</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Network Adapter</source>
        <translation>Netzwerkadapter</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Status Text</source>
        <translation>Statustext</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Notes</source>
        <translation>Hinweise</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>MAC address</source>
        <translation>MAC-Adresse</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>IP address</source>
        <translation>IP-Adresse</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Subnetmask</source>
        <translation>Subnetzmaske</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Apply IP settings</source>
        <translation>IP-Einstellungen übernehmen</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Activate DHCP</source>
        <translation>DHCP aktivieren</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Pass all</source>
        <translation>Alle durchlassen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Block CRGET</source>
        <translation>CRGET blockieren</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Block all</source>
        <translation>Alle blockieren</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Packetfilter</source>
        <translation>Paketfilter</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Use 2k Jumbo Packets</source>
        <translation>2k-Jumbo-Pakete verwenden</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Disable for this adapter</source>
        <translation>Für diesen Adapter deaktivieren</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Network adapter(s)</source>
        <translation>Netzwerkadapter</translation>
    </message>
    <message>
        <location line="+33"/>
        <source>service</source>
        <translation>Dienst</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>To enable/disable the GigE %1 %3 for an adapter, you have to start the %2 with elevated privileges!</source>
        <translation>Um den GigE-%1-%3 für einen Adapter zu aktivieren oder zu deaktivieren, müssen Sie den %2 mit erhöhten Rechten starten!</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Parvel Camera Manager</source>
        <translation>Parvel Camera Manager</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>The GigE %1 %3 is currently active on %2 network adapters. It should be enabled for all adapters with GigE %1 cameras connected to and disabled for the others. To enable or disable the %3 for an adapter, select this adapter from the list above and click the &apos;enable/disable GigE %1 %3 for this adapter&apos; button below.</source>
        <translation>Der GigE-%1-%3 ist derzeit auf %2 Netzwerkadaptern aktiv. Er sollte für alle Adapter mit angeschlossenen GigE-%1-Kameras aktiviert und für die anderen deaktiviert sein. Um den %3 für einen Adapter zu aktivieren oder zu deaktivieren, wählen Sie den Adapter in der Liste oben aus und klicken Sie unten auf die Schaltfläche zum Aktivieren/Deaktivieren des GigE-%1-%3 für diesen Adapter.</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>Please choose a network adapter from the list</source>
        <translation>Bitte wählen Sie einen Netzwerkadapter aus der Liste</translation>
    </message>
    <message>
        <location line="+13"/>
        <location line="+24"/>
        <source>Disable for adapter</source>
        <translation>Für Adapter deaktivieren</translation>
    </message>
    <message>
        <location line="-24"/>
        <location line="+24"/>
        <source>Enable for adapter</source>
        <translation>Für Adapter aktivieren</translation>
    </message>
    <message>
        <location line="+8"/>
        <location line="+13"/>
        <source>Can&apos;t find interface!</source>
        <translation>Schnittstelle nicht gefunden!</translation>
    </message>
    <message>
        <location line="-7"/>
        <source>Setting static ip failed with code %1</source>
        <translation>Das Setzen der statischen IP ist mit Code %1 fehlgeschlagen</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Setting DHCP enabled failed with code %1</source>
        <translation>Das Aktivieren von DHCP ist mit Code %1 fehlgeschlagen</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The network adapter is not configured to use packets larger than the normal size of 1,5 KB.

Please set the packet size to at least 2 KB.</source>
        <translation>Der Netzwerkadapter ist nicht für Pakete größer als die normale Größe von 1,5 KB konfiguriert.

Bitte stellen Sie die Paketgröße auf mindestens 2 KB ein.</translation>
    </message>
    <message>
        <location line="+30"/>
        <source>Changes on the service failed</source>
        <translation>Änderungen am Dienst sind fehlgeschlagen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Error stopping the driver!</source>
        <translation>Fehler beim Beenden des Treibers!</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Error starting the driver!</source>
        <translation>Fehler beim Starten des Treibers!</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>With code: %1</source>
        <translation>Mit Code: %1</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Stop ETH service</source>
        <translation>ETH-Dienst beenden</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Start ETH service</source>
        <translation>ETH-Dienst starten</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>USB driver service started</source>
        <translation>USB-Treiberdienst gestartet</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>USB driver service stopped</source>
        <translation>USB-Treiberdienst beendet</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
</context>
<context>
    <name>EthServiceBindings</name>
    <message>
        <location filename="../../src/network/ethservicebindings.cpp" line="+48"/>
        <source>The ETH service settings in %1 can&apos;t be changed. Restart with elevated privileges!</source>
        <translation>Die Einstellungen des ETH-Dienstes in %1 können nicht geändert werden. Starten Sie die Anwendung mit erhöhten Rechten neu!</translation>
    </message>
</context>
<context>
    <name>FlagsCtrl</name>
    <message>
        <location filename="../../src/driver/widgets/flagsctrl.cpp" line="+16"/>
        <source>Driver flags</source>
        <translation>Treiber-Flags</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Flags</source>
        <translation>Flags</translation>
    </message>
</context>
<context>
    <name>HostArpProber</name>
    <message>
        <location filename="../../src/network/hostarpprober_linux.cpp" line="+74"/>
        <location line="+59"/>
        <source>The network adapter %1 is not up.</source>
        <translation>Der Netzwerkadapter %1 ist nicht aktiv.</translation>
    </message>
    <message>
        <location line="-55"/>
        <source>The network adapter %1 has no link.</source>
        <translation>Der Netzwerkadapter %1 hat keine Verbindung.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The network adapter %1 does not use ARP.</source>
        <translation>Der Netzwerkadapter %1 verwendet kein ARP.</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>The network adapter %1 does not hold the address %2/%3.</source>
        <translation>Der Netzwerkadapter %1 hat die Adresse %2/%3 nicht.</translation>
    </message>
    <message>
        <location line="+44"/>
        <source>Asking for %1 on the network adapter %2 was not permitted: %3</source>
        <translation>Die Anfrage nach %1 am Netzwerkadapter %2 wurde nicht erlaubt: %3</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>The ARP request for %1 on the network adapter %2 failed: %3</source>
        <translation>Die ARP-Anfrage nach %1 am Netzwerkadapter %2 ist fehlgeschlagen: %3</translation>
    </message>
</context>
<context>
    <name>IniDocument</name>
    <message>
        <location filename="../../src/common/inidocument.cpp" line="+114"/>
        <source>not text (a control character or invalid UTF-8)</source>
        <translation>kein Text (ein Steuerzeichen oder ungültiges UTF-8)</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>a group name must stand between [ and ]</source>
        <translation>ein Gruppenname muss zwischen [ und ] stehen</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>&quot;%1&quot; is neither a [group], a key=value pair nor a comment</source>
        <translation>„%1“ ist weder eine [Gruppe] noch ein Schlüssel=Wert-Paar noch ein Kommentar</translation>
    </message>
</context>
<context>
    <name>IpChangeFollowUp</name>
    <message>
        <location filename="../../src/network/widgets/ipchangefollowup.cpp" line="+43"/>
        <source>Waiting for device %1 to come back with its new network settings...</source>
        <translation>Warten, bis Gerät %1 mit seinen neuen Netzwerkeinstellungen zurückkehrt...</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Device %1 is reachable at %2 after %3 s.</source>
        <translation>Gerät %1 ist nach %3 s unter %2 erreichbar.</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>The driver does not list the camera any more.</source>
        <translation>Der Treiber führt die Kamera nicht mehr auf.</translation>
    </message>
    <message>
        <location line="+3"/>
        <location line="+30"/>
        <source>Network settings</source>
        <translation>Netzwerkeinstellungen</translation>
    </message>
    <message>
        <location line="-29"/>
        <source>Device %1 did not come back with its new network settings within %2 s.

%3

Do you want to restore the settings it had before?</source>
        <translation>Gerät %1 ist nicht innerhalb von %2 s mit seinen neuen Netzwerkeinstellungen zurückgekehrt.

%3

Möchten Sie die vorherigen Einstellungen wiederherstellen?</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Restoring the previous network settings of device %1...</source>
        <translation>Die vorherigen Netzwerkeinstellungen von Gerät %1 werden wiederhergestellt...</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>The previous network settings of device %1 were restored.</source>
        <translation>Die vorherigen Netzwerkeinstellungen von Gerät %1 wurden wiederhergestellt.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Restoring the previous network settings of device %1 failed.
Errorcode: %2</source>
        <translation>Das Wiederherstellen der vorherigen Netzwerkeinstellungen von Gerät %1 ist fehlgeschlagen.
Fehlercode: %2</translation>
    </message>
</context>
<context>
    <name>NetworkFailure</name>
    <message>
        <location filename="../../src/network/networkfailure.cpp" line="+5"/>
        <source>There is no network adapter &quot;%1&quot;.</source>
        <translation>Es gibt keinen Netzwerkadapter „%1“.</translation>
    </message>
</context>
<context>
    <name>NetworkManagerClient</name>
    <message>
        <location filename="../../src/network/networkmanagerclient_linux.cpp" line="+167"/>
        <source>NetworkManager has no active connection on %1.</source>
        <translation>NetworkManager hat keine aktive Verbindung auf %1.</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>NetworkManager refused the change on %1: %2</source>
        <translation>NetworkManager hat die Änderung an %1 abgelehnt: %2</translation>
    </message>
</context>
<context>
    <name>QCirroCameramanager</name>
    <message>
        <location filename="../../src/app/widgets/qcirrocameramanager.cpp" line="+239"/>
        <source>Camera list</source>
        <translation>Kameraliste</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Quits the application window</source>
        <translation>Schließt das Anwendungsfenster</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Device details</source>
        <translation>Gerätedetails</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 Camera Manager</source>
        <translation>%1 Camera Manager</translation>
    </message>
    <message>
        <location line="+122"/>
        <source>Open eth configuration...</source>
        <translation>ETH-Konfiguration wird geöffnet...</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>The network adapter of device %1 has no IPv4 address, so there is no subnet to take a range from.</source>
        <translation>Der Netzwerkadapter von Gerät %1 hat keine IPv4-Adresse, daher gibt es kein Subnetz, aus dem ein Bereich genommen werden kann.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Setting autoconfiguration. Please wait...

This operation may take up to 10 seconds.</source>
        <translation>Automatische Konfiguration wird gesetzt. Bitte warten...

Dieser Vorgang kann bis zu 10 Sekunden dauern.</translation>
    </message>
    <message>
        <location line="-7"/>
        <location line="+30"/>
        <location line="+2"/>
        <source>Automatic configuration</source>
        <translation>Automatische Konfiguration</translation>
    </message>
    <message>
        <location line="-2"/>
        <source>Automatic configuration can&apos;t be applied!</source>
        <translation>Die automatische Konfiguration kann nicht angewendet werden!</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Automatic configuration &amp; Boot boost are not compatible!</source>
        <translation>Automatische Konfiguration und Boot Boost sind nicht kompatibel!</translation>
    </message>
    <message>
        <location line="+32"/>
        <source>Delete read-only device</source>
        <translation>Schreibgeschütztes Gerät löschen</translation>
    </message>
</context>
<context>
    <name>QDebugOutCtrl</name>
    <message>
        <location filename="../../src/driver/widgets/qdebugoutctrl.cpp" line="+23"/>
        <source>Debug output</source>
        <translation>Debug-Ausgabe</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Device type</source>
        <translation>Gerätetyp</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>ETH</source>
        <translation>ETH</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>The mask as a hexadecimal number; press Enter to set the boxes from it.</source>
        <translation>Die Maske als Hexadezimalzahl; mit der Eingabetaste werden die Kästchen danach gesetzt.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Write</source>
        <translation>Schreiben</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Read</source>
        <translation>Lesen</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Configuration flags</source>
        <translation>Konfigurations-Flags</translation>
    </message>
    <message>
        <location line="+3"/>
        <location line="+2"/>
        <source>Bit %1</source>
        <translation>Bit %1</translation>
    </message>
    <message>
        <location line="+56"/>
        <source>Permission error</source>
        <translation>Berechtigungsfehler</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Can&apos;t write value. Destination is write-protected. If you have insufficient permission, please run under elevated mode!</source>
        <translation>Der Wert kann nicht geschrieben werden. Das Ziel ist schreibgeschützt. Wenn Ihre Rechte nicht ausreichen, starten Sie bitte mit erhöhten Rechten!</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <location filename="../../api/driversettings/debugcategories.cpp" line="+11"/>
        <source>All IOCTL calls</source>
        <translation>All IOCTL calls</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>subsys: transport</source>
        <translation>subsys: transport</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>PnP commands</source>
        <translation>PnP commands</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Power requests</source>
        <translation>Power requests</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Device start/stop</source>
        <translation>Device start/stop</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Driver entry</source>
        <translation>Driver entry</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>commons</source>
        <translation>commons</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cirro messages</source>
        <translation>Cirro messages</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Firmware management</source>
        <translation>Firmware management</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>FX2 stuff</source>
        <translation>FX2 stuff</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Interface high level</source>
        <translation>Interface high level</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Interface low level</source>
        <translation>Interface low level</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>transfer interface</source>
        <translation>transfer interface</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>capture</source>
        <translation>capture</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>thread init exit</source>
        <translation>thread init exit</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>A</source>
        <translation>A</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Boot process</source>
        <translation>Boot process</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Device stuff</source>
        <translation>Device stuff</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>I/O count</source>
        <translation>I/O count</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Function return status</source>
        <translation>Function return status</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>WMI stuff</source>
        <translation>WMI stuff</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Device list</source>
        <translation>Device list</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Trigger stuff</source>
        <translation>Trigger stuff</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>I2C commands</source>
        <translation>I2C commands</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>TimingBoard Rev. 3 FPGA</source>
        <translation>TimingBoard Rev. 3 FPGA</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>SPI</source>
        <translation>SPI</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Remote event manager</source>
        <translation>Remote event manager</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Flash data</source>
        <translation>Flash data</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Memory board</source>
        <translation>Memory board</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>dump object</source>
        <translation>dump object</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Warnings</source>
        <translation>Warnungen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Errors</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>NDIS</source>
        <translation>NDIS</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>transfer requests</source>
        <translation>transfer requests</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>SONY MCB</source>
        <translation>SONY MCB</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>crget dispatcher</source>
        <translation>crget dispatcher</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>cmd channel</source>
        <translation>cmd channel</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>crget upload</source>
        <translation>crget upload</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>message channel</source>
        <translation>message channel</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>stream channel</source>
        <translation>stream channel</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>CRTH</source>
        <translation>CRTH</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>CRTH PRNG</source>
        <translation>CRTH PRNG</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>CRSBET Channel One</source>
        <translation>CRSBET Channel One</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>CRSBET Channel One RX/TX</source>
        <translation>CRSBET Channel One RX/TX</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>eth device mgt</source>
        <translation>eth device mgt</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>eth device</source>
        <translation>eth device</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Reference</source>
        <translation>Reference</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Memory Content</source>
        <translation>Memory Content</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>capeng imgbufmgt</source>
        <translation>capeng imgbufmgt</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>capeng imgbuf</source>
        <translation>capeng imgbuf</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>capeng capctrl</source>
        <translation>capeng capctrl</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>transeng transctrl</source>
        <translation>transeng transctrl</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>camctrl</source>
        <translation>camctrl</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>capeng block mgt</source>
        <translation>capeng block mgt</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>feature</source>
        <translation>feature</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Strch2</source>
        <translation>Strch2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>device management</source>
        <translation>device management</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>test</source>
        <translation>test</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>crget cmd</source>
        <translation>crget cmd</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+1"/>
        <location line="+1"/>
        <location line="+1"/>
        <location line="+1"/>
        <source>unused</source>
        <translation>unbenutzt</translation>
    </message>
</context>
<context>
    <name>ServiceManager</name>
    <message>
        <location filename="../../src/services/servicemanager.cpp" line="+27"/>
        <source>The service %1 is not installed.</source>
        <translation>Der Dienst %1 ist nicht installiert.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>The service %1 could not be started: %2</source>
        <translation>Der Dienst %1 konnte nicht gestartet werden: %2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The service %1 could not be stopped: %2</source>
        <translation>Der Dienst %1 konnte nicht beendet werden: %2</translation>
    </message>
</context>
<context>
    <name>ServiceSettingsFile</name>
    <message>
        <location filename="../../src/common/servicesettingsfile.cpp" line="+41"/>
        <source>The settings file %1 can&apos;t be used: %2</source>
        <translation>Die Einstellungsdatei %1 kann nicht verwendet werden: %2</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>it is not a regular file</source>
        <translation>sie ist keine reguläre Datei</translation>
    </message>
    <message>
        <location line="+2"/>
        <location line="+6"/>
        <source>it is larger than %1 KB</source>
        <translation>sie ist größer als %1 KB</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>The settings file %1 is write-protected.</source>
        <translation>Die Einstellungsdatei %1 ist schreibgeschützt.</translation>
    </message>
    <message>
        <location line="+18"/>
        <source>The settings file %1 holds &quot;%2&quot; in line %3 where a number belongs.</source>
        <translation>Die Einstellungsdatei %1 enthält in Zeile %3 „%2“, wo eine Zahl stehen muss.</translation>
    </message>
    <message>
        <location line="+18"/>
        <source>The settings file %1 could not be written: %2</source>
        <translation>Die Einstellungsdatei %1 konnte nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>its directory could not be created</source>
        <translation>ihr Verzeichnis konnte nicht angelegt werden</translation>
    </message>
</context>
<context>
    <name>SettingsFileNotice</name>
    <message>
        <location filename="../../src/driver/widgets/settingsfilenotice.cpp" line="+30"/>
        <source>The drivers&apos; settings files in %1 are shown but can&apos;t be changed: restart with elevated privileges!</source>
        <translation>Die Einstellungsdateien der Treiber in %1 werden angezeigt, können aber nicht geändert werden: mit erhöhten Rechten neu starten!</translation>
    </message>
</context>
<context>
    <name>SimulatedAdapters</name>
    <message>
        <location filename="../../src/network/simulatedadapters.cpp" line="+108"/>
        <source>Simulated GigE adapter</source>
        <translation>Simulierter GigE-Adapter</translation>
    </message>
</context>
<context>
    <name>SimulatedArpProber</name>
    <message>
        <location filename="../../src/network/simulatedarpprober.cpp" line="+33"/>
        <source>The simulated driver refused %1 as a target on adapter %2.</source>
        <translation>Der simulierte Treiber hat %1 als Ziel am Adapter %2 abgelehnt.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The simulated driver&apos;s ARP request for %1 on adapter %2 failed with code %3.</source>
        <translation>Die ARP-Anfrage des simulierten Treibers nach %1 am Adapter %2 ist mit Code %3 fehlgeschlagen.</translation>
    </message>
</context>
<context>
    <name>SimulatedServiceManager</name>
    <message>
        <location filename="../../src/services/simulatedservicemanager.cpp" line="+32"/>
        <source>the simulated driver refused with code %1.</source>
        <translation>der simulierte Treiber hat mit Code %1 abgelehnt.</translation>
    </message>
</context>
<context>
    <name>StatusPanel</name>
    <message>
        <location filename="../../src/app/widgets/statuspanel.cpp" line="+112"/>
        <source>The %1 Camera Manager is running with root privileges!</source>
        <translation>Der %1 Camera Manager wird mit Root-Rechten ausgeführt!</translation>
    </message>
</context>
<context>
    <name>StatusTexts</name>
    <message>
        <location filename="../../src/camera/statusassessment.cpp" line="+24"/>
        <source>You have opened the camera</source>
        <translation>Sie haben die Kamera geöffnet</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>This camera does not support Fullspeed USB.</source>
        <translation>Diese Kamera unterstützt kein Full-Speed-USB.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>An upload of the camera firmware is not possible. The hardware of your camera is probably not compatible to the installed %1 driver. Your hardware is not supported by driver versions higher than 3.00.</source>
        <translation>Das Hochladen der Kamera-Firmware ist nicht möglich. Die Hardware Ihrer Kamera ist vermutlich nicht mit dem installierten Treiber von %1 kompatibel. Ihre Hardware wird von Treiberversionen höher als 3.00 nicht unterstützt.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source> In addition, the camera does not support Fullspeed USB.</source>
        <translation> Außerdem unterstützt die Kamera kein Full-Speed-USB.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Status of device %1: The camera cannot be opened because it is running with service firmware. Either start the camera in runtime using the &quot;parvel_devicecommand&quot; tool (--reset-to-runtime) or update the camera firmware, e.g. using the &quot;parvel_deviceupdate&quot; tool.
</source>
        <translation>Status von Gerät %1: Die Kamera kann nicht geöffnet werden, da sie mit der Service-Firmware läuft. Starten Sie die Kamera entweder mit dem Tool &quot;parvel_devicecommand&quot; (--reset-to-runtime) in der Runtime-Firmware oder aktualisieren Sie die Kamera-Firmware, z. B. mit dem Tool &quot;parvel_deviceupdate&quot;.
</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The camera is using an invalid IP range and can&apos;t be opened. Please use the &apos;Manual ETH configuration&apos; button to set a valid IP address.</source>
        <translation>Die Kamera verwendet einen ungültigen IP-Bereich und kann nicht geöffnet werden. Bitte legen Sie über die Schaltfläche „Manuelle ETH-Konfiguration“ eine gültige IP-Adresse fest.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Internal driver error. Please reinstall the %1 setup.</source>
        <translation>Interner Treiberfehler. Bitte führen Sie die Installation von %1 erneut aus.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Waiting for %1.</source>
        <translation>Warten auf %1.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Internal device error. Please upload a new starter firmware.</source>
        <translation>Interner Gerätefehler. Bitte laden Sie eine neue Starter-Firmware hoch.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Internal device error. The runtime firmware is corrupted.</source>
        <translation>Interner Gerätefehler. Die Runtime-Firmware ist beschädigt.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The device is not compatible to the driver. Please upload a new starter firmware.</source>
        <translation>Das Gerät ist nicht mit dem Treiber kompatibel. Bitte laden Sie eine neue Starter-Firmware hoch.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The network adapter is configured to use DHCP. Please assign a static IP address and subnetmask via the dialog &apos;Manual ETH configuration&apos;. DHCP will be deactivated automatically.</source>
        <translation>Der Netzwerkadapter ist für DHCP konfiguriert. Bitte weisen Sie über den Dialog „Manuelle ETH-Konfiguration“ eine statische IP-Adresse und Subnetzmaske zu. DHCP wird dabei automatisch deaktiviert.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>The camera is not configured properly. Please use the &apos;Manual ETH configuration&apos; or &apos;Automatic ETH configuration&apos; button to set a IP address. Or enable the camera DHCP client if a DHCP server is available.</source>
        <translation>Die Kamera ist nicht korrekt konfiguriert. Bitte legen Sie über die Schaltfläche „Manuelle ETH-Konfiguration“ oder „Automatische ETH-Konfiguration“ eine IP-Adresse fest. Alternativ können Sie den DHCP-Client der Kamera aktivieren, falls ein DHCP-Server verfügbar ist.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The network adapter is not configured to use packets larger than the normal size of 1,5 KB.Please set the packet size to at least 2 KB.</source>
        <translation>Der Netzwerkadapter ist nicht für Pakete konfiguriert, die größer als die normale Größe von 1,5 KB sind. Bitte stellen Sie die Paketgröße auf mindestens 2 KB ein.</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Firmware image is not available or corrupted. Please reinstall the %1 setup.</source>
        <translation>Das Firmware-Image ist nicht verfügbar oder beschädigt. Bitte führen Sie die Installation von %1 erneut aus.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>The starter firmware of the camera is incompatible to the driver.
An automatic upload will be initiated next time you open the camera. This upload will take several seconds. Do not switch off the power supply and do not unplug the camera! It is strongly recommended to upload the firmware over the button &apos;Starter Firmware Upload&apos;. The requested starter firmware version is %1.%2.%3</source>
        <translation>Die Starter-Firmware der Kamera ist nicht mit dem Treiber kompatibel.
Beim nächsten Öffnen der Kamera wird sie automatisch hochgeladen. Dieser Vorgang dauert einige Sekunden. Schalten Sie währenddessen die Stromversorgung nicht aus und trennen Sie die Kamera nicht! Es wird dringend empfohlen, die Firmware über die Schaltfläche „Starter-Firmware hochladen“ hochzuladen. Die benötigte Version der Starter-Firmware ist %1.%2.%3</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Status of device %1: The camera is currently running in the boot boost mode. It is configured correctly and can be opened.</source>
        <translation>Status von Gerät %1: Die Kamera läuft derzeit im Boot-Boost-Modus. Sie ist korrekt konfiguriert und kann geöffnet werden.</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>The camera is being used by another host and cannot be opened at the moment.</source>
        <translation>Die Kamera wird von einem anderen Host verwendet und kann derzeit nicht geöffnet werden.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The camera is not opened by another host and cannot be opened at the moment.</source>
        <translation>Die Kamera ist von keinem anderen Host geöffnet und kann derzeit nicht geöffnet werden.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Transfer failed (Errorcode: %1): API DLL or kernel driver incompatible. Please reinstall the setup.</source>
        <translation>Übertragung fehlgeschlagen (Fehlercode: %1): API-DLL oder Kerneltreiber inkompatibel. Bitte führen Sie die Installation erneut aus.</translation>
    </message>
    <message>
        <location line="+47"/>
        <source>Status of device %1: %2</source>
        <translation>Status von Gerät %1: %2</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Status of device %1: The camera is configured correctly and can be opened.</source>
        <translation>Status von Gerät %1: Die Kamera ist korrekt konfiguriert und kann geöffnet werden.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Status of device %1: The camera is configured correctly and can be opened. Please note that this device currently is using a lower speed than supported by it.</source>
        <translation>Status von Gerät %1: Die Kamera ist korrekt konfiguriert und kann geöffnet werden. Bitte beachten Sie, dass dieses Gerät derzeit mit einer niedrigeren Geschwindigkeit betrieben wird, als es unterstützt.</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>No camera list available</source>
        <translation>Keine Kameraliste verfügbar</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Attention: You are using a camera model which is no longer supported by the current driver version.</source>
        <translation>Achtung: Sie verwenden ein Kameramodell, das von der aktuellen Treiberversion nicht mehr unterstützt wird.</translation>
    </message>
</context>
<context>
    <name>SystemdServiceManager</name>
    <message>
        <location filename="../../src/services/systemdservicemanager_linux.cpp" line="+77"/>
        <source>there is no connection to D-Bus (%1).</source>
        <translation>es besteht keine Verbindung zum D-Bus (%1).</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>systemd does not run on this system.</source>
        <translation>systemd läuft auf diesem System nicht.</translation>
    </message>
</context>
<context>
    <name>UsbTopology</name>
    <message>
        <location filename="../../src/details/usbtopology_linux.cpp" line="+85"/>
        <source>USB Root Hub</source>
        <translation>USB-Root-Hub</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>USB Root Hub (USB %1)</source>
        <translation>USB-Root-Hub (USB %1)</translation>
    </message>
    <message>
        <location line="+160"/>
        <source>unkown</source>
        <translation>unbekannt</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <location filename="../../src/app/apiversioncheck.cpp" line="+18"/>
        <source>%4 Camera Manager %1 doesn&apos;t work with
lib%4_api &lt; %2.%3!
use a newer lib%4!</source>
        <translation>%4 Camera Manager %1 funktioniert nicht mit
lib%4_api &lt; %2.%3!
Verwenden Sie eine neuere lib%4!</translation>
    </message>
    <message>
        <location filename="../../src/app/commandline.cpp" line="+9"/>
        <source>Open Additional functions</source>
        <translation>Zusatzfunktionen öffnen</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Open Daemon control</source>
        <translation>Daemon-Steuerung öffnen</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 Camera Manager command line helper</source>
        <translation>Befehlszeilenhilfe für den %1 Camera Manager</translation>
    </message>
    <message>
        <location filename="../../src/app/identity.cpp" line="+29"/>
        <source>%1 Camera Manager</source>
        <translation>%1 Camera Manager</translation>
    </message>
    <message>
        <location filename="../../src/app/widgets/startup.cpp" line="+42"/>
        <source>The camera driver refused the camera list&apos;s device events.
Return code: %1</source>
        <translation>Der Kameratreiber hat die Geräteereignisse der Kameraliste abgelehnt.
Rückgabecode: %1</translation>
    </message>
</context>
</TS>
