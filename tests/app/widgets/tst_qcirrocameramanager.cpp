#include "app/widgets/qcirrocameramanager.h"
#include "camera/cameralistmodel.h"
#include "camera/widgets/cameralist.h"
#include "camera/widgets/cameratableview.h"
#include "network/widgets/ethconfig.h"
#include "network/widgets/qipedit.h"
#include "supportfile/supportfilereader.h"
#include "supportfile/widgets/supportfilesavedialog.h"

#include "messageboxanswerer.h"
#include "simdriverfixture.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

using namespace SimDriverFixture;

namespace {

// Driver services whose states a test sets.
class FakeServices : public ServiceManager
{
public:
    explicit FakeServices(CoreStates* states)
        : m_states(states)
    {
    }

    CoreStates::State state(const QString& service) const override
    {
        return service == QLatin1String("cirro_usb") ? m_states->usb : m_states->eth;
    }

protected:
    Result change(const QString&, Change) override { return {}; }

private:
    CoreStates* m_states;
};

const QString shippedTranslations = QStringLiteral(CIRRO_TRANSLATION_DIR);

} // namespace

class TestMainWindow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void oneStatusSignalPerServiceChange();
    void settingsRoundTrip();
    void withoutTranslationFilesNothingIsLoaded();
    void storedLanguageWithoutFileStaysUnloaded();
    void languageSwitchRetranslatesTheWindow_data();
    void languageSwitchRetranslatesTheWindow();
    void expertModeWithoutCamera();
    void printerHonoursTheMessagesFlag();
    void selectionFillsTheStatusLines_data();
    void selectionFillsTheStatusLines();
    void commandsWithoutTheirFeatureStayDisabled();
    void deletingAReadOnlyDeviceRemovesIt();
    void automaticConfigurationRepairsACamera();
    void manualConfigurationWithASuggestedAddress();
    void adapterAdviceFollowsTheSelection();
    void automaticConfigurationFailureIsReported();
    void writingASupportFileRestoresTheRefresh_data();
    void writingASupportFileRestoresTheRefresh();

private:
    std::unique_ptr<QCirroCameramanager> makeWindow(const QString& translations = shippedTranslations);
    void select(QCirroCameramanager& window, quint32 deviceId);
    template <typename T>
    static T* child(QCirroCameramanager& window, const char* name)
    {
        return window.findChild<T*>(QLatin1String(name));
    }

    QTemporaryDir settingsDir;
    CoreStates services{CoreStates::Running, CoreStates::Running};
};

void TestMainWindow::initTestCase()
{
    Camera::registerMetaTypes();
    CoreStates::registerMetaType();
    QVERIFY(settingsDir.isValid());
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settingsDir.path());
    QVERIFY2(QFile::exists(shippedTranslations + "/cameramanager_de.qm"), "translations are not built");
}

void TestMainWindow::init()
{
    QVERIFY(reset());
    QSettings("Parvel", "CameraManager").clear();
    services = {CoreStates::Running, CoreStates::Running};
}

void TestMainWindow::cleanup()
{
    QSettings("Parvel", "CameraManager").clear();
}

std::unique_ptr<QCirroCameramanager> TestMainWindow::makeWindow(const QString& translations)
{
    QCirroCameramanager::Environment environment;
    environment.services = std::make_unique<FakeServices>(&services);
    environment.translationDirectory = translations;
    return std::make_unique<QCirroCameramanager>(std::move(environment));
}

void TestMainWindow::select(QCirroCameramanager& window, quint32 deviceId)
{
    QVERIFY2(window.cameraList()->selectDevice(deviceId), "camera not in the list");
}

void TestMainWindow::oneStatusSignalPerServiceChange()
{
    const auto window = makeWindow();
    QCOMPARE(window->serviceStates(), services);
    QSignalSpy changed(window.get(), &QCirroCameramanager::CirrodStatusChanged);
    QVERIFY(changed.isValid());

    window->onServiceTimer();
    QCOMPARE(changed.count(), 0);

    services.eth = CoreStates::NotInstalled;
    window->onServiceTimer();
    window->onServiceTimer();
    QCOMPARE(changed.count(), 1);
    const CoreStates reported = changed.at(0).at(0).value<CoreStates>();
    QCOMPARE(reported.usb, CoreStates::Running);
    QCOMPARE(reported.eth, CoreStates::NotInstalled);
}

