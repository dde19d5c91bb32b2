#include "details/deviceinfomodel.h"
#include "common/versionword.h"
#include "details/flagtables.h"
#include "network/networkadapters.h"

#include "deviceinfotestsupport.h"
#include "simdriverfixture.h"
#include "sysfsfixture.h"

#include <QAbstractItemModelTester>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLoggingCategory>
#include <QNetworkInterface>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

using namespace DeviceInfoTestSupport;

// Rows of the tree, by their labels, and the texts they must show.
using Expectations = QList<QPair<QStringList, QString>>;
Q_DECLARE_METATYPE(Expectations)

Q_DECLARE_METATYPE(std::optional<NetworkAdapter>)

namespace {

Camera fromDriver(quint32 deviceId)
{
    for (const pv_CameraListEntry& entry : SimDriverFixture::list()) {
        if (entry.deviceId == deviceId)
            return Camera(entry, 0);
    }
    return Camera();
}

Camera usbAt(const QString& location)
{
    return usb([&](Record& record) { setText(record.usbLocation, location); });
}

QString valueAt(const DeviceInfoModel& model, const QStringList& path)
{
    const QModelIndex index = rowAt(model, path, 1);
    return index.isValid() ? index.data().toString() : QStringLiteral("<no row>");
}

// label=value of the path rows: the USB group's row after "Link speed" and
// the chain below it.
QStringList usbRows(const DeviceInfoModel& model)
{
    QStringList rows;
    for (QModelIndex index = model.index(1, 0, rowAt(model, {"Device", "USB"})); index.isValid();
         index = model.index(0, 0, index))
        rows << index.data().toString() + "=" + index.siblingAtColumn(1).data().toString();
    return rows;
}

NetworkAdapter hostRecord()
{
    NetworkAdapter adapter;
    adapter.humanReadableName = "enp3s0";
    adapter.interfaceName = "enp3s0";
    adapter.description = "Intel I210";
    adapter.hardwareAddress = "02:C1:5E:00:00:0A";
    adapter.ipv4Address = QHostAddress("10.1.2.3");
    adapter.ipv4Netmask = QHostAddress("255.255.0.0");
    adapter.dhcp = true;
    adapter.driverVersion = "5.15.0-k";
    adapter.driverDate = "3-4-2024";
    return adapter;
}

void onAdapter(Record& record, std::initializer_list<quint8> mac)
{
    std::copy(mac.begin(), mac.end(), record.info.u.eth.adapterMac);
    std::strncpy(record.info.u.eth.adapterName, "simnet0", sizeof record.info.u.eth.adapterName);
    setText(record.adapterDescription, "Virtual GigE adapter simnet0");
    setText(record.adapterDriverVersion, "4.97.1203");
    setText(record.adapterDriverDate, "6-12-2025");
    record.info.u.eth.adapterIp = ipWord(192, 168, 50, 1);
    record.info.u.eth.adapterMask = ipWord(255, 255, 255, 0);
}

} // namespace

class TestDeviceInfoModel : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void rowsByKind_data();
    void rowsByKind();
    void treeShowsTheScenarioValues_data();
    void treeShowsTheScenarioValues();
    void flagRowsFollowTheTables();
    void values_data();
    void values();
    void adapterRows_data();
    void adapterRows();
    void hostIsAskedOncePerAdapter();
    void adapterOfThisHost();

    void rebuildOrRefresh_data();
    void rebuildOrRefresh();
    void noCameraEmptiesTheTree();
    void passesTheModelTester_data();
    void passesTheModelTester();

    void pathRows_data();
    void pathRows();
    void newTopologyAsksForRebuildOnlyWhenThePathChanged();
    void laterTopologyJobReplacesEarlier();

private:
    QTemporaryDir m_dir;
    QString m_machine; // camera "1-1.2" behind a hub, "2-1" on a root hub
    QString m_moved;   // camera "1-1.2" on a second hub
};

