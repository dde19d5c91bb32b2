// Writes PNG files of the main window and its dialogs on the default simulated fleet:
//   cirro_screenshots <output directory>
// Run it under Xvfb through tools/screenshots.sh, as the user who would start
// the program (root sees the privilege warning). The user's settings are kept
// out of the way in a temporary directory. The window keeps the sizes a user
// gets: its first size and, for expert mode, its minimum size as well.

#include "app/identity.h"
#include "app/widgets/startup.h"
#include "app/widgets/qcirrocameramanager.h"
#include "camera/cameralistmodel.h"
#include "camera/widgets/cameralist.h"
#include "common/usersettings.h"
#include "comport/comporttest.h"
#include "comport/widgets/comdialog.h"
#include "dialogs/widgets/multicastdialog.h"
#include "driver/debugmask.h"
#include "driver/driverconfiguration.h"
#include "driver/widgets/additionalfunctions.h"
#include "driver/widgets/driveroutputview.h"
#include "driver/widgets/flagsctrl.h"
#include "driver/widgets/qdebugoutctrl.h"
#include "driversettings/driverservicesettings.h"
#include "camera/cameralistmodel.h"
#include "dialogs/widgets/additionalcamerainfo.h"
#include "dialogs/widgets/camerainfo.h"
#include "network/widgets/ethconfig.h"
#include "network/widgets/ethdaemonconfig.h"
#include "services/servicemanager.h"
#include "network/widgets/qipedit.h"
#include "supportfile/supportfilesources.h"
#include "supportfile/supportfilewalk.h"
#include "supportfile/widgets/supportfiledialog.h"
#include "sysinfo/widgets/generalinfodlg.h"
#include "sysinfo/widgets/updatespage.h"

#include "loopbackhttpserver.h"

#include <pvsim.h>

#include <QApplication>
#include <QCheckBox>
#include <QProcess>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QScreen>
#include <QSpinBox>
#include <QTabWidget>
#include <QTreeWidget>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTextStream>

#include <cstdio>

