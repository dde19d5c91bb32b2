#include "camera/cameralistreader.h"
#include "supportfile/camerarevision.h"
#include "supportfile/supportfilecamera.h"
#include "supportfile/supportfileexport.h"
#include "supportfile/supportfilefields.h"
#include "supportfile/supportfileoutline.h"
#include "supportfile/supportfilereader.h"
#include "supportfile/supportfileredaction.h"
#include "supportfile/supportfilewalk.h"
#include "supportfile/supportfilewriter.h"

#include "simdriverfixture.h"
#include "supportfiletestsupport.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QtTest>

using namespace SupportFileTestSupport;
using Name = SupportFileNames::Name;

namespace {

QStringList sectionsOf(const SupportFileTree& tree)
{
    QStringList names;
    for (const std::wstring& name : tree.sectionNames())
        names << QString::fromStdWString(name);
    return names;
}

QString value(const SupportFileTree& tree, const char* section, const char* key)
{
    return QString::fromStdWString(tree.get(QString(section).toStdWString(), QString(key).toStdWString(), L"<none>"));
}

SupportFileTree written(const QList<Camera>& cameras)
{
    SupportFileWriter writer;
    writer.writeHeader();
    SupportFileWalk::write(writer, sources(cameras));
    return writer.tree();
}

const SupportFileRow* find(const std::vector<SupportFileRow>& rows, const QString& label)
{
    for (const SupportFileRow& row : rows) {
        if (row.label == label)
            return &row;
    }
    return nullptr;
}

QStringList labels(const std::vector<SupportFileRow>& rows)
{
    QStringList result;
    for (const SupportFileRow& row : rows)
        result << row.label;
    return result;
}

} // namespace

class TestSupportFileWriter : public QObject
{
    Q_OBJECT

private slots:
    void sectionsOfAFleet_data();
    void sectionsOfAFleet();
    void revisionKeysFollowTheOverallPosition();
    void usbPathAndHostControllers();
    void driverNamesWithDotsAreOneKey();
    void transferKeysAreNeverWrittenAndReadAsDefaults();
    void viewerGroupsFollowTheCounts();
    void aHubWordOfAnotherLanguageIsReadBack();
    void temperatureSensorMarkings_data();
    void temperatureSensorMarkings();
    void defaultFleetRoundTripsKeyByKey();
    void revisionRecordsComeFromTheCameras();
    void redactionReplacesIdentifyingValues();
    void exportsCarryEveryKey();
};

void TestSupportFileWriter::sectionsOfAFleet_data()
{
    QTest::addColumn<QList<Camera>>("cameras");
    QTest::addColumn<QStringList>("sections");
    const QStringList host{"Installed drivers", "System information", "Network adapters", "Adapter - 0",
                           "USB hostcontrollers", "Summit compatibility mode"};
    QTest::newRow("no cameras") << QList<Camera>() << QStringList{"Camera Manager", "ETH", "USB", "DeviceCameraId"} + host;
    QTest::newRow("USB, multicast, VPE, unknown")
        << QList<Camera>{makeCamera(0, "U0"), makeCamera(1500, "M"), makeCamera(2000, "V0"), makeCamera(2600, "X")}
        << QStringList{"Camera Manager", "USB - 0", "VPE - 0", "ETH", "USB", "DeviceCameraId"} + host;
}

void TestSupportFileWriter::sectionsOfAFleet()
{
    QFETCH(QList<Camera>, cameras);
    QFETCH(QStringList, sections);
    const SupportFileTree tree = written(cameras);
    QCOMPARE(sectionsOf(tree), sections);
    QCOMPARE(value(tree, "Camera Manager", "Version"), QString("4.97.0.0"));
    QCOMPARE(value(tree, "Summit compatibility mode", "Enabled"), QString("1"));
    QCOMPARE(value(tree, "Adapter - 0", "MacAddress"), QString("02:C1:5E:00:00:07"));
    QCOMPARE(value(tree, "System information", "dwBuildNumber"), QString("6.1.0-18-amd64"));
}

