<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>AboutInformation</name>
    <message>
        <location filename="../../src/sysinfo/aboutinformation.cpp" line="+15"/>
        <source>%1 (built with %2)</source>
        <translation>%1 (erstellt mit %2)</translation>
    </message>
    <message>
        <location line="+27"/>
        <source>Licences</source>
        <translation>Lizenzen</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Product</source>
        <translation>Produkt</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Camera API version</source>
        <translation>Version der Kamera-API</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Camera API library</source>
        <translation>Kamera-API-Bibliothek</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Qt version</source>
        <translation>Qt-Version</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Build</source>
        <translation>Build</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>sanitizers: %1</source>
        <translation>Sanitizer: %1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>assertions on</source>
        <translation>Assertions aktiviert</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Qt %1</source>
        <translation>Qt %1</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>GNU Lesser General Public License, version 3</source>
        <translation>GNU Lesser General Public License, Version 3</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>This program uses the Qt libraries (Core, Gui, Widgets, Network, D-Bus, Concurrent) under the terms of the GNU Lesser General Public License version 3. Qt is a trademark of The Qt Company Ltd. The libraries are linked dynamically; they can be replaced by modified versions. Their source code is available from the distribution&apos;s source packages.</source>
        <translation>Dieses Programm verwendet die Qt-Bibliotheken (Core, Gui, Widgets, Network, D-Bus, Concurrent) gemäß den Bedingungen der GNU Lesser General Public License Version 3. Qt ist eine Marke der The Qt Company Ltd. Die Bibliotheken sind dynamisch gelinkt; sie können durch modifizierte Versionen ersetzt werden. Ihr Quellcode ist in den Quellpaketen der Distribution erhältlich.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Boost %1</source>
        <translation>Boost %1</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Boost Software License, version 1.0</source>
        <translation>Boost Software License, Version 1.0</translation>
    </message>
</context>
<context>
    <name>AboutPage</name>
    <message>
        <location filename="../../src/sysinfo/widgets/aboutpage.cpp" line="+24"/>
        <source>Licences of the libraries this program uses:</source>
        <translation>Lizenzen der von diesem Programm verwendeten Bibliotheken:</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
</context>
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
    <name>AdapterStatisticsModel</name>
    <message>
        <location filename="../../src/dialogs/adapterstatisticsmodel.cpp" line="+71"/>
        <source>driver: %1</source>
        <translation>Treiber: %1</translation>
    </message>
    <message>
        <location line="+30"/>
        <source>This counter grows when the adapter loses image data.</source>
        <translation>Dieser Zähler steigt, wenn der Adapter Bilddaten verliert.</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Counter</source>
        <translation>Zähler</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Change since opened</source>
        <translation>Änderung seit dem Öffnen</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>(lost images)</source>
        <translation>(verlorene Bilder)</translation>
    </message>
</context>
<context>
    <name>AdditionalCameraInfo</name>
    <message>
        <location filename="../../src/dialogs/widgets/additionalcamerainfo.cpp" line="+24"/>
        <source>Additional Camera Info</source>
        <translation>Zusätzliche Kamerainfos</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>&lt;b&gt;%1&lt;/b&gt; &amp;nbsp; serial number %2, device ID %3</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; &amp;nbsp; Seriennummer %2, Geräte-ID %3</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Copy as text</source>
        <translation>Als Text kopieren</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Revision record</source>
        <translation>Revisionsdaten</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Field</source>
        <translation>Feld</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Statistics of the network adapter %1</source>
        <translation>Statistik des Netzwerkadapters %1</translation>
    </message>
    <message>
        <location line="+29"/>
        <source>Changes since this dialog opened; a red row is a counter of lost image data that has grown.</source>
        <translation>Änderungen seit dem Öffnen dieses Dialogs; eine rote Zeile ist ein gestiegener Zähler für verlorene Bilddaten.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The network adapter %1 gives no statistics.</source>
        <translation>Der Netzwerkadapter %1 liefert keine Statistik.</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Network adapter %1</source>
        <translation>Netzwerkadapter %1</translation>
    </message>
</context>
<context>
    <name>AdditionalFunctions</name>
    <message>
        <location filename="../../src/driver/bootboost.cpp" line="+27"/>
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
        <location line="+17"/>
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
        <location filename="../../src/driver/driverconfiguration.cpp" line="+68"/>
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
    <name>CameraCall</name>
    <message>
        <location filename="../../src/dialogs/cameracall.cpp" line="+8"/>
        <source>%1
The function is not supported by the installed driver (return code: %2).</source>
        <translation>%1
Die Funktion wird vom installierten Treiber nicht unterstützt (Rückgabecode: %2).</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1
Return code: %2</source>
        <translation>%1
Rückgabecode: %2</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>%1
The camera accepted the value but reads back another one.</source>
        <translation>%1
Die Kamera hat den Wert angenommen, liest aber einen anderen zurück.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>not supported by the installed driver</source>
        <translation>vom installierten Treiber nicht unterstützt</translation>
    </message>
    <message>
        <location filename="../../src/dialogs/cameracall.h" line="+43"/>
        <source>%1
The value could not be read back.</source>
        <translation>%1
Der Wert konnte nicht zurückgelesen werden.</translation>
    </message>
</context>
<context>
    <name>CameraIdAccess</name>
    <message>
        <location filename="../../src/dialogs/cameraidaccess.cpp" line="+8"/>
        <source>The camera ID could not be read.</source>
        <translation>Die Kamera-ID konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>A camera ID is a number from %1 to %2.</source>
        <translation>Eine Kamera-ID ist eine Zahl von %1 bis %2.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The camera ID could not be written.</source>
        <translation>Die Kamera-ID konnte nicht geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>CameraInfo</name>
    <message>
        <location filename="../../src/dialogs/widgets/camerainfo.cpp" line="+30"/>
        <source>Camera information</source>
        <translation>Kamerainformationen</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>&lt;b&gt;%1&lt;/b&gt; &amp;nbsp; serial number %2, device ID %3</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; &amp;nbsp; Seriennummer %2, Geräte-ID %3</translation>
    </message>
    <message>
        <location line="+39"/>
        <source>Camera %1 has no functions that this dialog offers.</source>
        <translation>Kamera %1 hat keine der Funktionen, die dieser Dialog anbietet.</translation>
    </message>
</context>
<context>
    <name>CameraInfoEepromPage</name>
    <message>
        <location filename="../../src/dialogs/widgets/camerainfoeeprompage.cpp" line="+26"/>
        <source>Read</source>
        <translation>Lesen</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Write</source>
        <translation>Schreiben</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Hexadecimal:</source>
        <translation>Hexadezimal:</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Text:</source>
        <translation>Text:</translation>
    </message>
    <message>
        <location line="+31"/>
        <location line="+11"/>
        <location line="+12"/>
        <source>%1 of %2 bytes used</source>
        <translation>%1 von %2 Byte belegt</translation>
    </message>
    <message>
        <location line="-16"/>
        <source>The hexadecimal field holds no valid bytes.</source>
        <translation>Das Hexadezimalfeld enthält keine gültigen Bytes.</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>The text may hold printable ASCII characters only.</source>
        <translation>Der Text darf nur druckbare ASCII-Zeichen enthalten.</translation>
    </message>
    <message>
        <location filename="../../src/dialogs/widgets/camerainfoeeprompage.h" line="+21"/>
        <source>User EEPROM</source>
        <translation>Benutzer-EEPROM</translation>
    </message>
</context>
<context>
    <name>CameraInfoFpnPage</name>
    <message>
        <location filename="../../src/dialogs/widgets/camerainfofpnpage.cpp" line="+20"/>
        <source>Start calibration</source>
        <translation>Kalibrierung starten</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Reset to factory calibration</source>
        <translation>Auf Werkskalibrierung zurücksetzen</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Cover the lens before you start: the camera measures the noise of a dark image.</source>
        <translation>Decken Sie das Objektiv ab, bevor Sie beginnen: Die Kamera misst das Rauschen eines dunklen Bildes.</translation>
    </message>
    <message>
        <location line="+30"/>
        <source>Calibrating...</source>
        <translation>Kalibrierung läuft...</translation>
    </message>
    <message>
        <location line="+39"/>
        <source>Replace the camera&apos;s own calibration by the factory calibration?</source>
        <translation>Die eigene Kalibrierung der Kamera durch die Werkskalibrierung ersetzen?</translation>
    </message>
    <message>
        <location filename="../../src/dialogs/widgets/camerainfofpnpage.h" line="+25"/>
        <source>FPN calibration</source>
        <translation>FPN-Kalibrierung</translation>
    </message>
