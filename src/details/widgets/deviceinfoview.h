#pragma once

#include <QTreeView>

class Camera;
class DeviceInfoModel;
class QAction;

// The device details tree of the main window. It opens the rows that matter
// whenever the tree is built and copies the selected rows' texts on request.
class DeviceInfoView final : public QTreeView
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(DeviceInfoView)

public:
    explicit DeviceInfoView(QWidget* parent = nullptr);

    DeviceInfoModel* deviceInfoModel() const { return m_model; }
    // Wide enough for the open rows' labels and values, and for those of a
    // typical camera while the tree is empty or small.
    QSize sizeHint() const override;
    QAction* copyAction() const { return m_copyAction; }

signals:
    // The owner should update the view with its current camera; force rebuilds.
    void updateNeeded(bool force);

public slots:
    void Update(const Camera* pCamera, bool force_reset);
    void UpdateUsbTopology();
    void onCustomContextMenu(const QPoint& pos);
    // Selected texts, a tab between cells of one row, a line feed between rows.
    void copyValues();

protected:
    void changeEvent(QEvent* event) override;

private:
    void retranslate();
    void showBuiltTree();
    void expandAsBuilt(const QModelIndex& parent);

    DeviceInfoModel* m_model;
    QAction* m_copyAction;
};
