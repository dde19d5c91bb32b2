#include "network/ethconfigsettings.h"

#include "network/ethcamerasettings.h"
#include "network/ipv4.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr quint32 rangeWordWhenApplied = 100;
constexpr std::int32_t byMac = PV_ADDRESS_BY_MAC;

const char* const itemTexts[] = {
    QT_TRANSLATE_NOOP("EthConfigSettings", "Applying persistent IP settings..."),
    QT_TRANSLATE_NOOP("EthConfigSettings", "Applying AutoCfg settings..."),
    QT_TRANSLATE_NOOP("EthConfigSettings", "Applying DHCP settings..."),
    QT_TRANSLATE_NOOP("EthConfigSettings", "Applying Multicast IP settings..."),
    QT_TRANSLATE_NOOP("EthConfigSettings", "Applying Multicast Enabled settings..."),
};

} // namespace

EthConfigSettings::EthConfigSettings(quint32 deviceId, const MacAddress& adapterMac)
    : deviceId(deviceId)
    , adapterMac(adapterMac)
{
}

void EthConfigSettings::setPersistent(quint32 address, quint32 mask)
{
    Ipv4::toNetworkBytes(address, persistent.first);
    Ipv4::toNetworkBytes(mask, persistent.second);
    persistent.extra = 0;
    changed[PersistentIp] = true;
}

void EthConfigSettings::setRangeWords(quint32 begin, quint32 end)
{
    std::memcpy(range.first, &begin, sizeof begin);
    std::memcpy(range.second, &end, sizeof end);
    range.extra = rangeWordWhenApplied;
    changed[Range] = true;
}

pv_IpBlock EthConfigSettings::rangeBlock(quint32 begin, quint32 end)
{
    pv_IpBlock block{};
    Ipv4::toNetworkBytes(begin, block.first);
    Ipv4::toNetworkBytes(end, block.second);
    block.extra = rangeWordWhenApplied;
    return block;
}

void EthConfigSettings::setRange(quint32 begin, quint32 end)
{
    range = rangeBlock(begin, end);
    changed[Range] = true;
}

void EthConfigSettings::restore(const EthCameraSettings& before)
{
    if (before.persistentRead)
        setPersistent(Ipv4::fromText(before.persistentIp), Ipv4::fromText(before.persistentMask));
    if (!before.rangeBegin.isEmpty() && !before.rangeEnd.isEmpty())
        setRange(Ipv4::fromText(before.rangeBegin), Ipv4::fromText(before.rangeEnd));
    if (before.capabilities & PV_IPCAP_DHCP)
        setDhcp(before.dhcpEnabled);
}

void EthConfigSettings::setDhcp(bool enable)
{
    dhcpEnable = enable ? 1 : 0;
    changed[Dhcp] = true;
}

void EthConfigSettings::setMulticastIp(quint32 address)
{
    Ipv4::toNetworkBytes(address, multicastIp);
    changed[MulticastIp] = true;
}

void EthConfigSettings::setMulticastEnable(bool enable)
{
    multicastEnable = enable ? 1 : 0;
    changed[MulticastEnable] = true;
}

int EthConfigSettings::changedCount() const
{
    return int(std::count(changed.begin(), changed.end(), true));
}

ConfigResult EthConfigSettings::apply()
{
    const int count = changedCount();
    // Nothing changed: nothing to write, and no step width to divide.
    const int step = count > 0 ? 100 / count : 0;
    int progress = 0;
    for (int item = PersistentIp; item < ItemCount; ++item) {
        if (!changed[std::size_t(item)])
            continue;
        emit settingText(tr(itemTexts[item]), progress);
        const std::int32_t code = write(Item(item));
        if (code != PV_OK)
            return {quint32(code), quint32(item)};
        changed[std::size_t(item)] = false;
        progress += step;
    }
    emit settingText(tr("Done!"), 100);
    return {};
}

std::int32_t EthConfigSettings::write(Item item)
{
    static const std::uint8_t noMac[6]{};
    const std::int32_t camera = std::int32_t(deviceId);
    const quint32 handle = deviceId | PV_DEVICE_ID_FLAG;
    switch (item) {
    case PersistentIp:
        return pv_IpConfig(camera, noMac, PV_IPCFG_SET_PERSISTENT, &persistent, sizeof persistent);
    case Range:
        return pv_IpConfig(byMac, adapterMac.bytes.data(), PV_IPCFG_SET_RANGE, &range, sizeof range);
    case Dhcp:
        return pv_IpConfig(camera, noMac, PV_IPCFG_SET_DHCP, &dhcpEnable, sizeof dhcpEnable);
    case MulticastIp:
        return pv_EthConfig(handle, PV_ETHCFG_SET_MULTICAST_IP, multicastIp, sizeof multicastIp);
    case MulticastEnable:
        return pv_EthConfig(handle, PV_ETHCFG_SET_MULTICAST_ENABLE, &multicastEnable, sizeof multicastEnable);
    case ItemCount: break;
    }
    return PV_ERR_INVALID_PARAMETER;
}
