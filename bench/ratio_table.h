// A main() for the benchmark programs that prints, after the usual report,
// each figure beside its reference from the same run: CPU time per iteration
// as min / median / max over the repetitions, and the ratio of the medians.
#pragma once

#include <span>
#include <string>

namespace lapdesk::bench {

struct Comparison {
    std::string figure;     // benchmark name, as registered
    std::string reference;  // the benchmark it is measured against
};

// Runs every registered benchmark (five repetitions unless the command line
// says otherwise), then prints the comparison table. Returns main's status.
int RunAndCompare(int argc, char** argv, std::span<const Comparison> comparisons);

}  // namespace lapdesk::bench
