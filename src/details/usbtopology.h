#pragma once

#include "common/kernelmodules.h"

#include <QString>
#include <QtGlobal>

#include <memory>
#include <optional>
#include <vector>

// Snapshot of the machine's USB tree: host controllers, their root hubs,
// external hubs, the ports of every hub and the device on each port.
// build() may run on any thread; afterwards the snapshot is only read, so it
// is shared as std::shared_ptr<const UsbTopology> and needs no lock.
class UsbTopology final
{
public:
    enum class NodeKind { HostController, RootHub, ExternalHub, Device };
    // The order is the controller's type code.
    enum class ControllerType { Uhci, Ohci, Ehci, Xhci, Usb4, Unknown };

    struct DriverInfo
    {
        QString name;
        QString version;
        QString date; // "%d-%d-%d" (month, day, year); empty where the system keeps no date
    };

    struct Hub;

    struct Device
    {
        QString driverKey; // the host's name for the device, "2-1.4"
        QString instanceId;
        QString description;
        DriverInfo driver;
        double speedMbits = 0; // 0 when not known
        std::unique_ptr<const Hub> hub; // set when the device is a hub
    };

    struct Port
    {
        int number = 0;
        std::unique_ptr<const Device> device; // empty when nothing is connected
    };

    struct Hub
    {
        NodeKind kind = NodeKind::RootHub;
        QString name;
        QString description;
        std::vector<Port> ports; // numbered 1..N in order
    };

    struct HostController
    {
        QString name;
        QString description;
        QString pciIdentity; // empty for a controller that is not a PCI function
        ControllerType type = ControllerType::Unknown;
        DriverInfo driver;
        std::vector<Hub> rootHubs; // an xHCI controller has one per USB generation
    };

    struct HubLevel
    {
        QString hubName;
        QString hubDescription;
        int port = 0;
        // The description where the hub has one.
        QString displayName() const { return hubDescription.isEmpty() ? hubName : hubDescription; }
    };

    struct Location
    {
        std::vector<HubLevel> hubs; // from the device's own hub up to the root hub
        QString controller;         // the host controller's description
    };

    static inline const QString defaultSysfsRoot = QStringLiteral("/sys");
    static inline const QString defaultPciIds = QStringLiteral("/usr/share/misc/pci.ids");

    explicit UsbTopology(std::vector<HostController> controllers);
    Q_DISABLE_COPY_MOVE(UsbTopology)

    // Reads the tree from the host; pciIds names PCI vendors and devices when
    // that file exists, modules dates the drivers. Anything unreadable is left
    // out, never reported.
    static std::shared_ptr<const UsbTopology> build(const QString& sysfsRoot = defaultSysfsRoot,
                                                    const QString& pciIds = defaultPciIds,
                                                    const KernelModules& modules = KernelModules::running());

    const std::vector<HostController>& controllers() const { return m_controllers; }

    // portPath is a device's driver key. Empty when no connected device has it.
    std::optional<Location> locate(const QString& portPath) const;

    static QString classText(NodeKind kind);
    static QString controllerTypeText(ControllerType type);
    // classCode is the 24-bit PCI class, sub-class and programming interface.
    static ControllerType controllerType(quint32 classCode);
    static QString pciIdentity(quint16 vendor, quint16 device, quint16 subsystemVendor,
                               quint16 subsystemDevice, quint8 revision);
    static QString instanceId(quint16 vendor, quint16 product, const QString& serial,
                              const QString& driverKey);

private:
    std::vector<HostController> m_controllers;
};
