#pragma once

#include <QString>

class Camera;

// Single camera values that the details tree shows as words instead of numbers.
class DeviceValueRenderer final
{
public:
    // The camera's MAC text, replaced by a warning where the temperature sensor
    // that holds the address's end reports a fault.
    static QString macAddress(const Camera& camera);
    static QString macAddress(const QString& macText);
    // USB cameras: the link speed in Mbit/s, named where it is a USB generation.
    static QString linkSpeed(const Camera& camera);
    static QString linkSpeed(quint16 mbits);
    // GigE cameras: the packet filter mode of the adapter.
    static QString packetFilter(const Camera& camera);
    static QString packetFilter(quint32 mode);
};
