// Bad input to every operation of the simulated driver: each gets its own
// non-zero code, pv_GetError explains it, and nothing in the driver changes.
#include "simdriverfixture.h"

#include <QtTest>

#include <functional>

using namespace SimDriverFixture;

using Call = std::function<std::int32_t()>;
Q_DECLARE_METATYPE(Call)

namespace {

constexpr std::uint32_t usbCamera = 0 | PV_DEVICE_ID_FLAG;
constexpr std::uint32_t gigeCamera = 1000 | PV_DEVICE_ID_FLAG;
constexpr std::uint32_t unknownKind = 2500 | PV_DEVICE_ID_FLAG;
constexpr std::uint32_t absentDevice = 999 | PV_DEVICE_ID_FLAG;
constexpr std::uint32_t notAHandle = 0x4242;
const std::uint8_t unknownMac[6] = {0x02, 0xde, 0xad, 0xbe, 0xef, 0x00};

struct Buffers
{
    pv_DeviceInformation info{};
    pv_ExtendedDeviceInformation extended{};
    pv_FeatureBlock feature{};
    pv_CameraInfo cameraInfo{};
    pv_AdapterBlock adapterBlock{};
    pv_IpBlock ip{};
    pv_ReadOnlyRequest readOnly{};
    pv_EventWait wait{};
    pv_EventInit init{900, 0, 0};
    std::uint32_t word = 0;
    std::uint8_t mac[6] = {};
    std::uint32_t events[65] = {};
    char list[4 + 112] = {};
    pv_AdapterId simnet0{"simnet0", {}, {}};
    pv_AdapterId noSuchAdapter{"nosuch0", {}, {}};
};

Buffers b;

} // namespace

class TestSimBadInput : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void rejected_data();
    void rejected();
    void lastErrorQuery();
    void arpOnAnAdapterWithoutAddress();
};

void TestSimBadInput::init()
{
    QVERIFY(reset());
    b = Buffers{};
}

