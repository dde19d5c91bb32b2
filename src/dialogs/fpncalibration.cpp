#include "dialogs/fpncalibration.h"

#include "dialogs/cameracall.h"

#include <cstring>

Result FpnCalibration::read(quint32 handle, State* state)
{
    pv_FpnStatus status{};
    const int code = CameraCall::readFeature(handle, PV_FEATURE_FPN_STATUS, 0, status);
    if (code != PV_OK)
        return CameraCall::failed(code, tr("The state of the FPN calibration could not be read."));
    state->running = status.state == PV_FPN_RUNNING;
    state->progress = int(qMin<quint32>(status.progress, 100));
    state->userCalibration = status.source == PV_FPN_SOURCE_USER;
    state->lastResult = status.lastResult;
    state->residualNoise = status.residualNoise / 1000.0;
    state->date = QString::fromLatin1(status.date, int(strnlen(status.date, sizeof status.date)));
    return {};
}

Result FpnCalibration::start(quint32 handle)
{
    const QString what = tr("The FPN calibration could not be started.");
    if (Result started = CameraCall::command(handle, PV_CAMCMD_FPN_START, what); !started.isSuccess())
        return started;
    State state;
    if (Result r = read(handle, &state); !r.isSuccess())
        return r;
    return state.running || state.lastResult == PV_OK ? Result() : CameraCall::notConfirmed(what);
}

Result FpnCalibration::cancel(quint32 handle)
{
    return CameraCall::command(handle, PV_CAMCMD_FPN_CANCEL, tr("The FPN calibration could not be cancelled."));
}

Result FpnCalibration::resetToFactory(quint32 handle)
{
    const QString what = tr("The factory FPN calibration could not be restored.");
    if (Result reset = CameraCall::command(handle, PV_CAMCMD_FPN_FACTORY_RESET, what); !reset.isSuccess())
        return reset;
    State state;
    if (Result r = read(handle, &state); !r.isSuccess())
        return r;
    return state.userCalibration ? CameraCall::notConfirmed(what) : Result();
}

QString FpnCalibration::describe(const State& state)
{
    QString text = state.userCalibration
                       ? tr("Calibrated on the camera on %1, residual noise %2 DN.")
                       : tr("Factory calibration of %1, residual noise %2 DN.");
    text = text.arg(state.date).arg(state.residualNoise, 0, 'f', 3);
    if (state.lastResult == PV_ERR_CANCELLED)
        text += QLatin1Char('\n') + tr("The last calibration was cancelled; the calibration in use stayed.");
    else if (state.lastResult != PV_OK)
        text += QLatin1Char('\n') + tr("The last calibration failed (return code: %1).").arg(state.lastResult);
    return text;
}
