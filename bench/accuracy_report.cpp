// Prints how both methods do on the Davies-Martin programs and on the
// project's own Laplace pairs, each run through the real interpreter, with
// the FFT, its band and the accurate inversion made exactly as "実行" and
// `lapdesk-cli invert --method dehoog` make them. Per case: the FFT's
// largest error over its reliable part, how often its band covers the error
// and its silent points (error above 3 times the band and above 1e-6 of the
// scale, while the singularity check passed); the accurate inversion's
// largest error, how often its estimate covers the error (points whose error
// exceeds 1e-12 of the scale), its silent points (shown as accurate, yet off
// by more than 1e-6 of the scale), the points it flagged, the values of F it
// asked for, and the singularity check's D. The scale is max(max |f|, 1).
//
//   accuracy_report [DAVIES_MARTIN_FOLDER] [N ...]     (N = 256 by default)
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "davies_martin.h"
#include "fileio/text_file.h"
#include "interp/recording_view.h"
#include "laplace_pairs.h"
#include "transform/program/program_function.h"
#include "transform/program/program_sampling.h"
#include "values/number_text.h"

namespace {

using namespace lapdesk;

struct Case {
    std::string name;
    std::string program;
    double T;
    double gamma0;
    double (*f)(double);
};

struct Tally {
    int points = 0, covered = 0, silent = 0, flagged = 0;
    double error = 0.0;
    void Merge(const Tally& o) {
        points += o.points;
        covered += o.covered;
        silent += o.silent;
        flagged += o.flagged;
    }
    double Coverage() const { return points ? 100.0 * covered / points : 100.0; }
};

struct CaseResult {
    Tally fft, accurate;
    long long evaluations = 0;
    double D = 0.0;
    bool made = false;
};

CaseResult RunCase(const Case& c, int n) {
    CaseResult out;
    RecordingView view;
    Interpreter session(view);
    session.SetProgramText(c.program);
    TransformDriver driver;
    driver.SetWordNumber(std::to_string(n));
    driver.SetTend(DoubleToText(c.T));
    driver.SetGanma(DoubleToText(c.gamma0));
    if (!TesmorDataSet(driver, session)) return out;
    out.made = true;
    const AccuracyReport report = RunAccuracyChecksOnProgram(driver, session, {true, true, {}});
    out.D = report.check.D;
    out.evaluations = report.accurate->evaluations;
    const Conditions cond = driver.GetConditions();
    const ReliablePart part = ReliablePartOf(cond);
    double scale = 1.0;
    for (int k = 1; k < cond.N; ++k)
        scale = std::max(scale, std::abs(c.f(cond.TimeAt(k))));
    const bool fftFlagged = report.check.verdict != SingularityVerdict::Fine;
    for (int k = part.first; k <= part.last; ++k) {
        const double t = cond.TimeAt(k);
        const double error = std::abs(driver.Store()[kResult].Values[k] - c.f(t));
        const double band = report.band->band[k];
        out.fft.error = std::max(out.fft.error, error);
        ++out.fft.points;
        if (std::max(band, 1e-12 * scale) >= std::max(error, 1e-12 * scale)) ++out.fft.covered;
        if (!fftFlagged && error > std::max(3 * band, 1e-6 * scale)) ++out.fft.silent;
    }
    for (const AccuratePoint& p : report.accurate->points) {
        if (p.state != PointState::Converged) {
            ++out.accurate.flagged;
            continue;
        }
        const double error = std::abs(p.value - c.f(p.t));
        out.accurate.error = std::max(out.accurate.error, error);
        if (error > 1e-6 * scale) ++out.accurate.silent;
        if (error <= 1e-12 * scale) continue;
        ++out.accurate.points;
        if (p.estimate >= error) ++out.accurate.covered;
    }
    return out;
}

std::vector<Case> Cases(const std::string& folder) {
    std::vector<Case> cases;
    for (const davies_martin::Case& c : davies_martin::Cases()) {
        const TextResult text = ReadText(folder + "/" + c.file);
        if (!text.ok) {
            std::fprintf(stderr, "%s: %s\n", c.file, text.reason.c_str());
            std::exit(1);
        }
        cases.push_back({c.file, text.text, 5, 5, c.f});
    }
    for (const laplace_pairs::Pair& p : laplace_pairs::Pairs())
        cases.push_back({p.name, p.Program(), p.T, p.gamma0, p.f});
    return cases;
}

}  // namespace

int main(int argc, char** argv) {
    const std::string folder = argc > 1 ? argv[1] : "examples/davies-martin";
    std::vector<int> sizes;
    for (int i = 2; i < argc; ++i)
        sizes.push_back(std::atoi(argv[i]));
    if (sizes.empty()) sizes.push_back(256);
    const std::vector<Case> cases = Cases(folder);
    for (const int n : sizes) {
        std::printf("N = %d\n%-24s %8s %6s %6s | %8s %6s %6s %7s %6s | %8s\n", n, "case", "fft err",
                    "cov%", "silent", "acc err", "cov%", "silent", "flagged", "F", "D");
        Tally fftAll, accurateAll;
        for (const Case& c : cases) {
            const CaseResult r = RunCase(c, n);
            if (!r.made) {
                std::printf("%-24s the program failed\n", c.name.c_str());
                continue;
            }
            fftAll.Merge(r.fft);
            accurateAll.Merge(r.accurate);
            std::printf("%-24s %8.1e %6.1f %6d | %8.1e %6.1f %6d %7d %6lld | %8.3g\n",
                        c.name.c_str(), r.fft.error, r.fft.Coverage(), r.fft.silent,
                        r.accurate.error, r.accurate.Coverage(), r.accurate.silent,
                        r.accurate.flagged, r.evaluations, r.D);
        }
        std::printf("all: fft band covers %.1f%%, %d silent; accurate estimate covers %.1f%%, "
                    "%d silent, %d flagged\n\n",
                    fftAll.Coverage(), fftAll.silent, accurateAll.Coverage(), accurateAll.silent,
                    accurateAll.flagged);
    }
    return 0;
}
