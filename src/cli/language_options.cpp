#include "language_options.h"

#include <CLI/CLI.hpp>

#include "interp/interpreter.h"
#include "values/complex.h"

namespace lapdesk::cli {

void LanguageOptions::AddTo(CLI::App& command) {
    command.add_flag("--rounded", rounded, "Show values rounded to 6 significant digits");
    command.add_flag("--ignore-case", ignoreCase, "Compare variable names without regard to case");
    command.add_flag("--degrees", degrees, "Take and give angles in degrees");
}

void LanguageOptions::ApplyTo(Interpreter& session) const {
    session.SetCaseSensitive(!ignoreCase);
    AngleUnit = degrees ? kDegreeUnit : 1.0;
}

}  // namespace lapdesk::cli
