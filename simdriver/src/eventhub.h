#pragma once

#include "simresult.h"

#include <condition_variable>
#include <cstdint>
#include <map>
#include <mutex>
#include <utility>

namespace sim {

// The driver's events. An event lives in a scope (the driver as a whole, or
// one device), is created by init, signalled by set or by the driver, and
// consumed by wait; an auto-reset event is reset by the wait that sees it.
// A disabled event ignores signals. Waits block only their own thread.
class EventHub
{
public:
    using Scope = std::uint32_t; // 0: the driver; else a device scope

    static Scope deviceScope(std::uint32_t deviceId) { return 0x10000u + deviceId; }

    Result init(Scope scope, const pv_EventInit& init);
    Result exit(Scope scope, std::uint32_t number);
    Result enable(Scope scope, std::uint32_t number, bool enabled);
    Result set(Scope scope, std::uint32_t number);
    Result reset(Scope scope, std::uint32_t number);
    Result wait(Scope scope, pv_EventWait& wait);

    // A signal raised by the driver itself; unknown or disabled events ignore it.
    void signal(Scope scope, std::uint32_t number);
    // Every event of every scope, initialised and enabled ones alike.
    std::size_t eventCount() const;

private:
    struct Event
    {
        bool manualReset = false;
        bool signalled = false;
        bool enabled = false;
    };
    using Key = std::pair<Scope, std::uint32_t>;

    Event* find(Scope scope, std::uint32_t number);
    Result missing(std::uint32_t number) const;
    // Returns the event that ends the wait, or 0 while it must go on.
    std::uint32_t satisfied(Scope scope, const pv_EventWait& wait);

    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    std::map<Key, Event> m_events;
};

} // namespace sim
