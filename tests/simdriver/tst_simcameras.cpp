// Cameras of the simulated driver: the list, open and close, the blocks of an
// open camera, identify, reboot, starter firmware upload, fault injection, and
// the state words the driver derives from what it knows about a camera.
#include "simdriverfixture.h"

#include <QElapsedTimer>
#include <QtTest>

#include <atomic>
#include <functional>
#include <set>
#include <thread>

using namespace SimDriverFixture;

using Call = std::function<std::int32_t()>;
Q_DECLARE_METATYPE(Call)

namespace {

constexpr std::uint32_t usbCamera = 0;     // USB 3 camera, free
constexpr std::uint32_t otherUsbCamera = 1;
constexpr std::uint32_t gigeCamera = 1000; // GigE camera on a healthy adapter
constexpr std::uint32_t slowGigeCamera = 1005;
constexpr char sentinel = char(0xAB);

template <std::size_t N>
QByteArray text(const char (&field)[N])
{
    return QByteArray(field, int(qstrnlen(field, N)));
}

std::int32_t open(std::uint32_t deviceId, std::uint32_t& handle, std::uint32_t flags = 0)
{
    handle = deviceId | PV_DEVICE_ID_FLAG | flags;
    return pv_OpenCamera(&handle, nullptr);
}

std::vector<pv_CameraListEntry>::const_iterator find(const std::vector<pv_CameraListEntry>& entries,
                                                     std::uint32_t deviceId)
{
    return std::find_if(entries.begin(), entries.end(),
                        [&](const pv_CameraListEntry& e) { return e.deviceId == deviceId; });
}

// A list buffer with `entries` entries' worth of room after the header, all of
// it a pattern that the driver must leave alone where it writes nothing.
QByteArray listBuffer(std::int32_t capacity, int entries)
{
    QByteArray buffer(int(PV_CAMERA_LIST_HEADER_SIZE + entries * sizeof(pv_CameraListEntry)), sentinel);
    std::memcpy(buffer.data(), &capacity, sizeof capacity);
    return buffer;
}

std::int32_t writtenCount(const QByteArray& buffer)
{
    std::int32_t count;
    std::memcpy(&count, buffer.constData(), sizeof count);
    return count;
}

bool untouchedFrom(const QByteArray& buffer, int entry)
{
    const int from = int(PV_CAMERA_LIST_HEADER_SIZE + entry * sizeof(pv_CameraListEntry));
    return std::all_of(buffer.begin() + from, buffer.end(), [](char c) { return c == sentinel; });
}

const pv_CameraListEntry* entryAt(const QByteArray& buffer, int i)
{
    return reinterpret_cast<const pv_CameraListEntry*>(buffer.constData() + PV_CAMERA_LIST_HEADER_SIZE) + i;
}

// Joins a helper thread however the test function is left.
struct JoiningThread
{
    std::thread thread;
    ~JoiningThread()
    {
        if (thread.joinable())
            thread.join();
    }
};

} // namespace

class TestSimCameras : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void listFillsAtMostItsCapacity_data();
    void listFillsAtMostItsCapacity();
    void listLowersTheCount();
    void openMarksTheCameraInUse_data();
    void openMarksTheCameraInUse();
    void infoBlocksNeedAnOpenHandle();
    void identifyCountsOnTheOpenCamera();
    void rebootVanishesAndReturns_data();
    void rebootVanishesAndReturns();
    void starterFirmwareUpload_data();
    void starterFirmwareUpload();
    void injectedFailures_data();
    void injectedFailures();
    void derivedState_data();
    void derivedState();
};

void TestSimCameras::init()
{
    QVERIFY(reset());
}

void TestSimCameras::listFillsAtMostItsCapacity_data()
{
    QTest::addColumn<int>("capacity");
    QTest::addColumn<bool>("relativeToFleet");

    QTest::newRow("none") << 0 << false;
    QTest::newRow("three") << 3 << false;
    QTest::newRow("one short of the fleet") << -1 << true;
    QTest::newRow("the fleet") << 0 << true;
    QTest::newRow("two to spare") << 2 << true;
}

