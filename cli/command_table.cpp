#include <CLI/CLI.hpp>

#include "cli/commands.h"

namespace kqx {

namespace {

constexpr AddCommandFn kAll[] = {
    AddInfoCommand,    AddLinesCommand,   AddResaveCommand, AddCompileCommand,
    AddListCommand,    AddConvertCommand, AddPromptsCommand, AddRunCommand,
    AddScriptCommand,  AddExportCommand,  AddImportCommand,  AddDiffCommand,
    AddLintCommand,    AddGraphCommand,
};

}  // namespace

const std::span<const AddCommandFn> kCommands{kAll};

void OnRun(CLI::App& command, Session& session, std::function<int()> run) {
  command.callback([&session, run = std::move(run)] { session.status = run(); });
}

}  // namespace kqx
