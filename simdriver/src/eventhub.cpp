#include "eventhub.h"

#include <chrono>

namespace sim {

namespace {
constexpr std::uint32_t maxWaitEvents = 64;
constexpr std::uint32_t infinite = 0xFFFFFFFFu;
}

EventHub::Event* EventHub::find(Scope scope, std::uint32_t number)
{
    const auto it = m_events.find({scope, number});
    return it == m_events.end() ? nullptr : &it->second;
}

Result EventHub::missing(std::uint32_t number) const
{
    return failure(PV_ERR_EVENT_NOT_INITIALIZED,
                   "event " + std::to_string(number) + " is not initialised on this handle");
}

Result EventHub::init(Scope scope, const pv_EventInit& init)
{
    std::lock_guard lock(m_mutex);
    if (find(scope, init.eventNumber))
        return failure(PV_ERR_EVENT_EXISTS,
                       "event " + std::to_string(init.eventNumber) + " is already initialised on this handle");
    Event event;
    event.manualReset = init.manualReset != 0;
    event.signalled = init.initialState != 0;
    m_events.emplace(Key{scope, init.eventNumber}, event);
    return success();
}

Result EventHub::exit(Scope scope, std::uint32_t number)
{
    {
        std::lock_guard lock(m_mutex);
        if (m_events.erase({scope, number}) == 0)
            return missing(number);
    }
    m_changed.notify_all(); // waiters on it end with an error
    return success();
}

Result EventHub::enable(Scope scope, std::uint32_t number, bool enabled)
{
    std::lock_guard lock(m_mutex);
    Event* event = find(scope, number);
    if (!event)
        return missing(number);
    event->enabled = enabled;
    return success();
}

Result EventHub::set(Scope scope, std::uint32_t number)
{
    {
        std::lock_guard lock(m_mutex);
        Event* event = find(scope, number);
        if (!event)
            return missing(number);
        if (event->enabled)
            event->signalled = true;
    }
    m_changed.notify_all();
    return success();
}

Result EventHub::reset(Scope scope, std::uint32_t number)
{
    std::lock_guard lock(m_mutex);
    Event* event = find(scope, number);
    if (!event)
        return missing(number);
    event->signalled = false;
    return success();
}

void EventHub::signal(Scope scope, std::uint32_t number)
{
    {
        std::lock_guard lock(m_mutex);
        Event* event = find(scope, number);
        if (!event || !event->enabled)
            return;
        event->signalled = true;
    }
    m_changed.notify_all();
}

std::size_t EventHub::eventCount() const
{
    std::lock_guard lock(m_mutex);
    return m_events.size();
}

std::uint32_t EventHub::satisfied(Scope scope, const pv_EventWait& wait)
{
    std::uint32_t first = 0;
    std::uint32_t signalledCount = 0;
    for (std::uint32_t i = 0; i < wait.count; ++i) {
        const Event* event = find(scope, wait.events[i]);
        if (event && event->signalled) {
            ++signalledCount;
            if (first == 0)
                first = wait.events[i];
            if (!wait.waitForAll)
                break;
        }
    }
    if (wait.waitForAll && signalledCount < wait.count)
        return 0;
    return first;
}

Result EventHub::wait(Scope scope, pv_EventWait& wait)
{
    wait.signalled = 0;
    if (!wait.events)
        return failure(PV_ERR_NULL_POINTER, "wait: event array is null");
    if (wait.count == 0 || wait.count > maxWaitEvents)
        return failure(PV_ERR_INVALID_PARAMETER,
                       "wait: " + std::to_string(wait.count) + " events, 1 to 64 allowed");

    std::unique_lock lock(m_mutex);
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::milliseconds(wait.timeoutMs);
    for (;;) {
        for (std::uint32_t i = 0; i < wait.count; ++i) {
            if (!find(scope, wait.events[i]))
                return missing(wait.events[i]);
        }
        if (const std::uint32_t number = satisfied(scope, wait)) {
            for (std::uint32_t i = 0; i < wait.count; ++i) {
                Event* event = find(scope, wait.events[i]);
                if (event->signalled && !event->manualReset && (wait.waitForAll || wait.events[i] == number))
                    event->signalled = false;
            }
            wait.signalled = number;
            return success();
        }
        if (wait.timeoutMs == infinite)
            m_changed.wait(lock);
        else if (m_changed.wait_until(lock, deadline) == std::cv_status::timeout
                 && !satisfied(scope, wait))
            return failure(PV_ERR_TIMEOUT, "wait: time-out after " + std::to_string(wait.timeoutMs) + " ms");
    }
}

} // namespace sim
