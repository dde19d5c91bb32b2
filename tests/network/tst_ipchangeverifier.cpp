#include "network/ipchangeverifier.h"
#include "network/ipv4.h"

#include "fleetcamera.h"
#include "simdriverfixture.h"

#include <QSignalSpy>
#include <QtTest>

using namespace SimDriverFixture;

namespace {

QList<std::shared_ptr<Camera>> cameras(std::initializer_list<quint32> deviceIds)
{
    QList<std::shared_ptr<Camera>> list;
    for (quint32 deviceId : deviceIds)
        list << std::make_shared<Camera>(fleetCamera(deviceId));
    return list;
}

MacAddress macOf(quint32 deviceId)
{
    return MacAddress::parse(fleetCamera(deviceId).macAddress());
}

} // namespace

class TestIpChangeVerifier : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void expectations_data();
    void expectations();
    void timesOutWithTheLastSeenCamera();
    void followsTheCameraThroughTheDriver();
    void timeoutFollowsTheHeartbeat();
};

void TestIpChangeVerifier::initTestCase()
{
    Camera::registerMetaTypes();
}

void TestIpChangeVerifier::init()
{
    QVERIFY(reset());
}

void TestIpChangeVerifier::expectations_data()
{
    QTest::addColumn<quint32>("deviceId");
    QTest::addColumn<QString>("address");
    QTest::addColumn<bool>("fromRange");
    QTest::addColumn<bool>("reachable");
    QTest::newRow("reachable at the expected address") << 1000u << "192.168.50.10" << false << true;
    QTest::newRow("reachable at any address") << 1000u << "0.0.0.0" << false << true;
    QTest::newRow("reachable at another address") << 1000u << "192.168.50.23" << false << false;
    QTest::newRow("persistent address, range expected") << 1000u << "0.0.0.0" << true << false;
    QTest::newRow("address from the range") << 1007u << "0.0.0.0" << true << true;
    QTest::newRow("not reachable") << 1001u << "0.0.0.0" << false << false;
}

void TestIpChangeVerifier::expectations()
{
    QFETCH(quint32, deviceId);
    QFETCH(QString, address);
    QFETCH(bool, fromRange);
    QFETCH(bool, reachable);
    IpChangeVerifier verifier({macOf(deviceId), Ipv4::fromText(address), fromRange}, std::chrono::seconds(10));
    QSignalSpy spy(&verifier, &IpChangeVerifier::reachable);
    QVERIFY(spy.isValid());
    verifier.check(cameras({0, 1000, 1001, 1007}));
    QCOMPARE(spy.count(), 0); // not started yet
    verifier.start();
    verifier.check(cameras({0, 1000, 1001, 1007}));
    QCOMPARE(spy.count(), reachable ? 1 : 0);
    QCOMPARE(verifier.isRunning(), !reachable);
    if (reachable)
        QCOMPARE(spy.first().at(0).value<Camera>().deviceId(), deviceId);
}

void TestIpChangeVerifier::timesOutWithTheLastSeenCamera()
{
    IpChangeVerifier verifier({macOf(1001), 0, false}, std::chrono::milliseconds(50));
    QSignalSpy timedOut(&verifier, &IpChangeVerifier::timedOut);
    verifier.start();
    verifier.check(cameras({1000, 1001}));
    verifier.check(cameras({1000}));
    QVERIFY(timedOut.wait());
    const auto lastSeen = timedOut.first().at(0).value<camera::optional<Camera>>();
    QVERIFY(lastSeen);
    QCOMPARE(lastSeen->deviceId(), 1001u);
    // A coarse timer may fire a few per cent early.
    QVERIFY(timedOut.first().at(1).toLongLong() >= 45);

    IpChangeVerifier never({MacAddress::parse(QStringLiteral("02:00:00:00:00:99")), 0, false},
                           std::chrono::milliseconds(10));
    QSignalSpy neverSeen(&never, &IpChangeVerifier::timedOut);
    never.start();
    never.check(cameras({1000, 1001}));
    QVERIFY(neverSeen.wait());
    QVERIFY(!neverSeen.first().at(0).value<camera::optional<Camera>>());
}

void TestIpChangeVerifier::followsTheCameraThroughTheDriver()
{
    IpChangeVerifier verifier({macOf(1001), Ipv4::fromText(QStringLiteral("192.168.50.23")), false},
                              std::chrono::seconds(10));
    QSignalSpy spy(&verifier, &IpChangeVerifier::reachable);
    verifier.start();
    verifier.check(cameras({1001}));
    QVERIFY(spy.isEmpty());
    const std::uint8_t noMac[6]{};
    pv_IpBlock block{{192, 168, 50, 23}, {255, 255, 255, 0}, 0};
    QCOMPARE(pv_IpConfig(1001, noMac, PV_IPCFG_SET_PERSISTENT, &block, sizeof block), PV_OK);
    quint32 off = 0;
    QCOMPARE(pv_IpConfig(1001, noMac, PV_IPCFG_SET_DHCP, &off, sizeof off), PV_OK);
    QTRY_VERIFY((verifier.check(cameras({1001})), !spy.isEmpty()));
    QCOMPARE(spy.first().at(0).value<Camera>().currentIp(), QStringLiteral("192.168.50.23"));
}

void TestIpChangeVerifier::timeoutFollowsTheHeartbeat()
{
    // The default fleet's cameras beat once a second.
    QCOMPARE(fleetCamera(1000).eth().heartbeatPeriodMs, 1000);
    QCOMPARE(IpChangeVerifier::timeoutFor(fleetCamera(1000)).count(), qint64(15000));
    // No heartbeat known: the longest wait.
    QCOMPARE(IpChangeVerifier::timeoutFor(Camera()).count(), qint64(30000));
}

QTEST_GUILESS_MAIN(TestIpChangeVerifier)
#include "tst_ipchangeverifier.moc"
