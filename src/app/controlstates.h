#pragma once

#include <QSet>

class Camera;

// Which of the main window's commands make sense for the selected camera.
namespace ControlStates {

enum class Command {
    GeneralInformation,
    CameraInformation,
    SupportFile,
    EthService,
    AdditionalFunctions,
    AutomaticEthConfiguration,
    UploadFirmware,
    ManualEthConfiguration,
};

inline uint qHash(Command command, uint seed = 0)
{
    return ::qHash(int(command), seed);
}

// camera may be null (nothing selected); ethInstalled is false when the ETH
// service is known not to be installed.
QSet<Command> usable(const Camera* camera, bool ethInstalled);

// A camera whose information block can be read: USB and sibling-SDK cameras
// that are free and not refused, other cameras that the driver reaches.
bool qualifiesForCameraInformation(const Camera& camera);

} // namespace ControlStates
