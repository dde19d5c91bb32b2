#pragma once

#include "network/macaddress.h"

#include <QtGlobal>

class Camera;

// Automatic addressing of one GigE camera: its adapter's range becomes the
// whole host range of the adapter's subnet, and the camera's persistent
// address is cleared, so that the camera takes an address from the range.
struct AutoConfiguration
{
    // The job's failure codes; 0 is success.
    static constexpr quint32 bootBoostRefused = 0xFFFFFFFF;
    static constexpr quint32 persistentFailed = 0xFFFFFFFE;
    static constexpr quint32 rangeFailed = 0xFFFFFFFD;

    quint32 rangeBegin = 0; // host order
    quint32 rangeEnd = 0;
    MacAddress adapterMac;
    MacAddress cameraMac;
    bool bootBoost = false;

    // Captured from the camera record when the command starts.
    static AutoConfiguration of(const Camera& camera);
    // Writes the range, then clears the persistent address; nothing is rolled
    // back when the second write fails. Blocks: run it on a pool thread.
    quint32 run() const;
};
