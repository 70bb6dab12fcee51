#include "transform/inverse_fft.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdint>

#include "transform/butterfly.h"
#include "values/fault.h"

namespace lapdesk {

namespace {

using fft::Join;
using fft::Load;
using fft::Pair;
using fft::Quad;
using fft::Store;
using fft::Twiddle;

// N a power of two from 4 up to the data size, with a cosine table of N/2 + 1
// entries: anything else would index outside the arrays.
void RequireFittingBlock(const TransformBlock& block) {
    const int n = block.N;
    const bool powerOfTwo = n >= 4 && (n & (n - 1)) == 0;
    if (!powerOfTwo || n > static_cast<int>(block.Data.size()) ||
        n > static_cast<int>(block.Scratch.size()) ||
        static_cast<int>(block.CosTable.size()) < n / 2 + 1) {
        RaiseFault(FaultCode::SubscriptOutOfRange);
    }
}

// What the decimation-in-frequency stages work on. A stage with half-span m
// has N/(2m) groups; butterfly i of every group (entries i and i + m) uses
// the twiddle of index p = i*groups, cos(theta) - j*sin(theta) with
// theta = 2*pi*p/N, the sine taken from the cosine table a quarter period
// (q entries) away. Every p stays below N/2. Butterflies of one stage touch
// disjoint entries, so the order in which they run changes no result.
struct StageData {
    explicit StageData(TransformBlock& block)
        : n(block.N), q(block.N / 4), cosTable(block.CosTable.data()), x(block.Data.data()) {}

    Twiddle<Pair> At(int p) const {
        return fft::MakeTwiddle(cosTable[p], cosTable[std::abs(p - q)]);
    }

