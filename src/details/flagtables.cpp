#include "details/flagtables.h"

#include <QCoreApplication>

namespace {

struct SourceEntry
{
    quint32 mask;
    const char* name;
};

// Bits 0x800, 0x8000, 0x02000000, 0x08000000, 0x10000000 and 0x20000000 have
// no name.
constexpr SourceEntry deviceStatusEntries[] = {
    {0x00000001, QT_TRANSLATE_NOOP("DeviceInfoModel", "Ready to operate")},
    {0x00000002, QT_TRANSLATE_NOOP("DeviceInfoModel", "Testing current IP")},
    {0x00000004, QT_TRANSLATE_NOOP("DeviceInfoModel", "Testing persistent IP")},
    {0x00000008, QT_TRANSLATE_NOOP("DeviceInfoModel", "Testing IP range")},
    {0x00000010, QT_TRANSLATE_NOOP("DeviceInfoModel", "Current IP address not applicable")},
    {0x00000020, QT_TRANSLATE_NOOP("DeviceInfoModel", "Persistent IP address not applicable")},
    {0x00000040, QT_TRANSLATE_NOOP("DeviceInfoModel", "IP range not applicable")},
    {0x00000080, QT_TRANSLATE_NOOP("DeviceInfoModel", "Multicast mode enabled")},
    {0x00000100, QT_TRANSLATE_NOOP("DeviceInfoModel", "Unpaired")},
    {0x00000200, QT_TRANSLATE_NOOP("DeviceInfoModel", "Pairing in progress")},
    {0x00000400, QT_TRANSLATE_NOOP("DeviceInfoModel", "Paired")},
    {0x00001000, QT_TRANSLATE_NOOP("DeviceInfoModel", "Force 100Mbps")},
    {0x00002000, QT_TRANSLATE_NOOP("DeviceInfoModel", "No COM port")},
    {0x00004000, QT_TRANSLATE_NOOP("DeviceInfoModel", "Needs firmware addon")},
    {0x00010000, QT_TRANSLATE_NOOP("DeviceInfoModel", "Receiving starter firmware")},
    {0x00020000, QT_TRANSLATE_NOOP("DeviceInfoModel", "Receiving runtime firmware")},
    {0x00040000, QT_TRANSLATE_NOOP("DeviceInfoModel", "Inapplicable runtime firmware")},
    {0x00080000, QT_TRANSLATE_NOOP("DeviceInfoModel", "Inapplicable starter firmware")},
    {0x00100000, QT_TRANSLATE_NOOP("DeviceInfoModel", "Rebooting to runtime firmware")},
    {0x00200000, QT_TRANSLATE_NOOP("DeviceInfoModel", "Rebooting to starter firmware")},
    {0x00400000, QT_TRANSLATE_NOOP("DeviceInfoModel", "Rebooting to failsafe firmware")},
    {0x00800000, QT_TRANSLATE_NOOP("DeviceInfoModel", "Testing FPGA Firmware")},
    {0x01000000, QT_TRANSLATE_NOOP("DeviceInfoModel", "Receiving addon firmware")},
    {0x04000000, QT_TRANSLATE_NOOP("DeviceInfoModel", "Inapplicable addon firmware")},
    {0x40000000, QT_TRANSLATE_NOOP("DeviceInfoModel", "Hardware configuration error")},
    {0x80000000, QT_TRANSLATE_NOOP("DeviceInfoModel", "Runtime firmware error 0")},
};

constexpr SourceEntry deviceControlEntries[] = {
    {0x00000001, QT_TRANSLATE_NOOP("DeviceInfoModel", "Available")},
    {0x00000002, QT_TRANSLATE_NOOP("DeviceInfoModel", "Accessible 1")},
    {0x00000004, QT_TRANSLATE_NOOP("DeviceInfoModel", "Accessible 2")},
    {0x00000010, QT_TRANSLATE_NOOP("DeviceInfoModel", "Persistent IP address used")},
    {0x00000020, QT_TRANSLATE_NOOP("DeviceInfoModel", "Compatible")},
    {0x00000040, QT_TRANSLATE_NOOP("DeviceInfoModel", "Adapter uses DHCP")},
    {0x00000080, QT_TRANSLATE_NOOP("DeviceInfoModel", "Adapter settings OK")},
    {0x00000100, QT_TRANSLATE_NOOP("DeviceInfoModel", "Unpairing in progress")},
    {0x00000200, QT_TRANSLATE_NOOP("DeviceInfoModel", "Pairing in progress")},
    {0x00001000, QT_TRANSLATE_NOOP("DeviceInfoModel", "Paired")},
    {0x00004000, QT_TRANSLATE_NOOP("DeviceInfoModel", "Opened")},
    {0x00010000, QT_TRANSLATE_NOOP("DeviceInfoModel", "Upload starter firmware")},
    {0x00020000, QT_TRANSLATE_NOOP("DeviceInfoModel", "Upload runtime firmware")},
    {0x00100000, QT_TRANSLATE_NOOP("DeviceInfoModel", "Rebooting")},
    {0x01000000, QT_TRANSLATE_NOOP("DeviceInfoModel", "Boot boost enabled")},
    {0x02000000, QT_TRANSLATE_NOOP("DeviceInfoModel", "Boot boost used")},
    {0x08000000, QT_TRANSLATE_NOOP("DeviceInfoModel", "Initialized")},
    {0x40000000, QT_TRANSLATE_NOOP("DeviceInfoModel", "To be deleted")},
    {0x80000000, QT_TRANSLATE_NOOP("DeviceInfoModel", "To be removed")},
};

template <std::size_t N>
FlagTable translated(const SourceEntry (&entries)[N])
{
    FlagTable table;
    table.reserve(N);
    for (const SourceEntry& entry : entries)
        table.push_back({entry.mask, QCoreApplication::translate("DeviceInfoModel", entry.name)});
    return table;
}

} // namespace

FlagTable FlagTables::deviceStatus()
{
    return translated(deviceStatusEntries);
}

FlagTable FlagTables::deviceControl()
{
    return translated(deviceControlEntries);
}

FlagTable FlagTables::of(FlagWord word)
{
    return word == FlagWord::DeviceStatus ? deviceStatus() : deviceControl();
}
