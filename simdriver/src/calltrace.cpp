#include "calltrace.h"

namespace sim {

namespace {

std::string describe(const Call& call)
{
    std::string arguments;
    const auto add = [&](const char* label, const std::string& value) {
        arguments += (arguments.empty() ? "" : ", ") + std::string(label) + ' ' + value;
    };
    if (call.handle)
        add("handle", hexNumber(*call.handle));
    if (call.device)
        add("device", std::to_string(*call.device));
    if (call.command)
        add("command", hexNumber(*call.command));
    return std::string(call.name) + '(' + arguments + ')';
}

// The service of the device a handle addresses; the handle is read before the
// call, while an open handle still names its camera.
TraceService serviceOfHandle(SimDriver& driver, std::uint32_t handle)
{
    if (handle == PV_DRIVER_HANDLE)
        return TraceService::Usb;
    if (handle & PV_DEVICE_ID_FLAG)
        return serviceOfDevice(handle & 0x7FFFu);
    return driver.read([&](Fleet& fleet) {
        const SimCamera* camera = fleet.visibleByHandle(handle);
        return camera ? serviceOfDevice(camera->deviceId) : TraceService::Usb;
    });
}

bool isWarning(std::int32_t code)
{
    switch (code) {
    case PV_ERR_TIMEOUT:
    case PV_ERR_DEVICE_IN_USE:
    case PV_ERR_SERVICE_STOPPED:
    case PV_ERR_BUSY:
    case PV_ERR_BOOT_BOOST_ACTIVE:
        return true;
    default:
        return false;
    }
}

} // namespace

CallTrace::CallTrace(const Call& call)
    : m_call(call)
{
    try {
        const Tracer& tracer = SimDriver::instance().tracer();
        m_active = tracer.enabledAnywhere(TraceCategory::calls) || tracer.enabledAnywhere(TraceCategory::warnings)
                   || tracer.enabledAnywhere(TraceCategory::errors);
        if (!m_active || call.route == Call::Route::Usb)
            return;
        m_service = call.route == Call::Route::Eth ? TraceService::Eth
                                                   : serviceOfHandle(SimDriver::instance(), call.handle.value_or(0));
    } catch (const std::exception&) {
        m_active = false; // the call itself reports what failed
    }
}

void CallTrace::finish(std::int32_t code) const
{
    if (!m_active)
        return;
    Tracer& tracer = SimDriver::instance().tracer();
    tracer.trace(m_service, TraceCategory::calls, [&] { return describe(m_call) + ": " + std::to_string(code); });
    if (code == PV_OK)
        return;
    tracer.trace(m_service, isWarning(code) ? TraceCategory::warnings : TraceCategory::errors, [&] {
        const char* text = LastError::text();
        return describe(m_call) + " failed with " + std::to_string(code) + ": " + (text ? text : "no text");
    });
}

} // namespace sim
