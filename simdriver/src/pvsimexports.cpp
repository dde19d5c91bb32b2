// The simulated driver's own control interface with C linkage.
#include "guarded.h"
#include "operations.h"
#include "scenario.h"
#include "statereport.h"

#include <pvsim.h>

#include <cstring>

using sim::failure;
using sim::Fleet;
using sim::guarded;
using sim::Result;
using sim::SimDriver;
using sim::success;

namespace {

Result loadScenario(SimDriver& driver, sim::Result loaded, sim::Scenario& scenario)
{
    return loaded.ok() ? driver.load(std::move(scenario)) : loaded;
}

Result serviceFlags(sim::DriverSettings& settings, const char* service, bool*& installed, bool*& running)
{
    if (!service)
        return failure(PV_ERR_NULL_POINTER, "service name is null");
    if (std::strcmp(service, "cirro_usb") == 0) {
        installed = &settings.usbServiceInstalled;
        running = &settings.usbServiceRunning;
    } else if (std::strcmp(service, "cirro_eth") == 0) {
        installed = &settings.ethServiceInstalled;
        running = &settings.ethServiceRunning;
    } else {
        return failure(PV_ERR_INVALID_PARAMETER, std::string("no driver service \"") + service + "\"");
    }
    return success();
}

} // namespace

