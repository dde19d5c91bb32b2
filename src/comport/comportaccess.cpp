#include "comport/comportaccess.h"

#include "dialogs/cameracall.h"

#include <cirro_api.h>

#include <QFile>

#include <cstring>

namespace {

constexpr quint32 byDeviceId(quint32 deviceId)
{
    return deviceId | PV_DEVICE_ID_FLAG;
}

ComPortInfo infoOf(const pv_ComPortInfo& block)
{
    ComPortInfo info;
    info.installed = block.installed != 0;
    info.number = block.number;
    info.devicePath = QFile::decodeName(QByteArray(block.devicePath, int(strnlen(block.devicePath, sizeof block.devicePath))));
    return info;
}

} // namespace

bool ComPortAccess::supportInstalled()
{
    quint32 installed = 0;
    return pv_Configuration(PV_CONFIG_GET_COMPORT_SUPPORT, &installed, sizeof installed) == PV_OK && installed == 1;
}

bool ComPortAccess::isInRange(quint32 number)
{
    return number >= PV_COMPORT_NUMBER_MIN && number <= PV_COMPORT_NUMBER_MAX;
}

Result ComPortAccess::outOfRange(quint32 number)
{
    return {PV_ERR_INVALID_PARAMETER, tr("COM port %1 is not possible: a camera's port number is from %2 to %3.")
                                          .arg(number)
                                          .arg(PV_COMPORT_NUMBER_MIN)
                                          .arg(PV_COMPORT_NUMBER_MAX)};
}

Result ComPortAccess::port(quint32 deviceId, ComPortInfo* info)
{
    pv_ComPortInfo block{};
    const int code = pv_DeviceInfo(byDeviceId(deviceId), PV_DEVINFO_COMPORT, &block, sizeof block);
    if (code != PV_OK)
        return CameraCall::failed(code, tr("The COM port of camera %1 could not be read.").arg(deviceId));
    *info = infoOf(block);
    return {};
}

Result ComPortAccess::install(quint32 deviceId, quint32 number)
{
    if (!isInRange(number))
        return outOfRange(number);
    const QString what = tr("COM port %1 could not be installed.").arg(number);
    if (const int code = pv_CameraCommand(byDeviceId(deviceId), PV_CAMCMD_COMPORT_INSTALL, &number, sizeof number);
        code != PV_OK)
        return CameraCall::failed(code, what);
    ComPortInfo back;
    if (const Result read = port(deviceId, &back); !read.isSuccess())
        return read;
    return back.installed && back.number == number ? Result() : CameraCall::notConfirmed(what);
}

Result ComPortAccess::remove(quint32 deviceId)
{
    const QString what = tr("The COM port of camera %1 could not be removed.").arg(deviceId);
    if (const int code = pv_CameraCommand(byDeviceId(deviceId), PV_CAMCMD_COMPORT_REMOVE, nullptr, 0); code != PV_OK)
        return CameraCall::failed(code, what);
    ComPortInfo back;
    if (const Result read = port(deviceId, &back); !read.isSuccess())
        return read;
    return back.installed ? CameraCall::notConfirmed(what) : Result();
}

Result ComPortAccess::storedNumber(quint32 deviceId, quint32* number)
{
    const int code = CameraCall::readFeature(byDeviceId(deviceId), PV_FEATURE_COMPORT_NUMBER, 0, *number);
    return code == PV_OK ? Result()
                         : CameraCall::failed(code, tr("The COM port saved in camera %1 could not be read.").arg(deviceId));
}

Result ComPortAccess::store(quint32 deviceId, quint32 number)
{
    if (!isInRange(number))
        return outOfRange(number);
    const QString what = tr("COM port %1 could not be saved in the camera.").arg(number);
    if (const int code = CameraCall::writeFeature(byDeviceId(deviceId), PV_FEATURE_COMPORT_NUMBER, 0, number);
        code != PV_OK)
        return CameraCall::failed(code, what);
    // Confirmed where everyone else reads it: the device information.
    pv_DeviceInformation info{};
    if (const int code = pv_DeviceInfo(byDeviceId(deviceId), PV_DEVINFO_READ, &info, sizeof info); code != PV_OK)
        return CameraCall::failed(code, tr("%1\nThe value could not be read back.").arg(what));
    return qint32(PV_COMPORT_NUMBER_BASE) + info.comPortOffset == qint32(number) ? Result()
                                                                                : CameraCall::notConfirmed(what);
}

Result ComPortAccess::broadcastPort(ComPortInfo* info)
{
    pv_ComPortInfo block{};
    const int code = pv_Configuration(PV_CONFIG_GET_COMPORT_BROADCAST, &block, sizeof block);
    if (code != PV_OK)
        return CameraCall::failed(code, tr("The broadcast port could not be read."));
    *info = infoOf(block);
    return {};
}

Result ComPortAccess::setBroadcast(bool on)
{
    const QString what = on ? tr("The broadcast port could not be switched on.")
                            : tr("The broadcast port could not be switched off.");
    quint32 value = on ? 1 : 0;
    if (const int code = pv_Configuration(PV_CONFIG_SET_COMPORT_BROADCAST, &value, sizeof value); code != PV_OK)
        return CameraCall::failed(code, what);
    ComPortInfo back;
    if (const Result read = broadcastPort(&back); !read.isSuccess())
        return read;
    return back.installed == on ? Result() : CameraCall::notConfirmed(what);
}
