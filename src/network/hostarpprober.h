#pragma once

#include "network/arpprober.h"

class ArpPacketSocket;

// ARP probes on one of the host's own network adapters, by interface name.
// The interface's index, state and MAC address are read from the system at
// each probe, and the adapter must hold the prober's address and mask.
//
// Where the process may open a raw packet socket it sends the requests
// itself; otherwise the kernel resolves the target as a neighbour and the
// prober reads the outcome, so no privileges are needed.
class HostArpProber final : public ArpProber
{
    Q_DECLARE_TR_FUNCTIONS(HostArpProber)

public:
    HostArpProber(const QString& interfaceName, const QHostAddress& adapterIp, const QHostAddress& adapterMask,
                  std::chrono::milliseconds timeout = defaultTimeout);
    ~HostArpProber() override;

protected:
    ProbeResult ask(quint32 target) override;

private:
    ProbeResult failure(quint32 target, int error) const;

    // Kept from probe to probe: closing a packet socket waits for the network
    // stack to let go of it, which costs more than a probe on a quiet link.
    std::unique_ptr<ArpPacketSocket> m_packetSocket;
    // Set once opening a packet socket was refused, so that later probes go
    // straight to the kernel's resolution.
    bool m_packetSocketDenied = false;
};
