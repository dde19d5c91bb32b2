#include "driver/registryflags.h"

#include "driversettings/driverservicesettings.h"

namespace RegistryFlags {

namespace {

constexpr const char* usb = DriverServiceSettings::usbService;
constexpr const char* eth = DriverServiceSettings::ethService;

constexpr std::array<RegistryFlag, 25> flags{{
    {"OpenUncalibratedCameras", usb, nullptr},
    {"ExposureControl", usb, nullptr},
    {"LoadSensorFromFile", usb, nullptr},
    {"LoadTB3FromFile", usb, nullptr},
    {"UseProtoFirmware", usb, nullptr},
    {"Disable_UDP_Chcks_To", eth, nullptr},
    {"AutomaticFirmwareUpdate_Bypass", eth, "AutomaticFirmwareUpdate_Bypass (>=4.92)"},
    {"AutomaticFirmwareUpdate_SE_Start_Bypass", eth, "AutomaticFirmwareUpdate_SE_Start_Bypass (<4.92)"},
    {"AutomaticFirmwareUpdate_CP_Start_Bypass", eth, "AutomaticFirmwareUpdate_CP_Start_Bypass (<4.92)"},
    {"ManualFirmwareUpdate_Validation_Bypass", eth, nullptr},
    {"ReInitPortOnError", usb, nullptr},
    {"AllowNonHighSpeed", usb, nullptr},
    {"DisableLegacyCheck", usb, nullptr},
    {"DisableStartValuePatch", usb, nullptr},
    {"ReadIniFile", usb, nullptr},
    {"LogAPI", usb, nullptr},
    {"LogError", usb, nullptr},
    {"LogBoardIO ", usb, nullptr},
    {"LogDirectX", usb, nullptr},
    {"UnlockMaxPclk", usb, nullptr},
    {"DDCopyMode ", usb, nullptr},
    {"DevChangeHandlerMode", usb, nullptr},
    {"AllowAutoStarterFwUpload", eth, nullptr},
    {"WriteFPGARegisterAllowed", usb, nullptr},
    {"IgnoreFirmwareVersion", usb, nullptr},
}};

} // namespace

const std::array<RegistryFlag, 25>& all()
{
    return flags;
}

} // namespace RegistryFlags
