#include "network/adapterdiagnosis.h"

#include "fleetcamera.h"
#include "netnspairfixture.h"
#include "simdriverfixture.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMetaEnum>
#include <QProcess>
#include <QRegularExpression>
#include <QtTest>

#include <map>
#include <memory>

namespace {

template <typename Enum>
QString keyOf(Enum value)
{
    return QString::fromLatin1(QMetaEnum::fromType<Enum>().valueToKey(int(value)));
}

// "Error PacketSize", in the order given; and the status with every text.
void summarise(const AdapterDiagnosis& diagnosis, QStringList* keys, QString* texts)
{
    *texts = diagnosis.status() + QLatin1Char('\n');
    for (const AdapterFinding& finding : diagnosis.findings()) {
        *keys << keyOf(finding.severity()) + QLatin1Char(' ') + keyOf(finding.check());
        *texts += finding.problem() + QLatin1Char('\n') + finding.remedy() + QLatin1Char('\n');
    }
}

// Every way the driver's view of an adapter can fall short, one per adapter.
const QByteArray troubledFleet = R"({"adapters": [
    {"name": "short0", "mac": "02:00:00:00:05:01", "ip": "10.5.0.1", "mask": "255.255.255.0", "mtu": 2075,
     "jumbo2k": false},
    {"name": "enough0", "mac": "02:00:00:00:05:02", "ip": "10.7.0.1", "mask": "255.255.255.0", "mtu": 2076},
    {"name": "noaddr0", "mac": "02:00:00:00:05:03", "dhcp": true, "bound": false, "linkSpeed": 100},
    {"name": "ll0", "mac": "02:00:00:00:05:04", "ip": "169.254.10.1", "mask": "255.255.0.0"},
    {"name": "nolink0", "mac": "02:00:00:00:05:05", "ip": "10.6.0.1", "mask": "255.255.255.0", "mtu": 1500,
     "linkUp": false}]})";

} // namespace

// The host back-end runs in a child process started by `ip netns exec`
// (adapterdiagnosis_runner), which sees the namespace's own sysfs and
// /proc/sys; the namespace's adapters are built so that each shows one fault.
class TestAdapterDiagnosis : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();

    void simulatedAdapters_data();
    void simulatedAdapters();
    void cameraAdvice_data();
    void cameraAdvice();
    void kernelSettings_data();
    void kernelSettings();
    void hostAdaptersInsideNamespace_data();
    void hostAdaptersInsideNamespace();

private:
    bool buildNamespace();
    bool sysctl(const QStringList& assignments);

    SimDriverFixture::EmptyConfigRoot m_emptyConfig;
    std::unique_ptr<NetnsPairFixture> m_namespaces;
    QString m_namespaceSkipReason;
    std::map<QString, QJsonObject> m_hostResults; // by runner argument
};

void TestAdapterDiagnosis::initTestCase()
{
    QVERIFY(m_emptyConfig.isValid());
    m_emptyConfig.use();
    m_namespaceSkipReason = NetnsPairFixture::unavailableReason();
    if (m_namespaceSkipReason.isEmpty())
        QVERIFY(buildNamespace());
}

void TestAdapterDiagnosis::cleanupTestCase()
{
    if (m_namespaces)
        m_namespaces->remove();
}

void TestAdapterDiagnosis::init()
{
    m_emptyConfig.use();
    QVERIFY(SimDriverFixture::reset());
}

void TestAdapterDiagnosis::simulatedAdapters_data()
{
    QTest::addColumn<QByteArray>("scenario"); // empty: the default fleet
    QTest::addColumn<QString>("adapter");
    QTest::addColumn<QString>("camera");
    QTest::addColumn<QStringList>("findings");
    QTest::addColumn<QString>("mentions"); // in the status or the findings' texts

    const QByteArray fleet = troubledFleet;
    QTest::newRow("nothing wrong") << QByteArray() << "simnet0" << QString() << QStringList()
        << "Link up at 1 Gbit/s; 192.168.50.1/255.255.255.0, static; MTU 9000; ETH service bound";
    QTest::newRow("no 2 KB packets from the driver") << QByteArray() << "simnet2" << QString()
        << QStringList{"Error PacketSize"} << "ETH service's adapter settings";
    QTest::newRow("MTU a byte short, whatever the driver sends") << fleet << "short0" << QString()
        << QStringList{"Error PacketSize"} << "MTU of short0 to 9000, or to at least 2076";
    QTest::newRow("MTU just enough") << fleet << "enough0" << QString() << QStringList() << "MTU 2076";
    QTest::newRow("no address, waiting for DHCP, unbound") << fleet << "noaddr0" << QString()
        << QStringList{"Error Address"} << "Link up at 100 Mbit/s; no IPv4 address, DHCP; MTU 9000; ETH service "
                                           "not bound";
    QTest::newRow("link-local address") << fleet << "ll0" << QString() << QStringList{"Warning LinkLocal"}
                                        << "169.254.10.1";
    QTest::newRow("link-local, camera as well") << fleet << "ll0" << "169.254.7.7" << QStringList() << QString();
    QTest::newRow("no link comes first") << fleet << "nolink0" << QString()
        << QStringList{"Error Link", "Error PacketSize"} << "No link; 10.6.0.1/255.255.255.0";
}