void TestSupportFileWriter::revisionKeysFollowTheOverallPosition()
{
    // USB at 0, a VPE camera at 1, ETH at 2: the ETH camera's own keys go to
    // "ETH - 0", its revision keys to "ETH - 2".
    const SupportFileTree tree = written({makeCamera(0, "U0"), makeCamera(2000, "V0"), makeCamera(1000, "E0")});
    QCOMPARE(value(tree, "ETH - 0", "DeviceSerNo"), QString("E0"));
    QCOMPARE(value(tree, "ETH - 0", "CamInfo_Type"), QString("<none>"));
    QCOMPARE(value(tree, "ETH - 2", "CamInfo_Type"), QString("type of 1000"));
    QCOMPARE(value(tree, "USB - 0", "CamInfo_Type"), QString("type of 0"));
    QCOMPARE(value(tree, "VPE - 0", "CamInfo_Type"), QString("<none>"));
    QCOMPARE(value(tree, "ETH", "Number of cameras"), QString("1"));
    QCOMPARE(value(tree, "DeviceCameraId", "Number of cameras"), QString("1"));
    // The adapter's texts come from the host's adapter of the same name.
    QCOMPARE(value(tree, "ETH - 0", "AdapterDriverVersion"), QString("5.10"));
    QCOMPARE(value(tree, "ETH - 0", "DebugReservedDriver_13"), QString("0"));
}

void TestSupportFileWriter::usbPathAndHostControllers()
{
    const SupportFileTree tree = written({makeCamera(0, "U0", "1-2.3"), makeCamera(1, "U1", "9-9")});
    const SupportFileTree::Tree* usb = tree.section(L"USB - 0");
    QVERIFY(usb);
    QStringList keys;
    for (const auto& key : *usb)
        keys << QString::fromStdWString(key.first);
    const int path = keys.indexOf("1. Hub");
    QVERIFY(path > 0);
    QCOMPARE(keys.mid(path, 5), (QStringList{"1. Hub", "2. Hub", "3. Controller", "DriverUsbVer", "CamInfo_Type"}));
    QCOMPARE(value(tree, "USB - 0", "1. Hub"), QString("Generic USB Hub (Port 3)"));
    QCOMPARE(value(tree, "USB - 0", "2. Hub"), QString("xHCI root hub (Port 2)"));
    QCOMPARE(value(tree, "USB - 0", "3. Controller"), QString("Intel xHCI Controller"));
    QCOMPARE(value(tree, "USB - 0", "DriverUsbVer"), QString("4.97.0012"));
    QCOMPARE(value(tree, "USB - 1", "1. Hub"), QString("<none>"));
    // xHCI (type 3) writes three keys, EHCI (type 2) only its name.
    QCOMPARE(value(tree, "USB hostcontrollers", "0 Name"), QString("Intel xHCI Controller"));
    QCOMPARE(value(tree, "USB hostcontrollers", "0 Date"), QString("1-2-2024"));
    QCOMPARE(value(tree, "USB hostcontrollers", "0 Version"), QString("6.1.0"));
    QCOMPARE(value(tree, "USB hostcontrollers", "1"), QString("Old EHCI Controller"));
    QCOMPARE(value(tree, "USB hostcontrollers", "1 Name"), QString("<none>"));
}

void TestSupportFileWriter::driverNamesWithDotsAreOneKey()
{
    const SupportFileTree tree = written({});
    QCOMPARE(value(tree, "Installed drivers", "cirro_api_64.dll"),
             QString("Fileversion: 1.2.3    Productversion: 4.97.0"));
    QCOMPARE(int(tree.section(L"Installed drivers")->size()), 1);
    QVERIFY(tree.section(L"Installed drivers")->begin()->second.empty());
}

void TestSupportFileWriter::transferKeysAreNeverWrittenAndReadAsDefaults()
{
    const SupportFileTree tree = written({makeCamera(1000, "E0")});
    const SupportFileCamera eth(tree, L"ETH - 0", SupportFileCamera::Kind::Eth);
    for (int key = int(Name::TransferImgDelay); key <= int(Name::TransferSendWindowDelay); ++key) {
        QVERIFY(!eth.has(Name(key)));
        QCOMPARE(eth.text(Name(key)), QString("-"));
    }
    QCOMPARE(SupportFileCamera(tree, L"ETH - 5", SupportFileCamera::Kind::Eth).text(Name::DeviceId), QString("-1"));
}

