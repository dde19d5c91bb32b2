#pragma once

#include "camera/camera.h"
#include "network/ethcamerasettings.h"
#include "network/ethconfigsettings.h"
#include "network/ipsuggestion.h"

#include <QDialog>
#include <QFutureWatcher>
#include <QHostAddress>

#include <atomic>
#include <memory>
#include <mutex>

class QCheckBox;
class QDialogButtonBox;
class QGroupBox;
class QIpEdit;
class QLabel;
class QProgressDialog;
class QPushButton;

// "Manual ETH Configuration" of one GigE camera: its persistent address and
// mask, its adapter's automatic-configuration range, DHCP and multicast. Only
// what changed is written, item by item, on a pool thread.
class EthConfig final : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(EthConfig)

public:
    EthConfig(QWidget* parent, Camera* camera);
    ~EthConfig() override;

    // The values read when the dialog opened, to restore them later.
    const EthCameraSettings& initialSettings() const { return m_initial; }
    // The persistent address that the last successful apply wrote (host
    // order); 0 when it wrote none or cleared it.
    quint32 appliedPersistentIp() const { return m_appliedPersistentIp; }

signals:
    void nextAddress();

public slots:
    void SuggestIP();
    void SuggestIPRange();
    void BuildDialog();
    void InitDialog();
    void CheckPersistentIP();
    void prepareSubnet();
    void onSuggestIPFinished();
    void onApplySettingsFinished();
    void onChangeProgressText(const QString& text, int progress);

private:
    void onNextAddress();
    QGroupBox* buildAdapterGroup();
    QGroupBox* buildDeviceGroup();
    QGroupBox* buildMulticastGroup();
    void onApply();
    bool collectPersistent();
    bool collectRange();
    void collectDhcpAndMulticast();
    // Whether the user still wants a typed persistent address that another
    // host already answers for.
    bool confirmAddressIsFree(const QString& address);
    void showProgress(const QString& label, int maximum);
    void updateProgress(const QString& text, int value);
    void closeProgress();
    void warn(const QString& text);

    Camera m_camera;
    EthCameraSettings m_initial;
    QHostAddress m_adapterIp;
    QHostAddress m_adapterMask;
    QIpEdit* m_rangeBegin = nullptr;
    QIpEdit* m_rangeEnd = nullptr;
    QIpEdit* m_persistentIp = nullptr;
    QIpEdit* m_subnetMask = nullptr;
    QIpEdit* m_multicastIp = nullptr;
    QCheckBox* m_dhcp = nullptr;
    QCheckBox* m_multicastEnable = nullptr;
    QGroupBox* m_adapterGroup = nullptr;
    QGroupBox* m_deviceGroup = nullptr;
    QGroupBox* m_multicastGroup = nullptr;
    QLabel* m_status = nullptr;
    QDialogButtonBox* m_buttons = nullptr;
    QFutureWatcher<IpSuggestion::Outcome> m_suggestWatcher;
    QFutureWatcher<ConfigResult> m_applyWatcher;
    std::shared_ptr<EthConfigSettings> m_settings;
    // Written by the suggestion job, read by the progress dialog.
    std::atomic<int> m_probedCount{0};
    std::atomic<quint32> m_lastCandidate{0};
    qint64 m_candidateCount = 0;
    std::atomic<bool> m_cancelSuggestion{false};
    quint32 m_suggestedIp = 0;
    quint32 m_appliedPersistentIp = 0;
    QProgressDialog* m_progress = nullptr;
    std::mutex m_progressMutex;
};
