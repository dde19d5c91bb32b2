#include "app/widgets/qcirrocameramanager.h"
#include "camera/cameralistmodel.h"
#include "camera/widgets/cameralist.h"
#include "camera/widgets/cameratableview.h"
#include "common/elevation.h"
#include "dialogs/widgets/multicastdialog.h"
#include "network/widgets/ethconfig.h"
#include "network/widgets/qipedit.h"
#include "supportfile/supportfilereader.h"
#include "supportfile/widgets/supportfilesavedialog.h"

#include "fleetcamera.h"
#include "messageboxanswerer.h"
#include "simdriverfixture.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFile>
#include <QElapsedTimer>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QPointer>
#include <QProgressDialog>
#include <QPushButton>
#include <QSettings>
#include <QSpinBox>
#include <QTimer>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTreeView>
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
constexpr quint32 pendingUpload = 1002; // GigE, starter 3.1.4 where the driver carries 3.2.1

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
    void buttonsFollowTheSelectedCamera();
    void generalInformationOpensModally();
    void firmwareUploadGivesTheCameraTheDriversStarter();
    void failingUploadIsReportedTwice();
    void closingTheWindowWaitsForTheUpload();
    void cameraIdWrittenInTheDialogReachesTheList();
    void failedCameraInformationShowsNothingMore();
    void deletingAReadOnlyDeviceAsksFirst_data();
    void deletingAReadOnlyDeviceAsksFirst();
    void expertModeGivesListAndDetailsRoom_data();
    void expertModeGivesListAndDetailsRoom();
    void emptyListSaysWhy_data();
    void emptyListSaysWhy();
    void unknownDeviceClearsThePicture();
    void openingWithoutViewerSaysHowToSetIt();
    void identifyingShowsItsWaitOnceTheMenuIsGone();
    void readOnlyDeviceAddedFromTheListCanBeDeletedAgain();
    void automaticConfigurationRepairsACamera();
    void manualConfigurationWithASuggestedAddress();
    void adapterAdviceFollowsTheSelection();
    void automaticConfigurationFailureIsReported();
    void writingASupportFileRestoresTheRefresh_data();
    void writingASupportFileRestoresTheRefresh();
    void comPortEntryFollowsTheDriversAnswer_data();
    void comPortEntryFollowsTheDriversAnswer();
    void comPortDialogIsFollowedByTheDetails();

private:
    std::unique_ptr<QCirroCameramanager> makeWindow(const QString& translations = shippedTranslations,
                                                    const QRect& available = QRect());
    void select(QCirroCameramanager& window, quint32 deviceId);
    // The enabled entry of that text in the selected camera's context menu.
    static QAction* menuEntry(QCirroCameramanager& window, const QString& text);
    static const Camera* listedReadOnlyDevice(QCirroCameramanager& window, quint32 cameraId);
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

std::unique_ptr<QCirroCameramanager> TestMainWindow::makeWindow(const QString& translations, const QRect& available)
{
    QCirroCameramanager::Environment environment;
    environment.services = std::make_unique<FakeServices>(&services);
    environment.translationDirectory = translations;
    environment.availableGeometry = available;
    return std::make_unique<QCirroCameramanager>(std::move(environment));
}

void TestMainWindow::select(QCirroCameramanager& window, quint32 deviceId)
{
    QVERIFY2(window.cameraList()->selectDevice(deviceId), "camera not in the list");
}

QAction* TestMainWindow::menuEntry(QCirroCameramanager& window, const QString& text)
{
    // The camera list's view owns the menu.
    const QMenu* menu = window.cameraList()->createContextMenu().release();
    for (QAction* action : menu->actions()) {
        if (action->text() == text && action->isEnabled())
            return action;
    }
    qWarning() << "no enabled menu entry" << text;
    return nullptr;
}

