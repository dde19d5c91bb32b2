#include "supportfile/supportfileoutline.h"

#include "common/versionword.h"
#include "details/deviceflagrenderer.h"
#include "details/deviceinfotreebuilder.h"
#include "details/devicevaluerenderer.h"
#include "supportfile/supportfilecamera.h"
#include "supportfile/supportfilefields.h"
#include "supportfile/supportfiletree.h"
#include "sysinfo/systeminformation.h"

#include <QRegularExpression>

namespace {

using Name = SupportFileNames::Name;
using Kind = SupportFileCamera::Kind;
using Format = std::function<QString(const Camera&)>;

constexpr quint8 usb2ConnectionCode = 2;
constexpr int comPortBase = 100;

std::wstring wide(Name name)
{
    return SupportFileNames::text(name);
}

QString qt(const std::wstring& text)
{
    return QString::fromStdWString(text);
}

Format version(quint32 pv_DeviceInformation::*field)
{
    return [field](const Camera& camera) { return VersionWord(camera.deviceInformation().*field).paddedText(); };
}

Format usbVersion(quint32 pv_UsbDeviceInfo::*field)
{
    return [field](const Camera& camera) { return VersionWord(camera.usb().*field).paddedText(); };
}

template <typename T>
Format number(T pv_DeviceInformation::*field)
{
    return [field](const Camera& camera) { return QString::number(camera.deviceInformation().*field); };
}

template <typename T>
Format ethNumber(T pv_EthDeviceInfo::*field)
{
    return [field](const Camera& camera) { return QString::number(camera.eth().*field); };
}

Format flags(quint32 pv_DeviceInformation::*field)
{
    return [field](const Camera& camera) { return DeviceValueRenderer::flagWord(camera.deviceInformation().*field); };
}

Format ip(quint32 pv_EthDeviceInfo::*field)
{
    return [field](const Camera& camera) { return Camera::ipText(camera.eth().*field); };
}

template <typename T>
Format boolean(T pv_EthDeviceInfo::*field)
{
    return [field](const Camera& camera) { return DeviceFlagRenderer::boolText(camera.eth().*field); };
}

QString comPort(const Camera& camera)
{
    return QString::number(int(camera.deviceInformation().comPortOffset) + comPortBase);
}

QString temperature(const Camera& camera)
{
    return camera.temperatureText();
}

// A row per key: the label and the key's formatted value.
struct Line
{
    QString label;
    Name key;
    Format format;
};

void addLines(SupportFileRow& row, const SupportFileCamera& camera, const std::vector<Line>& lines)
{
    for (const Line& line : lines)
        row.add(line.label, camera.value(line.key, line.format));
}

std::wstring cameraSection(int kind, int number)
{
    const Name format = kind == SupportFileNames::UsbCount   ? Name::UsbSection
                        : kind == SupportFileNames::EthCount ? Name::EthSection
                                                             : Name::VpeSection;
    return SupportFileNames::numbered(format, number);
}

} // namespace

// The camera sections from number 0 on that hold a camera's own keys.
static long long sectionsRead(const SupportFileTree& tree, int kind)
{
    long long count = 0;
    while (tree.get(cameraSection(kind, int(count)), wide(Name::DeviceId)))
        ++count;
    return count;
}

std::vector<SupportFileRow> SupportFileOutline::build(const SupportFileTree& tree, bool partial)
{
    return {cameraGroup(tree, SupportFileNames::UsbCount, partial),
            cameraGroup(tree, SupportFileNames::EthCount, partial),
            cameraGroup(tree, SupportFileNames::VpeCount, partial),
            drivers(tree),
            systemInformation(tree),
            networkAdapters(tree),
            usbControllers(tree),
            summitCompatibility(tree)};
}

