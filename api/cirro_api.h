/*
 * Cirro camera API: the operations of the camera library and the binary
 * layouts of the blocks they exchange.
 *
 * Every operation returns a signed 32-bit code, 0 on success. All blocks are
 * little-endian and laid out explicitly; the static assertions at the end of
 * this header pin their sizes and offsets, so a compiler or platform that
 * would lay them out differently fails to build instead of corrupting data.
 *
 * Handles: an opened camera has the handle that pv_OpenCamera wrote into its
 * handle word. Operations that work without opening take
 * (deviceId | PV_DEVICE_ID_FLAG) instead. Handle 0 addresses the driver.
 */
#ifndef CIRRO_API_H
#define CIRRO_API_H

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

#if defined(_WIN32)
#  define PV_CALL __stdcall
#  ifdef CIRRO_API_BUILD
#    define PV_API __declspec(dllexport)
#  else
#    define PV_API __declspec(dllimport)
#  endif
#else
#  define PV_CALL
#  define PV_API __attribute__((visibility("default")))
#endif

/* ---------------------------------------------------------------- codes -- */

enum pv_ReturnCode {
    PV_OK = 0,
    PV_ERR_GENERAL = -1,
    PV_ERR_NULL_POINTER = 101,
    PV_ERR_BUFFER_TOO_SMALL = 102,
    PV_ERR_UNKNOWN_HANDLE = 103,
    PV_ERR_UNKNOWN_DEVICE = 104,
    PV_ERR_UNKNOWN_COMMAND = 105,
    PV_ERR_TIMEOUT = 106,
    PV_ERR_DEVICE_IN_USE = 107,
    PV_ERR_EVENT_NOT_INITIALIZED = 108,
    PV_ERR_EVENT_EXISTS = 109,
    PV_ERR_DEVICE_UNREACHABLE = 110,
    PV_ERR_SERVICE_STOPPED = 112,
    PV_ERR_UNKNOWN_ADAPTER = 113,
    PV_ERR_BUSY = 114,
    PV_ERR_INVALID_PARAMETER = 125,
    PV_ERR_NO_MEMORY = 127,
    PV_ERR_BOOT_BOOST_ACTIVE = 129,
    PV_ERR_NOT_SUPPORTED = 155,
    PV_ERR_FIRMWARE_UNAVAILABLE = 156,
    PV_ERR_CANCELLED = 157,
    PV_ERR_PORT_TAKEN = 158
};

/* -------------------------------------------------- handles and device IDs */

#define PV_DRIVER_HANDLE 0u
#define PV_DEVICE_ID_FLAG 0x8000u
/* pv_OpenCamera: upload the starter firmware while opening. */
#define PV_OPEN_UPLOAD_STARTER_FIRMWARE 0x10000u
/* pv_IpConfig: address the camera or adapter by MAC instead of device ID. */
#define PV_ADDRESS_BY_MAC (-1)

#define PV_USB_DEVICE_FIRST 0u
#define PV_ETH_DEVICE_FIRST 1000u
#define PV_READONLY_DEVICE_FIRST 1500u
#define PV_SDK_DEVICE_FIRST 2000u
#define PV_UNKNOWN_DEVICE_FIRST 2500u

/* ------------------------------------------------------------ camera list */

/* One entry of the list written by pv_GetCameraList. The list buffer is a
 * 32-bit count (capacity on entry, entries written on return) followed by
 * that many entries. */
typedef struct pv_CameraListEntry {
    uint32_t cameraId;
    uint32_t deviceId;
    uint32_t sensorId;
    uint32_t inUse;
    char serialNumber[16];
    char model[16];
    uint32_t status;
    uint8_t typeCode;
    uint8_t typeFlag;
    uint8_t interfaceByte;
    uint8_t reserved55;
    uint8_t linkByte;
    uint8_t infoSource;
    uint8_t reserved58[2];
    char fullModelName[32];
    uint8_t reserved92[20];
} pv_CameraListEntry;

#define PV_INFO_SOURCE_GENERIC 2u
#define PV_CAMERA_LIST_HEADER_SIZE 4u

/* ------------------------------------------------- device information ---- */

#define PV_DEVINFO_READ 0x2010001u
#define PV_DEVINFO_READ_EXTENDED 0x2010002u
/* How far a starter firmware upload into the device has come, addressed by
 * device ID while another caller's open performs the upload
 * (pv_UploadProgress). Drivers that don't report it answer
 * PV_ERR_UNKNOWN_COMMAND. */
#define PV_DEVINFO_UPLOAD_PROGRESS 0x2010010u

typedef struct pv_UploadProgress {
    uint32_t uploading; /* 1 while an upload into the device runs */
    uint32_t permille;  /* 0-1000 of the upload done; 0 when none runs */
} pv_UploadProgress;

