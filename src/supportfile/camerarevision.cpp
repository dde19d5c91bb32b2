#include "supportfile/camerarevision.h"

#include <cstring>

namespace {

template <std::size_t N>
QString text(const char (&field)[N])
{
    return QString::fromLatin1(field, int(strnlen(field, N)));
}

} // namespace

CameraRevision CameraRevision::fromBlock(const pv_RevisionInfo& block)
{
    return CameraRevision{{text(block.type), text(block.version), text(block.dateOfQc), text(block.manufacturer),
                           text(block.sensorHardwareRevision), text(block.cypress), text(block.blackfin),
                           text(block.dspFirmware), text(block.usbBoard), text(block.sensorBoard),
                           text(block.processingBoard), text(block.memoryBoard), text(block.housing),
                           text(block.filter), text(block.timingBoard), text(block.productRevision),
                           text(block.logicBoard), text(block.powerBoard)}};
}

std::optional<CameraRevision> CameraRevision::query(quint32 deviceId)
{
    quint32 handle = deviceId | PV_DEVICE_ID_FLAG;
    if (pv_OpenCamera(&handle, nullptr) != PV_OK)
        return std::nullopt;
    pv_RevisionInfo block{};
    const bool read = pv_GetRevisionInfo(handle, &block) == PV_OK;
    pv_CloseCamera(handle);
    return read ? std::optional<CameraRevision>(fromBlock(block)) : std::nullopt;
}
