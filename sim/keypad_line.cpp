#include "sim/keypad_line.h"

namespace kq::sim {

void KeypadLine::CallerHangsUp() {
  ringing_ = false;
  if (inCall_) callerHungUp_ = true;
  inCall_ = false;
  keys_.clear();
}

LineStatus KeypadLine::WaitForCall(int rings, int64_t dailyAt, CallInfo& info) {
  (void)dailyAt;  // the person's clock does not run while nobody rings
  inCall_ = false;
  if (!ringing_) return LineStatus::Pending;
  ringing_ = false;
  inCall_ = true;
  keys_.clear();  // keys pressed before the call was answered reach nobody
  callerHungUp_ = false;
  now_ += static_cast<int64_t>(rings > 0 ? rings : 0) * 6000;
  info.callerId = callerId_;
  return LineStatus::Done;
}

LineStatus KeypadLine::Play(int64_t ms, bool detectHangup) {
  if (!inCall_) return detectHangup ? LineStatus::Hangup : LineStatus::Done;
  now_ += ms;
  return LineStatus::Done;
}

KeyResult KeypadLine::NextKey(int64_t timeoutMs, bool detectHangup) {
  if (!inCall_) {
    if (detectHangup) return {LineStatus::Hangup, 0};
    now_ += timeoutMs;
    return {LineStatus::Timeout, 0};
  }
  if (keys_.empty()) return {LineStatus::Pending, 0};
  const char k = keys_.front();
  keys_.pop_front();
  return {LineStatus::Done, k};
}

RecordResult KeypadLine::Record(int64_t maxMs, int64_t silenceMs, bool detectHangup) {
  (void)maxMs;
  RecordResult r;
  if (!inCall_) {
    r.status = detectHangup ? LineStatus::Hangup : LineStatus::Timeout;
    return r;
  }
  now_ += silenceMs;
  r.status = LineStatus::Timeout;
  return r;
}

}  // namespace kq::sim
