#include "check/flow.h"

#include <cstddef>
#include <cstring>
#include <deque>
#include <map>

#include "document/catalogue.h"
#include "document/records.h"
#include "document/state.h"
#include "document/text.h"
#include "editor/compile_index.h"

namespace kq::check {

namespace {

// A keyword as the DisplayLine writes it: the tag's text without its "=" and padding.
std::string Keyword(std::string_view tag) {
  std::string k(tag.substr(0, tag.find('\0')));
  k = Trim(k);
  if (!k.empty() && k.back() == '=') k.pop_back();
  return k;
}

template <size_t W>
std::string Keyword(const char (&row)[W]) {
  return Keyword(std::string_view(row, W));
}

LabelField At(size_t offset, EdgeKind kind, const std::string& keyword, bool mandatory = false) {
  return {static_cast<int>(offset), kind, keyword, mandatory};
}
LabelField Out(size_t offset, const std::string& keyword) {
  return At(offset, EdgeKind::Outcome, keyword);
}

std::vector<LabelField> FieldsOf(Fn f) {
  switch (f) {
    case Fn::Assign:
      return {Out(offsetof(AssignRec, ErrorLabel), "E")};
    case Fn::Calculate:
      return {Out(offsetof(CalculateRec, ErrorLabel), "E")};
    case Fn::Condition:
      return {At(offsetof(ConditionRec, ThenLabel), EdgeKind::Then, "THEN", true),
              At(offsetof(ConditionRec, ElseLabel), EdgeKind::Else, "ELSE", false)};
    case Fn::CallOut: {
      std::vector<LabelField> v;
      for (int i = 0; i < 7; ++i) {
        v.push_back(Out(offsetof(CallOutRec, OutcomeLabel) + 16 * static_cast<size_t>(i),
                        Keyword(CallOutTags[i])));
      }
      return v;
    }
    case Fn::GetKeys:
      return {Out(offsetof(GetKeysRec, HangupLabel), "H"),
              Out(offsetof(GetKeysRec, ErrorLabel), "E"),
              Out(offsetof(GetKeysRec, TimeoutLabel), "T")};
    case Fn::Gosub:
      return {At(offsetof(GosubRec, Target), EdgeKind::Gosub, "", false),
              Out(offsetof(GosubRec, ErrorLabel), "E")};
    case Fn::Goto:
      return {At(offsetof(GotoRec, Target), EdgeKind::Goto, "", false)};
    case Fn::RecordSound:
      return {Out(offsetof(RecordSoundRec, HangupLabel), "H"),
              Out(offsetof(RecordSoundRec, ErrorLabel), "E"),
              Out(offsetof(RecordSoundRec, SilenceLabel), "S")};
    case Fn::Return:
      return {Out(offsetof(ReturnRec, ErrorLabel), "E")};
    case Fn::SayNumber:
      return {Out(offsetof(SayNumberRec, HangupLabel), "H")};
    case Fn::VariableExport:
      return {Out(offsetof(VarExportRec, ErrorLabel), "E")};
    case Fn::Voice:
      return {Out(offsetof(VoiceRec, HangupLabel), "H"), Out(offsetof(VoiceRec, ErrorLabel), "E")};
    case Fn::WaitForCall:
      return {Out(offsetof(WaitForCallRec, DailyLabel), "goto")};
    case Fn::WaitForKey: {
      std::vector<LabelField> v;
      for (int i = 0; i < 19; ++i) {
        v.push_back(At(offsetof(WaitForKeyRec, KeyLabel) + 16 * static_cast<size_t>(i),
                       EdgeKind::Key, Keyword(KeyTags[i])));
      }
      return v;
    }
    case Fn::SayFile:
      return {Out(offsetof(SayFileRec, HangupLabel), "H"),
              Out(offsetof(SayFileRec, ErrorLabel), "E")};
    case Fn::ConnectTable:
      return {Out(offsetof(ConnectTableRec, BusyLabel), "B"),
              Out(offsetof(ConnectTableRec, ErrorLabel), "E")};
    case Fn::DisconnectTable:
    case Fn::AddRecord:
    case Fn::EmptyTable:
      return {Out(offsetof(TableErrorRec, ErrorLabel), "E")};
    case Fn::DeleteRecord:
    case Fn::SelectRecords:
    case Fn::UpdateRecord:
      return {Out(offsetof(TableWhereRec, ErrorLabel), "E")};
    // Insert Record's second label is never resolved by compile: it leads nowhere.
    case Fn::InsertRecord:
      return {Out(offsetof(TableNavRec, ErrorLabel), "E")};
    case Fn::GetFirstRecord:
    case Fn::GetLastRecord:
      return {Out(offsetof(TableNavRec, ErrorLabel), "E"),
              Out(offsetof(TableNavRec, NoDataLabel), "ET")};
    case Fn::GetNextRecord:
    case Fn::GetPrevRecord:
      return {Out(offsetof(TableNavRec, ErrorLabel), "E"),
              Out(offsetof(TableNavRec, NoDataLabel), "ND")};
    case Fn::GetRecordNo:
    case Fn::GetNoOfRec:
      return {Out(offsetof(TableTargetRec, ErrorLabel), "E")};
    case Fn::DialNumber:
      return {Out(offsetof(DialNumberRec, NoDialToneLabel), "NDT"),
              Out(offsetof(DialNumberRec, ErrorLabel), "E")};
    case Fn::CheckPath:
      return {At(offsetof(CheckPathRec, CheckLabel), EdgeKind::Then, "THEN", false),
              At(offsetof(CheckPathRec, CheckLabel) + 16, EdgeKind::Else, "ELSE", false)};
    case Fn::CheckFile:
    case Fn::DeleteFile:
      return {At(offsetof(CheckFileRec, CheckLabel), EdgeKind::Then, "THEN", false),
              At(offsetof(CheckFileRec, CheckLabel) + 16, EdgeKind::Else, "ELSE", false)};
    case Fn::Run:
      return {Out(offsetof(RunRec, ErrorLabel), "E")};
    case Fn::CTBusConnect:
      return {Out(offsetof(CTBusRec, ErrorLabel), "E")};
    case Fn::Prototype: {
      std::vector<LabelField> v;
      for (int i = 0; i < 8; ++i) {
        v.push_back(Out(offsetof(PrototypeRec, ProtoLabel) + 16 * static_cast<size_t>(i),
                        "L" + std::to_string(i)));
      }
      return v;
    }
    default:
      return {};
  }
}

bool Empty16(const uint8_t* record, size_t offset) {
  return FieldEmpty(std::string_view(reinterpret_cast<const char*>(record + offset), 16));
}

}  // namespace

const char* EdgeKindName(EdgeKind kind) {
  switch (kind) {
    case EdgeKind::Next:
      return "next";
    case EdgeKind::Goto:
      return "goto";
    case EdgeKind::Gosub:
      return "gosub";
    case EdgeKind::Return:
      return "return";
    case EdgeKind::Then:
      return "then";
    case EdgeKind::Else:
      return "else";
    case EdgeKind::Key:
      return "key";
    case EdgeKind::Outcome:
      return "outcome";
  }
  return "";
}

LabelFieldTable::LabelFieldTable() : fields_(kFuncCount) {
  for (int f = 0; f < kFuncCount; ++f) {
    if (IsLiveFunction(f)) fields_[static_cast<size_t>(f)] = FieldsOf(ToFn(f));
  }
}

const std::vector<LabelField>& LabelFieldTable::Of(int funcNo) const {
  static const std::vector<LabelField> none;
  if (funcNo < 0 || funcNo >= kFuncCount) return none;
  return fields_[static_cast<size_t>(funcNo)];
}

bool FallsThrough(int funcNo, const uint8_t* record) {
  if (!IsLiveFunction(funcNo)) return false;
  switch (ToFn(funcNo)) {
    case Fn::Goto:
    case Fn::Gosub:  // comes back through the Return of the subroutine
    case Fn::Return:
      return false;
    case Fn::Condition:  // THEN always jumps; without ELSE a false condition goes on
      return Empty16(record, offsetof(ConditionRec, ElseLabel));
    case Fn::CheckPath:
      return Empty16(record, offsetof(CheckPathRec, CheckLabel)) ||
             Empty16(record, offsetof(CheckPathRec, CheckLabel) + 16);
    case Fn::CheckFile:
    case Fn::DeleteFile:
      return Empty16(record, offsetof(CheckFileRec, CheckLabel)) ||
             Empty16(record, offsetof(CheckFileRec, CheckLabel) + 16);
    default:
      return true;
  }
}

FlowGraph BuildFlow(int lineCount) {
  const LabelIndex labels(lineCount);
  const LabelFieldTable table;
  return BuildFlow(lineCount, labels, table);
}

namespace {

// The Return lines that the subroutine starting at `entry` reaches, a call inside it
// counted as coming back to the line behind it.
std::vector<int> ReturnsFrom(int entry, const FlowGraph& g,
                             const std::vector<std::vector<size_t>>& out) {
  std::vector<int> returns;
  std::vector<bool> seen(static_cast<size_t>(g.lines), false);
  std::deque<int> todo{entry};
  seen[static_cast<size_t>(entry)] = true;
  auto visit = [&](int to) {
    if (to < 0 || to >= g.lines || seen[static_cast<size_t>(to)]) return;
    seen[static_cast<size_t>(to)] = true;
    todo.push_back(to);
  };
  while (!todo.empty()) {
    const int x = todo.front();
    todo.pop_front();
    const int f = LineTable[x].LineFuncNo;
    if (f == ToInt(Fn::Return)) returns.push_back(x);
    if (f == ToInt(Fn::Gosub)) visit(x + 1);
    for (size_t e : out[static_cast<size_t>(x)]) {
      const Edge& edge = g.edges[e];
      if (edge.kind != EdgeKind::Gosub) visit(edge.to);
    }
  }
  return returns;
}

}  // namespace

FlowGraph BuildFlow(int lineCount, const LabelIndex& labels, const LabelFieldTable& table) {
  FlowGraph g;
  g.lines = lineCount;
  std::vector<bool> blockStart(static_cast<size_t>(lineCount), false);
  for (int line = 0; line < lineCount; ++line) {
    const int f = LineTable[line].LineFuncNo;
    const uint8_t* rec = FuncBlock[line];
    bool jumps = false;
    for (const LabelField& field : table.Of(f)) {
      const std::string_view name(reinterpret_cast<const char*>(rec + field.offset), 16);
      if (FieldEmpty(name)) continue;
      const int to = labels.LastLine(name);
      if (to < 0) continue;
      const bool plain = field.kind == EdgeKind::Goto || field.kind == EdgeKind::Gosub;
      g.edges.push_back({line, to, field.kind, plain ? std::string() : field.keyword});
      jumps = true;
    }
    const bool next = line + 1 < lineCount && FallsThrough(f, rec);
    if (next) g.edges.push_back({line, line + 1, EdgeKind::Next, {}});
    if (line == 0 || !FieldEmpty(View(LineTable[line].LineLabel))) {
      blockStart[static_cast<size_t>(line)] = true;
    }
    if ((jumps || !FallsThrough(f, rec)) && line + 1 < lineCount) {
      blockStart[static_cast<size_t>(line) + 1] = true;
    }
  }
  // The ways back: each Gosub's subroutine returns to the line behind the Gosub.
  std::vector<std::vector<size_t>> out(static_cast<size_t>(lineCount));
  for (size_t e = 0; e < g.edges.size(); ++e)
    out[static_cast<size_t>(g.edges[e].from)].push_back(e);
  std::map<int, std::vector<int>> returnsOf;  // by subroutine entry
  std::vector<Edge> back;
  for (const Edge& e : g.edges) {
    if (e.kind != EdgeKind::Gosub || e.from + 1 >= lineCount) continue;
    auto it = returnsOf.find(e.to);
    if (it == returnsOf.end()) it = returnsOf.emplace(e.to, ReturnsFrom(e.to, g, out)).first;
    for (int r : it->second) back.push_back({r, e.from + 1, EdgeKind::Return, {}});
  }
  g.edges.insert(g.edges.end(), back.begin(), back.end());
  for (int line = 0; line < lineCount; ++line) {
    if (blockStart[static_cast<size_t>(line)]) g.blockStarts.push_back(line);
  }
  return g;
}

std::vector<bool> Reachable(const FlowGraph& g) {
  std::vector<bool> seen(static_cast<size_t>(g.lines), false);
  if (g.lines == 0) return seen;
  std::vector<std::vector<int>> out(static_cast<size_t>(g.lines));
  for (const Edge& e : g.edges) out[static_cast<size_t>(e.from)].push_back(e.to);
  std::vector<int> todo{0};
  seen[0] = true;
  while (!todo.empty()) {
    const int x = todo.back();
    todo.pop_back();
    for (int to : out[static_cast<size_t>(x)]) {
      if (seen[static_cast<size_t>(to)]) continue;
      seen[static_cast<size_t>(to)] = true;
      todo.push_back(to);
    }
  }
  return seen;
}

}  // namespace kq::check
