#pragma once

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

} // namespace SimulatedDriver
