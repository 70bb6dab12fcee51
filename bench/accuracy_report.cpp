// Prints how the accuracy features do on the Davies-Martin programs at the
// window's defaults (N = 256, T = 5, gamma0 = 5), each run through the real
// interpreter: per case the FFT's error on [0.5, 4], how often its error
// band covers the true error (and stays within 3 times it), the accurate
// inversion's error on [0.5, 4] and early on [0.05, 0.5), how often its
// estimate covers the error (within 3 times), points not converged, the
// values of F each part asked for, the singularity check's D, and the times.
//
//   accuracy_report [examples/davies-martin]
#include <chrono>
#include <cstdio>
#include <string>

#include "davies_martin.h"
#include "fileio/text_file.h"
#include "interp/recording_view.h"
#include "transform/program/program_function.h"
#include "transform/program/program_sampling.h"

namespace {

using namespace lapdesk;
namespace dm = davies_martin;
using Clock = std::chrono::steady_clock;

double Milliseconds(Clock::duration d) {
    return std::chrono::duration<double, std::milli>(d).count();
}

}  // namespace

int main(int argc, char** argv) {
    const std::string folder = argc > 1 ? argv[1] : "examples/davies-martin";
    std::printf("%-24s %8s %11s %8s %8s %11s %11s %5s %5s %5s %6s %6s %8s %8s\n", "case", "fft err",
                "band cov/3x", "acc err", "early", "est cov/3x", "not conv", "F fft", "band", "acc",
                "D", "fft ms", "band ms", "acc ms");
    dm::Scores bandAll;
    dm::Scores accurateAll;
    for (const dm::Case& c : dm::Cases()) {
        const TextResult text = ReadText(folder + "/" + c.file);
        if (!text.ok) {
            std::fprintf(stderr, "%s: %s\n", c.file, text.reason.c_str());
            return 1;
        }
        RecordingView view;
        Interpreter session(view);
        session.SetProgramText(text.text);
        TransformDriver driver;
        const auto start = Clock::now();
        if (!TesmorDataSet(driver, session)) return 1;
        const auto fftDone = Clock::now();
        AccuracyReport report = RunAccuracyChecksOnProgram(driver, session, {true, false, {}});
        const auto bandDone = Clock::now();
        report.accurate = RunAccuracyChecksOnProgram(driver, session, {false, true, {}}).accurate;
        const auto accurateDone = Clock::now();

        const Conditions cond = driver.GetConditions();
        dm::Scores fft;
        dm::Scores accurate;
        int notConverged = 0;
        for (int n = 1; n <= static_cast<int>(0.8 * cond.N); ++n) {
            const double t = cond.TimeAt(n);
            fft.Add(t, driver.Store()[kResult].Values[n], report.band->band[n], c.f(t));
            const AccuratePoint& p = report.accurate->points[n - 1];
            if (p.state == PointState::NotConverged) ++notConverged;
            if (p.state != PointState::NotApplicable) accurate.Add(t, p.value, p.estimate, c.f(t));
        }
        bandAll.Merge(fft);
        if (!dm::IsSquareWave(c)) accurateAll.Merge(accurate);
        std::printf(
            "%-24s %8.1e %5.0f%%/%3.0f%% %8.1e %8.1e %5.0f%%/%3.0f%% %11d %5d %5lld %5lld %6.3f "
            "%6.1f %8.1f %8.1f\n",
            c.file, fft.error, 100 * fft.Coverage(), 100 * fft.Within3(), accurate.error,
            accurate.early, 100 * accurate.Coverage(), 100 * accurate.Within3(), notConverged,
            cond.NPos + 1, static_cast<long long>(report.band->evaluations),
            static_cast<long long>(report.accurate->evaluations), report.check.D,
            Milliseconds(fftDone - start), Milliseconds(bandDone - fftDone),
            Milliseconds(accurateDone - bandDone));
    }
    std::printf("band: covers %.1f%%, within 3x %.1f%% (all 16)\n", 100 * bandAll.Coverage(),
                100 * bandAll.Within3());
    std::printf("accurate estimate: covers %.1f%%, within 3x %.1f%% (15, square wave left out)\n",
                100 * accurateAll.Coverage(), 100 * accurateAll.Within3());
    return 0;
}
