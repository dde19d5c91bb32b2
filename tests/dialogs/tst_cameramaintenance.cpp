#include "dialogs/cameraidaccess.h"
#include "dialogs/fpncalibration.h"
#include "dialogs/liquidlens.h"
#include "dialogs/maintenancecapabilities.h"
#include "dialogs/openedcamera.h"
#include "dialogs/parameterset.h"
#include "dialogs/revisionrecord.h"
#include "dialogs/usereeprom.h"

#include "simdriverfixture.h"

#include <QtTest>

using namespace SimDriverFixture;

class TestCameraMaintenance : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void capabilitiesDecideThePages_data();
    void capabilitiesDecideThePages();
    void unknownQueryLeavesCapabilitiesUnknown();
    void cameraIdRoundTripReachesTheList();
    void cameraIdOutsideItsRangeIsRefused_data();
    void cameraIdOutsideItsRangeIsRefused();
    void eepromSurvivesReopening();
    void eepromTooLongIsRefusedAndKept();
    void failuresNameTheDriversCode_data();
    void failuresNameTheDriversCode();
    void parameterSets();
    void parameterSetOfAnotherModelIsRefused();
    void fpnCalibrationRunsInScaledTime();
    void fpnCalibrationCanBeCancelled();
    void liquidLens();
    void revisionRecordHasEighteenFields();

private:
    std::unique_ptr<OpenedCamera> open(quint32 deviceId);
};

void TestCameraMaintenance::init()
{
    QVERIFY(reset());
}

std::unique_ptr<OpenedCamera> TestCameraMaintenance::open(quint32 deviceId)
{
    Result result;
    auto camera = OpenedCamera::open(deviceId, &result);
    if (!camera)
        qWarning() << result.text();
    return camera;
}

void TestCameraMaintenance::capabilitiesDecideThePages_data()
{
    QTest::addColumn<quint32>("deviceId");
    QTest::addColumn<quint32>("bits");
    QTest::addColumn<int>("eepromSize");
    QTest::newRow("USB with everything") << 0u << 0x1Fu << 64;
    QTest::newRow("USB 2 camera: ID and EEPROM") << 2u << 0x03u << 64;
    QTest::newRow("GigE default") << 1001u << 0x07u << 64;
    QTest::newRow("GigE with lens") << 1000u << 0x17u << 64;
    QTest::newRow("sibling SDK: ID only") << 2000u << 0x01u << 0;
    QTest::newRow("read-only device: none") << 1500u << 0x00u << 0;
}

void TestCameraMaintenance::capabilitiesDecideThePages()
{
    QFETCH(quint32, deviceId);
    QFETCH(quint32, bits);
    QFETCH(int, eepromSize);
    Result result;
    const MaintenanceCapabilities capabilities =
        MaintenanceCapabilities::read(deviceId | PV_DEVICE_ID_FLAG, &result);
    QVERIFY2(result.isSuccess(), qPrintable(result.text()));
    QVERIFY(capabilities.known);
    QCOMPARE(capabilities.bits, bits);
    QCOMPARE(capabilities.userEepromSize, eepromSize);
}

void TestCameraMaintenance::unknownQueryLeavesCapabilitiesUnknown()
{
    pvsim_FailOperation("pv_DeviceFeature", PV_ERR_UNKNOWN_COMMAND, 1);
    Result result;
    MaintenanceCapabilities capabilities = MaintenanceCapabilities::read(0 | PV_DEVICE_ID_FLAG, &result);
    QVERIFY(result.isSuccess());
    QVERIFY(!capabilities.known);
    QVERIFY(capabilities.has(PV_MAINT_LIQUID_LENS)); // shown, as not supported by the driver

    pvsim_FailOperation("pv_DeviceFeature", PV_ERR_DEVICE_UNREACHABLE, 1);
    capabilities = MaintenanceCapabilities::read(0 | PV_DEVICE_ID_FLAG, &result);
    QCOMPARE(result.code(), int(PV_ERR_DEVICE_UNREACHABLE));
    QVERIFY(result.text().contains("110"));
}

void TestCameraMaintenance::cameraIdRoundTripReachesTheList()
{
    Event changed(PV_DRIVER_HANDLE, PV_EVENT_DEVICE_CHANGED);
    QVERIFY(changed.ok());
    {
        const auto camera = open(1);
        QVERIFY(camera);
        QVERIFY(wait(PV_DRIVER_HANDLE, {PV_EVENT_DEVICE_CHANGED}, 1000) == PV_OK); // opening
        const Result written = CameraIdAccess::write(camera->handle(), 77);
        QVERIFY2(written.isSuccess(), qPrintable(written.text()));
        QCOMPARE(wait(PV_DRIVER_HANDLE, {PV_EVENT_DEVICE_CHANGED}, 1000), std::int32_t(PV_OK));
        quint32 id = 0;
        QVERIFY(CameraIdAccess::read(camera->handle(), &id).isSuccess());
        QCOMPARE(id, 77u);
    }
    const auto entries = list();
    const auto entry = std::find_if(entries.begin(), entries.end(), [](const auto& e) { return e.deviceId == 1; });
    QVERIFY(entry != entries.end());
    QCOMPARE(entry->cameraId, 77u);
}

