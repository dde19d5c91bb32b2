#include "camera/widgets/cameralist.h"

#include "camera/cameracelltexts.h"
#include "camera/cameralistmodel.h"
#include "camera/cameratableproxy.h"
#include "camera/widgets/cameratableview.h"

#include <QMenu>
#include <QTimer>

namespace {

using Command = ControlStates::Command;

constexpr quint8 sdkGigETypeCode = 226;
constexpr quint8 cameraInfoFeatureTypeCode = 0x40;

bool isGigELike(const Camera& camera)
{
    return camera.kind() == Camera::Kind::Eth || camera.typeCode() == sdkGigETypeCode;
}

} // namespace

CameraList::CameraList(QWidget* viewParent, QObject* parent)
    : QObject(parent)
{
    m_proxy = new CameraTableProxy(this);
    m_view = new CameraTableView(viewParent);
    connect(m_view, &CameraTableView::selectedCameraChanged, this, &CameraList::onSelectedCameraChanged);

    m_timer = new QTimer(this);
    connect(m_timer, &QTimer::timeout, this, &CameraList::onTimeout);

    m_view->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_view, &QWidget::customContextMenuRequested, this, &CameraList::onCustomContextMenu);
    // The view makes a row current before it reports an activation.
    connect(m_view, &QAbstractItemView::activated, this,
            [this] { emit openCamera(QList<Camera>{m_selectedCamera.value()}); });

    m_model = new CameraListModel(this);
    m_proxy->setSourceModel(m_model);
    m_view->setModel(m_proxy);
    m_view->sortByColumn(CameraListModel::DeviceId, Qt::AscendingOrder);

    connect(m_view, &CameraTableView::retranslationRequested, m_model, &CameraListModel::retranslate);
    connect(m_view, &CameraTableView::retranslationRequested, m_view, &CameraTableView::fitColumns);
    connect(m_model, &CameraListModel::listChanged, this, &CameraList::cameraListChanged);
    connect(m_model, &QAbstractItemModel::modelReset, m_view, &CameraTableView::fitColumns);
    connect(m_proxy, &QAbstractItemModel::modelReset, this, &CameraList::reselectAfterReset);
    m_view->fitColumns();
}

CameraList::~CameraList() = default;

QList<Camera> CameraList::availableCameras() const
{
    QList<Camera> available;
    for (const std::shared_ptr<Camera>& camera : m_model->cameraList()) {
        if (CameraCellTexts::isAvailable(*camera))
            available.append(*camera);
    }
    return available;
}

void CameraList::setUpdatesSuspended(bool suspended)
{
    m_model->blockSignals(suspended);
    if (!suspended)
        m_model->onCameraListChanged();
}

void CameraList::setAutoRefresh(bool enabled)
{
    if (enabled)
        m_timer->start(refreshIntervalMs);
    else
        m_timer->stop();
}

bool CameraList::isAutoRefreshOn() const
{
    return m_timer->isActive();
}

void CameraList::onSelectedCameraChanged(const camera::optional<Camera>& camera)
{
    m_selectedCamera = camera;
    emit cameraChanged(m_selectedCamera);
}

void CameraList::refreshSelectedCamera()
{
    if (m_selectedCamera)
        m_selectedCamera->refreshDeviceInformation();
}

void CameraList::onTimeout()
{
    if (!m_selectedCamera)
        return;
    refreshSelectedCamera();
    emit cameraChanged(m_selectedCamera);
}

void CameraList::onCustomContextMenu(const QPoint& pos)
{
    QMenu* menu = createContextMenu().release();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->popup(m_view->viewport()->mapToGlobal(pos));
}

std::unique_ptr<QMenu> CameraList::createContextMenu()
{
    auto menu = std::make_unique<QMenu>(m_view);
    menu->setObjectName(QStringLiteral("cameraContextMenu"));
    menu->setToolTipsVisible(true);
    const camera::optional<Camera> camera = m_selectedCamera;

    if (camera && !camera->inUse()) {
        addEntry(*menu, tr("&Open this camera"), Command::OpenCamera, &CameraList::openCamera, QList<Camera>{*camera})
            ->setIcon(QIcon(QStringLiteral(":/images/openplay.png")));
    }
    QAction* all = menu->addAction(tr("Open &all available cameras"), this,
                                   [this] { emit openCamera(availableCameras()); });
    all->setEnabled(isHandled(Command::OpenCamera));
    menu->addSeparator();
    if (camera)
        addCameraActions(*menu, *camera);
    menu->addAction(tr("&Refresh list"), this, &CameraList::refetch);
    if (camera)
        addNetworkActions(*menu, *camera);
    return menu;
}

void CameraList::addCameraActions(QMenu& menu, const Camera& camera)
{
    addEntry(menu, tr("&Identify this camera"), Command::IdentifyCamera, &CameraList::identCamera, camera);
    if (camera.inUse())
        return;
    menu.addSeparator();
    QAction* info =
        addEntry(menu, tr("&Camera information"), Command::CameraInformation, &CameraList::openCameraInfo, camera);
    info->setEnabled(info->isEnabled() && cameraInfoEnabled(camera));
    menu.addSeparator();
}

void CameraList::addNetworkActions(QMenu& menu, const Camera& camera)
{
    if (isGigELike(camera)) {
        QAction* ip = addEntry(menu, tr("Manual ETH configuration"), Command::ManualEthConfiguration,
                               &CameraList::openIPSettings, camera);
        ip->setEnabled(ip->isEnabled() && m_abilities.networkToolsAvailable && camera.isAddressAccessible()
                       && camera.typeCode() != sdkGigETypeCode);
        addEntry(menu, tr("&Add Readonly Device"), Command::AddReadOnlyDevice, &CameraList::openMulticastSettings,
                 camera);
    }
    if (camera.kind() == Camera::Kind::ReadOnly)
        addEntry(menu, tr("&Delete"), Command::DeleteReadOnlyDevice, &CameraList::deletePMC, camera);
    if (camera.isComPortCapable() && m_abilities.comPortSupportInstalled) {
        menu.addSeparator();
        QAction* com = addEntry(menu, tr("COM port configuration"), Command::ComPortConfiguration,
                                &CameraList::openComportDlg, camera);
        com->setEnabled(com->isEnabled() && m_abilities.elevated);
        if (!m_abilities.elevated)
            com->setToolTip(tr("Restart with elevated privileges!"));
    }
}

bool CameraList::cameraInfoEnabled(const Camera& camera) const
{
    return camera.isUsb3Family()
           || (camera.typeCode() == cameraInfoFeatureTypeCode && camera.hasCameraInfoFeature());
}

void CameraList::refetch()
{
    m_model->onCameraListChanged();
    emit cameraListChanged();
}

void CameraList::reselectAfterReset()
{
    if (m_selectedCamera && !selectDevice(m_selectedCamera->deviceId()))
        onSelectedCameraChanged(std::nullopt);
}

bool CameraList::selectDevice(quint32 deviceId)
{
    const QList<std::shared_ptr<Camera>>& cameras = m_model->cameraList();
    for (int row = 0; row < cameras.size(); ++row) {
        if (cameras.at(row)->deviceId() == deviceId) {
            m_view->setCurrentIndex(m_proxy->mapFromSource(m_model->index(row, 0)));
            return true;
        }
    }
    return false;
}
