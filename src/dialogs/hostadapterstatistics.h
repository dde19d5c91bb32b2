#pragma once

#include "dialogs/adapterstatisticssource.h"

#include <QPair>

#include <functional>

// The counters of a host network interface: the kernel's statistics
// directory below the sysfs root and the driver's own counters.
class HostAdapterStatistics final : public AdapterStatisticsSource
{
public:
    using DriverCounters = std::function<QList<QPair<QString, quint64>>(const QString& interfaceName)>;

    // Without driverCounters: the driver's ethtool statistics.
    HostAdapterStatistics(QString sysfsRoot, QString interfaceName, DriverCounters driverCounters = {});

    std::optional<AdapterCounters> read() const override;

private:
    QString m_statisticsDir;
    QString m_interface;
    DriverCounters m_driverCounters;
};
