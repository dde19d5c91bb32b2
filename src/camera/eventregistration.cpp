#include "camera/eventregistration.h"

#include "camera/cirroexception.h"

#include <cirro_api.h>

#include <QtGlobal>

#include <utility>

EventRegistration::EventRegistration(std::uint32_t handle, std::uint32_t eventNumber)
{
    pv_EventInit init{eventNumber, 0, 0};
    if (const std::int32_t result = pv_Event(handle, PV_EVENT_INIT, &init, sizeof init); result != PV_OK)
        throw CirroException(result);
    if (const std::int32_t result = pv_Event(handle, PV_EVENT_ENABLE, &eventNumber, sizeof eventNumber);
        result != PV_OK) {
        pv_Event(handle, PV_EVENT_EXIT, &eventNumber, sizeof eventNumber);
        throw CirroException(result);
    }
    m_handle = handle;
    m_eventNumber = eventNumber;
}

EventRegistration::EventRegistration(EventRegistration&& other) noexcept
    : m_handle(std::exchange(other.m_handle, 0))
    , m_eventNumber(std::exchange(other.m_eventNumber, 0))
{
}

EventRegistration& EventRegistration::operator=(EventRegistration&& other) noexcept
{
    if (this != &other) {
        release();
        m_handle = std::exchange(other.m_handle, 0);
        m_eventNumber = std::exchange(other.m_eventNumber, 0);
    }
    return *this;
}

EventRegistration::~EventRegistration()
{
    release();
}

void EventRegistration::release() noexcept
{
    if (m_eventNumber == 0)
        return;
    std::uint32_t number = m_eventNumber;
    if (const std::int32_t result = pv_Event(m_handle, PV_EVENT_DISABLE, &number, sizeof number); result != PV_OK)
        qWarning("PV_EVENT_CMD_DISABLE: %d", result);
    if (const std::int32_t result = pv_Event(m_handle, PV_EVENT_EXIT, &number, sizeof number); result != PV_OK)
        qWarning("PV_EVENT_CMD_EXIT: %d", result);
    m_eventNumber = 0;
    m_handle = 0;
}
