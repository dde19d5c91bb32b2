#pragma once

// Times each benchmark iteration on its own and reports the median and the
// 99th percentile of those times as counters.

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <string>
#include <vector>

class IterationTimes
{
public:
    using Clock = std::chrono::steady_clock;

    void add(Clock::time_point start)
    {
        m_times.push_back(std::chrono::duration<double>(Clock::now() - start).count());
    }

    // scale: 1e3 for milliseconds, 1e6 for microseconds.
    void report(benchmark::State& state, const std::string& unit, double scale)
    {
        if (m_times.empty())
            return;
        std::sort(m_times.begin(), m_times.end());
        state.counters["median_" + unit] = percentile(0.5) * scale;
        state.counters["p99_" + unit] = percentile(0.99) * scale;
    }

private:
    double percentile(double fraction) const
    {
        const auto rank = std::size_t(std::ceil(fraction * double(m_times.size())));
        return m_times[std::clamp<std::size_t>(rank, 1, m_times.size()) - 1];
    }

    std::vector<double> m_times; // seconds
};
