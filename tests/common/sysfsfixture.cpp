#include "sysfsfixture.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

QByteArray hexWord(uint value)
{
    return QByteArray::number(value, 16).rightJustified(4, '0');
}

QString childName(const QString& hubDir, int port)
{
    const QString hub = QFileInfo(hubDir).fileName();
    const QString suffix = QString::number(port);
    return hub.startsWith(QLatin1String("usb")) ? hub.mid(3) + QLatin1Char('-') + suffix
                                                : hub + QLatin1Char('.') + suffix;
}

} // namespace

SysfsFixture::SysfsFixture(QString root)
    : m_root(std::move(root))
{
    makeDirectory(m_root + QLatin1String("/bus/usb/devices"));
    makeDirectory(m_root + QLatin1String("/bus/pci/devices"));
}

QString SysfsFixture::addPciController(const QString& address, const PciFunction& pci)
{
    const QString dir = m_root + QLatin1String("/devices/pci0000:00/") + address;
    makeDirectory(dir);
    writeAttribute(dir, QStringLiteral("vendor"), "0x" + hexWord(pci.vendor));
    writeAttribute(dir, QStringLiteral("device"), "0x" + hexWord(pci.device));
    writeAttribute(dir, QStringLiteral("subsystem_vendor"), "0x" + hexWord(pci.subsystemVendor));
    writeAttribute(dir, QStringLiteral("subsystem_device"), "0x" + hexWord(pci.subsystemDevice));
    writeAttribute(dir, QStringLiteral("revision"),
                   "0x" + QByteArray::number(pci.revision, 16).rightJustified(2, '0'));
    writeAttribute(dir, QStringLiteral("class"),
                   "0x" + QByteArray::number(pci.classCode, 16).rightJustified(6, '0'));
    link(dir, m_root + QLatin1String("/bus/pci/devices/") + address);
    bindDriver(dir, QStringLiteral("pci"), pci.driver, pci.module);
    return dir;
}

QString SysfsFixture::addPlatformController(const QString& name, const QString& driver)
{
    const QString dir = m_root + QLatin1String("/devices/platform/") + name;
    makeDirectory(dir);
    bindDriver(dir, QStringLiteral("platform"), driver, driver);
    return dir;
}

QString SysfsFixture::addRootHub(const QString& controllerDir, int bus, int ports,
                                 const QString& version)
{
    const QString name = QStringLiteral("usb%1").arg(bus);
    const QString dir = controllerDir + QLatin1Char('/') + name;
    makeDirectory(dir);
    const bool superSpeed = version.trimmed().startsWith(QLatin1Char('3'));
    writeAttribute(dir, QStringLiteral("idVendor"), "1d6b");
    writeAttribute(dir, QStringLiteral("idProduct"), superSpeed ? "0003" : "0002");
    writeAttribute(dir, QStringLiteral("product"), "xHCI Host Controller");
    writeAttribute(dir, QStringLiteral("version"), version.toUtf8());
    writeAttribute(dir, QStringLiteral("speed"), superSpeed ? "5000" : "480");
    writeAttribute(dir, QStringLiteral("maxchild"), QByteArray::number(ports));
    writeAttribute(dir, QStringLiteral("bDeviceClass"), "09");
    link(dir, m_root + QLatin1String("/bus/usb/devices/") + name);
    bindDriver(dir, QStringLiteral("usb"), QStringLiteral("usb"), QString());
    addInterface(dir, QStringLiteral("hub"), QString());
    return dir;
}

QString SysfsFixture::addDevice(const QString& hubDir, int port, const UsbDevice& device)
{
    const QString name = childName(hubDir, port);
    const QString dir = hubDir + QLatin1Char('/') + name;
    makeDirectory(dir);
    writeAttribute(dir, QStringLiteral("idVendor"), hexWord(device.vendor));
    writeAttribute(dir, QStringLiteral("idProduct"), hexWord(device.product));
    if (!device.productName.isEmpty())
        writeAttribute(dir, QStringLiteral("product"), device.productName.toUtf8());
    if (!device.serial.isEmpty())
        writeAttribute(dir, QStringLiteral("serial"), device.serial.toUtf8());
    writeAttribute(dir, QStringLiteral("speed"), device.speed.toUtf8());
    writeAttribute(dir, QStringLiteral("maxchild"), QByteArray::number(device.ports));
    writeAttribute(dir, QStringLiteral("bDeviceClass"), device.ports > 0 ? "09" : "ef");
    link(dir, m_root + QLatin1String("/bus/usb/devices/") + name);
    bindDriver(dir, QStringLiteral("usb"), QStringLiteral("usb"), QString());
    addInterface(dir, device.ports > 0 ? QStringLiteral("hub") : device.driver, device.module);
    return dir;
}

