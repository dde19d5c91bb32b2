#include "details/usbtopology.h"

#include "kernelmodulesfixture.h"
#include "sysfsfixture.h"

#include <QFile>
#include <QLoggingCategory>
#include <QTemporaryDir>
#include <QtConcurrent>
#include <QtTest>

using Topology = UsbTopology;

namespace {

const QByteArray pciIds = "8086  Intel Corporation\n"
                          "\t9d2f  Sunrise Point-LP USB 3.0 xHCI Controller\n";
const QString intelXhci = "Intel Corporation Sunrise Point-LP USB 3.0 xHCI Controller";

// Calls visit(hub, port) for every port of every hub, depth first.
template<typename Visit>
void forEachPort(const Topology::Hub& hub, const Visit& visit)
{
    for (const Topology::Port& port : hub.ports) {
        visit(hub, port);
        if (port.device && port.device->hub)
            forEachPort(*port.device->hub, visit);
    }
}

template<typename Visit>
void forEachPort(const Topology& topology, const Visit& visit)
{
    for (const Topology::HostController& controller : topology.controllers())
        for (const Topology::Hub& rootHub : controller.rootHubs)
            forEachPort(rootHub, visit);
}

const Topology::Device* findDevice(const Topology& topology, const QString& key)
{
    const Topology::Device* found = nullptr;
    forEachPort(topology, [&](const Topology::Hub&, const Topology::Port& port) {
        if (port.device && port.device->driverKey == key)
            found = port.device.get();
    });
    return found;
}

// What every tree must satisfy: ports numbered by position, every device
// located on the hub port that holds it.
QStringList treeProblems(const Topology& topology, int& devices)
{
    QStringList problems;
    for (const Topology::HostController& controller : topology.controllers())
        if (controller.rootHubs.empty())
            problems << controller.name + " has no root hub";
    forEachPort(topology, [&](const Topology::Hub& hub, const Topology::Port& port) {
        if (port.number < 1 || std::size_t(port.number) > hub.ports.size()
            || &hub.ports[port.number - 1] != &port)
            problems << QString("%1 port %2 out of place").arg(hub.name).arg(port.number);
        if (!port.device)
            return;
        ++devices;
        const auto location = topology.locate(port.device->driverKey);
        if (!location || location->hubs.front().hubName != hub.name
            || location->hubs.front().port != port.number)
            problems << port.device->driverKey + " not located on " + hub.name;
    });
    return problems;
}

} // namespace

class TestUsbTopology : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void controllers_data();
    void controllers();
    void pciFunction_data();
    void pciFunction();
    void devices_data();
    void devices();
    void locate_data();
    void locate();
    void consistentTree_data();
    void consistentTree();

private:
    void buildMachine(SysfsFixture& sysfs) const;
    static void buildModules(KernelModulesFixture& modules);

    QTemporaryDir m_dir;
    QString m_pciIds;
    std::shared_ptr<const Topology> m_machine;
};

void TestUsbTopology::initTestCase()
{
    // The fixtures hold skipped entries on purpose.
    QLoggingCategory::setFilterRules("cirro.details.usbtopology.debug=false");
    QVERIFY(m_dir.isValid());
    m_pciIds = m_dir.filePath("pci.ids");
    QFile ids(m_pciIds);
    QVERIFY(ids.open(QIODevice::WriteOnly) && ids.write(pciIds) == pciIds.size());
    ids.close();
    SysfsFixture sysfs(m_dir.filePath("machine"));
    buildMachine(sysfs);
    QVERIFY(sysfs.ok());
    KernelModulesFixture modules(m_dir.filePath("modules"));
    buildModules(modules);
    QVERIFY(modules.ok());
    m_machine = Topology::build(sysfs.root(), m_pciIds, KernelModules(modules.directory()));
    SysfsFixture grid(m_dir.filePath("grid"));
    grid.addGrid(3, 2, 5);
    QVERIFY(grid.ok());
}

