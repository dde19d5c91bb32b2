#include "simcamera.h"

#include "jsonreader.h"

#include <cmath>
#include <cstring>

namespace sim {

namespace {

struct KindInfo
{
    CameraKind kind;
    const char* name;
    std::uint32_t first;
    std::uint32_t end;
};

constexpr KindInfo kinds[] = {
    {CameraKind::Usb, "usb", PV_USB_DEVICE_FIRST, PV_ETH_DEVICE_FIRST},
    {CameraKind::Eth, "eth", PV_ETH_DEVICE_FIRST, PV_READONLY_DEVICE_FIRST},
    {CameraKind::ReadOnly, "readonly", PV_READONLY_DEVICE_FIRST, PV_SDK_DEVICE_FIRST},
    {CameraKind::Sdk, "sdk", PV_SDK_DEVICE_FIRST, PV_UNKNOWN_DEVICE_FIRST},
    {CameraKind::Unknown, "unknown", PV_UNKNOWN_DEVICE_FIRST, PV_DEVICE_ID_FLAG},
};

const KindInfo& info(CameraKind kind)
{
    for (const KindInfo& k : kinds) {
        if (k.kind == kind)
            return k;
    }
    return kinds[0];
}

template <std::size_t N>
void copyText(char (&target)[N], const std::string& text)
{
    std::memset(target, 0, N);
    std::memcpy(target, text.data(), std::min(text.size(), N - 1));
}

// The sibling SDK's USB3 Vision cameras; its other cameras are GigE Vision cameras.
constexpr std::uint8_t usb3VisionTypeCode = 225;

// Counters that grow while the camera is connected, as a driver's would.
std::uint32_t heartbeats(std::uint32_t elapsedMs, std::uint32_t periodMs)
{
    return elapsedMs / (periodMs ? periodMs : 1000);
}

} // namespace

const char* kindName(CameraKind kind)
{
    return info(kind).name;
}

bool parseKind(const std::string& text, CameraKind& kind)
{
    for (const KindInfo& k : kinds) {
        if (text == k.name) {
            kind = k.kind;
            return true;
        }
    }
    return false;
}

std::uint32_t firstDeviceId(CameraKind kind)
{
    return info(kind).first;
}

std::uint32_t endDeviceId(CameraKind kind)
{
    return info(kind).end;
}

SimCamera::SimCamera(CameraKind kind)
    : kind(kind)
{
    switch (kind) {
    case CameraKind::Usb:
        maintenance.capabilities = PV_MAINT_CAMERA_ID | PV_MAINT_USER_EEPROM | PV_MAINT_PARAMETER_SETS;
        typeCode = 0x62;
        linkSpeed = 4000;
        model = "CR-U3-50M";
        fullModel = "CRU3-50M mono USB 3";
        break;
    case CameraKind::Eth:
        maintenance.capabilities = PV_MAINT_CAMERA_ID | PV_MAINT_USER_EEPROM | PV_MAINT_PARAMETER_SETS;
        typeCode = 0x8A;
        linkSpeed = 1000;
        model = "CR-G5-12C";
        fullModel = "CRG5-12C colour GigE";
        break;
    case CameraKind::ReadOnly:
        typeCode = 0x8A;
        linkSpeed = 1000;
        model = "CR-G5-12C";
        fullModel = "CRG5-12C read-only";
        break;
    case CameraKind::Sdk:
        typeCode = 0xE1;
        linkSpeed = 4000;
        model = "PS-V3-24C";
        fullModel = "Summit V3-24C";
        break;
    case CameraKind::Unknown:
        model = "UNKNOWN";
        fullModel = "Unrecognised device";
        break;
    }
}

Result SimCamera::apply(const QJsonObject& json)
{
    JsonReader reader(json, "camera \"" + (serial.empty() ? std::string(kindName(kind)) : serial) + "\"");
    reader.take("kind"); // fixed at creation
    reader.readInt("deviceId", deviceId, firstDeviceId(kind), endDeviceId(kind) - 1);
    reader.readInt("cameraId", cameraId, 0, 0xFFFFFFFFll);
    reader.readInt("sensorId", sensorId, 0, 0xFFFFFFFFll);
    reader.read("serial", serial);
    reader.read("model", model);
    reader.read("fullModel", fullModel);
    reader.readInt("typeCode", typeCode, 0, 255);
    reader.readInt("typeFlag", typeFlag, 0, 255);
    reader.readInt("interfaceWord", interfaceWord, 0, 0xFFFF);
    reader.readInt("linkByte", linkByte, 0, 255);
    reader.readInt("infoSource", infoSource, 0, 255);
    reader.readInt("listStatus", listStatus, 0, 0xFFFFFFFFll);
    reader.read("inUse", openedElsewhere);
    double celsius = std::nan("");
    reader.read("temperature", celsius);
    if (!std::isnan(celsius))
        temperatureRaw = std::uint16_t(std::int16_t(std::lround(celsius * 16)));
    reader.readInt("temperatureRaw", temperatureRaw, 0, 0xFFFF);
    reader.readInt("linkSpeed", linkSpeed, 0, 0xFFFF);
    reader.readInt("usbVersion", usbVersionCode, 0, 255);
    reader.readInt("connectionType", connectionType, 0, 255);
    reader.read("portPath", portPath);
    reader.readVersion("starterFirmware", starterFirmware);
    reader.readVersion("runtimeFirmware", runtimeFirmware);
    reader.readVersion("failsafeFirmware", failsafeFirmware);
    reader.readInt("firmwareSelector", firmwareSelector, 0, 0xFFFF);
    reader.readInt("firmwareRevision", firmwareRevision, 0, 0xFFFFFFFFll);
    reader.readInt("features", features, 0, 0xFFFFFFFFll);
    reader.readInt("ipCapabilities", ipCapabilities, 0, 0xFFFFFFFFll);
    reader.readInt("comPortOffset", comPortOffset, -32768, 32767);
    reader.readInt("imageMemoryMB", imageMemoryMB, 0, 0xFFFFFFFFll);
    reader.read("userSpace", userSpace);
    reader.read("date", date);
    maintenance.readScenario(reader);
    reader.read("adapter", adapterName);
    reader.readMac("mac", mac);
    reader.readIp("persistentIp", persistentIp);
    reader.readIp("persistentMask", persistentMask);
    reader.read("dhcp", dhcp);
    reader.readIp("multicastIp", multicastIp);
    reader.read("multicastEnabled", multicastEnabled);
    reader.readInt("multicastCapability", multicastCapability, 0, 0xFFFFFFFFll);
    reader.read("otherHost", heldByOtherHost);
    reader.read("firmwareCorrupted", firmwareCorrupted);
    reader.readIp("sourceIp", sourceIp);
    reader.readInt("readOnlyMode", readOnlyMode, 1, 4);
    Result result = reader.finish();
    if (result.ok() && userSpace.size() > PV_USER_EEPROM_SIZE)
        return failure(PV_ERR_INVALID_PARAMETER, "camera \"" + serial + "\": field \"userSpace\" holds more than "
                                                     + std::to_string(PV_USER_EEPROM_SIZE) + " bytes");
    return result;
}

bool SimCamera::isOnNetwork() const
{
    switch (kind) {
    case CameraKind::Eth:
    case CameraKind::ReadOnly: return true;
    case CameraKind::Sdk: return typeCode != usb3VisionTypeCode;
    case CameraKind::Usb:
    case CameraKind::Unknown: return false; // reports no device information at all
    }
    return false;
}

Result SimCamera::applyChange(const QJsonObject& json)
{
    if (json.contains("kind") || json.contains("deviceId"))
        return failure(PV_ERR_INVALID_PARAMETER, "a connected camera keeps its kind and device ID");
    SimCamera changed = *this;
    Result result = changed.apply(json);
    if (result.ok())
        *this = std::move(changed);
    return result;
}

void SimCamera::derive(const SimAdapter* adapter, const DriverSettings& settings, std::uint32_t rangeAddress)
{
    deviceFlags = PV_DEVFLAG_INFO_VALID;
    if (isEthernet())
        deriveEthernet(adapter, settings, rangeAddress);
    else
        deriveOutsideEthService(settings);
    if (uploading) {
        deviceStatus |= PV_STATUS_RECEIVING_STARTER_FW;
        deviceControl |= PV_CONTROL_UPLOAD_STARTER_FW;
    }
}

void SimCamera::deriveOutsideEthService(const DriverSettings& settings)
{
    effectiveLinkSpeed = linkSpeed;
    deviceStatus = PV_STATUS_READY;
    deviceControl = PV_CONTROL_INITIALIZED;
    if (starterFirmware >= settings.minStarter && starterFirmware <= settings.maxStarter)
        deviceControl |= PV_CONTROL_COMPATIBLE;
    if (isOpen())
        deviceControl |= PV_CONTROL_OPENED;
    else if (!inUse() && (listStatus & 0x3u) == 0)
        deviceControl |= PV_CONTROL_AVAILABLE;
    // The ETH service does not manage these cameras' addresses: they keep their own.
    if (isOnNetwork()) {
        currentIp = persistentIp;
        currentMask = persistentMask;
    }
}

void SimCamera::deriveEthernet(const SimAdapter* adapter, const DriverSettings& settings,
                               std::uint32_t rangeAddress)
{
    deviceStatus = 0;
    deviceControl = PV_CONTROL_INITIALIZED;
    currentIp = 0;
    currentMask = 0;
    effectiveLinkSpeed = adapter ? std::uint16_t(std::min<std::uint32_t>(linkSpeed, adapter->linkSpeed)) : 0;

    if (kind == CameraKind::ReadOnly) {
        // A passive receiver: it only needs its multicast group.
        currentIp = multicastIp;
        currentMask = 0xF0000000u;
    } else if (adapter && persistentIp != 0) {
        if (NetAddress::isHostOf(persistentIp, adapter->ip, adapter->mask)) {
            currentIp = persistentIp;
            currentMask = persistentMask;
            deviceControl |= PV_CONTROL_PERSISTENT_IP_USED;
        } else {
            deviceStatus |= PV_STATUS_PERSISTENT_IP_NOT_APPLICABLE;
        }
    } else if (rangeAddress != 0) {
        currentIp = rangeAddress;
        currentMask = adapter->mask;
    } else {
        deviceStatus |= PV_STATUS_IP_RANGE_NOT_APPLICABLE;
    }
    targetIp = currentIp;
    if (ipChanging) {
        // Testing the new setting: no address yet, and no verdict on it either.
        currentIp = 0;
        currentMask = 0;
        deviceStatus &= ~(PV_STATUS_PERSISTENT_IP_NOT_APPLICABLE | PV_STATUS_IP_RANGE_NOT_APPLICABLE);
        deviceControl &= ~PV_CONTROL_PERSISTENT_IP_USED;
        deviceStatus |= persistentIp != 0 ? PV_STATUS_TESTING_PERSISTENT_IP
                        : rangeAddress != 0 ? PV_STATUS_TESTING_IP_RANGE
                                            : PV_STATUS_TESTING_CURRENT_IP;
    }

    const bool hasAddress = currentIp != 0;
    const bool compatible = starterFirmware >= settings.minStarter && starterFirmware <= settings.maxStarter;
    if (compatible)
        deviceControl |= PV_CONTROL_COMPATIBLE;
    if (adapter && adapter->dhcp)
        deviceControl |= PV_CONTROL_ADAPTER_DHCP;
    if (adapter && adapter->settingsOk())
        deviceControl |= PV_CONTROL_ADAPTER_OK;

    dhcpState = PV_DHCP_SUPPORTED | (dhcp ? PV_DHCP_ENABLED : 0);
    if (!hasAddress && !ipChanging) {
        deviceStatus |= PV_STATUS_CURRENT_IP_NOT_APPLICABLE;
        if (dhcp)
            dhcpState |= PV_DHCP_WAITING_FOR_OFFER; // nothing on the virtual network answers DHCP
    }
    if (hasAddress || !dhcp || ipChanging)
        deviceStatus |= PV_STATUS_READY;
    if (firmwareCorrupted)
        deviceStatus |= PV_STATUS_RUNTIME_FW_ERROR;
    if (multicastEnabled)
        deviceStatus |= PV_STATUS_MULTICAST_ENABLED;

    // Whatever its address, the driver reaches such a camera on the link and
    // can write its network settings.
    const bool configurable = compatible && adapter && adapter->settingsOk() && !firmwareCorrupted && !uploading
                              && !ipChanging;
    const bool reachable = hasAddress && configurable && !adapter->dhcp;
    const bool bootBoost = settings.bootBoostActiveFor(cameraId);
    if (bootBoost)
        deviceControl |= PV_CONTROL_BOOT_BOOST_ENABLED;

    if (heldByOtherHost) {
        deviceStatus |= PV_STATUS_PAIRED;
    } else if (isOpen()) {
        deviceStatus |= PV_STATUS_PAIRED;
        deviceControl |= PV_CONTROL_OPENED | PV_CONTROL_PAIRED;
    } else if (bootBoost && reachable) {
        deviceStatus |= PV_STATUS_PAIRED;
        deviceControl |= PV_CONTROL_BOOT_BOOST_USED | PV_CONTROL_AVAILABLE | PV_CONTROL_ACCESSIBLE_1;
    } else {
        deviceStatus |= PV_STATUS_UNPAIRED;
        if (reachable)
            deviceControl |= PV_CONTROL_AVAILABLE | PV_CONTROL_ACCESSIBLE_1 | PV_CONTROL_ACCESSIBLE_2;
        else if (configurable)
            deviceControl |= PV_CONTROL_ACCESSIBLE_2;
    }

    if (kind == CameraKind::Eth && settings.starterImage != 0 && starterFirmware != settings.starterImage)
        deviceFlags |= PV_DEVFLAG_UPLOAD_PENDING;
}

void SimCamera::fillListEntry(pv_CameraListEntry& entry) const
{
    entry = pv_CameraListEntry{};
    entry.cameraId = cameraId;
    entry.deviceId = deviceId;
    entry.sensorId = sensorId;
    entry.inUse = inUse() ? 1 : 0;
    copyText(entry.serialNumber, serial);
    copyText(entry.model, model);
    entry.status = listStatus;
    entry.typeCode = typeCode;
    entry.typeFlag = typeFlag;
    entry.interfaceByte = std::uint8_t(interfaceWord);
    entry.linkByte = linkByte;
    entry.infoSource = infoSource;
    copyText(entry.fullModelName, fullModel);
}

void SimCamera::fillDeviceInformation(pv_DeviceInformation& info, const SimAdapter* adapter,
                                      const DriverSettings& settings, std::uint32_t knownDevices,
                                      std::uint32_t elapsedMs) const
{
    info = pv_DeviceInformation{};
    info.deviceStatus = deviceStatus;
    info.deviceControlStatus = deviceControl;
    info.deviceControlStatus2 = deviceControl & 0xFFFF0000u;
    info.controlStatus = listStatus;
    info.temperature = temperatureRaw;
    info.linkSpeed = effectiveLinkSpeed;
    info.linkInfo = (std::uint32_t(connectionType) << 16) | effectiveLinkSpeed;
    info.starterFirmware = starterFirmware;
    info.runtimeFirmware = runtimeFirmware;
    info.failsafeFirmware = failsafeFirmware;
    info.driverFirmwareImage = settings.starterImage;
    info.driverRuntimeImage = settings.runtimeImage;
    info.driverVersion = settings.driverVersion;
    info.minStarterFirmware = settings.minStarter;
    info.maxStarterFirmware = settings.maxStarter;
    info.firmwareSelector = firmwareSelector;
    const std::uint32_t running = firmwareSelector == 0 ? starterFirmware : runtimeFirmware;
    info.firmwareVersionParts[0] = std::uint16_t(PV_VERSION_MAJOR(running));
    info.firmwareVersionParts[1] = std::uint16_t(PV_VERSION_MINOR(running));
    info.firmwareVersionParts[2] = std::uint16_t(PV_VERSION_BUILD(running));
    info.firmwareRevision = firmwareRevision;
    info.usbVersionCode = usbVersionCode;
    info.deviceFlags = deviceFlags;
    info.deviceType = typeCode;
    info.comPortOffset = comPortOffset;
    info.imageMemoryMB = imageMemoryMB;
    info.driverHeartbeatPeriodMs = settings.heartbeatPeriodMs;

    const std::uint32_t beats = heartbeats(elapsedMs, settings.heartbeatPeriodMs);
    info.lastReceivedHeartbeatMsgId = beats;
    info.lastReceivedMsgId = beats * 3 + deviceId % 7;
    info.lastAcknowledgedMsgId = info.lastReceivedMsgId;
    info.missedHeartbeatCount = beats / 5000;
    info.atomicRefCount = isOpen() ? 2 : 1;
    info.refFlags = isOpen() ? 0x3 : 0x1;

    if (isOnNetwork())
        fillEthPart(info.u.eth, adapter, knownDevices);
    else
        fillUsbPart(info.u.usb);

    for (std::uint32_t i = 0; i < 24; ++i)
        info.debugDeviceStatistics[i] = (i % 4 == 0) ? beats * (i + 1) : (deviceId * 13 + i * 7) % 97;
    for (std::uint32_t i = 0; i < 12; ++i)
        info.debugReservedHeartbeat[i] = i == 0 ? beats : 0;
}

void SimCamera::fillUsbPart(pv_UsbDeviceInfo& usb) const
{
    usb.starterLibSharedVersion = starterFirmware;
    usb.runtimeLibSharedVersion = runtimeFirmware;
    usb.memContentListVersion = PV_VERSION(1, 4, 0);
    usb.fx3SdkVersion = PV_VERSION(1, 3, 4);
    usb.coreMinVersion = PV_VERSION(4, 80, 0);
    usb.coreMaxVersion = PV_VERSION(4, 99, 0);
    usb.ccgVersion = connectionType >= 3 ? PV_VERSION(3, 5, 0) : 0;
    usb.connectionType = connectionType;
    usb.connectionSpeed = effectiveLinkSpeed >= 4000 ? 3 : effectiveLinkSpeed >= 480 ? 2 : 1;
    copyText(usb.portPath, portPath);
}

void SimCamera::fillEthPart(pv_EthDeviceInfo& eth, const SimAdapter* adapter, std::uint32_t knownDevices) const
{
    using NetAddress::toApiWord;
    std::memcpy(eth.macAddress, mac.data(), mac.size());
    const bool paired = (deviceStatus & PV_STATUS_PAIRED) != 0;
    if (paired && adapter)
        std::memcpy(eth.pairedHostMac, adapter->mac.data(), adapter->mac.size());
    std::memcpy(eth.tempSensorSerial, mac.data(), mac.size());
    eth.housing = 1;
    eth.interfaceWord = interfaceWord;
    eth.currentIp = toApiWord(currentIp);
    eth.currentMask = toApiWord(currentMask);
    eth.persistentIp = toApiWord(persistentIp);
    eth.persistentMask = toApiWord(persistentMask);
    eth.multicastIp = toApiWord(multicastIp);
    eth.multicastCapability = multicastCapability;
    eth.dhcpState = dhcpState;
    eth.dhcpFsmState = (dhcpState & PV_DHCP_WAITING_FOR_OFFER) ? 2 : 0;
    eth.linkState = effectiveLinkSpeed ? 1 : 0;
    eth.heartbeatPeriodMs = 1000;
    eth.heartbeatWatchdogLevel = 3;
    eth.fpgaType = 2;
    eth.phyType = 1;
    eth.ioVersion = 3;
    eth.cpldVersion = 2;
    eth.generalBoardVersion = 5;
    eth.revisionTimingBoard = 4;
    std::memcpy(eth.userSpace, userSpace.data(), std::min(userSpace.size(), sizeof eth.userSpace));
    if (!adapter)
        return;
    if (paired)
        eth.pairedHostIp = toApiWord(adapter->ip);
    eth.currentGateway = toApiWord(adapter->gateway);
    eth.ipRangeBegin = toApiWord(adapter->rangeBegin);
    eth.ipRangeEnd = toApiWord(adapter->rangeEnd);
    copyText(eth.adapterName, adapter->name);
    std::memcpy(eth.adapterMac, adapter->mac.data(), adapter->mac.size());
    eth.adapterDhcpEnabled = adapter->dhcp;
    eth.adapterRangeValid = adapter->rangeValid();
    eth.adapterId = adapter->adapterId;
    eth.adapterIp = toApiWord(adapter->ip);
    eth.adapterMask = toApiWord(adapter->mask);
    eth.adapterGateway = toApiWord(adapter->gateway);
    eth.adapterRangeBegin = toApiWord(adapter->rangeBegin);
    eth.adapterRangeEnd = toApiWord(adapter->rangeEnd);
    eth.adapterPacketFilter = std::uint32_t(adapter->packetFilter);
    eth.adapterLinkSpeed = adapter->linkSpeed;
    eth.adapterDevicesKnown = std::uint16_t(knownDevices);
    eth.adapterDevicesPaired = paired ? 1 : 0;
    eth.adapterProbeTimeout = 200;
    eth.adapterMaxPacketSizeDown = std::uint16_t(adapter->driverPacketSize());
    eth.adapterMaxPacketSizeUp = std::uint16_t(adapter->driverPacketSize());
    eth.adapterMaxFrameSize = std::uint16_t(std::min<std::uint32_t>(adapter->mtu, 0xFFFF));
    eth.adapterWatchdogLevel = 5;
    eth.adapterWatchdogPipFactor = 2;
    eth.adapterWatchdogFupFactor = 4;
    eth.adapterWatchdogLevelDevice = 3;
    eth.adapterPairingRefreshPeriod = 500;
    eth.adapterPortBase = 49152;
    eth.adapterPortCommand = 49153;
    eth.adapterPortUpload = 49154;
    eth.adapterPortMessage = 49155;
    eth.adapterPortStream = 49156;
    eth.adapterMulticastEnabled = adapter->multicastEnabled;
    eth.adapterPassiveMulticastEnabled = kind == CameraKind::ReadOnly;
}

void SimCamera::fillCameraInfo(pv_CameraInfo& info) const
{
    info = pv_CameraInfo{};
    copyText(info.serialNumber, serial);
    copyText(info.cameraId, std::to_string(cameraId));
    copyText(info.firmwareVersion, versionText(runtimeFirmware));
    copyText(info.date, date);
}

void SimCamera::fillSensorInfo(pv_SensorInfo& info) const
{
    info = pv_SensorInfo{};
    info.sensorType = sensorId;
    info.width = 2448;
    info.height = 2048;
    info.pixelPitchNm = 3450;
    copyText(info.name, "CMOS " + std::to_string(sensorId));
}

void SimCamera::fillRevisionInfo(pv_RevisionInfo& info) const
{
    info = pv_RevisionInfo{};
    copyText(info.type, model);
    copyText(info.version, versionText(runtimeFirmware));
    copyText(info.dateOfQc, date);
    copyText(info.manufacturer, "Parvel Systems");
    copyText(info.sensorHardwareRevision, "B");
    for (char(*board)[16] : {&info.cypress, &info.blackfin, &info.dspFirmware, &info.usbBoard, &info.sensorBoard,
                             &info.processingBoard, &info.memoryBoard, &info.housing, &info.filter,
                             &info.timingBoard, &info.productRevision, &info.logicBoard, &info.powerBoard})
        copyText(*board, "1." + std::to_string(deviceId % 10));
}

void SimCamera::fillUserEeprom(std::uint8_t (&block)[PV_USER_EEPROM_SIZE]) const
{
    std::memset(block, 0, sizeof block);
    std::memcpy(block, userSpace.data(), std::min<std::size_t>(userSpace.size(), sizeof block));
}

void SimCamera::writeUserEeprom(const std::uint8_t (&block)[PV_USER_EEPROM_SIZE])
{
    std::size_t used = sizeof block;
    while (used > 0 && block[used - 1] == 0)
        --used;
    userSpace.assign(reinterpret_cast<const char*>(block), used);
}

} // namespace sim
