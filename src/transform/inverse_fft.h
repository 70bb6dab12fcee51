// The radix-2 FFT and the inverse transform that turn the spectrum samples of
// the transform window into time samples. The order of every operation is
// fixed (Gentleman-Sande stages, twiddles from a cosine table), so results
// are reproducible to the last bit.
//
// These routines raise lapdesk::RuntimeFault (values/fault.h) on overflow, an
// invalid result or a block whose sizes do not fit (the data are then left
// part-way); the transform driver is the one place that traps it.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "values/complex.h"

namespace lapdesk {

// Largest number of points; the complex data array always has this many.
inline constexpr int kMaxPoints = 4096;

// One record of the transform window, read and written in place.
struct TransformBlock {
    std::int16_t N = 0;      // number of points, a power of two
    std::int16_t NHalf = 0;  // N/2, set by the driver
    double Gamma0 = 0.0;     // damping over one record, gamma * T
    double Tend = 0.0;       // record length T
    bool HaningOn = true;
    double WindowWeight = 0.0;     // last window weight used in sampling
    std::vector<double> CosTable;  // cos(2*pi*k/N) for k = 0..N/2
    std::vector<Complex> Data = std::vector<Complex>(kMaxPoints);
    // Room for one transform's reordered output, so the routines never allocate.
    std::vector<Complex> Scratch = std::vector<Complex>(kMaxPoints);
};

// Forward DFT of Data[0..N-1] in place, natural order in and out:
// X[k] = sum over n of x[n] * exp(-j*2*pi*n*k/N). N must be 4..4096.
void CplFft(TransformBlock& block);

// Inverse DFT in place: x[n] = (1/N) * sum over k of X[k] * exp(+j*2*pi*n*k/N).
void CplIfft(TransformBlock& block);

// CplIfft, then out[k] = exp(k*Gamma0/N) * Re(Data[k]) for k = 0..N-1, which
// undoes the damping of the Laplace line. out must hold at least N values.
void IfftToReal(std::span<double> out, TransformBlock& block);

}  // namespace lapdesk
