// Reading the JSON text into a staged document, checking every member on the way: the
// open document is not touched here.
#include <cstring>
#include <unordered_map>

#include "document/catalogue.h"
#include "document/kqx_format.h"
#include "document/state.h"
#include "textform/format.h"
#include "textform/json_fields.h"
#include "textform/json_tree.h"
#include "textform/text_form.h"

namespace kq::textform {

namespace {

const JsonNode& ArrayMember(const JsonNode& root, const char* key, const Place& where) {
  const JsonNode& a = Member(root, key, where);
  if (!a.is_array()) throw Fault(Place(where, key), "expected an array");
  return a;
}

// Marks an index as taken; a second entry for it is a fault.
void Claim(std::vector<bool>& taken, int index, const Place& where) {
  if (taken[static_cast<size_t>(index)]) {
    throw Fault(where, std::to_string(index) + " is given twice");
  }
  taken[static_cast<size_t>(index)] = true;
}

void ReadVarEntry(const JsonNode& j, const Place& where, VarRef& v) {
  v.VarRefType = VarTypeFromJson(Member(j, "type", where), Place(where, "type"));
  TextFromJson(Member(j, "name", where), Place(where, "name"), v.VarRefName, sizeof v.VarRefName);
}

void ReadVariables(const JsonNode& list, const Place& where, ProgramHeader& h) {
  std::vector<bool> taken(kMaxVariables);
  for (size_t i = 0; i < list.size(); ++i) {
    const Place place(where, i);
    OnlyKnown(list[i], {"at", "type", "name"}, place);
    const int at =
        I32FromJson(Member(list[i], "at", place), Place(place, "at"), 0, kMaxVariables - 1);
    Claim(taken, at, Place(place, "at"));
    ReadVarEntry(list[i], place, h.Variable[at]);
  }
}

void ReadPaths(const JsonNode& list, const Place& where, ProgramHeader& h) {
  std::vector<bool> taken(kPathRows * kPathTypes);
  for (size_t i = 0; i < list.size(); ++i) {
    const Place place(where, i);
    OnlyKnown(list[i], {"row", "type", "name", "path"}, place);
    const int row =
        I32FromJson(Member(list[i], "row", place), Place(place, "row"), 0, kPathRows - 1);
    const JsonNode& type = Member(list[i], "type", place);
    if (!type.is_string() || type.Str().size() != 1 || type.Str()[0] < 'A' || type.Str()[0] > 'E') {
      throw Fault(Place(place, "type"), "expected one of \"A\", \"B\", \"C\", \"D\", \"E\"");
    }
    const int t = type.Str()[0] - 'A';
    Claim(taken, row * kPathTypes + t, place);
    PathEntry& p = h.Path[row][t];
    TextFromJson(Member(list[i], "name", place), Place(place, "name"), p.PathName,
                 sizeof p.PathName);
    TextFromJson(Member(list[i], "path", place), Place(place, "path"), p.PathText,
                 sizeof p.PathText);
  }
}

void ReadTables(const JsonNode& list, const Place& where, ProgramHeader& h) {
  std::vector<bool> taken(kMaxTables);
  for (size_t i = 0; i < list.size(); ++i) {
    const Place place(where, i);
    OnlyKnown(list[i], {"at", "name", "columns"}, place);
    const int at = I32FromJson(Member(list[i], "at", place), Place(place, "at"), 0, kMaxTables - 1);
    Claim(taken, at, Place(place, "at"));
    TableEntry& e = h.Table[at];
    TextFromJson(Member(list[i], "name", place), Place(place, "name"), e.TableName,
                 sizeof e.TableName);
    const JsonNode& columns = ArrayMember(list[i], "columns", place);
    std::vector<bool> used(kTableColumns);
    const Place columnsPlace(place, "columns");
    for (size_t c = 0; c < columns.size(); ++c) {
      const Place cplace(columnsPlace, c);
      OnlyKnown(columns[c], {"at", "type", "name"}, cplace);
      const int col =
          I32FromJson(Member(columns[c], "at", cplace), Place(cplace, "at"), 0, kTableColumns - 1);
      Claim(used, col, Place(cplace, "at"));
      ReadVarEntry(columns[c], cplace, e.Column[col]);
    }
  }
}

void ReadLine(const JsonNode& j, const Place& where,
              const std::unordered_map<std::string, int>& functions, StagedLine& line) {
  OnlyKnown(j, {"display", "label", "function", "funcName", "record"}, where);
  const JsonNode& function = Member(j, "function", where);
  const auto found =
      function.is_string() ? functions.find(std::string(function.Str())) : functions.end();
  if (found == functions.end()) {
    throw Fault(Place(where, "function"), "unknown function " + function.dump() +
                                              "; a function is named as the catalogue names it");
  }
  const int no = found->second;
  line.entry.LineFuncNo = static_cast<int16_t>(no);
  std::memcpy(line.entry.LineFuncName, FuncNames[no], sizeof line.entry.LineFuncName);
  if (const JsonNode* it = j.Find("funcName"); it != nullptr) {
    TextFromJson(*it, Place(where, "funcName"), line.entry.LineFuncName,
                 sizeof line.entry.LineFuncName);
  }
  std::memset(line.entry.LineLabel, ' ', sizeof line.entry.LineLabel);
  line.entry.LineLabel[0] = '\0';
  if (const JsonNode* it = j.Find("label"); it != nullptr) {
    TextFromJson(*it, Place(where, "label"), line.entry.LineLabel, sizeof line.entry.LineLabel);
  }
  const auto length = static_cast<size_t>(RecordLength[no]);
  const uint8_t* defaults = InitRecord.Image(no);
  line.record.assign(defaults, defaults + length);
  if (const JsonNode* it = j.Find("record"); it != nullptr) {
    RecordFromJson(*it, Place(where, "record"), *LayoutOf(ToFn(no)), line.record.data());
  }
  if (const JsonNode* it = j.Find("display"); it != nullptr) {
    std::string display(kDisplayLineWidth, ' ');
    DisplayFromJson(*it, Place(where, "display"), display.data(), kDisplayLineWidth);
    line.display = std::move(display);
  }
}

void Read(const JsonNode& root, StagedDocument& doc) {
  const Place top;
  OnlyKnown(root, {"format", "version", "compiled", "variables", "paths", "tables", "lines"}, top);
  const JsonNode& format = Member(root, "format", top);
  if (!format.is_string() || format.Str() != kFormatName) {
    throw Fault(Place(top, "format"),
                "expected " + Json(kFormatName).dump() + ", the text of this program");
  }
  ProgramHeader& h = *doc.header;
  TextFromJson(Member(root, "version", top), Place(top, "version"), h.Version, sizeof h.Version);
  if (std::memcmp(h.Version, kCurrentVersion, sizeof h.Version) != 0) {
    throw Fault(Place(top, "version"), "the text form is of version \"3.10\" files only");
  }
  h.CompiledFlag = CompiledFromJson(Member(root, "compiled", top), Place(top, "compiled"));
  for (VarRef& v : h.Variable) v = BlankVarRef;
  for (auto& row : h.Path) {
    for (PathEntry& p : row) p = BlankPathEntry;
  }
  const TableEntry blankTable = BlankTableEntry();
  for (TableEntry& t : h.Table) t = blankTable;
  ReadVariables(ArrayMember(root, "variables", top), Place(top, "variables"), h);
  ReadPaths(ArrayMember(root, "paths", top), Place(top, "paths"), h);
  ReadTables(ArrayMember(root, "tables", top), Place(top, "tables"), h);

  const JsonNode& lines = ArrayMember(root, "lines", top);
  if (lines.size() > static_cast<size_t>(kMaxLines)) {
    throw Fault(Place(top, "lines"), std::to_string(lines.size()) +
                                         " lines are more than a document holds (" +
                                         std::to_string(kMaxLines) + ")");
  }
  h.LineCount = static_cast<int16_t>(lines.size());
  std::unordered_map<std::string, int> functions;
  for (int no = 0; no < kFuncCount; ++no) {
    if (IsLiveFunction(no)) functions.emplace(FunctionName(no), no);
  }
  doc.lines.resize(lines.size());
  const Place linesPlace(top, "lines");
  for (size_t i = 0; i < lines.size(); ++i) {
    ReadLine(lines[i], Place(linesPlace, i), functions, doc.lines[i]);
  }
}

}  // namespace

bool ParseDocument(std::string_view json, StagedDocument& doc, ImportError& error) {
  JsonTree tree(json);
  if (std::string what; !tree.Parse(what)) {
    if (const size_t end = what.find("] ");
        what.rfind("[json.exception", 0) == 0 && end != std::string::npos) {
      what = what.substr(end + 2);
    }
    error = {"", "the JSON does not parse: " + what};
    return false;
  }
  try {
    Read(tree.Root(), doc);
  } catch (const Fault& f) {
    error = {f.place, f.what()};
    return false;
  }
  return true;
}

}  // namespace kq::textform