void TestDeviceInfoModel::initTestCase()
{
    QLoggingCategory::setFilterRules("cirro.details.usbtopology.debug=false");
    Camera::registerMetaTypes();
    QVERIFY(m_dir.isValid());

    SysfsFixture machine(m_dir.filePath("machine"));
    const QString xhci = machine.addPciController("0000:00:14.0", {});
    const QString usb1 = machine.addRootHub(xhci, 1, 4);
    const QString usb2 = machine.addRootHub(xhci, 2, 4, " 3.00");
    const QString hub = machine.addDevice(usb1, 1, {0x05e3, 0x0608, "USB2.0 Hub", {}, "480", 4, {}, {}});
    machine.addDevice(hub, 2, {});
    machine.addDevice(usb2, 1, {});
    QVERIFY(machine.ok());
    m_machine = machine.root();

    SysfsFixture moved(m_dir.filePath("moved"));
    const QString movedXhci = moved.addPciController("0000:00:14.0", {});
    const QString movedUsb1 = moved.addRootHub(movedXhci, 1, 4);
    const QString movedHub = moved.addDevice(movedUsb1, 1, {0x2109, 0x2813, "VIA Hub", {}, "480", 4, {}, {}});
    moved.addDevice(movedHub, 2, {});
    QVERIFY(moved.ok());
    m_moved = moved.root();
}

void TestDeviceInfoModel::init()
{
    QVERIFY(SimDriverFixture::reset());
}

void TestDeviceInfoModel::rowsByKind_data()
{
    QTest::addColumn<Camera>("camera");
    QTest::addColumn<QStringList>("top");
    QTest::addColumn<QString>("driverVersion");

    const QStringList eth{"Device", "Local network adapter", "Local driver"};
    const QStringList usbTop{"Device", "Local driver"};
    QTest::newRow("USB") << fromDriver(0) << usbTop << "USB version";
    QTest::newRow("GigE") << fromDriver(1000) << eth << "ETH version";
    QTest::newRow("read-only") << fromDriver(1500) << eth << "ETH version";
    QTest::newRow("SDK U3V") << fromDriver(2000) << usbTop << "USB version";
    QTest::newRow("SDK GEV") << fromDriver(2001) << eth << "ETH version";
    QTest::newRow("unknown kind") << fromDriver(2500) << eth << "ETH version";
    QTest::newRow("GigE number, U3V type") << makeCamera(1000, 225, 3, "X") << usbTop << "USB version";
    QTest::newRow("USB number, GigE type") << makeCamera(999, 138, 3, "X") << usbTop << "USB version";
}

void TestDeviceInfoModel::rowsByKind()
{
    QFETCH(Camera, camera);
    QFETCH(QStringList, top);
    QFETCH(QString, driverVersion);

    DeviceInfoModel model(nullptr, [](const QString&) { return std::nullopt; });
    model.setSysfsRoot(m_dir.filePath("none"));
    model.Update(&camera, false);
    QCOMPARE(childLabels(model), top);
    QCOMPARE(childLabels(model, rowAt(model, {"Local driver"})),
             QStringList({driverVersion, "Min. compatible starter FW", "Max. compatible starter FW"}));
    const QStringList deviceGroups = childLabels(model, rowAt(model, {"Device"}));
    QCOMPARE(deviceGroups, top.size() == 3 ? QStringList({"General", "Hardware", "Network"})
                                           : QStringList({"General", "USB"}));
}

namespace {

QJsonObject defaultScenario()
{
    QFile file(QStringLiteral(CIRRO_SCENARIO_DIR "/default.json"));
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
}

QString versionText(const QString& version)
{
    const std::optional<VersionWord> word = VersionWord::fromText(version);
    return word ? word->paddedText() : QStringLiteral("not a version: ") + version;
}

// What the scenario says about the camera, where the tree shows it.
Expectations expectationsOf(const QJsonObject& camera, const QJsonObject& scenario)
{
    const QString kind = camera.value("kind").toString();
    // The driver has no device information of such a device: nothing of another one shows.
    if (kind == "unknown")
        return {{{"Device", "Network", "Current IP address"}, ""},
                {{"Local network adapter", "General", "Designation"}, ""}};
    const QString starter = camera.value("starterFirmware")
                                .toString(scenario.value("driver").toObject().value("starterImage").toString());
    Expectations rows{{{"Device", "General", "Starter firmware version"}, versionText(starter)}};
    if (kind == "usb" || (kind == "sdk" && camera.value("typeCode").toInt() == 225)) {
        rows.append({{"Device", "General", "Device type"}, QString::number(camera.value("typeCode").toInt())});
        return rows;
    }
    const auto address = [&camera](const char* field) { return camera.value(field).toString(); };
    rows.append({{"Device", "Network", "MAC address"}, address("mac").replace(':', '-')});
    rows.append({{"Device", "Network", "Persistent IP address"}, address("persistentIp")});
    rows.append({{"Device", "Network", "Multicast IP address"}, address("multicastIp")});
    // The ETH service gives GigE cameras their addresses; the others keep theirs.
    if (kind == "readonly")
        rows.append({{"Device", "Network", "Current IP address"}, address("multicastIp")});
    else if (kind != "eth")
        rows.append({{"Device", "Network", "Current IP address"}, address("persistentIp")});
    rows.append({{"Local network adapter", "General", "Designation"}, address("adapter")});
    for (const QJsonValue& value : scenario.value("adapters").toArray()) {
        const QJsonObject adapter = value.toObject();
        if (adapter.value("name").toString() == address("adapter"))
            rows.append({{"Local network adapter", "Network", "IP address"}, adapter.value("ip").toString()});
    }
    return rows;
}

} // namespace

