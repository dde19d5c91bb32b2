#include "camera/camera.h"

#include <QCoreApplication>
#include <QList>
#include <QStringList>

#include <cstring>

namespace {

constexpr quint8 typeWithExtraFlag = 0x40;
constexpr quint32 unsetDhcpWord = 65535;

// A NUL-terminated text of a fixed-size field; a full field has no terminator.
template <std::size_t N>
QString fieldText(const char (&field)[N])
{
    return QString::fromLatin1(field, int(strnlen(field, N)));
}

template <std::size_t N>
QString fieldText(const pv_char16 (&field)[N])
{
    int length = 0;
    while (length < int(N) && field[length] != 0)
        ++length;
    return QString::fromUtf16(reinterpret_cast<const char16_t*>(field), length);
}

QString unknownText()
{
    return QCoreApplication::translate("Camera", "unknown");
}

} // namespace

Camera::Camera() = default;

Camera::Camera(const pv_CameraListEntry& entry, quint32 callerWord)
    : m_cameraId(entry.cameraId)
    , m_deviceId(entry.deviceId)
    , m_sensorId(entry.sensorId)
    , m_inUse(entry.inUse)
    , m_serialNumber(fieldText(entry.serialNumber))
    , m_model(fieldText(entry.model))
    , m_fullModelName(fieldText(entry.fullModelName))
    , m_status(entry.status)
    , m_typeCode(entry.typeCode)
    , m_typeFlag(entry.typeFlag)
    , m_interfaceWord(entry.interfaceByte)
    , m_linkByte(entry.linkByte)
    , m_infoSource(entry.infoSource)
    , m_callerWord(callerWord)
{
    if (m_typeCode == typeWithExtraFlag)
        m_hasExtraFlag = m_typeFlag != 0;
    fillDeviceInformation();
}

Camera::Camera(const pv_ExtendedDeviceInformation& record)
    : m_cameraId(record.cameraId)
    , m_deviceId(record.deviceId)
    , m_sensorId(record.sensorId)
    , m_inUse(record.inUse)
    , m_serialNumber(fieldText(record.serialNumber))
    , m_model(fieldText(record.model))
    , m_fullModelName(fieldText(record.fullModelName))
    , m_status(record.status)
    , m_typeCode(record.typeCode)
    , m_typeFlag(record.typeFlag)
    , m_interfaceWord(record.interfaceWord)
    , m_linkByte(record.linkByte)
    , m_infoSource(record.infoSource)
    , m_hasExtraFlag(record.typeFlag != 0)
    , m_devInfoResult(record.devInfoResult)
    , m_info(record.info)
    , m_adapterDescription(fieldText(record.adapterDescription))
    , m_adapterDriverVersion(fieldText(record.adapterDriverVersion))
    , m_adapterDriverDate(fieldText(record.adapterDriverDate))
    , m_usbLocation(fieldText(record.usbLocation))
{
}

Camera::~Camera() = default;

void Camera::registerMetaTypes()
{
    qRegisterMetaType<Camera>("Camera");
    qRegisterMetaType<const Camera*>("const Camera*");
    qRegisterMetaType<camera::optional<Camera>>("camera::optional<Camera>");
    qRegisterMetaType<QList<Camera>>("QList<Camera>");
}

Camera::Kind Camera::kindOf(quint32 deviceId)
{
    if (deviceId < PV_ETH_DEVICE_FIRST)
        return Kind::Usb;
    if (deviceId < PV_READONLY_DEVICE_FIRST)
        return Kind::Eth;
    if (deviceId < PV_SDK_DEVICE_FIRST)
        return Kind::ReadOnly;
    if (deviceId < PV_UNKNOWN_DEVICE_FIRST)
        return Kind::Sdk;
    return Kind::Unknown;
}

bool Camera::isComPortCapable() const
{
    return m_typeCode == 0x62 || m_typeCode == 0x64 || m_typeCode == 0x65 || m_typeCode == 0x80;
}

bool Camera::isSpecialType() const
{
    if (m_deviceId >= PV_ETH_DEVICE_FIRST)
        return m_typeCode >= 138 && m_typeCode <= 140;
    const std::optional<quint32> status = readFeatureStatus();
    return status && (*status & PV_FEATURE_SPECIAL_TYPE) && !(*status & PV_FEATURE_LEGACY);
}

bool Camera::hasCameraInfoFeature() const
{
    const std::optional<quint32> status = readFeatureStatus();
    return status && (*status & PV_FEATURE_CAMERA_INFO);
}

std::optional<quint32> Camera::readFeatureStatus() const
{
    pv_FeatureBlock features{};
    if (pv_DeviceFeature(m_deviceId | PV_DEVICE_ID_FLAG, PV_FEATURE_READ, PV_FEATURE_DEVICE_CAPABILITIES, 0,
                         &features, sizeof features)
        != PV_OK)
        return std::nullopt;
    return features.status;
}