namespace {

bool save(QWidget& window, const QDir& directory, const QString& name)
{
    QTest::qWait(300); // let layouts and the busy indicator settle
    const QString path = directory.filePath(name + QStringLiteral(".png"));
    const bool ok = window.grab().save(path);
    std::fprintf(ok ? stdout : stderr, "%s %s\n", ok ? "wrote" : "could not write", qPrintable(path));
    return ok;
}

// The screen under the window and whatever it shows on top (message boxes,
// progress dialogs).
bool saveScreen(QWidget& window, const QDir& directory, const QString& name)
{
    QApplication::processEvents();
    QRect area = window.frameGeometry();
    for (QWidget* top : QApplication::topLevelWidgets()) {
        if (top->isVisible() && top != window.window() && top->parentWidget())
            area |= top->frameGeometry();
    }
    const QString path = directory.filePath(name + QStringLiteral(".png"));
    const bool ok = window.screen()->grabWindow(0, area.x(), area.y(), area.width(), area.height()).save(path);
    std::fprintf(ok ? stdout : stderr, "%s %s\n", ok ? "wrote" : "could not write", qPrintable(path));
    return ok;
}

// Presses the dialog's OK and shoots the message box that it opens.
bool saveMessageAfterOk(EthConfig& dialog, const QDir& directory, const QString& name)
{
    bool ok = false;
    QTimer::singleShot(600, &dialog, [&] {
        ok = saveScreen(dialog, directory, name);
        if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
            box->accept();
    });
    dialog.findChild<QDialogButtonBox*>(QStringLiteral("buttons"))->button(QDialogButtonBox::Ok)->click();
    QTest::qWait(800);
    return ok;
}

bool shootEthConfig(QCirroCameramanager& window, const QDir& output)
{
    window.cameraList()->selectDevice(1001);
    Camera camera = *window.cameraList()->selectedCamera();
    EthConfig dialog(&window, &camera);
    dialog.setAttribute(Qt::WA_DeleteOnClose, false);
    dialog.show();
    if (!QTest::qWaitForWindowExposed(&dialog))
        return false;
    bool ok = save(dialog, output, QStringLiteral("ethconfig"));

    dialog.findChild<QIpEdit*>(QStringLiteral("rangeBegin"))->setText(QStringLiteral("192.168.50.150"));
    dialog.findChild<QIpEdit*>(QStringLiteral("rangeEnd"))->setText(QStringLiteral("192.168.50.120"));
    ok = saveMessageAfterOk(dialog, output, QStringLiteral("ethconfig-warning")) && ok;

    // In real time the search waits a second for the free address.
    pvsim_SetTimeScale(1.0);
    dialog.findChild<QPushButton*>(QStringLiteral("suggestIp"))->click();
    QTest::qWait(400);
    ok = saveScreen(dialog, output, QStringLiteral("ethconfig-progress")) && ok;
    QTest::qWait(1500);

    pvsim_FailOperation("pv_IpConfig", PV_ERR_DEVICE_UNREACHABLE, 1);
    ok = saveMessageAfterOk(dialog, output, QStringLiteral("ethconfig-error")) && ok;
    pvsim_ClearFailures();
    return ok;
}

bool shootEthDaemonConfig(QWidget& window, const QDir& output, bool elevated, const QString& name)
{
    const std::unique_ptr<ServiceManager> services = ServiceManager::create();
    EthDaemonConfig dialog(&window, *services, elevated);
    dialog.setAttribute(Qt::WA_DeleteOnClose, false);
    dialog.show();
    if (!QTest::qWaitForWindowExposed(&dialog))
        return false;
    // The adapter without 2 KB packets, with its findings.
    auto* tree = dialog.findChild<QTreeWidget*>(QStringLiteral("adapterTree"));
    const QTreeWidgetItem* top = tree->topLevelItem(0);
    for (int i = 0; i < top->childCount(); ++i) {
        if (top->child(i)->data(0, Qt::UserRole).toString() == QLatin1String("simnet2"))
            tree->setCurrentItem(top->child(i));
    }
    return save(dialog, output, name);
}

template <typename Dialog>
bool shootDialog(QWidget& window, const QDir& output, const QString& name)
{
    Dialog dialog(&window);
    dialog.show();
    if (!QTest::qWaitForWindowExposed(&dialog))
        return false;
    return save(dialog, output, name);
}

// The three driver settings dialogs, with the right to change the driver
// services' files and with a write-protected configuration directory.
bool shootDriverSettings(QWidget& window, const QDir& output, bool writable)
{
    const QString root = DriverServiceSettings::configRoot();
    const QString suffix = writable ? QString() : QStringLiteral("-not-elevated");
    DebugMask::write(DebugMask::Driver::Usb, 0xC0000011u);
    if (!writable)
        QFile::setPermissions(root, QFile::ReadOwner | QFile::ExeOwner);
    bool ok = shootDialog<AdditionalFunctions>(window, output, QStringLiteral("additionalfunctions") + suffix);
    ok = shootDialog<QDebugOutCtrl>(window, output, QStringLiteral("debugoutctrl") + suffix) && ok;
    ok = shootDialog<FlagsCtrl>(window, output, QStringLiteral("flagsctrl") + suffix) && ok;
    QFile::setPermissions(root, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return ok;
}

// A few camera openings traced by the USB driver, as the recent output shows them.
bool shootDriverOutput(QWidget& window, const QDir& output)
{
    DebugMask::write(DebugMask::Driver::Usb, 0xC0000015u);
    DriverConfiguration::fetchRegistryValues();
    for (quint32 deviceId : {0u, 1u, 2u}) {
        quint32 handle = deviceId | PV_DEVICE_ID_FLAG;
        if (pv_OpenCamera(&handle, nullptr) == PV_OK)
            pv_CloseCamera(handle);
    }
    DriverOutputView view(DebugMask::Driver::Usb, &window);
    view.show();
    if (!QTest::qWaitForWindowExposed(&view))
        return false;
    QTest::qWait(500);
    const bool ok = save(view, output, QStringLiteral("driveroutput"));
    DebugMask::write(DebugMask::Driver::Usb, 0);
    DriverConfiguration::fetchRegistryValues();
    return ok;
}

bool shootMulticastDialog(QCirroCameramanager& window, const QDir& output)
{
    window.cameraList()->selectDevice(1000);
    MulticastDialog dialog(*window.cameraList()->selectedCamera(), &window);
    dialog.setAttribute(Qt::WA_DeleteOnClose, false);
    dialog.show();
    return QTest::qWaitForWindowExposed(&dialog) && save(dialog, output, QStringLiteral("multicastdialog"));
}

// The upload's progress over the window, then the window once it is done.
bool shootFirmwareUpload(QCirroCameramanager& window, const QDir& output)
{
    pvsim_SetTimeScale(0.2); // 25 s become 5 s
    window.cameraList()->selectDevice(1002);
    window.findChild<QPushButton*>(QStringLiteral("uploadStarterFirmware"))->click();
    QTest::qWait(2500);
    bool ok = saveScreen(window, output, QStringLiteral("firmware-upload"));
    ok = QTest::qWaitFor([&window] { return !window.findChild<QProgressDialog*>(); }, 10000) && ok;
    ok = save(window, output, QStringLiteral("main-window-after-upload")) && ok;
    pvsim_SetTimeScale(1.0);
    pvsim_LoadScenario(nullptr);
    return ok;
}

// Every page of the camera information of a camera with all of them, one
// calibration in progress.
bool shootCameraInfo(QCirroCameramanager& window, const QDir& output)
{
    window.cameraList()->selectDevice(0);
    CameraInfo dialog(*window.cameraList()->selectedCamera(), window.cameraList()->model()->cameraList(), &window);
    if (dialog.prepare() != 0)
        return false;
    dialog.show();
    if (!QTest::qWaitForWindowExposed(&dialog))
        return false;
    bool ok = true;
    for (int i = 0; i < dialog.pages()->count(); ++i) {
        dialog.pages()->setCurrentIndex(i);
        ok = save(dialog, output, QStringLiteral("camerainfo-") + dialog.pages()->currentWidget()->objectName()) && ok;
    }
    dialog.findChild<QSpinBox*>(QStringLiteral("newId"))->setValue(10);
    dialog.pages()->setCurrentIndex(0);
    ok = save(dialog, output, QStringLiteral("camerainfo-id-in-use")) && ok;
    dialog.pages()->setCurrentWidget(dialog.findChild<QWidget*>(QStringLiteral("fpnPage")));
    dialog.findChild<QPushButton*>(QStringLiteral("startFpn"))->click();
    QTest::qWait(2500);
    ok = save(dialog, output, QStringLiteral("camerainfo-fpn-running")) && ok;
    dialog.findChild<QPushButton*>(QStringLiteral("cancelFpn"))->click();
    return ok;
}

// The COM port of the first USB camera installed and tested, the broadcast port on; then a
// number that another camera claims.
bool shootComDialog(QCirroCameramanager& window, const QDir& output)
{
    window.cameraList()->selectDevice(0);
    ComDialog dialog(*window.cameraList()->selectedCamera(), window.cameraList()->model()->cameraList(), &window);
    dialog.show();
    if (!QTest::qWaitForWindowExposed(&dialog))
        return false;
    dialog.findChild<QSpinBox*>(QStringLiteral("portNumber"))->setValue(101);
    dialog.findChild<QPushButton*>(QStringLiteral("install"))->click();
    dialog.findChild<QCheckBox*>(QStringLiteral("broadcast"))->click();
    bool tested = false;
    QObject::connect(dialog.portTest(), &ComPortTest::finished, [&tested] { tested = true; });
    dialog.findChild<QPushButton*>(QStringLiteral("test"))->click();
    bool ok = QTest::qWaitFor([&tested] { return tested; }, 5000) && save(dialog, output, QStringLiteral("comdialog"));
    // The number that the other COM port camera keeps too.
    dialog.findChild<QSpinBox*>(QStringLiteral("portNumber"))->setValue(100);
    ok = save(dialog, output, QStringLiteral("comdialog-number-claimed")) && ok;
    dialog.findChild<QCheckBox*>(QStringLiteral("broadcast"))->click();
    dialog.findChild<QPushButton*>(QStringLiteral("remove"))->click();
    return ok;
}

bool shootAdditionalCameraInfo(QCirroCameramanager& window, const QDir& output, quint32 deviceId,
                               const QString& name)
{
    window.cameraList()->selectDevice(deviceId);
    AdditionalCameraInfo dialog(*window.cameraList()->selectedCamera(), &window);
    dialog.show();
    if (!QTest::qWaitForWindowExposed(&dialog))
        return false;
    QTest::qWait(2200); // two refreshes
    return save(dialog, output, name);
}

bool shootGeneralInfo(QCirroCameramanager& window, const QDir& output)
{
    LoopbackHttpServer server;
    server.route(QStringLiteral("/latest.json"),
                 {200,
                  R"({"format": 1, "latestVersion": "4.98.0.0", "downloadPage": "https://downloads.example/cm/",
                      "notes": {"en": "Faster camera lists; firmware upload for the new models."}})",
                  {}, true});
    const std::unique_ptr<ServiceManager> services = ServiceManager::create();
    GeneralInfoDlg dialog(QStringLiteral("en"), *services, &window);
    dialog.show();
    if (!QTest::qWaitForWindowExposed(&dialog) || !QTest::qWaitFor([&] { return !dialog.isReading(); }, 10000))
        return false;
    auto* pages = dialog.findChild<QTabWidget*>(QStringLiteral("pages"));
    bool ok = true;
    for (int i = 0; i < pages->count(); ++i) {
        pages->setCurrentIndex(i);
        ok = save(dialog, output, QStringLiteral("generalinfo-") + pages->widget(i)->objectName().toLower()) && ok;
    }
    dialog.findChild<QLineEdit*>(QStringLiteral("updateAddress"))->setText(server.url(QStringLiteral("/latest.json")).toString());
    dialog.findChild<QPushButton*>(QStringLiteral("checkForUpdates"))->click();
    ok = QTest::qWaitFor([&] { return !dialog.updatesPage()->check().isRunning(); }, 10000) && ok;
    return save(dialog, output, QStringLiteral("generalinfo-update-available")) && ok;
}

