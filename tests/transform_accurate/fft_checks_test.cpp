// The damped FFT's error band and the singularity check, on F given directly.
#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <functional>
#include <stdexcept>

#include "named_rows.h"
#include "transform/accurate/fft_error_band.h"
#include "transform/accurate/singularity_check.h"

namespace lapdesk {
namespace {

using Cx = std::complex<double>;

LaplaceFunction Of(std::function<Cx(Cx)> f) {
    return [f](const Complex& s) {
        const Cx v = f({s.Re, s.Im});
        if (!std::isfinite(v.real()) || !std::isfinite(v.imag())) return FValue::Failure("inf");
        return FValue::Of({v.real(), v.imag()});
    };
}

// A driver with the FFT result for f at N.
void MakeFft(TransformDriver& driver, const LaplaceFunction& f, const char* n = "256") {
    driver.SetWordNumber(n);
    ASSERT_TRUE(driver
                    .MakeData([&f](const Complex& s) {
                        const FValue v = f(s);
                        if (!v.ok) throw std::runtime_error(v.reason);
                        return v.value;
                    })
                    .ok);
}

// At the largest N the band compares with half the points, and only the
// raised damping asks F.
TEST(FftErrorBand, CoversTheErrorOfTheFirstOrderPair) {
    const LaplaceFunction f = Of([](Cx s) { return 1.0 / (s + 1.0); });
    const struct {
        const char* n;
        bool halved;
        int evaluations;
    } rows[] = {// 129 values for the raised damping, 128 new ones for 2N; k = 128 has
                // Hanning weight 0 in the result's own samples and is asked again.
                {"256", false, 129 + 128 + 1},
                {"4096", true, 2049}};
    for (const auto& row : rows) {
        TransformDriver driver;
        MakeFft(driver, f, row.n);
        const FftErrorBand band = EstimateFftError(driver, f, LineValuesFromStore(driver));
        ASSERT_TRUE(band.ok) << band.reason;
        EXPECT_EQ(band.halvedPoints, row.halved);
        EXPECT_EQ(band.evaluations, row.evaluations);
        const Conditions c = driver.GetConditions();
        const int reliable = static_cast<int>(0.8 * c.N);
        int covered = 0;
        int within3 = 0;
        for (int n = 1; n <= reliable; ++n) {
            const double error =
                std::abs(driver.Store()[kResult].Values[n] - std::exp(-c.TimeAt(n)));
            if (band.band[n] >= error) ++covered;
            if (band.band[n] >= error && band.band[n] <= 3 * error) ++within3;
        }
        EXPECT_GE(covered, 0.95 * reliable) << row.n;
        EXPECT_GE(within3, 0.7 * reliable) << row.n << " " << within3;
    }
}

TEST(FftErrorBand, NamesThePointWhereFFails) {
    const LaplaceFunction good = Of([](Cx s) { return 1.0 / (s + 1.0); });
    TransformDriver driver;
    MakeFft(driver, good);
    const LaplaceFunction failing = [](const Complex& s) {
        return s.Re > 1.2 ? FValue::Failure("no value") : FValue::Of({1, 0});
    };
    const FftErrorBand band = EstimateFftError(driver, failing, LineValuesFromStore(driver));
    EXPECT_FALSE(band.ok);
    EXPECT_EQ(band.reason, "誤差帯の計算: s = 1.4605170185988101+0j で no value");
}

struct CheckRow {
    const char* name;
    std::function<Cx(Cx)> F;
    SingularityVerdict verdict;
    bool growth;
};

class Singularity : public testing::TestWithParam<CheckRow> {};

TEST_P(Singularity, SeesWhatLiesRightOfTheLine) {
    const CheckRow& row = GetParam();
    const LaplaceFunction f = Of(row.F);
    TransformDriver driver;
    MakeFft(driver, f);
    const SingularityCheck check =
        CheckSingularity(driver.GetConditions(), LineValuesFromStore(driver), f);
    EXPECT_EQ(check.verdict, row.verdict) << check.D;
    EXPECT_EQ(check.growth, row.growth) << check.D;
    EXPECT_LE(check.evaluations, 8);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, Singularity,
    testing::Values(CheckRow{"decay", [](Cx s) { return 1.0 / (s + 1.0); },
                             SingularityVerdict::Fine, false},
                    CheckRow{"slow_growth", [](Cx s) { return 1.0 / (s - 0.5); },
                             SingularityVerdict::Fine, true},
                    CheckRow{"pole_right", [](Cx s) { return 1.0 / (s - 2.0); },
                             SingularityVerdict::Singular, true},
                    CheckRow{"branch_right", [](Cx s) { return 1.0 / std::sqrt(s - 2.0); },
                             SingularityVerdict::Singular, true},
                    CheckRow{"pole_on_a_test_point", [](Cx s) { return 1.0 / (s * s - 9.0); },
                             SingularityVerdict::CannotVerify, false}),
    RowName());

}  // namespace
}  // namespace lapdesk
