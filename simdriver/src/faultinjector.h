#pragma once

#include <cstdint>
#include <map>
#include <mutex>
#include <optional>
#include <string>

namespace sim {

// Makes named operations fail on purpose: each armed failure answers the next
// calls of its operation with a given code, a given number of times.
class FaultInjector
{
public:
    void arm(const std::string& operation, std::int32_t code, std::uint32_t times);
    void clear();
    // The code to fail with, consuming one armed failure; empty to run normally.
    std::optional<std::int32_t> take(const std::string& operation);

private:
    struct Armed
    {
        std::int32_t code;
        std::uint32_t remaining;
    };
    std::mutex m_mutex;
    std::map<std::string, Armed> m_armed;
};

} // namespace sim
