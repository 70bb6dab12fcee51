// Laplace pairs with exact inverses, beyond the Davies-Martin set: the
// classes engineers meet and each method has a weak spot in. Ringing f up to
// omega*T = 300, jumps, kinks, delays, fractional powers, log kernels,
// diffusion kernels, Bessel functions, growth left and right of the FFT's
// line, long tails (T = 50) and short times (T = 0.01).
#pragma once

#include <cmath>
#include <ostream>
#include <string>
#include <vector>

namespace lapdesk::laplace_pairs {

struct Pair {
    const char* name;
    const char* F;  // the expression the program returns, in p
    double T;
    double gamma0;
    double (*f)(double t);

    std::string Program() const { return std::string("Return ") + F + "\r\nEnd\r\n"; }
};

// Test names show the pair's name, not its bytes.
inline void PrintTo(const Pair& pair, std::ostream* out) {
    *out << pair.name;
}

inline double StepResponse(double t) {  // omega0 = 20, zeta = 0.05
    const double wd = std::sqrt(399.0);
    return 1 - std::exp(-t) * (std::cos(wd * t) + std::sin(wd * t) / wd);
}

inline const std::vector<Pair>& Pairs() {
    static const std::vector<Pair> pairs = {
        {"ring-sin14", "14/(p^2+196)", 5, 5, [](double t) { return std::sin(14 * t); }},
        {"ring-sin20", "20/(p^2+400)", 5, 5, [](double t) { return std::sin(20 * t); }},
        {"ring-sin60", "60/(p^2+3600)", 5, 5, [](double t) { return std::sin(60 * t); }},
        {"ring-cos10", "p/(p^2+100)", 5, 5, [](double t) { return std::cos(10 * t); }},
        {"ring-damped40", "40/((p+0.1)^2+1600)", 5, 5,
         [](double t) { return std::exp(-0.1 * t) * std::sin(40 * t); }},
        {"ring-step", "400/(p*(p^2+2*p+400))", 5, 5, StepResponse},
        {"ring-sin30-T10", "30/(p^2+900)", 10, 5, [](double t) { return std::sin(30 * t); }},
        {"ring-sin100-T3", "100/(p^2+10000)", 3, 5, [](double t) { return std::sin(100 * t); }},
        {"jump-delayed-step", "Exp(-2*p)/p", 5, 5, [](double t) { return t > 2 ? 1.0 : 0.0; }},
        {"jump-pulse", "(1-Exp(-p))/p", 5, 5, [](double t) { return t < 1 ? 1.0 : 0.0; }},
        {"jump-delayed-decay", "Exp(-1.5*p)/(p+1)", 5, 5,
         [](double t) { return t > 1.5 ? std::exp(1.5 - t) : 0.0; }},
        {"kink-ramp-hold", "(1-Exp(-2*p))/p^2", 5, 5, [](double t) { return std::min(t, 2.0); }},
        {"kink-delayed-ramp", "Exp(-p)/p^2", 5, 5, [](double t) { return std::max(t - 1, 0.0); }},
        {"frac-p1.5", "1/p^1.5", 5, 5, [](double t) { return 2 * std::sqrt(t / M_PI); }},
        {"frac-p0.3", "p^(-0.3)", 5, 5,
         [](double t) { return std::pow(t, -0.7) / std::tgamma(0.3); }},
        {"frac-erf", "1/(p*Sqrt(p+1))", 5, 5, [](double t) { return std::erf(std::sqrt(t)); }},
        {"frac-decay", "1/Sqrt(p+1)", 5, 5,
         [](double t) { return std::exp(-t) / std::sqrt(M_PI * t); }},
        {"log-t", "Log(p)/p^2", 5, 5,
         [](double t) { return t * (1 - 0.5772156649015329 - std::log(t)); }},
        {"log-ratio", "Log((p+2)/(p+1))", 5, 5,
         [](double t) { return (std::exp(-t) - std::exp(-2 * t)) / t; }},
        {"diffusion-erfc", "Exp(-Sqrt(p))/p", 5, 5,
         [](double t) { return std::erfc(0.5 / std::sqrt(t)); }},
        {"diffusion-kernel", "Exp(-2*Sqrt(p))/Sqrt(p)", 5, 5,
         [](double t) { return std::exp(-1 / t) / std::sqrt(M_PI * t); }},
        {"diffusion-tail-T50", "1/(Sqrt(p)*(Sqrt(p)+1))", 50, 5,
         [](double t) { return std::exp(t) * std::erfc(std::sqrt(t)); }},
        {"bessel-j0-2t", "1/Sqrt(p^2+4)", 5, 5,
         [](double t) { return std::cyl_bessel_j(0.0, 2 * t); }},
        {"bessel-j1-over-t", "Sqrt(p^2+1)-p", 5, 5,
         [](double t) { return std::cyl_bessel_j(1.0, t) / t; }},
        {"bessel-i0-T50", "1/Sqrt(p*(p+2))", 50, 5,
         [](double t) { return std::exp(-t) * std::cyl_bessel_i(0.0, t); }},
        {"growth-left", "1/(p-0.5)", 5, 5, [](double t) { return std::exp(0.5 * t); }},
        {"growth-right-cosh", "p/(p^2-2.25)", 5, 5, [](double t) { return std::cosh(1.5 * t); }},
        {"growth-right-exp2", "1/(p-2)", 5, 5, [](double t) { return std::exp(2 * t); }},
        {"tail-decay-T50", "1/(p+0.05)", 50, 5, [](double t) { return std::exp(-0.05 * t); }},
        {"tail-sqrt-T50", "1/Sqrt(p*(p+1))", 50, 5,
         [](double t) { return std::exp(-t / 2) * std::cyl_bessel_i(0.0, t / 2); }},
        {"short-decay-T0.01", "1/(p+100)", 0.01, 5, [](double t) { return std::exp(-100 * t); }},
        {"short-sine-T0.01", "1000/(p^2+1000000)", 0.01, 5,
         [](double t) { return std::sin(1000 * t); }},
        {"short-inverse-sqrt", "1/Sqrt(p)", 0.01, 5,
         [](double t) { return 1 / std::sqrt(M_PI * t); }},
        {"poly-t3", "6/(p+1)^4", 5, 5, [](double t) { return t * t * t * std::exp(-t); }},
        {"fourth-order-step", "1/(p*(p+1)*(p+2)*(p+3))", 5, 5,
         [](double t) {
             return 1.0 / 6 - std::exp(-t) / 2 + std::exp(-2 * t) / 2 - std::exp(-3 * t) / 6;
         }},
        {"critical-step", "1/(p*(p+1)^2)", 5, 5,
         [](double t) { return 1 - std::exp(-t) * (1 + t); }},
    };
    return pairs;
}

}  // namespace lapdesk::laplace_pairs
