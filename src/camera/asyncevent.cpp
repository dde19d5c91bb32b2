#include "camera/asyncevent.h"

namespace {

// The device-list events of the driver, registered after the private stop event.
constexpr std::uint32_t deviceListEvents[] = {PV_EVENT_DEVICE_REMOVED, PV_EVENT_DEVICE_ARRIVED,
                                              PV_EVENT_DEVICE_CHANGED};

} // namespace

AsyncEvent::AsyncEvent(std::uint32_t stopEvent)
    : m_stopEvent(stopEvent)
{
}

AsyncEvent::~AsyncEvent()
{
    stop();
    for (EventRegistration& registration : m_registrations) {
        EventRegistration released = std::move(registration); // released here, in registration order
    }
}

void AsyncEvent::start()
{
    registerEvents();
    m_running = true;
    m_worker = std::thread(&AsyncEvent::run, this);
}

void AsyncEvent::stop()
{
    if (!m_running || !m_worker.joinable())
        return;
    m_running = false;
    std::uint32_t number = m_stopEvent;
    pv_Event(PV_DRIVER_HANDLE, PV_EVENT_SET, &number, sizeof number);
    m_worker.join();
}

bool AsyncEvent::isRunning() const
{
    return m_running;
}

void AsyncEvent::setHandler(int eventNumber, std::function<void()> handler)
{
    bool first = false;
    {
        std::lock_guard lock(m_handlersMutex);
        first = m_handlers.empty();
    }
    if (first)
        start();
    std::lock_guard lock(m_handlersMutex);
    m_handlers[eventNumber] = std::move(handler);
}

void AsyncEvent::removeHandler(int eventNumber)
{
    bool last = false;
    {
        std::lock_guard lock(m_handlersMutex);
        m_handlers.erase(eventNumber);
        last = m_handlers.empty();
    }
    if (last)
        stop();
}

int AsyncEvent::waitForEvent(pv_EventWait& block)
{
    if (pv_Event(PV_DRIVER_HANDLE, PV_EVENT_WAIT, &block, sizeof block) != PV_OK)
        return -1;
    return int(block.signalled);
}

void AsyncEvent::registerEvents()
{
    if (!m_registrations.empty())
        return; // still registered from an earlier start
    m_registrations.emplace_back(PV_DRIVER_HANDLE, m_stopEvent);
    for (std::uint32_t number : deviceListEvents)
        m_registrations.emplace_back(PV_DRIVER_HANDLE, number);
}

std::function<void()> AsyncEvent::handlerFor(int eventNumber)
{
    std::lock_guard lock(m_handlersMutex);
    return m_handlers[eventNumber]; // an unknown number gets an empty handler
}

void AsyncEvent::run()
{
    std::vector<std::uint32_t> numbers;
    for (const EventRegistration& registration : m_registrations)
        numbers.push_back(registration.eventNumber());

    while (m_running) {
        pv_EventWait block{};
        block.events = numbers.data();
        block.count = std::uint32_t(numbers.size());
        block.timeoutMs = waitTimeoutMs;
        const int signalled = waitForEvent(block);
        if (signalled < 0)
            continue;
        if (!m_running)
            break;
        if (const std::function<void()> handler = handlerFor(signalled))
            handler();
    }
}
