#include "check/warnings.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <map>
#include <set>
#include <unordered_set>

#include "check/flow.h"
#include "check/record_fields.h"
#include "document/catalogue.h"
#include "document/functions.h"
#include "document/state.h"
#include "document/text.h"
#include "editor/compile_index.h"

namespace kq::check {

namespace {

constexpr int kVoiceNameWidth = 16;  // a voice file name field: 15 characters and the NUL

// The text of a field for a warning: up to its NUL, trailing blanks dropped. Unlike the
// compile's helper it accepts a field without its NUL (that is what some warnings are about).
std::string Shown(std::string_view field) {
  return RTrim(field.substr(0, std::min(field.find('\0'), field.size())));
}

// A field with no NUL whose last byte is not a blank: its text fills the whole field, so
// the name it was given may have been longer.
bool FillsField(std::string_view field) {
  return field.find('\0') == std::string_view::npos && !field.empty() && field.back() != ' ';
}

std::string LineText(int line) {
  return Str(int64_t{line});
}

class Checker {
 public:
  Checker(int count, const LabelIndex& labels, const LabelFieldTable& table, const FlowGraph& g)
      : count_(count), labels_(labels), table_(table), graph_(g) {}

  Findings Run() {
    CollectUses();
    UnusedDeclarations();
    CutDeclarations();
    Unreachable();
    for (int line = 0; line < count_; ++line) {
      UnusedLabel(line);
      Timeout(line);
      VoiceFiles(line);
      CutFields(line);
    }
    std::stable_sort(lines_.begin(), lines_.end(),
                     [](const Finding& a, const Finding& b) { return a.line < b.line; });
    out_.insert(out_.end(), lines_.begin(), lines_.end());
    return std::move(out_);
  }

 private:
  void Warn(int line, const char* code, std::string message) {
    (line < 0 ? out_ : lines_).push_back({Severity::Warning, line, code, std::move(message)});
  }

  // ---- What the lines use.
  void CollectUses() {
    std::vector<int> offsets;
    std::vector<PathField> paths;
    for (int line = 0; line < count_; ++line) {
      const int f = LineTable[line].LineFuncNo;
      const uint8_t* rec = FuncBlock[line];
      offsets.clear();
      UsedVarOffsets(f, rec, offsets);
      for (int o : offsets) usedVars_.insert(FieldKey<32>(FieldAt(rec, o, 32)));
      paths.clear();
      PathFields(f, rec, paths);
      for (const PathField& p : paths) {
        usedPaths_.insert({p.type, std::string(FieldAt(rec, p.offset, 28))});
      }
      const int t = TableNameOffset(f);
      if (t >= 0) usedTables_.insert(FieldKey<16>(FieldAt(rec, t, 16)));
      for (const LabelField& field : table_.Of(f)) {
        const std::string_view name = FieldAt(rec, field.offset, 16);
        if (!FieldEmpty(name)) jumpedTo_.insert(FieldKey<16>(name));
      }
    }
    // The columns of a table that a line names bind their variables.
    for (const TableEntry& t : PrgHdr.Table) {
      if (FieldEmpty(View(t.TableName)) || !usedTables_.count(FieldKey<16>(View(t.TableName)))) {
        continue;
      }
      for (const VarRef& c : t.Column) {
        usedVars_.insert(FieldKey<32>(std::string_view(reinterpret_cast<const char*>(&c), 32)));
      }
    }
  }

  void UnusedDeclarations() {
    for (const VarRef& v : PrgHdr.Variable) {
      if (FieldEmpty(View(v.VarRefName))) continue;
      if (usedVars_.count(FieldKey<32>(std::string_view(reinterpret_cast<const char*>(&v), 32)))) {
        continue;
      }
      Warn(-1, "unused-variable",
           "Variable '" + Shown(View(v.VarRefName)) + "' is declared but no line uses it.");
    }
    for (int type = 0; type < kPathTypes; ++type) {
      for (int row = 0; row < kPathRows; ++row) {
        const PathEntry& e = PrgHdr.Path[row][type];
        if (FieldEmpty(View(e.PathName))) continue;
        if (usedPaths_.count({kPathExport + type, std::string(View(e.PathName))})) continue;
        Warn(-1, "unused-path",
             RTrim(Row(PathTypeNames[type])) + " path variable '" + Shown(View(e.PathName)) +
                 "' is declared but no line uses it.");
      }
    }
    for (const TableEntry& t : PrgHdr.Table) {
      if (FieldEmpty(View(t.TableName)) || usedTables_.count(FieldKey<16>(View(t.TableName)))) {
        continue;
      }
      Warn(-1, "unused-table",
           "Database table '" + Shown(View(t.TableName)) + "' is declared but no line uses it.");
    }
  }