    int n;
    int q;
    const double* cosTable;
    Complex* x;
};

// The twiddles of two stages run at once on four entries (see RunTwoStages).
template <typename V>
struct TwoStageTwiddles {
    Twiddle<V> first;   // index p
    Twiddle<V> second;  // index p + N/4
    Twiddle<V> next;    // index 2p, in the following stage
};

// p < N/4 here, so |p - q| = q - p and |p + q - q| = p.
TwoStageTwiddles<Pair> TwiddlesFor(const StageData& s, int p) {
    const double cp = s.cosTable[p];
    return {fft::MakeTwiddle(cp, s.cosTable[s.q - p]), fft::MakeTwiddle(s.cosTable[p + s.q], cp),
            s.At(2 * p)};
}

TwoStageTwiddles<Quad> Join(const TwoStageTwiddles<Pair>& low, const TwoStageTwiddles<Pair>& high) {
    return {Join(low.first, high.first), Join(low.second, high.second), Join(low.next, high.next)};
}

// Stage m on (0, m) and (m/2, 3m/2), then stage m/2 on (0, m/2) and
// (m, 3m/2), entries counted from the same i of a group.
template <typename V>
[[gnu::always_inline]] inline void FourButterflies(V& v0, V& v1, V& v2, V& v3,
                                                   const TwoStageTwiddles<V>& w) {
    fft::Butterfly(v0, v2, w.first);
    fft::Butterfly(v1, v3, w.second);
    fft::Butterfly(v0, v1, w.next);
    fft::Butterfly(v2, v3, w.next);
}

// The stages of half-span m and m/2 (m >= 4). Long groups run two
// neighbouring i at once, short groups the same i of two neighbouring
// groups, so each vector carries two independent butterflies. Built for the
// wider vector units too, used where the processor has them; the results
// are the same. Clang refuses wide vectors in the calls of a default clone,
// so its builds (the fuzz targets) keep the one plain form.
#if defined(__clang__)
#define LAPDESK_WITH_AVX2_CLONE
#else
#define LAPDESK_WITH_AVX2_CLONE [[gnu::target_clones("avx2", "default")]]
#endif
LAPDESK_WITH_AVX2_CLONE void RunTwoStages(const StageData& s, int m, int groups) {
    const int quarter = m / 2;
    if (quarter >= groups) {
        for (int base = 0; base < s.n; base += 2 * m) {
            for (int i = 0; i < quarter; i += 2) {
                const TwoStageTwiddles<Quad> w =
                    Join(TwiddlesFor(s, i * groups), TwiddlesFor(s, (i + 1) * groups));
                Complex* x = s.x + base + i;
                Quad v0 = Load<Quad>(x);
                Quad v1 = Load<Quad>(x + quarter);
                Quad v2 = Load<Quad>(x + 2 * quarter);
                Quad v3 = Load<Quad>(x + 3 * quarter);
                FourButterflies(v0, v1, v2, v3, w);
                Store(x, v0);
                Store(x + quarter, v1);
                Store(x + 2 * quarter, v2);
                Store(x + 3 * quarter, v3);
            }
        }
        return;
    }
    for (int i = 0; i < quarter; ++i) {
        const TwoStageTwiddles<Pair> pw = TwiddlesFor(s, i * groups);
        const TwoStageTwiddles<Quad> w = Join(pw, pw);
        for (int base = 0; base < s.n; base += 4 * m) {
            Complex* x = s.x + base + i;
            Complex* y = x + 2 * m;  // the same entry of the next group
            Quad v[4];
            for (int k = 0; k < 4; ++k)
                v[k] = Join(Load<Pair>(x + k * quarter), Load<Pair>(y + k * quarter));
            FourButterflies(v[0], v[1], v[2], v[3], w);
            for (int k = 0; k < 4; ++k) {
                Store(x + k * quarter, fft::Low(v[k]));
                Store(y + k * quarter, fft::High(v[k]));
            }
        }
    }
}

// One stage of half-span m, for an odd number of stages.
void RunOneStage(const StageData& s, int m, int groups) {
    for (int base = 0; base < s.n; base += 2 * m) {
        for (int i = 0; i < m; ++i) {
            Pair a = Load<Pair>(s.x + base + i);
            Pair b = Load<Pair>(s.x + base + i + m);
            fft::Butterfly(a, b, s.At(i * groups));
            Store(s.x + base + i, a);
            Store(s.x + base + i + m, b);
        }
    }
}

// Every stage but the last two (half-spans 2 and 1).
void RunAllButLastTwo(const StageData& s) {
    int m = s.n / 2;
    int groups = 1;
    if (std::countr_zero(static_cast<unsigned>(s.n)) % 2 == 1) {
        RunOneStage(s, m, groups);
        m /= 2;
        groups *= 2;
    }
    for (; m > 2; m /= 4, groups *= 4)
        RunTwoStages(s, m, groups);
}

// The lowest `bits` bits of i in reverse order (bits <= 16).
int BitReversed(int i, int bits) {
    static constexpr std::array<std::uint8_t, 256> kReversedBytes = [] {
        std::array<std::uint8_t, 256> table{};
        for (int b = 0; b < 256; ++b) {
            int r = 0;
            for (int bit = 0; bit < 8; ++bit)
                r |= ((b >> bit) & 1) << (7 - bit);
            table[b] = static_cast<std::uint8_t>(r);
        }
        return table;
    }();
    const unsigned reversed16 = kReversedBytes[i & 0xff] << 8 | kReversedBytes[(i >> 8) & 0xff];
    return static_cast<int>(reversed16 >> (16 - bits));
}

// The last two stages (half-spans 2 and 1) on each block of four entries,
// handing each result with its bit-reversed index to put(index, value).
// Blocks j, j + N/16, j + N/8 and j + 3N/16 run one after the other: their
// sixteen results fill whole cache lines of the reordered output.
template <typename Put>
void RunLastTwo(const StageData& s, Put put) {
    const Twiddle<Pair> w0 = s.At(0);
    const TwoStageTwiddles<Pair> w{w0, s.At(s.q), w0};
    const int bits = std::countr_zero(static_cast<unsigned>(s.n));
    const int lanes = std::min(4, s.n / 4);
    const int stride = s.n / 4 / lanes;
    for (int first = 0; first < stride; ++first) {
        for (int lane = 0; lane < lanes; ++lane) {
            const int block = first + lane * stride;
            Complex* x = s.x + 4 * block;
            Pair v0 = Load<Pair>(x);
            Pair v1 = Load<Pair>(x + 1);
            Pair v2 = Load<Pair>(x + 2);
            Pair v3 = Load<Pair>(x + 3);
            FourButterflies(v0, v1, v2, v3, w);
            const int reversed = BitReversed(block, bits - 2);
            put(reversed, v0);
            put(reversed + s.n / 2, v1);
            put(reversed + s.n / 4, v2);
            put(reversed + 3 * s.n / 4, v3);
        }
    }
}

// Remembers whether any value seen was not finite: v - v is 0 for a finite v
// and NaN otherwise. Flags are or-ed, so no chain of additions holds the
// loop up.
class FiniteCheck {
  public:
    void Add(Pair v) { bad_ |= (v - v) != 0.0; }
    void Require() const {
        if (bad_[0] != 0 || bad_[1] != 0) RaiseFault(FaultCode::Overflow);
    }

  private:
    using Flags = long long __attribute__((vector_size(16)));
    Flags bad_{0, 0};
};

// All stages, each result handed to put(bit-reversed index, value); then the
// overflow fault if any result is not finite.
template <typename Put>
void RunStages(TransformBlock& block, Put put) {
    RequireFittingBlock(block);
    const StageData stages(block);
    RunAllButLastTwo(stages);
    FiniteCheck check;
    RunLastTwo(stages, [&](int k, Pair v) {
        check.Add(v);
        put(k, v);
    });
    check.Require();
}

}  // namespace

void CplFft(TransformBlock& block) {
    Complex* out = block.Scratch.data();
    RunStages(block, [&](int k, Pair v) { Store(out + k, v); });
    std::copy_n(out, block.N, block.Data.begin());
}

// The forward transform, scaled by 1/N, with indices 1..N/2-1 swapped with
// N-1..N/2+1: reversing the index turns exp(-j...) into exp(+j...). Each
// result goes scaled straight to its final index. Scaling a finite value by
// 1/N cannot make it infinite, so checking the unscaled values is enough.
void CplIfft(TransformBlock& block) {
    const int n = block.N;
    const double s = 1.0 / n;
    const Pair scale{s, s};
    Complex* out = block.Scratch.data();
    RunStages(block, [&](int k, Pair v) { Store(out + ((n - k) & (n - 1)), scale * v); });
    std::copy_n(out, n, block.Data.begin());
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
