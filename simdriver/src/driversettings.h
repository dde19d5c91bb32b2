#pragma once

#include "simresult.h"

#include <QJsonObject>

#include <map>
#include <set>

namespace sim {

// Driver-wide state: versions, firmware images, boot boost, configuration
// words, services and the values read from the service configuration files.
struct DriverSettings
{
    std::uint32_t apiVersion = 0x04610000u; // 4.97
    std::uint32_t driverVersion = PV_VERSION(4, 97, 1203);
    std::string driverDate = "6-12-2025"; // M-D-YYYY, as the host's driver dates
    std::uint32_t starterImage = PV_VERSION(3, 2, 1);
    std::uint32_t runtimeImage = PV_VERSION(4, 97, 1203);
    std::uint32_t minStarter = PV_VERSION(3, 0, 0);
    std::uint32_t maxStarter = PV_VERSION(3, 9, 9999);
    std::uint32_t heartbeatPeriodMs = 1000;
    std::uint32_t arpTimeoutMs = 1000; // how long an ARP request waits for an answer
    std::uint32_t ipChangeMs = 1500;   // how long a camera takes to change its address; 0: at once

    bool bootBoostEnabled = false;
    std::set<std::uint8_t> bootBoostIds;

    std::uint32_t idleState = 0;
    std::uint32_t ipo = 0;
    std::uint32_t trustedPairing = 0;
    std::uint32_t memoryCompat = 0;
    std::uint32_t summitCompat = 0;
    std::uint32_t readOnlyMulticast = 1;
    bool comPortSupport = true; // the COM port part of the driver is installed

    bool usbServiceInstalled = true;
    bool usbServiceRunning = true;
    bool ethServiceInstalled = true;
    bool ethServiceRunning = true;

    // "service/Group/Value" -> value, as last read from the configuration files.
    std::map<std::string, std::string> registry;

    Result apply(const QJsonObject& json);
    Result applyServices(const QJsonObject& json);

    bool bootBoostActiveFor(std::uint32_t cameraId) const
    {
        return bootBoostEnabled && cameraId <= 255 && bootBoostIds.count(std::uint8_t(cameraId)) > 0;
    }
    bool registryFlag(const std::string& service, const std::string& value) const;
    // The service's DebugEnableMask, decimal or 0x-hexadecimal; 0 when missing or not a number.
    std::uint64_t debugMask(const std::string& service) const;
};

// "4.97.1203"
std::string versionText(std::uint32_t version);

// "4.97" or "0x04610000" into the version word of pv_QueryApiVersion.
bool parseApiVersion(const std::string& text, std::uint32_t& version);

} // namespace sim
