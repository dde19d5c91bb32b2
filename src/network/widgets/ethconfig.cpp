#include "network/widgets/ethconfig.h"

#include "common/widgets/statusgroup.h"
#include "network/arpprober.h"
#include "network/ethconfigchecks.h"
#include "network/ipsuggestion.h"
#include "network/ipv4.h"
#include "network/widgets/qipedit.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QEventLoop>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QThreadPool>
#include <QVBoxLayout>
#include <QtConcurrent>

namespace {

constexpr int suggestionProgressRange = 100000;
const QString defaultMulticastIp = QStringLiteral("224.0.0.0");

// The editor's number as the range checks see it: byte-swapped, which is the
// address as it lies in memory in network order.
quint32 swapped(quint32 hostOrder)
{
    return qFromBigEndian(hostOrder);
}

struct LabelledEditor
{
    QString label;
    const char* objectName;
};

struct AddressPair
{
    QIpEdit* first;
    QIpEdit* second;
    QPushButton* suggest;
};

// Two address editors, each below its label, and a "Suggest" button beside the first.
AddressPair addAddressPair(QGroupBox* group, const LabelledEditor& first, const LabelledEditor& second,
                           const char* suggestName)
{
    auto* grid = new QGridLayout(group);
    AddressPair pair{};
    int row = 0;
    for (const LabelledEditor* editor : {&first, &second}) {
        grid->addWidget(new QLabel(editor->label, group), row++, 0);
        auto* edit = new QIpEdit(group);
        edit->setObjectName(QLatin1String(editor->objectName));
        grid->addWidget(edit, row++, 0);
        (pair.first ? pair.second : pair.first) = edit;
    }
    pair.suggest = new QPushButton(QCoreApplication::translate("EthConfig", "Suggest"), group);
    pair.suggest->setObjectName(QLatin1String(suggestName));
    grid->addWidget(pair.suggest, 1, 1);
    grid->setColumnStretch(0, 1);
    return pair;
}

} // namespace