// An xHCI controller with a camera two hubs deep on its USB 2 root hub and
// one behind a USB 3 hub, an EHCI controller with a device whose attributes
// cannot be read, a virtual controller with nothing attached, and links to
// devices that are gone.
void TestUsbTopology::buildMachine(SysfsFixture& sysfs) const
{
    const QString xhci = sysfs.addPciController("0000:00:14.0", {});
    const QString usb1 = sysfs.addRootHub(xhci, 1, 12);
    const QString usb2 = sysfs.addRootHub(xhci, 2, 6, " 3.00");
    const SysfsFixture::UsbDevice hub{0x05e3, 0x0608, "USB2.0 Hub", {}, "480", 4, {}, {}};
    const QString hub1 = sysfs.addDevice(usb1, 3, hub);
    const QString hub2 = sysfs.addDevice(hub1, 2, hub);
    sysfs.writeAttribute(hub2, "maxchild", "many");
    SysfsFixture::UsbDevice camera{0x1ab2, 0x0001, "Camera", "4102345", "480", 0, "uvcvideo", "uvcvideo"};
    sysfs.addDevice(hub2, 4, camera);
    sysfs.setModuleVersion("uvcvideo", "1.1.1");
    sysfs.addDevice(hub1, 4, {0x0bda, 0x0129, {}, {}, "12", 0, {}, {}});
    const QString hub3 = sysfs.addDevice(usb2, 1, {0x05e3, 0x0626, "USB3.0 Hub", {}, "5000", 4, {}, {}});
    camera.serial = "4102777";
    camera.speed = "5000";
    sysfs.addDevice(hub3, 4, camera);
    camera.serial = "A,B";
    sysfs.addDevice(hub3, 2, camera);

    const QString ehci = sysfs.addPciController(
        "0000:00:1d.0", {0x8086, 0x9d26, 0x17aa, 0x2233, 0, 0x0c0320, "ehci-pci", "ehci_pci"});
    sysfs.setModuleVersion("ehci_pci", "1.0");
    const QString usb3 = sysfs.addRootHub(ehci, 3, 3);
    const QString reader = sysfs.addDevice(usb3, 1, {0x0bda, 0x0158, "Card Reader", {}, "480", 0, {}, {}});
    sysfs.breakAttribute(reader, "idVendor");
    sysfs.writeAttribute(reader, "speed", "fast");
    sysfs.addDevice(usb3, 2, {0x046d, 0xc31c, "Keyboard", {}, "1.5", 0, "usbhid", {}});

    const QString usb4 = sysfs.addRootHub(sysfs.addPlatformController("vhci_hcd.0", "vhci_hcd"), 4, 8);
    sysfs.writeAttribute(usb4, "product", "USB/IP Virtual Host Controller");
    for (const QString gone : {"usb7", "3-3"})
        QVERIFY(QFile::link("../../../devices/gone/" + gone, sysfs.root() + "/bus/usb/devices/" + gone));
}

// Dated by their files: the xHCI controller's module and its helper module,
// the virtual controller's, the camera's and the keyboard's driver; the
// EHCI controller's module is missing, the generic USB and hub drivers are
// built in.
void TestUsbTopology::buildModules(KernelModulesFixture& modules)
{
    const auto utc = [](int year, int month, int day) {
        return QDateTime(QDate(year, month, day), QTime(10, 0), Qt::UTC);
    };
    modules.addModule("kernel/drivers/usb/host/xhci-hcd.ko.zst", utc(2023, 1, 2));
    modules.addModule("kernel/drivers/usb/host/xhci-pci.ko.zst", utc(2024, 3, 7),
                      "kernel/drivers/usb/host/xhci-hcd.ko.zst");
    modules.addModule("kernel/drivers/usb/usbip/vhci-hcd.ko.zst", utc(2023, 12, 25));
    modules.addModule("kernel/drivers/media/usb/uvc/uvcvideo.ko.zst", utc(2022, 11, 30));
    modules.addModule("kernel/drivers/hid/usbhid/usbhid.ko.zst", utc(2021, 6, 15));
}

void TestUsbTopology::controllers_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("description");
    QTest::addColumn<QString>("pciIdentity");
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("driver");
    QTest::addColumn<QString>("date");
    QTest::addColumn<QStringList>("rootHubs");

    QTest::newRow("xHCI with two root hubs, dated by the driver's module")
        << 0 << "0000:00:14.0" << intelXhci << "PCI\\VEN_8086&DEV_9d2f&SUBSYS_8079103c&REV_21"
        << "xHCI" << "xhci_hcd " << "3-7-2024"
        << QStringList{"usb1 RootHub 12 USB Root Hub (USB 2.0)", "usb2 RootHub 6 USB Root Hub (USB 3.0)"};
    QTest::newRow("EHCI, revision 0, module version, no module file")
        << 1 << "0000:00:1d.0" << "Intel Corporation Device 9d26"
        << "PCI\\VEN_8086&DEV_9d26&SUBSYS_223317aa&REV_0" << "EHCI" << "ehci-pci 1.0" << ""
        << QStringList{"usb3 RootHub 3 USB Root Hub (USB 2.0)"};
    QTest::newRow("virtual, not on PCI") << 2 << "vhci_hcd.0" << "USB/IP Virtual Host Controller" << ""
                                         << "" << "vhci_hcd " << "12-25-2023"
                                         << QStringList{"usb4 RootHub 8 USB Root Hub (USB 2.0)"};
}

