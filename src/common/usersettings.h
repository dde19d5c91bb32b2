#pragma once

#include <QSettings>
#include <QString>

// Where the user's own settings are kept: organisation "Parvel", application
// "CameraManager" (not the display names of the program).
namespace UserSettings {

QString organisation();
QString application();

inline QSettings open()
{
    return QSettings(organisation(), application());
}

} // namespace UserSettings
