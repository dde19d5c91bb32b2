#include "app/widgets/qcirrocameramanager.h"

#include "app/cameralistplaceholder.h"
#include "app/identity.h"
#include "app/languagecatalog.h"
#include "app/unsupportedmodels.h"
#include "app/viewerlauncher.h"
#include "app/windowgrowth.h"
#include "app/widgets/commandregistry.h"
#include "app/widgets/controlarea.h"
#include "app/widgets/startupimages.h"
#include "app/widgets/statuspanel.h"
#include "camera/cameraactions.h"
#include "camera/cameralistmodel.h"
#include "camera/statusassessment.h"
#include "camera/widgets/cameralist.h"
#include "camera/widgets/cameratableview.h"
#include "common/simulateddriver.h"
#include "common/usersettings.h"
#include "details/widgets/deviceinfoview.h"
#include "dialogs/widgets/additionalcamerainfo.h"
#include "dialogs/widgets/camerainfo.h"
#include "driver/widgets/additionalfunctions.h"
#include "dialogs/firmwareupload.h"
#include "dialogs/widgets/firmwareuploadprogress.h"
#include "dialogs/widgets/multicastdialog.h"
#include "network/adapterdiagnosis.h"
#include "network/autoconfiguration.h"
#include "network/ethcamerasettings.h"
#include "network/ipv4.h"
#include "common/widgets/elevationprompt.h"
#include "comport/comportaccess.h"
#include "comport/widgets/comdialog.h"
#include "network/widgets/ethconfig.h"
#include "network/widgets/ethdaemonconfig.h"
#include "network/widgets/ipchangefollowup.h"
#include "supportfile/supportfileredaction.h"
#include "supportfile/supportfilesources.h"
#include "supportfile/supportfilewalk.h"
#include "supportfile/widgets/supportfiledialog.h"
#include "supportfile/widgets/supportfilesavedialog.h"
#include "sysinfo/widgets/generalinfodlg.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QFileDialog>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QScreen>
#include <QSettings>
#include <QThreadPool>
#include <QTimer>
#include <QVBoxLayout>
#include <QtConcurrent>

#include <algorithm>

namespace {

using Command = ControlStates::Command;

const QString settingsGroup = QStringLiteral("mainWindow");
// The first start's size; later starts restore the user's geometry.
constexpr QSize defaultSize(960, 780);

// A text's width in average Latin characters; East Asian characters take two.
int textColumns(const QString& text)
{
    int columns = 0;
    for (const QChar c : text) {
        const QChar::Script script = c.script();
        const bool wide = script == QChar::Script_Han || script == QChar::Script_Hiragana
                          || script == QChar::Script_Katakana || script == QChar::Script_Hangul;
        columns += wide ? 2 : 1;
    }
    return columns;
}

} // namespace

QCirroCameramanager::QCirroCameramanager(QWidget* parent)
    : QCirroCameramanager(Environment(), parent)
{
}

QCirroCameramanager::QCirroCameramanager(Environment environment, QWidget* parent)
    : QMainWindow(parent)
    , m_languages(environment.translationDirectory.isEmpty() ? LanguageCatalog::translationDirectory()
                                                             : environment.translationDirectory)
    , m_availableGeometry(environment.availableGeometry)
    , m_services(environment.services ? std::move(environment.services) : ServiceManager::create())
{
    setObjectName(QStringLiteral("mainWindow"));
    createWidgets();
    setWindowIcon(StartupImages::icon(QStringLiteral(":/images/Cirro Manager.ico")));
    buildLayout();
    makeConnections();
    registerCommands();
    fillLanguageSelector(m_languages.directory());
    retranslate();
    setMinimumSize(800, 600);
    resize(defaultSize);
    CameraActions::connectEthService();
    UpdateControls();
    onServiceTimer();
    m_serviceTimer->start(servicePollIntervalMs);
    restoreSettings();
    updateDetails(false);
    showScenarioError();
}

