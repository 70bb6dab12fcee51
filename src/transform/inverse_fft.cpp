#include "transform/inverse_fft.h"

#include <cmath>
#include <cstdlib>
#include <utility>

#include "values/fault.h"

namespace lapdesk {

namespace {

// N a power of two from 4 up to the data size, with a cosine table of N/2 + 1
// entries: anything else would index outside the arrays.
void RequireFittingBlock(const TransformBlock& block) {
    const int n = block.N;
    const bool powerOfTwo = n >= 4 && (n & (n - 1)) == 0;
    if (!powerOfTwo || n > static_cast<int>(block.Data.size()) ||
        static_cast<int>(block.CosTable.size()) < n / 2 + 1) {
        RaiseFault(FaultCode::SubscriptOutOfRange);
    }
}

// cos(theta) - j*sin(theta) for theta = 2*pi*p/N, the sine taken from the
// cosine table a quarter period (q entries) away.
Complex Twiddle(const std::vector<double>& cosTable, int p, int q, int h) {
    if (p < h) return {cosTable[p], -cosTable[std::abs(p - q)]};
    return {-cosTable[p - q], -cosTable[std::abs(p - q - h)]};
}

// Decimation-in-frequency stages: natural order in, bit-reversed order out.
void GentlemanSandeStages(TransformBlock& block) {
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
                x[b] = CplMul(t, Twiddle(block.CosTable, p, q, h));
                p += groups;
            }
            base += 2 * m;
        }
        groups *= 2;
    }
}

void BitReverse(TransformBlock& block) {
    const int n = block.N;
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

}  // namespace

void CplFft(TransformBlock& block) {
    RequireFittingBlock(block);
    GentlemanSandeStages(block);
    BitReverse(block);
}

// The forward transform, scaled by 1/N, with indices 1..N/2-1 swapped with
// N-1..N/2+1: reversing the index turns exp(-j...) into exp(+j...).
void CplIfft(TransformBlock& block) {
    CplFft(block);
    const int n = block.N;
    const double s = 1.0 / n;
    for (int k = 0; k < n; ++k)
        block.Data[k] = CplScale(s, block.Data[k]);
    for (int i = 1; i <= n / 2 - 1; ++i)
        std::swap(block.Data[i], block.Data[n - i]);
}

void IfftToReal(std::span<double> out, TransformBlock& block) {
    const int n = block.N;
    if (static_cast<int>(out.size()) < n) RaiseFault(FaultCode::SubscriptOutOfRange);
    CplIfft(block);
    const double d = block.Gamma0 / n;
    for (int k = 0; k < n; ++k) {
        out[k] = Checked(Checked(std::exp(k * d)) * block.Data[k].Re);
    }
}

}  // namespace lapdesk
