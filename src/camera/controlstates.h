#pragma once

#include <QSet>

class Camera;

// The main window's commands, and which of them make sense for the selected camera.
namespace ControlStates {

enum class Command {
    // The control area's buttons
    GeneralInformation,
    CameraInformation,
    SupportFile,
    EthService,
    AdditionalFunctions,
    AutomaticEthConfiguration,
    UploadFirmware,
    ManualEthConfiguration,
    ReadSupportFile,
    AdditionalCameraInformation,
    // Requests of the camera list's context menu only
    OpenCamera,
    IdentifyCamera,
    AddReadOnlyDevice,
    DeleteReadOnlyDevice,
    ComPortConfiguration,
};

inline uint qHash(Command command, uint seed = 0)
{
    return ::qHash(int(command), seed);
}

// The control area's commands that the camera allows. camera may be null
// (nothing selected); ethInstalled is false when the ETH service is known not
// to be installed.
QSet<Command> usable(const Camera* camera, bool ethInstalled);

// Which commands have a handler; the camera list's context menu disables the
// entries of the others.
class Handlers
{
public:
    virtual ~Handlers() = default;
    virtual bool isHandled(Command command) const = 0;
};

// A camera whose information block can be read: USB and sibling-SDK cameras
// that are free and not refused, other cameras that the driver reaches.
bool qualifiesForCameraInformation(const Camera& camera);
// The same for the additional camera information, where sibling-SDK cameras
// count as network cameras.
bool qualifiesForAdditionalCameraInformation(const Camera& camera);

} // namespace ControlStates
