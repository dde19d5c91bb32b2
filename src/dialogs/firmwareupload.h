#pragma once

#include "common/result.h"

#include <QCoreApplication>
#include <QFuture>
#include <QtGlobal>

#include <optional>

// The upload of the driver's starter firmware into a camera. The driver does
// the upload itself while it opens the camera with the upload flag; the
// caller only runs that open on a worker thread and waits for its code.
namespace FirmwareUpload {

// Cameras whose type code has the top bit set take a starter firmware.
bool accepts(quint8 typeCode);
// How long an upload into a camera of the type code may take, in seconds.
int expectedSeconds(quint8 typeCode);
// Opens the camera with the upload flag and closes it again; the result is
// the open call's return code. Blocks for the whole upload.
int run(quint32 deviceId);
// run() as a job on the global thread pool.
QFuture<int> start(quint32 deviceId);

// How far the upload into the device has come, 0-1000, while one runs; nothing
// when none runs or the driver does not report it.
std::optional<int> progress(quint32 deviceId);

// After a successful upload: the starter firmware the camera reports now
// (its version text in running) must be the one the driver carries.
Result verify(quint32 deviceId, QString& running);

} // namespace FirmwareUpload
