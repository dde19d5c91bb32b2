// Scenarios and driver-wide settings of the simulated driver: loading fleets
// from JSON, timelines, plugging and changing cameras, pv_Configuration, boot
// boost, the service configuration files, the API version, and what the
// environment does to a freshly started driver.
#include "simdriverfixture.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

#include <functional>
#include <set>

using namespace SimDriverFixture;

using Call = std::function<std::int32_t()>;
Q_DECLARE_METATYPE(Call)

namespace {

constexpr std::uint32_t gigeCamera = 1000;      // reachable, on simnet0
constexpr std::uint32_t unconfigured = 1001;    // no usable address
constexpr std::uint32_t starterMismatch = 1002; // older starter firmware than the driver's image
constexpr std::uint32_t defaultApiVersion = 0x04610000u;

// A small fleet that the rejected scenarios must leave in place.
const char* const baseline = R"({
    "driver": {"apiVersion": "4.90"},
    "adapters": [{"name": "simnetA", "mac": "02:00:00:00:0a:01", "ip": "10.20.0.1", "mask": "255.255.0.0"}],
    "cameras": [
        {"kind": "usb", "serial": "U1"},
        {"kind": "eth", "serial": "E1", "adapter": "simnetA", "mac": "00:1c:c1:0a:00:01",
         "persistentIp": "10.20.0.10", "persistentMask": "255.255.0.0"}
    ]})";

QSet<QByteArray> listedSerials()
{
    QSet<QByteArray> serials;
    for (const pv_CameraListEntry& entry : list())
        serials.insert(QByteArray(entry.serialNumber, int(qstrnlen(entry.serialNumber, sizeof entry.serialNumber))));
    return serials;
}

std::uint32_t deviceIdOf(const QString& serial)
{
    for (const QJsonValue& camera : state().value("cameras").toArray()) {
        if (camera.toObject().value("serial").toString() == serial)
            return std::uint32_t(camera.toObject().value("deviceId").toInt());
    }
    return ~0u;
}

std::int32_t cameraCount()
{
    std::int32_t count = -1;
    return pv_GetNumberOfCameras(&count) == PV_OK ? count : -1;
}

std::uint32_t readConfiguration(std::uint32_t command)
{
    std::uint32_t value = 0xDEAD;
    return pv_Configuration(command, &value, sizeof value) == PV_OK ? value : 0xDEAD;
}

std::uint32_t bootBoostWord(std::uint32_t command)
{
    std::uint32_t value = 0xDEAD;
    return pv_BootBoost(PV_DRIVER_HANDLE, command, &value, sizeof value) == PV_OK ? value : 0xDEAD;
}

std::int32_t bootBoostId(std::uint32_t command, std::uint8_t id)
{
    return pv_BootBoost(PV_DRIVER_HANDLE, command, &id, 1);
}

QJsonObject registry()
{
    return state().value("driver").toObject().value("registry").toObject();
}

void writeIni(const QString& path, const QString& key, const QVariant& value)
{
    QSettings settings(path, QSettings::IniFormat);
    if (value.isNull())
        settings.remove(key);
    else
        settings.setValue(key, value);
    settings.sync();
}

bool writeFile(const QString& path, const QByteArray& content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

} // namespace

class TestSimScenario : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void rejectedScenarioKeepsTheFleet_data();
    void rejectedScenarioKeepsTheFleet();
    void hotplugTimeline();
    void rejectedPlugsAndChanges_data();
    void rejectedPlugsAndChanges();
    void plugTakesTheLowestFreeId_data();
    void plugTakesTheLowestFreeId();
    void configurationWords_data();
    void configurationWords();
    void summitFlagIsReadOnly();
    void bootBoostList();
    void bootBoostPairsAReachableCamera();
    void registryValues();
    void automaticStarterUpload_data();
    void automaticStarterUpload();
    void apiVersion_data();
    void apiVersion();
    void startupEnvironment_data();
    void startupEnvironment();

private:
    EmptyConfigRoot m_emptyConfig;
};

void TestSimScenario::initTestCase()
{
    QVERIFY(m_emptyConfig.isValid());
}

void TestSimScenario::init()
{
    m_emptyConfig.use();
    QVERIFY(reset());
}

void TestSimScenario::cleanup()
{
    m_emptyConfig.use();
}

