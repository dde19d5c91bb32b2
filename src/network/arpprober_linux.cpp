#include "network/arpprober.h"

#include "network/hostarpprober.h"
#include "network/simulatedarpprober.h"

#include <pvsim.h>

#include <dlfcn.h>

#include <type_traits>

static_assert(std::is_same_v<decltype(&pvsim_ArpRequest), SimulatedArpProber::ArpRequest>);

std::unique_ptr<ArpProber> ArpProber::create(const QString& adapterName, const QHostAddress& adapterIp,
                                             const QHostAddress& adapterMask, std::chrono::milliseconds timeout)
{
    // A vendor library has no pvsim_ functions, so nothing may need them at
    // link time.
    static const auto arpRequest =
        reinterpret_cast<SimulatedArpProber::ArpRequest>(::dlsym(RTLD_DEFAULT, "pvsim_ArpRequest"));
    if (arpRequest)
        return std::make_unique<SimulatedArpProber>(arpRequest, adapterName, adapterIp, adapterMask, timeout);
    return std::make_unique<HostArpProber>(adapterName, adapterIp, adapterMask, timeout);
}
