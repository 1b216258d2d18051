#include "sim/engine.h"

#include <cstring>

#include "document/catalogue.h"
#include "document/functions.h"
#include "document/state.h"
#include "document/text.h"

namespace kq::sim {

namespace {

// The catalogue's names, trimmed, once.
const std::string& FunctionName(int fn) {
  static std::vector<std::string> names = [] {
    std::vector<std::string> n(kFuncCount);
    for (int i = 0; i < kFuncCount; ++i) {
      std::string_view f(FuncNames[i], 17);
      const size_t nul = f.find('\0');
      n[i] = std::string(f.substr(0, nul == std::string_view::npos ? 17 : nul));
      while (!n[i].empty() && n[i].back() == ' ') n[i].pop_back();
    }
    return n;
  }();
  static const std::string none = "?";
  return fn >= 0 && fn < kFuncCount ? names[fn] : none;
}

// Days since 1970-01-01 of a civil date.
int64_t DaysFromCivil(int64_t y, unsigned m, unsigned d) {
  y -= m <= 2;
  const int64_t era = (y >= 0 ? y : y - 399) / 400;
  const unsigned yoe = static_cast<unsigned>(y - era * 400);
  const unsigned doy = (153 * (m + (m > 2 ? -3 : 9)) + 2) / 5 + d - 1;
  const unsigned doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
  return era * 146097 + static_cast<int64_t>(doe) - 719468;
}

}  // namespace

std::optional<int64_t> ParseDateTime(const std::string& t) {
  if (t.size() != 19 || t[4] != '-' || t[7] != '-' || t[10] != ' ' || t[13] != ':' ||
      t[16] != ':') {
    return std::nullopt;
  }
  auto num = [&](size_t at, size_t n) {
    int v = 0;
    for (size_t i = at; i < at + n; ++i) {
      if (t[i] < '0' || t[i] > '9') return -1;
      v = v * 10 + (t[i] - '0');
    }
    return v;
  };
  const int y = num(0, 4), mo = num(5, 2), d = num(8, 2), h = num(11, 2), mi = num(14, 2),
            s = num(17, 2);
  if (y < 1970 || mo < 1 || mo > 12 || d < 1 || d > 31 || h < 0 || h > 23 || mi < 0 || mi > 59 ||
      s < 0 || s > 59) {
    return std::nullopt;
  }
  return DaysFromCivil(y, static_cast<unsigned>(mo), static_cast<unsigned>(d)) * 86400 + h * 3600 +
         mi * 60 + s;
}

const char* ReasonName(EndReason r) {
  switch (r) {
    case EndReason::Hangup:
      return "hangup";
    case EndReason::End:
      return "end";
    case EndReason::Fault:
      return "fault";
    case EndReason::Steps:
      return "steps";
    case EndReason::None:
      break;
  }
  return "";
}

Engine::Engine(CallLine& line, Trace& trace, Tables& tables, const Sandbox& sandbox,
               EngineOptions options)
    : call_(line),
      trace_(trace),
      tables_(tables),
      sandbox_(sandbox),
      options_(std::move(options)),
      random_(options_.seed) {
  vars_.Load(PrgHdr);
  pathTexts_.resize(kPathTypes * kPathRows);
  for (int type = 0; type < kPathTypes; ++type) {
    for (int row = 0; row < kPathRows; ++row) {
      const PathEntry& e = PrgHdr.Path[row][type];
      std::string_view f(e.PathText, 260);
      const size_t nul = f.find('\0');
      pathTexts_[type * kPathRows + row] =
          std::string(f.substr(0, nul == std::string_view::npos ? 0 : nul));
    }
  }
  startSeconds_ = ParseDateTime(options_.start).value_or(0);
  lineCount_ = PrgHdr.LineCount;
}

void Engine::Finish(EndReason r, const std::string& message, int at) {
  if (reason_ != EndReason::None) return;
  reason_ = r;
  message_ = message;
  if (at < 0) at = line_;
  trace_.Begin("end").Field("reason", ReasonName(r)).Field("line", at);
  if (!message.empty()) trace_.Field("message", message);
  trace_.End();
  trace_.Flush();
}

void Engine::Stop() {
  Finish(EndReason::End, "stopped");
}

void Engine::Jump(int32_t target) {
  if (target < 0 || target >= lineCount_) {
    Fault("label target" + Str(static_cast<int64_t>(target)) + " is not a line of the program");
    return;
  }
  pc_ = target;
}

bool Engine::Take(const LabelRef& label) {
  return Take(label.LabelRefName, label.LabelRefLine);
}

bool Engine::Take(const char (&name)[16], int32_t target) {
  if (name[0] == '\0' || name[0] == ' ') return false;
  Jump(target);
  return true;
}

int Engine::LineOfLabel(const char (&name)[16]) const {
  int found = -1;
  for (int i = 0; i < lineCount_; ++i) {
    if (std::memcmp(LineTable[i].LineLabel, name, 16) == 0) found = i;
  }
  return found;
}

void Engine::Fault(const std::string& message) {
  Finish(EndReason::Fault, message);
}

void Engine::Fail(const LabelRef& label, const std::string& message) {
  trace_.Begin("error").Field("line", line_).Field("message", message).End();
  if (!Take(label)) Fault(message);
}

void Engine::HungUp(const LabelRef* label) {
  trace_.Begin("hangup").Field("line", line_).End();
  if (label == nullptr || !Take(*label)) Finish(EndReason::Hangup);
}

StepStatus Engine::Step() {
  if (Ended()) return StepStatus::Ended;
  if (!waiting_) {
    if (steps_ >= options_.maxSteps) {
      Finish(EndReason::Steps, "the limit of" + Str(options_.maxSteps) + " steps is reached", pc_);
      return StepStatus::Ended;
    }
    if (pc_ < 0 || pc_ >= lineCount_) {
      Finish(EndReason::End, {}, lineCount_);
      return StepStatus::Ended;
    }
    line_ = pc_;
  }
  const int fn = LineTable[line_].LineFuncNo;
  if (!waiting_) {
    trace_.Line(line_, FunctionName(fn));
    ++steps_;
  }
  waiting_ = false;
  const uint8_t* block = FuncBlock[line_];
  pc_ = line_ + 1;  // unless the function says otherwise
  StepStatus status = StepStatus::Ran;
  switch (ToFn(fn)) {
    case Fn::Condition:
    case Fn::Delay:
    case Fn::Gosub:
    case Fn::Goto:
    case Fn::Random:
    case Fn::Remark:
    case Fn::Return:
      ExecFlow(block, fn);
      break;
    case Fn::Assign:
    case Fn::AssignPath:
    case Fn::Calculate:
    case Fn::GetDate:
    case Fn::GetTime:
    case Fn::GetDayOfWeek:
    case Fn::GetChannelNo:
    case Fn::TrimString:
    case Fn::LenString:
    case Fn::RightString:
    case Fn::LeftString:
    case Fn::InString:
      ExecData(block, fn);
      break;
    case Fn::WaitForCall:
    case Fn::OnOffHook:
    case Fn::DialNumber:
    case Fn::CallOut:
    case Fn::RSwitch:
    case Fn::CTBusConnect:
      status = ExecCall(block, fn);
      break;
    case Fn::Voice:
    case Fn::SayNumber:
    case Fn::SayFile:
    case Fn::GetKeys:
    case Fn::WaitForKey:
    case Fn::RecordSound:
      status = ExecPrompt(block, fn);
      break;
    case Fn::ConnectTable:
    case Fn::DisconnectTable:
    case Fn::AddRecord:
    case Fn::DeleteRecord:
    case Fn::GetFirstRecord:
    case Fn::SelectRecords:
    case Fn::InsertRecord:
    case Fn::GetLastRecord:
    case Fn::GetNextRecord:
    case Fn::GetPrevRecord:
    case Fn::UpdateRecord:
    case Fn::GetRecordNo:
    case Fn::GetNoOfRec:
    case Fn::EmptyTable:
      ExecTable(block, fn);
      break;
    case Fn::CheckPath:
    case Fn::CheckFile:
    case Fn::DeleteFile:
    case Fn::SoundFileCount:
    case Fn::Run:
    case Fn::VariableExport:
    case Fn::Prototype:
      ExecFile(block, fn);
      break;
    default:
      Fault("illegal function number" + Str(static_cast<int64_t>(fn)));
      break;
  }
  if (status == StepStatus::Waiting) {
    waiting_ = true;
    pc_ = line_;
    return status;
  }
  return Ended() ? StepStatus::Ended : StepStatus::Ran;
}

void Engine::Run() {
  while (Step() != StepStatus::Ended) {
  }
}

// ---- values

namespace {
std::string_view NameOf(const VarRef& ref) {
  std::string_view f(ref.VarRefName, 28);
  const size_t nul = f.find('\0');
  if (nul != std::string_view::npos) return f.substr(0, nul);
  while (!f.empty() && f.back() == ' ') f.remove_suffix(1);
  return f;
}
}  // namespace

std::string Engine::VarText(const VarRef& ref) const {
  return std::string(NameOf(ref));
}

bool Engine::Read(const VarRef& ref, Value& out) {
  switch (ref.VarRefType) {
    case kVarLong:
    case kVarDouble:
    case kVarString: {
      const int slot = vars_.Find(ref);
      if (slot < 0) return false;
      out = vars_.Get(slot);
      return true;
    }
    case kConstLong: {
      auto l = ParseLong(NameOf(ref));
      if (!l) return false;
      out = Value::OfLong(*l);
      return true;
    }
    case kConstDouble: {
      auto d = ParseNumber(NameOf(ref));
      if (!d) return false;
      out = Value::OfDouble(*d);
      return true;
    }
    case kConstString:
      out = Value::OfString(std::string(NameOf(ref)));
      return true;
    default:
      return false;
  }
}

bool Engine::ReadText(const VarRef& ref, std::string& out) {
  Value v;
  if (!Read(ref, v)) return false;
  out = ToText(v);
  return true;
}

bool Engine::ReadLong(const VarRef& ref, int32_t& out) {
  Value v;
  if (!Read(ref, v)) return false;
  auto l = Convert(v, VType::Long);
  if (!l) return false;
  out = l->l;
  return true;
}

bool Engine::Write(const VarRef& target, const Value& v) {
  const int slot = vars_.Find(target);
  if (slot < 0) return false;
  auto c = Convert(v, vars_.Type(slot));
  if (!c) return false;
  vars_.Set(slot, std::move(*c));
  trace_.Set(vars_.Name(slot), vars_.Get(slot));
  return true;
}

std::string Engine::FunctionNameOf(int fn) {
  return FunctionName(fn);
}

int64_t Engine::ClockSeconds() const {
  return startSeconds_ + call_.Now() / 1000;
}

}  // namespace kq::sim
