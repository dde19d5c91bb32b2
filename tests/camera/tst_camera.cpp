#include "camera/camera.h"

#include "simdriverfixture.h"

#include <QtTest>

using namespace SimDriverFixture;

Q_DECLARE_METATYPE(Camera::Kind)

namespace {

pv_CameraListEntry entryFor(std::uint32_t deviceId)
{
    for (const pv_CameraListEntry& entry : list()) {
        if (entry.deviceId == deviceId)
            return entry;
    }
    return {};
}

std::uint32_t plug(const char* json)
{
    std::uint32_t id = 0;
    return pvsim_PlugCamera(json, &id) == PV_OK ? id : 0xFFFFFFFFu;
}

} // namespace

class TestCamera : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void kindByDeviceId_data();
    void kindByDeviceId();
    void textFieldsEndAtTheirField();
    void extraFlagAndPredicates_data();
    void extraFlagAndPredicates();
    void fillChosenByInfoSourceThenKind_data();
    void fillChosenByInfoSourceThenKind();
    void gigeCameraFromTheDriver();
    void extendedRecordMatchesListConstruction();

    void temperature_data();
    void temperature();
    void firmwareVersionStopsAtZeroPart_data();
    void firmwareVersionStopsAtZeroPart();
    void addressTexts();
    void usbVersion_data();
    void usbVersion();

    void infoByOpeningAlwaysCloses_data();
    void infoByOpeningAlwaysCloses();
    void copiesAreSnapshots();
};

void TestCamera::initTestCase()
{
    Camera::registerMetaTypes();
}

void TestCamera::init()
{
    QVERIFY(reset());
}

void TestCamera::kindByDeviceId_data()
{
    QTest::addColumn<quint32>("deviceId");
    QTest::addColumn<Camera::Kind>("kind");
    const std::pair<quint32, Camera::Kind> rows[] = {
        {0, Camera::Kind::Usb},         {999, Camera::Kind::Usb},       {1000, Camera::Kind::Eth},
        {1499, Camera::Kind::Eth},      {1500, Camera::Kind::ReadOnly}, {1999, Camera::Kind::ReadOnly},
        {2000, Camera::Kind::Sdk},      {2499, Camera::Kind::Sdk},      {2500, Camera::Kind::Unknown},
        {0xFFFFFFFF, Camera::Kind::Unknown}};
    for (const auto& [id, kind] : rows)
        QTest::newRow(qPrintable(QString::number(id))) << id << kind;
}

void TestCamera::kindByDeviceId()
{
    QFETCH(quint32, deviceId);
    QFETCH(Camera::Kind, kind);
    QCOMPARE(Camera::kindOf(deviceId), kind);
}

void TestCamera::textFieldsEndAtTheirField()
{
    pv_CameraListEntry entry{};
    entry.deviceId = 2500; // no device information to read
    std::memcpy(entry.serialNumber, "0123456789ABCDEF", 16);
    std::memcpy(entry.model, "MODEL-16-CHARS-X", 16);
    std::memset(entry.fullModelName, 'F', 32);
    entry.reserved92[0] = 'Z';
    const Camera camera(entry, 7);
    QCOMPARE(camera.serialNumber(), QStringLiteral("0123456789ABCDEF"));
    QCOMPARE(camera.model(), QStringLiteral("MODEL-16-CHARS-X"));
    QCOMPARE(camera.fullModelName(), QString(32, QLatin1Char('F')));
    QCOMPARE(camera.callerWord(), 7u);
}

void TestCamera::extraFlagAndPredicates_data()
{
    QTest::addColumn<quint32>("deviceId");
    QTest::addColumn<int>("typeCode");
    QTest::addColumn<int>("typeFlag");
    QTest::addColumn<bool>("extraFlag");
    QTest::addColumn<bool>("comPort");
    QTest::addColumn<bool>("usb3");

    QTest::newRow("0x40 with flag, unknown kind") << 2500u << 0x40 << 1 << true << false << false;
    QTest::newRow("0x40 without flag") << 2500u << 0x40 << 0 << false << false << false;
    QTest::newRow("other code keeps no flag") << 2500u << 0x41 << 1 << false << false << false;
    QTest::newRow("USB fill sets it for any code") << 0u << 0x41 << 1 << true << false << false;
    QTest::newRow("0x62 COM, USB 3") << 2500u << 0x62 << 0 << false << true << true;
    QTest::newRow("0x63 USB 3 only") << 2500u << 0x63 << 0 << false << false << true;
    QTest::newRow("0x80 COM") << 2500u << 0x80 << 0 << false << true << false;
    QTest::newRow("0x66 neither COM") << 2500u << 0x66 << 0 << false << false << true;
}

