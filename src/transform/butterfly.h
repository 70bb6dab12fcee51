// The butterfly of the inverse FFT's stages on one complex value (Pair) or on
// two side by side (Quad), held in vector registers. Every lane is rounded on
// its own exactly as CplSub, CplAdd and CplMul round it, so the width changes
// no bit of any result.
#pragma once

#include <cstring>

#include "values/complex.h"

namespace lapdesk::fft {

using Pair = double __attribute__((vector_size(16)));  // (Re, Im)
using Quad = double __attribute__((vector_size(32)));  // (Re, Im) of two values
static_assert(sizeof(Complex) == sizeof(Pair));

// Every helper is always inlined, so each vector width is compiled for the
// instruction set of the stage loop that uses it.

template <typename V>
[[gnu::always_inline]] inline V Load(const Complex* c) {
    V v;
    std::memcpy(&v, c, sizeof v);
    return v;
}

template <typename V>
[[gnu::always_inline]] inline void Store(Complex* c, const V& v) {
    std::memcpy(static_cast<void*>(c), &v, sizeof v);
}

[[gnu::always_inline]] inline Pair SwapParts(Pair v) {
    return __builtin_shufflevector(v, v, 1, 0);
}
[[gnu::always_inline]] inline Quad SwapParts(Quad v) {
    return __builtin_shufflevector(v, v, 1, 0, 3, 2);
}
[[gnu::always_inline]] inline Quad Join(Pair low, Pair high) {
    return __builtin_shufflevector(low, high, 0, 1, 2, 3);
}
[[gnu::always_inline]] inline Pair Low(Quad v) {
    return __builtin_shufflevector(v, v, 0, 1);
}
[[gnu::always_inline]] inline Pair High(Quad v) {
    return __builtin_shufflevector(v, v, 2, 3);
}

// The twiddle W = cos(theta) - j*sin(theta) as the butterfly uses it:
// Re = (cos, cos), ImSigned = (sin, -sin) = (-W.Im, W.Im).
template <typename V>
struct Twiddle {
    V Re;
    V ImSigned;
};

[[gnu::always_inline]] inline Twiddle<Pair> MakeTwiddle(double cosine, double sine) {
    return {Pair{cosine, cosine}, Pair{sine, -sine}};
}
[[gnu::always_inline]] inline Twiddle<Quad> Join(const Twiddle<Pair>& low,
                                                 const Twiddle<Pair>& high) {
    return {Join(low.Re, high.Re), Join(low.ImSigned, high.ImSigned)};
}

// t = a - b; a = a + b; b = t * W with the products and sums of CplMul:
// (t.Re*W.Re - t.Im*W.Im, t.Im*W.Re + W.Im*t.Re). The subtraction is the
// addition of the negated product (t.Im * -W.Im), which IEEE rounds the
// same. Nothing is checked here: an infinity or NaN, once made, reaches the
// output through every later stage, where it is checked once.
template <typename V>
[[gnu::always_inline]] inline void Butterfly(V& a, V& b, const Twiddle<V>& w) {
    const V t = a - b;
    a = a + b;
    b = t * w.Re + SwapParts(t) * w.ImSigned;
}

}  // namespace lapdesk::fft
