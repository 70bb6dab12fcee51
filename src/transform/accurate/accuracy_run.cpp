#include "transform/accurate/accuracy_run.h"

#include <cmath>

#include "transform/accurate/last_peak.h"
#include "transform/accurate/time_grid.h"

namespace lapdesk {

namespace {

// The FFT's value and band at the accurate inversion's times, over the
// FFT's reliable part; none where F is not what the FFT assumes.
References FftReferences(const TransformDriver& fft, const FftErrorBand& band,
                         const SingularityCheck& check) {
    const Conditions c = fft.GetConditions();
    References references(static_cast<std::size_t>(c.N - 1));
    if (!band.ok || check.verdict != SingularityVerdict::Fine) return references;
    const ReliablePart part = ReliablePartOf(c);
    for (int n = part.first; n <= part.last; ++n)
        references[n - 1] = ReferencePoint{fft.Store()[kResult].Values[n], band.band[n]};
    return references;
}

// Im s of the last resonance of F on the FFT's sampling line.
double ResonanceHeight(const Conditions& c, const LineValues& line) {
    std::vector<double> magnitudes;
    for (const std::optional<Complex>& value : line) {
        if (!value) break;
        magnitudes.push_back(std::hypot(value->Re, value->Im));
    }
    return static_cast<double>(LastPeak(magnitudes)) * c.DeltaOmega();
}

// The points in the order the times were asked for.
AccurateResult InvertAtTimes(const LaplaceFunction& f, const std::vector<double>& times,
                             const AccurateParameters& parameters) {
    const SortedTimes sorted = SortTimes(times);
    AccurateResult result = InvertAccurately(f, sorted.times, parameters);
    std::vector<AccuratePoint> asked(times.size());
    for (std::size_t k = 0; k < sorted.askedAt.size(); ++k)
        asked[sorted.askedAt[k]] = result.points[k];
    result.points = std::move(asked);
    return result;
}

}  // namespace

ReliablePart ReliablePartOf(const Conditions& c) {
    return {kUnreliableFirstSteps, static_cast<int>(std::nearbyint(kReliableFraction * c.N))};
}

std::vector<double> AccurateTimes(const Conditions& c) {
    std::vector<double> times;
    for (int n = 1; n < c.N; ++n)
        times.push_back(c.TimeAt(n));
    return times;
}

AccuracyReport RunAccuracyChecks(const TransformDriver& fft, const LaplaceFunction& plainF,
                                 const AccuracyOptions& options) {
    std::int64_t taken = 0;
    const LaplaceFunction counted = [&](const Complex& s) {
        const FValue value = plainF(s);
        options.progress(++taken);
        return value;
    };
    const LaplaceFunction& f = options.progress ? counted : plainF;
    AccuracyReport report;
    const Conditions c = fft.GetConditions();
    const LineValues line = LineValuesFromStore(fft);
    report.check = CheckSingularity(c, line, f);
    report.stopped = report.check.stopped;
    if ((options.band || options.accurate) && !report.stopped) {
        report.band = options.bandMade ? *options.bandMade : EstimateFftError(fft, f, line);
        report.stopped = report.band->stopped;
    }
    AccurateParameters parameters = options.parameters;
    // Growth: f rises so fast that the method's own line must move right
    // with the FFT's (a singularity near gamma0/T, left of it).
    if (report.check.growth) parameters.alpha = c.Gamma();
    parameters.resonance = ResonanceHeight(c, line);
    if (options.accurate && !report.stopped) {
        report.accurate = options.times.empty()
                              ? InvertAccurately(f, AccurateTimes(c), parameters,
                                                 FftReferences(fft, *report.band, report.check))
                              : InvertAtTimes(f, options.times, parameters);
        report.stopped = report.accurate->stopped;
    }
    if (report.band && !report.stopped) {
        report.ends = FindEndValues(f, c.T, parameters);
        report.stopped = report.ends->stopped;
    }
    return report;
}

}  // namespace lapdesk
