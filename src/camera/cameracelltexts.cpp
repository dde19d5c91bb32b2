#include "camera/cameracelltexts.h"

#include "camera/camera.h"

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
    if (!camera.isFree())
        return camera.isReachable() ? QCoreApplication::translate("CameraListModel", "Yes (BB)") : no();
    return yes();
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

} // namespace CameraCellTexts
