#pragma once

#include <cstdint>
#include <cstring>

namespace sim {

// 32-bit words in callers' buffers, which need not be aligned.
inline std::uint32_t readWord(const void* buffer)
{
    std::uint32_t value;
    std::memcpy(&value, buffer, sizeof value);
    return value;
}

inline void writeWord(void* buffer, std::uint32_t value)
{
    std::memcpy(buffer, &value, sizeof value);
}

} // namespace sim