void TestDeviceInfoModel::treeShowsTheScenarioValues_data()
{
    QTest::addColumn<quint32>("deviceId");
    QTest::addColumn<Expectations>("expectations");
    const QJsonObject scenario = defaultScenario();
    const QJsonArray cameras = scenario.value("cameras").toArray();
    QVERIFY(!cameras.isEmpty());
    // Without IDs in the file each kind counts up from its first device ID.
    const QHash<QString, quint32> firstIds{
        {"usb", 0}, {"eth", 1000}, {"readonly", 1500}, {"sdk", 2000}, {"unknown", 2500}};
    QHash<QString, quint32> nextIds = firstIds;
    for (const QJsonValue& value : cameras) {
        const QJsonObject camera = value.toObject();
        const QString kind = camera.value("kind").toString();
        QVERIFY2(firstIds.contains(kind) && !camera.contains("deviceId"), qPrintable(kind));
        const quint32 deviceId = nextIds[kind]++;
        QTest::addRow("%s %u", qPrintable(kind), deviceId) << deviceId << expectationsOf(camera, scenario);
    }
    QCOMPARE(QSet<QString>(firstIds.keyBegin(), firstIds.keyEnd()),
             QSet<QString>(nextIds.keyBegin(), nextIds.keyEnd()));
}

void TestDeviceInfoModel::treeShowsTheScenarioValues()
{
    QFETCH(quint32, deviceId);
    QFETCH(Expectations, expectations);
    const Camera camera = fromDriver(deviceId);
    QCOMPARE(camera.deviceId(), deviceId);
    DeviceInfoModel model(nullptr, [](const QString&) { return std::nullopt; });
    model.setSysfsRoot(m_dir.filePath("none"));
    model.Update(&camera, false);
    for (const auto& [path, expected] : expectations) {
        const QModelIndex value = rowAt(model, path, 1);
        QVERIFY2(value.isValid(), qPrintable(path.join('/')));
        QVERIFY2(value.data().toString().compare(expected, Qt::CaseInsensitive) == 0,
                 qPrintable(path.join('/') + ": " + value.data().toString() + ", not " + expected));
    }
}

void TestDeviceInfoModel::flagRowsFollowTheTables()
{
    DeviceInfoModel model(nullptr, [](const QString&) { return std::nullopt; });
    const Camera camera = gige([](Record& record) {
        record.info.deviceStatus = 0x400;
        record.info.deviceControlStatus = 0x80000000;
    });
    model.Update(&camera, false);
    const std::pair<QString, FlagWord> groups[] = {{"Device status flags", FlagWord::DeviceStatus},
                                                   {"Device control status", FlagWord::DeviceControl}};
    for (const auto& [label, word] : groups) {
        const QModelIndex parent = rowAt(model, {"Device", "General", label});
        QVERIFY(parent.isValid());
        const FlagTable table = FlagTables::of(word);
        QCOMPARE(model.rowCount(parent), int(table.size()));
        for (int row = 0; row < model.rowCount(parent); ++row) {
            QCOMPARE(model.index(row, 0, parent).data().toString(), table[std::size_t(row)].name);
            const bool set = table[std::size_t(row)].mask == (word == FlagWord::DeviceStatus ? 0x400u : 0x80000000u);
            QCOMPARE(model.index(row, 1, parent).data().toString(), QString(set ? "true" : "false"));
        }
    }
}