QCirroCameramanager::~QCirroCameramanager()
{
    saveSettings();
    m_pendingUploads.cancelAndWait();
    m_autoConfigWatcher.waitForFinished();
}

void QCirroCameramanager::createWidgets()
{
    auto* central = new QWidget(this);
    setCentralWidget(central);
    m_serviceTimer = new QTimer(this);
    m_commands = new CommandRegistry(this);
    m_ipChangeFollowUp = new IpChangeFollowUp(this, [this] { return m_cameraList->model()->cameraList(); });
    m_logo = new QLabel(central);
    m_logo->setObjectName(QStringLiteral("logo"));
    m_logo->setPixmap(StartupImages::icon(QStringLiteral(":/images/logo_parvel.png")).pixmap(QSize(160, 48)));
    m_logo->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    m_cameraListGroup = new QGroupBox(central);
    m_controlArea = new ControlArea(*m_commands, central);
    m_bottomGroup = new QGroupBox(central);
    m_statusPanel = new StatusPanel(Elevation::isElevated(), central);
    m_close = new QPushButton(m_bottomGroup);
    m_close->setObjectName(QStringLiteral("close"));
    m_languageSelector = new QComboBox(m_bottomGroup);
    m_languageSelector->setObjectName(QStringLiteral("languageSelector"));
    // Sized from the label lengths rather than by measuring every entry:
    // measuring would load a font for each script, which only the open list needs.
    m_languageSelector->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_bottomLeftLabel = new QLabel(m_bottomGroup);
    m_bottomLeftLabel->setAlignment(m_logo->alignment());
    m_detailsGroup = new QGroupBox(central);
    m_detailsGroup->setObjectName(QStringLiteral("deviceDetails"));
    m_detailsGroup->hide();
    m_deviceDetails = new DeviceInfoView(m_detailsGroup);
    m_deviceDetails->setObjectName(QStringLiteral("deviceDetailsView"));
    (new QVBoxLayout(m_detailsGroup))->addWidget(m_deviceDetails);
}

void QCirroCameramanager::buildLayout()
{
    auto* listLayout = new QVBoxLayout(m_cameraListGroup);
    m_cameraList = new CameraList(m_cameraListGroup, this);
    CameraList::HostAbilities abilities;
    abilities.elevated = Elevation::isElevated();
    abilities.comPortSupportInstalled = ComPortAccess::supportInstalled();
    m_cameraList->setHostAbilities(abilities);
    m_cameraList->setCommandHandlers(m_commands);
    listLayout->addWidget(m_cameraList->view());

    auto* leftColumn = new QVBoxLayout;
    leftColumn->addWidget(m_cameraListGroup, 1);
    leftColumn->addWidget(m_controlArea);
    leftColumn->addWidget(buildBottomGroup());
    leftColumn->addWidget(m_statusPanel);

    // Both take what they need first (their size hints); more is shared.
    auto* central = new QHBoxLayout(centralWidget());
    central->addLayout(leftColumn);
    central->addWidget(m_detailsGroup);
}

QWidget* QCirroCameramanager::buildBottomGroup()
{
    auto* left = new QVBoxLayout;
    left->addWidget(m_bottomLeftLabel);
    left->addWidget(m_languageSelector);
    auto* right = new QVBoxLayout;
    right->addWidget(m_logo);
    right->addWidget(m_close);
    auto* columns = new QHBoxLayout(m_bottomGroup);
    columns->addLayout(left);
    columns->addLayout(right);
    return m_bottomGroup;
}