// The simulated USB cameras sit on no hub of this machine: the file places
// the first one ("2-1") on a hub of a made-up controller, so that its path shows.
std::shared_ptr<const UsbTopology> demoTopology()
{
    auto camera = std::make_unique<UsbTopology::Device>();
    camera->driverKey = QStringLiteral("2-1");
    UsbTopology::Hub root;
    root.name = QStringLiteral("usb2");
    root.description = QStringLiteral("xHCI Host Controller root hub");
    root.ports.resize(4);
    root.ports[0].number = 1;
    root.ports[0].device = std::move(camera);
    std::vector<UsbTopology::HostController> controllers(1);
    controllers[0].description = QStringLiteral("Intel Corporation Tiger Lake-LP USB 3.2 Gen 2x1 xHCI Host Controller");
    controllers[0].type = UsbTopology::ControllerType::Xhci;
    controllers[0].driver = {QStringLiteral("xhci_pci"), QStringLiteral("6.1.0"), QStringLiteral("1-20-2024")};
    controllers[0].rootHubs.push_back(std::move(root));
    return std::make_shared<const UsbTopology>(std::move(controllers));
}

// Opens the item and its rows, except the groups named in skip.
void expandBelow(QTreeWidgetItem* item, const QStringList& skip)
{
    item->setExpanded(true);
    for (int i = 0; i < item->childCount(); ++i) {
        if (!skip.contains(item->child(i)->text(0)))
            expandBelow(item->child(i), skip);
    }
}