void SysfsFixture::writeAttribute(const QString& dir, const QString& name, const QByteArray& value)
{
    QFile file(dir + QLatin1Char('/') + name);
    m_ok = m_ok && file.open(QIODevice::WriteOnly | QIODevice::Truncate)
        && file.write(value + '\n') == value.size() + 1;
}

void SysfsFixture::breakAttribute(const QString& dir, const QString& name)
{
    const QString path = dir + QLatin1Char('/') + name;
    m_ok = m_ok && (!QFileInfo::exists(path) || QFile::remove(path));
    makeDirectory(path);
}

void SysfsFixture::setModuleVersion(const QString& module, const QString& version)
{
    const QString dir = m_root + QLatin1String("/module/") + module;
    makeDirectory(dir);
    writeAttribute(dir, QStringLiteral("version"), version.toUtf8());
}

void SysfsFixture::addGrid(int controllers, int hubsPerController, int portsPerHub)
{
    const QString cameraModule = QStringLiteral("uvcvideo");
    setModuleVersion(cameraModule, QStringLiteral("1.1.1"));
    for (int c = 1; c <= controllers; ++c) {
        const QString controller =
            addPciController(QStringLiteral("0000:%1:00.0").arg(c, 2, 16, QLatin1Char('0')), {});
        const QString rootHub = addRootHub(controller, c, hubsPerController);
        for (int h = 1; h <= hubsPerController; ++h) {
            UsbDevice hub;
            hub.productName = QStringLiteral("USB2.0 Hub");
            hub.ports = portsPerHub;
            const QString hubDir = addDevice(rootHub, h, hub);
            for (int p = 1; p <= portsPerHub; ++p) {
                UsbDevice camera;
                camera.serial = QStringLiteral("%1%2%3").arg(c).arg(h).arg(p, 2, 10, QLatin1Char('0'));
                camera.driver = cameraModule;
                camera.module = cameraModule;
                addDevice(hubDir, p, camera);
            }
        }
    }
}

void SysfsFixture::makeDirectory(const QString& path)
{
    m_ok = m_ok && QDir().mkpath(path);
}

void SysfsFixture::link(const QString& target, const QString& linkPath)
{
    const QString linkDir = QFileInfo(linkPath).path();
    makeDirectory(linkDir);
    m_ok = m_ok && QFile::link(QDir(linkDir).relativeFilePath(target), linkPath);
}

void SysfsFixture::bindDriver(const QString& dir, const QString& bus, const QString& driver,
                              const QString& module)
{
    if (driver.isEmpty())
        return;
    const QString driverDir = m_root + QStringLiteral("/bus/%1/drivers/%2").arg(bus, driver);
    makeDirectory(driverDir);
    if (!module.isEmpty() && !QFileInfo::exists(driverDir + QLatin1String("/module"))) {
        const QString moduleDir = m_root + QLatin1String("/module/") + module;
        makeDirectory(moduleDir);
        link(moduleDir, driverDir + QLatin1String("/module"));
    }
    link(driverDir, dir + QLatin1String("/driver"));
}

void SysfsFixture::addInterface(const QString& deviceDir, const QString& driver,
                                const QString& module)
{
    const QString device = QFileInfo(deviceDir).fileName();
    // Root hubs name their interface after the bus: "2-0:1.0".
    const QString prefix = device.startsWith(QLatin1String("usb")) ? device.mid(3) + QLatin1String("-0")
                                                                   : device;
    const QString name = prefix + QLatin1String(":1.0");
    const QString dir = deviceDir + QLatin1Char('/') + name;
    makeDirectory(dir);
    link(dir, m_root + QLatin1String("/bus/usb/devices/") + name);
    bindDriver(dir, QStringLiteral("usb"), driver, module);
}
