#include "dialogs/readonlydevicerequest.h"

#include "fleetcamera.h"
#include "simdriverfixture.h"

#include <QtTest>

#include <cstring>

using namespace SimDriverFixture;

namespace {

constexpr quint32 multicastSender = 1000; // sends to 239.1.1.10 on simnet0 (192.168.50.1)
constexpr quint32 withoutGroup = 1001;    // has no multicast address

struct Call
{
    std::uint32_t handle;
    std::uint32_t command;
    QByteArray block;
};

// Stands in for pv_EthConfig: keeps every call and answers each command as told.
struct RecordingEthConfig
{
    std::int32_t addAnswer = PV_OK;
    std::int32_t applyAnswer = PV_OK;
    QList<Call> calls;

    ReadOnlyDeviceRequest::EthConfig function()
    {
        return [this](std::uint32_t handle, std::uint32_t command, void* buffer, std::uint32_t size) {
            calls.append({handle, command, buffer ? QByteArray(static_cast<const char*>(buffer), int(size)) : QByteArray()});
            return command == PV_ETHSVC_ADD_READONLY ? addAnswer : applyAnswer;
        };
    }
};

QList<QJsonObject> readOnlyDevicesOf(quint32 cameraId)
{
    QList<QJsonObject> devices;
    for (const QJsonValue& camera : state().value("cameras").toArray()) {
        const QJsonObject object = camera.toObject();
        if (object.value("kind").toString() == "readonly" && object.value("cameraId").toInt() == int(cameraId))
            devices.append(object);
    }
    return devices;
}

} // namespace

class TestReadOnlyDeviceRequest : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void blockHoldsGroupAndAdapterInNetworkOrder();
    void applyFollowsOnlyAnAcceptedRequest_data();
    void applyFollowsOnlyAnAcceptedRequest();
    void refusalText_data();
    void refusalText();
    void addedDeviceReceivesTheCamerasStream();
};

void TestReadOnlyDeviceRequest::init()
{
    QVERIFY(reset());
}

void TestReadOnlyDeviceRequest::blockHoldsGroupAndAdapterInNetworkOrder()
{
    const pv_ReadOnlyRequest block = ReadOnlyDeviceRequest(fleetCamera(multicastSender), 42, 3).block();
    const std::uint8_t expectedGroup[4] = {239, 1, 1, 10};
    const std::uint8_t expectedAdapter[4] = {192, 168, 50, 1};
    QVERIFY(std::memcmp(block.multicastIp, expectedGroup, 4) == 0);
    QVERIFY(std::memcmp(block.adapterIp, expectedAdapter, 4) == 0);
    QCOMPARE(block.cameraId, 42u);
    QCOMPARE(block.mode, 3u);

    // Without a group the driver is asked for 0.0.0.0, which it refuses.
    const pv_ReadOnlyRequest empty = ReadOnlyDeviceRequest(fleetCamera(withoutGroup), 1, 1).block();
    const std::uint8_t zero[4] = {};
    QVERIFY(std::memcmp(empty.multicastIp, zero, 4) == 0);
}

void TestReadOnlyDeviceRequest::applyFollowsOnlyAnAcceptedRequest_data()
{
    QTest::addColumn<std::int32_t>("addAnswer");
    QTest::addColumn<std::int32_t>("applyAnswer");
    QTest::addColumn<int>("calls");
    QTest::addColumn<int>("code");
    QTest::newRow("accepted and applied") << std::int32_t(PV_OK) << std::int32_t(PV_OK) << 2 << 0;
    // The apply step's answer does not count.
    QTest::newRow("accepted, apply fails") << std::int32_t(PV_OK) << std::int32_t(PV_ERR_UNKNOWN_DEVICE) << 2 << 0;
    QTest::newRow("refused") << std::int32_t(PV_ERR_INVALID_PARAMETER) << std::int32_t(PV_OK) << 1
                             << int(PV_ERR_INVALID_PARAMETER);
}

