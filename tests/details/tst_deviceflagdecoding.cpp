#include "details/deviceflagrenderer.h"
#include "details/devicevaluerenderer.h"
#include "details/flagtables.h"

#include "deviceinfotestsupport.h"

#include <QtTest>

using namespace DeviceInfoTestSupport;

Q_DECLARE_METATYPE(FlagWord)

class TestDeviceFlagDecoding : public QObject
{
    Q_OBJECT

private slots:
    void tables_data();
    void tables();
    void renderedFlags_data();
    void renderedFlags();
    void macAddress_data();
    void macAddress();
    void linkSpeed_data();
    void linkSpeed();
    void packetFilter_data();
    void packetFilter();
};

void TestDeviceFlagDecoding::tables_data()
{
    QTest::addColumn<FlagWord>("word");
    QTest::addColumn<int>("entries");
    QTest::addColumn<quint32>("namedBits");
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("last");

    QTest::newRow("device status") << FlagWord::DeviceStatus << 26 << 0xC5FF77FFu << "Ready to operate"
                                   << "Runtime firmware error 0";
    QTest::newRow("device control") << FlagWord::DeviceControl << 19 << 0xCB1353F7u << "Available"
                                    << "To be removed";
}

// One bit per entry, lowest first, and exactly the named bits.
void TestDeviceFlagDecoding::tables()
{
    QFETCH(FlagWord, word);
    QFETCH(int, entries);
    QFETCH(quint32, namedBits);
    QFETCH(QString, first);
    QFETCH(QString, last);

    const FlagTable table = FlagTables::of(word);
    QCOMPARE(int(table.size()), entries);
    quint32 seen = 0;
    quint32 previous = 0;
    for (const FlagEntry& entry : table) {
        QVERIFY2(entry.mask != 0 && (entry.mask & (entry.mask - 1)) == 0, qPrintable(entry.name));
        QVERIFY2(entry.mask > previous, qPrintable(entry.name));
        QVERIFY(!entry.name.isEmpty());
        previous = entry.mask;
        seen |= entry.mask;
    }
    QCOMPARE(seen, namedBits);
    QCOMPARE(table.front().name, first);
    QCOMPARE(table.back().name, last);
}

void TestDeviceFlagDecoding::renderedFlags_data()
{
    QTest::addColumn<FlagWord>("word");
    QTest::addColumn<quint32>("status");
    QTest::addColumn<quint32>("control");
    QTest::addColumn<QStringList>("set");

    const FlagTable status = FlagTables::deviceStatus();
    const FlagTable control = FlagTables::deviceControl();
    QStringList allStatus;
    QStringList allControl;
    for (const FlagEntry& entry : status)
        allStatus << entry.name;
    for (const FlagEntry& entry : control)
        allControl << entry.name;

    QTest::newRow("status 0") << FlagWord::DeviceStatus << 0u << 0xFFFFFFFFu << QStringList();
    QTest::newRow("status all bits") << FlagWord::DeviceStatus << 0xFFFFFFFFu << 0u << allStatus;
    QTest::newRow("status unnamed bits only") << FlagWord::DeviceStatus << 0x3A008800u << 0u << QStringList();
    QTest::newRow("status paired, not control's") << FlagWord::DeviceStatus << 0x1400u << 0x1000u
                                                  << QStringList{"Paired", "Force 100Mbps"};
    QTest::newRow("control 0") << FlagWord::DeviceControl << 0xFFFFFFFFu << 0u << QStringList();
    QTest::newRow("control all bits") << FlagWord::DeviceControl << 0u << 0xFFFFFFFFu << allControl;
    QTest::newRow("control top and bottom") << FlagWord::DeviceControl << 0u << 0x80000001u
                                            << QStringList{"Available", "To be removed"};
}