void TestMainWindow::settingsRoundTrip()
{
    {
        const auto window = makeWindow();
        child<QCheckBox>(*window, "expertMode")->setChecked(true);
        child<QCheckBox>(*window, "autoRefresh")->setChecked(true);
        auto* languages = child<QComboBox>(*window, "languageSelector");
        languages->setCurrentIndex(languages->findData("zh_CN"));
        window->resize(1000, 820);
    }
    QSettings settings("Parvel", "CameraManager");
    QCOMPARE(settings.value("mainWindow/checkExpert").toBool(), true);
    QCOMPARE(settings.value("mainWindow/selectedLanguage").toString(), QStringLiteral("zh_CN"));

    const auto window = makeWindow();
    QVERIFY(child<QCheckBox>(*window, "expertMode")->isChecked());
    QVERIFY(child<QCheckBox>(*window, "autoRefresh")->isChecked());
    QVERIFY(child<QCheckBox>(*window, "autoRefresh")->isEnabled());
    QVERIFY(window->cameraList()->isAutoRefreshOn());
    QCOMPARE(window->currentLanguage(), QStringLiteral("zh_CN"));
    QCOMPARE(window->size(), QSize(1000, 820));
}

void TestMainWindow::withoutTranslationFilesNothingIsLoaded()
{
    QTemporaryDir empty;
    {
        const auto window = makeWindow(empty.path());
        QCOMPARE(child<QComboBox>(*window, "languageSelector")->count(), 0);
        QVERIFY(window->currentLanguage().isEmpty());
        QCOMPARE(child<QPushButton>(*window, "close")->text(), QStringLiteral("Close"));
    }
    QSettings settings("Parvel", "CameraManager");
    QVERIFY(settings.contains("mainWindow/selectedLanguage"));
    QVERIFY(!settings.value("mainWindow/selectedLanguage").isValid());
}

void TestMainWindow::storedLanguageWithoutFileStaysUnloaded()
{
    QSettings("Parvel", "CameraManager").setValue("mainWindow/selectedLanguage", "fr");
    const auto window = makeWindow();
    auto* languages = child<QComboBox>(*window, "languageSelector");
    QCOMPARE(languages->count(), 3);
    QCOMPARE(languages->currentIndex(), 0);
    // Sorted by label: "American English", "Deutsch", Chinese.
    QCOMPARE(languages->itemData(0).toString(), QStringLiteral("en"));
    QVERIFY(window->currentLanguage().isEmpty());
    QCOMPARE(child<QPushButton>(*window, "close")->text(), QStringLiteral("Close"));
}

void TestMainWindow::languageSwitchRetranslatesTheWindow_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("close");
    QTest::addColumn<QString>("expert");
    QTest::newRow("German") << "de" << QStringLiteral("Schließen") << QStringLiteral("Expertenmodus");
    QTest::newRow("Chinese") << "zh_CN" << QStringLiteral("关闭") << QStringLiteral("专家模式");
}

void TestMainWindow::languageSwitchRetranslatesTheWindow()
{
    QFETCH(QString, locale);
    const auto window = makeWindow();
    auto* languages = child<QComboBox>(*window, "languageSelector");
    const int index = languages->findData(locale);
    languages->setCurrentIndex(index);
    emit languages->activated(index);
    QCOMPARE(window->currentLanguage(), locale);
    // Installing a translator posts the language change to every window.
    QFETCH(QString, close);
    QTRY_COMPARE(child<QPushButton>(*window, "close")->text(), close);
    QTEST(child<QCheckBox>(*window, "expertMode")->text(), "expert");
    // The camera list's headers follow as well.
    QVERIFY(window->cameraList()->view()->model()->headerData(0, Qt::Horizontal).toString() != "Free");

    // English, whose texts are the sources, brings them back.
    const int english = languages->findData("en");
    languages->setCurrentIndex(english);
    QTRY_COMPARE(child<QPushButton>(*window, "close")->text(), QStringLiteral("Close"));
    QCOMPARE(window->cameraList()->view()->model()->headerData(0, Qt::Horizontal).toString(), QStringLiteral("Free"));
}