void TestReadOnlyDeviceRequest::applyFollowsOnlyAnAcceptedRequest()
{
    QFETCH(std::int32_t, addAnswer);
    QFETCH(std::int32_t, applyAnswer);
    RecordingEthConfig ethConfig{addAnswer, applyAnswer, {}};
    const ReadOnlyDeviceRequest request(fleetCamera(multicastSender), 7, 2);
    const Result result = request.send(ethConfig.function());
    QTEST(result.code(), "code");
    QTEST(int(ethConfig.calls.size()), "calls");

    const Call& add = ethConfig.calls.first();
    QCOMPARE(add.handle, std::uint32_t(PV_DRIVER_HANDLE));
    QCOMPARE(add.command, std::uint32_t(PV_ETHSVC_ADD_READONLY));
    const pv_ReadOnlyRequest block = request.block();
    QCOMPARE(add.block, QByteArray(reinterpret_cast<const char*>(&block), sizeof block));
    if (ethConfig.calls.size() > 1) {
        QCOMPARE(ethConfig.calls.at(1).command, std::uint32_t(PV_ETHSVC_APPLY));
        QCOMPARE(ethConfig.calls.at(1).handle, std::uint32_t(PV_DRIVER_HANDLE));
        QVERIFY(ethConfig.calls.at(1).block.isNull());
    }
}

void TestReadOnlyDeviceRequest::refusalText_data()
{
    QTest::addColumn<quint32>("deviceId");
    QTest::addColumn<std::int32_t>("injected"); // 0: the driver refuses by itself
    QTest::addColumn<bool>("errorQueryFails");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("text");
    QTest::newRow("driver's own text") << withoutGroup << std::int32_t(0) << false << int(PV_ERR_INVALID_PARAMETER)
                                       << "0.0.0.0 is not a multicast address";
    QTest::newRow("driver's text of an injected failure")
        << multicastSender << std::int32_t(PV_ERR_NO_MEMORY) << false << int(PV_ERR_NO_MEMORY)
        << "pv_EthConfig: injected failure";
    // Without the driver's text, the code picks one.
    const struct
    {
        std::int32_t code;
        const char* text;
    } table[] = {{PV_ERR_GENERAL, "Something went wrong"},
                 {PV_ERR_INVALID_PARAMETER, "Invalid Parameter"},
                 {PV_ERR_NO_MEMORY, "Needs more ram"},
                 {PV_ERR_NOT_SUPPORTED, "Maybe not supported for this camera"},
                 {PV_ERR_SERVICE_STOPPED, ""}};
    for (const auto& row : table) {
        QTest::addRow("code %d without the driver's text", row.code)
            << multicastSender << row.code << true << int(row.code) << QString::fromLatin1(row.text);
    }
}

void TestReadOnlyDeviceRequest::refusalText()
{
    QFETCH(quint32, deviceId);
    QFETCH(std::int32_t, injected);
    QFETCH(bool, errorQueryFails);
    const Camera camera = fleetCamera(deviceId);
    if (injected != 0)
        QCOMPARE(pvsim_FailOperation("pv_EthConfig", injected, 1), PV_OK);
    if (errorQueryFails)
        QCOMPARE(pvsim_FailOperation("pv_GetError", PV_ERR_NULL_POINTER, 1), PV_OK);
    const Result result = ReadOnlyDeviceRequest(camera, 42, 1).send();
    QTEST(result.code(), "code");
    QFETCH(QString, text);
    if (text.isEmpty())
        QVERIFY2(result.text().isEmpty(), qPrintable(result.text()));
    else
        QVERIFY2(result.text().endsWith(text), qPrintable(result.text()));
    QVERIFY(readOnlyDevicesOf(42).isEmpty());
}

void TestReadOnlyDeviceRequest::addedDeviceReceivesTheCamerasStream()
{
    QVERIFY(ReadOnlyDeviceRequest(fleetCamera(multicastSender), 42, 4).send().isSuccess());
    const QList<QJsonObject> devices = readOnlyDevicesOf(42);
    QCOMPARE(devices.size(), 1);
    const QJsonObject device = devices.first();
    const int deviceId = device.value("deviceId").toInt();
    QVERIFY(deviceId >= int(PV_READONLY_DEVICE_FIRST) && deviceId < int(PV_SDK_DEVICE_FIRST));
    QCOMPARE(device.value("sourceIp").toString(), QStringLiteral("192.168.50.10"));
    QCOMPARE(device.value("currentIp").toString(), QStringLiteral("239.1.1.10"));
    QCOMPARE(device.value("readOnlyMode").toInt(), 4);
    QCOMPARE(device.value("serial").toString(), cameraState(multicastSender).value("serial").toString());
    QCOMPARE(state().value("pendingReadOnly").toInt(), 0);

    // The same device again is refused.
    const Result again = ReadOnlyDeviceRequest(fleetCamera(multicastSender), 42, 1).send();
    QCOMPARE(again.code(), int(PV_ERR_INVALID_PARAMETER));
    QCOMPARE(readOnlyDevicesOf(42).size(), 1);
}

QTEST_GUILESS_MAIN(TestReadOnlyDeviceRequest)
#include "tst_readonlydevicerequest.moc"
