// The camera API's operations with C linkage.
#include "calltrace.h"
#include "operations.h"

using sim::Call;
using sim::SimDriver;
using sim::traced;
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
    return traced(Call{"pv_GetNumberOfCameras"}, [&](SimDriver& d) { return ops::getNumberOfCameras(d, count); });
}

int32_t PV_CALL pv_GetCameraList(void* listBuffer)
{
    return traced(Call{"pv_GetCameraList"}, [&](SimDriver& d) { return ops::getCameraList(d, listBuffer); });
}

int32_t PV_CALL pv_OpenCamera(uint32_t* handle, void* window)
{
    return traced(Call{"pv_OpenCamera", Call::Route::Handle, handle ? std::optional(*handle) : std::nullopt}, [&](SimDriver& d) { return ops::openCamera(d, handle, window); });
}

int32_t PV_CALL pv_CloseCamera(uint32_t handle)
{
    return traced(Call{"pv_CloseCamera", Call::Route::Handle, handle}, [&](SimDriver& d) { return ops::closeCamera(d, handle); });
}

int32_t PV_CALL pv_GetCameraInfo(uint32_t handle, pv_CameraInfo* info)
{
    return traced(Call{"pv_GetCameraInfo", Call::Route::Handle, handle}, [&](SimDriver& d) { return ops::getCameraInfo(d, handle, info); });
}

int32_t PV_CALL pv_GetSensorInfo(uint32_t handle, pv_SensorInfo* info)
{
    return traced(Call{"pv_GetSensorInfo", Call::Route::Handle, handle}, [&](SimDriver& d) { return ops::getSensorInfo(d, handle, info); });
}

int32_t PV_CALL pv_GetRevisionInfo(uint32_t handle, pv_RevisionInfo* info)
{
    return traced(Call{"pv_GetRevisionInfo", Call::Route::Handle, handle}, [&](SimDriver& d) { return ops::getRevisionInfo(d, handle, info); });
}

int32_t PV_CALL pv_DeviceInfo(uint32_t handle, uint32_t command, void* block, uint32_t size)
{
    return traced(Call{"pv_DeviceInfo", Call::Route::Handle, handle, command}, [&](SimDriver& d) { return ops::deviceInfo(d, handle, command, block, size); });
}

int32_t PV_CALL pv_DeviceFeature(uint32_t handle, uint32_t command, uint32_t feature, uint32_t index, void* block,
                                 uint32_t size)
{
    return traced(Call{"pv_DeviceFeature", Call::Route::Handle, handle, command}, [&](SimDriver& d) {
        return ops::deviceFeature(d, handle, command, feature, index, block, size);
    });
}

int32_t PV_CALL pv_Event(uint32_t handle, uint32_t command, void* block, uint32_t size)
{
    return traced(Call{"pv_Event", Call::Route::Handle, handle, command}, [&](SimDriver& d) { return ops::event(d, handle, command, block, size); });
}

int32_t PV_CALL pv_RebootDevice(uint32_t handle, uint32_t mode)
{
    return traced(Call{"pv_RebootDevice", Call::Route::Handle, handle}, [&](SimDriver& d) { return ops::rebootDevice(d, handle, mode); });
}

int32_t PV_CALL pv_CameraCommand(uint32_t handle, uint32_t command, void* parameter, uint32_t size)
{
    return traced(Call{"pv_CameraCommand", Call::Route::Handle, handle, command},
                   [&](SimDriver& d) { return ops::cameraCommand(d, handle, command, parameter, size); });
}

int32_t PV_CALL pv_Configuration(uint32_t command, void* buffer, uint32_t size)
{
    return traced(Call{"pv_Configuration", Call::Route::Usb, std::nullopt, command}, [&](SimDriver& d) { return ops::configuration(d, command, buffer, size); });
}

int32_t PV_CALL pv_IpConfig(int32_t deviceId, const uint8_t* mac, uint32_t command, void* block, uint32_t size)
{
    return traced(Call{"pv_IpConfig", Call::Route::Eth, std::nullopt, command, deviceId},
                   [&](SimDriver& d) { return ops::ipConfig(d, deviceId, mac, command, block, size); });
}

int32_t PV_CALL pv_EthConfig(uint32_t handle, uint32_t command, void* buffer, uint32_t size)
{
    return traced(Call{"pv_EthConfig", Call::Route::Eth, handle, command}, [&](SimDriver& d) { return ops::ethConfig(d, handle, command, buffer, size); });
}

int32_t PV_CALL pv_EthAdapterConfig(const pv_AdapterId* adapter, uint32_t set, uint32_t command, void* buffer,
                                    uint32_t size)
{
    return traced(Call{"pv_EthAdapterConfig", Call::Route::Eth, std::nullopt, command},
                   [&](SimDriver& d) { return ops::ethAdapterConfig(d, adapter, set, command, buffer, size); });
}

int32_t PV_CALL pv_BootBoost(uint32_t handle, uint32_t command, void* buffer, uint32_t size)
{
    return traced(Call{"pv_BootBoost", Call::Route::Usb, handle, command}, [&](SimDriver& d) { return ops::bootBoost(d, handle, command, buffer, size); });
}

int32_t PV_CALL pv_FetchRegistryValues(void)
{
    return traced(Call{"pv_FetchRegistryValues"}, [](SimDriver& d) { return ops::fetchRegistryValues(d); });
}

int32_t PV_CALL pv_FetchTcpIp(void)
{
    return traced(Call{"pv_FetchTcpIp", Call::Route::Eth}, [](SimDriver& d) { return ops::fetchTcpIp(d); });
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
