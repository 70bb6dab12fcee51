#include "transform/accurate/fft_tolerance.h"

#include <algorithm>
#include <cmath>

#include "transform/accurate/accuracy_run.h"
#include "transform/accurate/line_values.h"

namespace lapdesk {

namespace {

// Each part of the error is aimed at this share of the tolerance, so that
// both together meet it.
constexpr double kPartShare = 0.4;
constexpr int kLargestN = 4096;
constexpr double kPaidOff = 2.0 / 3.0;
constexpr double kAsGood = 1.1;

// A run's band, told apart into its parts, relative to max |f|, over the
// reliable part of the record.
struct Measured {
    FftErrorBand band;
    double total = 0.0;
    double damping = 0.0;
    double points = 0.0;
};

Measured Measure(const TransformDriver& driver, const LaplaceFunction& f) {
    Measured m{EstimateFftError(driver, f, LineValuesFromStore(driver)), 0, 0, 0};
    if (!m.band.ok) return m;
    const Conditions c = driver.GetConditions();
    const ReliablePart part = ReliablePartOf(c);
    double maxAbs = 0.0;
    for (int n = part.first; n <= part.last; ++n) {
        maxAbs = std::max(maxAbs, std::abs(driver.Store()[kResult].Values[n]));
        m.total = std::max(m.total, m.band.band[n]);
        m.damping = std::max(m.damping, m.band.dampingTerm[n]);
        m.points = std::max(m.points, m.band.pointTerm[n]);
    }
    const double scale = maxAbs > 0 ? maxAbs : 1.0;
    m.total /= scale;
    m.damping /= scale;
    m.points /= scale;
    return m;
}

// Makes the data at N and gamma0 (T unchanged) and inverts them.
Outcome MakeRun(TransformDriver& driver, const LaplaceFunction& f, const LineValues& known, int n,
                double gamma0, FftChoice& choice) {
    driver.SetN(n);
    driver.SetGamma0(gamma0);
    return MakeFftRun(driver, f, known, choice.evaluations, choice.stopped);
}

// The next N and gamma0: each part brought to its share of the tolerance,
// points as if the error fell as 1/N^order, damping by its exponent. Never
// less than now.
void NextParameters(const Measured& m, double tol, double order, int& n, double& gamma0) {
    const double aim = kPartShare * tol;
    // To a tenth, upwards: a gamma0 the user reads and types as easily.
    if (m.damping > aim)
        gamma0 = std::min(kLargestTolerateGamma0,
                          std::ceil(10 * (gamma0 + std::log(m.damping / aim))) / 10);
    if (m.points > aim) {
        const double wanted = n * std::pow(m.points / aim, 1.0 / order);
        while (n < kLargestN && n < wanted)
            n *= 2;
    }
}

// How fast the points term fell from one run to a run with more points:
// 2 for a smooth f, 1 near a jump, less where the start of the record
// rules; between 0.5 and 2.
double ObservedOrder(const Measured& before, int nBefore, const Measured& after, int nAfter) {
    if (nAfter <= nBefore || before.points <= 0 || after.points <= 0) return 2.0;
    const double order =
        std::log(before.points / after.points) / std::log(static_cast<double>(nAfter) / nBefore);
    return std::clamp(order, 0.5, 2.0);
}

}  // namespace

FftChoice ChooseFftParameters(TransformDriver& driver, const LaplaceFunction& f, double tol) {
    FftChoice choice;
    Conditions c = driver.GetConditions();
    Measured best = Measure(driver, f);
    choice.evaluations += best.band.evaluations;
    choice.N = c.N;
    choice.gamma0 = c.Gamma0;
    if (!best.band.ok) {
        choice.stopped = best.band.stopped;
        choice.reason = best.band.reason;
        return choice;
    }
    int n = c.N;
    double gamma0 = c.Gamma0;
    LineValues bestLine;  // F on the best run's line, when not the first run
    double order = 2.0;   // of the points term, as if f were smooth until seen
    for (int run = 0; run < kMaxTolerateRuns && best.total > tol; ++run) {
        int nextN = n;
        double nextGamma0 = gamma0;
        NextParameters(best, tol, order, nextN, nextGamma0);
        if (nextN == n && nextGamma0 == gamma0) break;  // nothing left to raise
        TransformDriver trial;
        trial.SetT(driver.GetConditions().T);
        trial.SetHaning(driver.HaningOn());
        const Outcome made = MakeRun(trial, f, {}, nextN, nextGamma0, choice);
        if (!made.ok) {
            choice.reason = made.reason;
            break;
        }
        Measured m = Measure(trial, f);
        choice.evaluations += m.band.evaluations;
        if (!m.band.ok) {
            choice.stopped = m.band.stopped;
            choice.reason = m.band.reason;
            break;
        }
        order = ObservedOrder(best, n, m, nextN);
        n = nextN;
        gamma0 = nextGamma0;
        // A run that did not take a third off the error shows the limit of
        // the method for this F (rounding, or the start of the record): no
        // more runs.
        const bool paidOff = m.total <= kPaidOff * best.total;
        // A run about as good as the best is kept over it: it has more
        // points or damping, and the values spent on it are not wasted.
        if (m.total <= kAsGood * best.total) {
            best = std::move(m);
            bestLine = LineValuesFromStore(trial);
            choice.N = n;
            choice.gamma0 = trial.GetConditions().Gamma0;  // as the run read it
        }
        if (!paidOff) break;
    }
    // The driver takes the best run, remade from the values already taken.
    if (!bestLine.empty()) {
        const Outcome kept = MakeRun(driver, f, bestLine, choice.N, choice.gamma0, choice);
        if (!kept.ok) choice.reason = kept.reason;
    }
    choice.reached = best.total;
    choice.met = best.total <= tol;
    choice.band = std::move(best.band);
    return choice;
}

}  // namespace lapdesk
