// The calculator's program as F for the accuracy features: p arrives in
// binary, failures and runaways come back as reasons, a stop stops, and the
// user's view sees no message.
#include "transform/program/program_function.h"

#include <gtest/gtest.h>

#include "interp/recording_view.h"
#include "named_rows.h"

namespace lapdesk {
namespace {

struct Program {
    RecordingView view;
    Interpreter session{view};

    explicit Program(const std::string& text) { session.SetProgramText(text); }
};

// p arrives in binary: 0.1 + 1/3 j has no 15-digit text, so a text round
// trip would move it. p gets its own value back at the end.
TEST(ProgramFunction, SetsPInBinaryAndGivesItBackAtTheEnd) {
    Program program("Return p\r\nEnd");
    ASSERT_TRUE(program.session.ImmediateLine("p=3+4j").ok);
    {
        ProgramFunction f(program.session);
        const Complex s{0.1, 1.0 / 3.0};
        const FValue v = f(s);
        ASSERT_TRUE(v.ok) << v.reason;
        EXPECT_EQ(v.value, s);
    }
    EXPECT_EQ(program.session.ImmediateLine("p").value, (Complex{3, 4}));
}

struct FailureRow {
    const char* name;
    const char* program;
    const char* reasonStart;
};

class ProgramFailures : public testing::TestWithParam<FailureRow> {};

TEST_P(ProgramFailures, ComeBackAsTheReasonNotAsAMessage) {
    Program program(GetParam().program);
    const FValue v = ProgramFunction(program.session, 1000)({2, 0});
    EXPECT_FALSE(v.ok);
    EXPECT_FALSE(v.stopped);
    EXPECT_EQ(v.reason.rfind(GetParam().reasonStart, 0), 0u) << v.reason;
    EXPECT_TRUE(program.view.messages.empty());
}

INSTANTIATE_TEST_SUITE_P(
    Programs, ProgramFailures,
    testing::Values(FailureRow{"division_by_zero", "Return 1/(p-2)\r\nEnd",
                               "プログラムの実行に失敗: "},
                    FailureRow{"overflow", "Return Exp(1000*p)\r\nEnd",
                               "プログラムの実行に失敗: 実行時異常終了"},
                    FailureRow{"runaway", "x = 0\r\nDo\r\nx = x + 1\r\nLoop\r\nEnd",
                               "プログラムが 1000 文を超えても終わらない"},
                    FailureRow{"code_error", "Return (p\r\nEnd", "プログラムの実行に失敗"}),
    RowName());

TEST(ProgramFunction, PassesTheStopRequestThrough) {
    Program program("Return p\r\nEnd");
    program.view.stopRequested = true;
    const FValue v = ProgramFunction(program.session)({1, 0});
    EXPECT_TRUE(v.stopped);
}

TEST(ProgramFunction, APArrayCannotTakeThePoint) {
    Program program("Return 1\r\nEnd");
    ASSERT_TRUE(program.session.ImmediateLine("Dim p(3)").ok);
    const FValue v = ProgramFunction(program.session)({1, 0});
    EXPECT_FALSE(v.ok);
}

}  // namespace
}  // namespace lapdesk
