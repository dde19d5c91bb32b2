#pragma once

#include <QString>

class Camera;

// A GigE camera's network settings as the driver reports them when the manual
// configuration opens: the values it starts from and compares against.
struct EthCameraSettings
{
    quint32 capabilities = 0; // PV_IPCAP_* bits; 0 when the query fails
    bool dhcpEnabled = false;
    bool persistentRead = false; // the persistent block could be read
    QString persistentIp;        // empty when it could not be read
    QString persistentMask;
    QString rangeBegin; // of the camera's adapter; empty when unreadable
    QString rangeEnd;
    QString multicastIp;
    bool multicastEnabled = false;
    quint32 multicastCapability = 0;

    // Reads through the camera API, by device ID and by the adapter's MAC.
    static EthCameraSettings read(const Camera& camera);
};