void QCirroCameramanager::makeConnections()
{
    connect(m_serviceTimer, &QTimer::timeout, this, &QCirroCameramanager::onServiceTimer);
    connect(m_controlArea->expertMode(), &QCheckBox::stateChanged, this,
            [this](int state) { enableExpertView(state != 0); });
    connect(m_controlArea->autoRefresh(), &QCheckBox::clicked, m_cameraList, &CameraList::setAutoRefresh);
    connect(m_close, &QPushButton::clicked, this, &QWidget::close);
    connect(m_languageSelector, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &QCirroCameramanager::slotLanguageChanged);
    // Choosing the entry that is shown but was never loaded changes no index.
    connect(m_languageSelector, qOverload<int>(&QComboBox::activated), this,
            &QCirroCameramanager::slotLanguageChanged);

    connect(m_cameraList, &CameraList::cameraChanged, this,
            [this](const camera::optional<Camera>& camera) { onCurrentCameraChanged(camera); });
    connect(m_cameraList, &CameraList::cameraListChanged, this, &QCirroCameramanager::onCameraListChanged);
    connect(m_deviceDetails, &DeviceInfoView::updateNeeded, this, &QCirroCameramanager::onDeviceInfoUpdateNeeded);
    connect(&m_autoConfigWatcher, &QFutureWatcherBase::finished, this, &QCirroCameramanager::onAutoConfigFinished);
    connect(m_cameraList, &CameraList::cameraListChanged, m_ipChangeFollowUp, &IpChangeFollowUp::onCameraListChanged);
    connect(m_ipChangeFollowUp, &IpChangeFollowUp::statusMessage, m_statusPanel,
            [this](const QString& text, const QColor& colour) { m_statusPanel->showOutcomeNote(text, colour); });
}

// One line per handled command; the others keep their buttons
// and menu entries disabled.
void QCirroCameramanager::registerCommands()
{
    m_commands->setHandler(Command::ManualEthConfiguration, [this] { onManualEthConfig(); });
    m_commands->handleRequest(Command::ManualEthConfiguration, m_cameraList, &CameraList::openIPSettings, this,
                              &QCirroCameramanager::onManualEthConfig);
    m_commands->setHandler(Command::AutomaticEthConfiguration, [this] { onAutoConfig(); });
    m_commands->setHandler(Command::EthService, [this] { onEthDaemonConfig(); });
    m_commands->setHandler(Command::AdditionalFunctions, [this] { OnAdditionalFunctionsDlg(); });
    m_commands->setHandler(Command::UploadFirmware, [this] { onUploadFirmware(); });
    m_commands->handleRequest(Command::AddReadOnlyDevice, m_cameraList, &CameraList::openMulticastSettings, this,
                              &QCirroCameramanager::onMulticastDialog);
    m_commands->handleRequest(Command::ComPortConfiguration, m_cameraList, &CameraList::openComportDlg, this,
                              &QCirroCameramanager::onOpenComportDlg);
    m_commands->setHandler(Command::CameraInformation, [this] { OnCameraInfoDlg(); });
    m_commands->handleRequest(Command::CameraInformation, m_cameraList, &CameraList::openCameraInfo, this,
                              &QCirroCameramanager::openCameraInfoDialog);
    m_commands->setHandler(Command::AdditionalCameraInformation, [this] { onAddCameraInfo(); });
    m_commands->setHandler(Command::GeneralInformation, [this] { onGeneralInfo(); });
    m_commands->setHandler(Command::SupportFile, [this] { onWriteSupportFile(); });
    m_commands->setHandler(Command::ReadSupportFile, [this] { onReadSupportFile(); });
    m_commands->handleRequest(Command::OpenCamera, m_cameraList, &CameraList::openCamera, this,
                              &QCirroCameramanager::onOpenCamera);
    m_commands->handleRequest(Command::IdentifyCamera, m_cameraList, &CameraList::identCamera, this,
                              &QCirroCameramanager::onIdentifyCamera);
    m_commands->handleRequest(
        Command::DeleteReadOnlyDevice, m_cameraList, &CameraList::deletePMC, m_cameraList,
        [this](const Camera& camera) { deleteReadOnlyDevice(camera); }, Qt::DirectConnection);
}

