#include "dialogs/firmwareupload.h"

#include "common/versionword.h"

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

std::optional<int> progress(quint32 deviceId)
{
    pv_UploadProgress block{};
    if (pv_DeviceInfo(deviceId | PV_DEVICE_ID_FLAG, PV_DEVINFO_UPLOAD_PROGRESS, &block, sizeof block) != PV_OK
        || block.uploading == 0)
        return std::nullopt;
    return int(std::min<quint32>(block.permille, 1000));
}

Result verify(quint32 deviceId, QString& running)
{
    pv_DeviceInformation info{};
    const std::int32_t read = pv_DeviceInfo(deviceId | PV_DEVICE_ID_FLAG, PV_DEVINFO_READ, &info, sizeof info);
    if (read != PV_OK) {
        return {read, QCoreApplication::translate("FirmwareUpload", "The camera's firmware could not be read back "
                                                                    "after the upload. Return code: %1")
                          .arg(read)};
    }
    running = VersionWord(info.starterFirmware).text();
    if (info.driverFirmwareImage != 0 && info.starterFirmware != info.driverFirmwareImage) {
        return {HostError::VerificationFailed,
                QCoreApplication::translate("FirmwareUpload", "After the upload the camera runs starter firmware %1, "
                                                              "but the driver carries %2.")
                    .arg(running, VersionWord(info.driverFirmwareImage).text())};
    }
    return {};
}

} // namespace FirmwareUpload