void TestDeviceInfoModel::values_data()
{
    QTest::addColumn<bool>("eth");
    QTest::addColumn<QStringList>("path");
    QTest::addColumn<Tweak>("tweak");
    QTest::addColumn<QString>("value");

    const QStringList general{"Device", "General"};
    const QStringList network{"Device", "Network"};
    auto eeprom = [](const char* text) {
        // The field is not terminated when the text fills it.
        return Tweak([=](Record& r) {
            std::memcpy(r.info.u.eth.userSpace, text, std::min<std::size_t>(std::strlen(text), 8));
        });
    };
    const QStringList eepromRow = general + QStringList{"User EEPROM (8 chars)"};
    const QStringList comRow = general + QStringList{"COM port number"};

    QTest::newRow("version padded") << true << general + QStringList{"Starter firmware version"}
        << Tweak([](Record& r) { r.info.starterFirmware = PV_VERSION(3, 2, 1); }) << "3.02.0001";
    QTest::newRow("largest version") << true << QStringList{"Local driver", "ETH version"}
        << Tweak([](Record& r) { r.info.driverVersion = 0xFFFFFFFF; }) << "255.255.65535";
    QTest::newRow("USB driver version") << false << QStringList{"Local driver", "USB version"}
        << Tweak([](Record& r) { r.info.driverVersion = PV_VERSION(10, 11, 12); }) << "10.11.0012";
    QTest::newRow("EEPROM 7 chars") << true << eepromRow << eeprom("ABCDEFG") << "ABCDEFG";
    QTest::newRow("EEPROM full 8 chars") << true << eepromRow << eeprom("ABCDEFGH") << "ABCDEFGH...";
    QTest::newRow("COM port 0") << true << comRow << Tweak() << "100";
    QTest::newRow("COM port negative, USB") << false << comRow
        << Tweak([](Record& r) { r.info.comPortOffset = -5; }) << "95";
    QTest::newRow("status word in decimal") << true << general + QStringList{"Device status flags"}
        << Tweak([](Record& r) { r.info.deviceStatus = 0x101; }) << "0x257";
    QTest::newRow("device type") << false << general + QStringList{"Device type"} << Tweak() << "98";
    QTest::newRow("no current IP") << true << network + QStringList{"Current IP address"} << Tweak() << "";
    QTest::newRow("current IP") << true << network + QStringList{"Current IP address"}
        << Tweak([](Record& r) { r.info.u.eth.currentIp = ipWord(192, 168, 50, 10); }) << "192.168.50.10";
    QTest::newRow("DHCP FSM in hex") << true << network + QStringList{"DHCP FSM state"}
        << Tweak([](Record& r) { r.info.u.eth.dhcpFsmState = 0x1a; }) << "0x1a";
    QTest::newRow("DHCP enabled bit") << true << network + QStringList{"DHCP state", "Enabled"}
        << Tweak([](Record& r) { r.info.u.eth.dhcpState = 0x5; }) << "true";
    QTest::newRow("DHCP supported only") << true << network + QStringList{"DHCP state", "Enabled"}
        << Tweak([](Record& r) { r.info.u.eth.dhcpState = 0x3; }) << "false";
    QTest::newRow("no paired MAC") << true << network + QStringList{"Paired host MAC address"} << Tweak() << "";
    QTest::newRow("paired MAC") << true << network + QStringList{"Paired host MAC address"}
        << Tweak([](Record& r) { r.info.u.eth.pairedHostMac[5] = 1; }) << "00-00-00-00-00-01";
    QTest::newRow("camera link") << true << network + QStringList{"Link"}
        << Tweak([](Record& r) { r.info.linkSpeed = 1000; }) << "1000 Mbits/s";
    QTest::newRow("adapter link") << true << QStringList{"Local network adapter", "Settings", "Adapter link speed"}
        << Tweak([](Record& r) { r.info.u.eth.adapterLinkSpeed = 100; }) << "100 Mbit/s";
    QTest::newRow("adapter range shows zero") << true
        << QStringList{"Local network adapter", "Network", "IP range begin"} << Tweak() << "0.0.0.0";
    QTest::newRow("USB link") << false << QStringList{"Device", "USB", "Link speed"}
        << Tweak([](Record& r) { r.info.linkSpeed = 480; }) << "High Speed (USB 2.0)";
}

void TestDeviceInfoModel::values()
{
    QFETCH(bool, eth);
    QFETCH(QStringList, path);
    QFETCH(Tweak, tweak);
    QFETCH(QString, value);

    DeviceInfoModel model(nullptr, [](const QString&) { return std::nullopt; });
    model.setSysfsRoot(m_dir.filePath("none"));
    const Camera camera = eth ? gige(tweak) : usb(tweak);
    model.Update(&camera, false);
    QCOMPARE(valueAt(model, path), value);
}

