#include "network/autoconfiguration.h"

#include "camera/camera.h"
#include "network/ethconfigsettings.h"
#include "network/ipv4.h"

AutoConfiguration AutoConfiguration::of(const Camera& camera)
{
    AutoConfiguration job;
    const Ipv4::HostRange range = Ipv4::hostRange(Ipv4::fromText(camera.adapterIp()), Ipv4::fromText(camera.adapterMask()));
    job.rangeBegin = range.first;
    job.rangeEnd = range.last;
    job.adapterMac = MacAddress::parse(camera.adapterMac());
    job.cameraMac = MacAddress::parse(camera.macAddress());
    job.bootBoost = camera.deviceControlStatus() & PV_CONTROL_BOOT_BOOST_USED;
    return job;
}

quint32 AutoConfiguration::run() const
{
    pv_IpBlock range = EthConfigSettings::rangeBlock(rangeBegin, rangeEnd);
    if (pv_IpConfig(PV_ADDRESS_BY_MAC, adapterMac.bytes.data(), PV_IPCFG_SET_RANGE, &range, sizeof range) != PV_OK)
        return rangeFailed;
    pv_IpBlock persistent{};
    const std::int32_t code =
        pv_IpConfig(PV_ADDRESS_BY_MAC, cameraMac.bytes.data(), PV_IPCFG_SET_PERSISTENT, &persistent, sizeof persistent);
    if (code == PV_OK)
        return 0;
    return code == PV_ERR_BOOT_BOOST_ACTIVE && bootBoost ? bootBoostRefused : persistentFailed;
}
