#include "network/ethcamerasettings.h"
#include "network/ethconfigsettings.h"
#include "network/ipv4.h"

#include "fleetcamera.h"
#include "simdriverfixture.h"

#include <QSignalSpy>
#include <QtTest>

using namespace SimDriverFixture;

namespace {

// Settings for camera 1001 (persistent IP outside its adapter's subnet, DHCP
// on) that would make it reachable, every item changed.
std::unique_ptr<EthConfigSettings> repairOf1001()
{
    const Camera camera = fleetCamera(1001);
    auto settings = std::make_unique<EthConfigSettings>(1001, MacAddress::parse(camera.adapterMac()));
    settings->setPersistent(Ipv4::fromText(QStringLiteral("192.168.50.23")), Ipv4::fromText(QStringLiteral("255.255.255.0")));
    settings->setRange(Ipv4::fromText(QStringLiteral("192.168.50.120")), Ipv4::fromText(QStringLiteral("192.168.50.130")));
    settings->setDhcp(false);
    settings->setMulticastIp(Ipv4::fromText(QStringLiteral("239.1.1.11")));
    settings->setMulticastEnable(true);
    return settings;
}

} // namespace

class TestEthConfigSettings : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void readsWhatTheDriverHas();
    void appliesEveryChangedItemInOrder();
    void failedStepKeepsWhatIsLeft_data();
    void failedStepKeepsWhatIsLeft();
    void nothingChangedWritesNothing();
    void restoreWritesTheSettingsReadBefore();
};

void TestEthConfigSettings::init()
{
    QVERIFY(reset());
}

void TestEthConfigSettings::readsWhatTheDriverHas()
{
    const EthCameraSettings settings = EthCameraSettings::read(fleetCamera(1000));
    QCOMPARE(settings.capabilities, PV_IPCAP_PERSISTENT | PV_IPCAP_DHCP | PV_IPCAP_RANGE);
    QVERIFY(settings.persistentRead);
    QCOMPARE(settings.persistentIp, QStringLiteral("192.168.50.10"));
    QCOMPARE(settings.persistentMask, QStringLiteral("255.255.255.0"));
    QCOMPARE(settings.rangeBegin, QStringLiteral("192.168.50.100"));
    QCOMPARE(settings.rangeEnd, QStringLiteral("192.168.50.199"));
    QCOMPARE(settings.multicastIp, QStringLiteral("239.1.1.10"));
    QVERIFY(!settings.dhcpEnabled);

    // Failed reads give neutral values, never stale ones.
    QCOMPARE(pvsim_FailOperation("pv_IpConfig", PV_ERR_TIMEOUT, 10), PV_OK);
    const EthCameraSettings failed = EthCameraSettings::read(fleetCamera(1000));
    QCOMPARE(failed.capabilities, 0u);
    QVERIFY(!failed.persistentRead);
    QVERIFY(failed.persistentIp.isEmpty());
    QVERIFY(failed.rangeBegin.isEmpty());
}

void TestEthConfigSettings::appliesEveryChangedItemInOrder()
{
    const auto settings = repairOf1001();
    QSignalSpy steps(settings.get(), &EthConfigSettings::settingText);
    QVERIFY(steps.isValid());
    const ConfigResult result = settings->apply();
    QCOMPARE(result.code, 0u);
    QCOMPARE(result.step, quint32(ConfigResult::Done));

    QList<int> progress;
    for (const QList<QVariant>& step : steps)
        progress << step.at(1).toInt();
    QCOMPARE(progress, (QList<int>{0, 20, 40, 60, 80, 100}));
    QCOMPARE(steps.first().at(0).toString(), QStringLiteral("Applying persistent IP settings..."));
    QCOMPARE(steps.last().at(0).toString(), QStringLiteral("Done!"));
    QCOMPARE(settings->changedCount(), 0);

    const QJsonObject camera = cameraState(1001);
    QCOMPARE(camera.value("persistentIp").toString(), QStringLiteral("192.168.50.23"));
    QCOMPARE(camera.value("dhcp").toBool(), false);
    QCOMPARE(camera.value("multicastIp").toString(), QStringLiteral("239.1.1.11"));
    QCOMPARE(camera.value("multicastEnabled").toBool(), true);
    QCOMPARE(adapterState("simnet0").value("rangeBegin").toString(), QStringLiteral("192.168.50.120"));
    QCOMPARE(adapterState("simnet0").value("rangeEnd").toString(), QStringLiteral("192.168.50.130"));
}

