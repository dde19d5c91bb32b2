#pragma once

#include "guarded.h"

#include <optional>

namespace sim {

// An exported pv_ operation as its trace line names it.
struct Call
{
    // Whose debug output the call goes to: the service of the device that the
    // handle addresses (the USB service for handle 0), or one service outright.
    enum class Route { Handle, Usb, Eth };

    Call(const char* name, Route route = Route::Usb, std::optional<std::uint32_t> handle = {},
         std::optional<std::uint32_t> command = {}, std::optional<std::int32_t> device = {})
        : name(name)
        , route(route)
        , handle(handle)
        , command(command)
        , device(device)
    {
    }

    const char* name;
    Route route;
    std::optional<std::uint32_t> handle;
    std::optional<std::uint32_t> command;
    std::optional<std::int32_t> device;
};

// Traces one exported call: the call and its code ("All IOCTL calls") and a
// failure with its text ("Warnings" for a state the caller may wait out,
// "Errors" for the rest). Costs a few mask tests while those are off.
class CallTrace
{
public:
    explicit CallTrace(const Call& call);
    void finish(std::int32_t code) const;

private:
    const Call& m_call;
    bool m_active = false;
    TraceService m_service = TraceService::Usb;
};

// guarded() for a pv_ operation, traced.
template <typename Operation>
std::int32_t traced(const Call& call, Operation&& operation)
{
    const CallTrace trace(call);
    const std::int32_t code = guarded(call.name, std::forward<Operation>(operation));
    trace.finish(code);
    return code;
}

} // namespace sim
