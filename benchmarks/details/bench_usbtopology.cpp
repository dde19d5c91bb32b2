// USB topology build over a generated sysfs tree of 8 xHCI controllers with
// 4 hubs each and a camera on every one of the hubs' 16 ports (544 devices).
// Each iteration is timed on its own; the counters give the median and the
// 99th percentile of those times.

#include "details/usbtopology.h"

#include "sysfsfixture.h"

#include <QFileInfo>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <vector>

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

double percentile(const std::vector<double>& sorted, double fraction)
{
    const auto rank = std::size_t(std::ceil(fraction * double(sorted.size())));
    return sorted[std::clamp<std::size_t>(rank, 1, sorted.size()) - 1];
}

void buildTopology(benchmark::State& state, const QString& pciIds)
{
    const SysfsFixture& fixture = grid();
    if (!fixture.ok()) {
        state.SkipWithError("cannot write the sysfs tree");
        return;
    }
    std::vector<double> millis;
    for (auto _ : state) {
        const auto start = std::chrono::steady_clock::now();
        auto topology = UsbTopology::build(fixture.root(), pciIds);
        benchmark::DoNotOptimize(topology);
        millis.push_back(std::chrono::duration<double, std::milli>(
                             std::chrono::steady_clock::now() - start).count());
    }
    std::sort(millis.begin(), millis.end());
    state.counters["median_ms"] = percentile(millis, 0.5);
    state.counters["p99_ms"] = percentile(millis, 0.99);
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
