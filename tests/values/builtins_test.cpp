// The scalar built-in functions, called by their codes 0..24.
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
namespace {

constexpr double kPi = std::numbers::pi;

// Function codes, in the order of the scalar function table.
constexpr std::int16_t kSin = 0, kCos = 1, kTan = 2, kAtan = 3, kAtn = 4, kExp = 5, kLog = 6,
                       kLog10 = 7, kLog2 = 8, kSqrt = 9, kSqr = 10, kQbic = 11, kSinh = 12,
                       kCosh = 13, kTanh = 14, kCpx = 15, kConj = 16, kReal = 17, kImage = 18,
                       kAbs = 19, kArg = 20, kInteger = 21, kPower = 22;

// A real argument takes the real routine: the imaginary part of the result
// is exactly 0, even where the complex formula would leave a residue.
TEST(ScalarFunctions, RealArgumentsGiveRealResults) {
    for (std::int16_t code : {kSin, kCos, kTan, kAtan, kExp, kLog, kLog10, kLog2, kSqrt, kQbic,
                              kSinh, kCosh, kTanh, kAbs, kArg, kInteger}) {
        Complex result{99, 99};
        const std::vector<Complex> args{{0.7, 0}};
        ASSERT_TRUE(CallScalarFunction(code, args, result)) << "code " << code;
        EXPECT_EQ(result.Im, 0.0) << "code " << code;
    }
}

// Integer rounds to nearest with ties to even and drops the imaginary part.
TEST(ScalarFunctions, GiveTheValue) {
    const struct {
        std::int16_t code;
        std::vector<Complex> args;
        Complex expected;
        double tolerance;  // 0: bit-exact
    } rows[] = {{kAtn, {{1, 0}}, {std::atan(1.0), 0}, 0},
                {kLog, {{-1, 0}}, {0, 3.14159265358979}, 0},
                {kLog2, {{8, 0}}, {3, 0}, 1e-15},
                {kSqrt, {{-4, 0}}, {0, 2}, 0},
                {kSqr, {{-4, 0}}, {0, 2}, 0},
                {kQbic, {{-8, 0}}, {1, std::sqrt(3.0)}, 1e-14},
                {kTanh, {{400, 0}}, {1, 0}, 0},
                {kPower, {{0, 0}, {0, 0}}, {1, 0}, 0},
                {kSin, {{kPi / 2, 1}}, {std::cosh(1.0), 0}, 1e-14},
                {kCos, {{0, 1}}, {std::cosh(1.0), 0}, 1e-14},
                {kTan, {{0, 1}}, {0, std::tanh(1.0)}, 1e-14},
                {kAtan, {{0, 0.5}}, {0, std::atanh(0.5)}, 1e-14},
                {kExp, {{0, kPi}}, {-1, 0}, 1e-14},
                {kLog10, {{0, 100}}, {2, kPi / 2 / std::log(10.0)}, 1e-14},
                {kSqrt, {{0, 2}}, {1, 1}, 1e-14},
                {kQbic, {{0, 8}}, {std::sqrt(3.0), 1}, 1e-14},
                {kSinh, {{0, kPi / 2}}, {0, 1}, 1e-14},
                {kCpx, {{1, 5}, {2, 3}}, {1, 2}, 0},
                {kConj, {{3, 4}}, {3, -4}, 0},
                {kReal, {{3, 4}}, {3, 0}, 0},
                {kImage, {{3, 4}}, {4, 0}, 0},
                {kAbs, {{3, 4}}, {5, 0}, 0},
                {kArg, {{0, 1}}, {kPi / 2, 0}, 1e-14},
                {kPower, {{0, 1}, {0, 1}}, {std::exp(-kPi / 2), 0}, 1e-14},
                {kInteger, {{2.5, 0}}, {2, 0}, 0},
                {kInteger, {{3.5, 0}}, {4, 0}, 0},
                {kInteger, {{1.7, 5}}, {2, 0}, 0},
                {kInteger, {{2147483647.4, 0}}, {2147483647, 0}, 0},
                {kInteger, {{-2147483648.0, 0}}, {-2147483648.0, 0}, 0}};
    for (const auto& row : rows) {
        Complex result{99, 99};
        ASSERT_TRUE(CallScalarFunction(row.code, row.args, result)) << "code " << row.code;
        EXPECT_TRUE(Near(result, row.expected, row.tolerance))
            << "code " << row.code << " of " << row.args[0];
    }
}

TEST(ScalarFunctionFaults, TooFewArgumentsIsTheSubscriptFault) {
    struct Row {
        std::int16_t code;
        std::size_t given;
    };
    const Row rows[] = {{kSin, 0}, {kSqrt, 0}, {kCpx, 1}, {kPower, 1}, {kInteger, 0}};
    for (const Row& row : rows) {
        const std::vector<Complex> args(row.given, Complex{1, 0});
        Complex result{5, 5};
        try {
            CallScalarFunction(row.code, args, result);
            ADD_FAILURE() << "code " << row.code << " ran with " << row.given << " arguments";
        } catch (const RuntimeFault& fault) {
            EXPECT_EQ(fault.code(), FaultCode::SubscriptOutOfRange) << "code " << row.code;
        }
        EXPECT_EQ(result, (Complex{5, 5}));
    }
}

// Integer outside 32 bits overflows instead of wrapping.
TEST(ScalarFunctionFaults, ArithmeticFaultsPropagate) {
    const struct {
        std::int16_t code;
        Complex arg;
    } rows[] = {{kExp, {1000, 0}},
                {kSinh, {1000, 0}},
                {kCosh, {-1000, 0}},
                {kLog, {0, 0}},
                {kAtan, {0, 1}},
                {kTan, {0, 1000}},
                {kInteger, {2147483648.0, 0}},
                {kInteger, {-2147483649.0, 0}}};
    for (const auto& row : rows) {
        Complex result;
        const std::vector<Complex> args{row.arg};
        EXPECT_THROW(CallScalarFunction(row.code, args, result), RuntimeFault)
            << "code " << row.code << " of " << row.arg;
    }
}

TEST(ScalarFunctionCodes, OutsideTheTableAreRefused) {
    const std::vector<Complex> args{{1, 0}, {1, 0}};
    for (std::int16_t code : {std::int16_t{-1}, std::int16_t{25}, std::int16_t{1000}}) {
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
        std::int16_t code;
        Complex arg;
        Complex expected;
        double tolerance;
    };
    const Row rows[] = {
        {"Sin(90)", kSin, {90, 0}, {1, 0}, 0},
        {"Cos(60)", kCos, {60, 0}, {0.5, 0}, 1e-14},
        {"Atan(1)", kAtan, {1, 0}, {45, 0}, 1e-12},
        {"Atan(0.5j)", kAtan, {0, 0.5}, {0, std::atanh(0.5) * 180 / kPi}, 1e-12},
        {"Arg(1j)", kArg, {0, 1}, {90, 0}, 0},
        {"Sin(90j)", kSin, {0, 90}, {0, std::sinh(kPi / 2)}, 1e-14},
        {"Log(-1) stays in radians", kLog, {-1, 0}, {0, 3.14159265358979}, 0},
        {"Exp(1j) stays in radians", kExp, {0, 1}, {std::cos(1.0), std::sin(1.0)}, 1e-15}};
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
        std::int16_t code;
        Complex arg;
        const char* shown;
    } rows[] = {{kCos, {60, 0}, "0.5"}, {kTan, {45, 0}, "1"},   {kSin, {30, 0}, "0.5"},
                {kArg, {0, 1}, "90"},   {kArg, {-1, 0}, "180"}, {kArg, {-1, 1}, "135"},
                {kArg, {0, -1}, "-90"}, {kAtan, {1, 0}, "45"}};
    for (const auto& row : rows) {
        Complex result;
        const std::vector<Complex> args{row.arg};
        ASSERT_TRUE(CallScalarFunction(row.code, args, result)) << row.code;
        EXPECT_EQ(ComplexToText(result, false), row.shown)
            << "code " << row.code << " of " << row.arg;
    }
}

}  // namespace
}  // namespace lapdesk
