#pragma once

#include "camera/asyncevent.h"
#include "camera/camera.h"

#include <QAbstractTableModel>
#include <QHash>
#include <QIcon>
#include <QList>
#include <QStringList>

#include <memory>
#include <mutex>

// The table of all cameras the driver reports. It fetches the list again on
// every device-list event of the driver: the event thread only emits
// listChanged(), which reaches the GUI thread as a queued call.
class CameraListModel final : public QAbstractTableModel
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CameraListModel)

public:
    using AsyncEvent = ::AsyncEvent;

    enum Column { Free, Available, Type, CameraId, DeviceId, Model, SerialNumber, ColumnCount };
    static constexpr std::uint32_t stopEventNumber = 10000;
    static constexpr int cameraRole = Qt::UserRole;

    // Throws CirroException when the driver refuses the device-list events.
    explicit CameraListModel(QObject* parent = nullptr);
    ~CameraListModel() override;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    const QList<std::shared_ptr<Camera>>& cameraList() const { return cameras; }

signals:
    // Emitted from the event thread for every device-list event.
    void listChanged();

public slots:
    void retranslate();
    void onCameraListChanged();

private:
    void fetchCameraList();
    QVariant displayText(const Camera& camera, int column) const;
    QIcon icon(const QString& name) const;

    // Destroyed in reverse: the dispatcher stops first, the texts go last.
    QStringList headers;
    // Decoded once: the view asks for every visible row on each paint and size hint.
    mutable QHash<QString, QIcon> icons;
    QList<std::shared_ptr<Camera>> cameras;
    std::mutex listMutex;
    AsyncEvent events{stopEventNumber};
};
