// The accurate inversion: de Hoog, Knight and Stokes in bands of t. Every
// band is summed with two parameter sets (period 2T' with T' = 2 t1 and with
// T' = t1, t1 the band's last t); the error estimate is the larger of the
// two disagreements (the fraction against itself cut two levels earlier, and
// the two sets against each other) and never below the rounding floor. Points
// whose estimate misses the target are tried again with shorter bands and
// more terms before they are marked as not converged.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "transform/accurate/laplace_function.h"

namespace lapdesk {

struct AccurateParameters {
    int M = 32;              // 2M+1 values of F per band and parameter set
    double tol = 1e-13;      // aimed discretisation error
    double alpha = 0.0;      // F is taken as analytic for Re s > alpha
    double bandRatio = 4.0;  // a band runs from t0 to bandRatio * t0
    double target = 1e-10;   // estimate aimed at, relative to max |f|
};

enum class PointState { Converged, NotConverged, NotApplicable };

struct AccuratePoint {
    double t = 0.0;
    double value = 0.0;
    double estimate = 0.0;  // bound on |error| as far as the method can tell
    PointState state = PointState::NotApplicable;
};

struct AccurateResult {
    std::vector<AccuratePoint> points;  // one per requested t, in order
    std::int64_t evaluations = 0;       // values of F asked for
    std::vector<std::string> problems;  // why bands were not applicable
    bool stopped = false;               // F asked to stop; the rest is not applicable
};

// times must be greater than 0 and ascending.
AccurateResult InvertAccurately(const LaplaceFunction& f, std::span<const double> times,
                                const AccurateParameters& parameters = {});

}  // namespace lapdesk
