// lapdesk-cli invert: makes the transform's data by running a program for
// every sample point, as the transform window's "実行" does, and inverts it.
#include <CLI/CLI.hpp>
#include <iostream>
#include <memory>
#include <string>

#include "accuracy_output.h"
#include "commands.h"
#include "console_view.h"
#include "fileio/text_file.h"
#include "interp/interpreter.h"
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
    TransformOutputOptions outputs;
};

// The accurate inversion's table to --csv or standard output.
int WriteAccurateCsv(const AccurateResult& result, const InvertOptions& options) {
    const std::string csv = AccurateCsv(result);
    if (!options.outputs.csv) {
        std::cout << csv;
        return 0;
    }
    const WriteResult written = WriteBytesAtomic(*options.outputs.csv, csv);
    if (written.ok) return 0;
    std::cerr << "lapdesk-cli invert: " << written.reason << '\n';
    return 1;
}

int RunInvert(const InvertOptions& options) {
    TransformDriver driver;
    if (!driver.SetWordNumber(options.n) || !driver.SetTend(options.t) ||
        !driver.SetGanma(options.gamma0)) {
        std::cerr << "lapdesk-cli invert: N must be one of 128, 256, ..., 4096, and T and gamma0 "
                     "numbers greater than 0\n";
        return 2;
    }
    const bool accurate = options.method == "dehoog";
    if (accurate && options.outputs.output) {
        std::cerr << "lapdesk-cli invert: -o は FFT のデータファイルを書きます。--method dehoog "
                     "では --csv を使ってください\n";
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
    const AccuracyReport report = RunAccuracyChecksOnProgram(
        driver, session, {options.error || !options.fast, accurate, AccurateParameters{}, {}});
    const int warnings = PrintAccuracyReport(report, driver);
    if (report.stopped) {
        std::cerr << "プログラム実行中断\n";
        return 1;
    }
    int status = 0;
    if (accurate) {
        status = WriteAccurateCsv(*report.accurate, options);
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
                     "fft: the damped FFT; dehoog: the accurate inversion, t,y,error as CSV "
                     "for t = n*T/N, n = 1..N-1")
        ->check(CLI::IsMember({"fft", "dehoog"}))
        ->capture_default_str();
    invert->add_flag("--error", options->error,
                     "Add the FFT's error band to the CSV as a third column, error");
    invert->add_flag("--fast", options->fast,
                     "Skip the FFT's error band (two more runs) and the summary of the estimated "
                     "error");
    invert->add_flag("--strict", options->strict,
                     "End with exit status 3 when any warning: line was printed");
    options->outputs.AddTo(*invert);
    invert->callback([options, &exitStatus] { exitStatus = RunInvert(*options); });
}

}  // namespace lapdesk::cli