</context>
<context>
    <name>CameraInfoIdPage</name>
    <message>
        <location filename="../../src/dialogs/widgets/camerainfoidpage.cpp" line="+24"/>
        <source>Write</source>
        <translation>Schreiben</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Current camera ID:</source>
        <translation>Aktuelle Kamera-ID:</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>New camera ID:</source>
        <translation>Neue Kamera-ID:</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The camera list shows the new ID as soon as the driver reports the change.</source>
        <translation>Die Kameraliste zeigt die neue ID an, sobald der Treiber die Änderung meldet.</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>Camera %1 in the list has the ID %2 already. Two cameras with the same ID can&apos;t be told apart by their ID.</source>
        <translation>Kamera %1 in der Liste hat bereits die ID %2. Zwei Kameras mit derselben ID lassen sich über ihre ID nicht unterscheiden.</translation>
    </message>
    <message>
        <location filename="../../src/dialogs/widgets/camerainfoidpage.h" line="+23"/>
        <source>Camera ID</source>
        <translation>Kamera-ID</translation>
    </message>
</context>
<context>
    <name>CameraInfoLensPage</name>
    <message>
        <location filename="../../src/dialogs/widgets/camerainfolenspage.cpp" line="+24"/>
        <source> dpt</source>
        <translation> dpt</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Store as start-up value</source>
        <translation>Als Startwert speichern</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Focal power:</source>
        <translation>Brechkraft:</translation>
    </message>
    <message>
        <location line="+30"/>
        <source>Range of the lens: %1 to %2</source>
        <translation>Bereich der Linse: %1 bis %2</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Start-up value: %1</source>
        <translation>Startwert: %1</translation>
    </message>
    <message>
        <location filename="../../src/dialogs/widgets/camerainfolenspage.h" line="+24"/>
        <source>Liquid lens</source>
        <translation>Flüssiglinse</translation>
    </message>
</context>
<context>
    <name>CameraInfoPage</name>
    <message>
        <location filename="../../src/dialogs/widgets/camerainfopage.cpp" line="+31"/>
        <source>Some functions of this page are %1.</source>
        <translation>Einige Funktionen dieser Seite werden %1.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>This page is %1.</source>
        <translation>Diese Seite wird %1.</translation>
    </message>
</context>
<context>
    <name>CameraInfoParameterPage</name>
    <message>
        <location filename="../../src/dialogs/widgets/camerainfoparameterpage.cpp" line="+25"/>
        <source>Parameter</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Make start-up set</source>
        <translation>Als Startsatz festlegen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Save current settings into this set</source>
        <translation>Aktuelle Einstellungen in diesem Satz speichern</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Reset to factory</source>
        <translation>Auf Werkseinstellungen zurücksetzen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Export...</source>
        <translation>Exportieren...</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Import...</source>
        <translation>Importieren...</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Set:</source>
        <translation>Satz:</translation>
    </message>
    <message>
        <location line="+56"/>
        <source>Start-up set: %1</source>
        <translation>Startsatz: %1</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>Reset the camera&apos;s current settings and its start-up set to the factory defaults?</source>
        <translation>Die aktuellen Einstellungen der Kamera und ihren Startsatz auf die Werkseinstellungen zurücksetzen?</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>Parameter sets (*.ini)</source>
        <translation>Parametersätze (*.ini)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Export parameter set</source>
        <translation>Parametersatz exportieren</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Import parameter set</source>
        <translation>Parametersatz importieren</translation>
    </message>
    <message>
        <location filename="../../src/dialogs/widgets/camerainfoparameterpage.h" line="+28"/>
        <source>Parameter sets</source>
        <translation>Parametersätze</translation>
    </message>
</context>
<context>
    <name>CameraList</name>
    <message>
        <location filename="../../src/camera/widgets/cameralist.cpp" line="+121"/>
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
        <location filename="../../src/camera/cameracelltexts.cpp" line="+24"/>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <location line="-5"/>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <location line="+27"/>
        <source>Yes (BB): the driver keeps the camera in boot boost mode; it can be opened.</source>
        <translation>Ja (BB): Der Treiber hält die Kamera im Boot-Boost-Modus; sie kann geöffnet werden.</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>USB: USB camera</source>
        <translation>USB: USB-Kamera</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>ETH: GigE camera</source>
        <translation>ETH: GigE-Kamera</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>PMC: read-only multicast device, a passive receiver of a GigE camera&apos;s stream</source>
        <translation>PMC: schreibgeschütztes Multicast-Gerät, ein passiver Empfänger des Datenstroms einer GigE-Kamera</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>U3V: USB3 Vision camera of the Parvel Summit SDK</source>
        <translation>U3V: USB3-Vision-Kamera des Parvel Summit SDK</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>GEV: GigE Vision camera of the Parvel Summit SDK</source>
        <translation>GEV: GigE-Vision-Kamera des Parvel Summit SDK</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>UNK: a device of a kind that this version does not know</source>
        <translation>UNK: ein Gerät eines Typs, den diese Version nicht kennt</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Free: whether no other host holds the camera.</source>
        <translation>Frei: ob kein anderer Host die Kamera belegt.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Avail.: whether the camera can be opened now.</source>
        <translation>Verf.: ob die Kamera jetzt geöffnet werden kann.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Type: the kind of device.</source>
        <translation>Typ: die Art des Geräts.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cam. ID: the camera ID, a number from 1 to 254 that is stored in the camera.</source>
        <translation>Kam.-ID: die Kamera-ID, eine Zahl von 1 bis 254, die in der Kamera gespeichert ist.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Dev. ID: the device ID, which the driver gives the device for this connection.</source>
        <translation>Ger.-ID: die Geräte-ID, die der Treiber dem Gerät für diese Verbindung zuweist.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Model: the model name.</source>
        <translation>Modell: der Modellname.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Ser. No.: the serial number.</source>
        <translation>Ser.-Nr.: die Seriennummer.</translation>
    </message>
    <message>
        <location line="+50"/>
        <source>Yes (BB)</source>
        <translation>Ja (BB)</translation>
    </message>
