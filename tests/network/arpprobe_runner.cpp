// Probes targets with the host's ARP prober and prints one line per target, so
// that tst_arpprober can run probes inside a network namespace of its own and
// under another user:
//   arpprobe_runner <time-out ms> <interface> <adapter ip> <mask> <target>...
// First line: whether this process may open a packet socket at all; then
// "<target> <code> <mac or -> <elapsed ms> <text>" per target.
#include "network/hostarpprober.h"

#include <QHostAddress>

#include <sys/socket.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv)
{
    if (argc < 6) {
        std::fprintf(stderr, "usage: %s <time-out ms> <interface> <adapter ip> <mask> <target>...\n", argv[0]);
        return 2;
    }
    const int packetSocket = ::socket(AF_PACKET, SOCK_DGRAM, 0);
    std::printf("packet-socket %s\n", packetSocket >= 0 ? "permitted" : "denied");
    if (packetSocket >= 0)
        ::close(packetSocket);

    HostArpProber prober(QString::fromLocal8Bit(argv[2]), QHostAddress(QString::fromLatin1(argv[3])),
                         QHostAddress(QString::fromLatin1(argv[4])), std::chrono::milliseconds(std::atoi(argv[1])));
    for (int i = 5; i < argc; ++i) {
        const auto start = std::chrono::steady_clock::now();
        const ArpProber::ProbeResult result = prober.probe(QHostAddress(QString::fromLatin1(argv[i])).toIPv4Address());
        const double elapsed = std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
        std::printf("%s %d %s %.1f %s\n", argv[i], result.result.code(),
                    result.mac.isEmpty() ? "-" : qPrintable(result.mac), elapsed, qPrintable(result.result.text()));
    }
    return 0;
}
