#pragma once

#include "app/languageloader.h"
#include "camera/camera.h"
#include "dialogs/pendinguploads.h"
#include "network/ethcamerasettings.h"
#include "services/corestates.h"
#include "services/servicemanager.h"

#include <QColor>
#include <QFutureWatcher>
#include <QList>
#include <QMainWindow>
#include <QRect>

#include <memory>

class CameraList;
class CommandRegistry;
class ControlArea;
class DeviceInfoView;
class EthDaemonConfig;
class IpChangeFollowUp;
class QProgressDialog;
class QComboBox;
class QGroupBox;
class QLabel;
class QPushButton;
class QTimer;
class StatusPanel;

// The application's main window: the camera list, the command buttons, the
// status line and, in expert mode, the device details of the selected camera.
// Its slots hand the selected camera to whatever owns the behaviour.
class QCirroCameramanager final : public QMainWindow
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(QCirroCameramanager)

public:
    static constexpr int servicePollIntervalMs = 4000;

    // What the window takes from its surroundings; tests replace parts.
    struct Environment
    {
        // Null picks the back-end that matches the camera API library.
        std::unique_ptr<ServiceManager> services;
        // Empty means "lang/cameramanager" below the application's directory.
        QString translationDirectory;
        // Where the window may grow; invalid means the screen's available area.
        QRect availableGeometry;
    };

    explicit QCirroCameramanager(QWidget* parent = nullptr);
    explicit QCirroCameramanager(Environment environment, QWidget* parent = nullptr);
    ~QCirroCameramanager() override;

    CameraList* cameraList() const { return m_cameraList; }
    CoreStates serviceStates() const { return m_serviceStates; }
    QString currentLanguage() const { return m_languages.currentLanguage(); }
    bool messagesEnabled() const { return m_messagesEnabled; }
    void setMessagesEnabled(bool enabled) { m_messagesEnabled = enabled; }

signals:
    void CirrodStatusChanged(CoreStates status);
    void firmwareUploadFinished();

public slots:
    void onServiceTimer();
    void enableExpertView(bool enable);
    void onCurrentCameraChanged(const camera::optional<Camera>& camera, bool force = false);
    void onCameraListChanged();
    void onDeviceInfoUpdateNeeded(bool force);
    void OnCameraInfoDlg();
    void openCameraInfoDialog(const Camera& camera);
    void onAddCameraInfo();
    void onGeneralInfo();
    void onOpenCamera(const QList<Camera>& cameras);
    void onIdentifyCamera(const Camera& camera);
    void onManualEthConfig();
    void onAutoConfig();
    void onAutoConfigFinished();
    void onEthDaemonConfig();
    void OnAdditionalFunctionsDlg();
    void onUploadFirmware();
    void onFirmwareUploadFinished(int index);
    void onMulticastDialog(const Camera& camera);
    void onOpenComportDlg(const Camera& camera);
    void onWriteSupportFile();
    void onReadSupportFile();
    void OnCameraListRefresh();
    void UpdateDeviceInfo(const Camera* camera, bool force_reset);
    void UpdateControls();
    void Printer(const QString& text, const QColor& textcolour, bool bShowProgress);
    void slotLanguageChanged(int index);

protected:
    void changeEvent(QEvent* event) override;

private:
    void createWidgets();
    void buildLayout();
    QWidget* buildBottomGroup();
    void makeConnections();
    void registerCommands();
    void fillLanguageSelector(const QString& directory);
    void retranslate();
    void restoreSettings();
    void saveSettings() const;
    void updateDetails(bool force);
    // Room for the device details beside the camera list, and back.
    void widenForDetails();
    void narrowAfterDetails();
    void showScenarioError();
    void deleteReadOnlyDevice(const Camera& camera);
    void closeUploadProgress();
    void reportVerifiedUpload(quint32 deviceId);
    const Camera* currentCamera() const;
    bool autoRefreshWanted() const;

    CameraList* m_cameraList = nullptr;
    LanguageLoader m_languages;
    QComboBox* m_languageSelector = nullptr;
    CoreStates m_serviceStates;
    QTimer* m_serviceTimer = nullptr;
    QLabel* m_logo = nullptr;
    QGroupBox* m_cameraListGroup = nullptr;
    CommandRegistry* m_commands = nullptr;
    ControlArea* m_controlArea = nullptr;
    QGroupBox* m_bottomGroup = nullptr;
    StatusPanel* m_statusPanel = nullptr;
    QPushButton* m_close = nullptr;
    QLabel* m_bottomLeftLabel = nullptr;
    QGroupBox* m_detailsGroup = nullptr;
    DeviceInfoView* m_deviceDetails = nullptr;
    QFutureWatcher<quint32> m_autoConfigWatcher;
    QProgressDialog* m_autoConfigProgress = nullptr;
    IpChangeFollowUp* m_ipChangeFollowUp = nullptr;
    EthDaemonConfig* m_ethDaemonDialog = nullptr; // while it is open
    PendingUploads m_pendingUploads;
    QProgressDialog* m_uploadProgress = nullptr; // while an upload runs
    quint32 m_uploadDeviceId = 0;
    // The camera of the running automatic configuration, and its settings before.
    camera::optional<Camera> m_autoConfigCamera;
    EthCameraSettings m_autoConfigBefore;
    QRect m_availableGeometry;
    QRect m_geometryBeforeDetails;
    QRect m_geometryWithDetails; // invalid unless the details made the window wider
    bool m_dialogBusy = false; // while the camera information dialog is open
    bool m_messagesEnabled = true;

    std::unique_ptr<ServiceManager> m_services;
};