</context>
<context>
    <name>CameraListPlaceholder</name>
    <message>
        <location filename="../../src/app/cameralistplaceholder.cpp" line="+7"/>
        <source>No cameras found.</source>
        <translation>Keine Kameras gefunden.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The USB driver service (cirro_usb) is not running, so no USB camera can be found. Start it as administrator: systemctl start cirro_usb</source>
        <translation>Der USB-Treiberdienst (cirro_usb) läuft nicht, daher kann keine USB-Kamera gefunden werden. Starten Sie ihn als Administrator: systemctl start cirro_usb</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The USB driver service (cirro_usb) is not installed, so no USB camera can be found.</source>
        <translation>Der USB-Treiberdienst (cirro_usb) ist nicht installiert, daher kann keine USB-Kamera gefunden werden.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The ETH driver service (cirro_eth) is not running, so no GigE camera can be found. Start it in &quot;ETH network service&quot;.</source>
        <translation>Der ETH-Treiberdienst (cirro_eth) läuft nicht, daher kann keine GigE-Kamera gefunden werden. Starten Sie ihn unter „ETH-Netzwerkdienst“.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The ETH driver service (cirro_eth) is not installed, so no GigE camera can be found.</source>
        <translation>Der ETH-Treiberdienst (cirro_eth) ist nicht installiert, daher kann keine GigE-Kamera gefunden werden.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The states of the driver services can&apos;t be read.</source>
        <translation>Die Zustände der Treiberdienste können nicht gelesen werden.</translation>
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
    <name>ComDialog</name>
    <message>
        <location filename="../../src/comport/widgets/comdialog.cpp" line="+48"/>
        <source>COM port configuration</source>
        <translation>COM-Port-Konfiguration</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>%1 (device %2)</source>
        <translation>%1 (Gerät %2)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Model:</source>
        <translation>Modell:</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Serial number:</source>
        <translation>Seriennummer:</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Camera ID:</source>
        <translation>Kamera-ID:</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Virtual COM port</source>
        <translation>Virtueller COM-Port</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Install</source>
        <translation>Installieren</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Save in camera</source>
        <translation>In der Kamera speichern</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Test</source>
        <translation>Testen</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Installed port:</source>
        <translation>Installierter Port:</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Saved in the camera:</source>
        <translation>In der Kamera gespeichert:</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Port number:</source>
        <translation>Portnummer:</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Test answer:</source>
        <translation>Testantwort:</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Broadcast port</source>
        <translation>Broadcast-Port</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Broadcast port: one port that addresses every camera</source>
        <translation>Broadcast-Port: ein Port, der alle Kameras anspricht</translation>
    </message>
    <message>
        <location line="+33"/>
        <location line="+19"/>
        <source>COM port %1: %2</source>
        <translation>COM-Port %1: %2</translation>
    </message>
    <message>
        <location line="-18"/>
        <source>not installed</source>
        <translation>nicht installiert</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>COM port %1</source>
        <translation>COM-Port %1</translation>
    </message>
    <message>
        <location line="+45"/>
        <source>COM port %1 is installed: %2</source>
        <translation>COM-Port %1 ist installiert: %2</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>COM port %1 is saved in the camera, which takes it on every computer.</source>
        <translation>COM-Port %1 ist in der Kamera gespeichert, die ihn an jedem Computer übernimmt.</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>The COM port is removed.</source>
        <translation>Der COM-Port wurde entfernt.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Testing COM port %1 ...</source>
        <translation>COM-Port %1 wird getestet ...</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>COM port %1 answered.</source>
        <translation>COM-Port %1 hat geantwortet.</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>The broadcast port is on: %1</source>
        <translation>Der Broadcast-Port ist eingeschaltet: %1</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>The broadcast port is off.</source>
        <translation>Der Broadcast-Port ist ausgeschaltet.</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Errorcode: %1</source>
        <translation>Fehlercode: %1</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>gone with the camera</source>
        <translation>mit der Kamera entfernt</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Camera %1 is no longer connected. Its COM port is gone with it; close this dialog.</source>
        <translation>Kamera %1 ist nicht mehr verbunden. Ihr COM-Port ist damit ebenfalls entfernt; schließen Sie diesen Dialog.</translation>
    </message>
</context>
<context>
    <name>ComPortAccess</name>
    <message>
        <location filename="../../src/comport/comportaccess.cpp" line="+42"/>
        <source>COM port %1 is not possible: a camera&apos;s port number is from %2 to %3.</source>
        <translation>COM-Port %1 ist nicht möglich: Die Portnummer einer Kamera liegt zwischen %2 und %3.</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>The COM port of camera %1 could not be read.</source>
        <translation>Der COM-Port von Kamera %1 konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>COM port %1 could not be installed.</source>
        <translation>COM-Port %1 konnte nicht installiert werden.</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>The COM port of camera %1 could not be removed.</source>
        <translation>Der COM-Port von Kamera %1 konnte nicht entfernt werden.</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>The COM port saved in camera %1 could not be read.</source>
        <translation>Der in Kamera %1 gespeicherte COM-Port konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>COM port %1 could not be saved in the camera.</source>
        <translation>COM-Port %1 konnte nicht in der Kamera gespeichert werden.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>%1
The value could not be read back.</source>
        <translation>%1
Der Wert konnte nicht zurückgelesen werden.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>The broadcast port could not be read.</source>
        <translation>Der Broadcast-Port konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The broadcast port could not be switched on.</source>
        <translation>Der Broadcast-Port konnte nicht eingeschaltet werden.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The broadcast port could not be switched off.</source>
        <translation>Der Broadcast-Port konnte nicht ausgeschaltet werden.</translation>
    </message>
</context>
<context>
    <name>ComPortAnswer</name>
    <message>
        <location filename="../../src/comport/comportanswer.cpp" line="+46"/>
        <source>No camera answered.</source>
        <translation>Keine Kamera hat geantwortet.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1, serial number %2, camera ID %3</source>
        <translation>%1, Seriennummer %2, Kamera-ID %3</translation>
    </message>
</context>
<context>
    <name>ComPortNumbers</name>
    <message>
        <location filename="../../src/comport/comportnumbers.cpp" line="+38"/>
        <source>COM port %1 is installed for camera %2 already. Choose another number, or remove that camera&apos;s port first.</source>
        <translation>COM-Port %1 ist bereits für Kamera %2 installiert. Wählen Sie eine andere Nummer, oder entfernen Sie zuerst den Port dieser Kamera.</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Camera %1 has COM port %2 installed.</source>
        <translation>Für Kamera %1 ist COM-Port %2 installiert.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Camera %1 has COM port %2 saved too; the two would clash on another computer.</source>
        <translation>In Kamera %1 ist ebenfalls COM-Port %2 gespeichert; an einem anderen Computer würden die beiden kollidieren.</translation>
    </message>
</context>
<context>
    <name>ComPortTest</name>
    <message>
        <location filename="../../src/comport/comporttest.cpp" line="+47"/>
        <source>%1 is in use by another program, or this user may not open it.</source>
        <translation>%1 wird von einem anderen Programm verwendet, oder dieser Benutzer darf ihn nicht öffnen.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1 does not exist (any more).</source>
        <translation>%1 existiert nicht (mehr).</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1 could not be opened: %2</source>
        <translation>%1 konnte nicht geöffnet werden: %2</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>The camera behind %1 answered with an error: %2</source>
        <translation>Die Kamera an %1 hat mit einem Fehler geantwortet: %2</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>%1 answered something that is not a camera&apos;s identification: &quot;%2&quot;</source>
        <translation>%1 hat etwas geantwortet, das keine Kamerakennung ist: „%2“</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>%1 went away during the test: %2</source>
        <translation>%1 ist während des Tests verschwunden: %2</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>%1 did not answer within %2 ms.</source>
        <translation>%1 hat nicht innerhalb von %2 ms geantwortet.</translation>
    </message>
</context>
<context>
    <name>ControlArea</name>
    <message>
        <location filename="../../src/app/widgets/controlarea.cpp" line="+86"/>
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
        <location filename="../../src/details/deviceinfomodel.cpp" line="+77"/>
        <source>Parameter</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Values</source>
        <translation>Werte</translation>
    </message>
    <message>
        <location filename="../../src/details/deviceinfotreebuilder.cpp" line="+88"/>
        <source>Starter firmware version</source>
        <translation>Version der Starter-Firmware</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Runtime firmware version</source>
        <translation>Version der Runtime-Firmware</translation>
    </message>
    <message>
        <location line="+23"/>
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
        <location line="+51"/>
        <location line="+36"/>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <location line="-86"/>
        <location line="+49"/>
        <location line="+38"/>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <location line="-85"/>
        <source>User EEPROM (8 chars)</source>
        <translation>Benutzer-EEPROM (8 Zeichen)</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+89"/>
        <source>COM port number</source>
        <translation>COM-Port-Nummer</translation>
    </message>
    <message>
        <location line="-88"/>
        <location line="+86"/>
        <source>Camera temperature</source>
        <translation>Kameratemperatur</translation>
    </message>
    <message>
        <location line="-85"/>
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
        <location line="+79"/>
        <source>Sensor ID</source>
        <translation>Sensor-ID</translation>
    </message>
    <message>
        <location line="-78"/>
        <source>Image memory size</source>
        <translation>Größe des Bildspeichers</translation>
    </message>
    <message>
        <location filename="../../src/details/devicevaluerenderer.cpp" line="+106"/>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <location filename="../../src/details/deviceinfotreebuilder.cpp" line="+8"/>
        <location line="+44"/>
        <source>Network</source>
        <translation>Netzwerk</translation>
    </message>
    <message>
        <location line="-43"/>
        <location line="+44"/>
        <source>MAC address</source>
        <translation>MAC-Adresse</translation>
    </message>
    <message>
        <location line="-43"/>
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
        <location line="+32"/>
        <source>IP range begin</source>
        <translation>Beginn des IP-Bereichs</translation>
    </message>
    <message>
        <location line="-31"/>
        <location line="+33"/>
        <source>IP range end</source>
        <translation>Ende des IP-Bereichs</translation>
    </message>
    <message>
        <location line="-32"/>
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
        <location filename="../../src/details/devicevaluerenderer.cpp" line="-5"/>
        <source>%1 Mbits/s</source>
        <translation>%1 Mbit/s</translation>
    </message>
    <message>
        <location filename="../../src/details/deviceinfotreebuilder.cpp" line="+7"/>
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
        <location filename="../../src/details/devicevaluerenderer.cpp" line="-64"/>
        <source>Invalid - temperature sensor defect!</source>
        <translation>Ungültig - Temperatursensor defekt!</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Invalid - temperature sensor to high!</source>
        <translation>Ungültig - Temperatur am Sensor zu hoch!</translation>
    </message>
    <message>
        <location line="+15"/>
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
        <location filename="../../src/details/widgets/deviceinfoview.cpp" line="+97"/>
        <source>Copy item values</source>
        <translation>Werte der Einträge kopieren</translation>
    </message>
