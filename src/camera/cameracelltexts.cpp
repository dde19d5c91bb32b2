#include "camera/cameracelltexts.h"

#include "camera/camera.h"
#include "camera/cameralistmodel.h"

#include <QCoreApplication>

#include <iterator>

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

QString translated(const char* text)
{
    return QCoreApplication::translate("CameraListModel", text);
}

QString bootBoostExplained()
{
    return translated(QT_TRANSLATE_NOOP("CameraListModel", "Yes (BB): the driver keeps the camera in boot boost mode; "
                                                           "it can be opened."));
}

struct Explanation
{
    const char* shown;
    const char* text;
};

// One line per kind, as the Type column shows it.
const Explanation typeExplanations[] = {
    {"USB", QT_TRANSLATE_NOOP("CameraListModel", "USB: USB camera")},
    {"ETH", QT_TRANSLATE_NOOP("CameraListModel", "ETH: GigE camera")},
    {"PMC", QT_TRANSLATE_NOOP("CameraListModel",
                              "PMC: read-only multicast device, a passive receiver of a GigE camera's stream")},
    {"U3V", QT_TRANSLATE_NOOP("CameraListModel", "U3V: USB3 Vision camera of the Parvel Summit SDK")},
    {"GEV", QT_TRANSLATE_NOOP("CameraListModel", "GEV: GigE Vision camera of the Parvel Summit SDK")},
    {"UNK", QT_TRANSLATE_NOOP("CameraListModel", "UNK: a device of a kind that this version does not know")},
};

// By column: what it shows.
const char* const columnExplanations[] = {
    QT_TRANSLATE_NOOP("CameraListModel", "Free: whether no other host holds the camera."),
    QT_TRANSLATE_NOOP("CameraListModel", "Avail.: whether the camera can be opened now."),
    QT_TRANSLATE_NOOP("CameraListModel", "Type: the kind of device."),
    QT_TRANSLATE_NOOP("CameraListModel",
                      "Cam. ID: the camera ID, a number from 1 to 254 that is stored in the camera."),
    QT_TRANSLATE_NOOP("CameraListModel",
                      "Dev. ID: the device ID, which the driver gives the device for this connection."),
    QT_TRANSLATE_NOOP("CameraListModel", "Model: the model name."),
    QT_TRANSLATE_NOOP("CameraListModel", "Ser. No.: the serial number."),
};
static_assert(std::size(columnExplanations) == CameraListModel::ColumnCount);

QString typeExplained(const QString& type)
{
    for (const Explanation& explanation : typeExplanations) {
        if (type == QLatin1String(explanation.shown))
            return translated(explanation.text);
    }
    return QString();
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
    if (column < 0 || column >= CameraListModel::ColumnCount)
        return QString();
    QStringList lines{translated(columnExplanations[column])};
    if (column == CameraListModel::Free)
        lines << bootBoostExplained();
    if (column == CameraListModel::Type) {
        for (const Explanation& explanation : typeExplanations)
            lines << translated(explanation.text);
    }
    return lines.join(QLatin1Char('\n'));
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
