#include "network/simulatedadapters.h"

#include <pvsim.h>

#include <dlfcn.h>

#include <type_traits>

static_assert(std::is_same_v<decltype(&pvsim_GetState), SimulatedAdapters::GetState>);

SimulatedAdapters::GetState SimulatedAdapters::driverStateFunction()
{
    // A vendor library has no pvsim_ functions, so nothing may need them at
    // link time.
    static const auto getState = reinterpret_cast<GetState>(::dlsym(RTLD_DEFAULT, "pvsim_GetState"));
    return getState;
}
