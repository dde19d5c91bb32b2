#pragma once

#include "camera/camera.h"
#include "network/ethcamerasettings.h"
#include "network/ethconfigsettings.h"
#include "network/ipchangeverifier.h"

#include <QColor>
#include <QFutureWatcher>
#include <QObject>
#include <QPointer>

#include <functional>
#include <memory>
#include <optional>

class QWidget;

// What happens after a camera's network settings were applied: the camera is
// followed until the driver reaches it again, which the status line reports
// with the time it took. When it does not come back in time, the status line
// says what the camera's state now is and the user may restore the settings
// it had before.
class IpChangeFollowUp final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(IpChangeFollowUp)

public:
    // Where the driver's current camera list comes from.
    using CameraListSource = std::function<QList<std::shared_ptr<Camera>>()>;

    IpChangeFollowUp(QWidget* window, CameraListSource cameras);
    ~IpChangeFollowUp() override;

    // Replaces any camera followed so far. Without a time-out the camera's
    // heartbeat decides it.
    void follow(const Camera& camera, const IpChangeVerifier::Expectation& expectation,
                const EthCameraSettings& before, std::optional<std::chrono::milliseconds> timeout = {});
    // Looks at the list again; the camera may have come back already.
    void onCameraListChanged();

signals:
    // busy: the camera is still being followed.
    void statusMessage(const QString& text, const QColor& colour, bool busy);

private:
    void onReachable(const Camera& camera, qint64 elapsedMs);
    void onTimedOut(const camera::optional<Camera>& lastSeen, qint64 elapsedMs);
    void onRestoreFinished();

    QWidget* m_window;
    CameraListSource m_cameras;
    std::unique_ptr<IpChangeVerifier> m_verifier;
    quint32 m_deviceId = 0;
    MacAddress m_adapterMac;
    EthCameraSettings m_before;
    std::shared_ptr<EthConfigSettings> m_restore;
    QFutureWatcher<ConfigResult> m_restoreWatcher;
};
