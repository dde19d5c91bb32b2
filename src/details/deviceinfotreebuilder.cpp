#include "details/deviceinfotreebuilder.h"

#include "camera/camera.h"
#include "common/versionword.h"
#include "details/deviceflagrenderer.h"
#include "details/devicevaluerenderer.h"
#include "details/flagtables.h"
#include "details/localadapter.h"

namespace {

using Value = DeviceInfoItem::ValueFunction;

// A U3V camera of the sibling SDK carries this type code.
constexpr quint8 usb3VisionTypeCode = 225;
constexpr int comPortBase = 100;

QString versionText(quint32 word)
{
    return VersionWord(word).paddedText();
}

QString nonZeroIp(quint32 apiWord)
{
    const QString text = Camera::ipText(apiWord);
    return text == QLatin1String("0.0.0.0") ? QString() : text;
}

QString nonZeroMac(const quint8* mac)
{
    const QString text = Camera::macText(mac);
    return text == QLatin1String("00-00-00-00-00-00") ? QString() : text;
}

Value version(quint32 pv_DeviceInformation::*field)
{
    return [field](const Camera& camera) { return versionText(camera.deviceInformation().*field); };
}

Value ip(quint32 pv_EthDeviceInfo::*field)
{
    return [field](const Camera& camera) { return nonZeroIp(camera.eth().*field); };
}

template <typename T>
Value number(T pv_EthDeviceInfo::*field)
{
    return [field](const Camera& camera) { return QVariant(quint32(camera.eth().*field)); };
}

Value text(QString (*render)(const Camera&))
{
    return [render](const Camera& camera) { return render(camera); };
}

QVariant comPort(const Camera& camera)
{
    return int(camera.deviceInformation().comPortOffset) + comPortBase;
}

QVariant temperature(const Camera& camera)
{
    return camera.temperatureText();
}

QVariant sensorId(const Camera& camera)
{
    return camera.sensorId();
}

void addFlags(DeviceInfoItem& parent, const QString& label, FlagWord word)
{
    DeviceInfoItem* flags = parent.appendChild(label, [word](const Camera& camera) {
        return DeviceValueRenderer::flagWord(DeviceFlagRenderer::wordOf(word, camera));
    });
    // Dozens of bits: opened on request.
    flags->setExpandedAtFirst(false);
    for (const FlagEntry& entry : FlagTables::of(word)) {
        const quint32 mask = entry.mask;
        flags->appendChild(entry.name, [mask, word](const Camera& camera) {
            return DeviceFlagRenderer::render(mask, word, camera);
        });
    }
}

void addFirmwareVersions(DeviceInfoItem& general)
{
    general.appendChild(DeviceInfoTreeBuilder::tr("Starter firmware version"),
                        version(&pv_DeviceInformation::starterFirmware));
    general.appendChild(DeviceInfoTreeBuilder::tr("Runtime firmware version"),
                        version(&pv_DeviceInformation::runtimeFirmware));
}

} // namespace

DeviceInfoTreeBuilder::DeviceInfoTreeBuilder(const LocalAdapter& adapter)
    : m_adapter(adapter)
{
}

bool DeviceInfoTreeBuilder::usesEthRows(const Camera& camera)
{
    return camera.deviceId() >= PV_ETH_DEVICE_FIRST && camera.typeCode() != usb3VisionTypeCode;
}

std::vector<DeviceInfoTreeBuilder::PathRow>
DeviceInfoTreeBuilder::pathRows(const std::optional<UsbTopology::Location>& location)
{
    std::vector<PathRow> rows;
    if (!location)
        return rows;
    for (const UsbTopology::HubLevel& hub : location->hubs) {
        rows.push_back({tr("%1. Hub").arg(rows.size() + 1), tr("%1 (Port %2)").arg(hub.displayName()).arg(hub.port)});
    }
    rows.push_back({tr("%1. Controller").arg(rows.size() + 1), location->controller});
    return rows;
}

void DeviceInfoTreeBuilder::buildEth(DeviceInfoItem& root) const
{
    addEthDevice(root);
    addLocalAdapter(root);
    addLocalDriver(root, tr("ETH version"));
}

