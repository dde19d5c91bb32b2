#include "network/simulatedadapters.h"

#include "common/simulateddriver.h"

#include <pvsim.h>

#include <type_traits>

static_assert(std::is_same_v<decltype(&pvsim_GetState), SimulatedAdapters::GetState>);

SimulatedAdapters::GetState SimulatedAdapters::driverStateFunction()
{
    static const auto getState = SimulatedDriver::lookUp<GetState>("pvsim_GetState");
    return getState;
}
