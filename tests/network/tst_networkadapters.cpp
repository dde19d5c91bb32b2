#include "network/adapteripconfig.h"
#include "network/networkadapters.h"

#include <pvsim.h>

#include <QProcess>
#include <QScopeGuard>
#include <QtTest>

#include <net/if.h>
#include <sys/stat.h>
#include <unistd.h>

// The tests that change addresses run in a child process inside a network
// namespace that the parent creates for them; only the veth pair made there
// gets addresses.
namespace {

const char namespaceOption[] = "--inside-test-namespace";
const QString bound = QStringLiteral("cirtst0");
const QString leased = QStringLiteral("cirtst1");
const QString boundMac = QStringLiteral("02:AB:CD:EF:00:01");

NetworkAdapter adapterNamed(const QString& interfaceName)
{
    for (const NetworkAdapter& adapter : getNetworkAdapters()) {
        if (adapter.interfaceName == interfaceName)
            return adapter;
    }
    return {};
}

QList<QNetworkAddressEntry> ipv4Entries(const QString& interfaceName)
{
    QList<QNetworkAddressEntry> entries = QNetworkInterface::interfaceFromName(interfaceName).addressEntries();
    entries.erase(std::remove_if(entries.begin(), entries.end(), [](const QNetworkAddressEntry& entry) {
                      return entry.ip().protocol() != QAbstractSocket::IPv4Protocol;
                  }), entries.end());
    return entries;
}

bool runIp(const QString& arguments, QString* output)
{
    QProcess ip;
    ip.setProcessChannelMode(QProcess::MergedChannels);
    ip.start(QStringLiteral("ip"), arguments.split(QLatin1Char(' ')));
    const bool finished = ip.waitForFinished(30000);
    *output = QString::fromLocal8Bit(ip.readAll());
    return finished && ip.exitStatus() == QProcess::NormalExit && ip.exitCode() == 0;
}

// ip netns keeps a namespace alive through a bind mount below /run/netns.
bool insideNamedNamespace(const QString& name)
{
    struct stat named{};
    struct stat self{};
    return !name.isEmpty() && !name.contains(QLatin1Char('/'))
        && ::stat(qPrintable(QStringLiteral("/run/netns/") + name), &named) == 0
        && ::stat("/proc/self/ns/net", &self) == 0 && named.st_ino == self.st_ino && named.st_dev == self.st_dev;
}

} // namespace

class TestNetworkAdapters : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void loopbackInQtsOrder();
    void virtualAdaptersOfTheSimulatedDriver_data();
    void virtualAdaptersOfTheSimulatedDriver();
    void notAnInterface_data();
    void notAnInterface();
    void insideNetworkNamespace();
};

void TestNetworkAdapters::init()
{
    QCOMPARE(pvsim_LoadScenario(nullptr), PV_OK);
}

void TestNetworkAdapters::loopbackInQtsOrder()
{
    QStringList expected;
    for (const QNetworkInterface& interface : QNetworkInterface::allInterfaces())
        expected << interface.name();
    expected << "simnet0" << "simnet1" << "simnet2"; // the default fleet's
    QStringList listed;
    for (const NetworkAdapter& adapter : getNetworkAdapters())
        listed << adapter.interfaceName;
    QCOMPARE(listed, expected);

    const NetworkAdapter lo = adapterNamed(QStringLiteral("lo"));
    QCOMPARE(lo.humanReadableName, QStringLiteral("lo"));
    QCOMPARE(lo.description, QStringLiteral("loopback"));
    QCOMPARE(lo.hardwareAddress, QStringLiteral("00:00:00:00:00:00"));
    QCOMPARE(lo.ipv4Address, QHostAddress(QStringLiteral("127.0.0.1")));
    QCOMPARE(lo.ipv4Netmask, QHostAddress(QStringLiteral("255.0.0.0")));
    QVERIFY(!lo.dhcp);
    QVERIFY(lo.flags.testFlag(QNetworkInterface::IsLoopBack) && lo.flags.testFlag(QNetworkInterface::IsUp));
    int index = -1;
    bool dhcp = true;
    QVERIFY(getAdapterIndex(QStringLiteral("lo"), index, dhcp).isSuccess());
    QCOMPARE(index, int(::if_nametoindex("lo")));
    QVERIFY(!dhcp);
}

