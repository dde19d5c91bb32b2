#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <map>
#include <mutex>
#include <thread>

namespace sim {

// Runs actions after a delay on one thread of its own: scenario timelines and
// cameras that come back after a reboot. The thread starts with the first
// action and is joined on destruction.
class Scheduler
{
public:
    using Clock = std::chrono::steady_clock;

    Scheduler() = default;
    Scheduler(const Scheduler&) = delete;
    Scheduler& operator=(const Scheduler&) = delete;
    ~Scheduler();

    void schedule(std::chrono::milliseconds delay, std::function<void()> action);
    // Drops every action not yet run and waits for one that is running, so
    // that nothing scheduled before the call changes state after it.
    void cancelAll();
    std::size_t pending() const;

private:
    void run();

    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    std::condition_variable m_idle;
    bool m_running = false;
    std::multimap<Clock::time_point, std::function<void()>> m_actions;
    bool m_stopping = false;
    std::thread m_thread;
};

} // namespace sim
