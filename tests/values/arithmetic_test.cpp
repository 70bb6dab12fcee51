// The five operators of the language, the argument helper, and the faults
// that arithmetic raises instead of storing an infinity or NaN.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <functional>
#include <limits>
#include <numbers>
#include <ostream>

#include "complex_near.h"
#include "values/complex.h"
#include "values/fault.h"

namespace lapdesk {
namespace {

constexpr double kPi = std::numbers::pi;

TEST(Operators, GiveTheValue) {
    const struct {
        char op;
        Complex a, b, expected;
        double tolerance;  // 0: bit-exact
    } rows[] = {{'+', {1, 2}, {3, 4}, {4, 6}, 0},
                {'-', {1, 2}, {3, 5}, {-2, -3}, 0},
                {'*', {1, 2}, {3, 4}, {-5, 10}, 0},
                {'/', {3, 4}, {1, 2}, {2.2, -0.4}, 0},
                // Small whole exponents go by repeated products and so are exact; the
                // polar form would leave a residue of about 1E-16. 0^0, 0^-1, 0^2j
                // and (1+1j)^2 are in the calc golden file.
                {'^', {2, 0}, {3, 0}, {8, 0}, 0},
                {'^', {2, 0}, {3.0000001, 0}, {std::pow(2.0, 3.0000001), 0}, 1e-13},
                // Through the polar form with the argument 3.14159265358979 the real
                // part keeps a residue of about 1.6E-15 (std::cos(pi / 2) would give
                // 6.1E-17); the display shows it unless rounded.
                {'^', {-1, 0}, {0.5, 0}, {std::cos(3.14159265358979 / 2), 1}, 0},
                {'^', {-8, 0}, {1.0 / 3, 0}, {1, std::sqrt(3.0)}, 1e-12},
                {'^', {2, 0}, {-1, 0}, {0.5, 0}, 0},
                {'^', {std::numbers::e, 0}, {0, kPi}, {-1, 0}, 1e-12}};
    for (const auto& row : rows) {
        Complex acc = row.a;
        ASSERT_TRUE(ApplyOperator(row.op, acc, row.b)) << row.a << row.op << row.b;
        EXPECT_TRUE(Near(acc, row.expected, row.tolerance)) << row.a << row.op << row.b;
    }
}

TEST(Operators, UnknownOperatorLeavesAccumulator) {
    for (char op : {'%', 'x', '\0'}) {
        Complex acc{1, 2};
        EXPECT_FALSE(ApplyOperator(op, acc, {3, 4})) << op;
        EXPECT_EQ(acc, (Complex{1, 2})) << op;
    }
}

TEST(Operators, PowersAreTakenInRadiansWhateverTheAngleUnit) {
    const AngleUnitScope degrees(kPi / 180);
    EXPECT_TRUE(Near(CplPow({-1, 0}, {0.5, 0}), {0, 1}, 1e-12));
    EXPECT_TRUE(Near(CplPow({0, 1}, {0, 1}), {std::exp(-kPi / 2), 0}, 1e-12));
}

// The argument is principal; a negative real number takes 3.14159265358979,
// not the nearest double to pi.
TEST(Argument, IsPrincipal) {
    const struct {
        Complex z;
        double radians;
    } rows[] = {{{0, 0}, 0},
                {{-5, 0}, 3.14159265358979},
                {{-1, -0.0}, 3.14159265358979},
                {{0, -2}, -kPi / 2},
                {{-1, -1}, -3 * kPi / 4}};
    for (const auto& row : rows) {
        EXPECT_NEAR(CplArg(row.z), row.radians, 1e-14) << row.z;
    }
    EXPECT_EQ(CplArg({-1, 0}), 3.14159265358979);
}

TEST(Argument, IsDividedByTheAngleUnit) {
    const AngleUnitScope degrees(kDegreeUnit);
    EXPECT_EQ(CplArg({0, 1}), 90.0);
    EXPECT_EQ(CplArg({-1, 0}), 180.0);
    double theta = 0;
    EXPECT_EQ(CplAbsArg({3, 4}, theta), 5.0);
    EXPECT_NEAR(theta, std::atan2(4.0, 3.0) * 180 / kPi, 1e-12);
}

constexpr double kHuge = std::numeric_limits<double>::max();

// A fault leaves the accumulator as it was; division by zero is error 11.
TEST(ArithmeticFaults, RaiseAndStoreNothing) {
    const struct {
        char op;
        Complex a, b;
        FaultCode fault;
    } rows[] = {{'/', {1, 0}, {0, 0}, FaultCode::DivisionByZero},
                {'/', {1, 0}, {1e-200, 0}, FaultCode::DivisionByZero},
                {'/', {1, 0}, {1e200, 0}, FaultCode::Overflow},
                {'+', {kHuge, 0}, {kHuge, 0}, FaultCode::Overflow},
                {'-', {0, -kHuge}, {0, kHuge}, FaultCode::Overflow},
                {'*', {1e200, 0}, {1e200, 0}, FaultCode::Overflow},
                {'^', {1e200, 0}, {2, 0}, FaultCode::Overflow},
                {'^', {1e300, 1e300}, {0.5, 0}, FaultCode::Overflow},
                {'^', {10, 0}, {400, 1}, FaultCode::Overflow}};
    for (const auto& row : rows) {
        Complex acc = row.a;
        try {
            ApplyOperator(row.op, acc, row.b);
            ADD_FAILURE() << row.a << row.op << row.b << " gave " << acc;
        } catch (const RuntimeFault& fault) {
            EXPECT_EQ(fault.code(), row.fault) << row.a << row.op << row.b;
            EXPECT_STRNE(fault.description(), "");
        }
        EXPECT_EQ(acc, row.a);
    }
}

TEST(ArithmeticFaults, HelpersRaiseInsteadOfReturningInfinity) {
    EXPECT_THROW(CplExp({1000, 0}), RuntimeFault);
    EXPECT_THROW(CplLog({0, 0}), RuntimeFault);
    EXPECT_THROW(CplAbs({1e200, 0}), RuntimeFault);
    EXPECT_THROW(CplScale(1e300, {1e300, 0}), RuntimeFault);
    EXPECT_THROW(CplMul({kHuge, kHuge}, {2, 2}), RuntimeFault);
}

TEST(Int16Arithmetic, OverflowIsAFaultNotAWrap) {
    EXPECT_EQ(Add16(32766, 1), 32767);
    EXPECT_EQ(Sub16(-32767, 1), -32768);
    EXPECT_EQ(Mul16(-256, 128), -32768);
    EXPECT_EQ(ToInt16(-32768), -32768);
    const std::function<void()> overflows[] = {
        [] { Add16(32767, 1); },  [] { Add16(-32768, -1); }, [] { Sub16(-32768, 1); },
        [] { Sub16(0, -32768); }, [] { Mul16(256, 128); },   [] { ToInt16(32768); },
        [] { ToInt16(-32769); },  [] { ToInt16(1LL << 40); }};
    for (std::size_t i = 0; i < std::size(overflows); ++i) {
        try {
            overflows[i]();
            ADD_FAILURE() << "case " << i << " gave no fault";
        } catch (const RuntimeFault& fault) {
            EXPECT_EQ(fault.code(), FaultCode::Overflow) << "case " << i;
        }
    }
}

}  // namespace
}  // namespace lapdesk
