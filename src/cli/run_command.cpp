// lapdesk-cli run: analyses and runs a program file as the calculator's run
// command does and prints the final answer field.
#include <CLI/CLI.hpp>
#include <iostream>
#include <string>
#include <vector>

#include "commands.h"
#include "console_view.h"
#include "fileio/text_file.h"
#include "interp/interpreter.h"
#include "language_options.h"

namespace lapdesk::cli {

namespace {

struct RunOptions {
    LanguageOptions language;
    std::vector<std::string> lets;
    std::string file;
};

int RunFile(const RunOptions& options) {
    const TextResult program = ReadText(options.file);
    if (!program.ok) {
        std::cerr << options.file << ": " << program.reason << '\n';
        return 2;
    }
    ConsoleView view(options.language.rounded);
    Interpreter session(view);
    options.language.ApplyTo(session);
    for (const std::string& let : options.lets) {
        double re = 0.0;
        double im = 0.0;
        if (!session.ImmediatePage().AImidateStatement(let, re, im)) {
            std::cerr << QuotedInput(let) << " : "
                      << ForTerminal(session.ImmediatePage().ErrorText()) << '\n';
            return 1;
        }
    }
    session.SetProgramText(program.text);
    double re = 0.0;
    double im = 0.0;
    // Globals set by --let survive the analysis; otherwise they start empty.
    const bool ok = session.RunProgram(re, im, options.lets.empty(), true);
    // A run ended by Ctrl+C says so; the answer field shows where it stood.
    if (!ok && view.StopRequested()) std::cerr << "プログラム実行中断\n";
    std::cout << view.kai() << '\n';
    return ok ? 0 : 1;
}

}  // namespace

void AddRunCommand(CLI::App& app, int& exitStatus) {
    auto options = std::make_shared<RunOptions>();
    CLI::App* run = app.add_subcommand("run", "Analyse and run a program file (cp932 or UTF-8)");
    options->language.AddTo(*run);
    run->add_option("--let", options->lets, "An immediate statement run before the program")
        ->allow_extra_args(false);
    run->add_option("FILE", options->file, "The program file")->required();
    run->callback([options, &exitStatus] { exitStatus = RunFile(*options); });
}

}  // namespace lapdesk::cli