</context>
<context>
    <name>DriverComponentInventory</name>
    <message>
        <location filename="../../src/sysinfo/drivercomponentinventory.cpp" line="+19"/>
        <source>not installed</source>
        <translation>nicht installiert</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>not running</source>
        <translation>läuft nicht</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>running</source>
        <translation>läuft</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>no access to the service manager</source>
        <translation>kein Zugriff auf die Dienstverwaltung</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <location line="+29"/>
        <source>%1 (simulated)</source>
        <translation>%1 (simuliert)</translation>
    </message>
</context>
<context>
    <name>DriverOutput</name>
    <message>
        <location filename="../../src/driver/driveroutput.cpp" line="+21"/>
        <source>The simulated driver writes the trace lines of %1 to %2.</source>
        <translation>Der simulierte Treiber schreibt die Trace-Zeilen von %1 in %2.</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>the trace file %1</source>
        <translation>der Trace-Datei %1</translation>
    </message>
</context>
<context>
    <name>DriverOutputView</name>
    <message>
        <location filename="../../src/driver/widgets/driveroutputview.cpp" line="+17"/>
        <source>Recent output of %1</source>
        <translation>Letzte Ausgaben von %1</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>Reading ...</source>
        <translation>Wird gelesen ...</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>No lines in %1 yet. Switch categories on in the debug output mask and use the cameras.</source>
        <translation>Noch keine Zeilen in %1. Schalten Sie Kategorien in der Debug-Ausgabemaske ein und verwenden Sie die Kameras.</translation>
    </message>
    <message numerus="yes">
        <location line="+3"/>
        <source>The last %n line(s) of %1, newest last:</source>
        <translation>
            <numerusform>Letzte %n Zeile aus %1, neueste zuletzt:</numerusform>
            <numerusform>Letzte %n Zeilen aus %1, neueste zuletzt:</numerusform>
        </translation>
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
    <name>FirmwareUpload</name>
    <message>
        <location filename="../../src/dialogs/firmwareupload.cpp" line="+57"/>
        <source>The camera&apos;s firmware could not be read back after the upload. Return code: %1</source>
        <translation>Die Firmware der Kamera konnte nach dem Hochladen nicht zurückgelesen werden. Rückgabecode: %1</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>After the upload the camera runs starter firmware %1, but the driver carries %2.</source>
        <translation>Nach dem Hochladen läuft auf der Kamera die Starter-Firmware %1, der Treiber enthält aber %2.</translation>
    </message>
</context>
<context>
    <name>FirmwareUploadProgress</name>
    <message>
        <location filename="../../src/dialogs/widgets/firmwareuploadprogress.cpp" line="+8"/>
        <source>Uploading firmware...

Please don&apos;t disconnect the device until this operation is completed.
This may take up to %1 seconds.</source>
        <translation>Firmware wird hochgeladen...

Bitte trennen Sie das Gerät nicht, bevor dieser Vorgang abgeschlossen ist.
Dies kann bis zu %1 Sekunden dauern.</translation>
    </message>
    <message numerus="yes">
        <location line="+21"/>
        <source>Elapsed: %n second(s)</source>
        <translation>
            <numerusform>Verstrichen: %n Sekunde</numerusform>
            <numerusform>Verstrichen: %n Sekunden</numerusform>
        </translation>
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
    <name>FpnCalibration</name>
    <message>
        <location filename="../../src/dialogs/fpncalibration.cpp" line="+12"/>
        <source>The state of the FPN calibration could not be read.</source>
        <translation>Der Zustand der FPN-Kalibrierung konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>The FPN calibration could not be started.</source>
        <translation>Die FPN-Kalibrierung konnte nicht gestartet werden.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>The FPN calibration could not be cancelled.</source>
        <translation>Die FPN-Kalibrierung konnte nicht abgebrochen werden.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>The factory FPN calibration could not be restored.</source>
        <translation>Die FPN-Werkskalibrierung konnte nicht wiederhergestellt werden.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Calibrated on the camera on %1, residual noise %2 DN.</source>
        <translation>Am %1 auf der Kamera kalibriert, Restrauschen %2 DN.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Factory calibration of %1, residual noise %2 DN.</source>
        <translation>Werkskalibrierung vom %1, Restrauschen %2 DN.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The last calibration was cancelled; the calibration in use stayed.</source>
        <translation>Die letzte Kalibrierung wurde abgebrochen; die verwendete Kalibrierung bleibt erhalten.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The last calibration failed (return code: %1).</source>
        <translation>Die letzte Kalibrierung ist fehlgeschlagen (Rückgabecode: %1).</translation>
    </message>
</context>
<context>
    <name>GeneralInfoDlg</name>
    <message>
        <location filename="../../src/sysinfo/widgets/generalinfodlg.cpp" line="+28"/>
        <source>General information</source>
        <translation>Allgemeine Informationen</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Drivers</source>
        <translation>Treiber</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>USB controllers</source>
        <translation>USB-Controller</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Network adapters</source>
        <translation>Netzwerkadapter</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Updates</source>
        <translation>Updates</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Copy to clipboard</source>
        <translation>In die Zwischenablage kopieren</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Reading …</source>
        <translation>Wird gelesen …</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>Copied to the clipboard.</source>
        <translation>In die Zwischenablage kopiert.</translation>
    </message>
</context>
<context>
    <name>GeneralInformation</name>
    <message>
        <location filename="../../src/sysinfo/generalinformation.cpp" line="+13"/>
        <source>Camera API library</source>
        <translation>Kamera-API-Bibliothek</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Kernel module</source>
        <translation>Kernelmodul</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Driver service</source>
        <translation>Treiberdienst</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Path</source>
        <translation>Pfad</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>File version</source>
        <translation>Dateiversion</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Source version</source>
        <translation>Quellversion</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Port %1</source>
        <translation>Port %1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Instance</source>
        <translation>Instanz</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+26"/>
        <source>Driver</source>
        <translation>Treiber</translation>
    </message>
    <message>
        <location line="-24"/>
        <source>Speed</source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 Mbit/s</source>
        <translation>%1 Mbit/s</translation>
    </message>
    <message numerus="yes">
        <location line="+9"/>
        <source>%n port(s)</source>
        <translation>
            <numerusform>%n Port</numerusform>
            <numerusform>%n Ports</numerusform>
        </translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>PCI identity</source>
        <translation>PCI-Kennung</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>no IPv4 address</source>
        <translation>keine IPv4-Adresse</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>DHCP</source>
        <translation>DHCP</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>static</source>
        <translation>statisch</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>MAC address</source>
        <translation>MAC-Adresse</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>IPv4 address</source>
        <translation>IPv4-Adresse</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Driver version</source>
        <translation>Treiberversion</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Driver date</source>
        <translation>Treiberdatum</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Checks for GigE cameras</source>
        <translation>Prüfungen für GigE-Kameras</translation>
    </message>
    <message>
        <location line="+30"/>
        <location line="+16"/>
        <source>USB controllers</source>
        <translation>USB-Controller</translation>
    </message>
    <message>
        <location line="-16"/>
        <location line="+1"/>
        <source>still being read</source>
        <translation>wird noch gelesen</translation>
    </message>
    <message>
        <location line="+0"/>
        <location line="+27"/>
        <source>Network adapters</source>
        <translation>Netzwerkadapter</translation>
    </message>
    <message>
        <location line="-20"/>
        <source>Drivers</source>
        <translation>Treiber</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>No USB host controller was found.</source>
        <translation>Es wurde kein USB-Host-Controller gefunden.</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>No network adapter was found.</source>
        <translation>Es wurde kein Netzwerkadapter gefunden.</translation>
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
    <name>HostCommand</name>
    <message>
        <location filename="../../src/driver/hostcommand.cpp" line="+30"/>
        <source>%1 is not installed</source>
        <translation>%1 ist nicht installiert</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>%1 can&apos;t be started: %2</source>
        <translation>%1 kann nicht gestartet werden: %2</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>%1 did not answer in time</source>
        <translation>%1 hat nicht rechtzeitig geantwortet</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1 ended abnormally</source>
        <translation>%1 wurde abnormal beendet</translation>
    </message>
