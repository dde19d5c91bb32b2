#include "network/ethadaptercontrol.h"

#include "network/ethservicebindings.h"
#include "network/networkadapters.h"

#include <cstring>

namespace {

constexpr auto serviceableFlags = QNetworkInterface::CanBroadcast | QNetworkInterface::CanMulticast;

pv_AdapterId adapterId(const QString& interfaceName)
{
    pv_AdapterId id{};
    const QByteArray name = interfaceName.toLocal8Bit();
    std::memcpy(id.interfaceName, name.constData(), std::min<std::size_t>(std::size_t(name.size()), sizeof id.interfaceName - 1));
    return id;
}

std::int32_t adapterConfig(const QString& interfaceName, std::uint32_t set, std::uint32_t command, void* buffer,
                           std::uint32_t size)
{
    const pv_AdapterId id = adapterId(interfaceName);
    return pv_EthAdapterConfig(&id, set, command, buffer, size);
}

} // namespace

NetworkAdapterList EthAdapterControl::serviceableAdapters()
{
    NetworkAdapterList adapters;
    for (const NetworkAdapter& adapter : getNetworkAdapters()) {
        if ((adapter.flags & serviceableFlags) == serviceableFlags)
            adapters << adapter;
    }
    return adapters;
}

std::optional<pv_AdapterBlock> EthAdapterControl::readBlock(const QString& interfaceName)
{
    pv_AdapterBlock block{};
    if (adapterConfig(interfaceName, PV_ADAPTER_GET, PV_ADAPTERCFG_BLOCK, &block, sizeof block) != PV_OK)
        return std::nullopt;
    return block;
}

std::optional<quint32> EthAdapterControl::packetSize(const QString& interfaceName)
{
    pv_PacketSize size{};
    if (adapterConfig(interfaceName, PV_ADAPTER_GET, PV_ADAPTERCFG_PACKET_SIZE, &size, sizeof size) != PV_OK)
        return std::nullopt;
    return size.current;
}

Result EthAdapterControl::setPacketFilter(const QString& interfaceName, PacketFilter filter)
{
    quint32 value = quint32(filter);
    std::int32_t code = adapterConfig(interfaceName, PV_ADAPTER_SET, PV_ADAPTERCFG_PACKET_FILTER, &value, sizeof value);
    if (code == PV_OK)
        code = pv_EthConfig(PV_DRIVER_HANDLE, PV_ETHSVC_APPLY, nullptr, 0);
    if (code == PV_OK)
        return {};
    return {code, tr("Setting Packetfilter failed with code %1").arg(code)};
}

Result EthAdapterControl::setJumboPackets(const QString& interfaceName, bool enabled)
{
    quint32 value = enabled ? 1 : 0;
    const std::int32_t code = adapterConfig(interfaceName, PV_ADAPTER_SET, PV_ADAPTERCFG_JUMBO_2K, &value, sizeof value);
    if (code == PV_OK)
        return {};
    return {code, tr("Setting 2k Jumbo Packets failed with code %1").arg(code)};
}

Result EthAdapterControl::setBound(const QString& interfaceName, bool bound)
{
    const Result written = EthServiceBindings::setBound(interfaceName, bound);
    if (!written.isSuccess())
        return written;
    const std::int32_t code = pv_EthConfig(PV_DRIVER_HANDLE, PV_ETHSVC_RESCAN_ADAPTERS, nullptr, 0);
    if (code == PV_OK)
        return {};
    return {code, tr("The binding is stored, but the ETH service could not look at the adapters again.\nReturn "
                     "code: %1")
                      .arg(code)};
}
