#pragma once

#include "camera/camera.h"
#include "common/result.h"
#include "comport/comportaccess.h"
#include "comport/comportnumbers.h"

#include <QDialog>

#include <memory>

class ComPortTest;
class QCheckBox;
class QLabel;
class QPushButton;
class QSpinBox;
class QTimer;

// "COM port configuration": the camera's virtual COM port (install with a
// number, save the number in the camera, remove, test with one
// identification query) and the driver's broadcast port. What the driver
// reports is read again every second, so that a camera unplugged meanwhile
// is noticed; its actions are then disabled.
class ComDialog final : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ComDialog)

public:
    static constexpr int refreshIntervalMs = 1000;

    // listed: the cameras of the list, whose ports the chosen number must not take.
    ComDialog(const Camera& camera, QList<std::shared_ptr<Camera>> listed, QWidget* parent = nullptr);
    ~ComDialog() override;

    ComPortTest* portTest() const { return m_test; }

private slots:
    void onInstall();
    void onSave();
    void onRemove();
    void onTest();
    void onTestFinished();
    void onBroadcastToggled(bool on);
    void onNumberChanged(int number);
    void refresh();

private:
    QWidget* buildCameraGroup();
    QWidget* buildPortGroup();
    QWidget* buildBroadcastGroup();
    void readInitialState();
    void showPort(const ComPortInfo& port);
    void showStored();
    void showBroadcast(const ComPortInfo& port);
    // A failed call: a message box with the code once the dialog shows (the
    // status line before); an unknown command disables `control` instead,
    // and a camera that is gone every camera action.
    void report(const Result& result, QWidget* control);
    void markUnsupported(QWidget* control, QLabel* note);
    void markUnplugged();
    void setStatus(const QString& text, bool failure = false);
    void updateActions();

    Camera m_camera;
    ComPortNumbers m_numbers;
    ComPortInfo m_port;
    // Whether the driver knows the port commands and the stored number.
    bool m_portKnown = false;
    bool m_saveKnown = true;
    bool m_unplugged = false;
    bool m_testing = false;
    ComPortTest* m_test = nullptr;
    QTimer* m_refresh = nullptr;
    QLabel* m_installed = nullptr;
    QLabel* m_stored = nullptr;
    QSpinBox* m_number = nullptr;
    QLabel* m_warning = nullptr;
    QPushButton* m_install = nullptr;
    QPushButton* m_save = nullptr;
    QPushButton* m_remove = nullptr;
    QPushButton* m_testButton = nullptr;
    QLabel* m_answer = nullptr;
    QCheckBox* m_broadcast = nullptr;
    QLabel* m_broadcastPath = nullptr;
    QLabel* m_status = nullptr;
};
