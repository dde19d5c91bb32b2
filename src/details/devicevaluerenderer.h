#pragma once

#include <QString>

class Camera;

// Single camera values that the details tree shows as words instead of numbers.
class DeviceValueRenderer final
{
public:
    // What the end of an address that comes from the temperature sensor says about it.
    enum class SensorFault { None, Defect, TooHigh };
    static SensorFault sensorFault(const QString& addressText);

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
    // A status or control word: "0x" and the word in decimal, as the driver tools show it.
    static QString flagWord(quint32 word);
    // "0x" and the word in hexadecimal.
    static QString hexWord(quint32 word);
    // The user EEPROM text cut to eight characters, "..." from eight on.
    static QString userEeprom(const Camera& camera);
    // A GigE camera's link: "%1 Mbits/s".
    static QString ethLinkSpeed(quint32 mbits);
    static QString memorySize(quint32 megabytes);
};
