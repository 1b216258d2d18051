// Lines on the clipboard: the envelope's checks (anything foreign, cut short, altered or
// from a later format is refused before the document is touched), and the image of
// chosen lines: only the declarations they use go with them, their DisplayLines are
// numbered from 0000, and the image goes back into a document through the merge.
#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "document/catalogue.h"
#include "document/document.h"
#include "document/edit_host.h"
#include "document/file.h"
#include "document/functions.h"
#include "document/kqx_format.h"
#include "document/merge.h"
#include "document/run_scope.h"
#include "document/state.h"
#include "document/text.h"
#include "editor/line_clipboard.h"
#include "ui/headless/headless_platform.h"
#include "ui/model/list_controls.h"

namespace kq {
namespace {

class LineClipboard : public ::testing::Test {
 protected:
  void SetUp() override {
    host_ = std::make_unique<EditHost>("", ui::ListBox::MultiSelect::None);
    list_ = &host_->lstEdit;
    run_.emplace(RunParts{&platform_, list_});
  }
  void TearDown() override {
    run_.reset();
    host_.reset();
  }

  void Declare(int slot, const std::string& name, int32_t type) {
    PrgHdr.Variable[slot].VarRefType = type;
    SetField(PrgHdr.Variable[slot].VarRefName, name);
  }

  // A Condition line comparing the variable with 3, or a Remark.
  void AddLine(int funcNo, const std::string& variable = "") {
    const int i = list_->ListCount();
    WorkRecord = InitRecord;
    if (funcNo == static_cast<int>(Fn::Condition)) {
      WorkRecord.Condition.Left.VarRefType = 0;
      SetField(WorkRecord.Condition.Left.VarRefName, variable);
    }
    LineTable[i].LineFuncNo = funcNo;
    AssignField(LineTable[i].LineFuncName, std::string(FuncNames[funcNo], 17));
    UpdateFuncParm(i, funcNo);
    list_->AddItem(Format0000(i) + "\t\t" + NulToBlank(View(FuncNames[funcNo])) + "\tline " +
                   std::to_string(i));
    PrgHdr.LineCount = static_cast<int16_t>(list_->ListCount());
  }

