#include "comport/widgets/comdialog.h"

#include "comport/comporttest.h"
#include "dialogs/cameracall.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QSpinBox>
#include <QTimer>
#include <QVBoxLayout>

namespace {

// Device paths and answers stay on their lines; messages wrap.
QLabel* valueLabel(const char* name, QWidget* parent, bool wrap = false)
{
    auto* label = new QLabel(parent);
    label->setObjectName(QLatin1String(name));
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setWordWrap(wrap);
    return label;
}

QPushButton* actionButton(const QString& text, const char* name, QWidget* parent)
{
    auto* button = new QPushButton(text, parent);
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(false);
    return button;
}

} // namespace

ComDialog::ComDialog(const Camera& camera, QList<std::shared_ptr<Camera>> listed, QWidget* parent)
    : QDialog(parent)
    , m_camera(camera)
    , m_numbers(std::move(listed), camera.deviceId())
    , m_test(new ComPortTest(this))
    , m_refresh(new QTimer(this))
{
    setObjectName(QStringLiteral("comDialog"));
    setWindowTitle(tr("COM port configuration"));
    m_status = valueLabel("status", this, true);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(buildCameraGroup());
    layout->addWidget(buildPortGroup());
    layout->addWidget(buildBroadcastGroup());
    layout->addWidget(m_status);
    layout->addWidget(buttons);
    connect(m_test, &ComPortTest::finished, this, &ComDialog::onTestFinished);
    connect(m_refresh, &QTimer::timeout, this, &ComDialog::refresh);
    readInitialState();
    m_refresh->start(refreshIntervalMs);
}

ComDialog::~ComDialog() = default;

QWidget* ComDialog::buildCameraGroup()
{
    auto* group = new QGroupBox(tr("Camera"), this);
    auto* form = new QFormLayout(group);
    QLabel* model = valueLabel("model", group);
    model->setText(m_camera.model());
    QLabel* serial = valueLabel("serialNumber", group);
    serial->setText(m_camera.serialNumber());
    QLabel* cameraId = valueLabel("cameraId", group);
    cameraId->setText(tr("%1 (device %2)").arg(m_camera.cameraId()).arg(m_camera.deviceId()));
    form->addRow(tr("Model:"), model);
    form->addRow(tr("Serial number:"), serial);
    form->addRow(tr("Camera ID:"), cameraId);
    return group;
}

QWidget* ComDialog::buildPortGroup()
{
    auto* group = new QGroupBox(tr("Virtual COM port"), this);
    m_installed = valueLabel("installedPort", group);
    m_stored = valueLabel("storedNumber", group);
    m_number = new QSpinBox(group);
    m_number->setObjectName(QStringLiteral("portNumber"));
    m_number->setRange(PV_COMPORT_NUMBER_MIN, PV_COMPORT_NUMBER_MAX);
    m_warning = valueLabel("numberWarning", group);
    m_warning->setStyleSheet(QStringLiteral("color: #b00000"));
    m_install = actionButton(tr("Install"), "install", group);
    m_save = actionButton(tr("Save in camera"), "saveInCamera", group);
    m_remove = actionButton(tr("Remove"), "remove", group);
    m_testButton = actionButton(tr("Test"), "test", group);
    m_answer = valueLabel("testAnswer", group);
    auto* actions = new QHBoxLayout;
    for (QPushButton* button : {m_install, m_save, m_remove, m_testButton})
        actions->addWidget(button);
    actions->addStretch(1);
    auto* form = new QFormLayout(group);
    form->addRow(tr("Installed port:"), m_installed);
    form->addRow(tr("Saved in the camera:"), m_stored);
    form->addRow(tr("Port number:"), m_number);
    form->addRow(m_warning);
    form->addRow(actions);
    form->addRow(tr("Test answer:"), m_answer);
    connect(m_install, &QPushButton::clicked, this, &ComDialog::onInstall);
    connect(m_save, &QPushButton::clicked, this, &ComDialog::onSave);
    connect(m_remove, &QPushButton::clicked, this, &ComDialog::onRemove);
    connect(m_testButton, &QPushButton::clicked, this, &ComDialog::onTest);
    connect(m_number, qOverload<int>(&QSpinBox::valueChanged), this, &ComDialog::onNumberChanged);
    return group;
}

QWidget* ComDialog::buildBroadcastGroup()
{
    auto* group = new QGroupBox(tr("Broadcast port"), this);
    m_broadcast = new QCheckBox(tr("Broadcast port: one port that addresses every camera"), group);
    m_broadcast->setObjectName(QStringLiteral("broadcast"));
    m_broadcastPath = valueLabel("broadcastPort", group);
    auto* layout = new QVBoxLayout(group);
    layout->addWidget(m_broadcast);
    layout->addWidget(m_broadcastPath);
    connect(m_broadcast, &QCheckBox::toggled, this, &ComDialog::onBroadcastToggled);
    return group;
}

void ComDialog::readInitialState()
{
    const Result port = ComPortAccess::port(m_camera.deviceId(), &m_port);
    m_portKnown = port.isSuccess();
    if (m_portKnown)
        showPort(m_port);
    else
        report(port, m_install);
    showStored();
    ComPortInfo broadcast;
    if (const Result result = ComPortAccess::broadcastPort(&broadcast); result.isSuccess())
        showBroadcast(broadcast);
    else
        report(result, m_broadcast);
    const quint32 preferred = m_port.installed ? m_port.number : ComPortNumbers::defaultNumber(m_camera);
    m_number->setValue(int(preferred));
    onNumberChanged(m_number->value());
    updateActions();
}

