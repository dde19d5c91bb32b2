#pragma once

#include <QString>
#include <QtGlobal>

#include <vector>

// Which of the camera's two 32-bit status words a flag table describes.
enum class FlagWord { DeviceStatus, DeviceControl };

struct FlagEntry
{
    quint32 mask = 0; // one bit
    QString name;     // translated
};

// The ordered bit names of the two status words. Built afresh on every call so
// that the names follow the current language; bits without an entry are never
// shown.
using FlagTable = std::vector<FlagEntry>;

class FlagTables final
{
public:
    static FlagTable deviceStatus();
    static FlagTable deviceControl();
    static FlagTable of(FlagWord word);
};