void Camera::fillDeviceInformation()
{
    if (m_infoSource == PV_INFO_SOURCE_GENERIC)
        genericFill();
    else if (m_deviceId < PV_ETH_DEVICE_FIRST)
        usbFill();
    else if (m_deviceId < PV_SDK_DEVICE_FIRST)
        ethFill();
    else if (m_deviceId < PV_UNKNOWN_DEVICE_FIRST)
        usbFill();
}

void Camera::refreshDeviceInformation()
{
    fillDeviceInformation();
}

bool Camera::readDeviceInformation()
{
    m_devInfoResult = pv_DeviceInfo(m_deviceId | PV_DEVICE_ID_FLAG, PV_DEVINFO_READ, &m_info, sizeof m_info);
    if (m_devInfoResult != PV_OK)
        m_info = pv_DeviceInformation{};
    return m_devInfoResult == PV_OK;
}

void Camera::genericFill()
{
    if (!readDeviceInformation())
        m_sensorValue = 0;
}

void Camera::usbFill()
{
    readDeviceInformation();
    m_usbLocation = fieldText(m_info.u.usb.portPath);
    m_hasExtraFlag = m_typeFlag != 0;
}

void Camera::ethFill()
{
    if (readDeviceInformation()) {
        m_interfaceWord = m_info.u.eth.interfaceWord;
    } else {
        m_info.u.eth.dhcpFsmState = unsetDhcpWord;
    }
}

QString Camera::firmwareVersion() const
{
    QStringList parts;
    for (quint16 part : m_info.firmwareVersionParts) {
        if (part == 0)
            break;
        parts << QString::number(part);
    }
    return QString::number(m_info.firmwareSelector) + QLatin1Char('-') + parts.join(QLatin1Char('.'));
}

QString Camera::firmwareRevisionText() const
{
    return QString::number(m_info.firmwareRevision, 16);
}

QString Camera::temperatureText() const
{
    return temperatureText(m_info.temperature);
}

QString Camera::temperatureText(quint16 word)
{
    if (word == 0x0FF9 || word == 0xFFF9)
        return QCoreApplication::translate("Camera", "no sensor");
    if (word == 0x0FFF || word == 0xFFFF)
        return QCoreApplication::translate("Camera", "invalid");
    const double celsius = qint16(word) * 0.0625;
    const QChar degree(0x00B0);
    return QStringLiteral("%1%2C (%3%4F)")
        .arg(celsius, 0, 'f', 1)
        .arg(degree)
        .arg(celsius * 9 / 5 + 32, 0, 'f', 1)
        .arg(degree);
}

QString Camera::usbVersionText() const
{
    static const char* const versions[] = {"USB 1.0", "USB 1.1", "USB 2.0", "USB 3.0", "USB 3.1"};
    return m_info.usbVersionCode < std::size(versions) ? QLatin1String(versions[m_info.usbVersionCode])
                                                        : QString();
}

QString Camera::usbLocation() const
{
    return m_usbLocation;
}

QString Camera::adapterName() const
{
    return fieldText(m_info.u.eth.adapterName);
}

void Camera::setAdapterTexts(const QString& description, const QString& driverVersion, const QString& driverDate)
{
    m_adapterDescription = description;
    m_adapterDriverVersion = driverVersion;
    m_adapterDriverDate = driverDate;
}

void Camera::fillInfoByOpening()
{
    m_openedCameraId = m_openedFirmwareVersion = m_openedDate = unknownText();
    quint32 handle = m_deviceId | PV_DEVICE_ID_FLAG;
    if (pv_OpenCamera(&handle, nullptr) != PV_OK) {
        m_sensorValue = 0;
        return;
    }
    pv_CameraInfo info{};
    if (pv_GetCameraInfo(handle, &info) == PV_OK) {
        m_openedCameraId = fieldText(info.cameraId);
        m_openedFirmwareVersion = fieldText(info.firmwareVersion);
        m_openedDate = fieldText(info.date);
        pv_SensorInfo sensor{};
        if (pv_GetSensorInfo(handle, &sensor) == PV_OK)
            m_sensorValue = sensor.sensorType;
    }
    pv_CloseCamera(handle);
}

QString Camera::ipText(quint32 apiWord)
{
    return QStringLiteral("%1.%2.%3.%4")
        .arg(apiWord & 0xFF)
        .arg((apiWord >> 8) & 0xFF)
        .arg((apiWord >> 16) & 0xFF)
        .arg(apiWord >> 24);
}

QString Camera::macText(const quint8* mac, QChar separator)
{
    QStringList bytes;
    for (int i = 0; i < 6; ++i)
        bytes << QStringLiteral("%1").arg(mac[i], 2, 16, QLatin1Char('0'));
    return bytes.join(separator);
}

QString Camera::serialIdentifierText(const quint8* identifier)
{
    QString text = QStringLiteral("0x");
    for (int i = 0; i < 6; ++i)
        text += QStringLiteral("%1").arg(identifier[i], 2, 16, QLatin1Char(' '));
    return text;
}
