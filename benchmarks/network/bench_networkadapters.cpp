// The adapter list on this machine, as the ETH service dialog and the support
// file fetch it: one record per interface with description and driver data.
// Qt's bare interface list, which it is built from, is the baseline.
#include "network/networkadapters.h"

#include <QNetworkInterface>

#include <benchmark/benchmark.h>

static void BM_AdapterList(benchmark::State& state)
{
    int adapters = 0;
    for (auto _ : state) {
        const NetworkAdapterList list = getNetworkAdapters();
        adapters = list.size();
        benchmark::DoNotOptimize(list);
    }
    state.counters["adapters"] = adapters;
}
BENCHMARK(BM_AdapterList)->Unit(benchmark::kMicrosecond)->Repetitions(15)->ReportAggregatesOnly(true);

static void BM_QtInterfaceList(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(QNetworkInterface::allInterfaces());
}
BENCHMARK(BM_QtInterfaceList)->Unit(benchmark::kMicrosecond)->Repetitions(15)->ReportAggregatesOnly(true);

BENCHMARK_MAIN();
