#include "details/usbtopology.h"

#include <algorithm>

namespace {

// Fills chain from the device's hub upwards when key is below hub.
bool findChain(const UsbTopology::Hub& hub, const QString& key,
               std::vector<UsbTopology::HubLevel>& chain)
{
    for (const UsbTopology::Port& port : hub.ports) {
        const UsbTopology::Device* device = port.device.get();
        if (!device)
            continue;
        if (device->driverKey == key || (device->hub && findChain(*device->hub, key, chain))) {
            chain.push_back({hub.name, hub.description, port.number});
            return true;
        }
    }
    return false;
}

// Windows drops a serial number that it cannot use inside an instance ID and
// names the device by its place instead.
bool usableInInstanceId(const QString& serial)
{
    return !serial.isEmpty() && std::all_of(serial.cbegin(), serial.cend(), [](QChar c) {
        return c.unicode() > 0x20 && c.unicode() < 0x7f && c != QLatin1Char(',');
    });
}

QString hex(uint value, int width = 0)
{
    return QStringLiteral("%1").arg(value, width, 16, QLatin1Char('0'));
}

} // namespace

UsbTopology::UsbTopology(std::vector<HostController> controllers)
    : m_controllers(std::move(controllers))
{
}

std::optional<UsbTopology::Location> UsbTopology::locate(const QString& portPath) const
{
    if (portPath.isEmpty())
        return std::nullopt;
    for (const HostController& controller : m_controllers) {
        for (const Hub& rootHub : controller.rootHubs) {
            Location location;
            if (findChain(rootHub, portPath, location.hubs)) {
                location.controller = controller.description;
                return location;
            }
        }
    }
    return std::nullopt;
}

QString UsbTopology::classText(NodeKind kind)
{
    switch (kind) {
    case NodeKind::HostController:
        return QStringLiteral("HostController");
    case NodeKind::RootHub:
        return QStringLiteral("RootHub");
    case NodeKind::ExternalHub:
        return QStringLiteral("ExternalHub");
    case NodeKind::Device:
        break;
    }
    return QStringLiteral("Device");
}

QString UsbTopology::controllerTypeText(ControllerType type)
{
    switch (type) {
    case ControllerType::Uhci:
        return QStringLiteral("UHCI");
    case ControllerType::Ohci:
        return QStringLiteral("OHCI");
    case ControllerType::Ehci:
        return QStringLiteral("EHCI");
    case ControllerType::Xhci:
        return QStringLiteral("xHCI");
    case ControllerType::Usb4:
        return QStringLiteral("USB4");
    case ControllerType::Unknown:
        break;
    }
    return QString();
}

UsbTopology::ControllerType UsbTopology::controllerType(quint32 classCode)
{
    constexpr quint32 usbControllerClass = 0x0c03;
    if (classCode >> 8 != usbControllerClass)
        return ControllerType::Unknown;
    switch (classCode & 0xff) {
    case 0x00:
        return ControllerType::Uhci;
    case 0x10:
        return ControllerType::Ohci;
    case 0x20:
        return ControllerType::Ehci;
    case 0x30:
        return ControllerType::Xhci;
    case 0x40:
        return ControllerType::Usb4;
    default:
        return ControllerType::Unknown;
    }
}

QString UsbTopology::pciIdentity(quint16 vendor, quint16 device, quint16 subsystemVendor,
                                 quint16 subsystemDevice, quint8 revision)
{
    const uint subsystem = uint(subsystemDevice) << 16 | subsystemVendor;
    return QStringLiteral("PCI\\VEN_%1&DEV_%2&SUBSYS_%3&REV_%4")
        .arg(hex(vendor), hex(device), hex(subsystem), hex(revision));
}

QString UsbTopology::instanceId(quint16 vendor, quint16 product, const QString& serial,
                                const QString& driverKey)
{
    return QStringLiteral("USB\\VID_%1&PID_%2\\%3")
        .arg(hex(vendor, 4).toUpper(), hex(product, 4).toUpper(),
             usableInInstanceId(serial) ? serial : driverKey);
}