const Camera* TestMainWindow::listedReadOnlyDevice(QCirroCameramanager& window, quint32 cameraId)
{
    for (const auto& camera : window.cameraList()->model()->cameraList()) {
        if (camera->kind() == Camera::Kind::ReadOnly && camera->cameraId() == cameraId)
            return &*camera;
    }
    return nullptr;
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

void TestMainWindow::buttonsFollowTheSelectedCamera()
{
    const auto window = makeWindow();
    select(*window, 1000);
    QVERIFY(child<QPushButton>(*window, "generalInformation")->isEnabled());
    QVERIFY(child<QPushButton>(*window, "close")->isEnabled());
    QVERIFY(child<QPushButton>(*window, "ethNetworkService")->isEnabled());
    QVERIFY(child<QPushButton>(*window, "additionalFunctions")->isEnabled());
    QVERIFY(child<QPushButton>(*window, "createSupportFile")->isEnabled());
    QVERIFY(child<QPushButton>(*window, "readSupportFile")->isEnabled());
    // Built, and allowed for a free GigE camera but not for a USB camera.
    const char* const gigeOnly[] = {"manualEthConfiguration", "automaticEthConfiguration", "uploadStarterFirmware"};
    for (const char* name : gigeOnly)
        QVERIFY2(child<QPushButton>(*window, name)->isEnabled(), name);
    QVERIFY(child<QPushButton>(*window, "cameraInformation")->isEnabled());
    QVERIFY(child<QPushButton>(*window, "additionalCameraInfo")->isEnabled());
    select(*window, 0);
    for (const char* name : gigeOnly)
        QVERIFY2(!child<QPushButton>(*window, name)->isEnabled(), name);
    QVERIFY(child<QPushButton>(*window, "cameraInformation")->isEnabled());
    // In use elsewhere: no information dialogs.
    select(*window, 3);
    QVERIFY(!child<QPushButton>(*window, "cameraInformation")->isEnabled());
    QVERIFY(!child<QPushButton>(*window, "additionalCameraInfo")->isEnabled());
}

void TestMainWindow::generalInformationOpensModally()
{
    const auto window = makeWindow();
    window->show();
    QString opened;
    QTimer::singleShot(0, window.get(), [&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        opened = dialog->objectName();
        dialog->reject();
    });
    child<QPushButton>(*window, "generalInformation")->click();
    QCOMPARE(opened, QStringLiteral("generalInfo"));
    QVERIFY(!QApplication::activeModalWidget());
}

void TestMainWindow::firmwareUploadGivesTheCameraTheDriversStarter()
{
    const auto window = makeWindow();
    window->show();
    select(*window, pendingUpload);
    auto* status = child<QLabel>(*window, "statusText");
    QVERIFY2(status->text().startsWith("<font color='#ff0000'>Status of device 1002: The starter firmware of the "
                                       "camera is incompatible"),
             qPrintable(status->text()));

    child<QPushButton>(*window, "uploadStarterFirmware")->click();
    QCOMPARE(status->text(), QStringLiteral("<font color='#000000'>Firmware upload in progress ...</font>"));
    QVERIFY(child<QLabel>(*window, "busyIndicator")->isVisible());
    QPointer<QProgressDialog> progress = window->findChild<QProgressDialog*>("firmwareUploadProgress");
    QVERIFY(progress);
    QVERIFY(progress->isVisible());
    QVERIFY(!window->messagesEnabled());

    QTRY_VERIFY(progress.isNull());
    QVERIFY(window->messagesEnabled());
    QVERIFY2(child<QLabel>(*window, "networkNote")->text().contains("Device 1002: firmware upload successful. The camera "
                                                                   "now runs starter firmware 3.2.1."),
             qPrintable(child<QLabel>(*window, "networkNote")->text()));
    const pv_DeviceInformation after = deviceInfo(pendingUpload);
    QCOMPARE(after.starterFirmware, after.driverFirmwareImage);
    QVERIFY(!(after.deviceControlStatus & PV_CONTROL_OPENED));
    // The driver's device event brings the new record; red turns black.
    QTRY_VERIFY(window->cameraList()->selectedCamera()->starterFirmware()
                == window->cameraList()->selectedCamera()->driverFirmwareImage());
    window->UpdateControls();
    QCOMPARE(status->text(), QStringLiteral("<font color='#000000'>Status of device 1002: The camera is configured "
                                            "correctly and can be opened.</font>"));
    QVERIFY(!child<QLabel>(*window, "busyIndicator")->isVisible());
}

void TestMainWindow::failingUploadIsReportedTwice()
{
    const auto window = makeWindow();
    window->show();
    select(*window, pendingUpload);
    MessageBoxAnswerer answerer(QMessageBox::Ok);
    QCOMPARE(pvsim_FailOperation("pv_OpenCamera", PV_ERR_DEVICE_UNREACHABLE, 1), PV_OK);
    child<QPushButton>(*window, "uploadStarterFirmware")->click();
    QTRY_COMPARE(answerer.seen, QStringList{"Error: Firmware upload error! Return code: 110"});
    auto* status = child<QLabel>(*window, "statusText");
    QTRY_COMPARE(status->text(), QStringLiteral("<font color='#ff0000'>Firmware upload error! 110</font>"));
    QTRY_VERIFY(!window->findChild<QProgressDialog*>("firmwareUploadProgress"));
    const pv_DeviceInformation after = deviceInfo(pendingUpload);
    QVERIFY(after.starterFirmware != after.driverFirmwareImage);
}

void TestMainWindow::closingTheWindowWaitsForTheUpload()
{
    QCOMPARE(pvsim_SetTimeScale(0.04), PV_OK); // 25 s become 1 s
    auto window = makeWindow();
    select(*window, pendingUpload);
    child<QPushButton>(*window, "uploadStarterFirmware")->click();
    QTRY_VERIFY(deviceInfo(pendingUpload).deviceStatus & PV_STATUS_RECEIVING_STARTER_FW);
    window.reset();
    const pv_DeviceInformation after = deviceInfo(pendingUpload);
    QVERIFY(!(after.deviceStatus & PV_STATUS_RECEIVING_STARTER_FW));
    QVERIFY(!(after.deviceControlStatus & PV_CONTROL_OPENED));
    QCOMPARE(after.starterFirmware, after.driverFirmwareImage);
    // What is still queued for the window goes nowhere.
    QCoreApplication::processEvents();
}

void TestMainWindow::readOnlyDeviceAddedFromTheListCanBeDeletedAgain()
{
    const auto window = makeWindow();
    select(*window, 1000);
    // The dialog runs modally; the user's part is played once it is shown.
    bool played = false;
    QTimer::singleShot(0, window.get(), [&] {
        auto* dialog = window->findChild<MulticastDialog*>();
        QVERIFY(dialog);
        dialog->findChild<QSpinBox*>("cameraId")->setValue(42);
        dialog->findChild<QPushButton*>("addReadOnlyDevice")->click();
        played = true;
    });
    menuEntry(*window, "&Add Readonly Device")->trigger();
    QVERIFY(played);

    // The device arrives with the driver's event and looks like its source.
    const Camera* device = nullptr;
    QTRY_VERIFY((device = listedReadOnlyDevice(*window, 42)) != nullptr);
    QCOMPARE(device->kind(), Camera::Kind::ReadOnly);
    QCOMPARE(device->serialNumber(), fleetCamera(1000).serialNumber());
    QCOMPARE(device->multicastIp(), QStringLiteral("239.1.1.10"));
    const quint32 deviceId = device->deviceId();

    select(*window, deviceId);
    MessageBoxAnswerer answerer(QMessageBox::Yes);
    menuEntry(*window, "&Delete")->trigger();
    QVERIFY(cameraState(deviceId).isEmpty());
    QTRY_VERIFY(!listedReadOnlyDevice(*window, 42));
}

void TestMainWindow::cameraIdWrittenInTheDialogReachesTheList()
{
    const auto window = makeWindow();
    child<QCheckBox>(*window, "expertMode")->setChecked(true);
    child<QCheckBox>(*window, "autoRefresh")->setChecked(true);
    window->cameraList()->setAutoRefresh(true);
    select(*window, 1);
    bool refreshedMeanwhile = true;
    QTimer::singleShot(0, window.get(), [&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        QVERIFY(dialog && dialog->objectName() == "cameraInfo");
        refreshedMeanwhile = window->cameraList()->isAutoRefreshOn();
        dialog->findChild<QSpinBox*>("newId")->setValue(99);
        dialog->findChild<QPushButton*>("writeId")->click();
        dialog->reject();
    });
    child<QPushButton>(*window, "cameraInformation")->click();
    QVERIFY(!refreshedMeanwhile);
    QVERIFY(window->cameraList()->isAutoRefreshOn());
    QTRY_VERIFY(window->cameraList()->selectedCamera() && window->cameraList()->selectedCamera()->cameraId() == 99);
    QVERIFY(!cameraState(1).value("open").toBool());
}

void TestMainWindow::failedCameraInformationShowsNothingMore()
{
    const auto window = makeWindow();
    select(*window, 0);
    MessageBoxAnswerer answerer(QMessageBox::Ok);
    pvsim_FailOperation("pv_OpenCamera", PV_ERR_DEVICE_IN_USE, 1);
    child<QPushButton>(*window, "cameraInformation")->click();
    QCOMPARE(answerer.seen.size(), 1);
    QVERIFY(answerer.seen.first().contains("107"));
    QVERIFY(!QApplication::activeModalWidget());
}

void TestMainWindow::deletingAReadOnlyDeviceAsksFirst_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("removed");
    QTest::newRow("yes") << int(QMessageBox::Yes) << true;
    QTest::newRow("no") << int(QMessageBox::No) << false;
}

