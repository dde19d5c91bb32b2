// The simulated driver's virtual GigE network: IP configuration of cameras and
// adapter ranges, multicast, read-only devices, adapter settings, the ETH
// service and its adapter bindings, and how each change shows in the cameras.
#include "simdriverfixture.h"

#include <QElapsedTimer>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

#include <array>
#include <atomic>
#include <functional>
#include <set>
#include <thread>

using namespace SimDriverFixture;

// A row's action; fails the test through QtTest's macros.
using Step = std::function<void()>;
Q_DECLARE_METATYPE(Step)

namespace {

constexpr std::uint32_t gigeCamera = 1000;     // reachable, persistent IP, on simnet0
constexpr std::uint32_t unconfigured = 1001;   // persistent IP of another subnet, DHCP on
constexpr std::uint32_t bootBoosted = 1004;    // its camera ID is on the boot boost list
constexpr std::uint32_t bystander = 1005;      // on simnet1
constexpr std::uint32_t noJumboCamera = 1006;  // on simnet2, which lacks 2k packets
constexpr std::uint32_t rangeCamera = 1007;    // no persistent IP, on simnet0
constexpr std::uint32_t readOnlyDevice = 1500;

using Octets = std::array<std::uint8_t, 4>;

pv_IpBlock ipBlock(Octets first, Octets second, std::uint32_t extra = 0)
{
    pv_IpBlock block{};
    std::memcpy(block.first, first.data(), 4);
    std::memcpy(block.second, second.data(), 4);
    block.extra = extra;
    return block;
}

// The device information's form: first octet in the lowest byte.
std::uint32_t infoWord(Octets ip)
{
    return ip[0] | (ip[1] << 8) | (ip[2] << 16) | (std::uint32_t(ip[3]) << 24);
}

// Host order, for comparisons: first octet in the top byte.
std::uint32_t hostOrder(const std::uint8_t* networkBytes)
{
    return (std::uint32_t(networkBytes[0]) << 24) | (networkBytes[1] << 16) | (networkBytes[2] << 8) | networkBytes[3];
}

std::uint32_t hostOrderOfInfoWord(std::uint32_t word)
{
    const std::uint8_t bytes[4] = {std::uint8_t(word), std::uint8_t(word >> 8), std::uint8_t(word >> 16),
                                   std::uint8_t(word >> 24)};
    return hostOrder(bytes);
}

constexpr std::uint32_t testingBits =
    PV_STATUS_TESTING_CURRENT_IP | PV_STATUS_TESTING_PERSISTENT_IP | PV_STATUS_TESTING_IP_RANGE;
const std::uint8_t simnet0Mac[6] = {0x02, 0xc1, 0x5e, 0x00, 0x00, 0x01};

// Since the last IP setting written through the helpers below: a change
// takes its full time from there.
QElapsedTimer sinceIpWrite;

std::int32_t setPersistent(std::int32_t deviceId, Octets ip, Octets mask, const std::uint8_t* mac = nullptr)
{
    pv_IpBlock block = ipBlock(ip, mask);
    sinceIpWrite.start();
    return pv_IpConfig(deviceId, mac, PV_IPCFG_SET_PERSISTENT, &block, sizeof block);
}

std::int32_t setSimnet0Range(Octets begin, Octets end)
{
    pv_IpBlock block = ipBlock(begin, end, 100);
    sinceIpWrite.start();
    return pv_IpConfig(PV_ADDRESS_BY_MAC, simnet0Mac, PV_IPCFG_SET_RANGE, &block, sizeof block);
}

QByteArray currentIpText(std::uint32_t deviceId)
{
    return cameraState(deviceId).value("currentIp").toString().toLatin1();
}

bool sameBlock(const pv_IpBlock& a, const pv_IpBlock& b)
{
    return std::memcmp(a.first, b.first, 4) == 0 && std::memcmp(a.second, b.second, 4) == 0;
}

pv_AdapterId adapterNamed(const char* name)
{
    pv_AdapterId id{};
    qstrncpy(id.interfaceName, name, sizeof id.interfaceName);
    return id;
}

std::set<std::uint32_t> listedIds()
{
    std::set<std::uint32_t> ids;
    for (const pv_CameraListEntry& entry : list())
        ids.insert(entry.deviceId);
    return ids;
}

bool isEthernetId(std::uint32_t id)
{
    return id >= PV_ETH_DEVICE_FIRST && id < PV_SDK_DEVICE_FIRST;
}

std::int32_t ethDeviceCount()
{
    std::uint32_t count = 0;
    const std::int32_t r = pv_EthConfig(PV_DRIVER_HANDLE, PV_ETHSVC_GET_DEVICE_COUNT, &count, sizeof count);
    return r == PV_OK ? std::int32_t(count) : -r;
}

void writeIni(const QString& path, const QString& key, const QVariant& value)
{
    QSettings settings(path, QSettings::IniFormat);
    settings.setValue(key, value);
    settings.sync();
}

} // namespace

class TestSimEthernet : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void persistentIpRoundTrip_data();
    void persistentIpRoundTrip();
    void emptyPersistentIpTakesAnAddressFromTheRange();
    void bootBoostedCameraKeepsItsAddress();
    void dhcpAndCapabilities();
    void changeSignalsTheDriverAndTheCamera();
    void multicastAddress_data();
    void multicastAddress();
    void multicastEnable();
    void readOnlyDevices();
    void readOnlyRequestsThatNameNoSource_data();
    void readOnlyRequestsThatNameNoSource();
    void readOnlyMulticastSwitch();
    void adapterJumboPacketsAndFilter();
    void adapterFramesForJumboPackets_data();
    void adapterFramesForJumboPackets();
    void adapterWithoutLinkHidesItsCameras();
    void stoppedServiceHidesGigE();
    void unboundAdapterHidesItsCameras();
    void arpRequests_data();
    void arpRequests();
    void arpWaitLeavesTheDriverFree();
    void otherHostsAnswerAndHoldTheirAddresses_data();
    void otherHostsAnswerAndHoldTheirAddresses();
    void ipChangeTakesTime_data();
    void ipChangeTakesTime();
    void ipChangeAtOnceWithoutItsTime();

private:
    EmptyConfigRoot m_emptyConfig;
};

void TestSimEthernet::initTestCase()
{
    QVERIFY(m_emptyConfig.isValid());
}

void TestSimEthernet::init()
{
    m_emptyConfig.use();
    QVERIFY(reset());
}

void TestSimEthernet::cleanup()
{
    m_emptyConfig.use();
}

void TestSimEthernet::persistentIpRoundTrip_data()
{
    QTest::addColumn<bool>("byMac");

    QTest::newRow("set by device ID") << false;
    QTest::newRow("set by camera MAC") << true;
}

