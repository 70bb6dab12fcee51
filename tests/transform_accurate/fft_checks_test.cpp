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

TEST(FftErrorBand, CoversTheErrorOfTheFirstOrderPair) {
    const LaplaceFunction f = Of([](Cx s) { return 1.0 / (s + 1.0); });
    TransformDriver driver;
    MakeFft(driver, f);
    const FftErrorBand band = EstimateFftError(driver, f, LineValuesFromStore(driver));
    ASSERT_TRUE(band.ok) << band.reason;
    EXPECT_FALSE(band.halvedPoints);
    // 129 values for the raised damping, 128 new ones for 2N; k = 128 has
    // Hanning weight 0 in the result's own samples and is asked again.
    EXPECT_EQ(band.evaluations, 129 + 128 + 1);
    int covered = 0;
    int within3 = 0;
    for (int n = 1; n <= 204; ++n) {
        const double error = std::abs(driver.Store()[kResult].Values[n] - std::exp(-n * 5.0 / 256));
        if (band.band[n] >= error) ++covered;
        if (band.band[n] >= error && band.band[n] <= 3 * error) ++within3;
    }
    EXPECT_GE(covered, 194);
    EXPECT_GE(within3, 150);
}

TEST(FftErrorBand, AtTheLargestNComparesWithHalfThePoints) {
    const LaplaceFunction f = Of([](Cx s) { return 1.0 / (s + 1.0); });
    TransformDriver driver;
    MakeFft(driver, f, "4096");
    const FftErrorBand band = EstimateFftError(driver, f, LineValuesFromStore(driver));
    ASSERT_TRUE(band.ok) << band.reason;
    EXPECT_TRUE(band.halvedPoints);
    EXPECT_EQ(band.evaluations, 2049);  // only the raised damping asks F
    for (int n = 100; n <= 3276; n += 97) {
        const double error =
            std::abs(driver.Store()[kResult].Values[n] - std::exp(-n * 5.0 / 4096));
        EXPECT_GE(band.band[n], error) << n;
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
    testing::Values(
        CheckRow{"decay", [](Cx s) { return 1.0 / (s + 1.0); }, SingularityVerdict::Fine, false},
        CheckRow{"sine", [](Cx s) { return 1.0 / (s * s + 1.0); }, SingularityVerdict::Fine, false},
        CheckRow{"slow_growth", [](Cx s) { return 1.0 / (s - 0.5); }, SingularityVerdict::Fine,
                 true},
        CheckRow{"pole_right", [](Cx s) { return 1.0 / (s - 2.0); }, SingularityVerdict::Singular,
                 true},
        CheckRow{"branch_right", [](Cx s) { return 1.0 / std::sqrt(s - 2.0); },
                 SingularityVerdict::Singular, true},
        CheckRow{"pole_on_a_test_point", [](Cx s) { return 1.0 / (s * s - 9.0); },
                 SingularityVerdict::CannotVerify, false}));

TEST(Singularity, FileDataCannotBeVerified) {
    const SingularityCheck check = CannotVerifyFileData();
    EXPECT_EQ(check.verdict, SingularityVerdict::CannotVerify);
    EXPECT_EQ(check.evaluations, 0);
}

}  // namespace
}  // namespace lapdesk
