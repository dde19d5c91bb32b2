#pragma once

#include <QVector>

#include <cstdint>

// IPv4 addresses of an interface through a NETLINK_ROUTE socket. Changes need
// CAP_NET_ADMIN in the socket's network namespace. Functions return 0 or an
// errno value.
class RtnetlinkSocket final
{
public:
    struct Ipv4Address
    {
        // Host order, first octet in the most significant byte.
        quint32 address = 0;
        int prefixLength = 0;
    };

    RtnetlinkSocket();
    ~RtnetlinkSocket();
    Q_DISABLE_COPY_MOVE(RtnetlinkSocket)

    // errno of opening the socket; 0 when it is open.
    int openError() const { return m_openError; }

    int ipv4Addresses(int interfaceIndex, QVector<Ipv4Address>* addresses);
    // Adds a permanent address; an equal address that is there already
    // becomes permanent.
    int addIpv4(int interfaceIndex, const Ipv4Address& address);
    int deleteIpv4(int interfaceIndex, const Ipv4Address& address);

private:
    int changeIpv4(int type, int flags, int interfaceIndex, const Ipv4Address& address);
    int send(const void* message, std::size_t size);
    // Reads replies to the last request until its acknowledgement or the end
    // of a dump; each address message is handed to onAddress.
    template<typename OnAddress>
    int receive(OnAddress onAddress);

    int m_fd = -1;
    int m_openError = 0;
    quint32 m_sequence = 0;
};
