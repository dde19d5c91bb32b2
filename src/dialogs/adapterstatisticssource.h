#pragma once

#include <QList>
#include <QString>

#include <memory>
#include <optional>

// One counter of a network adapter: the kernel's interface statistics or
// the adapter driver's own.
struct AdapterCounter
{
    QString name;
    bool fromDriver = false;
    quint64 value = 0;
};

using AdapterCounters = QList<AdapterCounter>;

// Where the counters of the adapter that serves a GigE camera come from.
class AdapterStatisticsSource
{
public:
    virtual ~AdapterStatisticsSource() = default;
    // Nothing when the adapter is gone or keeps no counters.
    virtual std::optional<AdapterCounters> read() const = 0;

    // The simulated driver's virtual adapter when the process runs on it,
    // else the host's interface of that name.
    static std::unique_ptr<AdapterStatisticsSource> forAdapter(const QString& interfaceName);
};
