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
#include <utility>
#include <vector>

namespace {

// Stands in for the simulated driver's ARP request and notes every call.
namespace FakeDriver {
inline int calls = 0;
inline QByteArray request; // "<adapter> <target>" of the last call
inline std::int32_t code = PV_OK;

std::int32_t arpRequest(const char* adapterName, const char* targetIp, std::uint8_t* answer)
{
    ++calls;
    request = QByteArray(adapterName) + ' ' + targetIp;
    // Written whatever the code, as a careless driver might.
    std::memcpy(answer, "\x02\x1c\xc1\x00\x0a\xff", 6);
    return code;
}
} // namespace FakeDriver

quint32 ipv4(const QString& text)
{
    return QHostAddress(text).toIPv4Address();
}

// An adapter's address and mask from "10.201.0.1/24" or "10.201.0.1/255.0.255.0".
std::pair<QHostAddress, QHostAddress> adapterOf(const QString& text)
{
    const QString mask = text.section('/', 1);
    return {QHostAddress(text.section('/', 0, 0)),
            mask.contains('.') ? QHostAddress(mask) : QHostAddress(~quint32(0) << (32 - mask.toInt()))};
}

constexpr int namespaceTimeoutMs = 400;

} // namespace

// The namespace tests run the prober in a child process started by `ip netns
// exec` (arpprobe_runner), in the adapter's namespace, as root or as nobody: a
// process, unlike a thread moved with setns, sees the namespace's own sysfs and
// can be started as another user, which is the only honest way to test the
// path without a packet socket.
class TestArpProber : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase() { m_namespaces.reset(); }

    void refusesTargetsThatAreNoHostOfTheSubnet_data();
    void refusesTargetsThatAreNoHostOfTheSubnet();
    void probeOutcome_data();
    void probeOutcome();
    void probesInsideNamespaces_data();
    void probesInsideNamespaces();

private:
    std::unique_ptr<NetnsPairFixture> m_namespaces;
    QString m_namespaceSkipReason;
};

void TestArpProber::initTestCase()
{
    m_namespaceSkipReason = NetnsPairFixture::unavailableReason();
    if (!m_namespaceSkipReason.isEmpty())
        return;
    m_namespaces = std::make_unique<NetnsPairFixture>("cirarptest");
    QVERIFY2(m_namespaces->create("10.201.0.1/24", {"10.201.0.2/24", "10.201.0.20/24"}),
             qPrintable(m_namespaces->error()));
    // An adapter that is down, and one that is up without a link.
    QVERIFY2(m_namespaces->ipBatch(m_namespaces->adapterNamespace(),
                                   {"link add cirdown0 type veth peer name cirdown1",
                                    "address add 10.203.0.1/24 dev cirdown0",
                                    "link add cirnolink0 type veth peer name cirnolink1",
                                    "address add 10.204.0.1/24 dev cirnolink0", "link set cirnolink0 up"}),
             qPrintable(m_namespaces->error()));
}

void TestArpProber::refusesTargetsThatAreNoHostOfTheSubnet_data()
{
    QTest::addColumn<QString>("adapter");
    QTest::addColumn<QString>("target");
    QTest::addColumn<int>("code");

    const int refused = HostError::TargetRefused;
    QTest::newRow("just below the subnet") << "10.201.0.1/24" << "10.200.255.254" << refused;
    QTest::newRow("just above the subnet") << "10.201.0.1/24" << "10.201.1.1" << refused;
    QTest::newRow("network address of a /30") << "10.201.0.5/30" << "10.201.0.4" << refused;
    QTest::newRow("broadcast address of a /30") << "10.201.0.5/30" << "10.201.0.7" << refused;
    QTest::newRow("adapter's own address") << "10.201.0.1/24" << "10.201.0.1" << refused;
    QTest::newRow("beyond a /31") << "10.201.0.0/31" << "10.201.0.2" << refused;
    QTest::newRow("any other host of a /32") << "10.201.0.1/32" << "10.201.0.2" << refused;
    QTest::newRow("adapter without IPv4 address") << "fe80::1/24" << "10.201.0.2" << int(HostError::NoAdapterAddress);
    QTest::newRow("mask with a gap") << "10.201.0.1/255.0.255.0" << "10.201.0.2" << int(HostError::InvalidNetmask);
    QTest::newRow("empty mask") << "10.201.0.1/0.0.0.0" << "10.201.0.2" << int(HostError::InvalidNetmask);
}

