#include "camera/cameraactions.h"

#include "fleetcamera.h"
#include "simdriverfixture.h"

#include <QtTest>

using namespace SimDriverFixture;

class TestCameraActions : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void identifyBlinksAndClosesTheCamera();
    void identifyReportsACameraInUse();
    void removingAReadOnlyDeviceUnplugsIt();
    void serviceCommandsNeedTheRunningService();
};

void TestCameraActions::init()
{
    QVERIFY(reset());
}

void TestCameraActions::identifyBlinksAndClosesTheCamera()
{
    const Camera camera = fleetCamera(1000);
    QVERIFY(CameraActions::identify(camera, std::chrono::milliseconds(0)).isSuccess());
    QCOMPARE(cameraState(1000).value("identifyCount").toInt(), 1);
    // Closed again: a second identification can open it.
    QVERIFY(CameraActions::identify(camera, std::chrono::milliseconds(0)).isSuccess());
    QCOMPARE(cameraState(1000).value("identifyCount").toInt(), 2);
}

void TestCameraActions::identifyReportsACameraInUse()
{
    const Result result = CameraActions::identify(fleetCamera(3), std::chrono::milliseconds(0));
    QCOMPARE(result.code(), PV_ERR_DEVICE_IN_USE);
    QVERIFY2(result.text().contains(QStringLiteral("Return code: %1").arg(PV_ERR_DEVICE_IN_USE)), qPrintable(result.text()));
    QCOMPARE(cameraState(3).value("identifyCount").toInt(), 0);
}

void TestCameraActions::removingAReadOnlyDeviceUnplugsIt()
{
    const Camera device = fleetCamera(1500);
    QCOMPARE(device.deviceId(), 1500u);
    QVERIFY(CameraActions::removeReadOnlyDevice(device).isSuccess());
    QVERIFY(cameraState(1500).isEmpty());
    const Result again = CameraActions::removeReadOnlyDevice(device);
    QVERIFY(!again.isSuccess());
    QVERIFY(again.text().contains(QString::number(again.code())));
}

void TestCameraActions::serviceCommandsNeedTheRunningService()
{
    QVERIFY(CameraActions::connectEthService().isSuccess());
    QCOMPARE(pvsim_SetServiceRunning("cirro_eth", 0), PV_OK);
    QCOMPARE(CameraActions::connectEthService().code(), PV_ERR_SERVICE_STOPPED);
    QCOMPARE(CameraActions::removeReadOnlyDevice(fleetCamera(1500)).code(), PV_ERR_SERVICE_STOPPED);
    QVERIFY(!cameraState(1500).isEmpty());
}

QTEST_GUILESS_MAIN(TestCameraActions)
#include "tst_cameraactions.moc"
