#pragma once

#include "network/arpprober.h"

#include <cstdint>

// ARP probes on the simulated driver's virtual GigE network, through the
// driver's own control function. The application does not link it (a vendor
// library has none), so it comes in as a pointer found at run time. The driver
// applies its adapter's own ARP time-out; the prober's time-out is not used.
class SimulatedArpProber final : public ArpProber
{
    Q_DECLARE_TR_FUNCTIONS(SimulatedArpProber)

public:
    // adapter: the virtual adapter's name; targetIp: dotted text; mac: six
    // bytes, written when a host answers.
    using ArpRequest = std::int32_t (*)(const char* adapter, const char* targetIp, std::uint8_t* mac);

    // arpRequest must not be null.
    SimulatedArpProber(ArpRequest arpRequest, const QString& adapterName, const QHostAddress& adapterIp,
                       const QHostAddress& adapterMask, std::chrono::milliseconds timeout = defaultTimeout);

protected:
    ProbeResult ask(quint32 target) override;

private:
    ArpRequest m_arpRequest;
};
