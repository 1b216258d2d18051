// The simulator's engine: runs the compiled document of the shared stores line by line,
// each line with the meaning its record gives, against one CallLine. It reads the
// document and never changes it; its variables, paths, counters and tables are its own.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "document/header.h"
#include "document/records.h"
#include "sim/call_line.h"
#include "sim/sandbox.h"
#include "sim/tables.h"
#include "sim/trace.h"
#include "sim/variables.h"

namespace kq::sim {

enum class EndReason { None, Hangup, End, Fault, Steps };
const char* ReasonName(EndReason r);

// "YYYY-MM-DD HH:MM:SS" as seconds since 1970-01-01 00:00:00; nullopt when it is no date.
std::optional<int64_t> ParseDateTime(const std::string& text);

struct EngineOptions {
  uint64_t seed = 1;
  int64_t maxSteps = 10'000'000;
  bool decodePrompts = false;                 // decode every prompt through the speech library
  int speechFormat = 0;                       // the format of ".vox" files (the editor's setting)
  std::string start = "2026-01-05 09:00:00";  // the date and time at 0 ms on the clock
  std::set<std::string> busyTables;           // Connect Table finds these busy
};

// Gosubs may nest this deep; one more takes the error label.
inline constexpr size_t kMaxGosubs = 64;

enum class StepStatus { Ran, Waiting, Ended };

class Engine {
 public:
  // The document must be compiled (CompiledFlag set): label targets are its line numbers.
  Engine(CallLine& line, Trace& trace, Tables& tables, const Sandbox& sandbox,
         EngineOptions options);

  // Runs the current line. Waiting: the line has nothing yet, the same line runs again.
  StepStatus Step();
  // Steps until the run ends.
  void Run();

  bool Ended() const { return reason_ != EndReason::None; }
  EndReason Reason() const { return reason_; }
  const std::string& Message() const { return message_; }
  int CurrentLine() const { return pc_; }
  int64_t Steps() const { return steps_; }
  const Variables& Vars() const { return vars_; }
  // Ends the run from outside (the Stop button): reason End.
  void Stop();
  // Called with the files found on disk each time prompts are played to a caller on the
  // line (a window plays them aloud).
  std::function<void(const std::vector<std::string>& files)> onPlay;

 private:
  // ---- moving on
  void Next() { pc_ = line_ + 1; }
  void Jump(int32_t target);
  // Goes to a named label and returns true; false (nothing done) when it is empty.
  bool Take(const LabelRef& label);
  bool Take(const char (&name)[16], int32_t target);
  // The last line that bears the label (the rule of compile's lookup), -1 when none.
  int LineOfLabel(const char (&name)[16]) const;
  // An error of this line: its error label, or the run ends with a fault.
  void Fail(const LabelRef& label, const std::string& message);
  void Fault(const std::string& message);
  // The caller hung up: the hangup label, or the run ends.
  void HungUp(const LabelRef* label);
  // Ends the run at this line (-1: the line running).
  void Finish(EndReason r, const std::string& message = {}, int at = -1);

  // ---- values
  bool Read(const VarRef& ref, Value& out);  // a variable's value or a constant
  bool ReadText(const VarRef& ref, std::string& out);
  bool ReadLong(const VarRef& ref, int32_t& out);
  // Stores a value in the variable, converted to its type; false when it does not fit.
  bool Write(const VarRef& target, const Value& v);
  std::string VarText(const VarRef& ref) const;  // the name or the constant's text

  // ---- the functions, by family
  void ExecFlow(const uint8_t* block, int fn);
  void ExecData(const uint8_t* block, int fn);
  void ExecString(const uint8_t* block, int fn);
  StepStatus ExecCall(const uint8_t* block, int fn);
  StepStatus ExecPrompt(const uint8_t* block, int fn);
  void ExecTable(const uint8_t* block, int fn);
  void ExecFile(const uint8_t* block, int fn);

  // ---- helpers of the families
  std::string PathText(int32_t type, const char* name28) const;
  bool PathDeclared(int32_t type, const char* name28) const;
  // Finds the prompt; empty with `missing` set when it is not there.
  std::string FindPrompt(const std::string& pathText, const std::string& file, std::string& why);
  int64_t PromptMs(const std::string& file);
  StepStatus PlayFiles(const std::vector<std::string>& files, bool disableHangup,
                       const LabelRef* hangup);
  void ExportLine(const VarExportRec& r);
  void RecordSound(const RecordSoundRec& r, StepStatus& status);
  std::string SayNumberFile(const std::string& pathText, const std::string& name, std::string& why);
  void LoadRecord(TableState& t, int64_t recno);
  std::vector<Value> RecordValues(TableState& t, bool& ok);
  bool Conditions(TableState& t, const TableWhereRec& r, std::vector<SqlCondition>& out,
                  std::string& why);
  void TraceDb(const char* op, const TableState& t, int64_t recno);
  int64_t ClockSeconds() const;
  static std::string FunctionNameOf(int fn);  // the start time plus the clock, seconds since 1970

  CallLine& call_;
  Trace& trace_;
  Tables& tables_;
  const Sandbox& sandbox_;
  EngineOptions options_;
  Variables vars_;
  std::vector<std::string> pathTexts_;  // [type * 20 + row], changed by Assign Path
  std::vector<int> returns_;            // Gosub's return lines
  std::string pendingKeys_;             // Get Keys' keys while its line waits
  std::mt19937_64 random_;
  int64_t startSeconds_ = 0;
  int64_t counter_ = 0;        // the sound file counter
  int64_t dailyDoneDay_ = -1;  // the day the daily goto was last taken
  int lineCount_ = 0;
  int pc_ = 0;    // the line to run next
  int line_ = 0;  // the line running
  int64_t steps_ = 0;
  bool waiting_ = false;  // the current line waits for its line: traced already
  EndReason reason_ = EndReason::None;
  std::string message_;
};

}  // namespace kq::sim