void TestDeviceFlagDecoding::renderedFlags()
{
    QFETCH(FlagWord, word);
    QFETCH(quint32, status);
    QFETCH(quint32, control);
    QFETCH(QStringList, set);

    const Camera camera = gige([&](Record& record) {
        record.info.deviceStatus = status;
        record.info.deviceControlStatus = control;
    });
    QStringList rendered;
    for (const FlagEntry& entry : FlagTables::of(word)) {
        const QVariant value = DeviceFlagRenderer::render(entry.mask, word, camera);
        QCOMPARE(value.userType(), int(QMetaType::QString));
        QVERIFY2(value == "true" || value == "false", qPrintable(value.toString()));
        if (value == "true")
            rendered << entry.name;
    }
    rendered.sort();
    set.sort();
    QCOMPARE(rendered, set);
}

void TestDeviceFlagDecoding::macAddress_data()
{
    QTest::addColumn<QString>("mac");
    QTest::addColumn<QString>("shown");

    const QString defect = "Invalid - temperature sensor defect!";
    const QString tooHigh = "Invalid - temperature sensor to high!";
    QTest::newRow("sensor defect") << "00-1c-c1-00-00-00" << defect;
    QTest::newRow("all zero") << "00-00-00-00-00-00" << defect;
    QTest::newRow("sensor too high") << "00-1c-c1-80-00-00" << tooHigh;
    QTest::newRow("one above") << "00-1c-c1-80-00-01" << "00-1c-c1-80-00-01";
    QTest::newRow("only the end counts") << "80-00-00-12-34-56" << "80-00-00-12-34-56";
    QTest::newRow("colons are no match") << "00:1c:c1:00:00:00" << "00:1c:c1:00:00:00";
    QTest::newRow("shorter than the end") << "00-00" << "00-00";
}

void TestDeviceFlagDecoding::macAddress()
{
    QFETCH(QString, mac);
    QFETCH(QString, shown);
    QCOMPARE(DeviceValueRenderer::macAddress(mac), shown);

    const QStringList bytes = mac.split('-');
    if (bytes.size() != 6)
        return;
    const Camera camera = gige([&](Record& record) {
        for (int i = 0; i < 6; ++i)
            record.info.u.eth.macAddress[i] = quint8(bytes.at(i).toUInt(nullptr, 16));
    });
    QCOMPARE(DeviceValueRenderer::macAddress(camera), shown);
}

void TestDeviceFlagDecoding::linkSpeed_data()
{
    QTest::addColumn<int>("mbits");
    QTest::addColumn<QString>("shown");

    QTest::newRow("USB 2") << 480 << "High Speed (USB 2.0)";
    QTest::newRow("USB 3 as the driver reports it") << 4000 << "SuperSpeed USB 5 Gbps";
    QTest::newRow("5000 is a number") << 5000 << "5000";
    QTest::newRow("full speed") << 12 << "12";
    QTest::newRow("none") << 0 << "0";
    QTest::newRow("largest word") << 65535 << "65535";
}

void TestDeviceFlagDecoding::linkSpeed()
{
    QFETCH(int, mbits);
    QFETCH(QString, shown);
    const Camera camera = usb([&](Record& record) { record.info.linkSpeed = quint16(mbits); });
    QCOMPARE(DeviceValueRenderer::linkSpeed(camera), shown);
}

void TestDeviceFlagDecoding::packetFilter_data()
{
    QTest::addColumn<quint32>("mode");
    QTest::addColumn<QString>("shown");

    QTest::newRow("0") << 0u << "Pass all";
    QTest::newRow("1") << 1u << "Block CRGET";
    QTest::newRow("2") << 2u << "Block all";
    QTest::newRow("3") << 3u << "?";
    QTest::newRow("not available") << 0xFFFFFFFFu << "?";
}

void TestDeviceFlagDecoding::packetFilter()
{
    QFETCH(quint32, mode);
    QFETCH(QString, shown);
    const Camera camera = gige([&](Record& record) { record.info.u.eth.adapterPacketFilter = mode; });
    QCOMPARE(DeviceValueRenderer::packetFilter(camera), shown);
}

QTEST_GUILESS_MAIN(TestDeviceFlagDecoding)
#include "tst_deviceflagdecoding.moc"
