#include "details/localadapter.h"

#include "camera/camera.h"
#include "network/networkadapters.h"

#include <algorithm>
#include <iterator>

namespace {

bool isZero(const quint8 (&mac)[6])
{
    return std::all_of(std::begin(mac), std::end(mac), [](quint8 byte) { return byte == 0; });
}

} // namespace

LocalAdapter::LocalAdapter(HostLookup lookup)
    : m_lookup(std::move(lookup))
{
}

void LocalAdapter::resolve(const Camera& camera, bool force)
{
    const QString mac = camera.adapterMac(QLatin1Char(':')).toUpper();
    if (!force && m_mac == mac)
        return;
    m_mac = mac;
    // A camera without an adapter would find the loopback interface.
    m_host = isZero(camera.eth().adapterMac) ? std::nullopt : m_lookup(mac);
}

QString LocalAdapter::description(const Camera& camera) const
{
    return hostText(&NetworkAdapter::description, camera.adapterDescription());
}

QString LocalAdapter::designation(const Camera& camera) const
{
    return hostText(&NetworkAdapter::humanReadableName, camera.adapterName());
}

QString LocalAdapter::driverVersion(const Camera& camera) const
{
    return hostText(&NetworkAdapter::driverVersion, camera.adapterDriverVersion());
}

QString LocalAdapter::driverDate(const Camera& camera) const
{
    return hostText(&NetworkAdapter::driverDate, camera.adapterDriverDate());
}

bool LocalAdapter::dhcpEnabled(const Camera& camera) const
{
    return m_host ? m_host->dhcp : camera.eth().adapterDhcpEnabled != 0;
}

QString LocalAdapter::ipAddress(const Camera& camera) const
{
    return m_host && !m_host->ipv4Address.isNull() ? m_host->ipv4Address.toString() : camera.adapterIp();
}

QString LocalAdapter::subnetMask(const Camera& camera) const
{
    return m_host && !m_host->ipv4Netmask.isNull() ? m_host->ipv4Netmask.toString() : camera.adapterMask();
}

std::optional<NetworkAdapter> LocalAdapter::hostAdapter(const QString& mac)
{
    const QString interfaceName = findAdapterByMac(mac).second;
    if (interfaceName.isEmpty())
        return std::nullopt;
    // The full records cost driver queries per interface: only once the host
    // is known to have the adapter.
    const NetworkAdapterList adapters = getNetworkAdapters();
    const auto found = std::find_if(adapters.cbegin(), adapters.cend(), [&](const NetworkAdapter& adapter) {
        return adapter.interfaceName == interfaceName;
    });
    return found == adapters.cend() ? std::nullopt : std::optional<NetworkAdapter>(*found);
}

QString LocalAdapter::hostText(QString NetworkAdapter::*field, const QString& fallback) const
{
    return m_host && !((*m_host).*field).isEmpty() ? (*m_host).*field : fallback;
}
