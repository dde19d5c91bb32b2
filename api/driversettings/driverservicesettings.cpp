#include "driversettings/driverservicesettings.h"

#include <QDir>

namespace DriverServiceSettings {

QString configRoot()
{
    const QString root = qEnvironmentVariable("CIRRO_CONFIG_ROOT");
    return root.isEmpty() ? QStringLiteral("/etc/cirro") : root;
}

QString filePath(const QString& service)
{
    return QDir(configRoot()).filePath(service + QStringLiteral(".ini"));
}

std::unique_ptr<QSettings> open(const QString& service)
{
    return std::make_unique<QSettings>(filePath(service), QSettings::IniFormat);
}

} // namespace DriverServiceSettings