void TestSimEthernet::persistentIpRoundTrip()
{
    QFETCH(bool, byMac);
    const pv_DeviceInformation before = deviceInfo(unconfigured);
    QVERIFY(!(before.deviceControlStatus & PV_CONTROL_AVAILABLE));
    const std::uint8_t* mac = before.u.eth.macAddress;

    pv_IpBlock block = ipBlock({192, 168, 50, 77}, {255, 255, 255, 0});
    // Long enough for the address test to be seen, however slow the build.
    QCOMPARE(pvsim_SetTimeScale(0.2), PV_OK);
    QCOMPARE(pv_IpConfig(byMac ? PV_ADDRESS_BY_MAC : std::int32_t(unconfigured), byMac ? mac : nullptr,
                         PV_IPCFG_SET_PERSISTENT, &block, sizeof block),
             PV_OK);
    QVERIFY(cameraState(unconfigured).value("ipChanging").toBool());
    QVERIFY(ipChangesSettled());
    // Read back through the other way of addressing the camera.
    pv_IpBlock read{};
    QCOMPARE(pv_IpConfig(byMac ? std::int32_t(unconfigured) : PV_ADDRESS_BY_MAC, byMac ? nullptr : mac,
                         PV_IPCFG_GET_PERSISTENT, &read, sizeof read),
             PV_OK);
    QVERIFY(sameBlock(read, block));

    const pv_DeviceInformation after = deviceInfo(unconfigured);
    QCOMPARE(after.u.eth.persistentIp, infoWord({192, 168, 50, 77}));
    QCOMPARE(after.u.eth.persistentMask, infoWord({255, 255, 255, 0}));
    QCOMPARE(after.u.eth.currentIp, infoWord({192, 168, 50, 77}));
    QVERIFY(after.deviceControlStatus & PV_CONTROL_PERSISTENT_IP_USED);
    QVERIFY(after.deviceControlStatus & PV_CONTROL_AVAILABLE);
    QVERIFY(after.deviceStatus & PV_STATUS_READY);
    QVERIFY(!(after.deviceStatus & PV_STATUS_PERSISTENT_IP_NOT_APPLICABLE));
}

void TestSimEthernet::emptyPersistentIpTakesAnAddressFromTheRange()
{
    const pv_DeviceInformation camera = deviceInfo(gigeCamera);
    const std::uint8_t* adapterMac = camera.u.eth.adapterMac;
    pv_IpBlock range{};
    QCOMPARE(pv_IpConfig(PV_ADDRESS_BY_MAC, adapterMac, PV_IPCFG_GET_RANGE, &range, sizeof range), PV_OK);
    QCOMPARE(range.extra, 100u);
    QVERIFY(camera.u.eth.adapterRangeValid);

    // As the automatic configuration does it: clear the address, by camera MAC.
    const std::uint32_t handedOut = deviceInfo(rangeCamera).u.eth.currentIp;
    QVERIFY(handedOut != 0);
    pv_IpBlock none{};
    QCOMPARE(pv_IpConfig(PV_ADDRESS_BY_MAC, camera.u.eth.macAddress, PV_IPCFG_SET_PERSISTENT, &none, sizeof none),
             PV_OK);
    QVERIFY(ipChangesSettled());
    pv_DeviceInformation info = deviceInfo(gigeCamera);
    const std::uint32_t current = hostOrderOfInfoWord(info.u.eth.currentIp);
    QVERIFY(current >= hostOrder(range.first) && current <= hostOrder(range.second));
    QVERIFY(!(info.deviceControlStatus & PV_CONTROL_PERSISTENT_IP_USED));
    QVERIFY(info.deviceControlStatus & PV_CONTROL_AVAILABLE);
    QCOMPARE(deviceInfo(rangeCamera).u.eth.currentIp, handedOut); // an address handed out stays

    // No two cameras of the adapter end up with the same address.
    std::set<std::uint32_t> addresses{info.u.eth.adapterIp};
    int withAddress = 1;
    for (std::uint32_t id : listedIds()) {
        const pv_DeviceInformation other = deviceInfo(id);
        if (id >= PV_READONLY_DEVICE_FIRST || id < PV_ETH_DEVICE_FIRST || other.u.eth.currentIp == 0
            || qstrcmp(other.u.eth.adapterName, camera.u.eth.adapterName) != 0)
            continue;
        addresses.insert(other.u.eth.currentIp);
        ++withAddress;
    }
    QCOMPARE(int(addresses.size()), withAddress);

    // A new range moves the cameras without persistent address into it.
    pv_IpBlock narrow = ipBlock({192, 168, 50, 20}, {192, 168, 50, 29}, 100);
    QCOMPARE(pv_IpConfig(PV_ADDRESS_BY_MAC, adapterMac, PV_IPCFG_SET_RANGE, &narrow, sizeof narrow), PV_OK);
    QVERIFY(ipChangesSettled());
    QCOMPARE(pv_IpConfig(PV_ADDRESS_BY_MAC, adapterMac, PV_IPCFG_GET_RANGE, &range, sizeof range), PV_OK);
    QVERIFY(sameBlock(range, narrow));
    for (std::uint32_t id : {gigeCamera, rangeCamera}) {
        const std::uint32_t ip = hostOrderOfInfoWord(deviceInfo(id).u.eth.currentIp);
        QVERIFY(ip >= hostOrder(narrow.first) && ip <= hostOrder(narrow.second));
    }

    // A range outside the adapter's subnet gives no address at all.
    pv_IpBlock outside = ipBlock({10, 0, 0, 1}, {10, 0, 0, 9}, 100);
    QCOMPARE(pv_IpConfig(PV_ADDRESS_BY_MAC, adapterMac, PV_IPCFG_SET_RANGE, &outside, sizeof outside), PV_OK);
    QVERIFY(ipChangesSettled());
    info = deviceInfo(gigeCamera);
    QCOMPARE(info.u.eth.currentIp, 0u);
    QVERIFY(!info.u.eth.adapterRangeValid);
    QVERIFY(info.deviceStatus & PV_STATUS_IP_RANGE_NOT_APPLICABLE);
    QVERIFY(!(info.deviceControlStatus & PV_CONTROL_AVAILABLE));

    pv_IpBlock reversed = ipBlock({192, 168, 50, 30}, {192, 168, 50, 20}, 100);
    QCOMPARE(pv_IpConfig(PV_ADDRESS_BY_MAC, adapterMac, PV_IPCFG_SET_RANGE, &reversed, sizeof reversed),
             PV_ERR_INVALID_PARAMETER);
    QCOMPARE(pv_IpConfig(PV_ADDRESS_BY_MAC, adapterMac, PV_IPCFG_GET_RANGE, &range, sizeof range), PV_OK);
    QVERIFY(sameBlock(range, outside));
}

void TestSimEthernet::bootBoostedCameraKeepsItsAddress()
{
    const pv_DeviceInformation before = deviceInfo(bootBoosted);
    QVERIFY(before.deviceControlStatus & PV_CONTROL_BOOT_BOOST_USED);
    pv_IpBlock block = ipBlock({192, 168, 50, 88}, {255, 255, 255, 0});
    QCOMPARE(pv_IpConfig(std::int32_t(bootBoosted), nullptr, PV_IPCFG_SET_PERSISTENT, &block, sizeof block),
             PV_ERR_BOOT_BOOST_ACTIVE);
    QCOMPARE(pv_IpConfig(PV_ADDRESS_BY_MAC, before.u.eth.macAddress, PV_IPCFG_SET_PERSISTENT, &block, sizeof block),
             PV_ERR_BOOT_BOOST_ACTIVE);
    QVERIFY(!lastErrorText().isEmpty());
    QCOMPARE(deviceInfo(bootBoosted).u.eth.persistentIp, before.u.eth.persistentIp);

    QCOMPARE(pv_BootBoost(PV_DRIVER_HANDLE, PV_BOOTBOOST_DISABLE, nullptr, 0), PV_OK);
    QCOMPARE(pv_IpConfig(std::int32_t(bootBoosted), nullptr, PV_IPCFG_SET_PERSISTENT, &block, sizeof block), PV_OK);
    QVERIFY(ipChangesSettled());
    QCOMPARE(deviceInfo(bootBoosted).u.eth.currentIp, infoWord({192, 168, 50, 88}));
}

