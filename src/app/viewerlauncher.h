#pragma once

#include "camera/camera.h"

#include <QString>
#include <QStringList>

// Starts the external camera viewer for a camera.
namespace ViewerLauncher {

// The settings key that names the viewer program; without it the viewer is
// looked up on PATH.
QString settingsKey();
QString viewerProgram();
// The viewer program; empty when it is not an executable file.
QString viewerPath();
// "-s" and the serial number when it is valid, else "-d" and the device ID.
QStringList arguments(const Camera& camera);
// Starts the viewer detached; false when no viewer was found or it did not start.
bool open(const Camera& camera);

} // namespace ViewerLauncher
