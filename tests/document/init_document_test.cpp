#include <gtest/gtest.h>

#include <cstring>

#include "document/catalogue.h"
#include "document/document.h"
#include "document/state.h"
#include "document/text.h"
#include "tests/support/doc_fixture.h"

namespace {

using namespace kq;
using kqtest::DocTest;

template <size_t N>
bool EmptyText(const char (&f)[N]) {
  return f[0] == '\0' && std::string(f + 1, N - 1) == std::string(N - 1, ' ');
}
template <size_t N>
bool AllZero(const void* p) {
  const auto* b = static_cast<const uint8_t*>(p);
  for (size_t i = 0; i < N; ++i) {
    if (b[i] != 0) return false;
  }
  return true;
}
bool BlankVar(const VarRef& v) {
  return v.VarRefType == -1 && EmptyText(v.VarRefName);
}
bool BlankLabel(const LabelRef& l) {
  return l.LabelRefLine == -1 && EmptyText(l.LabelRefName);
}

TEST(Catalogue, EveryRecordLengthIsTheSizeOfItsRecord) {
  // The records stand in function order with no padding: each image ends where the next
  // live function's begins, and the last at the end of the set.
  RecordSet r;
  const uint8_t* end = reinterpret_cast<const uint8_t*>(&r) + sizeof r;
  int previous = -1;
  for (int f = 0; f <= kFuncCount; ++f) {
    if (f < kFuncCount && !IsLiveFunction(f)) {
      EXPECT_EQ(r.Image(f), nullptr) << f;
      EXPECT_EQ(kCatalogueLength[f], 0) << f;
      continue;
    }
    const uint8_t* here = f < kFuncCount ? r.Image(f) : end;
    if (previous >= 0) {
      EXPECT_EQ(here - r.Image(previous), kCatalogueLength[previous]) << previous;
    }
    previous = f;
  }
  EXPECT_EQ(r.Image(-1), nullptr);
  EXPECT_EQ(r.Image(56), nullptr);
  int sum = 0;
  for (int f = 0; f < kFuncCount; ++f) sum += kCatalogueLength[f];
  EXPECT_EQ(static_cast<size_t>(sum), sizeof(RecordSet));
}

TEST_F(DocTest, NewDocumentHeader) {
  std::memset(&PrgHdr, 0x5A, sizeof PrgHdr);
  ChangedFlag = true;
  InitDocument();
  EXPECT_FALSE(ChangedFlag);
  EXPECT_EQ(std::memcmp(PrgHdr.Version, "3.10\0", 5), 0);
  EXPECT_EQ(PrgHdr.CompiledFlag, 0);
  EXPECT_EQ(PrgHdr.LineCount, 0);
  for (const auto& v : PrgHdr.Variable) ASSERT_TRUE(BlankVar(v));
  for (const auto& row : PrgHdr.Path) {
    for (const auto& p : row) ASSERT_TRUE(EmptyText(p.PathText) && EmptyText(p.PathName));
  }
  for (const auto& t : PrgHdr.Table) {
    ASSERT_TRUE(EmptyText(t.TableName));
    for (const auto& c : t.Column) ASSERT_TRUE(BlankVar(c));
  }
  EXPECT_TRUE(BlankVar(BlankVarRef));
  EXPECT_TRUE(BlankLabel(BlankLabelRef));
  EXPECT_TRUE(EmptyText(BlankProgramLine.LineLabel));
  EXPECT_EQ(BlankProgramLine.LineFuncNo, -1);
  EXPECT_TRUE(EmptyText(BlankProgramLine.LineFuncName));
}

TEST_F(DocTest, DefaultRecordsStartZeroedAndKeepTheUntouchedFields) {
  std::memset(&InitRecord, 0xAA, sizeof InitRecord);
  InitDocument();
  const RecordSet& r = InitRecord;
  // Fields a new document never sets stay zero, whatever was there before.
  EXPECT_TRUE(AllZero<sizeof r.UpdateRecord.WhereValue>(r.UpdateRecord.WhereValue));
  EXPECT_TRUE(AllZero<sizeof r.InsertRecord.NoDataLabel>(&r.InsertRecord.NoDataLabel));
  EXPECT_EQ(r.GetKeys.KeyCount, 0);
  EXPECT_EQ(r.GetKeys.TermKey, 0);
  EXPECT_EQ(r.GetKeys.DisableHangup, 0);
  EXPECT_EQ(r.RecordSound.DontRecordSilence, 0);
  EXPECT_EQ(r.RecordSound.BeepDuringSilence, 0);
  EXPECT_EQ(r.RecordSound.DisableHangup, 0);
  EXPECT_EQ(r.SayFile.CounterActive, 0);
  EXPECT_EQ(r.SayFile.RateGainControl, 0);
  EXPECT_EQ(r.SayFile.DisableHangup, 0);
  // The all-zero fields are not empty by the emptiness test.
  EXPECT_FALSE(FieldEmpty(View(r.InsertRecord.NoDataLabel.LabelRefName)));
  EXPECT_TRUE(BlankLabel(r.GetFirstRecord.NoDataLabel));
  EXPECT_TRUE(BlankLabel(r.GetPrevRecord.NoDataLabel));
  for (const auto& v : r.DeleteRecord.WhereValue) EXPECT_TRUE(BlankVar(v));
  for (const auto& v : r.SelectRecords.WhereValue) EXPECT_TRUE(BlankVar(v));
}

TEST_F(DocTest, DefaultValuesOfTheRecords) {
  const RecordSet& r = InitRecord;
  EXPECT_TRUE(BlankVar(r.Assign.Target) && BlankVar(r.Assign.Source));
  EXPECT_TRUE(BlankLabel(r.Assign.ErrorLabel));
  EXPECT_EQ(r.AssignPath.PathType, -1);
  EXPECT_TRUE(EmptyText(r.AssignPath.SourcePath));
  EXPECT_EQ(r.Condition.ThenLine, -1);
  EXPECT_EQ(r.Condition.ElseLine, -1);
  EXPECT_TRUE(EmptyText(r.Condition.ThenLabel));
  EXPECT_EQ(r.Delay.DelayMs, 10);
  for (int i = 0; i < 7; ++i) {
    EXPECT_EQ(r.CallOut.OutcomeLine[i], -1);
    EXPECT_TRUE(EmptyText(r.CallOut.OutcomeLabel[i]));
  }
  EXPECT_EQ(r.CallOut.Rings, 5);
  EXPECT_EQ(r.CallOut.WaitForDialTone, 1);
  EXPECT_EQ(r.GetKeys.TimeoutSec, 10);
  EXPECT_EQ(r.GetKeys.Terminate, 1);
  EXPECT_TRUE(BlankLabel(r.GetKeys.TimeoutLabel));
  EXPECT_EQ(r.Random.Upper, 10);
  EXPECT_EQ(r.RecordSound.MaxRecordSec, 10);
  EXPECT_EQ(r.RecordSound.BeepBefore, 1);
  EXPECT_EQ(r.RecordSound.SilenceSec, 2);
  EXPECT_TRUE(EmptyText(r.Remark.RemarkText));
  EXPECT_EQ(r.Return.ReturnReserved, -1);
  EXPECT_EQ(r.RSwitch.InterruptMs, 150);
  EXPECT_TRUE(EmptyText(r.SayNumber.SayPath[2]));
  EXPECT_TRUE(EmptyText(r.SayNumber.SayVoiceFile[1]));
  for (const auto& v : r.VarExport.ExportVar) EXPECT_TRUE(BlankVar(v));
  EXPECT_TRUE(EmptyText(r.Voice.VoiceFile[4]));
  EXPECT_EQ(r.WaitForCall.Rings, 2);
  EXPECT_EQ(r.WaitForCall.DailyHour, 1);
  EXPECT_TRUE(BlankVar(r.WaitForCall.CalledIdVar));
  for (int i = 0; i < 19; ++i) EXPECT_EQ(r.WaitForKey.KeyLine[i], -1);
  EXPECT_EQ(r.WaitForKey.TimeoutSec, 10);
  EXPECT_EQ(r.WaitForKey.Terminate, 1);
  EXPECT_EQ(r.ConnectTable.TimeoutSec, 3);
  EXPECT_TRUE(BlankLabel(r.ConnectTable.BusyLabel));
  EXPECT_TRUE(BlankVar(r.GetNoOfRec.Target));
  EXPECT_EQ(r.TrimString.TrimAction, 2);
  EXPECT_TRUE(BlankVar(r.InString.Operand));
  EXPECT_EQ(r.CheckPath.CheckLine[1], -1);
  EXPECT_EQ(r.DeleteFile.PathType, -1);
  EXPECT_TRUE(BlankVar(r.DeleteFile.FileVar));
  EXPECT_TRUE(BlankVar(r.Run.Parameters));
  EXPECT_TRUE(BlankVar(r.CTBusConnect.BusVar[4]));
  EXPECT_TRUE(BlankVar(r.Prototype.ProtoFunction));
  for (int i = 0; i < 8; ++i) EXPECT_EQ(r.Prototype.ProtoLine[i], -1);
  EXPECT_EQ(r.Prototype.PathType, -1);
  EXPECT_TRUE(EmptyText(r.Prototype.ProtoPath[3]));
  EXPECT_TRUE(EmptyText(r.Prototype.TableName));
}

TEST_F(DocTest, RecordCopiesMoveExactlyTheRecordLength) {
  std::memset(FuncBlock[3], 0x77, kBlockSize);
  InitFuncParm(3, 4);  // Delay: 4 bytes
  int32_t delay;
  std::memcpy(&delay, FuncBlock[3], 4);
  EXPECT_EQ(delay, 10);
  EXPECT_EQ(FuncBlock[3][4], 0x77);

  WorkRecord.Remark = InitRecord.Remark;
  SetField(WorkRecord.Remark.RemarkText, "hello");
  UpdateFuncParm(3, 13);
  EXPECT_EQ(std::memcmp(FuncBlock[3], WorkRecord.Image(13), 52), 0);
  EXPECT_EQ(FuncBlock[3][52], 0x77);

  std::memset(FuncBlock[5], 0x11, kBlockSize);
  CopyFuncParm(5, 3, 13);
  EXPECT_EQ(std::memcmp(FuncBlock[5], FuncBlock[3], 52), 0);
  EXPECT_EQ(FuncBlock[5][52], 0x11);
}

TEST_F(DocTest, RecordCopiesRefuseIllegalNumbers) {
  struct Case {
    void (*call)(int);
    int funcNo;
    const char* text;
  } cases[] = {
      {[](int f) { InitFuncParm(0, f); }, 22, "Illegal Function Number  22 in InitFuncParm."},
      {[](int f) { UpdateFuncParm(0, f); }, 35, "Illegal Function Number  35 in UpdateFuncParm."},
      {[](int f) { UpdateFuncParm(0, f); }, -1, "Illegal Function Number -1 in UpdateFuncParm."},
      {[](int f) { CopyFuncParm(1, 0, f); }, 56, "Illegal Function Number  56 in CopyFuncParm."},
  };
  for (const auto& c : cases) {
    platform_.ClearEvents();
    EXPECT_THROW(c.call(c.funcNo), ui::ProgramEnded);
    ASSERT_EQ(platform_.CountOf("msgbox"), 1);
    EXPECT_EQ(platform_.Events()[0].fields["text"].Str(), c.text);
    EXPECT_EQ(platform_.Events()[0].fields["title"].Str(), "Program Error");
  }
}

}  // namespace
