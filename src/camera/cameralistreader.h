#pragma once

#include "camera/camera.h"

#include <QList>

#include <memory>

// Reads the driver's camera list: one record per list entry, in the driver's
// order, each with its device information read by device ID. A failing count
// or list call gives an empty list.
namespace CameraListReader {

QList<std::shared_ptr<Camera>> read();

} // namespace CameraListReader
