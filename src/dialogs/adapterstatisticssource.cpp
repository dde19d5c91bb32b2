#include "dialogs/adapterstatisticssource.h"

#include "dialogs/hostadapterstatistics.h"
#include "dialogs/simulatedadapterstatistics.h"

std::unique_ptr<AdapterStatisticsSource> AdapterStatisticsSource::forAdapter(const QString& interfaceName)
{
    if (const SimulatedAdapters::GetState getState = SimulatedAdapters::driverStateFunction())
        return std::make_unique<SimulatedAdapterStatistics>(getState, interfaceName);
    return std::make_unique<HostAdapterStatistics>(QStringLiteral("/sys"), interfaceName);
}
