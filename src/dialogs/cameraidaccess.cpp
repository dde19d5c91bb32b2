#include "dialogs/cameraidaccess.h"

#include "dialogs/cameracall.h"

Result CameraIdAccess::read(quint32 handle, quint32* id)
{
    const int code = CameraCall::readFeature(handle, PV_FEATURE_CAMERA_ID, 0, *id);
    return code == PV_OK ? Result() : CameraCall::failed(code, tr("The camera ID could not be read."));
}

Result CameraIdAccess::write(quint32 handle, quint32 id)
{
    if (id < PV_CAMERA_ID_MIN || id > PV_CAMERA_ID_MAX)
        return {PV_ERR_INVALID_PARAMETER, tr("A camera ID is a number from %1 to %2.").arg(PV_CAMERA_ID_MIN).arg(PV_CAMERA_ID_MAX)};
    return CameraCall::writeConfirmed(handle, PV_FEATURE_CAMERA_ID, 0, id, tr("The camera ID could not be written."),
                                      [](quint32 written, quint32 back) { return written == back; });
}

std::optional<quint32> CameraIdAccess::holderOf(const QList<std::shared_ptr<Camera>>& cameras, quint32 deviceId,
                                                quint32 id)
{
    for (const std::shared_ptr<Camera>& camera : cameras) {
        const Camera::Kind kind = camera->kind();
        const bool hasCameraId = kind == Camera::Kind::Usb || kind == Camera::Kind::Eth || kind == Camera::Kind::Sdk;
        if (hasCameraId && camera->deviceId() != deviceId && camera->cameraId() == id)
            return camera->deviceId();
    }
    return std::nullopt;
}
