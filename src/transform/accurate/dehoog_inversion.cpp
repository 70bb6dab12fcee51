#include "transform/accurate/dehoog_inversion.h"

#include <algorithm>
#include <cmath>
#include <complex>
#include <limits>
#include <numbers>
#include <optional>

#include "transform/accurate/dehoog_fraction.h"
#include "transform/accurate/point_text.h"

namespace lapdesk {

namespace {

using Cx = std::complex<double>;
constexpr double kInfinity = std::numeric_limits<double>::infinity();

// How a band is summed: its length ratio, the terms, and T' = factor * t1
// for the result and for the check.
struct Layout {
    double ratio;
    int m;
    double primaryFactor;
    double checkFactor;
};

// One parameter set on one band: the nodes' values and the fraction on them.
struct BandSum {
    double period = 0.0;  // T'
    double gamma = 0.0;
    double sumAbs = 0.0;  // sum of |a_k|, for the rounding floor
    bool zero = false;    // every a_k is 0: the sum is 0
    std::optional<DeHoogFraction> fraction;

    double Scale(double t) const { return std::exp(gamma * t) / period; }
    // f at depth m of the fraction; NaN when the fraction broke down.
    double Value(double t, int m) const {
        if (zero) return 0.0;
        if (!fraction->ok()) return std::numeric_limits<double>::quiet_NaN();
        const Cx z = std::polar(1.0, std::numbers::pi * t / period);
        return Scale(t) * fraction->Evaluate(z, m).real();
    }
};

struct Candidate {
    double value = 0.0;
    double estimate = kInfinity;
};

class Inverter {
  public:
    Inverter(const LaplaceFunction& f, const AccurateParameters& p, AccurateResult& result)
        : f_(f), p_(p), result_(result) {}

    // Sums the given points (indices into result_.points) in bands of the
    // layout and keeps, per point, the candidate with the smaller estimate.
    void Sweep(const std::vector<std::size_t>& todo, const Layout& layout,
               std::vector<Candidate>& best) {
        std::size_t i = 0;
        while (i < todo.size() && !result_.stopped) {
            const double t0 = result_.points[todo[i]].t;
            std::size_t end = i;
            while (end < todo.size() && result_.points[todo[end]].t <= layout.ratio * t0)
                ++end;
            const std::vector<std::size_t> band(todo.begin() + static_cast<long>(i),
                                                todo.begin() + static_cast<long>(end));
            SumBand(band, layout, best);
            i = end;
        }
    }

  private:
    void SumBand(const std::vector<std::size_t>& band, const Layout& layout,
                 std::vector<Candidate>& best) {
        const double t0 = result_.points[band.front()].t;
        const double t1 = result_.points[band.back()].t;
        const std::string where = BandText(++bandCount_, t0, t1);
        const std::optional<BandSum> primary = Sample(layout.primaryFactor * t1, layout.m, where);
        if (!primary) return;
        const std::optional<BandSum> check = Sample(layout.checkFactor * t1, layout.m, where);
        if (!check) return;
        for (const std::size_t index : band) {
            const double t = result_.points[index].t;
            const double value = primary->Value(t, layout.m);
            const double shorter = primary->Value(t, layout.m - 1);
            const double other = check->Value(t, layout.m);
            const double floor =
                std::numeric_limits<double>::epsilon() * primary->Scale(t) * primary->sumAbs;
            double estimate = std::max({std::abs(value - shorter), std::abs(value - other), floor});
            if (!std::isfinite(value) || !std::isfinite(estimate)) estimate = kInfinity;
            if (estimate < best[index].estimate) best[index] = {value, estimate};
        }
    }

    // F at s_k = gamma + j*pi*k/T' for k = 0..2m; nothing when F fails or
    // is asked to stop (the reason goes to the problems).
    std::optional<BandSum> Sample(double period, int m, const std::string& where) {
        BandSum sum;
        sum.period = period;
        sum.gamma = p_.alpha - std::log(p_.tol) / (2.0 * period);
        std::vector<Cx> a(static_cast<std::size_t>(2 * m + 1));
        sum.zero = true;
        for (int k = 0; k <= 2 * m; ++k) {
            const Complex s{sum.gamma, std::numbers::pi * k / period};
            ++result_.evaluations;
            const FValue v = f_(s);
            if (v.stopped) {
                result_.stopped = true;
                return std::nullopt;
            }
            if (!v.ok || !std::isfinite(v.value.Re) || !std::isfinite(v.value.Im)) {
                const std::string why = v.ok ? std::string("値が有限でない") : v.reason;
                result_.problems.push_back(where + ": s = " + PointText(s) + " で " + why);
                return std::nullopt;
            }
            a[k] = {v.value.Re, v.value.Im};
            if (k == 0) a[k] *= 0.5;
            sum.sumAbs += std::abs(a[k]);
            if (a[k] != Cx{}) sum.zero = false;
        }
        if (!sum.zero) sum.fraction.emplace(a);
        return sum;
    }

    const LaplaceFunction& f_;
    const AccurateParameters& p_;
    AccurateResult& result_;
    int bandCount_ = 0;
};

// The first layout is the plain one; the others spend more values of F on
// shorter bands, more terms and other periods, for the points it left short.
std::vector<Layout> Layouts(const AccurateParameters& p) {
    return {{p.bandRatio, p.M, 2.0, 2.5},
            {2.0, p.M, 1.0, 1.25},
            {2.0, 2 * p.M, 2.0, 2.5},
            {1.5, 2 * p.M, 1.0, 1.25}};
}

}  // namespace

AccurateResult InvertAccurately(const LaplaceFunction& f, std::span<const double> times,
                                const AccurateParameters& parameters) {
    AccurateResult result;
    for (const double t : times)
        result.points.push_back({t, 0.0, kInfinity, PointState::NotApplicable});
    std::vector<Candidate> best(times.size());
    std::vector<std::size_t> todo(times.size());
    for (std::size_t i = 0; i < todo.size(); ++i)
        todo[i] = i;
    Inverter inverter(f, parameters, result);
    for (const Layout& layout : Layouts(parameters)) {
        inverter.Sweep(todo, layout, best);
        if (result.stopped) break;
        double scale = 1.0;
        for (const Candidate& c : best) {
            if (std::isfinite(c.estimate)) scale = std::max(scale, std::abs(c.value));
        }
        todo.clear();
        for (std::size_t i = 0; i < best.size(); ++i) {
            if (!(best[i].estimate <= parameters.target * scale)) todo.push_back(i);
        }
        if (todo.empty()) break;
    }
    const std::vector<std::size_t> shortOnes = todo;
    for (std::size_t i = 0; i < best.size(); ++i) {
        AccuratePoint& point = result.points[i];
        if (!std::isfinite(best[i].estimate)) continue;
        point.value = best[i].value;
        point.estimate = best[i].estimate;
        point.state = PointState::Converged;
    }
    for (const std::size_t i : shortOnes) {
        if (result.points[i].state == PointState::Converged)
            result.points[i].state = PointState::NotConverged;
    }
    return result;
}

}  // namespace lapdesk