void TestSimBadInput::rejected_data()
{
    QTest::addColumn<Call>("call");
    QTest::addColumn<std::int32_t>("code");

    auto row = [](const char* name, std::int32_t code, Call call) { QTest::newRow(name) << call << code; };

    row("count: null", PV_ERR_NULL_POINTER, [] { return pv_GetNumberOfCameras(nullptr); });
    row("list: null", PV_ERR_NULL_POINTER, [] { return pv_GetCameraList(nullptr); });
    row("list: negative capacity", PV_ERR_INVALID_PARAMETER, [] {
        const std::int32_t capacity = -1;
        std::memcpy(b.list, &capacity, 4);
        return pv_GetCameraList(b.list);
    });

    row("open: null", PV_ERR_NULL_POINTER, [] { return pv_OpenCamera(nullptr, nullptr); });
    row("open: no device ID flag", PV_ERR_INVALID_PARAMETER, [] {
        std::uint32_t word = 1000;
        return pv_OpenCamera(&word, nullptr);
    });
    row("open: stray bits", PV_ERR_INVALID_PARAMETER, [] {
        std::uint32_t word = gigeCamera | 0x100000u;
        return pv_OpenCamera(&word, nullptr);
    });
    row("open: absent device", PV_ERR_UNKNOWN_DEVICE, [] {
        std::uint32_t word = absentDevice;
        return pv_OpenCamera(&word, nullptr);
    });
    row("open: unknown kind", PV_ERR_NOT_SUPPORTED, [] {
        std::uint32_t word = unknownKind;
        return pv_OpenCamera(&word, nullptr);
    });
    row("open: used by another host", PV_ERR_DEVICE_IN_USE, [] {
        std::uint32_t word = 1003 | PV_DEVICE_ID_FLAG;
        return pv_OpenCamera(&word, nullptr);
    });
    row("open: unreachable", PV_ERR_DEVICE_UNREACHABLE, [] {
        std::uint32_t word = 1006 | PV_DEVICE_ID_FLAG;
        return pv_OpenCamera(&word, nullptr);
    });
    row("close: not a handle", PV_ERR_UNKNOWN_HANDLE, [] { return pv_CloseCamera(notAHandle); });
    row("close: driver handle", PV_ERR_UNKNOWN_HANDLE, [] { return pv_CloseCamera(PV_DRIVER_HANDLE); });
    row("close: device ID", PV_ERR_UNKNOWN_HANDLE, [] { return pv_CloseCamera(usbCamera); });

    row("camera info: null", PV_ERR_NULL_POINTER, [] { return pv_GetCameraInfo(notAHandle, nullptr); });
    row("camera info: not open", PV_ERR_UNKNOWN_HANDLE, [] { return pv_GetCameraInfo(usbCamera, &b.cameraInfo); });
    row("sensor info: null", PV_ERR_NULL_POINTER, [] { return pv_GetSensorInfo(notAHandle, nullptr); });
    row("revision info: null", PV_ERR_NULL_POINTER, [] { return pv_GetRevisionInfo(notAHandle, nullptr); });

    row("device info: unknown command", PV_ERR_UNKNOWN_COMMAND,
        [] { return pv_DeviceInfo(usbCamera, 0x2010003, &b.info, sizeof b.info); });
    row("device info: null", PV_ERR_NULL_POINTER,
        [] { return pv_DeviceInfo(usbCamera, PV_DEVINFO_READ, nullptr, sizeof b.info); });
    row("device info: short", PV_ERR_BUFFER_TOO_SMALL,
        [] { return pv_DeviceInfo(usbCamera, PV_DEVINFO_READ, &b.info, sizeof b.info - 1); });
    row("device info: extended short", PV_ERR_BUFFER_TOO_SMALL, [] {
        return pv_DeviceInfo(usbCamera, PV_DEVINFO_READ_EXTENDED, &b.extended, sizeof b.extended - 1);
    });
    row("device info: absent device", PV_ERR_UNKNOWN_DEVICE,
        [] { return pv_DeviceInfo(absentDevice, PV_DEVINFO_READ, &b.info, sizeof b.info); });
    row("device info: oversized handle", PV_ERR_UNKNOWN_HANDLE,
        [] { return pv_DeviceInfo(0x18000u, PV_DEVINFO_READ, &b.info, sizeof b.info); });
    row("device info: unknown kind", PV_ERR_NOT_SUPPORTED,
        [] { return pv_DeviceInfo(unknownKind, PV_DEVINFO_READ, &b.info, sizeof b.info); });
    row("feature: other feature", PV_ERR_UNKNOWN_COMMAND,
        [] { return pv_DeviceFeature(usbCamera, 1, 21, 0, &b.feature, sizeof b.feature); });
    row("feature: short", PV_ERR_BUFFER_TOO_SMALL,
        [] { return pv_DeviceFeature(usbCamera, 1, 20, 0, &b.feature, sizeof b.feature - 1); });

    row("event: command 0", PV_ERR_UNKNOWN_COMMAND, [] { return pv_Event(0, 0, &b.word, 4); });
    row("event: command 8", PV_ERR_UNKNOWN_COMMAND, [] { return pv_Event(0, 8, &b.word, 4); });
    row("event: null", PV_ERR_NULL_POINTER, [] { return pv_Event(0, PV_EVENT_SET, nullptr, 4); });
    row("event: short init", PV_ERR_BUFFER_TOO_SMALL,
        [] { return pv_Event(0, PV_EVENT_INIT, &b.init, sizeof b.init - 1); });
    row("event: short wait", PV_ERR_BUFFER_TOO_SMALL,
        [] { return pv_Event(0, PV_EVENT_WAIT, &b.wait, sizeof b.wait - 1); });
    row("event: unknown handle", PV_ERR_UNKNOWN_HANDLE,
        [] { return pv_Event(notAHandle, PV_EVENT_INIT, &b.init, sizeof b.init); });
    row("event: absent device", PV_ERR_UNKNOWN_DEVICE,
        [] { return pv_Event(absentDevice, PV_EVENT_INIT, &b.init, sizeof b.init); });
    row("event: wait without array", PV_ERR_NULL_POINTER, [] {
        b.wait.count = 1;
        return pv_Event(0, PV_EVENT_WAIT, &b.wait, sizeof b.wait);
    });
    row("event: wait for none", PV_ERR_INVALID_PARAMETER, [] {
        b.wait.events = b.events;
        return pv_Event(0, PV_EVENT_WAIT, &b.wait, sizeof b.wait);
    });
    row("event: wait for 65", PV_ERR_INVALID_PARAMETER, [] {
        b.wait.events = b.events;
        b.wait.count = 65;
        return pv_Event(0, PV_EVENT_WAIT, &b.wait, sizeof b.wait);
    });

    row("reboot: mode 1", PV_ERR_INVALID_PARAMETER, [] { return pv_RebootDevice(usbCamera, 1); });
    row("reboot: absent device", PV_ERR_UNKNOWN_DEVICE, [] { return pv_RebootDevice(absentDevice, 0); });
    row("command: unknown", PV_ERR_UNKNOWN_COMMAND, [] { return pv_CameraCommand(notAHandle, 8, &b.word, 4); });
    row("command: null", PV_ERR_NULL_POINTER, [] { return pv_CameraCommand(notAHandle, 9, nullptr, 4); });
    row("command: identify with 5", PV_ERR_INVALID_PARAMETER, [] {
        b.word = 5;
        return pv_CameraCommand(notAHandle, 9, &b.word, 4);
    });
    row("command: not open", PV_ERR_UNKNOWN_HANDLE, [] {
        b.word = PV_IDENTIFY_BLINK;
        return pv_CameraCommand(usbCamera, 9, &b.word, 4);
    });

    row("configuration: unknown", PV_ERR_UNKNOWN_COMMAND, [] { return pv_Configuration(99, &b.word, 4); });
    row("configuration: short", PV_ERR_BUFFER_TOO_SMALL,
        [] { return pv_Configuration(PV_CONFIG_GET_IPO, &b.word, 3); });
    row("configuration: IPO 2", PV_ERR_INVALID_PARAMETER, [] {
        b.word = 2;
        return pv_Configuration(PV_CONFIG_SET_IPO, &b.word, 4);
    });

    row("IP: MAC null", PV_ERR_NULL_POINTER,
        [] { return pv_IpConfig(-1, nullptr, PV_IPCFG_GET_PERSISTENT, &b.ip, sizeof b.ip); });
    row("IP: USB camera", PV_ERR_NOT_SUPPORTED,
        [] { return pv_IpConfig(0, nullptr, PV_IPCFG_GET_PERSISTENT, &b.ip, sizeof b.ip); });
    row("IP: absent camera", PV_ERR_UNKNOWN_DEVICE,
        [] { return pv_IpConfig(1400, nullptr, PV_IPCFG_GET_PERSISTENT, &b.ip, sizeof b.ip); });
    row("IP: unknown command", PV_ERR_UNKNOWN_COMMAND,
        [] { return pv_IpConfig(1000, nullptr, 0x3010000, &b.ip, sizeof b.ip); });
    row("IP: short block", PV_ERR_BUFFER_TOO_SMALL,
        [] { return pv_IpConfig(1000, nullptr, PV_IPCFG_SET_PERSISTENT, &b.ip, sizeof b.ip - 1); });
    row("IP: unknown camera MAC", PV_ERR_UNKNOWN_DEVICE,
        [] { return pv_IpConfig(-1, unknownMac, PV_IPCFG_SET_PERSISTENT, &b.ip, sizeof b.ip); });
    row("IP: unknown adapter MAC", PV_ERR_UNKNOWN_ADAPTER,
        [] { return pv_IpConfig(-1, unknownMac, PV_IPCFG_SET_RANGE, &b.ip, sizeof b.ip); });
    row("IP: mask missing", PV_ERR_INVALID_PARAMETER, [] {
        b.ip.first[0] = 192, b.ip.first[1] = 168, b.ip.first[2] = 50, b.ip.first[3] = 44;
        return pv_IpConfig(1000, nullptr, PV_IPCFG_SET_PERSISTENT, &b.ip, sizeof b.ip);
    });

    row("ETH: unknown service command", PV_ERR_UNKNOWN_COMMAND, [] { return pv_EthConfig(0, 0x2009, &b.word, 4); });
    row("ETH: short read-only request", PV_ERR_BUFFER_TOO_SMALL,
        [] { return pv_EthConfig(0, PV_ETHSVC_ADD_READONLY, &b.readOnly, sizeof b.readOnly - 1); });
    row("ETH: read-only camera ID 0", PV_ERR_INVALID_PARAMETER,
        [] { return pv_EthConfig(0, PV_ETHSVC_ADD_READONLY, &b.readOnly, sizeof b.readOnly); });
    row("ETH: unknown device command", PV_ERR_UNKNOWN_COMMAND,
        [] { return pv_EthConfig(gigeCamera, 0x1011, &b.word, 4); });
    row("ETH: multicast on USB", PV_ERR_NOT_SUPPORTED,
        [] { return pv_EthConfig(usbCamera, PV_ETHCFG_SET_MULTICAST_ENABLE, &b.word, 4); });
    row("ETH: null", PV_ERR_NULL_POINTER,
        [] { return pv_EthConfig(gigeCamera, PV_ETHCFG_SET_MULTICAST_IP, nullptr, 4); });
    row("ETH: enable 2", PV_ERR_INVALID_PARAMETER, [] {
        b.word = 2;
        return pv_EthConfig(gigeCamera, PV_ETHCFG_SET_MULTICAST_ENABLE, &b.word, 4);
    });

    row("adapter: null", PV_ERR_NULL_POINTER, [] { return pv_EthAdapterConfig(nullptr, 0, 0, &b.word, 4); });
    row("adapter: set 2", PV_ERR_INVALID_PARAMETER, [] { return pv_EthAdapterConfig(&b.simnet0, 2, 3, &b.word, 4); });
    row("adapter: unknown", PV_ERR_UNKNOWN_ADAPTER,
        [] { return pv_EthAdapterConfig(&b.noSuchAdapter, 0, 3, &b.word, 4); });
    row("adapter: unknown command", PV_ERR_UNKNOWN_COMMAND,
        [] { return pv_EthAdapterConfig(&b.simnet0, 0, 7, &b.word, 4); });
    row("adapter: filter 3", PV_ERR_INVALID_PARAMETER, [] {
        b.word = 3;
        return pv_EthAdapterConfig(&b.simnet0, 1, PV_ADAPTERCFG_PACKET_FILTER, &b.word, 4);
    });
    row("adapter: short block", PV_ERR_BUFFER_TOO_SMALL, [] {
        return pv_EthAdapterConfig(&b.simnet0, 0, PV_ADAPTERCFG_BLOCK, &b.adapterBlock, sizeof b.adapterBlock - 1);
    });

    row("ARP: adapter null", PV_ERR_INVALID_PARAMETER,
        [] { return pvsim_ArpRequest(nullptr, "192.168.50.10", b.mac); });
    row("ARP: MAC null", PV_ERR_INVALID_PARAMETER,
        [] { return pvsim_ArpRequest("simnet0", "192.168.50.10", nullptr); });
    row("ARP: unknown adapter", PV_ERR_UNKNOWN_ADAPTER,
        [] { return pvsim_ArpRequest("nosuch0", "192.168.50.10", b.mac); });
    row("ARP: three octets", PV_ERR_INVALID_PARAMETER, [] { return pvsim_ArpRequest("simnet0", "192.168.50", b.mac); });
    row("ARP: blank before the address", PV_ERR_INVALID_PARAMETER,
        [] { return pvsim_ArpRequest("simnet0", " 192.168.50.10", b.mac); });
    row("ARP: signed octet", PV_ERR_INVALID_PARAMETER,
        [] { return pvsim_ArpRequest("simnet0", "192.168.50.+10", b.mac); });
    row("ARP: network address", PV_ERR_INVALID_PARAMETER,
        [] { return pvsim_ArpRequest("simnet0", "192.168.50.0", b.mac); });
    row("ARP: another adapter's subnet", PV_ERR_INVALID_PARAMETER,
        [] { return pvsim_ArpRequest("simnet0", "192.168.60.15", b.mac); });

    row("boot boost: camera handle", PV_ERR_UNKNOWN_HANDLE,
        [] { return pv_BootBoost(usbCamera, PV_BOOTBOOST_GET_ENABLED, &b.word, 4); });
    row("boot boost: unknown", PV_ERR_UNKNOWN_COMMAND, [] { return pv_BootBoost(0, 0x10002, &b.word, 4); });
    row("boot boost: ID 0", PV_ERR_INVALID_PARAMETER, [] { return pv_BootBoost(0, PV_BOOTBOOST_ADD_ID, &b.word, 1); });
    row("boot boost: ID null", PV_ERR_NULL_POINTER, [] { return pv_BootBoost(0, PV_BOOTBOOST_ADD_ID, nullptr, 1); });
    row("boot boost: short list", PV_ERR_BUFFER_TOO_SMALL,
        [] { return pv_BootBoost(0, PV_BOOTBOOST_GET_IDS, &b.word, 0); });
}

