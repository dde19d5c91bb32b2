#pragma once

#include "details/usbtopology.h"
#include "network/networkadapter.h"
#include "sysinfo/aboutinformation.h"
#include "sysinfo/drivercomponent.h"
#include "sysinfo/infonode.h"

#include <QCoreApplication>

#include <memory>

class ServiceManager;

// What the general information shows about this machine, read at one moment:
// the program itself, the camera driver's components, the USB controllers with
// everything connected to them, and the network adapters with the checks that
// matter for GigE cameras.
struct GeneralInformation
{
    Q_DECLARE_TR_FUNCTIONS(GeneralInformation)

public:
    AboutInformation about;
    DriverComponentList drivers;
    std::shared_ptr<const UsbTopology> topology;
    NetworkAdapterList adapters;
    QList<QString> adapterStatus; // one host check summary per adapter, in the adapters' order
    bool hostRead = false;        // topology and adapters are filled in

    // Reads everything. The service manager is asked in the caller's thread.
    static GeneralInformation gather(const ServiceManager& services);
    // Everything but the drivers: may run on any thread; sysfs, the adapters
    // and their checks take up to a few hundred milliseconds.
    static GeneralInformation gatherHost();

    // About, drivers, USB controllers, network adapters; the last two say
    // that they are still being read until the host is read.
    QList<InfoNode> pages() const;

    static InfoNode driversPage(const DriverComponentList& components);
    static InfoNode usbControllersPage(const UsbTopology* topology);
    static InfoNode networkAdaptersPage(const NetworkAdapterList& adapters, const QList<QString>& status);
};
