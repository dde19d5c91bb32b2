#include "supportfile/supportfilefields.h"

#include "camera/camera.h"
#include "common/versionword.h"
#include "network/ipv4.h"
#include "network/macaddress.h"

#include <QtEndian>

#include <cstring>
#include <type_traits>

namespace {

using Name = SupportFileNames::Name;
using Field = SupportFileField;
using Record = pv_ExtendedDeviceInformation;

template <std::size_t N>
QString text(const pv_char16 (&field)[N])
{
    std::size_t length = 0;
    while (length < N && field[length] != 0)
        ++length;
    return QString::fromUtf16(reinterpret_cast<const char16_t*>(field), int(length));
}

template <std::size_t N>
QString text(const char (&field)[N])
{
    return QString::fromLatin1(field, int(strnlen(field, N)));
}

template <std::size_t N>
void setText(pv_char16 (&field)[N], const QString& value)
{
    std::memset(field, 0, sizeof field);
    std::memcpy(field, value.utf16(), sizeof(pv_char16) * std::min<std::size_t>(N - 1, std::size_t(value.size())));
}

// The camera's user EEPROM fills all eight bytes without a terminator.
template <std::size_t N>
void setText(char (&field)[N], const QString& value)
{
    std::memset(field, 0, sizeof field);
    const QByteArray latin = value.toLatin1();
    std::memcpy(field, latin.constData(), std::min<std::size_t>(N, std::size_t(latin.size())));
}

template <typename Access>
Field number(Name name, Access access)
{
    return {name, Field::Type::Number,
            [access](const Record& r) {
                using T = std::decay_t<decltype(access(r))>;
                if constexpr (std::is_signed_v<T>)
                    return QString::number(qint64(access(r)));
                else
                    return QString::number(quint64(access(r)));
            },
            [access](Record& r, const QString& value) {
                using T = std::decay_t<decltype(access(r))>;
                access(r) = T(value.toLongLong());
            }};
}

template <typename Access>
Field version(Name name, Access access)
{
    return {name, Field::Type::Text, [access](const Record& r) { return VersionWord(access(r)).paddedText(); },
            [access](Record& r, const QString& value) {
                access(r) = VersionWord::fromText(value).value_or(VersionWord(0)).word();
            }};
}

template <typename Access>
Field ip(Name name, Access access)
{
    return {name, Field::Type::Text, [access](const Record& r) { return Camera::ipText(access(r)); },
            [access](Record& r, const QString& value) {
                std::uint8_t bytes[4];
                Ipv4::toNetworkBytes(Ipv4::fromText(value), bytes);
                access(r) = qFromLittleEndian<quint32>(bytes);
            }};
}

template <typename Access>
Field mac(Name name, Access access)
{
    return {name, Field::Type::Text, [access](const Record& r) { return Camera::macText(access(r)); },
            [access](Record& r, const QString& value) {
                const MacAddress parsed = MacAddress::parse(value);
                std::memcpy(access(r), parsed.bytes.data(), parsed.bytes.size());
            }};
}

template <typename Access>
Field textField(Name name, Access access)
{
    return {name, Field::Type::Text, [access](const Record& r) { return text(access(r)); },
            [access](Record& r, const QString& value) { setText(access(r), value); }};
}

} // namespace

// The member that a key stands for, reachable from a const and a mutable record.
#define CIRRO_FIELD(kind, key, member) kind(Name::key, [](auto& r) -> auto& { return r.member; })

quint32* SupportFileCounterArray::elements(pv_DeviceInformation& info) const
{
    return reinterpret_cast<quint32*>(reinterpret_cast<char*>(&info) + offset);
}

const quint32* SupportFileCounterArray::elements(const pv_DeviceInformation& info) const
{
    return reinterpret_cast<const quint32*>(reinterpret_cast<const char*>(&info) + offset);
}

