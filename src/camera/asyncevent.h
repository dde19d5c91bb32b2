#pragma once

#include "camera/eventregistration.h"

#include <cirro_api.h>

#include <atomic>
#include <functional>
#include <map>
#include <mutex>
#include <thread>
#include <vector>

// Waits on the camera API's device-list events with one worker thread and calls
// the handler registered for each event that arrives. The first handler starts
// the worker, removing the last one stops it. Handlers run on the worker.
class AsyncEvent
{
public:
    explicit AsyncEvent(std::uint32_t stopEvent);
    AsyncEvent(const AsyncEvent&) = delete;
    AsyncEvent& operator=(const AsyncEvent&) = delete;
    virtual ~AsyncEvent();

    // Registers the events and starts the worker; throws CirroException when
    // the driver refuses an event, std::system_error when no thread starts.
    virtual void start();
    // Wakes the worker through the private stop event and joins it.
    virtual void stop();
    virtual bool isRunning() const;
    virtual void setHandler(int eventNumber, std::function<void()> handler);
    virtual void removeHandler(int eventNumber);
    // One wait of the driver; the number of the event signalled, or -1.
    virtual int waitForEvent(pv_EventWait& block);
    virtual void registerEvents();

    static constexpr std::uint32_t waitTimeoutMs = 500;

private:
    void run();
    std::function<void()> handlerFor(int eventNumber);

    std::map<int, std::function<void()>> m_handlers;
    std::mutex m_handlersMutex;
    std::vector<EventRegistration> m_registrations;
    std::atomic<bool> m_running{false};
    std::thread m_worker;
    const std::uint32_t m_stopEvent;
};
