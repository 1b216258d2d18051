// Call control functions: Wait for Call, On/Off Hook, Dial Number, Call Out, R Switch,
// CT Bus Connect.
#include <cstring>

#include "document/functions.h"
#include "document/text.h"
#include "sim/call_script.h"
#include "sim/engine.h"
#include "sim/record_of.h"

namespace kq::sim {

namespace {

bool Dialable(const std::string& n) {
  if (n.empty()) return false;
  for (char c : n) {
    const bool ok =
        (c >= '0' && c <= '9') || c == '*' || c == '#' || c == ',' || (c >= 'A' && c <= 'D');
    if (!ok) return false;
  }
  return true;
}

}  // namespace

StepStatus Engine::ExecCall(const uint8_t* block, int fn) {
  switch (ToFn(fn)) {
    case Fn::WaitForCall: {
      const auto r = RecordOf<WaitForCallRec>(block);
      int64_t dailyAt = -1;
      int64_t dailyDay = -1;
      if (r.DailyGoto != 0 && r.DailyLabel.LabelRefName[0] != '\0') {
        // The next time the clock shows the hour and minute, once a day.
        const int64_t now = ClockSeconds();
        const int64_t at = (r.DailyHour % 24) * 3600 + r.DailyMinute * 60;
        int64_t day = now / 86400;
        if (day * 86400 + at < now || day == dailyDoneDay_) ++day;
        dailyDay = day;
        dailyAt = (day * 86400 + at - startSeconds_) * 1000;
      }
      CallInfo info;
      const LineStatus s = call_.WaitForCall(r.Rings, dailyAt, info);
      switch (s) {
        case LineStatus::Pending:
          return StepStatus::Waiting;
        case LineStatus::Daily:
          dailyDoneDay_ = dailyDay;
          trace_.Begin("daily").Field("time", static_cast<int64_t>(call_.Now())).End();
          Take(r.DailyLabel);
          return StepStatus::Ran;
        case LineStatus::Done: {
          trace_.Begin("answer")
              .Field("rings", r.Rings)
              .Field("time", static_cast<int64_t>(call_.Now()))
              .End();
          if (r.GetCallerId != 0 && !Write(r.CallerIdVar, Value::OfString(info.callerId))) {
            Fault("Wait for Call: the caller id '" + info.callerId + "' does not fit " +
                  VarText(r.CallerIdVar));
          } else if (r.GetCalledId != 0 && !Write(r.CalledIdVar, Value::OfString(info.calledId))) {
            Fault("Wait for Call: the called id '" + info.calledId + "' does not fit " +
                  VarText(r.CalledIdVar));
          }
          return StepStatus::Ran;
        }
        default:
          Finish(call_.CallerHungUp() ? EndReason::Hangup : EndReason::End);
          return StepStatus::Ran;
      }
    }
    case Fn::OnOffHook: {
      const auto r = RecordOf<HookRec>(block);
      static const char* kActions[] = {"on hook", "off hook", "shutdown"};
      const int a = r.HookAction >= 0 && r.HookAction <= 2 ? r.HookAction : 0;
      trace_.Begin("hook").Field("action", kActions[a]).End();
      if (a == 0) call_.HangUp();
      if (a == 2) {
        call_.HangUp();
        Finish(EndReason::End);
      }
      return StepStatus::Ran;
    }
    case Fn::DialNumber: {
      const auto r = RecordOf<DialNumberRec>(block);
      std::string number;
      if (!ReadText(r.Number, number) || !Dialable(number)) {
        Fail(r.ErrorLabel, "Dial Number: '" + number + "' cannot be dialled");
        return StepStatus::Ran;
      }
      const DialOutcome o = call_.Dial(number, r.WaitForDialTone != 0, 0);
      trace_.Begin("dial").Field("number", number).Field("outcome", OutcomeName(o)).End();
      if (o == DialOutcome::NoDialTone) {
        Take(r.NoDialToneLabel);
      } else if (o == DialOutcome::Error) {
        Fail(r.ErrorLabel, "Dial Number: the line reported an error");
      }
      return StepStatus::Ran;
    }
    case Fn::CallOut: {
      const auto r = RecordOf<CallOutRec>(block);
      std::string number;
      DialOutcome o = DialOutcome::Error;
      if (ReadText(r.Number, number) && Dialable(number)) {
        o = call_.Dial(number, r.WaitForDialTone != 0, r.Rings);
      }
      trace_.Begin("dial").Field("number", number).Field("outcome", OutcomeName(o)).End();
      const int i = static_cast<int>(o);
      if (!Take(r.OutcomeLabel[i], r.OutcomeLine[i]) && o == DialOutcome::Error) {
        Fault("Call Out: '" + number + "' cannot be dialled");
      }
      return StepStatus::Ran;
    }
    case Fn::RSwitch: {
      const auto r = RecordOf<RSwitchRec>(block);
      trace_.Begin("flash").Field("ms", r.InterruptMs).End();
      call_.Advance(std::max<int32_t>(r.InterruptMs, 0));
      return StepStatus::Ran;
    }
    case Fn::CTBusConnect: {
      const auto r = RecordOf<CTBusRec>(block);
      static const char* kFields[] = {"board", "fromStream", "fromSlot", "toStream", "toSlot"};
      int32_t v[5];
      for (int i = 0; i < 5; ++i) {
        if (!ReadLong(r.BusVar[i], v[i]) || v[i] < 0) {
          Fail(r.ErrorLabel,
               "CT Bus Connect: '" + VarText(r.BusVar[i]) + "' is not a whole number of 0 or more");
          return StepStatus::Ran;
        }
      }
      trace_.Begin("bus").Field("type", r.BusType == 1 ? "H.100" : "MVIP");
      for (int i = 0; i < 5; ++i) trace_.Field(kFields[i], v[i]);
      trace_.End();
      return StepStatus::Ran;
    }
    default:
      Fault("illegal function number" + Str(static_cast<int64_t>(fn)));
      return StepStatus::Ran;
  }
}

}  // namespace kq::sim