</context>
<context>
    <name>HostDriverLog</name>
    <message>
        <location filename="../../src/driver/hostdriverlog_linux.cpp" line="+34"/>
        <source>%1 ended with code %2</source>
        <translation>%1 wurde mit Code %2 beendet</translation>
    </message>
    <message>
        <location line="+55"/>
        <source>The driver %1 writes to the journal of its service %2 and to the kernel log.</source>
        <translation>Der Treiber %1 schreibt in das Journal seines Dienstes %2 und in das Kernel-Log.</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>the journal of %1</source>
        <translation>dem Journal von %1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The journal can&apos;t be read: %1</source>
        <translation>Das Journal kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>the kernel log</source>
        <translation>dem Kernel-Log</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The kernel log can&apos;t be read: %1</source>
        <translation>Das Kernel-Log kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source> and </source>
        <translation> und </translation>
    </message>
</context>
<context>
    <name>InfoTreeView</name>
    <message>
        <location filename="../../src/sysinfo/widgets/infotreeview.cpp" line="+9"/>
        <source>Item</source>
        <translation>Eintrag</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Value</source>
        <translation>Wert</translation>
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
    <name>LiquidLens</name>
    <message>
        <location filename="../../src/dialogs/liquidlens.cpp" line="+8"/>
        <source>The liquid lens could not be read.</source>
        <translation>Die Flüssiglinse konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>The lens takes focal powers from %1 to %2.</source>
        <translation>Die Linse unterstützt Brechkräfte von %1 bis %2.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>The focal power could not be set.</source>
        <translation>Die Brechkraft konnte nicht eingestellt werden.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>The focal power could not be stored as start-up value.</source>
        <translation>Die Brechkraft konnte nicht als Startwert gespeichert werden.</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>%1 dpt</source>
        <translation>%1 dpt</translation>
    </message>
</context>
<context>
    <name>MaintenanceCapabilities</name>
    <message>
        <location filename="../../src/dialogs/maintenancecapabilities.cpp" line="+14"/>
        <source>The camera&apos;s functions could not be read.</source>
        <translation>Die Funktionen der Kamera konnten nicht gelesen werden.</translation>
    </message>
</context>
<context>
    <name>MulticastDialog</name>
    <message>
        <location filename="../../src/dialogs/readonlydevicerequest.cpp" line="+48"/>
        <source>Something went wrong</source>
        <translation>Etwas ist schiefgelaufen</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Invalid Parameter</source>
        <translation>Ungültiger Parameter</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Needs more ram</source>
        <translation>Benötigt mehr RAM</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Maybe not supported for this camera</source>
        <translation>Wird von dieser Kamera möglicherweise nicht unterstützt</translation>
    </message>
    <message>
        <location filename="../../src/dialogs/widgets/multicastdialog.cpp" line="+19"/>
        <source>Add multicast</source>
        <translation>Multicast hinzufügen</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Refuse incomplete Images</source>
        <translation>Unvollständige Bilder verwerfen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Ignore image errors</source>
        <translation>Bildfehler ignorieren</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Merge Mode - Release on complete</source>
        <translation>Zusammenführungsmodus - Freigabe bei Vollständigkeit</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Merge Mode - Release on new image</source>
        <translation>Zusammenführungsmodus - Freigabe bei neuem Bild</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Camera ID:</source>
        <translation>Kamera-ID:</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Error handling:</source>
        <translation>Fehlerbehandlung:</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Add read-only Device</source>
        <translation>Schreibgeschütztes Gerät hinzufügen</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Errorcode: %1</source>
        <translation>Fehlercode: %1</translation>
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
    <name>OpenedCamera</name>
    <message>
        <location filename="../../src/dialogs/openedcamera.cpp" line="+12"/>
        <source>Camera %1 could not be opened.</source>
        <translation>Kamera %1 konnte nicht geöffnet werden.</translation>
    </message>
</context>
<context>
    <name>ParameterSetFile</name>
    <message>
        <location filename="../../src/dialogs/parametersetfile.cpp" line="+39"/>
        <source>The file &quot;%1&quot; could not be written: %2</source>
        <translation>Die Datei „%1“ konnte nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>The file is incomplete: it ends before its checksum.</source>
        <translation>Die Datei ist unvollständig: Sie endet vor ihrer Prüfsumme.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>The file is no parameter set file (line %1: %2).</source>
        <translation>Die Datei ist keine Parametersatzdatei (Zeile %1: %2).</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The file is damaged or incomplete: its checksum does not match its content.</source>
        <translation>Die Datei ist beschädigt oder unvollständig: Ihre Prüfsumme passt nicht zu ihrem Inhalt.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The file holds a parameter set of the model &quot;%1&quot;; this camera is a %2.</source>
        <translation>Die Datei enthält einen Parametersatz des Modells „%1“; diese Kamera ist eine %2.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>The file holds %1 values; the camera has %2.</source>
        <translation>Die Datei enthält %1 Werte; die Kamera hat %2.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>The file has no valid value for &quot;%1&quot;.</source>
        <translation>Die Datei hat keinen gültigen Wert für „%1“.</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>The file &quot;%1&quot; could not be read: %2</source>
        <translation>Die Datei „%1“ konnte nicht gelesen werden: %2</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The file &quot;%1&quot; is too large for a parameter set.</source>
        <translation>Die Datei „%1“ ist zu groß für einen Parametersatz.</translation>
    </message>
</context>
<context>
    <name>ParameterSets</name>
    <message>
        <location filename="../../src/dialogs/parameterset.cpp" line="+53"/>
        <source>Factory default</source>
        <translation>Werkseinstellung</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>User set %1</source>
        <translation>Benutzersatz %1</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>The parameter set &quot;%1&quot; could not be read.</source>
        <translation>Der Parametersatz „%1“ konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The parameter set &quot;%1&quot; could not be written.</source>
        <translation>Der Parametersatz „%1“ konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1
It has too many values or too long names.</source>
        <translation>%1
Er hat zu viele Werte oder zu lange Namen.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>The start-up set could not be read.</source>
        <translation>Der Startsatz konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>&quot;%1&quot; could not be made the start-up set.</source>
        <translation>„%1“ konnte nicht als Startsatz festgelegt werden.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>The current settings could not be saved into &quot;%1&quot;.</source>
        <translation>Die aktuellen Einstellungen konnten nicht in „%1“ gespeichert werden.</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>The camera could not be reset to its factory settings.</source>
        <translation>Die Kamera konnte nicht auf ihre Werkseinstellungen zurückgesetzt werden.</translation>
    </message>
