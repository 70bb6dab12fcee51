// The expression evaluator through a PlainScope: precedence, literals, names,
// built-in functions, constants, arrays and matrix functions.
#include <gtest/gtest.h>

#include "named_rows.h"

#include <cmath>
#include <numbers>
#include <ostream>
#include <string>
#include <string_view>

#include "expect_value.h"
#include "expr/evaluator.h"
#include "expr/plain_scope.h"
#include "expr/vocabulary.h"
#include "values/matrix.h"

namespace lapdesk {
namespace {

constexpr double kPi = std::numbers::pi;

ComplexArray Matrix2x2(double a, double b, double c, double d) {
    ComplexArray m = ComplexArray::Matrix(2, 2);
    m.At(0, 0) = {a, 0};
    m.At(0, 1) = {b, 0};
    m.At(1, 0) = {c, 0};
    m.At(1, 1) = {d, 0};
    return m;
}

ComplexArray VectorOf(std::initializer_list<double> values) {
    ComplexArray v = ComplexArray::Vector(static_cast<int>(values.size()));
    int i = 0;
    for (double x : values)
        v.At(i++) = {x, 0};
    return v;
}

// x = 5, y = 2, x2E = 10; A = [[1, 2], [3, 4]], B = [5, 6], S singular,
// V = [10, 20, 30], W a 2x3 matrix.
class EvaluatorTest : public ::testing::Test {
  protected:
    EvaluatorTest() {
        InitVocabulary();
        scope.SetScalar("x", {5, 0});
        scope.SetScalar("y", {2, 0});
        scope.SetScalar("x2E", {10, 0});
        scope.SetArray("A", Matrix2x2(1, 2, 3, 4));
        scope.SetArray("B", VectorOf({5, 6}));
        scope.SetArray("S", Matrix2x2(1, 2, 2, 4));
        scope.SetArray("V", VectorOf({10, 20, 30}));
        scope.SetArray("W", ComplexArray::Matrix(2, 3));
    }

    Evaluation Eval(std::string_view text) { return Evaluate(text, scope); }

