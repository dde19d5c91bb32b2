#include "network/neighbourresolver_linux.h"

#include "network/networklogging.h"
#include "network/rtnetlinksocket_linux.h"

#include <QScopeGuard>

#include <linux/neighbour.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>

namespace {

constexpr quint16 discardPort = 9;

enum class Verdict { Pending, Answered, Failed };

// A stale or delayed entry counts as an answer: the kernel heard from that
// host recently, and a free-address search had rather skip an address than
// offer one that is in use. So does an entry an administrator pinned.
Verdict verdictOf(const RtnetlinkSocket::Ipv4Neighbour& entry)
{
    constexpr quint16 heard = NUD_REACHABLE | NUD_STALE | NUD_DELAY | NUD_PROBE | NUD_PERMANENT;
    if ((entry.state & heard) && !entry.linkAddress.isEmpty())
        return Verdict::Answered;
    if (entry.state & NUD_FAILED)
        return Verdict::Failed;
    return Verdict::Pending;
}

} // namespace

NeighbourResolver::NeighbourResolver(const QByteArray& interfaceName, int interfaceIndex, quint32 ownIp)
    : m_interfaceName(interfaceName)
    , m_interfaceIndex(interfaceIndex)
    , m_ownIp(ownIp)
{
}

int NeighbourResolver::resolve(quint32 target, std::chrono::steady_clock::time_point deadline, QByteArray* mac)
{
    using Clock = std::chrono::steady_clock;
    mac->clear();

    // Listening starts before the datagram goes out so that no change of the
    // entry slips between reading the table and waiting.
    RtnetlinkSocket changes(RtnetlinkSocket::Subscription::NeighbourChanges);
    if (changes.openError())
        return changes.openError();
    RtnetlinkSocket table;
    if (table.openError())
        return table.openError();
    if (const int error = sendDatagram(target))
        return error;

    bool readTable = true;
    for (;;) {
        QVector<RtnetlinkSocket::Ipv4Neighbour> entries;
        if (readTable) {
            if (const int error = table.ipv4Neighbours(m_interfaceIndex, &entries))
                return error;
            readTable = false;
        } else {
            const Clock::time_point now = Clock::now();
            if (now >= deadline)
                return 0;
            const auto wait = std::chrono::ceil<std::chrono::milliseconds>(deadline - now);
            const int error = changes.waitForNeighbourChanges(wait, &entries);
            if (error == ENOBUFS) {
                qCDebug(lcNetwork) << "neighbour notifications overran on" << m_interfaceName << "- reading the table";
                readTable = true;
                continue;
            }
            if (error)
                return error;
        }
        for (const RtnetlinkSocket::Ipv4Neighbour& entry : qAsConst(entries)) {
            if (entry.interfaceIndex != m_interfaceIndex || entry.address != target)
                continue;
            switch (verdictOf(entry)) {
            case Verdict::Answered:
                *mac = entry.linkAddress;
                return 0;
            case Verdict::Failed:
                return 0;
            case Verdict::Pending:
                break;
            }
        }
    }
}

int NeighbourResolver::sendDatagram(quint32 target)
{
    const int fd = ::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    if (fd < 0)
        return errno;
    const auto closeSocket = qScopeGuard([fd] { ::close(fd); });
    // Binding to the interface keeps the kernel from resolving the target
    // through another adapter that has a route to it as well.
    if (::setsockopt(fd, SOL_SOCKET, SO_BINDTODEVICE, m_interfaceName.constData(),
                     socklen_t(m_interfaceName.size()))
        < 0)
        return errno;
    sockaddr_in source{};
    source.sin_family = AF_INET;
    source.sin_addr.s_addr = htonl(m_ownIp);
    if (::bind(fd, reinterpret_cast<sockaddr*>(&source), sizeof source) < 0)
        return errno;
    sockaddr_in destination{};
    destination.sin_family = AF_INET;
    destination.sin_port = htons(discardPort);
    destination.sin_addr.s_addr = htonl(target);
    for (;;) {
        if (::sendto(fd, nullptr, 0, 0, reinterpret_cast<sockaddr*>(&destination), sizeof destination) >= 0)
            return 0;
        if (errno != EINTR)
            return errno;
    }
}
