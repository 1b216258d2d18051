#include "tests/editor/compile_literal.h"

#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include "document/state.h"
#include "document/text.h"
#include "ui/model/list_controls.h"
#include "ui/platform/platform.h"

namespace kq::test {

namespace {

int Count() {
  return EditList().ListCount();
}

uint8_t* Load(int line, int f) {
  std::memcpy(WorkRecord.Image(f), FuncBlock[line], static_cast<size_t>(RecordLength[f]));
  return WorkRecord.Image(f);
}

int32_t I32(const uint8_t* r, int o) {
  int32_t v;
  std::memcpy(&v, r + o, 4);
  return v;
}
void SetI32(uint8_t* r, int o, int32_t v) {
  std::memcpy(r + o, &v, 4);
}
std::string_view Fld(const uint8_t* r, int o, int w) {
  return std::string_view(reinterpret_cast<const char*>(r) + o, static_cast<size_t>(w));
}
VarRef VarOf(const uint8_t* r, int o) {
  VarRef v;
  std::memcpy(&v, r + o, 32);
  return v;
}

void Deselect() {
  ui::ListBox& l = EditList();
  for (int i = 0; i < l.ListCount(); ++i) {
    if (l.Selected(i)) l.SetSelected(i, false);
  }
}

void Fault(int line, const std::string& text, const std::string& title = "Compilation Error") {
  Deselect();
  EditList().SetSelected(line, true);
  ui::platform().MsgBox(text, 48, title);
}

bool VarDefinedWalk(const VarRef& v) {
  bool found = false;
  for (int i = 0; i < kMaxVariables; ++i) {
    const VarRef& e = PrgHdr.Variable[i];
    if (!FieldEmpty(View(e.VarRefName)) && RTrim(View(e.VarRefName)) == RTrim(View(v.VarRefName)) &&
        e.VarRefType == v.VarRefType) {
      found = true;
    }
  }
  return found;
}

bool DefVarFunc(int line, const VarRef& v) {
  switch (v.VarRefType) {
    case 0:
    case 1:
    case 2:
      if (VarDefinedWalk(v)) return true;
      Fault(line, "Variable '" + RTrimZ(View(v.VarRefName)) + "' in line" + Str(int64_t{line}) +
                      " is not defined or data type mismatch.");
      return false;
    case 8:
    case 9:
    case 10:
      return true;
    default:
      ui::ProgramError("Illegal variable type '" + NulToBlank(View(v.VarRefName)) + "' in line " +
                       Str(int64_t{line}) + " in Global DefinedVarMsgFunc.");
  }
}

bool DefVarDB(std::string_view table, int column, const VarRef& v) {
  switch (v.VarRefType) {
    case 0:
    case 1:
    case 2:
      if (VarDefinedWalk(v)) return true;
      ui::platform().MsgBox("Variable '" + RTrimZ(View(v.VarRefName)) + "' in database '" +
                                RTrimZ(table) + "' column" + Str(int64_t{column}) +
                                " is not defined.",
                            48, "Compilation Error");
      return false;
    case 8:
    case 9:
    case 10:
      return true;
    default:
      ui::ProgramError("Illegal variable type '" + NulToBlank(View(v.VarRefName)) +
                       "' in Global DefinedVarMsgDB.");
  }
}

bool DefPath(int line, int32_t type, std::string_view name) {
  if (type < 65 || type > 69) {
    ui::ProgramError("Illegal path variable type '" + NulToBlank(RTrim(name)) + "' with value " +
                     Num(type) + " in Global DefinedPathMsgVariable.");
  }
  bool found = false;
  for (int row = 0; row < 20; ++row) {
    const PathEntry& e = PrgHdr.Path[row][type - 65];
    if (!FieldEmpty(View(e.PathName)) && RTrim(View(e.PathName)) == RTrim(name)) found = true;
  }
  if (found) return true;
  Fault(line, "Path variable '" + RTrimZ(name) + "' is not defined.");
  return false;
}

bool DefTable(int line, std::string_view name) {
  bool found = false;
  for (int t = 0; t < 50; ++t) {
    const TableEntry& e = PrgHdr.Table[t];
    if (!FieldEmpty(View(e.TableName)) && RTrim(View(e.TableName)) == RTrim(name)) found = true;
  }
  if (found) return true;
  Fault(line, "Database table name '" + RTrimZ(name) + "' in line" + Str(int64_t{line}) +
                  " is not defined.");
  return false;
}

bool LineNoWalk(std::string_view label, int32_t& lineNo, int line, bool inPlace) {
  bool found = false;
  for (int i = 0; i < Count(); ++i) {
    if (View(LineTable[i].LineLabel) == label && !FieldEmpty(View(LineTable[i].LineLabel))) {
      lineNo = i;
      found = true;
    }
  }
  if (!found) {
    Fault(line, "Label '" + RTrimZ(label) + "' not found in line" + Str(int64_t{line}),
          inPlace ? "Compilation Error" : "Compilation Error - GetLineNo");
  }
  return found;
}

struct VarRule {
  std::vector<int> offsets;
};

std::vector<int> VarOffsets(int f) {
  switch (f) {
    case 0:
      return {0, 32};
    case 2:
      return {0, 32, 64};
    case 3:
      return {0, 32};
    case 5:
      return {148};
    case 6:
    case 8:
    case 36:
    case 52:
      return {4};
    case 7:
    case 11:
    case 16:
    case 37:
    case 41:
      return {0};
    case 12:
    case 21:
    case 53:
      return {28};
    case 38:
    case 39:
      return {36};
    case 44:
      return {4, 36};
    case 45:
      return {0, 32};
    case 46:
    case 47:
    case 48:
      return {0, 32, 64};
    case 50:
    case 51:
      return {32};
    case 54:
      return {0, 32, 64, 96};
    case 55:
      return {64, 96, 128, 160, 192, 224, 256, 288};
    default:
      return {};
  }
}

bool PassVariables() {
  for (int t = 0; t < 50; ++t) {
    const TableEntry& e = PrgHdr.Table[t];
    if (FieldEmpty(View(e.TableName))) continue;
    for (int c = 0; c < 24; ++c) {
      if (FieldEmpty(View(e.Column[c].VarRefName))) continue;
      if (!DefVarDB(View(e.TableName), c + 1, e.Column[c])) return true;
    }
  }
  for (int line = 0; line < Count(); ++line) {
    const int f = LineTable[line].LineFuncNo;
    if (f < 0 || f > 55) {
      ui::ProgramError("Illegal Function Number" + Str(int64_t{f}) +
                       " in frmEdit - UnDefinedMsgVariables");
    }
    if (f == 17) {
      const uint8_t* r = Load(line, f);
      for (int i = 0; i <= 24; ++i) {
        if (!FieldEmpty(Fld(r, 32 * i + 4, 28)) && !DefVarFunc(line, VarOf(r, 32 * i))) return true;
      }
      if (!DefVarFunc(line, VarOf(r, 836))) return true;
    } else if (f == 19) {
      const uint8_t* r = Load(line, f);
      if (I32(r, 36) != 0 && !DefVarFunc(line, VarOf(r, 44))) return true;
      if (I32(r, 80) != 0 && !DefVarFunc(line, VarOf(r, 88))) return true;
    } else if (f == 27 || f == 29 || f == 34) {
      const uint8_t* r = Load(line, f);
      int t = -1;
      for (int k = 0; k < 50; ++k) {
        if (RTrim(View(PrgHdr.Table[k].TableName)) == RTrim(Fld(r, 0, 16))) t = k;
      }
      for (int i = 0; i <= 4; ++i) {
        const int32_t k = I32(r, 36 + 4 * i);
        if (k > 0) {
          if (t < 0 || k - 1 > 23) ui::ProgramError("Subscript out of range");
          if (!DefVarFunc(line, PrgHdr.Table[t].Column[k - 1])) return true;
          if (!DefVarFunc(line, VarOf(r, 76 + 32 * i))) return true;
        }
      }
    } else {
      const std::vector<int> offsets = VarOffsets(f);
      if (offsets.empty()) continue;
      const uint8_t* r = Load(line, f);
      for (int o : offsets) {
        if (!DefVarFunc(line, VarOf(r, o))) return true;
      }
    }
  }
  return false;
}

bool PassPaths() {
  for (int line = 0; line < Count(); ++line) {
    const int f = LineTable[line].LineFuncNo;
    if (f < 0 || f > 55) {
      ui::ProgramError("Illegal Function Number" + Str(int64_t{f}) +
                       " in frmEdit - UnDefinedPathMsgVariables");
    }
    std::vector<std::pair<int32_t, int>> checks;  // type, offset
    const uint8_t* r = nullptr;
    switch (f) {
      case 1:
        r = Load(line, f);
        checks = {{I32(r, 0), 4}, {I32(r, 0), 32}};
        break;
      case 12:
      case 21:
        r = Load(line, f);
        checks = {{66, 0}};
        break;
      case 16:
        r = Load(line, f);
        if (I32(r, 60) != 0) checks.push_back({68, 68});
        if (I32(r, 64) != 0) checks.push_back({68, 96});
        checks.push_back({67, 124});
        break;
      case 17:
        r = Load(line, f);
        checks = {{65, 808}};
        break;
      case 18:
        r = Load(line, f);
        checks = {{68, 0}};
        break;
      case 49:
      case 50:
      case 51:
        r = Load(line, f);
        checks = {{I32(r, 0), 4}};
        break;
      case 53:
        r = Load(line, f);
        checks = {{69, 0}};
        break;
      case 55:
        r = Load(line, f);
        for (int i = 0; i <= 3; ++i) checks.push_back({I32(r, 480), 484 + 28 * i});
        break;
      default:
        break;
    }
    for (auto [type, o] : checks) {
      if (!DefPath(line, type, Fld(r, o, 28))) return true;
    }
  }
  return false;
}

bool HasTable(int f) {
  return (f >= 24 && f <= 34) || f == 38 || f == 39 || f == 40 || f == 55;
}

bool PassDatabase() {
  for (int line = 0; line < Count(); ++line) {
    const int f = LineTable[line].LineFuncNo;
    if (f < 0 || f > 55 || !IsLiveFunction(f)) {
      ui::ProgramError("Illegal Function Number in frmEdit - UndefinedDatabase");
    }
    if (HasTable(f)) Load(line, f);
  }
  return false;
}

bool PassTables() {
  for (int line = 0; line < Count(); ++line) {
    const int f = LineTable[line].LineFuncNo;
    if (f < 0 || f > 55 || !IsLiveFunction(f)) {
      ui::ProgramError("Illegal Function Number in frmEdit - UndefinedDatabaseTables");
    }
    if (!HasTable(f)) continue;
    const uint8_t* r = Load(line, f);
    if (!DefTable(line, Fld(r, f == 55 ? 596 : 0, 16))) return true;
  }
  return false;
}

bool PassDuplicates() {
  for (int i = 0; i < Count(); ++i) {
    for (int j = i + 1; j < Count(); ++j) {
      if (View(LineTable[i].LineLabel) == View(LineTable[j].LineLabel) &&
          !FieldEmpty(View(LineTable[i].LineLabel))) {
        Fault(i, "Label '" + RTrimZ(View(LineTable[i].LineLabel)) + "' duplicated in line" +
                     Str(int64_t{i}) + " and" + Str(int64_t{j}));
        return true;
      }
    }
  }
  return false;
}

std::vector<int> RefOffsets(int f) {
  switch (f) {
    case 0:
      return {64};
    case 2:
      return {100};
    case 7:
      return {44, 64, 84};
    case 9:
      return {0, 20};
    case 10:
      return {0};
    case 12:
      return {88, 108, 128};
    case 14:
      return {4};
    case 16:
      return {40};
    case 17:
      return {868};
    case 18:
      return {112, 132};
    case 19:
      return {16};
    case 21:
      return {72, 92};
    case 24:
      return {20, 40};
    case 25:
    case 26:
    case 27:
    case 29:
    case 30:
    case 34:
    case 38:
    case 39:
    case 40:
      return {16};
    case 28:
    case 31:
    case 32:
    case 33:
      return {16, 36};
    case 37:
      return {36, 56};
    case 53:
      return {96};
    case 54:
      return {164};
    default:
      return {};
  }
}

struct ArrayRule {
  int names, lines, entries;
};

bool PassLabels() {
  for (int line = 0; line < Count(); ++line) {
    const int f = LineTable[line].LineFuncNo;
    if (f < 0 || f > 55 || !IsLiveFunction(f)) {
      ui::ProgramError("Illegal Function Number in frmEdit - UpdateLabels.");
    }
    const std::vector<int> refs = RefOffsets(f);
    if (!refs.empty()) {
      uint8_t* r = Load(line, f);
      for (int o : refs) {
        if (FieldEmpty(Fld(r, o, 16))) continue;
        int32_t n = 0;
        if (!LineNoWalk(Fld(r, o, 16), n, line, false)) return false;
        SetI32(r, o + 16, n);
      }
      std::memcpy(FuncBlock[line], r, static_cast<size_t>(RecordLength[f]));
      continue;
    }
    if (f == 5 || f == 20 || f == 55) {
      const ArrayRule a = f == 5    ? ArrayRule{0, 112, 7}
                          : f == 20 ? ArrayRule{0, 304, 19}
                                    : ArrayRule{320, 448, 8};
      uint8_t* r = Load(line, f);
      for (int i = 0; i < a.entries; ++i) {
        if (FieldEmpty(Fld(r, a.names + 16 * i, 16))) continue;
        int32_t n = 0;
        if (!LineNoWalk(Fld(r, a.names + 16 * i, 16), n, line, false)) return false;
        SetI32(r, a.lines + 4 * i, n);
      }
      std::memcpy(FuncBlock[line], r, static_cast<size_t>(RecordLength[f]));
      continue;
    }
    if (f == 3 || f == 49 || f == 50 || f == 51) {
      const int names = f == 3 ? 68 : f == 49 ? 32 : 64;
      const int lines = f == 3 ? 100 : f == 49 ? 64 : 96;
      uint8_t* r = Load(line, f);
      for (int i = 0; i < 2; ++i) {
        const std::string_view name = Fld(r, names + 16 * i, 16);
        const bool mayBeEmpty = f != 3 || i == 1;
        if (mayBeEmpty && FieldEmpty(name)) continue;
        int32_t n = I32(r, lines + 4 * i);
        if (!LineNoWalk(name, n, line, true)) return false;
        SetI32(r, lines + 4 * i, n);
      }
      std::memcpy(FuncBlock[line], r, static_cast<size_t>(RecordLength[f]));
    }
  }
  return true;
}

}  // namespace

bool LiteralCompile() {
  ui::platform().SetMousePointer(11);
  bool result = false;
  if (!PassVariables() && !PassPaths() && !PassDatabase() && !PassTables() && !PassDuplicates() &&
      PassLabels()) {
    result = true;
    ui::platform().SetMousePointer(0);
    ui::platform().MsgBox("Successfully compilation...", 48, "Compile Information");
  }
  ui::platform().SetMousePointer(0);
  return result;
}

}  // namespace kq::test