void TestSimScenario::rejectedScenarioKeepsTheFleet_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<std::int32_t>("code");
    QTest::addColumn<QByteArray>("mentions");

    auto row = [](const char* name, const char* json, const char* mentions,
                  std::int32_t code = PV_ERR_INVALID_PARAMETER) {
        QTest::newRow(name) << QByteArray(json) << code << QByteArray(mentions);
    };
    row("malformed JSON", R"({"cameras": [)", "scenario");
    row("not an object", "[]", "object");
    row("unknown top-level field", R"({"camera": []})", "\"camera\"");
    row("unknown camera field", R"({"cameras": [{"kind": "usb", "colour": "red"}]})", "colour");
    row("unknown kind", R"({"cameras": [{"kind": "firewire"}]})", "kind");
    row("cameras not a list", R"({"cameras": {"kind": "usb"}})", "cameras");
    row("driver not an object", R"({"driver": 5})", "driver");
    row("services not an object", R"({"services": ["cirro_eth"]})", "services");
    row("text for a number", R"({"adapters": [{"name": "simnetB", "linkSpeed": "fast"}]})", "linkSpeed");
    row("number for a flag", R"({"cameras": [{"kind": "usb", "inUse": 1}]})", "inUse");
    row("short address", R"({"adapters": [{"name": "simnetB", "ip": "192.168.1"}]})", "\"ip\"");
    row("version with a build", R"({"driver": {"apiVersion": "4.97.1"}})", "apiVersion");
    row("type code above a byte", R"({"cameras": [{"kind": "usb", "typeCode": 256}]})", "typeCode");
    row("device ID of another kind", R"({"cameras": [{"kind": "usb", "deviceId": 1000}]})", "deviceId");
    row("unknown adapter", R"({"cameras": [{"kind": "eth", "adapter": "simnet9", "mac": "00:1c:c1:0b:00:01"}]})",
        "simnet9", PV_ERR_UNKNOWN_ADAPTER);
    row("duplicate device ID", R"({"cameras": [{"kind": "usb", "deviceId": 7}, {"kind": "usb", "deviceId": 7}]})",
        "7");
    row("duplicate adapter", R"({"adapters": [{"name": "simnetB"}, {"name": "simnetB"}]})", "simnetB");
    row("unknown service state", R"({"services": {"cirro_eth": "paused"}})", "cirro_eth");
    row("timeline event without action", R"({"timeline": [{"afterMs": 10}]})", "timeline");
    row("timeline event in the past", R"({"timeline": [{"afterMs": -5, "unplug": "U1"}]})", "afterMs");
    row("ARP time-out of 0", R"({"driver": {"arpTimeoutMs": 0}})", "arpTimeoutMs");
    row("ARP time-out as text", R"({"driver": {"arpTimeoutMs": "1000"}})", "arpTimeoutMs");
    row("IP change above a minute", R"({"driver": {"ipChangeMs": 60001}})", "ipChangeMs");
    row("IP change negative", R"({"driver": {"ipChangeMs": -1}})", "ipChangeMs");

    // Other hosts on an adapter's network, 10.9.0.0/24 unless the row says otherwise.
    auto hostsRow = [&row](const char* name, const char* hosts, const char* mentions,
                           const char* address = R"("ip": "10.9.0.1", "mask": "255.255.255.0", )") {
        const QByteArray json = QByteArray(R"({"adapters": [{"name": "simnetB", )") + address + R"("hosts": )"
                                + hosts + "}]}";
        QTest::newRow(name) << json << std::int32_t(PV_ERR_INVALID_PARAMETER) << QByteArray(mentions);
    };
    hostsRow("hosts: one address, not a list", R"("10.9.0.5")", "\"hosts\"");
    hostsRow("hosts: a number", "[5]", "\"hosts\"");
    hostsRow("hosts: range without its end", R"(["10.9.0.5-"])", "10.9.0.5-");
    hostsRow("hosts: blanks around the dash", R"(["10.9.0.5 - 10.9.0.9"])", "10.9.0.5 - 10.9.0.9");
    hostsRow("hosts: reversed range", R"(["10.9.0.9-10.9.0.5"])", "10.9.0.9-10.9.0.5");
    hostsRow("hosts: address of another subnet", R"(["10.9.0.5", "10.8.0.5"])", "10.8.0.5");
    hostsRow("hosts: range leaving the subnet", R"(["10.9.0.250-10.9.1.3"])", "10.9.0.250-10.9.1.3");
    hostsRow("hosts: network address", R"(["10.9.0.0-10.9.0.5"])", "10.9.0.0-10.9.0.5");
    hostsRow("hosts: adapter without address", R"(["10.9.0.5"])", "\"hosts\"", "");
}

