// The accuracy features' numbers as one CSV table: per result point t_k the
// FFT's f, its error band, the accurate f, its estimate and whether the
// accurate inversion vouches for it (1) or flagged it (0). A column stays
// empty where its part did not run or did not apply (the accurate inversion
// leaves out t = 0). Shortest round-trip numbers, LF line ends.
#pragma once

#include <string>

#include "transform/accurate/accuracy_run.h"

namespace lapdesk {

std::string AccuracyCsv(const TransformDriver& fft, const AccuracyReport& report);

}  // namespace lapdesk
