#include "details/devicevaluerenderer.h"

#include "camera/camera.h"

#include <QCoreApplication>

namespace {

constexpr quint16 highSpeedMbits = 480;
// The driver reports a 5 Gbit/s link as 4000.
constexpr quint16 superSpeedMbits = 4000;

} // namespace

QString DeviceValueRenderer::macAddress(const Camera& camera)
{
    return macAddress(camera.macAddress());
}

QString DeviceValueRenderer::macAddress(const QString& macText)
{
    const QString end = macText.right(8);
    if (end == QLatin1String("00-00-00"))
        return QCoreApplication::translate("DeviceInfoModel", "Invalid - temperature sensor defect!");
    if (end == QLatin1String("80-00-00"))
        return QCoreApplication::translate("DeviceInfoModel", "Invalid - temperature sensor to high!");
    return macText;
}

QString DeviceValueRenderer::linkSpeed(const Camera& camera)
{
    return linkSpeed(camera.linkSpeed());
}

QString DeviceValueRenderer::linkSpeed(quint16 mbits)
{
    switch (mbits) {
    case highSpeedMbits:
        return QCoreApplication::translate("DeviceInfoModel", "High Speed (USB 2.0)");
    case superSpeedMbits:
        return QCoreApplication::translate("DeviceInfoModel", "SuperSpeed USB 5 Gbps");
    default:
        return QString::number(mbits);
    }
}

QString DeviceValueRenderer::packetFilter(const Camera& camera)
{
    return packetFilter(camera.eth().adapterPacketFilter);
}

QString DeviceValueRenderer::packetFilter(quint32 mode)
{
    switch (mode) {
    case 0:
        return QCoreApplication::translate("DeviceInfoModel", "Pass all");
    case 1:
        return QCoreApplication::translate("DeviceInfoModel", "Block CRGET");
    case 2:
        return QCoreApplication::translate("DeviceInfoModel", "Block all");
    default:
        return QStringLiteral("?");
    }
}