SupportFileRow SupportFileOutline::cameraGroup(const SupportFileTree& tree, int kind, bool partial)
{
    const QString name = kind == SupportFileNames::UsbCount ? tr("USB") : kind == SupportFileNames::EthCount ? tr("ETH")
                                                                                                             : tr("VPE");
    long long count = tree.number(SupportFileNames::countSection(SupportFileNames::CountKind(kind)),
                                  wide(Name::NumberOfCameras), -1);
    if (partial && count < 0)
        count = sectionsRead(tree, kind);
    if (count < 1)
        return SupportFileRow{tr("No %1 Cameras").arg(name), QString(), false, {}};
    SupportFileRow group{tr("%1 Cameras").arg(name), QString(), false, {}};
    const Kind cameraKind = kind == SupportFileNames::UsbCount ? Kind::Usb
                            : kind == SupportFileNames::EthCount ? Kind::Eth
                                                                 : Kind::Vpe;
    // A count beyond the sections the file holds must not make the viewer walk on for ever.
    const int sections = int(tree.sectionNames().size());
    for (int i = 0; i < count && i < sections; ++i) {
        const SupportFileCamera camera(tree, cameraSection(kind, i), cameraKind);
        SupportFileRow row = cameraKind == Kind::Usb   ? usbCamera(camera)
                             : cameraKind == Kind::Eth ? ethCamera(camera)
                                                       : SupportFileRow();
        const bool used = camera.has(Name::DeviceUsed) && camera.camera().inUse() != 0;
        row.label = QStringLiteral("%1 / %2").arg(camera.text(Name::DeviceId), used ? tr("Used") : tr("Unused"));
        const std::vector<SupportFileRow> details = std::move(row.children);
        row.children.clear();
        row.add(tr("Model"), camera.text(Name::DeviceModel));
        row.add(tr("Serial"), camera.text(Name::DeviceSerNo));
        row.add(tr("InUse"), camera.value(Name::DeviceUsed, [](const Camera& c) {
            return DeviceFlagRenderer::boolText(c.inUse() != 0);
        }));
        row.add(tr("CamID"), camera.text(Name::DeviceCameraId));
        row.children.insert(row.children.end(), details.begin(), details.end());
        group.children.push_back(std::move(row));
    }
    return group;
}

SupportFileRow SupportFileOutline::usbCamera(const SupportFileCamera& camera)
{
    SupportFileRow row;
    SupportFileRow& device = row.add(tr("Device"));
    addLines(device.add(tr("General")), camera,
             {{tr("Sensor ID"), Name::DeviceSensorId, [](const Camera& c) { return QString::number(c.sensorId()); }},
              {tr("Device type"), Name::DeviceType, number(&pv_DeviceInformation::deviceType)},
              {tr("Camera temperature"), Name::DeviceTemperature, temperature},
              {tr("Starter firmware version"), Name::DeviceStarterFirmwareVersion,
               version(&pv_DeviceInformation::starterFirmware)},
              {tr("Runtime firmware version"), Name::DeviceRuntimeFirmwareVersion,
               version(&pv_DeviceInformation::runtimeFirmware)},
              {tr("Starter libshared version"), Name::DeviceStarterLibSharedVersion,
               usbVersion(&pv_UsbDeviceInfo::starterLibSharedVersion)},
              {tr("Runtime libshared version"), Name::DeviceRuntimeLibSharedVersion,
               usbVersion(&pv_UsbDeviceInfo::runtimeLibSharedVersion)},
              {tr("Memcontent list version"), Name::DeviceMemContentListVersion,
               usbVersion(&pv_UsbDeviceInfo::memContentListVersion)},
              {tr("Cypress SDK version libshared"), Name::DeviceCypressFx3SDKVersion,
               usbVersion(&pv_UsbDeviceInfo::fx3SdkVersion)},
              {tr("Cypress SDK version"), Name::CCGVersion, usbVersion(&pv_UsbDeviceInfo::ccgVersion)}});
    SupportFileRow& link = device.add(tr("Link"));
    link.add(tr("Link Speed"), camera.value(Name::DeviceConnectionType, [](const Camera& c) {
        return c.usb().connectionType == usb2ConnectionCode ? tr("High-Speed (USB 2.0)") : tr("Super-Speed (USB 3.0)");
    }));
    // Each hub holds the next one, as in the device details.
    SupportFileRow* parent = &link;
    for (const DeviceInfoTreeBuilder::PathRow& path : DeviceInfoTreeBuilder::pathRows(camera.usbPath()))
        parent = &parent->add(path.label, path.value);
    addLines(device, camera,
             {{tr("Missed Heartbeat Counter"), Name::DeviceMissedHeartbeatCnt,
               number(&pv_DeviceInformation::missedHeartbeatCount)},
              {tr("Reference Counter"), Name::DeviceAtomicRefCnt, number(&pv_DeviceInformation::atomicRefCount)},
              {tr("Last ACK message"), Name::DeviceLastAcknowledgedMsgId,
               number(&pv_DeviceInformation::lastAcknowledgedMsgId)},
              {tr("Last received heartbeat"), Name::DeviceLastReceivedHeartbeatMsgId,
               number(&pv_DeviceInformation::lastReceivedHeartbeatMsgId)},
              {tr("Last received message"), Name::DeviceLastReceivedMsgId,
               number(&pv_DeviceInformation::lastReceivedMsgId)},
              {tr("Reference Flags"), Name::DeviceRefFlags, flags(&pv_DeviceInformation::refFlags)},
              {tr("Control State"), Name::DeviceControlStatus, flags(&pv_DeviceInformation::deviceControlStatus)},
              {tr("COM Port number"), Name::DeviceComportOffset, comPort}});
    addLines(row.add(tr("Local driver")), camera,
             {{tr("USB version"), Name::DriverUsbVer, version(&pv_DeviceInformation::driverVersion)},
              {tr("Min. compatible starter FW"), Name::DeviceCoreMinVersion,
               usbVersion(&pv_UsbDeviceInfo::coreMinVersion)},
              {tr("Max. compatible starter FW"), Name::DeviceCoreMaxVersion,
               usbVersion(&pv_UsbDeviceInfo::coreMaxVersion)}});
    return row;
}

