#include "tests/support/doc_builder.h"

#include "document/catalogue.h"
#include "document/document.h"
#include "tests/support/record_layouts.h"

namespace kq::test {

void ResetDocument() {
  GetFuncRecordLength();
  InitDocument();
  std::memset(&WorkRecord, 0, sizeof WorkRecord);
}

Rec::Rec(int f) : funcNo(f), bytes(static_cast<size_t>(RecordLength[f]), 0) {
  // Every VarRef blank, every label and text empty, label lines and path types -1,
  // numbers and flags 0.
  for (const FieldSpec& s : RecordFields(f)) {
    for (int i = 0; i < s.count; ++i) {
      switch (s.kind) {
        case FieldSpec::Var:
          Var(s.offset + 32 * i, kVarNone, "");
          break;
        case FieldSpec::LabelRef:
          LabelRef(s.offset, "", -1);
          break;
        case FieldSpec::LabelArray:
          Label(s.offset + 16 * i, "");
          I32(s.lineOffset + 4 * i, -1);
          break;
        case FieldSpec::Text:
          Text(s.offset + s.width * i, s.width, "");
          break;
        case FieldSpec::PathType:
          I32(s.offset, -1);
          break;
        case FieldSpec::Number:
        case FieldSpec::Flag:
          I32(s.offset + 4 * i, 0);
          break;
      }
    }
  }
}

Rec& Rec::I32(int offset, int32_t v) {
  std::memcpy(bytes.data() + offset, &v, 4);
  return *this;
}
Rec& Rec::Text(int offset, int width, const std::string& text) {
  SetField(reinterpret_cast<char*>(bytes.data() + offset), static_cast<size_t>(width), text);
  return *this;
}
Rec& Rec::Var(int offset, int32_t type, const std::string& name) {
  I32(offset, type);
  return Text(offset + 4, 28, name);
}
Rec& Rec::Label(int offset, const std::string& name) {
  return Text(offset, 16, name);
}
Rec& Rec::LabelRef(int offset, const std::string& name, int32_t line) {
  Text(offset, 16, name);
  return I32(offset + 16, line);
}
int32_t Rec::I32At(int offset) const {
  int32_t v;
  std::memcpy(&v, bytes.data() + offset, 4);
  return v;
}

void DeclareVariable(int index, int32_t type, const std::string& name) {
  PrgHdr.Variable[index].VarRefType = type;
  SetField(PrgHdr.Variable[index].VarRefName, name);
}
void DeclarePath(int32_t type, int row, const std::string& name, const std::string& path) {
  PathEntry& e = PrgHdr.Path[row][type - kPathExport];
  SetField(e.PathName, name);
  SetField(e.PathText, path);
}
void DeclareTable(int index, const std::string& name) {
  SetField(PrgHdr.Table[index].TableName, name);
}
void DeclareColumn(int table, int column, int32_t type, const std::string& name) {
  PrgHdr.Table[table].Column[column].VarRefType = type;
  SetField(PrgHdr.Table[table].Column[column].VarRefName, name);
}

void AddLine(ui::ListBox& list, const std::string& label, const Rec& rec) {
  const int line = list.ListCount();
  ProgramLine& pl = LineTable[line];
  SetField(pl.LineLabel, label);
  pl.LineFuncNo = static_cast<int16_t>(rec.funcNo);
  std::memcpy(pl.LineFuncName, FuncNames[rec.funcNo], 17);
  std::memcpy(FuncBlock[line], rec.bytes.data(), rec.bytes.size());
  list.AddItem(Format0000(line) + "\t" + label + "\t" + RTrimZ(View(FuncNames[rec.funcNo])) + "\t");
  PrgHdr.LineCount = static_cast<int16_t>(line + 1);
}

Rec LineRecord(int line) {
  Rec r(LineTable[line].LineFuncNo);
  std::memcpy(r.bytes.data(), FuncBlock[line], r.bytes.size());
  return r;
}

DocFixture::DocFixture() {
  host = std::make_unique<EditHost>();
  run.emplace(RunParts{&platform, &host->lstEdit});
  ResetDocument();
}

DocFixture::~DocFixture() {
  run.reset();
  host.reset();
}

}  // namespace kq::test