void TestMainWindow::deletingAReadOnlyDeviceAsksFirst()
{
    QFETCH(int, answer);
    QFETCH(bool, removed);
    const auto window = makeWindow();
    select(*window, 1500);
    QAction* remove = menuEntry(*window, "&Delete");
    QVERIFY(remove);
    MessageBoxAnswerer answerer{QMessageBox::StandardButton(answer)};
    remove->trigger();
    QCOMPARE(answerer.seen.size(), 1);
    QVERIFY2(answerer.seen.first().startsWith(
                 "Delete read-only device: Delete the read-only device 1500 (camera ID 20)?"),
             qPrintable(answerer.seen.first()));
    QCOMPARE(cameraState(1500).isEmpty(), removed);
    if (removed)
        QTRY_VERIFY(!window->cameraList()->selectedCamera());
    else
        QCOMPARE(window->cameraList()->selectedCamera()->deviceId(), 1500u);
}

void TestMainWindow::expertModeGivesListAndDetailsRoom_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QRect>("available");
    QTest::newRow("default size") << QSize(960, 780) << QRect(0, 0, 1600, 1000);
    QTest::newRow("minimum size") << QSize(800, 600) << QRect(0, 0, 1600, 1000);
    QTest::newRow("screen to the right") << QSize(800, 600) << QRect(1600, 0, 1600, 1000);
}

