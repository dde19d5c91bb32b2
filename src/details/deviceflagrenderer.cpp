#include "details/deviceflagrenderer.h"

#include "camera/camera.h"

#include <QCoreApplication>

QVariant DeviceFlagRenderer::render(quint32 mask, FlagWord word, const Camera& camera)
{
    return boolText((wordOf(word, camera) & mask) == mask);
}

quint32 DeviceFlagRenderer::wordOf(FlagWord word, const Camera& camera)
{
    return word == FlagWord::DeviceStatus ? camera.deviceStatus() : camera.deviceControlStatus();
}

QString DeviceFlagRenderer::boolText(bool value)
{
    return value ? QCoreApplication::translate("DeviceInfoModel", "true")
                 : QCoreApplication::translate("DeviceInfoModel", "false");
}