</context>
<context>
    <name>QCirroCameramanager</name>
    <message>
        <location filename="../../src/app/widgets/qcirrocameramanager.cpp" line="+276"/>
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
        <location line="+213"/>
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
        <location line="-89"/>
        <source>The camera viewer was not found. Install %1 in a folder of the PATH, or set the viewer&apos;s path as &quot;%2&quot; in %3.</source>
        <translation>Der Kamera-Viewer wurde nicht gefunden. Installieren Sie %1 in einem Ordner des PATH, oder tragen Sie den Pfad des Viewers als „%2“ in %3 ein.</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Identifying device %1: it blinks in two seconds ...</source>
        <translation>Gerät %1 wird identifiziert: Es blinkt in zwei Sekunden ...</translation>
    </message>
    <message>
        <location line="+73"/>
        <source>Automatic configuration can&apos;t be applied!</source>
        <translation>Die automatische Konfiguration kann nicht angewendet werden!</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Automatic configuration &amp; Boot boost are not compatible!</source>
        <translation>Automatische Konfiguration und Boot Boost sind nicht kompatibel!</translation>
    </message>
    <message>
        <location line="+37"/>
        <source>Firmware upload in progress ...</source>
        <translation>Firmware wird hochgeladen ...</translation>
    </message>
    <message>
        <location line="+24"/>
        <location line="+13"/>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <location line="-13"/>
        <source>Firmware upload error! Return code: %1</source>
        <translation>Fehler beim Hochladen der Firmware! Rückgabecode: %1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Firmware upload error! %1</source>
        <translation>Fehler beim Hochladen der Firmware! %1</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Firmware upload successful!</source>
        <translation>Firmware erfolgreich hochgeladen!</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Device %1: firmware upload successful. The camera now runs starter firmware %2.</source>
        <translation>Gerät %1: Firmware erfolgreich hochgeladen. Auf der Kamera läuft jetzt die Starter-Firmware %2.</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>Save support file</source>
        <translation>Supportdatei speichern</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Support file</source>
        <translation>Supportdatei</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Support files (*.bin)</source>
        <translation>Supportdateien (*.bin)</translation>
    </message>
    <message>
        <location line="+10"/>
        <location line="+10"/>
        <source>Delete read-only device</source>
        <translation>Schreibgeschütztes Gerät löschen</translation>
    </message>
    <message>
        <location line="-9"/>
        <source>Delete the read-only device %1 (camera ID %2)?
The driver forgets it; it comes back only when it is added again with &quot;Add Readonly Device&quot;.</source>
        <translation>Schreibgeschütztes Gerät %1 (Kamera-ID %2) löschen?
Der Treiber vergisst es; es erscheint erst wieder, wenn es erneut mit „Schreibgeschütztes Gerät hinzufügen“ hinzugefügt wird.</translation>
    </message>
    <message>
        <location line="+41"/>
        <source>The scenario file was not loaded, so the simulated driver shows its built-in cameras: %1</source>
        <translation>Die Szenariodatei wurde nicht geladen, daher zeigt der simulierte Treiber seine eingebauten Kameras: %1</translation>
    </message>
</context>
<context>
    <name>QDebugOutCtrl</name>
    <message>
        <location filename="../../src/driver/widgets/qdebugoutctrl.cpp" line="+27"/>
        <source>Debug output</source>
        <translation>Debug-Ausgabe</translation>
    </message>
    <message>
        <location line="+18"/>
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
        <location line="+11"/>
        <source>Driver output</source>
        <translation>Treiberausgabe</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Show recent output</source>
        <translation>Letzte Ausgaben anzeigen</translation>
    </message>
    <message>
        <location line="+63"/>
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
        <location line="+5"/>
        <source>Warning</source>
        <translation>Warnung</translation>
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
    <name>RevisionRecord</name>
    <message>
        <location filename="../../src/dialogs/revisionrecord.cpp" line="+17"/>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Date of quality check</source>
        <translation>Datum der Qualitätsprüfung</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Manufacturer</source>
        <translation>Hersteller</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Sensor hardware revision</source>
        <translation>Hardware-Revision des Sensors</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>USB controller</source>
        <translation>USB-Controller</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Processor</source>
        <translation>Prozessor</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>DSP firmware</source>
        <translation>DSP-Firmware</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>USB board</source>
        <translation>USB-Platine</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Sensor board</source>
        <translation>Sensorplatine</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Processing board</source>
        <translation>Verarbeitungsplatine</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Memory board</source>
        <translation>Speicherplatine</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Housing</source>
        <translation>Gehäuse</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Timing board</source>
        <translation>Timing-Platine</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Product revision</source>
        <translation>Produktrevision</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Logic board</source>
        <translation>Logikplatine</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Power board</source>
        <translation>Netzteilplatine</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>The camera&apos;s revision record could not be read.</source>
        <translation>Die Revisionsdaten der Kamera konnten nicht gelesen werden.</translation>
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
        <location filename="../../src/network/simulatedadapters.cpp" line="+118"/>
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
        <location line="+6"/>
        <source>The starter firmware of the camera is incompatible to the driver.
An automatic upload will be initiated next time you open the camera. This upload will take several seconds. Do not switch off the power supply and do not unplug the camera! It is strongly recommended to upload the firmware over the button &apos;Starter Firmware Upload&apos;. The requested starter firmware version is %1.%2.%3</source>
        <translation>Die Starter-Firmware der Kamera ist nicht mit dem Treiber kompatibel.
Beim nächsten Öffnen der Kamera wird sie automatisch hochgeladen. Dieser Vorgang dauert einige Sekunden. Schalten Sie währenddessen die Stromversorgung nicht aus und trennen Sie die Kamera nicht! Es wird dringend empfohlen, die Firmware über die Schaltfläche „Starter-Firmware hochladen“ hochzuladen. Die benötigte Version der Starter-Firmware ist %1.%2.%3</translation>
    </message>
    <message>
        <location line="+8"/>
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
        <location line="+9"/>
        <source>The device is of a kind that this version of the Camera Manager does not know, so it can&apos;t be used here.</source>
        <translation>Das Gerät ist von einem Typ, den diese Version des Camera Managers nicht kennt; es kann daher hier nicht verwendet werden.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Attention: You are using a camera model which is no longer supported by the current driver version.</source>
        <translation>Achtung: Sie verwenden ein Kameramodell, das von der aktuellen Treiberversion nicht mehr unterstützt wird.</translation>
    </message>
