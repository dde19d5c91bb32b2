#include "network/arpprober.h"
#include "network/hostarpprober.h"
#include "network/simulatedarpprober.h"

#include "netnspairfixture.h"

#include <cirro_api.h>

#include <QProcess>
#include <QStandardPaths>
#include <QtTest>

#include <cstring>
#include <memory>
#include <vector>

namespace {

// Stands in for the simulated driver's ARP request and notes every call.
namespace FakeDriver {
inline int calls = 0;
inline QByteArray adapter;
inline QByteArray target;
inline std::int32_t code = PV_OK;
inline const std::uint8_t mac[6] = {0x02, 0x1c, 0xc1, 0x00, 0x0a, 0xff};

std::int32_t arpRequest(const char* adapterName, const char* targetIp, std::uint8_t* answer)
{
    ++calls;
    adapter = adapterName;
    target = targetIp;
    // Written whatever the code, as a careless driver might.
    std::memcpy(answer, mac, sizeof mac);
    return code;
}

void reset(std::int32_t answer)
{
    calls = 0;
    adapter.clear();
    target.clear();
    code = answer;
}
} // namespace FakeDriver

quint32 ipv4(const QString& text)
{
    return QHostAddress(text).toIPv4Address();
}

struct RunnerLine
{
    QString target;
    int code = -1;
    QString mac;
    double elapsedMs = -1;
    QString text;
};

struct RunnerOutput
{
    bool packetSocketPermitted = false;
    std::vector<RunnerLine> lines;
};

constexpr int namespaceTimeoutMs = 400;
constexpr const char* adapterCidr = "10.201.0.1/24";

} // namespace

// The namespace tests run the prober in a child process started by `ip netns
// exec` (arpprobe_runner): a process, unlike a thread moved with setns, sees
// the namespace's own sysfs and can be started as another user, which is the
// only honest way to test the path without a packet socket.
class TestArpProber : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();

    void refusesTargetsThatAreNoHostOfTheSubnet_data();
    void refusesTargetsThatAreNoHostOfTheSubnet();
    void asksForEveryHostOfTheSubnet_data();
    void asksForEveryHostOfTheSubnet();
    void simulatedDriverCodesBecomeProbeResults_data();
    void simulatedDriverCodesBecomeProbeResults();
    void hostAdapterFailures_data();
    void hostAdapterFailures();

    // Ordered so that nothing has been probed when the packet counters are
    // compared: a probed host's kernel keeps talking for a while.
    void refusedTargetsSendNothing_data();
    void refusedTargetsSendNothing();
    void adapterFailuresInsideNamespaces_data();
    void adapterFailuresInsideNamespaces();
    void probesInsideNamespaces_data();
    void probesInsideNamespaces();

private:
    void addPrivilegeRows();
    // Runs the probes in the adapter's namespace, as nobody unless privileged.
    bool runProbes(bool privileged, const QStringList& adapter, const QStringList& targets, RunnerOutput* output);
    qint64 adapterPackets();
    qint64 peerPackets();

    std::unique_ptr<NetnsPairFixture> m_namespaces;
    QString m_namespaceSkipReason;
};

void TestArpProber::initTestCase()
{
    m_namespaceSkipReason = NetnsPairFixture::unavailableReason();
    if (!m_namespaceSkipReason.isEmpty())
        return;
    m_namespaces = std::make_unique<NetnsPairFixture>(QStringLiteral("cirarptest"));
    QStringList peerAddresses;
    for (int host = 2; host <= 20; ++host)
        peerAddresses << QStringLiteral("10.201.0.%1/24").arg(host);
    QVERIFY2(m_namespaces->create(QLatin1String(adapterCidr), peerAddresses), qPrintable(m_namespaces->error()));
    // An adapter that is down, and one that is up without a link.
    QVERIFY2(m_namespaces->ipBatch(m_namespaces->adapterNamespace(),
                                   {QStringLiteral("link add cirdown0 type veth peer name cirdown1"),
                                    QStringLiteral("address add 10.203.0.1/24 dev cirdown0"),
                                    QStringLiteral("link add cirnolink0 type veth peer name cirnolink1"),
                                    QStringLiteral("address add 10.204.0.1/24 dev cirnolink0"),
                                    QStringLiteral("link set cirnolink0 up")}),
             qPrintable(m_namespaces->error()));
}

void TestArpProber::cleanupTestCase()
{
    if (m_namespaces)
        m_namespaces->remove();
}