void TestMainWindow::expertModeWithoutCamera()
{
    const auto window = makeWindow();
    window->show();
    QVERIFY(!window->cameraList()->selectedCamera());
    auto* expert = child<QCheckBox>(*window, "expertMode");
    auto* refresh = child<QCheckBox>(*window, "autoRefresh");
    auto* details = child<QGroupBox>(*window, "deviceDetails");
    QVERIFY(!refresh->isEnabled());
    QVERIFY(!details->isVisible());

    refresh->setChecked(true);
    expert->setChecked(true);
    QVERIFY(details->isVisible());
    QVERIFY(refresh->isEnabled());
    QVERIFY(window->cameraList()->isAutoRefreshOn());

    expert->setChecked(false);
    QVERIFY(!details->isVisible());
    QVERIFY(!refresh->isEnabled());
    QVERIFY(!window->cameraList()->isAutoRefreshOn());
}

void TestMainWindow::printerHonoursTheMessagesFlag()
{
    const auto window = makeWindow();
    window->show();
    auto* status = child<QLabel>(*window, "statusText");
    auto* busy = child<QLabel>(*window, "busyIndicator");

    window->Printer("Working", Qt::black, true);
    QCOMPARE(status->text(), QStringLiteral("<font color='#000000'>Working</font>"));
    QVERIFY(busy->isVisible());

    window->setMessagesEnabled(false);
    window->Printer("Failed", Qt::red, false);
    QCOMPARE(status->text(), QStringLiteral("<font color='#000000'>Working</font>"));
    QVERIFY(busy->isVisible());

    window->setMessagesEnabled(true);
    window->Printer("Failed", Qt::red, false);
    QCOMPARE(status->text(), QStringLiteral("<font color='#ff0000'>Failed</font>"));
    QVERIFY(!busy->isVisible());
}

void TestMainWindow::selectionFillsTheStatusLines_data()
{
    QTest::addColumn<quint32>("deviceId");
    QTest::addColumn<QString>("status");
    QTest::addColumn<bool>("unsupported");
    QTest::newRow("GigE ready") << 1000u
                                << "<font color='#000000'>Status of device 1000: The camera is configured "
                                   "correctly and can be opened.</font>"
                                << false;
    QTest::newRow("USB in use") << 3u << "<font color='#008000'>Status of device 3: You have opened the camera</font>"
                                << false;
    QTest::newRow("model no longer supported") << 4u << QString() << true;
}

void TestMainWindow::selectionFillsTheStatusLines()
{
    QFETCH(quint32, deviceId);
    QFETCH(QString, status);
    QFETCH(bool, unsupported);
    const auto window = makeWindow();
    window->show();
    select(*window, deviceId);
    if (!status.isEmpty())
        QCOMPARE(child<QLabel>(*window, "statusText")->text(), status);
    QVERIFY(!child<QLabel>(*window, "cameraPicture")->pixmap(Qt::ReturnByValue).isNull());
    auto* second = child<QLabel>(*window, "secondStatusLine");
    QCOMPARE(second->isVisible(), unsupported);
    if (unsupported)
        QVERIFY(second->text().contains("no longer supported"));
}

void TestMainWindow::commandsWithoutTheirFeatureStayDisabled()
{
    const auto window = makeWindow();
    select(*window, 1000);
    for (const char* name : {"generalInformation", "cameraInformation", "uploadStarterFirmware"})
        QVERIFY2(!child<QPushButton>(*window, name)->isEnabled(), name);
    QVERIFY(child<QPushButton>(*window, "close")->isEnabled());
    QVERIFY(child<QPushButton>(*window, "ethNetworkService")->isEnabled());
    QVERIFY(child<QPushButton>(*window, "additionalFunctions")->isEnabled());
    QVERIFY(child<QPushButton>(*window, "createSupportFile")->isEnabled());
    QVERIFY(child<QPushButton>(*window, "readSupportFile")->isEnabled());
    // Built, and allowed for a free GigE camera but not for a USB camera.
    QVERIFY(child<QPushButton>(*window, "manualEthConfiguration")->isEnabled());
    QVERIFY(child<QPushButton>(*window, "automaticEthConfiguration")->isEnabled());
    select(*window, 0);
    QVERIFY(!child<QPushButton>(*window, "manualEthConfiguration")->isEnabled());
    QVERIFY(!child<QPushButton>(*window, "automaticEthConfiguration")->isEnabled());
}

