#pragma once

#include "common/result.h"

#include <QtGlobal>

// Which maintenance functions (PV_MAINT_* bits) a camera offers. A library
// that does not know the query leaves them unknown: the functions are then
// shown as not supported by the installed driver.
struct MaintenanceCapabilities
{
    bool known = false;
    quint32 bits = 0;
    int userEepromSize = 0;

    bool has(quint32 bit) const { return !known || (bits & bit); }

    // By device ID or open handle. A failure other than an unknown query is
    // returned in *result.
    static MaintenanceCapabilities read(quint32 handle, Result* result);
};
