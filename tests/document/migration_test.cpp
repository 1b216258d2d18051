#include <gtest/gtest.h>

#include <cstring>

#include "document/catalogue.h"
#include "document/document.h"
#include "document/file.h"
#include "document/state.h"
#include "document/text.h"
#include "tests/support/doc_fixture.h"

namespace {

using namespace kq;
using kqtest::DocTest;
using kqtest::OldFile;

template <size_t N>
void PutText(ByteWriter& out, const std::string& text) {
  char f[N];
  SetField(f, text);
  out.Put(f, N);
}
void PutVar(ByteWriter& out, int32_t type, const std::string& name) {
  out.I32(type);
  PutText<28>(out, name);
}
void PutLabel(ByteWriter& out, const std::string& name, int32_t line) {
  PutText<16>(out, name);
  out.I32(line);
}
void PutLine(ByteWriter& out, const std::string& label, int16_t funcNo) {
  PutText<16>(out, label);
  out.I16(funcNo);
  PutText<17>(out, funcNo == 35 ? "WHERE Clause" : RTrimZ(View(FuncNames[funcNo])));
}
std::string Display(int i, const std::string& text) {
  std::string s = Format0000(i) + "\t\t" + text;
  s.resize(180, ' ');
  return s;
}

// The old forms of Delete Record, SELECT Records and Update Record.
void PutOldTableRecord(ByteWriter& out, const std::string& table, const std::string& error) {
  PutText<16>(out, table);
  PutLabel(out, error, 7);
  PutLabel(out, "Dropped", 9);
}

// The record lines shared by both old versions: Assign, 27, 34, 35, 35, Delay.
void PutSharedLines(ByteWriter& out) {
  PutLine(out, "A", 0);
  PutVar(out, kVarLong, "V1");
  PutVar(out, kConstLong, "42");
  PutLabel(out, "Err", 3);
  PutLine(out, "", 27);
  PutOldTableRecord(out, "Orders", "DelErr");
  PutLine(out, "", 34);
  PutOldTableRecord(out, "Stock", "UpdErr");
  for (int k = 0; k < 2; ++k) {
    PutLine(out, "", 35);
    std::vector<uint8_t> junk(152, static_cast<uint8_t>(0xC0 + k));
    out.Put(junk.data(), junk.size());
  }
  PutLine(out, "Z", 4);
  out.I32(250);
}
constexpr int kSharedLines = 6;

class MigrationTest : public DocTest {
 protected:
  void ExpectSharedLines(int first) {
    EXPECT_EQ(LineTable[first].LineFuncNo, 0);
    const auto* assign = reinterpret_cast<const AssignRec*>(FuncBlock[first]);
    EXPECT_EQ(Text(assign->Source.VarRefName), "42");
    EXPECT_EQ(assign->ErrorLabel.LabelRefLine, 3);

    const auto* del = reinterpret_cast<const TableWhereRec*>(FuncBlock[first + 1]);
    EXPECT_EQ(Text(del->TableName), "Orders");
    EXPECT_EQ(Text(del->ErrorLabel.LabelRefName), "DelErr");
    EXPECT_EQ(del->ErrorLabel.LabelRefLine, 7);
    EXPECT_EQ(std::memcmp(del->WhereField, InitRecord.DeleteRecord.WhereField, 40 + 160), 0);
    EXPECT_EQ(del->WhereValue[0].VarRefType, -1);

    const auto* upd = reinterpret_cast<const TableWhereRec*>(FuncBlock[first + 2]);
    EXPECT_EQ(Text(upd->TableName), "Stock");
    EXPECT_EQ(upd->WhereValue[4].VarRefType, 0);  // its defaults stay all zero
    EXPECT_EQ(upd->WhereValue[4].VarRefName[27], 0);

    for (int k = 3; k <= 4; ++k) {
      EXPECT_EQ(LineTable[first + k].LineFuncNo, 35);
      EXPECT_EQ(FuncBlock[first + k][0], 0x5E) << "the block of a discontinued line is unwritten";
    }
    EXPECT_EQ(list().List(first + 3).substr(0, 4), Format0000(first + 3));
    EXPECT_EQ(LineTable[first + 5].LineFuncNo, 4);
    EXPECT_EQ(*reinterpret_cast<const int32_t*>(FuncBlock[first + 5]), 250);

    const auto boxes = platform_.EventsOf("msgbox");
    ASSERT_EQ(boxes.size(), 1u) << "one box per file";
    EXPECT_EQ(boxes[0].fields["title"].Str(), "Function Discontinued");
    EXPECT_EQ(boxes[0].fields["text"].Str(),
              "The WHERE Clause Database function is remove because it is discontinued.");
    EXPECT_EQ(std::memcmp(PrgHdr.Version, "3.10", 5), 0);
    EXPECT_EQ(PrgHdr.CompiledFlag, 0);
  }
  void SetUp() override {
    DocTest::SetUp();
    std::memset(FuncBlock, 0x5E, 16 * kBlockSize);
  }
};

TEST_F(MigrationTest, Version308) {
  OldFile f;
  ByteWriter& out = f.out;
  out.Put("3.08", 5);
  out.I16(-1);
  for (int i = 0; i < 250; ++i) PutVar(out, i % 3, "V" + std::to_string(i));
  for (int row = 0; row < 20; ++row) {
    for (int code = 64; code <= 69; ++code) {
      std::string text = "/p" + std::to_string(code) + "/" + std::to_string(row) + "/";
      if (row == 3 && code == 66) text = std::string(64, 'x');  // fills all 65 bytes
      PutText<65>(out, text);
      PutText<28>(out,
                  code == 64 ? "Gone" : "N" + std::to_string(code) + "_" + std::to_string(row));
    }
  }
  for (int t = 0; t < 50; ++t) {
    PutText<16>(out, t < 2 ? "T" + std::to_string(t) : "");
    PutText<28>(out, "dropped text");
    for (int c = 0; c < 24; ++c) PutVar(out, c == 0 && t < 2 ? 2 : -1, c == 0 && t < 2 ? "V2" : "");
  }
  std::vector<uint8_t> settings(45, 'S');
  out.Put(settings.data(), settings.size());
  const int lines = kSharedLines + 2;
  out.I16(lines);
  for (int i = 0; i < lines; ++i) {
    const std::string d = Display(i, "line " + std::to_string(i));
    out.Put(d.data(), d.size());
  }
  PutSharedLines(out);
  // Call Out with five outcomes.
  PutLine(out, "C", 5);
  for (int k = 0; k < 5; ++k) PutText<16>(out, "Out" + std::to_string(k));
  for (int k = 0; k < 5; ++k) out.I32(100 + k);
  out.I32(8);
  out.I32(0);
  PutVar(out, kConstString, "5551234");
  PutLine(out, "", 29);
  PutOldTableRecord(out, "People", "SelErr");
  ASSERT_EQ(f.bytes.size(),
            59814u + 180 * lines + 6 * 35 + 84 + 56 + 56 + 152 * 2 + 4 + 35 + 140 + 35 + 56);

  // A document with more variables before: the 3.08 file has room for 250 only.
  SetField(PrgHdr.Variable[400].VarRefName, "Before");
  kqtest::WriteBytes(TempPath("old.kqx"), f.bytes);
  EXPECT_EQ(kqtest::Open(TempPath("old.kqx")), "test.kqx");

  EXPECT_EQ(Text(PrgHdr.Variable[249].VarRefName), "V249");
  EXPECT_EQ(PrgHdr.Variable[249].VarRefType, 249 % 3);
  for (int i = 250; i < 500; ++i) ASSERT_EQ(PrgHdr.Variable[i].VarRefType, -1) << i;
  EXPECT_TRUE(FieldEmpty(View(PrgHdr.Variable[400].VarRefName)));
  EXPECT_EQ(Text(PrgHdr.Path[0][0].PathName), "N65_0");
  EXPECT_EQ(Text(PrgHdr.Path[0][0].PathText), "/p65/0/");
  EXPECT_EQ(Text(PrgHdr.Path[19][4].PathName), "N69_19");
  const PathEntry& full = PrgHdr.Path[3][1];
  EXPECT_EQ(std::string(full.PathText, 64), std::string(64, 'x'));
  EXPECT_EQ(full.PathText[64], '\0');
  EXPECT_EQ(std::string(full.PathText + 65, 195), std::string(195, ' '));
  EXPECT_EQ(Text(full.PathText), std::string(64, 'x'));
  // The 7 blanks behind a short text and its NUL are kept, then widened with blanks.
  EXPECT_EQ(std::string(PrgHdr.Path[0][0].PathText + 7, 253),
            std::string(1, '\0') + std::string(252, ' '));
  EXPECT_EQ(Text(PrgHdr.Table[1].TableName), "T1");
  EXPECT_EQ(Text(PrgHdr.Table[1].Column[0].VarRefName), "V2");
  EXPECT_EQ(PrgHdr.Table[1].Column[0].VarRefType, 2);
  EXPECT_EQ(PrgHdr.Table[1].Column[1].VarRefType, -1);
  EXPECT_EQ(PrgHdr.LineCount, lines);
  ASSERT_EQ(list().ListCount(), lines);

  ExpectSharedLines(0);
  const auto* call = reinterpret_cast<const CallOutRec*>(FuncBlock[kSharedLines]);
  EXPECT_EQ(Text(call->OutcomeLabel[4]), "Out4");
  EXPECT_EQ(call->OutcomeLine[4], 104);
  EXPECT_TRUE(FieldEmpty(View(call->OutcomeLabel[5])));
  EXPECT_TRUE(FieldEmpty(View(call->OutcomeLabel[6])));
  EXPECT_EQ(call->OutcomeLine[5], -1);
  EXPECT_EQ(call->OutcomeLine[6], -1);
  EXPECT_EQ(call->Rings, 8);
  EXPECT_EQ(call->WaitForDialTone, 0);
  EXPECT_EQ(Text(call->Number.VarRefName), "5551234");
  EXPECT_EQ(call->Number.VarRefType, kConstString);
  const auto* sel = reinterpret_cast<const TableWhereRec*>(FuncBlock[kSharedLines + 1]);
  EXPECT_EQ(Text(sel->TableName), "People");
  EXPECT_EQ(sel->WhereValue[2].VarRefType, -1);
}

TEST_F(MigrationTest, Version309ConvertsAndSavesAs310) {
  // A 3.10 document gives the header; then the version and the old records are put in.
  kqtest::FillDeclarations();
  PrgHdr.CompiledFlag = -1;
  kqtest::SaveAll(TempPath("base.kqx"));
  auto bytes = kqtest::ReadBytes(TempPath("base.kqx"));
  ASSERT_EQ(bytes.size(), 84009u);
  std::memcpy(bytes.data(), "3.09", 5);
  OldFile f;
  f.bytes.assign(bytes.begin(), bytes.begin() + 84007);
  const int lines = kSharedLines + 2;
  f.out.I16(lines);
  for (int i = 0; i < lines; ++i) {
    const std::string d = Display(i, "x");
    f.out.Put(d.data(), d.size());
  }
  PutSharedLines(f.out);
  uint8_t call[180], select[236];
  kqtest::FillRecord(5, 1, call);
  kqtest::FillRecord(29, 2, select);
  PutLine(f.out, "", 5);
  f.out.Put(call, sizeof call);
  PutLine(f.out, "", 29);
  f.out.Put(select, sizeof select);

  InitDocument();
  kqtest::WriteBytes(TempPath("old.kqx"), f.bytes);
  kqtest::Open(TempPath("old.kqx"));
  EXPECT_EQ(Text(PrgHdr.Variable[499].VarRefName), "Var499");
  EXPECT_EQ(Text(PrgHdr.Table[49].TableName), "Tbl49");
  ExpectSharedLines(0);
  EXPECT_EQ(std::memcmp(FuncBlock[kSharedLines], call, sizeof call), 0);
  EXPECT_EQ(std::memcmp(FuncBlock[kSharedLines + 1], select, sizeof select), 0);

  // The discontinued lines must go before the document can be saved.
  list().RemoveItem(4);
  list().RemoveItem(3);
  for (int i = 3; i < lines - 2; ++i) {
    LineTable[i] = LineTable[i + 2];
    std::memcpy(FuncBlock[i], FuncBlock[i + 2], kBlockSize);
  }
  kqtest::SaveAll(TempPath("new.kqx"));
  const auto saved = kqtest::ReadBytes(TempPath("new.kqx"));
  EXPECT_EQ(std::memcmp(saved.data(), "3.10", 5), 0);
  EXPECT_EQ(saved[5], 0);  // not compiled any more
  EXPECT_EQ(saved.size(), 84009u + 180 * 6 + 6 * 35 + 84 + 236 + 236 + 4 + 180 + 236);
}

}  // namespace
