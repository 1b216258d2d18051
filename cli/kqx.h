// kqx: the command-line tool over the core libraries. Its commands are listed in
// cli/commands.h; this is the entry point that parses a command line and runs one.
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
inline constexpr int kExitUsage = 64;        // the command line itself was wrong

// What a command works with while it runs: the output streams and the headless platform,
// whose events are written to `out` as JSON lines. `status` is what kqx exits with.
struct Session {
  std::ostream& out;
  std::ostream& err;
  ui::HeadlessPlatform& platform;
  int status = kExitOk;
};

// Runs kqx with argv[1..] in `args`: parses the command line, sets up the platform and an
// empty document, runs the command and turns a "Program Error" into a programend event
// and status 2. --help and --version print to `out`; a wrong command line prints the
// error and the usage to `err` and gives kExitUsage.
int RunKqx(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);

// The version that --version prints.
const char* Version();

}  // namespace kqx
