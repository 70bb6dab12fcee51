// The scalar built-in functions, called by their codes 0..24.
#include <gtest/gtest.h>

#include "named_rows.h"

#include <cmath>
#include <numbers>
#include <ostream>
#include <string>
#include <vector>

#include "complex_near.h"
#include "values/builtins.h"
#include "values/fault.h"

namespace lapdesk {
namespace {

constexpr double kPi = std::numbers::pi;

// Function codes, in the order of the scalar function table.
enum Code : std::int16_t {
    kSin,
    kCos,
    kTan,
    kAtan,
    kAtn,
    kExp,
    kLog,
    kLog10,
    kLog2,
    kSqrt,
    kSqr,
    kQbic,
    kSinh,
    kCosh,
    kTanh,
    kCpx,
    kConj,
    kReal,
    kImage,
    kAbs,
    kArg,
    kInteger,
    kPower,
    kRandom,
    kRandomize
};

struct FunctionRow {
    const char* name;
    std::int16_t code;
    std::vector<Complex> args;
    Complex expected;
    double tolerance;  // 0: bit-exact
};

class ScalarFunctions : public ::testing::TestWithParam<FunctionRow> {};

TEST_P(ScalarFunctions, GiveTheValue) {
    const FunctionRow& row = GetParam();
    Complex result{99, 99};
    ASSERT_TRUE(CallScalarFunction(row.code, row.args, result));
    EXPECT_TRUE(Near(result, row.expected, row.tolerance));
}

std::string FunctionRowName(const ::testing::TestParamInfo<FunctionRow>& info) {
    return info.param.name;
}

// Real arguments take the real routine: the imaginary part of the result is
// exactly 0, and where the real library function exists the value is its.
INSTANTIATE_TEST_SUITE_P(
    RealArguments, ScalarFunctions,
    ::testing::Values(
        FunctionRow{"Sin", kSin, {{0.5, 0}}, {std::sin(0.5), 0}, 0},
        FunctionRow{"Cos", kCos, {{0.5, 0}}, {std::cos(0.5), 0}, 0},
        FunctionRow{"Tan", kTan, {{1.0, 0}}, {std::tan(1.0), 0}, 0},
        FunctionRow{"Atan", kAtan, {{1, 0}}, {std::atan(1.0), 0}, 0},
        FunctionRow{"AtnIsAtan", kAtn, {{1, 0}}, {std::atan(1.0), 0}, 0},
        FunctionRow{"Exp", kExp, {{1, 0}}, {std::exp(1.0), 0}, 0},
        FunctionRow{"Log", kLog, {{std::numbers::e, 0}}, {1, 0}, 0},
        FunctionRow{"LogOfNegative", kLog, {{-1, 0}}, {0, kArgOfNegativeReal}, 0},
        FunctionRow{"Log10", kLog10, {{100, 0}}, {2, 0}, 1e-15},
        FunctionRow{"Log2", kLog2, {{8, 0}}, {3, 0}, 1e-15},
        FunctionRow{"Sqrt", kSqrt, {{2, 0}}, {std::sqrt(2.0), 0}, 0},
        FunctionRow{"SqrtOfNegativeIsExactImaginary", kSqrt, {{-4, 0}}, {0, 2}, 0},
        FunctionRow{"SqrIsSqrt", kSqr, {{-4, 0}}, {0, 2}, 0},
        FunctionRow{"Qbic", kQbic, {{8, 0}}, {2, 0}, 0},
        FunctionRow{"QbicOfNegativeIsPrincipal", kQbic, {{-8, 0}}, {1, std::sqrt(3.0)}, 1e-14},
        FunctionRow{"Sinh", kSinh, {{1, 0}}, {std::sinh(1.0), 0}, 0},
        FunctionRow{"Cosh", kCosh, {{1, 0}}, {std::cosh(1.0), 0}, 0},
        FunctionRow{"Tanh", kTanh, {{0.5, 0}}, {std::tanh(0.5), 0}, 1e-16},
        FunctionRow{"TanhOfLargeArgument", kTanh, {{400, 0}}, {1, 0}, 0},
        FunctionRow{"Abs", kAbs, {{-3, 0}}, {3, 0}, 0},
        FunctionRow{"ArgOfNegative", kArg, {{-3, 0}}, {kArgOfNegativeReal, 0}, 0},
        FunctionRow{"Power", kPower, {{2, 0}, {10, 0}}, {1024, 0}, 0},
        FunctionRow{"PowerZeroToZero", kPower, {{0, 0}, {0, 0}}, {1, 0}, 0}),
    FunctionRowName);

INSTANTIATE_TEST_SUITE_P(
    ComplexArguments, ScalarFunctions,
    ::testing::Values(
        FunctionRow{"Sin",
                    kSin,
                    {{1, 1}},
                    {std::sin(1.0) * std::cosh(1.0), std::cos(1.0) * std::sinh(1.0)},
                    1e-14},
        FunctionRow{"Cos", kCos, {{0, 1}}, {std::cosh(1.0), 0}, 1e-14},
        FunctionRow{"Tan", kTan, {{0, 1}}, {0, std::tanh(1.0)}, 1e-14},
        FunctionRow{"Atan", kAtan, {{0, 0.5}}, {0, std::atanh(0.5)}, 1e-14},
        FunctionRow{"Exp", kExp, {{0, kPi}}, {-1, 0}, 1e-14},
        FunctionRow{"Log", kLog, {{0, 1}}, {0, kPi / 2}, 1e-14},
        FunctionRow{"Log10", kLog10, {{0, 100}}, {2, kPi / 2 / std::log(10.0)}, 1e-14},
        FunctionRow{"Sqrt", kSqrt, {{0, 2}}, {1, 1}, 1e-14},
        FunctionRow{"Qbic", kQbic, {{0, 8}}, {std::sqrt(3.0), 1}, 1e-14},
        FunctionRow{"Sinh", kSinh, {{0, kPi / 2}}, {0, 1}, 1e-14},
        FunctionRow{"Cosh", kCosh, {{0, kPi}}, {-1, 0}, 1e-14},
        FunctionRow{"Tanh", kTanh, {{0, 1}}, {0, std::tan(1.0)}, 1e-14},
        FunctionRow{"CpxTakesRealParts", kCpx, {{1, 5}, {2, 3}}, {1, 2}, 0},
        FunctionRow{"Conj", kConj, {{3, 4}}, {3, -4}, 0},
        FunctionRow{"Real", kReal, {{3, 4}}, {3, 0}, 0},
        FunctionRow{"Image", kImage, {{3, 4}}, {4, 0}, 0},
        FunctionRow{"Abs", kAbs, {{3, 4}}, {5, 0}, 0},
        FunctionRow{"Arg", kArg, {{0, 1}}, {kPi / 2, 0}, 1e-14},
        FunctionRow{
            "PowerComplexExponent", kPower, {{0, 1}, {0, 1}}, {std::exp(-kPi / 2), 0}, 1e-14}),
    FunctionRowName);

// Integer rounds to nearest with ties to even and drops the imaginary part.
INSTANTIATE_TEST_SUITE_P(
    Integer, ScalarFunctions,
    ::testing::Values(FunctionRow{"TieDown", kInteger, {{2.5, 0}}, {2, 0}, 0},
                      FunctionRow{"TieUp", kInteger, {{3.5, 0}}, {4, 0}, 0},
                      FunctionRow{"NegativeTie", kInteger, {{-2.5, 0}}, {-2, 0}, 0},
                      FunctionRow{"DropsImaginary", kInteger, {{1.7, 5}}, {2, 0}, 0},
                      FunctionRow{"Largest", kInteger, {{2147483647.4, 0}}, {2147483647, 0}, 0},
                      FunctionRow{
                          "Smallest", kInteger, {{-2147483648.0, 0}}, {-2147483648.0, 0}, 0}),
    FunctionRowName);

TEST(ScalarFunctionFaults, IntegerOutsideThirtyTwoBitsOverflows) {
    for (double x : {2147483648.0, 2147483647.5, -2147483649.0, 1e300}) {
        Complex result;
        const std::vector<Complex> args{{x, 0}};
        try {
            CallScalarFunction(kInteger, args, result);
            ADD_FAILURE() << x << " gave " << result;
        } catch (const RuntimeFault& fault) {
            EXPECT_EQ(fault.code(), FaultCode::Overflow) << x;
        }
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

TEST(ScalarFunctionFaults, ArithmeticFaultsPropagate) {
    const struct {
        std::int16_t code;
        Complex arg;
    } rows[] = {{kExp, {1000, 0}}, {kSinh, {1000, 0}}, {kCosh, {-1000, 0}},
                {kLog, {0, 0}},    {kAtan, {0, 1}},    {kTan, {0, 1000}}};
    for (const auto& row : rows) {
        Complex result;
        const std::vector<Complex> args{row.arg};
        EXPECT_THROW(CallScalarFunction(row.code, args, result), RuntimeFault)
            << "code " << row.code;
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

TEST(ScalarFunctionCodes, RandomIsInTheUnitIntervalAndIgnoresArguments) {
    for (std::int16_t code : {std::int16_t{kRandom}, std::int16_t{kRandomize}}) {
        for (int i = 0; i < 1000; ++i) {
            Complex result{-1, -1};
            ASSERT_TRUE(CallScalarFunction(code, {}, result));
            ASSERT_GE(result.Re, 0.0);
            ASSERT_LT(result.Re, 1.0);
            ASSERT_EQ(result.Im, 0.0);
        }
    }
    Complex a, b;
    const std::vector<Complex> ignored{{42, 0}};
    CallScalarFunction(kRandom, ignored, a);
    CallScalarFunction(kRandom, ignored, b);
    EXPECT_NE(a.Re, b.Re) << "two draws in a row should differ";
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
        {"Tan(45)", kTan, {45, 0}, {1, 0}, 1e-14},
        {"Atan(1)", kAtan, {1, 0}, {45, 0}, 1e-12},
        {"Atan(0.5j)", kAtan, {0, 0.5}, {0, std::atanh(0.5) * 180 / kPi}, 1e-12},
        {"Arg(1j)", kArg, {0, 1}, {90, 0}, 0},
        {"Arg(-1)", kArg, {-1, 0}, {180, 0}, 0},
        {"Sin(90j)", kSin, {0, 90}, {0, std::sinh(kPi / 2)}, 1e-14},
        {"Log(-1) stays in radians", kLog, {-1, 0}, {0, kArgOfNegativeReal}, 0},
        {"Exp(1j) stays in radians", kExp, {0, 1}, {std::cos(1.0), std::sin(1.0)}, 1e-15},
        {"Sqrt(-4)", kSqrt, {-4, 0}, {0, 2}, 0},
        {"Sqrt(2j)", kSqrt, {0, 2}, {1, 1}, 1e-14},
    };
    for (const Row& row : rows) {
        Complex result;
        const std::vector<Complex> args{row.arg};
        ASSERT_TRUE(CallScalarFunction(row.code, args, result)) << row.name;
        EXPECT_TRUE(Near(result, row.expected, row.tolerance)) << row.name;
    }
}

}  // namespace
}  // namespace lapdesk