QTreeWidgetItem* cameraItem(QTreeWidget& tree, const QString& group, int index)
{
    const QList<QTreeWidgetItem*> groups = tree.findItems(group, Qt::MatchExactly);
    return groups.isEmpty() ? nullptr : groups[0]->child(index);
}

bool shootSupportFile(QCirroCameramanager& window, const QDir& output)
{
    const QString path = output.filePath(QStringLiteral("default-fleet.bin"));
    const std::unique_ptr<ServiceManager> services = ServiceManager::create();
    SupportFileSources sources = SupportFileSources::gather(window.cameraList()->model()->cameraList(), *services, {});
    sources.topology = demoTopology();
    if (!SupportFileWalk::writeFile(path, sources, std::nullopt).isSuccess())
        return false;
    bool ok = true;
    {
        SupportFileDialog dialog(path, &window);
        dialog.resize(720, 900);
        dialog.show();
        QTreeWidget& tree = *dialog.tree();
        QTreeWidgetItem* eth = cameraItem(tree, QStringLiteral("ETH Cameras"), 0);
        tree.topLevelItem(0)->setExpanded(false);
        if (eth) {
            expandBelow(eth, {QStringLiteral("Debug info"), QStringLiteral("Transfer")});
            tree.scrollToItem(eth, QAbstractItemView::PositionAtTop);
        }
        ok = save(dialog, output, QStringLiteral("supportfile-eth")) && ok;

        tree.collapseAll();
        tree.topLevelItem(0)->setExpanded(true);
        QTreeWidgetItem* usb = cameraItem(tree, QStringLiteral("USB Cameras"), 0);
        if (usb)
            expandBelow(usb, {});
        ok = save(dialog, output, QStringLiteral("supportfile-usb")) && ok;
    }
    // A file damaged in its third camera.
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    QList<QByteArray> lines = file.readAll().split('\n');
    file.close();
    lines[2600] = "12x45\r";
    const QString damaged = output.filePath(QStringLiteral("damaged.bin"));
    QFile broken(damaged);
    if (!broken.open(QIODevice::WriteOnly) || broken.write(lines.join('\n')) < 0)
        return false;
    broken.close();
    SupportFileDialog dialog(damaged, &window);
    dialog.resize(720, 600);
    dialog.show();
    return save(dialog, output, QStringLiteral("supportfile-damaged")) && ok;
}

