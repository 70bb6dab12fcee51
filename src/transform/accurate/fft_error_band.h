// The error band of the damped FFT: the same method run twice more, once with
// the damping raised by ln 10 and once with twice the points over the same T,
// and per result point
//   band = 1.5 * (|y(g0) - y(g0 + ln 10)| / 0.9 + 4/3 * |y(N) - y(2N)|),
// widened to the largest value within T/128 of the point.
// The 2N run shares its first N/2 + 1 sample points with the result's own
// run, so those values of F are reused. When N is already the largest the
// window offers, twice N cannot run: the point-count term compares y(N) with
// y(N/2) instead (no new values of F) and keeps the factor 4/3. With an error
// that falls as 1/N^2 that term is then four times the error instead of one
// time; the band errs on the wide side rather than the narrow one.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "transform/accurate/laplace_function.h"
#include "transform/accurate/line_values.h"
#include "transform/transform_driver.h"

namespace lapdesk {

// The first steps of the record ring around the jump at t = 0 (the result
// there is half of f(0+)): the FFT is not trusted there.
inline constexpr int kUnreliableFirstSteps = 4;

struct FftErrorBand {
    bool ok = false;
    std::vector<double> band;  // for the result points k = 0..N-1
    // The band's two terms at each point before the widening: what more
    // damping and what more points would change.
    std::vector<double> dampingTerm;
    std::vector<double> pointTerm;
    std::int64_t evaluations = 0;
    bool halvedPoints = false;  // the point-count term used N/2
    bool stopped = false;
    std::string reason;  // why there is no band
};

// result is the driver of the FFT run the band is for (with its result);
// line holds F on its sampling line where known.
FftErrorBand EstimateFftError(const TransformDriver& result, const LaplaceFunction& f,
                              const LineValues& line);

}  // namespace lapdesk
