#pragma once

#include "camera/camera.h"
#include "dialogs/adapterstatisticssource.h"
#include "dialogs/revisionrecord.h"

#include <QDialog>

#include <memory>

class AdapterStatisticsModel;
class QLabel;
class QTableView;
class QTimer;
class QTreeWidget;

// "Additional Camera Info": the camera's revision record and, for a GigE
// camera, the counters of the network adapter that serves it, refreshed
// every second with their change since the dialog opened.
class AdditionalCameraInfo final : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(AdditionalCameraInfo)

public:
    static constexpr int refreshIntervalMs = 1000;

    // Reads the revision record by opening the camera for a moment. A GigE
    // camera's counters come from `statistics`, or, when null, from the
    // source that fits the camera API library.
    AdditionalCameraInfo(const Camera& camera, QWidget* parent = nullptr,
                         std::unique_ptr<AdapterStatisticsSource> statistics = nullptr);
    ~AdditionalCameraInfo() override;

    QString text() const;

public slots:
    void onRefresh();
    void onCopy();

private:
    QWidget* buildRevisionGroup();
    QWidget* buildStatisticsGroup(std::unique_ptr<AdapterStatisticsSource> statistics);
    void readRevisionRecord();

    Camera m_camera;
    RevisionRecord m_revision;
    QString m_revisionFailure;
    QTreeWidget* m_revisionView = nullptr;
    AdapterStatisticsModel* m_statistics = nullptr;
    QTableView* m_statisticsView = nullptr;
    QLabel* m_statisticsNote = nullptr;
    QTimer* m_timer = nullptr;
};