void QCirroCameramanager::fillLanguageSelector(const QString& directory)
{
    QSignalBlocker blocker(m_languageSelector);
    int widestLabel = 0;
    for (const LanguageCatalog::Entry& entry : LanguageCatalog::scan(directory)) {
        m_languageSelector->addItem(StartupImages::icon(entry.iconPath), entry.label, entry.locale);
        widestLabel = std::max(widestLabel, textColumns(entry.label));
    }
    m_languageSelector->setMinimumContentsLength(widestLabel);
    m_languageSelector->model()->sort(0, Qt::AscendingOrder);
    // The current item moved with the sort; show the first entry.
    m_languageSelector->setCurrentIndex(m_languageSelector->count() > 0 ? 0 : -1);
    const QString stored = UserSettings::open()
                               .value(settingsGroup + QStringLiteral("/selectedLanguage"),
                                      LanguageCatalog::defaultLanguage())
                               .toString();
    const int index = m_languageSelector->findData(stored, Qt::UserRole, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (index < 0)
        return; // the first entry stays shown, unloaded
    // From no selection, so that choosing the entry always loads it.
    m_languageSelector->setCurrentIndex(-1);
    blocker.unblock();
    m_languageSelector->setCurrentIndex(index);
}

void QCirroCameramanager::retranslate()
{
    m_cameraListGroup->setTitle(tr("Camera list"));
    m_controlArea->retranslate();
    m_close->setText(tr("Close"));
    m_close->setToolTip(tr("Quits the application window"));
    m_detailsGroup->setTitle(tr("Device details"));
    setWindowTitle(tr("%1 Camera Manager").arg(Identity::makerShortName()));
    m_statusPanel->retranslate();
    m_cameraList->view()->setPlaceholderText(CameraListPlaceholder::text(m_serviceStates));
    updateDetails(false);
}

void QCirroCameramanager::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LocaleChange)
        m_languages.load(LanguageCatalog::defaultLanguage());
    else if (event->type() == QEvent::LanguageChange)
        retranslate();
    QMainWindow::changeEvent(event);
}

void QCirroCameramanager::slotLanguageChanged(int index)
{
    if (index < 0)
        return;
    m_languages.load(m_languageSelector->itemData(index).toString());
}

void QCirroCameramanager::onServiceTimer()
{
    const CoreStates states = m_services->coreStates();
    if (states == m_serviceStates)
        return;
    m_serviceStates = states;
    m_cameraList->view()->setPlaceholderText(CameraListPlaceholder::text(m_serviceStates));
    UpdateControls();
    emit CirrodStatusChanged(m_serviceStates);
}

void QCirroCameramanager::enableExpertView(bool enable)
{
    m_detailsGroup->setVisible(enable);
    QCheckBox* autoRefresh = m_controlArea->autoRefresh();
    autoRefresh->setEnabled(enable);
    if (!enable) {
        m_cameraList->setAutoRefresh(false);
        narrowAfterDetails();
        return;
    }
    m_cameraList->refreshSelectedCamera();
    updateDetails(true);
    m_cameraList->setAutoRefresh(autoRefresh->isChecked());
    widenForDetails();
}

void QCirroCameramanager::widenForDetails()
{
    if (isMaximized() || isFullScreen())
        return;
    centralWidget()->layout()->activate();
    const QRect frame = frameGeometry();
    const int frameWidth = frame.width() - width();
    const QRect available = m_availableGeometry.isValid() ? m_availableGeometry : screen()->availableGeometry();
    const QRect widened = WindowGrowth::widened(frame, sizeHint().width() + frameWidth, available);
    if (widened == frame)
        return;
    m_geometryBeforeDetails = geometry();
    move(widened.topLeft());
    resize(widened.width() - frameWidth, height());
    m_geometryWithDetails = geometry();
}

void QCirroCameramanager::narrowAfterDetails()
{
    // Only as the details left it: a size the user chose since stays.
    if (m_geometryWithDetails.isValid() && geometry() == m_geometryWithDetails)
        setGeometry(m_geometryBeforeDetails);
    m_geometryWithDetails = QRect();
}

void QCirroCameramanager::onCurrentCameraChanged(const camera::optional<Camera>& camera, bool force)
{
    UpdateDeviceInfo(camera ? &*camera : nullptr, force);
}