void TestUsbTopology::controllers()
{
    QFETCH(int, index);
    QCOMPARE(m_machine->controllers().size(), std::size_t(3));
    const Topology::HostController& controller = m_machine->controllers().at(index);
    QTEST(controller.name, "name");
    QTEST(controller.description, "description");
    QTEST(controller.pciIdentity, "pciIdentity");
    QTEST(Topology::controllerTypeText(controller.type), "type");
    QTEST(controller.driver.name + ' ' + controller.driver.version, "driver");
    QTEST(controller.driver.date, "date");
    QStringList rootHubs;
    for (const Topology::Hub& hub : controller.rootHubs)
        rootHubs << QString("%1 %2 %3 %4")
                        .arg(hub.name, Topology::classText(hub.kind))
                        .arg(hub.ports.size())
                        .arg(hub.description);
    QTEST(rootHubs, "rootHubs");
}

void TestUsbTopology::pciFunction_data()
{
    QTest::addColumn<quint32>("classCode");
    QTest::addColumn<quint16>("vendor");
    QTest::addColumn<quint16>("device");
    QTest::addColumn<QString>("unreadable"); // a controller attribute or the pci.ids file
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("description");

    const quint16 intel = 0x8086;
    const quint16 xhci = 0x9d2f;
    QTest::newRow("UHCI") << 0x0c0300u << intel << xhci << "" << "UHCI" << intelXhci;
    QTest::newRow("OHCI") << 0x0c0310u << intel << xhci << "" << "OHCI" << intelXhci;
    QTest::newRow("USB4") << 0x0c0340u << intel << xhci << "" << "USB4" << intelXhci;
    QTest::newRow("USB, unspecified interface") << 0x0c0380u << intel << xhci << "" << "" << intelXhci;
    QTest::newRow("other serial bus, interface 30") << 0x0c0530u << intel << xhci << "" << "" << intelXhci;
    QTest::newRow("unreadable class") << 0x0c0330u << intel << xhci << "class" << "" << intelXhci;
    QTest::newRow("no pci.ids") << 0x0c0330u << intel << xhci << "pci.ids" << "xHCI" << "8086:9d2f";
    // Without its whole identity the function is not taken for PCI.
    QTest::newRow("unreadable subsystem") << 0x0c0330u << intel << xhci << "subsystem_device" << ""
                                          << "xHCI Host Controller";
}

void TestUsbTopology::pciFunction()
{
    QFETCH(quint32, classCode);
    QFETCH(quint16, vendor);
    QFETCH(quint16, device);
    QFETCH(QString, unreadable);
    const bool noIds = unreadable == "pci.ids";
    QTemporaryDir dir;
    SysfsFixture sysfs(dir.filePath("sys"));
    SysfsFixture::PciFunction pci;
    pci.classCode = classCode;
    pci.vendor = vendor;
    pci.device = device;
    const QString controller = sysfs.addPciController("0000:03:00.0", pci);
    sysfs.addRootHub(controller, 1, 2);
    if (!unreadable.isEmpty() && !noIds)
        sysfs.breakAttribute(controller, unreadable);
    QVERIFY(sysfs.ok());

    const auto topology =
        Topology::build(sysfs.root(), noIds ? dir.filePath("none") : m_pciIds);
    QCOMPARE(topology->controllers().size(), std::size_t(1));
    const Topology::HostController& found = topology->controllers().front();
    QTEST(Topology::controllerTypeText(found.type), "type");
    QTEST(found.description, "description");
    QCOMPARE(found.pciIdentity.isEmpty(), unreadable == "subsystem_device");
}