    PlainScope scope;
};

struct Row {
    const char* name;
    const char* text;
    Outcome expected;
};

std::string RowName(const ::testing::TestParamInfo<Row>& info) {
    return info.param.name;
}

class Expressions : public EvaluatorTest, public ::testing::WithParamInterface<Row> {};

TEST_P(Expressions, Evaluate) {
    const Row& row = GetParam();
    EXPECT_TRUE(Matches(Eval(row.text), row.expected)) << '"' << row.text << '"';
}

INSTANTIATE_TEST_SUITE_P(
    Precedence, Expressions,
    ::testing::Values(
        Row{"PowerChainsToTheLeft", "2^3^2", Value(64)},
        Row{"SignBindsLooserThanPower", "-2^2", Value(-4)},
        Row{"SignBindsLooserThanProduct", "-x*y", Value(-10)},
        Row{"SignedExponent", "2^-1", Value(0.5)}, Row{"SignedFactor", "2*-3", Value(-6)},
        Row{"SignedDivisor", "6/-3", Value(-2)},
        Row{"SignBeforeNameAfterOperatorFails", "2*-x", Fails()},
        Row{"BracketedNegativeName", "2*(-x)", Value(-10)},
        Row{"SumsToTheLeft", "10-2-3", Value(5)}, Row{"QuotientsToTheLeft", "64/4/2", Value(8)},
        Row{"ProductsBeforeSums", "2*3+4*5", Value(26)},
        Row{"PowersBeforeProducts", "2*3^2", Value(18)}, Row{"BracketsFirst", "(2+3)*4", Value(20)},
        Row{"NestedBrackets", "((2))*((3+1))", Value(8)},
        Row{"BlanksTrimmed", "  3 + 4j  ", Value(3, 4)},
        Row{"BlanksAroundEveryOperator", " 2 *  x ^ 2 - 1 ", Value(49)},
        Row{"BlankAfterSign", "2 * -3", Value(-6)}, Row{"LeadingPlus", "+3", Value(3)},
        Row{"LeadingMinusOnBracket", "-(2+3)", Value(-5)}),
    RowName);

INSTANTIATE_TEST_SUITE_P(
    Syntax, Expressions,
    ::testing::Values(Row{"UnclosedBracket", "(1+2)*(3", Fails()},
                      Row{"UnopenedBracket", "1+2)", Fails()}, Row{"EmptyBrackets", "()", Fails()},
                      Row{"DoubleSign", "--3", Fails()}, Row{"SignAfterPlus", "3+-2", Value(1)},
                      Row{"SignAfterMinus", "3 - -2", Value(5)},
                      Row{"SignedImaginaryPart", "1+-2j", Value(1, -2)},
                      Row{"TrailingPlus", "3+", Fails()}, Row{"TrailingTimes", "3*", Fails()},
                      Row{"LeadingTimes", "*3", Fails()}, Row{"TwoNumbers", "3 4", Fails()},
                      Row{"ImplicitProductWithBracket", "2(3)", Fails()},
                      Row{"ImplicitProductWithName", "2x", Fails()}, Row{"Empty", "", Fails()},
                      Row{"Blanks", "   ", Fails()}, Row{"UnknownName", "q", Fails()},
                      Row{"StrayOperator", "1%2", Fails()}),
    RowName);

INSTANTIATE_TEST_SUITE_P(Literals, Expressions,
                         ::testing::Values(Row{"ExponentSignInsideSum", "1E-3+1", Value(1.001)},
                                           Row{"LowerCaseExponentInsideSum", "1e-3+1",
                                               Value(1.001)},
                                           Row{"ExponentPlusInsideSum", "1E+3-1", Value(999)},
                                           Row{"ExponentSignAfterOperator", "2*1E-3", Value(0.002)},
                                           Row{"ExponentInsideBrackets", "(1E-3)*1000", Value(1)},
                                           Row{"ImaginaryWithExponent", "1+2E-3j", Value(1, 0.002)},
                                           Row{"NameEndingInEMinus", "x2E-3", Value(7)},
                                           Row{"NameEndingInEPlus", "x2E+3", Value(13)},
                                           Row{"UpperCaseImaginaryUnits", "3J*2I", Value(-6)},
                                           Row{"LoneJIsNoLiteral", "j", Fails()},
                                           Row{"DoubleJIsNoLiteral", "3jj", Fails()}),
                         RowName);

INSTANTIATE_TEST_SUITE_P(Functions, Expressions,
                         ::testing::Values(Row{"FunctionThenSum", "Sin(0)+1", Value(1)},
                                           Row{"FunctionTimesBracket", "Sqrt(4)*(1+1)", Value(4)},
                                           Row{"Atan", "Atan(1)", Value(std::atan(1.0))},
                                           Row{"AtnIsAtan", "Atn(1)", Value(std::atan(1.0))},
                                           Row{"Sqrt", "Sqrt(2)", Value(std::sqrt(2.0))},
                                           Row{"SqrIsSqrt", "Sqr(2)", Value(std::sqrt(2.0))},
                                           Row{"SqrtOfNegative", "Sqrt(-4)", Value(0, 2)},
                                           Row{"NamesIgnoreCase", "sIN(0)+COS(0)", Value(1)},
                                           Row{"LogIsNotLog10", "Log10(100)", Value(2, 0, 1e-15)},
                                           Row{"Log2", "Log2(8)", Value(3, 0, 1e-15)},
                                           Row{"SinhIsNotSin", "Sinh(1)", Value(std::sinh(1.0))},
                                           Row{"NestedCalls", "Sqrt(Sin(x)^2+Cos(x)^2)",
                                               Value(1, 0, 1e-15)},
                                           Row{"CpxTakesRealParts", "Cpx(1, 2+3j)", Value(1, 2)},
                                           Row{"NestedCommas", "Power(2, Power(2, 3))", Value(256)},
                                           Row{"ArgumentWithBrackets", "Abs((3+4j))", Value(5)},
                                           Row{"Integer", "Integer(2.5)+Integer(3.5)", Value(6)},
                                           Row{"BlanksInsideCall", "Sin( 0 )", Value(0)},
                                           Row{"UnclosedCall", "Sin(0", Fails()},
                                           Row{"CallFollowedByBracket", "Sin(0)(1)", Fails()},
                                           Row{"BadArgument", "Sin(1+)", Fails()},
                                           Row{"UnbalancedArgument", "Sin((1)", Fails()}),
                         RowName);

INSTANTIATE_TEST_SUITE_P(
    Constants, Expressions,
    ::testing::Values(Row{"Pi", "π", Value(kPi)}, Row{"PAI", "PAI", Value(kPi)},
                      Row{"PaiIgnoresCase", "pai", Value(kPi)}, Row{"TwoPi", "2π", Value(2 * kPi)},
                      Row{"DPI", "DPI", Value(2 * kPi)}, Row{"DPaI", "DPaI", Value(2 * kPi)},
                      Row{"TwoPai", "2Pai", Value(2 * kPi)}, Row{"HalfPi", "0.5π", Value(kPi / 2)},
                      Row{"HPI", "HPI", Value(kPi / 2)}, Row{"HPaI", "HPaI", Value(kPi / 2)},
                      Row{"HalfPaI", "0.5PaI", Value(kPi / 2)},
                      Row{"Exp1", "Exp1", Value(std::numbers::e, 0, 1e-15)},
                      Row{"OneI", "1i", Value(0, 1)}, Row{"OneJ", "1j", Value(0, 1)},
                      Row{"UnitSquared", "1i*1j", Value(-1)},
                      Row{"ConstantInProduct", "3*2π", Value(6 * kPi, 0, 1e-14)},
                      Row{"ConstantInQuotient", "π/2", Value(kPi / 2)},
                      Row{"NegatedConstant", "-π", Value(-kPi)},
                      Row{"ConstantAsArgument", "Sin(0.5π)", Value(1)}),
    RowName);

INSTANTIATE_TEST_SUITE_P(
    Arrays, Expressions,
    ::testing::Values(
        Row{"ElementIJ", "A(1,0)", Value(3)}, Row{"ElementJI", "A(0,1)", Value(2)},
        Row{"SubscriptsAreExpressions", "A(x-4, y-1)", Value(4)},
        Row{"MissingSubscriptIsZero", "A(,1)", Value(2)}, Row{"VectorElement", "V(2)", Value(30)},
        Row{"ElementsInASum", "V(1)+V(2)*A(1,1)", Value(140)},
        Row{"RowPastItsBoundReachesTheNextColumn", "A(2,0)", Value(2)},
        Row{"ColumnPastTheEnd", "A(0,2)", Fails()}, Row{"NegativeSubscript", "A(-1,0)", Fails()},
        Row{"VectorPastTheEnd", "V(3)", Fails()}, Row{"HugeSubscript", "V(1E300)", Fails()},
        Row{"ThreeSubscripts", "A(0,0,0)", Fails()}, Row{"BadSubscript", "V(q)", Fails()}),
    RowName);

INSTANTIATE_TEST_SUITE_P(
    MatrixFunctions, Expressions,
    ::testing::Values(
        Row{"MatJ2", "MatJ2(A)", Value(30)}, Row{"MatI1", "MatI1(A)", Value(5)},
        Row{"MatI3", "MatI3(A)", Value(-2)}, Row{"MatI3InAnExpression", "MatI3(A)*2+1", Value(-3)},
        Row{"NamesIgnoreCase", "matj2(A)", Value(30)},
        Row{"BlanksAroundArrayName", "MatJ2( A )", Value(30)},
        Row{"UnknownArray", "MatJ2(Q)", Fails()}, Row{"TooManyArrays", "MatJ2(A,B)", Fails()},
        Row{"NoArray", "MatJ2()", Fails()}, Row{"TooFewArrays", "Gauss(A)", Fails()},
        Row{"SingularInverse", "INVMAT(S)", Fails()}, Row{"SingularSystem", "Gauss(S,B)", Fails()},
        Row{"ShapeMismatch", "MatxVec(W,B)", Fails()}, Row{"NotSquare", "MatI3(W)", Fails()}),
    RowName);

TEST_F(EvaluatorTest, RandomConstantsAndFunctionsAreInTheUnitInterval) {
    for (const char* text : {"Random", "Randomize", "Random()", "Randomize()", "Random(7)"}) {
        for (int i = 0; i < 200; ++i) {
            const Evaluation e = Eval(text);
            ASSERT_TRUE(e.ok) << text << ": " << e.message;
            ASSERT_GE(e.value.Re, 0.0) << text;
            ASSERT_LT(e.value.Re, 1.0) << text;
            ASSERT_EQ(e.value.Im, 0.0) << text;
        }
    }
}

TEST_F(EvaluatorTest, WrongArgumentCountsAreReportedByName) {
    for (const char* text :
         {"Sin()", "Sin(1,2)", "Sin(,)", "Cpx(1)", "Power(1,2,3)", "Boolean()"}) {
        const Evaluation e = Eval(text);
        EXPECT_FALSE(e.ok) << text;
        const std::string name(text, std::string_view(text).find('(') + 1);
        EXPECT_NE(e.message.find(name), std::string::npos) << text << ": " << e.message;
        EXPECT_NE(e.message.find("引数の数"), std::string::npos) << text << ": " << e.message;
    }
}

TEST_F(EvaluatorTest, UnknownNameIsNamedInTheMessage) {
    const Evaluation e = Eval("1+zeta");
    EXPECT_FALSE(e.ok);
    EXPECT_NE(e.message.find("zeta"), std::string::npos) << e.message;
}

TEST_F(EvaluatorTest, ArithmeticFaultsAreTrappedWithTheirCode) {
    const struct {
        const char* text;
        FaultCode fault;
    } rows[] = {
        {"1/0", FaultCode::DivisionByZero},        {"(1+1j)/(0+0j)", FaultCode::DivisionByZero},
        {"1/1E-200", FaultCode::DivisionByZero},   {"1E200*1E200", FaultCode::Overflow},
        {"Exp(1000)", FaultCode::Overflow},        {"Integer(1E10)", FaultCode::Overflow},
        {"Sin(1/0)+1", FaultCode::DivisionByZero}, {"Log(0)", FaultCode::Overflow}};
    for (const auto& row : rows) {
        const Evaluation e = Eval(row.text);
        EXPECT_FALSE(e.ok) << row.text;
        ASSERT_TRUE(e.fault.has_value()) << row.text << ": " << e.message;
        EXPECT_EQ(*e.fault, row.fault) << row.text;
        EXPECT_FALSE(e.message.empty()) << row.text;
    }
}

TEST_F(EvaluatorTest, SyntaxFailuresCarryNoFaultCode) {
    for (const char* text : {"(1+2)*(3", "q", "Sin()"}) {
        EXPECT_FALSE(Eval(text).fault.has_value()) << text;
    }
}

TEST_F(EvaluatorTest, ArrayResultsAreKeptForTheAssignment) {
    struct ArrayRow {
        const char* text;
        ComplexArray expected;
    };
    const ArrayRow rows[] = {
        {"Gauss(A,B)", VectorOf({-4, 4.5})},
        {"INVMAT(A)", Matrix2x2(-2, 1, 1.5, -0.5)},
        {"MatxVec(A,B)", VectorOf({17, 39})},
        {"MatxMat(A,A)", Matrix2x2(7, 10, 15, 22)},
    };
    for (const ArrayRow& row : rows) {
        ASSERT_TRUE(Eval(row.text).ok) << row.text;
        const auto& result = scope.lastArrayResult();
        ASSERT_TRUE(result.has_value()) << row.text;
        ASSERT_EQ(result->NI, row.expected.NI) << row.text;
        ASSERT_EQ(result->NJ, row.expected.NJ) << row.text;
        for (std::size_t k = 0; k < row.expected.Values.size(); ++k) {
            EXPECT_NEAR(result->Values[k].Re, row.expected.Values[k].Re, 1e-12) << row.text;
            EXPECT_NEAR(result->Values[k].Im, 0.0, 1e-12) << row.text;
        }
    }
}

TEST_F(EvaluatorTest, EachLevelConsumesItsText) {
    Evaluator evaluator(scope);
    const struct {
        const char* text;
        bool (Evaluator::*level)(std::string_view&, Complex&);
        Complex expected;
    } rows[] = {
        {"1+2", &Evaluator::EvalSum, {3, 0}},          {"2*3", &Evaluator::EvalTerm, {6, 0}},
        {"2^3", &Evaluator::EvalFactor, {8, 0}},       {"(4)", &Evaluator::EvalPrimary, {4, 0}},
        {"x", &Evaluator::EvalPrimary, {5, 0}},        {"Sqrt(4)", &Evaluator::EvalPrimary, {2, 0}},
        {"MatI1(A)", &Evaluator::EvalPrimary, {5, 0}}, {"2j", &Evaluator::EvalPrimary, {0, 2}},
    };
    for (const auto& row : rows) {
        std::string_view text = row.text;
        Complex value;
        ASSERT_TRUE((evaluator.*row.level)(text, value)) << row.text;
        EXPECT_EQ(value, row.expected) << row.text;
        EXPECT_TRUE(text.empty()) << row.text << " left \"" << text << '"';
    }
}

}  // namespace
}  // namespace lapdesk
