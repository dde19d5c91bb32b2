#include "network/autoconfiguration.h"
#include "network/ipv4.h"

#include "fleetcamera.h"
#include "simdriverfixture.h"

#include <QtTest>

using namespace SimDriverFixture;

class TestAutoConfiguration : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void capturesTheAdapterHostRange();
    void repairsACameraOutsideItsSubnet();
    void failuresAndTheirCodes();
};

void TestAutoConfiguration::init()
{
    QVERIFY(reset());
}

void TestAutoConfiguration::capturesTheAdapterHostRange()
{
    const AutoConfiguration job = AutoConfiguration::of(fleetCamera(1001));
    QCOMPARE(Ipv4::text(job.rangeBegin), QStringLiteral("192.168.50.1"));
    QCOMPARE(Ipv4::text(job.rangeEnd), QStringLiteral("192.168.50.254"));
    QCOMPARE(job.adapterMac.text(), QStringLiteral("02:c1:5e:00:00:01"));
    QCOMPARE(job.cameraMac.text(), QStringLiteral("00:1c:c1:00:00:11"));
    QVERIFY(!job.bootBoost);
    QVERIFY(AutoConfiguration::of(fleetCamera(1004)).bootBoost);
}

void TestAutoConfiguration::repairsACameraOutsideItsSubnet()
{
    QVERIFY(!fleetCamera(1001).isReachable());
    QCOMPARE(AutoConfiguration::of(fleetCamera(1001)).run(), 0u);
    QCOMPARE(cameraState(1001).value("persistentIp").toString(), QStringLiteral("0.0.0.0"));
    QTRY_VERIFY(fleetCamera(1001).isReachable());
    const quint32 address = Ipv4::fromText(fleetCamera(1001).currentIp());
    QVERIFY(Ipv4::isHostOf(address, Ipv4::fromText(QStringLiteral("192.168.50.0")), 0xFFFFFF00u));
}

void TestAutoConfiguration::failuresAndTheirCodes()
{
    // The range is written first; when that fails the camera is not touched.
    QCOMPARE(pvsim_FailOperation("pv_IpConfig", PV_ERR_DEVICE_UNREACHABLE, 1), PV_OK);
    QCOMPARE(AutoConfiguration::of(fleetCamera(1001)).run(), AutoConfiguration::rangeFailed);
    QCOMPARE(cameraState(1001).value("persistentIp").toString(), QStringLiteral("10.0.0.11"));

    // A camera that the driver does not know by its MAC.
    AutoConfiguration unknown = AutoConfiguration::of(fleetCamera(1001));
    unknown.cameraMac = MacAddress::parse(QStringLiteral("02:00:00:00:00:99"));
    QCOMPARE(unknown.run(), AutoConfiguration::persistentFailed);

    // A camera in boot boost refuses to lose its persistent address.
    AutoConfiguration boosted = AutoConfiguration::of(fleetCamera(1004));
    QCOMPARE(boosted.run(), AutoConfiguration::bootBoostRefused);
    boosted.bootBoost = false;
    QCOMPARE(boosted.run(), AutoConfiguration::persistentFailed);
}

QTEST_GUILESS_MAIN(TestAutoConfiguration)
#include "tst_autoconfiguration.moc"
