#include "tests/textform/odd_doc.h"

#include <cstring>
#include <string>

#include "document/catalogue.h"
#include "document/document.h"
#include "document/state.h"
#include "document/text.h"
#include "tests/support/record_layouts.h"

namespace kqtest {

using namespace kq;

namespace {

struct Gen {
  std::mt19937& rng;
  int Pick(int n) { return std::uniform_int_distribution<int>(0, n - 1)(rng); }
  bool Chance(int percent) { return Pick(100) < percent; }
  char Byte() { return static_cast<char>(Pick(256)); }
  // A character a user types: ASCII or a Windows-1252 letter, never a NUL.
  char Typed() {
    static const char kChars[] = "abcXYZ019 _-.\\:\xC6\xE9\x80\x93\xFC";
    return kChars[Pick(sizeof kChars - 1)];
  }
  int32_t Number() {
    switch (Pick(4)) {
      case 0:
        return Pick(2);
      case 1:
        return -1;
      case 2:
        return Pick(10001);  // a line number, current or stale
      default:
        return static_cast<int32_t>(rng());
    }
  }

  void Text(char* field, size_t width) {
    const int form = Pick(100);
    if (form < 55) {  // the usual form
      const size_t length = static_cast<size_t>(Pick(static_cast<int>(width)));
      std::memset(field, ' ', width);
      for (size_t i = 0; i < length; ++i) field[i] = Typed();
      field[length] = '\0';
    } else if (form < 70) {  // text, then NULs
      std::memset(field, '\0', width);
      const int length = Pick(static_cast<int>(width));
      for (int i = 0; i < length; ++i) field[i] = Typed();
    } else if (form < 80) {  // no NUL at all
      for (size_t i = 0; i < width; ++i) field[i] = Typed();
    } else {  // anything
      for (size_t i = 0; i < width; ++i) field[i] = Byte();
    }
  }
  void Var(uint8_t* at) {
    static const int32_t kTypes[] = {-1, 0, 1, 2, 8, 9, 10, 5, 70000};
    const int32_t type = kTypes[Pick(9)];
    std::memcpy(at, &type, 4);
    Text(reinterpret_cast<char*>(at + 4), 28);
  }
  void Label(uint8_t* name, uint8_t* line) {
    Text(reinterpret_cast<char*>(name), 16);
    const int32_t n = Number();
    std::memcpy(line, &n, 4);
  }

  void Record(int funcNo, uint8_t* rec) {
    for (int i = 0; i < RecordLength[funcNo]; ++i) rec[i] = static_cast<uint8_t>(Byte());
    for (const test::FieldSpec& s : test::RecordFields(funcNo)) {
      for (int k = 0; k < s.count; ++k) {
        switch (s.kind) {
          case test::FieldSpec::Var:
            Var(rec + s.offset + 32 * k);
            break;
          case test::FieldSpec::LabelRef:
            Label(rec + s.offset + 20 * k, rec + s.offset + 20 * k + 16);
            break;
          case test::FieldSpec::LabelArray:
            Label(rec + s.offset + 16 * k, rec + s.lineOffset + 4 * k);
            break;
          case test::FieldSpec::Text:
            Text(reinterpret_cast<char*>(rec + s.offset + s.width * k),
                 static_cast<size_t>(s.width));
            break;
          default: {
            const int32_t n = Number();
            std::memcpy(rec + s.offset + 4 * k, &n, 4);
          }
        }
      }
    }
  }

  std::string Display(int line) {
    std::string d = Format0000(Chance(80) ? line : Pick(10000)) + "\t";
    const int length = Pick(176);
    for (int i = 0; i < length; ++i) d += Chance(95) ? Typed() : Byte();
    d.resize(Chance(50) ? kDisplayLineWidth : d.size(), ' ');
    return d;
  }
};

}  // namespace

void BuildOddDocument(ui::ListBox& list, std::mt19937& rng, int maxLines) {
  Gen g{rng};
  InitDocument();
  PrgHdr.CompiledFlag = static_cast<int16_t>(g.Chance(80) ? -g.Pick(2) : g.Pick(65536) - 32768);
  const int vars = g.Pick(8);
  for (int i = 0; i < vars; ++i) {
    g.Var(reinterpret_cast<uint8_t*>(&PrgHdr.Variable[g.Pick(kMaxVariables)]));
  }
  for (int i = g.Pick(4); i > 0; --i) {
    PathEntry& p = PrgHdr.Path[g.Pick(kPathRows)][g.Pick(kPathTypes)];
    g.Text(p.PathName, sizeof p.PathName);
    g.Text(p.PathText, sizeof p.PathText);
  }
  for (int i = g.Pick(3); i > 0; --i) {
    TableEntry& t = PrgHdr.Table[g.Pick(kMaxTables)];
    g.Text(t.TableName, sizeof t.TableName);
    for (int c = g.Pick(4); c > 0; --c) {
      g.Var(reinterpret_cast<uint8_t*>(&t.Column[g.Pick(kTableColumns)]));
    }
  }
  const int count = g.Pick(maxLines + 1);
  std::vector<std::string> items;
  for (int i = 0; i < count; ++i) {
    int no;
    do {
      no = g.Pick(kFuncCount);
    } while (!IsLiveFunction(no));
    ProgramLine& entry = LineTable[i];
    entry.LineFuncNo = static_cast<int16_t>(no);
    std::memcpy(entry.LineFuncName, FuncNames[no], sizeof entry.LineFuncName);
    if (g.Chance(5)) g.Text(entry.LineFuncName, sizeof entry.LineFuncName);
    g.Text(entry.LineLabel, sizeof entry.LineLabel);
    g.Record(no, FuncBlock[i]);
    items.push_back(g.Display(i));
  }
  PrgHdr.LineCount = static_cast<int16_t>(count);
  list.ReplaceAll(std::move(items));
}

std::string DocumentBytes(const ui::ListBox& list) {
  const auto raw = [](const auto& v) {
    return std::string(reinterpret_cast<const char*>(&v), sizeof v);
  };
  std::string bytes = raw(PrgHdr.Version) + raw(PrgHdr.CompiledFlag) + raw(PrgHdr.Variable) +
                      raw(PrgHdr.Path) + raw(PrgHdr.Table) + raw(PrgHdr.LineCount);
  for (int i = 0; i < list.ListCount(); ++i) {
    std::string item = list.List(i);
    item.resize(kDisplayLineWidth, ' ');
    bytes += item;
  }
  for (int i = 0; i < list.ListCount(); ++i) {
    const ProgramLine& e = LineTable[i];
    bytes.append(e.LineLabel, sizeof e.LineLabel);
    bytes.append(reinterpret_cast<const char*>(&e.LineFuncNo), 2);
    bytes.append(e.LineFuncName, sizeof e.LineFuncName);
    bytes.append(reinterpret_cast<const char*>(FuncBlock[i]),
                 static_cast<size_t>(RecordLength[e.LineFuncNo]));
  }
  return bytes;
}

}  // namespace kqtest
