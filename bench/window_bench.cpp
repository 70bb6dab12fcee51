// What the windows add to running F(p) point by point. The data sets of
// program_bench are made as the calculator's "逆変換データ作成" makes them (the
// window enters its run, shows it, and leaves it), against a view that shows
// nothing; and the transform window's "実行" with the accurate method (data,
// FFT, error band, singularity check, accurate inversion, plot) against the
// same work done as the command-line tool does it, apart and in turns.
// Runs on the offscreen platform unless QT_QPA_PLATFORM says otherwise.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <vector>

#include <QApplication>
#include <QComboBox>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QRadioButton>

#include "bench_programs.h"
#include "calculator/frm_cpl_cal.h"
#include "calculator/transform_link.h"
#include "ratio_table.h"
#include "transform/accurate/accuracy_run.h"
#include "transform/program/program_function.h"
#include "transform/program/program_sampling.h"
#include "transform/window/tesmor_form.h"

namespace lapdesk {
namespace {

using bench::kLoopProgram;
using bench::kReturnProgram;

// Makes the data set with the calculator's own command, which enters the
// window's run around it, as the transform window does without the FFT.
class DataOnlyPartner : public TransformPartner {
  public:
    explicit DataOnlyPartner(Interpreter& session) : session_(session) {}
    void SetN(const char* n) { driver_.SetWordNumber(n); }
    std::int64_t Points() const { return driver_.GetConditions().NPos + 1; }
    bool made = false;

    void ASetLapOpValur() override { lapdesk::ASetLapOpValur(session_, driver_); }
    bool TesmorDataSet() override { return made = lapdesk::TesmorDataSet(driver_, session_); }
    void ZOrder() override {}

  private:
    Interpreter& session_;
    TransformDriver driver_;
};

FrmCplCal& Calculator() {
    static FrmCplCal* window = [] {
        auto* made = new FrmCplCal;
        made->show();
        QApplication::processEvents();
        return made;
    }();
    return *window;
}

void Shown(benchmark::State& state, const char* program, const char* n) {
    FrmCplCal& window = Calculator();
    DataOnlyPartner partner(window.interpreter());
    partner.SetN(n);
    window.TesmorCliant(&partner);
    window.interpreter().SetProgramText(program);
    for (auto _ : state) {
        window.ButtonExeProgToMakeTesmorData_Click();
        if (!partner.made) {
            state.SkipWithError("the program did not make the data");
            break;
        }
    }
    state.SetItemsProcessed(state.iterations() * partner.Points());
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

// "実行" in the transform window with the accurate method: the 2000-term
// series (bench/series-2000.Prg) as F at N = 4096.
constexpr const char* kAccurateN = "4096";
constexpr const char* kSeriesProgram =
    "s = 0\r\nFor k = 1 To 2000\r\ns = s + 1/((p+k)*(p+k))\r\nNext\r\nReturn s\r\nEnd\r\n";

TesmorForm& AccurateForm() {
    static TesmorForm* form = [] {
        auto* made = new TesmorForm;
        made->resize(1180, 860);  // as it opens on a full HD screen (offscreen is smaller)
        made->show();
        made->findChild<QComboBox*>(QStringLiteral("MethodCombo"))->setCurrentIndex(1);
        const auto* sizes = made->findChild<QListWidget*>(QStringLiteral("WrdList"));
        made->WrdList_Click(sizes->findItems(QString::fromLatin1(kAccurateN), Qt::MatchExactly)[0]);
        FrmCplCal& calculator = made->calculator();
        calculator.findChild<QRadioButton*>(QStringLiteral("OptionProgram"))->click();
        calculator.findChild<QPlainTextEdit*>(QStringLiteral("ProgramText"))
            ->setPlainText(QString::fromLatin1(kSeriesProgram).remove(QLatin1Char('\r')));
        QApplication::processEvents();
        return made;
    }();
    return *form;
}

bool RunInWindow() {
    TesmorForm& form = AccurateForm();
    form.Command2_Click();
    return form.driver().HasResult();
}

// The same work as `lapdesk-cli invert --method dehoog` does it.
class CliWork {
  public:
    CliWork() {
        session_.SetProgramText(kSeriesProgram);
        driver_.SetWordNumber(kAccurateN);
    }
    bool Run() {
        const Outcome made = MakeDataFromProgram(driver_, session_);
        const AccuracyReport report =
            RunAccuracyChecksOnProgram(driver_, session_, AccuracyOptionsFor(true, true));
        return made.ok && report.accurate.has_value();
    }

  private:
    RecordingView view_;
    Interpreter session_{view_};
    TransformDriver driver_;
};

void BM_WindowAccurateRun(benchmark::State& state) {
    for (auto _ : state) {
        if (!RunInWindow()) {
            state.SkipWithError("the run made no result");
            break;
        }
    }
}

void BM_CliAccurateRun(benchmark::State& state) {
    CliWork cli;
    for (auto _ : state) {
        if (!cli.Run()) {
            state.SkipWithError("the run made no result");
            break;
        }
    }
}

// The two in turns, one pair per iteration: this machine's speed drifts by
// more than the difference between them over the seconds that separate two
// benchmarks, but hardly within one pair. Reports the median ratio of the
// pairs, with the lowest and highest.
void BM_AccurateRunInTurns(benchmark::State& state) {
    using Clock = std::chrono::steady_clock;
    const auto seconds = [](Clock::time_point from) {
        return std::chrono::duration<double>(Clock::now() - from).count();
    };
    CliWork cli;
    std::vector<double> ratios;
    for (auto _ : state) {
        const Clock::time_point windowStart = Clock::now();
        const bool shown = RunInWindow();
        const double window = seconds(windowStart);
        const Clock::time_point cliStart = Clock::now();
        const bool done = cli.Run();
        if (!shown || !done) {
            state.SkipWithError("the run made no result");
            return;
        }
        ratios.push_back(window / seconds(cliStart));
    }
    std::sort(ratios.begin(), ratios.end());
    state.counters["ratio_min"] = ratios.front();
    state.counters["ratio_median"] = ratios[ratios.size() / 2];
    state.counters["ratio_max"] = ratios.back();
}

BENCHMARK(BM_WindowReturnProgram4096)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_UnshownReturnProgram4096)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_WindowLoopProgram1024)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_UnshownLoopProgram1024)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_WindowAccurateRun)->Unit(benchmark::kMillisecond)->Iterations(2);
BENCHMARK(BM_CliAccurateRun)->Unit(benchmark::kMillisecond)->Iterations(2);
BENCHMARK(BM_AccurateRunInTurns)->Unit(benchmark::kMillisecond)->Iterations(9)->Repetitions(1);

const bench::Comparison kComparisons[] = {
    {"BM_WindowReturnProgram4096", "BM_UnshownReturnProgram4096"},
    {"BM_WindowLoopProgram1024", "BM_UnshownLoopProgram1024"},
    {"BM_WindowAccurateRun", "BM_CliAccurateRun"},
};

}  // namespace
}  // namespace lapdesk

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    return lapdesk::bench::RunAndCompare(argc, argv, lapdesk::kComparisons);
}
