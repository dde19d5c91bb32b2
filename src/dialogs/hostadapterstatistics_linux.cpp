#include "dialogs/hostadapterstatistics.h"

#include "common/sysfsnode.h"
#include "network/ethtoolstatistics_linux.h"

#include <QDir>

HostAdapterStatistics::HostAdapterStatistics(QString sysfsRoot, QString interfaceName, DriverCounters driverCounters)
    : m_statisticsDir(QDir(sysfsRoot).filePath(QStringLiteral("class/net/%1/statistics").arg(interfaceName)))
    , m_interface(std::move(interfaceName))
    , m_driverCounters(driverCounters ? std::move(driverCounters) : DriverCounters(&EthtoolStatistics::query))
{
}

std::optional<AdapterCounters> HostAdapterStatistics::read() const
{
    // A name with a slash would leave class/net.
    if (m_interface.isEmpty() || m_interface.contains(QLatin1Char('/')))
        return std::nullopt;
    const SysfsNode node(m_statisticsDir);
    const QStringList names = QDir(m_statisticsDir).entryList(QDir::Files, QDir::Name);
    AdapterCounters counters;
    for (const QString& name : names) {
        const std::optional<QString> text = node.text(name);
        bool ok = false;
        const quint64 value = text ? text->toULongLong(&ok) : 0;
        if (ok)
            counters.append({name, false, value});
    }
    if (counters.isEmpty())
        return std::nullopt;
    for (const auto& [name, value] : m_driverCounters(m_interface))
        counters.append({name, true, value});
    return counters;
}
