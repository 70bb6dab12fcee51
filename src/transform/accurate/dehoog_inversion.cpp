#include "transform/accurate/dehoog_inversion.h"

#include <algorithm>
#include <cmath>
#include <complex>
#include <limits>
#include <numbers>
#include <optional>

#include "transform/accurate/dehoog_fraction.h"
#include "transform/accurate/last_peak.h"
#include "transform/accurate/point_text.h"

namespace lapdesk {

namespace {

using Cx = std::complex<double>;
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kEpsilon = std::numeric_limits<double>::epsilon();
// Differences below this share of max(|f|, 1) are rounding, not disagreement.
constexpr double kAgreementFloor = 1e-12;
// A difference between two sums measures the error of the worse of them; the
// one shown may be that one, and the other is not exact either.
constexpr double kEstimateSafety = 2.0;
// The reference's bound is an estimate too: it falls short of its true error
// at a few points in a hundred, by up to a few times.
constexpr double kReferenceSafety = 4.0;

// How a band is summed: its length ratio and T' = factor * t1 for the
// primary and the check set.
struct Layout {
    double ratio;
    double primaryFactor;
    double checkFactor;
};

// The first layout is the plain one. The second, for points left at their
// rounding noise, doubles the period: e^(gamma t) then magnifies the rounding
// of the values of F by its square root only. The others, for what is still
// short, use shorter bands (fewer oscillations of f per period).
std::vector<Layout> Layouts(const AccurateParameters& p) {
    return {{p.bandRatio, 2.0, 2.5}, {p.bandRatio, 4.0, 5.0}, {2.0, 1.5, 1.9}, {1.5, 1.25, 1.6}};
}

// Values a series may take before a band gives up: a sum whose resonances
// keep rising with every doubling (a square wave) ends here, flagged.
constexpr int kMaxValuesPerSeries = 4096;

// F at gamma + j*pi*k/T' for k = 0, 1, ... (the k = 0 term halved), grown
// on demand. A resonance of F (f rings) makes |a_k| peak: the continued
// fraction cannot follow such a bump (its quotient-difference table turns to
// noise and settles on a wrong value), so the terms up to past the last peak
// are summed directly and the fraction sums only the smooth tail after them.
struct Series {
    double period = 0.0;  // T'
    double gamma = 0.0;
    std::vector<Cx> a;
    double sumAbs = 0.0;                     // sum of |a_k|, for the rounding floor
    int shift = 0;                           // terms summed directly before the fraction
    std::optional<DeHoogFraction> fraction;  // on a[shift..]; none when all 0

    double Scale(double t) const { return std::exp(gamma * t) / period; }
    // The directly summed terms at t, the same for every depth of the tail.
    Cx Head(double t) const {
        const double angle = std::numbers::pi * t / period;
        Cx sum{};
        for (int k = 0; k < shift; ++k)
            sum += a[k] * std::polar(1.0, k * angle);
        return sum;
    }
    // f at depth m of the tail's fraction after the head; NaN when the
    // fraction broke down.
    double Value(double t, int m, const Cx& head) const {
        Cx sum = head;
        if (fraction) {
            if (!fraction->ok()) return std::numeric_limits<double>::quiet_NaN();
            const double angle = std::numbers::pi * t / period;
            sum += std::polar(1.0, shift * angle) * fraction->Evaluate(std::polar(1.0, angle), m);
        }
        return Scale(t) * sum.real();
    }
    // Where the fraction must start: a little past the last peak of |a_k|.
    int ShiftNeeded() const {
        std::vector<double> magnitudes(a.size());
        std::transform(a.begin(), a.end(), magnitudes.begin(),
                       [](const Cx& x) { return std::abs(x); });
        const int peak = static_cast<int>(LastPeak(magnitudes));
        return peak == 0 ? 0 : peak + peak / 2 + 8;
    }
    void Refit() {
        fraction.reset();
        const std::span<const Cx> tail(a.begin() + shift, a.end());
        if (std::any_of(tail.begin(), tail.end(), [](const Cx& x) { return x != Cx{}; }))
            fraction.emplace(tail);
    }
};

enum class Growth { Ok, Capped, Failed };

Growth Worse(Growth a, Growth b) {
    return std::max(a, b);
}

struct Candidate {
    double value = 0.0;
    double estimate = kInfinity;
    bool agrees = true;  // with the reference, and so did the rest of its band
    // |value at depth m - at 2m| and |at m/2 - at m|: whether more depth
    // still helps.
    double deeperStep = 0.0;
    double shallowerStep = 0.0;

