#pragma once

#include "fleet.h"

#include <string>

namespace sim {

// The driver's view as JSON for tests and demos: cameras with who holds them,
// adapters, settings and services.
std::string stateReport(const Fleet& fleet, std::size_t eventCount);

} // namespace sim
