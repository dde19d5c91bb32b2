#pragma once

#include "camera/camera.h"

#include <QDialog>

#include <memory>

class CameraInfoPage;
class OpenedCamera;
class QTabWidget;

// "Camera information": the maintenance pages of one camera (camera ID,
// user EEPROM, parameter sets, FPN calibration, liquid lens), each shown
// only when the camera has the function. The camera stays open while the
// dialog runs. Keeps its geometry and last page in the settings group
// "cameraInfo".
class CameraInfo final : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CameraInfo)

public:
    // listed: the cameras of the list, to warn about a camera ID in use.
    CameraInfo(const Camera& camera, QList<std::shared_ptr<Camera>> listed, QWidget* parent = nullptr);
    ~CameraInfo() override;

    // Opens the camera and reads its pages. On failure it says so in a
    // message box and returns the driver's code; 0 when the dialog can run.
    int prepare();
    QTabWidget* pages() const { return m_pages; }

private:
    int fail(int code, const QString& text);
    void addPages(quint32 capabilities, int eepromSize);
    void addPage(CameraInfoPage* page);
    void restoreSettings();
    void saveSettings() const;

    Camera m_camera;
    QList<std::shared_ptr<Camera>> m_listed;
    std::unique_ptr<OpenedCamera> m_opened;
    QTabWidget* m_pages = nullptr;
    bool m_prepared = false;
};
