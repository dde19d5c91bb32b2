#pragma once

#include <cirro_api.h>

#include <QMetaType>
#include <QString>

#include <array>
#include <optional>

// One camera as the driver reports it, in three layers: the identity from the
// camera list, the device information read by device ID without opening the
// camera, and the texts of the camera's own info block, read by opening it for
// a moment on request. A value type: dialogs get copies, which are snapshots.
class Camera
{
public:
    enum class Kind { Usb = 0, Eth = 1, ReadOnly = 4, Sdk = 5, Unknown = 6 };

    Camera();
    // Builds the identity from a list entry and reads the device information.
    Camera(const pv_CameraListEntry& entry, quint32 callerWord);
    // Takes everything from an extended device-information record; reads nothing.
    explicit Camera(const pv_ExtendedDeviceInformation& record);
    Camera(const Camera&) = default;
    Camera& operator=(const Camera&) = default;
    virtual ~Camera();

    static void registerMetaTypes();
    static Kind kindOf(quint32 deviceId);

    // Identity layer
    quint32 cameraId() const { return m_cameraId; }
    quint32 deviceId() const { return m_deviceId; }
    quint32 sensorId() const { return m_sensorId; }
    quint32 inUse() const { return m_inUse; }
    QString serialNumber() const { return m_serialNumber; }
    QString model() const { return m_model; }
    QString fullModelName() const { return m_fullModelName; }
    quint32 status() const { return m_status; }
    quint8 typeCode() const { return m_typeCode; }
    quint8 typeFlag() const { return m_typeFlag; }
    quint16 interfaceWord() const { return m_interfaceWord; }
    quint8 linkByte() const { return m_linkByte; }
    quint8 infoSource() const { return m_infoSource; }
    quint32 callerWord() const { return m_callerWord; }
    bool hasExtraFlag() const { return m_hasExtraFlag; }
    Kind kind() const { return kindOf(m_deviceId); }

    // Type predicates
    bool isComPortCapable() const;
    bool isUsb3Family() const { return (m_typeCode & 0xF0) == 0x60; }
    // Reads the camera's feature block for USB cameras.
    bool isSpecialType() const;
    // Reads the feature block: the camera keeps an information block of its own.
    bool hasCameraInfoFeature() const;

    // Device-information layer
    qint32 devInfoResult() const { return m_devInfoResult; }
    const pv_DeviceInformation& deviceInformation() const { return m_info; }
    const pv_EthDeviceInfo& eth() const { return m_info.u.eth; }
    const pv_UsbDeviceInfo& usb() const { return m_info.u.usb; }
    quint16 temperature() const { return m_info.temperature; }
    quint16 linkSpeed() const { return m_info.linkSpeed; }
    quint32 starterFirmware() const { return m_info.starterFirmware; }
    quint32 driverFirmwareImage() const { return m_info.driverFirmwareImage; }
    quint32 usbVersionCode() const { return m_info.usbVersionCode; }
    quint32 controlStatus() const { return m_info.controlStatus; }
    quint32 deviceStatus() const { return m_info.deviceStatus; }
    quint32 deviceControlStatus() const { return m_info.deviceControlStatus; }
    quint8 deviceFlags() const { return m_info.deviceFlags; }
    // No host holds the device (status word bit 8).
    bool isFree() const { return m_info.deviceStatus & PV_STATUS_UNPAIRED; }
    // The driver reaches the device (control word bit 0).
    bool isReachable() const { return m_info.deviceControlStatus & PV_CONTROL_AVAILABLE; }
    // The driver can write the device's address (control word bit 1 or 2).
    bool isAddressAccessible() const
    {
        return m_info.deviceControlStatus & (PV_CONTROL_ACCESSIBLE_1 | PV_CONTROL_ACCESSIBLE_2);
    }
    QString firmwareVersion() const;
    QString firmwareRevisionText() const;
    QString temperatureText() const;
    QString usbVersionText() const;
    QString usbLocation() const;

    // Network texts of a GigE camera and its host adapter
    QString macAddress(QChar separator = QLatin1Char('-')) const { return macText(eth().macAddress, separator); }
    QString currentIp() const { return ipText(eth().currentIp); }
    QString currentMask() const { return ipText(eth().currentMask); }
    QString persistentIp() const { return ipText(eth().persistentIp); }
    QString persistentMask() const { return ipText(eth().persistentMask); }
    QString multicastIp() const { return ipText(eth().multicastIp); }
    QString adapterIp() const { return ipText(eth().adapterIp); }
    QString adapterMask() const { return ipText(eth().adapterMask); }
    QString adapterMac(QChar separator = QLatin1Char('-')) const { return macText(eth().adapterMac, separator); }
    QString adapterName() const;
    QString adapterDescription() const { return m_adapterDescription; }
    QString adapterDriverVersion() const { return m_adapterDriverVersion; }
    QString adapterDriverDate() const { return m_adapterDriverDate; }
    // The host's current view of the camera's adapter.
    void setAdapterTexts(const QString& description, const QString& driverVersion, const QString& driverDate);

    // Opened-camera layer
    QString openedCameraId() const { return m_openedCameraId; }
    QString openedFirmwareVersion() const { return m_openedFirmwareVersion; }
    QString openedDate() const { return m_openedDate; }
    quint32 sensorValue() const { return m_sensorValue; }
    // Opens the camera by device ID, reads its info and sensor blocks, closes it.
    void fillInfoByOpening();

    // Reads the device-information layer again.
    void refreshDeviceInformation();

    static QString ipText(quint32 apiWord);
    static QString macText(const quint8* mac, QChar separator = QLatin1Char('-'));
    static QString serialIdentifierText(const quint8* identifier);
    static QString temperatureText(quint16 word);

private:
    // The capability word of the feature block, or nullopt when the read fails.
    std::optional<quint32> readFeatureStatus() const;
    void fillDeviceInformation();
    bool readDeviceInformation();
    void genericFill();
    void usbFill();
    void ethFill();

    quint32 m_cameraId = 0;
    quint32 m_deviceId = 0;
    quint32 m_sensorId = 0;
    quint32 m_inUse = 0;
    QString m_serialNumber;
    QString m_model;
    QString m_fullModelName;
    quint32 m_status = 0;
    quint8 m_typeCode = 0;
    quint8 m_typeFlag = 0;
    quint16 m_interfaceWord = 0;
    quint8 m_linkByte = 0;
    quint8 m_infoSource = 0;
    quint32 m_callerWord = 0;
    bool m_hasExtraFlag = false;

    qint32 m_devInfoResult = 0;
    pv_DeviceInformation m_info{};
    QString m_adapterDescription;
    QString m_adapterDriverVersion;
    QString m_adapterDriverDate;
    QString m_usbLocation;

    QString m_openedCameraId;
    QString m_openedFirmwareVersion;
    QString m_openedDate;
    quint32 m_sensorValue = 0;
};

namespace camera {
// An optional camera: empty while nothing is selected.
template <typename T>
using optional = std::optional<T>;
} // namespace camera

Q_DECLARE_METATYPE(Camera)
Q_DECLARE_METATYPE(const Camera*)
Q_DECLARE_METATYPE(camera::optional<Camera>)