// Every back-end refuses before its own work begins: the host prober on the
// loopback adapter would otherwise fail with "does not use ARP", the simulated
// one would call the driver.
void TestArpProber::refusesTargetsThatAreNoHostOfTheSubnet()
{
    QFETCH(QString, adapter);
    QFETCH(QString, target);
    QFETCH(int, code);

    FakeDriver::calls = 0;
    const auto [ip, mask] = adapterOf(adapter);
    std::vector<std::unique_ptr<ArpProber>> probers;
    probers.push_back(std::make_unique<HostArpProber>("lo", ip, mask));
    probers.push_back(std::make_unique<SimulatedArpProber>(&FakeDriver::arpRequest, "simnet0", ip, mask));
    probers.push_back(ArpProber::create("lo", ip, mask));

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

void TestArpProber::probeOutcome_data()
{
    QTest::addColumn<QString>("interface"); // the simulated driver's when it starts with "simnet"
    QTest::addColumn<QString>("adapter");   // address/prefix length
    QTest::addColumn<QString>("target");
    QTest::addColumn<int>("driverCode");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("textPart"); // besides the interface, in a failure's text

    auto asked = [](const char* name, const char* adapter, const char* target) {
        QTest::newRow(name) << QString("simnet3") << QString(adapter) << QString(target) << int(PV_OK) << 0 << QString();
    };
    auto failed = [](const char* name, const char* interface, int driverCode, int code, const QString& textPart) {
        QTest::newRow(name) << QString(interface) << QString("10.201.0.1/24") << QString("10.201.0.9") << driverCode
                            << code << textPart;
    };
    // Hosts at both ends of the subnet are asked for.
    asked("first host of a /24", "10.201.0.7/24", "10.201.0.1");
    asked("last host of a /8", "10.201.0.7/8", "10.255.255.254");
    asked("upper end of a /31", "10.201.0.0/31", "10.201.0.1");
    asked("lower end of a /31", "10.201.0.1/31", "10.201.0.0");
    failed("nobody answered", "simnet3", PV_ERR_TIMEOUT, HostError::NoArpReply, "10.201.0.9");
    failed("unknown simulated adapter", "simnet3", PV_ERR_UNKNOWN_ADAPTER, HostError::UnknownInterface, "");
    failed("driver refused the target", "simnet3", PV_ERR_INVALID_PARAMETER, HostError::TargetRefused, "10.201.0.9");
    failed("other driver codes passed on", "simnet3", PV_ERR_SERVICE_STOPPED, PV_ERR_SERVICE_STOPPED,
           QString::number(PV_ERR_SERVICE_STOPPED));
    failed("no such host interface", "cirnone0", 0, HostError::UnknownInterface, "");
    failed("name longer than an interface name", "cir-name-far-too-long", 0, HostError::UnknownInterface, "");
    failed("loopback does not use ARP", "lo", 0, HostError::NotSupported, "");
}

void TestArpProber::probeOutcome()
{
    QFETCH(QString, interface);
    QFETCH(QString, adapter);
    QFETCH(QString, target);
    QFETCH(int, driverCode);
    QFETCH(int, code);
    QFETCH(QString, textPart);

    FakeDriver::calls = 0;
    FakeDriver::code = driverCode;
    const bool simulated = interface.startsWith("simnet");
    const auto [ip, mask] = adapterOf(adapter);
    std::unique_ptr<ArpProber> prober;
    if (simulated)
        prober = std::make_unique<SimulatedArpProber>(&FakeDriver::arpRequest, interface, ip, mask);
    else
        prober = std::make_unique<HostArpProber>(interface, ip, mask);
    const ArpProber::ProbeResult result = prober->probe(ipv4(target));
    QCOMPARE(FakeDriver::calls, int(simulated));
    if (simulated)
        QCOMPARE(FakeDriver::request, interface.toLatin1() + ' ' + target.toLatin1());
    QCOMPARE(result.result.code(), code);
    // A MAC only with an answer, whatever the driver wrote.
    QCOMPARE(result.mac, QString(code == 0 ? "02:1c:c1:00:0a:ff" : ""));
    if (code != 0) {
        QVERIFY2(result.result.text().contains(interface), qPrintable(result.result.text()));
        QVERIFY2(result.result.text().contains(textPart), qPrintable(result.result.text()));
    }
}

void TestArpProber::probesInsideNamespaces_data()
{
    QTest::addColumn<bool>("privileged");
    QTest::addColumn<QStringList>("arguments"); // interface, adapter IP, mask, targets
    QTest::addColumn<QVector<int>>("codes");    // one per target

    // Failures first: a probed host's kernel keeps talking for a while, which
    // would move the packet counter that shows them silent.
    for (const bool privileged : {true, false}) {
        auto row = [&](const char* what, const QStringList& arguments, int code) {
            QTest::addRow("%s, %s", what, privileged ? "root" : "nobody")
                << privileged << arguments << QVector<int>(arguments.size() - 3, code);
        };
        row("refused targets",
            {"cirarp0", "10.201.0.1", "255.255.255.0", "10.202.0.5", "10.201.0.0", "10.201.0.255", "10.201.0.1"},
            HostError::TargetRefused);
        row("adapter down", {"cirdown0", "10.203.0.1", "255.255.255.0", "10.203.0.2"}, HostError::InterfaceDown);
        row("adapter without link", {"cirnolink0", "10.204.0.1", "255.255.255.0", "10.204.0.2"},
            HostError::InterfaceDown);
        row("address the adapter does not hold", {"cirarp0", "10.201.0.9", "255.255.255.0", "10.201.0.2"},
            HostError::NoAdapterAddress);
        row("address held with another mask", {"cirarp0", "10.201.0.1", "255.255.0.0", "10.201.0.2"},
            HostError::NoAdapterAddress);
    }
    // .2 twice: the second time the kernel already knows the host. Nobody holds .21.
    const QStringList probes{"cirarp0",    "10.201.0.1",  "255.255.255.0", "10.201.0.2",
                             "10.201.0.20", "10.201.0.21", "10.201.0.2"};
    const QVector<int> codes{0, 0, HostError::NoArpReply, 0};
    QTest::newRow("probes, packet socket as root") << true << probes << codes;
    QTest::newRow("probes, kernel neighbour resolution as nobody") << false << probes << codes;
}

void TestArpProber::probesInsideNamespaces()
{
    QFETCH(bool, privileged);
    QFETCH(QStringList, arguments);
    QFETCH(QVector<int>, codes);
    if (!m_namespaces)
        QSKIP(qPrintable(m_namespaceSkipReason));

    QStringList command{"netns", "exec", m_namespaces->adapterNamespace()};
    if (!privileged) {
        const QString setpriv = QStandardPaths::findExecutable("setpriv");
        QVERIFY2(!setpriv.isEmpty(), "setpriv (util-linux) is needed to run the probes as nobody");
        command << setpriv << "--reuid=65534" << "--regid=65534" << "--clear-groups";
    }
    command << ARPPROBE_RUNNER << QString::number(namespaceTimeoutMs) << arguments;
    const qint64 sentBefore = m_namespaces->adapterPacketsSent();
    QVERIFY2(sentBefore >= 0, qPrintable(m_namespaces->error()));
    QProcess runner;
    runner.start(NetnsPairFixture::ipProgram(), command);
    QVERIFY(runner.waitForFinished(60000));
    QVERIFY2(runner.exitStatus() == QProcess::NormalExit && runner.exitCode() == 0, runner.readAllStandardError());

    const QStringList output = QString::fromUtf8(runner.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
    // Else the row would not test the path it names.
    QCOMPARE(output.value(0) == "packet-socket permitted", privileged);
    QCOMPARE(output.size() - 1, codes.size());
    for (int i = 0; i < codes.size(); ++i) {
        const QString& line = output[i + 1]; // <target> <code> <MAC or -> <elapsed ms> <text>
        const int code = line.section(' ', 1, 1).toInt();
        const double elapsedMs = line.section(' ', 3, 3).toDouble();
        QVERIFY2(code == codes[i], qPrintable(line));
        QCOMPARE(line.section(' ', 2, 2), QString(code == 0 ? NetnsPairFixture::peerMac : "-"));
        if (code == 0)
            QVERIFY2(elapsedMs < namespaceTimeoutMs, qPrintable(line));
        else if (code == HostError::NoArpReply)
            QVERIFY2(elapsedMs >= namespaceTimeoutMs - 1 && elapsedMs < namespaceTimeoutMs + 1500, qPrintable(line));
        else
            QVERIFY2(line.section(' ', 4).contains(arguments.first()), qPrintable(line));
    }
    // Sent only when something was probed; that it moved then shows the
    // counter works.
    QCOMPARE(m_namespaces->adapterPacketsSent() > sentBefore, codes.contains(0));
}

QTEST_GUILESS_MAIN(TestArpProber)
#include "tst_arpprober.moc"
