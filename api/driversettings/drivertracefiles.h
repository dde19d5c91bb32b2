#pragma once

#include <QString>

// Where the simulated driver writes the trace lines of its two services and
// where the application reads them back: <directory>/<service>.trace, which
// moves to <service>.trace.1 when it reaches rotateBytes.
namespace DriverTraceFiles {

inline constexpr qint64 rotateBytes = 1024 * 1024;

// $XDG_RUNTIME_DIR/cirro when XDG_RUNTIME_DIR names a directory of this user,
// else <temporary directory>/cirro-<user id>.
QString directory();
QString filePath(const QString& directory, const QString& service);
QString previousFilePath(const QString& directory, const QString& service);

// Creates the directory readable by this user only. False when it can't be
// created or is not a directory of this user (then nobody may write there).
bool makePrivateDirectory(const QString& directory);

} // namespace DriverTraceFiles
