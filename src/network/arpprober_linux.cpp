#include "network/arpprober.h"

#include "network/hostarpprober.h"
#include "network/simulatedarpprober.h"

#include "common/simulateddriver.h"

#include <pvsim.h>

#include <type_traits>

static_assert(std::is_same_v<decltype(&pvsim_ArpRequest), SimulatedArpProber::ArpRequest>);

std::unique_ptr<ArpProber> ArpProber::create(const QString& adapterName, const QHostAddress& adapterIp,
                                             const QHostAddress& adapterMask, std::chrono::milliseconds timeout)
{
    static const auto arpRequest = SimulatedDriver::lookUp<SimulatedArpProber::ArpRequest>("pvsim_ArpRequest");
    if (arpRequest)
        return std::make_unique<SimulatedArpProber>(arpRequest, adapterName, adapterIp, adapterMask, timeout);
    return std::make_unique<HostArpProber>(adapterName, adapterIp, adapterMask, timeout);
}
