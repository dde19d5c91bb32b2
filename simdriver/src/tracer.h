#pragma once

#include "simresult.h"

#include <QString>

#include <atomic>
#include <cstdint>
#include <mutex>
#include <string>

namespace sim {

// The driver's two services, each with a debug output of its own.
enum class TraceService { Usb, Eth };

// The categories of DebugEnableMask that the simulated driver traces.
namespace TraceCategory {
inline constexpr int calls = 0;
inline constexpr int pnp = 2;
inline constexpr int startStop = 4;
inline constexpr int firmware = 8;
inline constexpr int deviceList = 21;
inline constexpr int warnings = 30;
inline constexpr int errors = 31;
inline constexpr int ethDevices = 44;
} // namespace TraceCategory

// GigE cameras and read-only devices belong to cirro_eth, every other device
// to cirro_usb.
TraceService serviceOfDevice(std::uint32_t deviceId);

// Pieces of trace lines: "0x1f"; "ok" or "failed with 107: <text>".
std::string hexNumber(std::uint32_t value);
std::string outcome(const Result& result);

// The debug output: one line per traced event, appended to the service's trace
// file when the event's category is on in the service's mask. Any thread may
// trace; with a category off nothing is formatted.
class Tracer
{
public:
    // New masks; with any category on, the trace directory is chosen (and
    // created) afresh.
    void configure(std::uint64_t usbMask, std::uint64_t ethMask);

    std::uint64_t mask(TraceService service) const
    {
        return m_masks[service == TraceService::Eth ? 1 : 0].load(std::memory_order_relaxed);
    }
    bool enabled(TraceService service, int category) const
    {
        return (mask(service) & (std::uint64_t(1) << category)) != 0;
    }
    // Whether the category is on for either service.
    bool enabledAnywhere(int category) const
    {
        return enabled(TraceService::Usb, category) || enabled(TraceService::Eth, category);
    }

    // Writes the text that describe() returns, only when the category is on.
    // Tracing never makes an operation fail: a line that can't be made is lost.
    template <typename Describe>
    void trace(TraceService service, int category, Describe&& describe) noexcept
    {
        if (!enabled(service, category))
            return;
        try {
            write(service, category, describe());
        } catch (const std::exception&) {
        }
    }

private:
    void write(TraceService service, int category, const std::string& text);

    std::atomic<std::uint64_t> m_masks[2] = {};
    std::mutex m_mutex;
    QString m_directory; // guarded by m_mutex; empty: nowhere to write
};

} // namespace sim
