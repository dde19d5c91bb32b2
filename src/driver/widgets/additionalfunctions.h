#pragma once

#include <QDialog>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class SettingsFileNotice;

// "Additional functions": the driver-wide settings that belong to no single
// camera. Each is read when the dialog is built and written as soon as the
// user changes it; there is no OK or Apply step.
class AdditionalFunctions final : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(AdditionalFunctions)

public:
    explicit AdditionalFunctions(QWidget* parent);

public slots:
    void onFetchRegistry();
    void onFetchTcpIp();
    void onDebugOutCtrl();
    void onFlagsCtrl();
    void onSetIDList();
    void onClearIDList();
    void onAddID();
    void onRemoveID();
    void onBootBoostEnable();
    void onTrustedPairingChanged();
    void onMemoryCompatibliyModeChanged();
    void onMulticastEnable();
    void onCpuIdleStateDisableBatCheckChanged(bool checked);
    void onCpuIdleStateDisableMainsCheckChanged(bool checked);
    void onCpuIdleStateIPOCheckChanged(bool checked);

private slots:
    void onBulkTransferSizeChanged(int index);

private:
    QWidget* buildMemoryGroup();
    QWidget* buildBulkGroup();
    QWidget* buildBootBoostGroup();
    QWidget* buildIdleGroup();
    QWidget* buildMulticastGroup();
    QWidget* buildTrustedPairingGroup();
    QWidget* buildDriverGroup();
    QPushButton* addButton(QWidget* parent, const QString& text, const char* objectName);

    void readState();
    void readBulkTransferSize();
    void enableIdListControls();
    void refreshIdList();
    void changeIds(bool add);
    void changeIdleBit(QCheckBox* box, quint32 bit, bool checked);
    static void setCheckedQuietly(QCheckBox* box, bool checked);

    SettingsFileNotice* m_notice = nullptr;
    QCheckBox* m_memoryCompatibility = nullptr;
    QComboBox* m_bulkTransferSize = nullptr;
    QCheckBox* m_bootBoost = nullptr;
    QLineEdit* m_ids = nullptr;
    QList<QWidget*> m_idListControls;
    QLabel* m_currentIds = nullptr;
    QCheckBox* m_idleBattery = nullptr;
    QCheckBox* m_idleMains = nullptr;
    QCheckBox* m_ipo = nullptr;
    QCheckBox* m_multicast = nullptr;
    QCheckBox* m_trustedPairing = nullptr;
};
