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

Result FpnCalibration::commandConfirmed(quint32 handle, quint32 command, const QString& what,
                                        bool (*confirmed)(const State& state))
{
    if (Result sent = CameraCall::command(handle, command, what); !sent.isSuccess())
        return sent;
    State state;
    if (Result r = read(handle, &state); !r.isSuccess())
        return r;
    return confirmed(state) ? Result() : CameraCall::notConfirmed(what);
}

Result FpnCalibration::start(quint32 handle)
{
    // A short calibration may be over by the time it is read back.
    return commandConfirmed(handle, PV_CAMCMD_FPN_START, tr("The FPN calibration could not be started."),
                            [](const State& state) { return state.running || state.lastResult == PV_OK; });
}

Result FpnCalibration::cancel(quint32 handle)
{
    return CameraCall::command(handle, PV_CAMCMD_FPN_CANCEL, tr("The FPN calibration could not be cancelled."));
}

Result FpnCalibration::resetToFactory(quint32 handle)
{
    return commandConfirmed(handle, PV_CAMCMD_FPN_FACTORY_RESET,
                            tr("The factory FPN calibration could not be restored."),
                            [](const State& state) { return !state.userCalibration; });
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
