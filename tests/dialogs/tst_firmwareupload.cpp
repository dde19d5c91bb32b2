#include "dialogs/firmwareupload.h"
#include "dialogs/pendinguploads.h"

#include "simdriverfixture.h"

#include <QFutureInterface>
#include <QtConcurrent>
#include <QtTest>

#include <thread>

using namespace SimDriverFixture;

namespace {

constexpr quint32 pendingUpload = 1002; // GigE, type code 132, starter 3.1.4 where the driver carries 3.2.1

QString starterOf(quint32 deviceId)
{
    return cameraState(deviceId).value("starterFirmware").toString();
}

QFuture<int> finishedWith(int result)
{
    QFutureInterface<int> job;
    job.reportStarted();
    job.reportResult(result);
    job.reportFinished();
    return job.future();
}

} // namespace

class TestFirmwareUpload : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void expectedDuration_data();
    void expectedDuration();
    void onlyTypeCodesWithTheTopBitTakeAnUpload();
    void uploadGivesTheCameraTheDriversStarter_data();
    void uploadGivesTheCameraTheDriversStarter();
    void progressIsReportedWhileTheUploadRuns();
    void verificationComparesWithTheDriversStarter();
    void collectedResults();
    void aLaterJobStillAtWorkKeepsTheUploadOpen();
    void cancelAndWaitLetsNoUploadRunOn();
};

void TestFirmwareUpload::init()
{
    QVERIFY(reset());
}

void TestFirmwareUpload::expectedDuration_data()
{
    QTest::addColumn<int>("typeCode");
    QTest::addColumn<int>("seconds");
    for (int code : {129, 130, 132, 134, 135, 138, 139, 140})
        QTest::addRow("%d", code) << code << 25;
    QTest::newRow("136") << 136 << 35;
    for (int code : {128, 131, 133, 137, 141, 225, 255})
        QTest::addRow("%d", code) << code << 100;
}

void TestFirmwareUpload::expectedDuration()
{
    QFETCH(int, typeCode);
    QTEST(FirmwareUpload::expectedSeconds(quint8(typeCode)), "seconds");
}

void TestFirmwareUpload::onlyTypeCodesWithTheTopBitTakeAnUpload()
{
    for (int code : {0, 0x40, 0x62, 127})
        QVERIFY2(!FirmwareUpload::accepts(quint8(code)), qPrintable(QString::number(code)));
    for (int code : {128, 138, 225, 255})
        QVERIFY2(FirmwareUpload::accepts(quint8(code)), qPrintable(QString::number(code)));
}

void TestFirmwareUpload::uploadGivesTheCameraTheDriversStarter_data()
{
    QTest::addColumn<quint32>("deviceId");
    QTest::addColumn<std::int32_t>("injected");
    QTest::addColumn<int>("result");
    QTest::addColumn<QString>("starter");
    QTest::newRow("uploaded") << pendingUpload << std::int32_t(PV_OK) << int(PV_OK) << "3.2.1";
    QTest::newRow("open refused") << pendingUpload << std::int32_t(PV_ERR_DEVICE_UNREACHABLE)
                                  << int(PV_ERR_DEVICE_UNREACHABLE) << "3.1.4";
    QTest::newRow("no such device") << 1499u << std::int32_t(PV_OK) << int(PV_ERR_UNKNOWN_DEVICE) << QString();
}

void TestFirmwareUpload::uploadGivesTheCameraTheDriversStarter()
{
    QFETCH(quint32, deviceId);
    QFETCH(std::int32_t, injected);
    if (injected != PV_OK)
        QCOMPARE(pvsim_FailOperation("pv_OpenCamera", injected, 1), PV_OK);
    QFuture<int> upload = FirmwareUpload::start(deviceId);
    upload.waitForFinished();
    QTEST(upload.result(), "result");
    QTEST(starterOf(deviceId), "starter");
    // Opened for the upload only.
    QVERIFY(!cameraState(deviceId).value("open").toBool());
}

