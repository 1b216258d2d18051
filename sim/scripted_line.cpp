#include "sim/scripted_line.h"

#include <algorithm>

namespace kq::sim {

ScriptedLine::ScriptedLine(CallScript script, std::vector<int16_t> voice)
    : script_(std::move(script)), voice_(std::move(voice)) {}

void ScriptedLine::Advance(int64_t ms) {
  if (ms > 0) now_ += ms;
  if (inCall_ && HangupBy(now_)) CallerHangsUp(script_.hangupAt);
}

bool ScriptedLine::HangupBy(int64_t t) const {
  return script_.hangupAt >= 0 && script_.hangupAt <= t;
}

void ScriptedLine::CallerHangsUp(int64_t at) {
  inCall_ = false;
  callerHungUp_ = true;
  now_ = std::max(now_, at);
}

LineStatus ScriptedLine::WaitForCall(int rings, int64_t dailyAt, CallInfo& info) {
  inCall_ = false;
  int64_t answerAt = -1;
  if (script_.call && !callTaken_) {
    const int64_t ringAt = std::max(script_.ringAt, now_);
    // A caller who gives up before the rings asked for is a call missed.
    if (script_.rings >= rings) answerAt = ringAt + std::max(rings, 0) * kRingMs;
  }
  if (dailyAt >= 0 && dailyAt >= now_ && (answerAt < 0 || dailyAt < answerAt)) {
    now_ = dailyAt;
    return LineStatus::Daily;
  }
  if (answerAt < 0) {
    callTaken_ = true;
    return LineStatus::NoMoreCalls;
  }
  callTaken_ = true;
  now_ = answerAt;
  answeredAt_ = answerAt;
  if (HangupBy(now_)) {  // the caller hung up while it rang
    callerHungUp_ = true;
    return LineStatus::NoMoreCalls;
  }
  inCall_ = true;
  callerHungUp_ = false;
  info.callerId = script_.callerId;
  info.calledId = script_.calledId;
  return LineStatus::Done;
}

LineStatus ScriptedLine::Play(int64_t ms, bool detectHangup) {
  if (!inCall_) return detectHangup ? LineStatus::Hangup : LineStatus::Done;
  if (HangupBy(now_ + ms)) {
    const int64_t at = script_.hangupAt;
    CallerHangsUp(at);
    if (detectHangup) return LineStatus::Hangup;
    now_ = std::max(now_, at);
    return LineStatus::Done;
  }
  now_ += ms;
  return LineStatus::Done;
}

KeyResult ScriptedLine::NextKey(int64_t timeoutMs, bool detectHangup) {
  if (!inCall_) {
    now_ += detectHangup ? 0 : timeoutMs;
    return {detectHangup ? LineStatus::Hangup : LineStatus::Timeout, 0};
  }
  const int64_t deadline = now_ + std::max<int64_t>(timeoutMs, 0);
  if (nextKey_ < script_.keys.size()) {
    const ScriptKey& k = script_.keys[nextKey_];
    const int64_t at = k.at < 0 ? now_ : std::max(k.at, now_);
    if (at <= deadline && !(HangupBy(at) && script_.hangupAt < at)) {
      ++nextKey_;
      now_ = at;
      return {LineStatus::Done, k.key};
    }
  } else if (script_.hangupWhenDone && (script_.hangupAt < 0 || script_.hangupAt > now_)) {
    script_.hangupAt = now_;
  }
  if (HangupBy(deadline)) {
    CallerHangsUp(script_.hangupAt);
    if (detectHangup) return {LineStatus::Hangup, 0};
  }
  now_ = std::max(now_, deadline);
  return {LineStatus::Timeout, 0};
}

RecordResult ScriptedLine::Record(int64_t maxMs, int64_t silenceMs, bool detectHangup) {
  RecordResult r;
  if (!inCall_) {
    r.status = detectHangup ? LineStatus::Hangup : LineStatus::Timeout;
    return r;
  }
  const int64_t voiceMs = static_cast<int64_t>(voice_.size()) / 8;
  if (voiceMs == 0) {  // the caller says nothing
    if (HangupBy(now_ + silenceMs)) {
      CallerHangsUp(script_.hangupAt);
      if (detectHangup) {
        r.status = LineStatus::Hangup;
        return r;
      }
    }
    now_ += silenceMs;
    r.status = LineStatus::Timeout;
    return r;
  }
  int64_t ms = std::min(voiceMs, std::max<int64_t>(maxMs, 0));
  if (HangupBy(now_ + ms)) {
    ms = std::max<int64_t>(script_.hangupAt - now_, 0);
    r.samples.assign(voice_.begin(), voice_.begin() + ms * 8);
    CallerHangsUp(script_.hangupAt);
    r.status = detectHangup ? LineStatus::Hangup : LineStatus::Done;
    return r;
  }
  r.samples.assign(voice_.begin(), voice_.begin() + ms * 8);
  now_ += ms;
  r.status = LineStatus::Done;
  return r;
}

void ScriptedLine::HangUp() {
  inCall_ = false;
}

DialOutcome ScriptedLine::Dial(const std::string& number, bool waitForDialTone, int rings) {
  (void)number;
  DialOutcome o = DialOutcome::Answered;
  if (nextOutcome_ < script_.outcomes.size()) o = script_.outcomes[nextOutcome_++];
  // Without waiting for the tone the dialling goes ahead and finds no progress.
  if (o == DialOutcome::NoDialTone && !waitForDialTone) o = DialOutcome::NoCallProgress;
  switch (o) {
    case DialOutcome::Answered:
      now_ += kRingMs;
      break;
    case DialOutcome::NoAnswer:
      now_ += std::max(rings, 1) * kRingMs;
      break;
    default:
      now_ += 2000;
      break;
  }
  return o;
}

}  // namespace kq::sim