  void CutDeclarations() {
    for (const VarRef& v : PrgHdr.Variable) {
      if (FillsField(View(v.VarRefName))) Cut(-1, "Variable name", View(v.VarRefName));
    }
    for (int type = 0; type < kPathTypes; ++type) {
      for (int row = 0; row < kPathRows; ++row) {
        const PathEntry& e = PrgHdr.Path[row][type];
        if (FillsField(View(e.PathName))) Cut(-1, "Path variable name", View(e.PathName));
        if (FillsField(View(e.PathText))) Cut(-1, "Path", View(e.PathText));
      }
    }
    for (const TableEntry& t : PrgHdr.Table) {
      if (FillsField(View(t.TableName))) Cut(-1, "Table name", View(t.TableName));
    }
  }

  void Cut(int line, const std::string& what, std::string_view field) {
    std::string where = line < 0 ? std::string() : " in line" + LineText(line);
    Warn(line, "name-cut-short",
         what + " '" + Shown(field) + "'" + where + " fills its field of" +
             Str(int64_t{static_cast<int64_t>(field.size())}) +
             " characters without its end: the name was cut short.");
  }

  // ---- Lines that no path from line 0 reaches, one warning per run of lines.
  void Unreachable() {
    const std::vector<bool> seen = Reachable(graph_);
    for (int line = 0; line < count_;) {
      if (seen[static_cast<size_t>(line)]) {
        ++line;
        continue;
      }
      int end = line;
      bool remarksOnly = true;
      while (end < count_ && !seen[static_cast<size_t>(end)]) {
        if (LineTable[end].LineFuncNo != ToInt(Fn::Remark)) remarksOnly = false;
        ++end;
      }
      if (!remarksOnly) {  // a block of remarks is a comment, not dead code
        Warn(line, "unreachable-line",
             end - line == 1
                 ? "Line" + LineText(line) + " is never reached."
                 : "Lines" + LineText(line) + " to" + LineText(end - 1) + " are never reached.");
      }
      line = end;
    }
  }

  void UnusedLabel(int line) {
    const std::string_view label = View(LineTable[line].LineLabel);
    if (FieldEmpty(label) || jumpedTo_.count(FieldKey<16>(label))) return;
    Warn(line, "unused-label",
         "Label '" + Shown(label) + "' of line" + LineText(line) + " is never jumped to.");
  }

  // ---- Timeouts of Get Keys and Wait for Key.

  // Where a jump to `line` really goes on: remarks are passed and Gotos followed.
  int Effective(int line) const {
    for (int steps = 0; steps < 64 && line >= 0 && line < count_; ++steps) {
      const int f = LineTable[line].LineFuncNo;
      if (f == ToInt(Fn::Remark)) {
        ++line;
      } else if (f == ToInt(Fn::Goto)) {
        line = labels_.LastLine(FieldAt(FuncBlock[line], 0, 16));
      } else {
        return line;
      }
    }
    return line;
  }

  void Timeout(int line) {
    const int f = LineTable[line].LineFuncNo;
    int offset = -1;
    if (f == ToInt(Fn::GetKeys)) offset = static_cast<int>(offsetof(GetKeysRec, TimeoutLabel));
    if (f == ToInt(Fn::WaitForKey))
      offset = static_cast<int>(offsetof(WaitForKeyRec, KeyLabel)) + 16 * 18;
    if (offset < 0) return;
    const std::string_view label = FieldAt(FuncBlock[line], offset, 16);
    const int target = labels_.LastLine(label);
    if (target < 0) return;  // a fault of its own
    const int to = Effective(target);
    if (to == line) {
      Warn(line, "timeout-nowhere",
           "The timeout of line" + LineText(line) +
               " leads back to the same line: a caller "
               "who presses nothing waits for ever.");
    } else if (f == ToInt(Fn::GetKeys) && line + 1 < count_ && to == Effective(line + 1)) {
      Warn(line, "timeout-nowhere",
           "The timeout of line" + LineText(line) +
               " leads where the keys read lead: a "
               "timeout cannot be told from an answer.");
    }
  }

  // ---- Voice files named by a line, looked for in their path's folder.

  struct Folder {
    bool exists = false;
    std::set<std::string> names;
  };

  const Folder& FolderOf(const std::string& path) {
    auto it = folders_.find(path);
    if (it != folders_.end()) return it->second;
    Folder f;
    std::error_code ec;
    const std::filesystem::path dir(path);
    if (std::filesystem::is_directory(dir, ec)) {
      f.exists = true;
      for (auto entry = std::filesystem::directory_iterator(dir, ec);
           !ec && entry != std::filesystem::directory_iterator(); entry.increment(ec)) {
        f.names.insert(entry->path().filename().string());
      }
    }
    return folders_.emplace(path, std::move(f)).first->second;
  }

