// A line driven by a person at a keypad (the Simulate window): a call comes when Ring is
// pressed, keys when they are pressed, and the caller hangs up with Hang up. Until then a
// wait answers Pending and the engine stays on its line. Prompts and dialling take no
// time; nobody speaks into a recording, so it ends in silence.
#pragma once

#include <deque>
#include <string>

#include "sim/call_line.h"

namespace kq::sim {

class KeypadLine : public CallLine {
 public:
  explicit KeypadLine(int channel = 1) : channel_(channel) {}

  // ---- the person
  void Ring(std::string callerId = {}) {
    ringing_ = true;
    callerId_ = std::move(callerId);
  }
  void PressKey(char key) { keys_.push_back(key); }
  void CallerHangsUp();
  size_t KeysWaiting() const { return keys_.size(); }

  // ---- CallLine
  int64_t Now() const override { return now_; }
  void Advance(int64_t ms) override { now_ += ms > 0 ? ms : 0; }
  LineStatus WaitForCall(int rings, int64_t dailyAt, CallInfo& info) override;
  LineStatus Play(int64_t ms, bool detectHangup) override;
  KeyResult NextKey(int64_t timeoutMs, bool detectHangup) override;
  RecordResult Record(int64_t maxMs, int64_t silenceMs, bool detectHangup) override;
  void HangUp() override { inCall_ = false; }
  DialOutcome Dial(const std::string&, bool, int) override { return DialOutcome::Answered; }
  bool InCall() const override { return inCall_; }
  bool CallerHungUp() const override { return callerHungUp_; }
  int Channel() const override { return channel_; }

 private:
  int channel_;
  int64_t now_ = 0;
  bool ringing_ = false;
  bool inCall_ = false;
  bool callerHungUp_ = false;
  std::string callerId_;
  std::deque<char> keys_;
};

}  // namespace kq::sim
