#pragma once

#include "details/usbtopology.h"
#include "network/networkadapter.h"
#include "supportfile/camerarevision.h"
#include "sysinfo/drivercomponent.h"
#include "sysinfo/systeminformation.h"

#include <QList>

#include <functional>
#include <memory>
#include <optional>

class Camera;
class ServiceManager;

// Everything a support file is written from: a snapshot of the camera list
// and what the host says about itself at that moment.
struct SupportFileSources
{
    // The revision record of a camera, read by opening it; nullopt when it
    // can't be read.
    using RevisionQuery = std::function<std::optional<CameraRevision>(const Camera&)>;

    QList<std::shared_ptr<Camera>> cameras; // copies: the walk completes them
    std::shared_ptr<const UsbTopology> topology;
    DriverComponentList drivers;
    SystemInformation system;
    NetworkAdapterList adapters;
    RevisionQuery revision;
    quint32 summitCompatibility = 0;

    static SupportFileSources gather(const QList<std::shared_ptr<Camera>>& cameras, const ServiceManager& services,
                                     RevisionQuery revision);
    // The driver's compatibility switch for the sibling SDK's cameras; 0 when
    // the driver does not answer.
    static quint32 readSummitCompatibility();
};
