#pragma once

#include <cstdint>

// One camera-API event, initialised and enabled for the lifetime of the
// object; disabled and exited when it goes. Move-only; a moved-from
// registration is all zero and releases nothing.
class EventRegistration final
{
public:
    // Throws CirroException when the driver refuses to initialise or enable.
    EventRegistration(std::uint32_t handle, std::uint32_t eventNumber);
    EventRegistration(EventRegistration&& other) noexcept;
    EventRegistration& operator=(EventRegistration&& other) noexcept;
    EventRegistration(const EventRegistration&) = delete;
    EventRegistration& operator=(const EventRegistration&) = delete;
    ~EventRegistration();

    std::uint32_t handle() const { return m_handle; }
    std::uint32_t eventNumber() const { return m_eventNumber; }

private:
    void release() noexcept;

    std::uint32_t m_handle = 0;
    std::uint32_t m_eventNumber = 0;
};
