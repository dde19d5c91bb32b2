#pragma once

#include <QList>
#include <QPair>
#include <QString>

// The statistics that a network interface's driver keeps beyond the kernel's
// interface counters (ethtool -S): names and values in the driver's order.
class EthtoolStatistics final
{
public:
    // Empty when the interface does not exist or its driver keeps none.
    static QList<QPair<QString, quint64>> query(const QString& interfaceName);
};
