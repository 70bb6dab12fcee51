// The built-in scalar functions of the language ("Sin(" ... "Randomize(").
#pragma once

#include <cstdint>
#include <span>

#include "values/complex.h"

namespace lapdesk {

// The built-in scalar functions.
enum class ScalarCode : std::int16_t {
    Sin,
    Cos,
    Tan,
    Atan,
    Exp,
    Log,
    Log10,
    Log2,
    Sqrt,
    Qbic,
    Sinh,
    Cosh,
    Tanh,
    Cpx,
    Conj,
    Real,
    Image,
    Abs,
    Arg,
    Integer,
    Power,
    Random,
    Randomize
};

// Applies function `code` to the arguments. False, with result untouched,
// for a value that is none of the codes. Too few arguments raise the
// subscript fault; arithmetic faults propagate.
bool CallScalarFunction(ScalarCode code, std::span<const Complex> args, Complex& result);

// The language's pseudo-random numbers in [0, 1), and the reseed from the clock.
double NextRandom();
void ReseedRandom();

}  // namespace lapdesk