</context>
<context>
    <name>SupportFileDialog</name>
    <message>
        <location filename="../../src/supportfile/supportfileoutline.cpp" line="+128"/>
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>ETH</source>
        <translation>ETH</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>VPE</source>
        <translation>VPE</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>No %1 Cameras</source>
        <translation>Keine %1-Kameras</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 Cameras</source>
        <translation>%1-Kameras</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Used</source>
        <translation>Benutzt</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Unused</source>
        <translation>Unbenutzt</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Serial</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>InUse</source>
        <translation>In Benutzung</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>CamID</source>
        <translation>Kamera-ID</translation>
    </message>
    <message>
        <location line="+10"/>
        <location line="+69"/>
        <location line="+63"/>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <location line="-131"/>
        <location line="+69"/>
        <location line="+61"/>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <location line="-129"/>
        <location line="+97"/>
        <source>Sensor ID</source>
        <translation>Sensor-ID</translation>
    </message>
    <message>
        <location line="-96"/>
        <source>Device type</source>
        <translation>Gerätetyp</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+75"/>
        <source>Camera temperature</source>
        <translation>Kameratemperatur</translation>
    </message>
    <message>
        <location line="-74"/>
        <location line="+70"/>
        <source>Starter firmware version</source>
        <translation>Version der Starter-Firmware</translation>
    </message>
    <message>
        <location line="-68"/>
        <location line="+66"/>
        <source>Runtime firmware version</source>
        <translation>Version der Runtime-Firmware</translation>
    </message>
    <message>
        <location line="-64"/>
        <source>Starter libshared version</source>
        <translation>Version der Starter-libshared</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Runtime libshared version</source>
        <translation>Version der Runtime-libshared</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Memcontent list version</source>
        <translation>Version der Memcontent-Liste</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Cypress SDK version libshared</source>
        <translation>Cypress-SDK-Version libshared</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Cypress SDK version</source>
        <translation>Cypress-SDK-Version</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+106"/>
        <source>Link</source>
        <translation>Verbindung</translation>
    </message>
    <message>
        <location line="-105"/>
        <source>Link Speed</source>
        <translation>Verbindungsgeschwindigkeit</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>High-Speed (USB 2.0)</source>
        <translation>High-Speed (USB 2.0)</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Super-Speed (USB 3.0)</source>
        <translation>SuperSpeed (USB 3.0)</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Missed Heartbeat Counter</source>
        <translation>Zähler verpasster Heartbeats</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Reference Counter</source>
        <translation>Referenzzähler</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Last ACK message</source>
        <translation>Letzte ACK-Nachricht</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Last received heartbeat</source>
        <translation>Zuletzt empfangener Heartbeat</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Last received message</source>
        <translation>Zuletzt empfangene Nachricht</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Reference Flags</source>
        <translation>Referenz-Flags</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Control State</source>
        <translation>Steuerungsstatus</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+40"/>
        <source>COM Port number</source>
        <translation>COM-Port-Nummer</translation>
    </message>
    <message>
        <location line="-39"/>
        <location line="+14"/>
        <source>Local driver</source>
        <translation>Lokaler Treiber</translation>
    </message>
    <message>
        <location line="-13"/>
        <source>USB version</source>
        <translation>USB-Version</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+14"/>
        <source>Min. compatible starter FW</source>
        <translation>Min. kompatible Starter-FW</translation>
    </message>
    <message>
        <location line="-12"/>
        <location line="+14"/>
        <source>Max. compatible starter FW</source>
        <translation>Max. kompatible Starter-FW</translation>
    </message>
    <message>
        <location line="-3"/>
        <source>ETH version</source>
        <translation>ETH-Version</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Transfer</source>
        <translation>Übertragung</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Failsafe firmware version</source>
        <translation>Version der Failsafe-Firmware</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>User EEPROM (8 chars)</source>
        <translation>Benutzer-EEPROM (8 Zeichen)</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>hardware revision</source>
        <translation>Hardware-Revision</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>last message ID</source>
        <translation>ID der letzten Nachricht</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>last heartbeat message ID</source>
        <translation>ID der letzten Heartbeat-Nachricht</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>last ACK message ID</source>
        <translation>ID der letzten ACK-Nachricht</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>missed heartbeats</source>
        <translation>verpasste Heartbeats</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>watchdog skip count</source>
        <translation>Anzahl übersprungener Watchdog-Zyklen</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>reference flags</source>
        <translation>Referenz-Flags</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>atomic reference count</source>
        <translation>atomarer Referenzzähler</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>deviceinfo flags</source>
        <translation>Deviceinfo-Flags</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Device statusflags</source>
        <translation>Gerätestatus-Flags</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Control statusflags</source>
        <translation>Steuerungsstatus-Flags</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Hardware</source>
        <translation>Hardware</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Image memory size</source>
        <translation>Größe des Bildspeichers</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Temperature sensor</source>
        <translation>Temperatursensor</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>invalid - temp. sensor defect!</source>
        <translation>ungültig - Temperatursensor defekt!</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>invalid - temp. sensor to high!</source>
        <translation>ungültig - Temperatur am Sensor zu hoch!</translation>
    </message>
    <message>
        <location line="+3"/>
        <location line="+31"/>
        <source>Network</source>
        <translation>Netzwerk</translation>
    </message>
    <message>
        <location line="-30"/>
        <location line="+31"/>
        <source>MAC address</source>
        <translation>MAC-Adresse</translation>
    </message>
    <message>
        <location line="-30"/>
        <source>Current IP address</source>
        <translation>Aktuelle IP-Adresse</translation>
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
        <location line="+2"/>
        <location line="+29"/>
        <source>IP range begin</source>
        <translation>Beginn des IP-Bereichs</translation>
    </message>
    <message>
        <location line="-28"/>
        <location line="+29"/>
        <source>IP range end</source>
        <translation>Ende des IP-Bereichs</translation>
    </message>
    <message>
        <location line="-28"/>
        <source>Paired host MAC</source>
        <translation>MAC des gekoppelten Hosts</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Paired host IP</source>
        <translation>IP des gekoppelten Hosts</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Multicast IP</source>
        <translation>Multicast-IP</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Local network adapter</source>
        <translation>Lokaler Netzwerkadapter</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Designation</source>
        <translation>Bezeichnung</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Driver version</source>
        <translation>Treiberversion</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Driver date</source>
        <translation>Treiberdatum</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>DHCP enabled</source>
        <translation>DHCP aktiviert</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Number of known devices</source>
        <translation>Anzahl bekannter Geräte</translation>
    </message>
    <message>
        <location line="+2"/>
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
        <location line="+3"/>
        <source>IP range valid</source>
        <translation>IP-Bereich gültig</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Packetfilter</source>
        <translation>Paketfilter</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Passive Multicast</source>
        <translation>Passiver Multicast</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Debug info</source>
        <translation>Debug-Informationen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Statistics</source>
        <translation>Statistik</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Reserved heartbeat</source>
        <translation>Reserviert (Heartbeat)</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Reserved device</source>
        <translation>Reserviert (Gerät)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Reserved adapter</source>
        <translation>Reserviert (Adapter)</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Reserved driver</source>
        <translation>Reserviert (Treiber)</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Drivers</source>
        <translation>Treiber</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Path:</source>
        <translation>Pfad:</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>File Version:</source>
        <translation>Dateiversion:</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+20"/>
        <source>Product Version:</source>
        <translation>Produktversion:</translation>
    </message>
    <message>
        <location line="-8"/>
        <source>System Information</source>
        <translation>Systeminformationen</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Product name:</source>
        <translation>Produktname:</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Architecture:</source>
        <translation>Architektur:</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Build-Arch:</source>
        <translation>Build-Architektur:</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Hostname:</source>
        <translation>Hostname:</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Number of Processors:</source>
        <translation>Anzahl der Prozessoren:</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Active Processors:</source>
        <translation>Aktive Prozessoren:</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>OS Version Info:</source>
        <translation>Betriebssystemversion:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Network adapter</source>
        <translation>Netzwerkadapter</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Driver Info:</source>
        <translation>Treiberinformationen:</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Driver Version: </source>
        <translation>Treiberversion: </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Driver Date:</source>
        <translation>Treiberdatum:</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>MAC:</source>
        <translation>MAC:</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>IP Address:</source>
        <translation>IP-Adresse:</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Subnetmask:</source>
        <translation>Subnetzmaske:</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>DHCP:</source>
        <translation>DHCP:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>USB Controller</source>
        <translation>USB-Controller</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Parvel Summit compatibility mode</source>
        <translation>Parvel-Summit-Kompatibilitätsmodus</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Enabled:</source>
        <translation>Aktiviert:</translation>
    </message>
    <message>
        <location filename="../../src/supportfile/widgets/supportfiledialog.cpp" line="+25"/>
        <source>Support file %1</source>
        <translation>Supportdatei %1</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Shown is what could be read before.</source>
        <translation>Angezeigt wird, was bis dahin gelesen werden konnte.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Serial numbers, MAC addresses and the host name in this file are pseudonyms.</source>
        <translation>Seriennummern, MAC-Adressen und der Hostname in dieser Datei sind Pseudonyme.</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Key</source>
        <translation>Schlüssel</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <location line="+7"/>
        <location line="+59"/>
        <location line="+6"/>
        <source>Export as INI</source>
        <translation>Als INI exportieren</translation>
    </message>
    <message>
        <location line="-63"/>
        <location line="+57"/>
        <location line="+6"/>
        <source>Export as JSON</source>
        <translation>Als JSON exportieren</translation>
    </message>
    <message>
        <location line="-15"/>
        <source>%1 can&apos;t be written: %2.</source>
        <translation>%1 kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>INI file (*.ini)</source>
        <translation>INI-Datei (*.ini)</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>JSON file (*.json)</source>
        <translation>JSON-Datei (*.json)</translation>
    </message>
</context>
<context>
    <name>SupportFileReader</name>
    <message>
        <location filename="../../src/supportfile/supportfilereader.cpp" line="+40"/>
        <source>The support file %1 can&apos;t be opened: %2.</source>
        <translation>Die Supportdatei %1 kann nicht geöffnet werden: %2.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1 is too large to be a support file (%2 bytes).</source>
        <translation>%1 ist zu groß für eine Supportdatei (%2 Byte).</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The support file %1 is empty.</source>
        <translation>Die Supportdatei %1 ist leer.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>The support file %1 is damaged: line %2 is not a number from 0 to 65535.</source>
        <translation>Die Supportdatei %1 ist beschädigt: Zeile %2 ist keine Zahl von 0 bis 65535.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>The support file %1 is damaged: line %2 of its text is not a section or a key (%3).</source>
        <translation>Die Supportdatei %1 ist beschädigt: Zeile %2 ihres Textes ist weder ein Abschnitt noch ein Schlüssel (%3).</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>The support file %1 holds no sections.</source>
        <translation>Die Supportdatei %1 enthält keine Abschnitte.</translation>
    </message>
