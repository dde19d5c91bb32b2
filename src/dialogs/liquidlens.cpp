#include "dialogs/liquidlens.h"

#include "dialogs/cameracall.h"

Result LiquidLens::read(quint32 handle, pv_LiquidLens* lens)
{
    const int code = CameraCall::readFeature(handle, PV_FEATURE_LIQUID_LENS, 0, *lens);
    return code == PV_OK ? Result() : CameraCall::failed(code, tr("The liquid lens could not be read."));
}

Result LiquidLens::set(quint32 handle, const pv_LiquidLens& range, qint32 power)
{
    if (power < range.minimum || power > range.maximum)
        return {PV_ERR_INVALID_PARAMETER, tr("The lens takes focal powers from %1 to %2.")
                                              .arg(dioptres(range.minimum), dioptres(range.maximum))};
    pv_LiquidLens lens = range;
    lens.current = power;
    return CameraCall::writeConfirmed(handle, PV_FEATURE_LIQUID_LENS, 0, lens,
                                      tr("The focal power could not be set."),
                                      [](const pv_LiquidLens& written, const pv_LiquidLens& back) {
                                          return written.current == back.current;
                                      });
}

Result LiquidLens::storeAsStartup(quint32 handle)
{
    const QString what = tr("The focal power could not be stored as start-up value.");
    if (Result stored = CameraCall::command(handle, PV_CAMCMD_LENS_STORE_STARTUP, what); !stored.isSuccess())
        return stored;
    pv_LiquidLens lens{};
    if (Result r = read(handle, &lens); !r.isSuccess())
        return r;
    return lens.startup == lens.current ? Result() : CameraCall::notConfirmed(what);
}

QString LiquidLens::dioptres(qint32 hundredths)
{
    return tr("%1 dpt").arg(hundredths / 100.0, 0, 'f', 2);
}
