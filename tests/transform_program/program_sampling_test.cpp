// Data made by running the calculator's program for every sample point.
#include "transform/program/program_sampling.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <string>

#include "interp/recording_view.h"
#include "status_log.h"
#include "values/number_text.h"

namespace lapdesk {
namespace {

using testing_support::StatusLog;

// Counts the program runs (each run says it is executing) and can ask for
// a stop once a given number of runs has started.
class CountingView : public RecordingView {
  public:
    int runs = 0;
    int stopAfterRuns = -1;
    void SetKai(const std::string& text) override {
        RecordingView::SetKai(text);
        if (text == "Now Executing" && ++runs == stopAfterRuns) stopRequested = true;
    }
};

struct Session {
    CountingView view;
    Interpreter interpreter{view};
    TransformDriver driver;
    StatusLog log{driver};

    explicit Session(const std::string& program, const char* n = "128") {
        interpreter.SetProgramText(program);
        driver.SetWordNumber(n);
    }
};

constexpr const char* kFirstOrder = "Return 1/(p+1)\r\nEnd";

// p must take exactly what the statement "p=<Re>+<Im>j" gives it, for every
// kind of number text and whatever p already is in the calculator's memory.
TEST(ProgramSampling, SetsPAsTheSamplePointStatementDoes) {
    const Complex points[] = {
        {1.0, 0.0},
        {0.5, -2.5},
        {0.0, 0.0},
        {-0.0, -0.0},
        {1.0 / 3, 2 * M_PI},
        {5.0 / 7e-9, 2 * M_PI * 4095 / 7e-9},
        {1e-300, 3e-310},
        {-123456.789, 1e21},
        {0.1 + 0.2, 123456789012345678.0},
        {1.7976931348623157e308, 1.0},
        {1.0, -1.7976931348623157e308},
    };
    const char* setups[] = {"", "P=7", "Dim p(3)", "p=2j"};
    for (const char* setup : setups) {
        for (const bool caseSensitive : {true, false}) {
            for (const Complex& s : points) {
                RecordingView view;
                Interpreter direct(view);
                Interpreter statement(view);
                for (Interpreter* session : {&direct, &statement}) {
                    session->SetCaseSensitive(caseSensitive);
                    if (*setup != '\0') {
                        ASSERT_TRUE(session->ImmediateLine(setup).ok);
                    }
                }
                const std::string text = "p=" + DoubleToText(s.Re) + "+" + DoubleToText(s.Im) + "j";
                double re = 0.0;
                double im = 0.0;
                SCOPED_TRACE(text + " after \"" + setup + "\"");
                const bool expected = statement.ImmediatePage().AImidateStatement(text, re, im);
                ASSERT_EQ(ASetLapOpValur(direct, s), expected);
                for (const char* name : {"p", "P", "p(0)"}) {
                    const ImmediateResult want = statement.ImmediateLine(name);
                    const ImmediateResult got = direct.ImmediateLine(name);
                    ASSERT_EQ(got.ok, want.ok) << name;
                    EXPECT_EQ(std::bit_cast<std::uint64_t>(got.value.Re),
                              std::bit_cast<std::uint64_t>(want.value.Re))
                        << name;
                    EXPECT_EQ(std::bit_cast<std::uint64_t>(got.value.Im),
                              std::bit_cast<std::uint64_t>(want.value.Im))
                        << name;
                }
            }
        }
    }
}

TEST(ProgramSampling, RunsTheProgramOncePerPointAndInverts) {
    Session s(kFirstOrder);
    ASSERT_TRUE(TesmorDataSet(s.driver, s.interpreter));
    EXPECT_EQ(s.view.runs, 65);  // k = 0..64 for N = 128
    // The answer field ends on the last run's result, as one run at k = 64 leaves it.
    RecordingView lastView;
    Interpreter last(lastView);
    last.SetProgramText(kFirstOrder);
    ASSERT_TRUE(ASetLapOpValur(last, s.driver.SamplePoint(64)));
    double re = 0.0;
    double im = 0.0;
    ASSERT_TRUE(last.RunProgram(re, im, false, true));
    EXPECT_EQ(s.view.kai, lastView.kai);
    EXPECT_TRUE(lastView.kai.starts_with("Result=0.0"));
    EXPECT_EQ(s.driver.Source(), DataSource::Program);
    EXPECT_TRUE(s.driver.HasResult());
    ASSERT_GE(s.log.texts.size(), 2u);
    EXPECT_EQ(s.log.texts.front(), "データ作成中");
    EXPECT_NE(std::find(s.log.texts.begin(), s.log.texts.end(), "データ作成成功"),
              s.log.texts.end());
}

TEST(ProgramSampling, MatchesTheSameFunctionSampledDirectly) {
    Session byProgram(kFirstOrder, "256");
    ASSERT_TRUE(TesmorDataSet(byProgram.driver, byProgram.interpreter));
    TransformDriver direct;
    ASSERT_TRUE(direct.MakeData([](const Complex& s) {
                          return CplDiv({1, 0}, CplAdd(s, {1, 0}));
                      })
                    .ok);
    const SampleStore& a = byProgram.driver.Store();
    const SampleStore& b = direct.Store();
    for (int k = 0; k < 256; ++k) {
        // p travels as 15-digit text, so the samples agree to about that.
        EXPECT_NEAR(a[kSampleRe].Values[k], b[kSampleRe].Values[k], 1e-12) << k;
        EXPECT_NEAR(a[kResult].Values[k], b[kResult].Values[k], 1e-12) << k;
    }
    // The jump of f at t = 0 rings over the first few points.
    for (int k = 8; k < 200; ++k) {
        EXPECT_NEAR(a[kResult].Values[k], std::exp(-k * 5.0 / 256), 0.01) << k;
    }
}

TEST(ProgramSampling, ARunErrorStopsTheLoopAndKeepsWhatWasMade) {
    // Fails from the eleventh point (k = 10) on.
    Session s("If Image(p) > 10*2*π/5 - 0.1 Then\r\nReturn 1/0\r\nEnd If\r\nReturn 1\r\nEnd");
    EXPECT_FALSE(TesmorDataSet(s.driver, s.interpreter));
    EXPECT_EQ(s.log.texts.back(), "数値計算実行時エラー");
    EXPECT_EQ(s.driver.Source(), DataSource::None);
    EXPECT_FALSE(s.driver.HasResult());
    EXPECT_NE(s.driver.Store()[kSampleRe].Values[9], 0.0);
    EXPECT_EQ(s.driver.Store()[kSampleRe].Values[128 - 9], s.driver.Store()[kSampleRe].Values[9]);
    EXPECT_FALSE(s.view.messages.empty());  // the run reported its fault
}

TEST(ProgramSampling, AStopRequestEndsTheLoopWithoutAnError) {
    Session s(kFirstOrder);
    s.view.stopAfterRuns = 5;
    EXPECT_FALSE(TesmorDataSet(s.driver, s.interpreter));
    EXPECT_EQ(s.log.texts.back(), "プログラム実行中断");
    EXPECT_LE(s.view.runs, 6);
    EXPECT_FALSE(s.view.stopRequested);  // honoured and cleared
    EXPECT_TRUE(s.view.messages.empty());
    EXPECT_EQ(s.driver.Source(), DataSource::None);
}

TEST(ProgramSampling, AProgramThatDoesNotAnalyseMakesNoData) {
    Session s("Return 1/(p+1)");  // no End
    EXPECT_FALSE(TesmorDataSet(s.driver, s.interpreter));
    EXPECT_EQ(s.log.texts.back(), "数値計算実行時エラー");
    EXPECT_EQ(s.view.runs, 0);
}

}  // namespace
}  // namespace lapdesk
