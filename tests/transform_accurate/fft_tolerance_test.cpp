// N and gamma0 chosen for a tolerance: met where the FFT can, honest where
// it cannot, and at a cost that follows the request.
#include "transform/accurate/fft_tolerance.h"

#include <gtest/gtest.h>

#include <cmath>
#include <complex>

#include "transform/accurate/accuracy_run.h"

namespace lapdesk {
namespace {

using Cx = std::complex<double>;

// F = 1/(s+1)^2, f = t e^-t: smooth, max |f| = 1/e.
FValue TDecay(const Complex& s) {
    const Cx v = 1.0 / ((Cx(s.Re, s.Im) + 1.0) * (Cx(s.Re, s.Im) + 1.0));
    return FValue::Of({v.real(), v.imag()});
}

double TrueError(const TransformDriver& driver) {
    const Conditions c = driver.GetConditions();
    const ReliablePart part = ReliablePartOf(c);
    double worst = 0.0;
    for (int n = part.first; n <= part.last; ++n) {
        const double t = c.TimeAt(n);
        worst = std::max(worst, std::abs(driver.Store()[kResult].Values[n] - t * std::exp(-t)));
    }
    return worst * std::exp(1.0);  // relative to max |f|
}

TEST(FftTolerance, MeetsWhatTheFftCanAndSaysWhatItReachedOtherwise) {
    const struct {
        double tol;
        bool met;
        int firstN;  // the user's N: a met tolerance never lowers it
    } rows[] = {{3e-2, true, 256}, {1e-4, true, 256}, {1e-9, false, 256}};
    for (const auto& row : rows) {
        TransformDriver driver;
        driver.SetWordNumber(std::to_string(row.firstN));
        ASSERT_TRUE(driver.MakeData([](const Complex& s) { return TDecay(s).value; }).ok);
        const FftChoice choice = ChooseFftParameters(driver, TDecay, row.tol);
        EXPECT_EQ(choice.met, row.met) << row.tol;
        EXPECT_EQ(driver.GetConditions().N, choice.N) << "the driver keeps the choice";
        EXPECT_EQ(driver.GetConditions().Gamma0, choice.gamma0);
        EXPECT_LE(TrueError(driver), choice.reached) << "the reported error is honest";
        ASSERT_TRUE(choice.band && choice.band->ok);
        // Beyond the chosen run itself, at most four runs of its size.
        const double runsBeyond = (choice.evaluations - (choice.N / 2 + 1)) / (choice.N / 2 + 1.0);
        if (choice.N > row.firstN) {
            EXPECT_LE(runsBeyond, 4.0) << row.tol;
        }
        if (row.met) {
            EXPECT_LE(choice.reached, row.tol);
        }
    }
}

}  // namespace
}  // namespace lapdesk