void TestSupportFileWriter::viewerGroupsFollowTheCounts()
{
    const std::vector<SupportFileRow> rows = SupportFileOutline::build(written({makeCamera(1000, "E0"), makeCamera(2000, "V0")}));
    QCOMPARE(labels(rows), (QStringList{"No USB Cameras", "ETH Cameras", "VPE Cameras", "Drivers",
                                        "System Information", "Network adapter", "USB Controller",
                                        "Parvel Summit compatibility mode"}));
    QCOMPARE(rows[1].children.size(), std::size_t(1));
    QCOMPARE(rows[1].children[0].label, QString("1000 / Unused"));
    const SupportFileRow& vpe = rows[2].children.at(0);
    QCOMPARE(labels(vpe.children), (QStringList{"Model", "Serial", "InUse", "CamID"}));
    QCOMPARE(vpe.children[1].value, QString("V0"));
    const SupportFileRow* network = find(find(rows[1].children[0].children, "Device")->children, "Network");
    QVERIFY(network);
    QCOMPARE(find(network->children, "MAC address")->value, QString("00-1c-c1-00-00-10"));
    QCOMPARE(find(network->children, "Current IP address")->value, QString("0.0.0.0"));
    QCOMPARE(find(network->children, "Multicast IP")->value, QString("-"));
}

void TestSupportFileWriter::aHubWordOfAnotherLanguageIsReadBack()
{
    SupportFileTree tree;
    tree.put(L"USB", L"Number of cameras", 1);
    tree.put(L"USB - 0", L"DeviceId", 0);
    tree.put(L"USB - 0", L"1. Knoten", L"Generic USB Hub (Port 3)");
    tree.put(L"USB - 0", L"2. 集线器", L"root (Port 1)");
    tree.put(L"USB - 0", L"3. Steuerung", L"Intel xHCI");
    const SupportFileCamera usb(tree, L"USB - 0", SupportFileCamera::Kind::Usb);
    const std::optional<UsbTopology::Location> path = usb.usbPath();
    QVERIFY(path);
    QCOMPARE(int(path->hubs.size()), 2);
    QCOMPARE(path->hubs[0].displayName(), QString("Generic USB Hub"));
    QCOMPARE(path->hubs[1].port, 1);
    QCOMPARE(path->controller, QString("Intel xHCI"));
    const std::vector<SupportFileRow> rows = SupportFileOutline::build(tree);
    const SupportFileRow* link =
        find(find(find(rows[0].children[0].children, "Device")->children, "Link")->children, "1. Hub");
    QVERIFY(link);
    QCOMPARE(link->value, QString("Generic USB Hub (Port 3)"));
    QCOMPARE(link->children.at(0).children.at(0).label, QString("3. Controller"));
}

void TestSupportFileWriter::temperatureSensorMarkings_data()
{
    QTest::addColumn<QString>("sensor");
    QTest::addColumn<QString>("marking");
    QTest::newRow("defect") << "0a-0b-0c-00-00-00" << "invalid - temp. sensor defect!";
    QTest::newRow("too high") << "0a-0b-0c-80-00-00" << "invalid - temp. sensor to high!";
    QTest::newRow("fine") << "0a-0b-0c-12-34-56" << QString();
}

void TestSupportFileWriter::temperatureSensorMarkings()
{
    QFETCH(QString, sensor);
    QFETCH(QString, marking);
    SupportFileTree tree = written({makeCamera(1000, "E0")});
    tree.put(L"ETH - 0", L"DeviceTempSensorSerNo", sensor.toStdWString());
    const std::vector<SupportFileRow> rows = SupportFileOutline::build(tree);
    const SupportFileRow& camera = rows[1].children.at(0);
    const SupportFileRow* hardware = find(find(camera.children, "Device")->children, "Hardware");
    QCOMPARE(hardware->children.at(1).label, QString("Image memory size"));
    if (marking.isEmpty()) {
        QCOMPARE(hardware->children.size(), std::size_t(2));
    } else {
        QCOMPARE(hardware->children.back().value, marking);
        QVERIFY(hardware->children.back().warning);
    }
}