void TestSimCameras::listFillsAtMostItsCapacity()
{
    QFETCH(int, capacity);
    QFETCH(bool, relativeToFleet);

    std::int32_t count = 0;
    QCOMPARE(pv_GetNumberOfCameras(&count), PV_OK);
    const auto all = list();
    QCOMPARE(int(all.size()), count);
    QVERIFY(count > 3);
    if (relativeToFleet)
        capacity += count;

    QByteArray buffer = listBuffer(capacity, count + 3);
    QCOMPARE(pv_GetCameraList(buffer.data()), PV_OK);
    const int filled = std::min(capacity, count);
    QCOMPARE(writtenCount(buffer), filled);
    for (int i = 0; i < filled; ++i)
        QCOMPARE(std::memcmp(entryAt(buffer, i), &all[std::size_t(i)], sizeof(pv_CameraListEntry)), 0);
    QVERIFY(untouchedFrom(buffer, filled));
}

void TestSimCameras::listLowersTheCount()
{
    std::int32_t count = 0;
    QCOMPARE(pv_GetNumberOfCameras(&count), PV_OK);
    const auto before = list();
    const std::uint32_t gone = before[std::size_t(count / 2)].deviceId;

    // The camera leaves between the count and the list call.
    QCOMPARE(pvsim_UnplugCamera(gone), PV_OK);
    QByteArray buffer = listBuffer(count, count);
    QCOMPARE(pv_GetCameraList(buffer.data()), PV_OK);
    QCOMPARE(writtenCount(buffer), count - 1);

    std::vector<std::uint32_t> expected, written;
    for (const pv_CameraListEntry& entry : before) {
        if (entry.deviceId != gone)
            expected.push_back(entry.deviceId);
    }
    for (int i = 0; i < count - 1; ++i)
        written.push_back(entryAt(buffer, i)->deviceId);
    QCOMPARE(written, expected);
    QVERIFY(untouchedFrom(buffer, count - 1));
}

void TestSimCameras::openMarksTheCameraInUse_data()
{
    QTest::addColumn<std::uint32_t>("deviceId");

    QTest::newRow("USB") << usbCamera;
    QTest::newRow("GigE") << gigeCamera;
    QTest::newRow("sibling SDK") << std::uint32_t(PV_SDK_DEVICE_FIRST);
}

void TestSimCameras::openMarksTheCameraInUse()
{
    QFETCH(std::uint32_t, deviceId);
    const bool gige = deviceId >= PV_ETH_DEVICE_FIRST && deviceId < PV_READONLY_DEVICE_FIRST;
    QCOMPARE(find(list(), deviceId)->inUse, 0u);
    QVERIFY(deviceInfo(deviceId).deviceControlStatus & PV_CONTROL_AVAILABLE);

    std::uint32_t handle = 0;
    QCOMPARE(open(deviceId, handle), PV_OK);
    QVERIFY(handle != 0);
    QVERIFY2(!(handle & PV_DEVICE_ID_FLAG), "an open handle must not read as a device ID");
    QCOMPARE(find(list(), deviceId)->inUse, 1u);
    QJsonObject camera = cameraState(deviceId);
    QVERIFY(camera.value("open").toBool());
    QCOMPARE(std::uint32_t(camera.value("handle").toDouble()), handle);
    pv_DeviceInformation info = deviceInfo(deviceId);
    QVERIFY(info.deviceControlStatus & PV_CONTROL_OPENED);
    QVERIFY(!(info.deviceControlStatus & PV_CONTROL_AVAILABLE));
    if (gige) {
        QVERIFY(info.deviceStatus & PV_STATUS_PAIRED);
        QVERIFY(info.deviceControlStatus & PV_CONTROL_PAIRED);
    }

    std::uint32_t second = 0;
    QCOMPARE(open(deviceId, second), PV_ERR_DEVICE_IN_USE);
    QVERIFY(cameraState(deviceId).value("open").toBool());

    QCOMPARE(pv_CloseCamera(handle), PV_OK);
    QCOMPARE(find(list(), deviceId)->inUse, 0u);
    QVERIFY(!cameraState(deviceId).value("open").toBool());
    info = deviceInfo(deviceId);
    QVERIFY(info.deviceControlStatus & PV_CONTROL_AVAILABLE);
    if (gige)
        QVERIFY(info.deviceStatus & PV_STATUS_UNPAIRED);
    QCOMPARE(pv_CloseCamera(handle), PV_ERR_UNKNOWN_HANDLE);

    QCOMPARE(open(deviceId, second), PV_OK);
    QCOMPARE(pv_CloseCamera(second), PV_OK);
}