void DeviceInfoTreeBuilder::buildUsb(DeviceInfoItem& root, const std::vector<PathRow>& path) const
{
    addUsbDevice(root, path);
    addLocalDriver(root, tr("USB version"));
}

void DeviceInfoTreeBuilder::addEthDevice(DeviceInfoItem& root) const
{
    DeviceInfoItem* device = root.appendChild(tr("Device"));
    DeviceInfoItem* general = device->appendChild(tr("General"));
    addFirmwareVersions(*general);
    general->appendChild(tr("User EEPROM (8 chars)"), text(DeviceValueRenderer::userEeprom));
    general->appendChild(tr("COM port number"), comPort);
    general->appendChild(tr("Camera temperature"), temperature);
    addFlags(*general, tr("Device status flags"), FlagWord::DeviceStatus);
    addFlags(*general, tr("Device control status"), FlagWord::DeviceControl);

    DeviceInfoItem* hardware = device->appendChild(tr("Hardware"));
    hardware->appendChild(tr("Sensor ID"), sensorId);
    hardware->appendChild(tr("Image memory size"), [](const Camera& camera) {
        return DeviceValueRenderer::memorySize(camera.deviceInformation().imageMemoryMB);
    });
    addEthNetwork(*device);
}

void DeviceInfoTreeBuilder::addEthNetwork(DeviceInfoItem& device) const
{
    DeviceInfoItem* network = device.appendChild(tr("Network"));
    network->appendChild(tr("MAC address"), text(DeviceValueRenderer::macAddress));
    network->appendChild(tr("Current IP address"), ip(&pv_EthDeviceInfo::currentIp));
    network->appendChild(tr("Current Subnetmask"), ip(&pv_EthDeviceInfo::currentMask));
    network->appendChild(tr("Persistent IP address"), ip(&pv_EthDeviceInfo::persistentIp));
    network->appendChild(tr("Persistent IP subnetmask"), ip(&pv_EthDeviceInfo::persistentMask));
    network->appendChild(tr("DHCP FSM state"),
                         [](const Camera& camera) { return DeviceValueRenderer::hexWord(camera.eth().dhcpFsmState); });
    DeviceInfoItem* dhcp = network->appendChild(
        tr("DHCP state"), [](const Camera& camera) { return DeviceValueRenderer::hexWord(camera.eth().dhcpState); });
    dhcp->appendChild(tr("Enabled"), [](const Camera& camera) {
        return DeviceFlagRenderer::boolText(camera.eth().dhcpState & PV_DHCP_ENABLED);
    });
    network->appendChild(tr("DHCP server IP"), ip(&pv_EthDeviceInfo::dhcpServerIp));
    network->appendChild(tr("DHCP lease time"), number(&pv_EthDeviceInfo::dhcpLeaseTime));
    network->appendChild(tr("DHCP T1 time"), number(&pv_EthDeviceInfo::dhcpT1));
    network->appendChild(tr("DHCP T2 time"), number(&pv_EthDeviceInfo::dhcpT2));
    network->appendChild(tr("IP range begin"), ip(&pv_EthDeviceInfo::ipRangeBegin));
    network->appendChild(tr("IP range end"), ip(&pv_EthDeviceInfo::ipRangeEnd));
    network->appendChild(tr("Paired host MAC address"),
                         [](const Camera& camera) { return nonZeroMac(camera.eth().pairedHostMac); });
    network->appendChild(tr("Paired host IP address"), ip(&pv_EthDeviceInfo::pairedHostIp));
    network->appendChild(tr("Multicast IP address"), ip(&pv_EthDeviceInfo::multicastIp));
    network->appendChild(tr("Link"),
                         [](const Camera& camera) { return DeviceValueRenderer::ethLinkSpeed(camera.linkSpeed()); });
}

