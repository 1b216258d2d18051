// The tester's call: what the caller does and what the network answers, on the virtual
// clock. Read from the --call JSON or made from --keys and --hangup.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "sim/call_line.h"

namespace kq::sim {

struct ScriptKey {
  char key = 0;
  int64_t at = -1;  // ms on the clock; -1: as soon as the application listens
};

struct CallScript {
  int64_t ringAt = 0;  // the first ring of the call
  int rings = 10;      // rings the caller waits before giving up
  bool call = true;    // false: no call comes at all
  std::string callerId;
  std::string calledId;
  std::vector<ScriptKey> keys;
  int64_t hangupAt = -1;              // the caller hangs up at this time (ms)
  bool hangupWhenDone = false;        // the caller hangs up when the keys have run out
  std::vector<DialOutcome> outcomes;  // Call Out and Dial Number, in turn; then Answered
  std::string voiceFile;              // the caller's voice for Record Sound (WAVE)
  int channel = 1;
  std::vector<std::string> busyTables;        // tables that Connect Table finds busy
  std::string start = "2026-01-05 09:00:00";  // the clock's date and time at 0 ms
};

// Reads the JSON text of a call; nullopt with `error` set when it does not parse or a field
// has the wrong type or value.
std::optional<CallScript> ParseCallJson(const std::string& text, std::string& error);

// The keys of --keys: one key a character; false for a character that is no key.
bool ParseKeys(const std::string& keys, std::vector<ScriptKey>& out);

// The outcome of its name ("busy", "answered", "nocall", "intercept", "noanswer",
// "nodialtone", "error").
std::optional<DialOutcome> OutcomeOfName(const std::string& name);
const char* OutcomeName(DialOutcome o);

}  // namespace kq::sim
