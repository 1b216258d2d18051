#include "editor/listing.h"

#include <algorithm>
#include <ctime>

#include "document/catalogue.h"
#include "document/state.h"
#include "document/text.h"
#include "ui/model/list_controls.h"

namespace kq {

namespace {

template <size_t R, size_t W>
std::string TypeName(const char (&table)[R][W], int32_t index) {
  if (index < 0 || static_cast<size_t>(index) >= R) {
    throw ListingFault("Subscript out of range");
  }
  return Row(table[index]);
}

void WriteHeader(const RowSink& row, const std::string& dateTime) {
  row("Date/Time: " + dateTime);
  row("File Name: " + ApplFileName);
  // The program's version is the format version it writes.
  const std::string version = Text(PrgHdr.Version);
  row(std::string("Compiled : ") + (PrgHdr.CompiledFlag != 0 ? "Yes" : "No ") +
      std::string(11, ' ') + "KQEdit V" + version + ".00" + std::string(11, ' ') +
      "KQX File Format V" + version);
  row("");
}

void WriteVariables(const RowSink& row) {
  row("Declared Variables:");
  row("");
  size_t longest = 0;
  for (const VarRef& v : PrgHdr.Variable) {
    if (!FieldEmpty(View(v.VarRefName))) longest = std::max(longest, Text(v.VarRefName).size());
  }
  for (const VarRef& v : PrgHdr.Variable) {
    if (FieldEmpty(View(v.VarRefName))) continue;
    const std::string name = Text(v.VarRefName);
    row(name + std::string(longest - name.size(), ' ') + " As " +
        TypeName(DataTypeNames, v.VarRefType));
  }
  row("");
}

void WriteTables(const RowSink& row) {
  row("Declared Database Tables:");
  row("");
  for (const TableEntry& t : PrgHdr.Table) {
    if (FieldEmpty(View(t.TableName))) continue;
    row("Database table name = " + Text(t.TableName));
    for (int c = 0; c < kTableColumns; ++c) {
      const VarRef& v = t.Column[c];
      if (FieldEmpty(View(v.VarRefName))) continue;
      row("Variable(" + Format000(c + 1) + ") = " + Text(v.VarRefName) + " As " +
          TypeName(DataTypeNames, v.VarRefType));
    }
    row("");
  }
}

void WritePaths(const RowSink& row) {
  for (int type = 0; type < kPathTypes; ++type) {
    size_t longest = 0;
    bool any = false;
    for (int r = 0; r < kPathRows; ++r) {
      const PathEntry& e = PrgHdr.Path[r][type];
      if (FieldEmpty(View(e.PathName))) continue;
      any = true;
      longest = std::max(longest, Text(e.PathName).size());
    }
    if (!any) continue;
    row("Declared " + Trim(Row(PathTypeNames[type])) + " Paths:");
    row("");
    for (int r = 0; r < kPathRows; ++r) {
      const PathEntry& e = PrgHdr.Path[r][type];
      if (FieldEmpty(View(e.PathName))) continue;
      const std::string name = Text(e.PathName);
      row(name + std::string(longest - name.size(), ' ') + " = " + Text(e.PathText));
    }
    row("");
  }
}

}  // namespace

void WriteListing(const RowSink& sink, const std::string& dateTime) {
  // A listing row is plain text: a NUL that a field or a name table row carries (the
  // unfilled outcome captions of Call Out, for one) comes out as a blank, in the text file
  // and so on the printer.
  const RowSink row = [&sink](const std::string& text) { sink(NulToBlank(text)); };
  WriteHeader(row, dateTime);
  WriteVariables(row);
  WriteTables(row);
  WritePaths(row);
  row("Voice/Response Application Code:");
  row("");
  const int count = EditList().ListCount();
  for (int line = 0; line < count; ++line) WriteLineRows(row, line);
}

std::string ListingText(const std::string& dateTime) {
  std::string text;
  WriteListing(
      [&](const std::string& r) {
        text += r;
        text += kRowEnd;
      },
      dateTime);
  return text;
}

std::string NowText() {
  const std::time_t t = std::time(nullptr);
  std::tm local{};
  localtime_r(&t, &local);
  char buf[32];
  std::strftime(buf, sizeof buf, "%Y-%m-%d %H:%M:%S", &local);
  return buf;
}

std::string ListingFileName(const std::string& applFileName) {
  const size_t keep = applFileName.size() >= 3 ? applFileName.size() - 3 : 0;
  return applFileName.substr(0, keep) + "TXT";
}

}  // namespace kq