void TestAdapterDiagnosis::simulatedAdapters()
{
    QFETCH(QByteArray, scenario);
    QFETCH(QString, adapter);
    QFETCH(QString, camera);
    QFETCH(QStringList, findings);
    QFETCH(QString, mentions);

    if (!scenario.isEmpty())
        QCOMPARE(pvsim_LoadScenarioText(scenario.constData()), PV_OK);
    const AdapterDiagnosis diagnosis = AdapterDiagnosis::diagnose(adapter, QHostAddress(camera));
    QVERIFY(diagnosis.result().isSuccess());
    QStringList keys;
    QString texts;
    summarise(diagnosis, &keys, &texts);
    QCOMPARE(keys, findings);
    QVERIFY2(texts.contains(mentions), qPrintable(texts));
    // Host commands mean nothing for the driver's adapters.
    QVERIFY2(!texts.contains(QLatin1String("ip link")), qPrintable(texts));
}

void TestAdapterDiagnosis::cameraAdvice_data()
{
    QTest::addColumn<quint32>("deviceId");
    QTest::addColumn<QString>("advice");

    QTest::newRow("GigE camera on a sound adapter") << 1000u << QString();
    QTest::newRow("GigE camera behind small packets") << 1006u
        << "The driver sends no 2 KB packets on simnet2: switch them on in the ETH service's adapter settings.";
    QTest::newRow("USB camera") << 1u << QString();
}

void TestAdapterDiagnosis::cameraAdvice()
{
    QFETCH(quint32, deviceId);
    QFETCH(QString, advice);
    const Camera camera = fleetCamera(deviceId);
    QCOMPARE(camera.deviceId(), deviceId);
    QCOMPARE(AdapterDiagnosis::cameraAdvice(camera), advice);
}

void TestAdapterDiagnosis::kernelSettings_data()
{
    QTest::addColumn<QByteArray>("rmemMax"); // null: can't be read
    QTest::addColumn<QByteArray>("allFilter");
    QTest::addColumn<QByteArray>("ownFilter");
    QTest::addColumn<QStringList>("findings");
    QTest::addColumn<QString>("mentions");

    const QByteArray enough = "8388608\n";
    const QStringList buffer{"Warning ReceiveBuffer"};
    const QStringList filter{"Warning ReversePathFilter"};
    QTest::newRow("buffer of 8 MiB, no filter") << enough << QByteArray("0") << QByteArray("0") << QStringList()
                                                << QString();
    QTest::newRow("buffer a byte short") << QByteArray("8388607") << QByteArray("0") << QByteArray("2") << buffer
                                         << "net.core.rmem_max=8388608";
    QTest::newRow("unreadable buffer") << QByteArray() << QByteArray("0") << QByteArray("0")
                                       << QStringList{"Info ReceiveBuffer"} << "not in this test";
    QTest::newRow("strict on the adapter") << enough << QByteArray("0") << QByteArray("1") << filter
                                           << "sysctl -w net.ipv4.conf.lo.rp_filter=2";
    QTest::newRow("strict for all") << enough << QByteArray("1") << QByteArray("0") << filter
                                    << "net.ipv4.conf.all.rp_filter = 1";
    QTest::newRow("loose adapter outweighs strict all") << enough << QByteArray("1") << QByteArray("2")
                                                        << QStringList() << QString();
    QTest::newRow("filter value no number") << enough << QByteArray("0") << QByteArray("strict")
                                            << QStringList{"Info ReversePathFilter"} << "\"strict\"";
    QTest::newRow("filter before buffer") << QByteArray("4096") << QByteArray("1") << QByteArray("1")
                                          << filter + buffer << "4 KiB";
}

