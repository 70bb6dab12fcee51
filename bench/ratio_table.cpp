#include "ratio_table.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <string_view>
#include <vector>

namespace lapdesk::bench {
namespace {

// Keeps the CPU seconds per iteration of every repetition, by name.
class CollectingReporter : public benchmark::ConsoleReporter {
  public:
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs) {
            if (run.run_type != Run::RT_Iteration || run.error_occurred || run.iterations == 0)
                continue;
            seconds_[run.run_name.function_name].push_back(run.cpu_accumulated_time /
                                                           static_cast<double>(run.iterations));
        }
        ConsoleReporter::ReportRuns(runs);
    }

    const std::vector<double>* Find(const std::string& name) const {
        const auto it = seconds_.find(name);
        return it == seconds_.end() ? nullptr : &it->second;
    }

  private:
    std::map<std::string, std::vector<double>> seconds_;
};

struct Spread {
    double min = 0;
    double median = 0;
    double max = 0;
};

Spread SpreadOf(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    const std::size_t n = values.size();
    const double median = n % 2 == 1 ? values[n / 2] : (values[n / 2 - 1] + values[n / 2]) / 2;
    return {values.front(), median, values.back()};
}

void PrintSpread(std::string_view name, const Spread& s) {
    std::printf("  %-34.*s %10.3f %10.3f %10.3f\n", static_cast<int>(name.size()), name.data(),
                s.min * 1e6, s.median * 1e6, s.max * 1e6);
}

bool HasRepetitionsFlag(int argc, char** argv) {
    for (int i = 1; i < argc; ++i) {
        if (std::string_view(argv[i]).starts_with("--benchmark_repetitions")) return true;
    }
    return false;
}

}  // namespace

int RunAndCompare(int argc, char** argv, std::span<const Comparison> comparisons) {
    std::vector<char*> args(argv, argv + argc);
    char repetitions[] = "--benchmark_repetitions=5";
    if (!HasRepetitionsFlag(argc, argv)) args.push_back(repetitions);
    int count = static_cast<int>(args.size());
    benchmark::Initialize(&count, args.data());
    if (benchmark::ReportUnrecognizedArguments(count, args.data())) return 1;
    CollectingReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    benchmark::Shutdown();

    std::printf("\nCPU time per iteration, microseconds: %10s %10s %10s\n", "min", "median", "max");
    for (const Comparison& c : comparisons) {
        const std::vector<double>* figure = reporter.Find(c.figure);
        const std::vector<double>* reference = reporter.Find(c.reference);
        if (figure == nullptr || reference == nullptr) continue;  // filtered out
        const Spread f = SpreadOf(*figure);
        const Spread r = SpreadOf(*reference);
        PrintSpread(c.figure, f);
        PrintSpread(c.reference, r);
        std::printf("  ratio of medians %.2f (min/min %.2f, max/max %.2f)\n\n", f.median / r.median,
                    f.min / r.min, f.max / r.max);
    }
    return 0;
}

}  // namespace lapdesk::bench
