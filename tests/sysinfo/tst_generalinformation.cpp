#include "services/servicemanager.h"
#include "sysinfo/generalinformation.h"

#include "simdriverfixture.h"

#include <QtTest>

namespace {

InfoNode child(const InfoNode& node, const QString& label)
{
    for (const InfoNode& entry : node.children) {
        if (entry.label == label)
            return entry;
    }
    return InfoNode(QStringLiteral("(no %1)").arg(label));
}

std::shared_ptr<const UsbTopology> topologyWithAHubAndACamera()
{
    auto camera = std::make_unique<UsbTopology::Device>();
    camera->driverKey = QStringLiteral("1-2.3");
    camera->description = QStringLiteral("Cirro camera");
    camera->driver = {QStringLiteral("cirro_usb"), QStringLiteral("2.1"), QString()};
    camera->speedMbits = 5000;
    auto hubNode = std::make_unique<UsbTopology::Hub>();
    hubNode->kind = UsbTopology::NodeKind::ExternalHub;
    hubNode->name = QStringLiteral("1-2");
    hubNode->ports.resize(4);
    for (int i = 0; i < 4; ++i)
        hubNode->ports[i].number = i + 1;
    hubNode->ports[2].device = std::move(camera);
    auto hubDevice = std::make_unique<UsbTopology::Device>();
    hubDevice->driverKey = QStringLiteral("1-2");
    hubDevice->hub = std::move(hubNode);

    UsbTopology::HostController controller;
    controller.name = QStringLiteral("0000:00:14.0");
    controller.description = QStringLiteral("USB 3.1 xHCI controller");
    controller.type = UsbTopology::ControllerType::Xhci;
    controller.driver = {QStringLiteral("xhci_hcd"), QString(), QString()};
    UsbTopology::Hub root;
    root.name = QStringLiteral("usb1");
    root.description = QStringLiteral("xHCI Host Controller");
    root.ports.resize(2);
    root.ports[0].number = 1;
    root.ports[1].number = 2;
    root.ports[1].device = std::move(hubDevice);
    controller.rootHubs.push_back(std::move(root));
    std::vector<UsbTopology::HostController> controllers;
    controllers.push_back(std::move(controller));
    return std::make_shared<const UsbTopology>(std::move(controllers));
}

} // namespace

class TestGeneralInformation : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void textIndentsAndAlignsLongValues();
    void usbPageFollowsTheTreeToTheCamera();
    void adapterPageSaysWhatIsKnown();
    void driverPageNamesEachKind();
    void pagesWaitForTheHost();
    void theRunningProgramIsDescribed();
    void theSimulatedMachineIsRead();
};

void TestGeneralInformation::initTestCase()
{
    QVERIFY(SimDriverFixture::reset());
    QCoreApplication::setApplicationName(QStringLiteral("Camera Manager"));
    QCoreApplication::setApplicationVersion(QStringLiteral("4.97.0.0"));
}

void TestGeneralInformation::textIndentsAndAlignsLongValues()
{
    InfoNode page(QStringLiteral("Page"));
    InfoNode entry(QStringLiteral("Entry"), QStringLiteral("first\nsecond"));
    entry.addIfKnown(QStringLiteral("Known"), QStringLiteral("1")).addIfKnown(QStringLiteral("Unknown"), QString());
    page.children << entry;
    QCOMPARE(page.text(), QStringLiteral("Page\n"
                                         "  Entry: first\n"
                                         "         second\n"
                                         "    Known: 1\n"));
}