void TestSimEthernet::dhcpAndCapabilities()
{
    // Without an address the DHCP client waits; nothing answers it.
    std::uint32_t word = 0;
    QCOMPARE(pv_IpConfig(std::int32_t(unconfigured), nullptr, PV_IPCFG_GET_DHCP, &word, sizeof word), PV_OK);
    QCOMPARE(word, 1u);
    pv_DeviceInformation info = deviceInfo(unconfigured);
    QVERIFY(info.u.eth.dhcpState & PV_DHCP_ENABLED);
    QVERIFY(info.u.eth.dhcpState & PV_DHCP_WAITING_FOR_OFFER);
    QVERIFY(!(info.deviceStatus & PV_STATUS_READY));

    word = 0;
    QCOMPARE(pv_IpConfig(std::int32_t(unconfigured), nullptr, PV_IPCFG_SET_DHCP, &word, sizeof word), PV_OK);
    QCOMPARE(pv_IpConfig(std::int32_t(unconfigured), nullptr, PV_IPCFG_GET_DHCP, &word, sizeof word), PV_OK);
    QCOMPARE(word, 0u);
    info = deviceInfo(unconfigured);
    QVERIFY(!(info.u.eth.dhcpState & (PV_DHCP_ENABLED | PV_DHCP_WAITING_FOR_OFFER)));
    QVERIFY(info.deviceStatus & PV_STATUS_READY);

    // A camera that can only take a persistent address refuses the rest.
    std::uint32_t id = 0;
    QCOMPARE(pvsim_PlugCamera(R"({"kind": "eth", "adapter": "simnet0", "mac": "00:1c:c1:00:02:01",
                                  "ipCapabilities": 1})",
                              &id),
             PV_OK);
    QCOMPARE(pv_IpConfig(std::int32_t(id), nullptr, PV_IPCFG_CAPABILITIES, &word, sizeof word), PV_OK);
    QCOMPARE(word, std::uint32_t(PV_IPCAP_PERSISTENT));
    word = 1;
    QCOMPARE(pv_IpConfig(std::int32_t(id), nullptr, PV_IPCFG_SET_DHCP, &word, sizeof word), PV_ERR_NOT_SUPPORTED);
    QCOMPARE(pv_IpConfig(std::int32_t(id), nullptr, PV_IPCFG_GET_DHCP, &word, sizeof word), PV_OK);
    QCOMPARE(word, 0u);
    pv_IpBlock block = ipBlock({192, 168, 50, 91}, {255, 255, 255, 0});
    QCOMPARE(pv_IpConfig(std::int32_t(id), nullptr, PV_IPCFG_SET_PERSISTENT, &block, sizeof block), PV_OK);
}

void TestSimEthernet::changeSignalsTheDriverAndTheCamera()
{
    Event global(PV_DRIVER_HANDLE, PV_EVENT_DEVICE_CHANGED);
    Event own(gigeCamera | PV_DEVICE_ID_FLAG, PV_EVENT_DEVICE_CHANGED);
    Event other(bystander | PV_DEVICE_ID_FLAG, PV_EVENT_DEVICE_CHANGED);
    QVERIFY(global.ok() && own.ok() && other.ok());

    // Writing what the camera already has changes nothing anyone can see.
    pv_IpBlock block{};
    QCOMPARE(pv_IpConfig(std::int32_t(gigeCamera), nullptr, PV_IPCFG_GET_PERSISTENT, &block, sizeof block), PV_OK);
    QCOMPARE(pv_IpConfig(std::int32_t(gigeCamera), nullptr, PV_IPCFG_SET_PERSISTENT, &block, sizeof block), PV_OK);
    QCOMPARE(wait(PV_DRIVER_HANDLE, {PV_EVENT_DEVICE_CHANGED}, 100), PV_ERR_TIMEOUT);

    block = ipBlock({192, 168, 50, 60}, {255, 255, 255, 0});
    QCOMPARE(pv_IpConfig(std::int32_t(gigeCamera), nullptr, PV_IPCFG_SET_PERSISTENT, &block, sizeof block), PV_OK);
    QCOMPARE(wait(PV_DRIVER_HANDLE, {PV_EVENT_DEVICE_CHANGED}, 2000), PV_OK);
    QCOMPARE(wait(gigeCamera | PV_DEVICE_ID_FLAG, {PV_EVENT_DEVICE_CHANGED}, 2000), PV_OK);
    QCOMPARE(wait(bystander | PV_DEVICE_ID_FLAG, {PV_EVENT_DEVICE_CHANGED}, 100), PV_ERR_TIMEOUT);
}

void TestSimEthernet::multicastAddress_data()
{
    QTest::addColumn<QByteArray>("address");
    QTest::addColumn<std::int32_t>("code");

    QTest::newRow("multicast group") << QByteArray("\xef\x02\x03\x04", 4) << std::int32_t(PV_OK);
    QTest::newRow("lowest group") << QByteArray("\xe0\x00\x00\x00", 4) << std::int32_t(PV_OK);
    QTest::newRow("none") << QByteArray(4, '\0') << std::int32_t(PV_OK);
    QTest::newRow("unicast") << QByteArray("\xc0\xa8\x32\x09", 4) << std::int32_t(PV_ERR_INVALID_PARAMETER);
    QTest::newRow("reserved above multicast") << QByteArray("\xf0\x00\x00\x01", 4)
                                              << std::int32_t(PV_ERR_INVALID_PARAMETER);
    QTest::newRow("byte order swapped") << QByteArray("\x04\x03\x02\xef", 4)
                                        << std::int32_t(PV_ERR_INVALID_PARAMETER);
}

void TestSimEthernet::multicastAddress()
{
    QFETCH(QByteArray, address);
    QFETCH(std::int32_t, code);

    const std::uint32_t before = deviceInfo(gigeCamera).u.eth.multicastIp;
    QCOMPARE(pv_EthConfig(gigeCamera | PV_DEVICE_ID_FLAG, PV_ETHCFG_SET_MULTICAST_IP, address.data(), 4), code);
    const auto* octets = reinterpret_cast<const std::uint8_t*>(address.constData());
    const std::uint32_t expected = code == PV_OK ? infoWord({octets[0], octets[1], octets[2], octets[3]}) : before;
    QCOMPARE(deviceInfo(gigeCamera).u.eth.multicastIp, expected);
}

