// F on the damped FFT's sampling line, taken back from the samples the FFT
// was given: the store holds F(s_k) * (N/T) * w_k for k = 0..N/2, so F(s_k)
// is known wherever the Hanning weight w_k is not 0. The error band and the
// singularity check reuse these values instead of asking F again.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "transform/accurate/laplace_function.h"
#include "transform/transform_driver.h"
#include "values/complex.h"

namespace lapdesk {

using LineValues = std::vector<std::optional<Complex>>;  // k = 0..N/2

LineValues LineValuesFromStore(const TransformDriver& driver);

// Makes the driver's data and inverts them (its N, T and gamma0 as set),
// with F from `known` where it holds the value and from f elsewhere, each
// value of f counted. A failure says at which s; a stop sets `stopped`.
Outcome MakeFftRun(TransformDriver& driver, const LaplaceFunction& f, const LineValues& known,
                   std::int64_t& evaluations, bool& stopped);

}  // namespace lapdesk
