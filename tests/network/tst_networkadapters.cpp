#include "network/adapteripconfig.h"
#include "network/networkadapters.h"

#include <QProcess>
#include <QtTest>

#include <net/if.h>
#include <sys/stat.h>
#include <unistd.h>

#include <optional>

// The tests that change addresses run in a child process inside a network
// namespace that the parent creates for them; only the veth pair made there
// gets addresses.
namespace {

const char namespaceOption[] = "--inside-test-namespace";
const QString boundVeth = QStringLiteral("cirtst0");
const QString leasedVeth = QStringLiteral("cirtst1");
const QString boundVethMac = QStringLiteral("02:AB:CD:EF:00:01");

std::optional<NetworkAdapter> adapterNamed(const QString& interfaceName)
{
    for (const NetworkAdapter& adapter : getNetworkAdapters()) {
        if (adapter.interfaceName == interfaceName)
            return adapter;
    }
    return std::nullopt;
}

QList<QNetworkAddressEntry> ipv4Entries(const QString& interfaceName)
{
    QList<QNetworkAddressEntry> entries;
    for (const QNetworkAddressEntry& entry : QNetworkInterface::interfaceFromName(interfaceName).addressEntries()) {
        if (entry.ip().protocol() == QAbstractSocket::IPv4Protocol)
            entries.append(entry);
    }
    return entries;
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

// A network namespace that lives as long as this object.
class TestNamespace final
{
public:
    TestNamespace() : m_name(QStringLiteral("cirro-tst-%1").arg(QCoreApplication::applicationPid())) {}
    ~TestNamespace()
    {
        if (m_created)
            run({QStringLiteral("netns"), QStringLiteral("del"), m_name});
    }
    Q_DISABLE_COPY_MOVE(TestNamespace)

    QString create()
    {
        m_created = run({QStringLiteral("netns"), QStringLiteral("add"), m_name});
        return m_created ? QString() : m_output;
    }
    bool ip(const QString& command) { return run(QStringList{QStringLiteral("-n"), m_name} + command.split(' ')); }
    const QString& name() const { return m_name; }
    const QString& output() const { return m_output; }

private:
    bool run(const QStringList& arguments)
    {
        QProcess process;
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(QStringLiteral("ip"), arguments);
        const bool finished = process.waitForFinished(30000);
        m_output = QString::fromLocal8Bit(process.readAll());
        return finished && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    }

    QString m_name;
    QString m_output;
    bool m_created = false;
};

} // namespace

class TestNetworkAdapters : public QObject
{
    Q_OBJECT

private slots:
    void listFollowsQtOrderWithoutGaps();
    void loopbackRecord();
    void notAnInterface_data();
    void notAnInterface();
    void insideNetworkNamespace();
};

void TestNetworkAdapters::listFollowsQtOrderWithoutGaps()
{
    QStringList expected;
    for (const QNetworkInterface& interface : QNetworkInterface::allInterfaces())
        expected << interface.name();
    QStringList listed;
    for (const NetworkAdapter& adapter : getNetworkAdapters())
        listed << adapter.interfaceName;
    QCOMPARE(listed, expected);
}

void TestNetworkAdapters::loopbackRecord()
{
    const std::optional<NetworkAdapter> lo = adapterNamed(QStringLiteral("lo"));
    QVERIFY(lo);
    QCOMPARE(lo->humanReadableName, QStringLiteral("lo"));
    QCOMPARE(lo->description, QStringLiteral("loopback"));
    QCOMPARE(lo->hardwareAddress, QStringLiteral("00:00:00:00:00:00"));
    QCOMPARE(lo->ipv4Address, QHostAddress(QStringLiteral("127.0.0.1")));
    QCOMPARE(lo->ipv4Netmask, QHostAddress(QStringLiteral("255.0.0.0")));
    QVERIFY(!lo->dhcp);
    QVERIFY(lo->flags.testFlag(QNetworkInterface::IsLoopBack));
    QVERIFY(lo->flags.testFlag(QNetworkInterface::IsUp));

    int index = -1;
    bool dhcp = true;
    QVERIFY(getAdapterIndex(QStringLiteral("lo"), index, dhcp).isSuccess());
    QCOMPARE(index, int(::if_nametoindex("lo")));
    QVERIFY(!dhcp);
}

void TestNetworkAdapters::notAnInterface_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("unknown") << QStringLiteral("nosuchif0");
    QTest::newRow("empty") << QString();
    QTest::newRow("parent directory") << QStringLiteral("..");
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
    const NetworkResult result = getAdapterIndex(name, index, dhcp);
    QCOMPARE(result.code(), int(NetworkResult::UnknownInterface));
    QVERIFY(result.message().contains(name));
    QCOMPARE(index, -7);
    QVERIFY(dhcp);
    QCOMPARE(AdapterIpConfig::enableDhcp(name).code(), int(NetworkResult::UnknownInterface));
}

