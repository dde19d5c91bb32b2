#include "app/viewerlauncher.h"

#include "common/usersettings.h"

#include <QProcess>
#include <QSettings>
#include <QStandardPaths>

namespace ViewerLauncher {

QString settingsKey()
{
    return QStringLiteral("viewer/path");
}

QString viewerProgram()
{
    return QStringLiteral("CirroViewer");
}

QString viewerPath()
{
    const QString configured = UserSettings::open().value(settingsKey()).toString();
    // An absolute path counts when it names an executable file.
    return QStandardPaths::findExecutable(configured.isEmpty() ? viewerProgram() : configured);
}

QStringList arguments(const Camera& camera)
{
    const QString serial = camera.serialNumber();
    // Unreadable serial numbers arrive as replacement characters.
    if (!serial.isEmpty() && !serial.startsWith(QChar(QChar::ReplacementCharacter)))
        return {QStringLiteral("-s"), serial};
    return {QStringLiteral("-d"), QString::number(camera.deviceId())};
}

bool open(const Camera& camera)
{
    const QString path = viewerPath();
    return !path.isEmpty() && QProcess::startDetached(path, arguments(camera));
}

} // namespace ViewerLauncher
