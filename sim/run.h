// A whole simulated call of the open document, headless: the entry of `kqx run`. Takes
// the options as parsed, writes the trace as JSON lines to `out` and refusals to `err`.
#pragma once

#include <cstdint>
#include <optional>
#include <ostream>
#include <string>

namespace kq::sim {

struct RunOptions {
  std::string appFile;              // its folder is where relative path texts are read
  std::optional<std::string> keys;  // --keys
  bool hangup = false;              // --hangup
  std::string callFile;             // --call
  std::string tablesDir;            // --tables
  std::string dbFile;               // --db; empty: tables in memory
  std::string sandboxDir;           // --sandbox; empty: a temporary folder, removed after
  uint64_t seed = 1;
  int64_t maxSteps = 10'000'000;
  bool decodePrompts = false;
  int speechFormat = 0;  // the format of ".vox" prompts
};

// Exit statuses of a run.
inline constexpr int kRunOk = 0;       // the caller hung up, or the application ended
inline constexpr int kRunRefused = 1;  // nothing ran: the message is on `err`
inline constexpr int kRunFault = 3;    // a fault with no error label, or the step limit

// Runs the open document, which must be compiled (the caller compiles it first: compile
// belongs to the editor, above this library).
int RunDocument(const RunOptions& options, std::ostream& out, std::ostream& err);

}  // namespace kq::sim
