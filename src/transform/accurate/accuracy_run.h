// Everything the accuracy features add to one damped-FFT result, in one call:
// the singularity check on the FFT's own samples, the error band of the FFT,
// and the accurate inversion on the result's grid t_n = n*T/N, n = 1..N-1
// (t = 0 is left out: the accurate method does not define it). The FFT
// result itself is only read.
#pragma once

#include <optional>
#include <vector>

#include "transform/accurate/dehoog_inversion.h"
#include "transform/accurate/fft_error_band.h"
#include "transform/accurate/singularity_check.h"
#include "transform/transform_driver.h"

namespace lapdesk {

struct AccuracyOptions {
    bool band = false;      // the FFT's error band
    bool accurate = false;  // the accurate inversion
    AccurateParameters parameters;
};

struct AccuracyReport {
    SingularityCheck check;
    std::optional<FftErrorBand> band;
    std::optional<AccurateResult> accurate;
    bool stopped = false;  // F asked to stop; later parts did not run
};

// The times of the accurate inversion for the driver's N and T.
std::vector<double> AccurateTimes(const Conditions& conditions);

// fft holds the result of a run on data made by f.
AccuracyReport RunAccuracyChecks(const TransformDriver& fft, const LaplaceFunction& f,
                                 const AccuracyOptions& options);

}  // namespace lapdesk