void TestSimCameras::infoBlocksNeedAnOpenHandle()
{
    const auto entries = list();
    pv_CameraInfo cameraInfo{};
    pv_SensorInfo sensorInfo{};
    pv_RevisionInfo revisionInfo{};
    const std::uint32_t byId = usbCamera | PV_DEVICE_ID_FLAG;
    QCOMPARE(pv_GetCameraInfo(byId, &cameraInfo), PV_ERR_UNKNOWN_HANDLE);
    QCOMPARE(pv_GetSensorInfo(byId, &sensorInfo), PV_ERR_UNKNOWN_HANDLE);
    QCOMPARE(pv_GetRevisionInfo(byId, &revisionInfo), PV_ERR_UNKNOWN_HANDLE);

    // Two cameras open at once: each handle answers for its own camera.
    std::uint32_t handles[2] = {};
    const std::uint32_t ids[2] = {usbCamera, gigeCamera};
    QCOMPARE(open(ids[0], handles[0]), PV_OK);
    QCOMPARE(open(ids[1], handles[1]), PV_OK);
    QVERIFY(handles[0] != handles[1]);
    for (int i = 0; i < 2; ++i) {
        const pv_CameraListEntry& entry = *find(entries, ids[i]);
        QCOMPARE(pv_GetCameraInfo(handles[i], &cameraInfo), PV_OK);
        QCOMPARE(text(cameraInfo.serialNumber), text(entry.serialNumber));
        QCOMPARE(text(cameraInfo.cameraId), QByteArray::number(entry.cameraId));
        QCOMPARE(pv_GetSensorInfo(handles[i], &sensorInfo), PV_OK);
        QCOMPARE(sensorInfo.sensorType, entry.sensorId);
        QVERIFY(sensorInfo.width > 0 && sensorInfo.height > 0);
        QCOMPARE(pv_GetRevisionInfo(handles[i], &revisionInfo), PV_OK);
        QCOMPARE(text(revisionInfo.type), text(entry.model));
    }
    QCOMPARE(pv_CloseCamera(handles[0]), PV_OK);
    QCOMPARE(pv_CloseCamera(handles[1]), PV_OK);
    QCOMPARE(pv_GetCameraInfo(handles[0], &cameraInfo), PV_ERR_UNKNOWN_HANDLE);
}

void TestSimCameras::identifyCountsOnTheOpenCamera()
{
    std::uint32_t handle = 0;
    QCOMPARE(open(usbCamera, handle), PV_OK);
    std::uint32_t blink = PV_IDENTIFY_BLINK;
    QCOMPARE(pv_CameraCommand(handle, PV_CAMCMD_IDENTIFY, &blink, sizeof blink), PV_OK);
    QCOMPARE(pv_CameraCommand(handle, PV_CAMCMD_IDENTIFY, &blink, sizeof blink), PV_OK);
    std::uint32_t other = 5;
    QCOMPARE(pv_CameraCommand(handle, PV_CAMCMD_IDENTIFY, &other, sizeof other), PV_ERR_INVALID_PARAMETER);

    QCOMPARE(cameraState(usbCamera).value("identifyCount").toInt(), 2);
    QCOMPARE(cameraState(otherUsbCamera).value("identifyCount").toInt(), 0);

    QCOMPARE(pv_CloseCamera(handle), PV_OK);
    QCOMPARE(pv_CameraCommand(handle, PV_CAMCMD_IDENTIFY, &blink, sizeof blink), PV_ERR_UNKNOWN_HANDLE);
    QCOMPARE(cameraState(usbCamera).value("identifyCount").toInt(), 2);
}

void TestSimCameras::rebootVanishesAndReturns_data()
{
    QTest::addColumn<bool>("opened");

    QTest::newRow("by open handle") << true;
    QTest::newRow("by device ID") << false;
}

