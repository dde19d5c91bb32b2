#pragma once

#include "sysinfo/drivercomponent.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

class KernelModules;
class ServiceManager;

// The installed components of the camera driver stack, in a fixed order: the
// camera API library, then per driver service its kernel module (where the
// kernel has one) and its service unit with the unit's state. When the API
// library is the simulated driver, its components are the library and the
// two services it runs itself.
class DriverComponentInventory final
{
    Q_DECLARE_TR_FUNCTIONS(DriverComponentInventory)

public:
    struct Sources
    {
        const ServiceManager& services;
        const KernelModules& modules;
        QString sysfsRoot = QStringLiteral("/sys");
        bool simulatedDriver = false;
    };

    static const QStringList& driverServices(); // "cirro_usb", "cirro_eth", "cirro_com"

    // The running system's components.
    static DriverComponentList collect(const ServiceManager& services);
    static DriverComponentList collect(const Sources& sources);

    // The library that this process resolved the camera API from.
    static DriverComponent apiLibrary();
    // "1.2.3" of "libcirro_api.so.1.2.3"; empty without a version suffix.
    static QString libraryFileVersion(const QString& fileName);

private:
    static void addModule(DriverComponentList& components, const QString& service, const Sources& sources);
    static DriverComponent unit(const QString& name, int state);
};
