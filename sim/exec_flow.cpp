// Flow and data functions: Condition, Delay, Gosub, Goto, Random, Remark, Return; Assign,
// Assign Path, Calculate, the date and time, the channel and the string functions.
#include <cmath>
#include <cstring>
#include <limits>

#include "document/functions.h"
#include "document/state.h"
#include "document/text.h"
#include "sim/engine.h"
#include "sim/record_of.h"

namespace kq::sim {

namespace {

bool Compare(double a, double b, int op) {
  switch (op) {
    case 0:
      return a == b;
    case 1:
      return a != b;
    case 2:
      return a < b;
    case 3:
      return a > b;
    case 4:
      return a <= b;
    default:
      return a >= b;
  }
}

bool Compare(const std::string& a, const std::string& b, int op) {
  const int c = a.compare(b);
  return Compare(static_cast<double>(c), 0.0, op);
}

std::string Two(int64_t n) {
  char b[8];
  std::snprintf(b, sizeof b, "%02d", static_cast<int>(n % 100));
  return b;
}

}  // namespace

void Engine::ExecFlow(const uint8_t* block, int fn) {
  switch (ToFn(fn)) {
    case Fn::Condition: {
      const auto r = RecordOf<ConditionRec>(block);
      Value a, b;
      if (!Read(r.Left, a) || !Read(r.Right, b)) {
        Fault("Condition: '" + VarText(r.Left) + "' or '" + VarText(r.Right) + "' has no value");
        return;
      }
      if (r.Operator < 0 || r.Operator > 5) {
        Fault("Condition: illegal operator" + Str(static_cast<int64_t>(r.Operator)));
        return;
      }
      bool holds;
      if (a.type == VType::String) {
        holds = Compare(a.s, ToText(b), r.Operator);
      } else {
        auto x = ToNumber(a), y = ToNumber(b);
        if (!x || !y) {
          Fault("Condition: '" + ToText(b) + "' is not a number");
          return;
        }
        holds = Compare(*x, *y, r.Operator);
      }
      trace_.Begin("condition").Field("holds", holds).End();
      if (holds) {
        Take(r.ThenLabel, r.ThenLine);
      } else {
        Take(r.ElseLabel, r.ElseLine);
      }
      return;
    }
    case Fn::Delay: {
      const auto r = RecordOf<DelayRec>(block);
      call_.Advance(std::max<int32_t>(r.DelayMs, 0));
      return;
    }
    case Fn::Gosub: {
      const auto r = RecordOf<GosubRec>(block);
      if (returns_.size() >= kMaxGosubs) {
        Fail(r.ErrorLabel,
             "Gosub: more than" + Str(static_cast<int64_t>(kMaxGosubs)) + " calls without Return");
        return;
      }
      returns_.push_back(line_ + 1);
      Jump(r.Target.LabelRefLine);
      return;
    }
    case Fn::Goto:
      Jump(RecordOf<GotoRec>(block).Target.LabelRefLine);
      return;
    case Fn::Random: {
      const auto r = RecordOf<RandomRec>(block);
      if (r.Upper < r.Lower) {
        Fault("Random: the upper bound is below the lower bound");
        return;
      }
      const uint64_t span = static_cast<uint64_t>(static_cast<int64_t>(r.Upper) - r.Lower) + 1;
      const int64_t v = r.Lower + static_cast<int64_t>(random_() % span);
      if (!Write(r.Target, Value::OfLong(static_cast<int32_t>(v)))) {
        Fault("Random: '" + VarText(r.Target) + "' is not a Long variable");
      }
      return;
    }
    case Fn::Remark:
      return;
    case Fn::Return: {
      const auto r = RecordOf<ReturnRec>(block);
      if (returns_.empty()) {
        Fail(r.ErrorLabel, "Return without Gosub");
        return;
      }
      pc_ = returns_.back();
      returns_.pop_back();
      return;
    }
    default:
      Fault("illegal function number" + Str(static_cast<int64_t>(fn)));
      return;
  }
}

namespace {

// The four operators 0 to 3 (+, -, *, /) in T; 4 (power) is the caller's. A division by
// zero and an operator outside 0 to 4 are told in `why`.
template <typename T>
std::optional<T> Basic(T a, T b, int op, std::string& why) {
  switch (op) {
    case 0:
      return a + b;
    case 1:
      return a - b;
    case 2:
      return a * b;
    case 3:
      if (b == 0) {
        why = "division by zero";
        return std::nullopt;
      }
      return a / b;
    default:
      why = "illegal operator";
      return std::nullopt;
  }
}

// Long arithmetic in 64 bits, checked against 32.
std::optional<int32_t> LongOp(int64_t a, int64_t b, int op, std::string& why) {
  int64_t r = 0;
  if (op == 4) {
    const double p = std::pow(static_cast<double>(a), static_cast<double>(b));
    if (!std::isfinite(p) || std::fabs(p) > 4e9) {
      why = "overflow";
      return std::nullopt;
    }
    r = static_cast<int64_t>(p);
  } else if (const auto v = Basic(a, b, op, why)) {
    r = *v;
  } else {
    return std::nullopt;
  }
  if (r < std::numeric_limits<int32_t>::min() || r > std::numeric_limits<int32_t>::max()) {
    why = "overflow";
    return std::nullopt;
  }
  return static_cast<int32_t>(r);
}

std::optional<double> DoubleOp(double a, double b, int op, std::string& why) {
  const std::optional<double> r =
      op == 4 ? std::optional<double>(std::pow(a, b)) : Basic(a, b, op, why);
  if (!r) return std::nullopt;
  if (!std::isfinite(*r)) {
    why = "overflow";
    return std::nullopt;
  }
  return r;
}

}  // namespace

void Engine::ExecData(const uint8_t* block, int fn) {
  switch (ToFn(fn)) {
    case Fn::Assign: {
      const auto r = RecordOf<AssignRec>(block);
      Value v;
      if (!Read(r.Source, v)) {
        Fail(r.ErrorLabel, "Assign: '" + VarText(r.Source) + "' has no value");
      } else if (!Write(r.Target, v)) {
        Fail(r.ErrorLabel, "Assign: '" + ToText(v) + "' does not convert for " + VarText(r.Target));
      }
      return;
    }
    case Fn::AssignPath: {
      const auto r = RecordOf<AssignPathRec>(block);
      const int type = r.PathType - kPathExport;
      int target = -1, source = -1;
      for (int row = 0; type >= 0 && type < kPathTypes && row < kPathRows; ++row) {
        const char* name = PrgHdr.Path[row][type].PathName;
        if (std::memcmp(name, r.TargetPath, 28) == 0) target = row;
        if (std::memcmp(name, r.SourcePath, 28) == 0) source = row;
      }
      if (target < 0 || source < 0) {
        Fault("Assign Path: a path variable is not declared");
        return;
      }
      pathTexts_[type * kPathRows + target] = pathTexts_[type * kPathRows + source];
      trace_.Begin("path")
          .Field("variable", Text(r.TargetPath))
          .Field("path", pathTexts_[type * kPathRows + target])
          .End();
      return;
    }
    case Fn::Calculate: {
      const auto r = RecordOf<CalculateRec>(block);
      const int slot = vars_.Find(r.Target);
      Value a, b;
      if (slot < 0 || !Read(r.Left, a) || !Read(r.Right, b)) {
        Fail(r.ErrorLabel, "Calculate: an operand has no value");
        return;
      }
      std::string why;
      const VType t = vars_.Type(slot);
      if (t == VType::String || r.Operator == 5) {
        if (!Write(r.Target, Value::OfString(ToText(a) + ToText(b)))) {
          Fail(r.ErrorLabel, "Calculate: the text does not convert for " + VarText(r.Target));
        }
        return;
      }
      if (t == VType::Long) {
        auto x = Convert(a, VType::Long), y = Convert(b, VType::Long);
        std::optional<int32_t> res;
        if (!x || !y) {
          why = "an operand is not a whole number";
        } else {
          res = LongOp(x->l, y->l, r.Operator, why);
        }
        if (!res) {
          Fail(r.ErrorLabel, "Calculate: " + why);
        } else {
          Write(r.Target, Value::OfLong(*res));
        }
        return;
      }
      auto x = ToNumber(a), y = ToNumber(b);
      std::optional<double> res;
      if (!x || !y) {
        why = "an operand is not a number";
      } else {
        res = DoubleOp(*x, *y, r.Operator, why);
      }
      if (!res) {
        Fail(r.ErrorLabel, "Calculate: " + why);
      } else {
        Write(r.Target, Value::OfDouble(*res));
      }
      return;
    }
    case Fn::GetDate:
    case Fn::GetTime:
    case Fn::GetDayOfWeek: {
      const auto r = RecordOf<FormatTargetRec>(block);
      const int64_t secs = ClockSeconds();
      const int64_t days = secs / 86400;
      std::string text;
      if (ToFn(fn) == Fn::GetDayOfWeek) {
        const int64_t monday0 = (days + 3) % 7;  // 1970-01-01 was a Thursday
        text = std::to_string(r.Format == 1 ? (monday0 + 1) % 7 + 1 : monday0 + 1);
      } else if (ToFn(fn) == Fn::GetDate) {
        // Civil date of the day number.
        int64_t z = days + 719468;
        const int64_t era = z / 146097;
        const int64_t doe = z - era * 146097;
        const int64_t yoe = (doe - doe / 1460 + doe / 36524 - doe / 146096) / 365;
        int64_t y = yoe + era * 400;
        const int64_t doy = doe - (365 * yoe + yoe / 4 - yoe / 100);
        const int64_t mp = (5 * doy + 2) / 153;
        const int64_t d = doy - (153 * mp + 2) / 5 + 1;
        const int64_t m = mp < 10 ? mp + 3 : mp - 9;
        if (m <= 2) ++y;
        const std::string yyyy = std::to_string(y), yy = Two(y), mm = Two(m), dd = Two(d);
        static const char* kFormats[] = {"YYYYMMDD", "YYYYMM", "YYYY", "YYMMDD", "YYMM",
                                         "YY",       "MMDD",   "MM",   "DD"};
        const int f = r.Format >= 0 && r.Format < 9 ? r.Format : 0;
        std::string_view fmt = kFormats[f];
        for (size_t i = 0; i < fmt.size();) {
          if (fmt.substr(i, 4) == "YYYY") {
            text += yyyy;
            i += 4;
          } else {
            text += fmt[i] == 'Y' ? yy : fmt[i] == 'M' ? mm : dd;
            i += 2;
          }
        }
      } else {
        const int64_t s = secs % 86400;
        const std::string hh = Two(s / 3600), mi = Two(s / 60 % 60), ss = Two(s % 60),
                          xx = Two(call_.Now() % 1000 / 10);
        static const char* kFormats[] = {"HHMMSSXX", "HHMMSS", "HHMM", "HH",     "MM",
                                         "SS",       "XX",     "SSXX", "MMSSXX", "MMSS"};
        const int f = r.Format >= 0 && r.Format < 10 ? r.Format : 0;
        std::string_view fmt = kFormats[f];
        for (size_t i = 0; i < fmt.size(); i += 2) {
          const char c = fmt[i];
          text += c == 'H' ? hh : c == 'M' ? mi : c == 'S' ? ss : xx;
        }
      }
      if (!Write(r.Target, Value::OfString(text))) {
        Fault(FunctionNameOf(fn) + ": '" + VarText(r.Target) + "' cannot hold " + text);
      }
      return;
    }
    case Fn::GetChannelNo: {
      const auto r = RecordOf<TargetRec>(block);
      if (!Write(r.Target, Value::OfLong(call_.Channel()))) {
        Fault("Get Channel No.: '" + VarText(r.Target) + "' is not a Long variable");
      }
      return;
    }
    default:
      ExecString(block, fn);
      return;
  }
}

void Engine::ExecString(const uint8_t* block, int fn) {
  switch (ToFn(fn)) {
    case Fn::TrimString: {
      const auto r = RecordOf<TrimStringRec>(block);
      std::string s;
      if (!ReadText(r.Source, s)) {
        Fault("Trim String: '" + VarText(r.Source) + "' has no value");
        return;
      }
      if (r.TrimAction != 1)
        s.erase(
            0, s.find_first_not_of(' ') == std::string::npos ? s.size() : s.find_first_not_of(' '));
      if (r.TrimAction != 0) {
        while (!s.empty() && s.back() == ' ') s.pop_back();
      }
      if (!Write(r.Target, Value::OfString(s))) Fault("Trim String: the target is not a String");
      return;
    }
    case Fn::LenString: {
      const auto r = RecordOf<LenStringRec>(block);
      std::string s;
      if (!ReadText(r.Source, s) ||
          !Write(r.Target, Value::OfLong(static_cast<int32_t>(s.size())))) {
        Fault("Len String: '" + VarText(r.Source) + "' or '" + VarText(r.Target) + "' is wrong");
      }
      return;
    }
    case Fn::RightString:
    case Fn::LeftString:
    case Fn::InString: {
      const auto r = RecordOf<StringOpRec>(block);
      std::string s;
      if (!ReadText(r.Source, s)) {
        Fault(FunctionNameOf(fn) + ": '" + VarText(r.Source) + "' has no value");
        return;
      }
      Value result;
      if (ToFn(fn) == Fn::InString) {
        std::string search;
        ReadText(r.Operand, search);
        const size_t at = s.find(search);
        result = Value::OfLong(at == std::string::npos ? 0 : static_cast<int32_t>(at + 1));
      } else {
        int32_t n = 0;
        if (!ReadLong(r.Operand, n) || n < 0) {
          Fault(FunctionNameOf(fn) + ": the count '" + VarText(r.Operand) +
                "' is not a whole number of 0 or more");
          return;
        }
        const size_t k = std::min<size_t>(static_cast<size_t>(n), s.size());
        result =
            Value::OfString(ToFn(fn) == Fn::LeftString ? s.substr(0, k) : s.substr(s.size() - k));
      }
      if (!Write(r.Target, result))
        Fault(FunctionNameOf(fn) + ": the target cannot hold the result");
      return;
    }
    default:
      Fault("illegal function number" + Str(static_cast<int64_t>(fn)));
      return;
  }
}

}  // namespace kq::sim
