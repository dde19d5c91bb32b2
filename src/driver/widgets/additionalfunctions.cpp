#include "driver/widgets/additionalfunctions.h"

#include "common/elevation.h"
#include "common/servicesettingsfile.h"
#include "driver/bootboost.h"
#include "driver/bootboostidlist.h"
#include "driver/bulktransfersize.h"
#include "driver/driverconfiguration.h"
#include "driver/widgets/flagsctrl.h"
#include "driver/widgets/qdebugoutctrl.h"
#include "driver/widgets/settingsfilenotice.h"
#include "driversettings/driverservicesettings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace {

QString usbService()
{
    return QLatin1String(DriverServiceSettings::usbService);
}

} // namespace

AdditionalFunctions::AdditionalFunctions(QWidget* parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("additionalFunctions"));
    setWindowTitle(tr("Additional functions"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    auto* layout = new QGridLayout(this);
    m_notice = new SettingsFileNotice(this);
    layout->addWidget(m_notice, 0, 0, 1, 2);
    auto* left = new QVBoxLayout;
    left->addWidget(buildMemoryGroup());
    left->addWidget(buildBulkGroup());
    left->addWidget(buildIdleGroup());
    left->addWidget(buildMulticastGroup());
    left->addWidget(buildTrustedPairingGroup());
    left->addStretch(1);
    auto* right = new QVBoxLayout;
    right->addWidget(buildBootBoostGroup());
    right->addWidget(buildDriverGroup());
    right->addStretch(1);
    layout->addLayout(left, 1, 0);
    layout->addLayout(right, 1, 1);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons, 2, 0, 1, 2);
    readState();
}

QPushButton* AdditionalFunctions::addButton(QWidget* parent, const QString& text, const char* objectName)
{
    auto* button = new QPushButton(text, parent);
    button->setObjectName(QLatin1String(objectName));
    button->setAutoDefault(false);
    return button;
}

QWidget* AdditionalFunctions::buildMemoryGroup()
{
    auto* group = new QGroupBox(tr("Image memory"), this);
    m_memoryCompatibility = new QCheckBox(tr("Compatibility mode"), group);
    m_memoryCompatibility->setObjectName(QStringLiteral("memoryCompatibility"));
    (new QVBoxLayout(group))->addWidget(m_memoryCompatibility);
    connect(m_memoryCompatibility, &QCheckBox::clicked, this, &AdditionalFunctions::onMemoryCompatibliyModeChanged);
    return group;
}

QWidget* AdditionalFunctions::buildBulkGroup()
{
    auto* group = new QGroupBox(tr("Bulk Transfer Size"), this);
    m_bulkTransferSize = new QComboBox(group);
    m_bulkTransferSize->setObjectName(QStringLiteral("bulkTransferSize"));
    for (const BulkTransferSize::Choice& choice : BulkTransferSize::choices)
        m_bulkTransferSize->addItem(tr(choice.text), choice.bytes);
    connect(m_bulkTransferSize, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &AdditionalFunctions::onBulkTransferSizeChanged);
    (new QVBoxLayout(group))->addWidget(m_bulkTransferSize);
    return group;
}

QWidget* AdditionalFunctions::buildBootBoostGroup()
{
    auto* group = new QGroupBox(tr("Boot boost"), this);
    auto* layout = new QGridLayout(group);
    m_bootBoost = new QCheckBox(tr("Enable"), group);
    m_bootBoost->setObjectName(QStringLiteral("bootBoost"));
    connect(m_bootBoost, &QCheckBox::clicked, this, &AdditionalFunctions::onBootBoostEnable);
    m_ids = new QLineEdit(group);
    m_ids->setObjectName(QStringLiteral("ids"));
    m_ids->setPlaceholderText(tr("e.g. 3;5-7"));
    m_ids->setToolTip(tr("Camera IDs from 1 to 254, separated by \";\"; \"5-7\" stands for 5, 6 and 7."));
    auto* set = addButton(group, tr("Set ID list"), "setIdList");
    auto* clear = addButton(group, tr("Clear ID list"), "clearIdList");
    auto* add = addButton(group, tr("Add ID"), "addId");
    auto* remove = addButton(group, tr("Remove ID"), "removeId");
    connect(set, &QPushButton::clicked, this, &AdditionalFunctions::onSetIDList);
    connect(clear, &QPushButton::clicked, this, &AdditionalFunctions::onClearIDList);
    connect(add, &QPushButton::clicked, this, &AdditionalFunctions::onAddID);
    connect(remove, &QPushButton::clicked, this, &AdditionalFunctions::onRemoveID);
    auto* currentLabel = new QLabel(tr("Current boot boost Ids:"), group);
    m_currentIds = new QLabel(group);
    m_currentIds->setObjectName(QStringLiteral("currentIds"));
    m_currentIds->setWordWrap(true);
    m_currentIds->setTextInteractionFlags(Qt::TextSelectableByMouse);
    layout->addWidget(m_bootBoost, 0, 0, 1, 2);
    layout->addWidget(m_ids, 1, 0, 1, 2);
    layout->addWidget(set, 2, 0);
    layout->addWidget(clear, 2, 1);
    layout->addWidget(add, 3, 0);
    layout->addWidget(remove, 3, 1);
    layout->addWidget(currentLabel, 4, 0, 1, 2);
    layout->addWidget(m_currentIds, 5, 0, 1, 2);
    m_idListControls = {m_ids, set, clear, add, remove, currentLabel, m_currentIds};
    return group;
}

