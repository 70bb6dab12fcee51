// The program driver: when it analyses, what the answer field shows on each
// path, the program list, and erasing the globals.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "session.h"

namespace lapdesk {
namespace {

// Keeps every text the answer field showed, not only the last.
class KaiHistoryView : public RecordingView {
  public:
    std::vector<std::string> shown;
    void SetKai(const std::string& text) override {
        RecordingView::SetKai(text);
        shown.push_back(text);
    }
    long Count(const std::string& text) const {
        return std::count(shown.begin(), shown.end(), text);
    }
};

struct Driver : ::testing::Test, SessionWith<KaiHistoryView> {
    using SessionWith::Run;  // not the test's own Run
    // Runs the text set last again, as a second click on Run does.
    bool RunAgain() { return interpreter.RunProgram(re, im, true, true); }
};

// A second run analyses again only when the text changed or the globals
// were erased; setting the same text again keeps the analysis.
TEST(DriverAnalysis, RepeatsOnlyAfterAChange) {
    const std::string text = ProgramText({"Return 2", "End"});
    const struct {
        const char* name;
        std::function<void(Interpreter&)> between;
        long analyses;
        const char* kai;
    } rows[] = {{"nothing", [](Interpreter&) {}, 1, "Result=2"},
                {"same text", [&](Interpreter& i) { i.SetProgramText(text); }, 1, "Result=2"},
                {"edited text",
                 [](Interpreter& i) {
                     i.SetProgramText(ProgramText({"Return 3", "End"}));
                 },
                 2, "Result=3"},
                {"globals erased", [](Interpreter& i) { i.EraseGlobals(); }, 2, "Result=2"}};
    for (const auto& row : rows) {
        SessionWith<KaiHistoryView> s;
        ASSERT_TRUE(s.Run(text)) << row.name;
        row.between(s.interpreter);
        ASSERT_TRUE(s.interpreter.RunProgram(s.re, s.im, true, true)) << row.name;
        EXPECT_EQ(s.view.Count("Now Analising"), row.analyses) << row.name;
        EXPECT_EQ(s.view.Count("Now Executing"), 2) << row.name;
        EXPECT_EQ(s.view.kai, row.kai) << row.name;
    }
}

TEST_F(Driver, FailedAnalysisIsRepeatedOnTheNextRun) {
    ASSERT_FALSE(Run({"Next", "End"}));
    ASSERT_FALSE(RunAgain());
    EXPECT_EQ(view.Count("Now Analising"), 2);
    EXPECT_EQ(view.messages.size(), 2u);
}

TEST_F(Driver, AnalysisOnlyEndsOnCodeError) {
    interpreter.SetProgramText(ProgramText({"Return 2", "End", "Function F()", "End Function"}));
    EXPECT_FALSE(interpreter.RunProgram(re, im, true, false));
    EXPECT_EQ(view.kai, "Code Error2");
    EXPECT_EQ(view.Count("Analise is Completed"), 1);
    EXPECT_EQ(view.Count("Now Executing"), 0);
    EXPECT_TRUE(interpreter.ProgramAnalysed());
}

TEST_F(Driver, ResultGivesBothPartsAndFollowsTheRoundedDisplay) {
    ASSERT_TRUE(Run({"Return 1 / 3 - 4j", "End"}));
    EXPECT_EQ(re, 1.0 / 3);
    EXPECT_EQ(im, -4.0);
    EXPECT_EQ(view.kai, "Result=0.333333333333333-4j");
    view.rounded = true;
    ASSERT_TRUE(RunAgain());
    EXPECT_EQ(view.kai, "Result=0.333333-4j");
}

// A comment after ":" makes no statement of its own; a line feed alone also
// ends a line.
TEST_F(Driver, ProgramListHoldsOneEntryPerStatement) {
    ASSERT_TRUE(Run("a = 1 : b = 2 ' note\r\n\r\n  c = 3\nEnd"));
    EXPECT_EQ(view.programList, (std::vector<std::string>{"a = 1", "b = 2", "c = 3", "End"}));
}

TEST_F(Driver, ErasingTheGlobalsIsTheCallersChoice) {
    ASSERT_TRUE(Line("g = 5").ok);
    ASSERT_TRUE(Run(ProgramText({"Return g", "End"}), false));
    EXPECT_EQ(view.kai, "Result=5");
    EXPECT_FALSE(Run({"Return g + 1", "End"}));
    EXPECT_EQ(interpreter.ImmediatePage().NumofMemory(), 0);
}

// A function named like the global page is refused; the globals stay.
TEST_F(Driver, FunctionNamedLikeTheGlobalPageLeavesTheGlobalsAlone) {
    ASSERT_TRUE(Line("g = 5").ok);
    EXPECT_FALSE(
        Run(ProgramText({"Return g", "End", "Function imidate(x)", "imidate = x", "End Function"}),
            false));
    ASSERT_TRUE(Run(ProgramText({"Return g", "End"}), false));
    EXPECT_EQ(view.kai, "Result=5");
    EXPECT_EQ(interpreter.ImmediatePage().PageIndex(), -1);
}

// Main's variables survive between runs of the same text, but each run
// starts with Main's value cleared: a run that sets no value gives 0. A
// changed text builds the pages again, with fresh memory.
TEST_F(Driver, RunsKeepMainVariablesButStartFromAZeroValue) {
    const std::string text =
        ProgramText({"n = n + 1", "If n = 1 Then", "Return 9", "End If", "End"});
    for (const auto& [program, kai] : {std::pair{text, "Result=9"}, std::pair{text, "Result=0"},
                                       std::pair{text + "\r\n", "Result=9"}}) {
        ASSERT_TRUE(Run(program));
        EXPECT_EQ(view.kai, kai);
    }
}

}  // namespace
}  // namespace lapdesk

namespace lapdesk {
namespace {

// Lets "window events" run a second program and erase the globals in the
// middle of the first run, as a click elsewhere in the window could.
class ReenteringView : public RecordingView {
  public:
    Interpreter* session = nullptr;
    int refusedRuns = 0;
    void ProcessEvents() override {
        if (session == nullptr || !session->Busy()) return;
        double re = 0.0;
        double im = 0.0;
        if (!session->RunProgram(re, im, true, true)) ++refusedRuns;
        session->EraseGlobals();
    }
};

TEST(DriverReentry, ARunStartedDuringARunIsRefused) {
    SessionWith<ReenteringView> s;
    s.view.session = &s.interpreter;
    ASSERT_TRUE(s.Run({"s = 0", "For i = 1 To 3", "s = s + i", "Next", "Return s", "End"}));
    EXPECT_EQ(s.re, 6.0);
    EXPECT_GT(s.view.refusedRuns, 0);
    EXPECT_FALSE(s.interpreter.Busy());
}

}  // namespace
}  // namespace lapdesk
