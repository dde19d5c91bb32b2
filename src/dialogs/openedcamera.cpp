#include "dialogs/openedcamera.h"

#include "dialogs/cameracall.h"

#include <cirro_api.h>

std::unique_ptr<OpenedCamera> OpenedCamera::open(quint32 deviceId, Result* result)
{
    quint32 handle = deviceId | PV_DEVICE_ID_FLAG;
    const std::int32_t code = pv_OpenCamera(&handle, nullptr);
    if (code != PV_OK) {
        *result = CameraCall::failed(code, QCoreApplication::translate("OpenedCamera", "Camera %1 could not be opened.")
                                               .arg(deviceId));
        return nullptr;
    }
    *result = {};
    return std::unique_ptr<OpenedCamera>(new OpenedCamera(deviceId, handle));
}

OpenedCamera::OpenedCamera(quint32 deviceId, quint32 handle)
    : m_deviceId(deviceId)
    , m_handle(handle)
{
}

OpenedCamera::~OpenedCamera()
{
    pv_CloseCamera(m_handle);
}