void TestSimScenario::rejectedScenarioKeepsTheFleet()
{
    QFETCH(QByteArray, json);
    QFETCH(std::int32_t, code);
    QFETCH(QByteArray, mentions);

    QCOMPARE(pvsim_LoadScenarioText(baseline), PV_OK);
    const QJsonObject before = steadyState();
    const std::uint32_t version = pv_QueryApiVersion();
    QVERIFY(version != defaultApiVersion);

    QCOMPARE(pvsim_LoadScenarioText(json.constData()), code);
    const QByteArray text = lastErrorText();
    QVERIFY2(text.contains(mentions), text.constData());
    QCOMPARE(steadyState(), before);
    QCOMPARE(pv_QueryApiVersion(), version);
}

void TestSimScenario::hotplugTimeline()
{
    const QString path = QStringLiteral(CIRRO_SCENARIO_DIR "/hotplug.json");
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QJsonArray timeline = QJsonDocument::fromJson(file.readAll()).object().value("timeline").toArray();
    QCOMPARE(timeline.size(), 3);
    const QByteArray plugged = timeline[0].toObject().value("plug").toObject().value("serial").toString().toUtf8();
    const QJsonObject change = timeline[1].toObject().value("change").toObject();
    const QByteArray unplugged = timeline[2].toObject().value("unplug").toString().toUtf8();
    QVERIFY(!plugged.isEmpty() && !unplugged.isEmpty() && change.contains("persistentIp"));

    // A tenth of real time: the steps come 300 ms apart.
    QCOMPARE(pvsim_SetTimeScale(0.1), PV_OK);
    QCOMPARE(pvsim_LoadScenario(path.toLocal8Bit().constData()), PV_OK);
    Event arrived(PV_DRIVER_HANDLE, PV_EVENT_DEVICE_ARRIVED);
    Event removed(PV_DRIVER_HANDLE, PV_EVENT_DEVICE_REMOVED);
    Event changed(PV_DRIVER_HANDLE, PV_EVENT_DEVICE_CHANGED);
    QVERIFY(arrived.ok() && removed.ok() && changed.ok());
    QVERIFY(!listedSerials().contains(plugged));
    QVERIFY(listedSerials().contains(unplugged));
    const std::uint32_t changedId = deviceIdOf(change.value("serial").toString());
    QVERIFY(!(deviceInfo(changedId).deviceControlStatus & PV_CONTROL_AVAILABLE));

    const std::vector<std::uint32_t> all{PV_EVENT_DEVICE_ARRIVED, PV_EVENT_DEVICE_REMOVED, PV_EVENT_DEVICE_CHANGED};
    std::uint32_t signalled = 0;
    QCOMPARE(wait(PV_DRIVER_HANDLE, all, 5000, &signalled), PV_OK);
    QCOMPARE(signalled, std::uint32_t(PV_EVENT_DEVICE_ARRIVED));
    QVERIFY(listedSerials().contains(plugged));

    QCOMPARE(wait(PV_DRIVER_HANDLE, all, 5000, &signalled), PV_OK);
    QCOMPARE(signalled, std::uint32_t(PV_EVENT_DEVICE_CHANGED));
    QCOMPARE(cameraState(changedId).value("persistentIp"), change.value("persistentIp"));
    QVERIFY(deviceInfo(changedId).deviceControlStatus & PV_CONTROL_AVAILABLE);

    QCOMPARE(wait(PV_DRIVER_HANDLE, all, 5000, &signalled), PV_OK);
    QCOMPARE(signalled, std::uint32_t(PV_EVENT_DEVICE_REMOVED));
    QVERIFY(!listedSerials().contains(unplugged));
    QVERIFY(listedSerials().contains(plugged));
}

