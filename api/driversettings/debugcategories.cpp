#include "driversettings/debugcategories.h"

#include <QtGlobal>

namespace DebugCategories {

namespace {

// Kept exactly as the drivers' documentation spells them, lone "A" included.
constexpr const char* names[count] = {
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "All IOCTL calls"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "subsys: transport"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "PnP commands"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "Power requests"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "Device start/stop"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "Driver entry"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "commons"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "Cirro messages"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "Firmware management"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "FX2 stuff"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "Interface high level"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "Interface low level"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "transfer interface"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "capture"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "thread init exit"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "A"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "Boot process"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "Device stuff"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "I/O count"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "Function return status"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "WMI stuff"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "Device list"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "Trigger stuff"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "I2C commands"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "TimingBoard Rev. 3 FPGA"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "SPI"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "Remote event manager"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "Flash data"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "Memory board"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "dump object"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "Warnings"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "Errors"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "NDIS"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "transfer requests"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "SONY MCB"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "crget dispatcher"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "cmd channel"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "crget upload"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "message channel"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "stream channel"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "CRTH"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "CRTH PRNG"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "CRSBET Channel One"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "CRSBET Channel One RX/TX"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "eth device mgt"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "eth device"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "Reference"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "Memory Content"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "capeng imgbufmgt"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "capeng imgbuf"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "capeng capctrl"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "transeng transctrl"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "camctrl"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "capeng block mgt"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "feature"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "Strch2"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "device management"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "test"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "crget cmd"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "unused"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "unused"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "unused"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "unused"),
    QT_TRANSLATE_NOOP("QDebugOutCtrl", "unused"),
};

} // namespace

const char* name(int bit)
{
    return bit >= 0 && bit < count ? names[bit] : "";
}

} // namespace DebugCategories
