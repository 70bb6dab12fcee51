// The accurate inversion against analytic pairs, and what it does when f
// rings, when a reference contradicts it, and when F fails or asks to stop.
#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <functional>
#include <string>
#include <vector>

#include "named_rows.h"
#include "transform/accurate/dehoog_fraction.h"
#include "transform/accurate/dehoog_inversion.h"

namespace lapdesk {
namespace {

using Cx = std::complex<double>;

LaplaceFunction Of(std::function<Cx(Cx)> f) {
    return [f](const Complex& s) {
        const Cx v = f({s.Re, s.Im});
        return FValue::Of({v.real(), v.imag()});
    };
}

std::vector<double> Grid(int last = 204) {  // t_n = n*5/256, n = 1..last
    std::vector<double> t;
    for (int n = 1; n <= last; ++n)
        t.push_back(n * 5.0 / 256);
    return t;
}

TEST(DeHoogFraction, SumsASlowSeriesOnTheUnitCircle) {
    // sum z^k/(k+1) = -log(1 - z)/z converges only like 1/k on |z| = 1; the
    // fraction gets it from 41 terms, and closer with every level.
    std::vector<Cx> a(41);
    for (int k = 0; k <= 40; ++k)
        a[k] = 1.0 / (k + 1);
    const DeHoogFraction fraction(a);
    ASSERT_TRUE(fraction.ok());
    EXPECT_EQ(fraction.Depth(), 20);
    for (const double angle : {0.5, 2.0, 3.0}) {
        const Cx z = std::polar(1.0, angle);
        const Cx exact = -std::log(1.0 - z) / z;
        const double coarse = std::abs(fraction.Evaluate(z, 4) - exact);
        const double fine = std::abs(fraction.Evaluate(z, 20) - exact);
        EXPECT_LT(fine, 1e-10) << angle;
        EXPECT_LT(fine, coarse) << angle;
    }
}

TEST(DeHoogFraction, AnEvenCountLeavesTheLastValueOut) {
    std::vector<Cx> a;
    for (int k = 0; k < 42; ++k)
        a.push_back(1.0 / (k + 1.0));
    const DeHoogFraction even(a);
    const DeHoogFraction odd(std::span<const Cx>(a).first(41));
    EXPECT_EQ(even.Depth(), 20);
    EXPECT_EQ(even.Evaluate(Cx(0.3, 0.4), 20), odd.Evaluate(Cx(0.3, 0.4), 20));
}

TEST(DeHoogFraction, ReportsABrokenTable) {
    const std::vector<Cx> a = {1.0, 0.0, 1.0};  // q = 1/0
    EXPECT_FALSE(DeHoogFraction(a).ok());
}

struct PairRow {
    const char* name;
    std::function<Cx(Cx)> F;
    std::function<double(double)> f;
};

class AnalyticPairs : public testing::TestWithParam<PairRow> {};

TEST_P(AnalyticPairs, MatchTheExactInverseWithinTheEstimate) {
    const PairRow& row = GetParam();
    const AccurateResult r = InvertAccurately(Of(row.F), Grid());
    // Four bands; the primary set to depth 2M (4M+1 values), the check to M.
    EXPECT_EQ(r.evaluations, 4 * (129 + 65));
    int covered = 0;
    for (const AccuratePoint& p : r.points) {
        // Errors and estimates under 1e-12 * max(|f|, 1) count as that floor.
        const double floor = 1e-12 * std::max(std::abs(row.f(p.t)), 1.0);
        const double error = std::abs(p.value - row.f(p.t));
        ASSERT_EQ(p.state, PointState::Converged) << p.t;
        EXPECT_LT(error, 1e-11) << p.t;
        EXPECT_LT(p.estimate, 1e-10) << p.t;
        if (std::max(p.estimate, floor) >= std::max(error, floor)) ++covered;
    }
    EXPECT_GE(covered, 194);  // 95 %
}

INSTANTIATE_TEST_SUITE_P(
    Inverse, AnalyticPairs,
    testing::Values(PairRow{"decay", [](Cx s) { return 1.0 / (s + 1.0); },
                            [](double t) { return std::exp(-t); }},
                    PairRow{"ramp", [](Cx s) { return 1.0 / (s * s); }, [](double t) { return t; }},
                    PairRow{"sine", [](Cx s) { return 1.0 / (s * s + 1.0); },
                            [](double t) { return std::sin(t); }},
                    PairRow{"zero", [](Cx) { return Cx{}; }, [](double) { return 0.0; }}),
    RowName());

// sin(w t) over the whole record of T = 5, n = 1..255.
struct Ringing {
    double w;
    LaplaceFunction F() const {
        return Of([w = w](Cx s) { return w / (s * s + w * w); });
    }
    double f(double t) const { return std::sin(w * t); }
};

TEST(AccurateInversion, SumsPastTheResonanceWhenFRings) {
    // w T = 100 and 300: once the nodes reach the resonance (known from the
    // FFT's line), the terms up to past it are summed directly.
    for (const double w : {20.0, 60.0}) {
        const Ringing ringing{w};
        AccurateParameters parameters;
        parameters.resonance = w;
        const AccurateResult r = InvertAccurately(ringing.F(), Grid(255), parameters);
        for (const AccuratePoint& p : r.points) {
            ASSERT_EQ(p.state, PointState::Converged) << w << " " << p.t;
            EXPECT_LT(std::abs(p.value - ringing.f(p.t)), 1e-10) << w << " " << p.t;
        }
    }
}

TEST(AccurateInversion, AResonanceAboveEveryNodeIsCaughtByTheReference) {
    // Without the resonance given, the last band's nodes stay below w = 60:
    // both sums see a smooth F and agree on 0. The reference (the exact f
    // with a band, as the FFT gives over n = 4..204) contradicts them, and
    // no point is left both accurate-looking and wrong.
    const Ringing ringing{60.0};
    const std::vector<double> times = Grid(255);
    References references(times.size());
    for (std::size_t i = 3; i < 204; ++i)
        references[i] = ReferencePoint{ringing.f(times[i]) + 1e-4, 1e-3};
    const AccurateResult r = InvertAccurately(ringing.F(), times, {}, references);
    for (const AccuratePoint& p : r.points) {
        if (p.state == PointState::Converged) {
            EXPECT_LT(std::abs(p.value - ringing.f(p.t)), 1e-9) << p.t;
        }
    }
}

TEST(AccurateInversion, AContradictingReferenceFlagsItsWholeBand) {
    const std::vector<double> times = Grid();
    References references(times.size());
    references[150] = ReferencePoint{std::exp(-times[150]) + 0.01, 1e-4};
    const AccurateResult r =
        InvertAccurately(Of([](Cx s) { return 1.0 / (s + 1.0); }), times, {}, references);
    EXPECT_EQ(r.points[150].state, PointState::Disagrees);
    EXPECT_EQ(r.points[151].state, PointState::Disagrees);  // summed with it
    EXPECT_EQ(r.points[10].state, PointState::Converged);
}

TEST(AccurateInversion, ABandWhereFFailsIsNotApplicableWithItsReason) {
    // Fails only on the first band's lines (gamma 77 and 96).
    const LaplaceFunction f = [](const Complex& s) {
        if (s.Re > 50.0) return FValue::Failure("overflow");
        return FValue::Of(CplDiv({1, 0}, CplAdd(s, {1, 0})));
    };
    const AccurateResult r = InvertAccurately(f, Grid());
    ASSERT_FALSE(r.problems.empty());
    EXPECT_EQ(r.problems.front().rfind("帯 1 (t = 0.01953125〜0.078125): s = ", 0), 0u)
        << r.problems.front();
    EXPECT_NE(r.problems.front().find("overflow"), std::string::npos);
    EXPECT_EQ(r.points[0].state, PointState::NotApplicable);
    EXPECT_EQ(r.points[3].state, PointState::NotApplicable);  // t = 4*t0: first band
    for (std::size_t i = 4; i < r.points.size(); ++i)
        EXPECT_EQ(r.points[i].state, PointState::Converged) << i;
}

TEST(AccurateInversion, AStopEndsEverything) {
    int calls = 0;
    const LaplaceFunction f = [&calls](const Complex&) {
        return ++calls == 10 ? FValue::Stop() : FValue::Of({1, 0});
    };
    const AccurateResult r = InvertAccurately(f, Grid());
    EXPECT_TRUE(r.stopped);
    EXPECT_EQ(r.evaluations, 10);
    for (const AccuratePoint& p : r.points)
        EXPECT_EQ(p.state, PointState::NotApplicable);
}

}  // namespace
}  // namespace lapdesk
