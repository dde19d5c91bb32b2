#include "camera/cameralistreader.h"

#include <cstring>
#include <vector>

namespace CameraListReader {

QList<std::shared_ptr<Camera>> read()
{
    QList<std::shared_ptr<Camera>> cameras;
    std::int32_t count = 0;
    if (pv_GetNumberOfCameras(&count) != PV_OK || count < 1)
        return cameras;
    std::vector<unsigned char> buffer(std::size_t(count) * sizeof(pv_CameraListEntry) + PV_CAMERA_LIST_HEADER_SIZE);
    std::memcpy(buffer.data(), &count, sizeof count);
    if (pv_GetCameraList(buffer.data()) != PV_OK)
        return cameras;
    // The driver lowers the count when a camera left between the two calls.
    std::int32_t filled = 0;
    std::memcpy(&filled, buffer.data(), sizeof filled);
    for (std::int32_t i = 0; i < filled && i < count; ++i) {
        pv_CameraListEntry entry;
        std::memcpy(&entry, buffer.data() + PV_CAMERA_LIST_HEADER_SIZE + std::size_t(i) * sizeof entry, sizeof entry);
        cameras.append(std::make_shared<Camera>(entry, 0));
    }
    return cameras;
}

} // namespace CameraListReader
