#pragma once

#include "camera/camera.h"
#include "dialogs/widgets/camerainfopage.h"

#include <memory>

class QLabel;
class QPushButton;
class QSpinBox;

// "Camera ID": the ID stored in the camera, and writing a new one. Warns
// when another listed camera has the chosen ID.
class CameraInfoIdPage final : public CameraInfoPage
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CameraInfoIdPage)

public:
    CameraInfoIdPage(quint32 handle, quint32 deviceId, QList<std::shared_ptr<Camera>> listed, QWidget* parent);

    Result load() override;
    QString title() const override { return tr("Camera ID"); }

private slots:
    void onWrite();
    void onIdChanged(int id);

private:
    void showCurrent(quint32 id);

    quint32 m_deviceId;
    QList<std::shared_ptr<Camera>> m_listed;
    QLabel* m_current = nullptr;
    QSpinBox* m_newId = nullptr;
    QPushButton* m_write = nullptr;
    QLabel* m_warning = nullptr;
};
