#include "scheduler.h"

namespace sim {

Scheduler::~Scheduler()
{
    {
        std::lock_guard lock(m_mutex);
        m_stopping = true;
        m_actions.clear();
    }
    m_changed.notify_all();
    if (m_thread.joinable())
        m_thread.join();
}

void Scheduler::schedule(std::chrono::milliseconds delay, std::function<void()> action)
{
    {
        std::lock_guard lock(m_mutex);
        m_actions.emplace(Clock::now() + delay, std::move(action));
        if (!m_thread.joinable())
            m_thread = std::thread(&Scheduler::run, this);
    }
    m_changed.notify_all();
}

void Scheduler::cancelAll()
{
    std::unique_lock lock(m_mutex);
    m_actions.clear();
    // An action may cancel the others itself; it must not wait for itself.
    if (std::this_thread::get_id() != m_thread.get_id())
        m_idle.wait(lock, [this] { return !m_running; });
}

std::size_t Scheduler::pending() const
{
    std::lock_guard lock(m_mutex);
    return m_actions.size();
}

void Scheduler::run()
{
    std::unique_lock lock(m_mutex);
    while (!m_stopping) {
        if (m_actions.empty()) {
            m_changed.wait(lock);
            continue;
        }
        const auto due = m_actions.begin()->first;
        if (Clock::now() < due) {
            m_changed.wait_until(lock, due);
            continue;
        }
        auto action = std::move(m_actions.begin()->second);
        m_actions.erase(m_actions.begin());
        m_running = true;
        lock.unlock(); // actions take the driver's lock and may schedule more
        action();
        lock.lock();
        m_running = false;
        m_idle.notify_all();
    }
}

} // namespace sim