void TestMainWindow::deletingAReadOnlyDeviceRemovesIt()
{
    const auto window = makeWindow();
    select(*window, 1500);
    const std::unique_ptr<QMenu> menu = window->cameraList()->createContextMenu();
    QAction* remove = nullptr;
    for (QAction* action : menu->actions())
        remove = action->text() == "&Delete" ? action : remove;
    QVERIFY(remove);
    remove->trigger();
    QVERIFY(cameraState(1500).isEmpty());
    QTRY_VERIFY(!window->cameraList()->selectedCamera());
}

void TestMainWindow::automaticConfigurationRepairsACamera()
{
    const auto window = makeWindow();
    select(*window, 1001);
    auto* status = child<QLabel>(*window, "statusText");
    QVERIFY2(status->text().startsWith("<font color='#ff0000'>"), qPrintable(status->text()));
    child<QPushButton>(*window, "automaticEthConfiguration")->click();
    auto* note = child<QLabel>(*window, "networkNote");
    QTRY_VERIFY_WITH_TIMEOUT(note->text().contains("Device 1001 is reachable at 192.168.50."), 5000);
    QVERIFY(!note->isHidden());
    // Red turned black: the camera is configured correctly now.
    window->UpdateControls();
    QCOMPARE(status->text(), QStringLiteral("<font color='#000000'>Status of device 1001: The camera is configured "
                                            "correctly and can be opened.</font>"));
}

void TestMainWindow::manualConfigurationWithASuggestedAddress()
{
    const auto window = makeWindow();
    select(*window, 1001);
    // The dialog runs modally; the user's part is played once it is shown.
    bool played = false;
    QTimer::singleShot(0, window.get(), [&] {
        auto* dialog = window->findChild<EthConfig*>();
        QVERIFY(dialog);
        dialog->findChild<QPushButton*>("suggestIp")->click();
        QTRY_COMPARE(dialog->findChild<QIpEdit*>("persistentIp")->text(), QStringLiteral("192.168.50.11"));
        dialog->findChild<QCheckBox*>("enableDhcp")->setChecked(false);
        dialog->findChild<QDialogButtonBox*>("buttons")->button(QDialogButtonBox::Ok)->click();
        played = true;
    });
    // Answers the offer to restore, should the camera not come back.
    MessageBoxAnswerer answerer(QMessageBox::No);
    child<QPushButton>(*window, "manualEthConfiguration")->click();
    QVERIFY(played);
    auto* note = child<QLabel>(*window, "networkNote");
    QTRY_VERIFY2_WITH_TIMEOUT(note->text().contains("Device 1001 is reachable at 192.168.50.11 after"),
                              qPrintable(note->text()), 5000);
    auto* status = child<QLabel>(*window, "statusText");
    window->UpdateControls();
    QVERIFY2(status->text().contains("The camera is configured correctly"), qPrintable(status->text()));
}

void TestMainWindow::adapterAdviceFollowsTheSelection()
{
    const auto window = makeWindow();
    auto* advice = child<QLabel>(*window, "adapterAdvice");
    // Camera 1006 sits on an adapter that carries no 2 KB packets.
    select(*window, 1006);
    QVERIFY(!advice->isHidden());
    QVERIFY2(advice->text().contains("simnet2"), qPrintable(advice->text()));
    select(*window, 1000);
    QVERIFY(advice->isHidden());
    select(*window, 0);
    QVERIFY(advice->isHidden());
}

