// lapdesk-cli calc: evaluates lines as the calculator's immediate line does
// and prints what its result label would show.
#include <CLI/CLI.hpp>
#include <iostream>
#include <string>
#include <vector>

#include "commands.h"
#include "expr/evaluator.h"
#include "expr/plain_scope.h"
#include "expr/vocabulary.h"
#include "values/number_text.h"

namespace lapdesk::cli {

namespace {

struct CalcOptions {
    bool rounded = false;
    std::vector<std::string> lines;
};

// Evaluates one line; prints the value or "Error" and the reason.
bool RunLine(const std::string& line, PlainScope& scope, bool rounded) {
    const Evaluation result = Evaluate(line, scope);
    if (!result.ok) {
        std::cout << "Error\n";
        std::cerr << line << " : " << result.message << '\n';
        return false;
    }
    Complex value = result.value;
    std::cout << ComplexToText(value, rounded) << '\n';
    return true;
}

int RunCalc(const CalcOptions& options) {
    InitVocabulary();
    PlainScope scope;
    bool allOk = true;
    const auto run = [&](std::string line) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        allOk = RunLine(line, scope, options.rounded) && allOk;
    };
    if (options.lines.empty()) {
        std::string line;
        while (std::getline(std::cin, line)) run(line);
    } else {
        for (const std::string& line : options.lines) run(line);
    }
    return allOk ? 0 : 1;
}

}  // namespace

void AddCalcCommand(CLI::App& app, int& exitStatus) {
    auto options = std::make_shared<CalcOptions>();
    CLI::App* calc = app.add_subcommand(
        "calc", "Evaluate each LINE (or each line of standard input) as the calculator's immediate line");
    calc->add_flag("--rounded", options->rounded, "Show values rounded to 6 significant digits");
    calc->add_option("LINE", options->lines, "Lines to evaluate (after --, lines may begin with -)");
    calc->callback([options, &exitStatus] { exitStatus = RunCalc(*options); });
}

}  // namespace lapdesk::cli
