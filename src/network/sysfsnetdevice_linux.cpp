#include "network/sysfsnetdevice_linux.h"

#include <QDir>

namespace {

// A name with a slash would leave class/net.
bool isInterfaceName(const QString& name)
{
    return !name.isEmpty() && !name.contains(QLatin1Char('/')) && !name.startsWith(QLatin1Char('.'));
}

QString linkTargetName(const SysfsNode& node, const QString& link)
{
    const std::optional<SysfsNode> target = node.follow(link);
    return target ? target->name() : QString();
}

bool readIds(const SysfsNode& node, const QString& vendorAttribute, const QString& deviceAttribute,
             SysfsNetDevice::HardwareIdentity* identity)
{
    const std::optional<quint16> vendor = node.word(vendorAttribute);
    const std::optional<quint16> device = node.word(deviceAttribute);
    if (!vendor || !device)
        return false;
    identity->vendor = *vendor;
    identity->device = *device;
    return true;
}

} // namespace

SysfsNetDevice::SysfsNetDevice(const QString& sysfsRoot, const QString& interfaceName)
    : m_root(QDir(sysfsRoot).canonicalPath())
    , m_interface(isInterfaceName(interfaceName)
                      ? QDir(sysfsRoot).filePath(QStringLiteral("class/net/") + interfaceName)
                      : QString())
{
}

bool SysfsNetDevice::exists() const
{
    return !m_interface.path().isEmpty() && m_interface.exists();
}

bool SysfsNetDevice::hasDevice() const
{
    return exists() && m_interface.child(QStringLiteral("device")).exists();
}

QString SysfsNetDevice::deviceType() const
{
    const QString prefix = QStringLiteral("DEVTYPE=");
    const QString uevent = m_interface.text(QStringLiteral("uevent")).value_or(QString());
    for (const QString& line : uevent.split(QLatin1Char('\n'))) {
        if (line.startsWith(prefix))
            return line.mid(prefix.size()).trimmed();
    }
    return {};
}

int SysfsNetDevice::linkType() const
{
    return m_interface.decimal(QStringLiteral("type")).value_or(-1);
}

SysfsNetDevice::HardwareIdentity SysfsNetDevice::hardwareIdentity() const
{
    HardwareIdentity identity;
    if (!hasDevice())
        return identity;
    const QString devicePath = QDir(m_interface.child(QStringLiteral("device")).path()).canonicalPath();
    // Walk up: a USB network function sits on an interface below its USB
    // device, a virtio function below its PCI device.
    for (QDir dir(devicePath); dir.path().startsWith(m_root + QLatin1Char('/')); ) {
        const SysfsNode node(dir.path());
        if (readIds(node, QStringLiteral("idVendor"), QStringLiteral("idProduct"), &identity)) {
            identity.bus = Bus::Usb;
            return identity;
        }
        if (linkTargetName(node, QStringLiteral("subsystem")) == QLatin1String("pci")
            && readIds(node, QStringLiteral("vendor"), QStringLiteral("device"), &identity)) {
            identity.bus = Bus::Pci;
            return identity;
        }
        if (!dir.cdUp())
            break;
    }
    if (readIds(SysfsNode(devicePath), QStringLiteral("vendor"), QStringLiteral("device"), &identity))
        identity.bus = Bus::Other;
    return identity;
}

QString SysfsNetDevice::driverModule() const
{
    return linkTargetName(m_interface, QStringLiteral("device/driver/module"));
}
