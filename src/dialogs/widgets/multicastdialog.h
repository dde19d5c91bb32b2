#pragma once

#include "camera/camera.h"

#include <QDialog>

class QComboBox;
class QSpinBox;

// "Add multicast": adds a read-only device that receives the camera's
// multicast stream. The new device appears with the list's next refresh.
class MulticastDialog final : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(MulticastDialog)

public:
    MulticastDialog(const Camera& camera, QWidget* parent = nullptr);

public slots:
    // Sends the request; a refusal is shown with the driver's code. The
    // dialog closes either way.
    void addPMC();

private:
    Camera m_camera;
    QSpinBox* m_cameraId = nullptr;
    QComboBox* m_errorHandling = nullptr;
};
