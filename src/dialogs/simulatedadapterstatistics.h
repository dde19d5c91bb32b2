#pragma once

#include "dialogs/adapterstatisticssource.h"
#include "network/simulatedadapters.h"

// The counters that the simulated driver keeps for one of its virtual adapters.
class SimulatedAdapterStatistics final : public AdapterStatisticsSource
{
public:
    SimulatedAdapterStatistics(SimulatedAdapters::GetState getState, QString adapterName);

    std::optional<AdapterCounters> read() const override;

private:
    SimulatedAdapters::GetState m_getState;
    QString m_name;
};
