#pragma once

#include <array>

// The on/off switches that the camera drivers read from their settings files:
// each an integer value in the group "Parameters", non-zero meaning on.
struct RegistryFlag
{
    const char* valueName; // two names end in a blank, as the drivers spell them
    const char* service;
    const char* label; // nullptr: the value name
};

namespace RegistryFlags {

inline constexpr const char group[] = "Parameters";

// In the order of the dialog.
const std::array<RegistryFlag, 25>& all();

} // namespace RegistryFlags
