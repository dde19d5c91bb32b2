#include "network/widgets/ethdaemonconfig.h"

#include "common/widgets/statusgroup.h"
#include "network/adapterdiagnosis.h"
#include "network/adapteripconfig.h"
#include "network/ethadaptercontrol.h"
#include "network/ethservicebindings.h"
#include "network/widgets/qipedit.h"
#include "services/servicemanager.h"

#include <driversettings/driverservicesettings.h>

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

const QSize dialogSize(600, 750);
const QString noMac = QStringLiteral("00 - 00 - 00 - 00 - 00 - 00");
const QString productLine = QStringLiteral("Parvel Cirro");

QIcon adapterIcon(bool bound)
{
    return QIcon(bound ? QStringLiteral(":/images/ethadapter.png") : QStringLiteral(":/images/ethadapter_disabled.png"));
}

} // namespace

EthDaemonConfig::EthDaemonConfig(QWidget* parent, ServiceManager& services, bool elevated)
    : QDialog(parent)
    , m_services(services)
    , m_elevated(elevated)
{
    setObjectName(QStringLiteral("ethDaemonConfig"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(tr("Network configuration"));
    resize(dialogSize);
    setMinimumSize(dialogSize);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(buildServiceGroup());
    layout->addWidget(buildAdapterGroup(), 1);
    auto* statusGroup = new StatusGroup(tr("Status"), this);
    m_status = statusGroup->label();
    layout->addWidget(statusGroup);

    fillAdapterTree();
    onAdapter(nullptr, 0);
    onChangedCirrodStatus(m_services.coreStates());
}

QGroupBox* EthDaemonConfig::buildServiceGroup()
{
    auto* group = new QGroupBox(tr("Daemon control"), this);
    m_eth = new QPushButton(group);
    m_eth->setObjectName(QStringLiteral("ethService"));
    connect(m_eth, &QPushButton::clicked, this, &EthDaemonConfig::onPushedETH);
    // An indicator: the USB service is the USB driver's own business.
    m_usb = new QPushButton(group);
    m_usb->setObjectName(QStringLiteral("usbService"));
    m_usb->setFlat(true);
    connect(m_usb, &QPushButton::clicked, this, &EthDaemonConfig::onPushedUSB);
    auto* row = new QHBoxLayout(group);
    row->addWidget(m_eth);
    row->addWidget(m_usb);
    return group;
}

QGroupBox* EthDaemonConfig::buildAdapterGroup()
{
    m_adapterGroup = new QGroupBox(tr("Network adapters"), this);
    auto* layout = new QGridLayout(m_adapterGroup);
    m_tree = new QTreeWidget(m_adapterGroup);
    m_tree->setObjectName(QStringLiteral("adapterTree"));
    m_tree->setHeaderLabels({tr("Network Adapter"), tr("Status Text"), tr("Notes")});
    // Status and notes are long: they show whole in the tool tips and, for the
    // selected adapter, in the status group.
    m_tree->header()->setStretchLastSection(true);
    m_tree->setColumnWidth(0, 180);
    m_tree->setColumnWidth(1, 240);
    connect(m_tree, &QTreeWidget::itemClicked, this, &EthDaemonConfig::onAdapter);
    connect(m_tree, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) { onAdapter(item, 0); });
    layout->addWidget(m_tree, 0, 0, 1, 3);
    m_explanation = new QLabel(m_adapterGroup);
    m_explanation->setObjectName(QStringLiteral("explanation"));
    m_explanation->setWordWrap(true);
    layout->addWidget(m_explanation, 1, 0, 1, 3);

    m_mac = new QLabel(noMac, m_adapterGroup);
    m_mac->setObjectName(QStringLiteral("adapterMac"));
    layout->addWidget(new QLabel(tr("MAC address"), m_adapterGroup), 2, 0);
    layout->addWidget(m_mac, 2, 1, 1, 2);
    m_ip = new QIpEdit(m_adapterGroup);
    m_ip->setObjectName(QStringLiteral("adapterIp"));
    m_mask = new QIpEdit(m_adapterGroup);
    m_mask->setObjectName(QStringLiteral("adapterMask"));
    layout->addWidget(new QLabel(tr("IP address"), m_adapterGroup), 3, 0);
    layout->addWidget(m_ip, 3, 1);
    layout->addWidget(new QLabel(tr("Subnetmask"), m_adapterGroup), 4, 0);
    layout->addWidget(m_mask, 4, 1);
    m_applyIp = new QPushButton(tr("Apply IP settings"), m_adapterGroup);
    m_applyIp->setObjectName(QStringLiteral("applyIp"));
    connect(m_applyIp, &QPushButton::clicked, this, &EthDaemonConfig::onApplyIpSettings);
    layout->addWidget(m_applyIp, 3, 2);
    m_dhcp = new QPushButton(tr("Activate DHCP"), m_adapterGroup);
    m_dhcp->setObjectName(QStringLiteral("activateDhcp"));
    connect(m_dhcp, &QPushButton::clicked, this, &EthDaemonConfig::onChangeDhcp);
    layout->addWidget(m_dhcp, 4, 2);

    m_packetFilter = new QComboBox(m_adapterGroup);
    m_packetFilter->setObjectName(QStringLiteral("packetFilter"));
    m_packetFilter->addItem(tr("Pass all"), int(EthAdapterControl::PassAll));
    m_packetFilter->addItem(tr("Block CRGET"), int(EthAdapterControl::BlockCrget));
    m_packetFilter->addItem(tr("Block all"), int(EthAdapterControl::BlockAll));
    connect(m_packetFilter, qOverload<int>(&QComboBox::activated), this, &EthDaemonConfig::onPacketFilterChanged);
    layout->addWidget(new QLabel(tr("Packetfilter"), m_adapterGroup), 5, 0);
    layout->addWidget(m_packetFilter, 5, 1);
    m_jumbo = new QCheckBox(tr("Use 2k Jumbo Packets"), m_adapterGroup);
    m_jumbo->setObjectName(QStringLiteral("jumboPackets"));
    connect(m_jumbo, &QCheckBox::clicked, this, &EthDaemonConfig::onPushedJumboCheckbox);
    layout->addWidget(m_jumbo, 6, 0, 1, 2);
    m_bind = new QPushButton(tr("Disable for this adapter"), m_adapterGroup);
    m_bind->setObjectName(QStringLiteral("bindAdapter"));
    connect(m_bind, &QPushButton::clicked, this, &EthDaemonConfig::onPushedAdapterBound);
    layout->addWidget(m_bind, 6, 2);
    layout->setRowStretch(0, 1);
    layout->setColumnStretch(1, 1);
    return m_adapterGroup;
}

void EthDaemonConfig::fillAdapterTree()
{
    m_top = new QTreeWidgetItem(m_tree, {tr("Network adapter(s)")});
    m_top->setIcon(0, QIcon(QStringLiteral(":/images/Cirro.png")));
    for (const NetworkAdapter& adapter : EthAdapterControl::serviceableAdapters()) {
        AdapterEntry entry;
        entry.mac = adapter.hardwareAddress;
        entry.ip = adapter.ipv4Address.isNull() ? QStringLiteral("0.0.0.0") : adapter.ipv4Address.toString();
        entry.mask = adapter.ipv4Netmask.isNull() ? QStringLiteral("0.0.0.0") : adapter.ipv4Netmask.toString();
        entry.dhcp = adapter.dhcp;
        entry.bound = EthServiceBindings::isBound(adapter.interfaceName);
        m_adapters.insert(adapter.interfaceName, entry);
        auto* item = new QTreeWidgetItem(m_top, {adapter.humanReadableName});
        item->setData(0, Qt::UserRole, adapter.interfaceName);
        item->setIcon(0, adapterIcon(entry.bound));
        showDiagnosis(item);
    }
    m_tree->expandAll();
    updateExplanation();
}

void EthDaemonConfig::showDiagnosis(QTreeWidgetItem* item)
{
    const AdapterDiagnosis diagnosis = AdapterDiagnosis::diagnose(item->data(0, Qt::UserRole).toString());
    item->setText(1, diagnosis.status());
    item->setToolTip(1, diagnosis.status());
    QStringList notes;
    for (const AdapterFinding& finding : diagnosis.findings())
        notes << finding.summary();
    item->setText(2, notes.join(QLatin1Char(' ')));
    item->setToolTip(2, notes.join(QLatin1Char('\n')));
}

void EthDaemonConfig::updateExplanation()
{
    const QString service = tr("service");
    if (!m_elevated) {
        m_explanation->setText(QStringLiteral("<font color='#FF0000'>%1</font>")
                                   .arg(tr("To enable/disable the GigE %1 %3 for an adapter, you have to start the %2 "
                                           "with elevated privileges!")
                                            .arg(productLine, tr("Parvel Camera Manager"), service)));
        return;
    }
    const int bound = int(std::count_if(m_adapters.cbegin(), m_adapters.cend(),
                                        [](const AdapterEntry& entry) { return entry.bound; }));
    m_explanation->setText(tr("The GigE %1 %3 is currently active on %2 network adapters. It should be enabled for all "
                              "adapters with GigE %1 cameras connected to and disabled for the others. To enable or "
                              "disable the %3 for an adapter, select this adapter from the list above and click the "
                              "'enable/disable GigE %1 %3 for this adapter' button below.")
                               .arg(productLine)
                               .arg(bound)
                               .arg(service));
}

QString EthDaemonConfig::selectedAdapter() const
{
    const QTreeWidgetItem* item = m_tree->currentItem();
    return item ? item->data(0, Qt::UserRole).toString() : QString();
}

void EthDaemonConfig::onAdapter(QTreeWidgetItem* item, int)
{
    m_mac->setText(noMac);
    m_ip->setText(QStringLiteral("0.0.0.0"));
    m_mask->setText(QStringLiteral("0.0.0.0"));
    const QString name = item ? item->data(0, Qt::UserRole).toString() : QString();
    const bool adapter = m_adapters.contains(name);
    for (QWidget* control : std::initializer_list<QWidget*>{m_bind, m_applyIp, m_dhcp, m_packetFilter, m_jumbo, m_ip,
                                                             m_mask})
        control->setEnabled(adapter && m_elevated);
    if (!adapter) {
        m_status->setText(tr("Please choose a network adapter from the list"));
        return;
    }
    m_status->setText(QStringList{item->text(1), item->toolTip(2)}.join(QLatin1Char('\n')).trimmed());
    showAdapterSettings(name);
}

void EthDaemonConfig::showAdapterSettings(const QString& interfaceName)
{
    const AdapterEntry& entry = m_adapters[interfaceName];
    m_mac->setText(QString(entry.mac).replace(QLatin1Char(':'), QStringLiteral(" - ")));
    m_ip->setAddress(entry.ip);
    m_mask->setAddress(entry.mask);
    m_bind->setText(entry.bound ? tr("Disable for adapter") : tr("Enable for adapter"));
    const std::optional<pv_AdapterBlock> block = EthAdapterControl::readBlock(interfaceName);
    const QSignalBlocker blockJumbo(m_jumbo);
    m_jumbo->setChecked(block && block->packetSize >= EthAdapterControl::jumboPacketSize);
    const int filter = block ? block->packetFilter : -1;
    m_packetFilter->setCurrentIndex(std::max(0, m_packetFilter->findData(filter)));
    if (filter < 0)
        m_packetFilter->setEnabled(false);
}

void EthDaemonConfig::onPushedAdapterBound()
{
    const QString name = selectedAdapter();
    if (!m_adapters.contains(name))
        return;
    AdapterEntry& entry = m_adapters[name];
    const Result result = EthAdapterControl::setBound(name, !entry.bound);
    if (!result.isSuccess()) {
        fail(result.text());
        return;
    }
    entry.bound = !entry.bound;
    m_tree->currentItem()->setIcon(0, adapterIcon(entry.bound));
    showDiagnosis(m_tree->currentItem());
    m_bind->setText(entry.bound ? tr("Disable for adapter") : tr("Enable for adapter"));
    updateExplanation();
}

void EthDaemonConfig::onApplyIpSettings()
{
    const QString name = selectedAdapter();
    if (!m_adapters.contains(name)) {
        fail(tr("Can't find interface!"));
        return;
    }
    const Result result =
        AdapterIpConfig::enableStatic(name, QHostAddress(m_ip->addressText()), QHostAddress(m_mask->addressText()));
    if (!result.isSuccess())
        fail(tr("Setting static ip failed with code %1").arg(result.code()) + QStringLiteral("\n") + result.text());
}

void EthDaemonConfig::onChangeDhcp()
{
    const QString name = selectedAdapter();
    if (!m_adapters.contains(name)) {
        fail(tr("Can't find interface!"));
        return;
    }
    const Result result = AdapterIpConfig::enableDhcp(name);
    if (!result.isSuccess())
        fail(tr("Setting DHCP enabled failed with code %1").arg(result.code()) + QStringLiteral("\n") + result.text());
}

void EthDaemonConfig::onPacketFilterChanged()
{
    const auto filter = EthAdapterControl::PacketFilter(m_packetFilter->currentData().toInt());
    const Result result = EthAdapterControl::setPacketFilter(selectedAdapter(), filter);
    if (!result.isSuccess())
        fail(result.text());
}

void EthDaemonConfig::onPushedJumboCheckbox()
{
    const QString name = selectedAdapter();
    if (m_jumbo->isChecked()) {
        const std::optional<quint32> size = EthAdapterControl::packetSize(name);
        if (size && *size < EthAdapterControl::twoKilobytes) {
            const auto answer = QMessageBox::warning(this, tr("Warning"),
                                                     tr("The network adapter is not configured to use packets larger "
                                                        "than the normal size of 1,5 KB.\n\nPlease set the packet "
                                                        "size to at least 2 KB."),
                                                     QMessageBox::Ok | QMessageBox::Cancel);
            if (answer == QMessageBox::Cancel)
                m_jumbo->setChecked(false);
        }
    }
    const Result result = EthAdapterControl::setJumboPackets(name, m_jumbo->isChecked());
    if (!result.isSuccess())
        fail(result.text());
}

void EthDaemonConfig::onPushedETH()
{
    changeService(QLatin1String(DriverServiceSettings::ethService));
}

void EthDaemonConfig::onPushedUSB()
{
    changeService(QLatin1String(DriverServiceSettings::usbService));
}

void EthDaemonConfig::changeService(const QString& service)
{
    if (!m_elevated)
        return;
    const bool running = m_services.state(service) == CoreStates::Running;
    const Result result = running ? m_services.stop(service) : m_services.start(service);
    if (!result.isSuccess()) {
        QMessageBox::critical(this, tr("Changes on the service failed"),
                              (running ? tr("Error stopping the driver!") : tr("Error starting the driver!"))
                                  + QStringLiteral("\n") + tr("With code: %1").arg(result.code()) + QStringLiteral("\n")
                                  + result.text());
    }
}

void EthDaemonConfig::onChangedCirrodStatus(CoreStates status)
{
    m_ethRunning = status.eth == CoreStates::Running;
    m_usbRunning = status.usb == CoreStates::Running;
    const QIcon on(QStringLiteral(":/images/led_on.png"));
    const QIcon off(QStringLiteral(":/images/led_off.png"));
    m_eth->setIcon(m_ethRunning ? on : off);
    m_eth->setText(m_ethRunning ? tr("Stop ETH service") : tr("Start ETH service"));
    m_usb->setIcon(m_usbRunning ? on : off);
    m_usb->setText(m_usbRunning ? tr("USB driver service started") : tr("USB driver service stopped"));
    m_usb->setEnabled(false);
    m_eth->setEnabled(m_elevated);
}

void EthDaemonConfig::fail(const QString& text)
{
    QMessageBox::critical(this, tr("Failed"), text);
}
