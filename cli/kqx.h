// kqx: the command-line tool over the core libraries. Each command is a function in its
// own file (cmd_<name>.cpp), listed in the table of command_table.cpp.
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace ui {
class HeadlessPlatform;
}

namespace kqx {

// Exit statuses.
inline constexpr int kExitOk = 0;
inline constexpr int kExitRefused = 1;       // the system refused, with its message
inline constexpr int kExitProgramError = 2;  // a "Program Error" ended the program

// What a command works with: its arguments (after the command name), the output streams
// and the headless platform, whose events are written to `out` as JSON lines.
struct CliContext {
  std::vector<std::string> args;
  std::ostream& out;
  std::ostream& err;
  ui::HeadlessPlatform& platform;
};

using CommandFn = int (*)(CliContext& ctx);

struct Command {
  const char* name;
  const char* usage;  // the arguments, for the help text
  CommandFn run;
};

// The commands, ending with a null entry.
extern const Command kCommands[];

// Runs kqx with argv[1..] in `args`: sets up the platform and an empty document, runs the
// command and turns a "Program Error" into a programend event and status 2.
int RunKqx(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);

}  // namespace kqx
