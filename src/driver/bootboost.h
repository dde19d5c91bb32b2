#pragma once

#include "common/result.h"

#include <cstdint>
#include <vector>

// Boot boost of the camera driver: cameras whose ID is on the list start
// faster. Failures carry the driver's return code in the texts that the
// driver settings dialog shows.
namespace BootBoost {

enum class Change { Add, Remove };

Result readEnabled(bool& enabled);
Result setEnabled(bool enabled);
// The command of the change: removing is adding plus 16.
std::uint32_t command(Change change);
Result change(Change change, std::uint8_t id);
Result clear();
// The IDs on the list in the driver's order; empty when the count is 0 or
// can't be read.
Result readIds(std::vector<std::uint8_t>& ids);

} // namespace BootBoost