/* Version words: major in the top byte, minor in the next, build in the low
 * 16 bits. */
#define PV_VERSION(major, minor, build) \
    ((uint32_t)(((uint32_t)(major) << 24) | ((uint32_t)(minor) << 16) | ((uint32_t)(build) & 0xFFFFu)))
#define PV_VERSION_MAJOR(word) ((uint32_t)(word) >> 24)
#define PV_VERSION_MINOR(word) (((uint32_t)(word) >> 16) & 0xFFu)
#define PV_VERSION_BUILD(word) ((uint32_t)(word) & 0xFFFFu)

/* Bits of pv_DeviceInformation.deviceStatus (the camera's own state). */
#define PV_STATUS_READY 0x00000001u
#define PV_STATUS_TESTING_CURRENT_IP 0x00000002u
#define PV_STATUS_TESTING_PERSISTENT_IP 0x00000004u
#define PV_STATUS_TESTING_IP_RANGE 0x00000008u
#define PV_STATUS_CURRENT_IP_NOT_APPLICABLE 0x00000010u
#define PV_STATUS_PERSISTENT_IP_NOT_APPLICABLE 0x00000020u
#define PV_STATUS_IP_RANGE_NOT_APPLICABLE 0x00000040u
#define PV_STATUS_MULTICAST_ENABLED 0x00000080u
#define PV_STATUS_UNPAIRED 0x00000100u
#define PV_STATUS_PAIRING 0x00000200u
#define PV_STATUS_PAIRED 0x00000400u
#define PV_STATUS_RECEIVING_STARTER_FW 0x00010000u
#define PV_STATUS_RUNTIME_FW_ERROR 0x80000000u

/* Bits of pv_DeviceInformation.deviceControlStatus (the driver's view). */
#define PV_CONTROL_AVAILABLE 0x00000001u
#define PV_CONTROL_ACCESSIBLE_1 0x00000002u
#define PV_CONTROL_ACCESSIBLE_2 0x00000004u
#define PV_CONTROL_PERSISTENT_IP_USED 0x00000010u
#define PV_CONTROL_COMPATIBLE 0x00000020u
#define PV_CONTROL_ADAPTER_DHCP 0x00000040u
#define PV_CONTROL_ADAPTER_OK 0x00000080u
#define PV_CONTROL_PAIRING 0x00000200u
#define PV_CONTROL_PAIRED 0x00001000u
#define PV_CONTROL_OPENED 0x00004000u
#define PV_CONTROL_UPLOAD_STARTER_FW 0x00010000u
#define PV_CONTROL_REBOOTING 0x00100000u
#define PV_CONTROL_BOOT_BOOST_ENABLED 0x01000000u
#define PV_CONTROL_BOOT_BOOST_USED 0x02000000u
#define PV_CONTROL_INITIALIZED 0x08000000u
#define PV_CONTROL_TO_BE_REMOVED 0x80000000u

/* Bits of pv_DeviceInformation.deviceFlags. */
#define PV_DEVFLAG_INFO_VALID 0x04u
#define PV_DEVFLAG_UPLOAD_PENDING 0x80u

/* DHCP state word bits. */
#define PV_DHCP_SUPPORTED 0x0001u
#define PV_DHCP_ERROR 0x0002u
#define PV_DHCP_ENABLED 0x0004u
#define PV_DHCP_WAITING_FOR_OFFER 0x0010u

/* USB part of the device information (USB and sibling-SDK cameras). */
typedef struct pv_UsbDeviceInfo {
    uint32_t starterLibSharedVersion;
    uint32_t runtimeLibSharedVersion;
    uint32_t memContentListVersion;
    uint32_t fx3SdkVersion;
    uint32_t coreMinVersion;
    uint32_t coreMaxVersion;
    uint32_t ccgVersion;
    uint8_t connectionType; /* USB generation: 2 = USB 2, 3 = USB 3 */
    uint8_t connectionSpeed;
    uint8_t reserved30[2];
    /* Location of the camera in the host's USB tree: the port path as the
     * host names the device (such as "2-1.4"), NUL-terminated. */
    char portPath[32];
    uint8_t reserved64[152];
} pv_UsbDeviceInfo;

/* ETH part of the device information (GigE and read-only devices). IPv4
 * words carry the first octet in the lowest byte. */
