#pragma once

#include <string>

// The one table of section and key names that writer and reader share. The
// order is part of the format: a camera count's section is found by the
// camera kind's offset from "USB" (0 USB, 1 ETH, 5 the VPE count, which so
// lands in "DeviceCameraId").
#define CIRRO_SUPPORT_FILE_NAMES(X)                                                                          \
    X(CameraManager, L"Camera Manager")                                                                      \
    X(Version, L"Version")                                                                                   \
    X(NumberOfCameras, L"Number of cameras")                                                                 \
    X(Usb, L"USB")                                                                                           \
    X(Eth, L"ETH")                                                                                           \
    X(Vpe, L"VPE")                                                                                           \
    X(UsbSection, L"USB - %d")                                                                               \
    X(DeviceId, L"DeviceId")                                                                                 \
    X(DeviceCameraId, L"DeviceCameraId")                                                                     \
    X(DeviceModel, L"DeviceModel")                                                                           \
    X(DeviceSerNo, L"DeviceSerNo")                                                                           \
    X(DeviceSensorId, L"DeviceSensorId")                                                                     \
    X(DeviceUsed, L"DeviceUsed")                                                                             \
    X(DeviceTemperature, L"DeviceTemperature")                                                               \
    X(DeviceStarterFirmwareVersion, L"DeviceStarterFirmwareVersion")                                         \
    X(DeviceRuntimeFirmwareVersion, L"DeviceRuntimeFirmwareVersion")                                         \
    X(DeviceStarterLibSharedVersion, L"DeviceStarterLibSharedVersion")                                       \
    X(DeviceRuntimeLibSharedVersion, L"DeviceRuntimeLibSharedVersion")                                       \
    X(DeviceMemContentListVersion, L"DeviceMemContentListVersion")                                           \
    X(DeviceCypressFx3SDKVersion, L"DeviceCypressFx3SDKVersion")                                             \
    X(DeviceCoreMinVersion, L"DeviceCoreMinVersion")                                                         \
    X(DeviceCoreMaxVersion, L"DeviceCoreMaxVersion")                                                         \
    X(DeviceConnectionType, L"DeviceConnectionType")                                                         \
    X(DeviceConnectionSpeed, L"DeviceConnectionSpeed")                                                       \
    X(DeviceLinkInfo, L"DeviceLinkInfo")                                                                     \
    X(DeviceMissedHeartbeatCnt, L"DeviceMissedHeartbeatCnt")                                                 \
    X(DeviceAtomicRefCnt, L"DeviceAtomicRefCnt")                                                             \
    X(DeviceLastAcknowledgedMsgId, L"DeviceLastAcknowledgedMsgId")                                           \
    X(DeviceLastReceivedHeartbeatMsgId, L"DeviceLastReceivedHeartbeatMsgId")                                 \
    X(DeviceLastReceivedMsgId, L"DeviceLastReceivedMsgId")                                                   \
    X(DeviceRefFlags, L"DeviceRefFlags")                                                                     \
    X(DeviceControlStatus, L"DeviceControlStatus")                                                           \
    X(DeviceComportOffset, L"DeviceComportOffset")                                                           \
    X(CCGVersion, L"CCGVersion")                                                                             \
    X(PathKey, L"%d. %s")                                                                                    \
    X(DriverUsbVer, L"DriverUsbVer")                                                                         \
    X(UsbHostControllers, L"USB hostcontrollers")                                                            \
    X(ControllerName, L"%d Name")                                                                            \
    X(ControllerDate, L"%d Date")                                                                            \
    X(ControllerVersion, L"%d Version")                                                                      \
    X(SummitCompatibilityMode, L"Summit compatibility mode")                                                 \
    X(Enabled, L"Enabled")                                                                                   \
    X(VpeSection, L"VPE - %d")                                                                               \
    X(EthSection, L"ETH - %d")                                                                               \
    X(DeviceStatus, L"DeviceStatus")                                                                         \
    X(DeviceFailsafeFirmwareVersion, L"DeviceFailsafeFirmwareVersion")                                       \
    X(DeviceUserSpace, L"DeviceUserSpace")                                                                   \
    X(DeviceWatchdogSkipCounter, L"DeviceWatchdogSkipCounter")                                               \
    X(DeviceInfoFlags, L"DeviceInfoFlags")                                                                   \
    X(DeviceStatusFlags, L"DeviceStatusFlags")                                                               \
    X(DeviceType, L"DeviceType")                                                                             \
    X(DeviceTypeFromCameraList, L"DeviceTypeFromCameraList")                                                 \
    X(DeviceHousing, L"DeviceHousing")                                                                       \
    X(DeviceHousingHeartbeat, L"DeviceHousingHeartbeat")                                                     \
    X(DeviceTempSensorSerNo, L"DeviceTempSensorSerNo")                                                       \
    X(DeviceFPGAType, L"DeviceFPGAType")                                                                     \
    X(DevicePhyType, L"DevicePhyType")                                                                       \
    X(DeviceIoVersion, L"DeviceIoVersion")                                                                   \
    X(DeviceCPLDVersion, L"DeviceCPLDVersion")                                                               \
    X(DeviceGeneralBoardVersion, L"DeviceGeneralBoardVersion")                                               \
    X(DeviceSizeImgMem_MB, L"DeviceSizeImgMem_MB")                                                           \
    X(DeviceRevisionTimingBoard, L"DeviceRevisionTimingBoard")                                               \
    X(DeviceMacAddress, L"DeviceMacAddress")                                                                 \
    X(DeviceCurrentIpAddress, L"DeviceCurrentIpAddress")                                                     \
    X(DeviceCurrentIpSubnetmask, L"DeviceCurrentIpSubnetmask")                                               \
    X(DeviceCurrentIpGateway, L"DeviceCurrentIpGateway")                                                     \
    X(DevicePersistentIpAddress, L"DevicePersistentIpAddress")                                               \
    X(DevicePersistentIpSubnetmask, L"DevicePersistentIpSubnetmask")                                         \
    X(DevicePersistentIpGateway, L"DevicePersistentIpGateway")                                               \
    X(DhcpStatus, L"DHCP_Status")                                                                            \
    X(DhcpFsmState, L"DHCP_FSM_State")                                                                       \
    X(DhcpServerIp, L"DHCP_Server_IP")                                                                       \
    X(DhcpLeaseTime, L"DHCP_Lease_Time")                                                                     \
    X(DhcpT1, L"DHCP_T1_TimeToExpiration")                                                                   \
    X(DhcpT2, L"DHCP_T2_TimeToExpiration")                                                                   \
    X(DeviceIpRangeBegin, L"DeviceIpRangeBegin")                                                             \
    X(DeviceIpRangeEnd, L"DeviceIpRangeEnd")                                                                 \
    X(DevicePairedMacAddress, L"DevicePairedMacAddress")                                                     \
    X(DeviceIpPairedHost, L"DeviceIpPairedHost")                                                             \
    X(DeviceHeartbeatPeriod_ms, L"DeviceHeartbeatPeriod_ms")                                                 \
    X(DeviceHeartbeatWatchdogLevel, L"DeviceHeartbeatWatchdogLevel")                                         \
    X(DeviceWatchdogSkip, L"DeviceWatchdogSkip")                                                             \
    X(AdapterId, L"AdapterId")                                                                               \
    X(AdapterName, L"AdapterName")                                                                           \
    X(AdapterDriverVersion, L"AdapterDriverVersion")                                                         \
    X(AdapterDriverDate, L"AdapterDriverDate")                                                               \
    X(AdapterDHCPEnabled, L"AdapterDHCPEnabled")                                                             \
    X(AdapterDevicesKnown, L"AdapterDevicesKnown")                                                           \
    X(AdapterDevicesPaired, L"AdapterDevicesPaired")                                                         \
    X(AdapterMacAddress, L"AdapterMacAddress")                                                               \
    X(AdapterIpAddress, L"AdapterIpAddress")                                                                 \
    X(AdapterIpGateway, L"AdapterIpGateway")                                                                 \
    X(AdapterIpSubnetmask, L"AdapterIpSubnetmask")                                                           \
    X(AdapterAutoCfgRangeBegin, L"AdapterAutoCfgRangeBegin")                                                 \
    X(AdapterAutoCfgRangeEnd, L"AdapterAutoCfgRangeEnd")                                                     \
    X(AdapterAutoCfgRangeValid, L"AdapterAutoCfgRangeValid")                                                 \
    X(AdapterProbeTimeout, L"AdapterProbeTimeout")                                                           \
    X(AdapterMaxPcktSizeDown, L"AdapterMaxPcktSizeDown")                                                     \
    X(AdapterMaxPcktSizeUp, L"AdapterMaxPcktSizeUp")                                                         \
    X(AdapterMaxFrameSize, L"AdapterMaxFrameSize")                                                           \
    X(AdapterWatchdogLevel, L"AdapterWatchdogLevel")                                                         \
    X(AdapterWatchdogLevelPipFactor, L"AdapterWatchdogLevelPipFactor")                                       \
    X(AdapterWatchdogLevelFupFactor, L"AdapterWatchdogLevelFupFactor")                                       \
    X(AdapterWatchdogLevelDevice, L"AdapterWatchdogLevelDevice")                                             \
    X(AdapterPairingRefreshPeriod, L"AdapterPairingRefreshPeriod")                                           \
    X(AdapterIncomingPacketFilter, L"AdapterIncomingPacketFilter")                                           \
    X(AdapterPortBase, L"AdapterPortBase")                                                                   \
    X(AdapterPortCommand, L"AdapterPortCommand")                                                             \
    X(AdapterPortUpload, L"AdapterPortUpload")                                                               \
    X(AdapterPortMessage, L"AdapterPortMessage")                                                             \
    X(AdapterPortStream, L"AdapterPortStream")                                                               \
    X(AdapterPassiveMulticastEnabled, L"AdapterPassiveMulticastEnabled")                                     \
    X(DriverEthVer, L"DriverEthVer")                                                                         \
    X(DriverHeartbeatPeriod_ms, L"DriverHeartbeatPeriod_ms")                                                 \
    X(DriverIncludedStarterFirmware, L"DriverIncludedStarterFirmware")                                       \
    X(DriverIncludedRuntimeFirmware, L"DriverIncludedRuntimeFirmware")                                       \
    X(DriverMinStarterFirmwareVersion, L"DriverMinStarterFirmwareVersion")                                   \
    X(DriverMaxStarterFirmwareVersion, L"DriverMaxStarterFirmwareVersion")                                   \
    X(DebugDeviceStatistics, L"DebugDeviceStatistics_%d")                                                    \
    X(DebugReservedHeartbeat, L"DebugReservedHeartbeat_%d")                                                  \
    X(DebugReservedDevice, L"DebugReservedDevice_%d")                                                        \
    X(DebugReservedAdapter, L"DebugReservedAdapter_%d")                                                      \
    X(DebugReservedDriver, L"DebugReservedDriver_%d")                                                        \
    X(TransferImgDelay, L"Transfer_ImgDelay")                                                                \
    X(TransferImgTime, L"Transfer_ImgTime")                                                                  \
    X(TransferSendWindowSize, L"Transfer_SendWindowSize")                                                    \
    X(TransferBurstSize, L"Transfer_BurstSize")                                                              \
    X(TransferPacketClock, L"Transfer_PacketClock_us")                                                       \
    X(TransferSendWindowDelay, L"Transfer_SendWindowDelay")                                                  \
    X(CamInfoType, L"CamInfo_Type")                                                                          \
    X(CamInfoVersion, L"CamInfo_Version")                                                                    \
    X(CamInfoDateOfQC, L"CamInfo_DateOfQC")                                                                  \
    X(CamInfoManufacturer, L"CamInfo_Manufacturer")                                                          \
    X(CamInfoSensorHardwareRevision, L"CamInfo_SensorHardwareRevision")                                      \
    X(CamInfoCypress, L"CamInfo_Cypress")                                                                    \
    X(CamInfoBlackfin, L"CamInfo_Blackfin")                                                                  \
    X(CamInfoDspFirmware, L"CamInfo_DspFirmware")                                                            \
    X(CamInfoUSBBoard, L"CamInfo_USBBoard")                                                                  \
    X(CamInfoSensorBoard, L"CamInfo_SensorBoard")                                                            \
    X(CamInfoProcessingBoard, L"CamInfo_ProcessingBoard")                                                    \
    X(CamInfoMemoryBoard, L"CamInfo_MemoryBoard")                                                            \
    X(CamInfoHousing, L"CamInfo_Housing")                                                                    \
    X(CamInfoFilter, L"CamInfo_Filter")                                                                      \
    X(CamInfoTimingBoard, L"CamInfo_TimingBoard")                                                            \
    X(CamInfoProductRevision, L"CamInfo_ProductRevision")                                                    \
    X(CamInfoLogicBoard, L"CamInfo_LogicBoard")                                                              \
    X(CamInfoPowerBoard, L"CamInfo_PowerBoard")                                                              \
    X(SystemInformation, L"System information")                                                              \
    X(BuildNumber, L"dwBuildNumber")                                                                         \
    X(MajorVersion, L"dwMajorVersion")                                                                       \
    X(MinorVersion, L"dwMinorVersion")                                                                       \
    X(PlatformId, L"dwPlatformId")                                                                           \
    X(ActiveProcessorMask, L"ActiveProcessorMask")                                                           \
    X(NumberOfProcessors, L"NumberOfProcessors")                                                             \
    X(ProcessorArchitecture, L"ProcessorArchitecture")                                                       \
    X(CSDVersion, L"CSDVersion")                                                                             \
    X(HostName, L"Hostname")                                                                                 \
    X(BuildArchitecture, L"BuildArchitecture")                                                               \
    X(InstalledDrivers, L"Installed drivers")                                                                \
    X(DriverValue, L"Fileversion: %s    Productversion: %s")                                                 \
    X(NetworkAdapters, L"Network adapters")                                                                  \
    X(Number, L"Number")                                                                                     \
    X(AdapterSection, L"Adapter - %d")                                                                       \
    X(Name, L"Name")                                                                                         \
    X(MacAddress, L"MacAddress")                                                                             \
    X(IpAddress, L"IpAddress")                                                                               \
    X(IpSubnetmask, L"IpSubnetmask")                                                                         \
    X(Dhcp, L"DHCP")                                                                                         \
    X(DriverVersion, L"DriverVersion")                                                                       \
    X(DriverDate, L"DriverDate")                                                                             \
    X(Redacted, L"Redacted")                                                                                 \
    X(DefaultNumber, L"-1")                                                                                  \
    X(DefaultText, L"-")

namespace SupportFileNames {

enum class Name : int {
#define CIRRO_SUPPORT_FILE_NAME_ENUM(identifier, text) identifier,
    CIRRO_SUPPORT_FILE_NAMES(CIRRO_SUPPORT_FILE_NAME_ENUM)
#undef CIRRO_SUPPORT_FILE_NAME_ENUM
};

// The camera kinds' offsets from "USB" in the table.
enum CountKind : int { UsbCount = 0, EthCount = 1, VpeCount = 5 };

const wchar_t* text(Name name);
// A numbered name: "USB - %d" with 2 gives "USB - 2".
std::wstring numbered(Name format, int number);
// Where a kind's "Number of cameras" lies.
std::wstring countSection(CountKind kind);

} // namespace SupportFileNames