void ComDialog::showPort(const ComPortInfo& port)
{
    m_port = port;
    m_installed->setText(port.installed ? tr("COM port %1: %2").arg(port.number).arg(port.devicePath)
                                        : tr("not installed"));
    updateActions();
}

void ComDialog::showStored()
{
    quint32 number = 0;
    const Result stored = ComPortAccess::storedNumber(m_camera.deviceId(), &number);
    if (stored.isSuccess())
        m_stored->setText(tr("COM port %1").arg(number));
    else
        report(stored, m_save);
}

void ComDialog::showBroadcast(const ComPortInfo& port)
{
    const QSignalBlocker blocker(m_broadcast);
    m_broadcast->setChecked(port.installed);
    m_broadcastPath->setText(port.installed ? tr("COM port %1: %2").arg(port.number).arg(port.devicePath)
                                            : QString());
}

void ComDialog::refresh()
{
    if (m_portKnown && !m_unplugged) {
        ComPortInfo port;
        const Result result = ComPortAccess::port(m_camera.deviceId(), &port);
        if (result.isSuccess())
            showPort(port);
        else if (result.code() == PV_ERR_UNKNOWN_DEVICE)
            markUnplugged();
    }
    ComPortInfo broadcast;
    if (m_broadcast->isEnabled() && ComPortAccess::broadcastPort(&broadcast).isSuccess())
        showBroadcast(broadcast);
}

void ComDialog::onNumberChanged(int number)
{
    m_warning->setText(m_numbers.warning(quint32(number)));
    m_warning->setVisible(!m_warning->text().isEmpty());
}

void ComDialog::onInstall()
{
    const quint32 number = quint32(m_number->value());
    Result result = m_numbers.checkInstall(number);
    if (result.isSuccess())
        result = ComPortAccess::install(m_camera.deviceId(), number);
    if (!result.isSuccess()) {
        report(result, m_install);
        return;
    }
    refresh();
    setStatus(tr("COM port %1 is installed: %2").arg(number).arg(m_port.devicePath));
}

void ComDialog::onSave()
{
    const quint32 number = quint32(m_number->value());
    const Result result = ComPortAccess::store(m_camera.deviceId(), number);
    if (!result.isSuccess()) {
        report(result, m_save);
        return;
    }
    showStored();
    setStatus(tr("COM port %1 is saved in the camera, which takes it on every computer.").arg(number));
}

void ComDialog::onRemove()
{
    const Result result = ComPortAccess::remove(m_camera.deviceId());
    if (!result.isSuccess()) {
        report(result, m_remove);
        return;
    }
    refresh();
    setStatus(tr("The COM port is removed."));
}

void ComDialog::onTest()
{
    m_answer->clear();
    setStatus(tr("Testing COM port %1 ...").arg(m_port.number));
    m_test->start(m_port.devicePath);
    m_testing = true;
    updateActions();
}

void ComDialog::onTestFinished()
{
    m_testing = false;
    const Result& result = m_test->result();
    m_answer->setText(result.isSuccess() ? m_test->answer().text() : QString());
    if (result.isSuccess())
        setStatus(tr("COM port %1 answered.").arg(m_port.number));
    else
        setStatus(result.text(), true);
    updateActions();
}

void ComDialog::onBroadcastToggled(bool on)
{
    const Result result = ComPortAccess::setBroadcast(on);
    if (!result.isSuccess()) {
        const QSignalBlocker blocker(m_broadcast);
        m_broadcast->setChecked(!on);
        report(result, m_broadcast);
        refresh();
        return;
    }
    refresh();
    setStatus(on ? tr("The broadcast port is on: %1").arg(m_broadcastPath->text()) : tr("The broadcast port is off."));
}

void ComDialog::report(const Result& result, QWidget* control)
{
    if (result.code() == PV_ERR_UNKNOWN_DEVICE) {
        markUnplugged();
        return;
    }
    if (CameraCall::isUnsupported(result.code())) {
        QLabel* note = control == m_broadcast ? m_broadcastPath : control == m_save ? m_stored : m_installed;
        markUnsupported(control, note);
        return;
    }
    setStatus(result.text(), true);
    if (!isVisible())
        return; // a failed first read: the status line says it
    QMessageBox box(QMessageBox::Critical, windowTitle(), result.text(), QMessageBox::Ok, this);
    box.setObjectName(QStringLiteral("comPortError"));
    box.setInformativeText(tr("Errorcode: %1").arg(result.code()));
    box.exec();
}

void ComDialog::markUnsupported(QWidget* control, QLabel* note)
{
    if (control == m_broadcast) {
        m_broadcast->setEnabled(false);
    } else if (control == m_save) {
        m_saveKnown = false;
    } else {
        m_portKnown = false;
    }
    note->setText(QStringLiteral("<i>%1</i>").arg(CameraCall::unsupportedText()));
    updateActions();
}

void ComDialog::markUnplugged()
{
    m_unplugged = true;
    m_refresh->stop();
    m_installed->setText(tr("gone with the camera"));
    setStatus(tr("Camera %1 is no longer connected. Its COM port is gone with it; close this dialog.")
                  .arg(m_camera.deviceId()),
              true);
    updateActions();
}

void ComDialog::setStatus(const QString& text, bool failure)
{
    m_status->setStyleSheet(failure ? QStringLiteral("color: #b00000") : QString());
    m_status->setText(text);
}

void ComDialog::updateActions()
{
    const bool usable = !m_unplugged && !m_testing;
    m_number->setEnabled(!m_unplugged && (m_portKnown || m_saveKnown));
    m_install->setEnabled(usable && m_portKnown);
    m_save->setEnabled(usable && m_saveKnown);
    m_remove->setEnabled(usable && m_portKnown && m_port.installed);
    m_testButton->setEnabled(usable && m_portKnown && m_port.installed);
}