void TestSimEthernet::multicastEnable()
{
    std::uint32_t on = 1, off = 0;
    QCOMPARE(pv_EthConfig(gigeCamera | PV_DEVICE_ID_FLAG, PV_ETHCFG_SET_MULTICAST_ENABLE, &on, 4), PV_OK);
    QVERIFY(deviceInfo(gigeCamera).deviceStatus & PV_STATUS_MULTICAST_ENABLED);
    QCOMPARE(pv_EthConfig(gigeCamera | PV_DEVICE_ID_FLAG, PV_ETHCFG_SET_MULTICAST_ENABLE, &off, 4), PV_OK);
    QVERIFY(!(deviceInfo(gigeCamera).deviceStatus & PV_STATUS_MULTICAST_ENABLED));

    // Neither a passive receiver nor a camera without multicast can take it.
    QCOMPARE(pv_EthConfig(readOnlyDevice | PV_DEVICE_ID_FLAG, PV_ETHCFG_SET_MULTICAST_ENABLE, &on, 4),
             PV_ERR_NOT_SUPPORTED);
    std::uint32_t id = 0;
    QCOMPARE(pvsim_PlugCamera(R"({"kind": "eth", "adapter": "simnet0", "mac": "00:1c:c1:00:02:02",
                                  "multicastCapability": 0})",
                              &id),
             PV_OK);
    QCOMPARE(pv_EthConfig(id | PV_DEVICE_ID_FLAG, PV_ETHCFG_SET_MULTICAST_ENABLE, &on, 4), PV_ERR_NOT_SUPPORTED);
    QVERIFY(!(deviceInfo(id).deviceStatus & PV_STATUS_MULTICAST_ENABLED));
}

void TestSimEthernet::readOnlyDevices()
{
    const auto fleet = list();
    const pv_CameraListEntry source =
        *std::find_if(fleet.begin(), fleet.end(), [](const auto& e) { return e.deviceId == gigeCamera; });
    const pv_DeviceInformation sourceInfo = deviceInfo(gigeCamera);
    pv_ReadOnlyRequest request{};
    std::memcpy(request.multicastIp, &sourceInfo.u.eth.multicastIp, 4); // first octet lowest = network order
    std::memcpy(request.adapterIp, &sourceInfo.u.eth.adapterIp, 4);
    request.cameraId = 42;
    request.mode = 2;

    const std::set<std::uint32_t> before = listedIds();
    const std::int32_t ethBefore = ethDeviceCount();
    QCOMPARE(pv_EthConfig(PV_DRIVER_HANDLE, PV_ETHSVC_ADD_READONLY, &request, sizeof request), PV_OK);
    QCOMPARE(listedIds(), before); // not before the service applies it

    Event arrived(PV_DRIVER_HANDLE, PV_EVENT_DEVICE_ARRIVED);
    QVERIFY(arrived.ok());
    QCOMPARE(pv_EthConfig(PV_DRIVER_HANDLE, PV_ETHSVC_APPLY, nullptr, 0), PV_OK);
    QCOMPARE(wait(PV_DRIVER_HANDLE, {PV_EVENT_DEVICE_ARRIVED}, 2000), PV_OK);
    std::set<std::uint32_t> added;
    const std::set<std::uint32_t> now = listedIds();
    std::set_difference(now.begin(), now.end(), before.begin(), before.end(), std::inserter(added, added.end()));
    QCOMPARE(int(added.size()), 1);
    const std::uint32_t id = *added.begin();
    QVERIFY(id >= PV_READONLY_DEVICE_FIRST && id < PV_SDK_DEVICE_FIRST);
    QCOMPARE(ethDeviceCount(), ethBefore + 1);
    const auto entries = list();
    const auto device = std::find_if(entries.begin(), entries.end(), [&](const auto& e) { return e.deviceId == id; });
    QCOMPARE(device->cameraId, 42u);
    QCOMPARE(QByteArray(device->model), QByteArray(source.model));
    QCOMPARE(deviceInfo(id).u.eth.multicastIp, sourceInfo.u.eth.multicastIp);
    const QJsonObject receiver = cameraState(id);
    QCOMPARE(receiver.value("sourceIp").toString(), QStringLiteral("192.168.50.10"));
    QCOMPARE(receiver.value("serial").toString(), cameraState(gigeCamera).value("serial").toString());
    QCOMPARE(receiver.value("readOnlyMode").toInt(), 2);
    QVERIFY(!receiver.value("open").toBool());

    QCOMPARE(pv_EthConfig(PV_DRIVER_HANDLE, PV_ETHSVC_REMOVE_READONLY, &request, sizeof request), PV_OK);
    QVERIFY(listedIds().count(id));
    QCOMPARE(pv_EthConfig(PV_DRIVER_HANDLE, PV_ETHSVC_APPLY, nullptr, 0), PV_OK);
    QCOMPARE(listedIds(), before);
    // Removing it again: the service finds nothing to remove when it applies.
    QCOMPARE(pv_EthConfig(PV_DRIVER_HANDLE, PV_ETHSVC_REMOVE_READONLY, &request, sizeof request), PV_OK);
    QCOMPARE(pv_EthConfig(PV_DRIVER_HANDLE, PV_ETHSVC_APPLY, nullptr, 0), PV_ERR_UNKNOWN_DEVICE);
}

void TestSimEthernet::readOnlyRequestsThatNameNoSource_data()
{
    QTest::addColumn<QString>("group");
    QTest::addColumn<QString>("adapter");
    QTest::addColumn<std::uint32_t>("cameraId");
    QTest::addColumn<std::int32_t>("code");
    // Camera 1000 sends to 239.1.1.10 on simnet0 (192.168.50.1); the fleet's
    // read-only device 1500 receives it as camera ID 20.
    QTest::newRow("camera address instead of the adapter's")
        << "239.1.1.10" << "192.168.50.10" << 42u << std::int32_t(PV_ERR_UNKNOWN_DEVICE);
    QTest::newRow("group nobody sends to") << "239.1.1.11" << "192.168.50.1" << 42u << std::int32_t(PV_ERR_UNKNOWN_DEVICE);
    QTest::newRow("group on another adapter") << "239.1.1.10" << "192.168.60.1" << 42u << std::int32_t(PV_ERR_UNKNOWN_DEVICE);
    QTest::newRow("not a multicast group") << "192.168.50.10" << "192.168.50.1" << 42u << std::int32_t(PV_ERR_INVALID_PARAMETER);
    QTest::newRow("that device exists") << "239.1.1.10" << "192.168.50.1" << 20u << std::int32_t(PV_ERR_INVALID_PARAMETER);
}

void TestSimEthernet::readOnlyRequestsThatNameNoSource()
{
    QFETCH(QString, group);
    QFETCH(QString, adapter);
    QFETCH(std::uint32_t, cameraId);
    pv_ReadOnlyRequest request{{}, {}, cameraId, 1};
    for (int i = 0; i < 4; ++i) {
        request.multicastIp[i] = std::uint8_t(group.section('.', i, i).toUInt());
        request.adapterIp[i] = std::uint8_t(adapter.section('.', i, i).toUInt());
    }
    const std::set<std::uint32_t> before = listedIds();
    QTEST(pv_EthConfig(PV_DRIVER_HANDLE, PV_ETHSVC_ADD_READONLY, &request, sizeof request), "code");
    QVERIFY(!lastErrorText().isEmpty());
    QCOMPARE(state().value("pendingReadOnly").toInt(), 0);
    QCOMPARE(pv_EthConfig(PV_DRIVER_HANDLE, PV_ETHSVC_APPLY, nullptr, 0), PV_OK);
    QCOMPARE(listedIds(), before);
}

