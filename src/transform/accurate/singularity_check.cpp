#include "transform/accurate/singularity_check.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <complex>
#include <numbers>

#include "transform/accurate/point_text.h"

namespace lapdesk {

namespace {

using Cx = std::complex<double>;

constexpr std::array<double, 4> kShifts = {10.0, 25.0, 60.0, 150.0};  // a*T
constexpr std::array<double, 2> kHeights = {0.0, 10.0};               // w*T

struct Prediction {
    Cx value;
    double weightedAbs = 0.0;
};

// Trapezoid sum of the Poisson integral over v_k = k*dw, k = -N/2..N/2,
// with F(gamma - jv) = conj F(gamma + jv) below the axis.
Prediction Predict(const LineValues& line, double dw, double a, double w) {
    Prediction p;
    const int last = static_cast<int>(line.size()) - 1;
    for (int k = -last; k <= last; ++k) {
        const std::optional<Complex>& known = line[static_cast<std::size_t>(std::abs(k))];
        if (!known) continue;
        const Cx fk = k < 0 ? Cx{known->Re, -known->Im} : Cx{known->Re, known->Im};
        const double v = k * dw - w;
        double weight = dw / std::numbers::pi * a / (a * a + v * v);
        if (std::abs(k) == last) weight *= 0.5;
        p.value += weight * fk;
        p.weightedAbs += weight * std::abs(fk);
    }
    return p;
}

}  // namespace

SingularityCheck CheckSingularity(const Conditions& c, const LineValues& line,
                                  const LaplaceFunction& f) {
    SingularityCheck check;
    for (const std::optional<Complex>& v : line) {
        if (v && !(std::isfinite(v->Re) && std::isfinite(v->Im))) {
            check.reason = "標本に有限でない値がある";
            return check;
        }
    }
    for (const double shift : kShifts) {
        for (const double height : kHeights) {
            const double a = shift / c.T;
            const double w = height / c.T;
            const Complex s{c.Gamma() + a, w};
            ++check.evaluations;
            const FValue v = f(s);
            if (v.stopped) {
                check.stopped = true;
                check.reason = "中断";
                return check;
            }
            if (!v.ok || !std::isfinite(v.value.Re) || !std::isfinite(v.value.Im)) {
                check.reason = "s = " + PointText(s) + " で " +
                               (v.ok ? std::string("値が有限でない") : v.reason);
                return check;
            }
            const Cx value{v.value.Re, v.value.Im};
            const Prediction p = Predict(line, c.DeltaOmega(), a, w);
            const double scale = std::max(std::abs(value), p.weightedAbs);
            const double d = scale > 0.0 ? std::abs(value - p.value) / scale : 0.0;
            check.D = std::max(check.D, std::isfinite(d) ? d : HUGE_VAL);
        }
    }
    check.verdict = check.D > kSingularD ? SingularityVerdict::Singular : SingularityVerdict::Fine;
    check.growth = check.D > kGrowthD;
    return check;
}

}  // namespace lapdesk