void TestFirmwareUpload::progressIsReportedWhileTheUploadRuns()
{
    QVERIFY(!FirmwareUpload::progress(pendingUpload));
    QCOMPARE(pvsim_SetTimeScale(0.02), PV_OK); // 25 s become half a second
    QFuture<int> upload = FirmwareUpload::start(pendingUpload);
    QTRY_VERIFY(FirmwareUpload::progress(pendingUpload));
    int last = 0;
    QTRY_VERIFY_WITH_TIMEOUT((last = FirmwareUpload::progress(pendingUpload).value_or(last)) >= 300, 5000);
    QVERIFY(last < 1000);
    upload.waitForFinished();
    QCOMPARE(upload.result(), int(PV_OK));
    QVERIFY(!FirmwareUpload::progress(pendingUpload));
    QVERIFY(!FirmwareUpload::progress(1499)); // no such device
}

void TestFirmwareUpload::verificationComparesWithTheDriversStarter()
{
    QString running;
    QCOMPARE(FirmwareUpload::verify(pendingUpload, running).code(), int(HostError::VerificationFailed));
    QCOMPARE(running, QStringLiteral("3.1.4"));
    QVERIFY(FirmwareUpload::verify(pendingUpload, running).text().contains("3.2.1"));

    QCOMPARE(FirmwareUpload::run(pendingUpload), int(PV_OK));
    QVERIFY(FirmwareUpload::verify(pendingUpload, running).isSuccess());
    QCOMPARE(running, QStringLiteral("3.2.1"));
    QCOMPARE(FirmwareUpload::verify(1499, running).code(), int(PV_ERR_UNKNOWN_DEVICE));
}

void TestFirmwareUpload::collectedResults()
{
    PendingUploads none;
    QCOMPARE(none.collect(0).result, -1);
    QVERIFY(none.collect(0).lastFinished);

    PendingUploads uploads;
    uploads.append(finishedWith(PV_ERR_DEVICE_UNREACHABLE));
    uploads.append(finishedWith(PV_OK));
    const PendingUploads::Outcome outcome = uploads.collect(0);
    QCOMPARE(outcome.result, int(PV_OK)); // the last one counts
    QVERIFY(outcome.lastFinished);

    // A job that ended without a result gives none.
    QFutureInterface<int> cancelled;
    cancelled.reportStarted();
    cancelled.reportCanceled();
    cancelled.reportFinished();
    PendingUploads withoutResult;
    withoutResult.append(cancelled.future());
    QCOMPARE(withoutResult.collect(0).result, -1);
}

void TestFirmwareUpload::aLaterJobStillAtWorkKeepsTheUploadOpen()
{
    PendingUploads uploads;
    uploads.append(finishedWith(PV_OK));
    // The later job reports while the collection waits for it.
    uploads.append(QtConcurrent::run([] {
        std::this_thread::sleep_for(std::chrono::milliseconds(200));
        return int(PV_ERR_BUSY);
    }));
    const PendingUploads::Outcome outcome = uploads.collect(0);
    QCOMPARE(outcome.result, int(PV_ERR_BUSY));
    QVERIFY(!outcome.lastFinished);
}

void TestFirmwareUpload::cancelAndWaitLetsNoUploadRunOn()
{
    // 25 s become 1 s. The device information is read rather than the
    // driver's state, which is slow to build in a sanitizer build.
    QCOMPARE(pvsim_SetTimeScale(0.04), PV_OK);
    PendingUploads uploads;
    const QFuture<int> upload = FirmwareUpload::start(pendingUpload);
    uploads.append(upload);
    QTRY_VERIFY(deviceInfo(pendingUpload).deviceStatus & PV_STATUS_RECEIVING_STARTER_FW);
    uploads.cancelAndWait();
    QVERIFY(upload.isFinished());
    const pv_DeviceInformation after = deviceInfo(pendingUpload);
    QVERIFY(!(after.deviceStatus & PV_STATUS_RECEIVING_STARTER_FW));
    QVERIFY(!(after.deviceControlStatus & PV_CONTROL_OPENED));
    QCOMPARE(after.starterFirmware, after.driverFirmwareImage);
}

QTEST_GUILESS_MAIN(TestFirmwareUpload)
#include "tst_firmwareupload.moc"
