// The number pictures of the transform data file. Digits are rounded half
// away from zero. An exponent needs at least two digits; one of three digits
// (1E+100 and up, 1E-100 and below) is written in full, so that field is one
// character wider than the others and still reads back.
#pragma once

#include <string>

namespace lapdesk {

// "    ####    ": the integer between four spaces on each side; 0 shows no digit.
std::string FormatWordNumber(int n);
// "  0.000E+00 ": T with four significant digits.
std::string FormatTend(double x);
// "   ###.0##": one to three decimals, no leading zero (0.25 gives "   .25").
std::string FormatGanma(double x);
// "   0.0000000E+00;  -0.0000000E+00": a sample with eight significant digits;
// negative values put "-" in place of the third space, so widths match.
std::string FormatSample(double x);
// "   0.000E+00;  -0.000E+00": t or y with four significant digits.
std::string FormatTimeValue(double x);

// |x| as d.ddd...E+nn with the given number of decimals, rounded half away
// from zero.
std::string ScientificMagnitude(double x, int decimals);

}  // namespace lapdesk
