// Save Part staging and InsertFile.
//
// InsertFile checks everything before it changes the document: the file is read whole
// and must be a complete 3.10 file, the declarations must merge, and the lines must fit
// in the 10,001 of the stores. That last check has no message of its own: like the
// array bound it stands for, it goes to HandleDiskError as run-time error 9, which shows
// no box and asks to raise the error again; here that ends the command with nothing
// more shown and the document as it was.
#include "document/merge.h"

#include <cstddef>
#include <cstring>
#include <string>
#include <vector>

#include "document/byte_reader.h"
#include "document/disk_error.h"
#include "document/document.h"
#include "document/field_empty.h"
#include "document/file.h"
#include "document/file_common.h"
#include "document/function_table.h"
#include "document/functions.h"
#include "document/kqx_format.h"
#include "document/state.h"
#include "document/text.h"
#include "ui/model/list_controls.h"
#include "ui/platform/platform.h"

namespace kq {

namespace {

bool Named(const VarRef& v) {
  return !EmptyField(v.VarRefName);
}
template <size_t N>
bool Named(const char (&field)[N]) {
  return !EmptyField(field);
}
template <size_t N>
bool SameField(const char (&a)[N], const char (&b)[N]) {
  return std::memcmp(a, b, N) == 0;
}

void Refuse(const std::string& text, const std::string& title) {
  ui::platform().MsgBox(text, ui::vbOKOnly | ui::vbExclamation, title);
}

std::string DataTypeName(int32_t type) {
  if (type < 0 || type > 2) return Str(int64_t{type});
  return Row(DataTypeNames[type]);
}

// Which of the document's variables have a name, worked out once per command: the
// checks compare every pair of the two tables, and a blank entry is only known blank
// after all of its bytes, so the pairs walk the named entries only.
struct NamedVariables {
  bool named[kMaxVariables];
  std::vector<int> indexes;  // the named entries
  NamedVariables() {
    for (int i = 0; i < kMaxVariables; ++i) {
      named[i] = Named(PrgHdr.Variable[i]);
      if (named[i]) indexes.push_back(i);
    }
  }
  void Add(int i) {
    named[i] = true;
    indexes.push_back(i);
  }
};

// Which of the document's path variables and tables have a name and a path text, worked
// out once for the checks, which change nothing.
struct NamedDeclarations {
  bool pathText[kPathTypes][kPathRows];
  bool pathName[kPathTypes][kPathRows];
  bool table[kMaxTables];
  NamedDeclarations() {
    for (int t = 0; t < kPathTypes; ++t) {
      for (int r = 0; r < kPathRows; ++r) {
        pathText[t][r] = Named(PrgHdr.Path[r][t].PathText);
        pathName[t][r] = Named(PrgHdr.Path[r][t].PathName);
      }
    }
    for (int i = 0; i < kMaxTables; ++i) table[i] = Named(PrgHdr.Table[i].TableName);
  }
};

// Whether the document has an entry with the same name.
bool HasVariable(const NamedVariables& doc, const VarRef& v) {
  for (int i : doc.indexes) {
    if (SameField(PrgHdr.Variable[i].VarRefName, v.VarRefName)) return true;
  }
  return false;
}
bool HasPath(int type, const PathEntry& e) {
  for (int r = 0; r < kPathRows; ++r) {
    const PathEntry& d = PrgHdr.Path[r][type];
    if (Named(d.PathName) && SameField(d.PathName, e.PathName)) return true;
  }
  return false;
}
bool HasPath(const NamedDeclarations& doc, int type, const PathEntry& e) {
  for (int r = 0; r < kPathRows; ++r) {
    if (doc.pathName[type][r] && SameField(PrgHdr.Path[r][type].PathName, e.PathName)) {
      return true;
    }
  }
  return false;
}
bool HasTable(const NamedDeclarations& doc, const TableEntry& t) {
  for (int i = 0; i < kMaxTables; ++i) {
    if (doc.table[i] && SameField(PrgHdr.Table[i].TableName, t.TableName)) return true;
  }
  return false;
}

// Steps 4 to 9: every refusal of the declarations, in order. False after a box.
bool DeclarationsMerge() {
  const NamedVariables doc;
  const NamedDeclarations declared;
  for (const VarRef& c : CopyHdr.Variable) {
    if (!Named(c)) continue;
    for (int i : doc.indexes) {
      const VarRef& d = PrgHdr.Variable[i];
      if (SameField(d.VarRefName, c.VarRefName) && d.VarRefType != c.VarRefType) {
        Refuse("Variable " + Text(c.VarRefName) + " is defined as " + DataTypeName(d.VarRefType) +
                   " and " + DataTypeName(c.VarRefType) + " respectively.",
               "Variable Error");
        return false;
      }
    }
  }

  int variables = 0;
  variables += static_cast<int>(doc.indexes.size());
  for (const VarRef& c : CopyHdr.Variable) {
    variables += Named(c) && !HasVariable(doc, c) ? 1 : 0;
  }
  if (variables > kMaxVariables) {
    Refuse("Exceeded maximum number of allowed variables, which are" + Str(int64_t{kMaxVariables}) +
               ".",
           "Variable Error");
    return false;
  }

  for (int t = 0; t < kPathTypes; ++t) {
    for (int r = 0; r < kPathRows; ++r) {
      const PathEntry& c = CopyHdr.Path[r][t];
      if (!Named(c.PathText)) continue;
      for (int q = 0; q < kPathRows; ++q) {
        const PathEntry& d = PrgHdr.Path[q][t];
        if (declared.pathText[t][q] && SameField(d.PathName, c.PathName) &&
            !SameField(d.PathText, c.PathText)) {
          Refuse("Path variable " + Text(c.PathName) + " is defined as " + Text(d.PathText) +
                     " and " + Text(c.PathText) + " respectively.",
                 "Path Variable Error");
          return false;
        }
      }
    }
  }

  for (int t = 0; t < kPathTypes; ++t) {
    int paths = 0;
    for (int r = 0; r < kPathRows; ++r) paths += declared.pathName[t][r] ? 1 : 0;
    for (int r = 0; r < kPathRows; ++r) {
      const PathEntry& c = CopyHdr.Path[r][t];
      paths += Named(c.PathName) && !HasPath(declared, t, c) ? 1 : 0;
    }
    if (paths > kPathRows) {
      Refuse("Exceeded maximum number of allowed path variables, which are" +
                 Str(int64_t{kPathRows}) + ".",
             "Variable Error");
      return false;
    }
  }

  // A table that both declare is refused, even when both hold the same columns.
  for (const TableEntry& c : CopyHdr.Table) {
    if (Named(c.TableName) && HasTable(declared, c)) {
      Refuse("Database table " + Text(c.TableName) + " have different variables defined in field" +
                 Str(int64_t{1}),
             "Database Table Error");
      return false;
    }
  }

  int tables = 0;
  for (bool named : declared.table) tables += named ? 1 : 0;
  for (const TableEntry& c : CopyHdr.Table) {
    tables += Named(c.TableName) && !HasTable(declared, c) ? 1 : 0;
  }
  if (tables > kMaxTables) {
    Refuse("Exceeded maximum number of allowed database tables, which are" +
               Str(int64_t{kMaxTables}) + ".",
           "Database Table Error");
    return false;
  }
  return true;
}

// Steps 10 to 12: new declarations go to the first free entries; nothing is re-sorted.
void MergeDeclarations() {
  NamedVariables doc;
  int free = 0;
  for (const VarRef& c : CopyHdr.Variable) {
    if (!Named(c) || HasVariable(doc, c)) continue;
    while (free < kMaxVariables && doc.named[free]) ++free;
    if (free == kMaxVariables) break;  // cannot happen: the count was checked
    PrgHdr.Variable[free] = c;
    doc.Add(free);
  }
  for (int t = 0; t < kPathTypes; ++t) {
    for (int r = 0; r < kPathRows; ++r) {
      const PathEntry& c = CopyHdr.Path[r][t];
      if (!Named(c.PathName) || HasPath(t, c)) continue;
      for (int q = 0; q < kPathRows; ++q) {
        if (!Named(PrgHdr.Path[q][t].PathName)) {
          PrgHdr.Path[q][t] = c;
          break;
        }
      }
    }
  }
  for (const TableEntry& c : CopyHdr.Table) {
    if (!Named(c.TableName)) continue;
    for (TableEntry& d : PrgHdr.Table) {
      if (!Named(d.TableName)) {
        d = c;
        break;
      }
    }
  }
}

// Steps 13 to 15: the new DisplayLines and lines go in before `position`; the later
// lines move up in one pass, each block by its record length only.
void MergeLines(ByteReader& in, int position, int count) {
  ui::ListBox& list = EditList();
  const int before = list.ListCount();

  std::vector<std::string> items(static_cast<size_t>(count));
  for (int k = 0; k < count; ++k) {
    items[k].assign(reinterpret_cast<const char*>(in.Bytes(kDisplayLineWidth)), kDisplayLineWidth);
    SetLineNumber(items[k], position + k);
  }
  list.InsertItems(position, std::move(items));
  for (int i = position + count; i < list.ListCount(); ++i) {
    std::string text = list.List(i);
    SetLineNumber(text, i);
    list.SetList(i, std::move(text));
  }

  for (int j = before - 1; j >= position && count > 0; --j) {
    LineTable[j + count] = LineTable[j];
    CopyFuncParm(j + count, j, LineTable[j].LineFuncNo);
  }
  for (int k = 0; k < count; ++k) {
    ProgramLine& line = LineTable[position + k];
    ReadProgramLine(in, line);
    const int funcNo = line.LineFuncNo;
    in.Read(WorkRecord.Image(funcNo), static_cast<size_t>(kCatalogueLength[funcNo]));
    FuncNo = static_cast<int16_t>(funcNo);
    FuncLabel = RTrim(View(line.LineLabel));
    FuncName.assign(line.LineFuncName, sizeof line.LineFuncName);
    UpdateFuncParm(position + k, funcNo);
  }
  PrgHdr.LineCount = static_cast<int16_t>(before + count);
}

}  // namespace

namespace {

// The lines of a range as a set; empty when the range is.
std::vector<int> RangeLines(int firstLine, int lastLine) {
  std::vector<int> lines;
  for (int i = firstLine; i <= lastLine; ++i) lines.push_back(i);
  return lines;
}

}  // namespace

bool VarUsedInLines(const VarRef& v, int firstLine, int lastLine) {
  return VarUsedInLines(v, RangeLines(firstLine, lastLine));
}

bool PathUsedInLines(int32_t pathType, std::string_view name28, int firstLine, int lastLine) {
  return PathUsedInLines(pathType, name28, RangeLines(firstLine, lastLine));
}

void StagePartVariables(int firstLine, int lastLine) {
  StagePartVariables(RangeLines(firstLine, lastLine));
}

void StagePartPaths(int firstLine, int lastLine) {
  StagePartPaths(RangeLines(firstLine, lastLine));
}

bool VarUsedInLines(const VarRef& v, const std::vector<int>& lines) {
  if (Named(PrgHdr.Table[0].TableName)) {
    for (const TableEntry& t : PrgHdr.Table) {
      if (!Named(t.TableName)) continue;
      for (const VarRef& c : t.Column) {
        if (Named(c) && VarRefEqual(c, v)) return true;
      }
    }
  }
  for (int i : lines) {
    if (FoundVarFunc(i, v)) return true;
  }
  return false;
}

bool PathUsedInLines(int32_t pathType, std::string_view name28, const std::vector<int>& lines) {
  for (int i : lines) {
    if (FoundPathFunc(i, pathType, name28)) return true;
  }
  return false;
}

void StagePartVariables(const std::vector<int>& lines) {
  int j = 0;
  for (int i = 0; i < kMaxVariables; ++i) {
    CopyHdr.Variable[i] = BlankVarRef;
    const VarRef& v = PrgHdr.Variable[i];
    if (Named(v) && VarUsedInLines(v, lines)) CopyHdr.Variable[j++] = v;
  }
}

void StagePartPaths(const std::vector<int>& lines) {
  for (int t = 0; t < kPathTypes; ++t) {
    int j = 0;
    for (int i = 0; i < kPathRows; ++i) {
      CopyHdr.Path[i][t] = BlankPathEntry;
      const PathEntry& e = PrgHdr.Path[i][t];
      if (Named(e.PathName) && PathUsedInLines(kPathExport + t, View(e.PathName), lines)) {
        CopyHdr.Path[j++][t] = e;
      }
    }
  }
}

bool TableUsedInLines(std::string_view name16, const std::vector<int>& lines) {
  for (int i : lines) {
    const FunctionInfo* info = FunctionOf(LineTable[i].LineFuncNo);
    if (info == nullptr || info->table < 0) continue;
    if (std::memcmp(FuncBlock[i] + info->table, name16.data(), 16) == 0) return true;
  }
  return false;
}

void InsertFile(std::string& title, std::string& fileName, int position) {
  const Hourglass hourglass;

  std::vector<uint8_t> bytes;
  if (!ReadFileForCommand("Insert", fileName, bytes)) return;
  InsertFileBytes(title, bytes, position);
}

void InsertFileBytes(std::string& title, const std::vector<uint8_t>& bytes, int position) {
  const Hourglass hourglass;

  KqxImage image;
  const KqxCheck check = CheckImage(bytes.data(), bytes.size(), image);
  if (check == KqxCheck::Empty) {
    FileErrorBox("File " + title + " doesn't exist.");
    return;
  }
  if (check == KqxCheck::WrongVersion ||
      (image.version != KqxVersion::Current && bytes.size() >= kVersionSize)) {
    FileErrorBox(VersionMessage(title, image.versionText) +
                 "\rYou can only insert a KQX file format with version: 3.10");
    return;
  }
  if (check == KqxCheck::Damaged) {
    FileErrorBox("File " + title + " is damaged.");
    return;
  }

  ByteReader in(bytes.data(), bytes.size());
  in.Skip(image.headerPos);
  ReadHeader(in, CopyHdr);
  if (!DeclarationsMerge()) return;

  ui::ListBox& list = EditList();
  const int before = list.ListCount();
  if (before + image.lineCount > kMaxLines) {
    HandleDiskError("Insert", kErrSubscript);
    return;
  }
  if (image.walk.illegalLine >= 0) {
    ui::ProgramError("Illegal Function Number " + Str(int64_t{image.walk.illegalFuncNo}) +
                     " in Global InsertFile.");
  }
  if (position < 0) position = 0;
  if (position > before) position = before;

  MergeDeclarations();
  in.Skip(image.displayPos - in.pos());
  MergeLines(in, position, image.lineCount);
  ChangedFlag = true;
  PrgHdr.CompiledFlag = 0;
}

}  // namespace kq