QWidget* AdditionalFunctions::buildIdleGroup()
{
    auto* group = new QGroupBox(tr("CPU idle states"), this);
    auto* layout = new QVBoxLayout(group);
    m_idleBattery = new QCheckBox(tr("Disable (battery mode)"), group);
    m_idleBattery->setObjectName(QStringLiteral("idleBattery"));
    m_idleMains = new QCheckBox(tr("Disable (mains mode)"), group);
    m_idleMains->setObjectName(QStringLiteral("idleMains"));
    m_ipo = new QCheckBox(tr("Allow thread for performance optimization (IPO)"), group);
    m_ipo->setObjectName(QStringLiteral("ipo"));
    layout->addWidget(m_idleBattery);
    layout->addWidget(m_idleMains);
    layout->addWidget(m_ipo);
    connect(m_idleBattery, &QCheckBox::clicked, this, &AdditionalFunctions::onCpuIdleStateDisableBatCheckChanged);
    connect(m_idleMains, &QCheckBox::clicked, this, &AdditionalFunctions::onCpuIdleStateDisableMainsCheckChanged);
    connect(m_ipo, &QCheckBox::clicked, this, &AdditionalFunctions::onCpuIdleStateIPOCheckChanged);
    return group;
}

QWidget* AdditionalFunctions::buildMulticastGroup()
{
    auto* group = new QGroupBox(tr("Multicast"), this);
    m_multicast = new QCheckBox(tr("Enable read-only multicast"), group);
    m_multicast->setObjectName(QStringLiteral("multicast"));
    (new QVBoxLayout(group))->addWidget(m_multicast);
    connect(m_multicast, &QCheckBox::clicked, this, &AdditionalFunctions::onMulticastEnable);
    return group;
}

QWidget* AdditionalFunctions::buildTrustedPairingGroup()
{
    auto* group = new QGroupBox(tr("Trusted pairing"), this);
    m_trustedPairing = new QCheckBox(tr("Enable trusted pairing mode"), group);
    m_trustedPairing->setObjectName(QStringLiteral("trustedPairing"));
    (new QVBoxLayout(group))->addWidget(m_trustedPairing);
    connect(m_trustedPairing, &QCheckBox::clicked, this, &AdditionalFunctions::onTrustedPairingChanged);
    return group;
}

QWidget* AdditionalFunctions::buildDriverGroup()
{
    auto* group = new QGroupBox(tr("Driver"), this);
    auto* layout = new QGridLayout(group);
    auto* debugOut = addButton(group, tr("Debug output..."), "debugOutput");
    auto* flags = addButton(group, tr("Driver flags..."), "driverFlags");
    auto* fetchRegistry = addButton(group, tr("Reread driver settings"), "fetchRegistry");
    fetchRegistry->setToolTip(tr("Makes the driver read its settings files again."));
    auto* fetchTcpIp = addButton(group, tr("Reread TCP/IP settings"), "fetchTcpIp");
    fetchTcpIp->setToolTip(tr("Makes the driver read the network adapters' TCP/IP settings again."));
    connect(debugOut, &QPushButton::clicked, this, &AdditionalFunctions::onDebugOutCtrl);
    connect(flags, &QPushButton::clicked, this, &AdditionalFunctions::onFlagsCtrl);
    connect(fetchRegistry, &QPushButton::clicked, this, &AdditionalFunctions::onFetchRegistry);
    connect(fetchTcpIp, &QPushButton::clicked, this, &AdditionalFunctions::onFetchTcpIp);
    layout->addWidget(debugOut, 0, 0);
    layout->addWidget(flags, 0, 1);
    layout->addWidget(fetchRegistry, 1, 0);
    layout->addWidget(fetchTcpIp, 1, 1);
    return group;
}

