// Data made by running the calculator's program for every sample point.
#include "transform/program/program_sampling.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "interp/recording_view.h"
#include "status_log.h"

namespace lapdesk {
namespace {

using testing_support::StatusLog;

// Counts the program runs (each run shows page 0) and can ask for a stop
// once a given number of runs has started.
class CountingView : public RecordingView {
  public:
    int runs = 0;
    int stopAfterRuns = -1;
    void ShowPageIndex(std::int16_t page) override {
        if (page == 0 && ++runs == stopAfterRuns) stopRequested = true;
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

TEST(ProgramSampling, SetsPFromTheSamplePointText) {
    RecordingView view;
    Interpreter session(view);
    ASSERT_TRUE(ASetLapOpValur(session, Complex{1.0, 0.0}));
    ASSERT_TRUE(ASetLapOpValur(session, Complex{0.5, -2.5}));
    const ImmediateResult p = session.ImmediateLine("p");
    ASSERT_TRUE(p.ok);
    EXPECT_EQ(p.value, (Complex{0.5, -2.5}));  // "p=0.5+-2.5j"
}

TEST(ProgramSampling, RunsTheProgramOncePerPointAndInverts) {
    Session s(kFirstOrder);
    ASSERT_TRUE(TesmorDataSet(s.driver, s.interpreter));
    EXPECT_EQ(s.view.runs, 65);  // k = 0..64 for N = 128
    EXPECT_EQ(s.driver.DataSourceLb(), "Math");
    EXPECT_EQ(s.driver.ResultLb(), "OK");
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
    EXPECT_EQ(s.driver.DataSourceLb(), "Non");
    EXPECT_EQ(s.driver.ResultLb(), "Non");
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
    EXPECT_EQ(s.driver.DataSourceLb(), "Non");
}

TEST(ProgramSampling, AProgramThatDoesNotAnalyseMakesNoData) {
    Session s("Return 1/(p+1)");  // no End
    EXPECT_FALSE(TesmorDataSet(s.driver, s.interpreter));
    EXPECT_EQ(s.log.texts.back(), "数値計算実行時エラー");
    EXPECT_EQ(s.view.runs, 0);
}

}  // namespace
}  // namespace lapdesk