void QCirroCameramanager::onCameraListChanged()
{
    if (!m_controlArea->expertMode()->isChecked())
        return;
    updateDetails(false);
    const Camera* camera = currentCamera();
    if (camera && camera->kind() == Camera::Kind::Usb)
        m_deviceDetails->UpdateUsbTopology();
}

void QCirroCameramanager::onDeviceInfoUpdateNeeded(bool force)
{
    updateDetails(force);
}

void QCirroCameramanager::OnCameraListRefresh()
{
    updateDetails(false);
}

void QCirroCameramanager::UpdateDeviceInfo(const Camera* camera, bool force_reset)
{
    m_deviceDetails->Update(camera, force_reset);
    UpdateControls();
}

void QCirroCameramanager::updateDetails(bool force)
{
    UpdateDeviceInfo(currentCamera(), force);
}

const Camera* QCirroCameramanager::currentCamera() const
{
    const camera::optional<Camera>& selected = m_cameraList->selectedCamera();
    return selected ? &*selected : nullptr;
}

void QCirroCameramanager::UpdateControls()
{
    const Camera* camera = currentCamera();
    const StatusAssessment status = StatusAssessment::of(camera, UnsupportedModels::list());
    Printer(status.message, status.colour, false);
    m_statusPanel->showDetails(status, camera != nullptr);
    m_statusPanel->showAdapterAdvice(camera ? AdapterDiagnosis::cameraAdvice(*camera) : QString());
    m_commands->setUsable(ControlStates::usable(camera, m_serviceStates.eth != CoreStates::NotInstalled));
}

void QCirroCameramanager::Printer(const QString& text, const QColor& textcolour, bool bShowProgress)
{
    if (m_messagesEnabled)
        m_statusPanel->print(text, textcolour, bShowProgress);
}

void QCirroCameramanager::OnCameraInfoDlg()
{
    if (const Camera* camera = currentCamera())
        openCameraInfoDialog(*camera);
}

void QCirroCameramanager::openCameraInfoDialog(const Camera& camera)
{
    if (!ControlStates::qualifiesForCameraInformation(camera))
        return;
    CameraInfo dialog(camera, m_cameraList->model()->cameraList(), this);
    if (dialog.prepare() != 0)
        return;
    m_dialogBusy = true;
    m_cameraList->setAutoRefresh(false);
    m_cameraList->setUpdatesSuspended(true);
    dialog.exec();
    m_cameraList->setUpdatesSuspended(false);
    m_cameraList->setAutoRefresh(autoRefreshWanted());
    m_dialogBusy = false;
    updateDetails(false);
}

void QCirroCameramanager::onAddCameraInfo()
{
    const Camera* camera = currentCamera();
    if (!camera || !ControlStates::qualifiesForAdditionalCameraInformation(*camera))
        return;
    AdditionalCameraInfo dialog(*camera, this);
    dialog.exec();
}

void QCirroCameramanager::onGeneralInfo()
{
    GeneralInfoDlg dialog(currentLanguage(), *m_services, this);
    dialog.exec();
}

bool QCirroCameramanager::autoRefreshWanted() const
{
    const QCheckBox* autoRefresh = m_controlArea->autoRefresh();
    return autoRefresh->isEnabled() && autoRefresh->isChecked();
}

void QCirroCameramanager::onOpenCamera(const QList<Camera>& cameras)
{
    if (ViewerLauncher::viewerPath().isEmpty()) {
        const QString settingsFile = UserSettings::open().fileName();
        Printer(tr("The camera viewer was not found. Install %1 in a folder of the PATH, or set the viewer's path "
                   "as \"%2\" in %3.")
                    .arg(ViewerLauncher::viewerProgram(), ViewerLauncher::settingsKey(), settingsFile),
                Qt::red, false);
        return;
    }
    for (const Camera& camera : cameras) {
        if (!camera.inUse())
            ViewerLauncher::open(camera);
    }
}

