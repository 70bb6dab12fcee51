// What the calculator window adds to running F(p) point by point: the same
// data sets as program_bench, made with the window as the program's view (its
// labels, progress meter and event processing), against a view that shows
// nothing. Runs on the offscreen platform unless QT_QPA_PLATFORM says
// otherwise.
#include <benchmark/benchmark.h>

#include <QApplication>

#include "bench_programs.h"
#include "calculator/frm_cpl_cal.h"
#include "interp/interpreter.h"
#include "interp/recording_view.h"
#include "ratio_table.h"
#include "transform/program/program_sampling.h"
#include "transform/transform_driver.h"

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

void MakeData(benchmark::State& state, Interpreter& session, const char* program, const char* n) {
    session.SetProgramText(program);
    TransformDriver driver;
    driver.SetWordNumber(n);
    for (auto _ : state) {
        if (!TesmorDataSet(driver, session)) {
            state.SkipWithError("the program did not make the data");
            break;
        }
    }
    state.SetItemsProcessed(state.iterations() * (driver.GetConditions().NPos + 1));
}

void Shown(benchmark::State& state, const char* program, const char* n) {
    MakeData(state, Window().interpreter(), program, n);
}

void Unshown(benchmark::State& state, const char* program, const char* n) {
    RecordingView view;
    Interpreter session(view);
    MakeData(state, session, program, n);
}

void BM_WindowReturnProgram4096(benchmark::State& state) {
    Shown(state, kReturnProgram, "4096");
}
void BM_UnshownReturnProgram4096(benchmark::State& state) {
    Unshown(state, kReturnProgram, "4096");
}
void BM_WindowLoopProgram1024(benchmark::State& state) {
    Shown(state, kLoopProgram, "1024");
}
void BM_UnshownLoopProgram1024(benchmark::State& state) {
    Unshown(state, kLoopProgram, "1024");
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
