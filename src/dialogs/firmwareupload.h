#pragma once

#include <QFuture>
#include <QtGlobal>

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

} // namespace FirmwareUpload