SupportFileRow SupportFileOutline::ethCamera(const SupportFileCamera& camera)
{
    SupportFileRow row;
    addEthDevice(row, camera);
    addEthAdapter(row, camera);
    addLines(row.add(tr("Local driver")), camera,
             {{tr("ETH version"), Name::DriverEthVer, version(&pv_DeviceInformation::driverVersion)},
              {tr("Min. compatible starter FW"), Name::DriverMinStarterFirmwareVersion,
               version(&pv_DeviceInformation::minStarterFirmware)},
              {tr("Max. compatible starter FW"), Name::DriverMaxStarterFirmwareVersion,
               version(&pv_DeviceInformation::maxStarterFirmware)}});
    // Kept in the format; files carry them only where a writer had them.
    SupportFileRow& transfer = row.add(tr("Transfer"));
    for (int key = int(Name::TransferImgDelay); key <= int(Name::TransferSendWindowDelay); ++key)
        transfer.add(QString::fromWCharArray(SupportFileNames::text(Name(key))), camera.text(Name(key)));
    addEthDebug(row, camera);
    return row;
}

void SupportFileOutline::addEthDevice(SupportFileRow& row, const SupportFileCamera& camera)
{
    SupportFileRow& device = row.add(tr("Device"));
    addLines(device.add(tr("General")), camera,
             {{tr("Failsafe firmware version"), Name::DeviceFailsafeFirmwareVersion,
               version(&pv_DeviceInformation::failsafeFirmware)},
              {tr("Runtime firmware version"), Name::DeviceRuntimeFirmwareVersion,
               version(&pv_DeviceInformation::runtimeFirmware)},
              {tr("Starter firmware version"), Name::DeviceStarterFirmwareVersion,
               version(&pv_DeviceInformation::starterFirmware)},
              {tr("User EEPROM (8 chars)"), Name::DeviceUserSpace, DeviceValueRenderer::userEeprom},
              {tr("COM Port number"), Name::DeviceComportOffset, comPort},
              {tr("Camera temperature"), Name::DeviceTemperature, temperature},
              {tr("hardware revision"), Name::DeviceGeneralBoardVersion, ethNumber(&pv_EthDeviceInfo::generalBoardVersion)},
              {tr("last message ID"), Name::DeviceLastReceivedMsgId, number(&pv_DeviceInformation::lastReceivedMsgId)},
              {tr("last heartbeat message ID"), Name::DeviceLastReceivedHeartbeatMsgId,
               number(&pv_DeviceInformation::lastReceivedHeartbeatMsgId)},
              {tr("last ACK message ID"), Name::DeviceLastAcknowledgedMsgId,
               number(&pv_DeviceInformation::lastAcknowledgedMsgId)},
              {tr("missed heartbeats"), Name::DeviceMissedHeartbeatCnt,
               number(&pv_DeviceInformation::missedHeartbeatCount)},
              {tr("watchdog skip count"), Name::DeviceWatchdogSkipCounter,
               ethNumber(&pv_EthDeviceInfo::watchdogSkipCounter)},
              {tr("reference flags"), Name::DeviceRefFlags, flags(&pv_DeviceInformation::refFlags)},
              {tr("atomic reference count"), Name::DeviceAtomicRefCnt, number(&pv_DeviceInformation::atomicRefCount)},
              {tr("deviceinfo flags"), Name::DeviceInfoFlags,
               [](const Camera& c) { return DeviceValueRenderer::flagWord(c.eth().infoFlags); }},
              {tr("Device statusflags"), Name::DeviceStatusFlags, flags(&pv_DeviceInformation::deviceStatus)},
              {tr("Control statusflags"), Name::DeviceControlStatus,
               flags(&pv_DeviceInformation::deviceControlStatus)}});
    SupportFileRow& hardware = device.add(tr("Hardware"));
    addLines(hardware, camera,
             {{tr("Sensor ID"), Name::DeviceSensorId, [](const Camera& c) { return QString::number(c.sensorId()); }},
              {tr("Image memory size"), Name::DeviceSizeImgMem_MB, [](const Camera& c) {
                   return DeviceValueRenderer::memorySize(c.deviceInformation().imageMemoryMB);
               }}});
    const DeviceValueRenderer::SensorFault fault = DeviceValueRenderer::sensorFault(camera.text(Name::DeviceTempSensorSerNo));
    if (fault != DeviceValueRenderer::SensorFault::None) {
        SupportFileRow& sensor = hardware.add(tr("Temperature sensor"), fault == DeviceValueRenderer::SensorFault::Defect
                                                                        ? tr("invalid - temp. sensor defect!")
                                                                        : tr("invalid - temp. sensor to high!"));
        sensor.warning = true;
    }
    addLines(device.add(tr("Network")), camera,
             {{tr("MAC address"), Name::DeviceMacAddress, [](const Camera& c) { return c.macAddress(); }},
              {tr("Current IP address"), Name::DeviceCurrentIpAddress, ip(&pv_EthDeviceInfo::currentIp)},
              {tr("Persistent IP address"), Name::DevicePersistentIpAddress, ip(&pv_EthDeviceInfo::persistentIp)},
              {tr("Persistent IP subnetmask"), Name::DevicePersistentIpSubnetmask,
               ip(&pv_EthDeviceInfo::persistentMask)},
              {tr("IP range begin"), Name::DeviceIpRangeBegin, ip(&pv_EthDeviceInfo::ipRangeBegin)},
              {tr("IP range end"), Name::DeviceIpRangeEnd, ip(&pv_EthDeviceInfo::ipRangeEnd)},
              {tr("Paired host MAC"), Name::DevicePairedMacAddress,
               [](const Camera& c) { return Camera::macText(c.eth().pairedHostMac); }},
              {tr("Paired host IP"), Name::DeviceIpPairedHost, ip(&pv_EthDeviceInfo::pairedHostIp)}});
    // No key holds a camera's multicast address: the row shows the default.
    device.children.back().add(tr("Multicast IP"), SupportFileCamera::defaultText(Name::DefaultText));
    addLines(device.children.back(), camera,
             {{tr("Link"), Name::DeviceLinkInfo,
               [](const Camera& c) { return DeviceValueRenderer::ethLinkSpeed(c.linkSpeed()); }}});
}

