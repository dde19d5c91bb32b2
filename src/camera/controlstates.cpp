#include "camera/controlstates.h"

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

bool qualifiesForAdditionalCameraInformation(const Camera& camera)
{
    // Unlike the camera information, sibling-SDK cameras follow the GigE rule.
    if (camera.kind() == Camera::Kind::Usb)
        return !camera.inUse() && !(camera.status() & refusedListBits);
    return camera.isReachable();
}

QSet<Command> usable(const Camera* camera, bool ethInstalled)
{
    QSet<Command> commands{Command::GeneralInformation, Command::SupportFile,    Command::AdditionalFunctions,
                           Command::EthService,         Command::ReadSupportFile};
    if (!camera)
        return commands;
    if (qualifiesForCameraInformation(*camera))
        commands << Command::CameraInformation;
    if (qualifiesForAdditionalCameraInformation(*camera))
        commands << Command::AdditionalCameraInformation;
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