void TestSimScenario::rejectedPlugsAndChanges_data()
{
    QTest::addColumn<Call>("call");
    QTest::addColumn<std::int32_t>("code");

    auto plug = [](const char* json) {
        return Call([json] {
            std::uint32_t id = 0;
            return pvsim_PlugCamera(json, &id);
        });
    };
    auto change = [](std::uint32_t id, const char* json) { return Call([=] { return pvsim_ChangeCamera(id, json); }); };
    const std::int32_t invalid = PV_ERR_INVALID_PARAMETER;

    QTest::newRow("plug: not JSON") << plug(R"({"kind": "usb")") << invalid;
    QTest::newRow("plug: no kind") << plug(R"({"serial": "X1"})") << invalid;
    QTest::newRow("plug: user EEPROM over 64 bytes")
        << plug(R"({"kind": "usb", "userSpace": "0123456789012345678901234567890123456789012345678901234567890123X"})")
        << invalid;
    QTest::newRow("plug: maintenance bits out of range") << plug(R"({"kind": "usb", "maintenance": 256})") << invalid;
    QTest::newRow("change: user EEPROM over 64 bytes")
        << change(0, R"({"userSpace": "0123456789012345678901234567890123456789012345678901234567890123X"})")
        << invalid;
    QTest::newRow("plug: unknown field") << plug(R"({"kind": "usb", "colour": "red"})") << invalid;
    QTest::newRow("plug: unknown adapter")
        << plug(R"({"kind": "eth", "adapter": "simnet9", "mac": "00:1c:c1:0b:00:02"})")
        << std::int32_t(PV_ERR_UNKNOWN_ADAPTER);
    QTest::newRow("plug: device ID taken") << plug(R"({"kind": "usb", "deviceId": 0})") << invalid;
    QTest::newRow("plug: device ID of another kind") << plug(R"({"kind": "usb", "deviceId": 1200})") << invalid;
    QTest::newRow("change: absent device") << change(999, R"({"serial": "X"})") << std::int32_t(PV_ERR_UNKNOWN_DEVICE);
    QTest::newRow("change: kind") << change(gigeCamera, R"({"kind": "usb"})") << invalid;
    QTest::newRow("change: device ID") << change(gigeCamera, R"({"deviceId": 1300})") << invalid;
    QTest::newRow("change: wrong type") << change(gigeCamera, R"({"persistentIp": 5})") << invalid;
    QTest::newRow("change: unknown adapter") << change(gigeCamera, R"({"adapter": "simnet9"})")
                                             << std::int32_t(PV_ERR_UNKNOWN_ADAPTER);
    QTest::newRow("unplug: absent device") << Call([] { return pvsim_UnplugCamera(999); })
                                           << std::int32_t(PV_ERR_UNKNOWN_DEVICE);
}

void TestSimScenario::rejectedPlugsAndChanges()
{
    QFETCH(Call, call);
    QFETCH(std::int32_t, code);

    const QJsonObject before = steadyState();
    QCOMPARE(call(), code);
    QVERIFY(!lastErrorText().isEmpty());
    QCOMPARE(steadyState(), before);
}

void TestSimScenario::plugTakesTheLowestFreeId_data()
{
    QTest::addColumn<QByteArray>("camera");
    QTest::addColumn<std::uint32_t>("first");
    QTest::addColumn<std::uint32_t>("end");

    QTest::newRow("USB") << QByteArray(R"({"kind": "usb"})") << PV_USB_DEVICE_FIRST << PV_ETH_DEVICE_FIRST;
    QTest::newRow("GigE") << QByteArray(R"({"kind": "eth", "adapter": "simnet0", "mac": "00:1c:c1:00:03:01"})")
                          << PV_ETH_DEVICE_FIRST << PV_READONLY_DEVICE_FIRST;
    QTest::newRow("read-only") << QByteArray(R"({"kind": "readonly", "multicastIp": "239.9.9.9"})")
                               << PV_READONLY_DEVICE_FIRST << PV_SDK_DEVICE_FIRST;
    QTest::newRow("sibling SDK") << QByteArray(R"({"kind": "sdk"})") << PV_SDK_DEVICE_FIRST
                                 << PV_UNKNOWN_DEVICE_FIRST;
    QTest::newRow("unknown") << QByteArray(R"({"kind": "unknown"})") << PV_UNKNOWN_DEVICE_FIRST
                             << PV_DEVICE_ID_FLAG;
}

void TestSimScenario::plugTakesTheLowestFreeId()
{
    QFETCH(QByteArray, camera);
    QFETCH(std::uint32_t, first);
    QFETCH(std::uint32_t, end);

    std::set<std::uint32_t> taken;
    for (const QJsonValue& value : state().value("cameras").toArray())
        taken.insert(std::uint32_t(value.toObject().value("deviceId").toInt()));
    QVERIFY(taken.count(first));

    Event arrived(PV_DRIVER_HANDLE, PV_EVENT_DEVICE_ARRIVED);
    QVERIFY(arrived.ok());
    std::uint32_t id = 0;
    QCOMPARE(pvsim_PlugCamera(camera.constData(), &id), PV_OK);
    QCOMPARE(wait(PV_DRIVER_HANDLE, {PV_EVENT_DEVICE_ARRIVED}, 2000), PV_OK);
    QVERIFY(id >= first && id < end);
    QVERIFY(!taken.count(id));
    for (std::uint32_t below = first; below < id; ++below)
        QVERIFY(taken.count(below));

    // The first ID of the range, once free, goes to the next camera.
    QCOMPARE(pvsim_UnplugCamera(first), PV_OK);
    QCOMPARE(pvsim_PlugCamera(camera.constData(), &id), PV_OK);
    QCOMPARE(id, first);
}

