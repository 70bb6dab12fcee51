// The damped FFT's N and gamma0 chosen for a tolerance the user asks for.
// The FFT's error has two parts, which its band measures apart: aliasing,
// about e^-gamma0 * f(t + T), which more damping shrinks (until rounding,
// magnified by e^gamma0, takes over), and the discretisation, which more
// points shrink. From the band of the run at hand each part's share of the
// tolerance says how much more damping and how many more points the next
// run takes; runs go on while each takes a third off the error, at most
// kMaxTolerateRuns, and the best run reached stays in the driver. T stays as
// the user set it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "transform/accurate/fft_error_band.h"
#include "transform/accurate/laplace_function.h"
#include "transform/transform_driver.h"

namespace lapdesk {

inline constexpr int kMaxTolerateRuns = 3;  // runs after the first
// Beyond this gamma0 rounding, magnified by e^gamma0, costs more digits than
// the aliasing it removes.
inline constexpr double kLargestTolerateGamma0 = 28.0;

struct FftChoice {
    int N = 0;
    double gamma0 = 0.0;
    double reached = 0.0;  // the band's largest value over max |f|, reliable part
    bool met = false;
    std::int64_t evaluations = 0;  // values of F the search took beyond the first run
    bool stopped = false;
    std::string reason;                // why the search could not go on, if it failed
    std::optional<FftErrorBand> band;  // of the run kept in the driver
};

// driver holds the FFT run made by f at the user's N and gamma0.
FftChoice ChooseFftParameters(TransformDriver& driver, const LaplaceFunction& f, double tol);

}  // namespace lapdesk
