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

VarRef Var(int32_t type, const std::string& name) {
  VarRef v;
  v.VarRefType = type;
  SetField(v.VarRefName, name);
  return v;
}
std::string Name28(const std::string& name) {
  char f[28];
  SetField(f, name);
  return std::string(f, 28);
}
std::string Label16(const std::string& name) {
  char f[16];
  SetField(f, name);
  return std::string(f, 16);
}

class ScanTest : public DocTest {
 protected:
  // Puts the record of function f, as built by `fill` from its defaults, on line 0.
  template <typename Fill>
  void Line(int f, Fill fill) {
    std::memcpy(WorkRecord.Image(f), InitRecord.Image(f), kCatalogueLength[f]);
    fill(WorkRecord);
    LineTable[0].LineFuncNo = static_cast<int16_t>(f);
    UpdateFuncParm(0, f);
    std::memset(&WorkRecord, 0, sizeof WorkRecord);  // the scans load the block themselves
  }
  const VarRef count_ = Var(kVarLong, "Count");
};

TEST_F(ScanTest, VariablesOnlyInTheListedFields) {
  Line(0, [&](RecordSet& w) { w.Assign.Source = count_; });
  EXPECT_TRUE(FoundVarFunc(0, count_));
  EXPECT_FALSE(FoundVarFunc(0, Var(kVarDouble, "Count")));  // type and name both count

  Line(11, [&](RecordSet& w) { w.Random.Target = count_; });
  EXPECT_FALSE(FoundVarFunc(0, count_));

  Line(34, [&](RecordSet& w) { w.UpdateRecord.WhereValue[0] = count_; });
  EXPECT_FALSE(FoundVarFunc(0, count_));

  Line(19, [&](RecordSet& w) {
    w.WaitForCall.CalledIdVar = count_;
    w.WaitForCall.GetCalledId = 1;
  });
  EXPECT_FALSE(FoundVarFunc(0, count_));
  Line(19, [&](RecordSet& w) { w.WaitForCall.CallerIdVar = count_; });
  EXPECT_FALSE(FoundVarFunc(0, count_));  // only when the caller id is taken
  Line(19, [&](RecordSet& w) {
    w.WaitForCall.CallerIdVar = count_;
    w.WaitForCall.GetCallerId = 1;
  });
  EXPECT_TRUE(FoundVarFunc(0, count_));

  Line(55, [&](RecordSet& w) { w.Prototype.ProtoFunction = count_; });
  EXPECT_FALSE(FoundVarFunc(0, count_));
  Line(55, [&](RecordSet& w) { w.Prototype.ProtoVar[7] = count_; });
  EXPECT_TRUE(FoundVarFunc(0, count_));

  Line(17, [&](RecordSet& w) { w.VarExport.ExportVar[24] = count_; });
  EXPECT_TRUE(FoundVarFunc(0, count_));
  Line(48, [&](RecordSet& w) { w.InString.Operand = count_; });
  EXPECT_TRUE(FoundVarFunc(0, count_));
  Line(54, [&](RecordSet& w) { w.CTBusConnect.BusVar[3] = count_; });
  EXPECT_TRUE(FoundVarFunc(0, count_));
  Line(39, [&](RecordSet& w) { w.GetNoOfRec.Target = count_; });
  EXPECT_TRUE(FoundVarFunc(0, count_));
}

TEST_F(ScanTest, IfNamedFieldsIgnoreAnEmptyName) {
  const VarRef empty = Var(kConstString, "");
  Line(12, [&](RecordSet& w) { w.RecordSound.FileName = empty; });
  EXPECT_FALSE(FoundVarFunc(0, empty));
  Line(45, [&](RecordSet& w) { w.LenString.Source = empty; });
  EXPECT_TRUE(FoundVarFunc(0, empty));  // compared whether named or not
  Line(53, [&](RecordSet& w) { w.Run.Parameters = count_; });
  EXPECT_TRUE(FoundVarFunc(0, count_));
}

