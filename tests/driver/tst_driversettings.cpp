#include "common/servicesettingsfile.h"
#include "driver/bulktransfersize.h"
#include "driver/debugmask.h"
#include "driver/driverconfiguration.h"
#include "driversettings/debugcategories.h"
#include "driversettings/driverservicesettings.h"

#include "simdriverfixture.h"

#include <QTemporaryDir>
#include <QtTest>

// The driver-wide settings: the words of the simulated driver and the values
// of the driver services' settings files.
class TestDriverSettings : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void maskTextHasSixteenDigits_data();
    void maskTextHasSixteenDigits();
    void typedMaskTexts_data();
    void typedMaskTexts();
    void masksLandInTheirDriversFile();
    void bulkTransferSizeIsChosenByBytes_data();
    void bulkTransferSizeIsChosenByBytes();
    void idleBitsChangeAloneInTheDriversWord();
    void failedDriverCallsGiveTheirCodes();

private:
    static void writeUsbFile(const QByteArray& text)
    {
        QFile file(DriverServiceSettings::filePath(QStringLiteral("cirro_usb")));
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(text);
    }
    static qint64 driverWord(const char* name)
    {
        return SimDriverFixture::state().value("driver").toObject().value(QLatin1String(name)).toInt();
    }

    std::unique_ptr<QTemporaryDir> m_root;
};

void TestDriverSettings::init()
{
    m_root = std::make_unique<QTemporaryDir>();
    QVERIFY(m_root->isValid());
    qputenv("CIRRO_CONFIG_ROOT", m_root->path().toUtf8());
    QVERIFY(SimDriverFixture::reset());
}

void TestDriverSettings::cleanup()
{
    qunsetenv("CIRRO_CONFIG_ROOT");
    m_root.reset();
}

void TestDriverSettings::maskTextHasSixteenDigits_data()
{
    QTest::addColumn<quint64>("mask");
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << quint64(0) << "0x0000000000000000";
    QTest::newRow("bit 0") << quint64(DebugCategories::bit(0)) << "0x0000000000000001";
    QTest::newRow("bit 63") << quint64(DebugCategories::bit(63)) << "0x8000000000000000";
    QTest::newRow("lower case") << quint64(0xABCDEF) << "0x0000000000abcdef";
    QTest::newRow("all") << ~quint64(0) << "0xffffffffffffffff";
}

void TestDriverSettings::maskTextHasSixteenDigits()
{
    QFETCH(quint64, mask);
    QFETCH(QString, text);
    QCOMPARE(DebugMask::text(mask), text);
    quint64 parsed = 1;
    QVERIFY(DebugMask::parse(text, parsed));
    QCOMPARE(parsed, mask);
}

void TestDriverSettings::typedMaskTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("valid");
    QTest::addColumn<quint64>("mask");
    QTest::newRow("short") << " 0x1F " << true << quint64(0x1f);
    QTest::newRow("capital X") << "0X10" << true << quint64(0x10);
    QTest::newRow("seventeen digits") << "0x10000000000000000" << false << quint64(0);
    QTest::newRow("no prefix") << "1f" << false << quint64(0);
    QTest::newRow("prefix only") << "0x" << false << quint64(0);
    QTest::newRow("not hexadecimal") << "0x1g" << false << quint64(0);
}

void TestDriverSettings::typedMaskTexts()
{
    QFETCH(QString, text);
    QFETCH(bool, valid);
    QFETCH(quint64, mask);
    quint64 parsed = 0;
    QCOMPARE(DebugMask::parse(text, parsed), valid);
    if (valid)
        QCOMPARE(parsed, mask);
}

void TestDriverSettings::masksLandInTheirDriversFile()
{
    QVERIFY(DebugMask::write(DebugMask::Driver::Eth, DebugCategories::bit(63) | 5).isSuccess());
    quint64 mask = 1;
    QVERIFY(DebugMask::read(DebugMask::Driver::Usb, mask).isSuccess());
    QCOMPARE(mask, quint64(0));
    QVERIFY(DebugMask::read(DebugMask::Driver::Eth, mask).isSuccess());
    QCOMPARE(mask, DebugCategories::bit(63) | 5);
    // The driver reads the value that was written, once asked to reread.
    QVERIFY(DriverConfiguration::fetchRegistryValues().isSuccess());
    const QJsonObject registry = SimDriverFixture::state().value("driver").toObject().value("registry").toObject();
    QCOMPARE(registry.value("cirro_eth/Parameters/DebugEnableMask").toString(), QStringLiteral("9223372036854775813"));

    writeUsbFile("[Parameters]\nDebugEnableMask=lots\n");
    mask = 1;
    const Result unreadable = DebugMask::read(DebugMask::Driver::Usb, mask);
    QCOMPARE(mask, quint64(0));
    QVERIFY(unreadable.text().contains("line 2"));
}

