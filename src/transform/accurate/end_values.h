// How f(t) begins and ends, from F alone: f(0+) = lim s*F(s) as s -> +inf
// along the real axis (the initial-value theorem) and f(inf) = lim s*F(s)
// as s -> 0+ (the final-value theorem). A limit is claimed only when it
// settles: s*F(s) must stop changing over two decades of s. The final-value
// theorem also needs f itself to settle, which F on the real axis cannot
// tell (sin t has s*F(s) -> 0): f is inverted accurately at 10 T, 100 T and
// 1000 T and must be at the limit there.
#pragma once

#include <cstdint>

#include "transform/accurate/dehoog_inversion.h"
#include "transform/accurate/laplace_function.h"

namespace lapdesk {

struct EndValue {
    bool found = false;
    double value = 0.0;
    double estimate = 0.0;  // bound on |error| as far as the checks tell
};

struct EndValues {
    EndValue initial;  // f(0+)
    EndValue final;    // lim f(t) as t -> inf
    std::int64_t evaluations = 0;
    bool stopped = false;
};

// T is the record length (the final value is checked at multiples of it);
// parameters are those of the accurate inversion for the same F.
EndValues FindEndValues(const LaplaceFunction& f, double T, const AccurateParameters& parameters);

}  // namespace lapdesk