typedef struct pv_EthDeviceInfo {
    uint8_t macAddress[6];
    uint8_t pairedHostMac[6];
    uint8_t tempSensorSerial[6];
    uint8_t housing;
    uint8_t housingHeartbeat;
    uint32_t currentIp;
    uint32_t currentMask;
    uint32_t currentGateway;
    uint32_t persistentIp;
    uint32_t persistentMask;
    uint32_t persistentGateway;
    uint32_t dhcpServerIp;
    uint32_t ipRangeBegin;
    uint32_t ipRangeEnd;
    uint32_t pairedHostIp;
    uint32_t multicastIp;
    uint32_t multicastCapability;
    uint16_t dhcpState;
    uint16_t dhcpFsmState;
    uint32_t dhcpLeaseTime;
    uint32_t dhcpT1;
    uint32_t dhcpT2;
    uint32_t linkState;
    uint32_t infoFlags;
    uint16_t heartbeatPeriodMs;
    uint16_t heartbeatWatchdogLevel;
    uint16_t watchdogSkip;
    uint16_t watchdogSkipCounter;
    uint8_t fpgaType;
    uint8_t phyType;
    uint16_t ioVersion;
    uint16_t cpldVersion;
    uint16_t generalBoardVersion;
    uint16_t revisionTimingBoard;
    uint16_t reserved102;
    char userSpace[8]; /* user EEPROM text, not necessarily terminated */

    /* The host adapter that serves the camera. */
    char adapterName[16];
    uint8_t adapterMac[6];
    uint8_t adapterDhcpEnabled;
    uint8_t adapterRangeValid;
    uint32_t adapterId;
    uint32_t adapterIp;
    uint32_t adapterMask;
    uint32_t adapterGateway;
    uint32_t adapterRangeBegin;
    uint32_t adapterRangeEnd;
    uint32_t adapterPacketFilter;
    uint32_t adapterLinkSpeed; /* Mbit/s */
    uint16_t adapterDevicesKnown;
    uint16_t adapterDevicesPaired;
    uint16_t adapterProbeTimeout;
    uint16_t adapterMaxPacketSizeDown;
    uint16_t adapterMaxPacketSizeUp;
    uint16_t adapterMaxFrameSize;
    uint16_t adapterWatchdogLevel;
    uint8_t adapterWatchdogPipFactor;
    uint8_t adapterWatchdogFupFactor;
    uint16_t adapterWatchdogLevelDevice;
    uint16_t adapterPairingRefreshPeriod;
    uint16_t adapterPortBase;
    uint16_t adapterPortCommand;
    uint16_t adapterPortUpload;
    uint16_t adapterPortMessage;
    uint16_t adapterPortStream;
    uint8_t adapterMulticastEnabled;
    uint8_t adapterPassiveMulticastEnabled;
    uint16_t interfaceWord; /* the device variant word, whole */
    uint8_t reserved210[6];
} pv_EthDeviceInfo;

/* The 640-byte device-information block read with PV_DEVINFO_READ: a
 * control part (bytes 0-327) and a heartbeat part of debug counters. */
typedef struct pv_DeviceInformation {
    uint32_t deviceStatus;
    uint32_t deviceControlStatus;
    uint32_t deviceControlStatus2;
    uint32_t controlStatus;
    uint16_t temperature; /* 1/16 degree Celsius, signed; see PV_TEMPERATURE_* */
    uint16_t linkSpeed;   /* Mbit/s */
    uint32_t linkInfo;
    uint32_t starterFirmware;
    uint32_t runtimeFirmware;
    uint32_t failsafeFirmware;
    uint32_t driverFirmwareImage; /* starter firmware the driver carries, 0 = none */
    uint32_t driverRuntimeImage;
    uint32_t driverVersion;
    uint32_t minStarterFirmware;
    uint32_t maxStarterFirmware;
    uint16_t firmwareSelector; /* which firmware runs: starter or runtime */
    uint16_t firmwareVersionParts[5];
    uint32_t firmwareRevision;
    uint32_t usbVersionCode;
    uint8_t deviceFlags;
    uint8_t deviceType;
    int16_t comPortOffset;
    uint32_t imageMemoryMB;
    uint32_t driverHeartbeatPeriodMs;
    uint32_t lastReceivedMsgId;
    uint32_t lastReceivedHeartbeatMsgId;
    uint32_t lastAcknowledgedMsgId;
    uint32_t missedHeartbeatCount;
    uint32_t atomicRefCount;
    uint32_t refFlags;
    union {
        pv_UsbDeviceInfo usb;
        pv_EthDeviceInfo eth;
    } u;

    /* Heartbeat part: counters the driver keeps for diagnosis. */
    uint32_t debugDeviceStatistics[24];
    uint32_t debugReservedHeartbeat[12];
    uint32_t debugReservedDevice[14];
    uint32_t debugReservedAdapter[14];
    uint32_t debugReservedDriver[14];
} pv_DeviceInformation;

#define PV_TEMPERATURE_NO_SENSOR 0x0FF9u
#define PV_TEMPERATURE_INVALID 0x0FFFu

