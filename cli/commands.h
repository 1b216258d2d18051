// The commands of kqx.
//
// Adding a command:
//   1. Write cli/cmd_NAME.cpp with one function `void AddNameCommand(CLI::App& app,
//      Session& session)`. It adds the subcommand with its description, arguments and
//      options (CLI11 checks counts, numbers and ranges, and writes the help), and gives the
//      work to OnRun. The work returns an exit status: kExitOk, or kExitRefused after the
//      system's message box (OpenDocument in cli_document.h prints it) or a clear error on
//      session.err. A "Program Error" needs no handling: RunKqx turns it into status 2.
//   2. Declare the function below and add it to kCommands in command_table.cpp, in the
//      order the help should list it.
//   3. Add the file to cli/CMakeLists.txt, and a test to tests/cli.
//
//   void AddLinesCommand(CLI::App& app, Session& session) {
//     auto file = std::make_shared<std::string>();
//     CLI::App* cmd = app.add_subcommand("lines", "The DisplayLines of an application");
//     cmd->add_option("FILE", *file, "the application file")->required();
//     OnRun(*cmd, session, [file, &session] { return Lines(session, *file); });
//   }
#pragma once

#include <functional>
#include <span>

#include "cli/kqx.h"

namespace CLI {
class App;
}

namespace kqx {

using AddCommandFn = void (*)(CLI::App& app, Session& session);

// Every command, in the order of the help.
extern const std::span<const AddCommandFn> kCommands;

// Makes `run` the work of the subcommand: it runs once the whole command line has been
// parsed and checked, and its result becomes the session's exit status.
void OnRun(CLI::App& command, Session& session, std::function<int()> run);

void AddInfoCommand(CLI::App& app, Session& session);
void AddLinesCommand(CLI::App& app, Session& session);
void AddResaveCommand(CLI::App& app, Session& session);
void AddCompileCommand(CLI::App& app, Session& session);
void AddListCommand(CLI::App& app, Session& session);
void AddConvertCommand(CLI::App& app, Session& session);
void AddPromptsCommand(CLI::App& app, Session& session);
void AddScriptCommand(CLI::App& app, Session& session);
void AddExportCommand(CLI::App& app, Session& session);
void AddImportCommand(CLI::App& app, Session& session);
void AddDiffCommand(CLI::App& app, Session& session);
void AddRunCommand(CLI::App& app, Session& session);
void AddLintCommand(CLI::App& app, Session& session);
void AddGraphCommand(CLI::App& app, Session& session);

}  // namespace kqx