// Values of Device, Designation, Driver version, Driver date, DHCP enabled, MAC, IP and mask.
void TestDeviceInfoModel::adapterRows_data()
{
    QTest::addColumn<std::optional<NetworkAdapter>>("host");
    QTest::addColumn<QStringList>("values");

    NetworkAdapter partly = hostRecord();
    partly.ipv4Address = partly.ipv4Netmask = QHostAddress();
    partly.description.clear();
    QTest::newRow("camera record") << std::optional<NetworkAdapter>()
        << QStringList{"Virtual GigE adapter simnet0", "simnet0", "4.97.1203", "6-12-2025", "false",
                       "02-c1-5e-00-00-0a", "192.168.50.1", "255.255.255.0"};
    QTest::newRow("host") << std::optional(hostRecord())
        << QStringList{"Intel I210", "enp3s0", "5.15.0-k", "3-4-2024", "true", "02-c1-5e-00-00-0a", "10.1.2.3",
                       "255.255.0.0"};
    QTest::newRow("host without text and IPv4") << std::optional(partly)
        << QStringList{"Virtual GigE adapter simnet0", "enp3s0", "5.15.0-k", "3-4-2024", "true",
                       "02-c1-5e-00-00-0a", "192.168.50.1", "255.255.255.0"};
}

void TestDeviceInfoModel::adapterRows()
{
    QFETCH(std::optional<NetworkAdapter>, host);
    QFETCH(QStringList, values);

    QStringList asked;
    DeviceInfoModel model(nullptr, [&](const QString& mac) {
        asked << mac;
        return host;
    });
    const Camera camera = gige([](Record& record) { onAdapter(record, {0x02, 0xc1, 0x5e, 0, 0, 0x0a}); });
    model.Update(&camera, false);
    QCOMPARE(asked, QStringList{"02:C1:5E:00:00:0A"});
    const QModelIndex general = rowAt(model, {"Local network adapter", "General"});
    const QModelIndex network = rowAt(model, {"Local network adapter", "Network"});
    QStringList shown;
    for (int row : {0, 1, 2, 3, 4})
        shown << model.index(row, 1, general).data().toString();
    for (int row : {0, 1, 2})
        shown << model.index(row, 1, network).data().toString();
    QCOMPARE(shown, values);
}

void TestDeviceInfoModel::hostIsAskedOncePerAdapter()
{
    QStringList asked;
    DeviceInfoModel model(nullptr, [&](const QString& mac) {
        asked << mac;
        return std::optional<NetworkAdapter>();
    });
    const Camera noAdapter = gige();
    model.Update(&noAdapter, false);
    QVERIFY2(asked.isEmpty(), "a camera without adapter must not find the loopback interface");

    const Camera first = gige([](Record& record) { onAdapter(record, {0x02, 0, 0, 0, 0, 1}); });
    const Camera second = gige([](Record& record) { onAdapter(record, {0x02, 0, 0, 0, 0, 2}); });
    model.Update(&first, false);
    model.Update(&first, false);
    model.Update(&second, false);
    model.Update(&second, false);
    QCOMPARE(asked, QStringList({"02:00:00:00:00:01", "02:00:00:00:00:02"}));
    model.Update(&second, true);
    QCOMPARE(asked.size(), 3);
}

// The real inventory, read-only: an adapter of this machine is found by its MAC.
void TestDeviceInfoModel::adapterOfThisHost()
{
    QNetworkInterface found;
    for (const QNetworkInterface& interface : QNetworkInterface::allInterfaces()) {
        if (!(interface.flags() & QNetworkInterface::IsLoopBack)
            && interface.hardwareAddress().size() == 17
            && interface.hardwareAddress() != "00:00:00:00:00:00") {
            found = interface;
            break;
        }
    }
    if (!found.isValid())
        QSKIP("this machine has no network adapter with a MAC address");
    const QStringList bytes = found.hardwareAddress().split(':');
    const Camera camera = gige([&](Record& record) {
        for (int i = 0; i < 6; ++i)
            record.info.u.eth.adapterMac[i] = quint8(bytes.at(i).toUInt(nullptr, 16));
    });
    DeviceInfoModel model;
    model.Update(&camera, false);
    QCOMPARE(valueAt(model, {"Local network adapter", "General", "Designation"}), found.humanReadableName());
    const QString description = getAdapterDescription(found.name());
    QCOMPARE(valueAt(model, {"Local network adapter", "General", "Device"}), description);
}