void DeviceInfoTreeBuilder::addLocalAdapter(DeviceInfoItem& root) const
{
    const LocalAdapter& adapter = m_adapter;
    DeviceInfoItem* local = root.appendChild(tr("Local network adapter"));
    DeviceInfoItem* general = local->appendChild(tr("General"));
    general->appendChild(tr("Device"), [&adapter](const Camera& camera) { return adapter.description(camera); });
    general->appendChild(tr("Designation"),
                         [&adapter](const Camera& camera) { return adapter.designation(camera); });
    general->appendChild(tr("Driver version"),
                         [&adapter](const Camera& camera) { return adapter.driverVersion(camera); });
    general->appendChild(tr("Driver date"), [&adapter](const Camera& camera) { return adapter.driverDate(camera); });
    general->appendChild(tr("DHCP enabled"), [&adapter](const Camera& camera) {
        return DeviceFlagRenderer::boolText(adapter.dhcpEnabled(camera));
    });
    general->appendChild(tr("Number of known devices"), number(&pv_EthDeviceInfo::adapterDevicesKnown));
    general->appendChild(tr("Number of paired devices"), number(&pv_EthDeviceInfo::adapterDevicesPaired));

    DeviceInfoItem* network = local->appendChild(tr("Network"));
    network->appendChild(tr("MAC address"), [](const Camera& camera) { return camera.adapterMac(); });
    network->appendChild(tr("IP address"), [&adapter](const Camera& camera) { return adapter.ipAddress(camera); });
    network->appendChild(tr("IP subnetmask"),
                         [&adapter](const Camera& camera) { return adapter.subnetMask(camera); });
    network->appendChild(tr("IP range begin"),
                         [](const Camera& camera) { return Camera::ipText(camera.eth().adapterRangeBegin); });
    network->appendChild(tr("IP range end"),
                         [](const Camera& camera) { return Camera::ipText(camera.eth().adapterRangeEnd); });
    network->appendChild(tr("IP range valid"), [](const Camera& camera) {
        return DeviceFlagRenderer::boolText(camera.eth().adapterRangeValid);
    });

    DeviceInfoItem* settings = local->appendChild(tr("Settings"));
    settings->appendChild(tr("Packet filter"), text(DeviceValueRenderer::packetFilter));
    settings->appendChild(tr("Multicast Enabled"), [](const Camera& camera) {
        return DeviceFlagRenderer::boolText(camera.eth().adapterMulticastEnabled);
    });
    settings->appendChild(tr("Adapter link speed"),
                          [](const Camera& camera) { return tr("%1 Mbit/s").arg(camera.eth().adapterLinkSpeed); });
}

void DeviceInfoTreeBuilder::addUsbDevice(DeviceInfoItem& root, const std::vector<PathRow>& path) const
{
    DeviceInfoItem* device = root.appendChild(tr("Device"));
    DeviceInfoItem* general = device->appendChild(tr("General"));
    general->appendChild(tr("Sensor ID"), sensorId);
    general->appendChild(tr("Device type"), [](const Camera& camera) { return uint(camera.typeCode()); });
    general->appendChild(tr("Camera temperature"), temperature);
    addFirmwareVersions(*general);
    general->appendChild(tr("COM port number"), comPort);

    DeviceInfoItem* usb = device->appendChild(tr("USB"));
    usb->appendChild(tr("Link speed"), text(DeviceValueRenderer::linkSpeed));
    // Each hub holds the next one; the controller closes the chain.
    DeviceInfoItem* parent = usb;
    for (const PathRow& row : path) {
        const QString value = row.value;
        parent = parent->appendChild(row.label, [value](const Camera&) { return value; });
    }
}

void DeviceInfoTreeBuilder::addLocalDriver(DeviceInfoItem& root, const QString& versionLabel)
{
    DeviceInfoItem* driver = root.appendChild(tr("Local driver"));
    driver->appendChild(versionLabel, version(&pv_DeviceInformation::driverVersion));
    driver->appendChild(tr("Min. compatible starter FW"), version(&pv_DeviceInformation::minStarterFirmware));
    driver->appendChild(tr("Max. compatible starter FW"), version(&pv_DeviceInformation::maxStarterFirmware));
}
