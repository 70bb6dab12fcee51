// lapdesk-cli invert: makes the transform's data by running a program for
// every sample point, as the transform window's "実行" does, and inverts it.
#include <CLI/CLI.hpp>
#include <iostream>
#include <memory>
#include <optional>
#include <string>

#include "accuracy_output.h"
#include "commands.h"
#include "console_view.h"
#include "fileio/text_file.h"
#include "interp/interpreter.h"
#include "plot_option.h"
#include "transform/accurate/accuracy_messages.h"
#include "transform/accurate/time_grid.h"
#include "transform/program/program_function.h"
#include "transform/program/program_sampling.h"
#include "transform/transform_driver.h"
#include "transform_output.h"

namespace lapdesk::cli {

namespace {

// --strict: the work was done, but a warning says the result needs care.
constexpr int kExitWarning = 3;

struct InvertOptions {
    std::string file;
    std::string n = "256";
    std::string t = "5";
    std::string gamma0 = "5";
    bool noHanning = false;
    std::string method = "fft";
    bool error = false;
    bool fast = false;
    bool strict = false;
    std::optional<std::string> times;
    std::optional<std::string> timesFile;
    std::optional<double> tol;
    TransformOutputOptions outputs;
};

// The times asked for with --times or --times-file (none: the FFT's grid).
TimeGrid AskedTimes(const InvertOptions& options) {
    if (options.times) return ParseTimeRange(*options.times);
    if (!options.timesFile) return {true, {}, {}};
    const TextResult text = ReadText(*options.timesFile);
    if (!text.ok) return {false, {}, *options.timesFile + ": " + text.reason};
    TimeGrid grid = ParseTimeList(text.text);
    if (!grid.ok) grid.reason = *options.timesFile + ": " + grid.reason;
    return grid;
}

// The accurate inversion's table to --csv or standard output, and its plot
// over the FFT's to --plot.
int WriteAccurateOutputs(const TransformDriver& driver, const AccurateResult& result,
                         const InvertOptions& options) {
    const std::string csv = AccurateCsv(result);
    if (!options.outputs.csv) {
        std::cout << csv;
    } else if (const WriteResult written = WriteBytesAtomic(*options.outputs.csv, csv);
               !written.ok) {
        std::cerr << "lapdesk-cli invert: " << written.reason << '\n';
        return 1;
    }
    if (options.outputs.plot) {
        const std::string reason = WritePlotImage(driver, *options.outputs.plot, &result);
        if (!reason.empty()) {
            std::cerr << "lapdesk-cli invert: " << reason << '\n';
            return 1;
        }
    }
    return 0;
}

int RunInvert(const InvertOptions& options) {
    TransformDriver driver;
    if (!driver.SetWordNumber(options.n) || !driver.SetTend(options.t) ||
        !driver.SetGanma(options.gamma0)) {
        std::cerr << "lapdesk-cli invert: N は 128, 256, ..., 4096 のどれか、T と γ0 は 0 "
                     "より大きい数にしてください\n";
        return 2;
    }
    const bool accurate = options.method == "dehoog";
    if (accurate && options.outputs.output) {
        std::cerr << "lapdesk-cli invert: -o は FFT のデータファイルを書きます。--method dehoog "
                     "では --csv を使ってください\n";
        return 2;
    }
    if ((options.times || options.timesFile) && !accurate) {
        std::cerr << "lapdesk-cli invert: --times と --times-file は --method dehoog で使います\n";
        return 2;
    }
    const TimeGrid times = AskedTimes(options);
    if (!times.ok) {
        std::cerr << "lapdesk-cli invert: " << times.reason << '\n';
        return 2;
    }
    driver.SetHaning(!options.noHanning);
    const TextResult program = ReadText(options.file);
    if (!program.ok) {
        std::cerr << options.file << ": " << program.reason << '\n';
        return 2;
    }
    ReportStatusOnStderr(driver);
    ConsoleView view(false);
    Interpreter session(view);
    session.SetProgramText(program.text);
    const Outcome made = MakeDataFromProgram(driver, session);
    if (!made.ok) {
        std::cerr << "lapdesk-cli invert: " << made.reason << '\n';
        return 1;
    }
    // The singularity check runs on every inversion, the band unless --fast
    // (the accurate inversion always has it beside it).
    AccuracyOptions checks = AccuracyOptionsFor(options.error || !options.fast, accurate);
    checks.times = times.times;
    if (options.tol && accurate) checks.parameters.target = *options.tol;
    if (options.tol && !accurate) {
        FftChoice choice = ChooseFftParametersOnProgram(driver, session, *options.tol);
        std::cerr << FftChoiceLine(choice, *options.tol) << '\n';
        if (choice.stopped) {
            std::cerr << "プログラム実行中断\n";
            return 1;
        }
        checks.bandMade = std::move(choice.band);
    }
    const AccuracyReport report = RunAccuracyChecksOnProgram(driver, session, checks);
    const int warnings = PrintAccuracyReport(report, driver);
    if (report.stopped) {
        std::cerr << "プログラム実行中断\n";
        return 1;
    }
    int status = 0;
    if (accurate) {
        status = WriteAccurateOutputs(driver, *report.accurate, options);
    } else if (report.band && !report.band->ok) {
        std::cerr << "lapdesk-cli invert: " << report.band->reason << '\n';
        return 1;
    } else {
        status = WriteTransformOutputs(driver, program.text, options.outputs, "invert",
                                       options.error ? &report.band->band : nullptr);
    }
    return status == 0 && options.strict && warnings > 0 ? kExitWarning : status;
}

}  // namespace

void AddInvertCommand(CLI::App& app, int& exitStatus) {
    auto options = std::make_shared<InvertOptions>();
    CLI::App* invert = app.add_subcommand(
        "invert", "Sample F(p) by running a program for every point and invert it to f(t)");
    invert->add_option("FILE", options->file, "The program that returns F(p) (cp932 or UTF-8)")
        ->required();
    invert->add_option("-N", options->n, "Number of time points: 128, 256, ..., 4096")
        ->capture_default_str();
    invert->add_option("-T", options->t, "Record length: f is computed for 0 <= t < T")
        ->capture_default_str();
    invert->add_option("-g,--gamma0", options->gamma0, "Damping over one record, gamma*T")
        ->capture_default_str();
    invert->add_flag("--no-hanning", options->noHanning, "Do not taper the samples");
    invert
        ->add_option("--method", options->method,
                     "fft: the damped FFT; dehoog: the accurate inversion, t,y,error,status as "
                     "CSV for t = n*T/N, n = 1..N-1, or the times of --times or --times-file")
        ->check(CLI::IsMember({"fft", "dehoog"}))
        ->capture_default_str();
    invert->add_flag("--error", options->error,
                     "Add the FFT's error band to the CSV as a third column, error");
    invert->add_flag("--fast", options->fast,
                     "Skip the FFT's error band (two more runs) and the summary of the estimated "
                     "error");
    invert->add_flag("--strict", options->strict,
                     "End with exit status 3 when any warning: line was printed");
    auto* times = invert->add_option(
        "--times", options->times,
        "With --method dehoog: f at COUNT times from FROM to TO, evenly or (:log) evenly in "
        "log t, as FROM:TO:COUNT[:log]");
    invert
        ->add_option("--times-file", options->timesFile,
                     "With --method dehoog: f at the times in FILE, one t a line")
        ->excludes(times);
    invert
        ->add_option("--tol", options->tol,
                     "Error aimed at, relative to max |f|: for the FFT, N (up to 4096) and "
                     "gamma0 are chosen from its error band to reach it, T as given; with "
                     "--method dehoog the accuracy each point must reach (1e-10 by default)")
        ->check(CLI::Range(1e-15, 0.1));
    options->outputs.AddTo(*invert);
    invert->callback([options, &exitStatus] { exitStatus = RunInvert(*options); });
}

}  // namespace lapdesk::cli