void QCirroCameramanager::onIdentifyCamera(const Camera& camera)
{
    Printer(tr("Identifying device %1: it blinks in two seconds ...").arg(camera.deviceId()), Qt::black, true);
    QApplication::setOverrideCursor(Qt::WaitCursor);
    // The wait blocks the window; it starts once the context menu has gone
    // and the window shows the message without it.
    QTimer::singleShot(0, this, [this, camera] {
        repaint();
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        CameraActions::identify(camera);
        QApplication::restoreOverrideCursor();
        UpdateControls();
    });
}

void QCirroCameramanager::onManualEthConfig()
{
    const Camera* selected = currentCamera();
    if (!selected || m_serviceStates.eth == CoreStates::NotInstalled)
        return;
    if (m_messagesEnabled)
        m_statusPanel->print(tr("Open eth configuration..."), Qt::black, false);
    Camera camera = *selected;
    auto* dialog = new EthConfig(this, &camera);
    // The dialog deletes itself when it closes; take what it applied before.
    std::optional<IpChangeVerifier::Expectation> expectation;
    EthCameraSettings before;
    connect(dialog, &QDialog::accepted, this, [&] {
        const quint32 address = dialog->appliedPersistentIp();
        expectation = IpChangeVerifier::Expectation{MacAddress::parse(camera.macAddress()), address, address == 0};
        before = dialog->initialSettings();
    });
    dialog->exec();
    m_cameraList->refreshSelectedCamera();
    updateDetails(false);
    if (expectation)
        m_ipChangeFollowUp->follow(camera, *expectation, before);
}

void QCirroCameramanager::onAutoConfig()
{
    const Camera* camera = currentCamera();
    if (!camera || m_autoConfigWatcher.isRunning())
        return;
    if (Ipv4::fromText(camera->adapterIp()) == 0 || Ipv4::fromText(camera->adapterMask()) == 0) {
        QMessageBox::critical(this, tr("Automatic configuration"),
                              tr("The network adapter of device %1 has no IPv4 address, so there is no subnet to "
                                 "take a range from.")
                                  .arg(camera->deviceId()));
        return;
    }
    m_autoConfigProgress = new QProgressDialog(
        tr("Setting autoconfiguration. Please wait...\n\nThis operation may take up to 10 seconds."), QString(), 0, 1,
        this);
    m_autoConfigProgress->setObjectName(QStringLiteral("autoConfigProgress"));
    m_autoConfigProgress->setCancelButton(nullptr);
    m_autoConfigProgress->setWindowModality(Qt::WindowModal);
    m_autoConfigProgress->setMinimumDuration(0);
    m_autoConfigProgress->show();
    m_autoConfigCamera = *camera;
    m_autoConfigBefore = EthCameraSettings::read(*camera);
    const AutoConfiguration job = AutoConfiguration::of(*camera);
    m_autoConfigWatcher.setFuture(QtConcurrent::run(QThreadPool::globalInstance(), [job] { return job.run(); }));
}

void QCirroCameramanager::onAutoConfigFinished()
{
    if (m_autoConfigProgress) {
        m_autoConfigProgress->setValue(m_autoConfigProgress->maximum());
        m_autoConfigProgress->deleteLater();
        m_autoConfigProgress = nullptr;
    }
    const quint32 result = m_autoConfigWatcher.result();
    // The boot-boost text goes with the general failure code, and the other way round.
    if (result == AutoConfiguration::rangeFailed || result == AutoConfiguration::bootBoostRefused) {
        QMessageBox::critical(this, tr("Automatic configuration"), tr("Automatic configuration can't be applied!"));
    } else if (result == AutoConfiguration::persistentFailed) {
        QMessageBox::critical(this, tr("Automatic configuration"),
                              tr("Automatic configuration & Boot boost are not compatible!"));
    } else if (m_autoConfigCamera) {
        m_ipChangeFollowUp->follow(*m_autoConfigCamera,
                                   {MacAddress::parse(m_autoConfigCamera->macAddress()), 0, true}, m_autoConfigBefore);
    }
    m_autoConfigCamera.reset();
}

