#pragma once

#include "common/result.h"

#include <QCoreApplication>
#include <QString>

// The camera's fixed-pattern-noise calibration: a run takes a while, the
// camera reports its progress, and the calibration in use is either the
// factory's or the last one run on the camera.
class FpnCalibration final
{
    Q_DECLARE_TR_FUNCTIONS(FpnCalibration)

public:
    struct State
    {
        bool running = false;
        int progress = 0; // percent
        bool userCalibration = false;
        int lastResult = 0; // of the last run: 0, PV_ERR_CANCELLED or the driver's code
        double residualNoise = 0; // digital numbers
        QString date;
    };

    static Result read(quint32 handle, State* state);
    // Confirmed by the camera reporting the run.
    static Result start(quint32 handle);
    static Result cancel(quint32 handle);
    // Confirmed by the camera reporting the factory calibration in use.
    static Result resetToFactory(quint32 handle);

    // "Calibrated on <date> ..." for the calibration in use and the last run.
    static QString describe(const State& state);

private:
    // Runs the command and reads the state back; confirmed(state) decides.
    static Result commandConfirmed(quint32 handle, quint32 command, const QString& what,
                                   bool (*confirmed)(const State& state));
};