/* The extended record read with PV_DEVINFO_READ_EXTENDED: the list identity
 * as UTF-16 texts, the device information, and the host-side texts of the
 * camera's adapter and USB location. */
typedef uint16_t pv_char16;

typedef struct pv_ExtendedDeviceInformation {
    uint32_t cameraId;
    uint32_t deviceId;
    uint32_t sensorId;
    uint32_t inUse;
    uint32_t status;
    uint8_t typeCode;
    uint8_t typeFlag;
    uint16_t interfaceWord;
    uint8_t linkByte;
    uint8_t infoSource;
    uint16_t reserved26;
    int32_t devInfoResult;
    pv_char16 serialNumber[32];
    pv_char16 model[32];
    pv_char16 fullModelName[64];
    pv_DeviceInformation info;
    pv_char16 adapterDescription[128];
    pv_char16 adapterDriverVersion[32];
    pv_char16 adapterDriverDate[32];
    pv_char16 usbLocation[128];
    uint8_t reserved[224];
} pv_ExtendedDeviceInformation;

/* ------------------------------------------- feature, camera, sensor ----- */

#define PV_FEATURE_READ 1u
#define PV_FEATURE_DEVICE_CAPABILITIES 20u
#define PV_FEATURE_SPECIAL_TYPE 0x200u
#define PV_FEATURE_LEGACY 0x100u
#define PV_FEATURE_CAMERA_INFO 0x400u

typedef struct pv_FeatureBlock {
    uint32_t status;
    uint32_t featureId;
    uint32_t values[33];
} pv_FeatureBlock;

typedef struct pv_CameraInfo {
    char serialNumber[16];
    char cameraId[16];
    char firmwareVersion[32];
    char date[16];
    uint8_t reserved[48];
} pv_CameraInfo;

typedef struct pv_SensorInfo {
    uint32_t sensorType;
    uint32_t width;
    uint32_t height;
    uint32_t pixelPitchNm;
    char name[32];
    uint8_t reserved[16];
} pv_SensorInfo;

/* Camera-revision record of an open camera: one text per board. */
typedef struct pv_RevisionInfo {
    char type[16];
    char version[16];
    char dateOfQc[16];
    char manufacturer[16];
    char sensorHardwareRevision[16];
    char cypress[16];
    char blackfin[16];
    char dspFirmware[16];
    char usbBoard[16];
    char sensorBoard[16];
    char processingBoard[16];
    char memoryBoard[16];
    char housing[16];
    char filter[16];
    char timingBoard[16];
    char productRevision[16];
    char logicBoard[16];
    char powerBoard[16];
} pv_RevisionInfo;

#define PV_CAMCMD_IDENTIFY 9u
#define PV_IDENTIFY_BLINK 6u

/* ------------------------------------------------- camera maintenance --- */

/* pv_DeviceFeature writes a feature with PV_FEATURE_WRITE; the block has the
 * layout that PV_FEATURE_READ delivers. A library that does not know a
 * feature or command answers PV_ERR_UNKNOWN_COMMAND. */
#define PV_FEATURE_WRITE 2u

/* Which maintenance functions a camera offers: PV_FEATURE_READ into a
 * pv_FeatureBlock, by device ID or open handle. status holds PV_MAINT_* bits,
 * values[0] the size of the user EEPROM in bytes. */
#define PV_FEATURE_MAINTENANCE 30u
#define PV_MAINT_CAMERA_ID 0x01u
#define PV_MAINT_USER_EEPROM 0x02u
#define PV_MAINT_PARAMETER_SETS 0x04u
#define PV_MAINT_FPN_CALIBRATION 0x08u
#define PV_MAINT_LIQUID_LENS 0x10u

/* The features below need an open handle and take index 0 unless said. */

/* Camera ID, a uint32_t from PV_CAMERA_ID_MIN to PV_CAMERA_ID_MAX. Writing it
 * changes the camera list entry; the driver signals the change. */
#define PV_FEATURE_CAMERA_ID 31u
#define PV_CAMERA_ID_MIN 1u
#define PV_CAMERA_ID_MAX 254u

/* The user EEPROM, read and written whole (PV_USER_EEPROM_SIZE bytes). Its
 * first 8 bytes are the userSpace text of the device information. */
#define PV_FEATURE_USER_EEPROM 32u
#define PV_USER_EEPROM_SIZE 64u

/* A stored parameter set (pv_ParameterSet); the index names the set. The
 * factory set is read-only (PV_ERR_INVALID_PARAMETER); a written set must name
 * the camera's model and the parameters the camera has. */
#define PV_FEATURE_PARAMETER_SET 33u
#define PV_PARAMSET_FACTORY 0u
#define PV_PARAMSET_USER1 1u
#define PV_PARAMSET_USER2 2u
#define PV_PARAMSET_COUNT 3u
#define PV_PARAMSET_MAX_VALUES 16u
/* The set the camera loads when it starts, a uint32_t set index. */
#define PV_FEATURE_STARTUP_SET 34u