void TestSimCameras::rebootVanishesAndReturns()
{
    QFETCH(bool, opened);
    // Long enough to see the camera gone, short enough for a test.
    QCOMPARE(pvsim_SetTimeScale(0.3), PV_OK);
    Event arrived(PV_DRIVER_HANDLE, PV_EVENT_DEVICE_ARRIVED);
    Event removed(PV_DRIVER_HANDLE, PV_EVENT_DEVICE_REMOVED);
    Event ownRemoved(gigeCamera | PV_DEVICE_ID_FLAG, PV_EVENT_DEVICE_REMOVED);
    QVERIFY(arrived.ok() && removed.ok() && ownRemoved.ok());

    std::uint32_t handle = gigeCamera | PV_DEVICE_ID_FLAG;
    if (opened)
        QCOMPARE(open(gigeCamera, handle), PV_OK);
    QCOMPARE(pv_RebootDevice(handle, 0), PV_OK);

    QCOMPARE(wait(PV_DRIVER_HANDLE, {PV_EVENT_DEVICE_REMOVED}, 5000), PV_OK);
    QCOMPARE(wait(gigeCamera | PV_DEVICE_ID_FLAG, {PV_EVENT_DEVICE_REMOVED}, 5000), PV_OK);
    const auto during = list();
    QVERIFY(find(during, gigeCamera) == during.end());

    QCOMPARE(wait(PV_DRIVER_HANDLE, {PV_EVENT_DEVICE_ARRIVED}, 10000), PV_OK);
    const auto after = list();
    QVERIFY(find(after, gigeCamera) != after.end());
    QCOMPARE(find(after, gigeCamera)->inUse, 0u);
    // The restart ended the session of whoever had it open.
    if (opened)
        QCOMPARE(pv_CloseCamera(handle), PV_ERR_UNKNOWN_HANDLE);
}

void TestSimCameras::starterFirmwareUpload_data()
{
    QTest::addColumn<int>("typeCode");
    QTest::addColumn<int>("seconds");

    QTest::newRow("type 138") << 138 << 25;
    QTest::newRow("type 136") << 136 << 35;
    QTest::newRow("type 131") << 131 << 100;
}

void TestSimCameras::starterFirmwareUpload()
{
    QFETCH(int, typeCode);
    QFETCH(int, seconds);

    const QByteArray camera = QStringLiteral(R"({"kind": "eth", "typeCode": %1, "adapter": "simnet0",
        "mac": "00:1c:c1:00:01:%2", "persistentIp": "192.168.50.%3", "persistentMask": "255.255.255.0",
        "starterFirmware": "3.1.0"})")
                                  .arg(typeCode)
                                  .arg(typeCode, 2, 16)
                                  .arg(typeCode - 80)
                                  .toUtf8();
    std::uint32_t id = 0;
    QCOMPARE(pvsim_PlugCamera(camera.constData(), &id), PV_OK);
    const pv_DeviceInformation before = deviceInfo(id);
    QVERIFY(before.starterFirmware != before.driverFirmwareImage);
    QVERIFY(before.deviceFlags & PV_DEVFLAG_UPLOAD_PENDING);
    QVERIFY(before.deviceControlStatus & PV_CONTROL_AVAILABLE);

    // Scaled so that neighbouring rows of the duration table stay 500 ms apart,
    // more than a loaded sanitizer build adds to one upload.
    const double scale = 0.05;
    const qint64 expectedMs = qRound64(seconds * 1000 * scale);
    QCOMPARE(pvsim_SetTimeScale(scale), PV_OK);
    std::uint32_t handle = 0;
    std::atomic<std::int32_t> result{-12345};
    std::atomic<qint64> elapsedMs{-1};
    JoiningThread uploader{std::thread([&] {
        QElapsedTimer timer;
        timer.start();
        std::uint32_t word = id | PV_DEVICE_ID_FLAG | PV_OPEN_UPLOAD_STARTER_FIRMWARE;
        result = pv_OpenCamera(&word, nullptr);
        elapsedMs = timer.elapsed();
        handle = word;
    })};

    // While it uploads, the rest of the driver answers and shows the upload.
    pv_DeviceInformation during{};
    QTRY_VERIFY((during = deviceInfo(id)).deviceStatus & PV_STATUS_RECEIVING_STARTER_FW);
    QVERIFY(during.deviceControlStatus & PV_CONTROL_UPLOAD_STARTER_FW);
    std::uint32_t second = 0;
    const std::int32_t secondOpen = open(id, second);
    if (cameraState(id).value("uploading").toBool())
        QCOMPARE(secondOpen, PV_ERR_BUSY);
    else if (secondOpen == PV_OK)
        pv_CloseCamera(second);

    uploader.thread.join();
    QCOMPARE(result.load(), PV_OK);
    QVERIFY2(elapsedMs >= expectedMs, qPrintable(QString::number(elapsedMs)));
    QVERIFY2(elapsedMs < expectedMs + 400, qPrintable(QString::number(elapsedMs)));
    QVERIFY(handle != 0 && !(handle & PV_DEVICE_ID_FLAG));

    const pv_DeviceInformation after = deviceInfo(id);
    QCOMPARE(after.starterFirmware, after.driverFirmwareImage);
    QVERIFY(!(after.deviceFlags & PV_DEVFLAG_UPLOAD_PENDING));
    QVERIFY(!(after.deviceStatus & PV_STATUS_RECEIVING_STARTER_FW));
    QVERIFY(after.deviceControlStatus & PV_CONTROL_OPENED);
    QCOMPARE(pv_CloseCamera(handle), PV_OK);
}