void TestDriverSettings::bulkTransferSizeIsChosenByBytes_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<int>("index");
    QTest::newRow("128 KB") << QByteArray("[Parameters]\nBulkTransferSize=131072\n") << 0;
    QTest::newRow("256 KB") << QByteArray("[Parameters]\nBulkTransferSize=262144\n") << 1;
    QTest::newRow("512 KB") << QByteArray("[Parameters]\nBulkTransferSize=524288\n") << 2;
    QTest::newRow("missing") << QByteArray("[Parameters]\n") << 2;
    QTest::newRow("kilobytes are no size in bytes") << QByteArray("[Parameters]\nBulkTransferSize=256\n") << 2;
    QTest::newRow("not a number") << QByteArray("[Parameters]\nBulkTransferSize=big\n") << 2;
    QTest::newRow("file does not parse") << QByteArray("BulkTransferSize\n") << 2;
}

void TestDriverSettings::bulkTransferSizeIsChosenByBytes()
{
    QFETCH(QByteArray, file);
    QFETCH(int, index);
    writeUsbFile(file);
    QCOMPARE(BulkTransferSize::indexIn(ServiceSettingsFile(QStringLiteral("cirro_usb"))), index);
}

void TestDriverSettings::idleBitsChangeAloneInTheDriversWord()
{
    QVERIFY(IdleStates::change(IdleStates::battery, true).isSuccess());
    QCOMPARE(driverWord("idleState"), 2);
    QVERIFY(IdleStates::change(IdleStates::mains, true).isSuccess());
    QCOMPARE(driverWord("idleState"), 3);
    QVERIFY(IdleStates::change(IdleStates::battery, false).isSuccess());
    QCOMPARE(driverWord("idleState"), 1);
    // Both boxes show bit 0, whatever bit 1 says.
    QVERIFY(IdleStates::shownDisabled(1));
    QVERIFY(IdleStates::shownDisabled(3));
    QVERIFY(!IdleStates::shownDisabled(2));
}

void TestDriverSettings::failedDriverCallsGiveTheirCodes()
{
    QCOMPARE(pvsim_FailOperation("pv_Configuration", PV_ERR_NOT_SUPPORTED, 1), PV_OK);
    QCOMPARE(IdleStates::change(IdleStates::mains, true).text(), QStringLiteral("Failed to set Idle state! Return code: 155"));
    QCOMPARE(driverWord("idleState"), 0);

    QCOMPARE(pvsim_FailOperation("pv_EthConfig", PV_ERR_SERVICE_STOPPED, 1), PV_OK);
    const Result multicast = DriverConfiguration::writeReadOnlyMulticast(false);
    QCOMPARE(multicast.code(), int(PV_ERR_SERVICE_STOPPED));
    QCOMPARE(driverWord("readOnlyMulticast"), 1);
    QVERIFY(DriverConfiguration::writeReadOnlyMulticast(false).isSuccess());
    bool enabled = true;
    QVERIFY(DriverConfiguration::readReadOnlyMulticast(enabled).isSuccess());
    QVERIFY(!enabled);

    QCOMPARE(pvsim_FailOperation("pv_FetchRegistryValues", PV_ERR_GENERAL, 1), PV_OK);
    QCOMPARE(DriverConfiguration::fetchRegistryValues().text(), QStringLiteral("pv_FetchRegistryValues() returned -1"));
    QCOMPARE(pvsim_FailOperation("pv_FetchTcpIp", PV_ERR_GENERAL, 1), PV_OK);
    QCOMPARE(DriverConfiguration::fetchTcpIp().text(), QStringLiteral("onFetchTcpIp() returned -1"));
}

QTEST_GUILESS_MAIN(TestDriverSettings)
#include "tst_driversettings.moc"
