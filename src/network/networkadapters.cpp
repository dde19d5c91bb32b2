#include "network/networkadapters.h"

#include "network/networkadapters_p.h"
#include "network/simulatedadapters.h"

#include <QNetworkAddressEntry>
#include <QNetworkInterface>

#include <optional>

namespace {

std::optional<QNetworkAddressEntry> firstIpv4Entry(const QNetworkInterface& interface)
{
    for (const QNetworkAddressEntry& entry : interface.addressEntries()) {
        if (entry.ip().protocol() == QAbstractSocket::IPv4Protocol)
            return entry;
    }
    return std::nullopt;
}

// A leased address expires; a configured one is permanent.
bool isLeased(const std::optional<QNetworkAddressEntry>& entry)
{
    return entry && !entry->isPermanent();
}

NetworkAdapter adapterFrom(const QNetworkInterface& interface)
{
    NetworkAdapter adapter;
    adapter.humanReadableName = interface.humanReadableName();
    adapter.interfaceName = interface.name();
    adapter.hardwareAddress = interface.hardwareAddress();

    const AdapterDriverInfo driver = hostAdapterDriverInfo(adapter.interfaceName);
    adapter.description = hostAdapterDescription(adapter.interfaceName);
    adapter.driverVersion = driver.version;
    adapter.driverDate = driver.date;
    adapter.flags = interface.flags();

    const std::optional<QNetworkAddressEntry> ipv4 = firstIpv4Entry(interface);
    if (ipv4) {
        adapter.ipv4Address = ipv4->ip();
        adapter.ipv4Netmask = ipv4->netmask();
    }
    adapter.dhcp = isLeased(ipv4);
    return adapter;
}

} // namespace

NetworkAdapterList getNetworkAdapters()
{
    NetworkAdapterList adapters;
    for (const QNetworkInterface& interface : QNetworkInterface::allInterfaces())
        adapters.append(adapterFrom(interface));
    const SimulatedAdapters simulated = SimulatedAdapters::current();
    for (const SimulatedAdapters::Adapter& adapter : simulated.adapters())
        adapters.append(simulated.record(adapter));
    return adapters;
}

QPair<QString, QString> findAdapterByMac(const QString& mac)
{
    // Interfaces without a hardware address (tunnels) must not match nothing.
    if (mac.isEmpty())
        return {};
    const SimulatedAdapters simulated = SimulatedAdapters::current();
    if (const SimulatedAdapters::Adapter* adapter = simulated.findByMac(mac))
        return {adapter->name, adapter->name};
    for (const QNetworkInterface& interface : QNetworkInterface::allInterfaces()) {
        if (interface.hardwareAddress().compare(mac, Qt::CaseSensitive) == 0)
            return {interface.humanReadableName(), interface.name()};
    }
    return {};
}

QString getAdapterDescription(const QString& interfaceName)
{
    const SimulatedAdapters simulated = SimulatedAdapters::current();
    return simulated.find(interfaceName) ? simulated.description() : hostAdapterDescription(interfaceName);
}

AdapterDriverInfo getAdapterDriverInfo(const QString& interfaceName)
{
    const SimulatedAdapters simulated = SimulatedAdapters::current();
    return simulated.find(interfaceName) ? simulated.driverInfo() : hostAdapterDriverInfo(interfaceName);
}

Result getAdapterIndex(const QString& interfaceName, int& index, bool& dhcp)
{
    const SimulatedAdapters simulated = SimulatedAdapters::current();
    if (const SimulatedAdapters::Adapter* adapter = simulated.find(interfaceName)) {
        index = adapter->index;
        dhcp = adapter->dhcp;
        return {};
    }
    const QNetworkInterface interface = QNetworkInterface::interfaceFromName(interfaceName);
    if (!interface.isValid())
        return NetworkFailure::unknownInterface(interfaceName);
    index = interface.index();
    dhcp = managedDhcpState(interfaceName).value_or(isLeased(firstIpv4Entry(interface)));
    return {};
}