void TestSimEthernet::readOnlyMulticastSwitch()
{
    pv_ReadOnlyRequest request{{239, 1, 1, 10}, {192, 168, 50, 1}, 43, 1};
    std::uint32_t flag = 0;
    QCOMPARE(pv_EthConfig(PV_DRIVER_HANDLE, PV_ETHSVC_SET_READONLY_MULTICAST, &flag, sizeof flag), PV_OK);
    flag = 7;
    QCOMPARE(pv_EthConfig(PV_DRIVER_HANDLE, PV_ETHSVC_GET_READONLY_MULTICAST, &flag, sizeof flag), PV_OK);
    QCOMPARE(flag, 0u);
    QCOMPARE(pv_EthConfig(PV_DRIVER_HANDLE, PV_ETHSVC_ADD_READONLY, &request, sizeof request), PV_ERR_NOT_SUPPORTED);
    QVERIFY(!lastErrorText().isEmpty());

    flag = 1;
    QCOMPARE(pv_EthConfig(PV_DRIVER_HANDLE, PV_ETHSVC_SET_READONLY_MULTICAST, &flag, sizeof flag), PV_OK);
    flag = 7;
    QCOMPARE(pv_EthConfig(PV_DRIVER_HANDLE, PV_ETHSVC_GET_READONLY_MULTICAST, &flag, sizeof flag), PV_OK);
    QCOMPARE(flag, 1u);
    const std::int32_t before = ethDeviceCount();
    QCOMPARE(pv_EthConfig(PV_DRIVER_HANDLE, PV_ETHSVC_ADD_READONLY, &request, sizeof request), PV_OK);
    QCOMPARE(pv_EthConfig(PV_DRIVER_HANDLE, PV_ETHSVC_APPLY, nullptr, 0), PV_OK);
    QCOMPARE(ethDeviceCount(), before + 1);
}

void TestSimEthernet::adapterJumboPacketsAndFilter()
{
    pv_AdapterId simnet2 = adapterNamed("simnet2");
    pv_AdapterBlock block{};
    QCOMPARE(pv_EthAdapterConfig(&simnet2, PV_ADAPTER_GET, PV_ADAPTERCFG_BLOCK, &block, sizeof block), PV_OK);
    QCOMPARE(block.jumbo2k, 0u);
    QVERIFY(block.packetSize <= 1450);
    pv_DeviceInformation info = deviceInfo(noJumboCamera);
    QVERIFY(!(info.deviceControlStatus & (PV_CONTROL_ADAPTER_OK | PV_CONTROL_AVAILABLE)));

    std::uint32_t word = 1;
    QCOMPARE(pv_EthAdapterConfig(&simnet2, PV_ADAPTER_SET, PV_ADAPTERCFG_JUMBO_2K, &word, sizeof word), PV_OK);
    word = 0;
    QCOMPARE(pv_EthAdapterConfig(&simnet2, PV_ADAPTER_GET, PV_ADAPTERCFG_JUMBO_2K, &word, sizeof word), PV_OK);
    QCOMPARE(word, 1u);
    info = deviceInfo(noJumboCamera);
    QVERIFY(info.deviceControlStatus & PV_CONTROL_ADAPTER_OK);
    QVERIFY(info.deviceControlStatus & PV_CONTROL_AVAILABLE);
    QVERIFY(info.u.eth.adapterMaxPacketSizeDown >= 2048);

    // The same adapter by MAC, without a name.
    pv_AdapterId byMac{};
    std::memcpy(byMac.mac, block.mac, sizeof byMac.mac);
    QCOMPARE(pv_EthAdapterConfig(&byMac, PV_ADAPTER_GET, PV_ADAPTERCFG_BLOCK, &block, sizeof block), PV_OK);
    QCOMPARE(QByteArray(block.interfaceName), QByteArray("simnet2"));
    QCOMPARE(block.jumbo2k, 1u);
    QVERIFY(block.packetSize >= 2048);

    for (std::uint32_t filter : {2u, 1u, 0u}) {
        QCOMPARE(pv_EthAdapterConfig(&simnet2, PV_ADAPTER_SET, PV_ADAPTERCFG_PACKET_FILTER, &filter, 4), PV_OK);
        word = 9;
        QCOMPARE(pv_EthAdapterConfig(&simnet2, PV_ADAPTER_GET, PV_ADAPTERCFG_PACKET_FILTER, &word, 4), PV_OK);
        QCOMPARE(word, filter);
        QCOMPARE(pv_EthAdapterConfig(&simnet2, PV_ADAPTER_GET, PV_ADAPTERCFG_BLOCK, &block, sizeof block), PV_OK);
        QCOMPARE(block.packetFilter, std::int32_t(filter));
        QCOMPARE(deviceInfo(noJumboCamera).u.eth.adapterPacketFilter, filter);
    }

    // Switching 2k packets off again takes the camera's reach away.
    word = 0;
    QCOMPARE(pv_EthAdapterConfig(&simnet2, PV_ADAPTER_SET, PV_ADAPTERCFG_JUMBO_2K, &word, sizeof word), PV_OK);
    QVERIFY(!(deviceInfo(noJumboCamera).deviceControlStatus & PV_CONTROL_AVAILABLE));
}

void TestSimEthernet::adapterFramesForJumboPackets_data()
{
    QTest::addColumn<int>("mtu");
    QTest::addColumn<bool>("adapterOk");
    QTest::newRow("standard Ethernet") << 1500 << false;
    QTest::newRow("2 KB, but no room for the headers") << 2048 << false;
    QTest::newRow("one byte short") << 2075 << false;
    QTest::newRow("payload and headers") << 2076 << true;
}

void TestSimEthernet::adapterFramesForJumboPackets()
{
    QFETCH(int, mtu);
    QFETCH(bool, adapterOk);
    QCOMPARE(pvsim_LoadScenarioText(QByteArray(R"({"adapters": [{"name": "small0", "mac": "02:00:00:00:05:01",
        "ip": "10.5.0.1", "mask": "255.255.255.0", "mtu": )" + QByteArray::number(mtu) + R"(}],
        "cameras": [{"kind": "eth", "adapter": "small0", "mac": "00:1c:c1:00:05:01",
                     "persistentIp": "10.5.0.10", "persistentMask": "255.255.255.0"}]})").constData()),
             PV_OK);
    QCOMPARE(adapterState("small0").value("mtu").toInt(), mtu);
    pv_AdapterId small0 = adapterNamed("small0");
    std::uint32_t word = 0;
    QCOMPARE(pv_EthAdapterConfig(&small0, PV_ADAPTER_GET, PV_ADAPTERCFG_JUMBO_2K, &word, sizeof word), PV_OK);
    QCOMPARE(word, 1u);
    // 2k packets on; whether the adapter's packets can carry them is the MTU's matter.
    const pv_DeviceInformation info = deviceInfo(PV_ETH_DEVICE_FIRST);
    QCOMPARE(bool(info.deviceControlStatus & PV_CONTROL_ADAPTER_OK), adapterOk);
    QCOMPARE(bool(info.deviceControlStatus & PV_CONTROL_AVAILABLE), adapterOk);
    pv_PacketSize size{};
    QCOMPARE(pv_EthAdapterConfig(&small0, PV_ADAPTER_GET, PV_ADAPTERCFG_PACKET_SIZE, &size, sizeof size), PV_OK);
    QCOMPARE(size.current, std::uint32_t(mtu));
    QVERIFY(size.maximum >= size.current);
}