void TestDeviceInfoModel::rebuildOrRefresh_data()
{
    QTest::addColumn<quint32>("cameraId");
    QTest::addColumn<QString>("serial");
    QTest::addColumn<bool>("force");
    QTest::addColumn<bool>("rebuilt");

    QTest::newRow("same camera") << 10u << "5201000010" << false << false;
    QTest::newRow("new ID, same serial") << 11u << "5201000010" << false << false;
    QTest::newRow("same ID, new serial") << 10u << "5201000099" << false << false;
    QTest::newRow("new ID and serial") << 11u << "5201000099" << false << true;
    QTest::newRow("same camera, forced") << 10u << "5201000010" << true << true;
}

void TestDeviceInfoModel::rebuildOrRefresh()
{
    QFETCH(quint32, cameraId);
    QFETCH(QString, serial);
    QFETCH(bool, force);
    QFETCH(bool, rebuilt);

    DeviceInfoModel model(nullptr, [](const QString&) { return std::nullopt; });
    const Camera first = gige();
    model.Update(&first, false);
    const QPersistentModelIndex com = rowAt(model, {"Device", "General", "COM port number"}, 1);
    const QPersistentModelIndex paired = rowAt(model, {"Device", "General", "Device status flags", "Paired"}, 1);
    QCOMPARE(com.data().toString(), QString("100"));
    QCOMPARE(paired.data().toString(), QString("false"));

    QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
    QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
    QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);
    const Camera second = makeCamera(1000, 138, cameraId, serial, [](Record& record) {
        record.info.comPortOffset = 3;
        record.info.deviceStatus = 0x400;
    });
    model.Update(&second, force);

    QCOMPARE(resets.count(), rebuilt ? 1 : 0);
    QCOMPARE(inserted.count() + removed.count(), 0);
    QCOMPARE(com.isValid(), !rebuilt);
    if (rebuilt) {
        QVERIFY(changes.isEmpty());
    } else {
        QCOMPARE(com.data().toString(), QString("103"));
        QCOMPARE(paired.data().toString(), QString("true"));
        // Every changed range lies under one parent and covers the values.
        bool comReported = false;
        for (const QList<QVariant>& change : changes) {
            const QModelIndex topLeft = change.at(0).toModelIndex();
            const QModelIndex bottomRight = change.at(1).toModelIndex();
            QVERIFY(topLeft.isValid() && bottomRight.isValid());
            QCOMPARE(topLeft.parent(), bottomRight.parent());
            comReported |= topLeft.parent() == com.parent() && topLeft.row() <= com.row()
                           && bottomRight.row() >= com.row() && bottomRight.column() == 1;
        }
        QVERIFY(comReported);
    }
    QCOMPARE(valueAt(model, {"Device", "General", "COM port number"}), QString("103"));
}

void TestDeviceInfoModel::noCameraEmptiesTheTree()
{
    DeviceInfoModel model(nullptr, [](const QString&) { return std::nullopt; });
    QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    model.Update(nullptr, false);
    QCOMPARE(resets.count(), 0);

    const Camera camera = gige();
    model.Update(&camera, false);
    QCOMPARE(resets.count(), 1);
    model.Update(nullptr, false);
    QCOMPARE(resets.count(), 2);
    QCOMPARE(model.rowCount(), 0);
    model.Update(nullptr, true);
    QCOMPARE(resets.count(), 2);

    // The camera shown before is forgotten: it comes back as a new tree.
    model.Update(&camera, false);
    QCOMPARE(resets.count(), 3);
    QCOMPARE(model.rowCount(), 3);
}

void TestDeviceInfoModel::passesTheModelTester_data()
{
    QTest::addColumn<quint32>("deviceId");
    QTest::newRow("GigE") << 1000u;
    QTest::newRow("USB") << 1u;
    QTest::newRow("no camera") << 0xFFFFFFFFu;
}

