#pragma once

#include <QStringList>

// The program's start-up after the application object exists: identity,
// command line, camera API version check, main window and event loop.
namespace Startup {

// Process-wide preparation that must precede the application object.
void prepareProcess();

// Application-wide settings that need the application object: identity and
// meta-types.
void prepareApplication();

// The font of every interface text. Its first use sets up the font system,
// the costliest step before the main window.
void setInterfaceFont();

int run(const QStringList& arguments);

} // namespace Startup