typedef struct pv_ParameterValue {
    char name[28]; /* NUL-terminated */
    int32_t value;
} pv_ParameterValue;

typedef struct pv_ParameterSet {
    char model[16]; /* the model the set belongs to, NUL-terminated */
    uint32_t count; /* values used, at most PV_PARAMSET_MAX_VALUES */
    uint32_t reserved;
    pv_ParameterValue values[PV_PARAMSET_MAX_VALUES];
} pv_ParameterSet;

/* The fixed-pattern-noise calibration (pv_FpnStatus), read only. */
#define PV_FEATURE_FPN_STATUS 35u
#define PV_FPN_IDLE 0u
#define PV_FPN_RUNNING 1u
#define PV_FPN_SOURCE_FACTORY 0u
#define PV_FPN_SOURCE_USER 1u

typedef struct pv_FpnStatus {
    uint32_t state;         /* PV_FPN_IDLE or PV_FPN_RUNNING */
    uint32_t progress;      /* percent of the running calibration */
    uint32_t source;        /* the calibration in use: factory or user */
    int32_t lastResult;     /* of the last run: 0, PV_ERR_CANCELLED or a failure */
    uint32_t residualNoise; /* of the calibration in use, in 1/1000 digital number */
    char date[20];          /* of the calibration in use, "YYYY-MM-DD hh:mm" */
} pv_FpnStatus;

/* The liquid lens (pv_LiquidLens); focal powers in 1/100 dioptre. A write
 * takes only `current`, which must lie within the lens's range. */
#define PV_FEATURE_LIQUID_LENS 36u

typedef struct pv_LiquidLens {
    int32_t current;
    int32_t minimum;
    int32_t maximum;
    int32_t startup; /* the power the lens takes when the camera starts */
} pv_LiquidLens;

/* pv_CameraCommand on an open handle; parameters as noted, else none (NULL, 0). */
#define PV_CAMCMD_PARAMSET_SAVE 0x20u          /* uint32_t user set: store the current settings in it */
#define PV_CAMCMD_PARAMSET_FACTORY_RESET 0x21u /* current settings and start-up set back to factory */
#define PV_CAMCMD_FPN_START 0x30u              /* starts a calibration; PV_ERR_BUSY while one runs */
#define PV_CAMCMD_FPN_CANCEL 0x31u             /* cancels it; the calibration in use stays */
#define PV_CAMCMD_FPN_FACTORY_RESET 0x32u      /* the factory calibration is used again */
#define PV_CAMCMD_LENS_STORE_STARTUP 0x40u     /* the current focal power becomes the start-up value */

/* ------------------------------------------------------ virtual COM ports */

/* The driver backs a virtual serial port for a camera with a serial interface
 * on request, and one broadcast port that addresses every camera. On Linux a
 * port is a character device (or, on the simulated driver, a link to a
 * pseudo-terminal) whose path the driver reports. A library without COM port
 * support answers PV_ERR_UNKNOWN_COMMAND to every code of this section. */

/* Port numbers a camera's port can have; the broadcast port has its own. */
#define PV_COMPORT_NUMBER_BASE 100u /* the number of a camera whose stored offset is 0 */
#define PV_COMPORT_NUMBER_MIN 100u
#define PV_COMPORT_NUMBER_MAX 254u
#define PV_COMPORT_BROADCAST_NUMBER 255u

/* pv_Configuration: a uint32_t, 1 when the driver's COM port support is
 * installed, else 0 (and the commands below fail with PV_ERR_NOT_SUPPORTED). */
#define PV_CONFIG_GET_COMPORT_SUPPORT 0x1100u
/* pv_Configuration: the broadcast port, switched with a uint32_t 1 (on) or
 * 0 (off), read as a pv_ComPortInfo. */
#define PV_CONFIG_SET_COMPORT_BROADCAST 0x1101u
#define PV_CONFIG_GET_COMPORT_BROADCAST 0x1102u

/* pv_CameraCommand by device ID or open handle. Install takes the uint32_t
 * port number and moves a port the camera has already; a number outside
 * PV_COMPORT_NUMBER_MIN to _MAX fails with PV_ERR_INVALID_PARAMETER, one that
 * another camera's port has with PV_ERR_PORT_TAKEN. Remove takes no
 * parameter; removing a port that is not installed succeeds. A camera
 * without serial interface answers PV_ERR_NOT_SUPPORTED. */
#define PV_CAMCMD_COMPORT_INSTALL 0x50u
#define PV_CAMCMD_COMPORT_REMOVE 0x51u