namespace SupportFileFields {

const Fields& usbIdentity()
{
    static const Fields fields{
        CIRRO_FIELD(number, DeviceId, deviceId),         CIRRO_FIELD(number, DeviceCameraId, cameraId),
        CIRRO_FIELD(textField, DeviceModel, model),      CIRRO_FIELD(textField, DeviceSerNo, serialNumber),
        CIRRO_FIELD(number, DeviceSensorId, sensorId),   CIRRO_FIELD(number, DeviceUsed, inUse)};
    return fields;
}

const Fields& usbInformation()
{
    static const Fields fields{
        CIRRO_FIELD(number, DeviceTemperature, info.temperature),
        CIRRO_FIELD(version, DeviceStarterFirmwareVersion, info.starterFirmware),
        CIRRO_FIELD(version, DeviceRuntimeFirmwareVersion, info.runtimeFirmware),
        CIRRO_FIELD(version, DeviceStarterLibSharedVersion, info.u.usb.starterLibSharedVersion),
        CIRRO_FIELD(version, DeviceRuntimeLibSharedVersion, info.u.usb.runtimeLibSharedVersion),
        CIRRO_FIELD(version, DeviceMemContentListVersion, info.u.usb.memContentListVersion),
        CIRRO_FIELD(version, DeviceCypressFx3SDKVersion, info.u.usb.fx3SdkVersion),
        CIRRO_FIELD(version, DeviceCoreMinVersion, info.u.usb.coreMinVersion),
        CIRRO_FIELD(version, DeviceCoreMaxVersion, info.u.usb.coreMaxVersion),
        CIRRO_FIELD(number, DeviceConnectionType, info.u.usb.connectionType),
        CIRRO_FIELD(number, DeviceConnectionSpeed, info.u.usb.connectionSpeed),
        CIRRO_FIELD(number, DeviceLinkInfo, info.linkSpeed),
        CIRRO_FIELD(number, DeviceMissedHeartbeatCnt, info.missedHeartbeatCount),
        CIRRO_FIELD(number, DeviceAtomicRefCnt, info.atomicRefCount),
        CIRRO_FIELD(number, DeviceLastAcknowledgedMsgId, info.lastAcknowledgedMsgId),
        CIRRO_FIELD(number, DeviceLastReceivedHeartbeatMsgId, info.lastReceivedHeartbeatMsgId),
        CIRRO_FIELD(number, DeviceLastReceivedMsgId, info.lastReceivedMsgId),
        CIRRO_FIELD(number, DeviceRefFlags, info.refFlags),
        CIRRO_FIELD(number, DeviceControlStatus, info.deviceControlStatus),
        CIRRO_FIELD(number, DeviceComportOffset, info.comPortOffset)};
    return fields;
}

const SupportFileField& ccgVersion()
{
    static const Field field = CIRRO_FIELD(version, CCGVersion, info.u.usb.ccgVersion);
    return field;
}

const SupportFileField& usbDriverVersion()
{
    static const Field field = CIRRO_FIELD(version, DriverUsbVer, info.driverVersion);
    return field;
}

const Fields& eth()
{
    static const Fields fields{
        CIRRO_FIELD(number, DeviceId, deviceId),
        CIRRO_FIELD(number, DeviceCameraId, cameraId),
        CIRRO_FIELD(textField, DeviceModel, model),
        CIRRO_FIELD(textField, DeviceSerNo, serialNumber),
        CIRRO_FIELD(number, DeviceStatus, status),
        CIRRO_FIELD(number, DeviceUsed, inUse),
        CIRRO_FIELD(version, DeviceFailsafeFirmwareVersion, info.failsafeFirmware),
        CIRRO_FIELD(version, DeviceRuntimeFirmwareVersion, info.runtimeFirmware),
        CIRRO_FIELD(version, DeviceStarterFirmwareVersion, info.starterFirmware),
        CIRRO_FIELD(textField, DeviceUserSpace, info.u.eth.userSpace),
        CIRRO_FIELD(number, DeviceComportOffset, info.comPortOffset),
        CIRRO_FIELD(number, DeviceTemperature, info.temperature),
        CIRRO_FIELD(number, DeviceLastReceivedMsgId, info.lastReceivedMsgId),
        CIRRO_FIELD(number, DeviceLastReceivedHeartbeatMsgId, info.lastReceivedHeartbeatMsgId),
        CIRRO_FIELD(number, DeviceLastAcknowledgedMsgId, info.lastAcknowledgedMsgId),
        CIRRO_FIELD(number, DeviceMissedHeartbeatCnt, info.missedHeartbeatCount),
        CIRRO_FIELD(number, DeviceWatchdogSkipCounter, info.u.eth.watchdogSkipCounter),
        CIRRO_FIELD(number, DeviceRefFlags, info.refFlags),
        CIRRO_FIELD(number, DeviceAtomicRefCnt, info.atomicRefCount),
        CIRRO_FIELD(number, DeviceInfoFlags, info.u.eth.infoFlags),
        CIRRO_FIELD(number, DeviceStatusFlags, info.deviceStatus),
        CIRRO_FIELD(number, DeviceControlStatus, info.deviceControlStatus),
        CIRRO_FIELD(number, DeviceSensorId, sensorId),
        CIRRO_FIELD(number, DeviceType, info.deviceType),
        CIRRO_FIELD(number, DeviceTypeFromCameraList, typeCode),
        CIRRO_FIELD(number, DeviceHousing, info.u.eth.housing),
        CIRRO_FIELD(number, DeviceHousingHeartbeat, info.u.eth.housingHeartbeat),
        CIRRO_FIELD(mac, DeviceTempSensorSerNo, info.u.eth.tempSensorSerial),
        CIRRO_FIELD(number, DeviceFPGAType, info.u.eth.fpgaType),
        CIRRO_FIELD(number, DevicePhyType, info.u.eth.phyType),
        CIRRO_FIELD(number, DeviceIoVersion, info.u.eth.ioVersion),
        CIRRO_FIELD(number, DeviceCPLDVersion, info.u.eth.cpldVersion),
        CIRRO_FIELD(number, DeviceGeneralBoardVersion, info.u.eth.generalBoardVersion),
        CIRRO_FIELD(number, DeviceSizeImgMem_MB, info.imageMemoryMB),
        CIRRO_FIELD(number, DeviceRevisionTimingBoard, info.u.eth.revisionTimingBoard),
        CIRRO_FIELD(mac, DeviceMacAddress, info.u.eth.macAddress),
        CIRRO_FIELD(ip, DeviceCurrentIpAddress, info.u.eth.currentIp),
        CIRRO_FIELD(ip, DeviceCurrentIpSubnetmask, info.u.eth.currentMask),
        CIRRO_FIELD(ip, DeviceCurrentIpGateway, info.u.eth.currentGateway),
        CIRRO_FIELD(ip, DevicePersistentIpAddress, info.u.eth.persistentIp),
        CIRRO_FIELD(ip, DevicePersistentIpSubnetmask, info.u.eth.persistentMask),
        CIRRO_FIELD(ip, DevicePersistentIpGateway, info.u.eth.persistentGateway),
        CIRRO_FIELD(number, DhcpStatus, info.u.eth.dhcpState),
        CIRRO_FIELD(number, DhcpFsmState, info.u.eth.dhcpFsmState),
        CIRRO_FIELD(ip, DhcpServerIp, info.u.eth.dhcpServerIp),
        CIRRO_FIELD(number, DhcpLeaseTime, info.u.eth.dhcpLeaseTime),
        CIRRO_FIELD(number, DhcpT1, info.u.eth.dhcpT1),
        CIRRO_FIELD(number, DhcpT2, info.u.eth.dhcpT2),
        CIRRO_FIELD(ip, DeviceIpRangeBegin, info.u.eth.ipRangeBegin),
        CIRRO_FIELD(ip, DeviceIpRangeEnd, info.u.eth.ipRangeEnd),
        CIRRO_FIELD(mac, DevicePairedMacAddress, info.u.eth.pairedHostMac),
        CIRRO_FIELD(ip, DeviceIpPairedHost, info.u.eth.pairedHostIp),
        CIRRO_FIELD(number, DeviceLinkInfo, info.linkSpeed),
        CIRRO_FIELD(number, DeviceHeartbeatPeriod_ms, info.u.eth.heartbeatPeriodMs),
        CIRRO_FIELD(number, DeviceHeartbeatWatchdogLevel, info.u.eth.heartbeatWatchdogLevel),
        CIRRO_FIELD(number, DeviceWatchdogSkip, info.u.eth.watchdogSkip),
        CIRRO_FIELD(number, AdapterId, info.u.eth.adapterId),
        CIRRO_FIELD(textField, AdapterName, info.u.eth.adapterName),
        CIRRO_FIELD(textField, AdapterDriverVersion, adapterDriverVersion),
        CIRRO_FIELD(textField, AdapterDriverDate, adapterDriverDate),
        CIRRO_FIELD(number, AdapterDHCPEnabled, info.u.eth.adapterDhcpEnabled),
        CIRRO_FIELD(number, AdapterDevicesKnown, info.u.eth.adapterDevicesKnown),
        CIRRO_FIELD(number, AdapterDevicesPaired, info.u.eth.adapterDevicesPaired),
        CIRRO_FIELD(mac, AdapterMacAddress, info.u.eth.adapterMac),
        CIRRO_FIELD(ip, AdapterIpAddress, info.u.eth.adapterIp),
        CIRRO_FIELD(ip, AdapterIpGateway, info.u.eth.adapterGateway),
        CIRRO_FIELD(ip, AdapterIpSubnetmask, info.u.eth.adapterMask),
        CIRRO_FIELD(ip, AdapterAutoCfgRangeBegin, info.u.eth.adapterRangeBegin),
        CIRRO_FIELD(ip, AdapterAutoCfgRangeEnd, info.u.eth.adapterRangeEnd),
        CIRRO_FIELD(number, AdapterAutoCfgRangeValid, info.u.eth.adapterRangeValid),
        CIRRO_FIELD(number, AdapterProbeTimeout, info.u.eth.adapterProbeTimeout),
        CIRRO_FIELD(number, AdapterMaxPcktSizeDown, info.u.eth.adapterMaxPacketSizeDown),
        CIRRO_FIELD(number, AdapterMaxPcktSizeUp, info.u.eth.adapterMaxPacketSizeUp),
        CIRRO_FIELD(number, AdapterMaxFrameSize, info.u.eth.adapterMaxFrameSize),
        CIRRO_FIELD(number, AdapterWatchdogLevel, info.u.eth.adapterWatchdogLevel),
        CIRRO_FIELD(number, AdapterWatchdogLevelPipFactor, info.u.eth.adapterWatchdogPipFactor),
        CIRRO_FIELD(number, AdapterWatchdogLevelFupFactor, info.u.eth.adapterWatchdogFupFactor),
        CIRRO_FIELD(number, AdapterWatchdogLevelDevice, info.u.eth.adapterWatchdogLevelDevice),
        CIRRO_FIELD(number, AdapterPairingRefreshPeriod, info.u.eth.adapterPairingRefreshPeriod),
        CIRRO_FIELD(number, AdapterIncomingPacketFilter, info.u.eth.adapterPacketFilter),
        CIRRO_FIELD(number, AdapterPortBase, info.u.eth.adapterPortBase),
        CIRRO_FIELD(number, AdapterPortCommand, info.u.eth.adapterPortCommand),
        CIRRO_FIELD(number, AdapterPortUpload, info.u.eth.adapterPortUpload),
        CIRRO_FIELD(number, AdapterPortMessage, info.u.eth.adapterPortMessage),
        CIRRO_FIELD(number, AdapterPortStream, info.u.eth.adapterPortStream),
        CIRRO_FIELD(number, AdapterPassiveMulticastEnabled, info.u.eth.adapterPassiveMulticastEnabled),
        CIRRO_FIELD(version, DriverEthVer, info.driverVersion),
        CIRRO_FIELD(number, DriverHeartbeatPeriod_ms, info.driverHeartbeatPeriodMs),
        CIRRO_FIELD(version, DriverIncludedStarterFirmware, info.driverFirmwareImage),
        CIRRO_FIELD(version, DriverIncludedRuntimeFirmware, info.driverRuntimeImage),
        CIRRO_FIELD(version, DriverMinStarterFirmwareVersion, info.minStarterFirmware),
        CIRRO_FIELD(version, DriverMaxStarterFirmwareVersion, info.maxStarterFirmware)};
    return fields;
}

const std::vector<SupportFileCounterArray>& ethCounters()
{
    static const std::vector<SupportFileCounterArray> arrays{
        {Name::DebugDeviceStatistics, offsetof(pv_DeviceInformation, debugDeviceStatistics), 24},
        {Name::DebugReservedHeartbeat, offsetof(pv_DeviceInformation, debugReservedHeartbeat), 12},
        {Name::DebugReservedDevice, offsetof(pv_DeviceInformation, debugReservedDevice), 14},
        {Name::DebugReservedAdapter, offsetof(pv_DeviceInformation, debugReservedAdapter), 14},
        {Name::DebugReservedDriver, offsetof(pv_DeviceInformation, debugReservedDriver), 14}};
    return arrays;
}

const Fields& vpe()
{
    static const Fields fields{CIRRO_FIELD(number, DeviceId, deviceId), CIRRO_FIELD(number, DeviceCameraId, cameraId),
                               CIRRO_FIELD(textField, DeviceModel, model),
                               CIRRO_FIELD(textField, DeviceSerNo, serialNumber),
                               CIRRO_FIELD(number, DeviceUsed, inUse)};
    return fields;
}

const SupportFileField* find(Name name)
{
    for (const Fields* fields : {&usbIdentity(), &usbInformation(), &eth()}) {
        for (const Field& field : *fields) {
            if (field.name == name)
                return &field;
        }
    }
    for (const Field* field : {&ccgVersion(), &usbDriverVersion()}) {
        if (field->name == name)
            return field;
    }
    return nullptr;
}

pv_ExtendedDeviceInformation record(const Camera& camera)
{
    Record r{};
    r.cameraId = camera.cameraId();
    r.deviceId = camera.deviceId();
    r.sensorId = camera.sensorId();
    r.inUse = camera.inUse();
    r.status = camera.status();
    r.typeCode = camera.typeCode();
    r.typeFlag = camera.typeFlag();
    r.interfaceWord = camera.interfaceWord();
    r.linkByte = camera.linkByte();
    r.infoSource = camera.infoSource();
    r.devInfoResult = camera.devInfoResult();
    r.info = camera.deviceInformation();
    setText(r.serialNumber, camera.serialNumber());
    setText(r.model, camera.model());
    setText(r.fullModelName, camera.fullModelName());
    setText(r.adapterDescription, camera.adapterDescription());
    setText(r.adapterDriverVersion, camera.adapterDriverVersion());
    setText(r.adapterDriverDate, camera.adapterDriverDate());
    setText(r.usbLocation, camera.usbLocation());
    return r;
}

} // namespace SupportFileFields