void TestGeneralInformation::usbPageFollowsTheTreeToTheCamera()
{
    const std::shared_ptr<const UsbTopology> topology = topologyWithAHubAndACamera();
    const InfoNode page = GeneralInformation::usbControllersPage(topology.get());
    const InfoNode controller = child(page, QStringLiteral("USB 3.1 xHCI controller"));
    QCOMPARE(controller.value, QStringLiteral("xHCI"));
    QCOMPARE(child(controller, QStringLiteral("Driver")).value, QStringLiteral("xhci_hcd"));
    const InfoNode root = child(controller, QStringLiteral("xHCI Host Controller"));
    QCOMPARE(root.value, QStringLiteral("2 port(s)"));
    QCOMPARE(root.children.size(), 1); // the empty port is left out
    const InfoNode hubPort = child(root, QStringLiteral("Port 2"));
    const InfoNode hub = child(hubPort, QStringLiteral("1-2"));
    const InfoNode camera = child(hub, QStringLiteral("Port 3"));
    QCOMPARE(camera.value, QStringLiteral("Cirro camera"));
    QCOMPARE(child(camera, QStringLiteral("Driver")).value, QStringLiteral("cirro_usb, 2.1"));
    QCOMPARE(child(camera, QStringLiteral("Speed")).value, QStringLiteral("5000 Mbit/s"));

    QCOMPARE(GeneralInformation::usbControllersPage(nullptr).value, QStringLiteral("No USB host controller was found."));
}

void TestGeneralInformation::adapterPageSaysWhatIsKnown()
{
    NetworkAdapter wired;
    wired.humanReadableName = wired.interfaceName = QStringLiteral("enp3s0");
    wired.description = QStringLiteral("Ethernet controller");
    wired.hardwareAddress = QStringLiteral("00:1A:2B:3C:4D:5E");
    wired.ipv4Address = QHostAddress(QStringLiteral("192.168.50.1"));
    wired.ipv4Netmask = QHostAddress(QStringLiteral("255.255.255.0"));
    NetworkAdapter named;
    named.humanReadableName = QStringLiteral("Camera network");
    named.interfaceName = QStringLiteral("cirro0");
    named.dhcp = true;

    const InfoNode page = GeneralInformation::networkAdaptersPage({wired, named}, {QStringLiteral("Link up"), {}});
    QCOMPARE(page.children.size(), 2);
    const InfoNode first = page.children.at(0);
    QCOMPARE(first.label, QStringLiteral("enp3s0"));
    QCOMPARE(child(first, QStringLiteral("IPv4 address")).value, QStringLiteral("192.168.50.1 / 255.255.255.0 (static)"));
    QCOMPARE(child(first, QStringLiteral("Checks for GigE cameras")).value, QStringLiteral("Link up"));
    const InfoNode second = page.children.at(1);
    QCOMPARE(second.label, QStringLiteral("Camera network (cirro0)"));
    QCOMPARE(child(second, QStringLiteral("IPv4 address")).value, QStringLiteral("no IPv4 address"));
    QCOMPARE(child(second, QStringLiteral("MAC address")).label, QStringLiteral("(no MAC address)"));

    QCOMPARE(GeneralInformation::networkAdaptersPage({}, {}).value, QStringLiteral("No network adapter was found."));
}

void TestGeneralInformation::driverPageNamesEachKind()
{
    const DriverComponentList components{
        {DriverComponent::Kind::ApiLibrary, QStringLiteral("libcirro_api.so.4.97"), QStringLiteral("/usr/lib/x"),
         QStringLiteral("4.97"), QStringLiteral("4.97.1203"), {}},
        {DriverComponent::Kind::KernelModule, QStringLiteral("cirro_usb.ko"), QStringLiteral("/lib/modules/x"),
         QStringLiteral("2.1"), QStringLiteral("ABC123"), QStringLiteral("3-4-2026")},
        {DriverComponent::Kind::ServiceUnit, QStringLiteral("cirro_usb.service"), {}, {}, QStringLiteral("running"), {}}};
    const InfoNode page = GeneralInformation::driversPage(components);
    QCOMPARE(page.children.size(), 3);
    QCOMPARE(child(page.children.at(0), QStringLiteral("Version")).value, QStringLiteral("4.97.1203"));
    QCOMPARE(page.children.at(1).value, QStringLiteral("Kernel module"));
    QCOMPARE(child(page.children.at(1), QStringLiteral("Source version")).value, QStringLiteral("ABC123"));
    QCOMPARE(child(page.children.at(1), QStringLiteral("Date")).value, QStringLiteral("3-4-2026"));
    QCOMPARE(page.children.at(2).value, QStringLiteral("Driver service"));
    QCOMPARE(child(page.children.at(2), QStringLiteral("State")).value, QStringLiteral("running"));
    QCOMPARE(page.children.at(2).children.size(), 1);
}

