#include "supportfile/supportfilesources.h"

#include "camera/camera.h"
#include "network/networkadapters.h"
#include "sysinfo/drivercomponentinventory.h"

#include <cirro_api.h>

SupportFileSources SupportFileSources::gather(const QList<std::shared_ptr<Camera>>& cameras,
                                              const ServiceManager& services, RevisionQuery revision)
{
    SupportFileSources sources;
    for (const std::shared_ptr<Camera>& camera : cameras)
        sources.cameras << std::make_shared<Camera>(*camera);
    sources.topology = UsbTopology::build();
    sources.drivers = DriverComponentInventory::collect(services);
    sources.system = SystemInformation::read();
    sources.adapters = getNetworkAdapters();
    sources.revision = std::move(revision);
    sources.summitCompatibility = readSummitCompatibility();
    return sources;
}

quint32 SupportFileSources::readSummitCompatibility()
{
    quint32 enabled = 0;
    if (pv_Configuration(PV_CONFIG_GET_SUMMIT_COMPAT, &enabled, sizeof enabled) != PV_OK)
        enabled = 0;
    return enabled;
}
