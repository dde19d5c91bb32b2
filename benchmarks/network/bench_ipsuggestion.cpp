// The free-address search on a real link: two network namespaces of its own
// joined by a veth pair, the adapter 10.201.0.1/24 in one, hosts .2 to .101 in
// the other, so the search probes 100 taken addresses and suggests .102 after
// one time-out. Measured for both ways of asking: the packet socket (as root)
// and the kernel's neighbour resolution (the same thread without CAP_NET_RAW,
// the neighbour table flushed before each iteration so that every answer
// crosses the link).
//
// The suggestion's median is compared with what its probes cost one by one:
// 100 x the median answered probe + one time-out. A ratio near 1 means the
// search adds nothing of its own.
//
// Needs root (namespaces, and CAP_NET_RAW for the packet socket); skips with a
// message otherwise. Nothing leaves the two namespaces.

#include "network/hostarpprober.h"
#include "network/ipsuggestion.h"

#include "netnspairfixture.h"
#include "samplestatistics.h"

#include <QCoreApplication>
#include <QProcess>

#include <benchmark/benchmark.h>

#include <fcntl.h>
#include <linux/capability.h>
#include <sched.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <cstdio>

namespace {

using Clock = std::chrono::steady_clock;

constexpr int takenHosts = 100;
constexpr const char* adapterIp = "10.201.0.1";
constexpr const char* mask = "255.255.255.0";

enum Path { PacketSocket = 0, KernelResolution = 1 };

NetnsPairFixture* namespaces = nullptr;
double probeMedianSeconds[2] = {0, 0};

// Capabilities belong to a thread; the benchmarks run on this one.
bool setNetRawEffective(bool on)
{
    __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
    __user_cap_data_struct data[_LINUX_CAPABILITY_U32S_3] = {};
    if (::syscall(SYS_capget, &header, data) != 0)
        return false;
    const quint32 bit = 1u << (CAP_NET_RAW % 32);
    if (on)
        data[CAP_NET_RAW / 32].effective |= bit;
    else
        data[CAP_NET_RAW / 32].effective &= ~bit;
    return ::syscall(SYS_capset, &header, data) == 0;
}

bool packetSocketPermitted()
{
    const int fd = ::socket(AF_PACKET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    if (fd < 0)
        return false;
    ::close(fd);
    return true;
}

// Puts the benchmark's thread on the path it measures, and back.
class PathScope final
{
public:
    explicit PathScope(Path path)
        : m_dropped(path == KernelResolution && setNetRawEffective(false))
    {
    }
    ~PathScope()
    {
        if (m_dropped)
            setNetRawEffective(true);
    }
    PathScope(const PathScope&) = delete;
    PathScope& operator=(const PathScope&) = delete;

    bool holds(Path path) const { return packetSocketPermitted() == (path == PacketSocket); }

private:
    bool m_dropped;
};

bool flushNeighbours()
{
    return QProcess::execute(NetnsPairFixture::ipProgram(),
                             {QStringLiteral("-n"), namespaces->adapterNamespace(), QStringLiteral("neigh"),
                              QStringLiteral("flush"), QStringLiteral("dev"),
                              QLatin1String(NetnsPairFixture::adapterInterface)})
           == 0;
}

const char* pathName(Path path)
{
    return path == PacketSocket ? "packet socket" : "kernel neighbour resolution";
}

void BM_AnsweredProbe(benchmark::State& state)
{
    const auto path = Path(state.range(0));
    const PathScope scope(path);
    if (!scope.holds(path)) {
        state.SkipWithError("could not put the thread on the path");
        return;
    }
    state.SetLabel(pathName(path));
    HostArpProber prober(QLatin1String(NetnsPairFixture::adapterInterface), QHostAddress(QLatin1String(adapterIp)),
                         QHostAddress(QLatin1String(mask)));
    const quint32 target = QHostAddress(QStringLiteral("10.201.0.2")).toIPv4Address();
    SampleStatistics seconds;
    for (auto _ : state) {
        if (path == KernelResolution && !flushNeighbours()) {
            state.SkipWithError("ip neigh flush failed");
            return;
        }
        const auto start = Clock::now();
        const ArpProber::ProbeResult result = prober.probe(target);
        const double elapsed = std::chrono::duration<double>(Clock::now() - start).count();
        if (!result.result.isSuccess()) {
            state.SkipWithError(qPrintable(result.result.text()));
            return;
        }
        state.SetIterationTime(elapsed);
        seconds.add(elapsed);
    }
    probeMedianSeconds[path] = seconds.median();
    state.counters["median_us"] = seconds.median() * 1e6;
    state.counters["p99_us"] = seconds.percentile(0.99) * 1e6;
}
BENCHMARK(BM_AnsweredProbe)
    ->Arg(PacketSocket)
    ->Arg(KernelResolution)
    ->Iterations(200)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);

void BM_Suggestion(benchmark::State& state)
{
    const auto path = Path(state.range(0));
    const PathScope scope(path);
    if (!scope.holds(path)) {
        state.SkipWithError("could not put the thread on the path");
        return;
    }
    if (probeMedianSeconds[path] <= 0) {
        state.SkipWithError("run BM_AnsweredProbe for this path first: it gives the reference");
        return;
    }
    state.SetLabel(pathName(path));
    HostArpProber prober(QLatin1String(NetnsPairFixture::adapterInterface), QHostAddress(QLatin1String(adapterIp)),
                         QHostAddress(QLatin1String(mask)));
    const quint32 expected = QHostAddress(QStringLiteral("10.201.0.%1").arg(takenHosts + 2)).toIPv4Address();
    const std::atomic<bool> cancelled{false};
    SampleStatistics seconds;
    for (auto _ : state) {
        if (path == KernelResolution && !flushNeighbours()) {
            state.SkipWithError("ip neigh flush failed");
            return;
        }
        IpSuggestion suggestion(prober);
        const auto start = Clock::now();
        const IpSuggestion::Outcome outcome = suggestion.run({}, cancelled);
        const double elapsed = std::chrono::duration<double>(Clock::now() - start).count();
        if (outcome.address != expected) {
            state.SkipWithError(qPrintable(QStringLiteral("suggested %1: %2")
                                               .arg(QHostAddress(outcome.address).toString(),
                                                    outcome.lastProbe.text())));
            return;
        }
        state.SetIterationTime(elapsed);
        seconds.add(elapsed);
    }
    const double oneByOne =
        takenHosts * probeMedianSeconds[path] + std::chrono::duration<double>(prober.timeout()).count();
    state.counters["median_ms"] = seconds.median() * 1e3;
    state.counters["probes_plus_timeout_ms"] = oneByOne * 1e3;
    state.counters["overhead_ms"] = (seconds.median() - oneByOne) * 1e3;
    state.counters["ratio"] = seconds.median() / oneByOne;
}
BENCHMARK(BM_Suggestion)
    ->Arg(PacketSocket)
    ->Arg(KernelResolution)
    ->Iterations(5)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    const QString unavailable = NetnsPairFixture::unavailableReason();
    if (!unavailable.isEmpty()) {
        std::printf("bench_ipsuggestion skipped: %s\n", qPrintable(unavailable));
        return 0;
    }

    NetnsPairFixture fixture(QStringLiteral("cirarpbench"));
    QStringList hosts;
    for (int host = 2; host < takenHosts + 2; ++host)
        hosts << QStringLiteral("10.201.0.%1/24").arg(host);
    if (!fixture.create(QStringLiteral("%1/24").arg(QLatin1String(adapterIp)), hosts)) {
        std::fprintf(stderr, "bench_ipsuggestion: %s\n", qPrintable(fixture.error()));
        return 1;
    }
    namespaces = &fixture;

    // The sockets that the probes open belong to the namespace of the thread
    // that opens them.
    const int home = ::open("/proc/thread-self/ns/net", O_RDONLY | O_CLOEXEC);
    const int adapterSide =
        ::open(qPrintable(QStringLiteral("/run/netns/%1").arg(fixture.adapterNamespace())), O_RDONLY | O_CLOEXEC);
    if (home < 0 || adapterSide < 0 || ::setns(adapterSide, CLONE_NEWNET) != 0) {
        std::perror("bench_ipsuggestion: entering the adapter's namespace");
        return 1;
    }
    ::close(adapterSide);

    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();

    ::setns(home, CLONE_NEWNET);
    ::close(home);
    return 0;
}
