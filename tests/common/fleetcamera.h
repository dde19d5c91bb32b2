#pragma once

// A camera record of the simulated driver's current fleet, built the way the
// camera list builds it.

#include "camera/camera.h"

#include "simdriverfixture.h"

inline Camera fleetCamera(quint32 deviceId)
{
    for (const pv_CameraListEntry& entry : SimDriverFixture::list()) {
        if (entry.deviceId == deviceId)
            return Camera(entry, 0);
    }
    return Camera();
}
