#include "network/ethcamerasettings.h"

#include "camera/camera.h"
#include "network/ipv4.h"
#include "network/macaddress.h"

namespace {

const std::uint8_t noMac[6]{};

} // namespace

EthCameraSettings EthCameraSettings::read(const Camera& camera)
{
    EthCameraSettings settings;
    const std::int32_t device = std::int32_t(camera.deviceId());
    settings.multicastIp = camera.multicastIp();
    settings.multicastEnabled = camera.deviceStatus() & PV_STATUS_MULTICAST_ENABLED;
    settings.multicastCapability = camera.eth().multicastCapability;

    if (pv_IpConfig(device, noMac, PV_IPCFG_CAPABILITIES, &settings.capabilities, sizeof settings.capabilities)
        != PV_OK)
        settings.capabilities = 0;
    quint32 dhcp = 0;
    settings.dhcpEnabled = pv_IpConfig(device, noMac, PV_IPCFG_GET_DHCP, &dhcp, sizeof dhcp) == PV_OK && (dhcp & 1);

    pv_IpBlock persistent{};
    settings.persistentRead =
        pv_IpConfig(device, noMac, PV_IPCFG_GET_PERSISTENT, &persistent, sizeof persistent) == PV_OK;
    if (settings.persistentRead) {
        settings.persistentIp = Ipv4::text(Ipv4::fromNetworkBytes(persistent.first));
        settings.persistentMask = Ipv4::text(Ipv4::fromNetworkBytes(persistent.second));
    }

    const MacAddress adapterMac = MacAddress::parse(camera.adapterMac());
    pv_IpBlock range{};
    if (pv_IpConfig(PV_ADDRESS_BY_MAC, adapterMac.bytes.data(), PV_IPCFG_GET_RANGE, &range, sizeof range) == PV_OK) {
        settings.rangeBegin = Ipv4::text(Ipv4::fromNetworkBytes(range.first));
        settings.rangeEnd = Ipv4::text(Ipv4::fromNetworkBytes(range.second));
    }
    return settings;
}
