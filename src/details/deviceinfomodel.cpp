#include "details/deviceinfomodel.h"

#include "camera/camera.h"

#include <QThreadPool>
#include <QtConcurrent>

namespace {

constexpr int labelColumn = 0;
constexpr int valueColumn = 1;
constexpr int columns = 2;

} // namespace

DeviceInfoModel::DeviceInfoModel(QObject* parent, LocalAdapter::HostLookup hostAdapters)
    : QAbstractItemModel(parent)
    , m_adapter(std::move(hostAdapters))
{
    connect(&m_usbTreeWatcher, &QFutureWatcherBase::finished, this, &DeviceInfoModel::onUsbTreeUpdated);
}

// A topology job still running finishes unwatched; its snapshot is dropped.
DeviceInfoModel::~DeviceInfoModel()
{
    // The topology job must not outlive the model that waits for its result.
    m_usbTreeWatcher.waitForFinished();
}

QModelIndex DeviceInfoModel::index(int row, int column, const QModelIndex& parent) const
{
    if (column < 0 || column >= columns || (parent.isValid() && parent.column() != labelColumn))
        return QModelIndex();
    DeviceInfoItem* item = itemOf(parent)->child(row);
    return item ? createIndex(row, column, item) : QModelIndex();
}

QModelIndex DeviceInfoModel::parent(const QModelIndex& child) const
{
    if (!child.isValid())
        return QModelIndex();
    DeviceInfoItem* parent = itemOf(child)->parent();
    return parent && parent != &m_root ? createIndex(parent->row(), labelColumn, parent) : QModelIndex();
}

int DeviceInfoModel::rowCount(const QModelIndex& parent) const
{
    return parent.column() > labelColumn ? 0 : itemOf(parent)->childCount();
}

int DeviceInfoModel::columnCount(const QModelIndex&) const
{
    return columns;
}

QVariant DeviceInfoModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return QVariant();
    const DeviceInfoItem* item = itemOf(index);
    if (role == Qt::DisplayRole)
        return index.column() == labelColumn ? QVariant(item->label()) : item->value();
    // Long values (controller names) are cut off in a narrow column.
    if (role == Qt::ToolTipRole && index.column() == valueColumn)
        return item->value();
    if (role == expandedAtFirstRole && index.column() == labelColumn)
        return item->expandedAtFirst();
    return QVariant();
}

QVariant DeviceInfoModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QVariant();
    switch (section) {
    case labelColumn:
        return tr("Parameter");
    case valueColumn:
        return tr("Values");
    default:
        return QVariant();
    }
}

void DeviceInfoModel::Update(const Camera* pCamera, bool force_reset)
{
    if (!pCamera)
        clear();
    else if (force_reset || needsRebuild(*pCamera))
        rebuild(*pCamera);
    else
        refresh(*pCamera);
}

void DeviceInfoModel::UpdateUSBTopology()
{
    const QString root = m_sysfsRoot;
    // A job already running is left to finish unwatched.
    m_usbTreeWatcher.setFuture(
        QtConcurrent::run(QThreadPool::globalInstance(), [root] { return UsbTopology::build(root); }));
}

void DeviceInfoModel::onUsbTreeUpdated()
{
    if (m_usbTreeWatcher.isCanceled() || m_usbTreeWatcher.future().resultCount() == 0)
        return;
    m_topology = m_usbTreeWatcher.result();
    // The path rows are part of the tree's shape.
    if (m_built && !m_ethRows && pathRowsOf(m_usbLocation) != m_pathRows)
        emit updateNeeded(true);
}

bool DeviceInfoModel::needsRebuild(const Camera& camera) const
{
    return !m_built
           || (camera.cameraId() != m_built->cameraId && camera.serialNumber() != m_built->serialNumber);
}

void DeviceInfoModel::clear()
{
    if (!m_built)
        return;
    beginResetModel();
    m_root.removeChildren();
    m_built.reset();
    m_pathRows.clear();
    m_usbLocation.clear();
    endResetModel();
}

void DeviceInfoModel::rebuild(const Camera& camera)
{
    beginResetModel();
    m_root.removeChildren();
    m_built = Identity{camera.cameraId(), camera.serialNumber()};
    m_ethRows = DeviceInfoTreeBuilder::usesEthRows(camera);
    const DeviceInfoTreeBuilder builder(m_adapter);
    if (m_ethRows) {
        m_adapter.resolve(camera, true);
        builder.buildEth(m_root);
    } else {
        m_usbLocation = camera.usbLocation();
        m_pathRows = pathRowsOf(m_usbLocation);
        builder.buildUsb(m_root, m_pathRows);
    }
    m_root.readValues(camera);
    endResetModel();
    // The first USB camera shown brings the host's USB tree in.
    if (!m_ethRows && !m_topology && !m_usbTreeWatcher.isRunning())
        UpdateUSBTopology();
}

void DeviceInfoModel::refresh(const Camera& camera)
{
    if (m_ethRows)
        m_adapter.resolve(camera, false);
    m_root.readValues(camera);
    reportValuesChanged(m_root);
}

// One notice per group of sibling rows: a change range never spans parents.
void DeviceInfoModel::reportValuesChanged(const DeviceInfoItem& parent)
{
    const int rows = parent.childCount();
    if (rows == 0)
        return;
    const QModelIndex parentIndex = &parent == &m_root
        ? QModelIndex()
        : createIndex(parent.row(), labelColumn, const_cast<DeviceInfoItem*>(&parent));
    emit dataChanged(index(0, valueColumn, parentIndex), index(rows - 1, valueColumn, parentIndex));
    for (int row = 0; row < rows; ++row)
        reportValuesChanged(*parent.child(row));
}

std::vector<DeviceInfoTreeBuilder::PathRow> DeviceInfoModel::pathRowsOf(const QString& location) const
{
    return DeviceInfoTreeBuilder::pathRows(m_topology ? m_topology->locate(location) : std::nullopt);
}

DeviceInfoItem* DeviceInfoModel::itemOf(const QModelIndex& index) const
{
    return index.isValid() ? static_cast<DeviceInfoItem*>(index.internalPointer())
                           : const_cast<DeviceInfoItem*>(&m_root);
}
