#pragma once

#include "camera/camera.h"
#include "common/result.h"

#include <QCoreApplication>
#include <QList>

#include <memory>
#include <optional>

// The camera ID stored in an open camera.
class CameraIdAccess final
{
    Q_DECLARE_TR_FUNCTIONS(CameraIdAccess)

public:
    static Result read(quint32 handle, quint32* id);
    // Refuses IDs outside 1-254 before asking the camera; confirms by reading back.
    static Result write(quint32 handle, quint32 id);
    // Another listed camera (not deviceId) that has the ID.
    static std::optional<quint32> holderOf(const QList<std::shared_ptr<Camera>>& cameras, quint32 deviceId,
                                           quint32 id);
};
