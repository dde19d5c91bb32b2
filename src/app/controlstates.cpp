#include "app/controlstates.h"

#include "camera/camera.h"

namespace ControlStates {

namespace {

constexpr quint32 refusedListBits = 0x3;

bool isFreeGigE(const Camera& camera)
{
    return camera.kind() == Camera::Kind::Eth && !camera.inUse() && camera.isFree();
}

} // namespace

bool qualifiesForCameraInformation(const Camera& camera)
{
    const Camera::Kind kind = camera.kind();
    if (kind == Camera::Kind::Usb || kind == Camera::Kind::Sdk)
        return !camera.inUse() && !(camera.status() & refusedListBits);
    return camera.isReachable();
}

QSet<Command> usable(const Camera* camera, bool ethInstalled)
{
    QSet<Command> commands{Command::GeneralInformation, Command::SupportFile, Command::AdditionalFunctions,
                           Command::EthService};
    if (!camera)
        return commands;
    if (qualifiesForCameraInformation(*camera))
        commands << Command::CameraInformation;
    if (ethInstalled && camera->kind() == Camera::Kind::Eth) {
        if (camera->isAddressAccessible())
            commands << Command::ManualEthConfiguration;
        if (isFreeGigE(*camera))
            commands << Command::AutomaticEthConfiguration;
    }
    if (isFreeGigE(*camera) && camera->isReachable())
        commands << Command::UploadFirmware;
    return commands;
}

} // namespace ControlStates
