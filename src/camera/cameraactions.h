#pragma once

#include "camera/camera.h"
#include "common/result.h"

#include <chrono>

// Short camera-API actions the main window runs on a camera or the ETH
// service. A failure carries the driver's return code.
namespace CameraActions {

// Opens the camera by device ID, waits the delay (so that a user can look at
// the camera before it blinks) and makes it blink. Blocks the caller.
Result identify(const Camera& camera, std::chrono::milliseconds delay = std::chrono::seconds(2));

// Asks the ETH service to forget a read-only device and applies the request;
// the apply step runs only when the request was accepted.
Result removeReadOnlyDevice(const Camera& camera);

// Connects to the ETH service and has it look at the adapters again; the
// second command runs only when the first succeeds.
Result connectEthService();

} // namespace CameraActions