void TestSimBadInput::rejected()
{
    QFETCH(Call, call);
    QFETCH(std::int32_t, code);

    const QJsonObject before = steadyState();
    QCOMPARE(call(), code);

    std::int32_t lastCode = 0;
    const char* text = nullptr;
    QCOMPARE(pv_GetError(PV_DRIVER_HANDLE, &lastCode, &text), PV_OK);
    QCOMPARE(lastCode, code);
    QVERIFY(text && *text);
    QCOMPARE(steadyState(), before);
}

void TestSimBadInput::lastErrorQuery()
{
    std::int32_t code = 0;
    const char* text = nullptr;
    QCOMPARE(pv_GetError(1, &code, &text), PV_ERR_UNKNOWN_HANDLE);
    QCOMPARE(pv_GetError(PV_DRIVER_HANDLE, nullptr, &text), PV_ERR_NULL_POINTER);

    // The text pointer may be left out; asking does not replace the last error.
    QCOMPARE(pv_CloseCamera(notAHandle), PV_ERR_UNKNOWN_HANDLE);
    QCOMPARE(pv_GetError(PV_DRIVER_HANDLE, &code, nullptr), PV_OK);
    QCOMPARE(code, PV_ERR_UNKNOWN_HANDLE);
    QCOMPARE(pv_GetError(PV_DRIVER_HANDLE, &code, &text), PV_OK);
    QCOMPARE(code, PV_ERR_UNKNOWN_HANDLE);
    QVERIFY(QByteArray(text).contains(QByteArray::number(notAHandle)));

    QCOMPARE(pvsim_FailOperation("pv_GetError", 127, 1), PV_OK);
    QCOMPARE(pv_GetError(PV_DRIVER_HANDLE, &code, &text), 127);
    QCOMPARE(pv_GetError(PV_DRIVER_HANDLE, &code, &text), PV_OK);
}

void TestSimBadInput::arpOnAnAdapterWithoutAddress()
{
    QCOMPARE(pvsim_LoadScenarioText(R"({"adapters": [{"name": "bare0", "mac": "02:00:00:00:07:01"}]})"), PV_OK);
    QCOMPARE(pvsim_ArpRequest("bare0", "192.168.50.10", b.mac), PV_ERR_INVALID_PARAMETER);
    QVERIFY2(lastErrorText().contains("bare0"), lastErrorText().constData());
    QCOMPARE(pvsim_ArpRequest("bare0", "0.0.0.0", b.mac), PV_ERR_INVALID_PARAMETER);
}

QTEST_APPLESS_MAIN(TestSimBadInput)
#include "tst_simbadinput.moc"