void TestArpProber::refusesTargetsThatAreNoHostOfTheSubnet_data()
{
    QTest::addColumn<QString>("adapterIp");
    QTest::addColumn<QString>("mask");
    QTest::addColumn<QString>("target");
    QTest::addColumn<int>("code");

    const int refused = HostError::TargetRefused;
    QTest::newRow("outside the subnet") << "10.201.0.1" << "255.255.255.0" << "10.202.0.5" << refused;
    QTest::newRow("just below the subnet") << "10.201.0.1" << "255.255.255.0" << "10.200.255.254" << refused;
    QTest::newRow("just above the subnet") << "10.201.0.1" << "255.255.255.0" << "10.201.1.1" << refused;
    QTest::newRow("network address") << "10.201.0.1" << "255.255.255.0" << "10.201.0.0" << refused;
    QTest::newRow("broadcast address") << "10.201.0.1" << "255.255.255.0" << "10.201.0.255" << refused;
    QTest::newRow("adapter's own address") << "10.201.0.1" << "255.255.255.0" << "10.201.0.1" << refused;
    QTest::newRow("network address of a /30") << "10.201.0.5" << "255.255.255.252" << "10.201.0.4" << refused;
    QTest::newRow("broadcast address of a /30") << "10.201.0.5" << "255.255.255.252" << "10.201.0.7" << refused;
    QTest::newRow("beyond a /31") << "10.201.0.0" << "255.255.255.254" << "10.201.0.2" << refused;
    QTest::newRow("any other host of a /32") << "10.201.0.1" << "255.255.255.255" << "10.201.0.2" << refused;
    QTest::newRow("adapter without address") << "0.0.0.0" << "255.255.255.0" << "0.0.0.2"
                                             << int(HostError::NoAdapterAddress);
    QTest::newRow("adapter with an IPv6 address only") << "fe80::1" << "255.255.255.0" << "10.201.0.2"
                                                        << int(HostError::NoAdapterAddress);
    QTest::newRow("mask with a gap") << "10.201.0.1" << "255.0.255.0" << "10.201.0.2" << int(HostError::InvalidNetmask);
    QTest::newRow("empty mask") << "10.201.0.1" << "0.0.0.0" << "10.201.0.2" << int(HostError::InvalidNetmask);
}

// Every back-end refuses before its own work begins: the host prober on the
// loopback adapter would otherwise fail with "does not use ARP", the simulated
// one would call the driver.
void TestArpProber::refusesTargetsThatAreNoHostOfTheSubnet()
{
    QFETCH(QString, adapterIp);
    QFETCH(QString, mask);
    QFETCH(QString, target);
    QFETCH(int, code);

    FakeDriver::reset(PV_OK);
    std::vector<std::unique_ptr<ArpProber>> probers;
    probers.push_back(std::make_unique<HostArpProber>(QStringLiteral("lo"), QHostAddress(adapterIp), QHostAddress(mask)));
    probers.push_back(std::make_unique<SimulatedArpProber>(&FakeDriver::arpRequest, QStringLiteral("simnet0"),
                                                           QHostAddress(adapterIp), QHostAddress(mask)));
    probers.push_back(ArpProber::create(QStringLiteral("lo"), QHostAddress(adapterIp), QHostAddress(mask)));

    for (const std::unique_ptr<ArpProber>& prober : probers) {
        const ArpProber::ProbeResult result = prober->probe(ipv4(target));
        QCOMPARE(result.result.code(), code);
        QVERIFY(result.mac.isEmpty());
        QVERIFY2(result.result.text().contains(prober->adapterName()), qPrintable(result.result.text()));
        if (code == HostError::TargetRefused)
            QVERIFY2(result.result.text().contains(target), qPrintable(result.result.text()));
    }
    QCOMPARE(FakeDriver::calls, 0);
}

void TestArpProber::asksForEveryHostOfTheSubnet_data()
{
    QTest::addColumn<QString>("adapterIp");
    QTest::addColumn<QString>("mask");
    QTest::addColumn<QString>("target");

    QTest::newRow("first host of a /24") << "10.201.0.7" << "255.255.255.0" << "10.201.0.1";
    QTest::newRow("last host of a /24") << "10.201.0.7" << "255.255.255.0" << "10.201.0.254";
    QTest::newRow("last host of a /8") << "10.201.0.7" << "255.0.0.0" << "10.255.255.254";
    QTest::newRow("other host of a /30") << "10.201.0.5" << "255.255.255.252" << "10.201.0.6";
    QTest::newRow("upper end of a /31") << "10.201.0.0" << "255.255.255.254" << "10.201.0.1";
    QTest::newRow("lower end of a /31") << "10.201.0.1" << "255.255.255.254" << "10.201.0.0";
}

