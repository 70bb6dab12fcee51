// F on the damped FFT's sampling line, taken back from the samples the FFT
// was given: the store holds F(s_k) * (N/T) * w_k for k = 0..N/2, so F(s_k)
// is known wherever the Hanning weight w_k is not 0. The error band and the
// singularity check reuse these values instead of asking F again.
#pragma once

#include <optional>
#include <vector>

#include "transform/transform_driver.h"
#include "values/complex.h"

namespace lapdesk {

using LineValues = std::vector<std::optional<Complex>>;  // k = 0..N/2

LineValues LineValuesFromStore(const TransformDriver& driver);

}  // namespace lapdesk
