// The scalar built-in functions, called by their codes.
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <ostream>
#include <string>
#include <vector>

#include "complex_near.h"
#include "values/builtins.h"
#include "values/fault.h"
#include "values/number_text.h"

namespace lapdesk {

// Failure messages name a function by its code.
std::ostream& operator<<(std::ostream& os, ScalarCode code) {
    return os << "code " << static_cast<int>(code);
}

namespace {

constexpr double kPi = std::numbers::pi;

using enum ScalarCode;

// A real argument takes the real routine: the imaginary part of the result
// is exactly 0, even where the complex formula would leave a residue.
TEST(ScalarFunctions, RealArgumentsGiveRealResults) {
    for (ScalarCode code : {Sin, Cos, Tan, Atan, Exp, Log, Log10, Log2, Sqrt, Qbic, Sinh, Cosh,
                            Tanh, Abs, Arg, Integer}) {
        Complex result{99, 99};
        const std::vector<Complex> args{{0.7, 0}};
        ASSERT_TRUE(CallScalarFunction(code, args, result)) << code;
        EXPECT_EQ(result.Im, 0.0) << code;
    }
}

// Integer rounds to nearest with ties to even and drops the imaginary part.
TEST(ScalarFunctions, GiveTheValue) {
    const struct {
        ScalarCode code;
        std::vector<Complex> args;
        Complex expected;
        double tolerance;  // 0: bit-exact
    } rows[] = {{Atan, {{1, 0}}, {std::atan(1.0), 0}, 0},
                {Log, {{-1, 0}}, {0, 3.14159265358979}, 0},
                {Log2, {{8, 0}}, {3, 0}, 1e-15},
                {Sqrt, {{-4, 0}}, {0, 2}, 0},
                {Sqrt, {{-4, 0}}, {0, 2}, 0},
                {Qbic, {{-8, 0}}, {1, std::sqrt(3.0)}, 1e-14},
                {Tanh, {{400, 0}}, {1, 0}, 0},
                {Power, {{0, 0}, {0, 0}}, {1, 0}, 0},
                {Sin, {{kPi / 2, 1}}, {std::cosh(1.0), 0}, 1e-14},
                {Cos, {{0, 1}}, {std::cosh(1.0), 0}, 1e-14},
                {Tan, {{0, 1}}, {0, std::tanh(1.0)}, 1e-14},
                {Atan, {{0, 0.5}}, {0, std::atanh(0.5)}, 1e-14},
                {Exp, {{0, kPi}}, {-1, 0}, 1e-14},
                {Log10, {{0, 100}}, {2, kPi / 2 / std::log(10.0)}, 1e-14},
                {Sqrt, {{0, 2}}, {1, 1}, 1e-14},
                {Qbic, {{0, 8}}, {std::sqrt(3.0), 1}, 1e-14},
                {Sinh, {{0, kPi / 2}}, {0, 1}, 1e-14},
                {Cpx, {{1, 5}, {2, 3}}, {1, 2}, 0},
                {Conj, {{3, 4}}, {3, -4}, 0},
                {Real, {{3, 4}}, {3, 0}, 0},
                {Image, {{3, 4}}, {4, 0}, 0},
                {Abs, {{3, 4}}, {5, 0}, 0},
                {Arg, {{0, 1}}, {kPi / 2, 0}, 1e-14},
                {Power, {{0, 1}, {0, 1}}, {std::exp(-kPi / 2), 0}, 1e-14},
                {Integer, {{2.5, 0}}, {2, 0}, 0},
                {Integer, {{3.5, 0}}, {4, 0}, 0},
                {Integer, {{1.7, 5}}, {2, 0}, 0},
                {Integer, {{2147483647.4, 0}}, {2147483647, 0}, 0},
                {Integer, {{-2147483648.0, 0}}, {-2147483648.0, 0}, 0}};
    for (const auto& row : rows) {
        Complex result{99, 99};
        ASSERT_TRUE(CallScalarFunction(row.code, row.args, result)) << row.code;
        EXPECT_TRUE(Near(result, row.expected, row.tolerance)) << row.code << " of " << row.args[0];
    }
}

TEST(ScalarFunctionFaults, TooFewArgumentsIsTheSubscriptFault) {
    struct Row {
        ScalarCode code;
        std::size_t given;
    };
    const Row rows[] = {{Sin, 0}, {Sqrt, 0}, {Cpx, 1}, {Power, 1}, {Integer, 0}};
    for (const Row& row : rows) {
        const std::vector<Complex> args(row.given, Complex{1, 0});
        Complex result{5, 5};
        try {
            CallScalarFunction(row.code, args, result);
            ADD_FAILURE() << row.code << " ran with " << row.given << " arguments";
        } catch (const RuntimeFault& fault) {
            EXPECT_EQ(fault.code(), FaultCode::SubscriptOutOfRange) << row.code;
        }
        EXPECT_EQ(result, (Complex{5, 5}));
    }
}

// Integer outside 32 bits overflows instead of wrapping.
TEST(ScalarFunctionFaults, ArithmeticFaultsPropagate) {
    const struct {
        ScalarCode code;
        Complex arg;
    } rows[] = {{Exp, {1000, 0}},
                {Sinh, {1000, 0}},
                {Cosh, {-1000, 0}},
                {Log, {0, 0}},
                {Atan, {0, 1}},
                {Tan, {0, 1000}},
                {Integer, {2147483648.0, 0}},
                {Integer, {-2147483649.0, 0}}};
    for (const auto& row : rows) {
        Complex result;
        const std::vector<Complex> args{row.arg};
        EXPECT_THROW(CallScalarFunction(row.code, args, result), RuntimeFault)
            << row.code << " of " << row.arg;
    }
}

TEST(ScalarFunctionCodes, OutsideTheTableAreRefused) {
    const std::vector<Complex> args{{1, 0}, {1, 0}};
    for (int value : {-1, 23, 1000}) {
        const auto code = static_cast<ScalarCode>(value);
        Complex result{5, 5};
        EXPECT_FALSE(CallScalarFunction(code, args, result)) << code;
        EXPECT_EQ(result, (Complex{5, 5}));
    }
}

// With the degree unit the user works in degrees; arguments come out whole.
TEST(ScalarFunctionsInDegrees, TakeAndGiveDegrees) {
    const AngleUnitScope degrees(kDegreeUnit);
    struct Row {
        const char* name;
        ScalarCode code;
        Complex arg;
        Complex expected;
        double tolerance;
    };
    const Row rows[] = {
        {"Sin(90)", Sin, {90, 0}, {1, 0}, 0},
        {"Cos(60)", Cos, {60, 0}, {0.5, 0}, 1e-14},
        {"Atan(1)", Atan, {1, 0}, {45, 0}, 1e-12},
        {"Atan(0.5j)", Atan, {0, 0.5}, {0, std::atanh(0.5) * 180 / kPi}, 1e-12},
        {"Arg(1j)", Arg, {0, 1}, {90, 0}, 0},
        {"Sin(90j)", Sin, {0, 90}, {0, std::sinh(kPi / 2)}, 1e-14},
        {"Log(-1) stays in radians", Log, {-1, 0}, {0, 3.14159265358979}, 0},
        {"Exp(1j) stays in radians", Exp, {0, 1}, {std::cos(1.0), std::sin(1.0)}, 1e-15}};
    for (const Row& row : rows) {
        Complex result;
        const std::vector<Complex> args{row.arg};
        ASSERT_TRUE(CallScalarFunction(row.code, args, result)) << row.name;
        EXPECT_TRUE(Near(result, row.expected, row.tolerance)) << row.name;
    }
}

// What the user reads in degrees: the common angles come out as the exact
// values, not one unit off in the fifteenth digit.
TEST(ScalarFunctionsInDegrees, ShowTheCommonAnglesExactly) {
    const AngleUnitScope degrees(kDegreeUnit);
    const struct {
        ScalarCode code;
        Complex arg;
        const char* shown;
    } rows[] = {{Cos, {60, 0}, "0.5"}, {Tan, {45, 0}, "1"},   {Sin, {30, 0}, "0.5"},
                {Arg, {0, 1}, "90"},   {Arg, {-1, 0}, "180"}, {Arg, {-1, 1}, "135"},
                {Arg, {0, -1}, "-90"}, {Atan, {1, 0}, "45"}};
    for (const auto& row : rows) {
        Complex result;
        const std::vector<Complex> args{row.arg};
        ASSERT_TRUE(CallScalarFunction(row.code, args, result)) << row.code;
        EXPECT_EQ(ComplexToText(result, false), row.shown) << row.code << " of " << row.arg;
    }
}

}  // namespace
}  // namespace lapdesk
