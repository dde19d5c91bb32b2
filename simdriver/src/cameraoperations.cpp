#include "operations.h"

#include <algorithm>
#include <cstring>
#include <thread>

namespace sim::ops {

namespace {

constexpr std::chrono::milliseconds rebootDuration{3000};
constexpr std::uint32_t openFlags = PV_DEVICE_ID_FLAG | PV_OPEN_UPLOAD_STARTER_FIRMWARE;

std::uint32_t elapsedMs(const SimCamera& camera)
{
    return std::uint32_t(std::chrono::duration_cast<std::chrono::milliseconds>(
                             std::chrono::steady_clock::now() - camera.pluggedAt)
                             .count());
}

// Reads from an open camera into a caller's block.
template <typename Block, typename Fill>
Result readOpen(SimDriver& driver, std::uint32_t handle, Block* block, const char* what, Fill fill)
{
    if (!block)
        return failure(PV_ERR_NULL_POINTER, std::string(what) + ": block is null");
    return driver.read([&](Fleet& fleet) {
        SimCamera* camera = nullptr;
        Result result = fleet.resolveOpen(handle, camera);
        if (result.ok())
            fill(*camera, *block);
        return result;
    });
}

Result checkOpenable(const SimCamera& camera)
{
    if (camera.kind == CameraKind::Unknown)
        return failure(PV_ERR_NOT_SUPPORTED, "device " + std::to_string(camera.deviceId) + " is of unknown kind");
    if (camera.uploading)
        return failure(PV_ERR_BUSY, "camera " + std::to_string(camera.deviceId) + " is receiving firmware");
    if (camera.inUse() || camera.heldByOtherHost)
        return failure(PV_ERR_DEVICE_IN_USE, "camera " + std::to_string(camera.deviceId) + " is in use");
    return success();
}

bool canReceiveFirmware(const SimCamera& camera)
{
    return !camera.isEthernet() || (camera.currentIp != 0 && (camera.deviceControl & PV_CONTROL_ADAPTER_OK));
}

Result startUpload(SimCamera& camera, const DriverSettings& settings, std::chrono::milliseconds duration)
{
    if (settings.starterImage == 0)
        return failure(PV_ERR_FIRMWARE_UNAVAILABLE, "the driver carries no starter firmware image");
    if (!canReceiveFirmware(camera))
        return failure(PV_ERR_DEVICE_UNREACHABLE,
                       "camera " + std::to_string(camera.deviceId) + " can't be reached for the upload");
    camera.uploading = true;
    camera.uploadStarted = std::chrono::steady_clock::now();
    camera.uploadDuration = duration;
    return success();
}

Result finishUpload(SimDriver& driver, std::uint32_t deviceId, std::uint32_t& handle)
{
    return driver.change([&](Fleet& fleet) {
        SimCamera* camera = fleet.any(deviceId);
        if (!camera || !camera->uploading)
            return failure(PV_ERR_UNKNOWN_DEVICE, "camera " + std::to_string(deviceId) + " left during the upload");
        camera->uploading = false;
        camera->starterFirmware = fleet.settings.starterImage;
        camera->openHandle = handle = driver.newHandle();
        return success();
    });
}

// Opens a present camera, uploading the starter firmware first when asked or
// when the driver's settings call for it.
Result openDevice(SimDriver& driver, std::uint32_t deviceId, bool uploadRequested, std::uint32_t& handle)
{
    bool uploading = false;
    std::chrono::milliseconds duration{0};
    Result result = driver.change([&](Fleet& fleet) {
        SimCamera* camera = fleet.visible(deviceId);
        if (!camera)
            return failure(PV_ERR_UNKNOWN_DEVICE, "no camera with device ID " + std::to_string(deviceId));
        if (Result r = checkOpenable(*camera); !r.ok())
            return r;
        const bool autoUpload = camera->kind == CameraKind::Eth && (camera->deviceFlags & PV_DEVFLAG_UPLOAD_PENDING)
                                && fleet.settings.registryFlag("cirro_eth", "AllowAutoStarterFwUpload");
        if (uploadRequested || autoUpload) {
            uploading = true;
            duration = driver.scaled(firmwareUploadDuration(camera->typeCode));
            return startUpload(*camera, fleet.settings, duration);
        }
        if (camera->isEthernet() && !(camera->deviceControl & PV_CONTROL_AVAILABLE))
            return failure(PV_ERR_DEVICE_UNREACHABLE, "camera " + std::to_string(deviceId) + " can't be reached");
        camera->openHandle = handle = driver.newHandle();
        return success();
    });
    if (!result.ok() || !uploading)
        return result;

    driver.tracer().trace(serviceOfDevice(deviceId), TraceCategory::firmware, [&] {
        return "starter firmware upload to device " + std::to_string(deviceId) + " started, "
               + std::to_string(duration.count()) + " ms";
    });
    std::this_thread::sleep_for(duration);
    std::uint32_t opened = 0;
    result = finishUpload(driver, deviceId, opened);
    driver.tracer().trace(serviceOfDevice(deviceId), TraceCategory::firmware, [&] {
        return "starter firmware upload to device " + std::to_string(deviceId) + " ended: " + outcome(result);
    });
    if (result.ok())
        handle = opened;
    return result;
}

Result uploadProgress(SimDriver& driver, std::uint32_t handle, void* block, std::uint32_t size)
{
    if (Result r = checkBuffer(block, size, sizeof(pv_UploadProgress), "pv_DeviceInfo"); !r.ok())
        return r;
    return driver.read([&](Fleet& fleet) {
        SimCamera* camera = nullptr;
        if (Result r = fleet.resolve(handle, camera); !r.ok())
            return r;
        pv_UploadProgress progress{};
        if (camera->uploading) {
            using namespace std::chrono;
            const auto elapsed = duration_cast<milliseconds>(steady_clock::now() - camera->uploadStarted);
            const auto total = std::max<std::int64_t>(camera->uploadDuration.count(), 1);
            progress.uploading = 1;
            progress.permille = std::uint32_t(std::min<std::int64_t>(elapsed.count() * 1000 / total, 999));
        }
        std::memcpy(block, &progress, sizeof progress);
        return success();
    });
}

} // namespace

std::chrono::milliseconds firmwareUploadDuration(std::uint8_t typeCode)
{
    switch (typeCode) {
    case 129: case 130: case 132: case 134: case 135: case 138: case 139: case 140:
        return std::chrono::seconds(25);
    case 136:
        return std::chrono::seconds(35);
    default:
        return std::chrono::seconds(typeCode >= 128 ? 100 : 25);
    }
}

Result getNumberOfCameras(SimDriver& driver, std::int32_t* count)
{
    if (!count)
        return failure(PV_ERR_NULL_POINTER, "pv_GetNumberOfCameras: count is null");
    *count = driver.read([](Fleet& fleet) { return std::int32_t(fleet.visibleCameras().size()); });
    driver.tracer().trace(TraceService::Usb, TraceCategory::deviceList,
                          [&] { return std::to_string(*count) + " devices present"; });
    return success();
}

Result getCameraList(SimDriver& driver, void* listBuffer)
{
    if (!listBuffer)
        return failure(PV_ERR_NULL_POINTER, "pv_GetCameraList: buffer is null");
    std::int32_t capacity;
    std::memcpy(&capacity, listBuffer, sizeof capacity);
    if (capacity < 0)
        return failure(PV_ERR_INVALID_PARAMETER, "pv_GetCameraList: negative capacity");
    return driver.read([&](Fleet& fleet) {
        const auto cameras = fleet.visibleCameras();
        const std::int32_t filled = std::min<std::int32_t>(capacity, std::int32_t(cameras.size()));
        auto* entries = static_cast<unsigned char*>(listBuffer) + PV_CAMERA_LIST_HEADER_SIZE;
        for (std::int32_t i = 0; i < filled; ++i) {
            pv_CameraListEntry entry;
            cameras[i]->fillListEntry(entry);
            std::memcpy(entries + std::size_t(i) * sizeof entry, &entry, sizeof entry);
        }
        std::memcpy(listBuffer, &filled, sizeof filled);
        driver.tracer().trace(TraceService::Usb, TraceCategory::deviceList, [&] {
            return "device list: " + std::to_string(filled) + " of " + std::to_string(cameras.size())
                   + " devices handed out";
        });
        return success();
    });
}

Result openCamera(SimDriver& driver, std::uint32_t* handle, void*)
{
    if (!handle)
        return failure(PV_ERR_NULL_POINTER, "pv_OpenCamera: handle word is null");
    const std::uint32_t word = *handle;
    if ((word & PV_DEVICE_ID_FLAG) == 0 || (word & ~(openFlags | 0x7FFFu)) != 0)
        return failure(PV_ERR_INVALID_PARAMETER, "pv_OpenCamera: the handle word must be deviceId | 0x8000");
    const std::uint32_t deviceId = word & 0x7FFFu;
    const Result result = openDevice(driver, deviceId, (word & PV_OPEN_UPLOAD_STARTER_FIRMWARE) != 0, *handle);
    driver.tracer().trace(serviceOfDevice(deviceId), TraceCategory::startStop, [&] {
        return "open device " + std::to_string(deviceId)
               + (result.ok() ? " (handle " + hexNumber(*handle) + ")" : std::string()) + ": " + outcome(result);
    });
    return result;
}

Result closeCamera(SimDriver& driver, std::uint32_t handle)
{
    std::uint32_t deviceId = 0;
    const Result result = driver.change([&](Fleet& fleet) {
        SimCamera* camera = nullptr;
        Result r = fleet.resolveOpen(handle, camera);
        if (r.ok()) {
            deviceId = camera->deviceId;
            camera->openHandle = 0;
        }
        return r;
    });
    // A handle that names no camera belongs to no device: the refusal is the USB service's.
    driver.tracer().trace(serviceOfDevice(deviceId), TraceCategory::startStop, [&] {
        return (result.ok() ? "close device " + std::to_string(deviceId) + " (handle " : "close (handle ")
               + hexNumber(handle) + "): " + outcome(result);
    });
    return result;
}

Result getCameraInfo(SimDriver& driver, std::uint32_t handle, pv_CameraInfo* info)
{
    return readOpen(driver, handle, info, "pv_GetCameraInfo",
                    [](const SimCamera& camera, pv_CameraInfo& block) { camera.fillCameraInfo(block); });
}

Result getSensorInfo(SimDriver& driver, std::uint32_t handle, pv_SensorInfo* info)
{
    return readOpen(driver, handle, info, "pv_GetSensorInfo",
                    [](const SimCamera& camera, pv_SensorInfo& block) { camera.fillSensorInfo(block); });
}

Result getRevisionInfo(SimDriver& driver, std::uint32_t handle, pv_RevisionInfo* info)
{
    return readOpen(driver, handle, info, "pv_GetRevisionInfo",
                    [](const SimCamera& camera, pv_RevisionInfo& block) { camera.fillRevisionInfo(block); });
}

Result deviceInfo(SimDriver& driver, std::uint32_t handle, std::uint32_t command, void* block, std::uint32_t size)
{
    if (command == PV_DEVINFO_UPLOAD_PROGRESS)
        return uploadProgress(driver, handle, block, size);
    if (command == PV_DEVINFO_COMPORT)
        return comPortInfo(driver, handle, block, size);
    if (command != PV_DEVINFO_READ && command != PV_DEVINFO_READ_EXTENDED)
        return failure(PV_ERR_UNKNOWN_COMMAND, "pv_DeviceInfo: unknown command " + std::to_string(command));
    const bool extended = command == PV_DEVINFO_READ_EXTENDED;
    const std::uint32_t needed = extended ? sizeof(pv_ExtendedDeviceInformation) : sizeof(pv_DeviceInformation);
    if (Result r = checkBuffer(block, size, needed, "pv_DeviceInfo"); !r.ok())
        return r;
    return driver.read([&](Fleet& fleet) {
        SimCamera* camera = nullptr;
        if (Result r = fleet.resolve(handle, camera); !r.ok())
            return r;
        if (camera->kind == CameraKind::Unknown)
            return failure(PV_ERR_NOT_SUPPORTED, "device " + std::to_string(camera->deviceId)
                                                     + " has no device information");
        if (extended) {
            auto record = std::make_unique<pv_ExtendedDeviceInformation>();
            fleet.fillExtended(*camera, *record, elapsedMs(*camera));
            std::memcpy(block, record.get(), sizeof *record);
        } else {
            pv_DeviceInformation info;
            fleet.fillDeviceInformation(*camera, info, elapsedMs(*camera));
            std::memcpy(block, &info, sizeof info);
        }
        return success();
    });
}

Result deviceFeature(SimDriver& driver, std::uint32_t handle, std::uint32_t command, std::uint32_t feature,
                     std::uint32_t index, void* block, std::uint32_t size)
{
    if (feature == PV_FEATURE_COMPORT_NUMBER)
        return comPortNumberFeature(driver, handle, command, index, block, size);
    if (command != PV_FEATURE_READ || feature != PV_FEATURE_DEVICE_CAPABILITIES || index != 0)
        return maintenanceFeature(driver, handle, command, feature, index, block, size);
    return readFeatureBlock(driver, handle, block, size, [](const SimCamera& camera, pv_FeatureBlock& features) {
        features.status = camera.features;
        features.featureId = PV_FEATURE_DEVICE_CAPABILITIES;
    });
}

Result readFeatureBlock(SimDriver& driver, std::uint32_t handle, void* block, std::uint32_t size,
                        const std::function<void(const SimCamera&, pv_FeatureBlock&)>& fill)
{
    if (Result r = checkBuffer(block, size, sizeof(pv_FeatureBlock), "pv_DeviceFeature"); !r.ok())
        return r;
    return driver.read([&](Fleet& fleet) {
        SimCamera* camera = nullptr;
        Result result = fleet.resolve(handle, camera);
        if (result.ok()) {
            pv_FeatureBlock features{};
            fill(*camera, features);
            std::memcpy(block, &features, sizeof features);
        }
        return result;
    });
}

Result rebootDevice(SimDriver& driver, std::uint32_t handle, std::uint32_t mode)
{
    if (mode != 0)
        return failure(PV_ERR_INVALID_PARAMETER, "pv_RebootDevice: mode must be 0");
    std::uint32_t deviceId = 0;
    Result result = driver.change([&](Fleet& fleet) {
        SimCamera* camera = nullptr;
        Result r = fleet.resolve(handle, camera);
        if (r.ok()) {
            deviceId = camera->deviceId;
            camera->openHandle = 0;
            camera->rebooting = true;
        }
        return r;
    });
    if (result.ok()) {
        driver.scheduler().schedule(driver.scaled(rebootDuration), [&driver, deviceId] {
            driver.change([deviceId](Fleet& fleet) {
                if (SimCamera* camera = fleet.any(deviceId))
                    camera->rebooting = false;
                return success();
            });
        });
    }
    return result;
}

Result cameraCommand(SimDriver& driver, std::uint32_t handle, std::uint32_t command, void* parameter,
                     std::uint32_t size)
{
    if (isComPortCommand(command))
        return comPortCommand(driver, handle, command, parameter, size);
    if (command != PV_CAMCMD_IDENTIFY)
        return maintenanceCommand(driver, handle, command, parameter, size);
    if (Result r = checkBuffer(parameter, size, 4, "pv_CameraCommand"); !r.ok())
        return r;
    std::uint32_t value;
    std::memcpy(&value, parameter, sizeof value);
    if (value != PV_IDENTIFY_BLINK)
        return failure(PV_ERR_INVALID_PARAMETER, "pv_CameraCommand: identify takes the parameter 6");
    return driver.read([&](Fleet& fleet) {
        SimCamera* camera = nullptr;
        Result result = fleet.resolveOpen(handle, camera);
        if (result.ok())
            ++camera->identifyCount;
        return result;
    });
}

} // namespace sim::ops
