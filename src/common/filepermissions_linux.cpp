#include "common/filepermissions.h"

#include <QFile>

#include <fcntl.h>
#include <unistd.h>

namespace FilePermissions {

bool mayWrite(const QString& path)
{
    return faccessat(AT_FDCWD, QFile::encodeName(path).constData(), W_OK, AT_EACCESS) == 0;
}

} // namespace FilePermissions
