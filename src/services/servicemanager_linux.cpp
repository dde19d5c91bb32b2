#include "services/servicemanager.h"

#include "services/simulatedservicemanager.h"
#include "services/systemdservicemanager_linux.h"

#include <pvsim.h>

#include <dlfcn.h>

#include <type_traits>

namespace {

using Controls = SimulatedServiceManager::Controls;
static_assert(std::is_same_v<decltype(&pvsim_GetServiceState), decltype(Controls::getServiceState)>);
static_assert(std::is_same_v<decltype(&pvsim_SetServiceRunning), decltype(Controls::setServiceRunning)>);

// A vendor library has no pvsim_ functions, so nothing may need them at link
// time.
template <typename Function>
void lookUp(Function*& function, const char* name)
{
    function = reinterpret_cast<Function*>(::dlsym(RTLD_DEFAULT, name));
}

} // namespace

std::unique_ptr<ServiceManager> ServiceManager::create()
{
    Controls controls;
    lookUp(controls.getServiceState, "pvsim_GetServiceState");
    lookUp(controls.setServiceRunning, "pvsim_SetServiceRunning");
    if (controls.isComplete())
        return std::make_unique<SimulatedServiceManager>(controls);
    return std::make_unique<SystemdServiceManager>(QDBusConnection::systemBus());
}