void TestCameraMaintenance::cameraIdOutsideItsRangeIsRefused_data()
{
    QTest::addColumn<quint32>("id");
    QTest::newRow("0") << 0u;
    QTest::newRow("255") << 255u;
}

void TestCameraMaintenance::cameraIdOutsideItsRangeIsRefused()
{
    QFETCH(quint32, id);
    const auto camera = open(0);
    QVERIFY(camera);
    QVERIFY(!CameraIdAccess::write(camera->handle(), id).isSuccess());
    quint32 stored = 0;
    QVERIFY(CameraIdAccess::read(camera->handle(), &stored).isSuccess());
    QCOMPARE(stored, 1u);
}

void TestCameraMaintenance::eepromSurvivesReopening()
{
    const QByteArray content("Station 7, left side");
    {
        const auto camera = open(1000);
        QVERIFY(camera);
        QByteArray before;
        QVERIFY(UserEeprom::read(camera->handle(), &before).isSuccess());
        QVERIFY(before.startsWith("Line 4 left\0"));
        QVERIFY(UserEeprom::write(camera->handle(), content, 64).isSuccess());
    }
    const auto camera = open(1000);
    QByteArray after;
    QVERIFY(UserEeprom::read(camera->handle(), &after).isSuccess());
    QCOMPARE(after.size(), 64);
    QCOMPARE(after.left(content.size()), content);
    QCOMPARE(after.mid(content.size()), QByteArray(64 - content.size(), '\0'));
    // The device information shows the first eight bytes.
    QCOMPARE(QByteArray(deviceInfo(1000).u.eth.userSpace, 8), content.left(8));
}

void TestCameraMaintenance::eepromTooLongIsRefusedAndKept()
{
    const auto camera = open(1000);
    const Result result = UserEeprom::write(camera->handle(), QByteArray(65, 'x'), 64);
    QVERIFY(!result.isSuccess());
    QVERIFY(result.text().contains("64"));
    QByteArray kept;
    QVERIFY(UserEeprom::read(camera->handle(), &kept).isSuccess());
    QVERIFY(kept.startsWith("Line 4 left"));
}

void TestCameraMaintenance::failuresNameTheDriversCode_data()
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<int>("code");
    QTest::addColumn<bool>("unsupported");
    QTest::newRow("feature refused") << "pv_DeviceFeature" << int(PV_ERR_DEVICE_UNREACHABLE) << false;
    QTest::newRow("feature unknown to the library") << "pv_DeviceFeature" << int(PV_ERR_UNKNOWN_COMMAND) << true;
    QTest::newRow("command refused") << "pv_CameraCommand" << int(PV_ERR_BUSY) << false;
}

void TestCameraMaintenance::failuresNameTheDriversCode()
{
    QFETCH(QString, operation);
    QFETCH(int, code);
    QFETCH(bool, unsupported);
    const auto camera = open(0);
    pvsim_FailOperation(operation.toLatin1(), code, 1);
    const Result result = operation == "pv_DeviceFeature" ? UserEeprom::write(camera->handle(), "abc", 64)
                                                           : LiquidLens::storeAsStartup(camera->handle());
    QCOMPARE(result.code(), code);
    QVERIFY2(result.text().contains(QString::number(code)), qPrintable(result.text()));
    QCOMPARE(result.text().contains("not supported by the installed driver"), unsupported);
}

void TestCameraMaintenance::parameterSets()
{
    const auto camera = open(0);
    const quint32 handle = camera->handle();
    ParameterSet factory, user;
    QVERIFY(ParameterSets::read(handle, PV_PARAMSET_FACTORY, &factory).isSuccess());
    QCOMPARE(factory.model, QString("CR-U3-50M"));
    QVERIFY(ParameterSets::saveCurrent(handle, PV_PARAMSET_USER1).isSuccess());
    QVERIFY(ParameterSets::read(handle, PV_PARAMSET_USER1, &user).isSuccess());
    QVERIFY(user != factory); // the camera ran with settings of its own
    QVERIFY(!ParameterSets::saveCurrent(handle, PV_PARAMSET_FACTORY).isSuccess());

    QVERIFY(ParameterSets::setStartupSet(handle, PV_PARAMSET_USER2).isSuccess());
    user.values[0].second = 4242;
    QVERIFY(ParameterSets::write(handle, PV_PARAMSET_USER2, user).isSuccess());
    QVERIFY(!ParameterSets::write(handle, PV_PARAMSET_FACTORY, user).isSuccess());
    ParameterSet stored;
    QVERIFY(ParameterSets::read(handle, PV_PARAMSET_USER2, &stored).isSuccess());
    QCOMPARE(stored, user);

    QVERIFY(ParameterSets::resetToFactory(handle).isSuccess());
    quint32 startup = 99;
    QVERIFY(ParameterSets::startupSet(handle, &startup).isSuccess());
    QCOMPARE(startup, PV_PARAMSET_FACTORY);
    QVERIFY(ParameterSets::saveCurrent(handle, PV_PARAMSET_USER1).isSuccess());
    QVERIFY(ParameterSets::read(handle, PV_PARAMSET_USER1, &stored).isSuccess());
    QCOMPARE(stored, factory);
}

