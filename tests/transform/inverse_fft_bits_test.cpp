// The inverse FFT must give the very bits of its first, plainly written form:
// that form is kept here as the reference, and both run on the same inputs,
// including inputs on which they must raise the same fault.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <optional>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "named_rows.h"
#include "transform/inverse_fft.h"
#include "values/fault.h"

namespace lapdesk {
namespace {

// ---- The reference: every operation checked, one butterfly at a time ----

Complex ReferenceTwiddle(const std::vector<double>& cosTable, int p, int q, int h) {
    if (p < h) return {cosTable[p], -cosTable[std::abs(p - q)]};
    return {-cosTable[p - q], -cosTable[std::abs(p - q - h)]};
}

void ReferenceCplFft(TransformBlock& block) {
    const int n = block.N;
    const int q = n / 4;
    const int h = 2 * q;
    const auto stages = static_cast<int>(std::nearbyint(std::log(n) / std::log(2.0)));
    std::vector<Complex>& x = block.Data;
    int m = n;
    int groups = 1;
    for (int stage = 1; stage <= stages; ++stage) {
        m = static_cast<int>(std::nearbyint(m / 2.0));
        int base = 0;
        for (int group = 1; group <= groups; ++group) {
            int p = 0;
            for (int i = 0; i < m; ++i) {
                const int a = base + i;
                const int b = base + i + m;
                const Complex t = CplSub(x[a], x[b]);
                x[a] = CplAdd(x[a], x[b]);
                x[b] = CplMul(t, ReferenceTwiddle(block.CosTable, p, q, h));
                p += groups;
            }
            base += 2 * m;
        }
        groups *= 2;
    }
    for (int i = 1; i < n; ++i) {
        int j = 0;
        int r = i;
        int w = n / 2;
        while (r >= 1) {
            j += (r & 1) * w;
            r /= 2;
            w /= 2;
        }
        if (j > i) std::swap(block.Data[i], block.Data[j]);
    }
}

void ReferenceCplIfft(TransformBlock& block) {
    ReferenceCplFft(block);
    const int n = block.N;
    const double s = 1.0 / n;
    for (int k = 0; k < n; ++k)
        block.Data[k] = CplScale(s, block.Data[k]);
    for (int i = 1; i <= n / 2 - 1; ++i)
        std::swap(block.Data[i], block.Data[n - i]);
}

// ---- Inputs ----

// Data of n values with random mantissas and binary exponents in
// [lowExponent, highExponent]; some entries exactly +0 or -0.
std::vector<Complex> RandomData(std::mt19937_64& random, int n, int lowExponent, int highExponent) {
    std::uniform_real_distribution<double> mantissa(-1.0, 1.0);
    std::uniform_int_distribution<int> exponent(lowExponent, highExponent);
    std::uniform_int_distribution<int> pick(0, 15);
    auto value = [&] {
        switch (pick(random)) {
            case 0:
                return 0.0;
            case 1:
                return -0.0;
            default:
                return std::ldexp(mantissa(random), exponent(random));
        }
    };
    std::vector<Complex> data(n);
    for (Complex& c : data) {
        c.Re = value();
        c.Im = value();
    }
    return data;
}

std::vector<double> ExactCosines(int n) {
    const double pi = 4.0 * std::atan(1.0);
    std::vector<double> table(n / 2 + 1);
    for (int k = 0; k <= n / 2; ++k)
        table[k] = std::cos(k * 2.0 * pi / n);
    return table;
}

// A table of arbitrary values: a wrong twiddle index cannot hide behind
// the symmetries of the true cosines.
std::vector<double> ScrambledCosines(std::mt19937_64& random, int n) {
    std::uniform_real_distribution<double> value(-1.5, 1.5);
    std::vector<double> table(n / 2 + 1);
    for (double& c : table)
        c = value(random);
    return table;
}

// ---- Comparison ----

// The data after the transform, or the fault it raised.
struct Result {
    std::optional<FaultCode> fault;
    std::vector<Complex> data;
};

template <typename Transform>
Result Transformed(Transform transform, int n, const std::vector<double>& table,
                   const std::vector<Complex>& data) {
    TransformBlock block;
    block.N = static_cast<std::int16_t>(n);
    block.CosTable = table;
    std::copy(data.begin(), data.end(), block.Data.begin());
    try {
        transform(block);
    } catch (const RuntimeFault& fault) {
        return {fault.code(), {}};
    }
    return {std::nullopt, std::vector<Complex>(block.Data.begin(), block.Data.begin() + n)};
}

// Same fault, or the same bytes (signs of zeros included).
void ExpectSameBits(const Result& got, const Result& expected, const std::string& what) {
    ASSERT_EQ(got.fault.has_value(), expected.fault.has_value()) << what;
    if (expected.fault) {
        EXPECT_EQ(*got.fault, *expected.fault) << what;
        return;
    }
    for (std::size_t k = 0; k < expected.data.size(); ++k) {
        ASSERT_EQ(std::memcmp(&got.data[k], &expected.data[k], sizeof(Complex)), 0)
            << what << " index " << k << ": " << got.data[k].Re << "," << got.data[k].Im
            << " expected " << expected.data[k].Re << "," << expected.data[k].Im;
    }
}

struct InputRow {
    const char* name;
    int lowExponent;
    int highExponent;
    bool faults;  // whether some of these inputs overflow (none of the others do)
};

class FftBits : public testing::TestWithParam<InputRow> {};

TEST_P(FftBits, ForwardAndInverseMatchTheReferenceAtEverySize) {
    const InputRow& row = GetParam();
    std::mt19937_64 random(20261123);
    int faults = 0;
    for (int n = 4; n <= kMaxPoints; n *= 2) {
        for (const bool scrambled : {false, true}) {
            const std::vector<double> table =
                scrambled ? ScrambledCosines(random, n) : ExactCosines(n);
            const std::vector<Complex> data =
                RandomData(random, n, row.lowExponent, row.highExponent);
            const std::string what = std::string(row.name) + " N " + std::to_string(n) +
                                     (scrambled ? " scrambled table" : "");
            const Result inverse = Transformed(ReferenceCplIfft, n, table, data);
            ExpectSameBits(Transformed(CplIfft, n, table, data), inverse, "inverse " + what);
            ExpectSameBits(Transformed(CplFft, n, table, data),
                           Transformed(ReferenceCplFft, n, table, data), "forward " + what);
            faults += inverse.fault.has_value();
        }
    }
    EXPECT_EQ(faults > 0, row.faults) << faults << " faults";
}

INSTANTIATE_TEST_SUITE_P(Inputs, FftBits,
                         testing::Values(InputRow{"ordinary", -4, 4, false},
                                         InputRow{"wide", -60, 60, false},
                                         InputRow{"subnormal", -1074, -1000, false},
                                         InputRow{"near the top", 1010, 1023, true}),
                         RowName());

// A single infinity or NaN anywhere in the input, or one overflow deep in
// the stages, raises the overflow fault like the reference does.
TEST(FftBits, NonFiniteInputsFaultLikeTheReference) {
    const double inf = std::numeric_limits<double>::infinity();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double big = std::numeric_limits<double>::max() / 1.5;  // twice big overflows
    std::mt19937_64 random(7);
    for (const int n : {4, 64, 4096}) {
        const std::vector<double> table = ExactCosines(n);
        for (const int at : {0, 1, n / 2, n - 1}) {
            for (const Complex bad :
                 {Complex{inf, 0}, Complex{0, -inf}, Complex{nan, 1}, Complex{big, big}}) {
                std::vector<Complex> data = RandomData(random, n, -2, 2);
                data[at] = bad;
                if (bad.Re == big) data[(at + n / 2) % n] = bad;  // the first stage adds the two
                const std::string what = "N " + std::to_string(n) + " at " + std::to_string(at) +
                                         " value " + std::to_string(bad.Re) + "," +
                                         std::to_string(bad.Im);
                const Result expected = Transformed(ReferenceCplIfft, n, table, data);
                EXPECT_TRUE(expected.fault.has_value()) << what;
                ExpectSameBits(Transformed(CplIfft, n, table, data), expected, what);
            }
        }
    }
}

}  // namespace
}  // namespace lapdesk