void TestSimScenario::configurationWords_data()
{
    QTest::addColumn<std::uint32_t>("write");
    QTest::addColumn<std::uint32_t>("read");
    QTest::addColumn<std::uint32_t>("maximum");

    QTest::newRow("idle state") << std::uint32_t(PV_CONFIG_SET_IDLE_STATE) << std::uint32_t(PV_CONFIG_GET_IDLE_STATE)
                                << 3u;
    QTest::newRow("IPO") << std::uint32_t(PV_CONFIG_SET_IPO) << std::uint32_t(PV_CONFIG_GET_IPO) << 1u;
    QTest::newRow("trusted pairing") << std::uint32_t(PV_CONFIG_SET_TRUSTED_PAIRING)
                                     << std::uint32_t(PV_CONFIG_GET_TRUSTED_PAIRING) << 1u;
    QTest::newRow("memory compatibility") << std::uint32_t(PV_CONFIG_SET_MEMORY_COMPAT)
                                          << std::uint32_t(PV_CONFIG_GET_MEMORY_COMPAT) << 1u;
}

void TestSimScenario::configurationWords()
{
    QFETCH(std::uint32_t, write);
    QFETCH(std::uint32_t, read);
    QFETCH(std::uint32_t, maximum);

    const std::uint32_t reads[] = {PV_CONFIG_GET_IDLE_STATE, PV_CONFIG_GET_IPO, PV_CONFIG_GET_TRUSTED_PAIRING,
                                   PV_CONFIG_GET_MEMORY_COMPAT, PV_CONFIG_GET_SUMMIT_COMPAT};
    std::map<std::uint32_t, std::uint32_t> others;
    for (std::uint32_t command : reads) {
        if (command != read)
            others[command] = readConfiguration(command);
    }

    for (std::uint32_t value = maximum + 1; value-- > 0;) {
        std::uint32_t word = value;
        QCOMPARE(pv_Configuration(write, &word, sizeof word), PV_OK);
        QCOMPARE(readConfiguration(read), value);
    }
    std::uint32_t tooLarge = maximum + 1;
    QCOMPARE(pv_Configuration(write, &tooLarge, sizeof tooLarge), PV_ERR_INVALID_PARAMETER);
    QVERIFY(!lastErrorText().isEmpty());
    std::uint32_t word = maximum;
    QCOMPARE(pv_Configuration(write, &word, sizeof word), PV_OK);
    QCOMPARE(pv_Configuration(write, &tooLarge, sizeof tooLarge), PV_ERR_INVALID_PARAMETER);
    QCOMPARE(readConfiguration(read), maximum);
    // Each command reaches its own word only.
    for (const auto& [command, value] : others)
        QCOMPARE(readConfiguration(command), value);
}

void TestSimScenario::summitFlagIsReadOnly()
{
    QCOMPARE(pvsim_LoadScenarioText(R"({"driver": {"summitCompat": 1}})"), PV_OK);
    QCOMPARE(readConfiguration(PV_CONFIG_GET_SUMMIT_COMPAT), 1u);
    // No command writes it, command 0 included.
    std::uint32_t zero = 0;
    QCOMPARE(pv_Configuration(0, &zero, sizeof zero), PV_ERR_UNKNOWN_COMMAND);
    QCOMPARE(readConfiguration(PV_CONFIG_GET_SUMMIT_COMPAT), 1u);

    QCOMPARE(pvsim_LoadScenarioText(R"({"driver": {"summitCompat": 0}})"), PV_OK);
    QCOMPARE(readConfiguration(PV_CONFIG_GET_SUMMIT_COMPAT), 0u);
}

