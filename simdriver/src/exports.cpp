// The camera API's operations with C linkage.
#include "guarded.h"
#include "operations.h"

using sim::guarded;
using sim::SimDriver;
namespace ops = sim::ops;

extern "C" {

uint32_t PV_CALL pv_QueryApiVersion(void)
{
    try {
        return SimDriver::instance().read([](sim::Fleet& fleet) { return fleet.settings.apiVersion; });
    } catch (...) {
        return 0;
    }
}

int32_t PV_CALL pv_GetNumberOfCameras(int32_t* count)
{
    return guarded("pv_GetNumberOfCameras", [&](SimDriver& d) { return ops::getNumberOfCameras(d, count); });
}

int32_t PV_CALL pv_GetCameraList(void* listBuffer)
{
    return guarded("pv_GetCameraList", [&](SimDriver& d) { return ops::getCameraList(d, listBuffer); });
}

int32_t PV_CALL pv_OpenCamera(uint32_t* handle, void* window)
{
    return guarded("pv_OpenCamera", [&](SimDriver& d) { return ops::openCamera(d, handle, window); });
}

int32_t PV_CALL pv_CloseCamera(uint32_t handle)
{
    return guarded("pv_CloseCamera", [&](SimDriver& d) { return ops::closeCamera(d, handle); });
}

int32_t PV_CALL pv_GetCameraInfo(uint32_t handle, pv_CameraInfo* info)
{
    return guarded("pv_GetCameraInfo", [&](SimDriver& d) { return ops::getCameraInfo(d, handle, info); });
}

int32_t PV_CALL pv_GetSensorInfo(uint32_t handle, pv_SensorInfo* info)
{
    return guarded("pv_GetSensorInfo", [&](SimDriver& d) { return ops::getSensorInfo(d, handle, info); });
}

int32_t PV_CALL pv_GetRevisionInfo(uint32_t handle, pv_RevisionInfo* info)
{
    return guarded("pv_GetRevisionInfo", [&](SimDriver& d) { return ops::getRevisionInfo(d, handle, info); });
}

int32_t PV_CALL pv_DeviceInfo(uint32_t handle, uint32_t command, void* block, uint32_t size)
{
    return guarded("pv_DeviceInfo", [&](SimDriver& d) { return ops::deviceInfo(d, handle, command, block, size); });
}

int32_t PV_CALL pv_DeviceFeature(uint32_t handle, uint32_t command, uint32_t feature, uint32_t index, void* block,
                                 uint32_t size)
{
    return guarded("pv_DeviceFeature", [&](SimDriver& d) {
        return ops::deviceFeature(d, handle, command, feature, index, block, size);
    });
}

int32_t PV_CALL pv_Event(uint32_t handle, uint32_t command, void* block, uint32_t size)
{
    return guarded("pv_Event", [&](SimDriver& d) { return ops::event(d, handle, command, block, size); });
}

int32_t PV_CALL pv_RebootDevice(uint32_t handle, uint32_t mode)
{
    return guarded("pv_RebootDevice", [&](SimDriver& d) { return ops::rebootDevice(d, handle, mode); });
}

int32_t PV_CALL pv_CameraCommand(uint32_t handle, uint32_t command, void* parameter, uint32_t size)
{
    return guarded("pv_CameraCommand",
                   [&](SimDriver& d) { return ops::cameraCommand(d, handle, command, parameter, size); });
}

int32_t PV_CALL pv_Configuration(uint32_t command, void* buffer, uint32_t size)
{
    return guarded("pv_Configuration", [&](SimDriver& d) { return ops::configuration(d, command, buffer, size); });
}

int32_t PV_CALL pv_IpConfig(int32_t deviceId, const uint8_t* mac, uint32_t command, void* block, uint32_t size)
{
    return guarded("pv_IpConfig",
                   [&](SimDriver& d) { return ops::ipConfig(d, deviceId, mac, command, block, size); });
}

int32_t PV_CALL pv_EthConfig(uint32_t handle, uint32_t command, void* buffer, uint32_t size)
{
    return guarded("pv_EthConfig", [&](SimDriver& d) { return ops::ethConfig(d, handle, command, buffer, size); });
}

int32_t PV_CALL pv_EthAdapterConfig(const pv_AdapterId* adapter, uint32_t set, uint32_t command, void* buffer,
                                    uint32_t size)
{
    return guarded("pv_EthAdapterConfig",
                   [&](SimDriver& d) { return ops::ethAdapterConfig(d, adapter, set, command, buffer, size); });
}

int32_t PV_CALL pv_BootBoost(uint32_t handle, uint32_t command, void* buffer, uint32_t size)
{
    return guarded("pv_BootBoost", [&](SimDriver& d) { return ops::bootBoost(d, handle, command, buffer, size); });
}

int32_t PV_CALL pv_FetchRegistryValues(void)
{
    return guarded("pv_FetchRegistryValues", [](SimDriver& d) { return ops::fetchRegistryValues(d); });
}

int32_t PV_CALL pv_FetchTcpIp(void)
{
    return guarded("pv_FetchTcpIp", [](SimDriver& d) { return ops::fetchTcpIp(d); });
}

int32_t PV_CALL pv_GetError(uint32_t handle, int32_t* code, const char** text)
{
    // Not through guarded(): asking for the last error must not replace it.
    if (const auto injected = SimDriver::instance().faults().take("pv_GetError"))
        return *injected;
    if (handle != PV_DRIVER_HANDLE)
        return PV_ERR_UNKNOWN_HANDLE;
    if (!code)
        return PV_ERR_NULL_POINTER;
    *code = sim::LastError::code();
    if (text)
        *text = sim::LastError::text();
    return PV_OK;
}

} // extern "C"
