#include "network/widgets/ipchangefollowup.h"

#include "camera/statusassessment.h"

#include <QMessageBox>
#include <QThreadPool>
#include <QWidget>
#include <QtConcurrent>

namespace {

QString seconds(qint64 milliseconds)
{
    return QString::number(double(milliseconds) / 1000.0, 'f', 1);
}

} // namespace

IpChangeFollowUp::IpChangeFollowUp(QWidget* window, CameraListSource cameras)
    : QObject(window)
    , m_window(window)
    , m_cameras(std::move(cameras))
{
    connect(&m_restoreWatcher, &QFutureWatcherBase::finished, this, &IpChangeFollowUp::onRestoreFinished);
}

IpChangeFollowUp::~IpChangeFollowUp()
{
    m_restoreWatcher.waitForFinished();
}

void IpChangeFollowUp::follow(const Camera& camera, const IpChangeVerifier::Expectation& expectation,
                              const EthCameraSettings& before, std::optional<std::chrono::milliseconds> timeout)
{
    m_deviceId = camera.deviceId();
    m_adapterMac = MacAddress::parse(camera.adapterMac());
    m_before = before;
    m_verifier = std::make_unique<IpChangeVerifier>(expectation,
                                                    timeout.value_or(IpChangeVerifier::timeoutFor(camera)));
    connect(m_verifier.get(), &IpChangeVerifier::reachable, this, &IpChangeFollowUp::onReachable);
    connect(m_verifier.get(), &IpChangeVerifier::timedOut, this, &IpChangeFollowUp::onTimedOut);
    m_verifier->start();
    emit statusMessage(tr("Waiting for device %1 to come back with its new network settings...").arg(m_deviceId),
                       Qt::black, true);
    onCameraListChanged();
}

void IpChangeFollowUp::onCameraListChanged()
{
    if (m_verifier)
        m_verifier->check(m_cameras());
}

void IpChangeFollowUp::onReachable(const Camera& camera, qint64 elapsedMs)
{
    emit statusMessage(tr("Device %1 is reachable at %2 after %3 s.")
                           .arg(camera.deviceId())
                           .arg(camera.currentIp(), seconds(elapsedMs)),
                       Qt::black, false);
}

void IpChangeFollowUp::onTimedOut(const camera::optional<Camera>& lastSeen, qint64 elapsedMs)
{
    const QString state = lastSeen ? StatusAssessment::of(&*lastSeen, {}).message
                                   : tr("The driver does not list the camera any more.");
    emit statusMessage(state, Qt::red, false);
    const auto answer = QMessageBox::question(
        m_window, tr("Network settings"),
        tr("Device %1 did not come back with its new network settings within %2 s.\n\n%3\n\nDo you want to restore "
           "the settings it had before?")
            .arg(m_deviceId)
            .arg(seconds(elapsedMs), state),
        QMessageBox::Yes | QMessageBox::No, QMessageBox::No);
    if (answer != QMessageBox::Yes)
        return;
    if (lastSeen)
        m_deviceId = lastSeen->deviceId();
    m_restore = std::make_shared<EthConfigSettings>(m_deviceId, m_adapterMac);
    m_restore->restore(m_before);
    const std::shared_ptr<EthConfigSettings> settings = m_restore;
    m_restoreWatcher.setFuture(QtConcurrent::run(QThreadPool::globalInstance(), [settings] { return settings->apply(); }));
    emit statusMessage(tr("Restoring the previous network settings of device %1...").arg(m_deviceId), Qt::black,
                       true);
}

void IpChangeFollowUp::onRestoreFinished()
{
    const ConfigResult result = m_restoreWatcher.result();
    if (result.code == 0) {
        emit statusMessage(tr("The previous network settings of device %1 were restored.").arg(m_deviceId),
                           Qt::black, false);
        return;
    }
    const QString text = tr("Restoring the previous network settings of device %1 failed.\nErrorcode: %2")
                             .arg(m_deviceId)
                             .arg(qint32(result.code));
    emit statusMessage(text, Qt::red, false);
    QMessageBox::warning(m_window, tr("Network settings"), text);
}
