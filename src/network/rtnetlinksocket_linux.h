#pragma once

#include <QByteArray>
#include <QVector>

#include <chrono>
#include <cstdint>

struct nlmsghdr;

// IPv4 addresses, neighbour entries and route lookups through a NETLINK_ROUTE
// socket. Changes need CAP_NET_ADMIN in the socket's network
// namespace; reading and listening do not. Functions return 0 or an errno
// value.
class RtnetlinkSocket final
{
public:
    struct Ipv4Address
    {
        // Host order, first octet in the most significant byte.
        quint32 address = 0;
        int prefixLength = 0;
    };

    struct Ipv4Neighbour
    {
        int interfaceIndex = 0;
        // Host order.
        quint32 address = 0;
        // NUD_* bits; 0 for an entry that the kernel removed.
        quint16 state = 0;
        // Empty while the kernel has none.
        QByteArray linkAddress;
    };

    enum class Subscription { None, NeighbourChanges };

    explicit RtnetlinkSocket(Subscription subscription = Subscription::None);
    ~RtnetlinkSocket();
    Q_DISABLE_COPY_MOVE(RtnetlinkSocket)

    // errno of opening the socket; 0 when it is open.
    int openError() const { return m_openError; }

    int ipv4Addresses(int interfaceIndex, QVector<Ipv4Address>* addresses);
    // Adds a permanent address; an equal address that is there already
    // becomes permanent.
    int addIpv4(int interfaceIndex, const Ipv4Address& address);
    int deleteIpv4(int interfaceIndex, const Ipv4Address& address);

    int ipv4Neighbours(int interfaceIndex, QVector<Ipv4Neighbour>* neighbours);

    // The interface through which the kernel would send to destination (host
    // order), as `ip route get` asks; the lookup itself sends nothing. For a
    // local address that is the loopback interface.
    int routeInterface(quint32 destination, int* interfaceIndex);
    // On a socket opened with Subscription::NeighbourChanges: waits up to
    // timeout for the kernel's next notifications and appends the IPv4 ones,
    // in their order; none when the time passes. ENOBUFS means that
    // notifications were lost and the table needs reading again.
    int waitForNeighbourChanges(std::chrono::milliseconds timeout, QVector<Ipv4Neighbour>* changes);

private:
    int changeIpv4(int type, int flags, int interfaceIndex, const Ipv4Address& address);
    int send(const void* message, std::size_t size);
    // Reads replies to the last request until its acknowledgement or the end
    // of a dump; each other message is handed to onMessage.
    template<typename OnMessage>
    int receive(OnMessage onMessage);

    int m_fd = -1;
    int m_openError = 0;
    quint32 m_sequence = 0;
};
