#pragma once

#include "details/deviceinfoitem.h"
#include "details/deviceinfotreebuilder.h"
#include "details/localadapter.h"
#include "details/usbtopology.h"

#include <QAbstractItemModel>
#include <QFutureWatcher>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

class Camera;

// Everything known about one camera as a tree of "Parameter" and "Values". The
// tree's shape is built once per camera; later updates for the same camera only
// read the values again and report them as changed data, so that a view keeps
// its expanded rows and its selection.
class DeviceInfoModel final : public QAbstractItemModel
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(DeviceInfoModel)

public:
    // bool: whether a view opens the row when the tree has been built.
    static constexpr int expandedAtFirstRole = Qt::UserRole;

    explicit DeviceInfoModel(QObject* parent = nullptr,
                             LocalAdapter::HostLookup hostAdapters = &LocalAdapter::hostAdapter);
    ~DeviceInfoModel() override;

    QModelIndex index(int row, int column, const QModelIndex& parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

    // Where the USB topology is read from; the host's /sys unless tests say otherwise.
    void setSysfsRoot(const QString& root) { m_sysfsRoot = root; }
    std::shared_ptr<const UsbTopology> usbTopology() const { return m_topology; }

signals:
    // The tree should be updated with the current camera, rebuilt when force.
    void updateNeeded(bool force);

public slots:
    // No camera empties the tree. The tree is rebuilt when forced or when both
    // the camera ID and the serial number differ from the built camera's.
    void Update(const Camera* pCamera, bool force_reset);
    // Reads the host's USB tree again on the thread pool.
    void UpdateUSBTopology();
    void onUsbTreeUpdated();

private:
    struct Identity
    {
        quint32 cameraId = 0;
        QString serialNumber;
    };

    bool needsRebuild(const Camera& camera) const;
    void clear();
    void rebuild(const Camera& camera);
    void refresh(const Camera& camera);
    void reportValuesChanged(const DeviceInfoItem& parent);
    std::vector<DeviceInfoTreeBuilder::PathRow> pathRowsOf(const QString& location) const;
    DeviceInfoItem* itemOf(const QModelIndex& index) const;

    DeviceInfoItem m_root;
    std::optional<Identity> m_built;
    bool m_ethRows = false;
    QString m_usbLocation; // of the built USB camera
    std::vector<DeviceInfoTreeBuilder::PathRow> m_pathRows;
    LocalAdapter m_adapter;
    QString m_sysfsRoot = UsbTopology::defaultSysfsRoot;
    std::shared_ptr<const UsbTopology> m_topology;
    QFutureWatcher<std::shared_ptr<const UsbTopology>> m_usbTreeWatcher;
};
