#pragma once

// Times each benchmark iteration on its own and reports the median and the
// 99th percentile of those times as counters.

#include "samplestatistics.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <string>

class IterationTimes
{
public:
    using Clock = std::chrono::steady_clock;

    void add(Clock::time_point start)
    {
        m_seconds.add(std::chrono::duration<double>(Clock::now() - start).count());
    }

    // scale: 1e3 for milliseconds, 1e6 for microseconds.
    void report(benchmark::State& state, const std::string& unit, double scale)
    {
        if (m_seconds.empty())
            return;
        state.counters["median_" + unit] = m_seconds.median() * scale;
        state.counters["p99_" + unit] = m_seconds.percentile(0.99) * scale;
    }

private:
    SampleStatistics m_seconds;
};
