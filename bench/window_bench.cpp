// What the calculator window adds to running F(p) point by point: the same
// data sets as program_bench, made with the window as the program's view (its
// labels, progress meter and event processing), against a view that shows
// nothing. Runs on the offscreen platform unless QT_QPA_PLATFORM says
// otherwise.
#include <benchmark/benchmark.h>

#include <QApplication>

#include "bench_programs.h"
#include "calculator/frm_cpl_cal.h"
#include "ratio_table.h"

namespace lapdesk {
namespace {

using bench::kLoopProgram;
using bench::kReturnProgram;

FrmCplCal& Window() {
    static FrmCplCal* window = [] {
        auto* made = new FrmCplCal;
        made->show();
        QApplication::processEvents();
        return made;
    }();
    return *window;
}

void Shown(benchmark::State& state, const char* program, const char* n) {
    bench::MakeProgramData(state, Window().interpreter(), program, n);
}

void BM_WindowReturnProgram4096(benchmark::State& state) {
    Shown(state, kReturnProgram, "4096");
}
void BM_UnshownReturnProgram4096(benchmark::State& state) {
    bench::MakeProgramData(state, kReturnProgram, "4096");
}
void BM_WindowLoopProgram1024(benchmark::State& state) {
    Shown(state, kLoopProgram, "1024");
}
void BM_UnshownLoopProgram1024(benchmark::State& state) {
    bench::MakeProgramData(state, kLoopProgram, "1024");
}

BENCHMARK(BM_WindowReturnProgram4096)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_UnshownReturnProgram4096)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_WindowLoopProgram1024)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_UnshownLoopProgram1024)->Unit(benchmark::kMillisecond);

const bench::Comparison kComparisons[] = {
    {"BM_WindowReturnProgram4096", "BM_UnshownReturnProgram4096"},
    {"BM_WindowLoopProgram1024", "BM_UnshownLoopProgram1024"},
};

}  // namespace
}  // namespace lapdesk

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    return lapdesk::bench::RunAndCompare(argc, argv, lapdesk::kComparisons);
}
