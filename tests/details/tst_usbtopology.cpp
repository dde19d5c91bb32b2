#include "details/usbtopology.h"

#include "sysfsfixture.h"

#include <QFile>
#include <QLoggingCategory>
#include <QTemporaryDir>
#include <QtConcurrent>
#include <QtTest>

using Topology = UsbTopology;

namespace {

const QByteArray pciIds = "# vendor, device, subsystem; the class list follows\n"
                          "8086  Intel Corporation\n"
                          "\t9d2f  Sunrise Point-LP USB 3.0 xHCI Controller\n"
                          "\t\t103c 8079  EliteBook 840 G3\n"
                          "1b21  ASMedia Technology Inc.\n"
                          "\t1042  ASM1042 SuperSpeed USB Host Controller\n"
                          "C 0c  Serial bus controller\n"
                          "\t03  USB controller\n";

const Topology::Device* findDevice(const Topology::Hub& hub, const QString& key)
{
    for (const Topology::Port& port : hub.ports) {
        const Topology::Device* device = port.device.get();
        if (device && device->driverKey == key)
            return device;
        if (device && device->hub)
            if (const Topology::Device* found = findDevice(*device->hub, key))
                return found;
    }
    return nullptr;
}

std::vector<const Topology::Hub*> rootHubs(const Topology& topology)
{
    std::vector<const Topology::Hub*> hubs;
    for (const Topology::HostController& controller : topology.controllers())
        for (const Topology::Hub& rootHub : controller.rootHubs)
            hubs.push_back(&rootHub);
    return hubs;
}

const Topology::Device* findDevice(const Topology& topology, const QString& key)
{
    for (const Topology::Hub* rootHub : rootHubs(topology))
        if (const Topology::Device* found = findDevice(*rootHub, key))
            return found;
    return nullptr;
}

const Topology::Hub* findHub(const Topology& topology, const QString& name)
{
    for (const Topology::Hub* rootHub : rootHubs(topology))
        if (rootHub->name == name)
            return rootHub;
    const Topology::Device* device = findDevice(topology, name);
    return device ? device->hub.get() : nullptr;
}

// Checks what every tree must satisfy below hub; returns the number of devices.
int checkHub(const Topology& topology, const Topology::Hub& hub, QStringList& problems)
{
    int devices = 0;
    for (std::size_t i = 0; i < hub.ports.size(); ++i) {
        const Topology::Port& port = hub.ports[i];
        if (port.number != int(i) + 1)
            problems << QStringLiteral("%1 has port %2 in place %3").arg(hub.name).arg(port.number).arg(i);
        if (!port.device)
            continue;
        const auto location = topology.locate(port.device->driverKey);
        if (!location || location->hubs.front().hubName != hub.name
            || location->hubs.front().port != port.number)
            problems << port.device->driverKey + QStringLiteral(" not located on ") + hub.name;
        devices += 1 + (port.device->hub ? checkHub(topology, *port.device->hub, problems) : 0);
    }
    return devices;
}

int checkTree(const Topology& topology, QStringList& problems)
{
    for (const Topology::HostController& controller : topology.controllers())
        if (controller.rootHubs.empty())
            problems << controller.name + QStringLiteral(" has no root hub");
    int devices = 0;
    for (const Topology::Hub* rootHub : rootHubs(topology))
        devices += checkHub(topology, *rootHub, problems);
    return devices;
}

} // namespace

class TestUsbTopology : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void controllers_data();
    void controllers();
    void controllerType_data();
    void controllerType();
    void pciNames_data();
    void pciNames();
    void hubs_data();
    void hubs();
    void devices_data();
    void devices();
    void brokenEntriesAreSkipped();
    void locate_data();
    void locate();
    void generatedGrid();
    void realSystem();

private:
    std::shared_ptr<const Topology> buildMachine(SysfsFixture& sysfs) const;
    std::shared_ptr<const Topology> buildSingleController(const SysfsFixture::PciFunction& pci,
                                                          const QString& pciIdsPath);

    QTemporaryDir m_machineDir;
    std::shared_ptr<const Topology> m_machine;
    std::unique_ptr<QTemporaryDir> m_dir; // fresh for each test
    std::unique_ptr<SysfsFixture> m_sysfs;
    QString m_pciIds;
};

void TestUsbTopology::initTestCase()
{
    // Every fixture holds skipped entries on purpose.
    QLoggingCategory::setFilterRules(QStringLiteral("cirro.details.usbtopology.debug=false"));
    QVERIFY(m_machineDir.isValid());
    m_pciIds = m_machineDir.filePath(QStringLiteral("pci.ids"));
    QFile ids(m_pciIds);
    QVERIFY(ids.open(QIODevice::WriteOnly) && ids.write(pciIds) == pciIds.size());
    ids.close();
    SysfsFixture sysfs(m_machineDir.filePath(QStringLiteral("sys")));
    m_machine = buildMachine(sysfs);
    QVERIFY(m_machine);
}

