#pragma once

#include "app/controlstates.h"
#include "app/languageloader.h"
#include "camera/camera.h"
#include "common/corestates.h"
#include "common/servicemanager.h"

#include <QColor>
#include <QFutureWatcher>
#include <QHash>
#include <QList>
#include <QMainWindow>

#include <memory>

class CameraList;
class DeviceInfoView;
class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QMovie;
class QPushButton;
class QTimer;

// The application's main window: the camera list, the command buttons, the
// status line and, in expert mode, the device details of the selected camera.
class QCirroCameramanager : public QMainWindow
{
    Q_OBJECT

public:
    static constexpr int servicePollIntervalMs = 4000;

    // What the window takes from its surroundings; tests replace parts.
    struct Environment
    {
        // Null picks the back-end that matches the camera API library.
        std::unique_ptr<ServiceManager> services;
        // Empty means "lang/cameramanager" below the application's directory.
        QString translationDirectory;
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
    void onOpenCamera(const QList<Camera>& cameras);
    void onIdentifyCamera(const Camera& camera);
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
    QWidget* buildControlArea();
    QWidget* buildBottomGroup();
    QWidget* buildStatusGroup();
    void setTabOrder();
    void makeConnections();
    void fillLanguageSelector(const QString& directory);
    void retranslate();
    void restoreSettings();
    void saveSettings() const;
    void updateDetails(bool force);
    void showStatus(const Camera* camera);
    void updateButtons(const Camera* camera);
    void deleteReadOnlyDevice(const Camera& camera);
    const Camera* currentCamera() const;

    CameraList* m_cameraList = nullptr;
    LanguageLoader m_languages;
    QComboBox* m_languageSelector = nullptr;
    CoreStates m_serviceStates;
    QTimer* m_serviceTimer = nullptr;
    QLabel* m_logo = nullptr;
    QGroupBox* m_cameraListGroup = nullptr;
    QGroupBox* m_controlGroup = nullptr;
    QGroupBox* m_bottomGroup = nullptr;
    QGroupBox* m_statusGroup = nullptr;
    QCheckBox* m_expertMode = nullptr;
    QCheckBox* m_autoRefresh = nullptr;
    QPushButton* m_generalInfo = nullptr;
    QPushButton* m_cameraInfo = nullptr;
    QPushButton* m_supportFile = nullptr;
    QPushButton* m_ethService = nullptr;
    QPushButton* m_additionalFunctions = nullptr;
    QPushButton* m_autoEthConfig = nullptr;
    QPushButton* m_uploadFirmware = nullptr;
    QPushButton* m_manualEthConfig = nullptr;
    QPushButton* m_close = nullptr;
    QPushButton* m_readSupportFile = nullptr;
    QPushButton* m_addCameraInfo = nullptr;
    QLabel* m_bottomLeftLabel = nullptr;
    QLabel* m_busyIndicator = nullptr;
    QMovie* m_busyMovie = nullptr;
    QLabel* m_statusText = nullptr;
    QLabel* m_secondStatusLine = nullptr;
    QLabel* m_cameraPicture = nullptr;
    QLabel* m_privilegeWarning = nullptr;
    QGroupBox* m_detailsGroup = nullptr;
    DeviceInfoView* m_deviceDetails = nullptr;
    bool m_dialogBusy = false;
    bool m_messagesEnabled = true;

    std::unique_ptr<ServiceManager> m_services;
    // The command each button stands for; a button whose command has no
    // handler in this build stays disabled.
    QHash<ControlStates::Command, QPushButton*> m_commandButtons;
    QSet<ControlStates::Command> m_handledCommands;
};
