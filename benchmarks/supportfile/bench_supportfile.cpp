// Support file write and read for the simulated driver's default fleet and
// for 1000 cameras (500 USB, 500 GigE): median time and file size. The host's
// data (USB topology, adapters, drivers) is gathered once, outside the timing.
// Decoding alone is set against a bare strtoul scan of the same file, in the
// same run: the ratio is what the scrambling and the checks cost.

#include "camera/cameralistreader.h"
#include "services/servicemanager.h"
#include "supportfile/supportfilecodec.h"
#include "supportfile/supportfilereader.h"
#include "supportfile/supportfilesources.h"
#include "supportfile/supportfilewalk.h"

#include <pvsim.h>

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <cstdlib>

#include "benchmarkfleet.h"
#include "corebenchmarkmain.h"
#include "iterationtimes.h"

namespace {

QTemporaryDir& directory()
{
    static QTemporaryDir dir;
    return dir;
}

// The fleet of the given size (0: the default fleet) and the host's data.
SupportFileSources sourcesFor(int cameras)
{
    if (cameras == 0)
        pvsim_LoadScenario(nullptr);
    else
        pvsim_LoadScenarioText(benchmarkFleet(cameras, cameras / 2).constData());
    static const std::unique_ptr<ServiceManager> services = ServiceManager::create();
    return SupportFileSources::gather(CameraListReader::read(), *services, {});
}

QString fileFor(int cameras)
{
    return directory().filePath(QStringLiteral("fleet-%1.bin").arg(cameras));
}

void BM_Write(benchmark::State& state)
{
    const int cameras = int(state.range(0));
    const SupportFileSources sources = sourcesFor(cameras);
    IterationTimes times;
    for (auto _ : state) {
        const auto start = IterationTimes::Clock::now();
        if (!SupportFileWalk::writeFile(fileFor(cameras), sources, std::nullopt).isSuccess())
            state.SkipWithError("cannot write the file");
        times.add(start);
    }
    times.report(state, "ms", 1e3);
    state.counters["cameras"] = sources.cameras.size();
    state.counters["file_kB"] = QFileInfo(fileFor(cameras)).size() / 1024.0;
}

void BM_Read(benchmark::State& state)
{
    const int cameras = int(state.range(0));
    SupportFileWalk::writeFile(fileFor(cameras), sourcesFor(cameras), std::nullopt);
    IterationTimes times;
    for (auto _ : state) {
        const auto start = IterationTimes::Clock::now();
        SupportFileReader::Result result = SupportFileReader::read(fileFor(cameras));
        benchmark::DoNotOptimize(result);
        if (!result.error.isEmpty())
            state.SkipWithError("cannot read the file");
        times.add(start);
    }
    times.report(state, "ms", 1e3);
    state.counters["file_kB"] = QFileInfo(fileFor(cameras)).size() / 1024.0;
}

// The numbers of the file and nothing else.
unsigned long strtoulScan(const QByteArray& content)
{
    unsigned long sum = 0;
    const char* p = content.constData();
    const char* const end = p + content.size();
    while (p < end) {
        char* next = nullptr;
        sum += std::strtoul(p, &next, 10);
        p = next + 2; // CR LF
    }
    return sum;
}

void BM_DecodeAgainstStrtoul(benchmark::State& state)
{
    const int cameras = int(state.range(0));
    SupportFileWalk::writeFile(fileFor(cameras), sourcesFor(cameras), std::nullopt);
    QFile file(fileFor(cameras));
    file.open(QIODevice::ReadOnly);
    const QByteArray content = file.readAll();
    SampleStatistics decodeSeconds;
    SampleStatistics scanSeconds;
    for (auto _ : state) {
        auto start = IterationTimes::Clock::now();
        SupportFileCodec::Decoded decoded = SupportFileCodec::decode(content);
        benchmark::DoNotOptimize(decoded);
        decodeSeconds.add(std::chrono::duration<double>(IterationTimes::Clock::now() - start).count());
        start = IterationTimes::Clock::now();
        unsigned long sum = strtoulScan(content);
        benchmark::DoNotOptimize(sum);
        scanSeconds.add(std::chrono::duration<double>(IterationTimes::Clock::now() - start).count());
    }
    state.counters["decode_median_ms"] = decodeSeconds.median() * 1e3;
    state.counters["strtoul_median_ms"] = scanSeconds.median() * 1e3;
    state.counters["ratio"] = decodeSeconds.median() / scanSeconds.median();
    state.counters["file_kB"] = content.size() / 1024.0;
}

} // namespace

BENCHMARK(BM_Write)->Arg(0)->Arg(1000)->Unit(benchmark::kMillisecond)->Iterations(20);
BENCHMARK(BM_Read)->Arg(0)->Arg(1000)->Unit(benchmark::kMillisecond)->Iterations(20);
BENCHMARK(BM_DecodeAgainstStrtoul)->Arg(0)->Arg(1000)->Unit(benchmark::kMillisecond)->Iterations(20);

int main(int argc, char** argv)
{
    return runCoreBenchmarks(argc, argv);
}
