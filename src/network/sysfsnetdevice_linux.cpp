#include "network/sysfsnetdevice_linux.h"

#include <QFile>
#include <QFileInfo>

namespace {

QString linkTargetName(const QString& path)
{
    const QString target = QFileInfo(path).symLinkTarget();
    return target.isEmpty() ? QString() : QFileInfo(target).fileName();
}

// Attributes are short; a broken or unreadable one reads as empty.
QString readAttribute(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(file.read(4096)).trimmed();
}

bool readHexId(const QString& path, quint16* id)
{
    bool ok = false;
    const uint value = readAttribute(path).toUInt(&ok, 16);
    if (!ok || value > 0xFFFF)
        return false;
    *id = quint16(value);
    return true;
}

bool readIds(const QDir& dir, const QString& vendorFile, const QString& deviceFile,
             SysfsNetDevice::HardwareIdentity* identity)
{
    return readHexId(dir.filePath(vendorFile), &identity->vendor)
        && readHexId(dir.filePath(deviceFile), &identity->device);
}

} // namespace

SysfsNetDevice::SysfsNetDevice(const QString& sysfsRoot, const QString& interfaceName)
    : m_root(QDir(sysfsRoot).canonicalPath())
    , m_interfaceDir(QDir(sysfsRoot).filePath(QStringLiteral("class/net/") + interfaceName))
{
    // A name with a slash would leave class/net.
    if (interfaceName.isEmpty() || interfaceName.contains(QLatin1Char('/'))
        || interfaceName.startsWith(QLatin1Char('.')))
        m_interfaceDir.setPath(QString());
}

bool SysfsNetDevice::exists() const
{
    return !m_interfaceDir.path().isEmpty() && m_interfaceDir.exists();
}

bool SysfsNetDevice::hasDevice() const
{
    return exists() && QFileInfo::exists(m_interfaceDir.filePath(QStringLiteral("device")));
}

QString SysfsNetDevice::deviceType() const
{
    const QString prefix = QStringLiteral("DEVTYPE=");
    const QString uevent = readAttribute(m_interfaceDir.filePath(QStringLiteral("uevent")));
    for (const QString& line : uevent.split(QLatin1Char('\n'))) {
        if (line.startsWith(prefix))
            return line.mid(prefix.size()).trimmed();
    }
    return {};
}

int SysfsNetDevice::linkType() const
{
    bool ok = false;
    const int type = readAttribute(m_interfaceDir.filePath(QStringLiteral("type"))).toInt(&ok);
    return ok ? type : -1;
}

SysfsNetDevice::HardwareIdentity SysfsNetDevice::hardwareIdentity() const
{
    HardwareIdentity identity;
    if (!hasDevice())
        return identity;
    const QString devicePath = QDir(m_interfaceDir.filePath(QStringLiteral("device"))).canonicalPath();
    // Walk up: a USB network function sits on an interface below its USB
    // device, a virtio function below its PCI device.
    for (QDir dir(devicePath); dir.path().startsWith(m_root + QLatin1Char('/')); ) {
        if (readIds(dir, QStringLiteral("idVendor"), QStringLiteral("idProduct"), &identity)) {
            identity.bus = Bus::Usb;
            return identity;
        }
        if (linkTargetName(dir.filePath(QStringLiteral("subsystem"))) == QLatin1String("pci")
            && readIds(dir, QStringLiteral("vendor"), QStringLiteral("device"), &identity)) {
            identity.bus = Bus::Pci;
            return identity;
        }
        if (!dir.cdUp())
            break;
    }
    if (readIds(QDir(devicePath), QStringLiteral("vendor"), QStringLiteral("device"), &identity))
        identity.bus = Bus::Other;
    return identity;
}

QString SysfsNetDevice::driverModule() const
{
    return linkTargetName(m_interfaceDir.filePath(QStringLiteral("device/driver/module")));
}