void TestMainWindow::expertModeGivesListAndDetailsRoom()
{
    QFETCH(QSize, size);
    QFETCH(QRect, available);
    const auto window = makeWindow(shippedTranslations, available);
    window->resize(size);
    window->move(available.topLeft());
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    select(*window, 1000);
    const QRect before = window->geometry();
    child<QCheckBox>(*window, "expertMode")->setChecked(true);
    QTRY_VERIFY(window->width() > size.width());
    QVERIFY(available.contains(window->frameGeometry()));

    // Every column of the table and every value of the tree in full.
    auto* table = window->cameraList()->view();
    auto* tree = child<QTreeView>(*window, "deviceDetailsView");
    // What each column's cells need (public in the base class only).
    const auto needed = [](const QAbstractItemView* view, int column) { return view->sizeHintForColumn(column); };
    QTRY_VERIFY(table->horizontalHeader()->length() <= table->viewport()->width());
    for (int column = 0; column < table->model()->columnCount(); ++column)
        QVERIFY2(table->columnWidth(column) >= needed(table, column), qPrintable(QString::number(column)));
    QVERIFY(tree->header()->length() <= tree->viewport()->width());
    QVERIFY(tree->columnWidth(0) >= needed(tree, 0));
    QVERIFY(tree->columnWidth(1) >= needed(tree, 1));

    // Without the details the window has its size again.
    child<QCheckBox>(*window, "expertMode")->setChecked(false);
    QCOMPARE(window->geometry(), before);
}

