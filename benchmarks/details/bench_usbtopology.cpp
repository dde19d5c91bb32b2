// USB topology build over a generated sysfs tree of 8 xHCI controllers with
// 4 hubs each and a camera on every one of the hubs' 16 ports (544 devices).
// Each iteration is timed on its own; the counters give the median and the
// 99th percentile of those times.

#include "details/usbtopology.h"

#include "sysfsfixture.h"

#include <QFileInfo>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include "iterationtimes.h"

namespace {

constexpr int controllers = 8;
constexpr int hubsPerController = 4;
constexpr int portsPerHub = 16;

// Writing the tree takes seconds on a slow file system, so every run shares one.
const SysfsFixture& grid()
{
    static QTemporaryDir dir;
    static const SysfsFixture fixture = [] {
        SysfsFixture tree(dir.filePath(QStringLiteral("sys")));
        tree.addGrid(controllers, hubsPerController, portsPerHub);
        return tree;
    }();
    return fixture;
}

void buildTopology(benchmark::State& state, const QString& pciIds)
{
    const SysfsFixture& fixture = grid();
    if (!fixture.ok()) {
        state.SkipWithError("cannot write the sysfs tree");
        return;
    }
    IterationTimes times;
    for (auto _ : state) {
        const auto start = IterationTimes::Clock::now();
        auto topology = UsbTopology::build(fixture.root(), pciIds);
        benchmark::DoNotOptimize(topology);
        times.add(start);
    }
    times.report(state, "ms", 1e3);
    state.counters["devices"] = controllers * hubsPerController * (1 + portsPerHub);
}

void BM_UsbTopologyBuild(benchmark::State& state)
{
    buildTopology(state, QString());
}

// With the system's pci.ids the controllers are named, at the cost of one pass over it.
void BM_UsbTopologyBuildNamed(benchmark::State& state)
{
    if (!QFileInfo::exists(UsbTopology::defaultPciIds)) {
        state.SkipWithError("no pci.ids on this system");
        return;
    }
    buildTopology(state, UsbTopology::defaultPciIds);
}

} // namespace

BENCHMARK(BM_UsbTopologyBuild)->Unit(benchmark::kMillisecond)->Iterations(200);
BENCHMARK(BM_UsbTopologyBuildNamed)->Unit(benchmark::kMillisecond)->Iterations(200);

BENCHMARK_MAIN();