TEST_F(ScanTest, PathsByTypeAndName) {
  const std::string voice = Name28("Prompts");
  Line(16, [&](RecordSet& w) { SetField(w.SayNumber.SayPath[0], "Prompts"); });
  EXPECT_FALSE(FoundPathFunc(0, kPathVoice, voice));  // PlayFlag 0 clear
  Line(16, [&](RecordSet& w) {
    SetField(w.SayNumber.SayPath[0], "Prompts");
    w.SayNumber.PlayFlag[0] = 1;
  });
  EXPECT_TRUE(FoundPathFunc(0, kPathVoice, voice));
  EXPECT_FALSE(FoundPathFunc(0, kPathNumber, voice));
  Line(16, [&](RecordSet& w) { SetField(w.SayNumber.SayPath[2], "Prompts"); });
  EXPECT_TRUE(FoundPathFunc(0, kPathNumber, voice));

  Line(1, [&](RecordSet& w) {
    w.AssignPath.PathType = kPathGeneral;
    SetField(w.AssignPath.SourcePath, "Prompts");
  });
  EXPECT_TRUE(FoundPathFunc(0, kPathGeneral, voice));
  EXPECT_FALSE(FoundPathFunc(0, kPathExport, voice));
  Line(21, [&](RecordSet& w) { SetField(w.SayFile.MessagePath, "Prompts"); });
  EXPECT_TRUE(FoundPathFunc(0, kPathMessage, voice));
  EXPECT_FALSE(FoundPathFunc(0, kPathVoice, voice));
  Line(53, [&](RecordSet& w) { SetField(w.Run.RunPath, "Prompts"); });
  EXPECT_TRUE(FoundPathFunc(0, kPathGeneral, voice));
  Line(55, [&](RecordSet& w) {
    w.Prototype.PathType = kPathNumber;
    SetField(w.Prototype.ProtoPath[3], "Prompts");
  });
  EXPECT_TRUE(FoundPathFunc(0, kPathNumber, voice));
  EXPECT_TRUE(
      FoundPathFunc(0, kPathNumber, std::string_view("Prompts\0", 8)));  // a shorter key is padded
}

TEST_F(ScanTest, LabelsOnlyInTheListedFields) {
  const std::string end = Label16("End");
  Line(18, [&](RecordSet& w) { SetField(w.Voice.ErrorLabel.LabelRefName, "End"); });
  EXPECT_FALSE(FoundLblFunc(0, end));
  Line(18, [&](RecordSet& w) { SetField(w.Voice.HangupLabel.LabelRefName, "End"); });
  EXPECT_TRUE(FoundLblFunc(0, end));
  Line(16, [&](RecordSet& w) { SetField(w.SayNumber.HangupLabel.LabelRefName, "End"); });
  EXPECT_FALSE(FoundLblFunc(0, end));
  Line(37, [&](RecordSet& w) { SetField(w.DialNumber.ErrorLabel.LabelRefName, "End"); });
  EXPECT_FALSE(FoundLblFunc(0, end));
  Line(19, [&](RecordSet& w) { SetField(w.WaitForCall.DailyLabel.LabelRefName, "End"); });
  EXPECT_FALSE(FoundLblFunc(0, end));
  Line(20, [&](RecordSet& w) { SetField(w.WaitForKey.KeyLabel[18], "End"); });
  EXPECT_TRUE(FoundLblFunc(0, end));
  Line(3, [&](RecordSet& w) { SetField(w.Condition.ElseLabel, "End"); });
  EXPECT_TRUE(FoundLblFunc(0, end));
  Line(5, [&](RecordSet& w) { SetField(w.CallOut.OutcomeLabel[6], "End"); });
  EXPECT_TRUE(FoundLblFunc(0, end));
  Line(50, [&](RecordSet& w) { SetField(w.CheckFile.CheckLabel[1], "End"); });
  EXPECT_TRUE(FoundLblFunc(0, end));
  EXPECT_FALSE(FoundLblFunc(0, Label16("Ends")));
  Line(33, [&](RecordSet& w) { SetField(w.GetPrevRecord.NoDataLabel.LabelRefName, "End"); });
  EXPECT_FALSE(FoundLblFunc(0, end));
}

TEST_F(ScanTest, IllegalNumbersEndTheProgram) {
  LineTable[0].LineFuncNo = 42;
  const struct {
    bool (*scan)();
    const char* text;
  } cases[] = {
      {[] { return FoundVarFunc(0, BlankVarRef); },
       "Illegal Function Number  42 in KQEditSub - FoundVarFunc"},
      {[] { return FoundPathFunc(0, 65, ""); },
       "Illegal Function Number  42 in KQEditSub - FoundPathFunc"},
      {[] { return FoundLblFunc(0, ""); },
       "Illegal Function Number  42 in KQEDIT1 - FoundLblFunc."},
  };
  for (const auto& c : cases) {
    platform_.ClearEvents();
    EXPECT_THROW(c.scan(), ui::ProgramEnded);
    EXPECT_EQ(platform_.Events().at(0).fields["text"].Str(), c.text);
  }
}

}  // namespace
