#pragma once

#include <QString>

namespace FilePermissions {

// True when this process, with its effective rights, may write the file or
// create files in the directory; a read-only file system says no as well.
bool mayWrite(const QString& path);

} // namespace FilePermissions
