#pragma once

#include <QByteArray>

#include <chrono>

// Asks whether a host holds an IPv4 address by letting the kernel resolve it
// as a neighbour: a UDP datagram to the discard port from the adapter's
// address and interface makes the kernel send its ARP requests, and the
// neighbour entry's state says whether anybody answered. Needs no privileges.
// Functions return 0 or an errno value.
class NeighbourResolver final
{
public:
    // ownIp in host order: the source address of the datagram.
    NeighbourResolver(const QByteArray& interfaceName, int interfaceIndex, quint32 ownIp);
    Q_DISABLE_COPY_MOVE(NeighbourResolver)

    // On success *mac holds the link-layer address of the host that holds
    // target (host order), or nothing when the kernel gave up on it or
    // deadline passed first.
    int resolve(quint32 target, std::chrono::steady_clock::time_point deadline, QByteArray* mac);

private:
    int sendDatagram(quint32 target);

    QByteArray m_interfaceName;
    int m_interfaceIndex = 0;
    quint32 m_ownIp = 0;
};
