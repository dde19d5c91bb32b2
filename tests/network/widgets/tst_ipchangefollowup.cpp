#include "network/ipv4.h"
#include "network/widgets/ipchangefollowup.h"

#include "fleetcamera.h"
#include "messageboxanswerer.h"
#include "simdriverfixture.h"

#include <QSignalSpy>
#include <QWidget>
#include <QtTest>

using namespace SimDriverFixture;

namespace {

const std::uint8_t noMac[6]{};

void writePersistent(quint32 deviceId, const char* address)
{
    pv_IpBlock block{};
    Ipv4::toNetworkBytes(Ipv4::fromText(QLatin1String(address)), block.first);
    Ipv4::toNetworkBytes(0xFFFFFF00u, block.second);
    QCOMPARE(pv_IpConfig(std::int32_t(deviceId), noMac, PV_IPCFG_SET_PERSISTENT, &block, sizeof block), PV_OK);
}

QList<std::shared_ptr<Camera>> currentList()
{
    QList<std::shared_ptr<Camera>> cameras;
    for (const pv_CameraListEntry& entry : list())
        cameras << std::make_shared<Camera>(entry, 0);
    return cameras;
}

} // namespace

class TestIpChangeFollowUp : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void reportsWhenTheCameraIsBack();
    void offersToRestoreWhenItDoesNotComeBack_data();
    void offersToRestoreWhenItDoesNotComeBack();

private:
    // Feeds the driver's list to the follow-up until the last message stops
    // the busy indicator.
    static void followUntilSettled(IpChangeFollowUp& followUp, QSignalSpy& messages);

    QWidget window;
};

void TestIpChangeFollowUp::initTestCase()
{
    Camera::registerMetaTypes();
}

void TestIpChangeFollowUp::init()
{
    QVERIFY(reset());
}

void TestIpChangeFollowUp::followUntilSettled(IpChangeFollowUp& followUp, QSignalSpy& messages)
{
    QTRY_VERIFY_WITH_TIMEOUT((followUp.onCameraListChanged(), !messages.last().at(2).toBool()), 5000);
}

void TestIpChangeFollowUp::reportsWhenTheCameraIsBack()
{
    IpChangeFollowUp followUp(&window, currentList);
    QSignalSpy messages(&followUp, &IpChangeFollowUp::statusMessage);
    const Camera camera = fleetCamera(1001);
    const EthCameraSettings before = EthCameraSettings::read(camera);
    writePersistent(1001, "192.168.50.23");
    quint32 off = 0;
    QCOMPARE(pv_IpConfig(1001, noMac, PV_IPCFG_SET_DHCP, &off, sizeof off), PV_OK);

    followUp.follow(camera, {MacAddress::parse(camera.macAddress()), Ipv4::fromText(QStringLiteral("192.168.50.23")), false},
                    before);
    QCOMPARE(messages.first().at(0).toString(),
             QStringLiteral("Waiting for device 1001 to come back with its new network settings..."));
    QVERIFY(messages.first().at(2).toBool());
    followUntilSettled(followUp, messages);
    const QString text = messages.last().at(0).toString();
    QVERIFY2(text.startsWith(QStringLiteral("Device 1001 is reachable at 192.168.50.23 after ")), qPrintable(text));
    QCOMPARE(messages.last().at(1).value<QColor>(), QColor(Qt::black));
}

void TestIpChangeFollowUp::offersToRestoreWhenItDoesNotComeBack_data()
{
    QTest::addColumn<bool>("restore");
    QTest::newRow("restore") << true;
    QTest::newRow("keep") << false;
}

void TestIpChangeFollowUp::offersToRestoreWhenItDoesNotComeBack()
{
    QFETCH(bool, restore);
    IpChangeFollowUp followUp(&window, currentList);
    QSignalSpy messages(&followUp, &IpChangeFollowUp::statusMessage);
    const Camera camera = fleetCamera(1000);
    const EthCameraSettings before = EthCameraSettings::read(camera);
    // An address outside the adapter's subnet: the camera can't come back.
    writePersistent(1000, "10.9.9.9");
    MessageBoxAnswerer answerer(restore ? QMessageBox::Yes : QMessageBox::No);
    followUp.follow(camera, {MacAddress::parse(camera.macAddress()), Ipv4::fromText(QStringLiteral("10.9.9.9")), false},
                    before, std::chrono::milliseconds(200));
    QTRY_COMPARE(answerer.seen.size(), 1);
    QVERIFY2(answerer.seen.first().startsWith(QStringLiteral(
                 "Network settings: Device 1000 did not come back with its new network settings within ")),
             qPrintable(answerer.seen.first()));
    if (!restore) {
        QCOMPARE(messages.last().at(1).value<QColor>(), QColor(Qt::red));
        QCOMPARE(cameraState(1000).value("persistentIp").toString(), QStringLiteral("10.9.9.9"));
        return;
    }
    QTRY_COMPARE(messages.last().at(0).toString(),
                 QStringLiteral("The previous network settings of device 1000 were restored."));
    QCOMPARE(cameraState(1000).value("persistentIp").toString(), QStringLiteral("192.168.50.10"));
    QTRY_VERIFY(fleetCamera(1000).isReachable());
}

QTEST_MAIN(TestIpChangeFollowUp)
#include "tst_ipchangefollowup.moc"
