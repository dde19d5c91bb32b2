// The camera list's costs on the simulated driver:
// - fetching the list into the model (a reset) against the bare camera-API
//   calls the fetch cannot avoid (count, list, one device-information read per
//   camera), both timed in the same iteration so that their ratio is fair;
// - the latency from a plug in the driver to the row being in the model;
// - the heap a camera record takes.

#include "camera/cameralistmodel.h"

#include "benchmarkfleet.h"
#include "corebenchmarkmain.h"
#include "samplestatistics.h"

#include <cirro_api.h>
#include <pvsim.h>

#include <QCoreApplication>
#include <QElapsedTimer>

#include <benchmark/benchmark.h>

#include <malloc.h>

#include <chrono>
#include <cstring>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

bool loadFleet(benchmark::State& state, int count)
{
    if (pvsim_LoadScenarioText(benchmarkFleet(count, 600).constData()) != PV_OK) {
        state.SkipWithError("the simulated driver refused the fleet");
        return false;
    }
    return true;
}

std::vector<pv_CameraListEntry> listEntries()
{
    std::int32_t count = 0;
    if (pv_GetNumberOfCameras(&count) != PV_OK || count < 1)
        return {};
    std::vector<unsigned char> buffer(std::size_t(count) * sizeof(pv_CameraListEntry) + PV_CAMERA_LIST_HEADER_SIZE);
    std::memcpy(buffer.data(), &count, sizeof count);
    if (pv_GetCameraList(buffer.data()) != PV_OK)
        return {};
    std::vector<pv_CameraListEntry> entries(static_cast<std::size_t>(count));
    std::memcpy(entries.data(), buffer.data() + PV_CAMERA_LIST_HEADER_SIZE,
                entries.size() * sizeof(pv_CameraListEntry));
    return entries;
}

// What any list fetch has to ask the driver.
std::size_t bareApiCalls()
{
    std::size_t read = 0;
    for (const pv_CameraListEntry& entry : listEntries()) {
        pv_DeviceInformation info{};
        read += pv_DeviceInfo(entry.deviceId | PV_DEVICE_ID_FLAG, PV_DEVINFO_READ, &info, sizeof info) == PV_OK;
    }
    return read;
}

void BM_ListFetch(benchmark::State& state)
{
    const int cameras = int(state.range(0));
    if (!loadFleet(state, cameras))
        return;
    CameraListModel model;
    double bareSeconds = 0;
    double modelSeconds = 0;
    for (auto _ : state) {
        const auto start = Clock::now();
        benchmark::DoNotOptimize(bareApiCalls());
        const auto middle = Clock::now();
        model.onCameraListChanged();
        benchmark::DoNotOptimize(model.rowCount());
        const auto end = Clock::now();
        bareSeconds += std::chrono::duration<double>(middle - start).count();
        modelSeconds += std::chrono::duration<double>(end - middle).count();
        state.SetIterationTime(std::chrono::duration<double>(end - middle).count());
    }
    if (model.rowCount() != cameras)
        state.SkipWithError("the model does not hold the fleet");
    const double iterations = double(state.iterations());
    state.counters["us_per_camera"] = modelSeconds / iterations / cameras * 1e6;
    state.counters["bare_us_per_camera"] = bareSeconds / iterations / cameras * 1e6;
    state.counters["ratio_to_bare"] = modelSeconds / bareSeconds;
}
BENCHMARK(BM_ListFetch)->Arg(1)->Arg(100)->Arg(1000)->UseManualTime()->Unit(benchmark::kMicrosecond)
    ->Repetitions(7)->ReportAggregatesOnly(true);

// Waits on the GUI thread's event loop for the queued refetch, as the
// application does.
bool waitForRows(const CameraListModel& model, int rows)
{
    QElapsedTimer limit;
    limit.start();
    while (model.rowCount() != rows) {
        if (limit.elapsed() > 5000)
            return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
    }
    return true;
}

void BM_EventToRowLatency(benchmark::State& state)
{
    if (!loadFleet(state, 10))
        return;
    CameraListModel model;
    const int rows = model.rowCount();
    SampleStatistics millis;
    for (auto _ : state) {
        std::uint32_t deviceId = 0;
        const auto start = Clock::now();
        if (pvsim_PlugCamera(R"({"kind": "usb", "fullModel": "CRU3-50M"})", &deviceId) != PV_OK
            || !waitForRows(model, rows + 1)) {
            state.SkipWithError("the plugged camera did not arrive");
            return;
        }
        const double elapsed = std::chrono::duration<double>(Clock::now() - start).count();
        state.SetIterationTime(elapsed);
        millis.add(elapsed * 1e3);
        if (pvsim_UnplugCamera(deviceId) != PV_OK || !waitForRows(model, rows)) {
            state.SkipWithError("the unplugged camera did not leave");
            return;
        }
    }
    state.counters["median_ms"] = millis.median();
    state.counters["p99_ms"] = millis.percentile(0.99);
}
BENCHMARK(BM_EventToRowLatency)->Iterations(200)->UseManualTime()->Unit(benchmark::kMillisecond);

// The heap a list of camera records takes, as the model keeps it.
void BM_CameraRecordMemory(benchmark::State& state)
{
    const int cameras = int(state.range(0));
    if (!loadFleet(state, cameras))
        return;
    const std::vector<pv_CameraListEntry> entries = listEntries();
    double bytesPerCamera = 0;
    for (auto _ : state) {
        const std::size_t before = mallinfo2().uordblks;
        QList<std::shared_ptr<Camera>> records;
        for (const pv_CameraListEntry& entry : entries)
            records.append(std::make_shared<Camera>(entry, 0));
        bytesPerCamera = double(mallinfo2().uordblks - before) / double(entries.size());
        benchmark::DoNotOptimize(records);
    }
    state.counters["bytes_per_camera"] = bytesPerCamera;
    state.counters["sizeof_Camera"] = double(sizeof(Camera));
}
BENCHMARK(BM_CameraRecordMemory)->Arg(1000)->Iterations(3)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    return runCoreBenchmarks(argc, argv);
}
