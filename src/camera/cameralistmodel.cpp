#include "camera/cameralistmodel.h"

#include <QIcon>

#include <cstring>
#include <vector>

namespace {

const QString modelPrefix = QStringLiteral("CR");

bool usesListStatus(const Camera& camera)
{
    const Camera::Kind kind = camera.kind();
    return kind == Camera::Kind::Usb || kind == Camera::Kind::Sdk;
}

QString image(const char* name)
{
    return QStringLiteral(":/images/") + QLatin1String(name);
}

} // namespace

CameraListModel::CameraListModel(QObject* parent)
    : QAbstractTableModel(parent)
{
    retranslate();
    for (int number : {PV_EVENT_DEVICE_REMOVED, PV_EVENT_DEVICE_ARRIVED, PV_EVENT_DEVICE_CHANGED})
        events.setHandler(number, [this] { emit listChanged(); });
    // Emitted on the worker, so the refetch is queued to this object's thread.
    connect(this, &CameraListModel::listChanged, this, &CameraListModel::onCameraListChanged);
    fetchCameraList();
}

CameraListModel::~CameraListModel() = default;

int CameraListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : cameras.size();
}

int CameraListModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant CameraListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole)
        return QVariant();
    if (orientation == Qt::Vertical)
        return section;
    return section >= 0 && section < headers.size() ? QVariant(headers.at(section)) : QVariant();
}

QVariant CameraListModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= cameras.size())
        return QVariant();
    const Camera& camera = *cameras.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return displayText(camera, index.column());
    case Qt::DecorationRole:
        return index.column() == Free ? QVariant(icon(iconName(camera))) : QVariant();
    case cameraRole:
        return QVariant::fromValue(camera);
    default:
        return QVariant();
    }
}

QVariant CameraListModel::displayText(const Camera& camera, int column) const
{
    switch (column) {
    case Free: return freeText(camera);
    case Available: return availableText(camera);
    case Type: return typeText(camera);
    case CameraId: return camera.cameraId();
    case DeviceId: return camera.deviceId();
    case Model: return modelText(camera);
    case SerialNumber: return camera.serialNumber();
    default: return QVariant();
    }
}

QIcon CameraListModel::icon(const QString& name) const
{
    auto cached = icons.find(name);
    if (cached == icons.end())
        cached = icons.insert(name, QIcon(name));
    return *cached;
}

void CameraListModel::retranslate()
{
    headers = QStringList{tr("Free"), tr("Avail."), tr("Type"), tr("Cam. ID"), tr("Dev. ID"), tr("Model"),
                          tr("Ser. No.")};
    emit headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
    // The Free and Avail. texts are translated too.
    if (!cameras.isEmpty())
        emit dataChanged(index(0, 0), index(cameras.size() - 1, ColumnCount - 1), {Qt::DisplayRole});
}

void CameraListModel::onCameraListChanged()
{
    beginResetModel();
    fetchCameraList();
    endResetModel();
}

void CameraListModel::fetchCameraList()
{
    std::lock_guard lock(listMutex);
    QList<std::shared_ptr<Camera>> fetched;
    std::int32_t count = 0;
    if (pv_GetNumberOfCameras(&count) == PV_OK && count >= 1) {
        std::vector<unsigned char> buffer(std::size_t(count) * sizeof(pv_CameraListEntry)
                                          + PV_CAMERA_LIST_HEADER_SIZE);
        std::memcpy(buffer.data(), &count, sizeof count);
        if (pv_GetCameraList(buffer.data()) == PV_OK) {
            std::int32_t filled = 0;
            std::memcpy(&filled, buffer.data(), sizeof filled);
            for (std::int32_t i = 0; i < filled && i < count; ++i) {
                pv_CameraListEntry entry;
                std::memcpy(&entry, buffer.data() + PV_CAMERA_LIST_HEADER_SIZE + std::size_t(i) * sizeof entry,
                            sizeof entry);
                fetched.append(std::make_shared<Camera>(entry, 0));
            }
        }
    }
    cameras = std::move(fetched);
}

QString CameraListModel::typeText(const Camera& camera)
{
    switch (camera.kind()) {
    case Camera::Kind::Usb: return QStringLiteral("USB");
    case Camera::Kind::Eth: return QStringLiteral("ETH");
    case Camera::Kind::ReadOnly: return QStringLiteral("PMC");
    case Camera::Kind::Sdk:
        if (camera.typeCode() == 225)
            return QStringLiteral("U3V");
        if (camera.typeCode() == 226)
            return QStringLiteral("GEV");
        break;
    case Camera::Kind::Unknown: break;
    }
    return QStringLiteral("UNK");
}

QString CameraListModel::modelText(const Camera& camera)
{
    QString text = camera.fullModelName();
    return text.replace(modelPrefix, modelPrefix + QLatin1Char('-'));
}

QString CameraListModel::freeText(const Camera& camera)
{
    if (usesListStatus(camera))
        return camera.inUse() ? tr("No") : tr("Yes");
    if (!camera.isFree())
        return camera.isReachable() ? tr("Yes (BB)") : tr("No");
    return tr("Yes");
}

bool CameraListModel::isAvailable(const Camera& camera)
{
    if (camera.inUse())
        return false;
    if (usesListStatus(camera))
        return (camera.status() & 0xF) == 0;
    return camera.isReachable();
}

QString CameraListModel::availableText(const Camera& camera)
{
    return isAvailable(camera) ? tr("Yes") : tr("No");
}

QString CameraListModel::iconName(const Camera& camera)
{
    const Camera::Kind kind = camera.kind();
    const bool u3v = kind == Camera::Kind::Sdk && camera.typeCode() == 225;
    if (kind == Camera::Kind::Eth) {
        if (camera.isReachable())
            return camera.starterFirmware() != camera.driverFirmwareImage() ? image("eth_warning2.png")
                                                                             : image("eth_connect.png");
        return camera.isFree() ? image("eth_warning.png") : image("eth_disconnected.png");
    }
    if (kind == Camera::Kind::ReadOnly || kind == Camera::Kind::Unknown)
        return camera.inUse() ? image("eth_disconnected.png") : image("eth_connect.png");
    if (kind == Camera::Kind::Sdk && !u3v) {
        if (camera.status() & 0xF)
            return image("eth_warning.png");
        return camera.inUse() ? image("eth_disconnected.png") : image("eth_connect.png");
    }
    if (camera.linkSpeed() < 4000 && camera.isUsb3Family() && camera.deviceId() < PV_ETH_DEVICE_FIRST)
        return image("usb_warning.png");
    return camera.inUse() ? image("usb_disconnected.png") : image("usb_connect.png");
}
