// What the accuracy features found, as the texts the window and the
// command-line tool show. Each is empty when there is nothing to say. Every
// text names the result it is about (the damped FFT's or the accurate one)
// and advises only what helps that result.
#pragma once

#include <string>

#include "transform/accurate/accuracy_run.h"
#include "transform/accurate/fft_tolerance.h"

namespace lapdesk {

// The singularity check's finding about the FFT result: a singularity on or
// right of the line, or that it could not verify. With the accurate result
// beside it, also whether that one is affected (it sums on a line of its own).
std::string SingularityMessage(const AccuracyReport& report, const Conditions& conditions);

// Points of the accurate inversion left out, with the first reason.
std::string NotApplicableMessage(const AccurateResult& result);

// Points flagged because their estimate stayed above the target, and points
// flagged because they contradict the FFT and its band, with their t range.
std::string NotConvergedMessage(const AccurateResult& result);
std::string DisagreementMessage(const AccurateResult& result);

// The largest estimated error of a result, and of max |f|, over the part
// the summary speaks of.
struct ErrorSummary {
    bool ok = false;  // false: nothing to summarise
    double largest = 0.0;
    double maxAbs = 0.0;
};

// The FFT's band over its reliable part; the accurate estimates over its
// converged points.
ErrorSummary SummariseFft(const TransformDriver& fft, const FftErrorBand& band);
ErrorSummary SummariseAccurate(const AccurateResult& result);

// One line for the user: "減衰FFT の推定誤差: …" or "高精度逆変換の推定誤差: …".
std::string SummaryLine(const ErrorSummary& summary, bool accurate);
// Above this share of max |f| the summary comes with a warning.
inline constexpr double kLargeErrorShare = 0.01;
std::string LargeErrorMessage(const ErrorSummary& summary, bool accurate);

// "f(0+) = 1 (±2e-09)" and "f(∞) = 0.5 (±1e-10)", or what kept each limit
// from being claimed.
std::string InitialValueLine(const EndValues& ends);

// What the choice of N and gamma0 for a tolerance chose and reached.
std::string FftChoiceLine(const FftChoice& choice, double tol);
std::string FinalValueLine(const EndValues& ends);

}  // namespace lapdesk
