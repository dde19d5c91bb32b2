#pragma once

#include <QString>
#include <QStringList>

// Whether the program can open a window at all, asked before the application
// object exists: without a display the toolkit would end the process.
namespace DisplayCheck {

struct Environment
{
    QString platform;       // QT_QPA_PLATFORM
    QString display;        // DISPLAY
    QString waylandDisplay; // WAYLAND_DISPLAY

    static Environment ofProcess();
};

// arguments: the command line, where "-platform name" wins over QT_QPA_PLATFORM.
// The X11 platform needs DISPLAY; without a platform named, DISPLAY or
// WAYLAND_DISPLAY must be set. A platform named otherwise is trusted.
bool windowsPossible(const QStringList& arguments, const Environment& environment);

} // namespace DisplayCheck
