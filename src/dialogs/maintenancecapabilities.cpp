#include "dialogs/maintenancecapabilities.h"

#include "dialogs/cameracall.h"

MaintenanceCapabilities MaintenanceCapabilities::read(quint32 handle, Result* result)
{
    *result = {};
    MaintenanceCapabilities capabilities;
    pv_FeatureBlock block{};
    const int code = CameraCall::readFeature(handle, PV_FEATURE_MAINTENANCE, 0, block);
    if (CameraCall::isUnsupported(code))
        return capabilities;
    if (code != PV_OK) {
        *result = CameraCall::failed(code, QCoreApplication::translate("MaintenanceCapabilities",
                                                                       "The camera's functions could not be read."));
        return capabilities;
    }
    capabilities.known = true;
    capabilities.bits = block.status;
    capabilities.userEepromSize = int(qMin<quint32>(block.values[0], PV_USER_EEPROM_SIZE));
    return capabilities;
}
