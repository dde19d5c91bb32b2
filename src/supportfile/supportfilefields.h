#pragma once

#include "supportfile/supportfilenames.h"

#include <cirro_api.h>

#include <QString>

#include <functional>
#include <vector>

class Camera;

// One key of a camera section: how a camera's record gives its value to the
// writer and takes it back from the reader, so that both agree field for field.
struct SupportFileField
{
    enum class Type { Number, Text };
    using Record = pv_ExtendedDeviceInformation;

    SupportFileNames::Name name;
    Type type;
    std::function<QString(const Record&)> write;
    std::function<void(Record&, const QString&)> read;
};

// One array of 32-bit counters of the device information, a key per element.
struct SupportFileCounterArray
{
    SupportFileNames::Name format; // "DebugDeviceStatistics_%d"
    std::size_t offset;            // in pv_DeviceInformation
    int count;

    quint32* elements(pv_DeviceInformation& info) const;
    const quint32* elements(const pv_DeviceInformation& info) const;
};

namespace SupportFileFields {

using Fields = std::vector<SupportFileField>;

// The keys of a "USB - %d" section that every USB camera writes, from
// "DeviceId" to "DeviceUsed".
const Fields& usbIdentity();
// From "DeviceTemperature" to "DeviceComportOffset": only with a valid
// device-information block.
const Fields& usbInformation();
const SupportFileField& ccgVersion();
const SupportFileField& usbDriverVersion();
// The keys of an "ETH - %d" section before its counter arrays.
const Fields& eth();
const std::vector<SupportFileCounterArray>& ethCounters();
const Fields& vpe();

// The field of a camera key, or null for a name that is none.
const SupportFileField* find(SupportFileNames::Name name);

// Everything the camera record holds, as one block.
pv_ExtendedDeviceInformation record(const Camera& camera);

} // namespace SupportFileFields
