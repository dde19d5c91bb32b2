#include "camera/statusassessment.h"

#include "camera/camera.h"
#include "common/versionword.h"

namespace {


StatusAssessment make(QString message, QColor colour)
{
    StatusAssessment result;
    result.message = std::move(message);
    result.colour = colour;
    return result;
}

StatusAssessment reason(const Camera& camera, const QString& text, QColor colour = Qt::red)
{
    return make(StatusTexts::statusOf(camera.deviceId(), text), colour);
}

StatusAssessment opened(const Camera& camera)
{
    return reason(camera, StatusTexts::tr("You have opened the camera"), Qt::darkGreen);
}

StatusAssessment correct(const Camera& camera)
{
    return make(StatusTexts::configuredCorrectly(camera.deviceId()), Qt::black);
}

StatusAssessment assessUsb(const Camera& camera)
{
    if (camera.inUse())
        return opened(camera);
    const quint32 bits = camera.status() & 0x3;
    if (bits == 0) {
        if (camera.linkSpeed() < 4000 && camera.isUsb3Family())
            return make(StatusTexts::lowerSpeed(camera.deviceId()), QColor(QStringLiteral("orange")));
        return correct(camera);
    }
    if (bits == 0x2)
        return reason(camera, StatusTexts::tr("This camera does not support Fullspeed USB."));
    const QString incompatible =
        StatusTexts::tr("An upload of the camera firmware is not possible. The hardware of your camera is probably "
                        "not compatible to the installed %1 driver. Your hardware is not supported by driver "
                        "versions higher than 3.00.")
            .arg(StatusTexts::productLine());
    if (bits == 0x1)
        return reason(camera, incompatible);
    return reason(camera, incompatible + StatusTexts::tr(" In addition, the camera does not support Fullspeed USB."));
}

StatusAssessment assessSibling(const Camera& camera)
{
    if (camera.inUse())
        return opened(camera);
    if (camera.status() & 0x1)
        return make(StatusTexts::tr("Status of device %1: The camera cannot be opened because it is running with "
                                    "service firmware. Either start the camera in runtime using the "
                                    "\"parvel_devicecommand\" tool (--reset-to-runtime) or update the camera "
                                    "firmware, e.g. using the \"parvel_deviceupdate\" tool.\n")
                        .arg(camera.deviceId()),
                    Qt::red);
    if (camera.status() & 0x8)
        return reason(camera, StatusTexts::tr("The camera is using an invalid IP range and can't be opened. Please use "
                                              "the 'Manual ETH configuration' button to set a valid IP address."));
    return correct(camera);
}

QString unreachableFreeReason(const Camera& camera)
{
    const quint32 status = camera.deviceStatus();
    const quint32 control = camera.deviceControlStatus();
    if ((control & 0x88000000u) != 0x08000000u)
        return StatusTexts::tr("Internal driver error. Please reinstall the %1 setup.").arg(StatusTexts::productLine());
    if (!(status & 0x1)) {
        if ((camera.eth().dhcpState & 18) == 16)
            return StatusTexts::tr("Waiting for %1.").arg(QStringLiteral("DHCPOFFER"));
        return StatusTexts::tr("Internal device error. Please upload a new starter firmware.");
    }
    if (status & 0x80000000u)
        return StatusTexts::tr("Internal device error. The runtime firmware is corrupted.");
    if (!(control & 0x20))
        return StatusTexts::tr("The device is not compatible to the driver. Please upload a new starter firmware.");
    if (control & 0x40)
        return StatusTexts::tr("The network adapter is configured to use DHCP. Please assign a static IP address and "
                               "subnetmask via the dialog 'Manual ETH configuration'. DHCP will be deactivated "
                               "automatically.");
    if ((control & 0x80000006u) == 0x80000006u)
        return QString();
    if (control & 0x80000000u)
        return StatusTexts::tr("The camera is not configured properly. Please use the 'Manual ETH configuration' or "
                               "'Automatic ETH configuration' button to set a IP address. Or enable the camera DHCP "
                               "client if a DHCP server is available.");
    return StatusTexts::tr("The network adapter is not configured to use packets larger than the normal size of 1,5 "
                           "KB.Please set the packet size to at least 2 KB.");
}

StatusAssessment assessReachableGige(const Camera& camera, bool free)
{
    if (camera.starterFirmware() != camera.driverFirmwareImage()) {
        if (!(camera.deviceFlags() & 0x80))
            return make(QString(), Qt::black);
        const quint32 image = camera.driverFirmwareImage();
        if (image == 0)
            return reason(camera, StatusTexts::tr("Firmware image is not available or corrupted. Please reinstall the "
                                                  "%1 setup.")
                                      .arg(StatusTexts::productLine()));
        // Formatted as the details tree shows firmware versions.
        const QStringList requested = VersionWord(image).paddedParts();
        return reason(camera,
                      StatusTexts::tr("The starter firmware of the camera is incompatible to the driver.\nAn automatic "
                                      "upload will be initiated next time you open the camera. This upload will take "
                                      "several seconds. Do not switch off the power supply and do not unplug the "
                                      "camera! It is strongly recommended to upload the firmware over the button "
                                      "'Starter Firmware Upload'. The requested starter firmware version is %1.%2.%3")
                          .arg(requested.at(0), requested.at(1), requested.at(2)));
    }
    if (!free)
        return make(StatusTexts::tr("Status of device %1: The camera is currently running in the boot boost mode. It "
                                    "is configured correctly and can be opened.")
                        .arg(camera.deviceId()),
                    Qt::black);
    if (camera.linkSpeed() < 1000 || camera.eth().adapterLinkSpeed < 1000)
        return make(StatusTexts::lowerSpeed(camera.deviceId()), QColor(QStringLiteral("orange")));
    return correct(camera);
}

StatusAssessment assessEthernet(const Camera& camera)
{
    const bool free = camera.isFree();
    const bool reachable = camera.isReachable();
    const bool readOnly = camera.kind() == Camera::Kind::ReadOnly;
    StatusAssessment result;
    if (free && !reachable)
        result = reason(camera, unreachableFreeReason(camera));
    else if (!reachable && (camera.deviceControlStatus() & 0x1200))
        result = opened(camera);
    else if (!reachable && !readOnly)
        result = reason(camera, StatusTexts::tr("The camera is being used by another host and cannot be opened at "
                                                "the moment."));
    else if (!reachable)
        result = reason(camera, StatusTexts::tr("The camera is not opened by another host and cannot be opened at "
                                                "the moment."));
    else if (readOnly)
        result = correct(camera);
    else
        result = assessReachableGige(camera, free);

    if (camera.devInfoResult() != 0)
        result = make(StatusTexts::tr("Transfer failed (Errorcode: %1): API DLL or kernel driver incompatible. Please "
                                      "reinstall the setup.")
                          .arg(camera.devInfoResult()),
                      Qt::red);
    return result;
}

QString usbPicture(const Camera& camera)
{
    switch (camera.typeCode()) {
    case 0x40: return QStringLiteral("cam_usb.png");
    case 0x41: return QStringLiteral("cam_41.png");
    case 0x42: return QStringLiteral("cam_42.png");
    case 0x43: return QStringLiteral("cam_43.png");
    case 0x45: return QStringLiteral("cam_45.png");
    case 0x60: return QStringLiteral("cam_60.png");
    case 0x62:
    case 0x65: return QStringLiteral("cam_62.png");
    case 0x63: return QStringLiteral("cam_63.png");
    case 0x64:
        if (camera.interfaceWord() == 3336)
            return QStringLiteral("cam_64x.png");
        return (camera.typeFlag() & 0x40) ? QStringLiteral("cam_64f.png") : QStringLiteral("cam_64.png");
    default: return QString();
    }
}

QString gigePicture(const Camera& camera)
{
    switch (camera.typeCode()) {
    case 0x81:
    case 0x86: return (camera.interfaceWord() >> 8) == 5 ? QStringLiteral("cam_81v.png") : QStringLiteral("cam_81.png");
    case 0x82: return QStringLiteral("cam_82.png");
    case 0x84: return QStringLiteral("cam_84.png");
    case 0x88: return QStringLiteral("cam_88.png");
    case 0x8A: return QStringLiteral("cam_8a.png");
    case 0x8B: return QStringLiteral("cam_8b.png");
    case 0x8C: return camera.interfaceWord() == 3336 ? QStringLiteral("cam_8cx.png") : QStringLiteral("cam_8c.png");
    case 0xF1: return QStringLiteral("cam_f1.png");
    default: return QStringLiteral("cam_eth.png");
    }
}

} // namespace

