#include "cirro_api.h"

extern "C" {

uint32_t PV_CALL pv_QueryApiVersion(void)
{
    return 0;
}

int32_t PV_CALL pv_GetNumberOfCameras(int32_t* count)
{
    return PV_ERR_NOT_SUPPORTED;
}

int32_t PV_CALL pv_GetCameraList(void* listBuffer)
{
    return PV_ERR_NOT_SUPPORTED;
}

int32_t PV_CALL pv_OpenCamera(uint32_t* handle, void* window)
{
    return PV_ERR_NOT_SUPPORTED;
}

int32_t PV_CALL pv_CloseCamera(uint32_t handle)
{
    return PV_ERR_NOT_SUPPORTED;
}

int32_t PV_CALL pv_GetCameraInfo(uint32_t handle, pv_CameraInfo* info)
{
    return PV_ERR_NOT_SUPPORTED;
}

int32_t PV_CALL pv_GetSensorInfo(uint32_t handle, pv_SensorInfo* info)
{
    return PV_ERR_NOT_SUPPORTED;
}

int32_t PV_CALL pv_GetRevisionInfo(uint32_t handle, pv_RevisionInfo* info)
{
    return PV_ERR_NOT_SUPPORTED;
}

int32_t PV_CALL pv_DeviceInfo(uint32_t handle, uint32_t command, void* block, uint32_t size)
{
    return PV_ERR_NOT_SUPPORTED;
}

int32_t PV_CALL pv_DeviceFeature(uint32_t handle, uint32_t command, uint32_t feature, uint32_t index, void* block, uint32_t size)
{
    return PV_ERR_NOT_SUPPORTED;
}

int32_t PV_CALL pv_Event(uint32_t handle, uint32_t command, void* block, uint32_t size)
{
    return PV_ERR_NOT_SUPPORTED;
}

int32_t PV_CALL pv_RebootDevice(uint32_t handle, uint32_t mode)
{
    return PV_ERR_NOT_SUPPORTED;
}

int32_t PV_CALL pv_CameraCommand(uint32_t handle, uint32_t command, void* parameter, uint32_t size)
{
    return PV_ERR_NOT_SUPPORTED;
}

int32_t PV_CALL pv_Configuration(uint32_t command, void* buffer, uint32_t size)
{
    return PV_ERR_NOT_SUPPORTED;
}

int32_t PV_CALL pv_IpConfig(int32_t deviceId, const uint8_t* mac, uint32_t command, void* block, uint32_t size)
{
    return PV_ERR_NOT_SUPPORTED;
}

int32_t PV_CALL pv_EthConfig(uint32_t handle, uint32_t command, void* buffer, uint32_t size)
{
    return PV_ERR_NOT_SUPPORTED;
}

int32_t PV_CALL pv_EthAdapterConfig(const pv_AdapterId* adapter, uint32_t set, uint32_t command, void* buffer, uint32_t size)
{
    return PV_ERR_NOT_SUPPORTED;
}

int32_t PV_CALL pv_BootBoost(uint32_t handle, uint32_t command, void* buffer, uint32_t size)
{
    return PV_ERR_NOT_SUPPORTED;
}

int32_t PV_CALL pv_FetchRegistryValues(void)
{
    return PV_ERR_NOT_SUPPORTED;
}

int32_t PV_CALL pv_FetchTcpIp(void)
{
    return PV_ERR_NOT_SUPPORTED;
}

int32_t PV_CALL pv_GetError(uint32_t handle, int32_t* code, const char** text)
{
    return PV_ERR_NOT_SUPPORTED;
}

}
