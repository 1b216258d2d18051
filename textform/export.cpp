// Writing the open document as JSON text: the header members one to a line, then one line
// of text per program line, so that a change of one field is a change of one text line.
#include <cstring>

#include "document/catalogue.h"
#include "document/state.h"
#include "document/text.h"
#include "textform/codec.h"
#include "textform/format.h"
#include "textform/json_fields.h"
#include "textform/text_form.h"
#include "ui/model/list_controls.h"

namespace kq::textform {

namespace {

std::string Dump(const Json& j) {
  return j.dump(-1, ' ', false, Json::error_handler_t::strict);
}

// "name": [ items one to a line ]
void WriteList(std::string& out, const char* name, const std::vector<Json>& items, bool last) {
  out += "  \"";
  out += name;
  out += "\": [";
  for (size_t i = 0; i < items.size(); ++i) {
    out += i == 0 ? "\n    " : ",\n    ";
    out += Dump(items[i]);
  }
  out += items.empty() ? "]" : "\n  ]";
  out += last ? "\n" : ",\n";
}

std::vector<Json> Variables(const ProgramHeader& h) {
  std::vector<Json> items;
  for (int i = 0; i < kMaxVariables; ++i) {
    const VarRef& v = h.Variable[i];
    if (std::memcmp(&v, &BlankVarRef, sizeof v) == 0) continue;
    Json j = Json::object();
    j["at"] = i;
    j["type"] = VarTypeToJson(v.VarRefType);
    j["name"] = TextToJson(v.VarRefName, sizeof v.VarRefName);
    items.push_back(std::move(j));
  }
  return items;
}

std::vector<Json> Paths(const ProgramHeader& h) {
  std::vector<Json> items;
  for (int row = 0; row < kPathRows; ++row) {
    for (int type = 0; type < kPathTypes; ++type) {
      const PathEntry& p = h.Path[row][type];
      if (std::memcmp(&p, &BlankPathEntry, sizeof p) == 0) continue;
      Json j = Json::object();
      j["row"] = row;
      j["type"] = std::string(1, static_cast<char>('A' + type));
      j["name"] = TextToJson(p.PathName, sizeof p.PathName);
      j["path"] = TextToJson(p.PathText, sizeof p.PathText);
      items.push_back(std::move(j));
    }
  }
  return items;
}

std::vector<Json> Tables(const ProgramHeader& h) {
  const TableEntry blank = BlankTableEntry();
  std::vector<Json> items;
  for (int t = 0; t < kMaxTables; ++t) {
    const TableEntry& e = h.Table[t];
    if (std::memcmp(&e, &blank, sizeof e) == 0) continue;
    Json columns = Json::array();
    for (int c = 0; c < kTableColumns; ++c) {
      const VarRef& v = e.Column[c];
      if (std::memcmp(&v, &BlankVarRef, sizeof v) == 0) continue;
      Json col = Json::object();
      col["at"] = c;
      col["type"] = VarTypeToJson(v.VarRefType);
      col["name"] = TextToJson(v.VarRefName, sizeof v.VarRefName);
      columns.push_back(std::move(col));
    }
    Json j = Json::object();
    j["at"] = t;
    j["name"] = TextToJson(e.TableName, sizeof e.TableName);
    j["columns"] = std::move(columns);
    items.push_back(std::move(j));
  }
  return items;
}

Json Line(int i) {
  const ProgramLine& entry = LineTable[i];
  std::string display = EditList().List(i);
  display.resize(kDisplayLineWidth, ' ');
  Json j = Json::object();
  j["display"] = DisplayToJson(display.data(), kDisplayLineWidth);
  j["label"] = TextToJson(entry.LineLabel, sizeof entry.LineLabel);
  const int no = entry.LineFuncNo;
  const RecordLayout* layout = IsLiveFunction(no) ? LayoutOf(ToFn(no)) : nullptr;
  if (layout == nullptr) {
    j["function"] = no;  // no document holds one; import refuses it
    return j;
  }
  j["function"] = FunctionName(no);
  if (std::memcmp(entry.LineFuncName, FuncNames[no], sizeof entry.LineFuncName) != 0) {
    j["funcName"] = TextToJson(entry.LineFuncName, sizeof entry.LineFuncName);
  }
  j["record"] = RecordToJson(*layout, FuncBlock[i]);
  return j;
}

}  // namespace

std::string ExportDocument() {
  const ProgramHeader& h = PrgHdr;
  std::string out = "{\n";
  out += "  \"format\": " + Dump(kFormatName) + ",\n";
  out += "  \"version\": " + Dump(TextToJson(h.Version, sizeof h.Version)) + ",\n";
  out += "  \"compiled\": " + Dump(CompiledToJson(h.CompiledFlag)) + ",\n";
  WriteList(out, "variables", Variables(h), false);
  WriteList(out, "paths", Paths(h), false);
  WriteList(out, "tables", Tables(h), false);
  const int count = EditList().ListCount();
  out += "  \"lines\": [";
  out.reserve(out.size() + static_cast<size_t>(count) * 256);
  for (int i = 0; i < count; ++i) {
    out += i == 0 ? "\n    " : ",\n    ";
    out += Dump(Line(i));
  }
  out += count == 0 ? "]\n" : "\n  ]\n";
  out += "}\n";
  return out;
}

}  // namespace kq::textform