void TestUsbTopology::devices_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("instanceId");
    QTest::addColumn<QString>("description");
    QTest::addColumn<double>("speed");
    QTest::addColumn<QString>("driver");
    QTest::addColumn<QString>("date");
    QTest::addColumn<QString>("hub"); // kind and number of ports

    QTest::newRow("camera two hubs deep") << "1-3.2.4" << "USB\\VID_1AB2&PID_0001\\4102345" << "Camera"
                                          << 480.0 << "uvcvideo 1.1.1" << "11-30-2022" << "";
    QTest::newRow("camera behind USB 3 hub") << "2-1.4" << "USB\\VID_1AB2&PID_0001\\4102777" << "Camera"
                                             << 5000.0 << "uvcvideo 1.1.1" << "11-30-2022" << "";
    QTest::newRow("no product string, no serial")
        << "1-3.4" << "USB\\VID_0BDA&PID_0129\\1-3.4" << "unkown" << 12.0 << "usb " << "" << "";
    QTest::newRow("serial unusable in an instance id")
        << "2-1.2" << "USB\\VID_1AB2&PID_0001\\2-1.2" << "Camera" << 5000.0 << "uvcvideo 1.1.1"
        << "11-30-2022" << "";
    QTest::newRow("hub") << "1-3" << "USB\\VID_05E3&PID_0608\\1-3" << "USB2.0 Hub" << 480.0 << "hub " << ""
                         << "ExternalHub 4";
    QTest::newRow("hub with malformed port count, ports from devices")
        << "1-3.2" << "USB\\VID_05E3&PID_0608\\1-3.2" << "USB2.0 Hub" << 480.0 << "hub " << ""
        << "ExternalHub 4";
    QTest::newRow("low speed, no module link") << "3-2" << "USB\\VID_046D&PID_C31C\\3-2" << "Keyboard" << 1.5
                                               << "usbhid " << "6-15-2021" << "";
    QTest::newRow("unreadable vendor id and speed")
        << "3-1" << "" << "Card Reader" << 0.0 << "usb " << "" << "";
}

void TestUsbTopology::devices()
{
    QFETCH(QString, key);
    const Topology::Device* device = findDevice(*m_machine, key);
    QVERIFY(device);
    QTEST(device->instanceId, "instanceId");
    QTEST(device->description, "description");
    QTEST(device->speedMbits, "speed");
    QTEST(device->driver.name + ' ' + device->driver.version, "driver");
    QTEST(device->driver.date, "date");
    QTEST(device->hub ? QString("%1 %2").arg(Topology::classText(device->hub->kind)).arg(device->hub->ports.size())
                      : QString(),
          "hub");
}

void TestUsbTopology::locate_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QStringList>("hubs");
    QTest::addColumn<QString>("controller");

    QTest::newRow("two hubs deep")
        << "1-3.2.4"
        << QStringList{"1-3.2 USB2.0 Hub 4", "1-3 USB2.0 Hub 2", "usb1 USB Root Hub (USB 2.0) 3"} << intelXhci;
    QTest::newRow("behind USB 3 hub")
        << "2-1.4" << QStringList{"2-1 USB3.0 Hub 4", "usb2 USB Root Hub (USB 3.0) 1"} << intelXhci;
    QTest::newRow("on a root hub") << "3-2" << QStringList{"usb3 USB Root Hub (USB 2.0) 2"}
                                   << "Intel Corporation Device 9d26";
    QTest::newRow("a hub") << "1-3" << QStringList{"usb1 USB Root Hub (USB 2.0) 3"} << intelXhci;
    for (const char* missing : {"9-1", "", "1-3.3", "3-3", "usb1", "1-3.2.4:1.0", "1-3.2.4 "})
        QTest::newRow(qPrintable(QString("not found: '%1'").arg(missing))) << missing << QStringList{} << "";
}

void TestUsbTopology::locate()
{
    QFETCH(QString, path);
    QFETCH(QStringList, hubs);
    const std::optional<Topology::Location> location = m_machine->locate(path);
    QCOMPARE(location.has_value(), !hubs.isEmpty());
    if (!location)
        return;
    QStringList levels;
    for (const Topology::HubLevel& level : location->hubs)
        levels << QString("%1 %2 %3").arg(level.hubName, level.hubDescription).arg(level.port);
    QCOMPARE(levels, hubs);
    QTEST(location->controller, "controller");
}

void TestUsbTopology::consistentTree_data()
{
    QTest::addColumn<QString>("root");
    QTest::addColumn<int>("devices"); // -1: any number

    QTest::newRow("fixture") << m_dir.filePath("machine") << 9;
    QTest::newRow("generated grid") << m_dir.filePath("grid") << 3 * 2 * (1 + 5);
    QTest::newRow("this machine") << Topology::defaultSysfsRoot << -1;
    QTest::newRow("no sysfs") << m_dir.filePath("nowhere") << 0;
}

// Built as the details model builds it, in a pool job.
void TestUsbTopology::consistentTree()
{
    QFETCH(QString, root);
    QFETCH(int, devices);
    const auto topology = QtConcurrent::run([root] { return Topology::build(root); }).result();
    QVERIFY(topology);
    int found = 0;
    QCOMPARE(treeProblems(*topology, found), QStringList());
    if (devices >= 0)
        QCOMPARE(found, devices);
}

QTEST_GUILESS_MAIN(TestUsbTopology)
#include "tst_usbtopology.moc"