void TestNetworkAdapters::insideNetworkNamespace()
{
    if (::geteuid() != 0)
        QSKIP("Creating a network namespace needs root.");
    TestNamespace netns;
    const QString refusal = netns.create();
    if (!refusal.isEmpty())
        QSKIP(qPrintable(QStringLiteral("The kernel refuses network namespaces: ") + refusal));
    QVERIFY2(netns.ip(QStringLiteral("link add %1 address %2 type veth peer name %3")
                          .arg(boundVeth, boundVethMac.toLower(), leasedVeth)),
             qPrintable(netns.output()));
    QVERIFY2(netns.ip(QStringLiteral("addr add 10.77.0.2/24 dev %1 valid_lft 300 preferred_lft 300").arg(leasedVeth)),
             qPrintable(netns.output()));

    QProcess child;
    child.setProcessChannelMode(QProcess::MergedChannels);
    child.start(QStringLiteral("ip"), {QStringLiteral("netns"), QStringLiteral("exec"), netns.name(),
                                       QCoreApplication::applicationFilePath(), QLatin1String(namespaceOption),
                                       netns.name()});
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
    void refusedStaticAddressChangesNothing_data();
    void refusedStaticAddressChangesNothing();
    void staticAddressReplacesLease_data();
    void staticAddressReplacesLease();
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
    QStringList names;
    for (const NetworkAdapter& adapter : getNetworkAdapters())
        names << adapter.interfaceName;
    names.sort();
    QCOMPARE(names, QStringList({boundVeth, leasedVeth, QStringLiteral("lo")}));

    const NetworkAdapter lo = *adapterNamed(QStringLiteral("lo"));
    QVERIFY(lo.ipv4Address.isNull() && lo.ipv4Netmask.isNull() && !lo.dhcp);

    const NetworkAdapter veth = *adapterNamed(boundVeth);
    QCOMPARE(veth.description, QStringLiteral("veth"));
    QCOMPARE(veth.hardwareAddress, boundVethMac);
    QVERIFY(veth.ipv4Address.isNull() && !veth.dhcp);
    QVERIFY(veth.flags.testFlag(QNetworkInterface::CanBroadcast) && veth.flags.testFlag(QNetworkInterface::CanMulticast));
    const AdapterDriverInfo driver = getAdapterDriverInfo(boundVeth);
    QCOMPARE(driver.driver, QStringLiteral("veth"));
    QVERIFY(!driver.version.isEmpty());
    QCOMPARE(veth.driverVersion, driver.version);

    const NetworkAdapter leased = *adapterNamed(leasedVeth);
    QCOMPARE(leased.ipv4Address, QHostAddress(QStringLiteral("10.77.0.2")));
    QCOMPARE(leased.ipv4Netmask, QHostAddress(QStringLiteral("255.255.255.0")));
    QVERIFY(leased.dhcp);
    int index = 0;
    bool dhcp = false;
    QVERIFY(getAdapterIndex(leasedVeth, index, dhcp).isSuccess());
    QCOMPARE(index, int(::if_nametoindex(qPrintable(leasedVeth))));
    QVERIFY(dhcp);
}

void TestInsideNamespace::findAdapterByMac_data()
{
    QTest::addColumn<QString>("mac");
    QTest::addColumn<QString>("found");
    QTest::newRow("as Qt writes it") << boundVethMac << boundVeth;
    QTest::newRow("lower case") << boundVethMac.toLower() << QString();
    QTest::newRow("hyphens") << QString(boundVethMac).replace(':', '-') << QString();
    QTest::newRow("prefix only") << boundVethMac.left(14) << QString();
    QTest::newRow("empty") << QString() << QString();
}

