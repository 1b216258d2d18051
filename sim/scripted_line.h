// The tester's line: a CallScript played on a virtual clock. Nothing ever sleeps; every
// wait moves the clock to the moment its answer comes.
#pragma once

#include "sim/call_line.h"
#include "sim/call_script.h"

namespace kq::sim {

class ScriptedLine : public CallLine {
 public:
  // `voice`: the caller's voice at 8000 Hz, for Record Sound.
  ScriptedLine(CallScript script, std::vector<int16_t> voice);

  int64_t Now() const override { return now_; }
  void Advance(int64_t ms) override;
  LineStatus WaitForCall(int rings, int64_t dailyAt, CallInfo& info) override;
  LineStatus Play(int64_t ms, bool detectHangup) override;
  KeyResult NextKey(int64_t timeoutMs, bool detectHangup) override;
  RecordResult Record(int64_t maxMs, int64_t silenceMs, bool detectHangup) override;
  void HangUp() override;
  DialOutcome Dial(const std::string& number, bool waitForDialTone, int rings) override;
  bool InCall() const override { return inCall_; }
  bool CallerHungUp() const override { return callerHungUp_; }
  int Channel() const override { return script_.channel; }

  static constexpr int64_t kRingMs = 6000;  // one ring and its pause

 private:
  // Ends the call when the caller's hang-up time has come by `t`.
  bool HangupBy(int64_t t) const;
  void CallerHangsUp(int64_t at);

  CallScript script_;
  std::vector<int16_t> voice_;
  int64_t now_ = 0;
  size_t nextKey_ = 0;
  size_t nextOutcome_ = 0;
  bool callTaken_ = false;
  bool inCall_ = false;
  bool callerHungUp_ = false;
  int64_t answeredAt_ = 0;
};

}  // namespace kq::sim
