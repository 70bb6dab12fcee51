#include "transform/accurate/accuracy_run.h"

namespace lapdesk {

std::vector<double> AccurateTimes(const Conditions& c) {
    std::vector<double> times;
    for (int n = 1; n < c.N; ++n)
        times.push_back(c.TimeAt(n));
    return times;
}

AccuracyReport RunAccuracyChecks(const TransformDriver& fft, const LaplaceFunction& f,
                                 const AccuracyOptions& options) {
    AccuracyReport report;
    const Conditions c = fft.GetConditions();
    const LineValues line = LineValuesFromStore(fft);
    report.check = CheckSingularity(c, line, f);
    report.stopped = report.check.stopped;
    if (options.band && !report.stopped) {
        report.band = EstimateFftError(fft, f, line);
        report.stopped = report.band->stopped;
    }
    if (options.accurate && !report.stopped) {
        AccurateParameters parameters = options.parameters;
        // Growth: f rises so fast that the method's own line must move right
        // with the FFT's (a singularity near gamma0/T, left of it).
        if (report.check.growth) parameters.alpha = c.Gamma();
        report.accurate = InvertAccurately(f, AccurateTimes(c), parameters);
        report.stopped = report.accurate->stopped;
    }
    return report;
}

}  // namespace lapdesk