void QCirroCameramanager::onEthDaemonConfig()
{
    const bool elevated = Elevation::isElevated();
    if (!elevated)
        Elevation::request(true, QStringLiteral("--daemon-config"), this);
    m_ethDaemonDialog = new EthDaemonConfig(this, *m_services, elevated);
    connect(this, &QCirroCameramanager::CirrodStatusChanged, m_ethDaemonDialog,
            &EthDaemonConfig::onChangedCirrodStatus);
    m_ethDaemonDialog->onChangedCirrodStatus(m_serviceStates);
    m_ethDaemonDialog->exec(); // deletes itself when it closes
    m_ethDaemonDialog = nullptr;
}

void QCirroCameramanager::OnAdditionalFunctionsDlg()
{
    Elevation::request(true, QStringLiteral("--additional-func"), this);
    AdditionalFunctions dialog(this);
    dialog.exec();
    updateDetails(false); // boot boost and multicast settings show in a camera's state
}

void QCirroCameramanager::onUploadFirmware()
{
    const Camera* camera = currentCamera();
    if (!camera || !FirmwareUpload::accepts(camera->typeCode()))
        return;
    auto* watcher = new QFutureWatcher<int>(this);
    connect(watcher, &QFutureWatcher<int>::resultReadyAt, this, &QCirroCameramanager::onFirmwareUploadFinished);
    connect(watcher, &QFutureWatcher<int>::finished, watcher, &QObject::deleteLater);
    Printer(tr("Firmware upload in progress ..."), Qt::black, true);
    m_messagesEnabled = false; // nothing else overwrites the line during the upload
    m_uploadDeviceId = camera->deviceId();
    const quint32 deviceId = m_uploadDeviceId;
    m_uploadProgress = new FirmwareUploadProgress(FirmwareUpload::expectedSeconds(camera->typeCode()), this,
                                                  [deviceId] { return FirmwareUpload::progress(deviceId); });
    m_uploadProgress->show();
    const QFuture<int> upload = FirmwareUpload::start(camera->deviceId());
    watcher->setFuture(upload);
    m_pendingUploads.append(upload);
}

void QCirroCameramanager::onFirmwareUploadFinished(int index)
{
    m_messagesEnabled = true;
    const PendingUploads::Outcome outcome = m_pendingUploads.collect(index);
    if (outcome.lastFinished) {
        m_pendingUploads.clear();
        closeUploadProgress();
    }
    // The outcome is written after the details update so that the status
    // assessment does not replace it at once.
    updateDetails(false);
    if (outcome.result != 0) {
        QMessageBox::critical(this, tr("Error"), tr("Firmware upload error! Return code: %1").arg(outcome.result),
                              QMessageBox::Ok);
        Printer(tr("Firmware upload error! %1").arg(outcome.result), Qt::red, false);
    } else if (outcome.lastFinished) {
        reportVerifiedUpload(m_uploadDeviceId);
    }
}

void QCirroCameramanager::reportVerifiedUpload(quint32 deviceId)
{
    QString running;
    const Result verified = FirmwareUpload::verify(deviceId, running);
    if (!verified.isSuccess()) {
        QMessageBox::critical(this, tr("Error"), verified.text(), QMessageBox::Ok);
        Printer(verified.text(), Qt::red, false);
        m_statusPanel->showOutcomeNote(verified.text(), Qt::red);
        return;
    }
    Printer(tr("Firmware upload successful!"), Qt::black, false);
    m_statusPanel->showOutcomeNote(tr("Device %1: firmware upload successful. The camera now runs starter firmware %2.")
                                       .arg(deviceId)
                                       .arg(running),
                                   Qt::darkGreen);
}

void QCirroCameramanager::closeUploadProgress()
{
    if (!m_uploadProgress)
        return;
    m_uploadProgress->setValue(m_uploadProgress->maximum());
    m_uploadProgress->deleteLater(); // its timer goes with it
    m_uploadProgress = nullptr;
}

