#include "faultinjector.h"

namespace sim {

void FaultInjector::arm(const std::string& operation, std::int32_t code, std::uint32_t times)
{
    std::lock_guard lock(m_mutex);
    if (times == 0)
        m_armed.erase(operation);
    else
        m_armed[operation] = {code, times};
}

void FaultInjector::clear()
{
    std::lock_guard lock(m_mutex);
    m_armed.clear();
}

std::optional<std::int32_t> FaultInjector::take(const std::string& operation)
{
    std::lock_guard lock(m_mutex);
    const auto it = m_armed.find(operation);
    if (it == m_armed.end())
        return std::nullopt;
    const std::int32_t code = it->second.code;
    if (--it->second.remaining == 0)
        m_armed.erase(it);
    return code;
}

} // namespace sim
