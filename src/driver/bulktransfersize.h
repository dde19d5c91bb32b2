#pragma once

#include "common/result.h"

#include <QString>

#include <array>

class ServiceSettingsFile;

// The USB driver's bulk transfer size, a value of its settings file in bytes.
namespace BulkTransferSize {

inline constexpr const char valueKey[] = "Parameters/BulkTransferSize";

struct Choice
{
    const char* text; // translation context "AdditionalFunctions"
    quint32 bytes;
};

inline constexpr std::array<Choice, 3> choices{{
    {"128 KB", 0x20000},
    {"256 KB", 0x40000},
    {"512 KB (default)", 0x80000},
}};

inline constexpr int defaultIndex = 2;

// The choice whose size the file holds. The drivers' tools read a missing
// value as "512", which names no size in bytes, so it falls back to the
// default as any other unknown value does.
int indexIn(const ServiceSettingsFile& usbSettings);
Result write(ServiceSettingsFile& usbSettings, int index);

} // namespace BulkTransferSize
