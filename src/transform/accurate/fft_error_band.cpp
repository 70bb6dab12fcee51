#include "transform/accurate/fft_error_band.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <string>

namespace lapdesk {

namespace {

// One more run of the damped FFT with other N or gamma0. Values of F come
// from `known` where it has them, otherwise from f.
class ExtraRun {
  public:
    ExtraRun(const TransformDriver& base, int n, double gamma0) {
        driver_.SetN(n);
        driver_.SetT(base.GetConditions().T);
        driver_.SetGamma0(gamma0);
        driver_.SetHaning(base.HaningOn());
    }

    bool Run(const LaplaceFunction& f, const LineValues& known, FftErrorBand& out) {
        const Outcome made = MakeFftRun(driver_, f, known, out.evaluations, out.stopped);
        if (out.stopped) out.reason = "中断";
        if (!made.ok && !out.stopped) out.reason = "誤差帯の計算: " + made.reason;
        return made.ok && !out.stopped;
    }

    double Y(int k) const { return driver_.Store()[kResult].Values[k]; }

  private:
    TransformDriver driver_;
};

constexpr int kLargestN = 4096;

}  // namespace

FftErrorBand EstimateFftError(const TransformDriver& result, const LaplaceFunction& f,
                              const LineValues& line) {
    FftErrorBand out;
    const Conditions c = result.GetConditions();
    const std::vector<double>& y = result.Store()[kResult].Values;

    ExtraRun damped(result, c.N, c.Gamma0 + std::log(10.0));
    if (!damped.Run(f, {}, out)) return out;

    out.halvedPoints = c.N >= kLargestN;
    ExtraRun points(result, out.halvedPoints ? c.N / 2 : 2 * c.N, c.Gamma0);
    if (!points.Run(f, line, out)) return out;

    // |y(N) - y(other N)| at the result point n.
    const auto pointTerm = [&](int n) {
        if (!out.halvedPoints) return std::abs(y[n] - points.Y(2 * n));
        // An odd point has no N/2 partner: its even neighbours stand for it.
        if (n % 2 == 0) return std::abs(y[n] - points.Y(n / 2));
        double term = std::abs(y[n - 1] - points.Y(n / 2));
        if (n + 1 < c.N) term = std::max(term, std::abs(y[n + 1] - points.Y(n / 2 + 1)));
        return term;
    };
    std::vector<double> local(static_cast<std::size_t>(c.N));
    out.dampingTerm.resize(local.size());
    out.pointTerm.resize(local.size());
    for (int n = 0; n < c.N; ++n) {
        out.dampingTerm[n] = 1.5 * std::abs(y[n] - damped.Y(n)) / 0.9;
        out.pointTerm[n] = 1.5 * 4.0 / 3.0 * pointTerm(n);
        local[n] = out.dampingTerm[n] + out.pointTerm[n];
    }
    // The differences change sign where the error oscillates (f rings, or
    // rings after a jump) and can pass through 0 at a point whose error is
    // not 0: each point takes the largest of its neighbours within T/128,
    // but none from the untrusted first steps, whose error is of another
    // kind (and would swamp the start of the trusted part at large N).
    const int reach = std::max(1, c.N / 128);
    out.band.resize(static_cast<std::size_t>(c.N));
    for (int n = 0; n < c.N; ++n) {
        const int start = n >= kUnreliableFirstSteps ? kUnreliableFirstSteps : 0;
        const auto first = local.begin() + std::max(start, n - reach);
        const auto last = local.begin() + std::min<int>(c.N, n + reach + 1);
        out.band[n] = *std::max_element(first, last);
    }
    out.ok = true;
    return out;
}

}  // namespace lapdesk
