#include "dialogs/simulatedadapterstatistics.h"

SimulatedAdapterStatistics::SimulatedAdapterStatistics(SimulatedAdapters::GetState getState, QString adapterName)
    : m_getState(getState)
    , m_name(std::move(adapterName))
{
}

std::optional<AdapterCounters> SimulatedAdapterStatistics::read() const
{
    const SimulatedAdapters adapters(m_getState);
    const SimulatedAdapters::Adapter* adapter = adapters.find(m_name);
    if (!adapter || adapter->statistics.isEmpty())
        return std::nullopt;
    AdapterCounters counters;
    for (const auto& [name, value] : adapter->statistics)
        counters.append({name, false, value});
    for (const auto& [name, value] : adapter->driverStatistics)
        counters.append({name, true, value});
    return counters;
}