void TestArpProber::asksForEveryHostOfTheSubnet()
{
    QFETCH(QString, adapterIp);
    QFETCH(QString, mask);
    QFETCH(QString, target);

    FakeDriver::reset(PV_OK);
    SimulatedArpProber prober(&FakeDriver::arpRequest, QStringLiteral("simnet0"), QHostAddress(adapterIp),
                              QHostAddress(mask));
    const ArpProber::ProbeResult result = prober.probe(ipv4(target));
    QCOMPARE(FakeDriver::calls, 1);
    QCOMPARE(FakeDriver::adapter, QByteArray("simnet0"));
    QCOMPARE(FakeDriver::target, target.toLatin1());
    QVERIFY2(result.result.isSuccess(), qPrintable(result.result.text()));
}

void TestArpProber::simulatedDriverCodesBecomeProbeResults_data()
{
    QTest::addColumn<int>("driverCode");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("mac");
    QTest::addColumn<QString>("textPart");

    QTest::newRow("a host answered") << int(PV_OK) << 0 << "02:1c:c1:00:0a:ff" << QString();
    QTest::newRow("nobody answered") << int(PV_ERR_TIMEOUT) << int(HostError::NoArpReply) << QString()
                                     << "10.201.0.9";
    QTest::newRow("unknown adapter") << int(PV_ERR_UNKNOWN_ADAPTER) << int(HostError::UnknownInterface)
                                     << QString() << "simnet3";
    QTest::newRow("driver refused the target") << int(PV_ERR_INVALID_PARAMETER) << int(HostError::TargetRefused)
                                               << QString() << "10.201.0.9";
    QTest::newRow("ETH service stopped") << int(PV_ERR_SERVICE_STOPPED) << int(PV_ERR_SERVICE_STOPPED) << QString()
                                         << "112";
    QTest::newRow("general failure") << int(PV_ERR_GENERAL) << int(PV_ERR_GENERAL) << QString() << "-1";
}

void TestArpProber::simulatedDriverCodesBecomeProbeResults()
{
    QFETCH(int, driverCode);
    QFETCH(int, code);
    QFETCH(QString, mac);
    QFETCH(QString, textPart);

    FakeDriver::reset(driverCode);
    SimulatedArpProber prober(&FakeDriver::arpRequest, QStringLiteral("simnet3"), QHostAddress("10.201.0.1"),
                              QHostAddress("255.255.255.0"));
    const ArpProber::ProbeResult result = prober.probe(ipv4(QStringLiteral("10.201.0.9")));
    QCOMPARE(FakeDriver::calls, 1);
    QCOMPARE(result.result.code(), code);
    QCOMPARE(result.mac, mac);
    if (code == 0)
        QVERIFY(result.result.text().isEmpty());
    else
        QVERIFY2(result.result.text().contains(textPart), qPrintable(result.result.text()));
}

void TestArpProber::hostAdapterFailures_data()
{
    QTest::addColumn<QString>("interface");
    QTest::addColumn<QString>("adapterIp");
    QTest::addColumn<QString>("target");
    QTest::addColumn<int>("code");

    QTest::newRow("no such interface") << "cirnone0" << "10.201.0.1" << "10.201.0.2"
                                       << int(HostError::UnknownInterface);
    QTest::newRow("name longer than an interface name") << "cir-name-far-too-long" << "10.201.0.1" << "10.201.0.2"
                                                        << int(HostError::UnknownInterface);
    QTest::newRow("empty name") << "" << "10.201.0.1" << "10.201.0.2" << int(HostError::UnknownInterface);
    QTest::newRow("loopback does not use ARP") << "lo" << "127.0.0.1" << "127.0.0.2" << int(HostError::NotSupported);
}

void TestArpProber::hostAdapterFailures()
{
    QFETCH(QString, interface);
    QFETCH(QString, adapterIp);
    QFETCH(QString, target);
    QFETCH(int, code);

    HostArpProber prober(interface, QHostAddress(adapterIp), QHostAddress("255.255.255.0"));
    const ArpProber::ProbeResult result = prober.probe(ipv4(target));
    QCOMPARE(result.result.code(), code);
    QVERIFY(result.mac.isEmpty());
    QVERIFY2(result.result.text().contains(interface), qPrintable(result.result.text()));
}

