// The immediate line: declarations, assignments at the first "=" outside
// brackets, plain expressions, and what it sees of the program.
#include <gtest/gtest.h>

#include <string>

#include "session.h"

namespace lapdesk {
namespace {

struct LineRow {
    const char* name;
    const char* line;
    bool ok;
    Complex value;         // when ok
    std::int16_t globals;  // number of global variables afterwards
};

class ImmediateLine : public ::testing::TestWithParam<LineRow> {};

TEST_P(ImmediateLine, GivesItsValueAndGlobals) {
    const LineRow& row = GetParam();
    Session s;
    ASSERT_TRUE(s.Line("x = 1").ok);
    const ImmediateResult result = s.Line(row.line);
    EXPECT_EQ(result.ok, row.ok);
    if (row.ok) {
        EXPECT_EQ(result.value.Re, row.value.Re);
        EXPECT_EQ(result.value.Im, row.value.Im);
    }
    EXPECT_EQ(s.Global().NumofMemory(), row.globals);
}

INSTANTIATE_TEST_SUITE_P(
    Immediate, ImmediateLine,
    ::testing::Values(
        LineRow{"AssignmentCreatesAGlobal", "y = 3", true, {3, 0}, 2},
        LineRow{"AssignmentToAKnownGlobal", "x = x + 4", true, {5, 0}, 1},
        LineRow{"BracketedExpressionIsStillAnAssignment", "a = (1+2)", true, {3, 0}, 2},
        LineRow{"EqualsInsideBracketsIsAnExpression", "Boolean(x=1)", true, {1, 0}, 1},
        LineRow{"SinOfAnEqualityIsAnExpression", "Sin(x=1)", false, {}, 1},
        LineRow{"PlainExpression", "  3 + 4j  ", true, {3, 4}, 1},
        LineRow{"UnknownNameFails", "zz + 1", false, {}, 1},
        LineRow{"UnclosedBracketFails", "(1+2", false, {}, 1},
        LineRow{"UnclosedFunctionBracketFails", "Sin(1", false, {}, 1},
        LineRow{"StrayClosingBracketFails", "1+2)", false, {}, 1},
        LineRow{"UndeclaredElementFails", "A(2) = 3", false, {}, 1},
        LineRow{"ReservedTargetFails", "PAI = 3", false, {}, 1},
        LineRow{"EmptyTargetFails", "= 3", false, {}, 1},
        LineRow{"EmptyLineFails", "", false, {}, 1},
        LineRow{"DimDeclaresAGlobal", "Dim A(3)", true, {0, 0}, 2},
        LineRow{"GlobalDeclaresSeveral", "global g, h(2)", true, {0, 0}, 3},
        LineRow{"LeadingBlanksBeforeDim", "   Dim A", true, {0, 0}, 2}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(Immediate, DimDeclaresFourElementsForThree) {
    Session s;
    ASSERT_TRUE(s.Line("Dim A(3)").ok);
    EXPECT_EQ(s.Global().MemoryTyp(0), 1);
    EXPECT_EQ(s.Global().MemoryLn(0), 3);
    EXPECT_TRUE(s.Line("A(3) = 5").ok);
    EXPECT_FALSE(s.Line("A(4) = 5").ok);
    EXPECT_EQ(s.Line("A(3) * 2").value.Re, 10.0);
}

TEST(Immediate, ReservedTargetShowsTheHint) {
    Session s;
    EXPECT_FALSE(s.Line("PAI = 3").ok);
    EXPECT_EQ(s.view.hint, "PAI is Reserved Word");
}

TEST(Immediate, SeesMainVariablesAfterARun) {
    Session s;
    ASSERT_TRUE(s.Run({"local = 21", "End"}));
    EXPECT_EQ(s.Global().AzIsVariableSearch("local").kind, "Main");
    const ImmediateResult result = s.Line("local * 2");
    ASSERT_TRUE(result.ok);
    EXPECT_EQ(result.value.Re, 42.0);
}

TEST(Immediate, GlobalsComeBeforeMainVariables) {
    Session s;
    ASSERT_TRUE(s.Run({"v = 1", "End"}));
    // An assignment on the immediate line creates a global of the same name
    // instead of writing Main's variable.
    ASSERT_TRUE(s.Line("v = 5").ok);
    EXPECT_EQ(s.Global().AzIsVariableSearch("v").kind, "M");
    EXPECT_EQ(s.Line("v").value.Re, 5.0);
    double re = 0.0, im = 0.0;
    std::int32_t flat = 0;
    ASSERT_TRUE(s.Main().AVariableValueDirectGet(0, 0, 0, flat, re, im));
    EXPECT_EQ(re, 1.0);
}

TEST(Immediate, GlobalsAreSeenByTheProgram) {
    Session s;
    ASSERT_TRUE(s.Line("Dim T(2)").ok);
    ASSERT_TRUE(s.Line("T(2) = 8").ok);
    ASSERT_TRUE(s.Run(ProgramText({"T(1) = T(2) / 2", "Return T(1)", "End"}), false));
    EXPECT_EQ(s.view.kai, "Result=4");
    EXPECT_EQ(s.Line("T(1)").value.Re, 4.0);
}

TEST(Immediate, CallsAUserFunctionOfTheProgram) {
    Session s;
    ASSERT_TRUE(s.Run({"End", "Function Sq(x)", "Sq = x * x", "End Function"}));
    const ImmediateResult result = s.Line("Sq(3) + 1");
    ASSERT_TRUE(result.ok);
    EXPECT_EQ(result.value.Re, 10.0);
}

// The subscript runs Main, whose analysis declares a new global while the
// immediate line is reading (or writing) an element of another global.
TEST(Immediate, SubscriptThatDeclaresAGlobal) {
    Session s;
    ASSERT_TRUE(s.Run({"Global g", "Return 1", "End"}));
    s.interpreter.EraseGlobals();
    ASSERT_TRUE(s.Line("Dim A(3)").ok);
    ASSERT_TRUE(s.Line("A(1) = 4").ok);
    ImmediateResult result = s.Line("A(Main())");
    ASSERT_TRUE(result.ok);
    EXPECT_EQ(result.value.Re, 4.0);
    EXPECT_EQ(s.Global().NumofMemory(), 2);

    s.interpreter.EraseGlobals();
    ASSERT_TRUE(s.Line("Dim A(3)").ok);
    ASSERT_TRUE(s.Line("A(Main()) = 6").ok);
    EXPECT_EQ(s.Line("A(1)").value.Re, 6.0);
}

TEST(Immediate, ArithmeticFaultFailsWithItsDescription) {
    Session s;
    const ImmediateResult result = s.Line("y = 1 / 0");
    EXPECT_FALSE(result.ok);
    EXPECT_EQ(s.Global().ErrorText(), "0 で除算しました。");
}

}  // namespace
}  // namespace lapdesk