void TestSimEthernet::adapterWithoutLinkHidesItsCameras()
{
    QCOMPARE(pvsim_LoadScenarioText(R"({"adapters": [
        {"name": "nolink0", "mac": "02:00:00:00:06:01", "ip": "10.6.0.1", "mask": "255.255.255.0",
         "linkSpeed": 1000, "linkUp": false, "hosts": ["10.6.0.5"]},
        {"name": "link0", "mac": "02:00:00:00:07:01", "ip": "10.7.0.1", "mask": "255.255.255.0"}],
        "cameras": [{"kind": "eth", "adapter": "nolink0", "mac": "00:1c:c1:00:06:01",
                     "persistentIp": "10.6.0.10", "persistentMask": "255.255.255.0"},
                    {"kind": "eth", "adapter": "link0", "mac": "00:1c:c1:00:07:01",
                     "persistentIp": "10.7.0.10", "persistentMask": "255.255.255.0"}]})"),
             PV_OK);
    QCOMPARE(adapterState("nolink0").value("linkUp").toBool(), false);
    QCOMPARE(adapterState("link0").value("linkUp").toBool(), true);
    QCOMPARE(listedIds(), std::set<std::uint32_t>{PV_ETH_DEVICE_FIRST + 1});
    QCOMPARE(cameraState(PV_ETH_DEVICE_FIRST).value("visible").toBool(), false);

    pv_AdapterId nolink0 = adapterNamed("nolink0");
    pv_AdapterBlock block{};
    QCOMPARE(pv_EthAdapterConfig(&nolink0, PV_ADAPTER_GET, PV_ADAPTERCFG_BLOCK, &block, sizeof block), PV_OK);
    QCOMPARE(block.linkSpeed, 0u);

    QCOMPARE(arp("nolink0", "10.6.0.1"), PV_OK);
    QCOMPARE(arp("nolink0", "10.6.0.10"), PV_ERR_TIMEOUT);
    QCOMPARE(arp("nolink0", "10.6.0.5"), PV_ERR_TIMEOUT);
}

void TestSimEthernet::stoppedServiceHidesGigE()
{
    const std::set<std::uint32_t> before = listedIds();
    QVERIFY(std::any_of(before.begin(), before.end(), isEthernetId));

    QCOMPARE(pvsim_SetServiceRunning("cirro_eth", 0), PV_OK);
    std::int32_t serviceState = 0;
    QCOMPARE(pvsim_GetServiceState("cirro_eth", &serviceState), PV_OK);
    QCOMPARE(serviceState, 2);
    std::set<std::uint32_t> expected;
    std::copy_if(before.begin(), before.end(), std::inserter(expected, expected.end()),
                 [](std::uint32_t id) { return !isEthernetId(id); });
    QCOMPARE(listedIds(), expected);

    pv_IpBlock block{};
    pv_AdapterId simnet0 = adapterNamed("simnet0");
    pv_AdapterBlock adapter{};
    std::uint32_t on = 1;
    QCOMPARE(pv_IpConfig(std::int32_t(gigeCamera), nullptr, PV_IPCFG_GET_PERSISTENT, &block, sizeof block),
             PV_ERR_SERVICE_STOPPED);
    QCOMPARE(ethDeviceCount(), -PV_ERR_SERVICE_STOPPED);
    QCOMPARE(pv_EthConfig(PV_DRIVER_HANDLE, PV_ETHSVC_APPLY, nullptr, 0), PV_ERR_SERVICE_STOPPED);
    QCOMPARE(pv_EthAdapterConfig(&simnet0, PV_ADAPTER_GET, PV_ADAPTERCFG_BLOCK, &adapter, sizeof adapter),
             PV_ERR_SERVICE_STOPPED);
    QCOMPARE(pv_EthConfig(gigeCamera | PV_DEVICE_ID_FLAG, PV_ETHCFG_SET_MULTICAST_ENABLE, &on, 4),
             PV_ERR_UNKNOWN_DEVICE);

    QCOMPARE(pvsim_SetServiceRunning("cirro_eth", 1), PV_OK);
    QCOMPARE(listedIds(), before);
}

void TestSimEthernet::unboundAdapterHidesItsCameras()
{
    QTemporaryDir config;
    QVERIFY(config.isValid());
    const QString ini = config.filePath("cirro_eth.ini");
    writeIni(ini, "Bindings/simnet0", false);
    qputenv("CIRRO_CONFIG_ROOT", config.path().toLocal8Bit());

    const std::set<std::uint32_t> before = listedIds();
    Event removed(PV_DRIVER_HANDLE, PV_EVENT_DEVICE_REMOVED);
    QVERIFY(removed.ok());
    QCOMPARE(pv_EthConfig(PV_DRIVER_HANDLE, PV_ETHSVC_RESCAN_ADAPTERS, nullptr, 0), PV_OK);
    QCOMPARE(wait(PV_DRIVER_HANDLE, {PV_EVENT_DEVICE_REMOVED}, 2000), PV_OK);

    int hidden = 0;
    for (const QJsonValue& value : state().value("cameras").toArray()) {
        const QJsonObject camera = value.toObject();
        if (camera.value("kind").toString() != QLatin1String("eth"))
            continue;
        const bool onSimnet0 = camera.value("adapter").toString() == QLatin1String("simnet0");
        QCOMPARE(camera.value("visible").toBool(), !onSimnet0);
        QCOMPARE(listedIds().count(std::uint32_t(camera.value("deviceId").toInt())) == 1, !onSimnet0);
        hidden += onSimnet0;
    }
    QVERIFY(hidden > 0);
    QCOMPARE(int(listedIds().size()), int(before.size()) - hidden);
    pv_AdapterId simnet0 = adapterNamed("simnet0");
    pv_AdapterBlock adapter{};
    QCOMPARE(pv_EthAdapterConfig(&simnet0, PV_ADAPTER_GET, PV_ADAPTERCFG_BLOCK, &adapter, sizeof adapter), PV_OK);
    QCOMPARE(adapter.bound, 0);
    pv_IpBlock block{};
    QCOMPARE(pv_IpConfig(std::int32_t(gigeCamera), nullptr, PV_IPCFG_GET_PERSISTENT, &block, sizeof block),
             PV_ERR_UNKNOWN_DEVICE);

    // Off the driver's network the cameras don't answer; the adapter itself does.
    QCOMPARE(arp("simnet0", "192.168.50.10"), PV_ERR_TIMEOUT);
    QCOMPARE(arp("simnet0", "192.168.50.1"), PV_OK);

    writeIni(ini, "Bindings/simnet0", true);
    QCOMPARE(pv_EthConfig(PV_DRIVER_HANDLE, PV_ETHSVC_RESCAN_ADAPTERS, nullptr, 0), PV_OK);
    QCOMPARE(listedIds(), before);
    QCOMPARE(arp("simnet0", "192.168.50.10"), PV_OK);
}

