#include "values/complex.h"

#include <cmath>

#include "values/fault.h"

namespace lapdesk {

// A divisor of zero is found first. An infinite divisor or numerator part
// makes its quotient infinite or NaN, or is the divisor itself, so checking
// the divisor and the two quotients checks every step.
Complex CplDiv(const Complex& a, const Complex& b) {
    const double d = b.Re * b.Re + b.Im * b.Im;
    if (d == 0.0) RaiseFault(FaultCode::DivisionByZero);
    const double re = a.Re * b.Re + a.Im * b.Im;
    const double im = b.Re * a.Im - a.Re * b.Im;
    const double qr = re / d;
    const double qi = im / d;
    Checked(d);
    return {Checked(qr), Checked(qi)};
}

Complex CplPow(const Complex& a, const Complex& b) {
    const Complex zero{};
    if (b == zero) return {1.0, 0.0};
    if (a == zero) return zero;
    if (b.Im == 0.0) {
        if (b.Re == 2.0) return CplMul(a, a);
        if (b.Re == 3.0) return CplMul(CplMul(a, a), a);
        if (b.Re == 4.0) {
            const Complex square = CplMul(a, a);
            return CplMul(square, square);
        }
        const double r = CplAbs(a);
        const double theta = CplArg(a);
        const double phi = Checked(Checked(theta * b.Re) * AngleUnit);
        const double m = Checked(std::pow(r, b.Re));
        return {Checked(m * std::cos(phi)), Checked(m * std::sin(phi))};
    }
    return CplExp(CplMul(b, CplLog(a)));
}

Complex CplNeg(const Complex& a) {
    return {-a.Re, -a.Im};
}

Complex CplScale(double x, const Complex& a) {
    return {Checked(x * a.Re), Checked(x * a.Im)};
}

double CplAbs(const Complex& a) {
    return Checked(std::sqrt(Checked(Checked(a.Re * a.Re) + Checked(a.Im * a.Im))));
}

namespace {

// Principal argument from the arctangent of the ratio of the parts, in a
// unit of which half a turn is `halfTurn` and one unit is `radiansPerUnit`.
double PrincipalArg(const Complex& a, double halfTurn, double radiansPerUnit) {
    if (a.Im == 0.0) return a.Re < 0.0 ? halfTurn : 0.0;
    if (a.Re == 0.0) return a.Im > 0.0 ? halfTurn / 2 : -halfTurn / 2;
    // A ratio past the range is atan(inf).
    const double t = Checked(std::atan(a.Im / a.Re) / radiansPerUnit);
    if (a.Re > 0.0) return t;
    return a.Im > 0.0 ? t + halfTurn : t - halfTurn;
}

}  // namespace

double CplArgRadians(const Complex& a) {
    return PrincipalArg(a, kArgOfNegativeReal, 1.0);
}

double CplArg(const Complex& a) {
    if (AngleUnit == kDegreeUnit) return PrincipalArg(a, 180.0, kDegreeUnit);
    return Checked(CplArgRadians(a) / AngleUnit);
}

double CplAbsArg(const Complex& a, double& theta) {
    theta = CplArg(a);
    return CplAbs(a);
}

Complex CplExp(const Complex& a) {
    const double m = Checked(std::exp(a.Re));
    return {Checked(m * std::cos(a.Im)), Checked(m * std::sin(a.Im))};
}

Complex CplLog(const Complex& a) {
    return {Checked(std::log(CplAbs(a))), CplArgRadians(a)};
}

}  // namespace lapdesk
