#include "services/servicemanager.h"

#include "services/simulatedservicemanager.h"
#include "services/systemdservicemanager_linux.h"

#include "common/simulateddriver.h"

#include <pvsim.h>

#include <type_traits>

namespace {

using Controls = SimulatedServiceManager::Controls;
static_assert(std::is_same_v<decltype(&pvsim_GetServiceState), decltype(Controls::getServiceState)>);
static_assert(std::is_same_v<decltype(&pvsim_SetServiceRunning), decltype(Controls::setServiceRunning)>);

} // namespace

std::unique_ptr<ServiceManager> ServiceManager::create()
{
    Controls controls;
    controls.getServiceState = SimulatedDriver::lookUp<decltype(controls.getServiceState)>("pvsim_GetServiceState");
    controls.setServiceRunning =
        SimulatedDriver::lookUp<decltype(controls.setServiceRunning)>("pvsim_SetServiceRunning");
    if (controls.isComplete())
        return std::make_unique<SimulatedServiceManager>(controls);
    return std::make_unique<SystemdServiceManager>(QDBusConnection::systemBus());
}
