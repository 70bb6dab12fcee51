// lapdesk-cli: the calculator and the inverse Laplace transform without a window.
#include <CLI/CLI.hpp>

#include "commands.h"
#include "version/version.h"

int main(int argc, char** argv) {
    CLI::App app{"Laplace Desk: numerical inverse Laplace transforms and a complex calculator"};
    app.require_subcommand(1);
    app.set_version_flag("--version", std::string("lapdesk-cli ") + lapdesk::kVersion);
    int exitStatus = 0;
    lapdesk::cli::AddCalcCommand(app, exitStatus);
    lapdesk::cli::AddRunCommand(app, exitStatus);
    lapdesk::cli::AddReadCommand(app, exitStatus);
    lapdesk::cli::AddInvertCommand(app, exitStatus);
    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForHelp& e) {
        return app.exit(e);
    } catch (const CLI::CallForAllHelp& e) {
        return app.exit(e);
    } catch (const CLI::CallForVersion& e) {
        return app.exit(e);
    } catch (const CLI::ParseError& e) {
        app.exit(e);
        return 2;
    }
    return exitStatus;
}