void TestGeneralInformation::pagesWaitForTheHost()
{
    GeneralInformation info;
    QList<InfoNode> pages = info.pages();
    QCOMPARE(pages.size(), 4);
    QCOMPARE(pages.at(2).value, QStringLiteral("still being read"));
    QCOMPARE(pages.at(3).value, QStringLiteral("still being read"));
    info.hostRead = true;
    pages = info.pages();
    QCOMPARE(pages.at(2).value, QStringLiteral("No USB host controller was found."));
}

void TestGeneralInformation::theRunningProgramIsDescribed()
{
    const AboutInformation about = AboutInformation::collect();
    const InfoNode facts = about.facts();
    QCOMPARE(child(facts, QStringLiteral("Product")).value, QStringLiteral("Camera Manager"));
    QCOMPARE(child(facts, QStringLiteral("Version")).value, QStringLiteral("4.97.0.0"));
    QCOMPARE(child(facts, QStringLiteral("Camera API version")).value,
             QStringLiteral("%1.%2.%3")
                 .arg(PV_VERSION_MAJOR(pv_QueryApiVersion()))
                 .arg(PV_VERSION_MINOR(pv_QueryApiVersion()))
                 .arg(PV_VERSION_BUILD(pv_QueryApiVersion())));
    QVERIFY(child(facts, QStringLiteral("Camera API library")).value.contains(QLatin1String("libcirro_api")));
    QVERIFY(child(facts, QStringLiteral("Qt version")).value.startsWith(QLatin1String(qVersion())));
    const InfoNode licences = child(about.outline(), QStringLiteral("Licences"));
    QCOMPARE(licences.children.size(), 2);
    QVERIFY(licences.children.at(0).label.startsWith(QLatin1String("Qt ")));
    QVERIFY(licences.children.at(1).label.startsWith(QLatin1String("Boost 1.")));
    QVERIFY(about.licences.at(1).notice.contains(QLatin1String("Permission is hereby granted")));
}

void TestGeneralInformation::theSimulatedMachineIsRead()
{
    const std::unique_ptr<ServiceManager> services = ServiceManager::create();
    const GeneralInformation info = GeneralInformation::gather(*services);
    QVERIFY(info.hostRead);
    QVERIFY(info.topology);
    QCOMPARE(info.adapterStatus.size(), info.adapters.size());
    QStringList names;
    for (const DriverComponent& component : info.drivers)
        names << component.name;
    QVERIFY2(names.first().startsWith(QLatin1String("libcirro_api")), qPrintable(names.join(", ")));
    QVERIFY2(names.contains(QLatin1String("cirro_eth (simulated)")), qPrintable(names.join(", ")));
    // The simulated driver's virtual adapters are listed, with the checks that the driver's view allows.
    QStringList checked;
    for (int i = 0; i < info.adapters.size(); ++i) {
        if (!info.adapterStatus.at(i).isEmpty())
            checked << info.adapters.at(i).interfaceName;
    }
    QVERIFY2(!checked.isEmpty(), "no adapter was checked");
    const QString text = info.pages().at(3).text();
    for (const QString& name : checked)
        QVERIFY2(text.contains(name), qPrintable(text));
}

QTEST_GUILESS_MAIN(TestGeneralInformation)
#include "tst_generalinformation.moc"
