#pragma once

// Median and percentiles of timed samples, for benchmarks that time every
// iteration on its own.

#include <algorithm>
#include <cmath>
#include <vector>

class SampleStatistics
{
public:
    void add(double sample) { m_samples.push_back(sample); }
    bool empty() const { return m_samples.empty(); }

    // The nearest-rank percentile; fraction 0.5 is the median.
    double percentile(double fraction)
    {
        std::sort(m_samples.begin(), m_samples.end());
        const auto rank = std::size_t(std::ceil(fraction * double(m_samples.size())));
        return m_samples[std::clamp<std::size_t>(rank, 1, m_samples.size()) - 1];
    }
    double median() { return percentile(0.5); }

private:
    std::vector<double> m_samples;
};