void TestMainWindow::emptyListSaysWhy_data()
{
    QTest::addColumn<int>("usb");
    QTest::addColumn<int>("eth");
    QTest::addColumn<QStringList>("said");
    QTest::addColumn<QStringList>("notSaid");
    const int running = CoreStates::Running;
    QTest::newRow("services running") << running << running << QStringList{"No cameras found."}
                                      << QStringList{"cirro_usb", "cirro_eth"};
    QTest::newRow("USB service stopped") << int(CoreStates::NotRunning) << running
                                         << QStringList{"No cameras found.", "cirro_usb", "systemctl start cirro_usb"}
                                         << QStringList{"cirro_eth"};
    QTest::newRow("ETH service stopped") << running << int(CoreStates::NotRunning)
                                         << QStringList{"No cameras found.", "cirro_eth", "\"ETH network service\""}
                                         << QStringList{"cirro_usb"};
    QTest::newRow("ETH service absent") << running << int(CoreStates::NotInstalled)
                                        << QStringList{"cirro_eth", "not installed"} << QStringList{"cirro_usb"};
}

void TestMainWindow::emptyListSaysWhy()
{
    QFETCH(int, usb);
    QFETCH(int, eth);
    QFETCH(QStringList, said);
    QFETCH(QStringList, notSaid);
    QCOMPARE(pvsim_LoadScenarioText(R"({"cameras": []})"), PV_OK);
    const auto window = makeWindow();
    QCOMPARE(window->cameraList()->view()->model()->rowCount(), 0);
    services = {CoreStates::State(usb), CoreStates::State(eth)};
    window->onServiceTimer();
    const QString placeholder = window->cameraList()->view()->placeholderText();
    for (const QString& text : said)
        QVERIFY2(placeholder.contains(text), qPrintable(placeholder));
    for (const QString& text : notSaid)
        QVERIFY2(!placeholder.contains(text), qPrintable(placeholder));
}

void TestMainWindow::unknownDeviceClearsThePicture()
{
    const auto window = makeWindow();
    auto* picture = child<QLabel>(*window, "cameraPicture");
    select(*window, 0);
    QVERIFY(!picture->pixmap(Qt::ReturnByValue).isNull());
    select(*window, 2500);
    QVERIFY(picture->pixmap(Qt::ReturnByValue).isNull());
    const QString status = child<QLabel>(*window, "statusText")->text();
    QVERIFY2(status.contains("Status of device 2500: The device is of a kind that this version of the Camera Manager "
                             "does not know"),
             qPrintable(status));
}

void TestMainWindow::openingWithoutViewerSaysHowToSetIt()
{
    const QByteArray path = qgetenv("PATH");
    QTemporaryDir empty;
    qputenv("PATH", empty.path().toLocal8Bit());
    const auto window = makeWindow();
    select(*window, 0);
    menuEntry(*window, "&Open this camera")->trigger();
    qputenv("PATH", path);
    const QString status = child<QLabel>(*window, "statusText")->text();
    QVERIFY2(status.startsWith("<font color='#ff0000'>The camera viewer was not found."), qPrintable(status));
    QVERIFY2(status.contains("CirroViewer") && status.contains("viewer/path")
                 && status.contains(QSettings("Parvel", "CameraManager").fileName()),
             qPrintable(status));
}

