// The damped FFT's numbers and texts stay the same, bit for bit, when the
// accuracy features run after it on the same session.
#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "interp/recording_view.h"
#include "named_rows.h"
#include "status_log.h"
#include "transform/ldt_file.h"
#include "transform/program/program_function.h"
#include "transform/program/program_sampling.h"

namespace lapdesk {
namespace {

struct Made {
    RecordingView view;
    Interpreter session{view};
    TransformDriver driver;
    testing_support::StatusLog log{driver};

    Made(const std::string& program, bool withAccuracy) {
        session.SetProgramText(program);
        EXPECT_TRUE(TesmorDataSet(driver, session));
        if (withAccuracy)
            RunAccuracyChecksOnProgram(driver, session, AccuracyOptionsFor(true, true));
    }
};

bool SameBits(double a, double b) {
    return std::memcmp(&a, &b, sizeof a) == 0;
}

struct Row {
    const char* name;
    const char* program;
};

class FftUnchanged : public testing::TestWithParam<Row> {};

TEST_P(FftUnchanged, ByTheAccuracyFeatures) {
    Made plain(GetParam().program, false);
    Made checked(GetParam().program, true);
    const int n = plain.driver.GetConditions().N;
    for (const int kind : {kSampleRe, kSampleIm, kResult}) {
        const SampleSeries& a = plain.driver.Store()[kind];
        const SampleSeries& b = checked.driver.Store()[kind];
        for (int k = 0; k < n; ++k)
            ASSERT_TRUE(SameBits(a.Values[k], b.Values[k])) << kind << " " << k;
        EXPECT_TRUE(SameBits(a.MaxValue, b.MaxValue));
        EXPECT_TRUE(SameBits(a.MinValue, b.MinValue));
    }
    const std::string program = GetParam().program;
    EXPECT_EQ(WriteResultText(plain.driver), WriteResultText(checked.driver));
    EXPECT_EQ(TransformFileText(plain.driver, program), TransformFileText(checked.driver, program));
    EXPECT_EQ(plain.log.texts, checked.log.texts);
    EXPECT_EQ(plain.driver.HasResult(), checked.driver.HasResult());
    EXPECT_EQ(plain.driver.Source(), checked.driver.Source());
    // p is left as the data loop left it.
    EXPECT_EQ(plain.session.ImmediateLine("p").value, checked.session.ImmediateLine("p").value);
}

INSTANTIATE_TEST_SUITE_P(Programs, FftUnchanged,
                         testing::Values(Row{"first_order", "Return 1/(p+1)\r\nEnd"},
                                         Row{"pole_right_of_the_line", "Return 1/(p-2)\r\nEnd"},
                                         Row{"fast_sine", "Return 1/(p^2+100)\r\nEnd"}),
                         RowName());

}  // namespace
}  // namespace lapdesk