/* pv_DeviceInfo by device ID or open handle: the camera's port, a pv_ComPortInfo. */
#define PV_DEVINFO_COMPORT 0x2010020u

/* pv_DeviceFeature by device ID or open handle: the port number stored in
 * the camera, a uint32_t from PV_COMPORT_NUMBER_MIN to _MAX, so that the
 * camera gets the same port on every host. The device information's
 * comPortOffset is that number minus PV_COMPORT_NUMBER_BASE. */
#define PV_FEATURE_COMPORT_NUMBER 37u

typedef struct pv_ComPortInfo {
    uint32_t installed;   /* 1 while the port exists */
    uint32_t number;      /* 0 when not installed */
    char devicePath[120]; /* NUL-terminated; empty when not installed */
} pv_ComPortInfo;

/* ------------------------------------------------------------------ events */

#define PV_EVENT_INIT 1u
#define PV_EVENT_EXIT 2u
#define PV_EVENT_ENABLE 3u
#define PV_EVENT_DISABLE 4u
#define PV_EVENT_SET 5u
#define PV_EVENT_RESET 6u
#define PV_EVENT_WAIT 7u

/* Device-list events of the driver, on handle 0; a camera's own handle gets
 * PV_EVENT_DEVICE_CHANGED and PV_EVENT_DEVICE_REMOVED for that camera. */
#define PV_EVENT_DEVICE_ARRIVED 129u
#define PV_EVENT_DEVICE_REMOVED 130u
#define PV_EVENT_DEVICE_CHANGED 131u

typedef struct pv_EventInit {
    uint32_t eventNumber;
    uint32_t manualReset;
    uint32_t initialState;
} pv_EventInit;

typedef struct pv_EventWait {
    const uint32_t* events;
    uint32_t count;
    uint32_t waitForAll;
    uint32_t timeoutMs;
    uint32_t signalled;
    uint32_t reserved[2];
} pv_EventWait;

/* ------------------------------------------------------------ IP config -- */

#define PV_IPCFG_CAPABILITIES 0u
#define PV_IPCFG_SET_PERSISTENT 0x1010000u
#define PV_IPCFG_GET_PERSISTENT 0x2010000u
#define PV_IPCFG_SET_DHCP 0x1020000u
#define PV_IPCFG_GET_DHCP 0x2020000u
#define PV_IPCFG_SET_RANGE 0x1040000u
#define PV_IPCFG_GET_RANGE 0x2040000u

#define PV_IPCAP_PERSISTENT 0x1u
#define PV_IPCAP_DHCP 0x2u
#define PV_IPCAP_RANGE 0x4u

/* Persistent-IP and range blocks: addresses in network byte order. */
typedef struct pv_IpBlock {
    uint8_t first[4];
    uint8_t second[4];
    uint32_t extra; /* persistent: reserved 0; range: 100 when written */
} pv_IpBlock;

/* ---------------------------------------------------------- ETH config --- */

#define PV_ETHCFG_SET_MULTICAST_IP 0x1010u
#define PV_ETHCFG_SET_MULTICAST_ENABLE 0x1012u
#define PV_ETHSVC_CONNECT 0x2001u
#define PV_ETHSVC_RESCAN_ADAPTERS 0x2002u
#define PV_ETHSVC_ADD_READONLY 0x2003u
#define PV_ETHSVC_REMOVE_READONLY 0x2004u
#define PV_ETHSVC_APPLY 0x2005u
#define PV_ETHSVC_GET_DEVICE_COUNT 0x2006u
#define PV_ETHSVC_SET_READONLY_MULTICAST 0x2007u
#define PV_ETHSVC_GET_READONLY_MULTICAST 0x2008u

/* Request of PV_ETHSVC_ADD_READONLY / PV_ETHSVC_REMOVE_READONLY. A read-only
 * device receives the multicast group on the local adapter of that address;
 * the two name the camera that sends the stream. Removal finds the device by
 * its group and camera ID and does not use the adapter's address. */
typedef struct pv_ReadOnlyRequest {
    uint8_t multicastIp[4]; /* network byte order */
    uint8_t adapterIp[4];   /* network byte order */
    uint32_t cameraId;
    uint32_t mode;
} pv_ReadOnlyRequest;

/* -------------------------------------------------- ETH adapter config --- */

#define PV_ADAPTER_GET 0u
#define PV_ADAPTER_SET 1u
#define PV_ADAPTERCFG_BLOCK 0u
#define PV_ADAPTERCFG_PACKET_FILTER 3u
#define PV_ADAPTERCFG_PACKET_SIZE 5u
#define PV_ADAPTERCFG_JUMBO_2K 0x10002u

/* Names the adapter: by interface name, or by MAC when the name is empty. */
typedef struct pv_AdapterId {
    char interfaceName[16];
    uint8_t mac[6];
    uint8_t reserved[2];
} pv_AdapterId;