void TestUsbTopology::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    QVERIFY(m_dir->isValid());
    m_sysfs = std::make_unique<SysfsFixture>(m_dir->filePath(QStringLiteral("sys")));
}

// An xHCI controller with a camera two hubs deep on its USB 2 root hub and one
// behind a USB 3 hub, an EHCI controller with a device whose vendor id cannot
// be read, and a virtual controller with nothing attached.
std::shared_ptr<const Topology> TestUsbTopology::buildMachine(SysfsFixture& sysfs) const
{
    const QString xhci = sysfs.addPciController(QStringLiteral("0000:00:14.0"), {});
    const QString usb1 = sysfs.addRootHub(xhci, 1, 12);
    const QString usb2 = sysfs.addRootHub(xhci, 2, 6, QStringLiteral(" 3.00"));

    SysfsFixture::UsbDevice hub{0x05e3, 0x0608, QStringLiteral("USB2.0 Hub"), {}, QStringLiteral("480"), 4, {}, {}};
    const QString hub1 = sysfs.addDevice(usb1, 3, hub);
    const QString hub2 = sysfs.addDevice(hub1, 2, hub);
    sysfs.writeAttribute(hub2, QStringLiteral("maxchild"), "many");
    SysfsFixture::UsbDevice camera{0x1ab2, 0x0001, QStringLiteral("Camera"), QStringLiteral("4102345"),
                                   QStringLiteral("480"), 0, QStringLiteral("uvcvideo"),
                                   QStringLiteral("uvcvideo")};
    sysfs.addDevice(hub2, 4, camera);
    sysfs.setModuleVersion(QStringLiteral("uvcvideo"), QStringLiteral("1.1.1"));
    sysfs.addDevice(hub1, 4, {0x0bda, 0x0129, {}, {}, QStringLiteral("12"), 0, {}, {}});

    const QString hub3 = sysfs.addDevice(
        usb2, 1, {0x05e3, 0x0626, QStringLiteral("USB3.0 Hub"), {}, QStringLiteral("5000"), 4, {}, {}});
    camera.serial = QStringLiteral("4102777");
    camera.speed = QStringLiteral("5000");
    sysfs.addDevice(hub3, 4, camera);
    camera.serial = QStringLiteral("A,B");
    sysfs.addDevice(hub3, 2, camera);

    SysfsFixture::PciFunction ehciPci{0x8086, 0x9d26, 0x17aa, 0x2233, 0, 0x0c0320,
                                      QStringLiteral("ehci-pci"), QStringLiteral("ehci_pci")};
    const QString usb3 = sysfs.addRootHub(sysfs.addPciController(QStringLiteral("0000:00:1d.0"), ehciPci), 3, 3);
    sysfs.setModuleVersion(QStringLiteral("ehci_pci"), QStringLiteral("1.0"));
    const QString reader = sysfs.addDevice(usb3, 1, {0x0bda, 0x0158, QStringLiteral("Card Reader"), {},
                                                     QStringLiteral("480"), 0, {}, {}});
    sysfs.breakAttribute(reader, QStringLiteral("idVendor"));
    sysfs.addDevice(usb3, 2, {0x046d, 0xc31c, QStringLiteral("Keyboard"), {}, QStringLiteral("1.5"), 0,
                              QStringLiteral("usbhid"), {}});

    const QString vhci = sysfs.addPlatformController(QStringLiteral("vhci_hcd.0"), QStringLiteral("vhci_hcd"));
    const QString usb4 = sysfs.addRootHub(vhci, 4, 8);
    sysfs.writeAttribute(usb4, QStringLiteral("product"), "USB/IP Virtual Host Controller");
    if (!sysfs.ok())
        return nullptr;
    return Topology::build(sysfs.root(), m_pciIds);
}

std::shared_ptr<const Topology>
TestUsbTopology::buildSingleController(const SysfsFixture::PciFunction& pci,
                                       const QString& pciIdsPath)
{
    m_sysfs->addRootHub(m_sysfs->addPciController(QStringLiteral("0000:03:00.0"), pci), 1, 2);
    return m_sysfs->ok() ? Topology::build(m_sysfs->root(), pciIdsPath) : nullptr;
}