void TestArpProber::addPrivilegeRows()
{
    QTest::addColumn<bool>("privileged");
    QTest::newRow("packet socket as root") << true;
    QTest::newRow("kernel neighbour resolution as nobody") << false;
}

void TestArpProber::refusedTargetsSendNothing_data()
{
    addPrivilegeRows();
}

void TestArpProber::refusedTargetsSendNothing()
{
    QFETCH(bool, privileged);
    if (!m_namespaces)
        QSKIP(qPrintable(m_namespaceSkipReason));

    const QStringList targets{QStringLiteral("10.202.0.5"), QStringLiteral("10.201.0.0"),
                              QStringLiteral("10.201.0.255"), QStringLiteral("10.201.0.1")};
    const qint64 sentBefore = adapterPackets();
    const qint64 receivedBefore = peerPackets();
    QVERIFY(sentBefore >= 0 && receivedBefore >= 0);

    RunnerOutput output;
    QVERIFY(runProbes(privileged,
                      {QLatin1String(NetnsPairFixture::adapterInterface), QStringLiteral("10.201.0.1"),
                       QStringLiteral("255.255.255.0")},
                      targets, &output));
    QCOMPARE(output.lines.size(), std::size_t(targets.size()));
    for (const RunnerLine& line : output.lines)
        QVERIFY2(line.code == HostError::TargetRefused, qPrintable(line.target + QLatin1Char(' ') + line.text));
    QCOMPARE(adapterPackets(), sentBefore);
    QCOMPARE(peerPackets(), receivedBefore);
}

void TestArpProber::adapterFailuresInsideNamespaces_data()
{
    QTest::addColumn<bool>("privileged");
    QTest::addColumn<QString>("interface");
    QTest::addColumn<QString>("adapterIp");
    QTest::addColumn<QString>("mask");
    QTest::addColumn<QString>("target");
    QTest::addColumn<int>("code");

    for (const bool privileged : {true, false}) {
        const char* who = privileged ? "root" : "nobody";
        QTest::addRow("adapter down, %s", who) << privileged << "cirdown0" << "10.203.0.1" << "255.255.255.0"
                                               << "10.203.0.2" << int(HostError::InterfaceDown);
        QTest::addRow("adapter without link, %s", who) << privileged << "cirnolink0" << "10.204.0.1"
                                                       << "255.255.255.0" << "10.204.0.2"
                                                       << int(HostError::InterfaceDown);
        QTest::addRow("address the adapter does not hold, %s", who)
            << privileged << "cirarp0" << "10.201.0.9" << "255.255.255.0" << "10.201.0.2"
            << int(HostError::NoAdapterAddress);
        QTest::addRow("address held with another mask, %s", who)
            << privileged << "cirarp0" << "10.201.0.1" << "255.255.0.0" << "10.201.0.2"
            << int(HostError::NoAdapterAddress);
        QTest::addRow("the peer namespace's interface, %s", who)
            << privileged << "cirarp1" << "10.201.0.1" << "255.255.255.0" << "10.201.0.2"
            << int(HostError::UnknownInterface);
    }
}

void TestArpProber::adapterFailuresInsideNamespaces()
{
    QFETCH(bool, privileged);
    QFETCH(QString, interface);
    QFETCH(QString, adapterIp);
    QFETCH(QString, mask);
    QFETCH(QString, target);
    QFETCH(int, code);
    if (!m_namespaces)
        QSKIP(qPrintable(m_namespaceSkipReason));

    const qint64 sentBefore = adapterPackets();
    const qint64 receivedBefore = peerPackets();
    RunnerOutput output;
    QVERIFY(runProbes(privileged, {interface, adapterIp, mask}, {target}, &output));
    QCOMPARE(output.lines.size(), std::size_t(1));
    QVERIFY2(output.lines.front().code == code, qPrintable(output.lines.front().text));
    QVERIFY2(output.lines.front().text.contains(interface), qPrintable(output.lines.front().text));
    QCOMPARE(adapterPackets(), sentBefore);
    QCOMPARE(peerPackets(), receivedBefore);
}

void TestArpProber::probesInsideNamespaces_data()
{
    addPrivilegeRows();
}

