#include "dialogs/readonlydevicerequest.h"

#include "network/ipv4.h"

#include <QCoreApplication>

ReadOnlyDeviceRequest::ReadOnlyDeviceRequest(const Camera& camera, quint32 cameraId, quint32 mode)
    : m_multicastIp(Ipv4::fromText(camera.multicastIp()))
    , m_adapterIp(Ipv4::fromText(camera.adapterIp()))
    , m_cameraId(cameraId)
    , m_mode(mode)
{
}

pv_ReadOnlyRequest ReadOnlyDeviceRequest::block() const
{
    pv_ReadOnlyRequest request{};
    Ipv4::toNetworkBytes(m_multicastIp, request.multicastIp);
    Ipv4::toNetworkBytes(m_adapterIp, request.adapterIp);
    request.cameraId = m_cameraId;
    request.mode = m_mode;
    return request;
}

Result ReadOnlyDeviceRequest::send(const EthConfig& ethConfig) const
{
    pv_ReadOnlyRequest request = block();
    const std::int32_t result = ethConfig(PV_DRIVER_HANDLE, PV_ETHSVC_ADD_READONLY, &request, sizeof request);
    if (result != PV_OK)
        return {result, errorText(result)};
    ethConfig(PV_DRIVER_HANDLE, PV_ETHSVC_APPLY, nullptr, 0);
    return {};
}

QString ReadOnlyDeviceRequest::errorText(std::int32_t code)
{
    std::int32_t lastCode = 0;
    const char* text = nullptr;
    if (pv_GetError(PV_DRIVER_HANDLE, &lastCode, &text) == PV_OK && text && *text)
        return QString::fromLocal8Bit(text);
    return codeText(code);
}

QString ReadOnlyDeviceRequest::codeText(std::int32_t code)
{
    switch (code) {
    case PV_ERR_GENERAL:
        return QCoreApplication::translate("MulticastDialog", "Something went wrong");
    case PV_ERR_INVALID_PARAMETER:
        return QCoreApplication::translate("MulticastDialog", "Invalid Parameter");
    case PV_ERR_NO_MEMORY:
        return QCoreApplication::translate("MulticastDialog", "Needs more ram");
    case PV_ERR_NOT_SUPPORTED:
        return QCoreApplication::translate("MulticastDialog", "Maybe not supported for this camera");
    default:
        return QString();
    }
}
