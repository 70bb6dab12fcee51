// lapdesk-cli calc: evaluates lines as the calculator's immediate line does
// and prints what its result label would show.
#include <CLI/CLI.hpp>
#include <iostream>
#include <string>
#include <vector>

#include "commands.h"
#include "console_view.h"
#include "interp/interpreter.h"
#include "language_options.h"
#include "values/number_text.h"

namespace lapdesk::cli {

namespace {

struct CalcOptions {
    LanguageOptions language;
    std::vector<std::string> lines;
};

// Runs one line; prints the value or "Error", and the reason on stderr.
bool RunLine(std::string line, Interpreter& session, ConsoleView& view) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    view.ClearStopRequest();
    ImmediateResult result = session.ImmediateLine(line);
    if (!result.ok) {
        std::cout << "Error\n";
        std::cerr << QuotedInput(line) << " : " << ForTerminal(result.reason) << '\n';
        return false;
    }
    std::cout << ComplexToText(result.value, view.RoundedDisplay()) << '\n';
    return true;
}

int RunCalc(const CalcOptions& options) {
    ConsoleView view(options.language.rounded);
    Interpreter session(view);
    options.language.ApplyTo(session);
    bool allOk = true;
    if (options.lines.empty()) {
        std::string line;
        while (std::getline(std::cin, line))
            allOk = RunLine(line, session, view) && allOk;
    } else {
        for (const std::string& line : options.lines)
            allOk = RunLine(line, session, view) && allOk;
    }
    return allOk ? 0 : 1;
}

}  // namespace

void AddCalcCommand(CLI::App& app, int& exitStatus) {
    auto options = std::make_shared<CalcOptions>();
    CLI::App* calc = app.add_subcommand(
        "calc",
        "Evaluate each LINE (or each line of standard input) as the calculator's immediate line");
    options->language.AddTo(*calc);
    calc->add_option("LINE", options->lines,
                     "Lines to evaluate (after --, lines may begin with -)");
    calc->callback([options, &exitStatus] { exitStatus = RunCalc(*options); });
}

}  // namespace lapdesk::cli
