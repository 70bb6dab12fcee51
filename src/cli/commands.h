// The verbs of lapdesk-cli. Each registers itself on the application and
// writes its exit status (0 success, 1 failure of the work, 2 usage or file
// errors) into the shared status when it runs.
#pragma once

namespace CLI {
class App;
}

namespace lapdesk::cli {

void AddCalcCommand(CLI::App& app, int& exitStatus);
void AddRunCommand(CLI::App& app, int& exitStatus);
void AddReadCommand(CLI::App& app, int& exitStatus);
void AddInvertCommand(CLI::App& app, int& exitStatus);

}  // namespace lapdesk::cli
