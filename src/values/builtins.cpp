#include "values/builtins.h"

#include <chrono>
#include <cmath>
#include <random>

#include "values/fault.h"

namespace lapdesk {

namespace {

std::mt19937_64& Generator() {
    static std::mt19937_64 generator{std::random_device{}()};
    return generator;
}

const Complex& Arg(std::span<const Complex> args, std::size_t i) {
    if (i >= args.size()) RaiseFault(FaultCode::SubscriptOutOfRange);
    return args[i];
}

Complex ToRadians(const Complex& a) {
    return CplScale(AngleUnit, a);
}

Complex ComplexSin(const Complex& z) {
    return {Checked(std::sin(z.Re) * std::cosh(z.Im)), Checked(std::cos(z.Re) * std::sinh(z.Im))};
}

Complex ComplexCos(const Complex& z) {
    return {Checked(std::cos(z.Re) * std::cosh(z.Im)), Checked(-std::sin(z.Re) * std::sinh(z.Im))};
}

Complex ComplexSinh(const Complex& z) {
    return {Checked(std::sinh(z.Re) * std::cos(z.Im)), Checked(std::cosh(z.Re) * std::sin(z.Im))};
}

Complex ComplexCosh(const Complex& z) {
    return {Checked(std::cosh(z.Re) * std::cos(z.Im)), Checked(std::sinh(z.Re) * std::sin(z.Im))};
}

Complex Sin(const Complex& a) {
    if (a.Im == 0.0) return {Checked(std::sin(Checked(AngleUnit * a.Re))), 0.0};
    return ComplexSin(ToRadians(a));
}

Complex Tan(const Complex& a) {
    if (a.Im == 0.0) return {Checked(std::tan(Checked(AngleUnit * a.Re))), 0.0};
    const Complex z = ToRadians(a);
    return CplDiv(ComplexSin(z), ComplexCos(z));
}

// atan z = (j/2) (ln(1 - jz) - ln(1 + jz)), in the user's angle unit.
Complex Atan(const Complex& a) {
    if (a.Im == 0.0) return {Checked(std::atan(a.Re) / AngleUnit), 0.0};
    const Complex one{1.0, 0.0};
    const Complex jz{-a.Im, a.Re};
    const Complex difference = CplSub(CplLog(CplSub(one, jz)), CplLog(CplAdd(one, jz)));
    const Complex radians = CplMul({0.0, 0.5}, difference);
    return CplScale(1.0 / AngleUnit, radians);
}

Complex Tanh(const Complex& a) {
    if (a.Im == 0.0) {
        // Taken on |x| and signed after, so a large negative x gives -1
        // instead of overflowing e^(-2x).
        const double e = Checked(std::exp(Checked(-2.0 * std::fabs(a.Re))));
        const double t = Checked((1.0 - e) / (1.0 + e));
        return {a.Re < 0.0 ? -t : t, 0.0};
    }
    return CplDiv(ComplexSinh(a), ComplexCosh(a));
}

Complex Sqrt(const Complex& a) {
    if (a.Im == 0.0) {
        return a.Re >= 0.0 ? Complex{std::sqrt(a.Re), 0.0} : Complex{0.0, std::sqrt(-a.Re)};
    }
    return CplPow(a, {0.5, 0.0});
}

// The cube root whose argument is the principal argument divided by three.
Complex Qbic(const Complex& a) {
    if (a.Im == 0.0 && a.Re >= 0.0) return {std::cbrt(a.Re), 0.0};
    const double m = std::cbrt(CplAbs(a));
    const double phi = CplArgRadians(a) / 3.0;
    return {Checked(m * std::cos(phi)), Checked(m * std::sin(phi))};
}

// Rounds to the nearest 32-bit integer, ties to even.
Complex Integer(const Complex& a) {
    const double r = std::nearbyint(a.Re);
    if (!(r >= -2147483648.0 && r <= 2147483647.0)) RaiseFault(FaultCode::Overflow);
    return {r, 0.0};
}

Complex LogScaled(double base, const Complex& a) {
    return CplScale(1.0 / std::log(base), CplLog(a));
}

}  // namespace

double NextRandom() {
    return std::generate_canonical<double, 53>(Generator());
}

void ReseedRandom() {
    Generator().seed(
        static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count()));
}

bool CallScalarFunction(ScalarCode code, std::span<const Complex> args, Complex& result) {
    switch (code) {
        case ScalarCode::Sin:
            result = Sin(Arg(args, 0));
            break;
        case ScalarCode::Cos:
            result = ComplexCos(ToRadians(Arg(args, 0)));
            break;
        case ScalarCode::Tan:
            result = Tan(Arg(args, 0));
            break;
        case ScalarCode::Atan:
            result = Atan(Arg(args, 0));
            break;
        case ScalarCode::Exp:
            result = CplExp(Arg(args, 0));
            break;
        case ScalarCode::Log:
            result = CplLog(Arg(args, 0));
            break;
        case ScalarCode::Log10:
            result = LogScaled(10.0, Arg(args, 0));
            break;
        case ScalarCode::Log2:
            result = LogScaled(2.0, Arg(args, 0));
            break;
        case ScalarCode::Sqrt:
            result = Sqrt(Arg(args, 0));
            break;
        case ScalarCode::Qbic:
            result = Qbic(Arg(args, 0));
            break;
        case ScalarCode::Sinh:
            result = ComplexSinh(Arg(args, 0));
            break;
        case ScalarCode::Cosh:
            result = ComplexCosh(Arg(args, 0));
            break;
        case ScalarCode::Tanh:
            result = Tanh(Arg(args, 0));
            break;
        case ScalarCode::Cpx:
            result = {Arg(args, 0).Re, Arg(args, 1).Re};
            break;
        case ScalarCode::Conj:
            result = {Arg(args, 0).Re, -Arg(args, 0).Im};
            break;
        case ScalarCode::Real:
            result = {Arg(args, 0).Re, 0.0};
            break;
        case ScalarCode::Image:
            result = {Arg(args, 0).Im, 0.0};
            break;
        case ScalarCode::Abs:
            result = {CplAbs(Arg(args, 0)), 0.0};
            break;
        case ScalarCode::Arg:
            result = {CplArg(Arg(args, 0)), 0.0};
            break;
        case ScalarCode::Integer:
            result = Integer(Arg(args, 0));
            break;
        case ScalarCode::Power:
            result = CplPow(Arg(args, 0), Arg(args, 1));
            break;
        case ScalarCode::Random:
            result = {NextRandom(), 0.0};
            break;
        case ScalarCode::Randomize:
            ReseedRandom();
            result = {NextRandom(), 0.0};
            break;
        default:
            return false;
    }
    return true;
}

}  // namespace lapdesk