// Through a reader of its own, on the loopback interface, which is only read.
void TestAdapterDiagnosis::kernelSettings()
{
    QFETCH(QByteArray, rmemMax);
    QFETCH(QByteArray, allFilter);
    QFETCH(QByteArray, ownFilter);
    QFETCH(QStringList, findings);
    QFETCH(QString, mentions);

    std::map<QString, QByteArray> settings{{"net/ipv4/conf/all/rp_filter", allFilter},
                                           {"net/ipv4/conf/lo/rp_filter", ownFilter}};
    if (!rmemMax.isNull())
        settings.emplace("net/core/rmem_max", rmemMax);
    const auto read = [&](const QString& path, QByteArray* contents) {
        const auto found = settings.find(path);
        if (found == settings.end())
            return Result(HostError::NotSupported, QStringLiteral("%1 is not in this test").arg(path));
        *contents = found->second;
        return Result();
    };
    QStringList keys;
    QString texts;
    summarise(AdapterDiagnosis::diagnoseHost(QStringLiteral("lo"), QHostAddress(), read), &keys, &texts);
    // The loopback interface of the machine that runs the test may show more.
    keys = keys.filter(QRegularExpression(QStringLiteral("ReversePathFilter|ReceiveBuffer")));
    QCOMPARE(keys, findings);
    QVERIFY2(texts.contains(mentions), qPrintable(texts));
}

void TestAdapterDiagnosis::hostAdaptersInsideNamespace_data()
{
    QTest::addColumn<QString>("argument"); // interface[@camera]
    QTest::addColumn<int>("code");
    QTest::addColumn<QStringList>("findings");
    QTest::addColumn<QString>("mentions"); // in the status and the findings' texts

    QTest::newRow("nothing wrong") << "cirarp0" << 0 << QStringList()
                                   << "10.210.1.1/255.255.255.0, static; MTU 9000; ETH service bound";
    QTest::newRow("MTU 1500") << "cirmtu0" << 0 << QStringList{"Error PacketSize"}
                              << "ip link set dev cirmtu0 mtu 9000";
    QTest::newRow("strict reverse-path filter") << "cirrpf0" << 0 << QStringList{"Warning ReversePathFilter"}
                                                << "net.ipv4.conf.cirrpf0.rp_filter = 1";
    QTest::newRow("no address") << "cirnoad0" << 0 << QStringList{"Error Address"} << "no IPv4 address, static";
    QTest::newRow("same subnet, the other one has the route")
        << "cirtwb0" << 0 << QStringList{"Error Route"} << "leaves through cirtwa0, which has an address in the "
                                                          "same subnet 10.210.4.0/24";
    QTest::newRow("same subnet, camera's address asked for")
        << "cirtwb0@10.210.4.50" << 0 << QStringList{"Error Route"} << "Traffic to 10.210.4.50 leaves through cirtwa0";
    QTest::newRow("same subnet, this one has the route") << "cirtwa0" << 0 << QStringList() << "Link up";
    QTest::newRow("no carrier") << "cirnol0" << 0 << QStringList{"Error Link"} << "No link;";
    QTest::newRow("switched off") << "ciroff0" << 0 << QStringList{"Error Link"} << "ip link set dev ciroff0 up";
    QTest::newRow("no such adapter") << "cirnone0" << int(HostError::UnknownInterface) << QStringList() << QString();
    QTest::newRow("a path for a name") << "../lo" << int(HostError::UnknownInterface) << QStringList() << QString();
    QTest::newRow("an index for a name") << "1" << int(HostError::UnknownInterface) << QStringList() << QString();
}

void TestAdapterDiagnosis::hostAdaptersInsideNamespace()
{
    if (!m_namespaceSkipReason.isEmpty())
        QSKIP(qPrintable(m_namespaceSkipReason));
    QFETCH(QString, argument);
    QFETCH(int, code);
    QFETCH(QStringList, findings);
    QFETCH(QString, mentions);

    QVERIFY2(m_hostResults.count(argument) == 1, qPrintable(argument));
    const QJsonObject result = m_hostResults[argument];
    QCOMPARE(result.value("code").toInt(), code);
    QStringList keys;
    QString texts = result.value("status").toString() + QLatin1Char('\n');
    for (const QJsonValue& value : result.value("findings").toArray()) {
        const QJsonObject finding = value.toObject();
        keys << finding.value("severity").toString() + QLatin1Char(' ') + finding.value("check").toString();
        texts += finding.value("problem").toString() + QLatin1Char('\n') + finding.value("remedy").toString();
    }
    QCOMPARE(keys, findings);
    QVERIFY2(texts.contains(mentions), qPrintable(texts));
}