void TestSimCameras::injectedFailures_data()
{
    QTest::addColumn<QByteArray>("operation");
    QTest::addColumn<std::int32_t>("code");
    QTest::addColumn<std::uint32_t>("times");
    QTest::addColumn<Call>("call");

    auto row = [](const char* name, const char* operation, std::int32_t code, std::uint32_t times, Call call) {
        QTest::newRow(name) << QByteArray(operation) << code << times << call;
    };
    row("count, twice", "pv_GetNumberOfCameras", PV_ERR_BUSY, 2, [] {
        std::int32_t count = 0;
        return pv_GetNumberOfCameras(&count);
    });
    row("open, once", "pv_OpenCamera", PV_ERR_DEVICE_UNREACHABLE, 1, [] {
        std::uint32_t handle = 0;
        const std::int32_t r = open(usbCamera, handle);
        if (r == PV_OK)
            pv_CloseCamera(handle);
        return r;
    });
    row("IP configuration, three times", "pv_IpConfig", PV_ERR_GENERAL, 3, [] {
        pv_IpBlock block{};
        return pv_IpConfig(std::int32_t(gigeCamera), nullptr, PV_IPCFG_GET_PERSISTENT, &block, sizeof block);
    });
    row("ARP request, twice", "pvsim_ArpRequest", PV_ERR_TIMEOUT, 2, [] {
        std::uint8_t mac[6] = {};
        return pvsim_ArpRequest("simnet0", "192.168.50.1", mac);
    });
}

void TestSimCameras::injectedFailures()
{
    QFETCH(QByteArray, operation);
    QFETCH(std::int32_t, code);
    QFETCH(std::uint32_t, times);
    QFETCH(Call, call);

    const QJsonObject before = steadyState();
    QCOMPARE(pvsim_FailOperation(operation.constData(), code, times), PV_OK);
    for (std::uint32_t i = 0; i < times; ++i) {
        QCOMPARE(call(), code);
        std::int32_t lastCode = 0;
        const char* lastText = nullptr;
        QCOMPARE(pv_GetError(PV_DRIVER_HANDLE, &lastCode, &lastText), PV_OK);
        QCOMPARE(lastCode, code);
        QVERIFY(lastText && QByteArray(lastText).contains(operation));
        // Other operations are not affected and don't use up the failures.
        std::int32_t other = -1;
        deviceInfo(usbCamera, &other);
        QCOMPARE(other, PV_OK);
    }
    QCOMPARE(steadyState(), before);
    QCOMPARE(call(), PV_OK);
    QCOMPARE(call(), PV_OK);
}

