// Device details of one GigE camera of the simulated driver's default fleet:
// a refresh of the whole tree (values read again, change notices sent) beside
// the rebuild it avoids and the driver read that precedes it in the
// application. Each iteration is timed on its own.

#include "camera/camera.h"
#include "details/deviceinfomodel.h"
#include "details/widgets/deviceinfoview.h"

#include <cirro_api.h>

#include <QApplication>

#include <benchmark/benchmark.h>

#include <cstring>
#include <memory>
#include <vector>

#include "iterationtimes.h"

namespace {

constexpr quint32 gigeDeviceId = 1000;

Camera gigeCamera()
{
    std::int32_t count = 0;
    if (pv_GetNumberOfCameras(&count) != PV_OK || count < 1)
        return Camera();
    std::vector<char> buffer(PV_CAMERA_LIST_HEADER_SIZE + std::size_t(count) * sizeof(pv_CameraListEntry));
    std::memcpy(buffer.data(), &count, sizeof count);
    if (pv_GetCameraList(buffer.data()) != PV_OK)
        return Camera();
    std::memcpy(&count, buffer.data(), sizeof count);
    for (std::int32_t i = 0; i < count; ++i) {
        pv_CameraListEntry entry;
        std::memcpy(&entry, buffer.data() + PV_CAMERA_LIST_HEADER_SIZE + std::size_t(i) * sizeof entry, sizeof entry);
        if (entry.deviceId == gigeDeviceId)
            return Camera(entry, 0);
    }
    return Camera();
}

// The host's adapters are not asked: the virtual ones are not the host's.
std::optional<NetworkAdapter> noHostAdapter(const QString&)
{
    return std::nullopt;
}

void BM_EthRefresh(benchmark::State& state)
{
    const Camera camera = gigeCamera();
    DeviceInfoModel model(nullptr, noHostAdapter);
    model.Update(&camera, true);
    IterationTimes times;
    for (auto _ : state) {
        const auto start = IterationTimes::Clock::now();
        model.Update(&camera, false);
        times.add(start);
    }
    times.report(state, "us", 1e6);
}

// The same refresh with the tree shown fully expanded in its view.
void BM_EthRefreshShown(benchmark::State& state)
{
    const Camera camera = gigeCamera();
    DeviceInfoView view;
    view.resize(460, 1900);
    view.Update(&camera, true);
    view.expandAll();
    view.show();
    QApplication::processEvents();
    IterationTimes times;
    for (auto _ : state) {
        const auto start = IterationTimes::Clock::now();
        view.Update(&camera, false);
        times.add(start);
        state.PauseTiming();
        QApplication::processEvents();
        state.ResumeTiming();
    }
    times.report(state, "us", 1e6);
}

void BM_EthRebuild(benchmark::State& state)
{
    const Camera camera = gigeCamera();
    DeviceInfoModel model(nullptr, noHostAdapter);
    IterationTimes times;
    for (auto _ : state) {
        const auto start = IterationTimes::Clock::now();
        model.Update(&camera, true);
        times.add(start);
    }
    times.report(state, "us", 1e6);
}

// What the application does before a refresh: read the device information.
void BM_DeviceInfoRead(benchmark::State& state)
{
    Camera camera = gigeCamera();
    IterationTimes times;
    for (auto _ : state) {
        const auto start = IterationTimes::Clock::now();
        camera.refreshDeviceInformation();
        times.add(start);
    }
    times.report(state, "us", 1e6);
}

} // namespace

BENCHMARK(BM_EthRefresh)->Unit(benchmark::kMicrosecond)->Iterations(5000);
BENCHMARK(BM_EthRefreshShown)->Unit(benchmark::kMicrosecond)->Iterations(2000);
BENCHMARK(BM_EthRebuild)->Unit(benchmark::kMicrosecond)->Iterations(2000);
BENCHMARK(BM_DeviceInfoRead)->Unit(benchmark::kMicrosecond)->Iterations(5000);

int main(int argc, char** argv)
{
    // Runs without a display.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    Camera::registerMetaTypes();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