typedef struct pv_AdapterBlock {
    char interfaceName[16];
    uint8_t mac[6];
    uint8_t bound;
    uint8_t dhcpEnabled;
    uint32_t ip;   /* first octet in the lowest byte */
    uint32_t mask;
    int32_t packetFilter; /* negative: not available */
    uint32_t packetSize;  /* largest packet payload in bytes */
    uint32_t jumbo2k;
    uint32_t linkSpeed; /* Mbit/s */
    uint32_t devicesKnown;
    uint32_t devicesPaired;
    uint32_t rangeBegin;
    uint32_t rangeEnd;
    uint32_t rangeValid;
    uint8_t reserved[92];
} pv_AdapterBlock;

typedef struct pv_PacketSize {
    uint32_t current;
    uint32_t maximum;
} pv_PacketSize;

/* -------------------------------------------------------- driver-wide ---- */

#define PV_CONFIG_SET_IDLE_STATE 4u
#define PV_CONFIG_GET_IDLE_STATE 5u
#define PV_CONFIG_GET_IPO 13u
#define PV_CONFIG_SET_IPO 14u
#define PV_CONFIG_SET_TRUSTED_PAIRING 15u
#define PV_CONFIG_GET_TRUSTED_PAIRING 16u
#define PV_CONFIG_SET_MEMORY_COMPAT 19u
#define PV_CONFIG_GET_MEMORY_COMPAT 20u
#define PV_CONFIG_GET_SUMMIT_COMPAT 0x1000u

#define PV_BOOTBOOST_GET_ENABLED 0x20010021u
#define PV_BOOTBOOST_ENABLE 0x10001u
#define PV_BOOTBOOST_DISABLE 0x10011u
#define PV_BOOTBOOST_ADD_ID 0x10100001u
#define PV_BOOTBOOST_REMOVE_ID 0x10100011u
#define PV_BOOTBOOST_CLEAR_IDS 0x100015u
#define PV_BOOTBOOST_GET_ID_COUNT 0x20100022u
#define PV_BOOTBOOST_GET_IDS 0x30100021u

/* -------------------------------------------------------------- operations */

PV_API uint32_t PV_CALL pv_QueryApiVersion(void);
PV_API int32_t PV_CALL pv_GetNumberOfCameras(int32_t* count);
PV_API int32_t PV_CALL pv_GetCameraList(void* listBuffer);
PV_API int32_t PV_CALL pv_OpenCamera(uint32_t* handle, void* window);
PV_API int32_t PV_CALL pv_CloseCamera(uint32_t handle);
PV_API int32_t PV_CALL pv_GetCameraInfo(uint32_t handle, pv_CameraInfo* info);
PV_API int32_t PV_CALL pv_GetSensorInfo(uint32_t handle, pv_SensorInfo* info);
PV_API int32_t PV_CALL pv_GetRevisionInfo(uint32_t handle, pv_RevisionInfo* info);
PV_API int32_t PV_CALL pv_DeviceInfo(uint32_t handle, uint32_t command, void* block, uint32_t size);
PV_API int32_t PV_CALL pv_DeviceFeature(uint32_t handle, uint32_t command, uint32_t feature,
                                        uint32_t index, void* block, uint32_t size);
PV_API int32_t PV_CALL pv_Event(uint32_t handle, uint32_t command, void* block, uint32_t size);
PV_API int32_t PV_CALL pv_RebootDevice(uint32_t handle, uint32_t mode);
PV_API int32_t PV_CALL pv_CameraCommand(uint32_t handle, uint32_t command, void* parameter,
                                        uint32_t size);
PV_API int32_t PV_CALL pv_Configuration(uint32_t command, void* buffer, uint32_t size);
PV_API int32_t PV_CALL pv_IpConfig(int32_t deviceId, const uint8_t* mac, uint32_t command,
                                   void* block, uint32_t size);
PV_API int32_t PV_CALL pv_EthConfig(uint32_t handle, uint32_t command, void* buffer,
                                    uint32_t size);
PV_API int32_t PV_CALL pv_EthAdapterConfig(const pv_AdapterId* adapter, uint32_t set,
                                           uint32_t command, void* buffer, uint32_t size);
PV_API int32_t PV_CALL pv_BootBoost(uint32_t handle, uint32_t command, void* buffer,
                                    uint32_t size);
PV_API int32_t PV_CALL pv_FetchRegistryValues(void);
PV_API int32_t PV_CALL pv_FetchTcpIp(void);
/* The calling thread's last failure; *text stays valid until that thread's
 * next camera-API call and may be set to NULL. */
PV_API int32_t PV_CALL pv_GetError(uint32_t handle, int32_t* code, const char** text);

