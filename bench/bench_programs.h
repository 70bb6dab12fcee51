// The programs the benchmarks run as F(p), one line and a 200-step loop, and
// the loop that makes their data set again at every iteration.
#pragma once

#include <benchmark/benchmark.h>

#include "interp/interpreter.h"
#include "interp/recording_view.h"
#include "transform/program/program_sampling.h"
#include "transform/transform_driver.h"

namespace lapdesk::bench {

inline constexpr const char* kReturnProgram = "Return 1/(p+1)\r\nEnd\r\n";
inline constexpr const char* kLoopProgram =
    "s = 0\r\nFor k = 1 To 200\r\ns = s + 1/((p+k)*(p+k))\r\nNext\r\nReturn s\r\nEnd\r\n";

// The data set of `program` for N = n points, made by `session` at every
// iteration; items are sample points.
inline void MakeProgramData(benchmark::State& state, Interpreter& session, const char* program,
                            const char* n) {
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

// The same with a session whose view shows nothing.
inline void MakeProgramData(benchmark::State& state, const char* program, const char* n) {
    RecordingView view;
    Interpreter session(view);
    MakeProgramData(state, session, program, n);
}

}  // namespace lapdesk::bench