// Expert mode turned on at the window's first size and at its minimum size,
// with a GigE, a USB and a sibling-SDK GigE Vision camera.
bool shootExpertMode(QCirroCameramanager& window, const QDir& output)
{
    auto* expert = window.findChild<QCheckBox*>(QStringLiteral("expertMode"));
    const QSize firstSize = window.size();
    bool ok = true;
    for (const QSize size : {firstSize, window.minimumSize()}) {
        const QString suffix = size == firstSize ? QString() : QStringLiteral("-minimum");
        window.resize(size);
        expert->setChecked(true);
        window.cameraList()->selectDevice(1000);
        ok = save(window, output, QStringLiteral("expert-gige") + suffix) && ok;
        window.cameraList()->selectDevice(0);
        ok = save(window, output, QStringLiteral("expert-usb") + suffix) && ok;
        window.cameraList()->selectDevice(2001);
        ok = save(window, output, QStringLiteral("expert-gev") + suffix) && ok;
        expert->setChecked(false);
    }
    window.resize(firstSize);
    return ok;
}

// The fleet the simulated driver shows changes with its next device event.
bool loadFleet(QCirroCameramanager& window, const char* scenarioText)
{
    const std::int32_t loaded = scenarioText ? pvsim_LoadScenarioText(scenarioText) : pvsim_LoadScenario(nullptr);
    const bool empty = scenarioText && QByteArray(scenarioText).contains("\"cameras\": []");
    window.onServiceTimer();
    return loaded == PV_OK && QTest::qWaitFor([&] {
               return (window.cameraList()->model()->rowCount() == 0) == empty;
           });
}

// The states a first-time user meets: no camera at all while the USB driver
// service is stopped, and a device of a kind this version does not know.
bool shootUnusualStates(QCirroCameramanager& window, const QDir& output)
{
    bool ok = loadFleet(window, R"({"services": {"cirro_usb": "stopped"}, "cameras": []})");
    ok = save(window, output, QStringLiteral("main-window-empty")) && ok;
    ok = loadFleet(window, nullptr) && ok;
    window.cameraList()->selectDevice(0);
    window.cameraList()->selectDevice(2500);
    return save(window, output, QStringLiteral("main-window-unknown-device")) && ok;
}

// The simulated driver reads its scenario once per process: a second run of
// this program starts it with a broken file and shoots the window.
bool shootScenarioError(const QDir& output)
{
    QTemporaryDir dir;
    QFile file(dir.filePath(QStringLiteral("line4.json")));
    if (!dir.isValid() || !file.open(QIODevice::WriteOnly))
        return false;
    file.write(R"({"cameras": [{"kind": "eth", "adapter": "simnet9"}]})");
    file.close();
    QProcess run;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("CIRRO_SIM_SCENARIO"), file.fileName());
    run.setProcessEnvironment(environment);
    run.setProcessChannelMode(QProcess::ForwardedChannels);
    run.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--scenario-error"), output.path()});
    return run.waitForFinished(60000) && run.exitStatus() == QProcess::NormalExit && run.exitCode() == 0;
}

