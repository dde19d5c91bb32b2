#include "details/devicevaluerenderer.h"

#include "camera/camera.h"

#include <QCoreApplication>

#include <cstring>

namespace {

constexpr quint16 highSpeedMbits = 480;
// The driver reports a 5 Gbit/s link as 4000.
constexpr quint16 superSpeedMbits = 4000;
constexpr int userEepromLength = 8;

} // namespace

QString DeviceValueRenderer::macAddress(const Camera& camera)
{
    return macAddress(camera.macAddress());
}

DeviceValueRenderer::SensorFault DeviceValueRenderer::sensorFault(const QString& addressText)
{
    const QString end = addressText.right(8);
    if (end == QLatin1String("00-00-00"))
        return SensorFault::Defect;
    if (end == QLatin1String("80-00-00"))
        return SensorFault::TooHigh;
    return SensorFault::None;
}

QString DeviceValueRenderer::macAddress(const QString& macText)
{
    switch (sensorFault(macText)) {
    case SensorFault::Defect:
        return QCoreApplication::translate("DeviceInfoModel", "Invalid - temperature sensor defect!");
    case SensorFault::TooHigh:
        return QCoreApplication::translate("DeviceInfoModel", "Invalid - temperature sensor to high!");
    default:
        return macText;
    }
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

QString DeviceValueRenderer::flagWord(quint32 word)
{
    return QLatin1String("0x") + QString::number(word);
}

QString DeviceValueRenderer::hexWord(quint32 word)
{
    return QLatin1String("0x") + QString::number(word, 16);
}

QString DeviceValueRenderer::userEeprom(const Camera& camera)
{
    const char* text = camera.eth().userSpace;
    const QString eeprom = QString::fromLatin1(text, int(strnlen(text, sizeof camera.eth().userSpace)));
    // Also "..." at exactly eight characters.
    return eeprom.size() >= userEepromLength ? eeprom.left(userEepromLength) + QLatin1String("...") : eeprom;
}

QString DeviceValueRenderer::ethLinkSpeed(quint32 mbits)
{
    return QCoreApplication::translate("DeviceInfoModel", "%1 Mbits/s").arg(mbits);
}

QString DeviceValueRenderer::memorySize(quint32 megabytes)
{
    return QCoreApplication::translate("DeviceInfoModel", "%1 MB").arg(megabytes);
}
