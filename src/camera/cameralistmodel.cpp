#include "camera/cameralistmodel.h"

#include "camera/cameracelltexts.h"
#include "camera/cameralistreader.h"

#include <QIcon>

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
        return index.column() == Free ? QVariant(icon(CameraCellTexts::iconName(camera))) : QVariant();
    case cameraRole:
        return QVariant::fromValue(camera);
    default:
        return QVariant();
    }
}

QVariant CameraListModel::displayText(const Camera& camera, int column) const
{
    switch (column) {
    case Free: return CameraCellTexts::freeText(camera);
    case Available: return CameraCellTexts::availableText(camera);
    case Type: return CameraCellTexts::typeText(camera);
    case CameraId: return camera.cameraId();
    case DeviceId: return camera.deviceId();
    case Model: return CameraCellTexts::modelText(camera);
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
    cameras = CameraListReader::read();
}
