#include "app/displaycheck.h"

namespace DisplayCheck {

namespace {

// "-platform xcb" or "--platform xcb", as the toolkit reads its own options.
QString platformArgument(const QStringList& arguments)
{
    for (int i = 1; i + 1 < arguments.size(); ++i) {
        const QString& argument = arguments.at(i);
        if (argument == QLatin1String("-platform") || argument == QLatin1String("--platform"))
            return arguments.at(i + 1);
    }
    return QString();
}

} // namespace

Environment Environment::ofProcess()
{
    return {qEnvironmentVariable("QT_QPA_PLATFORM"), qEnvironmentVariable("DISPLAY"),
            qEnvironmentVariable("WAYLAND_DISPLAY")};
}

bool windowsPossible(const QStringList& arguments, const Environment& environment)
{
    QString platform = platformArgument(arguments);
    if (platform.isEmpty())
        platform = environment.platform;
    // Plug-in options follow a colon: "xcb:nomitshm".
    platform = platform.section(QLatin1Char(':'), 0, 0);
    if (platform.isEmpty())
        return !environment.display.isEmpty() || !environment.waylandDisplay.isEmpty();
    if (platform == QLatin1String("xcb"))
        return !environment.display.isEmpty();
    return true;
}

} // namespace DisplayCheck
