#pragma once

#include "lasterror.h"
#include "simdriver.h"

#include <new>

namespace sim {

// Runs one exported operation: an armed failure answers instead, a failure is
// kept for pv_GetError, and no exception crosses the C boundary.
template <typename Operation>
std::int32_t guarded(const char* name, Operation&& operation)
{
    Result result;
    try {
        SimDriver& driver = SimDriver::instance();
        if (const auto code = driver.faults().take(name))
            result = failure(*code, std::string(name) + ": injected failure");
        else
            result = operation(driver);
    } catch (const std::bad_alloc&) {
        result = failure(PV_ERR_NO_MEMORY, std::string(name) + ": out of memory");
    } catch (const std::exception& e) {
        result = failure(PV_ERR_GENERAL, std::string(name) + ": " + e.what());
    }
    LastError::record(result);
    return result.code;
}

} // namespace sim