void AdditionalFunctions::readState()
{
    using DriverConfiguration::Word;
    bool enabled = false;
    BootBoost::readEnabled(enabled);
    m_bootBoost->setChecked(enabled);
    enableIdListControls();
    refreshIdList();

    quint32 word = 0;
    m_memoryCompatibility->setChecked(DriverConfiguration::read(Word::MemoryCompatibility, word).isSuccess() && word != 0);
    DriverConfiguration::readReadOnlyMulticast(enabled);
    m_multicast->setChecked(enabled);
    const bool pairingRead = DriverConfiguration::read(Word::TrustedPairing, word).isSuccess();
    m_trustedPairing->setEnabled(pairingRead);
    m_trustedPairing->setChecked(pairingRead && word != 0);
    if (DriverConfiguration::read(Word::IdleStates, word).isSuccess()) {
        m_idleBattery->setChecked(IdleStates::shownDisabled(word));
        m_idleMains->setChecked(IdleStates::shownDisabled(word));
    }
    m_ipo->setChecked(DriverConfiguration::read(Word::Ipo, word).isSuccess() && word == 1);
    readBulkTransferSize();
}

void AdditionalFunctions::readBulkTransferSize()
{
    const ServiceSettingsFile settings(usbService());
    QSignalBlocker blocker(m_bulkTransferSize);
    m_bulkTransferSize->setCurrentIndex(BulkTransferSize::indexIn(settings));
    const bool writable = settings.isWritable();
    m_bulkTransferSize->setEnabled(writable);
    m_bulkTransferSize->setToolTip(writable ? QString() : tr("Restart with elevated privileges!"));
}

void AdditionalFunctions::enableIdListControls()
{
    for (QWidget* control : qAsConst(m_idListControls))
        control->setEnabled(m_bootBoost->isChecked());
}

void AdditionalFunctions::refreshIdList()
{
    std::vector<std::uint8_t> ids;
    const Result read = BootBoost::readIds(ids);
    m_currentIds->setText(BootBoostIdList::displayText(ids));
    m_currentIds->setToolTip(read.text());
}

void AdditionalFunctions::setCheckedQuietly(QCheckBox* box, bool checked)
{
    QSignalBlocker blocker(box);
    box->setChecked(checked);
}

void AdditionalFunctions::onBootBoostEnable()
{
    const bool enable = m_bootBoost->isChecked();
    const Result changed = BootBoost::setEnabled(enable);
    if (!changed.isSuccess()) {
        setCheckedQuietly(m_bootBoost, !enable);
        QMessageBox::critical(this, tr("Error"), changed.text());
    }
    enableIdListControls();
}

void AdditionalFunctions::changeIds(bool add)
{
    const auto steps = BootBoostIdList::parse(m_ids->text());
    const Result result = BootBoostIdList::apply(steps, add, [this](const BootBoostIdList::Step& refused) {
        if (refused.kind == BootBoostIdList::Step::Kind::NotANumber) {
            QMessageBox::warning(this, tr("Wrong ID"), tr("\"%1\" is not a camera ID.").arg(refused.text));
            return;
        }
        QMessageBox::warning(this, tr("Wrong ID"),
                             tr("The ID %1 has to be between with %2 and %3")
                                 .arg(refused.text)
                                 .arg(BootBoostIdList::lowest)
                                 .arg(BootBoostIdList::highest));
    });
    if (!result.isSuccess())
        QMessageBox::critical(this, tr("Error"), result.text());
    refreshIdList();
}

void AdditionalFunctions::onAddID()
{
    changeIds(true);
}

void AdditionalFunctions::onRemoveID()
{
    changeIds(false);
}

void AdditionalFunctions::onClearIDList()
{
    const Result cleared = BootBoost::clear();
    if (!cleared.isSuccess())
        QMessageBox::critical(this, tr("Error"), cleared.text());
    refreshIdList();
}

void AdditionalFunctions::onSetIDList()
{
    const Result cleared = BootBoost::clear();
    if (!cleared.isSuccess()) {
        QMessageBox::critical(this, tr("Error"), cleared.text());
        refreshIdList();
        return;
    }
    changeIds(true);
}

