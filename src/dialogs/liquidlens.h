#pragma once

#include "common/result.h"

#include <cirro_api.h>

#include <QCoreApplication>

// The focal power of a camera's liquid lens, in 1/100 dioptre, within the
// range the camera reports.
class LiquidLens final
{
    Q_DECLARE_TR_FUNCTIONS(LiquidLens)

public:
    static Result read(quint32 handle, pv_LiquidLens* lens);
    // Refuses a power outside the lens's range; confirmed by reading back.
    static Result set(quint32 handle, const pv_LiquidLens& range, qint32 power);
    // The current power becomes the start-up value; confirmed by reading back.
    static Result storeAsStartup(quint32 handle);
    static QString dioptres(qint32 hundredths);
};
