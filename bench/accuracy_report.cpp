// Prints how both methods do on the Davies-Martin programs and on the
// project's own Laplace pairs (scored as pair_scores.h says): per case the
// FFT's largest error, its band's coverage and silent points, the accurate
// inversion's largest error, its estimate's coverage, silent and flagged
// points, the values of F it asked for, and the singularity check's D.
//
//   accuracy_report [DAVIES_MARTIN_FOLDER] [N ...]     (N = 256 by default)
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "davies_martin.h"
#include "fileio/text_file.h"
#include "laplace_pairs.h"
#include "pair_scores.h"

namespace {

using namespace lapdesk;
using namespace lapdesk::pair_scores;

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
        std::printf(
            "all: fft band covers %.1f%%, %d silent; accurate estimate covers %.1f%%, "
            "%d silent, %d flagged\n\n",
            fftAll.Coverage(), fftAll.silent, accurateAll.Coverage(), accurateAll.silent,
            accurateAll.flagged);
    }
    return 0;
}
