// Hostile input ends with a message instead of a crash or a hang, and a stop
// request ends a run that would never end by itself.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "session.h"

namespace lapdesk {
namespace {

std::string Nested(std::string_view inner, std::size_t depth) {
    return std::string(depth, '(') + std::string(inner) + std::string(depth, ')');
}

void ExpectOneMessageStartingWith(const RecordingView& view, std::string_view start) {
    ASSERT_EQ(view.messages.size(), 1u);
    EXPECT_TRUE(view.messages[0].starts_with(start)) << view.messages[0].substr(0, 200);
}

constexpr std::size_t kDeep = 100000;

// In a program each fails its statement with one message, and the answer
// field says the analysis ended.
TEST(DeepBrackets, FailWithOneMessage) {
    const std::string deep = Nested("1", kDeep);
    const struct {
        std::string program;
        const char* message;
    } rows[] = {{ProgramText({"x = " + deep, "End"}), "Main: 1行目実行エラー\r\nx = ((("},
                {ProgramText({"If " + deep + " Then", "x = 1", "End If", "End"}),
                 "Main: 1行目実行エラー\r\nIf ((("},
                {ProgramText({"Call F(" + deep + ")", "End", "Function F(x)", "End Function"}),
                 "Main: 1行目：引数式 ((("}};
    for (const auto& row : rows) {
        Session s;
        EXPECT_FALSE(s.Run(row.program));
        EXPECT_TRUE(s.view.kai.starts_with("End of Analize Page Number=")) << s.view.kai;
        ExpectOneMessageStartingWith(s.view, row.message);
    }
    Session s;
    EXPECT_FALSE(s.Line(deep).ok);
    EXPECT_FALSE(s.Line("y = " + deep).ok);
    ASSERT_TRUE(s.Run(ProgramText({"Return " + Nested("2", 50) + " * 3", "End"})));
    EXPECT_EQ(s.view.kai, "Result=6");  // within the limit
}

// ---- Blocks nested by thousands

std::string NestedBlocks(std::string_view open, std::string_view close, int depth) {
    std::string text;
    for (int i = 0; i < depth; ++i)
        text += std::string(open) + "\r\n";
    text += "x = x + 1\r\n";
    for (int i = 0; i < depth; ++i)
        text += std::string(close) + "\r\n";
    return text + "Return x\r\nEnd";
}

struct BlockRow {
    const char* name;
    const char* open;
    const char* close;
};

class DeepBlocks : public ::testing::TestWithParam<BlockRow> {};

TEST_P(DeepBlocks, NestedTenThousandFailAnalysis) {
    Session s;
    EXPECT_FALSE(s.Run(NestedBlocks(GetParam().open, GetParam().close, 10000)));
    EXPECT_EQ(s.view.kai, "Code Error1");
    ExpectOneMessageStartingWith(s.view, "Main: ");
    const std::string_view open = GetParam().open;
    const std::string tail =
        std::string(open.substr(0, open.find('\r'))) + ":スタック領域が不足しています。";
    EXPECT_TRUE(s.view.messages[0].ends_with(tail)) << s.view.messages[0];
}

TEST_P(DeepBlocks, NestedTwoHundredRun) {
    Session s;
    EXPECT_TRUE(s.Run(NestedBlocks(GetParam().open, GetParam().close, 200)));
    EXPECT_EQ(s.view.kai, "Result=1");
}

INSTANTIATE_TEST_SUITE_P(Robustness, DeepBlocks,
                         ::testing::Values(BlockRow{"If", "If 1 = 1 Then", "End If"},
                                           BlockRow{"Do", "Do", "Exit Do\r\nLoop"},
                                           BlockRow{"For", "For i = 1 To 1", "Next"},
                                           BlockRow{"Select", "Select Case 1\r\nCase 1",
                                                    "End Select"}),
                         RowName());

TEST(ManyStatements, BeyondTheLineCountFailCleanly) {
    std::string text;
    for (int i = 0; i < 40000; ++i)
        text += "x = 1\r\n";
    Session s;
    EXPECT_FALSE(s.Run(text + "End"));
    EXPECT_EQ(s.view.messages.size(), 1u);
}

// One statement of about a megabyte: a valid sum is computed, an invalid
// one fails with the whole statement in its message.
TEST(LongStatement, SumIsComputedOrFailsWithAMessage) {
    std::string sum = "x = 1";
    while (sum.size() < (1u << 20))
        sum += "+1";
    Session s;
    ASSERT_TRUE(s.Run(ProgramText({sum, "Return x", "End"})));
    EXPECT_EQ(s.re, static_cast<double>((sum.size() - 3) / 2));
    sum += "+";
    Session invalid;
    EXPECT_FALSE(invalid.Run(ProgramText({sum, "End"})));
    ExpectOneMessageStartingWith(invalid.view, "Main: 1行目実行エラー\r\nx = 1+1+1");
    EXPECT_EQ(invalid.view.messages[0].size(),
              std::string("Main: 1行目実行エラー\r\n").size() + sum.size());
}

TEST(LongStatement, LongNameIsJustAName) {
    const std::string name(1u << 20, 'v');
    Session s;
    ASSERT_TRUE(s.Run(ProgramText({name + " = 2", "Return " + name + " * 2", "End"})));
    EXPECT_EQ(s.view.kai, "Result=4");
}

// ---- Bytes that are not UTF-8

struct BytesRow {
    const char* name;
    std::string program;
    const char* kai;
};

class InvalidBytes : public ::testing::TestWithParam<BytesRow> {};

TEST_P(InvalidBytes, FailWithAMessage) {
    Session s;
    EXPECT_FALSE(s.Run(GetParam().program));
    EXPECT_EQ(s.view.kai, std::string(GetParam().kai));
    EXPECT_EQ(s.view.messages.size(), 1u);
}

INSTANTIATE_TEST_SUITE_P(
    Robustness, InvalidBytes,
    ::testing::Values(
        BytesRow{"InAnExpression", "x = 1 + \xff\xfe\r\nEnd", "End of Analize Page Number=1"},
        BytesRow{"TruncatedSequence", "x = \xe3\x81\r\nEnd", "End of Analize Page Number=1"},
        BytesRow{"BeforeAKeyword",
                 "\xc0"
                 "For i = 1 To 2\r\nNext\r\nEnd",
                 "Code Error1"},
        BytesRow{"AsAStatement", "\x80\x81\r\nEnd", "Code Error1"},
        BytesRow{"InAFunctionName", "Call F\xff(1)\r\nEnd", "Code Error1"},
        BytesRow{"InsideACondition", "If \xff > 1 Then\r\nEnd If\r\nEnd",
                 "End of Analize Page Number=1"},
        BytesRow{"NulByte", std::string("x = 1\0 + 2\r\nEnd", 15), "End of Analize Page Number=1"}),
    RowName());

// ---- Stop requests

// Asks to stop once window events have run the given number of times.
class StoppingView : public RecordingView {
  public:
    int limit = 5;
    int shown = 0;
    void ProcessEvents() override {
        if (++shown >= limit) stopRequested = true;
    }
};

struct StopRow {
    const char* name;
    std::vector<std::string_view> lines;
    const char* kai;
};

class StopRequest : public ::testing::TestWithParam<StopRow> {};

TEST_P(StopRequest, EndsTheRunWithoutAMessage) {
    SessionWith<StoppingView> s;
    EXPECT_FALSE(s.RunLines(GetParam().lines));
    EXPECT_EQ(s.view.kai, GetParam().kai);
    EXPECT_TRUE(s.view.messages.empty());
    EXPECT_EQ(s.view.shown, s.view.limit);  // the run ends at the request
}

INSTANTIATE_TEST_SUITE_P(
    Robustness, StopRequest,
    ::testing::Values(StopRow{"EndlessDoLoop",
                              {"Do", "n = n + 1", "Loop", "End"},
                              "End of Analize Page Number=1"},
                      StopRow{"ZeroStepDownwardNeverEnds",
                              {"For i = 1 To 0 Step 0", "n = n + 1", "Next", "End"},
                              "End of Analize Page Number=1"},
                      StopRow{"LoopInsideIfBranch",
                              {"If 1 = 1 Then", "Do", "n = n + 1", "Loop", "End If", "End"},
                              "End of Analize Page Number=1"},
                      StopRow{"LoopInFunctionCalledFromExpression",
                              {"x = Spin(1) + 1", "End", "Function Spin(a)", "Do", "a = a + 1",
                               "Loop", "End Function"},
                              "End of Analize Page Number=2"},
                      StopRow{"LoopInFunctionCalledByCall",
                              {"Call Spin(1)", "End", "Function Spin(a)", "Do While 1 = 1", "Loop",
                               "End Function"},
                              "End of Analize Page Number=2"}),
    RowName());

}  // namespace
}  // namespace lapdesk
