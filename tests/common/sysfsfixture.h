#pragma once

#include <QByteArray>
#include <QString>

// Writes a sysfs-shaped USB tree below a root directory: device directories
// under devices/, the links of bus/usb/devices and bus/pci/devices into them,
// and driver links to module directories, as the kernel lays them out.
class SysfsFixture final
{
public:
    struct PciFunction
    {
        quint16 vendor = 0x8086;
        quint16 device = 0x9d2f;
        quint16 subsystemVendor = 0x103c;
        quint16 subsystemDevice = 0x8079;
        quint8 revision = 0x21;
        quint32 classCode = 0x0c0330;
        QString driver = QStringLiteral("xhci_hcd");
        QString module = QStringLiteral("xhci_pci");
    };

    struct UsbDevice
    {
        quint16 vendor = 0x1ab2;
        quint16 product = 0x0001;
        QString productName = QStringLiteral("Camera");
        QString serial;
        QString speed = QStringLiteral("480");
        int ports = 0; // a hub when above 0
        QString driver; // bound to the first interface
        QString module;
    };

    explicit SysfsFixture(QString root);

    // False once any file, directory or link could not be made.
    bool ok() const { return m_ok; }
    const QString& root() const { return m_root; }

    // Each returns the new device's directory.
    QString addPciController(const QString& address, const PciFunction& pci);
    // A controller that is no PCI function, such as a virtual one.
    QString addPlatformController(const QString& name, const QString& driver);
    QString addRootHub(const QString& controllerDir, int bus, int ports,
                       const QString& version = QStringLiteral(" 2.00"));
    // The device's name follows from the hub's: port 4 of "2-1" is "2-1.4".
    QString addDevice(const QString& hubDir, int port, const UsbDevice& device);

    void writeAttribute(const QString& dir, const QString& name, const QByteArray& value);
    // Leaves a directory where the attribute file should be: no one can read it.
    void breakAttribute(const QString& dir, const QString& name);
    void setModuleVersion(const QString& module, const QString& version);

    // controllers x hubs x ports: every xHCI controller has one root hub with
    // an external hub on each of its ports and a camera on every hub port.
    void addGrid(int controllers, int hubsPerController, int portsPerHub);

private:
    void makeDirectory(const QString& path);
    void link(const QString& target, const QString& linkPath);
    void bindDriver(const QString& dir, const QString& bus, const QString& driver,
                    const QString& module);
    void addInterface(const QString& deviceDir, const QString& driver, const QString& module);

    QString m_root;
    bool m_ok = true;
};
