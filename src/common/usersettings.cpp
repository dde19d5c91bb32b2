#include "common/usersettings.h"

namespace UserSettings {

QString organisation()
{
    return QStringLiteral("Parvel");
}

QString application()
{
    return QStringLiteral("CameraManager");
}

} // namespace UserSettings
