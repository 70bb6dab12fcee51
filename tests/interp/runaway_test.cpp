// Programs that once read freed memory, ran for minutes without a way to stop
// them, or converted huge subscripts unchecked: each now ends in a defined
// outcome.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "session.h"

namespace lapdesk {
namespace {

// ---- A page called back while it is analysed or running

TEST(CallBack, FromADimSubscriptDuringAnalysisIsRefused) {
    Session s;
    EXPECT_FALSE(
        s.Run({"Dim a(F(1))", "Global h", "Dim b(F(2))", "End", "Function F(x)", "g = g + 1",
               "If g = 1 Then", "  y = Main() + 1000000", "End If", "End Function"}));
    EXPECT_EQ(s.view.kai, "Code Error2");
    const std::vector<std::string> expected = {
        "Main: 解析が終わる前に呼び出されました",
        "F: 4行目実行エラー\r\ny = Main() + 1000000",
        "F: 3行目実行エラー\r\nIf g = 1 Then",
        "Main: 1行目解析エラー\r\nDim a(F(1)):Dim文",
    };
    EXPECT_EQ(s.view.messages, expected);
}

TEST(CallBack, RecursionIntoARunningMainWorks) {
    Session s;
    ASSERT_TRUE(
        s.Run({"Global depth", "depth = depth + 1", "If depth < 3 Then", "  r = Twice(1)", "End If",
               "Return depth", "End", "Function Twice(x)", "Twice = Main() * 2", "End Function"}));
    EXPECT_TRUE(s.view.messages.empty());
}

// ---- Work per expression stays linear in its nesting

std::string NestedCalls(int levels, std::string_view inner) {
    std::string text(inner);
    for (int i = 0; i < levels; ++i)
        text = "F((" + text + "))";
    return text;
}

TEST(NestedCalls, AFailingArgumentIsNotEvaluatedAgainAsASubscript) {
    Session s;  // took minutes when each level was evaluated twice
    EXPECT_FALSE(s.Run(
        {"Dim F(1)", "Return " + NestedCalls(28, "(q)"), "End", "Function F(x)", "End Function"}));
    ASSERT_EQ(s.view.messages.size(), 1u);
    EXPECT_TRUE(s.view.messages[0].starts_with("Main: 2行目：引数式 ((q)) 実行エラー"))
        << s.view.messages[0].substr(0, 120);
}

TEST(NestedCalls, AFailingCalleeLeavesTheArrayWithTheSameSubscripts) {
    Session s;
    ASSERT_TRUE(s.Run({"Dim F(1)", "F(0) = 1", "F(1) = 1", "Return " + NestedCalls(20, "0"), "End",
                       "Function F(x)", "Return q", "End Function"}));
    EXPECT_EQ(s.view.kai, "Result=1");  // every level falls back on the array
    // One message per call that ran, not one per re-evaluation.
    EXPECT_EQ(s.view.messages.size(), 20u);
}

// ---- A stop request inside one long statement

// Asks to stop at the first chance to process events inside the statement
// on line `stopLine` (0-based, as the run loop counts).
class StopInsideView : public RecordingView {
  public:
    std::int16_t stopLine = 0;
    std::int16_t current = -1;
    int eventsInside = 0;
    void ShowLineIndex(std::int16_t line) override { current = line; }
    void ProcessEvents() override {
        if (current == stopLine && ++eventsInside == 2) stopRequested = true;
    }
};

std::string LongSum(int terms) {
    std::string sum = "1";
    for (int i = 1; i < terms; ++i)
        sum += "+1";
    return sum;
}

struct StopInsideRow {
    const char* name;
    std::vector<std::string> lines;
    std::int16_t stopLine;
};

class StopInside : public ::testing::TestWithParam<StopInsideRow> {};

TEST_P(StopInside, EndsTheStatementWithoutAMessage) {
    SessionWith<StopInsideView> s;
    s.view.stopLine = GetParam().stopLine;
    EXPECT_FALSE(s.RunLines(GetParam().lines));
    EXPECT_EQ(s.view.kai, "End of Analize Page Number=1");
    EXPECT_TRUE(s.view.messages.empty());
}

INSTANTIATE_TEST_SUITE_P(
    Runaway, StopInside,
    ::testing::Values(StopInsideRow{"LongSum", {"Return " + LongSum(20000), "End"}, 0},
                      StopInsideRow{"MatrixInverse",
                                    {"Dim A(120, 120)", "For i = 0 To 120", "A(i, i) = 2", "Next",
                                     "B = INVMAT(A)", "Return B(0, 0)", "End"},
                                    4}),
    RowName());

TEST(StopInside, TheImmediateLineSaysItWasStopped) {
    Session s;
    s.view.stopRequested = true;
    EXPECT_FALSE(s.Line(LongSum(5000)).ok);
    EXPECT_EQ(s.Global().ErrorText(), "中断しました");
}

// ---- Subscripts far outside any index

TEST(HugeSubscripts, OverflowBeforeAnyConversion) {
    Session s;
    ASSERT_TRUE(s.Line("Dim b(2)").ok);
    for (const char* line : {"Dim a(1E19)", "b(1E19) = 1", "b(-1E19)", "b(1E300) + 1"}) {
        EXPECT_FALSE(s.Line(line).ok) << line;
        EXPECT_EQ(s.Global().ErrorText(), "オーバーフローしました。") << line;
    }
    EXPECT_FALSE(s.Run({"Dim c(2)", "Call F(c(1E19))", "End", "Function F(x)", "End Function"}));
    ASSERT_EQ(s.view.messages.size(), 1u);
    EXPECT_EQ(s.view.messages[0], "実行時異常終了\r\nオーバーフローしました。");
}

// ---- Return with nothing after it

TEST(BareReturn, FailsAsARunTimeErrorOfItsLine) {
    Session s;
    EXPECT_FALSE(s.Run({"Return", "End"}));
    EXPECT_EQ(s.view.messages, std::vector<std::string>{"Main: 1行目実行エラー\r\nReturn"});

    Session f;
    EXPECT_FALSE(f.Run({"x = G(1)", "End", "Function G(a)", "Return   ", "End Function"}));
    ASSERT_FALSE(f.view.messages.empty());
    EXPECT_EQ(f.view.messages[0], "G: 2行目実行エラー\r\nReturn");
}

}  // namespace
}  // namespace lapdesk