void TestUsbTopology::controllers_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("description");
    QTest::addColumn<QString>("pciIdentity");
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("driver");
    QTest::addColumn<QStringList>("rootHubs");

    QTest::newRow("xHCI with two root hubs")
        << 0 << "0000:00:14.0" << "Intel Corporation Sunrise Point-LP USB 3.0 xHCI Controller"
        << "PCI\\VEN_8086&DEV_9d2f&SUBSYS_8079103c&REV_21" << "xHCI" << "xhci_hcd "
        << QStringList{"usb1 USB Root Hub (USB 2.0)", "usb2 USB Root Hub (USB 3.0)"};
    QTest::newRow("EHCI, revision 0, module version")
        << 1 << "0000:00:1d.0" << "Intel Corporation Device 9d26"
        << "PCI\\VEN_8086&DEV_9d26&SUBSYS_223317aa&REV_0" << "EHCI" << "ehci-pci 1.0"
        << QStringList{"usb3 USB Root Hub (USB 2.0)"};
    QTest::newRow("virtual, not on PCI")
        << 2 << "vhci_hcd.0" << "USB/IP Virtual Host Controller" << "" << "" << "vhci_hcd "
        << QStringList{"usb4 USB Root Hub (USB 2.0)"};
}

void TestUsbTopology::controllers()
{
    QFETCH(int, index);
    const auto& topology = m_machine;
    QCOMPARE(topology->controllers().size(), std::size_t(3));

    const Topology::HostController& controller = topology->controllers().at(index);
    QTEST(controller.name, "name");
    QTEST(controller.description, "description");
    QTEST(controller.pciIdentity, "pciIdentity");
    QTEST(Topology::controllerTypeText(controller.type), "type");
    QTEST(controller.driver.name + ' ' + controller.driver.version, "driver");
    QVERIFY(controller.driver.date.isEmpty());
    QStringList rootHubs;
    for (const Topology::Hub& hub : controller.rootHubs)
        rootHubs << hub.name + ' ' + hub.description;
    QTEST(rootHubs, "rootHubs");
}

void TestUsbTopology::controllerType_data()
{
    QTest::addColumn<quint32>("classCode");
    QTest::addColumn<QString>("type");

    QTest::newRow("UHCI") << 0x0c0300u << "UHCI";
    QTest::newRow("OHCI") << 0x0c0310u << "OHCI";
    QTest::newRow("EHCI") << 0x0c0320u << "EHCI";
    QTest::newRow("xHCI") << 0x0c0330u << "xHCI";
    QTest::newRow("USB4") << 0x0c0340u << "USB4";
    QTest::newRow("USB, unspecified interface") << 0x0c0380u << "";
    QTest::newRow("other serial bus with interface 30") << 0x0c0530u << "";
}

void TestUsbTopology::controllerType()
{
    QFETCH(quint32, classCode);
    SysfsFixture::PciFunction pci;
    pci.classCode = classCode;
    const auto topology = buildSingleController(pci, m_pciIds);
    QVERIFY(topology);
    QCOMPARE(topology->controllers().size(), std::size_t(1));
    QTEST(Topology::controllerTypeText(topology->controllers().front().type), "type");
}

void TestUsbTopology::pciNames_data()
{
    QTest::addColumn<quint16>("vendor");
    QTest::addColumn<quint16>("device");
    QTest::addColumn<bool>("haveIds");
    QTest::addColumn<QString>("description");

    QTest::newRow("both named") << quint16(0x8086) << quint16(0x9d2f) << true
                                << "Intel Corporation Sunrise Point-LP USB 3.0 xHCI Controller";
    QTest::newRow("later vendor") << quint16(0x1b21) << quint16(0x1042) << true
                                  << "ASMedia Technology Inc. ASM1042 SuperSpeed USB Host Controller";
    QTest::newRow("device number of another vendor")
        << quint16(0x8086) << quint16(0x1042) << true << "Intel Corporation Device 1042";
    QTest::newRow("subsystem ids are no device")
        << quint16(0x8086) << quint16(0x103c) << true << "Intel Corporation Device 103c";
    QTest::newRow("unknown vendor") << quint16(0x00ab) << quint16(0x0001) << true << "00ab:0001";
    QTest::newRow("no pci.ids") << quint16(0x8086) << quint16(0x9d2f) << false << "8086:9d2f";
}

void TestUsbTopology::pciNames()
{
    QFETCH(quint16, vendor);
    QFETCH(quint16, device);
    QFETCH(bool, haveIds);
    SysfsFixture::PciFunction pci;
    pci.vendor = vendor;
    pci.device = device;
    const auto topology =
        buildSingleController(pci, haveIds ? m_pciIds : m_dir->filePath(QStringLiteral("none")));
    QVERIFY(topology);
    QTEST(topology->controllers().front().description, "description");
}