void SupportFileOutline::addEthAdapter(SupportFileRow& row, const SupportFileCamera& camera)
{
    SupportFileRow& adapter = row.add(tr("Local network adapter"));
    addLines(adapter.add(tr("General")), camera,
             {{tr("Device"), Name::AdapterId, ethNumber(&pv_EthDeviceInfo::adapterId)},
              {tr("Designation"), Name::AdapterName, [](const Camera& c) { return c.adapterName(); }},
              {tr("Driver version"), Name::AdapterDriverVersion, [](const Camera& c) { return c.adapterDriverVersion(); }},
              {tr("Driver date"), Name::AdapterDriverDate, [](const Camera& c) { return c.adapterDriverDate(); }},
              {tr("DHCP enabled"), Name::AdapterDHCPEnabled, boolean(&pv_EthDeviceInfo::adapterDhcpEnabled)},
              {tr("Number of known devices"), Name::AdapterDevicesKnown,
               ethNumber(&pv_EthDeviceInfo::adapterDevicesKnown)},
              {tr("Number of paired devices"), Name::AdapterDevicesPaired,
               ethNumber(&pv_EthDeviceInfo::adapterDevicesPaired)}});
    addLines(adapter.add(tr("Network")), camera,
             {{tr("MAC address"), Name::AdapterMacAddress, [](const Camera& c) { return c.adapterMac(); }},
              {tr("IP address"), Name::AdapterIpAddress, ip(&pv_EthDeviceInfo::adapterIp)},
              {tr("IP subnetmask"), Name::AdapterIpSubnetmask, ip(&pv_EthDeviceInfo::adapterMask)},
              {tr("IP range begin"), Name::AdapterAutoCfgRangeBegin, ip(&pv_EthDeviceInfo::adapterRangeBegin)},
              {tr("IP range end"), Name::AdapterAutoCfgRangeEnd, ip(&pv_EthDeviceInfo::adapterRangeEnd)},
              {tr("IP range valid"), Name::AdapterAutoCfgRangeValid, boolean(&pv_EthDeviceInfo::adapterRangeValid)}});
    addLines(adapter.add(tr("Settings")), camera,
             {{tr("Packetfilter"), Name::AdapterIncomingPacketFilter,
               [](const Camera& c) { return DeviceValueRenderer::packetFilter(c); }},
              {tr("Passive Multicast"), Name::AdapterPassiveMulticastEnabled,
               boolean(&pv_EthDeviceInfo::adapterPassiveMulticastEnabled)}});
}