void TestSimScenario::bootBoostList()
{
    QCOMPARE(pv_BootBoost(PV_DRIVER_HANDLE, PV_BOOTBOOST_CLEAR_IDS, nullptr, 0), PV_OK);
    QCOMPARE(bootBoostWord(PV_BOOTBOOST_GET_ID_COUNT), 0u);
    for (std::uint8_t id : {1, 254, 77, 77})
        QCOMPARE(bootBoostId(PV_BOOTBOOST_ADD_ID, id), PV_OK);
    for (std::uint8_t id : {0, 255}) {
        QCOMPARE(bootBoostId(PV_BOOTBOOST_ADD_ID, id), PV_ERR_INVALID_PARAMETER);
        QCOMPARE(bootBoostId(PV_BOOTBOOST_REMOVE_ID, id), PV_ERR_INVALID_PARAMETER);
    }
    QCOMPARE(bootBoostWord(PV_BOOTBOOST_GET_ID_COUNT), 3u);
    std::uint8_t ids[3] = {};
    QCOMPARE(pv_BootBoost(PV_DRIVER_HANDLE, PV_BOOTBOOST_GET_IDS, ids, sizeof ids), PV_OK);
    QCOMPARE((std::set<int>(ids, ids + 3)), (std::set<int>{1, 77, 254}));

    QCOMPARE(bootBoostId(PV_BOOTBOOST_REMOVE_ID, 77), PV_OK);
    QCOMPARE(bootBoostWord(PV_BOOTBOOST_GET_ID_COUNT), 2u);
    QCOMPARE(pv_BootBoost(PV_DRIVER_HANDLE, PV_BOOTBOOST_GET_IDS, ids, 2), PV_OK);
    QCOMPARE((std::set<int>(ids, ids + 2)), (std::set<int>{1, 254}));
    QCOMPARE(pv_BootBoost(PV_DRIVER_HANDLE, PV_BOOTBOOST_CLEAR_IDS, nullptr, 0), PV_OK);
    QCOMPARE(bootBoostWord(PV_BOOTBOOST_GET_ID_COUNT), 0u);

    QCOMPARE(pv_BootBoost(PV_DRIVER_HANDLE, PV_BOOTBOOST_DISABLE, nullptr, 0), PV_OK);
    QCOMPARE(bootBoostWord(PV_BOOTBOOST_GET_ENABLED), 0u);
    QCOMPARE(pv_BootBoost(PV_DRIVER_HANDLE, PV_BOOTBOOST_ENABLE, nullptr, 0), PV_OK);
    QCOMPARE(bootBoostWord(PV_BOOTBOOST_GET_ENABLED), 1u);
}

void TestSimScenario::bootBoostPairsAReachableCamera()
{
    const auto entries = list();
    auto cameraIdOf = [&](std::uint32_t deviceId) {
        return std::uint8_t(std::find_if(entries.begin(), entries.end(), [&](const auto& e) {
                                return e.deviceId == deviceId;
                            })->cameraId);
    };
    QCOMPARE(pv_BootBoost(PV_DRIVER_HANDLE, PV_BOOTBOOST_CLEAR_IDS, nullptr, 0), PV_OK);
    QCOMPARE(pv_BootBoost(PV_DRIVER_HANDLE, PV_BOOTBOOST_ENABLE, nullptr, 0), PV_OK);
    pv_DeviceInformation info = deviceInfo(gigeCamera);
    QVERIFY(info.deviceStatus & PV_STATUS_UNPAIRED);
    QVERIFY(!(info.deviceControlStatus & PV_CONTROL_BOOT_BOOST_ENABLED));

    QCOMPARE(bootBoostId(PV_BOOTBOOST_ADD_ID, cameraIdOf(gigeCamera)), PV_OK);
    QCOMPARE(bootBoostId(PV_BOOTBOOST_ADD_ID, cameraIdOf(unconfigured)), PV_OK);
    info = deviceInfo(gigeCamera);
    QVERIFY(info.deviceStatus & PV_STATUS_PAIRED);
    QVERIFY(!(info.deviceStatus & PV_STATUS_UNPAIRED));
    const std::uint32_t boosted = PV_CONTROL_BOOT_BOOST_ENABLED | PV_CONTROL_BOOT_BOOST_USED | PV_CONTROL_AVAILABLE;
    QCOMPARE(info.deviceControlStatus & boosted, boosted);
    std::uint32_t handle = gigeCamera | PV_DEVICE_ID_FLAG;
    QCOMPARE(pv_OpenCamera(&handle, nullptr), PV_OK);
    QCOMPARE(pv_CloseCamera(handle), PV_OK);

    // Boost can't pair a camera that the host can't reach.
    info = deviceInfo(unconfigured);
    QVERIFY(info.deviceControlStatus & PV_CONTROL_BOOT_BOOST_ENABLED);
    QVERIFY(!(info.deviceControlStatus & (PV_CONTROL_BOOT_BOOST_USED | PV_CONTROL_AVAILABLE)));
    QVERIFY(!(info.deviceStatus & PV_STATUS_PAIRED));

    // With the mode off the list stays but no longer counts.
    QCOMPARE(pv_BootBoost(PV_DRIVER_HANDLE, PV_BOOTBOOST_DISABLE, nullptr, 0), PV_OK);
    QCOMPARE(bootBoostWord(PV_BOOTBOOST_GET_ID_COUNT), 2u);
    info = deviceInfo(gigeCamera);
    QVERIFY(info.deviceStatus & PV_STATUS_UNPAIRED);
    QVERIFY(!(info.deviceControlStatus & (PV_CONTROL_BOOT_BOOST_ENABLED | PV_CONTROL_BOOT_BOOST_USED)));
    QVERIFY(info.deviceControlStatus & PV_CONTROL_AVAILABLE);
}

