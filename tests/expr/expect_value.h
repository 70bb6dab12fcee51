// Checks of evaluation outcomes for the expression-layer tests.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "expr/evaluator.h"

namespace lapdesk {

// An expected outcome: a value (exact when tolerance is 0), or a failure.
struct Outcome {
    bool ok;
    Complex value;
    double tolerance = 0;
};

inline Outcome Value(double re, double im = 0, double tolerance = 0) {
    return {true, {re, im}, tolerance};
}
inline Outcome Fails() {
    return {false, {}, 0};
}

inline ::testing::AssertionResult Matches(const Evaluation& got, const Outcome& expected) {
    auto describe = [&](::testing::AssertionResult result) {
        result << "ok=" << got.ok << " value=(" << got.value.Re << ", " << got.value.Im
               << ") message=\"" << got.message << "\"";
        return result;
    };
    if (got.ok != expected.ok) return describe(::testing::AssertionFailure());
    if (!got.ok) {
        if (got.message.empty()) {
            return describe(::testing::AssertionFailure() << "a failure needs a message; ");
        }
        return ::testing::AssertionSuccess();
    }
    const bool same = expected.tolerance == 0
                          ? got.value == expected.value
                          : std::fabs(got.value.Re - expected.value.Re) <= expected.tolerance &&
                                std::fabs(got.value.Im - expected.value.Im) <= expected.tolerance;
    if (same) return ::testing::AssertionSuccess();
    return describe(::testing::AssertionFailure()
                    << "expected (" << expected.value.Re << ", " << expected.value.Im << "); ");
}

}  // namespace lapdesk