#ifdef __cplusplus
} /* extern "C" */

#  define PV_STATIC_ASSERT(cond, msg) static_assert(cond, msg)
#else
#  define PV_STATIC_ASSERT(cond, msg) _Static_assert(cond, msg)
#endif

PV_STATIC_ASSERT(sizeof(pv_CameraListEntry) == 112, "camera list entry");
PV_STATIC_ASSERT(offsetof(pv_CameraListEntry, cameraId) == 0, "cameraId");
PV_STATIC_ASSERT(offsetof(pv_CameraListEntry, deviceId) == 4, "deviceId");
PV_STATIC_ASSERT(offsetof(pv_CameraListEntry, sensorId) == 8, "sensorId");
PV_STATIC_ASSERT(offsetof(pv_CameraListEntry, inUse) == 12, "inUse");
PV_STATIC_ASSERT(offsetof(pv_CameraListEntry, serialNumber) == 16, "serialNumber");
PV_STATIC_ASSERT(offsetof(pv_CameraListEntry, model) == 32, "model");
PV_STATIC_ASSERT(offsetof(pv_CameraListEntry, status) == 48, "status");
PV_STATIC_ASSERT(offsetof(pv_CameraListEntry, typeCode) == 52, "typeCode");
PV_STATIC_ASSERT(offsetof(pv_CameraListEntry, typeFlag) == 53, "typeFlag");
PV_STATIC_ASSERT(offsetof(pv_CameraListEntry, interfaceByte) == 54, "interfaceByte");
PV_STATIC_ASSERT(offsetof(pv_CameraListEntry, linkByte) == 56, "linkByte");
PV_STATIC_ASSERT(offsetof(pv_CameraListEntry, infoSource) == 57, "infoSource");
PV_STATIC_ASSERT(offsetof(pv_CameraListEntry, fullModelName) == 60, "fullModelName");

PV_STATIC_ASSERT(sizeof(pv_UsbDeviceInfo) == 216, "USB part");
PV_STATIC_ASSERT(sizeof(pv_EthDeviceInfo) == 216, "ETH part");
PV_STATIC_ASSERT(offsetof(pv_DeviceInformation, u) == 112, "control part layout");
PV_STATIC_ASSERT(offsetof(pv_DeviceInformation, debugDeviceStatistics) == 328, "heartbeat part");
PV_STATIC_ASSERT(sizeof(pv_DeviceInformation) == 640, "device information block");
PV_STATIC_ASSERT(sizeof(pv_ExtendedDeviceInformation) == 1792, "extended device information");
PV_STATIC_ASSERT(offsetof(pv_ExtendedDeviceInformation, info) == 288, "extended record layout");
PV_STATIC_ASSERT(sizeof(pv_FeatureBlock) == 140, "feature block");
PV_STATIC_ASSERT(sizeof(pv_CameraInfo) == 128, "camera info block");
PV_STATIC_ASSERT(sizeof(pv_SensorInfo) == 64, "sensor block");
PV_STATIC_ASSERT(sizeof(pv_RevisionInfo) == 288, "revision block");
PV_STATIC_ASSERT(sizeof(pv_ParameterValue) == 32, "parameter value");
PV_STATIC_ASSERT(sizeof(pv_ParameterSet) == 536, "parameter set");
PV_STATIC_ASSERT(sizeof(pv_FpnStatus) == 40, "FPN status");
PV_STATIC_ASSERT(sizeof(pv_LiquidLens) == 16, "liquid lens block");
PV_STATIC_ASSERT(sizeof(pv_ComPortInfo) == 128, "COM port block");
PV_STATIC_ASSERT(sizeof(pv_EventInit) == 12, "event init block");
PV_STATIC_ASSERT(sizeof(pv_EventWait) == 32, "event wait block");
PV_STATIC_ASSERT(offsetof(pv_EventWait, count) == 8, "wait: count");
PV_STATIC_ASSERT(offsetof(pv_EventWait, waitForAll) == 12, "wait: wait for all");
PV_STATIC_ASSERT(offsetof(pv_EventWait, timeoutMs) == 16, "wait: time-out");
PV_STATIC_ASSERT(offsetof(pv_EventWait, signalled) == 20, "wait: signalled event is the sixth word");
PV_STATIC_ASSERT(sizeof(pv_IpBlock) == 12, "IP block");
PV_STATIC_ASSERT(sizeof(pv_ReadOnlyRequest) == 16, "read-only request");
PV_STATIC_ASSERT(sizeof(pv_AdapterId) == 24, "adapter ID block");
PV_STATIC_ASSERT(sizeof(pv_AdapterBlock) == 160, "adapter block");
PV_STATIC_ASSERT(sizeof(pv_PacketSize) == 8, "packet size block");

#endif /* CIRRO_API_H */
