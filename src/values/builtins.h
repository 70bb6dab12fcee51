// The built-in scalar functions of the language ("Sin(" ... "Randomize(").
#pragma once

#include <cstdint>
#include <span>

#include "values/complex.h"

namespace lapdesk {

// Number of functions handled by CallScalarFunction (codes 0..24).
inline constexpr std::int16_t kScalarFunctionCount = 25;

// Applies function `code` (its index in the scalar function table) to the
// arguments. False, with result untouched, for a code outside 0..24. Too few
// arguments raise the subscript fault; arithmetic faults propagate.
bool CallScalarFunction(std::int16_t code, std::span<const Complex> args, Complex& result);

// The language's pseudo-random numbers in [0, 1), and the reseed from the clock.
double NextRandom();
void ReseedRandom();

}  // namespace lapdesk
