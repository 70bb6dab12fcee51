// The five operators of the language, the argument helper, and the faults
// that arithmetic raises instead of storing an infinity or NaN.
#include <gtest/gtest.h>

#include "named_rows.h"

#include <bit>
#include <cstdint>
#include <functional>
#include <limits>
#include <numbers>
#include <ostream>
#include <string>

#include "complex_near.h"
#include "values/complex.h"
#include "values/fault.h"

namespace lapdesk {
namespace {

constexpr double kPi = std::numbers::pi;

template <typename Row>
std::string RowName(const ::testing::TestParamInfo<Row>& info) {
    return info.param.name;
}

// ---------------------------------------------------------------- operators

struct OperatorRow {
    const char* name;
    char op;
    Complex a;
    Complex b;
    Complex expected;
    double tolerance;  // 0: bit-exact
};

class Operators : public ::testing::TestWithParam<OperatorRow> {};

TEST_P(Operators, GiveTheValue) {
    const OperatorRow& row = GetParam();
    Complex acc = row.a;
    ASSERT_TRUE(ApplyOperator(row.op, acc, row.b));
    EXPECT_TRUE(Near(acc, row.expected, row.tolerance));
}

const double kRootOfMinusOneReal = std::cos(kArgOfNegativeReal / 2);

INSTANTIATE_TEST_SUITE_P(
    Arithmetic, Operators,
    ::testing::Values(
        OperatorRow{"Add", '+', {1, 2}, {3, 4}, {4, 6}, 0},
        OperatorRow{"Subtract", '-', {1, 2}, {3, 5}, {-2, -3}, 0},
        OperatorRow{"Multiply", '*', {1, 2}, {3, 4}, {-5, 10}, 0},
        OperatorRow{"Divide", '/', {3, 4}, {1, 2}, {2.2, -0.4}, 0},
        OperatorRow{"DivideByImaginary", '/', {1, 0}, {0, 1}, {0, -1}, 0},
        // The order of the tests inside the power: a zero exponent first,
        // then a zero base, then the exact small integer exponents.
        OperatorRow{"ZeroToTheZeroIsOne", '^', {0, 0}, {0, 0}, {1, 0}, 0},
        OperatorRow{"ZeroToMinusOneIsZero", '^', {0, 0}, {-1, 0}, {0, 0}, 0},
        OperatorRow{"ZeroToImaginaryIsZero", '^', {0, 0}, {0, 2}, {0, 0}, 0},
        OperatorRow{"AnythingToZeroIsOne", '^', {-3, 7}, {0, 0}, {1, 0}, 0},
        // (1+j)^n by repeated products has exact parts; the polar form
        // would leave a residue of about 1E-16 in the zero part.
        OperatorRow{"SquareByProduct", '^', {1, 1}, {2, 0}, {0, 2}, 0},
        OperatorRow{"CubeByProduct", '^', {1, 1}, {3, 0}, {-2, 2}, 0},
        OperatorRow{"FourthByProduct", '^', {1, 1}, {4, 0}, {-4, 0}, 0},
        OperatorRow{"TwoCubedExact", '^', {2, 0}, {3, 0}, {8, 0}, 0},
        OperatorRow{
            "NearCubeGoesPolar", '^', {2, 0}, {3.0000001, 0}, {std::pow(2.0, 3.0000001), 0}, 1e-13},
        OperatorRow{"NearSquareOfComplexGoesPolar",
                    '^',
                    {1, 1},
                    {2.0000001, 0},
                    {std::pow(2.0, 1.00000005) * std::cos(kPi / 4 * 2.0000001),
                     std::pow(2.0, 1.00000005) * std::sin(kPi / 4 * 2.0000001)},
                    1e-12},
        OperatorRow{
            "MinusOneToTheHalfKeepsResidue", '^', {-1, 0}, {0.5, 0}, {kRootOfMinusOneReal, 1}, 0},
        OperatorRow{"PrincipalCubeRootOfMinusEight",
                    '^',
                    {-8, 0},
                    {1.0 / 3, 0},
                    {1, std::sqrt(3.0)},
                    1e-12},
        OperatorRow{"NegativeExponent", '^', {2, 0}, {-1, 0}, {0.5, 0}, 0},
        OperatorRow{"ImaginaryToImaginary", '^', {0, 1}, {0, 1}, {std::exp(-kPi / 2), 0}, 1e-12},
        OperatorRow{"ComplexExponent", '^', {std::numbers::e, 0}, {0, kPi}, {-1, 0}, 1e-12}),
    RowName<OperatorRow>);

TEST(Operators, PolarResidueOfMinusOneToTheHalfIsAboutOnePointSixE15) {
    // Taken with the argument 3.14159265358979 rather than the nearest double
    // to pi, cos(arg / 2) is not the 6.1E-17 that std::cos(pi / 2) gives.
    EXPECT_GT(kRootOfMinusOneReal, 1.6e-15);
    EXPECT_LT(kRootOfMinusOneReal, 1.7e-15);
}

TEST(Operators, UnknownOperatorLeavesAccumulator) {
    for (char op : {'%', '&', 'x', ' ', '\0'}) {
        Complex acc{1, 2};
        EXPECT_FALSE(ApplyOperator(op, acc, {3, 4})) << op;
        EXPECT_EQ(acc, (Complex{1, 2})) << op;
    }
}

TEST(Operators, PowersAreTakenInRadiansWhateverTheAngleUnit) {
    const AngleUnitScope degrees(kPi / 180);
    EXPECT_TRUE(Near(CplPow({-1, 0}, {0.5, 0}), {0, 1}, 1e-12));
    EXPECT_TRUE(Near(CplPow({0, 2}, {0.5, 0}), {1, 1}, 1e-12));
    EXPECT_TRUE(Near(CplPow({0, 1}, {0, 1}), {std::exp(-kPi / 2), 0}, 1e-12));
}

// ----------------------------------------------------------------- argument

struct ArgumentRow {
    const char* name;
    Complex z;
    double radians;
    double tolerance;
};

class Argument : public ::testing::TestWithParam<ArgumentRow> {};

TEST_P(Argument, IsPrincipal) {
    const ArgumentRow& row = GetParam();
    if (row.tolerance == 0) {
        EXPECT_EQ(CplArg(row.z), row.radians);
    } else {
        EXPECT_NEAR(CplArg(row.z), row.radians, row.tolerance);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Quadrants, Argument,
    ::testing::Values(ArgumentRow{"Zero", {0, 0}, 0, 0}, ArgumentRow{"PositiveReal", {5, 0}, 0, 0},
                      ArgumentRow{"NegativeReal", {-5, 0}, kArgOfNegativeReal, 0},
                      ArgumentRow{"NegativeRealWithMinusZero", {-1, -0.0}, kArgOfNegativeReal, 0},
                      ArgumentRow{"PositiveImaginary", {0, 2}, kPi / 2, 1e-14},
                      ArgumentRow{"NegativeImaginary", {0, -2}, -kPi / 2, 1e-14},
                      ArgumentRow{"FirstQuadrant", {1, 1}, kPi / 4, 1e-14},
                      ArgumentRow{"SecondQuadrant", {-1, 1}, 3 * kPi / 4, 1e-14},
                      ArgumentRow{"ThirdQuadrant", {-1, -1}, -3 * kPi / 4, 1e-14},
                      ArgumentRow{"FourthQuadrant", {1, -1}, -kPi / 4, 1e-14}),
    RowName<ArgumentRow>);

TEST(Argument, NegativeRealTakesTheFixedConstantNotPi) {
    EXPECT_EQ(std::bit_cast<std::uint64_t>(CplArg({-1, 0})), 0x400921FB54442D11u);
    EXPECT_NE(CplArg({-1, 0}), kPi);
}

TEST(Argument, IsDividedByTheAngleUnit) {
    const AngleUnitScope degrees(kDegreeUnit);
    EXPECT_EQ(CplArg({0, 1}), 90.0);
    EXPECT_EQ(CplArg({-1, 0}), 180.0);
    double theta = 0;
    EXPECT_EQ(CplAbsArg({3, 4}, theta), 5.0);
    EXPECT_NEAR(theta, std::atan2(4.0, 3.0) * 180 / kPi, 1e-12);
}

// ------------------------------------------------------------------- faults

struct FaultRow {
    const char* name;
    char op;
    Complex a;
    Complex b;
    FaultCode fault;
};

class ArithmeticFaults : public ::testing::TestWithParam<FaultRow> {};

TEST_P(ArithmeticFaults, RaiseAndStoreNothing) {
    const FaultRow& row = GetParam();
    Complex acc = row.a;
    try {
        ApplyOperator(row.op, acc, row.b);
        ADD_FAILURE() << "no fault; the result was " << acc;
    } catch (const RuntimeFault& fault) {
        EXPECT_EQ(fault.code(), row.fault);
        EXPECT_STRNE(fault.description(), "");
    }
    EXPECT_EQ(acc, row.a);
}

constexpr double kHuge = std::numeric_limits<double>::max();

INSTANTIATE_TEST_SUITE_P(
    Arithmetic, ArithmeticFaults,
    ::testing::Values(
        FaultRow{"OneOverZero", '/', {1, 0}, {0, 0}, FaultCode::DivisionByZero},
        FaultRow{"ComplexOverZero", '/', {1, 1}, {0, 0}, FaultCode::DivisionByZero},
        FaultRow{"SquaredDivisorUnderflows", '/', {1, 0}, {1e-200, 0}, FaultCode::DivisionByZero},
        FaultRow{"SquaredDivisorOverflows", '/', {1, 0}, {1e200, 0}, FaultCode::Overflow},
        FaultRow{"SumOverflows", '+', {kHuge, 0}, {kHuge, 0}, FaultCode::Overflow},
        FaultRow{"DifferenceOverflows", '-', {0, -kHuge}, {0, kHuge}, FaultCode::Overflow},
        FaultRow{"ProductOverflows", '*', {1e200, 0}, {1e200, 0}, FaultCode::Overflow},
        FaultRow{"SquareOverflows", '^', {1e200, 0}, {2, 0}, FaultCode::Overflow},
        FaultRow{"PolarPowerOverflows", '^', {10, 0}, {400.5, 0}, FaultCode::Overflow},
        FaultRow{"ModulusOfBaseOverflows", '^', {1e300, 1e300}, {0.5, 0}, FaultCode::Overflow},
        FaultRow{"ComplexExponentOverflows", '^', {10, 0}, {400, 1}, FaultCode::Overflow}),
    RowName<FaultRow>);

TEST(ArithmeticFaults, DivisionByZeroIsErrorNumberEleven) {
    try {
        CplDiv({1, 0}, {0, 0});
        FAIL() << "no fault";
    } catch (const RuntimeFault& fault) {
        EXPECT_EQ(static_cast<int>(fault.code()), 11);
    }
}

TEST(ArithmeticFaults, HelpersRaiseInsteadOfReturningInfinity) {
    const std::function<void()> cases[] = {
        [] {
            CplExp({1000, 0});
        },
        [] {
            CplLog({0, 0});
        },
        [] {
            CplAbs({1e200, 0});
        },
        [] {
            CplScale(1e300, {1e300, 0});
        },
        [] {
            CplMul({kHuge, kHuge}, {2, 2});
        },
    };
    for (std::size_t i = 0; i < std::size(cases); ++i) {
        EXPECT_THROW(cases[i](), RuntimeFault) << "case " << i;
    }
}

// ---------------------------------------------------- 16-bit integer helpers

struct Int16Row {
    const char* name;
    std::int16_t (*operation)(std::int16_t, std::int16_t);
    std::int16_t a;
    std::int16_t b;
    bool overflows;
    std::int16_t expected;
};

class Int16Arithmetic : public ::testing::TestWithParam<Int16Row> {};

TEST_P(Int16Arithmetic, OverflowIsAFaultNotAWrap) {
    const Int16Row& row = GetParam();
    if (row.overflows) {
        try {
            row.operation(row.a, row.b);
            FAIL() << "no fault";
        } catch (const RuntimeFault& fault) {
            EXPECT_EQ(fault.code(), FaultCode::Overflow);
        }
    } else {
        EXPECT_EQ(row.operation(row.a, row.b), row.expected);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Bounds, Int16Arithmetic,
    ::testing::Values(Int16Row{"AddToLargest", Add16, 32766, 1, false, 32767},
                      Int16Row{"AddPastLargest", Add16, 32767, 1, true, 0},
                      Int16Row{"AddPastSmallest", Add16, -32768, -1, true, 0},
                      Int16Row{"SubtractToSmallest", Sub16, -32767, 1, false, -32768},
                      Int16Row{"SubtractPastSmallest", Sub16, -32768, 1, true, 0},
                      Int16Row{"NegateSmallest", Sub16, 0, -32768, true, 0},
                      Int16Row{"MultiplyToSmallest", Mul16, -256, 128, false, -32768},
                      Int16Row{"MultiplyPastLargest", Mul16, 256, 128, true, 0}),
    RowName<Int16Row>);

TEST(Int16Arithmetic, NarrowingChecksBothEnds) {
    EXPECT_EQ(ToInt16(-32768), -32768);
    EXPECT_EQ(ToInt16(32767), 32767);
    EXPECT_THROW(ToInt16(32768), RuntimeFault);
    EXPECT_THROW(ToInt16(-32769), RuntimeFault);
    EXPECT_THROW(ToInt16(1LL << 40), RuntimeFault);
}

}  // namespace
}  // namespace lapdesk