void TestUsbTopology::hubs_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("kind");
    QTest::addColumn<int>("ports");
    QTest::addColumn<QStringList>("occupied");

    QTest::newRow("root hub") << "usb1" << "RootHub" << 12 << QStringList{"3 1-3"};
    QTest::newRow("external hub") << "1-3" << "ExternalHub" << 4 << QStringList{"2 1-3.2", "4 1-3.4"};
    QTest::newRow("malformed port count, ports from devices")
        << "1-3.2" << "ExternalHub" << 4 << QStringList{"4 1-3.2.4"};
    QTest::newRow("USB 3 hub") << "2-1" << "ExternalHub" << 4 << QStringList{"2 2-1.2", "4 2-1.4"};
    QTest::newRow("device after unreadable one") << "usb3" << "RootHub" << 3
                                                 << QStringList{"1 3-1", "2 3-2"};
    QTest::newRow("nothing attached") << "usb4" << "RootHub" << 8 << QStringList{};
}

void TestUsbTopology::hubs()
{
    QFETCH(QString, name);
    const auto& topology = m_machine;
    const Topology::Hub* hub = findHub(*topology, name);
    QVERIFY(hub);
    QTEST(Topology::classText(hub->kind), "kind");
    QTEST(int(hub->ports.size()), "ports");
    QStringList occupied;
    for (std::size_t i = 0; i < hub->ports.size(); ++i) {
        QCOMPARE(hub->ports[i].number, int(i) + 1);
        if (hub->ports[i].device)
            occupied << QString::number(i + 1) + ' ' + hub->ports[i].device->driverKey;
    }
    QTEST(occupied, "occupied");
}

void TestUsbTopology::devices_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("instanceId");
    QTest::addColumn<QString>("description");
    QTest::addColumn<double>("speed");
    QTest::addColumn<QString>("driver");

    QTest::newRow("camera two hubs deep") << "1-3.2.4" << "USB\\VID_1AB2&PID_0001\\4102345"
                                          << "Camera" << 480.0 << "uvcvideo 1.1.1";
    QTest::newRow("camera behind USB 3 hub") << "2-1.4" << "USB\\VID_1AB2&PID_0001\\4102777"
                                             << "Camera" << 5000.0 << "uvcvideo 1.1.1";
    QTest::newRow("no product string, no serial")
        << "1-3.4" << "USB\\VID_0BDA&PID_0129\\1-3.4" << "unkown" << 12.0 << "usb ";
    QTest::newRow("serial unusable in an instance id")
        << "2-1.2" << "USB\\VID_1AB2&PID_0001\\2-1.2" << "Camera" << 5000.0 << "uvcvideo 1.1.1";
    QTest::newRow("hub") << "1-3" << "USB\\VID_05E3&PID_0608\\1-3" << "USB2.0 Hub" << 480.0 << "hub ";
    QTest::newRow("low speed") << "3-2" << "USB\\VID_046D&PID_C31C\\3-2" << "Keyboard" << 1.5
                               << "usbhid ";
    QTest::newRow("unreadable vendor id") << "3-1" << "" << "Card Reader" << 480.0 << "usb ";
}

void TestUsbTopology::devices()
{
    QFETCH(QString, key);
    const auto& topology = m_machine;
    const Topology::Device* device = findDevice(*topology, key);
    QVERIFY(device);
    QTEST(device->instanceId, "instanceId");
    QTEST(device->description, "description");
    QTEST(device->speedMbits, "speed");
    QTEST(device->driver.name + ' ' + device->driver.version, "driver");
}

