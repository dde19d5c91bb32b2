#pragma once

#include <QByteArray>

#include <chrono>

// ARP requests and replies on one interface through a packet socket (Ethernet
// and IPv4 only). Opening one needs CAP_NET_RAW in the interface's network
// namespace. Functions return 0 or an errno value.
class ArpPacketSocket final
{
public:
    explicit ArpPacketSocket(int interfaceIndex);
    ~ArpPacketSocket();
    Q_DISABLE_COPY_MOVE(ArpPacketSocket)

    // errno of opening or binding the socket; 0 when it is ready.
    int openError() const { return m_openError; }
    int interfaceIndex() const { return m_interfaceIndex; }

    // Broadcasts requests for target (host order) from ownMac (six bytes) and
    // ownIp until a reply from target arrives or deadline passes. On success
    // *mac holds the six bytes of the answering host, or nothing when nobody
    // answered in time. What arrived before the call, such as late replies to
    // an earlier request, does not count.
    int ask(const QByteArray& ownMac, quint32 ownIp, quint32 target,
            std::chrono::steady_clock::time_point deadline, QByteArray* mac);

private:
    void discardPending();
    int sendRequest(const QByteArray& ownMac, quint32 ownIp, quint32 target);
    // Reads what has arrived; true with *mac set once a reply from target
    // is among it.
    bool readReplies(quint32 target, QByteArray* mac, int* error);

    int m_fd = -1;
    int m_openError = 0;
    int m_interfaceIndex = 0;
};