void TestNetworkAdapters::virtualAdaptersOfTheSimulatedDriver_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("mac");
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("mask");
    QTest::addColumn<bool>("dhcp");
    QTest::addColumn<int>("flags");
    QTest::addColumn<int>("index");

    const int up = QNetworkInterface::IsUp | QNetworkInterface::CanBroadcast;
    QTest::newRow("static, with link")
        << "vnet0" << "02:C1:5E:00:0A:01" << "10.44.0.1" << "255.255.0.0" << false
        << (up | QNetworkInterface::IsRunning | QNetworkInterface::CanMulticast) << 1;
    QTest::newRow("DHCP without address, link or multicast")
        << "vnet1" << "02:C1:5E:00:0A:0B" << QString() << QString() << true << up << 2;
}

void TestNetworkAdapters::virtualAdaptersOfTheSimulatedDriver()
{
    QFETCH(QString, name);
    QFETCH(QString, mac);
    QFETCH(QString, address);
    QFETCH(QString, mask);
    QFETCH(bool, dhcp);
    QFETCH(int, flags);
    QFETCH(int, index);

    QCOMPARE(pvsim_LoadScenarioText(R"({"driver": {"driverVersion": "4.98.7", "driverDate": "3-4-2026"},
        "adapters": [
            {"name": "vnet0", "mac": "02:c1:5e:00:0a:01", "ip": "10.44.0.1", "mask": "255.255.0.0"},
            {"name": "vnet1", "mac": "02-c1-5e-00-0a-0b", "dhcp": true, "linkUp": false,
             "multicastEnabled": false}]})"),
             PV_OK);
    const NetworkAdapter adapter = adapterNamed(name);
    QCOMPARE(adapter.interfaceName, name);
    QCOMPARE(adapter.humanReadableName, name);
    QCOMPARE(adapter.description, QStringLiteral("Simulated GigE adapter"));
    QCOMPARE(adapter.hardwareAddress, mac);
    QCOMPARE(adapter.ipv4Address, address.isEmpty() ? QHostAddress() : QHostAddress(address));
    QCOMPARE(adapter.ipv4Netmask, mask.isEmpty() ? QHostAddress() : QHostAddress(mask));
    QCOMPARE(adapter.dhcp, dhcp);
    QCOMPARE(int(adapter.flags), flags);
    QCOMPARE(adapter.driverVersion, QStringLiteral("4.98.7"));
    QCOMPARE(adapter.driverDate, QStringLiteral("3-4-2026"));

    QCOMPARE(::findAdapterByMac(mac), qMakePair(name, name));
    QCOMPARE(::findAdapterByMac(mac.toLower()), qMakePair(QString(), QString()));
    QCOMPARE(getAdapterDescription(name), adapter.description);
    const AdapterDriverInfo driver = getAdapterDriverInfo(name);
    QCOMPARE(driver.version, adapter.driverVersion);
    QCOMPARE(driver.date, adapter.driverDate);
    int foundIndex = 0;
    bool foundDhcp = !dhcp;
    QVERIFY(getAdapterIndex(name, foundIndex, foundDhcp).isSuccess());
    QCOMPARE(foundIndex, index);
    QCOMPARE(foundDhcp, dhcp);
}

void TestNetworkAdapters::notAnInterface_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("unknown") << QStringLiteral("nosuchif0");
    QTest::newRow("empty") << QString();
    QTest::newRow("path") << QStringLiteral("../net/lo");
    QTest::newRow("too long for the kernel") << QStringLiteral("lo-with-a-very-long-name");
}

