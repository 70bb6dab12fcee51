#include "values/complex.h"

#include <cmath>

#include "values/fault.h"

namespace lapdesk {

Complex CplDiv(const Complex& a, const Complex& b) {
    const double d = Checked(Checked(b.Re * b.Re) + Checked(b.Im * b.Im));
    if (d == 0.0) RaiseFault(FaultCode::DivisionByZero);
    const double re = Checked(Checked(a.Re * b.Re) + Checked(a.Im * b.Im));
    const double im = Checked(Checked(b.Re * a.Im) - Checked(a.Re * b.Im));
    return {Checked(re / d), Checked(im / d)};
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

// Principal argument in radians from the arctangent of the ratio of the parts.
double CplArgRadians(const Complex& a) {
    if (a.Im == 0.0) return a.Re < 0.0 ? kArgOfNegativeReal : 0.0;
    if (a.Re == 0.0) return a.Im > 0.0 ? kArgOfNegativeReal / 2 : -kArgOfNegativeReal / 2;
    const double t = std::atan(a.Im / a.Re);  // a ratio past the range is atan(inf)
    if (a.Re > 0.0) return t;
    return a.Im > 0.0 ? t + kArgOfNegativeReal : t - kArgOfNegativeReal;
}

double CplArg(const Complex& a) {
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