extern "C" {

int32_t PV_CALL pvsim_LoadScenario(const char* path)
{
    return guarded("pvsim_LoadScenario", [&](SimDriver& d) {
        sim::Scenario scenario;
        return loadScenario(d, path ? sim::Scenario::fromFile(path, scenario) : sim::Scenario::builtIn(scenario),
                            scenario);
    });
}

int32_t PV_CALL pvsim_LoadScenarioText(const char* json)
{
    return guarded("pvsim_LoadScenarioText", [&](SimDriver& d) {
        if (!json)
            return failure(PV_ERR_NULL_POINTER, "scenario text is null");
        sim::Scenario scenario;
        return loadScenario(d, sim::Scenario::fromJson(QByteArray(json), scenario), scenario);
    });
}

int32_t PV_CALL pvsim_PlugCamera(const char* cameraJson, uint32_t* deviceId)
{
    return guarded("pvsim_PlugCamera", [&](SimDriver& d) {
        if (!cameraJson)
            return failure(PV_ERR_NULL_POINTER, "camera description is null");
        QJsonObject description;
        if (Result r = sim::parseJsonObject(QByteArray(cameraJson), description, "camera"); !r.ok())
            return r;
        sim::SimCamera camera;
        if (Result r = sim::makeCamera(description, camera); !r.ok())
            return r;
        return d.change([&](Fleet& fleet) { return fleet.plug(std::move(camera), deviceId); });
    });
}

int32_t PV_CALL pvsim_UnplugCamera(uint32_t deviceId)
{
    return guarded("pvsim_UnplugCamera",
                   [&](SimDriver& d) { return d.change([&](Fleet& fleet) { return fleet.unplug(deviceId); }); });
}

int32_t PV_CALL pvsim_ChangeCamera(uint32_t deviceId, const char* changesJson)
{
    return guarded("pvsim_ChangeCamera", [&](SimDriver& d) {
        if (!changesJson)
            return failure(PV_ERR_NULL_POINTER, "changes are null");
        QJsonObject changes;
        if (Result r = sim::parseJsonObject(QByteArray(changesJson), changes, "changes"); !r.ok())
            return r;
        return d.change([&](Fleet& fleet) {
            sim::SimCamera* camera = fleet.any(deviceId);
            if (!camera)
                return failure(PV_ERR_UNKNOWN_DEVICE, "no camera with device ID " + std::to_string(deviceId));
            return fleet.applyChange(*camera, changes);
        });
    });
}

int32_t PV_CALL pvsim_FailOperation(const char* operation, int32_t code, uint32_t times)
{
    if (!operation)
        return PV_ERR_NULL_POINTER;
    if (code == PV_OK)
        return PV_ERR_INVALID_PARAMETER;
    SimDriver::instance().faults().arm(operation, code, times);
    return PV_OK;
}

int32_t PV_CALL pvsim_ClearFailures(void)
{
    SimDriver::instance().faults().clear();
    return PV_OK;
}

int32_t PV_CALL pvsim_GetState(char* buffer, uint32_t size, uint32_t* required)
{
    SimDriver& driver = SimDriver::instance();
    const std::string report =
        driver.read([&](Fleet& fleet) { return sim::stateReport(fleet, driver.events().eventCount()); });
    const std::uint32_t needed = std::uint32_t(report.size() + 1);
    // Counters keep growing between a caller's two calls; room to spare lets
    // the second call fit even then.
    constexpr std::uint32_t growthRoom = 4096;
    if (required)
        *required = (buffer && size >= needed) ? needed : needed + growthRoom;
    if (!buffer || size < needed)
        return PV_ERR_BUFFER_TOO_SMALL;
    std::memcpy(buffer, report.c_str(), needed);
    return PV_OK;
}

int32_t PV_CALL pvsim_GetStartScenarioError(char* buffer, uint32_t size, uint32_t* required)
{
    return guarded("pvsim_GetStartScenarioError", [&](SimDriver& d) {
        const std::string& error = d.startScenarioError();
        const std::uint32_t needed = std::uint32_t(error.size() + 1);
        if (required)
            *required = needed;
        if (!buffer)
            return success(); // asked for the size only
        if (size < needed)
            return failure(PV_ERR_BUFFER_TOO_SMALL, "pvsim_GetStartScenarioError: the text needs "
                                                        + std::to_string(needed) + " bytes");
        std::memcpy(buffer, error.c_str(), needed);
        return success();
    });
}

int32_t PV_CALL pvsim_SetServiceRunning(const char* service, int32_t running)
{
    return guarded("pvsim_SetServiceRunning", [&](SimDriver& d) {
        return d.change([&](Fleet& fleet) {
            bool* installedFlag = nullptr;
            bool* runningFlag = nullptr;
            if (Result r = serviceFlags(fleet.settings, service, installedFlag, runningFlag); !r.ok())
                return r;
            if (!*installedFlag)
                return failure(PV_ERR_SERVICE_STOPPED, std::string(service) + " is not installed");
            *runningFlag = running != 0;
            return success();
        });
    });
}

int32_t PV_CALL pvsim_GetServiceState(const char* service, int32_t* state)
{
    return guarded("pvsim_GetServiceState", [&](SimDriver& d) {
        if (!state)
            return failure(PV_ERR_NULL_POINTER, "state is null");
        return d.read([&](Fleet& fleet) {
            bool* installedFlag = nullptr;
            bool* runningFlag = nullptr;
            Result r = serviceFlags(fleet.settings, service, installedFlag, runningFlag);
            if (r.ok())
                *state = !*installedFlag ? 1 : *runningFlag ? 3 : 2;
            return r;
        });
    });
}

int32_t PV_CALL pvsim_SetApiVersion(uint32_t version)
{
    return SimDriver::instance()
        .change([&](Fleet& fleet) {
            fleet.settings.apiVersion = version;
            return success();
        })
        .code;
}

int32_t PV_CALL pvsim_ArpRequest(const char* adapter, const char* targetIp, uint8_t* mac)
{
    return guarded("pvsim_ArpRequest",
                   [&](SimDriver& d) { return sim::ops::arpRequest(d, adapter, targetIp, mac); });
}

int32_t PV_CALL pvsim_SetTimeScale(double scale)
{
    if (!(scale >= 0))
        return PV_ERR_INVALID_PARAMETER;
    SimDriver::instance().setTimeScale(scale);
    return PV_OK;
}

} // extern "C"
