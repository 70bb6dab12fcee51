#include "transform/inverse_fft.h"

#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <string>
#include <vector>

#include "values/fault.h"

namespace lapdesk {
namespace {

const double kPi = 4.0 * std::atan(1.0);

TransformBlock BlockOf(int n) {
    TransformBlock block;
    block.N = static_cast<std::int16_t>(n);
    block.NHalf = static_cast<std::int16_t>(n / 2);
    block.CosTable.resize(n / 2 + 1);
    for (int k = 0; k <= n / 2; ++k)
        block.CosTable[k] = std::cos(k * 2.0 * kPi / n);
    return block;
}

// A reproducible, non-symmetric test signal.
Complex SignalAt(int n) {
    return {std::sin(0.37 * n) + 0.1 * n, std::cos(1.3 * n * n) - 0.5};
}

// The O(N^2) transform straight from its definition, in long double.
std::vector<std::complex<long double>> NaiveDft(const std::vector<Complex>& x, int sign) {
    const int n = static_cast<int>(x.size());
    const long double pi = std::acos(-1.0L);
    std::vector<std::complex<long double>> roots(n);
    for (int m = 0; m < n; ++m)
        roots[m] = std::polar(1.0L, sign * 2 * pi * m / n);
    std::vector<std::complex<long double>> out(n);
    for (int k = 0; k < n; ++k) {
        std::complex<long double> sum = 0;
        for (int j = 0; j < n; ++j) {
            sum += std::complex<long double>(x[j].Re, x[j].Im) *
                   roots[(static_cast<long long>(j) * k) % n];
        }
        out[k] = sum;
    }
    return out;
}

double RelativeRmsError(const TransformBlock& block,
                        const std::vector<std::complex<long double>>& reference) {
    long double error = 0;
    long double norm = 0;
    for (std::size_t k = 0; k < reference.size(); ++k) {
        const std::complex<long double> got(block.Data[k].Re, block.Data[k].Im);
        error += std::norm(got - reference[k]);
        norm += std::norm(reference[k]);
    }
    return static_cast<double>(std::sqrt(error / norm));
}

class FftAgainstDft : public testing::TestWithParam<int> {};

TEST_P(FftAgainstDft, ForwardAndInverseMatchTheDefinition) {
    const int n = GetParam();
    for (const int sign : {-1, +1}) {
        TransformBlock block = BlockOf(n);
        std::vector<Complex> x(n);
        for (int j = 0; j < n; ++j)
            x[j] = block.Data[j] = SignalAt(j);
        auto reference = NaiveDft(x, sign);
        if (sign < 0) {
            CplFft(block);
        } else {
            CplIfft(block);
            for (auto& value : reference)
                value /= n;
        }
        EXPECT_LT(RelativeRmsError(block, reference), 1e-14 * std::log2(n)) << sign;
    }
}

INSTANTIATE_TEST_SUITE_P(Sizes, FftAgainstDft, testing::Values(4, 8, 16, 128, 1024, 4096),
                         [](const auto& info) { return "N" + std::to_string(info.param); });

TEST(CplFft, BlocksThatDoNotFitAreRefused) {
    struct Row {
        int n;
        int tableSize;
        int dataSize;
    };
    const Row rows[] = {
        {100, 51, 4096},     // not a power of two
        {2, 2, 4096},        // below the smallest size
        {8192, 4097, 4096},  // more points than data
        {256, 100, 4096},    // cosine table too short
    };
    for (const Row& row : rows) {
        TransformBlock block;
        block.N = static_cast<std::int16_t>(row.n);
        block.CosTable.assign(row.tableSize, 1.0);
        block.Data.resize(row.dataSize);
        EXPECT_THROW(CplFft(block), RuntimeFault) << row.n;
    }
    TransformBlock block = BlockOf(128);
    std::vector<double> tooShort(127);
    EXPECT_THROW(IfftToReal(tooShort, block), RuntimeFault);
}

}  // namespace
}  // namespace lapdesk