void TestDeviceInfoModel::passesTheModelTester()
{
    QFETCH(quint32, deviceId);
    const std::optional<Camera> camera =
        deviceId == 0xFFFFFFFFu ? std::nullopt : std::optional<Camera>(fromDriver(deviceId));
    const Camera* shown = camera ? &*camera : nullptr;

    DeviceInfoModel model;
    model.setSysfsRoot(m_machine);
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    QSignalSpy needed(&model, &DeviceInfoModel::updateNeeded);
    model.Update(shown, false);
    model.Update(shown, false);
    if (shown && shown->kind() == Camera::Kind::Usb) {
        QVERIFY(needed.wait(5000));
        model.Update(shown, true);
        QVERIFY(rowAt(model, {"Device", "USB", "1. Hub"}).isValid());
    }
    model.Update(shown, true);
    const Camera other = fromDriver(deviceId == 1000 ? 0 : 1000);
    model.Update(&other, true);
    model.Update(nullptr, false);
}

void TestDeviceInfoModel::pathRows_data()
{
    QTest::addColumn<QString>("location");
    QTest::addColumn<QStringList>("rows");

    // The controller's name depends on the host's PCI id list.
    const QString named = "%controller";
    QTest::newRow("behind a hub") << "1-1.2"
                                  << QStringList{"1. Hub=USB2.0 Hub (Port 2)",
                                                 "2. Hub=USB Root Hub (USB 2.0) (Port 1)",
                                                 "3. Controller=" + named};
    QTest::newRow("on a root hub") << "2-1"
                                   << QStringList{"1. Hub=USB Root Hub (USB 3.0) (Port 1)",
                                                  "2. Controller=" + named};
    QTest::newRow("not in the tree") << "3-1" << QStringList();
    QTest::newRow("no location") << "" << QStringList();
}

void TestDeviceInfoModel::pathRows()
{
    QFETCH(QString, location);
    QFETCH(QStringList, rows);

    DeviceInfoModel model;
    model.setSysfsRoot(m_machine);
    QSignalSpy needed(&model, &DeviceInfoModel::updateNeeded);
    const Camera camera = usbAt(location);
    model.Update(&camera, false);
    QCOMPARE(usbRows(model), QStringList());
    QTRY_VERIFY(model.usbTopology());
    QCOMPARE(needed.count(), rows.isEmpty() ? 0 : 1);
    if (!rows.isEmpty())
        QCOMPARE(needed.first().first().toBool(), true);
    model.Update(&camera, true);
    rows.replaceInStrings("%controller", model.usbTopology()->controllers().front().description);
    QCOMPARE(usbRows(model), rows);
}

void TestDeviceInfoModel::newTopologyAsksForRebuildOnlyWhenThePathChanged()
{
    DeviceInfoModel model;
    model.setSysfsRoot(m_machine);
    const Camera camera = usbAt("1-1.2");
    model.Update(&camera, false);
    QTRY_VERIFY(model.usbTopology());
    model.Update(&camera, true);
    QSignalSpy needed(&model, &DeviceInfoModel::updateNeeded);

    auto topologyReplaced = [&model](const QString& root) {
        const auto before = model.usbTopology();
        model.setSysfsRoot(root);
        model.UpdateUSBTopology();
        return QTest::qWaitFor([&] { return model.usbTopology() != before; }, 5000);
    };
    QVERIFY(topologyReplaced(m_machine));
    QCOMPARE(needed.count(), 0);
    QVERIFY(topologyReplaced(m_moved));
    QCOMPARE(needed.count(), 1);
    model.Update(&camera, true);
    QCOMPARE(usbRows(model).first(), QString("1. Hub=VIA Hub (Port 2)"));

    const Camera gigE = gige();
    model.Update(&gigE, true);
    QVERIFY(topologyReplaced(m_machine));
    QCOMPARE(needed.count(), 1);
}

// The first job's result is never taken once a second one is watched.
void TestDeviceInfoModel::laterTopologyJobReplacesEarlier()
{
    DeviceInfoModel model;
    model.setSysfsRoot(m_machine);
    model.UpdateUSBTopology();
    model.setSysfsRoot(m_moved);
    model.UpdateUSBTopology();
    QTRY_VERIFY(model.usbTopology());
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::processEvents();
    const auto location = model.usbTopology()->locate("1-1.2");
    QVERIFY(location);
    QCOMPARE(location->hubs.front().hubDescription, QString("VIA Hub"));
    QVERIFY(!model.usbTopology()->locate("2-1"));
}

QTEST_MAIN(TestDeviceInfoModel)
#include "tst_deviceinfomodel.moc"