    bool BetterThan(const Candidate& other) const {
        if (!std::isfinite(other.estimate)) return std::isfinite(estimate);  // none yet
        if (agrees != other.agrees) return agrees;
        return estimate < other.estimate;
    }
};

class Inverter {
  public:
    Inverter(const LaplaceFunction& f, const AccurateParameters& p, const References& references,
             AccurateResult& result)
        : f_(f), p_(p), references_(references), result_(result) {}

    double scale = 1.0;  // max(max |f|, 1) as far as known

    // Sums the given points (indices into result_.points) in bands of the
    // layout and keeps, per point, the better candidate.
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
    // Doubles the primary depth until every point of the band meets the
    // target and its reference, the estimate stops shrinking, or the cap is
    // reached; every round's candidates compete for the best.
    void SumBand(const std::vector<std::size_t>& band, const Layout& layout,
                 std::vector<Candidate>& best) {
        const double t1 = result_.points[band.back()].t;
        const std::string where = BandText(++bandCount_, result_.points[band.front()].t, t1);
        Series primary = MakeSeries(layout.primaryFactor * t1);
        Series check = MakeSeries(layout.checkFactor * t1);
        double worstBefore = kInfinity;
        for (int m = p_.M; m <= p_.maxM; m *= 2) {
            Growth grown = Grow(primary, 2 * m, where);
            if (grown != Growth::Failed) grown = Worse(grown, Grow(check, m, where));
            if (grown == Growth::Failed) return;
            std::vector<Candidate> round;
            double worst = 0.0;        // the largest estimate, in targets
            bool deeperHelps = false;  // some point short of its target still converges
            bool agrees = true;
            for (const std::size_t index : band) {
                const Candidate c = Sum(primary, check, result_.points[index].t, m);
                const double target = p_.target * std::max(scale, std::abs(c.value));
                worst = std::max(worst, c.estimate / target);
                if (c.estimate > target && c.deeperStep <= 0.5 * c.shallowerStep)
                    deeperHelps = true;
                agrees = agrees && Agrees(index, c);
                round.push_back(c);
            }
            for (std::size_t j = 0; j < band.size(); ++j) {
                round[j].agrees = agrees;
                if (round[j].BetterThan(best[band[j]])) best[band[j]] = round[j];
            }
            const bool brokeDown = primary.fraction && !primary.fraction->ok();
            // More terms help while they shrink the estimate; when they stop
            // doing so, what is left is the layout's (shorter bands may do).
            // The steps between depths m/2, m and 2m tell the same a round
            // early: where doubling did not halve the step, the sum is at its
            // rounding noise.
            const bool stalled = agrees && (worst > 0.5 * worstBefore || !deeperHelps);
            if ((worst <= 1.0 && agrees) || brokeDown || stalled || grown == Growth::Capped) return;
            worstBefore = worst;
        }
    }

    // The primary cut at depth m, its estimate against itself cut at depth
    // 2m (twice as high in frequency) and against the check set at depth m.
    // The deeper cut is not the value shown: its fraction's coefficients
    // carry more rounding from the quotient-difference table.
    static Candidate Sum(const Series& primary, const Series& check, double t, int m) {
        const Cx head = primary.Head(t);
        const double value = primary.Value(t, m, head);
        const double deeper = primary.Value(t, 2 * m, head);
        const double shallower = primary.Value(t, m / 2, head);
        const double other = check.Value(t, m, check.Head(t));
        const double floor = kEpsilon * primary.Scale(t) * primary.sumAbs;
        double estimate =
            kEstimateSafety * std::max({std::abs(value - deeper), std::abs(value - other), floor});
        if (!std::isfinite(value) || !std::isfinite(estimate)) estimate = kInfinity;
        return {value, estimate, true, std::abs(value - deeper), std::abs(shallower - value)};
    }

    bool Agrees(std::size_t index, const Candidate& c) const {
        if (references_.empty() || !references_[index] || !std::isfinite(c.estimate)) return true;
        const ReferencePoint& r = *references_[index];
        return std::abs(c.value - r.value) <=
               c.estimate + kReferenceSafety * r.bound + kAgreementFloor * scale;
    }