void TestCameraMaintenance::parameterSetOfAnotherModelIsRefused()
{
    const auto camera = open(1);
    ParameterSet set;
    QVERIFY(ParameterSets::read(camera->handle(), PV_PARAMSET_USER1, &set).isSuccess());
    ParameterSet before = set;
    set.model = "CR-U3-50M";
    set.values[0].second = 1;
    const Result result = ParameterSets::write(camera->handle(), PV_PARAMSET_USER1, set);
    QCOMPARE(result.code(), int(PV_ERR_INVALID_PARAMETER));
    QVERIFY(ParameterSets::read(camera->handle(), PV_PARAMSET_USER1, &set).isSuccess());
    QCOMPARE(set, before);
}

void TestCameraMaintenance::fpnCalibrationRunsInScaledTime()
{
    QCOMPARE(pvsim_SetTimeScale(0.05), std::int32_t(PV_OK)); // 8 s become 400 ms
    const auto camera = open(0);
    FpnCalibration::State state;
    QVERIFY(FpnCalibration::read(camera->handle(), &state).isSuccess());
    QVERIFY(!state.userCalibration);
    QVERIFY(FpnCalibration::start(camera->handle()).isSuccess());
    QVERIFY(FpnCalibration::read(camera->handle(), &state).isSuccess());
    QVERIFY(state.running);
    QCOMPARE(FpnCalibration::start(camera->handle()).code(), int(PV_ERR_BUSY));
    QTRY_VERIFY_WITH_TIMEOUT(FpnCalibration::read(camera->handle(), &state).isSuccess() && !state.running, 3000);
    QVERIFY(state.userCalibration);
    QCOMPARE(state.lastResult, 0);
    QVERIFY(state.date.startsWith(QDate::currentDate().toString("yyyy-MM-dd")));
    QVERIFY(FpnCalibration::resetToFactory(camera->handle()).isSuccess());
    QVERIFY(FpnCalibration::read(camera->handle(), &state).isSuccess());
    QVERIFY(!state.userCalibration);
    QCOMPARE(state.date, QString("2025-06-12 08:00"));
}

void TestCameraMaintenance::fpnCalibrationCanBeCancelled()
{
    QCOMPARE(pvsim_SetTimeScale(1.0), std::int32_t(PV_OK));
    const auto camera = open(0);
    QVERIFY(FpnCalibration::start(camera->handle()).isSuccess());
    QVERIFY(FpnCalibration::cancel(camera->handle()).isSuccess());
    FpnCalibration::State state;
    QVERIFY(FpnCalibration::read(camera->handle(), &state).isSuccess());
    QVERIFY(!state.running);
    QVERIFY(!state.userCalibration);
    QCOMPARE(state.lastResult, int(PV_ERR_CANCELLED));
    QVERIFY(FpnCalibration::describe(state).contains("cancelled"));
    QVERIFY(!FpnCalibration::cancel(camera->handle()).isSuccess());
}

void TestCameraMaintenance::liquidLens()
{
    {
        const auto camera = open(0);
        pv_LiquidLens lens{};
        QVERIFY(LiquidLens::read(camera->handle(), &lens).isSuccess());
        QCOMPARE(lens.minimum, -200);
        QCOMPARE(lens.maximum, 1200);
        QCOMPARE(lens.current, 350);
        QVERIFY(!LiquidLens::set(camera->handle(), lens, 1201).isSuccess());
        QVERIFY(LiquidLens::set(camera->handle(), lens, -150).isSuccess());
        QVERIFY(LiquidLens::storeAsStartup(camera->handle()).isSuccess());
    }
    const auto camera = open(0);
    pv_LiquidLens lens{};
    QVERIFY(LiquidLens::read(camera->handle(), &lens).isSuccess());
    QCOMPARE(lens.startup, -150);
    QCOMPARE(LiquidLens::dioptres(-150), QString("-1.50 dpt"));
    // A camera without a lens refuses, and says it.
    const auto lensless = open(1);
    const Result refused = LiquidLens::read(lensless->handle(), &lens);
    QCOMPARE(refused.code(), int(PV_ERR_NOT_SUPPORTED));
}

void TestCameraMaintenance::revisionRecordHasEighteenFields()
{
    const auto camera = open(1000);
    RevisionRecord record;
    QVERIFY(RevisionRecord::read(camera->handle(), &record).isSuccess());
    QCOMPARE(record.fields().size(), 18);
    QCOMPARE(QString(record.fields().first().key), QString("CamInfo_Type"));
    QCOMPARE(record.fields().first().value, QString("CR-G5-12C"));
    QCOMPARE(QString(record.fields().last().key), QString("CamInfo_PowerBoard"));
}

QTEST_GUILESS_MAIN(TestCameraMaintenance)
#include "tst_cameramaintenance.moc"
