#pragma once

#include <cirro_api.h>

#include <cstdint>
#include <string>

namespace sim {

// Outcome of one driver operation: a camera-API return code and, for a
// failure, the text that pv_GetError hands out.
struct Result
{
    std::int32_t code = PV_OK;
    std::string text;

    bool ok() const { return code == PV_OK; }
};

inline Result success()
{
    return {};
}

inline Result failure(std::int32_t code, std::string text)
{
    return {code, std::move(text)};
}

// Checks a caller's buffer: not null and at least `needed` bytes.
inline Result checkBuffer(const void* buffer, std::uint32_t size, std::uint32_t needed, const char* what)
{
    if (!buffer)
        return failure(PV_ERR_NULL_POINTER, std::string(what) + ": buffer is null");
    if (size < needed)
        return failure(PV_ERR_BUFFER_TOO_SMALL, std::string(what) + ": buffer of " + std::to_string(size)
                                                    + " bytes, " + std::to_string(needed) + " needed");
    return success();
}

} // namespace sim
