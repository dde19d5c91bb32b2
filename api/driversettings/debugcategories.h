#pragma once

#include <cstdint>

// The trace categories of the camera drivers' debug output: bit k of a
// driver's "Parameters/DebugEnableMask" switches category k on. Both drivers
// share the names.
namespace DebugCategories {

inline constexpr int count = 64;
inline constexpr const char maskValue[] = "Parameters/DebugEnableMask";

// The untranslated name of category bit (0-63); the translation context is
// "QDebugOutCtrl".
const char* name(int bit);

constexpr std::uint64_t bit(int category)
{
    return std::uint64_t(1) << category;
}

} // namespace DebugCategories
