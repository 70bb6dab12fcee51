// The outputs shared by the verbs that run the transform: the result text
// (the data file layout) to a file or standard output, a CSV table, and a
// plot image (in builds with the desktop windows).
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace CLI {
class App;
}

namespace lapdesk {
class TransformDriver;
}

namespace lapdesk::cli {

struct TransformOutputOptions {
    std::optional<std::string> output;
    std::optional<std::string> csv;
    std::optional<std::string> plot;

    void AddTo(CLI::App& command);
};

// Prints status texts on standard error.
void ReportStatusOnStderr(TransformDriver& driver);

// Writes the outputs; programText is listed after the result when the data
// came from a program. Returns the exit status (0, or 1 with the reason on
// standard error). With an error band the CSV has it as its third column.
int WriteTransformOutputs(TransformDriver& driver, std::string_view programText,
                          const TransformOutputOptions& options, std::string_view verb,
                          const std::vector<double>* errorBand = nullptr);

}  // namespace lapdesk::cli
