#include "details/usbtopology.h"

#include "common/hardwareids.h"
#include "common/sysfsnode.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLoggingCategory>

#include <algorithm>
#include <map>

namespace {

Q_LOGGING_CATEGORY(lcUsbTopology, "cirro.details.usbtopology")

using Topology = UsbTopology;

// bNbrPorts is one byte; a larger count is a malformed attribute.
constexpr int maxPorts = 255;
constexpr uint hubDeviceClass = 0x09;

struct Place
{
    QString hub;
    int port = 0;
};

// "2-1.4" is on port 4 of hub "2-1", "2-1" on port 1 of root hub "usb2";
// interfaces ("2-1.4:1.0") and root hubs have no place.
std::optional<Place> placeOf(const QString& name)
{
    const int dash = name.indexOf(QLatin1Char('-'));
    if (dash <= 0 || name.contains(QLatin1Char(':')))
        return std::nullopt;
    const int dot = name.lastIndexOf(QLatin1Char('.'));
    const bool behindHub = dot > dash;
    bool ok = false;
    const int port = name.midRef(behindHub ? dot + 1 : dash + 1).toInt(&ok);
    if (!ok || port < 1)
        return std::nullopt;
    return Place{behindHub ? name.left(dot) : QLatin1String("usb") + name.leftRef(dash), port};
}

std::optional<int> rootHubBus(const QString& name)
{
    bool ok = false;
    const int bus = name.startsWith(QLatin1String("usb")) ? name.midRef(3).toInt(&ok) : 0;
    return ok ? std::optional<int>(bus) : std::nullopt;
}

struct PciFunction
{
    quint16 vendor = 0;
    quint16 device = 0;
    quint16 subsystemVendor = 0;
    quint16 subsystemDevice = 0;
    quint8 revision = 0;
    std::optional<uint> classCode;
};

std::optional<PciFunction> readPciFunction(const SysfsNode& node)
{
    const auto vendor = node.word(QStringLiteral("vendor"));
    const auto device = node.word(QStringLiteral("device"));
    const auto subsystemVendor = node.word(QStringLiteral("subsystem_vendor"));
    const auto subsystemDevice = node.word(QStringLiteral("subsystem_device"));
    const auto revision = node.word(QStringLiteral("revision"));
    if (!vendor || !device || !subsystemVendor || !subsystemDevice || !revision || *revision > 0xff) {
        qCDebug(lcUsbTopology) << "no PCI identity in" << node.path();
        return std::nullopt;
    }
    return PciFunction{*vendor, *device, *subsystemVendor, *subsystemDevice, quint8(*revision),
                       node.hex(QStringLiteral("class"))};
}

QString rootHubDescription(const SysfsNode& node)
{
    // " 3.10" is USB 3.1.
    QString version = node.text(QStringLiteral("version")).value_or(QString());
    if (version.size() == 4 && version.endsWith(QLatin1Char('0')))
        version.chop(1);
    return version.isEmpty()
        ? QCoreApplication::translate("UsbTopology", "USB Root Hub")
        : QCoreApplication::translate("UsbTopology", "USB Root Hub (USB %1)").arg(version);
}

// The driver that serves a device is bound to its first claimed interface;
// only the generic "usb" driver is bound to the device itself.
SysfsNode functionNode(const SysfsNode& device)
{
    const QStringList interfaces = QDir(device.path()).entryList(
        {device.name() + QLatin1String(":*")}, QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    for (const QString& name : interfaces) {
        const SysfsNode interface = device.child(name);
        if (interface.follow(QStringLiteral("driver")))
            return interface;
    }
    return device;
}

class SysfsWalk final
{
public:
    SysfsWalk(const QString& sysfsRoot, const KernelModules& modules);

    std::vector<Topology::HostController> controllers(const QString& pciIdsPath) const;

private:
    using RootHubs = std::map<int, SysfsNode>; // by bus number

    void index(const QDir& usbDevices);
    Topology::HostController controller(const SysfsNode& node, const RootHubs& rootHubs,
                                        const std::optional<PciFunction>& pci,
                                        const HardwareIds& names) const;
    Topology::Hub hub(const SysfsNode& node, Topology::NodeKind kind, QString description,
                      int ports) const;
    std::unique_ptr<const Topology::Device> device(const SysfsNode& node) const;
    int portCount(const SysfsNode& node) const;
    Topology::DriverInfo driverInfo(const SysfsNode& node) const;

    SysfsNode m_root;
    const KernelModules& m_modules;
    std::map<QString, std::map<int, SysfsNode>> m_children; // hub name -> port -> device
    std::map<QString, RootHubs> m_rootHubs; // controller's directory -> its root hubs
};

SysfsWalk::SysfsWalk(const QString& sysfsRoot, const KernelModules& modules)
    : m_root(sysfsRoot)
    , m_modules(modules)
{
    const QDir usbDevices(sysfsRoot + QLatin1String("/bus/usb/devices"));
    if (usbDevices.exists())
        index(usbDevices);
    else
        qCDebug(lcUsbTopology) << "no USB devices below" << usbDevices.path();
}

void SysfsWalk::index(const QDir& usbDevices)
{
    // Dangling links are not listed as directories, so they drop out here.
    for (const QString& name : usbDevices.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        // The device's own directory, so that its relative links resolve.
        const QFileInfo entry(usbDevices.filePath(name));
        const SysfsNode node(entry.isSymLink() ? entry.symLinkTarget() : entry.filePath());
        if (const std::optional<int> bus = rootHubBus(name)) {
            m_rootHubs[QFileInfo(node.path()).path()].emplace(*bus, node);
        } else if (const std::optional<Place> place = placeOf(name)) {
            m_children[place->hub].emplace(place->port, node);
        }
    }
}

std::vector<Topology::HostController> SysfsWalk::controllers(const QString& pciIdsPath) const
{
    const HardwareIds names({pciIdsPath});
    std::vector<Topology::HostController> result;
    for (const auto& [path, rootHubs] : m_rootHubs) {
        const SysfsNode pciNode =
            m_root.child(QLatin1String("bus/pci/devices/") + QFileInfo(path).fileName());
        const std::optional<PciFunction> pci =
            pciNode.exists() ? readPciFunction(pciNode) : std::nullopt;
        result.push_back(controller(SysfsNode(path), rootHubs, pci, names));
    }
    return result;
}

Topology::HostController SysfsWalk::controller(const SysfsNode& node, const RootHubs& rootHubs,
                                               const std::optional<PciFunction>& pci,
                                               const HardwareIds& names) const
{
    Topology::HostController controller;
    controller.name = node.name();
    controller.driver = driverInfo(node);
    for (const auto& [bus, rootHub] : rootHubs)
        controller.rootHubs.push_back(hub(rootHub, Topology::NodeKind::RootHub,
                                          rootHubDescription(rootHub), portCount(rootHub)));
    if (!pci) {
        // Not a PCI function (a virtual or on-chip controller): the kernel
        // names it in its root hub's product string.
        const SysfsNode& rootHub = rootHubs.cbegin()->second;
        controller.description = rootHub.text(QStringLiteral("product")).value_or(controller.name);
        return controller;
    }
    controller.description = names.describe(pci->vendor, pci->device);
    controller.pciIdentity = Topology::pciIdentity(pci->vendor, pci->device, pci->subsystemVendor,
                                                   pci->subsystemDevice, pci->revision);
    if (pci->classCode)
        controller.type = Topology::controllerType(*pci->classCode);
    return controller;
}

Topology::Hub SysfsWalk::hub(const SysfsNode& node, Topology::NodeKind kind,
                             QString description, int ports) const
{
    Topology::Hub hub{kind, node.name(), std::move(description), {}};
    const auto children = m_children.find(hub.name);
    hub.ports.resize(ports);
    for (int number = 1; number <= ports; ++number) {
        Topology::Port& port = hub.ports[number - 1];
        port.number = number;
        if (children == m_children.end())
            continue;
        const auto child = children->second.find(number);
        if (child != children->second.end())
            port.device = device(child->second);
    }
    return hub;
}

// A hub's port count as it says, or up to the highest port that has a device.
int SysfsWalk::portCount(const SysfsNode& node) const
{
    int count = node.decimal(QStringLiteral("maxchild")).value_or(0);
    if (count < 0 || count > maxPorts) {
        qCDebug(lcUsbTopology) << "malformed port count in" << node.path();
        count = 0;
    }
    const auto children = m_children.find(node.name());
    if (children != m_children.end() && !children->second.empty())
        count = std::max(count, std::min(children->second.crbegin()->first, maxPorts));
    return count;
}

// The version is the one sysfs shows for the driver's module, the date that
// of the module's file; either stays empty where the system keeps none.
Topology::DriverInfo SysfsWalk::driverInfo(const SysfsNode& node) const
{
    const std::optional<SysfsNode> driver = node.follow(QStringLiteral("driver"));
    if (!driver)
        return {};
    const std::optional<SysfsNode> module = driver->follow(QStringLiteral("module"));
    const SysfsNode moduleNode =
        module ? *module : m_root.child(QStringLiteral("module/") + driver->name());
    return {driver->name(), moduleNode.text(QStringLiteral("version")).value_or(QString()),
            m_modules.buildDate(moduleNode.name())};
}

std::unique_ptr<const Topology::Device> SysfsWalk::device(const SysfsNode& node) const
{
    auto device = std::make_unique<Topology::Device>();
    device->driverKey = node.name();
    device->description = node.text(QStringLiteral("product")).value_or(QString());
    if (device->description.isEmpty())
        device->description = QCoreApplication::translate("UsbTopology", "unkown");
    device->driver = driverInfo(functionNode(node));
    device->speedMbits = node.number(QStringLiteral("speed")).value_or(0);
    const auto vendor = node.word(QStringLiteral("idVendor"));
    const auto product = node.word(QStringLiteral("idProduct"));
    if (vendor && product)
        device->instanceId = Topology::instanceId(
            *vendor, *product, node.text(QStringLiteral("serial")).value_or(QString()),
            device->driverKey);
    else
        qCDebug(lcUsbTopology) << "no vendor and product id in" << node.path();
    const int ports = portCount(node);
    if (ports > 0 || node.hex(QStringLiteral("bDeviceClass")) == hubDeviceClass)
        device->hub = std::make_unique<const Topology::Hub>(
            hub(node, Topology::NodeKind::ExternalHub, device->description, ports));
    return device;
}

} // namespace

std::shared_ptr<const UsbTopology> UsbTopology::build(const QString& sysfsRoot,
                                                      const QString& pciIds,
                                                      const KernelModules& modules)
{
    return std::make_shared<const UsbTopology>(SysfsWalk(sysfsRoot, modules).controllers(pciIds));
}
