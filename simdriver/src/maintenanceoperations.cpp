// The cameras' maintenance functions behind pv_DeviceFeature and
// pv_CameraCommand: camera ID, user EEPROM, parameter sets, FPN calibration
// and liquid lens.
#include "operations.h"

#include <QDateTime>

#include <cstring>

namespace sim::ops {

namespace {

constexpr std::chrono::milliseconds fpnCalibrationDuration{8000};

std::string cameraText(const SimCamera& camera)
{
    return "camera " + std::to_string(camera.deviceId);
}

Result requireCapability(const SimCamera& camera, std::uint32_t bit, const char* what)
{
    if (camera.maintenance.capabilities & bit)
        return success();
    return failure(PV_ERR_NOT_SUPPORTED, cameraText(camera) + " has no " + what);
}

std::uint32_t capabilityOf(std::uint32_t feature)
{
    switch (feature) {
    case PV_FEATURE_CAMERA_ID: return PV_MAINT_CAMERA_ID;
    case PV_FEATURE_USER_EEPROM: return PV_MAINT_USER_EEPROM;
    case PV_FEATURE_PARAMETER_SET: case PV_FEATURE_STARTUP_SET: return PV_MAINT_PARAMETER_SETS;
    case PV_FEATURE_FPN_STATUS: return PV_MAINT_FPN_CALIBRATION;
    case PV_FEATURE_LIQUID_LENS: return PV_MAINT_LIQUID_LENS;
    default: return 0;
    }
}

std::uint32_t blockSize(std::uint32_t feature)
{
    switch (feature) {
    case PV_FEATURE_CAMERA_ID: case PV_FEATURE_STARTUP_SET: return sizeof(std::uint32_t);
    case PV_FEATURE_USER_EEPROM: return PV_USER_EEPROM_SIZE;
    case PV_FEATURE_PARAMETER_SET: return sizeof(pv_ParameterSet);
    case PV_FEATURE_FPN_STATUS: return sizeof(pv_FpnStatus);
    case PV_FEATURE_LIQUID_LENS: return sizeof(pv_LiquidLens);
    default: return sizeof(pv_FeatureBlock);
    }
}

std::uint32_t word(const void* block)
{
    std::uint32_t value;
    std::memcpy(&value, block, sizeof value);
    return value;
}

Result readFeature(SimCamera& camera, std::uint32_t feature, std::uint32_t index, void* block)
{
    const SimMaintenance& m = camera.maintenance;
    switch (feature) {
    case PV_FEATURE_CAMERA_ID:
        std::memcpy(block, &camera.cameraId, sizeof camera.cameraId);
        return success();
    case PV_FEATURE_USER_EEPROM:
        camera.fillUserEeprom(*static_cast<std::uint8_t(*)[PV_USER_EEPROM_SIZE]>(block));
        return success();
    case PV_FEATURE_PARAMETER_SET: {
        pv_ParameterSet set;
        m.fillSet(index, camera.model, set);
        std::memcpy(block, &set, sizeof set);
        return success();
    }
    case PV_FEATURE_STARTUP_SET:
        std::memcpy(block, &m.startupSet, sizeof m.startupSet);
        return success();
    case PV_FEATURE_FPN_STATUS: {
        pv_FpnStatus status;
        m.fillFpnStatus(camera.date, status);
        std::memcpy(block, &status, sizeof status);
        return success();
    }
    default: {
        pv_LiquidLens lens;
        m.fillLens(lens);
        std::memcpy(block, &lens, sizeof lens);
        return success();
    }
    }
}

Result writeFeature(SimCamera& camera, std::uint32_t feature, std::uint32_t index, const void* block)
{
    SimMaintenance& m = camera.maintenance;
    switch (feature) {
    case PV_FEATURE_CAMERA_ID: {
        const std::uint32_t id = word(block);
        if (id < PV_CAMERA_ID_MIN || id > PV_CAMERA_ID_MAX)
            return failure(PV_ERR_INVALID_PARAMETER, "camera ID " + std::to_string(id) + " is not from 1 to 254");
        camera.cameraId = id;
        return success();
    }
    case PV_FEATURE_USER_EEPROM:
        camera.writeUserEeprom(*static_cast<const std::uint8_t(*)[PV_USER_EEPROM_SIZE]>(block));
        return success();
    case PV_FEATURE_PARAMETER_SET: {
        pv_ParameterSet set;
        std::memcpy(&set, block, sizeof set);
        return m.writeSet(index, camera.model, set);
    }
    case PV_FEATURE_STARTUP_SET: {
        const std::uint32_t set = word(block);
        if (set >= PV_PARAMSET_COUNT)
            return failure(PV_ERR_INVALID_PARAMETER, "there is no parameter set " + std::to_string(set));
        m.startupSet = set;
        return success();
    }
    case PV_FEATURE_LIQUID_LENS: {
        pv_LiquidLens lens;
        std::memcpy(&lens, block, sizeof lens);
        return m.setLens(lens.current);
    }
    default:
        return failure(PV_ERR_INVALID_PARAMETER, "the FPN calibration state is read-only");
    }
}

Result checkIndex(std::uint32_t feature, std::uint32_t index)
{
    const std::uint32_t end = feature == PV_FEATURE_PARAMETER_SET ? PV_PARAMSET_COUNT : 1;
    if (index < end)
        return success();
    return failure(PV_ERR_INVALID_PARAMETER, "pv_DeviceFeature: index " + std::to_string(index) + " out of range");
}

void finishFpnCalibration(SimDriver& driver, std::uint32_t deviceId, std::uint64_t run)
{
    driver.change([&](Fleet& fleet) {
        SimCamera* camera = fleet.any(deviceId);
        if (!camera || !camera->maintenance.fpnRunning || camera->maintenance.fpnRun != run)
            return success();
        SimMaintenance& m = camera->maintenance;
        m.fpnRunning = false;
        m.fpnSource = PV_FPN_SOURCE_USER;
        m.fpnLastResult = PV_OK;
        m.fpnUserNoise = 900 + std::uint32_t(run % 7) * 40;
        m.fpnUserDate = QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd hh:mm")).toStdString();
        return success();
    });
}

Result fpnCommand(SimDriver& driver, SimCamera& camera, std::uint32_t command)
{
    SimMaintenance& m = camera.maintenance;
    if (command == PV_CAMCMD_FPN_START) {
        if (m.fpnRunning)
            return failure(PV_ERR_BUSY, cameraText(camera) + " is calibrating already");
        static std::uint64_t runs = 0;
        m.fpnRunning = true;
        m.fpnRun = ++runs;
        m.fpnStarted = SimMaintenance::Clock::now();
        m.fpnDuration = driver.scaled(fpnCalibrationDuration);
        const std::uint32_t deviceId = camera.deviceId;
        const std::uint64_t run = m.fpnRun;
        driver.scheduler().schedule(m.fpnDuration, [&driver, deviceId, run] {
            finishFpnCalibration(driver, deviceId, run);
        });
        return success();
    }
    if (m.fpnRunning && command == PV_CAMCMD_FPN_FACTORY_RESET)
        return failure(PV_ERR_BUSY, cameraText(camera) + " is calibrating");
    if (command == PV_CAMCMD_FPN_CANCEL) {
        if (!m.fpnRunning)
            return failure(PV_ERR_INVALID_PARAMETER, cameraText(camera) + " is not calibrating");
        m.fpnRunning = false;
        m.fpnLastResult = PV_ERR_CANCELLED;
        return success();
    }
    m.fpnSource = PV_FPN_SOURCE_FACTORY;
    return success();
}

Result runCommand(SimDriver& driver, SimCamera& camera, std::uint32_t command, const void* parameter)
{
    SimMaintenance& m = camera.maintenance;
    switch (command) {
    case PV_CAMCMD_PARAMSET_SAVE: {
        const std::uint32_t set = word(parameter);
        if (set == PV_PARAMSET_FACTORY || set >= PV_PARAMSET_COUNT)
            return failure(PV_ERR_INVALID_PARAMETER, "settings are saved into user set 1 or 2, not "
                                                         + std::to_string(set));
        m.sets.at(set) = m.current;
        return success();
    }
    case PV_CAMCMD_PARAMSET_FACTORY_RESET:
        m.current = m.sets.at(PV_PARAMSET_FACTORY);
        m.startupSet = PV_PARAMSET_FACTORY;
        return success();
    case PV_CAMCMD_LENS_STORE_STARTUP:
        m.lensStartup = m.lensCurrent;
        return success();
    default:
        return fpnCommand(driver, camera, command);
    }
}

struct CommandInfo
{
    std::uint32_t capability;
    std::uint32_t parameterSize;
};

bool commandInfo(std::uint32_t command, CommandInfo& info)
{
    switch (command) {
    case PV_CAMCMD_PARAMSET_SAVE: info = {PV_MAINT_PARAMETER_SETS, 4}; return true;
    case PV_CAMCMD_PARAMSET_FACTORY_RESET: info = {PV_MAINT_PARAMETER_SETS, 0}; return true;
    case PV_CAMCMD_FPN_START: case PV_CAMCMD_FPN_CANCEL: case PV_CAMCMD_FPN_FACTORY_RESET:
        info = {PV_MAINT_FPN_CALIBRATION, 0};
        return true;
    case PV_CAMCMD_LENS_STORE_STARTUP: info = {PV_MAINT_LIQUID_LENS, 0}; return true;
    default: return false;
    }
}

} // namespace

Result maintenanceCapabilities(SimDriver& driver, std::uint32_t handle, void* block, std::uint32_t size)
{
    return readFeatureBlock(driver, handle, block, size, [](const SimCamera& camera, pv_FeatureBlock& features) {
        features.status = camera.maintenance.capabilities;
        features.featureId = PV_FEATURE_MAINTENANCE;
        features.values[0] = (camera.maintenance.capabilities & PV_MAINT_USER_EEPROM) ? PV_USER_EEPROM_SIZE : 0;
    });
}

Result maintenanceFeature(SimDriver& driver, std::uint32_t handle, std::uint32_t command, std::uint32_t feature,
                          std::uint32_t index, void* block, std::uint32_t size)
{
    if (command == PV_FEATURE_READ && feature == PV_FEATURE_MAINTENANCE && index == 0)
        return maintenanceCapabilities(driver, handle, block, size);
    const std::uint32_t capability = capabilityOf(feature);
    if (capability == 0 || (command != PV_FEATURE_READ && command != PV_FEATURE_WRITE))
        return failure(PV_ERR_UNKNOWN_COMMAND, "pv_DeviceFeature: unknown feature request");
    if (Result r = checkIndex(feature, index); !r.ok())
        return r;
    if (Result r = checkBuffer(block, size, blockSize(feature), "pv_DeviceFeature"); !r.ok())
        return r;
    const auto access = [&](Fleet& fleet) {
        SimCamera* camera = nullptr;
        if (Result r = fleet.resolveOpen(handle, camera); !r.ok())
            return r;
        if (Result r = requireCapability(*camera, capability, "such feature"); !r.ok())
            return r;
        return command == PV_FEATURE_READ ? readFeature(*camera, feature, index, block)
                                          : writeFeature(*camera, feature, index, block);
    };
    // A write may change the list entry (the camera ID): change() signals it.
    return command == PV_FEATURE_READ ? driver.read(access) : driver.change(access);
}

Result maintenanceCommand(SimDriver& driver, std::uint32_t handle, std::uint32_t command, void* parameter,
                          std::uint32_t size)
{
    CommandInfo info;
    if (!commandInfo(command, info))
        return failure(PV_ERR_UNKNOWN_COMMAND, "pv_CameraCommand: unknown command " + std::to_string(command));
    if (info.parameterSize > 0) {
        if (Result r = checkBuffer(parameter, size, info.parameterSize, "pv_CameraCommand"); !r.ok())
            return r;
    }
    return driver.change([&](Fleet& fleet) {
        SimCamera* camera = nullptr;
        if (Result r = fleet.resolveOpen(handle, camera); !r.ok())
            return r;
        if (Result r = requireCapability(*camera, info.capability, "such function"); !r.ok())
            return r;
        return runCommand(driver, *camera, command, parameter);
    });
}

} // namespace sim::ops
