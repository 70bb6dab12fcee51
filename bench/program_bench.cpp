// What running F(p) as a program costs against the same F written directly
// in C++ (the limit an interpreter approaches): the data for Return 1/(p+1)
// at N = 4096, a program with a 200-step loop at N = 1024, and the immediate
// line evaluating 1/(p+1). Each iteration makes the whole data set (or one
// evaluation); divide by the number of samples for the per-sample figure.
#include <benchmark/benchmark.h>

#include <string>

#include "bench_programs.h"
#include "interp/interpreter.h"
#include "interp/recording_view.h"
#include "ratio_table.h"
#include "transform/program/program_sampling.h"
#include "transform/transform_driver.h"

namespace lapdesk {
namespace {

using bench::kLoopProgram;
using bench::kReturnProgram;

// The same data made by F written in C++.
template <typename F>
void SampleNative(benchmark::State& state, F f, const char* n) {
    TransformDriver driver;
    driver.SetWordNumber(n);
    for (auto _ : state) {
        if (!driver.MakeData(f).ok) {
            state.SkipWithError("no data");
            break;
        }
    }
    state.SetItemsProcessed(state.iterations() * (driver.GetConditions().NPos + 1));
}

Complex OneOverPPlusOne(const Complex& p) {
    return CplDiv({1, 0}, CplAdd(p, {1, 0}));
}

Complex LoopSum(const Complex& p) {
    Complex s{};
    for (double k = 1; k <= 200; k += 1) {
        const Complex pk = CplAdd(p, {k, 0});
        s = CplAdd(s, CplDiv({1, 0}, CplMul(pk, pk)));
    }
    return s;
}

void BM_ReturnProgram4096(benchmark::State& state) {
    bench::MakeProgramData(state, kReturnProgram, "4096");
}
void BM_ReturnNative4096(benchmark::State& state) {
    SampleNative(state, OneOverPPlusOne, "4096");
}
void BM_LoopProgram1024(benchmark::State& state) {
    bench::MakeProgramData(state, kLoopProgram, "1024");
}
void BM_LoopNative1024(benchmark::State& state) {
    SampleNative(state, LoopSum, "1024");
}

void BM_ImmediateLine(benchmark::State& state) {
    RecordingView view;
    Interpreter session(view);
    session.ImmediateLine("p = 0.5+2j");
    for (auto _ : state) {
        const ImmediateResult result = session.ImmediateLine("1/(p+1)");
        benchmark::DoNotOptimize(result);
    }
    state.SetItemsProcessed(state.iterations());
}

void BM_ImmediateNative(benchmark::State& state) {
    Complex p{0.5, 2};
    for (auto _ : state) {
        benchmark::DoNotOptimize(p);
        Complex value = OneOverPPlusOne(p);
        benchmark::DoNotOptimize(value);
    }
    state.SetItemsProcessed(state.iterations());
}

BENCHMARK(BM_ReturnProgram4096)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ReturnNative4096)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_LoopProgram1024)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_LoopNative1024)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ImmediateLine);
BENCHMARK(BM_ImmediateNative);

const bench::Comparison kComparisons[] = {
    {"BM_ReturnProgram4096", "BM_ReturnNative4096"},
    {"BM_LoopProgram1024", "BM_LoopNative1024"},
    {"BM_ImmediateLine", "BM_ImmediateNative"},
};

}  // namespace
}  // namespace lapdesk

int main(int argc, char** argv) {
    return lapdesk::bench::RunAndCompare(argc, argv, lapdesk::kComparisons);
}