void TestSimEthernet::arpRequests_data()
{
    QTest::addColumn<Step>("before");
    QTest::addColumn<QByteArray>("adapter");
    QTest::addColumn<QByteArray>("target");
    QTest::addColumn<std::int32_t>("code");
    QTest::addColumn<QByteArray>("mac");

    auto row = [](const char* name, const char* adapter, const char* target, std::int32_t code, const char* mac,
                  Step before = [] {}) {
        QTest::newRow(name) << before << QByteArray(adapter) << QByteArray(target) << code << QByteArray::fromHex(mac);
    };
    row("the adapter itself", "simnet0", "192.168.50.1", PV_OK, "02c15e000001");
    row("camera with a persistent IP", "simnet0", "192.168.50.10", PV_OK, "001cc1000010");
    row("camera with a range address", "simnet0", "192.168.50.100", PV_OK, "001cc1000017");
    row("camera that can't be reached for packet size", "simnet2", "192.168.70.16", PV_OK, "001cc1000016");
    row("first other host", "simnet0", "192.168.50.2", PV_OK, "0200c0a83202");
    row("last other host", "simnet0", "192.168.50.9", PV_OK, "0200c0a83209");
    row("free address", "simnet0", "192.168.50.77", PV_ERR_TIMEOUT, "");
    row("rebooting camera", "simnet0", "192.168.50.10", PV_ERR_TIMEOUT, "", [] {
        QCOMPARE(pv_RebootDevice(gigeCamera | PV_DEVICE_ID_FLAG, 0), PV_OK); // takes 3 s, scaled to 900 ms
        QVERIFY(cameraState(gigeCamera).value("rebooting").toBool());
    });
    row("outside the subnet", "simnet0", "10.0.0.11", PV_ERR_INVALID_PARAMETER, "");
    row("unknown adapter", "simnet7", "192.168.50.77", PV_ERR_UNKNOWN_ADAPTER, "");
}

// Only a request that nobody answers waits for the time-out.
void TestSimEthernet::arpRequests()
{
    QFETCH(Step, before);
    QFETCH(QByteArray, adapter);
    QFETCH(QByteArray, target);
    QFETCH(std::int32_t, code);
    QFETCH(QByteArray, mac);

    QCOMPARE(pvsim_SetTimeScale(0.3), PV_OK); // the default time-out of 1 s becomes 300 ms
    before();
    if (QTest::currentTestFailed())
        return;
    QElapsedTimer timer;
    timer.start();
    QByteArray answer;
    QCOMPARE(arp(adapter.constData(), target.constData(), &answer), code);
    const qint64 elapsed = timer.elapsed();
    QCOMPARE(answer.toHex(':'), mac.toHex(':'));
    if (code == PV_ERR_TIMEOUT) {
        QVERIFY2(elapsed >= 300 && elapsed < 3000, qPrintable(QString::number(elapsed)));
        QVERIFY(lastErrorText().contains(target));
    } else {
        QVERIFY2(elapsed < 300, qPrintable(QString::number(elapsed)));
    }
}

void TestSimEthernet::arpWaitLeavesTheDriverFree()
{
    QCOMPARE(pvsim_SetTimeScale(1.0), PV_OK);
    std::atomic<bool> waiting{true};
    std::int32_t result = -1;
    std::thread asker([&] {
        result = arp("simnet0", "192.168.50.77");
        waiting = false;
    });
    int calls = 0;
    while (waiting && calls < 50) {
        QCOMPARE(arp("simnet0", "192.168.50.10"), PV_OK);
        QCOMPARE(int(list().size()), 17);
        ++calls;
    }
    asker.join();
    QCOMPARE(result, PV_ERR_TIMEOUT);
    QCOMPARE(calls, 50); // all done while the request still waited
}

void TestSimEthernet::otherHostsAnswerAndHoldTheirAddresses_data()
{
    QTest::addColumn<QByteArray>("hosts");
    QTest::addColumn<QByteArray>("lastHost");
    QTest::addColumn<QByteArray>("lastHostMac");
    QTest::addColumn<QByteArray>("cameraAddress"); // from the range 10.9.0.10 to .20

    QTest::newRow("one address below the range") << QByteArray(R"(["10.9.0.5"])") << QByteArray("10.9.0.5")
                                                 << QByteArray("02000a090005") << QByteArray("10.9.0.10");
    QTest::newRow("range over the range's start") << QByteArray(R"(["10.9.0.8-10.9.0.12"])") << QByteArray("10.9.0.12")
                                                  << QByteArray("02000a09000c") << QByteArray("10.9.0.13");
    QTest::newRow("the whole range") << QByteArray(R"(["10.9.0.10-10.9.0.20"])") << QByteArray("10.9.0.20")
                                     << QByteArray("02000a090014") << QByteArray("0.0.0.0");
}

void TestSimEthernet::otherHostsAnswerAndHoldTheirAddresses()
{
    QFETCH(QByteArray, hosts);
    QFETCH(QByteArray, lastHost);
    QFETCH(QByteArray, lastHostMac);
    QFETCH(QByteArray, cameraAddress);

    const QByteArray scenario = R"({"adapters": [{"name": "test0", "mac": "02:00:00:00:09:01", "ip": "10.9.0.1",
        "mask": "255.255.255.0", "rangeBegin": "10.9.0.10", "rangeEnd": "10.9.0.20", "hosts": )"
                                + hosts + R"(}],
        "cameras": [{"kind": "eth", "adapter": "test0", "mac": "00:1c:c1:00:09:01"}]})";
    QCOMPARE(pvsim_LoadScenarioText(scenario.constData()), PV_OK);
    QCOMPARE(currentIpText(PV_ETH_DEVICE_FIRST), cameraAddress);
    QByteArray mac;
    QCOMPARE(arp("test0", lastHost.constData(), &mac), PV_OK);
    QCOMPARE(mac.toHex(), lastHostMac);
}

