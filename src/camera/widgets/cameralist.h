#pragma once

#include "camera/camera.h"
#include "camera/controlstates.h"

#include <QList>
#include <QMenu>
#include <QObject>

#include <memory>

class CameraListModel;
class CameraTableProxy;
class CameraTableView;
class QTimer;

// The main window's camera list: the table view over a sorting proxy of the
// camera list model. It turns selection, activation, the context menu and the
// refresh timer into signals for the window.
class CameraList final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(CameraList)

public:
    // What the context menu needs to know about the host.
    struct HostAbilities
    {
        bool networkToolsAvailable = true;
        bool comPortSupportInstalled = false;
        bool elevated = false;
    };

    static constexpr int refreshIntervalMs = 900;

    // The view becomes a child of viewParent. Throws CirroException when the
    // driver refuses the device-list events.
    explicit CameraList(QWidget* viewParent, QObject* parent = nullptr);
    ~CameraList() override;

    CameraTableView* view() const { return m_view; }
    CameraListModel* model() const { return m_model; }
    const camera::optional<Camera>& selectedCamera() const { return m_selectedCamera; }
    QList<Camera> availableCameras() const;
    // Makes the camera's row current; false when the device is not listed.
    bool selectDevice(quint32 deviceId);
    // Reads the selected camera's device information again, without a signal.
    void refreshSelectedCamera();

    void setHostAbilities(const HostAbilities& abilities) { m_abilities = abilities; }
    // Which requests have a handler; the menu disables the others (all of
    // them while no handlers are set). The handlers must outlive the list.
    void setCommandHandlers(const ControlStates::Handlers* handlers) { m_handlers = handlers; }
    // Blocks the model's signals; unblocking fetches the list at once.
    void setUpdatesSuspended(bool suspended);
    void setAutoRefresh(bool enabled);
    bool isAutoRefreshOn() const;
    // The context menu for the current selection; the caller owns it.
    std::unique_ptr<QMenu> createContextMenu();

signals:
    void cameraChanged(const camera::optional<Camera>& camera);
    void openCamera(const QList<Camera>& cameras);
    void identCamera(const Camera& camera);
    void openIPSettings(const Camera& camera);
    void openMulticastSettings(const Camera& camera);
    void openCameraInfo(const Camera& camera);
    void deletePMC(const Camera& camera);
    void cameraListChanged();
    void openComportDlg(const Camera& camera);

public slots:
    void onSelectedCameraChanged(const camera::optional<Camera>& camera);
    void onTimeout();
    void onCustomContextMenu(const QPoint& pos);

private:
    void refetch();
    void reselectAfterReset();
    void addCameraActions(QMenu& menu, const Camera& camera);
    void addNetworkActions(QMenu& menu, const Camera& camera);
    bool cameraInfoEnabled(const Camera& camera) const;

    bool isHandled(ControlStates::Command command) const { return m_handlers && m_handlers->isHandled(command); }
    // A menu entry that emits the signal with the argument; it is disabled
    // while the command has no handler, so that it never does nothing.
    template <typename Argument>
    QAction* addEntry(QMenu& menu, const QString& text, ControlStates::Command command,
                      void (CameraList::*signal)(const Argument&), const Argument& argument);

    CameraTableView* m_view = nullptr;
    CameraTableProxy* m_proxy = nullptr;
    CameraListModel* m_model = nullptr;
    QTimer* m_timer = nullptr;
    camera::optional<Camera> m_selectedCamera;
    HostAbilities m_abilities;
    const ControlStates::Handlers* m_handlers = nullptr;
};

template <typename Argument>
QAction* CameraList::addEntry(QMenu& menu, const QString& text, ControlStates::Command command,
                              void (CameraList::*signal)(const Argument&), const Argument& argument)
{
    QAction* action = menu.addAction(text, this, [this, signal, argument] { emit(this->*signal)(argument); });
    action->setEnabled(isHandled(command));
    return action;
}
