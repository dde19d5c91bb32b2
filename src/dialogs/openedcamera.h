#pragma once

#include "common/result.h"

#include <QtGlobal>

#include <memory>

// A camera opened by device ID for as long as the object lives.
class OpenedCamera final
{
    Q_DISABLE_COPY_MOVE(OpenedCamera)

public:
    // Null and a failure naming the driver's code when the camera can't be opened.
    static std::unique_ptr<OpenedCamera> open(quint32 deviceId, Result* result);
    ~OpenedCamera();

    quint32 handle() const { return m_handle; }
    quint32 deviceId() const { return m_deviceId; }

private:
    OpenedCamera(quint32 deviceId, quint32 handle);

    quint32 m_deviceId;
    quint32 m_handle;
};