void TestArpProber::probesInsideNamespaces()
{
    QFETCH(bool, privileged);
    if (!m_namespaces)
        QSKIP(qPrintable(m_namespaceSkipReason));

    const qint64 sentBefore = adapterPackets();
    // .2 twice: the second time the kernel already knows the host.
    RunnerOutput output;
    QVERIFY(runProbes(privileged,
                      {QLatin1String(NetnsPairFixture::adapterInterface), QStringLiteral("10.201.0.1"),
                       QStringLiteral("255.255.255.0")},
                      {QStringLiteral("10.201.0.2"), QStringLiteral("10.201.0.20"), QStringLiteral("10.201.0.21"),
                       QStringLiteral("10.201.0.2")},
                      &output));
    // The row tests what it says only if the child really had (or lacked)
    // the packet socket.
    QCOMPARE(output.packetSocketPermitted, privileged);
    QCOMPARE(output.lines.size(), std::size_t(4));

    for (const std::size_t answered : {0, 1, 3}) {
        const RunnerLine& line = output.lines[answered];
        QVERIFY2(line.code == 0, qPrintable(line.target + QLatin1Char(' ') + line.text));
        QCOMPARE(line.mac, QLatin1String(NetnsPairFixture::peerMac));
        QVERIFY2(line.elapsedMs < namespaceTimeoutMs, qPrintable(QString::number(line.elapsedMs)));
    }

    // Without this the counters that prove refusals silent could be stuck.
    QVERIFY(adapterPackets() > sentBefore);

    const RunnerLine& silent = output.lines[2];
    QCOMPARE(silent.target, QStringLiteral("10.201.0.21"));
    QVERIFY2(silent.code == HostError::NoArpReply, qPrintable(silent.text));
    QVERIFY(silent.mac.isEmpty());
    QVERIFY2(silent.elapsedMs >= namespaceTimeoutMs - 1 && silent.elapsedMs < namespaceTimeoutMs + 1500,
             qPrintable(QString::number(silent.elapsedMs)));
}

bool TestArpProber::runProbes(bool privileged, const QStringList& adapter, const QStringList& targets,
                              RunnerOutput* output)
{
    QStringList arguments{QStringLiteral("netns"), QStringLiteral("exec"), m_namespaces->adapterNamespace()};
    if (!privileged) {
        const QString setpriv = QStandardPaths::findExecutable(QStringLiteral("setpriv"));
        if (setpriv.isEmpty()) {
            qWarning("setpriv (util-linux) is needed to run the probes as nobody");
            return false;
        }
        arguments << setpriv << QStringLiteral("--reuid=65534") << QStringLiteral("--regid=65534")
                  << QStringLiteral("--clear-groups");
    }
    arguments << QStringLiteral(ARPPROBE_RUNNER) << QString::number(namespaceTimeoutMs) << adapter << targets;

    QProcess runner;
    runner.start(NetnsPairFixture::ipProgram(), arguments);
    if (!runner.waitForFinished(60000) || runner.exitStatus() != QProcess::NormalExit || runner.exitCode() != 0) {
        qWarning() << "arpprobe_runner failed:" << runner.errorString() << runner.readAllStandardError();
        return false;
    }
    const QList<QByteArray> lines = runner.readAllStandardOutput().split('\n');
    output->packetSocketPermitted = lines.value(0).trimmed() == "packet-socket permitted";
    for (int i = 1; i < lines.size(); ++i) {
        const QString line = QString::fromUtf8(lines[i]);
        if (line.isEmpty())
            continue;
        RunnerLine parsed;
        parsed.target = line.section(QLatin1Char(' '), 0, 0);
        parsed.code = line.section(QLatin1Char(' '), 1, 1).toInt();
        parsed.mac = line.section(QLatin1Char(' '), 2, 2);
        if (parsed.mac == QLatin1String("-"))
            parsed.mac.clear();
        parsed.elapsedMs = line.section(QLatin1Char(' '), 3, 3).toDouble();
        parsed.text = line.section(QLatin1Char(' '), 4);
        output->lines.push_back(parsed);
    }
    return true;
}

qint64 TestArpProber::adapterPackets()
{
    return m_namespaces->packetCount(m_namespaces->adapterNamespace(),
                                     QLatin1String(NetnsPairFixture::adapterInterface), QStringLiteral("tx"));
}

qint64 TestArpProber::peerPackets()
{
    return m_namespaces->packetCount(m_namespaces->peerNamespace(), QLatin1String(NetnsPairFixture::peerInterface),
                                     QStringLiteral("rx"));
}

QTEST_GUILESS_MAIN(TestArpProber)
#include "tst_arpprober.moc"