void TestCamera::extraFlagAndPredicates()
{
    QFETCH(quint32, deviceId);
    QFETCH(int, typeCode);
    QFETCH(int, typeFlag);
    pv_CameraListEntry entry = entryFor(deviceId);
    entry.typeCode = quint8(typeCode);
    entry.typeFlag = quint8(typeFlag);
    const Camera camera(entry, 0);
    QTEST(camera.hasExtraFlag(), "extraFlag");
    QTEST(camera.isComPortCapable(), "comPort");
    QTEST(camera.isUsb3Family(), "usb3");
}

void TestCamera::fillChosenByInfoSourceThenKind_data()
{
    QTest::addColumn<quint32>("deviceId");
    QTest::addColumn<int>("infoSource");
    QTest::addColumn<quint16>("dhcpWordAfterFailure");

    QTest::newRow("GigE: ETH fill") << 1000u << 0 << quint16(65535);
    QTest::newRow("GigE with generic source") << 1000u << 2 << quint16(0);
    QTest::newRow("USB") << 0u << 0 << quint16(0);
    QTest::newRow("read-only: ETH fill") << 1500u << 0 << quint16(65535);
    QTest::newRow("sibling SDK: USB fill") << 2000u << 0 << quint16(0);
}

void TestCamera::fillChosenByInfoSourceThenKind()
{
    QFETCH(quint32, deviceId);
    QFETCH(int, infoSource);
    pv_CameraListEntry entry = entryFor(deviceId);
    entry.infoSource = quint8(infoSource);

    const Camera good(entry, 0);
    QCOMPARE(good.devInfoResult(), PV_OK);
    QVERIFY(good.temperature() != 0);

    QCOMPARE(pvsim_FailOperation("pv_DeviceInfo", PV_ERR_DEVICE_UNREACHABLE, 1), PV_OK);
    const Camera failed(entry, 0);
    QCOMPARE(failed.devInfoResult(), PV_ERR_DEVICE_UNREACHABLE);
    QCOMPARE(failed.temperature(), quint16(0));
    QCOMPARE(failed.linkSpeed(), quint16(0));
    QTEST(failed.eth().dhcpFsmState, "dhcpWordAfterFailure");
}

void TestCamera::gigeCameraFromTheDriver()
{
    const std::uint32_t id = plug(R"({"kind": "eth", "adapter": "simnet0", "mac": "00:1c:c1:0a:0b:0c",
        "persistentIp": "192.168.50.77", "persistentMask": "255.255.255.0", "multicastIp": "239.1.2.3",
        "interfaceWord": 3336, "typeCode": 140})");
    const Camera camera(entryFor(id), 0);
    QCOMPARE(camera.kind(), Camera::Kind::Eth);
    QCOMPARE(camera.interfaceWord(), quint16(3336)); // the list entry has only its low byte
    QCOMPARE(camera.currentIp(), QStringLiteral("192.168.50.77"));
    QCOMPARE(camera.persistentMask(), QStringLiteral("255.255.255.0"));
    QCOMPARE(camera.multicastIp(), QStringLiteral("239.1.2.3"));
    QCOMPARE(camera.macAddress(), QStringLiteral("00-1c-c1-0a-0b-0c"));
    QCOMPARE(camera.macAddress(QLatin1Char(':')), QStringLiteral("00:1c:c1:0a:0b:0c"));
    QCOMPARE(camera.adapterName(), QStringLiteral("simnet0"));
    QCOMPARE(camera.adapterIp(), QStringLiteral("192.168.50.1"));
    QVERIFY(camera.isSpecialType());
}

void TestCamera::extendedRecordMatchesListConstruction()
{
    const Camera fromList(entryFor(0), 0);
    auto record = std::make_unique<pv_ExtendedDeviceInformation>();
    QCOMPARE(pv_DeviceInfo(0 | PV_DEVICE_ID_FLAG, PV_DEVINFO_READ_EXTENDED, record.get(), sizeof *record), PV_OK);
    const Camera fromRecord(*record);

    QCOMPARE(fromRecord.serialNumber(), fromList.serialNumber());
    QCOMPARE(fromRecord.model(), fromList.model());
    QCOMPARE(fromRecord.fullModelName(), fromList.fullModelName());
    QCOMPARE(fromRecord.deviceId(), fromList.deviceId());
    QCOMPARE(fromRecord.typeCode(), fromList.typeCode());
    QCOMPARE(fromRecord.firmwareVersion(), fromList.firmwareVersion());
    QCOMPARE(fromRecord.temperatureText(), fromList.temperatureText());
    QCOMPARE(fromRecord.usbLocation(), QStringLiteral("2-1"));
    QCOMPARE(fromRecord.usbLocation(), fromList.usbLocation());
}

