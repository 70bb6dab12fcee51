// The immediate line: declarations, assignments at the first "=" outside
// brackets, plain expressions, and what it sees of the program.
#include <gtest/gtest.h>

#include <string>

#include "session.h"
#include "values/complex.h"

namespace lapdesk {
namespace {

// With the global x = 1: an assignment is cut at the first "=" outside
// brackets; anything else is an expression or a declaration.
TEST(Immediate, GivesItsValueAndGlobals) {
    const struct {
        const char* line;
        bool ok;
        double re, im;         // when ok
        std::int16_t globals;  // number of global variables afterwards
    } rows[] = {{"y = 3", true, 3, 0, 2},          {"x = x + 4", true, 5, 0, 1},
                {"a = (1+2)", true, 3, 0, 2},      {"Boolean(x=1)", true, 1, 0, 1},
                {"Sin(x=1)", false, 0, 0, 1},      {"  3 + 4j  ", true, 3, 4, 1},
                {"zz + 1", false, 0, 0, 1},        {"(1+2", false, 0, 0, 1},
                {"Sin(1", false, 0, 0, 1},         {"1+2)", false, 0, 0, 1},
                {"A(2) = 3", false, 0, 0, 1},      {"PAI = 3", false, 0, 0, 1},
                {"= 3", false, 0, 0, 1},           {"", false, 0, 0, 1},
                {"global g, h(2)", true, 0, 0, 3}, {"   Dim A", true, 0, 0, 2}};
    for (const auto& row : rows) {
        Session s;
        ASSERT_TRUE(s.Line("x = 1").ok);
        const ImmediateResult result = s.Line(row.line);
        EXPECT_EQ(result.ok, row.ok) << '"' << row.line << '"';
        if (row.ok) {
            EXPECT_EQ(result.value, (Complex{row.re, row.im})) << '"' << row.line << '"';
        }
        EXPECT_EQ(s.Global().NumofMemory(), row.globals) << '"' << row.line << '"';
    }
}

TEST(Immediate, FailuresShowWhy) {
    Session s;
    EXPECT_FALSE(s.Line("PAI = 3").ok);
    EXPECT_EQ(s.view.hint, "PAI is Reserved Word");
    EXPECT_FALSE(s.Line("y = 1 / 0").ok);
    EXPECT_EQ(s.Global().ErrorText(), "0 で除算しました。");
}

// Lines in one session: each failure carries its own reason, never one left
// over from an earlier line, and a line that succeeds carries none.
TEST(Immediate, EachLineHasItsOwnReason) {
    const struct {
        const char* line;
        const char* reason;  // empty: the line succeeds
    } rows[] = {{"1/0", "0 で除算しました。"},
                {"(1+2", "括弧が閉じていません"},
                {"1+1", ""},
                {"zz", "「zz」は定義されていません"},
                {"Sin(1", "括弧が閉じていません"},
                {"1+2)", "括弧が対応していません"},
                {"PAI = 3", "代入先が不正"},
                {"Dim A(2", "括弧が閉じていません"},
                {"y = 1 / 0", "0 で除算しました。"},
                {"y = 2", ""},
                {"", "式が正しくありません"},
                {"pi", "「pi」は定義されていません（円周率は PAI または π）"},
                {"pi = 3", ""},
                {"pi", ""}};
    Session s;
    for (const auto& row : rows) {
        const ImmediateResult result = s.Line(row.line);
        EXPECT_EQ(result.ok, *row.reason == '\0') << '"' << row.line << '"';
        EXPECT_EQ(result.reason, row.reason) << '"' << row.line << '"';
    }
}

// After a run the immediate line reads Main's variables, but an assignment
// creates a global of the same name instead of writing Main's variable.
TEST(Immediate, SeesMainVariablesButGlobalsComeFirst) {
    Session s;
    ASSERT_TRUE(s.Run({"v = 1", "End"}));
    EXPECT_EQ(s.Global().AzIsVariableSearch("v").kind, NameKind::Main);
    EXPECT_EQ(s.Line("v * 2").value.Re, 2.0);
    ASSERT_TRUE(s.Line("v = 5").ok);
    EXPECT_EQ(s.Global().AzIsVariableSearch("v").kind, NameKind::Memory);
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

// The angle unit belongs to the whole process: a session made later does
// not set it back to radians under one that chose degrees.
TEST(Immediate, ANewSessionLeavesTheAngleUnitAsItWas) {
    Session degrees;
    AngleUnit = kDegreeUnit;  // as the degrees option sets it
    Session later;
    const ImmediateResult sine = degrees.Line("Sin(90)");
    AngleUnit = 1.0;
    ASSERT_TRUE(sine.ok);
    EXPECT_NEAR(sine.value.Re, 1.0, 1e-15);
}

}  // namespace
}  // namespace lapdesk
