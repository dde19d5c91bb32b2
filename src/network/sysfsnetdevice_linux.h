#pragma once

#include "common/sysfsnode.h"

#include <QString>

// What sysfs tells about one network interface: /sys/class/net/<name> and the
// device behind it. The sysfs root is a parameter so that tests can use trees
// of their own.
class SysfsNetDevice final
{
public:
    enum class Bus { None, Pci, Usb, Other };

    struct HardwareIdentity
    {
        Bus bus = Bus::None;
        quint16 vendor = 0;
        quint16 device = 0;
    };

    SysfsNetDevice(const QString& sysfsRoot, const QString& interfaceName);

    bool exists() const;
    // Virtual interfaces (loopback, veth, bridges, tunnels) have no device.
    bool hasDevice() const;
    // DEVTYPE of the interface's uevent ("bridge", "vlan", "wlan"), often empty.
    QString deviceType() const;
    // The ARPHRD_ link type number; -1 when unreadable.
    int linkType() const;
    // The ids of the nearest PCI or USB device at or above the interface's
    // device; Bus::Other for a bus device with its own vendor and device ids.
    HardwareIdentity hardwareIdentity() const;
    // Name of the kernel module that drives the device; empty when built in
    // or virtual.
    QString driverModule() const;

private:
    QString m_root;
    SysfsNode m_interface; // an empty path for a name that is no interface's
};
