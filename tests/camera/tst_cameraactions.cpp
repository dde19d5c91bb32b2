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
    void identifyFailsSilentlyOnACameraInUse();
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
    QVERIFY(CameraActions::identify(camera, std::chrono::milliseconds(0)));
    QCOMPARE(cameraState(1000).value("identifyCount").toInt(), 1);
    // Closed again: a second identification can open it.
    QVERIFY(CameraActions::identify(camera, std::chrono::milliseconds(0)));
    QCOMPARE(cameraState(1000).value("identifyCount").toInt(), 2);
}

void TestCameraActions::identifyFailsSilentlyOnACameraInUse()
{
    QVERIFY(!CameraActions::identify(fleetCamera(3), std::chrono::milliseconds(0)));
    QCOMPARE(cameraState(3).value("identifyCount").toInt(), 0);
}

void TestCameraActions::removingAReadOnlyDeviceUnplugsIt()
{
    const Camera device = fleetCamera(1500);
    QCOMPARE(device.deviceId(), 1500u);
    QCOMPARE(CameraActions::removeReadOnlyDevice(device), PV_OK);
    QVERIFY(cameraState(1500).isEmpty());
    QVERIFY(CameraActions::removeReadOnlyDevice(device) != PV_OK);
}

void TestCameraActions::serviceCommandsNeedTheRunningService()
{
    QCOMPARE(CameraActions::connectEthService(), PV_OK);
    QCOMPARE(pvsim_SetServiceRunning("cirro_eth", 0), PV_OK);
    QCOMPARE(CameraActions::connectEthService(), PV_ERR_SERVICE_STOPPED);
    QCOMPARE(CameraActions::removeReadOnlyDevice(fleetCamera(1500)), PV_ERR_SERVICE_STOPPED);
    QVERIFY(!cameraState(1500).isEmpty());
}

QTEST_GUILESS_MAIN(TestCameraActions)
#include "tst_cameraactions.moc"
