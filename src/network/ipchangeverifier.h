#pragma once

#include "camera/camera.h"
#include "network/macaddress.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <chrono>
#include <memory>

// Follows one GigE camera by its MAC after its network settings changed,
// through the driver's list updates, until the driver reaches it with the new
// settings or the time-out passes. The device ID may change on the way.
class IpChangeVerifier final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(IpChangeVerifier)

public:
    struct Expectation
    {
        MacAddress mac;
        quint32 address = 0;    // host order; 0: any address
        bool fromRange = false; // the address must come from the adapter's range
    };

    // The time-out: ten heartbeat periods of the camera and five seconds for
    // the camera to test its new address, at most 30 s.
    static std::chrono::milliseconds timeoutFor(const Camera& camera);

    IpChangeVerifier(const Expectation& expectation, std::chrono::milliseconds timeout, QObject* parent = nullptr);

    // Starts the clock; the first list should follow at once.
    void start();
    // Looks at the current list; call it after every list update.
    void check(const QList<std::shared_ptr<Camera>>& cameras);
    bool isRunning() const { return m_timer.isActive(); }

signals:
    void reachable(const Camera& camera, qint64 elapsedMs);
    // lastSeen: the camera as the driver last listed it, if it did.
    void timedOut(const camera::optional<Camera>& lastSeen, qint64 elapsedMs);

private:
    bool meetsExpectation(const Camera& camera) const;

    Expectation m_expectation;
    QTimer m_timer;
    QElapsedTimer m_clock;
    camera::optional<Camera> m_lastSeen;
};
