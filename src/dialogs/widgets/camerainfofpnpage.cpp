#include "dialogs/widgets/camerainfofpnpage.h"

#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>

CameraInfoFpnPage::CameraInfoFpnPage(quint32 handle, QWidget* parent)
    : CameraInfoPage(handle, parent)
{
    setObjectName(QStringLiteral("fpnPage"));
    m_state = new QLabel(content());
    m_state->setObjectName(QStringLiteral("fpnState"));
    m_state->setWordWrap(true);
    m_progress = new QProgressBar(content());
    m_progress->setObjectName(QStringLiteral("fpnProgress"));
    m_progress->setRange(0, 100);
    m_start = new QPushButton(tr("Start calibration"), content());
    m_start->setObjectName(QStringLiteral("startFpn"));
    m_cancel = new QPushButton(tr("Cancel"), content());
    m_cancel->setObjectName(QStringLiteral("cancelFpn"));
    m_reset = new QPushButton(tr("Reset to factory calibration"), content());
    m_reset->setObjectName(QStringLiteral("resetFpn"));
    for (QPushButton* button : {m_start, m_cancel, m_reset})
        button->setAutoDefault(false);
    auto* hint = new QLabel(tr("Cover the lens before you start: the camera measures the noise of a dark image."),
                            content());
    hint->setWordWrap(true);
    auto* grid = new QGridLayout(content());
    grid->addWidget(m_state, 0, 0, 1, 3);
    grid->addWidget(hint, 1, 0, 1, 3);
    grid->addWidget(m_progress, 2, 0, 1, 3);
    grid->addWidget(m_start, 3, 0);
    grid->addWidget(m_cancel, 3, 1);
    grid->addWidget(m_reset, 3, 2);
    grid->setRowStretch(4, 1);
    m_poll = new QTimer(this);
    m_poll->setInterval(pollIntervalMs);
    connect(m_poll, &QTimer::timeout, this, &CameraInfoFpnPage::onPoll);
    connect(m_start, &QPushButton::clicked, this, &CameraInfoFpnPage::onStart);
    connect(m_cancel, &QPushButton::clicked, this, &CameraInfoFpnPage::onCancel);
    connect(m_reset, &QPushButton::clicked, this, &CameraInfoFpnPage::onReset);
}

Result CameraInfoFpnPage::load()
{
    FpnCalibration::State state;
    const Result result = FpnCalibration::read(handle(), &state);
    if (result.isSuccess())
        show(state);
    return loaded(result);
}

void CameraInfoFpnPage::show(const FpnCalibration::State& state)
{
    m_state->setText(state.running ? tr("Calibrating...") : FpnCalibration::describe(state));
    m_progress->setValue(state.running ? state.progress : 0);
    m_progress->setEnabled(state.running);
    m_start->setEnabled(!state.running);
    m_cancel->setEnabled(state.running);
    m_reset->setEnabled(!state.running && state.userCalibration);
    if (state.running)
        m_poll->start();
    else
        m_poll->stop();
}

void CameraInfoFpnPage::onPoll()
{
    FpnCalibration::State state;
    const Result result = FpnCalibration::read(handle(), &state);
    if (!result.isSuccess()) {
        m_poll->stop();
        report(result);
        return;
    }
    show(state);
}

void CameraInfoFpnPage::onStart()
{
    if (report(FpnCalibration::start(handle()), m_start))
        onPoll();
}

void CameraInfoFpnPage::onCancel()
{
    if (report(FpnCalibration::cancel(handle()), m_cancel))
        onPoll();
}

void CameraInfoFpnPage::onReset()
{
    const auto answer = QMessageBox::question(this, title(),
                                              tr("Replace the camera's own calibration by the factory calibration?"));
    if (answer == QMessageBox::Yes && report(FpnCalibration::resetToFactory(handle()), m_reset))
        onPoll();
}
