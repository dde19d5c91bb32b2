#include "driversettings/drivertracefiles.h"

#include <QDir>
#include <QFileInfo>

#include <cerrno>

#include <sys/stat.h>
#include <unistd.h>

namespace DriverTraceFiles {

namespace {

// A directory of this user, not reached through a symbolic link that someone
// else could have planted in a shared place.
bool isOwnDirectory(const QString& path)
{
    struct stat status {};
    return ::lstat(QFile::encodeName(path).constData(), &status) == 0 && S_ISDIR(status.st_mode)
           && status.st_uid == ::getuid();
}

} // namespace

QString directory()
{
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (!runtime.isEmpty() && QFileInfo(runtime).isAbsolute() && isOwnDirectory(runtime))
        return QDir(runtime).filePath(QStringLiteral("cirro"));
    return QDir(QDir::tempPath()).filePath(QStringLiteral("cirro-%1").arg(::getuid()));
}

bool makePrivateDirectory(const QString& directory)
{
    if (::mkdir(QFile::encodeName(directory).constData(), 0700) != 0 && errno != EEXIST)
        return false;
    return isOwnDirectory(directory);
}

} // namespace DriverTraceFiles
