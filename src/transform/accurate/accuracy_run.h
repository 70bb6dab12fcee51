// Everything the accuracy features add to one damped-FFT result, in one call:
// the singularity check on the FFT's own samples, the error band of the FFT,
// and the accurate inversion on the result's grid t_n = n*T/N, n = 1..N-1
// (t = 0 is left out: the accurate method does not define it). The accurate
// inversion always has the band beside it: where the check finds F fit for
// the FFT, every accurate point over the FFT's reliable part is compared with
// the FFT's value and band. The FFT result itself is only read.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "transform/accurate/dehoog_inversion.h"
#include "transform/accurate/end_values.h"
#include "transform/accurate/fft_error_band.h"
#include "transform/accurate/singularity_check.h"
#include "transform/transform_driver.h"

namespace lapdesk {

// The result indices where the FFT can be trusted, first..last inclusive:
// from the fourth step (t = 0 is half of f(0+), and the first steps ring
// around that jump) to 0.8 T (the end of the record carries the wrap-around).
struct ReliablePart {
    int first = 0;
    int last = 0;
};
ReliablePart ReliablePartOf(const Conditions& conditions);

struct AccuracyOptions {
    bool band = false;      // the FFT's error band (always made for the accurate inversion)
    bool accurate = false;  // the accurate inversion
    AccurateParameters parameters;
    // Told the number of values of F taken so far, after each one, so that a
    // long run can show that it is alive.
    std::function<void(std::int64_t evaluations)> progress;
    // The times for the accurate inversion, greater than 0, in any order;
    // empty: the FFT's grid. Off the grid there is no FFT value to compare
    // with: such points are judged by the method's own checks alone.
    std::vector<double> times;
    // The band of this very run when it was made already (by the choice of
    // N and gamma0 for a tolerance).
    std::optional<FftErrorBand> bandMade;
};

// The band and the accurate inversion as chosen, the rest as by default.
inline AccuracyOptions AccuracyOptionsFor(bool band, bool accurate) {
    AccuracyOptions options;
    options.band = band;
    options.accurate = accurate;
    return options;
}

struct AccuracyReport {
    SingularityCheck check;
    std::optional<FftErrorBand> band;
    std::optional<AccurateResult> accurate;
    std::optional<EndValues> ends;  // f(0+) and f(inf), made beside the band
    bool stopped = false;           // F asked to stop; later parts did not run
};

// The times of the accurate inversion for the driver's N and T: t_n, n = 1..N-1.
std::vector<double> AccurateTimes(const Conditions& conditions);

// fft holds the result of a run on data made by f.
AccuracyReport RunAccuracyChecks(const TransformDriver& fft, const LaplaceFunction& f,
                                 const AccuracyOptions& options);

}  // namespace lapdesk
