// The accurate inversion: de Hoog, Knight and Stokes in bands of t. Every
// band is summed with two parameter sets (period 2T' with T' = 2 t1, and with
// T' = 2.5 t1 as the check; t1 is the band's last t), because one set can be
// wrong while agreeing with itself (sin(10t)/10 with T' = 2 t1 is 1e-4 off).
// The error estimate is the larger of the two disagreements (the fraction
// against itself cut two levels earlier, and the two sets against each
// other), never below the rounding floor eps * e^(gamma t)/T' * sum |a_k|.
// Points whose estimate misses the target are tried again with shorter bands,
// other periods and more terms before they are marked as not converged.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "transform/accurate/laplace_function.h"

namespace lapdesk {

struct AccurateParameters {
    int M = 32;  // 2M+1 values of F per band and parameter set
    // Aimed discretisation error. 1e-14 rather than 1e-13: a program such as
    // Sqrt(p+0.5)-Sqrt(p+0.25) loses digits to cancellation in every value,
    // and the smaller tol moves the lines so that it still ends near 1e-11.
    double tol = 1e-14;
    double alpha = 0.0;      // F is taken as analytic for Re s > alpha
    double bandRatio = 4.0;  // a band runs from t0 to bandRatio * t0
    double target = 1e-10;   // estimate aimed at, relative to max(max |f|, 1)
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
