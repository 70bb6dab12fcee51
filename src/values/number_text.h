// Numeric literals to values, and values to the text every display shows.
// Number text always uses "." as the decimal separator, whatever the locale.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "values/complex.h"

namespace lapdesk {

// Significant digits of the rounded display.
inline constexpr std::int16_t kRoundedDigits = 6;

// True when the text is a real number (optional sign, digits, one ".",
// optional exponent E/e with optional sign, blanks around); x gets its value.
bool TextToReal(std::string_view text, double& x);

// True when the text is a numeric literal: a real number, or a real number
// followed at once by "i" or "j" (any case). On success z is set and the
// text emptied; on failure both are left as they were.
bool TextToComplex(std::string& text, Complex& z);

// x rounded to n significant digits (n = 0 keeps one digit).
double RoundToDigits(double x, std::int16_t n);
// A text that is not a number comes back unchanged.
std::string RoundToDigits(const std::string& text, std::int16_t n);

// The standard text of a double: at most 15 significant digits, no trailing
// zeros, scientific form with "E+nn"/"E-nn" when too large or too small.
std::string DoubleToText(double x);

// The value TextToReal reads from DoubleToText(x), found without making the
// string; nothing when that text does not read back (it overflows).
std::optional<double> DoubleThroughText(double x);

// The calculator's text of a value. With rounded, the value is first
// rounded to 6 significant digits and cleaned of negligible parts, and the
// cleaned value is written back into z.
std::string ComplexToText(Complex& z, bool rounded);

}  // namespace lapdesk
