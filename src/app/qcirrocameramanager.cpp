#include "app/qcirrocameramanager.h"

#include "app/elevation.h"
#include "app/identity.h"
#include "app/languagecatalog.h"
#include "app/startupimages.h"
#include "app/unsupportedmodels.h"
#include "app/viewerlauncher.h"
#include "camera/cameraactions.h"
#include "camera/cameralist.h"
#include "camera/cameratableview.h"
#include "camera/statusassessment.h"
#include "common/servicemanager.h"
#include "details/deviceinfoview.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QMessageBox>
#include <QMovie>
#include <QPushButton>
#include <QSettings>
#include <QStandardItemModel>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>

namespace {

using Command = ControlStates::Command;

const QString settingsGroup = QStringLiteral("mainWindow");
constexpr int busyIndicatorMaxWidth = 38;
constexpr int statusMinimumHeight = 60;
constexpr int cameraPictureSize = 96;
// The first start's size; later starts restore the user's geometry.
constexpr QSize defaultSize(960, 780);

QPushButton* button(const char* objectName, QWidget* parent)
{
    auto* b = new QPushButton(parent);
    b->setObjectName(QLatin1String(objectName));
    return b;
}

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

QString fontColoured(const QString& colour, const QString& text)
{
    return QStringLiteral("<font color='%1'>%2</font>").arg(colour, text);
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
    , m_services(environment.services ? std::move(environment.services) : ServiceManager::create())
{
    setObjectName(QStringLiteral("mainWindow"));
    createWidgets();
    setWindowIcon(StartupImages::icon(QStringLiteral(":/images/Cirro Manager.ico")));
    buildLayout();
    makeConnections();
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
}

QCirroCameramanager::~QCirroCameramanager()
{
    saveSettings();
}

void QCirroCameramanager::createWidgets()
{
    auto* central = new QWidget(this);
    setCentralWidget(central);
    m_serviceTimer = new QTimer(this);
    m_logo = new QLabel(central);
    m_logo->setObjectName(QStringLiteral("logo"));
    m_logo->setPixmap(StartupImages::icon(QStringLiteral(":/images/logo_parvel.png")).pixmap(QSize(160, 48)));
    m_logo->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    m_cameraListGroup = new QGroupBox(central);
    m_controlGroup = new QGroupBox(central);
    m_bottomGroup = new QGroupBox(central);
    m_statusGroup = new QGroupBox(central);
    m_expertMode = new QCheckBox(m_controlGroup);
    m_expertMode->setObjectName(QStringLiteral("expertMode"));
    m_autoRefresh = new QCheckBox(m_controlGroup);
    m_autoRefresh->setObjectName(QStringLiteral("autoRefresh"));
    m_autoRefresh->setEnabled(false);
    m_generalInfo = button("generalInformation", m_controlGroup);
    m_cameraInfo = button("cameraInformation", m_controlGroup);
    m_supportFile = button("createSupportFile", m_controlGroup);
    m_ethService = button("ethNetworkService", m_controlGroup);
    m_additionalFunctions = button("additionalFunctions", m_controlGroup);
    m_autoEthConfig = button("automaticEthConfiguration", m_controlGroup);
    m_uploadFirmware = button("uploadStarterFirmware", m_controlGroup);
    m_manualEthConfig = button("manualEthConfiguration", m_controlGroup);
    m_close = button("close", m_bottomGroup);
    // Their features are not part of this build; they stay out of the layout.
    m_readSupportFile = button("readSupportFile", central);
    m_readSupportFile->hide();
    m_addCameraInfo = button("additionalCameraInfo", central);
    m_addCameraInfo->hide();
    m_languageSelector = new QComboBox(m_bottomGroup);
    m_languageSelector->setObjectName(QStringLiteral("languageSelector"));
    // Sized from the label lengths rather than by measuring every entry:
    // measuring would load a font for each script, which only the open list needs.
    m_languageSelector->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_bottomLeftLabel = new QLabel(m_bottomGroup);
    m_bottomLeftLabel->setAlignment(m_logo->alignment());
    m_busyIndicator = new QLabel(m_statusGroup);
    m_busyIndicator->setObjectName(QStringLiteral("busyIndicator"));
    m_busyIndicator->setMaximumWidth(busyIndicatorMaxWidth);
    m_busyIndicator->hide();
    m_statusText = new QLabel(m_statusGroup);
    m_statusText->setObjectName(QStringLiteral("statusText"));
    m_statusText->setWordWrap(true);
    m_statusText->setMinimumHeight(statusMinimumHeight);
    m_secondStatusLine = new QLabel(m_statusGroup);
    m_secondStatusLine->setObjectName(QStringLiteral("secondStatusLine"));
    m_secondStatusLine->setWordWrap(true);
    m_secondStatusLine->hide();
    m_cameraPicture = new QLabel(m_statusGroup);
    m_cameraPicture->setObjectName(QStringLiteral("cameraPicture"));
    m_cameraPicture->setFixedSize(cameraPictureSize, cameraPictureSize);
    m_cameraPicture->setAlignment(Qt::AlignCenter);
    if (Elevation::isElevated()) {
        m_privilegeWarning = new QLabel(m_statusGroup);
        m_privilegeWarning->setObjectName(QStringLiteral("privilegeWarning"));
        m_privilegeWarning->setWordWrap(true);
    }
    m_detailsGroup = new QGroupBox(central);
    m_detailsGroup->setObjectName(QStringLiteral("deviceDetails"));
    m_detailsGroup->hide();
    m_deviceDetails = new DeviceInfoView(m_detailsGroup);
    m_deviceDetails->setObjectName(QStringLiteral("deviceDetailsView"));
    (new QVBoxLayout(m_detailsGroup))->addWidget(m_deviceDetails);

    m_commandButtons = {{Command::GeneralInformation, m_generalInfo},
                        {Command::CameraInformation, m_cameraInfo},
                        {Command::SupportFile, m_supportFile},
                        {Command::EthService, m_ethService},
                        {Command::AdditionalFunctions, m_additionalFunctions},
                        {Command::AutomaticEthConfiguration, m_autoEthConfig},
                        {Command::UploadFirmware, m_uploadFirmware},
                        {Command::ManualEthConfiguration, m_manualEthConfig}};
}

void QCirroCameramanager::buildLayout()
{
    auto* listLayout = new QVBoxLayout(m_cameraListGroup);
    m_cameraList = new CameraList(m_cameraListGroup, this);
    CameraList::HostAbilities abilities;
    abilities.elevated = Elevation::isElevated();
    m_cameraList->setHostAbilities(abilities);
    listLayout->addWidget(m_cameraList->view());

    auto* leftColumn = new QVBoxLayout;
    leftColumn->addWidget(m_cameraListGroup, 1);
    leftColumn->addWidget(buildControlArea());
    leftColumn->addWidget(buildBottomGroup());
    leftColumn->addWidget(buildStatusGroup());

    auto* central = new QHBoxLayout(centralWidget());
    central->addLayout(leftColumn, 1);
    central->addWidget(m_detailsGroup, 1);
    setTabOrder();
}

QWidget* QCirroCameramanager::buildControlArea()
{
    auto* grid = new QGridLayout(m_controlGroup);
    const QList<QPair<QWidget*, QWidget*>> rows{{m_expertMode, m_autoRefresh},
                                                {m_generalInfo, m_cameraInfo},
                                                {m_supportFile, m_ethService},
                                                {m_additionalFunctions, m_autoEthConfig},
                                                {m_uploadFirmware, m_manualEthConfig}};
    for (int row = 0; row < rows.size(); ++row) {
        grid->addWidget(rows.at(row).first, row, 0);
        grid->addWidget(rows.at(row).second, row, 1);
    }
    return m_controlGroup;
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

QWidget* QCirroCameramanager::buildStatusGroup()
{
    auto* grid = new QGridLayout(m_statusGroup);
    grid->addWidget(m_busyIndicator, 0, 0);
    grid->addWidget(m_statusText, 0, 1);
    grid->addWidget(m_secondStatusLine, 1, 1);
    if (m_privilegeWarning)
        grid->addWidget(m_privilegeWarning, 2, 1);
    grid->addWidget(m_cameraPicture, 0, 2, 3, 1, Qt::AlignTop);
    grid->setColumnStretch(1, 1);
    return m_statusGroup;
}

void QCirroCameramanager::setTabOrder()
{
    const QList<QWidget*> order{m_expertMode,  m_autoRefresh, m_generalInfo,     m_cameraInfo,
                                m_supportFile, m_ethService,  m_manualEthConfig, m_additionalFunctions};
    for (int i = 1; i < order.size(); ++i)
        QWidget::setTabOrder(order.at(i - 1), order.at(i));
}

void QCirroCameramanager::makeConnections()
{
    connect(m_serviceTimer, &QTimer::timeout, this, &QCirroCameramanager::onServiceTimer);
    connect(m_expertMode, &QCheckBox::stateChanged, this, [this](int state) { enableExpertView(state != 0); });
    connect(m_autoRefresh, &QCheckBox::clicked, m_cameraList, &CameraList::setAutoRefresh);
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
    connect(m_cameraList, &CameraList::openCamera, this, &QCirroCameramanager::onOpenCamera);
    connect(m_cameraList, &CameraList::identCamera, this, &QCirroCameramanager::onIdentifyCamera);
    connect(m_cameraList, &CameraList::deletePMC, m_cameraList,
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
    const QString stored = QSettings(Identity::settingsOrganisation(), Identity::settingsApplication())
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
    m_controlGroup->setTitle(tr("Control area"));
    const QList<std::tuple<QAbstractButton*, QString, QString>> texts{
        {m_expertMode, tr("Expert mode"), tr("Show/hide detailed information view")},
        {m_autoRefresh, tr("Automatic parameter refresh"),
         tr("Enables/Disables the automatic refresh of the detailed information view")},
        {m_cameraInfo, tr("Camera information"), tr("Show additional camera information")},
        {m_generalInfo, tr("General information"), tr("Show general information dialog")},
        {m_uploadFirmware, tr("Upload starter firmware"), tr("Upload a runtime firmware manually")},
        {m_supportFile, tr("Create support file"),
         tr("Create a support file with important system\n and %1 information for sending to the %2 support")
             .arg(Identity::productLineName(), Identity::organisationName())},
        {m_ethService, tr("ETH network service"), tr("Show network configuration dialog")},
        {m_additionalFunctions, tr("Additional functions"), QString()},
        {m_manualEthConfig, tr("Manual ETH configuration"), tr("Show network device configuration dialog")},
        {m_autoEthConfig, tr("Automatic ETH configuration"), tr("Automatic network configuration")},
        {m_close, tr("Close"), tr("Quits the application window")},
        {m_readSupportFile, tr("Read support file"), QString()},
        {m_addCameraInfo, tr("Additional Camera Info"), tr("Show additional camera information")}};
    for (const auto& [widget, text, tip] : texts) {
        widget->setText(text);
        widget->setToolTip(tip);
    }
    m_detailsGroup->setTitle(tr("Device details"));
    setWindowTitle(tr("%1 Camera Manager").arg(Identity::makerShortName()));
    if (m_privilegeWarning) {
        m_privilegeWarning->setText(
            QStringLiteral("<b>%1</b>")
                .arg(fontColoured(QStringLiteral("#FF0000"), tr("The %1 Camera Manager is running with root privileges!")
                                                                 .arg(Identity::makerShortName()))));
    }
    updateDetails(false);
}

void QCirroCameramanager::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LocaleChange) {
        const QString system = LanguageCatalog::defaultLanguage();
        m_languages.load(system);
    } else if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
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
    UpdateControls();
    emit CirrodStatusChanged(m_serviceStates);
}

void QCirroCameramanager::enableExpertView(bool enable)
{
    m_detailsGroup->setVisible(enable);
    m_autoRefresh->setEnabled(enable);
    if (!enable) {
        m_cameraList->setAutoRefresh(false);
        return;
    }
    m_cameraList->refreshSelectedCamera();
    updateDetails(true);
    m_cameraList->setAutoRefresh(m_autoRefresh->isChecked());
}

void QCirroCameramanager::onCurrentCameraChanged(const camera::optional<Camera>& camera, bool force)
{
    UpdateDeviceInfo(camera ? &*camera : nullptr, force);
}

void QCirroCameramanager::onCameraListChanged()
{
    if (!m_expertMode->isChecked())
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
    showStatus(camera);
    updateButtons(camera);
}

void QCirroCameramanager::showStatus(const Camera* camera)
{
    const StatusAssessment status = StatusAssessment::of(camera, UnsupportedModels::list());
    Printer(status.message, status.colour, false);
    if (!camera)
        m_cameraPicture->clear();
    else if (!status.picture.isEmpty())
        m_cameraPicture->setPixmap(QIcon(status.picture).pixmap(QSize(cameraPictureSize, cameraPictureSize)));
    m_secondStatusLine->setText(fontColoured(QStringLiteral("red"), status.unsupportedWarning));
    m_secondStatusLine->setVisible(!status.unsupportedWarning.isEmpty());
}

void QCirroCameramanager::updateButtons(const Camera* camera)
{
    const bool ethInstalled = m_serviceStates.eth != CoreStates::NotInstalled;
    const QSet<Command> usable = ControlStates::usable(camera, ethInstalled);
    for (auto it = m_commandButtons.cbegin(); it != m_commandButtons.cend(); ++it)
        it.value()->setEnabled(m_handledCommands.contains(it.key()) && usable.contains(it.key()));
}

void QCirroCameramanager::Printer(const QString& text, const QColor& textcolour, bool bShowProgress)
{
    if (!m_messagesEnabled)
        return;
    m_statusText->setText(fontColoured(textcolour.name(), text));
    if (bShowProgress) {
        // Made on first use: decoding the animation costs start-up time.
        if (!m_busyMovie) {
            m_busyMovie = new QMovie(QStringLiteral(":/images/indicator.gif"), QByteArray(), this);
            m_busyIndicator->setMovie(m_busyMovie);
        }
        m_busyMovie->start();
        m_busyIndicator->show();
    } else {
        if (m_busyMovie)
            m_busyMovie->stop();
        m_busyIndicator->hide();
    }
}

void QCirroCameramanager::onOpenCamera(const QList<Camera>& cameras)
{
    for (const Camera& camera : cameras) {
        if (!camera.inUse())
            ViewerLauncher::open(camera);
    }
}

void QCirroCameramanager::onIdentifyCamera(const Camera& camera)
{
    CameraActions::identify(camera);
}

void QCirroCameramanager::deleteReadOnlyDevice(const Camera& camera)
{
    const std::int32_t result = CameraActions::removeReadOnlyDevice(camera);
    if (result != PV_OK) {
        QMessageBox::critical(this, tr("Delete read-only device"),
                              tr("The read-only device could not be removed.\nReturn code: %1").arg(result));
    }
}

void QCirroCameramanager::restoreSettings()
{
    QSettings settings(Identity::settingsOrganisation(), Identity::settingsApplication());
    settings.beginGroup(settingsGroup);
    restoreGeometry(settings.value(QStringLiteral("geometry")).toByteArray());
    m_expertMode->setChecked(settings.value(QStringLiteral("checkExpert"), false).toBool());
    m_autoRefresh->setEnabled(m_expertMode->isChecked());
    m_autoRefresh->setChecked(settings.value(QStringLiteral("checkRefresh"), false).toBool());
    if (m_expertMode->isChecked() && m_autoRefresh->isChecked())
        m_cameraList->setAutoRefresh(true);
}

void QCirroCameramanager::saveSettings() const
{
    QSettings settings(Identity::settingsOrganisation(), Identity::settingsApplication());
    settings.beginGroup(settingsGroup);
    settings.setValue(QStringLiteral("geometry"), saveGeometry());
    settings.setValue(QStringLiteral("checkExpert"), m_expertMode->isChecked());
    settings.setValue(QStringLiteral("checkRefresh"), m_autoRefresh->isChecked());
    settings.setValue(QStringLiteral("selectedLanguage"), m_languageSelector->currentData());
}
