#include "camera/cameracelltexts.h"

#include "camera/camera.h"
#include "camera/cameralistmodel.h"

#include <QCoreApplication>

namespace {

const QString modelPrefix = QStringLiteral("CR");
constexpr quint8 usb3VisionTypeCode = 225;
constexpr quint8 gigEVisionTypeCode = 226;

// The table's texts keep the translation context of the model that shows them.
QString yes()
{
    return QCoreApplication::translate("CameraListModel", "Yes");
}

QString no()
{
    return QCoreApplication::translate("CameraListModel", "No");
}

bool usesListStatus(const Camera& camera)
{
    const Camera::Kind kind = camera.kind();
    return kind == Camera::Kind::Usb || kind == Camera::Kind::Sdk;
}

// Held by a host, yet reachable: the driver keeps it for boot boost.
bool inBootBoost(const Camera& camera)
{
    return !usesListStatus(camera) && !camera.isFree() && camera.isReachable();
}

QString bootBoostExplained()
{
    return QCoreApplication::translate("CameraListModel", "Yes (BB): the driver keeps the camera in boot boost mode; it can be opened.");
}

// One line per kind, as the Type column shows it.
QString typeExplained(const QString& type)
{
    if (type == QLatin1String("USB"))
        return QCoreApplication::translate("CameraListModel", "USB: USB camera");
    if (type == QLatin1String("ETH"))
        return QCoreApplication::translate("CameraListModel", "ETH: GigE camera");
    if (type == QLatin1String("PMC"))
        return QCoreApplication::translate("CameraListModel", "PMC: read-only multicast device, a passive receiver of a GigE camera's stream");
    if (type == QLatin1String("U3V"))
        return QCoreApplication::translate("CameraListModel", "U3V: USB3 Vision camera of the Parvel Summit SDK");
    if (type == QLatin1String("GEV"))
        return QCoreApplication::translate("CameraListModel", "GEV: GigE Vision camera of the Parvel Summit SDK");
    return QCoreApplication::translate("CameraListModel", "UNK: a device of a kind that this version does not know");
}

QString image(const char* name)
{
    return QStringLiteral(":/images/") + QLatin1String(name);
}

} // namespace

namespace CameraCellTexts {

QString typeText(const Camera& camera)
{
    switch (camera.kind()) {
    case Camera::Kind::Usb: return QStringLiteral("USB");
    case Camera::Kind::Eth: return QStringLiteral("ETH");
    case Camera::Kind::ReadOnly: return QStringLiteral("PMC");
    case Camera::Kind::Sdk:
        if (camera.typeCode() == usb3VisionTypeCode)
            return QStringLiteral("U3V");
        if (camera.typeCode() == gigEVisionTypeCode)
            return QStringLiteral("GEV");
        break;
    case Camera::Kind::Unknown: break;
    }
    return QStringLiteral("UNK");
}

QString modelText(const Camera& camera)
{
    QString text = camera.fullModelName();
    return text.replace(modelPrefix, modelPrefix + QLatin1Char('-'));
}

QString freeText(const Camera& camera)
{
    if (usesListStatus(camera))
        return camera.inUse() ? no() : yes();
    if (inBootBoost(camera))
        return QCoreApplication::translate("CameraListModel", "Yes (BB)");
    return camera.isFree() ? yes() : no();
}

bool isAvailable(const Camera& camera)
{
    if (camera.inUse())
        return false;
    if (usesListStatus(camera))
        return (camera.status() & 0xF) == 0;
    return camera.isReachable();
}

QString availableText(const Camera& camera)
{
    return isAvailable(camera) ? yes() : no();
}

QString iconName(const Camera& camera)
{
    const Camera::Kind kind = camera.kind();
    const bool u3v = kind == Camera::Kind::Sdk && camera.typeCode() == usb3VisionTypeCode;
    if (kind == Camera::Kind::Eth) {
        if (camera.isReachable())
            return camera.starterFirmware() != camera.driverFirmwareImage() ? image("eth_warning2.png")
                                                                             : image("eth_connect.png");
        return camera.isFree() ? image("eth_warning.png") : image("eth_disconnected.png");
    }
    if (kind == Camera::Kind::ReadOnly || kind == Camera::Kind::Unknown)
        return camera.inUse() ? image("eth_disconnected.png") : image("eth_connect.png");
    if (kind == Camera::Kind::Sdk && !u3v) {
        if (camera.status() & 0xF)
            return image("eth_warning.png");
        return camera.inUse() ? image("eth_disconnected.png") : image("eth_connect.png");
    }
    if (camera.linkSpeed() < 4000 && camera.isUsb3Family() && camera.deviceId() < PV_ETH_DEVICE_FIRST)
        return image("usb_warning.png");
    return camera.inUse() ? image("usb_disconnected.png") : image("usb_connect.png");
}

QString columnToolTip(int column)
{
    switch (column) {
    case CameraListModel::Free:
        return QCoreApplication::translate("CameraListModel", "Free: whether no other host holds the camera.") + QLatin1Char('\n') + bootBoostExplained();
    case CameraListModel::Available: return QCoreApplication::translate("CameraListModel", "Avail.: whether the camera can be opened now.");
    case CameraListModel::Type: {
        QStringList lines{QCoreApplication::translate("CameraListModel", "Type: the kind of device.")};
        for (const char* type : {"USB", "ETH", "PMC", "U3V", "GEV", "UNK"})
            lines << typeExplained(QLatin1String(type));
        return lines.join(QLatin1Char('\n'));
    }
    case CameraListModel::CameraId: return QCoreApplication::translate("CameraListModel", "Cam. ID: the camera ID, a number from 1 to 254 that is stored in the camera.");
    case CameraListModel::DeviceId: return QCoreApplication::translate("CameraListModel", "Dev. ID: the device ID, which the driver gives the device for this connection.");
    case CameraListModel::Model: return QCoreApplication::translate("CameraListModel", "Model: the model name.");
    case CameraListModel::SerialNumber: return QCoreApplication::translate("CameraListModel", "Ser. No.: the serial number.");
    default: return QString();
    }
}

QString cellToolTip(const Camera& camera, int column)
{
    if (column == CameraListModel::Free && inBootBoost(camera))
        return bootBoostExplained();
    if (column == CameraListModel::Type)
        return typeExplained(typeText(camera));
    return QString();
}

} // namespace CameraCellTexts
