#include "fleet.h"

#include <algorithm>
#include <cstring>
#include <set>

#include <QString>

namespace sim {

Result Fleet::plug(SimCamera camera, std::uint32_t* deviceId)
{
    const std::uint32_t first = firstDeviceId(camera.kind);
    const std::uint32_t end = endDeviceId(camera.kind);
    if (camera.deviceId == SimCamera::unassigned) {
        std::uint32_t id = first;
        while (id < end && m_cameras.count(id))
            ++id;
        if (id == end)
            return failure(PV_ERR_NO_MEMORY,
                           std::string("no free device ID for another ") + kindName(camera.kind) + " camera");
        camera.deviceId = id;
    } else if (m_cameras.count(camera.deviceId)) {
        return failure(PV_ERR_INVALID_PARAMETER, "device ID " + std::to_string(camera.deviceId) + " is taken");
    }
    if (camera.kind == CameraKind::Eth && !adapter(camera.adapterName))
        return failure(PV_ERR_UNKNOWN_ADAPTER, "camera " + camera.serial + ": no adapter named \""
                                                   + camera.adapterName + "\"");
    if (camera.starterFirmware == 0)
        camera.starterFirmware = settings.starterImage;
    if (camera.runtimeFirmware == 0)
        camera.runtimeFirmware = settings.runtimeImage;
    camera.pluggedAt = std::chrono::steady_clock::now();
    if (deviceId)
        *deviceId = camera.deviceId;
    m_cameras.emplace(camera.deviceId, std::move(camera));
    return success();
}

Result Fleet::unplug(std::uint32_t deviceId)
{
    if (m_cameras.erase(deviceId) == 0)
        return failure(PV_ERR_UNKNOWN_DEVICE, "no camera with device ID " + std::to_string(deviceId));
    return success();
}

Result Fleet::applyChange(SimCamera& camera, const QJsonObject& changes)
{
    SimCamera changed = camera;
    if (Result r = changed.applyChange(changes); !r.ok())
        return r;
    if (changed.kind == CameraKind::Eth && !adapter(changed.adapterName))
        return failure(PV_ERR_UNKNOWN_ADAPTER, "camera " + changed.serial + ": no adapter named \""
                                                   + changed.adapterName + "\"");
    camera = std::move(changed);
    return success();
}

Result Fleet::addAdapter(SimAdapter newAdapter)
{
    if (adapter(newAdapter.name))
        return failure(PV_ERR_INVALID_PARAMETER, "adapter \"" + newAdapter.name + "\" exists twice");
    newAdapter.adapterId = std::uint32_t(adapters.size() + 1);
    adapters.push_back(std::move(newAdapter));
    return success();
}

bool Fleet::isVisible(const SimCamera& camera) const
{
    if (camera.rebooting)
        return false;
    switch (camera.kind) {
    case CameraKind::Usb:
        return settings.usbServiceRunning;
    case CameraKind::Eth: {
        const SimAdapter* a = adapter(camera.adapterName);
        return settings.ethServiceRunning && a && a->bound && a->linkUp;
    }
    case CameraKind::ReadOnly:
        return settings.ethServiceRunning;
    case CameraKind::Sdk:
    case CameraKind::Unknown:
        return true;
    }
    return false;
}

std::vector<const SimCamera*> Fleet::visibleCameras() const
{
    std::vector<const SimCamera*> result;
    for (const auto& [id, camera] : m_cameras) {
        if (isVisible(camera))
            result.push_back(&camera);
    }
    return result;
}

SimCamera* Fleet::visible(std::uint32_t deviceId)
{
    const auto it = m_cameras.find(deviceId);
    return it != m_cameras.end() && isVisible(it->second) ? &it->second : nullptr;
}

SimCamera* Fleet::any(std::uint32_t deviceId)
{
    const auto it = m_cameras.find(deviceId);
    return it != m_cameras.end() ? &it->second : nullptr;
}

SimCamera* Fleet::visibleByMac(const MacAddress& mac)
{
    for (auto& [id, camera] : m_cameras) {
        if (camera.kind == CameraKind::Eth && camera.mac == mac && isVisible(camera))
            return &camera;
    }
    return nullptr;
}

SimCamera* Fleet::visibleByHandle(std::uint32_t openHandle)
{
    for (auto& [id, camera] : m_cameras) {
        if (openHandle != 0 && camera.openHandle == openHandle && isVisible(camera))
            return &camera;
    }
    return nullptr;
}

SimCamera* Fleet::bySerial(const std::string& serial)
{
    for (auto& [id, camera] : m_cameras) {
        if (!serial.empty() && camera.serial == serial)
            return &camera;
    }
    return nullptr;
}

SimAdapter* Fleet::adapter(const std::string& name)
{
    const auto it = std::find_if(adapters.begin(), adapters.end(), [&](const SimAdapter& a) { return a.name == name; });
    return it == adapters.end() ? nullptr : &*it;
}

const SimAdapter* Fleet::adapter(const std::string& name) const
{
    return const_cast<Fleet*>(this)->adapter(name);
}

SimAdapter* Fleet::adapterByMac(const MacAddress& mac)
{
    const auto it = std::find_if(adapters.begin(), adapters.end(), [&](const SimAdapter& a) { return a.mac == mac; });
    return it == adapters.end() ? nullptr : &*it;
}

std::optional<MacAddress> Fleet::arpAnswer(const SimAdapter& on, std::uint32_t address) const
{
    if (address == on.ip)
        return on.mac;
    if (!on.linkUp)
        return std::nullopt;
    for (const auto& [id, camera] : m_cameras) {
        if (camera.kind == CameraKind::Eth && camera.adapterName == on.name && camera.currentIp == address
            && isVisible(camera))
            return camera.mac;
    }
    if (on.isOtherHost(address))
        return SimAdapter::otherHostMac(address);
    return std::nullopt;
}

std::uint32_t Fleet::knownDevicesOn(const std::string& adapterName) const
{
    std::uint32_t count = 0;
    for (const SimCamera* camera : visibleCameras()) {
        if (camera->kind == CameraKind::Eth && camera->adapterName == adapterName)
            ++count;
    }
    return count;
}

// Cameras without a persistent address keep the range address they have (or
// are moving to), as long as it stays in the range and nobody else uses it;
// the others take the free addresses of their adapter's range in device ID
// order. Other hosts on the adapter's network hold their addresses too.
std::map<std::uint32_t, std::uint32_t> Fleet::assignRangeAddresses() const
{
    std::map<std::uint32_t, std::uint32_t> assigned;
    for (const SimAdapter& a : adapters) {
        if (!a.rangeValid())
            continue;
        std::vector<const SimCamera*> waiting;
        std::set<std::uint32_t> taken{a.ip};
        for (const auto& [id, camera] : m_cameras) {
            if (camera.kind == CameraKind::Eth && camera.adapterName == a.name && camera.persistentIp != 0)
                taken.insert(camera.persistentIp);
        }
        for (const auto& [id, camera] : m_cameras) {
            if (camera.kind != CameraKind::Eth || camera.adapterName != a.name || camera.persistentIp != 0)
                continue;
            const std::uint32_t kept = camera.targetIp;
            if (kept >= a.rangeBegin && kept <= a.rangeEnd && !a.isOtherHost(kept) && taken.insert(kept).second)
                assigned[id] = kept;
            else
                waiting.push_back(&camera);
        }
        std::uint32_t next = a.rangeBegin;
        for (const SimCamera* camera : waiting) {
            while (next <= a.rangeEnd && (taken.count(next) || a.isOtherHost(next)))
                ++next;
            if (next > a.rangeEnd)
                break;
            taken.insert(next);
            assigned[camera->deviceId] = next++;
        }
    }
    return assigned;
}

std::map<std::uint32_t, std::string> Fleet::recompute()
{
    const auto rangeAddresses = assignRangeAddresses();
    for (auto& [id, camera] : m_cameras) {
        const auto range = rangeAddresses.find(id);
        camera.derive(adapter(camera.adapterName), settings, range == rangeAddresses.end() ? 0 : range->second);
    }

    std::map<std::uint32_t, std::string> fingerprints;
    for (const SimCamera* camera : visibleCameras()) {
        pv_CameraListEntry entry;
        camera->fillListEntry(entry);
        pv_DeviceInformation info;
        fillDeviceInformation(*camera, info, 0);
        std::string print(reinterpret_cast<const char*>(&entry), sizeof entry);
        print.append(reinterpret_cast<const char*>(&info), sizeof info);
        fingerprints.emplace(camera->deviceId, std::move(print));
    }
    return fingerprints;
}

void Fleet::fillDeviceInformation(const SimCamera& camera, pv_DeviceInformation& info, std::uint32_t elapsedMs) const
{
    camera.fillDeviceInformation(info, adapter(camera.adapterName), settings, knownDevicesOn(camera.adapterName),
                                 elapsedMs);
}

} // namespace sim