  ui::HeadlessPlatform platform_;
  std::unique_ptr<EditHost> host_;
  ui::ListBox* list_ = nullptr;
  std::optional<RunScope> run_;
};

TEST_F(LineClipboard, ChosenLinesCarryTheDeclarationsTheyUseAndTheirText) {
  Declare(0, "Unused", 0);
  Declare(1, "Count", 0);
  AddLine(static_cast<int>(Fn::Remark));
  AddLine(static_cast<int>(Fn::Condition), "Count");
  AddLine(static_cast<int>(Fn::Remark));
  const ui::ClipboardData data = LinesClipboardData({1, 2});
  EXPECT_EQ(data.at(ui::kPlainTextMime), list_->List(1) + "\n" + list_->List(2) + "\n");

  std::vector<uint8_t> image;
  ASSERT_EQ(ReadLines(data, image), LinesCheck::Ok);
  KqxImage check;
  ASSERT_EQ(CheckImage(image.data(), image.size(), check), KqxCheck::Ok);
  EXPECT_EQ(check.lineCount, 2);
  ByteReader in(image.data(), image.size());
  in.Skip(check.headerPos);
  ProgramHeader hdr;
  ReadHeader(in, hdr);
  EXPECT_EQ(RTrimZ(View(hdr.Variable[0].VarRefName)), "Count");
  EXPECT_TRUE(RTrimZ(View(hdr.Variable[1].VarRefName)).empty());
  const std::string first(reinterpret_cast<const char*>(image.data()) + check.displayPos, 4);
  EXPECT_EQ(first, "0000");

  // Back into the document at line 0: the variable is already there, the lines go in.
  std::string title = "Clipboard";
  InsertFileBytes(title, image, 0);
  ASSERT_EQ(list_->ListCount(), 5);
  // as Insert takes them: the whole 180 characters of the file's DisplayLine
  EXPECT_EQ(RTrim(list_->List(0).substr(4)), list_->List(3).substr(4));
  EXPECT_EQ(LineTable[0].LineFuncNo, static_cast<int>(Fn::Condition));
  EXPECT_TRUE(platform_.EventsOf("msgbox").empty());
}

TEST_F(LineClipboard, TablesGoWithTheLinesThatNameThem) {
  SetField(PrgHdr.Table[0].TableName, "Accounts");
  SetField(PrgHdr.Table[1].TableName, "Calls");
  const int i = 0;
  WorkRecord = InitRecord;
  SetField(WorkRecord.EmptyTable.TableName, "Calls");
  LineTable[i].LineFuncNo = static_cast<int>(Fn::EmptyTable);
  UpdateFuncParm(i, static_cast<int>(Fn::EmptyTable));
  list_->AddItem("0000\t\tEmpty Table\tCalls");
  AddLine(static_cast<int>(Fn::Remark));
  EXPECT_TRUE(TableUsedInLines(View(PrgHdr.Table[1].TableName), {0}));
  EXPECT_FALSE(TableUsedInLines(View(PrgHdr.Table[0].TableName), {0, 1}));
  EXPECT_FALSE(TableUsedInLines(View(PrgHdr.Table[1].TableName), {1}));

  const std::vector<uint8_t> image = LinesImage({0});
  KqxImage check;
  ASSERT_EQ(CheckImage(image.data(), image.size(), check), KqxCheck::Ok);
  ByteReader in(image.data(), image.size());
  in.Skip(check.headerPos);
  ProgramHeader hdr;
  ReadHeader(in, hdr);
  EXPECT_EQ(RTrimZ(View(hdr.Table[0].TableName)), "Calls");
  EXPECT_TRUE(RTrimZ(View(hdr.Table[1].TableName)).empty());
}

TEST_F(LineClipboard, ForeignCutShortAlteredOrLaterContentIsRefused) {
  AddLine(static_cast<int>(Fn::Remark));
  AddLine(static_cast<int>(Fn::Remark));
  const std::string good = LinesClipboardData({0, 1}).at(kLinesMime);
  std::vector<uint8_t> image;
  ASSERT_EQ(ReadLines({{kLinesMime, good}}, image), LinesCheck::Ok);

  auto with = [&good](size_t at, char c) {
    std::string s = good;
    s[at] = c;
    return s;
  };
  std::string longer = good + "x";
  std::string wrongCount = with(20, 3);
  struct Case {
    const char* what;
    ui::ClipboardData data;
    LinesCheck want;
  };
  const std::vector<Case> cases = {
      {"nothing", {}, LinesCheck::Absent},
      {"text of another program", {{ui::kPlainTextMime, "hello"}}, LinesCheck::Absent},
      {"empty", {{kLinesMime, ""}}, LinesCheck::Damaged},
      {"cut short in the envelope", {{kLinesMime, good.substr(0, 20)}}, LinesCheck::Damaged},
      {"cut short in the image",
       {{kLinesMime, good.substr(0, good.size() - 1)}},
       LinesCheck::Damaged},
      {"bytes behind the image", {{kLinesMime, longer}}, LinesCheck::Damaged},
      {"another magic", {{kLinesMime, with(0, 'X')}}, LinesCheck::Damaged},
      {"a byte of the image altered",
       {{kLinesMime, with(good.size() - 1, '\x7f')}},
       LinesCheck::Damaged},
      {"the check sum altered",
       {{kLinesMime, with(28, static_cast<char>(good[28] ^ 1))}},
       LinesCheck::Damaged},
      {"a later format", {{kLinesMime, with(16, 2)}}, LinesCheck::LaterFormat},
      {"format 0", {{kLinesMime, with(16, 0)}}, LinesCheck::Damaged},
      {"a line count that the image does not hold",
       {{kLinesMime, wrongCount}},
       LinesCheck::Damaged},
  };
  for (const Case& c : cases) {
    image.assign(3, 9);
    EXPECT_EQ(ReadLines(c.data, image), c.want) << c.what;
    EXPECT_EQ(image.size(), 3u) << c.what << ": image touched";
  }

  // A sound envelope around bytes that are no application is damaged too.
  const std::vector<uint8_t> junk = {'3', '.', '1', '0', 0, 1, 2, 3};
  EXPECT_EQ(ReadLines({{kLinesMime, EncodeLines(junk, 0)}}, image), LinesCheck::Damaged);
}

TEST_F(LineClipboard, CrcIsTheStandardOne) {
  const std::string text = "123456789";
  EXPECT_EQ(Crc32(reinterpret_cast<const uint8_t*>(text.data()), text.size()), 0xCBF43926u);
}

}  // namespace
}  // namespace kq
