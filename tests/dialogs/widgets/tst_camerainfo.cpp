#include "dialogs/widgets/camerainfo.h"
#include "dialogs/widgets/camerainfoparameterpage.h"

#include "fleetcamera.h"
#include "messageboxanswerer.h"
#include "namedchild.h"
#include "simdriverfixture.h"

#include <QComboBox>
#include <QLabel>
#include <QTableWidget>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSettings>
#include <QSlider>
#include <QSpinBox>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QtTest>

using namespace SimDriverFixture;

class TestCameraInfo : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void pagesFollowTheCapabilities_data();
    void pagesFollowTheCapabilities();
    void failedPreparationReportsTheCode();
    void driverWithoutTheFunctionsDisablesThePages();
    void cameraIdWarnsAboutAnIdInUse();
    void eepromTooLongIsRefusedWithAMessage();
    void parameterSetExportAndImport();
    void fpnCalibrationShowsItsProgressAndResult();
    void lensSliderSetsTheFocalPower();
    void lastPageIsRemembered();

private:
    std::unique_ptr<CameraInfo> prepared(quint32 deviceId);

    QTemporaryDir m_dir;
};

void TestCameraInfo::initTestCase()
{
    QVERIFY(m_dir.isValid());
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_dir.path());
}

void TestCameraInfo::init()
{
    QVERIFY(reset());
    QSettings("Parvel", "CameraManager").clear();
}

std::unique_ptr<CameraInfo> TestCameraInfo::prepared(quint32 deviceId)
{
    auto dialog = std::make_unique<CameraInfo>(fleetCamera(deviceId), QList<std::shared_ptr<Camera>>());
    if (dialog->prepare() != 0)
        return nullptr;
    return dialog;
}

void TestCameraInfo::pagesFollowTheCapabilities_data()
{
    QTest::addColumn<quint32>("deviceId");
    QTest::addColumn<QStringList>("pages");
    QTest::newRow("everything") << 0u
                                << QStringList{"cameraIdPage", "userEepromPage", "parameterSetsPage", "fpnPage",
                                               "liquidLensPage"};
    QTest::newRow("ID and EEPROM") << 2u << QStringList{"cameraIdPage", "userEepromPage"};
    QTest::newRow("GigE with lens") << 1000u
                                    << QStringList{"cameraIdPage", "userEepromPage", "parameterSetsPage",
                                                   "liquidLensPage"};
}

void TestCameraInfo::pagesFollowTheCapabilities()
{
    QFETCH(quint32, deviceId);
    QFETCH(QStringList, pages);
    auto dialog = prepared(deviceId);
    QVERIFY(dialog);
    QStringList shown;
    for (int i = 0; i < dialog->pages()->count(); ++i)
        shown << dialog->pages()->widget(i)->objectName();
    QCOMPARE(shown, pages);
    QVERIFY(cameraState(deviceId).value("open").toBool());
    dialog.reset();
    QVERIFY(!cameraState(deviceId).value("open").toBool());
}

void TestCameraInfo::failedPreparationReportsTheCode()
{
    MessageBoxAnswerer answerer(QMessageBox::Ok);
    pvsim_FailOperation("pv_OpenCamera", PV_ERR_DEVICE_IN_USE, 1);
    CameraInfo dialog(fleetCamera(0), {});
    QCOMPARE(dialog.prepare(), int(PV_ERR_DEVICE_IN_USE));
    QTRY_COMPARE(answerer.seen.size(), 1);
    QVERIFY2(answerer.seen.first().contains("107"), qPrintable(answerer.seen.first()));

    pvsim_FailOperation("pv_DeviceFeature", PV_ERR_DEVICE_UNREACHABLE, 2);
    CameraInfo second(fleetCamera(0), {});
    QCOMPARE(second.prepare(), int(PV_ERR_DEVICE_UNREACHABLE));
    QTRY_COMPARE(answerer.seen.size(), 2);
    QVERIFY(!cameraState(0).value("open").toBool()); // closed again at once
}

