// Where a sequence of magnitudes (|F| along a line, at equal steps) has its
// last peak that rises clearly above the lowest value before it: a resonance
// of F, so f rings at about that height's frequency.
#pragma once

#include <algorithm>
#include <cstddef>
#include <limits>
#include <span>

namespace lapdesk {

// The index of that peak, or 0 when there is none.
inline std::size_t LastPeak(std::span<const double> magnitudes) {
    std::size_t peak = 0;
    double lowest = std::numeric_limits<double>::infinity();
    for (std::size_t k = 1; k + 1 < magnitudes.size(); ++k) {
        const double here = magnitudes[k];
        lowest = std::min(lowest, here);
        if (here > magnitudes[k - 1] && here >= magnitudes[k + 1] && here > 1.01 * lowest) peak = k;
    }
    return peak;
}

}  // namespace lapdesk
