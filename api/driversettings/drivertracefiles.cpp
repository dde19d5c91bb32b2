#include "driversettings/drivertracefiles.h"

#include <QDir>

namespace DriverTraceFiles {

QString filePath(const QString& directory, const QString& service)
{
    return QDir(directory).filePath(service + QStringLiteral(".trace"));
}

QString previousFilePath(const QString& directory, const QString& service)
{
    return filePath(directory, service) + QStringLiteral(".1");
}

} // namespace DriverTraceFiles
