// The accurate inversion: de Hoog, Knight and Stokes in bands of t.
//
// Every band is summed with two parameter sets: the primary one (period 2T',
// T' = a factor times the band's last t) and a check with a longer period.
// The primary set's terms grow with F: its fraction is cut at depth M and at
// depth 2M (the nodes of depth M are the first half of those of depth 2M, so
// doubling costs 2M more values), and M doubles until the two agree within
// the target or the cap is reached. So the value shown has always been
// compared with a sum that saw F only to half the height in frequency, and
// with the check set, which sees other nodes and another aliasing. Its
// estimate is the larger of the two disagreements, never below the rounding
// floor eps * e^(gamma t)/T' * sum |a_k|.
//
// A reference (the damped FFT and its error band at the same t, an
// independent method) catches what both sets miss together, such as a
// resonance above every node: a point that differs from its reference by more
// than both estimates makes its whole band suspect. Points that miss the
// target or their reference are summed again with shorter bands and more
// terms; what still misses is flagged, never shown as accurate.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "transform/accurate/laplace_function.h"

namespace lapdesk {

struct AccurateParameters {
    int M = 32;      // first depth of a band's primary fraction (2M+1 values)
    int maxM = 256;  // cap on that depth (and 4096 values per parameter set)
    // Aimed discretisation error. 1e-14 rather than 1e-13: a program such as
    // Sqrt(p+0.5)-Sqrt(p+0.25) loses digits to cancellation in every value,
    // and the smaller tol moves the lines so that it still ends near 1e-11.
    double tol = 1e-14;
    double alpha = 0.0;      // F is taken as analytic for Re s > alpha
    double bandRatio = 4.0;  // a band runs from t0 to bandRatio * t0
    double target = 1e-10;   // estimate aimed at, relative to max(max |f|, 1)
    // Im s of the highest resonance of F known beforehand (0: none); every
    // sum takes F at least that high.
    double resonance = 0.0;
};

enum class PointState {
    Converged,     // the estimate meets the target and the reference agrees
    NotConverged,  // the estimate stayed above the target after every retry
    Disagrees,     // differs from its reference by more than both estimates
    NotApplicable  // F failed at a node of every sum that covered the point
};

struct AccuratePoint {
    double t = 0.0;
    double value = 0.0;
    double estimate = 0.0;  // bound on |error| as far as the method can tell
    PointState state = PointState::NotApplicable;
};

// An independent value of f at a requested t and a bound on its error.
struct ReferencePoint {
    double value = 0.0;
    double bound = 0.0;
};
using References = std::vector<std::optional<ReferencePoint>>;  // one per time, or empty

struct AccurateResult {
    std::vector<AccuratePoint> points;  // one per requested t, in order
    std::int64_t evaluations = 0;       // values of F asked for
    std::vector<std::string> problems;  // why bands were not applicable
    bool stopped = false;               // F asked to stop; the rest is not applicable
};

// times must be greater than 0 and ascending; references, when not empty,
// has one entry per time.
AccurateResult InvertAccurately(const LaplaceFunction& f, std::span<const double> times,
                                const AccurateParameters& parameters = {},
                                const References& references = {});

}  // namespace lapdesk
