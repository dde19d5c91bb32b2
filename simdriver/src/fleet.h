#pragma once

#include "simcamera.h"

#include <map>
#include <optional>
#include <vector>

namespace sim {

// Everything the driver knows: cameras by device ID, the virtual adapters and
// the driver settings. Not thread-safe; the driver guards it.
// A read-only device the ETH service was asked to add or remove; it takes
// effect when the service applies its configuration.
struct ReadOnlyRequest
{
    bool add = true;
    std::uint32_t multicastIp = 0;
    std::uint32_t adapterIp = 0;
    std::uint32_t cameraId = 0;
    std::uint32_t mode = 1;
};

class Fleet
{
public:
    DriverSettings settings;
    std::vector<SimAdapter> adapters;
    std::vector<ReadOnlyRequest> pendingReadOnly;

    // Gives the camera the lowest free device ID of its kind unless it names
    // one, checks it against the fleet and adds it.
    Result plug(SimCamera camera, std::uint32_t* deviceId = nullptr);
    Result unplug(std::uint32_t deviceId);
    // Applies changes to a connected camera; a GigE camera keeps an adapter that exists.
    Result applyChange(SimCamera& camera, const QJsonObject& changes);
    Result addAdapter(SimAdapter adapter);

    // Cameras the driver currently reports, in device ID order.
    std::vector<const SimCamera*> visibleCameras() const;
    SimCamera* visible(std::uint32_t deviceId);
    SimCamera* any(std::uint32_t deviceId);
    SimCamera* visibleByMac(const MacAddress& mac);
    SimCamera* visibleByHandle(std::uint32_t openHandle);
    SimCamera* bySerial(const std::string& serial);
    SimAdapter* adapter(const std::string& name);
    const SimAdapter* adapter(const std::string& name) const;
    SimAdapter* adapterByMac(const MacAddress& mac);
    const std::map<std::uint32_t, SimCamera>& cameras() const { return m_cameras; }

    // The camera a handle names: an open handle, or deviceId | PV_DEVICE_ID_FLAG.
    Result resolve(std::uint32_t handle, SimCamera*& camera);
    // The camera an open handle names.
    Result resolveOpen(std::uint32_t handle, SimCamera*& camera);

    // Recomputes every camera's derived state. Returns, per visible camera, a
    // fingerprint of what a client can see of it.
    std::map<std::uint32_t, std::string> recompute();

    // Who on the adapter's network has the address: the adapter, a camera the
    // driver sees there, or another host, in that order. Empty: nobody.
    std::optional<MacAddress> arpAnswer(const SimAdapter& on, std::uint32_t address) const;

    std::uint32_t knownDevicesOn(const std::string& adapterName) const;
    void fillDeviceInformation(const SimCamera& camera, pv_DeviceInformation& info, std::uint32_t elapsedMs) const;
    void fillExtended(const SimCamera& camera, pv_ExtendedDeviceInformation& record, std::uint32_t elapsedMs) const;

private:
    bool isVisible(const SimCamera& camera) const;
    std::map<std::uint32_t, std::uint32_t> assignRangeAddresses() const;

    std::map<std::uint32_t, SimCamera> m_cameras;
};

} // namespace sim