void TestUsbTopology::brokenEntriesAreSkipped()
{
    SysfsFixture& sysfs = *m_sysfs;
    const QString usbDevices = sysfs.root() + "/bus/usb/devices/";
    QVERIFY(QFile::link("../../../devices/gone/usb7", usbDevices + "usb7"));
    QVERIFY(QFile::link("../../../devices/gone/7-1", usbDevices + "1-2"));
    const QString controller = sysfs.addPciController("0000:00:14.0", {});
    sysfs.breakAttribute(controller, "class");
    const QString rootHub = sysfs.addRootHub(controller, 1, 4);
    sysfs.breakAttribute(rootHub, "maxchild");
    const QString odd = sysfs.addDevice(rootHub, 1, {});
    sysfs.writeAttribute(odd, "idVendor", "zz");
    sysfs.writeAttribute(odd, "speed", "fast");
    sysfs.writeAttribute(odd, "maxchild", "100000");
    sysfs.addDevice(rootHub, 3, {});
    const QString unnamed = sysfs.addPciController("0000:00:1d.0", {});
    sysfs.breakAttribute(unnamed, "subsystem_device");
    sysfs.addRootHub(unnamed, 2, 1);
    QVERIFY(sysfs.ok());

    const auto topology = Topology::build(sysfs.root(), m_pciIds);
    QCOMPARE(topology->controllers().size(), std::size_t(2));
    const Topology::HostController& first = topology->controllers().front();
    QCOMPARE(first.type, Topology::ControllerType::Unknown);
    QCOMPARE(first.pciIdentity, "PCI\\VEN_8086&DEV_9d2f&SUBSYS_8079103c&REV_21");
    const Topology::Hub& hub = first.rootHubs.front();
    QCOMPARE(hub.ports.size(), std::size_t(3));
    QVERIFY(hub.ports[0].device && hub.ports[2].device);
    QVERIFY(hub.ports[0].device->instanceId.isEmpty());
    QCOMPARE(hub.ports[0].device->speedMbits, 0.0);
    QVERIFY(!hub.ports[0].device->hub);
    QVERIFY(!hub.ports[1].device);
    QCOMPARE(hub.ports[2].device->driverKey, "1-3");
    const Topology::HostController& second = topology->controllers().back();
    QVERIFY(second.pciIdentity.isEmpty());
    QCOMPARE(second.description, "xHCI Host Controller");

    QVERIFY(Topology::build(m_dir->filePath("nowhere"))->controllers().empty());
}

void TestUsbTopology::locate_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QStringList>("hubs");
    QTest::addColumn<QString>("controller");

    const QString xhci = "Intel Corporation Sunrise Point-LP USB 3.0 xHCI Controller";
    QTest::newRow("two hubs deep") << "1-3.2.4"
                                   << QStringList{"1-3.2 USB2.0 Hub 4", "1-3 USB2.0 Hub 2",
                                                  "usb1 USB Root Hub (USB 2.0) 3"}
                                   << xhci;
    QTest::newRow("behind USB 3 hub")
        << "2-1.4" << QStringList{"2-1 USB3.0 Hub 4", "usb2 USB Root Hub (USB 3.0) 1"} << xhci;
    QTest::newRow("on a root hub") << "3-2" << QStringList{"usb3 USB Root Hub (USB 2.0) 2"}
                                   << "Intel Corporation Device 9d26";
    QTest::newRow("a hub") << "1-3" << QStringList{"usb1 USB Root Hub (USB 2.0) 3"} << xhci;
    for (const char* missing : {"9-1", "", "1-3.3", "usb1", "1-3.2.4:1.0", "1-3.2.4 "})
        QTest::newRow(qPrintable(QStringLiteral("not found: '%1'").arg(missing)))
            << missing << QStringList{} << "";
}

void TestUsbTopology::locate()
{
    QFETCH(QString, path);
    QFETCH(QStringList, hubs);
    const auto& topology = m_machine;
    const std::optional<Topology::Location> location = topology->locate(path);
    QCOMPARE(location.has_value(), !hubs.isEmpty());
    if (!location)
        return;
    QStringList levels;
    for (const Topology::HubLevel& level : location->hubs)
        levels << QStringLiteral("%1 %2 %3").arg(level.hubName, level.hubDescription).arg(level.port);
    QCOMPARE(levels, hubs);
    QTEST(location->controller, "controller");
}

void TestUsbTopology::generatedGrid()
{
    m_sysfs->addGrid(3, 2, 5);
    QVERIFY(m_sysfs->ok());
    const auto topology = Topology::build(m_sysfs->root(), m_pciIds);
    QCOMPARE(topology->controllers().size(), std::size_t(3));
    QStringList problems;
    const int devices = checkTree(*topology, problems);
    QCOMPARE(problems, QStringList());
    QCOMPARE(devices, 3 * 2 * (1 + 5));
    const auto location = topology->locate("3-2.5");
    QVERIFY(location);
    QCOMPARE(location->hubs.size(), std::size_t(2));
    QCOMPARE(location->hubs.front().port, 5);
    QCOMPARE(location->hubs.back().port, 2);
}

void TestUsbTopology::realSystem()
{
    // Built as the details model builds it, in a pool job; without USB the
    // tree is empty.
    const auto topology = QtConcurrent::run([] { return Topology::build(); }).result();
    QVERIFY(topology);
    QStringList problems;
    checkTree(*topology, problems);
    QCOMPARE(problems, QStringList());
}

QTEST_GUILESS_MAIN(TestUsbTopology)
#include "tst_usbtopology.moc"