void TestMainWindow::automaticConfigurationFailureIsReported()
{
    const auto window = makeWindow();
    select(*window, 1001);
    MessageBoxAnswerer answerer(QMessageBox::Ok);
    // The settings are read first (four calls, read as unknown), then the range write fails.
    QCOMPARE(pvsim_FailOperation("pv_IpConfig", PV_ERR_DEVICE_UNREACHABLE, 5), PV_OK);
    child<QPushButton>(*window, "automaticEthConfiguration")->click();
    QTRY_COMPARE(answerer.seen, QStringList{"Automatic configuration: Automatic configuration can't be applied!"});
    QCOMPARE(cameraState(1001).value("persistentIp").toString(), QStringLiteral("10.0.0.11"));

    // Without an adapter address there is no subnet to take the range from.
    QCOMPARE(pvsim_LoadScenarioText(R"({"adapters": [{"name": "simnet9", "mac": "02:c1:5e:00:00:09"}],
        "cameras": [{"kind": "eth", "adapter": "simnet9", "mac": "00:1c:c1:00:00:90"}]})"),
             PV_OK);
    QTRY_COMPARE(window->cameraList()->model()->rowCount(), 1);
    QVERIFY(window->cameraList()->selectDevice(1000));
    QVERIFY(child<QPushButton>(*window, "automaticEthConfiguration")->isEnabled());
    answerer.seen.clear();
    child<QPushButton>(*window, "automaticEthConfiguration")->click();
    QTRY_COMPARE(answerer.seen.size(), 1);
    QCOMPARE(answerer.seen.last(), QStringLiteral("Automatic configuration: The network adapter of device 1000 has no "
                                                  "IPv4 address, so there is no subnet to take a range from."));
}


void TestMainWindow::writingASupportFileRestoresTheRefresh_data()
{
    QTest::addColumn<bool>("refreshChecked");
    QTest::addColumn<bool>("answer");
    QTest::newRow("refresh on") << true << true;
    QTest::newRow("refresh off") << false << true;
    QTest::newRow("cancelled") << true << false;
}

void TestMainWindow::writingASupportFileRestoresTheRefresh()
{
    QFETCH(bool, refreshChecked);
    QFETCH(bool, answer);
    QSettings("Parvel", "CameraManager").setValue("mainWindow/checkExpert", true);
    QSettings("Parvel", "CameraManager").setValue("mainWindow/checkRefresh", refreshChecked);
    const auto window = makeWindow();
    QCOMPARE(window->cameraList()->isAutoRefreshOn(), refreshChecked);
    QTemporaryDir dir;
    const QString path = dir.filePath("site.bin");
    bool refreshWhileAsked = true;
    QTimer::singleShot(0, window.get(), [&] {
        auto* dialog = qobject_cast<SupportFileSaveDialog*>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        QCOMPARE(dialog->windowTitle(), QString("Save support file"));
        QCOMPARE(dialog->nameFilters(), QStringList{"Support file (*.bin)"});
        QVERIFY(dialog->findChild<QCheckBox*>("redact"));
        refreshWhileAsked = window->cameraList()->isAutoRefreshOn();
        if (!answer) {
            dialog->reject();
            return;
        }
        dialog->selectFile(path);
        static_cast<QDialog*>(dialog)->accept();
    });
    child<QPushButton>(*window, "createSupportFile")->click();
    QCOMPARE(refreshWhileAsked, refreshChecked); // the list is frozen only after the file is chosen
    QCOMPARE(window->cameraList()->isAutoRefreshOn(), refreshChecked);
    QCOMPARE(QFile::exists(path), answer);
    if (!answer)
        return;
    const SupportFileReader::Result read = SupportFileReader::read(path);
    QCOMPARE(read.error, QString());
    QCOMPARE(read.tree.number(L"USB", L"Number of cameras", -1), 5LL);
    QVERIFY(read.tree.number(L"ETH", L"Number of cameras", -1) > 0);
    QVERIFY(read.tree.hasSection(L"Installed drivers"));
}

QTEST_MAIN(TestMainWindow)
#include "tst_qcirrocameramanager.moc"
