#pragma once

#include "ptyport.h"
#include "serialprotocol.h"

#include <cirro_api.h>

#include <condition_variable>
#include <map>
#include <mutex>
#include <thread>

namespace sim {

class Fleet;

// The driver's virtual COM ports: one per camera that has one installed, and
// the broadcast port, each a pseudo-terminal linked as ttyCIRRO<number> in
// the driver's runtime directory. A thread of its own answers the serial
// protocol on every port from identities the driver hands over; it never
// takes the driver's lock, while the driver calls in here holding it.
class ComPorts
{
public:
    ComPorts() = default;
    ComPorts(const ComPorts&) = delete;
    ComPorts& operator=(const ComPorts&) = delete;
    ~ComPorts();

    // Installs the camera's port as number (in range), moving one it has
    // already; refuses a number that another camera's port has.
    Result install(std::uint32_t deviceId, std::uint32_t number, const SerialIdentity& identity);
    void remove(std::uint32_t deviceId);
    void fillInfo(std::uint32_t deviceId, pv_ComPortInfo& info) const;
    Result setBroadcast(bool on, const std::vector<SerialIdentity>& cameras);
    void fillBroadcastInfo(pv_ComPortInfo& info) const;
    // Follows the fleet after a change: closes the ports of cameras that left
    // and returns them (device ID, number); refreshes what the ports answer.
    std::vector<std::pair<std::uint32_t, std::uint32_t>> follow(const Fleet& fleet);
    // Closes every port (a scenario load starts afresh).
    void clear();

    // Every camera with a serial interface, as the broadcast port answers for it.
    static std::vector<SerialIdentity> broadcastIdentities(const Fleet& fleet);

private:
    static constexpr std::uint32_t broadcastKey = 0xFFFFFFFFu;

    struct Port
    {
        std::uint32_t number = 0;
        std::unique_ptr<PtyPort> pty;
        SerialProtocol protocol;
        std::vector<SerialIdentity> cameras;
    };

    Result open(std::uint32_t key, std::uint32_t number, std::vector<SerialIdentity> cameras);
    void fill(std::uint32_t key, pv_ComPortInfo& info) const;
    // Closes ports taken out of the map once the service thread has let go of
    // them; unlocks.
    void retire(std::unique_lock<std::mutex>& lock, std::vector<Port>& closing);
    void run();
    void serve(std::uint32_t key, Port& port);

    mutable std::mutex m_mutex;
    std::map<std::uint32_t, Port> m_ports; // by device ID; broadcastKey: the broadcast port
    PortWaiter m_waiter;
    std::condition_variable m_roundDone;
    std::uint64_t m_round = 0; // rounds of the service thread: one per wait
    bool m_stopping = false;
    std::thread m_thread;
};

} // namespace sim
