#include "network/arppacketsocket_linux.h"

#include <arpa/inet.h>
#include <linux/if_arp.h>
#include <linux/if_ether.h>
#include <linux/if_packet.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace {

// An ARP message for Ethernet and IPv4, as it goes on the wire.
struct EthernetArp
{
    quint16 hardwareType;
    quint16 protocolType;
    quint8 hardwareLength;
    quint8 protocolLength;
    quint16 operation;
    quint8 senderMac[ETH_ALEN];
    quint8 senderIp[4];
    quint8 targetMac[ETH_ALEN];
    quint8 targetIp[4];
} __attribute__((packed));
static_assert(sizeof(EthernetArp) == 28);

// A lost request or reply must not make a taken address look free, so the
// request goes out this many times, spread over the time-out.
constexpr int requestCount = 3;

void putIp(quint8* field, quint32 hostOrder)
{
    const quint32 value = htonl(hostOrder);
    std::memcpy(field, &value, sizeof value);
}

quint32 ipOf(const quint8* field)
{
    quint32 value = 0;
    std::memcpy(&value, field, sizeof value);
    return ntohl(value);
}

} // namespace

ArpPacketSocket::ArpPacketSocket(int interfaceIndex)
    : m_interfaceIndex(interfaceIndex)
{
    // Protocol 0 until bound: a socket that already receives would have to
    // wait for the network stack to let go of it when bind() narrows it down.
    m_fd = ::socket(AF_PACKET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    if (m_fd < 0) {
        m_openError = errno;
        return;
    }
    sockaddr_ll local{};
    local.sll_family = AF_PACKET;
    local.sll_protocol = htons(ETH_P_ARP);
    local.sll_ifindex = interfaceIndex;
    if (::bind(m_fd, reinterpret_cast<sockaddr*>(&local), sizeof local) < 0) {
        m_openError = errno;
        ::close(m_fd);
        m_fd = -1;
    }
}

ArpPacketSocket::~ArpPacketSocket()
{
    if (m_fd >= 0)
        ::close(m_fd);
}

int ArpPacketSocket::ask(const QByteArray& ownMac, quint32 ownIp, quint32 target,
                         std::chrono::steady_clock::time_point deadline, QByteArray* mac)
{
    using Clock = std::chrono::steady_clock;
    if (m_fd < 0)
        return m_openError;
    if (ownMac.size() != ETH_ALEN)
        return EINVAL;
    mac->clear();
    discardPending();

    const Clock::duration interval = (deadline - Clock::now()) / requestCount;
    Clock::time_point nextRequest = Clock::now();
    int requestsSent = 0;
    for (;;) {
        const Clock::time_point now = Clock::now();
        if (requestsSent < requestCount && now >= nextRequest) {
            if (const int error = sendRequest(ownMac, ownIp, target))
                return error;
            ++requestsSent;
            nextRequest += interval;
        }
        const Clock::time_point wakeUp = requestsSent < requestCount ? std::min(nextRequest, deadline) : deadline;
        if (now >= deadline)
            return 0;
        // Rounded up so that the loop does not spin through the last
        // fraction of a millisecond.
        const auto wait = std::chrono::ceil<std::chrono::milliseconds>(std::max(wakeUp - now, Clock::duration::zero()));
        pollfd ready{m_fd, POLLIN, 0};
        const int count = ::poll(&ready, 1, int(wait.count()));
        if (count < 0 && errno != EINTR)
            return errno;
        if (count > 0) {
            int error = 0;
            if (readReplies(target, mac, &error))
                return 0;
            if (error)
                return error;
        }
    }
}

void ArpPacketSocket::discardPending()
{
    char message[64];
    while (::recv(m_fd, message, sizeof message, MSG_DONTWAIT) >= 0 || errno == EINTR) {
    }
}

int ArpPacketSocket::sendRequest(const QByteArray& ownMac, quint32 ownIp, quint32 target)
{
    EthernetArp request{};
    request.hardwareType = htons(ARPHRD_ETHER);
    request.protocolType = htons(ETH_P_IP);
    request.hardwareLength = ETH_ALEN;
    request.protocolLength = 4;
    request.operation = htons(ARPOP_REQUEST);
    std::memcpy(request.senderMac, ownMac.constData(), ETH_ALEN);
    putIp(request.senderIp, ownIp);
    putIp(request.targetIp, target);

    sockaddr_ll destination{};
    destination.sll_family = AF_PACKET;
    destination.sll_protocol = htons(ETH_P_ARP);
    destination.sll_ifindex = m_interfaceIndex;
    destination.sll_halen = ETH_ALEN;
    std::memset(destination.sll_addr, 0xff, ETH_ALEN);
    for (;;) {
        const ssize_t sent = ::sendto(m_fd, &request, sizeof request, 0, reinterpret_cast<sockaddr*>(&destination),
                                      sizeof destination);
        if (sent >= 0)
            return 0;
        if (errno != EINTR)
            return errno;
    }
}

bool ArpPacketSocket::readReplies(quint32 target, QByteArray* mac, int* error)
{
    for (;;) {
        EthernetArp message{};
        sockaddr_ll source{};
        socklen_t sourceLength = sizeof source;
        const ssize_t received = ::recvfrom(m_fd, &message, sizeof message, MSG_DONTWAIT,
                                            reinterpret_cast<sockaddr*>(&source), &sourceLength);
        if (received < 0) {
            if (errno == EINTR)
                continue;
            if (errno != EAGAIN && errno != EWOULDBLOCK)
                *error = errno;
            return false;
        }
        // The socket also sees this host's own requests and ARP traffic
        // between other hosts; only target's reply counts.
        if (received < ssize_t(sizeof message) || source.sll_ifindex != m_interfaceIndex
            || source.sll_pkttype == PACKET_OUTGOING || ntohs(message.hardwareType) != ARPHRD_ETHER
            || ntohs(message.protocolType) != ETH_P_IP || message.hardwareLength != ETH_ALEN
            || message.protocolLength != 4 || ntohs(message.operation) != ARPOP_REPLY
            || ipOf(message.senderIp) != target)
            continue;
        *mac = QByteArray(reinterpret_cast<const char*>(message.senderMac), ETH_ALEN);
        return true;
    }
}