void TestCameraInfo::driverWithoutTheFunctionsDisablesThePages()
{
    // A library that knows none of the maintenance features.
    pvsim_FailOperation("pv_DeviceFeature", PV_ERR_UNKNOWN_COMMAND, 100);
    const auto dialog = prepared(2);
    QVERIFY(dialog);
    QCOMPARE(dialog->pages()->count(), 5);
    for (int i = 0; i < dialog->pages()->count(); ++i) {
        QWidget* page = dialog->pages()->widget(i);
        auto* note = page->findChild<QLabel*>("unsupportedNote");
        QVERIFY2(!note->isHidden() && note->text().contains("not supported by the installed driver"),
                 qPrintable(page->objectName()));
        QVERIFY(!page->findChild<QPushButton*>()->isEnabled());
    }
    pvsim_ClearFailures();
}

void TestCameraInfo::cameraIdWarnsAboutAnIdInUse()
{
    QList<std::shared_ptr<Camera>> listed;
    for (quint32 id : {0u, 1u, 1000u})
        listed << std::make_shared<Camera>(fleetCamera(id));
    CameraInfo dialog(fleetCamera(0), listed);
    QCOMPARE(dialog.prepare(), 0);
    auto* newId = child<QSpinBox>(dialog, "newId");
    auto* warning = child<QLabel>(dialog, "idWarning");
    QCOMPARE(newId->value(), 1);
    QVERIFY(warning->text().isEmpty()); // its own ID
    newId->setValue(10);
    QVERIFY(warning->text().contains("1000"));
    newId->setValue(42);
    QVERIFY(warning->text().isEmpty());
    child<QPushButton>(dialog, "writeId")->click();
    QCOMPARE(child<QLabel>(dialog, "currentId")->text(), QString("42"));
    QCOMPARE(cameraState(0).value("cameraId").toInt(), 42);
}

void TestCameraInfo::eepromTooLongIsRefusedWithAMessage()
{
    const auto dialog = prepared(1000);
    QVERIFY(dialog);
    auto* hex = child<QPlainTextEdit>(*dialog, "eepromHex");
    auto* text = child<QLineEdit>(*dialog, "eepromText");
    QCOMPARE(text->text(), QString("Line 4 left"));
    QVERIFY(hex->toPlainText().startsWith("4C 69 6E 65"));
    MessageBoxAnswerer answerer(QMessageBox::Ok);
    hex->setPlainText(QString("41 ").repeated(65));
    QCOMPARE(text->text(), QString(65, 'A'));
    child<QPushButton>(*dialog, "writeEeprom")->click();
    QTRY_COMPARE(answerer.seen.size(), 1);
    QVERIFY2(answerer.seen.first().contains("holds 64 bytes"), qPrintable(answerer.seen.first()));
    child<QPushButton>(*dialog, "readEeprom")->click();
    QCOMPARE(text->text(), QString("Line 4 left"));

    text->setText(QString());
    QTest::keyClicks(text, "OK");
    QCOMPARE(hex->toPlainText(), QString("4F 4B"));
    child<QPushButton>(*dialog, "writeEeprom")->click();
    QCOMPARE(QByteArray(deviceInfo(1000).u.eth.userSpace, 3), QByteArray("OK\0", 3));
    child<QPushButton>(*dialog, "clearEeprom")->click();
    QCOMPARE(text->text(), QString());
    QCOMPARE(answerer.seen.size(), 1);
}

