// What the interpreter tells its view of a failed program: the kind of
// error, the page and statement, and the line of the program text the
// statement was cut from, whatever comments, blank lines and ":" lie
// before it.
#include <gtest/gtest.h>

#include <string>

#include "session.h"

namespace lapdesk {
namespace {

TEST(ProgramErrors, CarryTheirPlaceInTheProgramText) {
    const struct {
        const char* name;
        const char* program;
        ProgramErrorKind kind;
        const char* page;
        int statement;   // 0-based within the page
        int sourceLine;  // 0-based line of the text
        const char* detail;
        const char* message;
    } rows[] = {
        {"analysis after a comment and a blank line", "' sum\r\ns = 0\r\n\r\nFor i = 1 To 3\r\nEnd",
         ProgramErrorKind::Analysis, "Main", 1, 3, "Nextが無い",
         "Main: 2行目解析エラー\r\nFor i = 1 To 3:Nextが無い"},
        {"run error in the second statement of a line", "a = 1 : b = w + 1\r\nEnd",
         ProgramErrorKind::Run, "Main", 1, 0, "", "Main: 2行目実行エラー\r\nb = w + 1"},
        {"argument of a call",
         "a = 1\r\nb = 2 : c = F(q + w)\r\nEnd\r\nFunction F(x)\r\nReturn x\r\nEnd Function",
         ProgramErrorKind::ArgumentExpression, "Main", 2, 1, "q + w",
         "Main: 3行目：引数式 q + w 実行エラー\r\nc = F(q + w)"},
        {"subscript of an argument",
         "Dim v(2)\r\nc = F(v(q))\r\nEnd\r\nFunction F(x)\r\nReturn x\r\nEnd Function",
         ProgramErrorKind::ArgumentSubscript, "Main", 1, 1, "v(q)",
         "Main: 2行目：引数添字式 v(q) 実行エラー\r\nc = F(v(q))"},
        {"argument out of range",
         "Dim v(2)\r\nc = F(v(7))\r\nEnd\r\nFunction F(x)\r\nReturn x\r\nEnd Function",
         ProgramErrorKind::ArgumentRange, "Main", 1, 1, "v(7)",
         "Main: 2行目：引数添字値 v(7) 範囲外\r\nc = F(v(7))"},
        {"fault in a function page",
         "Return F(1000)\r\nEnd\r\n' the function\r\nFunction F(x)\r\n  y = 1 : Return "
         "Exp(x)\r\nEnd Function",
         ProgramErrorKind::AbnormalEnd, "F", 2, 4, nullptr, nullptr},
    };
    for (const auto& row : rows) {
        Session s;
        EXPECT_FALSE(s.Run(row.program)) << row.name;
        ASSERT_FALSE(s.view.errors.empty()) << row.name;
        const ProgramError& error = s.view.errors.front();
        EXPECT_EQ(error.kind, row.kind) << row.name;
        EXPECT_EQ(error.place.page, row.page) << row.name;
        EXPECT_EQ(error.place.statement, row.statement) << row.name;
        EXPECT_EQ(error.place.sourceLine, row.sourceLine) << row.name;
        if (row.detail != nullptr) {
            EXPECT_EQ(error.detail, row.detail) << row.name;
        }
        if (row.message != nullptr) {
            EXPECT_EQ(s.view.messages.front(), row.message) << row.name;
        }
    }
}

// The line is vouched for only while the text is the one that was cut.
TEST(ProgramErrors, ForgetTheirSourceLineOnceTheTextChanges) {
    Session s;
    EXPECT_FALSE(s.Run("a = 1\r\nb = w\r\nEnd"));
    EXPECT_EQ(s.interpreter.SourceLineOf(1), 1);
    s.interpreter.SetProgramText("' new line\r\na = 1\r\nb = w\r\nEnd");
    EXPECT_EQ(s.interpreter.SourceLineOf(1), -1);
}

// On the immediate line a call's failed argument is named, without a place.
TEST(ProgramErrors, AnImmediateCallNamesItsFailedArgument) {
    Session s;
    ASSERT_TRUE(s.Run("Return 0\r\nEnd\r\nFunction F(x)\r\nReturn x\r\nEnd Function"));
    ASSERT_TRUE(s.Line("Dim v(2)").ok);
    const ImmediateResult result = s.Line("F(v(7))");
    EXPECT_FALSE(result.ok);
    EXPECT_EQ(result.reason, "引数添字値 v(7) 範囲外");
    EXPECT_EQ(s.Line("F(1) + (").reason, "括弧が閉じていません") << "the next line has its own";
}

}  // namespace
}  // namespace lapdesk
