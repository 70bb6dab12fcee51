// Scores both methods on one Laplace pair with an exact inverse, run through
// the real interpreter, with the FFT, its band and the accurate inversion
// made as "実行" and `lapdesk-cli invert --method dehoog` make them. The
// FFT is scored over its reliable part: how often its band covers the error,
// and its silent points (error above 3 times the band and above 1e-6 of the
// scale while the singularity check passed). The accurate inversion over all
// its points: how often its estimate covers the error (points whose error
// exceeds 1e-12 of the scale), its silent points (shown as accurate, yet off
// by more than 1e-6 of the scale) and the points it flagged. The scale is
// max(max |f|, 1).
#pragma once

#include <cmath>
#include <string>

#include "interp/recording_view.h"
#include "transform/program/program_function.h"
#include "transform/program/program_sampling.h"
#include "values/number_text.h"

namespace lapdesk::pair_scores {

struct Case {
    std::string name;
    std::string program;
    double T;
    double gamma0;
    double (*f)(double);
};

struct Tally {
    int points = 0, covered = 0, silent = 0, flagged = 0;
    double error = 0.0;
    void Merge(const Tally& o) {
        points += o.points;
        covered += o.covered;
        silent += o.silent;
        flagged += o.flagged;
    }
    double Coverage() const { return points ? 100.0 * covered / points : 100.0; }
};

struct CaseResult {
    Tally fft, accurate;
    long long evaluations = 0;
    double D = 0.0;
    bool made = false;
    bool fftFlagged = false;  // the singularity check said the FFT result is not to be trusted
};

inline CaseResult RunCase(const Case& c, int n) {
    CaseResult out;
    RecordingView view;
    Interpreter session(view);
    session.SetProgramText(c.program);
    TransformDriver driver;
    driver.SetWordNumber(std::to_string(n));
    driver.SetTend(DoubleToText(c.T));
    driver.SetGanma(DoubleToText(c.gamma0));
    if (!TesmorDataSet(driver, session)) return out;
    out.made = true;
    const AccuracyReport report =
        RunAccuracyChecksOnProgram(driver, session, AccuracyOptionsFor(true, true));
    out.D = report.check.D;
    out.evaluations = report.accurate->evaluations;
    const Conditions cond = driver.GetConditions();
    const ReliablePart part = ReliablePartOf(cond);
    double scale = 1.0;
    for (int k = 1; k < cond.N; ++k)
        scale = std::max(scale, std::abs(c.f(cond.TimeAt(k))));
    const bool fftFlagged = report.check.verdict != SingularityVerdict::Fine;
    out.fftFlagged = fftFlagged;
    for (int k = part.first; k <= part.last; ++k) {
        const double t = cond.TimeAt(k);
        const double error = std::abs(driver.Store()[kResult].Values[k] - c.f(t));
        const double band = report.band->band[k];
        out.fft.error = std::max(out.fft.error, error);
        ++out.fft.points;
        if (std::max(band, 1e-12 * scale) >= std::max(error, 1e-12 * scale)) ++out.fft.covered;
        if (!fftFlagged && error > std::max(3 * band, 1e-6 * scale)) ++out.fft.silent;
    }
    for (const AccuratePoint& p : report.accurate->points) {
        if (p.state != PointState::Converged) {
            ++out.accurate.flagged;
            continue;
        }
        const double error = std::abs(p.value - c.f(p.t));
        out.accurate.error = std::max(out.accurate.error, error);
        if (error > 1e-6 * scale) ++out.accurate.silent;
        if (error <= 1e-12 * scale) continue;
        ++out.accurate.points;
        if (p.estimate >= error) ++out.accurate.covered;
    }
    return out;
}

}  // namespace lapdesk::pair_scores
