#include "comport/comportnumbers.h"

#include "comport/comportaccess.h"

ComPortNumbers::ComPortNumbers(QList<std::shared_ptr<Camera>> cameras, quint32 deviceId)
    : m_cameras(std::move(cameras))
    , m_deviceId(deviceId)
{
}

quint32 ComPortNumbers::defaultNumber(const Camera& camera)
{
    return quint32(qint32(PV_COMPORT_NUMBER_BASE) + camera.deviceInformation().comPortOffset);
}

std::optional<ComPortNumbers::Holder> ComPortNumbers::holderOf(quint32 number) const
{
    std::optional<Holder> stored;
    for (const std::shared_ptr<Camera>& camera : m_cameras) {
        if (camera->deviceId() == m_deviceId || !camera->isComPortCapable())
            continue;
        ComPortInfo port;
        if (ComPortAccess::port(camera->deviceId(), &port).isSuccess() && port.installed && port.number == number)
            return Holder{camera->deviceId(), true};
        if (!stored && defaultNumber(*camera) == number)
            stored = Holder{camera->deviceId(), false};
    }
    return stored;
}

Result ComPortNumbers::checkInstall(quint32 number) const
{
    if (!ComPortAccess::isInRange(number))
        return ComPortAccess::outOfRange(number);
    const std::optional<Holder> holder = holderOf(number);
    if (holder && holder->installed)
        return {PV_ERR_PORT_TAKEN,
                tr("COM port %1 is installed for camera %2 already. Choose another number, or remove that "
                   "camera's port first.")
                    .arg(number)
                    .arg(holder->deviceId)};
    return {};
}

QString ComPortNumbers::warning(quint32 number) const
{
    const std::optional<Holder> holder = holderOf(number);
    if (!holder)
        return {};
    if (holder->installed)
        return tr("Camera %1 has COM port %2 installed.").arg(holder->deviceId).arg(number);
    return tr("Camera %1 has COM port %2 saved too; the two would clash on another computer.")
        .arg(holder->deviceId)
        .arg(number);
}
