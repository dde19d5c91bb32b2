#include "driver/widgets/additionalfunctions.h"
#include "driver/widgets/flagsctrl.h"
#include "driver/widgets/qdebugoutctrl.h"
#include "driversettings/driverservicesettings.h"

#include "messageboxanswerer.h"
#include "simdriverfixture.h"
#include "withoutwriterights.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

// The driver settings dialog against the simulated driver and a settings root
// of the test's own.
class TestAdditionalFunctions : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void showsTheDriversStateWhenBuilt_data();
    void showsTheDriversStateWhenBuilt();
    void failedReadsLeaveBoxesUnchecked();
    void bootBoostListRoundTrip();
    void failedBootBoostChangeIsPutBack();
    void switchesReachTheDriver_data();
    void switchesReachTheDriver();
    void memoryCompatibilityNeedsElevation();
    void bulkTransferSizeIsWrittenToTheUsbFile();
    void withoutWriteRightsTheFilesAreShownOnly();
    void opensTheDebugMaskAndTheFlags();

private:
    template <typename T>
    static T* child(QWidget& parent, const char* name)
    {
        auto* found = parent.findChild<T*>(QLatin1String(name));
        if (!found)
            qFatal("no child %s", name);
        return found;
    }
    static void load(const QByteArray& driver)
    {
        QCOMPARE(pvsim_LoadScenarioText("{\"driver\": " + driver + "}"), PV_OK);
    }
    static QJsonValue driverValue(const char* name)
    {
        return SimDriverFixture::state().value("driver").toObject().value(QLatin1String(name));
    }
    QString usbFile() const { return DriverServiceSettings::filePath(QStringLiteral("cirro_usb")); }

    std::unique_ptr<QTemporaryDir> m_root;
};

void TestAdditionalFunctions::init()
{
    m_root = std::make_unique<QTemporaryDir>();
    QVERIFY(m_root->isValid());
    qputenv("CIRRO_CONFIG_ROOT", m_root->path().toUtf8());
    QVERIFY(SimDriverFixture::reset());
}

void TestAdditionalFunctions::cleanup()
{
    qunsetenv("CIRRO_CONFIG_ROOT");
    m_root.reset();
}

void TestAdditionalFunctions::showsTheDriversStateWhenBuilt_data()
{
    QTest::addColumn<QByteArray>("driver");
    QTest::addColumn<QString>("checked");
    QTest::addColumn<bool>("idListEnabled");
    QTest::addColumn<QString>("ids");
    QTest::newRow("all off") << QByteArray(R"({"bootBoost": false, "readOnlyMulticast": 0})") << "" << false << "";
    // Both idle boxes follow bit 0 only.
    QTest::newRow("mains bit") << QByteArray(R"({"idleState": 1})") << "idleBattery idleMains multicast" << false << "";
    QTest::newRow("battery bit") << QByteArray(R"({"idleState": 2})") << "multicast" << false << "";
    QTest::newRow("everything on")
        << QByteArray(R"({"bootBoost": true, "bootBoostIds": [1, 2, 3, 5], "idleState": 3, "ipo": 1,
                          "trustedPairing": 1, "memoryCompat": 1})")
        << "memoryCompatibility bootBoost idleBattery idleMains ipo multicast trustedPairing" << true << "1 - 3, 5";
}

void TestAdditionalFunctions::showsTheDriversStateWhenBuilt()
{
    QFETCH(QByteArray, driver);
    QFETCH(QString, checked);
    QFETCH(bool, idListEnabled);
    QFETCH(QString, ids);
    load(driver);
    AdditionalFunctions dialog(nullptr);
    QStringList shown;
    for (QCheckBox* box : dialog.findChildren<QCheckBox*>()) {
        if (box->isChecked())
            shown << box->objectName();
    }
    QStringList expected = checked.split(' ', Qt::SkipEmptyParts);
    shown.sort();
    expected.sort();
    QCOMPARE(shown, expected);
    QCOMPARE(child<QLineEdit>(dialog, "ids")->isEnabled(), idListEnabled);
    QCOMPARE(child<QPushButton>(dialog, "addId")->isEnabled(), idListEnabled);
    QCOMPARE(child<QLabel>(dialog, "currentIds")->text(), ids);
    QVERIFY(child<QCheckBox>(dialog, "trustedPairing")->isEnabled());
    QCOMPARE(child<QComboBox>(dialog, "bulkTransferSize")->currentIndex(), 2);
}

