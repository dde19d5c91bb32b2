// Time from pressing OK in the manual configuration to the camera being
// reachable again with its new address, on the simulated driver in real time:
// the apply job, the driver's address test and the device events that the
// verifier follows through the camera list.

#include "camera/cameralistmodel.h"
#include "network/ethconfigsettings.h"
#include "network/ipchangeverifier.h"
#include "network/ipv4.h"

#include "corebenchmarkmain.h"
#include "samplestatistics.h"

#include <pvsim.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>

#include <benchmark/benchmark.h>

namespace {

constexpr quint32 repairedCamera = 1001;

MacAddress macOf(const CameraListModel& cameras, quint32 deviceId)
{
    for (const std::shared_ptr<Camera>& camera : cameras.cameraList()) {
        if (camera->deviceId() == deviceId)
            return MacAddress::parse(camera->macAddress());
    }
    return {};
}

// One repair: a free persistent address and DHCP off; milliseconds until the
// verifier sees the camera reachable there, or -1.
double repairOnce(CameraListModel& cameras)
{
    pvsim_LoadScenario(nullptr);
    pvsim_SetTimeScale(1.0);
    cameras.onCameraListChanged();
    const MacAddress adapterMac = MacAddress::parse(QStringLiteral("02:c1:5e:00:00:01"));
    const quint32 address = Ipv4::fromText(QStringLiteral("192.168.50.23"));
    IpChangeVerifier verifier({macOf(cameras, repairedCamera), address, false}, std::chrono::seconds(30));
    QEventLoop loop;
    double elapsedMs = -1;
    QObject::connect(&verifier, &IpChangeVerifier::reachable, &loop, [&](const Camera&, qint64 ms) {
        elapsedMs = double(ms);
        loop.quit();
    });
    QObject::connect(&verifier, &IpChangeVerifier::timedOut, &loop, &QEventLoop::quit);
    QObject::connect(&cameras, &QAbstractItemModel::modelReset, &loop,
                     [&] { verifier.check(cameras.cameraList()); });

    EthConfigSettings settings(repairedCamera, adapterMac);
    settings.setPersistent(address, 0xFFFFFF00u);
    settings.setDhcp(false);
    verifier.start();
    if (settings.apply().code != 0)
        return -1;
    verifier.check(cameras.cameraList());
    if (verifier.isRunning())
        loop.exec();
    return elapsedMs;
}

void BM_RepairToReachable(benchmark::State& state)
{
    CameraListModel cameras;
    SampleStatistics samples;
    for (auto _ : state) {
        const double ms = repairOnce(cameras);
        if (ms < 0) {
            state.SkipWithError("the camera did not come back");
            return;
        }
        samples.add(ms);
        state.SetIterationTime(ms / 1000.0);
    }
    state.counters["median_ms"] = samples.median();
    state.counters["p99_ms"] = samples.percentile(0.99);
}
BENCHMARK(BM_RepairToReachable)->Iterations(5)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    return runCoreBenchmarks(argc, argv);
}
