// The five series the transform window keeps: kind 0 the real parts of the
// scaled spectrum samples, kind 1 their imaginary parts, kind 2 the result
// f(t_k); kinds 3 and 4 are spare channels. Each keeps the extreme values
// that scale its plot.
#pragma once

#include <array>
#include <vector>

namespace lapdesk {

// Entries per series (indices 0..4096).
inline constexpr int kSeriesLength = 4097;

enum SampleKind : int { kSampleRe = 0, kSampleIm = 1, kResult = 2 };

struct SampleSeries {
    std::vector<double> Values = std::vector<double>(kSeriesLength);
    double MaxValue = 0.0;
    double MinValue = 0.0;
};

struct SampleStore {
    std::array<SampleSeries, 5> Kinds;

    SampleSeries& operator[](int kind) { return Kinds.at(kind); }
    const SampleSeries& operator[](int kind) const { return Kinds.at(kind); }

    // Sets the extreme values of one series from its first count entries.
    void GetMaxValue(int kind, int count);
};

}  // namespace lapdesk