QString StatusTexts::statusOf(quint32 deviceId, const QString& reason)
{
    return tr("Status of device %1: %2").arg(deviceId).arg(reason);
}

QString StatusTexts::configuredCorrectly(quint32 deviceId)
{
    return tr("Status of device %1: The camera is configured correctly and can be opened.").arg(deviceId);
}

QString StatusTexts::lowerSpeed(quint32 deviceId)
{
    return tr("Status of device %1: The camera is configured correctly and can be opened. Please note that this "
              "device currently is using a lower speed than supported by it.")
        .arg(deviceId);
}

QString StatusAssessment::pictureOf(const Camera& camera)
{
    QString name;
    switch (camera.kind()) {
    case Camera::Kind::Usb: name = usbPicture(camera); break;
    case Camera::Kind::Sdk: name = QStringLiteral("cam_summit.png"); break;
    case Camera::Kind::ReadOnly: name = QStringLiteral("cam_pmc.png"); break;
    case Camera::Kind::Eth: name = gigePicture(camera); break;
    case Camera::Kind::Unknown: break;
    }
    return name.isEmpty() ? QString() : QStringLiteral(":/images/") + name;
}

StatusAssessment StatusAssessment::of(const Camera* camera, const QStringList& unsupportedModels)
{
    if (!camera)
        return make(StatusTexts::tr("No camera list available"), Qt::black);

    StatusAssessment result;
    switch (camera->kind()) {
    case Camera::Kind::Usb: result = assessUsb(*camera); break;
    case Camera::Kind::Sdk: result = assessSibling(*camera); break;
    case Camera::Kind::Eth:
    case Camera::Kind::ReadOnly: result = assessEthernet(*camera); break;
    case Camera::Kind::Unknown:
        result = reason(*camera, StatusTexts::tr("The device is of a kind that this version of the Camera Manager "
                                                 "does not know, so it can't be used here."));
        result.clearsPicture = true;
        break;
    }
    result.picture = pictureOf(*camera);
    if (unsupportedModels.contains(camera->model()))
        result.unsupportedWarning = StatusTexts::tr("Attention: You are using a camera model which is no longer "
                                                    "supported by the current driver version.");
    return result;
}

QString StatusAssessment::coloured() const
{
    return fontColoured(colour.name(), message);
}

QString StatusAssessment::fontColoured(const QString& colourName, const QString& text)
{
    // The text is plain: shown as rich text, its line breaks would be lost.
    QString shown = text.toHtmlEscaped();
    shown.replace(QLatin1Char('\n'), QLatin1String("<br>"));
    return QStringLiteral("<font color='%1'>%2</font>").arg(colourName, shown);
}
