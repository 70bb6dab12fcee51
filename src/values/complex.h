// The one value type of the calculator language and its arithmetic.
#pragma once

#include <numbers>

#include "values/fault.h"

namespace lapdesk {

// A complex number; a real number is one whose Im is exactly 0.
struct Complex {
    double Re = 0.0;
    double Im = 0.0;

    friend bool operator==(const Complex&, const Complex&) = default;
};

// Radians in one unit of angle as the user sees angles (1.0: radians).
// Read by CplArg, CplPow and the trigonometric built-ins.
inline double AngleUnit = 1.0;

// The constant the argument of a negative real takes: the double
// 0x400921FB54442D11, seven units below the nearest double to pi.
inline constexpr double kArgOfNegativeReal = 3.14159265358979;

// The angle unit for degrees: the nearest double to pi over 180, so that
// Cos(60) is 0.5 and Tan(45) is 1 to the digits shown. Arguments in degrees
// count half a turn as exactly 180 (CplArg), so Arg(1j) is 90 and Arg(-1)
// is 180.
inline constexpr double kDegreeUnit = std::numbers::pi / 180.0;

// Every operation raises a RuntimeFault (fault.h) when any of its
// floating-point steps overflows or is invalid, so no infinity or NaN is
// ever stored in a Complex. The operands are finite, so a step's product is
// finite or infinite, never NaN, and an infinite one makes every sum or
// difference it goes into infinite or NaN: checking the results is checking
// every step.
// Add, subtract and multiply are inline: the inverse FFT calls them in every
// butterfly. Each product is rounded on its own (no fused multiply-add), so
// results are the same on every machine.
inline Complex CplAdd(const Complex& a, const Complex& b) {
    return {Checked(a.Re + b.Re), Checked(a.Im + b.Im)};
}
inline Complex CplSub(const Complex& a, const Complex& b) {
    return {Checked(a.Re - b.Re), Checked(a.Im - b.Im)};
}
inline Complex CplMul(const Complex& a, const Complex& b) {
    const double rr = a.Re * b.Re;
    const double ii = a.Im * b.Im;
    const double ir = a.Im * b.Re;
    const double ri = b.Im * a.Re;
    return {Checked(rr - ii), Checked(ir + ri)};
}
Complex CplDiv(const Complex& a, const Complex& b);  // zero divisor: fault 11
Complex CplPow(const Complex& a, const Complex& b);
Complex CplNeg(const Complex& a);
Complex CplScale(double x, const Complex& a);
double CplAbs(const Complex& a);
double CplArg(const Complex& a);  // principal argument in angle units
double CplArgRadians(const Complex& a);
double CplAbsArg(const Complex& a, double& theta);
Complex CplExp(const Complex& a);
Complex CplLog(const Complex& a);  // argument in radians

// Applies one of the language's binary operators "+-*/^": acc = acc op right.
// Returns false, leaving acc unchanged, for any other character. Inline: an
// expression applies one per operand.
inline bool ApplyOperator(char op, Complex& acc, const Complex& right) {
    switch (op) {
        case '+':
            acc = CplAdd(acc, right);
            return true;
        case '-':
            acc = CplSub(acc, right);
            return true;
        case '*':
            acc = CplMul(acc, right);
            return true;
        case '/':
            acc = CplDiv(acc, right);
            return true;
        case '^':
            acc = CplPow(acc, right);
            return true;
        default:
            return false;
    }
}

}  // namespace lapdesk