void TestAdditionalFunctions::failedReadsLeaveBoxesUnchecked()
{
    load(R"({"memoryCompat": 1, "trustedPairing": 1, "readOnlyMulticast": 1})");
    // Memory compatibility and trusted pairing are the first two words read.
    QCOMPARE(pvsim_FailOperation("pv_Configuration", PV_ERR_GENERAL, 2), PV_OK);
    QCOMPARE(pvsim_FailOperation("pv_EthConfig", PV_ERR_SERVICE_STOPPED, 1), PV_OK);
    AdditionalFunctions dialog(nullptr);
    QVERIFY(!child<QCheckBox>(dialog, "memoryCompatibility")->isChecked());
    QVERIFY(!child<QCheckBox>(dialog, "multicast")->isChecked());
    QVERIFY(!child<QCheckBox>(dialog, "trustedPairing")->isChecked());
    QVERIFY(!child<QCheckBox>(dialog, "trustedPairing")->isEnabled());
}

void TestAdditionalFunctions::bootBoostListRoundTrip()
{
    load(R"({"bootBoost": false})");
    AdditionalFunctions dialog(nullptr);
    MessageBoxAnswerer answerer(QMessageBox::Ok);
    child<QCheckBox>(dialog, "bootBoost")->click();
    QCOMPARE(driverValue("bootBoost").toBool(), true);
    QVERIFY(child<QLineEdit>(dialog, "ids")->isEnabled());

    child<QLineEdit>(dialog, "ids")->setText("3;5-7;;300;7-5");
    child<QPushButton>(dialog, "addId")->click();
    QCOMPARE(answerer.seen, QStringList{"Wrong ID: The ID 300 has to be between with 1 and 254"});
    QCOMPARE(child<QLabel>(dialog, "currentIds")->text(), QStringLiteral("3, 5 - 7"));

    child<QLineEdit>(dialog, "ids")->setText("6");
    child<QPushButton>(dialog, "removeId")->click();
    QCOMPARE(child<QLabel>(dialog, "currentIds")->text(), QStringLiteral("3, 5, 7"));
    child<QLineEdit>(dialog, "ids")->setText("10-12");
    child<QPushButton>(dialog, "setIdList")->click();
    QCOMPARE(child<QLabel>(dialog, "currentIds")->text(), QStringLiteral("10 - 12"));
    child<QPushButton>(dialog, "clearIdList")->click();
    QCOMPARE(child<QLabel>(dialog, "currentIds")->text(), QString());
    QCOMPARE(driverValue("bootBoostIds").toArray().size(), 0);
    QCOMPARE(answerer.seen.size(), 1);
}

void TestAdditionalFunctions::failedBootBoostChangeIsPutBack()
{
    load(R"({"bootBoost": false})");
    AdditionalFunctions dialog(nullptr);
    MessageBoxAnswerer answerer(QMessageBox::Ok);
    QCOMPARE(pvsim_FailOperation("pv_BootBoost", PV_ERR_BUSY, 1), PV_OK);
    child<QCheckBox>(dialog, "bootBoost")->click();
    QCOMPARE(answerer.seen, QStringList{"Error: Could not enable boot boost: 114"});
    QVERIFY(!child<QCheckBox>(dialog, "bootBoost")->isChecked());
    QVERIFY(!child<QLineEdit>(dialog, "ids")->isEnabled());
    QCOMPARE(driverValue("bootBoost").toBool(), false);
}

void TestAdditionalFunctions::switchesReachTheDriver_data()
{
    QTest::addColumn<QString>("box");
    QTest::addColumn<QString>("word");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("failure");
    QTest::newRow("battery idle") << "idleBattery" << "idleState" << 2 << ""
                                  << "Failed: Failed to set Idle state! Return code: 125";
    QTest::newRow("mains idle") << "idleMains" << "idleState" << 1 << ""
                                << "Failed: Failed to set Idle state! Return code: 125";
    QTest::newRow("IPO") << "ipo" << "ipo" << 1
                         << "Please restart: Please restart the system manually to apply this setting."
                         << "Failed: Failed to set IPO state! Return code: 125";
    QTest::newRow("trusted pairing") << "trustedPairing" << "trustedPairing" << 1 << ""
                                     << "Failed: Setting trusted pairing mode failed with code: 125";
}

