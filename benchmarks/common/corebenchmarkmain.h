#pragma once

// The main function of a benchmark that needs a core application (events,
// queued signals) and the camera record's meta types.

#include "camera/camera.h"

#include <QCoreApplication>

#include <benchmark/benchmark.h>

inline int runCoreBenchmarks(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    Camera::registerMetaTypes();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