</context>
<context>
    <name>SupportFileSaveDialog</name>
    <message>
        <location filename="../../src/supportfile/widgets/supportfilesavedialog.cpp" line="+7"/>
        <source>Save support file</source>
        <translation>Supportdatei speichern</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Support file (*.bin)</source>
        <translation>Supportdatei (*.bin)</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Replace serial numbers, MAC addresses and the host name by pseudonyms</source>
        <translation>Seriennummern, MAC-Adressen und den Hostnamen durch Pseudonyme ersetzen</translation>
    </message>
</context>
<context>
    <name>SupportFileWriter</name>
    <message>
        <location filename="../../src/supportfile/supportfilewriter.cpp" line="+64"/>
        <source>Hub</source>
        <translation>Hub</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Controller</source>
        <translation>Controller</translation>
    </message>
    <message>
        <location line="+103"/>
        <source>The support file %1 can&apos;t be written: %2.</source>
        <translation>Die Supportdatei %1 kann nicht geschrieben werden: %2.</translation>
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
    <name>TraceFileTail</name>
    <message>
        <location filename="../../src/driver/tracefiletail.cpp" line="+17"/>
        <source>There is no trace file %1 yet.</source>
        <translation>Es gibt noch keine Trace-Datei %1.</translation>
    </message>
    <message>
        <location line="+15"/>
        <location line="+10"/>
        <source>The trace file %1 can&apos;t be read: %2</source>
        <translation>Die Trace-Datei %1 kann nicht gelesen werden: %2</translation>
    </message>
</context>
<context>
    <name>UpdateCheck</name>
    <message>
        <location filename="../../src/sysinfo/updatecheck.cpp" line="+42"/>
        <source>The update address &quot;%1&quot; is not an http or https address.</source>
        <translation>Die Update-Adresse „%1“ ist keine http- oder https-Adresse.</translation>
    </message>
    <message numerus="yes">
        <location line="+51"/>
        <source>The update server did not answer within %n second(s).</source>
        <translation>
            <numerusform>Der Update-Server hat nicht innerhalb von %n Sekunde geantwortet.</numerusform>
            <numerusform>Der Update-Server hat nicht innerhalb von %n Sekunden geantwortet.</numerusform>
        </translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The update document is larger than %1 kB and was not read.</source>
        <translation>Das Update-Dokument ist größer als %1 kB und wurde nicht gelesen.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The check for updates was cancelled.</source>
        <translation>Die Suche nach Updates wurde abgebrochen.</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>The update server answered %1 %2.</source>
        <translation>Der Update-Server hat mit %1 %2 geantwortet.</translation>
    </message>
    <message numerus="yes">
        <location line="+5"/>
        <source>The update address redirects more than %n time(s).</source>
        <translation>
            <numerusform>Die Update-Adresse leitet mehr als %n Mal weiter.</numerusform>
            <numerusform>Die Update-Adresse leitet mehr als %n Mal weiter.</numerusform>
        </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The update server redirects from https to an unencrypted address; the redirect was not followed.</source>
        <translation>Der Update-Server leitet von https auf eine unverschlüsselte Adresse weiter; der Weiterleitung wurde nicht gefolgt.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>The update server could not be reached (%1). Check the network connection and the update address.</source>
        <translation>Der Update-Server ist nicht erreichbar (%1). Prüfen Sie die Netzwerkverbindung und die Update-Adresse.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>The update document could not be fetched: %1</source>
        <translation>Das Update-Dokument konnte nicht abgerufen werden: %1</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Version %1 is available; version %2 is installed.</source>
        <translation>Version %1 ist verfügbar; installiert ist Version %2.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Version %1 is the latest version.</source>
        <translation>Version %1 ist die neueste Version.</translation>
    </message>
</context>
<context>
    <name>UpdateDocument</name>
    <message>
        <location filename="../../src/sysinfo/updatedocument.cpp" line="+15"/>
        <source>The update document&apos;s notes are not a list of texts by language.</source>
        <translation>Die Hinweise im Update-Dokument sind keine Liste von Texten nach Sprache.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>The update document&apos;s notes for &quot;%1&quot; are not a text.</source>
        <translation>Die Hinweise im Update-Dokument für „%1“ sind kein Text.</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>The update document is not valid JSON: %1 (at byte %2).</source>
        <translation>Das Update-Dokument ist kein gültiges JSON: %1 (bei Byte %2).</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>The update document is not a JSON object.</source>
        <translation>Das Update-Dokument ist kein JSON-Objekt.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>The update document has no format number.</source>
        <translation>Das Update-Dokument hat keine Formatnummer.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>The update document has the format %1; this version reads format %2.</source>
        <translation>Das Update-Dokument hat das Format %1; diese Version liest Format %2.</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>The update document names no latest version.</source>
        <translation>Das Update-Dokument nennt keine neueste Version.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The update document&apos;s latest version &quot;%1&quot; is not a version number such as 4.98.0.0.</source>
        <translation>Die neueste Version „%1“ im Update-Dokument ist keine Versionsnummer wie 4.98.0.0.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>(not a text)</source>
        <translation>(kein Text)</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>The update document&apos;s download page &quot;%1&quot; is not an http or https address.</source>
        <translation>Die Download-Seite „%1“ im Update-Dokument ist keine http- oder https-Adresse.</translation>
    </message>
</context>
<context>
    <name>UpdatesPage</name>
    <message>
        <location filename="../../src/sysinfo/widgets/updatespage.cpp" line="+17"/>
        <source>https://… address of the update document</source>
        <translation>https://… Adresse des Update-Dokuments</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+60"/>
        <source>Check for updates</source>
        <translation>Nach Updates suchen</translation>
    </message>
    <message>
        <location line="-58"/>
        <source>The program asks for updates only when you press &quot;Check for updates&quot;.</source>
        <translation>Das Programm sucht nur dann nach Updates, wenn Sie auf „Nach Updates suchen“ klicken.</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Installed version:</source>
        <translation>Installierte Version:</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Update address:</source>
        <translation>Update-Adresse:</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>No update address is set. Enter the address of the update document that your supplier gave you.</source>
        <translation>Es ist keine Update-Adresse festgelegt. Geben Sie die Adresse des Update-Dokuments ein, die Ihnen Ihr Lieferant mitgeteilt hat.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Asking %1 …</source>
        <translation>%1 wird abgefragt …</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Open the download page</source>
        <translation>Download-Seite öffnen</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Updates</source>
        <translation>Updates</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Installed version</source>
        <translation>Installierte Version</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Update address</source>
        <translation>Update-Adresse</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Last check</source>
        <translation>Letzte Prüfung</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Download page</source>
        <translation>Download-Seite</translation>
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
    <name>UserEeprom</name>
    <message>
        <location filename="../../src/dialogs/usereeprom.cpp" line="+31"/>
        <source>&quot;%1&quot; at position %2 is no hexadecimal digit.</source>
        <translation>„%1“ an Position %2 ist keine Hexadezimalziffer.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Each byte needs two hexadecimal digits; the last one has only one.</source>
        <translation>Jedes Byte benötigt zwei Hexadezimalziffern; das letzte hat nur eine.</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>The text may hold printable ASCII characters only; &quot;%1&quot; at position %2 is none.</source>
        <translation>Der Text darf nur druckbare ASCII-Zeichen enthalten; „%1“ an Position %2 ist keines.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>The user EEPROM holds %1 bytes; %2 bytes don&apos;t fit. Nothing was written.</source>
        <translation>Das Benutzer-EEPROM fasst %1 Byte; %2 Byte passen nicht hinein. Es wurde nichts geschrieben.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>The user EEPROM could not be read.</source>
        <translation>Das Benutzer-EEPROM konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>The user EEPROM could not be written.</source>
        <translation>Das Benutzer-EEPROM konnte nicht geschrieben werden.</translation>
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
        <location filename="../../src/app/widgets/startup.cpp" line="+46"/>
        <source>The camera driver refused the camera list&apos;s device events.
Return code: %1</source>
        <translation>Der Kameratreiber hat die Geräteereignisse der Kameraliste abgelehnt.
Rückgabecode: %1</translation>
    </message>
    <message>
        <location line="+39"/>
        <source>%1: there is no display to show the window on (DISPLAY is not set).</source>
        <translation>%1: Es ist keine Anzeige vorhanden, auf der das Fenster angezeigt werden kann (DISPLAY ist nicht gesetzt).</translation>
    </message>
</context>
</TS>
