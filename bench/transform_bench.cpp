// Time of one N = 4096 inverse transform: the driver's inversion with the
// cosine table cached and rebuilt, the bare inverse FFT, a plain O(N^2) DFT
// and FFTW's complex backward transform of the same size. The bare inverse
// FFT and FFTW each copy the same spectrum into their input first.
#include <benchmark/benchmark.h>
#include <fftw3.h>

#include <cmath>
#include <complex>
#include <cstring>
#include <vector>

#include "ratio_table.h"
#include "transform/inverse_fft.h"
#include "transform/transform_driver.h"

namespace lapdesk {
namespace {

constexpr int kN = 4096;
const double kPi = 4.0 * std::atan(1.0);

// A driver holding N = 4096 samples of F(s) = 1/(s+1), already inverted once.
TransformDriver PreparedDriver() {
    TransformDriver driver;
    driver.SetWordNumber("4096");
    driver.MakeData([](const Complex& s) { return CplDiv({1, 0}, CplAdd(s, {1, 0})); });
    return driver;
}

std::vector<Complex> Spectrum() {
    std::vector<Complex> x(kN);
    for (int k = 0; k < kN; ++k)
        x[k] = {std::cos(0.01 * k), std::sin(0.003 * k * k)};
    return x;
}

void BM_InvertTableCached(benchmark::State& state) {
    TransformDriver driver = PreparedDriver();
    for (auto _ : state) {
        benchmark::DoNotOptimize(driver.Invert());
    }
}
BENCHMARK(BM_InvertTableCached)->Unit(benchmark::kMicrosecond);

void BM_InvertTableRebuilt(benchmark::State& state) {
    TransformDriver driver = PreparedDriver();
    for (auto _ : state) {
        state.PauseTiming();  // leave a table for another N behind
        driver.SetWordNumber("2048");
        driver.BuildCosTable();
        driver.SetWordNumber("4096");
        state.ResumeTiming();
        benchmark::DoNotOptimize(driver.Invert());
    }
}
BENCHMARK(BM_InvertTableRebuilt)->Unit(benchmark::kMicrosecond);

void BM_CplIfftOnly(benchmark::State& state) {
    TransformBlock block;
    block.N = kN;
    block.CosTable.resize(kN / 2 + 1);
    for (int k = 0; k <= kN / 2; ++k)
        block.CosTable[k] = std::cos(k * 2.0 * kPi / kN);
    const std::vector<Complex> x = Spectrum();
    for (auto _ : state) {
        std::copy(x.begin(), x.end(), block.Data.begin());
        CplIfft(block);
        benchmark::DoNotOptimize(block.Data.data());
    }
}
BENCHMARK(BM_CplIfftOnly)->Unit(benchmark::kMicrosecond);

void BM_PlainDft(benchmark::State& state) {
    std::vector<std::complex<double>> x(kN);
    const std::vector<Complex> spectrum = Spectrum();
    for (int k = 0; k < kN; ++k)
        x[k] = {spectrum[k].Re, spectrum[k].Im};
    std::vector<std::complex<double>> roots(kN);
    for (int m = 0; m < kN; ++m)
        roots[m] = std::polar(1.0, 2 * kPi * m / kN);
    std::vector<std::complex<double>> out(kN);
    for (auto _ : state) {
        for (int n = 0; n < kN; ++n) {
            std::complex<double> sum = 0;
            for (int k = 0; k < kN; ++k)
                sum += x[k] * roots[(k * n) % kN];
            out[n] = sum / static_cast<double>(kN);
        }
        benchmark::DoNotOptimize(out.data());
    }
}
BENCHMARK(BM_PlainDft)->Unit(benchmark::kMicrosecond);

void BM_FftwBackward(benchmark::State& state) {
    fftw_complex* in = fftw_alloc_complex(kN);
    fftw_complex* out = fftw_alloc_complex(kN);
    const fftw_plan plan = fftw_plan_dft_1d(kN, in, out, FFTW_BACKWARD, FFTW_MEASURE);
    const std::vector<Complex> x = Spectrum();
    for (auto _ : state) {
        std::memcpy(in, x.data(), sizeof(fftw_complex) * kN);
        fftw_execute(plan);
        benchmark::DoNotOptimize(out);
    }
    fftw_destroy_plan(plan);
    fftw_free(in);
    fftw_free(out);
}
BENCHMARK(BM_FftwBackward)->Unit(benchmark::kMicrosecond);

const bench::Comparison kComparisons[] = {
    {"BM_CplIfftOnly", "BM_FftwBackward"},
    {"BM_InvertTableCached", "BM_FftwBackward"},
};

}  // namespace
}  // namespace lapdesk

int main(int argc, char** argv) {
    return lapdesk::bench::RunAndCompare(argc, argv, lapdesk::kComparisons);
}
