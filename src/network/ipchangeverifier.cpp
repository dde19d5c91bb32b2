#include "network/ipchangeverifier.h"

#include "network/ipv4.h"

#include <algorithm>

namespace {

constexpr std::chrono::milliseconds addressTestAllowance{5000};
constexpr std::chrono::milliseconds longestTimeout{30000};
constexpr int heartbeatsToWait = 10;

} // namespace

std::chrono::milliseconds IpChangeVerifier::timeoutFor(const Camera& camera)
{
    const std::chrono::milliseconds heartbeat{camera.eth().heartbeatPeriodMs};
    if (heartbeat.count() == 0)
        return longestTimeout;
    return std::min(longestTimeout, addressTestAllowance + heartbeatsToWait * heartbeat);
}

IpChangeVerifier::IpChangeVerifier(const Expectation& expectation, std::chrono::milliseconds timeout,
                                   QObject* parent)
    : QObject(parent)
    , m_expectation(expectation)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(int(timeout.count()));
    connect(&m_timer, &QTimer::timeout, this, [this] { emit timedOut(m_lastSeen, m_clock.elapsed()); });
}

void IpChangeVerifier::start()
{
    m_clock.start();
    m_timer.start();
}

void IpChangeVerifier::check(const QList<std::shared_ptr<Camera>>& cameras)
{
    if (!isRunning())
        return;
    const auto found = std::find_if(cameras.cbegin(), cameras.cend(), [this](const std::shared_ptr<Camera>& camera) {
        return camera->kind() == Camera::Kind::Eth && MacAddress::parse(camera->macAddress()) == m_expectation.mac;
    });
    if (found == cameras.cend())
        return;
    m_lastSeen = **found;
    if (!meetsExpectation(**found))
        return;
    m_timer.stop();
    emit reachable(**found, m_clock.elapsed());
}

bool IpChangeVerifier::meetsExpectation(const Camera& camera) const
{
    if (!camera.isReachable())
        return false;
    if (m_expectation.fromRange && (camera.deviceControlStatus() & PV_CONTROL_PERSISTENT_IP_USED))
        return false;
    return m_expectation.address == 0 || Ipv4::fromText(camera.currentIp()) == m_expectation.address;
}
