#include "services/servicemanager.h"

#include "driversettings/driverservicesettings.h"

ServiceManager::~ServiceManager() = default;

CoreStates ServiceManager::coreStates() const
{
    CoreStates states;
    states.usb = state(QLatin1String(DriverServiceSettings::usbService));
    states.eth = state(QLatin1String(DriverServiceSettings::ethService));
    return states;
}

Result ServiceManager::start(const QString& service)
{
    return change(service, Change::Start);
}

Result ServiceManager::stop(const QString& service)
{
    return change(service, Change::Stop);
}

Result ServiceManager::notInstalled(const QString& service)
{
    return {HostError::ServiceNotInstalled, tr("The service %1 is not installed.").arg(service)};
}

Result ServiceManager::failed(const QString& service, Change change, const QString& detail)
{
    const QString text = change == Change::Start ? tr("The service %1 could not be started: %2")
                                                 : tr("The service %1 could not be stopped: %2");
    return {HostError::ServiceControlFailed, text.arg(service, detail)};
}
