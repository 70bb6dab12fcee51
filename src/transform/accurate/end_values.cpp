#include "transform/accurate/end_values.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <vector>

namespace lapdesk {

namespace {

// s*F(s) has settled when two successive steps between decades are below
// this share of max(|s*F(s)|, 1) and the second is no larger than the first.
constexpr double kSettled = 1e-8;
// A step's size, times this, bounds the distance still to go (the steps
// shrink at least geometrically once settled).
constexpr double kStepSafety = 2.0;
// The decades of s tried: 10^1 .. 10^16 upwards, 10^-1 .. 10^-12 downwards.
constexpr int kUpwardDecades = 16;
constexpr int kDownwardDecades = 12;

class Limit {
  public:
    Limit(const LaplaceFunction& f, EndValues& out) : f_(f), out_(out) {}

    // s*F(s) along s = 10^(sign*k), k = 1..decades, until it settles.
    EndValue Along(int sign, int decades) {
        std::vector<double> g;
        for (int k = 1; k <= decades; ++k) {
            const double s = std::pow(10.0, sign * k);
            const std::optional<double> value = SF(s);
            if (!value) return {};
            g.push_back(*value);
            const std::size_t n = g.size();
            if (n < 3) continue;
            const double scale = std::max(1.0, std::abs(g[n - 1]));
            const double first = std::abs(g[n - 2] - g[n - 3]);
            const double second = std::abs(g[n - 1] - g[n - 2]);
            if (first <= kSettled * scale && second <= first)
                return {true, g[n - 1], std::max(kStepSafety * second, 1e-15 * scale)};
        }
        return {};
    }

  private:
    // Real for a real f; a value with an imaginary part is not a limit of
    // f's kind.
    std::optional<double> SF(double s) {
        ++out_.evaluations;
        const FValue v = f_(Complex{s, 0.0});
        if (v.stopped) out_.stopped = true;
        if (!v.ok || !std::isfinite(v.value.Re) || !std::isfinite(v.value.Im)) return {};
        const double re = s * v.value.Re;
        const double im = s * v.value.Im;
        if (!std::isfinite(re) || std::abs(im) > kSettled * std::max(1.0, std::abs(re))) return {};
        return re;
    }

    const LaplaceFunction& f_;
    EndValues& out_;
};

// f itself at 10 T, 100 T and 1000 T must be the limit, within its estimate.
bool FSettlesAt(const LaplaceFunction& f, double T, const AccurateParameters& parameters,
                EndValue& limit, EndValues& out) {
    const std::array<double, 3> times{10 * T, 100 * T, 1000 * T};
    const AccurateResult far = InvertAccurately(f, times, parameters);
    out.evaluations += far.evaluations;
    out.stopped = out.stopped || far.stopped;
    const double scale = std::max(1.0, std::abs(limit.value));
    double worst = limit.estimate;
    for (const AccuratePoint& p : far.points) {
        if (p.state != PointState::Converged) return false;
        const double off = std::abs(p.value - limit.value);
        if (off > p.estimate + limit.estimate + parameters.target * scale) return false;
        worst = std::max(worst, off + p.estimate);
    }
    limit.estimate = worst;
    return true;
}

}  // namespace

EndValues FindEndValues(const LaplaceFunction& f, double T, const AccurateParameters& parameters) {
    EndValues out;
    Limit limit(f, out);
    out.initial = limit.Along(+1, kUpwardDecades);
    if (out.stopped) return out;
    out.final = limit.Along(-1, kDownwardDecades);
    if (out.stopped) return out;
    if (out.final.found && !FSettlesAt(f, T, parameters, out.final, out)) out.final = {};
    return out;
}

}  // namespace lapdesk
