#pragma once

#include "simresult.h"

namespace sim {

// The calling thread's last failed operation, as pv_GetError reports it.
namespace LastError {

void record(const Result& result);
std::int32_t code();
// Null when no failure was recorded on this thread.
const char* text();

} // namespace LastError
} // namespace sim