void TestSimScenario::registryValues()
{
    QTemporaryDir config;
    QVERIFY(config.isValid());
    const QString usb = config.filePath("cirro_usb.ini");
    const QString eth = config.filePath("cirro_eth.ini");
    writeIni(usb, "Parameters/BulkTransferSize", 262144);
    writeIni(eth, "Parameters/DebugEnableMask", 5);
    qputenv("CIRRO_CONFIG_ROOT", config.path().toLocal8Bit());

    const QString bulk = "cirro_usb/Parameters/BulkTransferSize";
    const QString mask = "cirro_eth/Parameters/DebugEnableMask";
    QVERIFY(!registry().contains(bulk)); // read only when asked to
    QCOMPARE(pv_FetchRegistryValues(), PV_OK);
    QCOMPARE(registry().value(bulk).toString(), QString("262144"));
    QCOMPARE(registry().value(mask).toString(), QString("5"));

    writeIni(usb, "Parameters/BulkTransferSize", 131072);
    writeIni(eth, "Parameters/DebugEnableMask", QVariant());
    QCOMPARE(registry().value(bulk).toString(), QString("262144"));
    QCOMPARE(pv_FetchRegistryValues(), PV_OK);
    QCOMPARE(registry().value(bulk).toString(), QString("131072"));
    QVERIFY(!registry().contains(mask));
}

void TestSimScenario::automaticStarterUpload_data()
{
    QTest::addColumn<QVariant>("allowed");
    QTest::addColumn<bool>("uploads");

    QTest::newRow("allowed") << QVariant(1) << true;
    QTest::newRow("not allowed") << QVariant(0) << false;
    QTest::newRow("not configured") << QVariant() << false;
}

void TestSimScenario::automaticStarterUpload()
{
    QFETCH(QVariant, allowed);
    QFETCH(bool, uploads);

    QTemporaryDir config;
    QVERIFY(config.isValid());
    writeIni(config.filePath("cirro_eth.ini"), "Parameters/AllowAutoStarterFwUpload", allowed);
    qputenv("CIRRO_CONFIG_ROOT", config.path().toLocal8Bit());
    QCOMPARE(pv_FetchRegistryValues(), PV_OK);

    const pv_DeviceInformation before = deviceInfo(starterMismatch);
    QVERIFY(before.deviceFlags & PV_DEVFLAG_UPLOAD_PENDING);
    std::uint32_t handle = starterMismatch | PV_DEVICE_ID_FLAG;
    QCOMPARE(pv_OpenCamera(&handle, nullptr), PV_OK);
    const pv_DeviceInformation after = deviceInfo(starterMismatch);
    QCOMPARE(after.starterFirmware == after.driverFirmwareImage, uploads);
    QCOMPARE(bool(after.deviceFlags & PV_DEVFLAG_UPLOAD_PENDING), !uploads);
    QCOMPARE(pv_CloseCamera(handle), PV_OK);
}

void TestSimScenario::apiVersion_data()
{
    QTest::addColumn<QByteArray>("scenario"); // empty: set through the control interface
    QTest::addColumn<std::uint32_t>("version");

    QTest::newRow("scenario, dotted") << QByteArray(R"({"driver": {"apiVersion": "4.80"}})") << 0x04500000u;
    QTest::newRow("scenario, hexadecimal") << QByteArray(R"({"driver": {"apiVersion": "0x04510000"}})")
                                           << 0x04510000u;
    QTest::newRow("scenario, two-digit major") << QByteArray(R"({"driver": {"apiVersion": "12.3"}})")
                                               << 0x0C030000u;
    QTest::newRow("control call") << QByteArray() << 0x04500000u;
}

void TestSimScenario::apiVersion()
{
    QFETCH(QByteArray, scenario);
    QFETCH(std::uint32_t, version);

    QCOMPARE(pv_QueryApiVersion(), defaultApiVersion);
    if (scenario.isEmpty())
        QCOMPARE(pvsim_SetApiVersion(version), PV_OK);
    else
        QCOMPARE(pvsim_LoadScenarioText(scenario.constData()), PV_OK);
    QCOMPARE(pv_QueryApiVersion(), version);
    QVERIFY(reset());
    QCOMPARE(pv_QueryApiVersion(), defaultApiVersion);
}