void TestMainWindow::identifyingShowsItsWaitOnceTheMenuIsGone()
{
    const auto window = makeWindow();
    window->show();
    select(*window, 0);
    QElapsedTimer triggered;
    triggered.start();
    menuEntry(*window, "&Identify this camera")->trigger();
    // Nothing blocks yet: the menu closes and the window says what happens.
    QVERIFY(triggered.elapsed() < 1000);
    QCOMPARE(cameraState(0).value("identifyCount").toInt(), 0);
    QVERIFY(QApplication::overrideCursor());
    QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    QVERIFY(child<QLabel>(*window, "busyIndicator")->isVisible());
    QCOMPARE(child<QLabel>(*window, "statusText")->text(),
             QStringLiteral("<font color='#000000'>Identifying device 0: it blinks in two seconds ...</font>"));

    QTRY_COMPARE_WITH_TIMEOUT(cameraState(0).value("identifyCount").toInt(), 1, 10000);
    QTRY_VERIFY(!QApplication::overrideCursor());
    QVERIFY(!child<QLabel>(*window, "busyIndicator")->isVisible());
    QVERIFY(child<QLabel>(*window, "statusText")->text().contains("Status of device 0:"));
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

void TestMainWindow::comPortEntryFollowsTheDriversAnswer_data()
{
    QTest::addColumn<QString>("scenario");
    QTest::addColumn<bool>("unknownQuestion");
    QTest::addColumn<quint32>("deviceId");
    QTest::addColumn<bool>("offered");
    QTest::newRow("COM port camera") << QString() << false << 0u << true;
    QTest::newRow("camera without serial interface") << QString() << false << 1u << false;
    QTest::newRow("driver without COM port support")
        << R"({"driver": {"comPorts": false}, "cameras": [{"kind": "usb", "typeCode": 98}]})" << false << 0u << false;
    QTest::newRow("library that does not know the question") << QString() << true << 0u << false;
}

void TestMainWindow::comPortEntryFollowsTheDriversAnswer()
{
    QFETCH(QString, scenario);
    QFETCH(bool, unknownQuestion);
    QFETCH(quint32, deviceId);
    QFETCH(bool, offered);
    if (!scenario.isEmpty())
        QCOMPARE(pvsim_LoadScenarioText(scenario.toUtf8().constData()), PV_OK);
    if (unknownQuestion)
        pvsim_FailOperation("pv_Configuration", PV_ERR_UNKNOWN_COMMAND, 1);
    const auto window = makeWindow();
    pvsim_ClearFailures();
    select(*window, deviceId);
    const std::unique_ptr<QMenu> menu = window->cameraList()->createContextMenu();
    QAction* entry = nullptr;
    for (QAction* action : menu->actions()) {
        if (action->text() == "COM port configuration")
            entry = action;
    }
    QCOMPARE(entry != nullptr, offered);
    if (entry) {
        QCOMPARE(entry->isEnabled(), Elevation::isElevated());
        QCOMPARE(entry->toolTip() == "Restart with elevated privileges!", !Elevation::isElevated());
    }
}

void TestMainWindow::comPortDialogIsFollowedByTheDetails()
{
    const auto window = makeWindow();
    select(*window, 0);
    bool ran = false;
    QTimer::singleShot(0, window.get(), [&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        QVERIFY(dialog && dialog->objectName() == "comDialog");
        ran = true;
        dialog->findChild<QSpinBox*>("portNumber")->setValue(190);
        dialog->findChild<QPushButton*>("saveInCamera")->click();
        dialog->reject();
    });
    // The slot runs whether or not the menu entry may be used on this host.
    window->onOpenComportDlg(*window->cameraList()->selectedCamera());
    QVERIFY(ran);
    QCOMPARE(window->cameraList()->selectedCamera()->deviceInformation().comPortOffset, qint16(90));
}

QTEST_MAIN(TestMainWindow)
#include "tst_qcirrocameramanager.moc"