void TestSimCameras::derivedState_data()
{
    QTest::addColumn<std::uint32_t>("deviceId");
    QTest::addColumn<QByteArray>("changes");
    QTest::addColumn<std::uint32_t>("controlSet");
    QTest::addColumn<std::uint32_t>("controlClear");
    QTest::addColumn<std::uint32_t>("statusSet");
    QTest::addColumn<std::uint32_t>("statusClear");
    QTest::addColumn<int>("linkSpeed"); // 0: not checked

    auto row = [](const char* name, std::uint32_t id, const char* changes, std::uint32_t controlSet,
                  std::uint32_t controlClear, std::uint32_t statusSet, std::uint32_t statusClear, int linkSpeed = 0) {
        QTest::newRow(name) << id << QByteArray(changes) << controlSet << controlClear << statusSet << statusClear
                            << linkSpeed;
    };
    const std::uint32_t available = PV_CONTROL_AVAILABLE, compatible = PV_CONTROL_COMPATIBLE,
                        persistentUsed = PV_CONTROL_PERSISTENT_IP_USED;
    row("GigE used by another host", gigeCamera, R"({"otherHost": true})", 0,
        available | PV_CONTROL_PAIRED | PV_CONTROL_OPENED, PV_STATUS_PAIRED, PV_STATUS_UNPAIRED);
    row("GigE runtime firmware corrupted", gigeCamera, R"({"firmwareCorrupted": true})", 0, available,
        PV_STATUS_RUNTIME_FW_ERROR | PV_STATUS_UNPAIRED, 0);
    row("GigE starter below the driver's range", gigeCamera, R"({"starterFirmware": "2.9.0"})", 0,
        available | compatible, 0, 0);
    row("GigE starter above the driver's range", gigeCamera, R"({"starterFirmware": "4.0.0"})", 0,
        available | compatible, 0, 0);
    row("GigE older starter still in range", gigeCamera, R"({"starterFirmware": "3.0.0"})", available | compatible, 0,
        0, 0);
    row("GigE persistent IP in another subnet", gigeCamera, R"({"persistentIp": "10.0.0.5"})", 0,
        available | persistentUsed,
        PV_STATUS_PERSISTENT_IP_NOT_APPLICABLE | PV_STATUS_CURRENT_IP_NOT_APPLICABLE | PV_STATUS_READY, 0);
    row("GigE persistent IP is the subnet's broadcast", gigeCamera, R"({"persistentIp": "192.168.50.255"})", 0,
        available, PV_STATUS_PERSISTENT_IP_NOT_APPLICABLE, 0);
    row("GigE without address waits for DHCP", gigeCamera, R"({"persistentIp": "10.0.0.5", "dhcp": true})", 0,
        available, 0, PV_STATUS_READY);
    row("GigE moved to a 100 Mbit/s adapter", gigeCamera,
        R"({"adapter": "simnet1", "persistentIp": "192.168.60.40"})", available | persistentUsed, 0, 0, 0, 100);
    row("GigE moved to a 1 Gbit/s adapter", slowGigeCamera,
        R"({"adapter": "simnet0", "persistentIp": "192.168.50.40"})", available | persistentUsed, 0, 0, 0, 1000);
    row("GigE camera itself at 100 Mbit/s", gigeCamera, R"({"linkSpeed": 100})", available, 0, 0, 0, 100);
    row("USB opened by another process", usbCamera, R"({"inUse": true})", 0, available, 0, 0);
    row("USB without fullspeed support", usbCamera, R"({"listStatus": 2})", 0, available, 0, 0);
    row("USB starter outside the driver's range", usbCamera, R"({"starterFirmware": "2.1.0"})", 0, compatible, 0, 0);
}

void TestSimCameras::derivedState()
{
    QFETCH(std::uint32_t, deviceId);
    QFETCH(QByteArray, changes);
    QFETCH(std::uint32_t, controlSet);
    QFETCH(std::uint32_t, controlClear);
    QFETCH(std::uint32_t, statusSet);
    QFETCH(std::uint32_t, statusClear);
    QFETCH(int, linkSpeed);

    const pv_DeviceInformation before = deviceInfo(deviceId);
    QVERIFY(before.deviceControlStatus & PV_CONTROL_AVAILABLE);
    QVERIFY(before.deviceControlStatus & PV_CONTROL_COMPATIBLE);

    Event changed(PV_DRIVER_HANDLE, PV_EVENT_DEVICE_CHANGED);
    QVERIFY(changed.ok());
    QCOMPARE(pvsim_ChangeCamera(deviceId, changes.constData()), PV_OK);
    QCOMPARE(wait(PV_DRIVER_HANDLE, {PV_EVENT_DEVICE_CHANGED}, 2000), PV_OK);

    std::int32_t result = -1;
    const pv_DeviceInformation info = deviceInfo(deviceId, &result);
    QCOMPARE(result, PV_OK);
    QCOMPARE(info.deviceControlStatus & controlSet, controlSet);
    QCOMPARE(info.deviceControlStatus & controlClear, 0u);
    QCOMPARE(info.deviceStatus & statusSet, statusSet);
    QCOMPARE(info.deviceStatus & statusClear, 0u);
    if (linkSpeed != 0)
        QCOMPARE(int(info.linkSpeed), linkSpeed);
    // A GigE camera that the driver reports as unavailable can't be opened.
    if (deviceId >= PV_ETH_DEVICE_FIRST) {
        std::uint32_t handle = 0;
        const std::int32_t opened = open(deviceId, handle);
        QCOMPARE(opened == PV_OK, bool(controlSet & PV_CONTROL_AVAILABLE));
        if (opened == PV_OK)
            QCOMPARE(pv_CloseCamera(handle), PV_OK);
    }
}

QTEST_GUILESS_MAIN(TestSimCameras)
#include "tst_simcameras.moc"
