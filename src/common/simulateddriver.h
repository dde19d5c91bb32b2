#pragma once

#include <QString>

// The simulated driver's own control functions (pvsim_), looked up at run
// time: a vendor's camera API library has none, so nothing may need them at
// link time. A lookup gives null when the API library is not the simulated
// driver.
namespace SimulatedDriver {

void* symbol(const char* name);

template <typename FunctionPointer>
FunctionPointer lookUp(const char* name)
{
    return reinterpret_cast<FunctionPointer>(symbol(name));
}

// Why the scenario file that the simulated driver was started with was not
// loaded: the file and the problem, in the driver's words. Empty when it was
// loaded, when none was named, or when the API library is another one.
QString startScenarioError();

} // namespace SimulatedDriver