void TestAdditionalFunctions::switchesReachTheDriver()
{
    QFETCH(QString, box);
    QFETCH(QString, word);
    QFETCH(int, value);
    QFETCH(QString, message);
    QFETCH(QString, failure);
    load("{}");
    AdditionalFunctions dialog(nullptr);
    auto* check = child<QCheckBox>(dialog, qPrintable(box));
    MessageBoxAnswerer answerer(QMessageBox::Ok);

    QCOMPARE(pvsim_FailOperation("pv_Configuration", PV_ERR_INVALID_PARAMETER, 1), PV_OK);
    check->click();
    QCOMPARE(answerer.seen, QStringList{failure});
    QVERIFY(!check->isChecked());
    QCOMPARE(driverValue(qPrintable(word)).toInt(), 0);

    answerer.seen.clear();
    check->click();
    QCOMPARE(answerer.seen, message.isEmpty() ? QStringList{} : QStringList{message});
    QVERIFY(check->isChecked());
    QCOMPARE(driverValue(qPrintable(word)).toInt(), value);
}

void TestAdditionalFunctions::memoryCompatibilityNeedsElevation()
{
    load(R"({"memoryCompat": 0})");
    AdditionalFunctions dialog(nullptr);
    auto* box = child<QCheckBox>(dialog, "memoryCompatibility");
    MessageBoxAnswerer answerer(QMessageBox::Ok);
    {
        WithoutWriteRights notRoot(m_root->path(), false);
        box->click();
    }
    QCOMPARE(answerer.seen.size(), 1);
    QVERIFY(answerer.seen.first().startsWith("privileged feature: To use this feature, \nstart the "));
    QVERIFY(!box->isChecked());
    QCOMPARE(driverValue("memoryCompat").toInt(), 0);

    if (::geteuid() != 0)
        return; // the rest needs the rights that CI has
    answerer.seen.clear();
    box->click();
    QCOMPARE(driverValue("memoryCompat").toInt(), 1);
    QCOMPARE(answerer.seen, QStringList{"Memory compatibility mode: To completely adopt the compatibility mode please "
                                        "reboot your system or reconnect all cameras!"});
}

void TestAdditionalFunctions::bulkTransferSizeIsWrittenToTheUsbFile()
{
    {
        QSettings usb(usbFile(), QSettings::IniFormat);
        usb.setValue("Parameters/BulkTransferSize", 262144);
    }
    AdditionalFunctions dialog(nullptr);
    auto* combo = child<QComboBox>(dialog, "bulkTransferSize");
    QCOMPARE(combo->currentIndex(), 1);
    QVERIFY(combo->isEnabled());
    combo->setCurrentIndex(0);
    QCOMPARE(QSettings(usbFile(), QSettings::IniFormat).value("Parameters/BulkTransferSize").toInt(), 0x20000);
    QVERIFY(child<QLabel>(dialog, "settingsFileNotice")->isHidden());
}

void TestAdditionalFunctions::withoutWriteRightsTheFilesAreShownOnly()
{
    {
        QSettings usb(usbFile(), QSettings::IniFormat);
        usb.setValue("Parameters/BulkTransferSize", 131072);
    }
    WithoutWriteRights readOnly(m_root->path(), true);
    AdditionalFunctions dialog(nullptr);
    auto* combo = child<QComboBox>(dialog, "bulkTransferSize");
    QCOMPARE(combo->currentIndex(), 0);
    QVERIFY(!combo->isEnabled());
    QCOMPARE(combo->toolTip(), QStringLiteral("Restart with elevated privileges!"));
    QVERIFY(!child<QLabel>(dialog, "settingsFileNotice")->isHidden());
}

void TestAdditionalFunctions::opensTheDebugMaskAndTheFlags()
{
    AdditionalFunctions dialog(nullptr);
    dialog.show();
    QStringList opened;
    QTimer closer;
    connect(&closer, &QTimer::timeout, [&] {
        for (QDialog* shown : dialog.findChildren<QDialog*>()) {
            if (shown->isVisible()) {
                opened << shown->objectName();
                shown->accept();
            }
        }
    });
    closer.start(10);
    child<QPushButton>(dialog, "debugOutput")->click();
    child<QPushButton>(dialog, "driverFlags")->click();
    QCOMPARE(opened, (QStringList{"debugOutCtrl", "flagsCtrl"}));
}

QTEST_MAIN(TestAdditionalFunctions)
#include "tst_additionalfunctions.moc"
