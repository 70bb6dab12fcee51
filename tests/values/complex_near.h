// Comparison of complex values for the value-layer tests: exact when the
// tolerance is 0, otherwise each part within the tolerance.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <ostream>

#include "values/complex.h"

namespace lapdesk {

inline std::ostream& operator<<(std::ostream& out, const Complex& z) {
    const auto precision = out.precision(17);
    out << "(" << z.Re << ", " << z.Im << ")";
    out.precision(precision);
    return out;
}

inline ::testing::AssertionResult Near(const Complex& actual, const Complex& expected,
                                       double tolerance) {
    const bool exact = tolerance == 0.0;
    const bool close = exact ? actual == expected
                             : std::fabs(actual.Re - expected.Re) <= tolerance &&
                                   std::fabs(actual.Im - expected.Im) <= tolerance;
    if (close) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "got " << actual << ", expected " << expected
                                         << (exact ? " exactly" : " within tolerance");
}

// Sets AngleUnit for the life of the object and puts radians back after.
class AngleUnitScope {
  public:
    explicit AngleUnitScope(double unit) { AngleUnit = unit; }
    ~AngleUnitScope() { AngleUnit = 1.0; }
    AngleUnitScope(const AngleUnitScope&) = delete;
    AngleUnitScope& operator=(const AngleUnitScope&) = delete;
};

}  // namespace lapdesk
