// The accuracy targets on the Davies-Martin programs, run through the real
// interpreter at the window's defaults (N = 256, T = 5, gamma0 = 5): the
// accurate inversion (A1-A3), the FFT's error band (A4), and the
// singularity check on singular and legitimate programs (A5).
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "davies_martin.h"
#include "fileio/text_file.h"
#include "interp/recording_view.h"
#include "transform/program/program_function.h"
#include "transform/program/program_sampling.h"

namespace lapdesk {
namespace {

namespace dm = davies_martin;

struct CaseRun {
    bool fftMade = false;
    AccuracyReport report;
    dm::Scores accurate;
    dm::Scores band;
    int notApplicable = 0;
};

// The FFT, then the accuracy features, on one program text.
CaseRun RunCase(const std::string& program, double (*exact)(double), bool everything) {
    RecordingView view;
    Interpreter session(view);
    session.SetProgramText(program);
    TransformDriver driver;
    CaseRun run;
    run.fftMade = TesmorDataSet(driver, session);
    if (!run.fftMade) return run;
    run.report =
        RunAccuracyChecksOnProgram(driver, session, AccuracyOptionsFor(everything, everything));
    if (!everything) return run;
    const Conditions c = driver.GetConditions();
    const int reliable = static_cast<int>(0.8 * c.N);
    for (int n = 1; n <= reliable; ++n) {
        const double t = c.TimeAt(n);
        run.band.Add(t, driver.Store()[kResult].Values[n], run.report.band->band[n], exact(t));
        const AccuratePoint& p = run.report.accurate->points[n - 1];
        if (p.state == PointState::NotApplicable) {
            ++run.notApplicable;
            continue;
        }
        run.accurate.Add(t, p.value, p.estimate, exact(t));
    }
    return run;
}

class DaviesMartin : public testing::Test {
  protected:
    static void SetUpTestSuite() {
        for (const dm::Case& c : dm::Cases()) {
            const TextResult text = ReadText(std::string(LAPDESK_DAVIES_MARTIN_DIR) + "/" + c.file);
            ASSERT_TRUE(text.ok) << c.file;
            runs_[c.file] = RunCase(text.text, c.f, true);
        }
    }
    static const CaseRun& RunOf(const dm::Case& c) { return runs_.at(c.file); }
    static inline std::map<std::string, CaseRun> runs_;
};

TEST_F(DaviesMartin, A1A2AccurateLateAndEarlyOnFifteenCases) {
    int good = 0;
    int goodEarly = 0;
    std::vector<std::int64_t> evaluations;
    for (const dm::Case& c : dm::Cases()) {
        const CaseRun& run = RunOf(c);
        ASSERT_TRUE(run.fftMade) << c.file;
        EXPECT_EQ(run.notApplicable, 0) << c.file;
        // Errors relative to max(|f|, 1): the ramp reaches 4 on [0.5, 4].
        const double scale = std::max(std::abs(c.f(4.0)), 1.0);
        if (run.accurate.error <= 1e-11 * scale) ++good;
        if (run.accurate.early <= 1e-10) ++goodEarly;
        if (!dm::IsSquareWave(c)) {
            EXPECT_LE(run.accurate.error, 1e-11 * scale) << c.file;
            EXPECT_LE(run.report.accurate->evaluations, 5000) << c.file;
            evaluations.push_back(run.report.accurate->evaluations);
        }
    }
    EXPECT_GE(good, 15);
    EXPECT_GE(goodEarly, 15);
    // Four bands of 129 + 65 values when the first sums settle, as they do
    // on most of these; more where a band is summed again.
    std::nth_element(evaluations.begin(), evaluations.begin() + 7, evaluations.end());
    EXPECT_LE(evaluations[7], 4 * (129 + 65));
}

// The accurate estimate (A3) and the FFT's band (A4, for at most twice the
// 129 values that made the FFT's data) cover the true error and stay close.
TEST_F(DaviesMartin, A3A4EstimatesAreHonestAndClose) {
    dm::Scores accurate;
    dm::Scores band;
    for (const dm::Case& c : dm::Cases()) {
        const CaseRun& run = RunOf(c);
        if (!dm::IsSquareWave(c)) accurate.Merge(run.accurate);
        band.Merge(run.band);
        EXPECT_LE(run.report.band->evaluations, 2 * 129) << c.file;
    }
    for (const auto& [name, scores] : {std::pair{"accurate", accurate}, std::pair{"band", band}}) {
        EXPECT_GE(scores.Coverage(), 0.95) << name;
        EXPECT_GE(scores.Within3(), 0.90) << name;
    }
}

struct CheckRow {
    const char* name;
    const char* program;
    bool singular;
};

// The programs of the singular set, and legitimate ones beyond the sixteen.
const std::vector<CheckRow>& CheckRows() {
    static const std::vector<CheckRow> rows = {
        {"pole at 2", "Return 1/(p-2)\r\nEnd", true},
        {"poles at +-3", "Return 1/(p^2-9)\r\nEnd", true},
        {"pole at 1", "Return 1/(p-1)\r\nEnd", true},
        {"pole pair right", "Return 1/((p-1.5)^2+4)\r\nEnd", true},
        {"branch at 2", "Return 1/Sqrt(p-2)\r\nEnd", true},
        {"pole at 1.05", "Return 1/(p-1.05)\r\nEnd", true},
        {"pole at 20", "Return 1/(p-20)\r\nEnd", true},
        {"advance", "Return Exp(p)/p\r\nEnd", true},
        {"pole at 0.9", "Return 1/(p-0.9)\r\nEnd", false},
        {"pole at 0.3", "Return 1/(p-0.3)\r\nEnd", false},
        {"fast sine", "Return 1/(p^2+100)\r\nEnd", false},
        {"shifted step", "Return Exp(-p)/p\r\nEnd", false},
    };
    return rows;
}

TEST_F(DaviesMartin, A5EverySingularCaseCaughtAtMostTwoFalseAlarms) {
    int falseAlarms = 0;
    for (const dm::Case& c : dm::Cases()) {
        const SingularityCheck& check = RunOf(c).report.check;
        EXPECT_LE(check.evaluations, 8) << c.file;
        if (check.verdict != SingularityVerdict::Fine) ++falseAlarms;
    }
    for (const CheckRow& row : CheckRows()) {
        const CaseRun run = RunCase(row.program, nullptr, false);
        // A program that fails on the FFT's own line is refused there already.
        const bool caught = !run.fftMade || run.report.check.verdict != SingularityVerdict::Fine;
        if (row.singular) {
            EXPECT_TRUE(caught) << row.name << " D = " << run.report.check.D;
        } else if (caught) {
            ++falseAlarms;
        }
        if (run.fftMade) {
            EXPECT_LE(run.report.check.evaluations, 8) << row.name;
        }
    }
    EXPECT_LE(falseAlarms, 2);
}

}  // namespace
}  // namespace lapdesk
