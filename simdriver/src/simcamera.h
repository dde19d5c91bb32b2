#pragma once

#include "driversettings.h"
#include "simadapter.h"
#include "simmaintenance.h"

#include <chrono>

namespace sim {

enum class CameraKind { Usb, Eth, ReadOnly, Sdk, Unknown };

const char* kindName(CameraKind kind);
bool parseKind(const std::string& text, CameraKind& kind);
// First device ID and one past the last of a kind's range.
std::uint32_t firstDeviceId(CameraKind kind);
std::uint32_t endDeviceId(CameraKind kind);

// One virtual camera: what the scenario says about it, plus the state the
// driver derives from it, its adapter and the driver settings.
struct SimCamera
{
    static constexpr std::uint32_t unassigned = 0xFFFFFFFFu;

    explicit SimCamera(CameraKind kind = CameraKind::Usb);

    // Applies the fields of a camera object of a scenario (kind excluded).
    Result apply(const QJsonObject& json);
    // Applies changes to a connected camera: kind and device ID stay.
    Result applyChange(const QJsonObject& json);

    bool isEthernet() const { return kind == CameraKind::Eth || kind == CameraKind::ReadOnly; }
    // Whether the device information carries the network part rather than
    // the USB part: every camera on the network, not only those of the ETH
    // service.
    bool isOnNetwork() const;
    bool isOpen() const { return openHandle != 0; }
    bool inUse() const { return isOpen() || openedElsewhere; }
    // The camera types with a serial interface, which the driver can back with a virtual COM port.
    bool hasSerialInterface() const
    {
        return typeCode == 0x62 || typeCode == 0x64 || typeCode == 0x65 || typeCode == 0x80;
    }

    // Recomputes the derived words; `rangeAddress` is the address the camera
    // takes from its adapter's range when it has no persistent one (0: none).
    void derive(const SimAdapter* adapter, const DriverSettings& settings, std::uint32_t rangeAddress);

    void fillListEntry(pv_CameraListEntry& entry) const;
    void fillDeviceInformation(pv_DeviceInformation& info, const SimAdapter* adapter,
                               const DriverSettings& settings, std::uint32_t knownDevices,
                               std::uint32_t elapsedMs) const;
    void fillCameraInfo(pv_CameraInfo& info) const;
    void fillSensorInfo(pv_SensorInfo& info) const;
    void fillRevisionInfo(pv_RevisionInfo& info) const;
    void fillUserEeprom(std::uint8_t (&block)[PV_USER_EEPROM_SIZE]) const;
    void writeUserEeprom(const std::uint8_t (&block)[PV_USER_EEPROM_SIZE]);

    // Identity
    CameraKind kind;
    std::uint32_t deviceId = unassigned;
    std::uint32_t cameraId = 1;
    std::uint32_t sensorId = 0x42;
    std::string serial;
    std::string model;
    std::string fullModel;
    std::uint8_t typeCode = 0;
    std::uint8_t typeFlag = 0;
    std::uint16_t interfaceWord = 0;
    std::uint8_t linkByte = 0;
    std::uint8_t infoSource = 0;
    std::uint32_t listStatus = 0;
    bool openedElsewhere = false;

    // Device
    std::uint16_t temperatureRaw = 0x0298; // 41.5 degrees
    std::uint16_t linkSpeed = 0;
    std::uint32_t usbVersionCode = 3;
    std::uint8_t connectionType = 3;
    std::string portPath;
    std::uint32_t starterFirmware = 0; // 0: the driver's image
    std::uint32_t runtimeFirmware = 0;
    std::uint32_t failsafeFirmware = PV_VERSION(1, 0, 0);
    std::uint16_t firmwareSelector = 1;
    std::uint32_t firmwareRevision = 0x1F3;
    std::uint32_t features = 0;
    std::uint32_t ipCapabilities = PV_IPCAP_PERSISTENT | PV_IPCAP_DHCP | PV_IPCAP_RANGE;
    std::int16_t comPortOffset = 0;
    std::uint32_t imageMemoryMB = 256;
    std::string userSpace; // the user EEPROM, up to PV_USER_EEPROM_SIZE bytes
    std::string date = "2025-06-12";

    // ETH and read-only devices
    std::string adapterName;
    MacAddress mac{};
    std::uint32_t persistentIp = 0;
    std::uint32_t persistentMask = 0;
    bool dhcp = false;
    std::uint32_t multicastIp = 0;
    bool multicastEnabled = false;
    std::uint32_t multicastCapability = 1;
    bool heldByOtherHost = false;
    bool firmwareCorrupted = false;
    std::uint32_t sourceIp = 0;     // read-only device: the camera it listens to
    std::uint32_t readOnlyMode = 1; // read-only device: error handling

    SimMaintenance maintenance;

    // Driver state
    std::uint32_t openHandle = 0;
    bool uploading = false;
    std::chrono::steady_clock::time_point uploadStarted;
    std::chrono::milliseconds uploadDuration{0};
    bool rebooting = false;
    // Between a written IP setting and the address it leads to; ipChange names
    // the latest change, so that only its end finishes the transition.
    bool ipChanging = false;
    std::uint64_t ipChange = 0;
    std::uint32_t identifyCount = 0;
    std::chrono::steady_clock::time_point pluggedAt = std::chrono::steady_clock::now();

    // Derived by derive()
    std::uint32_t targetIp = 0; // the address it has or, while its IP changes, moves to
    std::uint32_t currentIp = 0;
    std::uint32_t currentMask = 0;
    std::uint32_t deviceStatus = 0;
    std::uint32_t deviceControl = 0;
    std::uint8_t deviceFlags = 0;
    std::uint16_t dhcpState = 0;
    std::uint16_t effectiveLinkSpeed = 0;

private:
    void deriveEthernet(const SimAdapter* adapter, const DriverSettings& settings, std::uint32_t rangeAddress);
    // USB cameras, the sibling SDK's cameras and devices of unknown kind.
    void deriveOutsideEthService(const DriverSettings& settings);
    void fillUsbPart(pv_UsbDeviceInfo& usb) const;
    void fillEthPart(pv_EthDeviceInfo& eth, const SimAdapter* adapter, std::uint32_t knownDevices) const;
};

} // namespace sim
