#include "camera/cameraactions.h"

#include <thread>

namespace {

// API address words hold the first octet in the lowest byte.
void writeNetworkOrder(quint32 apiWord, std::uint8_t (&bytes)[4])
{
    for (int i = 0; i < 4; ++i)
        bytes[i] = std::uint8_t(apiWord >> (8 * i));
}

} // namespace

namespace CameraActions {

bool identify(const Camera& camera, std::chrono::milliseconds delay)
{
    quint32 handle = camera.deviceId() | PV_DEVICE_ID_FLAG;
    if (pv_OpenCamera(&handle, nullptr) != PV_OK)
        return false;
    std::this_thread::sleep_for(delay);
    quint32 blink = PV_IDENTIFY_BLINK;
    const bool blinked = pv_CameraCommand(handle, PV_CAMCMD_IDENTIFY, &blink, sizeof blink) == PV_OK;
    pv_CloseCamera(handle);
    return blinked;
}

std::int32_t removeReadOnlyDevice(const Camera& camera)
{
    pv_ReadOnlyRequest request{};
    writeNetworkOrder(camera.eth().currentIp, request.multicastIp);
    writeNetworkOrder(camera.eth().persistentIp, request.sourceIp);
    request.cameraId = camera.cameraId();
    request.mode = 1;
    const std::int32_t result = pv_EthConfig(PV_DRIVER_HANDLE, PV_ETHSVC_REMOVE_READONLY, &request, sizeof request);
    if (result != PV_OK)
        return result;
    return pv_EthConfig(PV_DRIVER_HANDLE, PV_ETHSVC_APPLY, nullptr, 0);
}

std::int32_t connectEthService()
{
    const std::int32_t result = pv_EthConfig(PV_DRIVER_HANDLE, PV_ETHSVC_CONNECT, nullptr, 0);
    if (result != PV_OK)
        return result;
    return pv_EthConfig(PV_DRIVER_HANDLE, PV_ETHSVC_RESCAN_ADAPTERS, nullptr, 0);
}

} // namespace CameraActions
