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

ServiceManager::Result ServiceManager::start(const QString& service)
{
    return change(service, Change::Start);
}

ServiceManager::Result ServiceManager::stop(const QString& service)
{
    return change(service, Change::Stop);
}

ServiceManager::Result ServiceManager::notInstalled(const QString& service)
{
    return {false, tr("The service %1 is not installed.").arg(service)};
}

ServiceManager::Result ServiceManager::failed(const QString& service, Change change, const QString& detail)
{
    const QString text = change == Change::Start ? tr("The service %1 could not be started: %2")
                                                 : tr("The service %1 could not be stopped: %2");
    return {false, text.arg(service, detail)};
}
