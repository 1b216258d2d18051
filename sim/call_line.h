// The one interface through which the engine meets its call: answer, play, keys, record,
// hang up, dial and the clock. The tester's scripted call is one such line; a telephony
// board can be another, one engine per call.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace kq::sim {

// Every wait may come back Pending: the line has nothing yet (a person at a keypad has not
// pressed a key). The engine then stays on its line and asks again at the next step.
enum class LineStatus { Done, Hangup, Timeout, Daily, NoMoreCalls, Pending };

struct CallInfo {
  std::string callerId;
  std::string calledId;
};

struct KeyResult {
  LineStatus status = LineStatus::Timeout;  // Done: `key` was pressed
  char key = 0;
};

struct RecordResult {
  LineStatus status = LineStatus::Timeout;  // Done: recorded; Timeout: silence
  std::vector<int16_t> samples;             // 8000 Hz
};

// The outcomes of dialling, in the order of Call Out's labels.
enum class DialOutcome {
  Busy = 0,
  Answered = 1,
  NoCallProgress = 2,
  Intercept = 3,
  NoAnswer = 4,
  NoDialTone = 5,
  Error = 6,
};

class CallLine {
 public:
  virtual ~CallLine() = default;

  // The clock in milliseconds since the run began; nothing but the line moves it.
  virtual int64_t Now() const = 0;
  // Time passes on the line (Delay, a flash of the hook).
  virtual void Advance(int64_t ms) = 0;

  // Waits for a call and answers it after `rings` rings. `dailyAt` (ms on the clock, -1
  // none) ends the wait with Daily when it comes first. Done fills `info`.
  virtual LineStatus WaitForCall(int rings, int64_t dailyAt, CallInfo& info) = 0;
  // Plays prompts lasting `ms` to the caller. Hangup only when `detectHangup`.
  virtual LineStatus Play(int64_t ms, bool detectHangup) = 0;
  // The next key, waiting at most `timeoutMs`.
  virtual KeyResult NextKey(int64_t timeoutMs, bool detectHangup) = 0;
  // Records the caller for at most `maxMs`; silence for `silenceMs` first ends it.
  virtual RecordResult Record(int64_t maxMs, int64_t silenceMs, bool detectHangup) = 0;
  // The application puts the line on hook.
  virtual void HangUp() = 0;
  // Dials a number and reports the call's progress.
  virtual DialOutcome Dial(const std::string& number, bool waitForDialTone, int rings) = 0;
  // True while a call is answered and neither side has hung up.
  virtual bool InCall() const = 0;
  // True when the last call ended because the caller hung up.
  virtual bool CallerHungUp() const = 0;
  // The board channel of this line.
  virtual int Channel() const = 0;
};

}  // namespace kq::sim