void TestEthConfigSettings::failedStepKeepsWhatIsLeft_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<quint32>("failedStep");
    QTest::addColumn<int>("left");
    QTest::newRow("persistent IP") << "pv_IpConfig" << quint32(ConfigResult::PersistentIp) << 5;
    QTest::newRow("range") << "pv_IpConfig" << quint32(ConfigResult::Range) << 4;
    QTest::newRow("DHCP") << "pv_IpConfig" << quint32(ConfigResult::Dhcp) << 3;
    QTest::newRow("multicast IP") << "pv_EthConfig" << quint32(ConfigResult::MulticastIp) << 2;
    QTest::newRow("multicast enable") << "pv_EthConfig" << quint32(ConfigResult::MulticastEnable) << 1;
}

void TestEthConfigSettings::failedStepKeepsWhatIsLeft()
{
    QFETCH(QString, operation);
    QFETCH(quint32, failedStep);
    QFETCH(int, left);
    const auto settings = repairOf1001();
    // The earlier steps are written alone first, so that the armed failure
    // hits the first call of the step under test.
    for (std::size_t item = 0; item < settings->changed.size(); ++item)
        settings->changed[item] = item < failedStep;
    QCOMPARE(settings->apply().code, 0u);
    for (std::size_t item = 0; item < settings->changed.size(); ++item)
        settings->changed[item] = item >= failedStep;

    QCOMPARE(pvsim_FailOperation(operation.toLatin1().constData(), PV_ERR_DEVICE_UNREACHABLE, 1), PV_OK);
    const ConfigResult failed = settings->apply();
    QCOMPARE(failed.code, quint32(PV_ERR_DEVICE_UNREACHABLE));
    QCOMPARE(failed.step, failedStep);
    QCOMPARE(settings->changedCount(), left);

    // A second apply writes what is left, and only that.
    QSignalSpy steps(settings.get(), &EthConfigSettings::settingText);
    QCOMPARE(settings->apply().code, 0u);
    QCOMPARE(steps.count(), left + 1);
    QCOMPARE(cameraState(1001).value("multicastEnabled").toBool(), true);
}

void TestEthConfigSettings::nothingChangedWritesNothing()
{
    EthConfigSettings settings(1000, MacAddress());
    QSignalSpy steps(&settings, &EthConfigSettings::settingText);
    QCOMPARE(pvsim_FailOperation("pv_IpConfig", PV_ERR_GENERAL, 1), PV_OK);
    const ConfigResult result = settings.apply();
    QCOMPARE(result.code, 0u);
    QCOMPARE(result.step, quint32(ConfigResult::Done));
    QCOMPARE(steps.count(), 1);
    QCOMPARE(steps.first().at(1).toInt(), 100);
}

void TestEthConfigSettings::restoreWritesTheSettingsReadBefore()
{
    const Camera camera = fleetCamera(1000);
    const EthCameraSettings before = EthCameraSettings::read(camera);
    EthConfigSettings change(1000, MacAddress::parse(camera.adapterMac()));
    change.setPersistent(0, 0);
    change.setRange(Ipv4::fromText(QStringLiteral("192.168.50.1")), Ipv4::fromText(QStringLiteral("192.168.50.254")));
    change.setDhcp(true);
    QCOMPARE(change.apply().code, 0u);
    QCOMPARE(cameraState(1000).value("persistentIp").toString(), QStringLiteral("0.0.0.0"));

    EthConfigSettings restore(1000, MacAddress::parse(camera.adapterMac()));
    restore.restore(before);
    QCOMPARE(restore.changedCount(), 3);
    QCOMPARE(restore.apply().code, 0u);
    const EthCameraSettings after = EthCameraSettings::read(camera);
    QCOMPARE(after.persistentIp, before.persistentIp);
    QCOMPARE(after.rangeBegin, before.rangeBegin);
    QCOMPARE(after.rangeEnd, before.rangeEnd);
    QCOMPARE(after.dhcpEnabled, before.dhcpEnabled);
}

QTEST_GUILESS_MAIN(TestEthConfigSettings)
#include "tst_ethconfigsettings.moc"