void TestSimEthernet::ipChangeTakesTime_data()
{
    QTest::addColumn<std::uint32_t>("deviceId");
    QTest::addColumn<Step>("write");
    QTest::addColumn<std::uint32_t>("testing");
    QTest::addColumn<QByteArray>("address"); // afterwards
    QTest::addColumn<std::uint32_t>("statusAfter");

    auto row = [](const char* name, std::uint32_t id, Step write, std::uint32_t testing, const char* address,
                  std::uint32_t statusAfter = 0) {
        QTest::newRow(name) << id << write << testing << QByteArray(address) << statusAfter;
    };
    const Octets mask{255, 255, 255, 0};
    auto persistent = [=](std::uint32_t id, Octets ip, Octets withMask) -> Step {
        return [=] { QCOMPARE(setPersistent(std::int32_t(id), ip, withMask), PV_OK); };
    };
    auto range = [](Octets begin, Octets end) -> Step {
        return [=] { QCOMPARE(setSimnet0Range(begin, end), PV_OK); };
    };
    row("persistent IP of the subnet", gigeCamera, persistent(gigeCamera, {192, 168, 50, 60}, mask),
        PV_STATUS_TESTING_PERSISTENT_IP, "192.168.50.60");
    row("persistent IP of another subnet", gigeCamera, persistent(gigeCamera, {10, 0, 0, 60}, mask),
        PV_STATUS_TESTING_PERSISTENT_IP, "0.0.0.0", PV_STATUS_PERSISTENT_IP_NOT_APPLICABLE);
    row("persistent IP cleared", gigeCamera, persistent(gigeCamera, {}, {}), PV_STATUS_TESTING_IP_RANGE,
        "192.168.50.101");
    row("range moved", rangeCamera, range({192, 168, 50, 20}, {192, 168, 50, 29}), PV_STATUS_TESTING_IP_RANGE,
        "192.168.50.20");
    row("range moved to another subnet", rangeCamera, range({10, 0, 0, 1}, {10, 0, 0, 9}),
        PV_STATUS_TESTING_CURRENT_IP, "0.0.0.0", PV_STATUS_IP_RANGE_NOT_APPLICABLE);
    // Half the first change's time passes without its end.
    auto halfTimeWithoutEnd = [] {
        QCOMPARE(wait(gigeCamera | PV_DEVICE_ID_FLAG, {PV_EVENT_DEVICE_CHANGED}, 0), PV_OK); // its start
        QCOMPARE(wait(gigeCamera | PV_DEVICE_ID_FLAG, {PV_EVENT_DEVICE_CHANGED}, 150), PV_ERR_TIMEOUT);
    };
    // The first change's end passes unnoticed; the camera takes the newest setting.
    row("second change starts over", gigeCamera, [=] {
        QCOMPARE(setPersistent(gigeCamera, {192, 168, 50, 60}, mask), PV_OK);
        halfTimeWithoutEnd();
        QCOMPARE(setPersistent(gigeCamera, {}, {}), PV_OK);
    }, PV_STATUS_TESTING_IP_RANGE, "192.168.50.101");
    // A change in the new fleet runs its own time, whatever the dropped one had left.
    row("scenario load drops a change", gigeCamera, [=] {
        QCOMPARE(setPersistent(gigeCamera, {192, 168, 50, 60}, mask), PV_OK);
        QCOMPARE(pvsim_LoadScenario(nullptr), PV_OK);
        QCOMPARE(deviceInfo(gigeCamera).deviceStatus & testingBits, 0u);
        QCOMPARE(currentIpText(gigeCamera), QByteArray("192.168.50.10"));
        halfTimeWithoutEnd();
        QCOMPARE(setPersistent(gigeCamera, {192, 168, 50, 62}, mask), PV_OK);
    }, PV_STATUS_TESTING_PERSISTENT_IP, "192.168.50.62");
    // As the automatic configuration does it. Skips the adapter, the other
    // hosts and the persistent IP of 192.168.50.10.
    row("unconfigured camera: range over the subnet, persistent IP cleared by MAC", unconfigured, [] {
        QCOMPARE(setSimnet0Range({192, 168, 50, 1}, {192, 168, 50, 254}), PV_OK);
        QVERIFY(ipChangesSettled(0)); // every camera's address still fits
        QCOMPARE(setPersistent(PV_ADDRESS_BY_MAC, {}, {}, deviceInfo(unconfigured).u.eth.macAddress), PV_OK);
    }, PV_STATUS_TESTING_IP_RANGE, "192.168.50.11");
    row("unconfigured camera: free persistent IP by device ID, DHCP off", unconfigured, [=] {
        QCOMPARE(setPersistent(std::int32_t(unconfigured), {192, 168, 50, 23}, mask), PV_OK);
        std::uint32_t off = 0;
        QCOMPARE(pv_IpConfig(std::int32_t(unconfigured), nullptr, PV_IPCFG_SET_DHCP, &off, 4), PV_OK);
    }, PV_STATUS_TESTING_PERSISTENT_IP, "192.168.50.23");
}

void TestSimEthernet::ipChangeTakesTime()
{
    QFETCH(std::uint32_t, deviceId);
    QFETCH(Step, write);
    QFETCH(std::uint32_t, testing);
    QFETCH(QByteArray, address);
    QFETCH(std::uint32_t, statusAfter);

    QCOMPARE(pvsim_SetTimeScale(0.2), PV_OK); // the default 1.5 s become 300 ms
    Event own(deviceId | PV_DEVICE_ID_FLAG, PV_EVENT_DEVICE_CHANGED);
    Event global(PV_DRIVER_HANDLE, PV_EVENT_DEVICE_CHANGED);
    QVERIFY(own.ok() && global.ok());
    const pv_DeviceInformation before = deviceInfo(deviceId);
    const bool reachable = address != "0.0.0.0";

    write();
    if (QTest::currentTestFailed())
        return;
    pv_DeviceInformation info = deviceInfo(deviceId);
    QCOMPARE(info.deviceStatus & testingBits, testing);
    QCOMPARE(info.u.eth.currentIp, 0u);
    QVERIFY(!(info.deviceControlStatus & (PV_CONTROL_AVAILABLE | PV_CONTROL_PERSISTENT_IP_USED)));
    QVERIFY(!(info.deviceStatus & PV_STATUS_CURRENT_IP_NOT_APPLICABLE));
    QVERIFY(info.deviceStatus & PV_STATUS_READY);
    QCOMPARE(wait(deviceId | PV_DEVICE_ID_FLAG, {PV_EVENT_DEVICE_CHANGED}, 0), PV_OK);
    QCOMPARE(wait(PV_DRIVER_HANDLE, {PV_EVENT_DEVICE_CHANGED}, 0), PV_OK);
    if (reachable)
        QCOMPARE(arp("simnet0", address.constData()), PV_ERR_TIMEOUT); // not while it tests

    QCOMPARE(wait(deviceId | PV_DEVICE_ID_FLAG, {PV_EVENT_DEVICE_CHANGED}, 5000), PV_OK);
    QVERIFY2(sinceIpWrite.elapsed() >= 300, qPrintable(QString::number(sinceIpWrite.elapsed())));
    QCOMPARE(wait(PV_DRIVER_HANDLE, {PV_EVENT_DEVICE_CHANGED}, 0), PV_OK);
    info = deviceInfo(deviceId);
    QCOMPARE(info.deviceStatus & testingBits, 0u);
    QCOMPARE(currentIpText(deviceId), address);
    QCOMPARE(info.deviceStatus & statusAfter, statusAfter);
    QCOMPARE(bool(info.deviceControlStatus & PV_CONTROL_AVAILABLE), reachable);
    if (reachable) {
        QVERIFY(info.deviceStatus & PV_STATUS_READY);
        QByteArray mac;
        QCOMPARE(arp("simnet0", address.constData(), &mac), PV_OK);
        QCOMPARE(mac, QByteArray(reinterpret_cast<const char*>(before.u.eth.macAddress), 6));
    }
}

void TestSimEthernet::ipChangeAtOnceWithoutItsTime()
{
    QCOMPARE(pvsim_LoadScenarioText(R"({"driver": {"ipChangeMs": 0},
        "adapters": [{"name": "test0", "mac": "02:00:00:00:09:01", "ip": "10.9.0.1", "mask": "255.255.255.0"}],
        "cameras": [{"kind": "eth", "adapter": "test0", "mac": "00:1c:c1:00:09:01"}]})"),
             PV_OK);
    QCOMPARE(setPersistent(PV_ETH_DEVICE_FIRST, {10, 9, 0, 30}, {255, 255, 255, 0}), PV_OK);
    QCOMPARE(currentIpText(PV_ETH_DEVICE_FIRST), QByteArray("10.9.0.30"));
    QVERIFY(deviceInfo(PV_ETH_DEVICE_FIRST).deviceControlStatus & PV_CONTROL_AVAILABLE);
}

QTEST_GUILESS_MAIN(TestSimEthernet)
#include "tst_simethernet.moc"
