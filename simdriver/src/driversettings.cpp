#include "driversettings.h"

#include "jsonreader.h"

#include "driversettings/debugcategories.h"

#include <QString>

#include <cstdlib>

namespace sim {

std::string versionText(std::uint32_t version)
{
    return std::to_string(PV_VERSION_MAJOR(version)) + '.' + std::to_string(PV_VERSION_MINOR(version)) + '.'
           + std::to_string(PV_VERSION_BUILD(version));
}

bool parseApiVersion(const std::string& text, std::uint32_t& version)
{
    char* end = nullptr;
    if (text.rfind("0x", 0) == 0 || text.rfind("0X", 0) == 0) {
        const unsigned long value = std::strtoul(text.c_str() + 2, &end, 16);
        if (*end != '\0' || end == text.c_str() + 2 || value > 0xFFFFFFFFul)
            return false;
        version = std::uint32_t(value);
        return true;
    }
    const unsigned long major = std::strtoul(text.c_str(), &end, 10);
    if (end == text.c_str() || *end != '.')
        return false;
    const char* minorText = end + 1;
    const unsigned long minor = std::strtoul(minorText, &end, 10);
    if (end == minorText || *end != '\0' || major > 255 || minor > 255)
        return false;
    version = std::uint32_t((major << 24) | (minor << 16));
    return true;
}

Result DriverSettings::apply(const QJsonObject& json)
{
    JsonReader reader(json, "driver");
    std::string api;
    reader.read("apiVersion", api);
    if (!api.empty() && !parseApiVersion(api, apiVersion))
        return failure(PV_ERR_INVALID_PARAMETER, "driver: \"apiVersion\" must look like \"4.97\" or \"0x04610000\"");
    reader.readVersion("driverVersion", driverVersion);
    reader.read("driverDate", driverDate);
    reader.readVersion("starterImage", starterImage);
    reader.readVersion("runtimeImage", runtimeImage);
    reader.readVersion("minStarter", minStarter);
    reader.readVersion("maxStarter", maxStarter);
    reader.readInt("heartbeatPeriodMs", heartbeatPeriodMs, 10, 60000);
    reader.readInt("arpTimeoutMs", arpTimeoutMs, 1, 10000);
    reader.readInt("ipChangeMs", ipChangeMs, 0, 60000);
    reader.read("bootBoost", bootBoostEnabled);
    std::vector<std::uint32_t> ids(bootBoostIds.begin(), bootBoostIds.end());
    reader.readIntList("bootBoostIds", ids, 1, 254);
    bootBoostIds = std::set<std::uint8_t>(ids.begin(), ids.end());
    reader.readInt("idleState", idleState, 0, 3);
    reader.readInt("ipo", ipo, 0, 1);
    reader.readInt("trustedPairing", trustedPairing, 0, 1);
    reader.readInt("memoryCompat", memoryCompat, 0, 1);
    reader.readInt("summitCompat", summitCompat, 0, 0xFFFFFFFFll);
    reader.readInt("readOnlyMulticast", readOnlyMulticast, 0, 1);
    reader.read("comPorts", comPortSupport);
    return reader.finish();
}

Result DriverSettings::applyServices(const QJsonObject& json)
{
    JsonReader reader(json, "services");
    for (const char* service : {"cirro_usb", "cirro_eth"}) {
        std::string state;
        reader.read(service, state);
        if (state.empty())
            continue;
        if (state != "running" && state != "stopped" && state != "absent")
            return failure(PV_ERR_INVALID_PARAMETER,
                           std::string("services: \"") + service + "\" must be running, stopped or absent");
        bool& installed = service[6] == 'u' ? usbServiceInstalled : ethServiceInstalled;
        bool& running = service[6] == 'u' ? usbServiceRunning : ethServiceRunning;
        installed = state != "absent";
        running = state == "running";
    }
    return reader.finish();
}

bool DriverSettings::registryFlag(const std::string& service, const std::string& value) const
{
    const auto it = registry.find(service + "/Parameters/" + value);
    return it != registry.end() && std::strtol(it->second.c_str(), nullptr, 0) != 0;
}

std::uint64_t DriverSettings::debugMask(const std::string& service) const
{
    const auto it = registry.find(service + '/' + DebugCategories::maskValue);
    if (it == registry.end())
        return 0;
    const QString text = QString::fromStdString(it->second).trimmed();
    const bool hex = text.startsWith(QLatin1String("0x"), Qt::CaseInsensitive);
    const QString digits = hex ? text.mid(2) : text;
    // toULongLong would take a sign or a blank after the 0x, which no mask has.
    if (digits.isEmpty() || !digits.at(0).isLetterOrNumber())
        return 0;
    bool ok = false;
    const std::uint64_t mask = digits.toULongLong(&ok, hex ? 16 : 10);
    return ok ? mask : 0;
}

} // namespace sim
