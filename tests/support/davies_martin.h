// The Davies-Martin test set as the programs in examples/davies-martin, with
// the exact f(t) of each, and the scores the accuracy targets are stated in:
// the largest error on [0.5, 4] and early on [0.05, 0.5), and how often an
// estimate covers the true error and stays within 3 times it. Errors and
// estimates below 1e-12 * max(|f|, 1) count as that floor. Scores run over
// the first 80 % of the record (t_n for n = 1..0.8 N).
#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <string>

namespace lapdesk::davies_martin {

struct Case {
    const char* file;  // in examples/davies-martin
    double (*f)(double t);
};

inline const std::array<Case, 16>& Cases() {
    static const std::array<Case, 16> cases = {{
        {"01-bessel-j0.Prg", [](double t) { return std::cyl_bessel_j(0.0, t); }},
        {"02-cos-sqrt.Prg",
         [](double t) { return std::cos(2 * std::sqrt(t)) / std::sqrt(M_PI * t); }},
        {"03-decay-half.Prg", [](double t) { return std::exp(-t / 2); }},
        {"04-damped-sine.Prg", [](double t) { return std::exp(-0.2 * t) * std::sin(t); }},
        {"05-step.Prg", [](double) { return 1.0; }},
        {"06-ramp.Prg", [](double t) { return t; }},
        {"07-t-decay.Prg", [](double t) { return t * std::exp(-t); }},
        {"08-sine.Prg", [](double t) { return std::sin(t); }},
        {"09-inverse-sqrt.Prg", [](double t) { return 1 / std::sqrt(M_PI * t); }},
        {"10-delayed-step.Prg", [](double t) { return t > 5 ? 1.0 : 0.0; }},
        {"11-log.Prg", [](double t) { return -0.5772156649015329 - std::log(t); }},
        {"12-square-wave.Prg",
         [](double t) { return std::fmod(std::floor(t), 2.0) == 0 ? 1.0 : 0.0; }},
        {"13-t-cosine.Prg", [](double t) { return t * std::cos(t); }},
        {"14-sqrt-difference.Prg",
         [](double t) {
             return (std::exp(-t / 4) - std::exp(-t / 2)) / std::sqrt(4 * M_PI * t * t * t);
         }},
        {"15-exp-sqrt.Prg",
         [](double t) { return 2 * std::exp(-4 / t) / std::sqrt(M_PI * t * t * t); }},
        {"16-sinc.Prg", [](double t) { return std::sin(t) / t; }},
    }};
    return cases;
}

// The one case no method here gets right: a jump at every integer t.
inline bool IsSquareWave(const Case& c) {
    return std::string(c.file) == "12-square-wave.Prg";
}

struct Scores {
    double error = 0.0;  // largest on [0.5, 4]
    double early = 0.0;  // largest on [0.05, 0.5)
    int covered = 0;
    int within3 = 0;
    int points = 0;

    void Add(double t, double value, double estimate, double exact) {
        const double floor = 1e-12 * std::max(std::abs(exact), 1.0);
        const double e = std::abs(value - exact);
        if (t >= 0.5 && t <= 4.0) error = std::max(error, e);
        if (t >= 0.05 && t < 0.5) early = std::max(early, e);
        const double err = std::max(e, floor);
        const double est = std::max(estimate, floor);
        ++points;
        if (est >= err) ++covered;
        if (est >= err && est <= 3 * err) ++within3;
    }
    void Merge(const Scores& other) {
        covered += other.covered;
        within3 += other.within3;
        points += other.points;
    }
    double Coverage() const { return points ? double(covered) / points : 0.0; }
    double Within3() const { return points ? double(within3) / points : 0.0; }
};

}  // namespace lapdesk::davies_martin