void TestSimScenario::startupEnvironment_data()
{
    QTest::addColumn<QString>("scenario"); // "", "hotplug", "own version", "broken" or "missing"
    QTest::addColumn<QString>("apiVersion");
    QTest::addColumn<std::uint32_t>("version");
    QTest::addColumn<bool>("fleetFromScenario");
    QTest::addColumn<QString>("warning");

    auto row = [](const char* name, const QString& scenario, const QString& apiVersion, std::uint32_t version,
                  bool fleetFromScenario, const QString& warning) {
        QTest::newRow(name) << scenario << apiVersion << version << fleetFromScenario << warning;
    };
    row("nothing set", "", "", defaultApiVersion, false, "");
    row("scenario file", "hotplug", "", defaultApiVersion, true, "");
    row("API version", "", "4.80", 0x04500000u, false, "");
    row("hexadecimal API version", "", "0x04510000", 0x04510000u, false, "");
    row("scenario's own version", "own version", "", 0x045A0000u, true, "");
    row("variable beats the scenario", "own version", "4.85", 0x04550000u, true, "");
    row("broken scenario", "broken", "", defaultApiVersion, false, "built-in");
    row("missing scenario", "missing", "", defaultApiVersion, false, "built-in");
    row("malformed API version", "", "four", defaultApiVersion, false, "CIRRO_SIM_API_VERSION");
}

void TestSimScenario::startupEnvironment()
{
    QFETCH(QString, scenario);
    QFETCH(QString, apiVersion);
    QFETCH(std::uint32_t, version);
    QFETCH(bool, fleetFromScenario);
    QFETCH(QString, warning);

    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    QString path;
    if (scenario == "hotplug") {
        path = QStringLiteral(CIRRO_SCENARIO_DIR "/hotplug.json");
    } else if (scenario == "own version") {
        path = dir.filePath("own.json");
        QVERIFY(writeFile(path, QByteArray(baseline)));
    } else if (scenario == "broken") {
        path = dir.filePath("broken.json");
        QVERIFY(writeFile(path, R"({"cameras": [{"kind": "usb"})"));
    } else if (scenario == "missing") {
        path = dir.filePath("missing.json");
    }

    // What this process makes of the same fleet, before a timeline's first
    // change: in real time, as the probe runs it.
    QCOMPARE(pvsim_SetTimeScale(1.0), PV_OK);
    if (fleetFromScenario)
        QCOMPARE(pvsim_LoadScenario(path.toLocal8Bit().constData()), PV_OK);
    const std::int32_t expectedCount = cameraCount();
    QCOMPARE(pvsim_SetTimeScale(0.001), PV_OK);
    QVERIFY(expectedCount > 0);

    QProcess probe;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("CIRRO_SIM_SCENARIO", path);
    environment.insert("CIRRO_SIM_API_VERSION", apiVersion);
    environment.insert("CIRRO_CONFIG_ROOT", m_emptyConfig.path());
    probe.setProcessEnvironment(environment);
    probe.start(QStringLiteral(SIMDRIVER_PROBE), QStringList());
    QVERIFY(probe.waitForFinished(60000));
    const QString output = QString::fromLocal8Bit(probe.readAllStandardOutput());
    const QString errors = QString::fromLocal8Bit(probe.readAllStandardError());
    QCOMPARE(probe.exitStatus(), QProcess::NormalExit);
    QVERIFY2(probe.exitCode() == 0, qPrintable(errors));

    const QRegularExpressionMatch match =
        QRegularExpression("api=0x([0-9a-f]{8}) cameras=(-?\\d+) result=(-?\\d+)").match(output);
    QVERIFY2(match.hasMatch(), qPrintable(output));
    QCOMPARE(match.captured(3).toInt(), int(PV_OK));
    QCOMPARE(match.captured(1).toUInt(nullptr, 16), version);
    QCOMPARE(match.captured(2).toInt(), expectedCount);
    // The reason a scenario was not taken can be asked for, with the file in it.
    const QRegularExpressionMatch startError = QRegularExpression("startError=(-?\\d+):(.*)").match(output);
    QVERIFY2(startError.hasMatch(), qPrintable(output));
    QCOMPARE(startError.captured(1).toInt(), int(PV_OK));
    const bool fellBack = warning == QLatin1String("built-in");
    QCOMPARE(startError.captured(2).isEmpty(), !fellBack);
    if (fellBack)
        QVERIFY2(startError.captured(2).contains(path), qPrintable(startError.captured(2)));
    if (warning.isEmpty()) {
        QVERIFY2(!errors.contains("built-in") && !errors.contains("CIRRO_SIM"), qPrintable(errors));
    } else {
        QVERIFY2(errors.contains(warning), qPrintable(errors));
        if (!path.isEmpty())
            QVERIFY2(errors.contains(path), qPrintable(errors));
    }
}

QTEST_GUILESS_MAIN(TestSimScenario)
#include "tst_simscenario.moc"