void TestCamera::temperature_data()
{
    QTest::addColumn<quint16>("word");
    QTest::addColumn<QString>("text");
    QTest::newRow("no sensor 12 bit") << quint16(0x0FF9) << "no sensor";
    QTest::newRow("no sensor 16 bit") << quint16(0xFFF9) << "no sensor";
    QTest::newRow("invalid 12 bit") << quint16(0x0FFF) << "invalid";
    QTest::newRow("invalid 16 bit") << quint16(0xFFFF) << "invalid";
    QTest::newRow("41.5") << quint16(0x0298) << QString::fromUtf8("41.5°C (106.7°F)");
    QTest::newRow("minus one") << quint16(0xFFF0) << QString::fromUtf8("-1.0°C (30.2°F)");
    QTest::newRow("zero") << quint16(0) << QString::fromUtf8("0.0°C (32.0°F)");
}

void TestCamera::temperature()
{
    QFETCH(quint16, word);
    QFETCH(QString, text);
    QCOMPARE(Camera::temperatureText(word), text);
}

void TestCamera::firmwareVersionStopsAtZeroPart_data()
{
    QTest::addColumn<QString>("runtime");
    QTest::addColumn<QString>("text");
    QTest::newRow("three parts") << "4.91.1203" << "1-4.91.1203";
    QTest::newRow("stops at zero") << "4.91.0" << "1-4.91";
    QTest::newRow("first part zero") << "0.3.7" << "1-";
}

void TestCamera::firmwareVersionStopsAtZeroPart()
{
    QFETCH(QString, runtime);
    const QString json = QStringLiteral(R"({"kind": "usb", "runtimeFirmware": "%1"})").arg(runtime);
    const Camera camera(entryFor(plug(qPrintable(json))), 0);
    QTEST(camera.firmwareVersion(), "text");
}

void TestCamera::addressTexts()
{
    QCOMPARE(Camera::ipText(0x0A32A8C0u), QStringLiteral("192.168.50.10")); // first octet lowest
    QCOMPARE(Camera::ipText(0), QStringLiteral("0.0.0.0"));
    const quint8 mac[6] = {0x00, 0x0a, 0xff, 0x10, 0x01, 0xab};
    QCOMPARE(Camera::macText(mac), QStringLiteral("00-0a-ff-10-01-ab"));
    QCOMPARE(Camera::serialIdentifierText(mac), QStringLiteral("0x 0 aff10 1ab"));
}

void TestCamera::usbVersion_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("text");
    QTest::newRow("0") << 0 << "USB 1.0";
    QTest::newRow("2") << 2 << "USB 2.0";
    QTest::newRow("4") << 4 << "USB 3.1";
    QTest::newRow("5") << 5 << "";
    QTest::newRow("large") << 200 << "";
}

void TestCamera::usbVersion()
{
    QFETCH(int, code);
    const Camera camera(entryFor(plug(qPrintable(QStringLiteral(R"({"kind": "usb", "usbVersion": %1})").arg(code)))), 0);
    QTEST(camera.usbVersionText(), "text");
}

void TestCamera::infoByOpeningAlwaysCloses_data()
{
    QTest::addColumn<QString>("failing");
    QTest::addColumn<bool>("textsRead");
    QTest::newRow("all succeed") << "" << true;
    QTest::newRow("open fails") << "pv_OpenCamera" << false;
    QTest::newRow("info fails") << "pv_GetCameraInfo" << false;
    QTest::newRow("sensor fails") << "pv_GetSensorInfo" << true;
}

void TestCamera::infoByOpeningAlwaysCloses()
{
    QFETCH(QString, failing);
    QFETCH(bool, textsRead);
    Camera camera(entryFor(0), 0);
    if (!failing.isEmpty())
        QCOMPARE(pvsim_FailOperation(qPrintable(failing), PV_ERR_GENERAL, 1), PV_OK);

    camera.fillInfoByOpening();

    QCOMPARE(cameraState(0).value("open").toBool(), false);
    QCOMPARE(camera.openedCameraId(), textsRead ? QStringLiteral("1") : QStringLiteral("unknown"));
    QCOMPARE(camera.openedFirmwareVersion().isEmpty(), false);
    QCOMPARE(camera.openedDate() == QStringLiteral("unknown"), !textsRead);
    QCOMPARE(camera.sensorValue() != 0, failing.isEmpty());
}

void TestCamera::copiesAreSnapshots()
{
    Camera original(entryFor(1000), 0);
    const Camera copy = original;
    QCOMPARE(pvsim_ChangeCamera(1000, R"({"temperature": 60.0})"), PV_OK);
    original.refreshDeviceInformation();
    QCOMPARE(original.temperatureText(), QString::fromUtf8("60.0°C (140.0°F)"));
    QCOMPARE(copy.temperatureText(), QString::fromUtf8("41.5°C (106.7°F)"));

    const QVariant carried = QVariant::fromValue(copy);
    QCOMPARE(carried.value<Camera>().serialNumber(), copy.serialNumber());
    camera::optional<Camera> none;
    QVERIFY_EXCEPTION_THROWN(none.value(), std::bad_optional_access);
}

QTEST_GUILESS_MAIN(TestCamera)
#include "tst_camera.moc"
