#include "sysinfo/drivercomponentinventory.h"

#include "common/kernelmodules.h"
#include "common/simulateddriver.h"
#include "common/sysfsnode.h"
#include "common/versionword.h"
#include "services/servicemanager.h"

#include <cirro_api.h>

#include <QFileInfo>

namespace {

QString stateText(int state)
{
    switch (state) {
    case CoreStates::NotInstalled:
        return DriverComponentInventory::tr("not installed");
    case CoreStates::NotRunning:
        return DriverComponentInventory::tr("not running");
    case CoreStates::Running:
        return DriverComponentInventory::tr("running");
    case CoreStates::NoAccess:
        return DriverComponentInventory::tr("no access to the service manager");
    default:
        return DriverComponentInventory::tr("unknown");
    }
}

} // namespace

const QStringList& DriverComponentInventory::driverServices()
{
    static const QStringList services{QStringLiteral("cirro_usb"), QStringLiteral("cirro_eth"),
                                      QStringLiteral("cirro_com")};
    return services;
}

DriverComponentList DriverComponentInventory::collect(const ServiceManager& services)
{
    return collect(Sources{services, KernelModules::running(), QStringLiteral("/sys"),
                           SimulatedDriver::symbol("pvsim_GetState") != nullptr});
}

DriverComponentList DriverComponentInventory::collect(const Sources& sources)
{
    DriverComponentList components{apiLibrary()};
    for (const QString& service : driverServices()) {
        const int state = sources.services.state(service);
        // The simulated driver runs no COM port service; a missing one is no part of it.
        if (sources.simulatedDriver && state == CoreStates::NotInstalled)
            continue;
        if (!sources.simulatedDriver)
            addModule(components, service, sources);
        components << unit(sources.simulatedDriver ? tr("%1 (simulated)").arg(service)
                                                   : service + QStringLiteral(".service"),
                           state);
    }
    return components;
}

void DriverComponentInventory::addModule(DriverComponentList& components, const QString& service,
                                         const Sources& sources)
{
    const QString file = sources.modules.filePath(service);
    if (file.isEmpty())
        return;
    // Only a loaded module tells its version.
    const SysfsNode loaded(sources.sysfsRoot + QStringLiteral("/module/") + service);
    components << DriverComponent{DriverComponent::Kind::KernelModule,
                                  QFileInfo(file).fileName(),
                                  file,
                                  loaded.text(QStringLiteral("version")).value_or(QString()),
                                  loaded.text(QStringLiteral("srcversion")).value_or(QString()),
                                  sources.modules.buildDate(service)};
}

DriverComponent DriverComponentInventory::unit(const QString& name, int state)
{
    return DriverComponent{DriverComponent::Kind::ServiceUnit, name, QString(), QString(), stateText(state),
                           QString()};
}

QString DriverComponentInventory::libraryFileVersion(const QString& fileName)
{
    const int suffix = fileName.indexOf(QLatin1String(".so."));
    return suffix < 0 ? QString() : fileName.mid(suffix + 4);
}
