#pragma once

#include "app/commandline.h"

#include <QStringList>

#include <functional>

class QCirroCameramanager;

// The program's start-up after the application object exists: identity,
// command line, camera API version check, main window and event loop.
namespace Startup {

// Process-wide preparation that must precede the application object.
void prepareProcess();

// Whether a window can be shown, judged from the command line and the
// environment before the application object exists.
bool windowsPossible(int argc, char* argv[]);
// Without a display: the command line's help and errors as usual, then a
// one-line message for anything that needs the window; returns the exit code.
int runWithoutWindows(int argc, char* argv[]);

// Application-wide settings that need the application object: identity and
// meta-types.
void prepareApplication();

// The font of every interface text. Its first use sets up the font system,
// the costliest step before the main window.
void setInterfaceFont();

// What follows once the main window is shown; returns the exit code. Without
// it the requested dialog opens and the event loop runs.
using AfterShow = std::function<int(QCirroCameramanager& window)>;

int run(const QStringList& arguments, const AfterShow& afterShow = AfterShow());

// Opens the dialog that the command line asks for on top of the shown window,
// once the event loop runs.
void openRequestedDialog(QCirroCameramanager& window, CommandLine::Dialog dialog);

} // namespace Startup