void TestInsideNamespace::findAdapterByMac()
{
    QFETCH(QString, mac);
    QFETCH(QString, found);
    QCOMPARE(::findAdapterByMac(mac), qMakePair(found, found));
}

void TestInsideNamespace::refusedStaticAddressChangesNothing_data()
{
    QTest::addColumn<QString>("interfaceName");
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("mask");
    QTest::addColumn<int>("code");
    QTest::newRow("holes in the mask") << leasedVeth << "10.77.0.9" << "255.0.255.0" << int(NetworkResult::InvalidNetmask);
    QTest::newRow("zero mask") << leasedVeth << "10.77.0.9" << "0.0.0.0" << int(NetworkResult::InvalidNetmask);
    QTest::newRow("no mask") << leasedVeth << "10.77.0.9" << "" << int(NetworkResult::InvalidNetmask);
    QTest::newRow("network address") << leasedVeth << "10.77.0.0" << "255.255.255.0" << int(NetworkResult::InvalidAddress);
    QTest::newRow("broadcast address") << leasedVeth << "10.77.0.255" << "255.255.255.0" << int(NetworkResult::InvalidAddress);
    QTest::newRow("loopback") << leasedVeth << "127.0.0.5" << "255.0.0.0" << int(NetworkResult::InvalidAddress);
    QTest::newRow("multicast") << leasedVeth << "239.1.1.1" << "255.255.255.0" << int(NetworkResult::InvalidAddress);
    QTest::newRow("IPv6") << leasedVeth << "fd00::5" << "255.255.255.0" << int(NetworkResult::InvalidAddress);
    QTest::newRow("no address") << leasedVeth << "" << "255.255.255.0" << int(NetworkResult::InvalidAddress);
    QTest::newRow("unknown interface") << "nosuchif0" << "10.77.0.9" << "255.255.255.0" << int(NetworkResult::UnknownInterface);
}

void TestInsideNamespace::refusedStaticAddressChangesNothing()
{
    QFETCH(QString, interfaceName);
    QFETCH(QString, address);
    QFETCH(QString, mask);
    QFETCH(int, code);
    const NetworkResult result = AdapterIpConfig::enableStatic(interfaceName, QHostAddress(address), QHostAddress(mask));
    QCOMPARE(result.code(), code);
    QVERIFY(!result.message().isEmpty());
    const QList<QNetworkAddressEntry> entries = ipv4Entries(leasedVeth);
    QCOMPARE(entries.size(), 1);
    QCOMPARE(entries.first().ip(), QHostAddress(QStringLiteral("10.77.0.2")));
    QVERIFY(!entries.first().isPermanent());
}

void TestInsideNamespace::staticAddressReplacesLease_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("mask");
    QTest::newRow("the leased address made permanent") << "10.77.0.2" << "255.255.255.0";
    QTest::newRow("another subnet") << "172.20.1.5" << "255.255.0.0";
    QTest::newRow("point-to-point /31") << "192.168.7.0" << "255.255.255.254";
    QTest::newRow("single host /32") << "192.168.7.9" << "255.255.255.255";
}

void TestInsideNamespace::staticAddressReplacesLease()
{
    QFETCH(QString, address);
    QFETCH(QString, mask);
    const NetworkResult result = AdapterIpConfig::enableStatic(leasedVeth, QHostAddress(address), QHostAddress(mask));
    QVERIFY2(result.isSuccess(), qPrintable(result.message()));

    const QList<QNetworkAddressEntry> entries = ipv4Entries(leasedVeth);
    QCOMPARE(entries.size(), 1);
    QCOMPARE(entries.first().ip(), QHostAddress(address));
    QCOMPARE(entries.first().netmask(), QHostAddress(mask));
    const NetworkAdapter adapter = *adapterNamed(leasedVeth);
    QCOMPARE(adapter.ipv4Address, QHostAddress(address));
    QVERIFY(!adapter.dhcp);
}

void TestInsideNamespace::dhcpNeedsNetworkManager()
{
    const NetworkResult result = AdapterIpConfig::enableDhcp(boundVeth);
    QCOMPARE(result.code(), int(NetworkResult::NotSupported));
    QVERIFY(result.message().contains(boundVeth));
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