void TestCameraInfo::parameterSetExportAndImport()
{
    const auto dialog = prepared(0);
    QVERIFY(dialog);
    auto* page = child<CameraInfoParameterPage>(*dialog, "parameterSetsPage");
    const QString exported = m_dir.filePath("factory.ini");
    QString chosen = exported;
    page->setFileChooser([&](bool) { return chosen; });
    child<QPushButton>(*dialog, "exportSet")->click();
    QVERIFY(QFile::exists(exported));

    auto* sets = child<QComboBox>(*dialog, "parameterSet");
    sets->setCurrentIndex(1);
    child<QPushButton>(*dialog, "saveCurrentSettings")->click();
    auto* values = child<QTableWidget>(*dialog, "parameterValues");
    QCOMPARE(values->item(0, 1)->text(), QString("8000"));

    // A truncated copy is refused and the set stays.
    QFile source(exported);
    QVERIFY(source.open(QIODevice::ReadOnly));
    const QByteArray text = source.readAll();
    chosen = m_dir.filePath("truncated.ini");
    QFile truncated(chosen);
    QVERIFY(truncated.open(QIODevice::WriteOnly));
    truncated.write(text.left(text.size() / 2));
    truncated.close();
    MessageBoxAnswerer answerer(QMessageBox::Ok);
    child<QPushButton>(*dialog, "importSet")->click();
    QTRY_COMPARE(answerer.seen.size(), 1);
    QVERIFY2(answerer.seen.first().contains("incomplete"), qPrintable(answerer.seen.first()));
    QCOMPARE(values->item(0, 1)->text(), QString("8000"));

    chosen = exported;
    child<QPushButton>(*dialog, "importSet")->click();
    QCOMPARE(values->item(0, 1)->text(), QString("10000"));
    QCOMPARE(answerer.seen.size(), 1);

    child<QPushButton>(*dialog, "makeStartupSet")->click();
    QVERIFY(child<QLabel>(*dialog, "startupSet")->text().contains("User set 1"));
}

void TestCameraInfo::fpnCalibrationShowsItsProgressAndResult()
{
    QCOMPARE(pvsim_SetTimeScale(0.05), std::int32_t(PV_OK));
    const auto dialog = prepared(0);
    QVERIFY(dialog);
    auto* state = child<QLabel>(*dialog, "fpnState");
    QVERIFY(state->text().startsWith("Factory calibration of 2025-06-12 08:00"));
    auto* start = child<QPushButton>(*dialog, "startFpn");
    auto* cancel = child<QPushButton>(*dialog, "cancelFpn");
    start->click();
    QVERIFY(!start->isEnabled());
    QVERIFY(cancel->isEnabled());
    QTRY_VERIFY_WITH_TIMEOUT(state->text().startsWith("Calibrated on the camera"), 5000);
    QVERIFY(start->isEnabled());
    QVERIFY(child<QPushButton>(*dialog, "resetFpn")->isEnabled());

    QCOMPARE(pvsim_SetTimeScale(1.0), std::int32_t(PV_OK));
    start->click();
    QTRY_VERIFY(child<QProgressBar>(*dialog, "fpnProgress")->value() > 0);
    cancel->click();
    QVERIFY(state->text().contains("cancelled"));
    QVERIFY(state->text().startsWith("Calibrated on the camera"));
}

void TestCameraInfo::lensSliderSetsTheFocalPower()
{
    const auto dialog = prepared(0);
    QVERIFY(dialog);
    auto* slider = child<QSlider>(*dialog, "lensSlider");
    QCOMPARE(slider->minimum(), -200);
    QCOMPARE(slider->maximum(), 1200);
    QCOMPARE(slider->value(), 350);
    slider->setValue(600);
    child<QPushButton>(*dialog, "storeLensStartup")->click();
    QVERIFY(child<QLabel>(*dialog, "lensStartup")->text().contains("6.00 dpt"));
    pvsim_FailOperation("pv_DeviceFeature", PV_ERR_DEVICE_UNREACHABLE, 1);
    MessageBoxAnswerer answerer(QMessageBox::Ok);
    slider->setValue(700);
    QTRY_COMPARE(answerer.seen.size(), 1);
    QVERIFY(answerer.seen.first().contains("110"));
    QCOMPARE(slider->value(), 600); // what the lens has
}

void TestCameraInfo::lastPageIsRemembered()
{
    {
        const auto dialog = prepared(0);
        QVERIFY(dialog);
        dialog->pages()->setCurrentIndex(3);
    }
    const auto dialog = prepared(0);
    QCOMPARE(dialog->pages()->currentWidget()->objectName(), QString("fpnPage"));
    // A camera without that page opens on its first.
    const auto other = prepared(2);
    QCOMPARE(other->pages()->currentIndex(), 0);
}

QTEST_MAIN(TestCameraInfo)
#include "tst_camerainfo.moc"