bool setLanguage(QCirroCameramanager& window, const QString& locale)
{
    auto* languages = window.findChild<QComboBox*>(QStringLiteral("languageSelector"));
    const int index = languages->findData(locale);
    languages->setCurrentIndex(index);
    return index >= 0;
}

} // namespace

int main(int argc, char* argv[])
{
    Startup::prepareProcess();
    QApplication app(argc, argv);
    Startup::prepareApplication();
    Startup::setInterfaceFont();
    QStringList arguments = QCoreApplication::arguments();
    const bool scenarioErrorRun = arguments.removeAll(QStringLiteral("--scenario-error")) > 0;
    if (arguments.size() < 2) {
        std::fprintf(stderr, "usage: %s <output directory>\n", argv[0]);
        return 2;
    }
    const QDir output(arguments.at(1));
    if (!output.mkpath(QStringLiteral("."))) {
        std::fprintf(stderr, "cannot create %s\n", qPrintable(arguments.at(1)));
        return 1;
    }
    QTemporaryDir settings;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
    UserSettings::open()
        .setValue(QStringLiteral("mainWindow/selectedLanguage"), QStringLiteral("en"));

    QCirroCameramanager window;
    window.show();
    if (!QTest::qWaitForWindowExposed(&window))
        return 1;
    if (scenarioErrorRun)
        return save(window, output, QStringLiteral("main-window-scenario-error")) ? 0 : 1;
    bool ok = true;
    window.cameraList()->selectDevice(1000);
    ok = save(window, output, QStringLiteral("main-window")) && ok;
    ok = shootExpertMode(window, output) && ok;
    ok = shootUnusualStates(window, output) && ok;
    ok = shootScenarioError(output) && ok;

    ok = shootEthConfig(window, output) && ok;
    ok = shootEthDaemonConfig(window, output, true, QStringLiteral("ethdaemonconfig")) && ok;
    ok = shootEthDaemonConfig(window, output, false, QStringLiteral("ethdaemonconfig-not-elevated")) && ok;
    ok = shootDriverSettings(window, output, true) && ok;
    ok = shootDriverSettings(window, output, false) && ok;
    ok = shootDriverOutput(window, output) && ok;
    ok = shootMulticastDialog(window, output) && ok;
    ok = shootFirmwareUpload(window, output) && ok;
    pvsim_SetTimeScale(1.0);
    ok = shootCameraInfo(window, output) && ok;
    ok = shootComDialog(window, output) && ok;
    ok = shootAdditionalCameraInfo(window, output, 0, QStringLiteral("additionalcamerainfo-usb")) && ok;
    ok = shootAdditionalCameraInfo(window, output, 1005, QStringLiteral("additionalcamerainfo-gige")) && ok;
    ok = shootSupportFile(window, output) && ok;
    ok = shootGeneralInfo(window, output) && ok;
    window.cameraList()->selectDevice(1006);
    ok = save(window, output, QStringLiteral("main-window-adapter-advice")) && ok;
    window.cameraList()->selectDevice(1001);
    window.findChild<QPushButton*>(QStringLiteral("automaticEthConfiguration"))->click();
    auto* note = window.findChild<QLabel*>(QStringLiteral("networkNote"));
    ok = QTest::qWaitFor([note] { return note->text().contains(QStringLiteral("reachable")); }, 10000) && ok;
    ok = save(window, output, QStringLiteral("main-window-after-autoconfig")) && ok;
    pvsim_LoadScenario(nullptr);

    // Longer texts: the details in expert mode too.
    auto* expert = window.findChild<QCheckBox*>(QStringLiteral("expertMode"));
    for (const QString& locale : {QStringLiteral("de"), QStringLiteral("zh_CN")}) {
        ok = setLanguage(window, locale) && ok;
        window.cameraList()->selectDevice(1001);
        ok = save(window, output, QStringLiteral("main-window-") + locale) && ok;
        expert->setChecked(true);
        ok = save(window, output, QStringLiteral("expert-") + locale) && ok;
        expert->setChecked(false);
    }
    return ok ? 0 : 1;
}