void QCirroCameramanager::onMulticastDialog(const Camera& camera)
{
    (new MulticastDialog(camera, this))->exec(); // deletes itself when it closes
    updateDetails(false);
}

void QCirroCameramanager::onOpenComportDlg(const Camera& camera)
{
    ComDialog dialog(camera, m_cameraList->model()->cameraList(), this);
    dialog.exec();
    m_cameraList->refreshSelectedCamera(); // the saved port number shows in the details
    updateDetails(false);
}

void QCirroCameramanager::onWriteSupportFile()
{
    const std::optional<SupportFileSaveDialog::Answer> answer = SupportFileSaveDialog::ask(this);
    if (!answer)
        return;
    m_cameraList->setAutoRefresh(false);
    const auto revision = [](const Camera& camera) { return CameraRevision::query(camera.deviceId()); };
    QSettings settings = UserSettings::open();
    const Result saved = SupportFileWalk::writeFile(
        answer->path, SupportFileSources::gather(m_cameraList->model()->cameraList(), *m_services, revision),
        answer->redact ? std::optional<QByteArray>(SupportFileRedaction::installationSecret(settings)) : std::nullopt);
    m_cameraList->setAutoRefresh(m_controlArea->autoRefresh()->isChecked());
    if (!saved.isSuccess())
        QMessageBox::critical(this, tr("Save support file"), saved.text());
}

void QCirroCameramanager::onReadSupportFile()
{
    const QString path = QFileDialog::getOpenFileName(this, tr("Support file"), QString(), tr("Support files (*.bin)"));
    if (path.isEmpty())
        return;
    SupportFileDialog dialog(path, this);
    dialog.exec();
}

void QCirroCameramanager::deleteReadOnlyDevice(const Camera& camera)
{
    const QMessageBox::StandardButton answer = QMessageBox::question(
        this, tr("Delete read-only device"),
        tr("Delete the read-only device %1 (camera ID %2)?\nThe driver forgets it; it comes back only when it is "
           "added again with \"Add Readonly Device\".")
            .arg(camera.deviceId())
            .arg(camera.cameraId()),
        QMessageBox::Yes | QMessageBox::No, QMessageBox::No);
    if (answer != QMessageBox::Yes)
        return;
    const Result result = CameraActions::removeReadOnlyDevice(camera);
    if (!result.isSuccess())
        QMessageBox::critical(this, tr("Delete read-only device"), result.text());
}

void QCirroCameramanager::restoreSettings()
{
    QSettings settings(UserSettings::organisation(), UserSettings::application());
    settings.beginGroup(settingsGroup);
    restoreGeometry(settings.value(QStringLiteral("geometry")).toByteArray());
    QCheckBox* expertMode = m_controlArea->expertMode();
    QCheckBox* autoRefresh = m_controlArea->autoRefresh();
    expertMode->setChecked(settings.value(QStringLiteral("checkExpert"), false).toBool());
    autoRefresh->setEnabled(expertMode->isChecked());
    autoRefresh->setChecked(settings.value(QStringLiteral("checkRefresh"), false).toBool());
    if (expertMode->isChecked() && autoRefresh->isChecked())
        m_cameraList->setAutoRefresh(true);
}

void QCirroCameramanager::saveSettings() const
{
    QSettings settings(UserSettings::organisation(), UserSettings::application());
    settings.beginGroup(settingsGroup);
    settings.setValue(QStringLiteral("geometry"), saveGeometry());
    settings.setValue(QStringLiteral("checkExpert"), m_controlArea->expertMode()->isChecked());
    settings.setValue(QStringLiteral("checkRefresh"), m_controlArea->autoRefresh()->isChecked());
    settings.setValue(QStringLiteral("selectedLanguage"), m_languageSelector->currentData());
}

void QCirroCameramanager::showScenarioError()
{
    const QString error = SimulatedDriver::startScenarioError();
    if (!error.isEmpty()) {
        m_statusPanel->showOutcomeNote(
            tr("The scenario file was not loaded, so the simulated driver shows its built-in cameras: %1").arg(error),
            Qt::red);
    }
}