void AdditionalFunctions::changeIdleBit(QCheckBox* box, quint32 bit, bool checked)
{
    const Result changed = IdleStates::change(bit, checked);
    if (changed.isSuccess())
        return;
    setCheckedQuietly(box, !checked);
    QMessageBox::critical(this, tr("Failed"), changed.text());
}

void AdditionalFunctions::onCpuIdleStateDisableBatCheckChanged(bool checked)
{
    changeIdleBit(m_idleBattery, IdleStates::battery, checked);
}

void AdditionalFunctions::onCpuIdleStateDisableMainsCheckChanged(bool checked)
{
    changeIdleBit(m_idleMains, IdleStates::mains, checked);
}

void AdditionalFunctions::onCpuIdleStateIPOCheckChanged(bool checked)
{
    const Result written = DriverConfiguration::write(DriverConfiguration::Word::Ipo, checked ? 1 : 0);
    if (!written.isSuccess()) {
        setCheckedQuietly(m_ipo, !checked);
        QMessageBox::critical(this, tr("Failed"), tr("Failed to set IPO state! Return code: %1").arg(written.code()));
        return;
    }
    QMessageBox::information(this, tr("Please restart"), tr("Please restart the system manually to apply this setting."));
}

void AdditionalFunctions::onMemoryCompatibliyModeChanged()
{
    const bool enable = m_memoryCompatibility->isChecked();
    if (!Elevation::isElevated()) {
        setCheckedQuietly(m_memoryCompatibility, !enable);
        QMessageBox::warning(this, tr("privileged feature"),
                             tr("To use this feature, \nstart the %1 with\nelevated privileges e.g root or admin!")
                                 .arg(QGuiApplication::applicationDisplayName()));
        return;
    }
    const Result written = DriverConfiguration::write(DriverConfiguration::Word::MemoryCompatibility, enable ? 1 : 0);
    if (!written.isSuccess()) {
        setCheckedQuietly(m_memoryCompatibility, !enable);
        QMessageBox::warning(this, tr("Memory compatibility mode"),
                             tr("The image memory compatibility mode could not be changed!\nError code: %1")
                                 .arg(written.code()));
        return;
    }
    DriverConfiguration::fetchRegistryValues();
    QMessageBox::information(
        this, tr("Memory compatibility mode"),
        tr("To completely adopt the compatibility mode please reboot your system or reconnect all cameras!"));
}

void AdditionalFunctions::onTrustedPairingChanged()
{
    using DriverConfiguration::Word;
    const Result written = DriverConfiguration::write(Word::TrustedPairing, m_trustedPairing->isChecked() ? 1 : 0);
    if (!written.isSuccess()) {
        QMessageBox::critical(this, tr("Failed"),
                              tr("Setting trusted pairing mode failed with code: %1").arg(written.code()));
    }
    quint32 word = 0;
    if (DriverConfiguration::read(Word::TrustedPairing, word).isSuccess())
        setCheckedQuietly(m_trustedPairing, word != 0);
}

void AdditionalFunctions::onMulticastEnable()
{
    const Result written = DriverConfiguration::writeReadOnlyMulticast(m_multicast->isChecked());
    if (!written.isSuccess())
        QMessageBox::critical(this, tr("Failed"), written.text());
    bool enabled = false;
    if (DriverConfiguration::readReadOnlyMulticast(enabled).isSuccess())
        setCheckedQuietly(m_multicast, enabled);
}

void AdditionalFunctions::onBulkTransferSizeChanged(int index)
{
    ServiceSettingsFile settings(usbService());
    const Result written = BulkTransferSize::write(settings, index);
    if (!written.isSuccess())
        QMessageBox::critical(this, tr("Failed"), written.text());
    readBulkTransferSize();
    m_notice->refresh();
}

void AdditionalFunctions::onFetchRegistry()
{
    const Result fetched = DriverConfiguration::fetchRegistryValues();
    if (!fetched.isSuccess())
        QMessageBox::warning(this, tr("Warning"), fetched.text());
}

void AdditionalFunctions::onFetchTcpIp()
{
    const Result fetched = DriverConfiguration::fetchTcpIp();
    if (!fetched.isSuccess())
        QMessageBox::warning(this, tr("Warning"), fetched.text());
}

void AdditionalFunctions::onDebugOutCtrl()
{
    QDebugOutCtrl dialog(this);
    dialog.exec();
    m_notice->refresh();
}

void AdditionalFunctions::onFlagsCtrl()
{
    FlagsCtrl dialog(this);
    dialog.exec();
    m_notice->refresh();
}