EthConfig::EthConfig(QWidget* parent, Camera* camera)
    : QDialog(parent)
    , m_camera(*camera)
    , m_settings(std::make_shared<EthConfigSettings>(camera->deviceId(), MacAddress::parse(camera->adapterMac())))
{
    setObjectName(QStringLiteral("ethConfig"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(tr("Manual ETH Configuration"));
    BuildDialog();
    InitDialog();
    qRegisterMetaType<ConfigResult>("ConfigResult");
    connect(m_persistentIp, &QIpEdit::editingFinished, this, &EthConfig::prepareSubnet);
    connect(&m_suggestWatcher, &QFutureWatcherBase::finished, this, &EthConfig::onSuggestIPFinished);
    connect(&m_applyWatcher, &QFutureWatcherBase::finished, this, &EthConfig::onApplySettingsFinished);
    connect(m_settings.get(), &EthConfigSettings::settingText, this, &EthConfig::onChangeProgressText);
    connect(this, &EthConfig::nextAddress, this, &EthConfig::onNextAddress);
}

EthConfig::~EthConfig()
{
    m_cancelSuggestion = true;
    m_suggestWatcher.waitForFinished();
    m_applyWatcher.waitForFinished();
    std::lock_guard lock(m_progressMutex);
    disconnect(m_settings.get(), &EthConfigSettings::settingText, this, nullptr);
}

void EthConfig::BuildDialog()
{
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(buildAdapterGroup());
    layout->addWidget(buildDeviceGroup());
    auto* miscellaneous = new QGroupBox(tr("Miscellaneous"), this);
    m_dhcp = new QCheckBox(tr("Enable DHCP"), miscellaneous);
    m_dhcp->setObjectName(QStringLiteral("enableDhcp"));
    (new QVBoxLayout(miscellaneous))->addWidget(m_dhcp);
    layout->addWidget(miscellaneous);
    layout->addWidget(buildMulticastGroup());
    auto* statusGroup = new StatusGroup(tr("Status"), this);
    m_status = statusGroup->label();
    layout->addWidget(statusGroup);
    m_buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    m_buttons->setObjectName(QStringLiteral("buttons"));
    connect(m_buttons, &QDialogButtonBox::accepted, this, &EthConfig::onApply);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(m_buttons);
}

QGroupBox* EthConfig::buildAdapterGroup()
{
    m_adapterGroup = new QGroupBox(tr("Adapter settings"), this);
    m_adapterGroup->setObjectName(QStringLiteral("adapterSettings"));
    const AddressPair pair = addAddressPair(m_adapterGroup, {tr("IP range begin"), "rangeBegin"},
                                            {tr("IP range end"), "rangeEnd"}, "suggestRange");
    m_rangeBegin = pair.first;
    m_rangeEnd = pair.second;
    connect(pair.suggest, &QPushButton::clicked, this, &EthConfig::SuggestIPRange);
    return m_adapterGroup;
}

QGroupBox* EthConfig::buildDeviceGroup()
{
    m_deviceGroup = new QGroupBox(tr("Device settings"), this);
    m_deviceGroup->setObjectName(QStringLiteral("deviceSettings"));
    const AddressPair pair = addAddressPair(m_deviceGroup, {tr("Persistent IP"), "persistentIp"},
                                            {tr("Subnetmask"), "subnetMask"}, "suggestIp");
    m_persistentIp = pair.first;
    m_subnetMask = pair.second;
    connect(pair.suggest, &QPushButton::clicked, this, &EthConfig::SuggestIP);
    return m_deviceGroup;
}

QGroupBox* EthConfig::buildMulticastGroup()
{
    m_multicastGroup = new QGroupBox(tr("Multicast settings"), this);
    m_multicastGroup->setObjectName(QStringLiteral("multicastSettings"));
    auto* grid = new QGridLayout(m_multicastGroup);
    grid->addWidget(new QLabel(tr("Multicast IP"), m_multicastGroup), 0, 0);
    m_multicastIp = new QIpEdit(m_multicastGroup);
    m_multicastIp->setObjectName(QStringLiteral("multicastIp"));
    grid->addWidget(m_multicastIp, 1, 0);
    m_multicastEnable = new QCheckBox(tr("Enable"), m_multicastGroup);
    m_multicastEnable->setObjectName(QStringLiteral("enableMulticast"));
    grid->addWidget(m_multicastEnable, 1, 1);
    auto* byDefault = new QPushButton(tr("Default"), m_multicastGroup);
    byDefault->setObjectName(QStringLiteral("defaultMulticast"));
    connect(byDefault, &QPushButton::clicked, this, [this] { m_multicastIp->setText(defaultMulticastIp); });
    grid->addWidget(byDefault, 1, 2);
    grid->setColumnStretch(0, 1);
    return m_multicastGroup;
}

void EthConfig::InitDialog()
{
    m_adapterIp.setAddress(m_camera.adapterIp());
    m_adapterMask.setAddress(m_camera.adapterMask());
    m_initial = EthCameraSettings::read(m_camera);
    m_deviceGroup->setEnabled(m_initial.persistentRead);
    m_deviceGroup->setTitle(tr("Device ID: %1").arg(m_camera.deviceId()));
    m_persistentIp->setText(m_initial.persistentIp);
    m_subnetMask->setText(m_initial.persistentMask);
    m_rangeBegin->setText(m_initial.rangeBegin);
    m_rangeEnd->setText(m_initial.rangeEnd);
    m_adapterGroup->setEnabled(m_initial.capabilities & PV_IPCAP_RANGE);
    if (!(m_initial.capabilities & PV_IPCAP_PERSISTENT))
        m_deviceGroup->setEnabled(false);
    if (m_initial.capabilities & PV_IPCAP_DHCP)
        m_dhcp->setChecked(m_initial.dhcpEnabled);
    else
        m_dhcp->setEnabled(false);
    if (m_initial.multicastCapability != 0) {
        m_multicastIp->setText(m_initial.multicastIp);
        m_multicastEnable->setChecked(m_initial.multicastEnabled);
    } else {
        m_multicastGroup->setEnabled(false);
        m_multicastEnable->setEnabled(false);
        m_multicastIp->setText(QStringLiteral("0.0.0.0"));
    }
    CheckPersistentIP();
}

void EthConfig::CheckPersistentIP()
{
    const QString none = QStringLiteral("0.0.0.0");
    if (m_persistentIp->text() == none && m_subnetMask->text() == none)
        m_status->setText(tr("The camera has no persistent IP address and uses an address from the IP range"));
    else
        m_status->setText(tr("The camera uses the persistent IP address"));
}

void EthConfig::prepareSubnet()
{
    if (m_persistentIp->text() != m_subnetMask->text() && m_subnetMask->text() == QLatin1String("0.0.0.0"))
        m_subnetMask->setText(QStringLiteral("255.255.255.0"));
}

void EthConfig::SuggestIPRange()
{
    const Ipv4::HostRange range = Ipv4::hostRange(m_adapterIp.toIPv4Address(), m_adapterMask.toIPv4Address());
    m_rangeBegin->setAddress(range.first);
    m_rangeEnd->setAddress(range.last);
}

void EthConfig::SuggestIP()
{
    if (m_suggestWatcher.isRunning())
        return;
    std::shared_ptr<ArpProber> prober = ArpProber::create(m_camera.adapterName(), m_adapterIp, m_adapterMask);
    m_candidateCount = IpSuggestion(*prober).candidateCount();
    m_probedCount = 0;
    showProgress(tr("Checking IP addresses. Please wait..."), suggestionProgressRange);
    m_suggestWatcher.setFuture(QtConcurrent::run(QThreadPool::globalInstance(), [this, prober] {
        const auto candidateProbed = [this](quint32 index, quint32 candidate) {
            m_probedCount = int(index) + 1;
            m_lastCandidate = candidate;
            emit nextAddress();
        };
        return IpSuggestion(*prober).run(candidateProbed, m_cancelSuggestion);
    }));
}

void EthConfig::onNextAddress()
{
    if (m_candidateCount == 0)
        return;
    updateProgress(tr("Checking IP addresses. Please wait...\n%1").arg(Ipv4::text(m_lastCandidate.load())),
                   int(qint64(m_probedCount.load()) * (suggestionProgressRange - 1) / m_candidateCount));
}

void EthConfig::onSuggestIPFinished()
{
    closeProgress();
    const IpSuggestion::Outcome outcome = m_suggestWatcher.result();
    const quint32 result = outcome.address;
    // Every address taken ends quietly; a search that could not ask says why.
    const int code = outcome.lastProbe.code();
    if (result == 0 && code != 0 && code != HostError::NoArpReply && !outcome.cancelled)
        warn(tr("No free address could be suggested.\n%1").arg(outcome.lastProbe.text()));
    if (result == 0)
        return;
    m_suggestedIp = result;
    m_persistentIp->setAddress(result);
    m_subnetMask->setAddress(m_adapterMask.toIPv4Address());
    CheckPersistentIP();
}

void EthConfig::onApply()
{
    if (m_applyWatcher.isRunning())
        return;
    if (!collectPersistent() || !collectRange())
        return;
    collectDhcpAndMulticast();
    const std::shared_ptr<EthConfigSettings> settings = m_settings;
    m_applyWatcher.setFuture(QtConcurrent::run(QThreadPool::globalInstance(), [settings] { return settings->apply(); }));
    showProgress(tr("Applying settings. Please wait..."), 100);
}

bool EthConfig::collectPersistent()
{
    const QString address = m_persistentIp->addressText();
    const QString mask = m_subnetMask->addressText();
    if (address == m_initial.persistentIp && mask == m_initial.persistentMask)
        return true;
    const quint32 p = Ipv4::fromText(address);
    const quint32 m = Ipv4::fromText(mask);
    if (!EthConfigChecks::persistentFitsAdapter(p, m, m_adapterIp.toIPv4Address(), m_adapterMask.toIPv4Address())) {
        const auto answer = QMessageBox::warning(
            this, tr("Set persistent IP"),
            EthConfigChecks::unsuitableAddressQuestion(address, m_adapterIp.toString(), m_adapterMask.toString()),
            QMessageBox::Yes | QMessageBox::No);
        if (answer != QMessageBox::Yes)
            return false;
    } else if (p != 0 && p != m_suggestedIp && !confirmAddressIsFree(address)) {
        return false;
    }
    m_settings->setPersistent(p, m);
    return true;
}

bool EthConfig::collectRange()
{
    const quint32 begin = swapped(m_rangeBegin->toIPv4Address());
    const quint32 end = swapped(m_rangeEnd->toIPv4Address());
    if (Ipv4::text(begin) == m_initial.rangeBegin && Ipv4::text(end) == m_initial.rangeEnd)
        return true;
    const EthConfigChecks::RangeVerdict verdict = EthConfigChecks::checkRange(begin, end, m_adapterMask.toIPv4Address());
    if (!verdict.accepted) {
        warn(verdict.warning);
        if (verdict.resetBegin)
            m_rangeBegin->setText(m_initial.rangeBegin);
        if (verdict.resetEnd)
            m_rangeEnd->setText(m_initial.rangeEnd);
        return false;
    }
    m_settings->setRangeWords(begin, end);
    return true;
}

void EthConfig::collectDhcpAndMulticast()
{
    if (m_dhcp->isChecked() != m_initial.dhcpEnabled)
        m_settings->setDhcp(m_dhcp->isChecked());
    if (m_initial.multicastCapability == 0)
        return;
    if (m_multicastIp->text() != m_initial.multicastIp)
        m_settings->setMulticastIp(m_multicastIp->toIPv4Address());
    if (m_multicastEnable->isChecked() != m_initial.multicastEnabled)
        m_settings->setMulticastEnable(m_multicastEnable->isChecked());
}

bool EthConfig::confirmAddressIsFree(const QString& address)
{
    showProgress(tr("Checking whether %1 is free...").arg(address), 0);
    std::shared_ptr<ArpProber> prober = ArpProber::create(m_camera.adapterName(), m_adapterIp, m_adapterMask);
    const quint32 target = Ipv4::fromText(address);
    QFutureWatcher<ArpProber::ProbeResult> watcher;
    QEventLoop loop;
    connect(&watcher, &QFutureWatcherBase::finished, &loop, &QEventLoop::quit);
    watcher.setFuture(QtConcurrent::run(QThreadPool::globalInstance(), [prober, target] { return prober->probe(target); }));
    loop.exec();
    closeProgress();
    const ArpProber::ProbeResult answer = watcher.result();
    // Nobody answers, or the camera itself does: the address is the camera's to take.
    if (!answer.result.isSuccess() || MacAddress::parse(answer.mac) == MacAddress::parse(m_camera.macAddress()))
        return true;
    return QMessageBox::warning(this, tr("Set persistent IP"),
                                tr("The address %1 is already used by the device with MAC %2.\nDo you want to use "
                                   "it anyway?")
                                    .arg(address, answer.mac),
                                QMessageBox::Yes | QMessageBox::No, QMessageBox::No)
           == QMessageBox::Yes;
}

void EthConfig::onChangeProgressText(const QString& text, int progress)
{
    updateProgress(text, progress);
}

void EthConfig::updateProgress(const QString& text, int value)
{
    QPointer<QProgressDialog> progress;
    {
        std::lock_guard lock(m_progressMutex);
        progress = m_progress;
    }
    // Not under the lock: a window-modal progress dialog handles events while
    // it takes a value, and one of them may close it.
    if (!progress)
        return;
    progress->setLabelText(text);
    progress->setValue(value);
}

void EthConfig::onApplySettingsFinished()
{
    closeProgress();
    const ConfigResult result = m_applyWatcher.result();
    if (result.code == 0) {
        if (!m_deviceGroup->isEnabled() || m_persistentIp->addressText() == m_initial.persistentIp)
            m_appliedPersistentIp = Ipv4::fromText(m_initial.persistentIp);
        else
            m_appliedPersistentIp = m_persistentIp->toIPv4Address();
        accept();
        return;
    }
    static const char* const texts[] = {
        QT_TR_NOOP("Setting of the persistent IP address or subnetmask failed.\nErrorcode: %1"),
        QT_TR_NOOP("Setting of the automatic configuration range failed.\nErrorcode: %1"),
        QT_TR_NOOP("Enabling / disabling dhcp failed.\nErrorcode: %1"),
        QT_TR_NOOP("Setting Multicast IP failed with code %1.\nLikely an invalid IP?"),
        QT_TR_NOOP("Error enabling Multicast\ncode %1"),
    };
    const QString text = result.step < ConfigResult::Done ? tr(texts[result.step]) : QStringLiteral("%1");
    QMessageBox::warning(this, tr("Error"), text.arg(qint32(result.code)), QMessageBox::Ok);
}

void EthConfig::showProgress(const QString& label, int maximum)
{
    auto* progress = new QProgressDialog(label, QString(), 0, maximum, this);
    progress->setObjectName(QStringLiteral("progress"));
    progress->setWindowModality(Qt::WindowModal);
    progress->setMinimumDuration(0);
    progress->setCancelButton(nullptr);
    {
        std::lock_guard lock(m_progressMutex);
        m_progress = progress;
    }
    progress->show();
}

void EthConfig::closeProgress()
{
    QProgressDialog* progress = nullptr;
    {
        std::lock_guard lock(m_progressMutex);
        std::swap(progress, m_progress);
    }
    if (!progress)
        return;
    progress->close();
    progress->deleteLater();
}

void EthConfig::warn(const QString& text)
{
    QMessageBox::warning(this, tr("Warning"), text, QMessageBox::Ok);
}
