#include "dialogs/firmwareupload.h"

#include <cirro_api.h>

#include <QThreadPool>
#include <QtConcurrent>

namespace FirmwareUpload {

bool accepts(quint8 typeCode)
{
    return (typeCode & 0x80) != 0;
}

int expectedSeconds(quint8 typeCode)
{
    switch (typeCode) {
    case 129: case 130: case 132: case 134: case 135: case 138: case 139: case 140:
        return 25;
    case 136:
        return 35;
    default:
        return 100;
    }
}

int run(quint32 deviceId)
{
    quint32 handle = deviceId | PV_DEVICE_ID_FLAG | PV_OPEN_UPLOAD_STARTER_FIRMWARE;
    const std::int32_t opened = pv_OpenCamera(&handle, nullptr);
    if (opened == PV_OK)
        pv_CloseCamera(handle);
    return opened;
}

QFuture<int> start(quint32 deviceId)
{
    return QtConcurrent::run(QThreadPool::globalInstance(), [deviceId] { return run(deviceId); });
}

} // namespace FirmwareUpload
