// lapdesk-cli read: reads a transform data file as "データ読込" does, runs the
// inversion and writes the result text (and optionally a CSV table).
#include <CLI/CLI.hpp>
#include <iostream>
#include <memory>
#include <string>

#include "commands.h"
#include "transform/ldt_file.h"
#include "transform/transform_driver.h"
#include "transform_output.h"

namespace lapdesk::cli {

namespace {

struct ReadOptions {
    std::string file;
    ImportAnswers answers;
    TransformOutputOptions outputs;
    bool error = false;
};

int RunRead(const ReadOptions& options) {
    if (options.error) {
        // Without F only the comparison with N/2 points is possible, and on
        // the Davies-Martin set it covers the true error at a quarter of the
        // points: not a band to trust.
        std::cerr << "lapdesk-cli read: --error はファイルのデータには使えません。誤差帯には F "
                     "の値が要ります (invert --error を使ってください)\n";
        return 2;
    }
    TransformDriver driver;
    ReportStatusOnStderr(driver);
    const Outcome read = ReadLapData(driver, options.file, options.answers);
    if (!read.ok) {
        std::cerr << "lapdesk-cli read: " << read.reason << '\n';
        return 1;
    }
    return WriteTransformOutputs(driver, "", options.outputs, "read");
}

}  // namespace

void AddReadCommand(CLI::App& app, int& exitStatus) {
    auto options = std::make_shared<ReadOptions>();
    CLI::App* read = app.add_subcommand(
        "read", "Read a transform data file (cp932 or UTF-8), invert it and write the result");
    read->add_option("FILE", options->file, "The data file (*.Ldt or any delimited table)")
        ->required();
    read->add_option("--param-line", options->answers.ParamLine, "Line holding N, T and gamma0")
        ->capture_default_str()
        ->check(CLI::PositiveNumber);
    read->add_option("--data-line", options->answers.DataLine, "First of the N data lines")
        ->capture_default_str()
        ->check(CLI::PositiveNumber);
    read->add_option("--column", options->answers.FirstColumn,
                     "Column of the real part; the imaginary part follows it")
        ->capture_default_str()
        ->check(CLI::Range(1, 5));
    read->add_option("--delimiter", options->answers.Delimiter,
                     "Text between the numbers of a line (empty: a space)")
        ->capture_default_str();
    options->outputs.AddTo(*read);
    read->add_flag("--error", options->error, "Refused: file data has no F for the error band");
    read->callback([options, &exitStatus] { exitStatus = RunRead(*options); });
}

}  // namespace lapdesk::cli
