#include "comports.h"

#include "fleet.h"

#include "driversettings/drivertracefiles.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <cstring>

namespace sim {

namespace {

// Ports live beside the trace files, in the driver's private runtime directory.
Result linkPath(std::uint32_t number, std::string& path)
{
    const QString directory = DriverTraceFiles::directory();
    if (!DriverTraceFiles::makePrivateDirectory(directory))
        return failure(PV_ERR_GENERAL, directory.toStdString() + " is not a directory of this user");
    path = QFile::encodeName(QDir(directory).filePath(QStringLiteral("ttyCIRRO%1").arg(number))).toStdString();
    return success();
}

SerialIdentity identityOf(const SimCamera& camera, bool visible)
{
    return {camera.model, camera.serial, camera.cameraId, visible};
}

} // namespace

ComPorts::~ComPorts()
{
    {
        std::lock_guard lock(m_mutex);
        m_stopping = true;
    }
    m_roundDone.notify_all();
    m_waiter.wake();
    if (m_thread.joinable())
        m_thread.join();
}

Result ComPorts::install(std::uint32_t deviceId, std::uint32_t number, const SerialIdentity& identity)
{
    {
        std::lock_guard lock(m_mutex);
        for (const auto& [key, port] : m_ports) {
            if (port.number != number)
                continue;
            if (key == deviceId)
                return success();
            return failure(PV_ERR_PORT_TAKEN, "COM port " + std::to_string(number) + " belongs to device "
                                                  + std::to_string(key));
        }
    }
    return open(deviceId, number, {identity});
}

Result ComPorts::setBroadcast(bool on, const std::vector<SerialIdentity>& cameras)
{
    if (!on) {
        remove(broadcastKey);
        return success();
    }
    {
        std::lock_guard lock(m_mutex);
        if (m_ports.count(broadcastKey))
            return success();
    }
    return open(broadcastKey, PV_COMPORT_BROADCAST_NUMBER, cameras);
}

Result ComPorts::open(std::uint32_t key, std::uint32_t number, std::vector<SerialIdentity> cameras)
{
    std::string path;
    if (Result r = linkPath(number, path); !r.ok())
        return r;
    Port port;
    if (Result r = PtyPort::open(path, port.pty); !r.ok())
        return r;
    port.number = number;
    port.cameras = std::move(cameras);
    std::vector<Port> closing;
    std::unique_lock lock(m_mutex);
    if (const auto earlier = m_ports.find(key); earlier != m_ports.end())
        closing.push_back(std::move(earlier->second));
    m_ports[key] = std::move(port);
    if (!m_thread.joinable())
        m_thread = std::thread(&ComPorts::run, this);
    retire(lock, closing);
    m_waiter.wake(); // the new port joins the poll
    return success();
}

void ComPorts::remove(std::uint32_t deviceId)
{
    std::vector<Port> closing;
    std::unique_lock lock(m_mutex);
    if (const auto found = m_ports.find(deviceId); found != m_ports.end()) {
        closing.push_back(std::move(found->second));
        m_ports.erase(found);
    }
    retire(lock, closing);
}

void ComPorts::clear()
{
    std::vector<Port> closing;
    std::unique_lock lock(m_mutex);
    for (auto& [key, port] : m_ports)
        closing.push_back(std::move(port));
    m_ports.clear();
    retire(lock, closing);
}

void ComPorts::retire(std::unique_lock<std::mutex>& lock, std::vector<Port>& closing)
{
    if (closing.empty() || !m_thread.joinable()) {
        lock.unlock();
        return;
    }
    // A port that the service thread still polls stays open under the poll:
    // wait until it polls the ports that are left, so that clients read a
    // hang-up as soon as the port is gone.
    const std::uint64_t round = m_round;
    lock.unlock();
    m_waiter.wake();
    lock.lock();
    m_roundDone.wait(lock, [&] { return m_round != round || m_stopping; });
    lock.unlock();
    closing.clear();
}

void ComPorts::fill(std::uint32_t key, pv_ComPortInfo& info) const
{
    info = pv_ComPortInfo{};
    std::lock_guard lock(m_mutex);
    const auto found = m_ports.find(key);
    if (found == m_ports.end())
        return;
    info.installed = 1;
    info.number = found->second.number;
    const std::string& path = found->second.pty->linkPath();
    std::memcpy(info.devicePath, path.data(), std::min(path.size(), sizeof info.devicePath - 1));
}

void ComPorts::fillInfo(std::uint32_t deviceId, pv_ComPortInfo& info) const
{
    fill(deviceId, info);
}

void ComPorts::fillBroadcastInfo(pv_ComPortInfo& info) const
{
    fill(broadcastKey, info);
}

std::vector<SerialIdentity> ComPorts::broadcastIdentities(const Fleet& fleet)
{
    const auto visible = fleet.visibleCameras();
    std::vector<SerialIdentity> identities;
    for (const auto& [id, camera] : fleet.cameras()) {
        if (camera.hasSerialInterface())
            identities.push_back(
                identityOf(camera, std::find(visible.begin(), visible.end(), &camera) != visible.end()));
    }
    return identities;
}

std::vector<std::pair<std::uint32_t, std::uint32_t>> ComPorts::follow(const Fleet& fleet)
{
    std::vector<std::pair<std::uint32_t, std::uint32_t>> closed;
    std::vector<Port> closing;
    std::unique_lock lock(m_mutex);
    if (m_ports.empty())
        return closed;
    const auto visible = fleet.visibleCameras();
    for (auto it = m_ports.begin(); it != m_ports.end();) {
        if (it->first == broadcastKey) {
            it->second.cameras = broadcastIdentities(fleet);
            ++it;
            continue;
        }
        const auto camera = fleet.cameras().find(it->first);
        if (camera == fleet.cameras().end()) {
            closed.emplace_back(it->first, it->second.number);
            closing.push_back(std::move(it->second));
            it = m_ports.erase(it);
            continue;
        }
        const bool shown = std::find(visible.begin(), visible.end(), &camera->second) != visible.end();
        it->second.cameras = {identityOf(camera->second, shown)};
        ++it;
    }
    retire(lock, closing);
    return closed;
}

void ComPorts::run()
{
    std::unique_lock lock(m_mutex);
    while (!m_stopping) {
        std::vector<int> fds;
        for (const auto& [key, port] : m_ports)
            fds.push_back(port.pty->controllerFd());
        lock.unlock();
        const std::vector<int> readable = m_waiter.wait(fds);
        lock.lock();
        ++m_round;
        m_roundDone.notify_all();
        // A port closed meanwhile is gone from the map; its descriptor may
        // already belong to a new port, which then reads nothing or its own input.
        for (auto& [key, port] : m_ports) {
            if (std::find(readable.begin(), readable.end(), port.pty->controllerFd()) != readable.end())
                serve(key, port);
        }
    }
}

void ComPorts::serve(std::uint32_t key, Port& port)
{
    const std::string answers = port.protocol.receive(port.pty->read(), port.cameras, key == broadcastKey);
    if (!answers.empty())
        port.pty->write(answers);
}

} // namespace sim