  // The folder of the voice path variable of that name; empty when none is declared.
  static std::string VoiceFolder(std::string_view name28) {
    for (int row = 0; row < kPathRows; ++row) {
      const PathEntry& e = PrgHdr.Path[row][kPathVoice - kPathExport];
      if (!FieldEmpty(View(e.PathName)) && View(e.PathName) == name28)
        return Shown(View(e.PathText));
    }
    return {};
  }

  void VoiceFile(int line, std::string_view pathName, std::string_view file16) {
    if (FieldEmpty(file16)) return;
    const std::string folder = VoiceFolder(pathName);
    if (folder.empty()) return;  // an undeclared path is a fault of its own
    const std::string name = Shown(file16);
    const Folder& f = FolderOf(folder);
    if (f.names.count(name)) return;
    if (name.size() == kVoiceNameWidth - 1) {
      auto longer = f.names.lower_bound(name);
      if (longer != f.names.end() && longer->compare(0, name.size(), name) == 0) {
        Warn(line, "name-cut-short",
             "Voice file '" + name + "' in line" + LineText(line) + " is cut short: the folder '" +
                 folder + "' holds '" + *longer + "'.");
        return;
      }
    }
    Warn(line, "missing-voice-file",
         "Voice file '" + name + "' in line" + LineText(line) + " is not in the folder '" + folder +
             "' of path '" + Shown(pathName) + "'.");
  }

  void VoiceFiles(int line) {
    const int f = LineTable[line].LineFuncNo;
    const uint8_t* rec = FuncBlock[line];
    if (f == ToInt(Fn::Voice)) {
      const std::string_view path = FieldAt(rec, offsetof(VoiceRec, VoicePath), 28);
      for (int i = 0; i < 5; ++i) {
        VoiceFile(line, path,
                  FieldAt(rec, static_cast<int>(offsetof(VoiceRec, VoiceFile)) + 16 * i, 16));
      }
    } else if (f == ToInt(Fn::SayNumber)) {
      for (int i = 0; i < 2; ++i) {
        if (I32At(rec, static_cast<int>(offsetof(SayNumberRec, PlayFlag)) + 4 * i) == 0) continue;
        VoiceFile(
            line, FieldAt(rec, static_cast<int>(offsetof(SayNumberRec, SayPath)) + 28 * i, 28),
            FieldAt(rec, static_cast<int>(offsetof(SayNumberRec, SayVoiceFile)) + 16 * i, 16));
      }
    }
  }

  // ---- Names in a line's fields that fill them.
  void CutFields(int line) {
    const int f = LineTable[line].LineFuncNo;
    const uint8_t* rec = FuncBlock[line];
    if (FillsField(View(LineTable[line].LineLabel)))
      Cut(line, "Label", View(LineTable[line].LineLabel));
    for (const LabelField& field : table_.Of(f)) {
      const std::string_view name = FieldAt(rec, field.offset, 16);
      if (FillsField(name)) Cut(line, "Label", name);
    }
    std::vector<int> vars;
    UsedVarOffsets(f, rec, vars);
    for (int o : vars) {
      if (FillsField(FieldAt(rec, o + 4, 28))) Cut(line, "Variable name", FieldAt(rec, o + 4, 28));
    }
    std::vector<PathField> paths;
    PathFields(f, rec, paths);
    for (const PathField& p : paths) {
      if (FillsField(FieldAt(rec, p.offset, 28))) {
        Cut(line, "Path variable name", FieldAt(rec, p.offset, 28));
      }
    }
    const int t = TableNameOffset(f);
    if (t >= 0 && FillsField(FieldAt(rec, t, 16))) Cut(line, "Table name", FieldAt(rec, t, 16));
    if (f == ToInt(Fn::Voice)) {
      for (int i = 0; i < 5; ++i) {
        const std::string_view file =
            FieldAt(rec, static_cast<int>(offsetof(VoiceRec, VoiceFile)) + 16 * i, 16);
        if (FillsField(file)) Cut(line, "Voice file", file);
      }
    }
  }

  int count_;
  const LabelIndex& labels_;
  const LabelFieldTable& table_;
  const FlowGraph& graph_;
  std::unordered_set<FieldKey<32>, FieldKeyHash> usedVars_;
  std::set<std::pair<int32_t, std::string>> usedPaths_;
  std::unordered_set<FieldKey<16>, FieldKeyHash> usedTables_;
  std::unordered_set<FieldKey<16>, FieldKeyHash> jumpedTo_;
  std::map<std::string, Folder> folders_;
  Findings out_;
  Findings lines_;
};

}  // namespace

Findings Warnings(int lineCount, const LabelIndex& labels, const LabelFieldTable& table,
                  const FlowGraph& graph) {
  return Checker(lineCount, labels, table, graph).Run();
}

}  // namespace kq::check