    Series MakeSeries(double period) const {
        Series s;
        s.period = period;
        s.gamma = p_.alpha - std::log(p_.tol) / (2.0 * period);
        return s;
    }

    // Takes F at the series' nodes until its fraction reaches the given
    // depth past the directly summed terms. Failed when F fails or is asked
    // to stop (the reason goes to the problems); Capped when the series
    // reached its cap first: the fraction then starts earlier and its sums
    // are what they are, for the estimate to judge.
    Growth Grow(Series& series, int depth, const std::string& where) {
        // Nodes reach past the highest resonance known beforehand, so that
        // the first sum already sees it.
        const int reach =
            static_cast<int>(std::ceil(1.25 * p_.resonance * series.period / std::numbers::pi));
        Growth growth = Growth::Ok;
        for (;;) {
            int count = std::max(series.shift + 2 * depth + 1, reach);
            if (count > kMaxValuesPerSeries) {
                growth = Growth::Capped;
                count = kMaxValuesPerSeries;
                series.shift = std::min(series.shift, count - (2 * depth + 1));
            }
            if (static_cast<int>(series.a.size()) >= count) break;
            for (int k = static_cast<int>(series.a.size()); k < count; ++k) {
                if (!Take(series, k, where)) return Growth::Failed;
            }
            if (growth == Growth::Capped) break;
            series.shift = std::max(series.shift, series.ShiftNeeded());
        }
        series.Refit();
        return growth;
    }

    bool Take(Series& series, int k, const std::string& where) {
        const Complex s{series.gamma, std::numbers::pi * k / series.period};
        ++result_.evaluations;
        const FValue v = f_(s);
        if (v.stopped) {
            result_.stopped = true;
            return false;
        }
        if (!v.ok || !std::isfinite(v.value.Re) || !std::isfinite(v.value.Im)) {
            const std::string why = v.ok ? std::string("値が有限でない") : v.reason;
            result_.problems.push_back(where + ": s = " + PointText(s) + " で " + why);
            return false;
        }
        const Cx a = Cx{v.value.Re, v.value.Im} * (k == 0 ? 0.5 : 1.0);
        series.a.push_back(a);
        series.sumAbs += std::abs(a);
        return true;
    }

    const LaplaceFunction& f_;
    const AccurateParameters& p_;
    const References& references_;
    AccurateResult& result_;
    int bandCount_ = 0;
};

PointState FinalState(const Candidate& c, double bar) {
    if (!std::isfinite(c.estimate)) return PointState::NotApplicable;
    if (!c.agrees) return PointState::Disagrees;
    return c.estimate <= bar ? PointState::Converged : PointState::NotConverged;
}

}  // namespace

AccurateResult InvertAccurately(const LaplaceFunction& f, std::span<const double> times,
                                const AccurateParameters& parameters,
                                const References& references) {
    AccurateResult result;
    for (const double t : times)
        result.points.push_back({t, 0.0, kInfinity, PointState::NotApplicable});
    std::vector<Candidate> best(times.size());
    std::vector<std::size_t> todo(times.size());
    for (std::size_t i = 0; i < todo.size(); ++i)
        todo[i] = i;
    Inverter inverter(f, parameters, references, result);
    for (const Layout& layout : Layouts(parameters)) {
        inverter.Sweep(todo, layout, best);
        if (result.stopped) break;
        for (const Candidate& c : best) {
            if (std::isfinite(c.estimate) && c.agrees)
                inverter.scale = std::max(inverter.scale, std::abs(c.value));
        }
        todo.clear();
        for (std::size_t i = 0; i < best.size(); ++i) {
            if (FinalState(best[i], parameters.target * inverter.scale) != PointState::Converged)
                todo.push_back(i);
        }
        if (todo.empty()) break;
    }
    for (std::size_t i = 0; i < best.size(); ++i) {
        AccuratePoint& point = result.points[i];
        point.state = FinalState(best[i], parameters.target * inverter.scale);
        if (point.state == PointState::NotApplicable) continue;
        point.value = best[i].value;
        point.estimate = best[i].estimate;
    }
    return result;
}

}  // namespace lapdesk