void SupportFileOutline::addEthDebug(SupportFileRow& row, const SupportFileCamera& camera)
{
    SupportFileRow& debug = row.add(tr("Debug info"));
    const QString groups[] = {tr("Statistics"), tr("Reserved heartbeat"), tr("Reserved device"),
                              tr("Reserved adapter"), tr("Reserved driver")};
    const auto& arrays = SupportFileFields::ethCounters();
    for (std::size_t a = 0; a < arrays.size(); ++a) {
        const SupportFileCounterArray& counters = arrays[a];
        SupportFileRow& range = debug.add(groups[a]).add(QStringLiteral("%1 - %2").arg(0).arg(counters.count - 1));
        const quint32* elements = counters.elements(camera.camera().deviceInformation());
        for (int i = 0; i < counters.count; ++i) {
            const bool present = camera.has(SupportFileNames::numbered(counters.format, i));
            range.add(QStringLiteral("[%1]").arg(i),
                      present ? QString::number(elements[i]) : SupportFileCamera::defaultText(Name::DeviceId));
        }
    }
}

SupportFileRow SupportFileOutline::drivers(const SupportFileTree& tree)
{
    static const QRegularExpression versions(QStringLiteral("^Fileversion: (.*)    Productversion: (.*)$"));
    SupportFileRow group{tr("Drivers"), QString(), false, {}};
    if (const SupportFileTree::Tree* section = tree.section(wide(Name::InstalledDrivers))) {
        for (const auto& entry : *section) {
            const QString value = qt(entry.second.data());
            const QRegularExpressionMatch match = versions.match(value);
            SupportFileRow& driver = group.add(qt(entry.first));
            driver.add(tr("Path:"), qt(entry.first));
            driver.add(tr("File Version:"), match.hasMatch() ? match.captured(1) : value);
            driver.add(tr("Product Version:"), match.hasMatch() ? match.captured(2) : QString());
        }
    }
    return group;
}