void TestNetworkAdapters::notAnInterface()
{
    QFETCH(QString, name);
    QCOMPARE(getAdapterDescription(name), QStringLiteral("1"));
    const AdapterDriverInfo driver = getAdapterDriverInfo(name);
    QVERIFY(driver.driver.isEmpty() && driver.version.isEmpty() && driver.date.isEmpty());
    int index = -7;
    bool dhcp = true;
    const Result result = getAdapterIndex(name, index, dhcp);
    QCOMPARE(result.code(), int(HostError::UnknownInterface));
    QVERIFY(result.text().contains(name));
    QVERIFY(index == -7 && dhcp);
    QCOMPARE(AdapterIpConfig::enableDhcp(name).code(), int(HostError::UnknownInterface));
}

void TestNetworkAdapters::insideNetworkNamespace()
{
    if (::geteuid() != 0)
        QSKIP("Creating a network namespace needs root.");
    const QString name = QStringLiteral("cirro-tst-%1").arg(QCoreApplication::applicationPid());
    QString output;
    if (!runIp(QStringLiteral("netns add ") + name, &output))
        QSKIP(qPrintable(QStringLiteral("The kernel refuses network namespaces: ") + output));
    const auto removeNamespace = qScopeGuard([&] { runIp(QStringLiteral("netns del ") + name, &output); });
    QVERIFY2(runIp(QStringLiteral("-n %1 link add %2 address %3 type veth peer name %4")
                       .arg(name, bound, boundMac.toLower(), leased), &output), qPrintable(output));
    QVERIFY2(runIp(QStringLiteral("-n %1 addr add 10.77.0.2/24 dev %2 valid_lft 300 preferred_lft 300")
                       .arg(name, leased), &output), qPrintable(output));

    QProcess child;
    child.setProcessChannelMode(QProcess::MergedChannels);
    child.start(QStringLiteral("ip"), {QStringLiteral("netns"), QStringLiteral("exec"), name,
                                       QCoreApplication::applicationFilePath(), QLatin1String(namespaceOption), name});
    QVERIFY(child.waitForFinished(90000));
    const bool passed = child.exitStatus() == QProcess::NormalExit && child.exitCode() == 0;
    if (!passed)
        qWarning().noquote() << child.readAll();
    QVERIFY2(passed, "tests inside the namespace failed, see their output above");
}

class TestInsideNamespace : public QObject
{
    Q_OBJECT

public:
    explicit TestInsideNamespace(const QString& namespaceName) : m_namespaceName(namespaceName) {}

private slots:
    void initTestCase();
    void adaptersOfTheNamespace();
    void findAdapterByMac_data();
    void findAdapterByMac();
    void staticAddress_data();
    void staticAddress();
    void dhcpNeedsNetworkManager();

private:
    QString m_namespaceName;
};

void TestInsideNamespace::initTestCase()
{
    // Guards the host's own interfaces against a wrong start.
    QVERIFY2(insideNamedNamespace(m_namespaceName), "not inside the test's network namespace");
}

void TestInsideNamespace::adaptersOfTheNamespace()
{
    // lo, the veth pair and the default fleet's three virtual adapters
    QCOMPARE(getNetworkAdapters().size(), 3 + 3);
    const NetworkAdapter lo = adapterNamed(QStringLiteral("lo"));
    QVERIFY(lo.ipv4Address.isNull() && lo.ipv4Netmask.isNull() && !lo.dhcp);

    const NetworkAdapter veth = adapterNamed(bound);
    QCOMPARE(veth.description, QStringLiteral("veth"));
    QCOMPARE(veth.hardwareAddress, boundMac);
    QVERIFY(veth.ipv4Address.isNull() && !veth.dhcp);
    QVERIFY(veth.flags.testFlag(QNetworkInterface::CanBroadcast));
    QVERIFY(veth.flags.testFlag(QNetworkInterface::CanMulticast));
    const AdapterDriverInfo driver = getAdapterDriverInfo(bound);
    QCOMPARE(driver.driver, QStringLiteral("veth"));
    QVERIFY(!driver.version.isEmpty());
    QCOMPARE(veth.driverVersion, driver.version);

    const NetworkAdapter lease = adapterNamed(leased);
    QCOMPARE(lease.ipv4Address, QHostAddress(QStringLiteral("10.77.0.2")));
    QCOMPARE(lease.ipv4Netmask, QHostAddress(QStringLiteral("255.255.255.0")));
    QVERIFY(lease.dhcp);
    int index = 0;
    bool dhcp = false;
    QVERIFY(getAdapterIndex(leased, index, dhcp).isSuccess());
    QCOMPARE(index, int(::if_nametoindex(qPrintable(leased))));
    QVERIFY(dhcp);
}

