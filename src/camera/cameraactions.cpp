#include "camera/cameraactions.h"

#include <QCoreApplication>

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

Result identify(const Camera& camera, std::chrono::milliseconds delay)
{
    quint32 handle = camera.deviceId() | PV_DEVICE_ID_FLAG;
    const std::int32_t opened = pv_OpenCamera(&handle, nullptr);
    if (opened != PV_OK) {
        return {opened, QCoreApplication::translate("CameraActions", "Camera %1 could not be opened.\nReturn code: %2")
                            .arg(camera.deviceId())
                            .arg(opened)};
    }
    std::this_thread::sleep_for(delay);
    quint32 blink = PV_IDENTIFY_BLINK;
    const std::int32_t blinked = pv_CameraCommand(handle, PV_CAMCMD_IDENTIFY, &blink, sizeof blink);
    pv_CloseCamera(handle);
    if (blinked == PV_OK)
        return {};
    return {blinked, QCoreApplication::translate("CameraActions",
                                                 "Camera %1 did not accept the identification command.\nReturn code: %2")
                         .arg(camera.deviceId())
                         .arg(blinked)};
}

Result removeReadOnlyDevice(const Camera& camera)
{
    pv_ReadOnlyRequest request{};
    writeNetworkOrder(camera.eth().currentIp, request.multicastIp);
    writeNetworkOrder(camera.eth().adapterIp, request.adapterIp);
    request.cameraId = camera.cameraId();
    request.mode = 1;
    std::int32_t result = pv_EthConfig(PV_DRIVER_HANDLE, PV_ETHSVC_REMOVE_READONLY, &request, sizeof request);
    if (result == PV_OK)
        result = pv_EthConfig(PV_DRIVER_HANDLE, PV_ETHSVC_APPLY, nullptr, 0);
    if (result == PV_OK)
        return {};
    return {result, QCoreApplication::translate("CameraActions", "The read-only device could not be removed.\nReturn code: %1")
                        .arg(result)};
}

Result connectEthService()
{
    std::int32_t result = pv_EthConfig(PV_DRIVER_HANDLE, PV_ETHSVC_CONNECT, nullptr, 0);
    if (result == PV_OK)
        result = pv_EthConfig(PV_DRIVER_HANDLE, PV_ETHSVC_RESCAN_ADAPTERS, nullptr, 0);
    if (result == PV_OK)
        return {};
    return {result,
            QCoreApplication::translate("CameraActions", "The ETH service could not be connected.\nReturn code: %1")
                .arg(result)};
}

} // namespace CameraActions
