// Whether F can be what the damped FFT assumes: analytic and bounded for
// Re s > gamma = gamma0/T. If it is, its values on the sampling line fix its
// values to the right through the Poisson integral
//   F(gamma + a + jw) = (1/pi) * integral of F(gamma + jv) a / (a^2 + (v - w)^2) dv.
// The trapezoid sum over the FFT's own samples (and their conjugates below
// the real axis) predicts F at eight points, a*T in {10, 25, 60, 150} and
// w*T in {0, 10}; F is evaluated there, and
//   D = max |F - prediction| / max(|F|, the Poisson-weighted |F| on the line).
// D above 0.5 means F is not what the FFT assumes: a singularity on or to the
// right of the line.
#pragma once

#include <cstdint>
#include <string>

#include "transform/accurate/laplace_function.h"
#include "transform/accurate/line_values.h"
#include "transform/transform_driver.h"

namespace lapdesk {

enum class SingularityVerdict { Fine, Singular, CannotVerify };

// D above this: F is not analytic and bounded right of the line.
inline constexpr double kSingularD = 0.5;
// D above this: F is smooth enough for the FFT, but its singularities lie so
// near the line that f grows; the accurate inversion then shifts its own
// line by alpha = gamma0/T.
inline constexpr double kGrowthD = 0.1;

struct SingularityCheck {
    SingularityVerdict verdict = SingularityVerdict::CannotVerify;
    double D = 0.0;
    bool growth = false;
    std::int64_t evaluations = 0;
    bool stopped = false;
    std::string reason;  // why it cannot verify
};

// For data made by F; line holds F on the FFT's sampling line.
SingularityCheck CheckSingularity(const Conditions& conditions, const LineValues& line,
                                  const LaplaceFunction& f);

}  // namespace lapdesk