void TestInsideNamespace::findAdapterByMac_data()
{
    QTest::addColumn<QString>("mac");
    QTest::addColumn<QString>("found");
    QTest::newRow("as Qt writes it") << boundMac << bound;
    QTest::newRow("lower case") << boundMac.toLower() << QString();
    QTest::newRow("hyphens") << QString(boundMac).replace(':', '-') << QString();
    QTest::newRow("empty") << QString() << QString();
}

void TestInsideNamespace::findAdapterByMac()
{
    QFETCH(QString, mac);
    QFETCH(QString, found);
    QCOMPARE(::findAdapterByMac(mac), qMakePair(found, found));
}

void TestInsideNamespace::staticAddress_data()
{
    QTest::addColumn<QString>("interfaceName");
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("mask");
    QTest::addColumn<int>("code");
    // Refused changes leave the lease as it is; the rows run in this order.
    const QString lease = QStringLiteral("10.77.0.2");
    const int invalidAddress = HostError::InvalidAddress;
    QTest::newRow("holes in the mask") << leased << lease << "255.0.255.0" << int(HostError::InvalidNetmask);
    QTest::newRow("zero mask") << leased << lease << "0.0.0.0" << int(HostError::InvalidNetmask);
    QTest::newRow("broadcast address") << leased << "10.77.0.255" << "255.255.255.0" << invalidAddress;
    QTest::newRow("loopback") << leased << "127.0.0.5" << "255.0.0.0" << invalidAddress;
    QTest::newRow("multicast") << leased << "239.1.1.1" << "255.255.255.0" << invalidAddress;
    QTest::newRow("IPv6") << leased << "fd00::5" << "255.255.255.0" << invalidAddress;
    QTest::newRow("unknown interface") << "nosuchif0" << lease << "255.255.255.0"
                                       << int(HostError::UnknownInterface);
    QTest::newRow("the leased address made permanent") << leased << lease << "255.255.255.0" << 0;
    QTest::newRow("another subnet") << leased << "172.20.1.5" << "255.255.0.0" << 0;
    QTest::newRow("point-to-point /31") << leased << "192.168.7.0" << "255.255.255.254" << 0;
}

void TestInsideNamespace::staticAddress()
{
    QFETCH(QString, interfaceName);
    QFETCH(QString, address);
    QFETCH(QString, mask);
    QFETCH(int, code);
    const bool leaseBefore = adapterNamed(leased).dhcp;
    const QList<QNetworkAddressEntry> before = ipv4Entries(leased);
    const Result result =
        AdapterIpConfig::enableStatic(interfaceName, QHostAddress(address), QHostAddress(mask));
    QCOMPARE(result.code(), code);
    QCOMPARE(result.text().isEmpty(), code == 0);

    const QList<QNetworkAddressEntry> after = ipv4Entries(leased);
    QCOMPARE(after.size(), 1);
    if (code != 0) {
        QCOMPARE(after.first().ip(), before.first().ip());
        QCOMPARE(adapterNamed(leased).dhcp, leaseBefore);
        return;
    }
    QCOMPARE(after.first().ip(), QHostAddress(address));
    QCOMPARE(after.first().netmask(), QHostAddress(mask));
    QVERIFY(!adapterNamed(leased).dhcp);
}

void TestInsideNamespace::dhcpNeedsNetworkManager()
{
    const Result result = AdapterIpConfig::enableDhcp(bound);
    QCOMPARE(result.code(), int(HostError::NotSupported));
    QVERIFY(result.text().contains(bound));
}

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    if (argc > 2 && qstrcmp(argv[1], namespaceOption) == 0) {
        TestInsideNamespace test(QString::fromLocal8Bit(argv[2]));
        return QTest::qExec(&test, QStringList{QString::fromLocal8Bit(argv[0])});
    }
    TestNetworkAdapters test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_networkadapters.moc"
