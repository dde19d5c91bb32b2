// The virtual COM ports behind pv_Configuration, pv_CameraCommand,
// pv_DeviceInfo and pv_DeviceFeature.
#include "operations.h"
#include "words.h"

#include <cstring>

namespace sim::ops {

namespace {

Result requireSupport(const DriverSettings& settings)
{
    if (settings.comPortSupport)
        return success();
    return failure(PV_ERR_NOT_SUPPORTED, "the driver's COM port support is not installed");
}

// The camera a handle names, when it may have a COM port.
Result serialCamera(Fleet& fleet, std::uint32_t handle, SimCamera*& camera)
{
    if (Result r = requireSupport(fleet.settings); !r.ok())
        return r;
    if (Result r = fleet.resolve(handle, camera); !r.ok())
        return r;
    if (!camera->hasSerialInterface())
        return failure(PV_ERR_NOT_SUPPORTED, "camera " + std::to_string(camera->deviceId) + " has no serial interface");
    return success();
}

Result checkNumber(std::uint32_t number)
{
    if (number >= PV_COMPORT_NUMBER_MIN && number <= PV_COMPORT_NUMBER_MAX)
        return success();
    return failure(PV_ERR_INVALID_PARAMETER, "COM port number " + std::to_string(number) + " is not from "
                                                 + std::to_string(PV_COMPORT_NUMBER_MIN) + " to "
                                                 + std::to_string(PV_COMPORT_NUMBER_MAX));
}

void tracePort(SimDriver& driver, std::uint32_t deviceId, const std::string& what, const Result& result)
{
    driver.tracer().trace(serviceOfDevice(deviceId), TraceCategory::pnp, [&] {
        return what + " of device " + std::to_string(deviceId) + ": " + outcome(result);
    });
}

Result installPort(SimDriver& driver, std::uint32_t handle, std::uint32_t number)
{
    return driver.read([&](Fleet& fleet) {
        SimCamera* camera = nullptr;
        if (Result r = serialCamera(fleet, handle, camera); !r.ok())
            return r;
        Result result = checkNumber(number);
        if (result.ok())
            result = driver.comPorts().install(camera->deviceId, number,
                                               {camera->model, camera->serial, camera->cameraId, true});
        tracePort(driver, camera->deviceId, "install COM port " + std::to_string(number), result);
        return result;
    });
}

Result removePort(SimDriver& driver, std::uint32_t handle)
{
    return driver.read([&](Fleet& fleet) {
        SimCamera* camera = nullptr;
        Result result = serialCamera(fleet, handle, camera);
        if (result.ok()) {
            driver.comPorts().remove(camera->deviceId);
            tracePort(driver, camera->deviceId, "remove COM port", result);
        }
        return result;
    });
}

Result broadcastConfiguration(SimDriver& driver, std::uint32_t command, void* buffer, std::uint32_t size)
{
    const std::uint32_t needed = command == PV_CONFIG_GET_COMPORT_BROADCAST ? sizeof(pv_ComPortInfo) : 4u;
    if (Result r = checkBuffer(buffer, size, needed, "pv_Configuration"); !r.ok())
        return r;
    return driver.read([&](Fleet& fleet) {
        if (Result r = requireSupport(fleet.settings); !r.ok())
            return r;
        if (command == PV_CONFIG_GET_COMPORT_BROADCAST) {
            pv_ComPortInfo info;
            driver.comPorts().fillBroadcastInfo(info);
            std::memcpy(buffer, &info, sizeof info);
            return success();
        }
        const std::uint32_t on = readWord(buffer);
        if (on > 1)
            return failure(PV_ERR_INVALID_PARAMETER, "pv_Configuration: the broadcast port is switched with 0 or 1");
        const Result result = driver.comPorts().setBroadcast(on != 0, ComPorts::broadcastIdentities(fleet));
        driver.tracer().trace(TraceService::Usb, TraceCategory::pnp, [&] {
            return std::string("broadcast COM port ") + (on ? "on: " : "off: ") + outcome(result);
        });
        return result;
    });
}

} // namespace

bool isComPortConfiguration(std::uint32_t command)
{
    return command == PV_CONFIG_GET_COMPORT_SUPPORT || command == PV_CONFIG_SET_COMPORT_BROADCAST
           || command == PV_CONFIG_GET_COMPORT_BROADCAST;
}

bool isComPortCommand(std::uint32_t command)
{
    return command == PV_CAMCMD_COMPORT_INSTALL || command == PV_CAMCMD_COMPORT_REMOVE;
}

Result comPortConfiguration(SimDriver& driver, std::uint32_t command, void* buffer, std::uint32_t size)
{
    if (command != PV_CONFIG_GET_COMPORT_SUPPORT)
        return broadcastConfiguration(driver, command, buffer, size);
    if (Result r = checkBuffer(buffer, size, 4, "pv_Configuration"); !r.ok())
        return r;
    writeWord(buffer, driver.read([](Fleet& fleet) { return fleet.settings.comPortSupport ? 1u : 0u; }));
    return success();
}

Result comPortCommand(SimDriver& driver, std::uint32_t handle, std::uint32_t command, void* parameter,
                      std::uint32_t size)
{
    if (command == PV_CAMCMD_COMPORT_REMOVE)
        return removePort(driver, handle);
    if (Result r = checkBuffer(parameter, size, 4, "pv_CameraCommand"); !r.ok())
        return r;
    return installPort(driver, handle, readWord(parameter));
}

Result comPortInfo(SimDriver& driver, std::uint32_t handle, void* block, std::uint32_t size)
{
    if (Result r = checkBuffer(block, size, sizeof(pv_ComPortInfo), "pv_DeviceInfo"); !r.ok())
        return r;
    return driver.read([&](Fleet& fleet) {
        SimCamera* camera = nullptr;
        if (Result r = serialCamera(fleet, handle, camera); !r.ok())
            return r;
        pv_ComPortInfo info;
        driver.comPorts().fillInfo(camera->deviceId, info);
        std::memcpy(block, &info, sizeof info);
        return success();
    });
}

Result comPortNumberFeature(SimDriver& driver, std::uint32_t handle, std::uint32_t command, std::uint32_t index,
                            void* block, std::uint32_t size)
{
    if (command != PV_FEATURE_READ && command != PV_FEATURE_WRITE)
        return failure(PV_ERR_UNKNOWN_COMMAND, "pv_DeviceFeature: unknown feature request");
    if (index != 0)
        return failure(PV_ERR_INVALID_PARAMETER, "pv_DeviceFeature: index " + std::to_string(index) + " out of range");
    if (Result r = checkBuffer(block, size, 4, "pv_DeviceFeature"); !r.ok())
        return r;
    const auto access = [&](Fleet& fleet) {
        SimCamera* camera = nullptr;
        if (Result r = serialCamera(fleet, handle, camera); !r.ok())
            return r;
        if (command == PV_FEATURE_READ) {
            writeWord(block, std::uint32_t(std::int32_t(PV_COMPORT_NUMBER_BASE) + camera->comPortOffset));
            return success();
        }
        const std::uint32_t number = readWord(block);
        if (Result r = checkNumber(number); !r.ok())
            return r;
        camera->comPortOffset = std::int16_t(number - PV_COMPORT_NUMBER_BASE);
        return success();
    };
    // The stored number is part of the device information: a write signals a change.
    return command == PV_FEATURE_READ ? driver.read(access) : driver.change(access);
}

} // namespace sim::ops