SupportFileRow SupportFileOutline::systemInformation(const SupportFileTree& tree)
{
    const std::wstring section = wide(Name::SystemInformation);
    const auto text = [&](Name key, Name fallback) {
        return qt(tree.get(section, wide(key), wide(fallback)));
    };
    SupportFileRow group{tr("System Information"), QString(), false, {}};
    const long long architecture = tree.number(section, wide(Name::ProcessorArchitecture), -1);
    group.add(tr("Product name:"), text(Name::CSDVersion, Name::DefaultText));
    group.add(tr("Architecture:"),
              architecture < 0 ? text(Name::ProcessorArchitecture, Name::DefaultNumber)
                               : SystemInformation::architectureName(int(architecture)));
    group.add(tr("Build-Arch:"), text(Name::BuildArchitecture, Name::DefaultText));
    group.add(tr("Hostname:"), text(Name::HostName, Name::DefaultText));
    group.add(tr("Product Version:"), QStringLiteral("%1.%2").arg(text(Name::MajorVersion, Name::DefaultNumber),
                                                                  text(Name::MinorVersion, Name::DefaultNumber)));
    group.add(tr("Number of Processors:"), text(Name::NumberOfProcessors, Name::DefaultNumber));
    group.add(tr("Active Processors:"), text(Name::ActiveProcessorMask, Name::DefaultText));
    group.add(tr("OS Version Info:"), QStringLiteral("%1 %2").arg(text(Name::PlatformId, Name::DefaultText),
                                                                  text(Name::BuildNumber, Name::DefaultText)));
    return group;
}

SupportFileRow SupportFileOutline::networkAdapters(const SupportFileTree& tree)
{
    SupportFileRow group{tr("Network adapter"), QString(), false, {}};
    const long long count = tree.number(wide(Name::NetworkAdapters), wide(Name::Number), -1);
    const auto sections = static_cast<long long>(tree.sectionNames().size());
    for (long long i = 0; i < count && i < sections; ++i) {
        const std::wstring section = SupportFileNames::numbered(Name::AdapterSection, int(i));
        const auto text = [&](Name key) { return qt(tree.get(section, wide(key), wide(Name::DefaultText))); };
        SupportFileRow& adapter = group.add(text(Name::Name));
        SupportFileRow& driver = adapter.add(tr("Driver Info:"));
        driver.add(tr("Driver Version: "), text(Name::DriverVersion));
        driver.add(tr("Driver Date:"), text(Name::DriverDate));
        adapter.add(tr("MAC:"), text(Name::MacAddress));
        adapter.add(tr("IP Address:"), text(Name::IpAddress));
        adapter.add(tr("Subnetmask:"), text(Name::IpSubnetmask));
        adapter.add(tr("DHCP:"), text(Name::Dhcp));
    }
    return group;
}

SupportFileRow SupportFileOutline::usbControllers(const SupportFileTree& tree)
{
    SupportFileRow group{tr("USB Controller"), QString(), false, {}};
    if (const SupportFileTree::Tree* section = tree.section(wide(Name::UsbHostControllers))) {
        for (const auto& entry : *section)
            group.add(qt(entry.first), qt(entry.second.data()));
    }
    return group;
}

SupportFileRow SupportFileOutline::summitCompatibility(const SupportFileTree& tree)
{
    SupportFileRow group{tr("Parvel Summit compatibility mode"), QString(), false, {}};
    group.add(tr("Enabled:"), qt(tree.get(wide(Name::SummitCompatibilityMode), wide(Name::Enabled),
                                          wide(Name::DefaultNumber))));
    return group;
}
