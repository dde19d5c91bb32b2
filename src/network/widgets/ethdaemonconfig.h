#pragma once

#include "services/corestates.h"

#include <QDialog>
#include <QHash>

class QCheckBox;
class QComboBox;
class QGroupBox;
class QIpEdit;
class QLabel;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;
class ServiceManager;

// "Network configuration": the host side of GigE operation. Which adapters
// the ETH service is bound to, an adapter's IPv4 settings, the driver's packet
// filter and 2 KB packets per adapter, and starting or stopping the ETH
// service. Without administrator rights everything is shown but nothing can
// be changed.
class EthDaemonConfig final : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(EthDaemonConfig)

public:
    // services must outlive the dialog.
    EthDaemonConfig(QWidget* parent, ServiceManager& services, bool elevated);

public slots:
    void onAdapter(QTreeWidgetItem* item, int column);
    void onPushedAdapterBound();
    void onPushedETH();
    void onPushedUSB();
    void onChangedCirrodStatus(CoreStates status);
    void onPushedJumboCheckbox();
    void onApplyIpSettings();
    void onChangeDhcp();
    void onPacketFilterChanged();

private:
    struct AdapterEntry
    {
        QString mac;
        QString ip;
        QString mask;
        bool dhcp = false;
        bool bound = true;
    };

    QGroupBox* buildServiceGroup();
    QGroupBox* buildAdapterGroup();
    void fillAdapterTree();
    // The adapter's status and the findings of its checks, in its row.
    void showDiagnosis(QTreeWidgetItem* item);
    void updateExplanation();
    void showAdapterSettings(const QString& interfaceName);
    void changeService(const QString& service);
    QString selectedAdapter() const;
    void fail(const QString& text);

    ServiceManager& m_services;
    bool m_elevated;
    bool m_ethRunning = false;
    bool m_usbRunning = false;
    QTreeWidget* m_tree = nullptr;
    QTreeWidgetItem* m_top = nullptr;
    QHash<QString, AdapterEntry> m_adapters;
    QLabel* m_mac = nullptr;
    QIpEdit* m_ip = nullptr;
    QIpEdit* m_mask = nullptr;
    QPushButton* m_bind = nullptr;
    QPushButton* m_applyIp = nullptr;
    QPushButton* m_dhcp = nullptr;
    QComboBox* m_packetFilter = nullptr;
    QCheckBox* m_jumbo = nullptr;
    QPushButton* m_eth = nullptr;
    QPushButton* m_usb = nullptr;
    QGroupBox* m_adapterGroup = nullptr;
    QLabel* m_explanation = nullptr;
    QLabel* m_status = nullptr;
};