void TestSupportFileWriter::defaultFleetRoundTripsKeyByKey()
{
    QVERIFY(SimDriverFixture::reset());
    QList<Camera> fleet;
    for (const std::shared_ptr<Camera>& camera : CameraListReader::read())
        fleet << *camera;
    QVERIFY(fleet.size() > 5);
    QTemporaryDir dir;
    const QString path = dir.filePath("fleet.bin");
    QVERIFY(SupportFileWalk::writeFile(path, sources(fleet), std::nullopt).isSuccess());
    const SupportFileReader::Result read = SupportFileReader::read(path);
    QCOMPARE(read.error, QString());
    QVERIFY(read.tree.tree() == written(fleet).tree());

    // Every written key of every camera section comes back into the same record field.
    int usb = 0;
    int eth = 0;
    for (const Camera& original : fleet) {
        const bool isEth = original.kind() == Camera::Kind::Eth;
        if (!isEth && original.kind() != Camera::Kind::Usb)
            continue;
        const std::wstring section = SupportFileNames::numbered(isEth ? Name::EthSection : Name::UsbSection,
                                                                isEth ? eth++ : usb++);
        const SupportFileCamera back(read.tree, section,
                                     isEth ? SupportFileCamera::Kind::Eth : SupportFileCamera::Kind::Usb);
        const pv_ExtendedDeviceInformation before = SupportFileFields::record(original);
        const pv_ExtendedDeviceInformation after = SupportFileFields::record(back.camera());
        for (const SupportFileField& field : isEth ? SupportFileFields::eth() : SupportFileFields::usbIdentity()) {
            QVERIFY2(field.write(after) == field.write(before),
                     qPrintable(QString::fromStdWString(section) + ": "
                                + QString::fromWCharArray(SupportFileNames::text(field.name))));
        }
        if (isEth)
            QCOMPARE(std::memcmp(&after.info.debugDeviceStatistics, &before.info.debugDeviceStatistics, 312), 0);
    }
    QVERIFY(usb > 0 && eth > 0);
}

void TestSupportFileWriter::revisionRecordsComeFromTheCameras()
{
    QVERIFY(SimDriverFixture::reset());
    const std::optional<CameraRevision> usb = CameraRevision::query(0);
    QVERIFY(usb);
    QCOMPARE(usb->fields[0], QStringLiteral("CR-U3-50M")); // CamInfo_Type
    QVERIFY(!CameraRevision::query(3));    // held by another program
    QVERIFY(!CameraRevision::query(1499)); // no such camera
    QVERIFY(!SimDriverFixture::cameraState(0).value("open").toBool());
}

void TestSupportFileWriter::redactionReplacesIdentifyingValues()
{
    SupportFileTree tree = written({makeCamera(0, "U0"), makeCamera(1000, "E0"), makeCamera(1001, "E0")});
    SupportFileRedaction("secret").apply(tree);
    const QString serial = value(tree, "ETH - 0", "DeviceSerNo");
    QVERIFY(serial.startsWith("S-") && serial != "E0");
    // The same serial gets the same pseudonym, here and in a later file.
    QCOMPARE(value(tree, "ETH - 1", "DeviceSerNo"), serial);
    QCOMPARE(SupportFileRedaction("secret").serialPseudonym("E0"), serial);
    QVERIFY(SupportFileRedaction("other").serialPseudonym("E0") != serial);
    const QString mac = value(tree, "ETH - 0", "DeviceMacAddress");
    QVERIFY2(mac != "00-1c-c1-00-00-10" && QRegularExpression("^[0-9a-f]{2}(-[0-9a-f]{2}){5}$").match(mac).hasMatch(),
             qPrintable(mac));
    QCOMPARE(value(tree, "ETH - 0", "DevicePairedMacAddress"), QString("00-00-00-00-00-00"));
    const QString adapterMac = value(tree, "Adapter - 0", "MacAddress");
    QVERIFY(adapterMac != "02:C1:5E:00:00:07" && adapterMac == adapterMac.toUpper() && adapterMac.contains(':'));
    QVERIFY(value(tree, "System information", "Hostname").startsWith("host-"));
    QVERIFY(SupportFileRedaction::isRedacted(tree));
    QVERIFY(!SupportFileRedaction::isRedacted(written({})));
}

void TestSupportFileWriter::exportsCarryEveryKey()
{
    const SupportFileTree tree = written({makeCamera(1000, "E0")});
    const QJsonObject json = QJsonDocument::fromJson(SupportFileExport::toJson(tree)).object();
    QCOMPARE(json.size(), int(tree.sectionNames().size()));
    QCOMPARE(json["ETH - 0"].toObject()["DeviceSerNo"].toString(), QString("E0"));
    const QByteArray ini = SupportFileExport::toIni(tree);
    QVERIFY(ini.startsWith("[Camera Manager]\nVersion=4.97.0.0\n\n[ETH - 0]\nDeviceId=1000\n"));
    QVERIFY(SupportFileTree::fromIni(QString::fromUtf8(ini).toStdWString()).tree() == tree.tree());
}

QTEST_GUILESS_MAIN(TestSupportFileWriter)
#include "tst_supportfilewriter.moc"
