// What the windows add to running F(p) point by point. The data sets of
// program_bench are made as the calculator's "逆変換データ作成" makes them (the
// window enters its run, shows it, and leaves it), against a view that shows
// nothing; and the transform window's "実行" with the accurate method (data,
// FFT, error band, singularity check, accurate inversion, plot) against the
// same work done as the command-line tool does it. Runs on the offscreen
// platform unless QT_QPA_PLATFORM says otherwise.
#include <benchmark/benchmark.h>

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

void BM_WindowAccurateRun(benchmark::State& state) {
    static TesmorForm* form = [] {
        auto* made = new TesmorForm;
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
    for (auto _ : state) {
        form->Command2_Click();
        if (!form->driver().HasResult()) {
            state.SkipWithError("the run made no result");
            break;
        }
    }
}

// The same work as `lapdesk-cli invert --method dehoog` does it.
void BM_CliAccurateRun(benchmark::State& state) {
    RecordingView view;
    Interpreter session(view);
    session.SetProgramText(kSeriesProgram);
    TransformDriver driver;
    driver.SetWordNumber(kAccurateN);
    for (auto _ : state) {
        const Outcome made = MakeDataFromProgram(driver, session);
        const AccuracyReport report =
            RunAccuracyChecksOnProgram(driver, session, AccuracyOptionsFor(true, true));
        if (!made.ok || !report.accurate) {
            state.SkipWithError("the run made no result");
            break;
        }
    }
}

BENCHMARK(BM_WindowReturnProgram4096)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_UnshownReturnProgram4096)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_WindowLoopProgram1024)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_UnshownLoopProgram1024)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_WindowAccurateRun)->Unit(benchmark::kMillisecond)->Iterations(2);
BENCHMARK(BM_CliAccurateRun)->Unit(benchmark::kMillisecond)->Iterations(2);

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