// In the fixture's adapter namespace, beside its clean cirarp0, one veth pair
// per fault; the peers stay in the same namespace without addresses. Then the
// runner diagnoses every row's adapter at once.
bool TestAdapterDiagnosis::buildNamespace()
{
    m_namespaces = std::make_unique<NetnsPairFixture>(QStringLiteral("cirdiagtest"));
    if (!m_namespaces->create(QStringLiteral("10.210.1.1/24"), {QStringLiteral("10.210.1.2/24")})) {
        qWarning().noquote() << m_namespaces->error();
        return false;
    }
    // Whatever the host's distribution sets, the namespace starts without a
    // filter; only cirrpf0 gets one.
    if (!sysctl({"net.ipv4.conf.all.rp_filter=0", "net.ipv4.conf.default.rp_filter=0",
                 "net.ipv4.conf.cirarp0.rp_filter=0"}))
        return false;
    QStringList commands{
        "link set cirarp0 mtu 9000",
        "link add cirmtu0 type veth peer name cirmtu1",
        "address add 10.210.2.1/24 dev cirmtu0",
        "link add cirrpf0 mtu 9000 type veth peer name cirrpf1",
        "address add 10.210.3.1/24 dev cirrpf0",
        "link add cirnoad0 mtu 9000 type veth peer name cirnoad1",
        // Two adapters on one subnet; the lower metric makes cirtwa0's route win.
        "link add cirtwa0 mtu 9000 type veth peer name cirtwa1",
        "link add cirtwb0 mtu 9000 type veth peer name cirtwb1",
        "address add 10.210.4.1/24 dev cirtwa0",
        "address add 10.210.4.2/24 dev cirtwb0 metric 100",
        // Up without a carrier: its peer stays down.
        "link add cirnol0 mtu 9000 type veth peer name cirnol1",
        "address add 10.210.5.1/24 dev cirnol0",
        "link add ciroff0 mtu 9000 type veth peer name ciroff1",
        "address add 10.210.6.1/24 dev ciroff0",
    };
    for (const char* name : {"cirmtu0", "cirmtu1", "cirrpf0", "cirrpf1", "cirnoad0", "cirnoad1", "cirtwa0",
                             "cirtwa1", "cirtwb0", "cirtwb1", "cirnol0"})
        commands << QStringLiteral("link set %1 up").arg(QLatin1String(name));
    if (!m_namespaces->ipBatch(m_namespaces->adapterNamespace(), commands)) {
        qWarning().noquote() << m_namespaces->error();
        return false;
    }
    if (!sysctl({"net.ipv4.conf.cirrpf0.rp_filter=1"}))
        return false;

    QStringList arguments{QStringLiteral("netns"), QStringLiteral("exec"), m_namespaces->adapterNamespace(),
                          QStringLiteral(ADAPTERDIAGNOSIS_RUNNER),
                          QString::number(AdapterFinding::minimumReceiveBuffer)};
    // One for each row of hostAdaptersInsideNamespace_data().
    arguments << "cirarp0" << "cirmtu0" << "cirrpf0" << "cirnoad0" << "cirtwb0" << "cirtwb0@10.210.4.50"
              << "cirtwa0" << "cirnol0" << "ciroff0" << "cirnone0" << "../lo" << "1";
    QProcess runner;
    runner.start(NetnsPairFixture::ipProgram(), arguments);
    if (!runner.waitForFinished(60000) || runner.exitStatus() != QProcess::NormalExit || runner.exitCode() != 0) {
        qWarning() << "adapterdiagnosis_runner failed:" << runner.errorString() << runner.readAllStandardError();
        return false;
    }
    for (const QJsonValue& value : QJsonDocument::fromJson(runner.readAllStandardOutput()).array())
        m_hostResults[value.toObject().value("argument").toString()] = value.toObject();
    return true;
}

bool TestAdapterDiagnosis::sysctl(const QStringList& assignments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(NetnsPairFixture::ipProgram(), QStringList{QStringLiteral("netns"), QStringLiteral("exec"),
                                                             m_namespaces->adapterNamespace(), QStringLiteral("sysctl"),
                                                             QStringLiteral("-qw")} + assignments);
    const bool done = process.waitForFinished(30000) && process.exitStatus() == QProcess::NormalExit
                      && process.exitCode() == 0;
    if (!done)
        qWarning().noquote() << "sysctl failed:" << process.readAll();
    return done;
}

QTEST_GUILESS_MAIN(TestAdapterDiagnosis)

#include "tst_adapterdiagnosis.moc"