namespace sim {

namespace {

template <std::size_t N>
void copyUtf16(pv_char16 (&target)[N], const std::string& text)
{
    const std::u16string wide = QString::fromStdString(text).toStdU16String();
    std::memset(target, 0, sizeof target);
    std::memcpy(target, wide.data(), std::min(wide.size(), N - 1) * sizeof(pv_char16));
}

} // namespace

Result Fleet::resolve(std::uint32_t handle, SimCamera*& camera)
{
    if ((handle & PV_DEVICE_ID_FLAG) == 0)
        return resolveOpen(handle, camera);
    if (handle > 0xFFFFu)
        return failure(PV_ERR_UNKNOWN_HANDLE, "handle " + std::to_string(handle) + " is not a device ID handle");
    const std::uint32_t deviceId = handle & ~PV_DEVICE_ID_FLAG;
    camera = visible(deviceId);
    if (!camera)
        return failure(PV_ERR_UNKNOWN_DEVICE, "no camera with device ID " + std::to_string(deviceId));
    return success();
}

Result Fleet::resolveOpen(std::uint32_t handle, SimCamera*& camera)
{
    if (handle == PV_DRIVER_HANDLE)
        return failure(PV_ERR_UNKNOWN_HANDLE, "handle 0 addresses the driver, not a camera");
    camera = visibleByHandle(handle);
    if (!camera)
        return failure(PV_ERR_UNKNOWN_HANDLE, "handle " + std::to_string(handle) + " is not an open camera");
    return success();
}

void Fleet::fillExtended(const SimCamera& camera, pv_ExtendedDeviceInformation& record, std::uint32_t elapsedMs) const
{
    record = pv_ExtendedDeviceInformation{};
    pv_CameraListEntry entry;
    camera.fillListEntry(entry);
    record.cameraId = entry.cameraId;
    record.deviceId = entry.deviceId;
    record.sensorId = entry.sensorId;
    record.inUse = entry.inUse;
    record.status = entry.status;
    record.typeCode = entry.typeCode;
    record.typeFlag = entry.typeFlag;
    record.interfaceWord = camera.interfaceWord;
    record.linkByte = entry.linkByte;
    record.infoSource = entry.infoSource;
    copyUtf16(record.serialNumber, camera.serial);
    copyUtf16(record.model, camera.model);
    copyUtf16(record.fullModelName, camera.fullModel);
    fillDeviceInformation(camera, record.info, elapsedMs);
    if (const SimAdapter* a = adapter(camera.adapterName)) {
        copyUtf16(record.adapterDescription, "Virtual GigE adapter " + a->name);
        copyUtf16(record.adapterDriverVersion, versionText(settings.driverVersion));
        copyUtf16(record.adapterDriverDate, settings.driverDate);
    }
    copyUtf16(record.usbLocation, camera.portPath);
}

} // namespace sim
