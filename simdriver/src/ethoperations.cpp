#include "operations.h"
#include "words.h"

#include <atomic>
#include <cstring>
#include <optional>
#include <thread>

namespace sim::ops {

namespace {

Result readBoolWord(const void* buffer, bool& value, const char* what)
{
    const std::uint32_t word = readWord(buffer);
    if (word > 1)
        return failure(PV_ERR_INVALID_PARAMETER, std::string(what) + ": 0 or 1 expected, not " + std::to_string(word));
    value = word == 1;
    return success();
}

bool isMulticast(std::uint32_t ip)
{
    return (ip >> 28) == 0xE;
}

bool isRangeCommand(std::uint32_t command)
{
    return command == PV_IPCFG_SET_RANGE || command == PV_IPCFG_GET_RANGE;
}

void writeIpBlock(void* block, std::uint32_t first, std::uint32_t second, std::uint32_t extra)
{
    pv_IpBlock ip{};
    NetAddress::toNetworkBytes(first, ip.first);
    NetAddress::toNetworkBytes(second, ip.second);
    ip.extra = extra;
    std::memcpy(block, &ip, sizeof ip);
}

pv_IpBlock readIpBlock(const void* block)
{
    pv_IpBlock ip;
    std::memcpy(&ip, block, sizeof ip);
    return ip;
}

// The camera, or for range commands the adapter, that an IP configuration
// call addresses.
struct IpTarget
{
    SimCamera* camera = nullptr;
    SimAdapter* adapter = nullptr;
};

Result findIpTarget(Fleet& fleet, std::int32_t deviceId, const std::uint8_t* mac, std::uint32_t command,
                    IpTarget& target)
{
    if (deviceId == PV_ADDRESS_BY_MAC) {
        if (!mac)
            return failure(PV_ERR_NULL_POINTER, "pv_IpConfig: MAC address is null");
        MacAddress address;
        std::memcpy(address.data(), mac, address.size());
        if (isRangeCommand(command)) {
            target.adapter = fleet.adapterByMac(address);
            return target.adapter ? success()
                                  : failure(PV_ERR_UNKNOWN_ADAPTER,
                                            "pv_IpConfig: no adapter with MAC " + NetAddress::formatMac(address));
        }
        target.camera = fleet.visibleByMac(address);
        return target.camera ? success()
                             : failure(PV_ERR_UNKNOWN_DEVICE,
                                       "pv_IpConfig: no GigE camera with MAC " + NetAddress::formatMac(address));
    }
    if (deviceId < std::int32_t(PV_ETH_DEVICE_FIRST) || deviceId >= std::int32_t(PV_READONLY_DEVICE_FIRST))
        return failure(PV_ERR_NOT_SUPPORTED, "pv_IpConfig: device " + std::to_string(deviceId) + " is not a GigE camera");
    target.camera = fleet.visible(std::uint32_t(deviceId));
    if (!target.camera)
        return failure(PV_ERR_UNKNOWN_DEVICE, "no camera with device ID " + std::to_string(deviceId));
    target.adapter = fleet.adapter(target.camera->adapterName);
    return success();
}

Result setPersistent(SimCamera& camera, const DriverSettings& settings, const void* block)
{
    if (!(camera.ipCapabilities & PV_IPCAP_PERSISTENT))
        return failure(PV_ERR_NOT_SUPPORTED, "the camera's persistent IP address can't be set");
    if (camera.heldByOtherHost)
        return failure(PV_ERR_DEVICE_IN_USE, "the camera is used by another host");
    if (settings.bootBoostActiveFor(camera.cameraId))
        return failure(PV_ERR_BOOT_BOOST_ACTIVE, "the camera runs in boot boost mode and keeps its address");
    const pv_IpBlock ip = readIpBlock(block);
    const std::uint32_t address = NetAddress::fromNetworkBytes(ip.first);
    const std::uint32_t mask = NetAddress::fromNetworkBytes(ip.second);
    if (address != 0 && mask == 0)
        return failure(PV_ERR_INVALID_PARAMETER, "a persistent IP address needs a subnet mask");
    camera.persistentIp = address;
    camera.persistentMask = mask;
    return success();
}

Result setRange(SimAdapter& adapter, const void* block)
{
    const pv_IpBlock ip = readIpBlock(block);
    const std::uint32_t begin = NetAddress::fromNetworkBytes(ip.first);
    const std::uint32_t end = NetAddress::fromNetworkBytes(ip.second);
    if (begin > end)
        return failure(PV_ERR_INVALID_PARAMETER, "IP range begins after it ends: " + NetAddress::formatIp(begin)
                                                     + " - " + NetAddress::formatIp(end));
    adapter.rangeBegin = begin;
    adapter.rangeEnd = end;
    return success();
}

Result ipCommand(Fleet& fleet, IpTarget& target, std::uint32_t command, void* block)
{
    SimCamera* camera = target.camera;
    switch (command) {
    case PV_IPCFG_CAPABILITIES:
        writeWord(block, camera->ipCapabilities);
        return success();
    case PV_IPCFG_GET_PERSISTENT:
        writeIpBlock(block, camera->persistentIp, camera->persistentMask, 0);
        return success();
    case PV_IPCFG_SET_PERSISTENT:
        return setPersistent(*camera, fleet.settings, block);
    case PV_IPCFG_GET_DHCP:
        writeWord(block, camera->dhcp ? 1 : 0);
        return success();
    case PV_IPCFG_SET_DHCP:
        if (!(camera->ipCapabilities & PV_IPCAP_DHCP))
            return failure(PV_ERR_NOT_SUPPORTED, "the camera has no DHCP client");
        return readBoolWord(block, camera->dhcp, "DHCP");
    case PV_IPCFG_GET_RANGE:
    case PV_IPCFG_SET_RANGE:
        if (!target.adapter)
            return failure(PV_ERR_UNKNOWN_ADAPTER, "the camera has no adapter");
        if (command == PV_IPCFG_SET_RANGE)
            return setRange(*target.adapter, block);
        writeIpBlock(block, target.adapter->rangeBegin, target.adapter->rangeEnd, 100);
        return success();
    default:
        return failure(PV_ERR_UNKNOWN_COMMAND, "pv_IpConfig: unknown command " + std::to_string(command));
    }
}

// The GigE camera whose stream a read-only device receives: the one on the
// adapter with the request's address that sends to the request's group.
const SimCamera* sourceCamera(const Fleet& fleet, const ReadOnlyRequest& request)
{
    for (const SimCamera* camera : fleet.visibleCameras()) {
        const SimAdapter* adapter = fleet.adapter(camera->adapterName);
        if (camera->kind == CameraKind::Eth && camera->multicastIp == request.multicastIp && adapter
            && adapter->ip == request.adapterIp)
            return camera;
    }
    return nullptr;
}

SimCamera* readOnlyDevice(Fleet& fleet, const ReadOnlyRequest& request)
{
    for (const SimCamera* camera : fleet.visibleCameras()) {
        if (camera->kind == CameraKind::ReadOnly && camera->multicastIp == request.multicastIp
            && camera->cameraId == request.cameraId)
            return fleet.any(camera->deviceId);
    }
    return nullptr;
}

Result checkAddition(Fleet& fleet, const ReadOnlyRequest& request)
{
    const std::string group = NetAddress::formatIp(request.multicastIp);
    if (!isMulticast(request.multicastIp))
        return failure(PV_ERR_INVALID_PARAMETER, group + " is not a multicast address");
    if (!sourceCamera(fleet, request))
        return failure(PV_ERR_UNKNOWN_DEVICE, "no GigE camera on the adapter " + NetAddress::formatIp(request.adapterIp)
                                                  + " sends to " + group);
    if (readOnlyDevice(fleet, request))
        return failure(PV_ERR_INVALID_PARAMETER, "a read-only device of camera ID " + std::to_string(request.cameraId)
                                                     + " receives " + group + " already");
    return success();
}

Result queueReadOnly(Fleet& fleet, bool add, const void* buffer)
{
    pv_ReadOnlyRequest request;
    std::memcpy(&request, buffer, sizeof request);
    ReadOnlyRequest queued{add, NetAddress::fromNetworkBytes(request.multicastIp),
                           NetAddress::fromNetworkBytes(request.adapterIp), request.cameraId, request.mode};
    if (add) {
        if (!fleet.settings.readOnlyMulticast)
            return failure(PV_ERR_NOT_SUPPORTED, "read-only multicast is switched off in the driver");
        if (queued.cameraId < 1 || queued.cameraId > 254)
            return failure(PV_ERR_INVALID_PARAMETER, "camera ID " + std::to_string(queued.cameraId)
                                                         + " is outside 1 to 254");
        if (queued.mode < 1 || queued.mode > 4)
            return failure(PV_ERR_INVALID_PARAMETER, "error handling mode " + std::to_string(queued.mode)
                                                         + " is outside 1 to 4");
        if (Result r = checkAddition(fleet, queued); !r.ok())
            return r;
    }
    fleet.pendingReadOnly.push_back(queued);
    return success();
}

// A read-only device looks like the camera whose stream it receives.
Result addReadOnlyDevice(Fleet& fleet, const ReadOnlyRequest& request)
{
    // The fleet may have changed since the request was queued.
    if (Result r = checkAddition(fleet, request); !r.ok())
        return r;
    const SimCamera& source = *sourceCamera(fleet, request);
    // The source's identity and device data, none of what the driver does with it.
    SimCamera device = source;
    device.kind = CameraKind::ReadOnly;
    device.openedElsewhere = device.heldByOtherHost = false;
    device.openHandle = 0;
    device.uploading = device.rebooting = device.ipChanging = false;
    device.identifyCount = 0;
    device.pluggedAt = std::chrono::steady_clock::now();
    device.deviceId = SimCamera::unassigned;
    device.cameraId = request.cameraId;
    device.sourceIp = source.currentIp;
    device.readOnlyMode = request.mode;
    return fleet.plug(device);
}

Result applyReadOnlyRequests(Fleet& fleet)
{
    Result result;
    for (const ReadOnlyRequest& request : fleet.pendingReadOnly) {
        Result r;
        if (request.add) {
            r = addReadOnlyDevice(fleet, request);
        } else if (SimCamera* device = readOnlyDevice(fleet, request)) {
            r = fleet.unplug(device->deviceId);
        } else {
            r = failure(PV_ERR_UNKNOWN_DEVICE, "no read-only device of camera ID " + std::to_string(request.cameraId)
                                                   + " on " + NetAddress::formatIp(request.multicastIp));
        }
        if (result.ok())
            result = r;
    }
    fleet.pendingReadOnly.clear();
    return result;
}

Result serviceCommand(SimDriver& driver, Fleet& fleet, std::uint32_t command, void* buffer, std::uint32_t size)
{
    if (!fleet.settings.ethServiceRunning)
        return failure(PV_ERR_SERVICE_STOPPED, "the ETH service is not running");
    const bool needsRequest = command == PV_ETHSVC_ADD_READONLY || command == PV_ETHSVC_REMOVE_READONLY;
    const bool needsWord = command >= PV_ETHSVC_GET_DEVICE_COUNT && command <= PV_ETHSVC_GET_READONLY_MULTICAST;
    if (needsRequest || needsWord) {
        if (Result r = checkBuffer(buffer, size, needsRequest ? sizeof(pv_ReadOnlyRequest) : 4, "pv_EthConfig");
            !r.ok())
            return r;
    }
    switch (command) {
    case PV_ETHSVC_CONNECT:
        return success();
    case PV_ETHSVC_RESCAN_ADAPTERS:
        driver.readConfiguration(fleet);
        return success();
    case PV_ETHSVC_ADD_READONLY:
    case PV_ETHSVC_REMOVE_READONLY:
        return queueReadOnly(fleet, command == PV_ETHSVC_ADD_READONLY, buffer);
    case PV_ETHSVC_APPLY:
        return applyReadOnlyRequests(fleet);
    case PV_ETHSVC_GET_DEVICE_COUNT: {
        std::uint32_t count = 0;
        for (const SimCamera* camera : fleet.visibleCameras())
            count += camera->isEthernet() ? 1 : 0;
        writeWord(buffer, count);
        return success();
    }
    case PV_ETHSVC_SET_READONLY_MULTICAST: {
        bool enabled = false;
        Result r = readBoolWord(buffer, enabled, "read-only multicast");
        fleet.settings.readOnlyMulticast = r.ok() ? enabled : fleet.settings.readOnlyMulticast;
        return r;
    }
    case PV_ETHSVC_GET_READONLY_MULTICAST:
        writeWord(buffer, fleet.settings.readOnlyMulticast);
        return success();
    default:
        return failure(PV_ERR_UNKNOWN_COMMAND, "pv_EthConfig: unknown service command " + std::to_string(command));
    }
}

Result deviceCommand(Fleet& fleet, std::uint32_t handle, std::uint32_t command, void* buffer, std::uint32_t size)
{
    if (command != PV_ETHCFG_SET_MULTICAST_IP && command != PV_ETHCFG_SET_MULTICAST_ENABLE)
        return failure(PV_ERR_UNKNOWN_COMMAND, "pv_EthConfig: unknown device command " + std::to_string(command));
    if (Result r = checkBuffer(buffer, size, 4, "pv_EthConfig"); !r.ok())
        return r;
    SimCamera* camera = nullptr;
    if (Result r = fleet.resolve(handle, camera); !r.ok())
        return r;
    if (camera->kind != CameraKind::Eth || camera->multicastCapability == 0)
        return failure(PV_ERR_NOT_SUPPORTED, "device " + std::to_string(camera->deviceId) + " has no multicast");
    if (command == PV_ETHCFG_SET_MULTICAST_ENABLE)
        return readBoolWord(buffer, camera->multicastEnabled, "multicast enable");
    const std::uint32_t ip = NetAddress::fromNetworkBytes(static_cast<const std::uint8_t*>(buffer));
    if (ip != 0 && !isMulticast(ip))
        return failure(PV_ERR_INVALID_PARAMETER, NetAddress::formatIp(ip) + " is not a multicast address");
    camera->multicastIp = ip;
    return success();
}

Result adapterCommand(Fleet& fleet, SimAdapter& adapter, bool set, std::uint32_t command, void* buffer,
                      std::uint32_t size)
{
    const std::uint32_t needed = command == PV_ADAPTERCFG_BLOCK         ? sizeof(pv_AdapterBlock)
                                 : command == PV_ADAPTERCFG_PACKET_SIZE ? sizeof(pv_PacketSize)
                                                                        : 4u;
    if (Result r = checkBuffer(buffer, size, needed, "pv_EthAdapterConfig"); !r.ok())
        return r;
    if (command == PV_ADAPTERCFG_BLOCK && !set) {
        pv_AdapterBlock block;
        adapter.fillBlock(block, fleet.knownDevicesOn(adapter.name), 0);
        std::memcpy(buffer, &block, sizeof block);
        return success();
    }
    if (command == PV_ADAPTERCFG_PACKET_SIZE && !set) {
        const pv_PacketSize packetSize{adapter.mtu, 9000};
        std::memcpy(buffer, &packetSize, sizeof packetSize);
        return success();
    }
    if (command == PV_ADAPTERCFG_PACKET_FILTER) {
        if (!set) {
            writeWord(buffer, std::uint32_t(adapter.packetFilter));
            return success();
        }
        const std::uint32_t filter = readWord(buffer);
        if (filter > 2)
            return failure(PV_ERR_INVALID_PARAMETER, "packet filter " + std::to_string(filter) + " is outside 0 to 2");
        adapter.packetFilter = std::int32_t(filter);
        return success();
    }
    if (command == PV_ADAPTERCFG_JUMBO_2K) {
        if (!set) {
            writeWord(buffer, adapter.jumbo2k ? 1 : 0);
            return success();
        }
        return readBoolWord(buffer, adapter.jumbo2k, "2k jumbo packets");
    }
    return failure(PV_ERR_UNKNOWN_COMMAND, "pv_EthAdapterConfig: unknown command " + std::to_string(command));
}

bool isIpWrite(std::uint32_t command)
{
    return command == PV_IPCFG_SET_PERSISTENT || command == PV_IPCFG_SET_DHCP || command == PV_IPCFG_SET_RANGE;
}

// "device 1001: persistent IP 192.168.50.11 mask 255.255.255.0"
std::string ipWriteText(const IpTarget& target, std::uint32_t command, const void* block)
{
    if (command == PV_IPCFG_SET_DHCP)
        return "device " + std::to_string(target.camera->deviceId) + ": DHCP " + (readWord(block) ? "on" : "off");
    const pv_IpBlock ip = readIpBlock(block);
    const std::string first = NetAddress::formatIp(NetAddress::fromNetworkBytes(ip.first));
    const std::string second = NetAddress::formatIp(NetAddress::fromNetworkBytes(ip.second));
    if (command == PV_IPCFG_SET_PERSISTENT)
        return "device " + std::to_string(target.camera->deviceId) + ": persistent IP " + first + " mask " + second;
    return "adapter " + (target.adapter ? target.adapter->name : std::string("none")) + ": IP range " + first
           + " - " + second;
}

std::map<std::uint32_t, std::uint32_t> targetAddresses(const Fleet& fleet)
{
    std::map<std::uint32_t, std::uint32_t> targets;
    for (const auto& [id, camera] : fleet.cameras()) {
        if (camera.kind == CameraKind::Eth)
            targets.emplace(id, camera.targetIp);
    }
    return targets;
}

void endIpChange(SimDriver& driver, std::uint32_t deviceId, std::uint64_t change)
{
    driver.change([&](Fleet& fleet) {
        SimCamera* camera = fleet.any(deviceId);
        if (camera && camera->ipChanging && camera->ipChange == change)
            camera->ipChanging = false;
        return success();
    });
}

// Every camera whose address a write moved (or took away, or gave) tests its
// new setting for a while; a camera already testing starts over.
void startIpChanges(SimDriver& driver, Fleet& fleet, const std::map<std::uint32_t, std::uint32_t>& before)
{
    // Counts across scenario loads, so that the end of a change never finishes a later one.
    static std::atomic<std::uint64_t> lastChange{0};
    const std::chrono::milliseconds duration(fleet.settings.ipChangeMs);
    if (duration.count() == 0)
        return;
    fleet.recompute();
    for (const auto& [id, target] : targetAddresses(fleet)) {
        const auto old = before.find(id);
        if (old == before.end() || old->second == target)
            continue;
        SimCamera* camera = fleet.any(id);
        camera->ipChanging = true;
        camera->ipChange = ++lastChange;
        driver.scheduler().schedule(driver.scaled(duration), [&driver, id = id, change = camera->ipChange] {
            endIpChange(driver, id, change);
        });
    }
}

} // namespace

Result ipConfig(SimDriver& driver, std::int32_t deviceId, const std::uint8_t* mac, std::uint32_t command,
                void* block, std::uint32_t size)
{
    const std::uint32_t needed = command == PV_IPCFG_CAPABILITIES || command == PV_IPCFG_GET_DHCP
                                         || command == PV_IPCFG_SET_DHCP
                                     ? 4u
                                     : sizeof(pv_IpBlock);
    if (Result r = checkBuffer(block, size, needed, "pv_IpConfig"); !r.ok())
        return r;
    return driver.change([&](Fleet& fleet) {
        if (!fleet.settings.ethServiceRunning)
            return failure(PV_ERR_SERVICE_STOPPED, "the ETH service is not running");
        IpTarget target;
        if (Result r = findIpTarget(fleet, deviceId, mac, command, target); !r.ok())
            return r;
        if (!isIpWrite(command))
            return ipCommand(fleet, target, command, block);
        const auto before = targetAddresses(fleet);
        Result result = ipCommand(fleet, target, command, block);
        if (result.ok())
            startIpChanges(driver, fleet, before);
        driver.tracer().trace(TraceService::Eth, TraceCategory::ethDevices,
                              [&] { return ipWriteText(target, command, block) + ": " + outcome(result); });
        return result;
    });
}

Result arpRequest(SimDriver& driver, const char* adapterName, const char* targetIp, std::uint8_t* mac)
{
    if (!adapterName || !targetIp || !mac)
        return failure(PV_ERR_INVALID_PARAMETER, "pvsim_ArpRequest: adapter, target and MAC must not be null");
    const std::string adapterText(adapterName);
    const std::string targetText(targetIp);
    std::optional<MacAddress> answer;
    std::chrono::milliseconds timeout{0};
    const Result asked = driver.read([&](Fleet& fleet) {
        const SimAdapter* adapter = fleet.adapter(adapterText);
        if (!adapter)
            return failure(PV_ERR_UNKNOWN_ADAPTER, "pvsim_ArpRequest: no adapter named \"" + adapterText + "\"");
        const auto target = NetAddress::parseIp(targetText);
        if (!target)
            return failure(PV_ERR_INVALID_PARAMETER,
                           "pvsim_ArpRequest: \"" + targetText + "\" is not an IPv4 address");
        if (!NetAddress::isHostOf(*target, adapter->ip, adapter->mask))
            return failure(PV_ERR_INVALID_PARAMETER,
                           "pvsim_ArpRequest: " + targetText + " is not a host address of " + adapterText
                               + "'s subnet " + NetAddress::formatIp(adapter->ip & adapter->mask) + "/"
                               + NetAddress::formatIp(adapter->mask));
        answer = fleet.arpAnswer(*adapter, *target);
        timeout = std::chrono::milliseconds(fleet.settings.arpTimeoutMs);
        return success();
    });
    if (!asked.ok())
        return asked;
    if (answer) {
        std::memcpy(mac, answer->data(), answer->size());
        return success();
    }
    // Nobody answers: the request waits out its time-out, without the driver's lock.
    std::this_thread::sleep_for(driver.scaled(timeout));
    return failure(PV_ERR_TIMEOUT, "pvsim_ArpRequest: nobody on " + adapterText + " answered for " + targetText
                                       + " within " + std::to_string(timeout.count()) + " ms");
}

Result ethConfig(SimDriver& driver, std::uint32_t handle, std::uint32_t command, void* buffer, std::uint32_t size)
{
    return driver.change([&](Fleet& fleet) {
        if (handle == PV_DRIVER_HANDLE)
            return serviceCommand(driver, fleet, command, buffer, size);
        return deviceCommand(fleet, handle, command, buffer, size);
    });
}

Result ethAdapterConfig(SimDriver& driver, const pv_AdapterId* adapter, std::uint32_t set, std::uint32_t command,
                        void* buffer, std::uint32_t size)
{
    if (!adapter)
        return failure(PV_ERR_NULL_POINTER, "pv_EthAdapterConfig: adapter is null");
    if (set > PV_ADAPTER_SET)
        return failure(PV_ERR_INVALID_PARAMETER, "pv_EthAdapterConfig: 0 reads, 1 writes");
    return driver.change([&](Fleet& fleet) {
        if (!fleet.settings.ethServiceRunning)
            return failure(PV_ERR_SERVICE_STOPPED, "the ETH service is not running");
        for (SimAdapter& candidate : fleet.adapters) {
            if (candidate.matches(*adapter))
                return adapterCommand(fleet, candidate, set == PV_ADAPTER_SET, command, buffer, size);
        }
        return failure(PV_ERR_UNKNOWN_ADAPTER, "pv_EthAdapterConfig: no such adapter");
    });
}

} // namespace sim::ops
