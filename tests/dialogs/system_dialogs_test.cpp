// The file and system function dialogs: Check Path, Check File, Delete File, Sound File
// Count, Run, Variable Export and Prototype.
#include <functional>

#include "dialogs/dialogs.h"
#include "dialogs/frm_check_file.h"
#include "dialogs/frm_check_path.h"
#include "dialogs/frm_delete_file.h"
#include "dialogs/frm_prototype.h"
#include "dialogs/frm_run.h"
#include "dialogs/frm_sound_file_counter.h"
#include "dialogs/frm_var_exp.h"
#include "tests/dialogs/dialog_fixture.h"
#include "tests/dialogs/dialog_values.h"

namespace kqtest {
namespace {

class SystemDialogTest : public DialogTest {
 protected:
  void SetUp() override {
    DialogTest::SetUp();
    AddVariable("Count", kq::kVarLong);
    AddVariable("Rate", kq::kVarDouble);
    AddVariable("Name", kq::kVarString);
    AddVariable("File", kq::kVarString);
    DeclarePath('A', 0, "Out");
    DeclarePath('B', 0, "Msgs");
    DeclarePath('B', 1, "Greet");
    DeclarePath('E', 0, "Tools");
    DeclareTable(0, "Orders");
  }
};

// ---- Check Path, Check File, Delete File

TEST_F(SystemDialogTest, CheckPathNeedsOneOfTheTwoTargets) {
  Run<kq::frmCheckPath>(49, [&](kq::frmCheckPath& d) {
    EXPECT_EQ(Items(d.cboPath), (std::vector<std::string>{"Export", "Message", "General"}));
    EXPECT_EQ(Items(d.cboPathVar), (std::vector<std::string>{"Out"}));
    d.cboLabel[0].SetText("  ");
    d.cboLabel[1].SetText("   ");
    ExpectRefused(d, "cboLabel(1)");
    EXPECT_EQ(d.cboLabel[1].Text(), "");
    // Another type offers its own variables, the first one chosen.
    d.cboPath.UserSelect(1);
    EXPECT_EQ(Items(d.cboPathVar), (std::vector<std::string>{"Msgs", "Greet"}));
    EXPECT_EQ(d.cboPathVar.Text(), "Msgs");
    d.cboPathVar.UserSelect(1);
    d.cboLabel[1].SetFocus();
    Type(d.cboLabel[1], " Gone ");
    d.cmdOk.UserClick();
  });
  ASSERT_TRUE(kq::FuncOk);
  EXPECT_EQ(kq::FuncLine,
            Head("", "Check Path") + "Message:  IF Greet DO NOT EXISTS THEN CONTINUE ELSE Gone");
  EXPECT_EQ(Bytes(kq::WorkRecord.CheckPath),
            Int('B') + Field<28>("Greet") + Field<16>("") + Field<16>("Gone") + Int(-1) + Int(-1));
  // A then-target alone ends the text.
  Run<kq::frmCheckPath>(49, [&](kq::frmCheckPath& d) {
    d.cboLabel[0].SetText("Missing");
    d.cmdOk.UserClick();
  });
  EXPECT_EQ(kq::FuncLine, Head("", "Check Path") + "Export:  IF Out DO NOT EXISTS THEN Missing");
  // A line whose path type went undeclared stored none; it opens on the first type.
  AddLine("", 49);
  kq::RecordSet rec = kq::InitRecord;
  rec.CheckPath.PathType = 0;
  kq::SetField(rec.CheckPath.CheckLabel[0], "Missing");
  PrepareModify(0, rec);
  Run<kq::frmCheckPath>(49, [&](kq::frmCheckPath& d) {
    EXPECT_EQ(d.cboPathVar.Text(), "Out");
    EXPECT_EQ(d.cboLabel[0].Text(), "Missing");
  });
}

TEST_F(SystemDialogTest, CheckFileTakesATypedNameAsAStringConstant) {
  Run<kq::frmCheckFile>(50, [&](kq::frmCheckFile& d) {
    EXPECT_EQ(d.lblThenLabel.Caption(), "DOESN'T EXIST THEN GOTO");
    EXPECT_EQ(Items(d.cboFileVar), (std::vector<std::string>{"Name", "File"}));
    ExpectRefused(d, "cboLabel(1)");
    d.cboPath.UserSelect(2);
    d.cboFileVar.SetFocus();
    d.cboFileVar.SetText("");
    Type(d.cboFileVar, "a\"b.txt\r");  // no filter but Enter
    d.cboLabel[0].SetText("No");
    d.cboLabel[1].SetText("Yes");
    d.cmdOk.UserClick();
  });
  ASSERT_TRUE(kq::FuncOk);
  EXPECT_EQ(kq::FuncLine,
            Head("", "Check File") + "General\\Tools:  IF a\"b.txt DO NOT EXISTS THEN No ELSE Yes");
  EXPECT_EQ(Bytes(kq::WorkRecord.CheckFile), Int('E') + Field<28>("Tools") +
                                                 Bytes(Var(10, "a\"b.txt")) + Field<16>("No") +
                                                 Field<16>("Yes") + Int(-1) + Int(-1));
}

TEST_F(SystemDialogTest, CheckFileModifyShowsTheLineAndKeepsTheLineNumbers) {
  AddLine("Here", 50);
  AddLine("Yes", 13);
  kq::RecordSet rec = kq::InitRecord;
  kq::CheckFileRec& r = rec.CheckFile;
  r.PathType = 'B';
  kq::SetField(r.PathVar, "Greet");
  r.FileVar = Var(2, "File");
  kq::SetField(r.CheckLabel[0], "");
  kq::SetField(r.CheckLabel[1], "Yes");
  r.CheckLine[0] = 4;
  r.CheckLine[1] = 1;
  PrepareModify(0, rec);
  Run<kq::frmCheckFile>(50, [&](kq::frmCheckFile& d) {
    EXPECT_EQ(d.txtLabel.Text(), "Here");
    EXPECT_EQ(d.cboPath.Text(), kq::Row(kq::PathTypeNames[1]));
    EXPECT_EQ(d.cboPathVar.Text(), "Greet");
    EXPECT_EQ(kq::RTrim(d.cboFileVar.Text()), "File");
    EXPECT_EQ(d.cboLabel[1].ListIndex(), 1);
    d.cmdOk.UserClick();
  });
  ASSERT_TRUE(kq::FuncOk);
  EXPECT_EQ(kq::FuncLine, Head("Here", "Check File") +
                              "Message\\Greet:  IF File DO NOT EXISTS THEN CONTINUE "
                              "ELSE Yes");
  EXPECT_EQ(Bytes(kq::WorkRecord.CheckFile), Bytes(r));
}

TEST_F(SystemDialogTest, DeleteFileOffersEveryPathType) {
  DeclarePath('C', 0, "Nums");
  DeclarePath('D', 0, "Voices");
  Run<kq::frmDeleteFile>(51, [&](kq::frmDeleteFile& d) {
    EXPECT_EQ(Items(d.cboPath).size(), 5u);
    d.cboPath.UserSelect(3);
    d.cboLabel[0].SetText("Keep");
    d.cmdOk.UserClick();
  });
  ASSERT_TRUE(kq::FuncOk);
  EXPECT_EQ(kq::FuncLine,
            Head("", "Delete File") + "Voice\\Voices\\Name:  IF THE FILE WASN'T DELETED THEN Keep");
  EXPECT_EQ(Bytes(kq::WorkRecord.DeleteFile.FileVar), Bytes(Var(2, "Name")));
}

// ---- Sound File Count

TEST_F(SystemDialogTest, SoundFileCountKeepsTheActionAtFullWidth) {
  AddLine("", 52);
  kq::RecordSet rec = kq::InitRecord;
  rec.SoundFileCount.Format = 1;
  rec.SoundFileCount.Target = Var(0, "Count");
  PrepareModify(0, rec);
  Run<kq::frmSoundFileCounter>(52, [&](kq::frmSoundFileCounter& d) {
    EXPECT_EQ(d.Caption(), "Sound File Counter");
    EXPECT_TRUE(d.optAction[1].Value());
    EXPECT_EQ(Items(d.cboVariable), (std::vector<std::string>{"Count"}));
    const int beeps = p.CountOf("beep");
    Type(d.optAction[0], "x");
    EXPECT_EQ(p.CountOf("beep"), beeps + 1);
    EXPECT_TRUE(d.optAction[1].Value());
    d.cmdOk.UserClick();
  });
  ASSERT_TRUE(kq::FuncOk);
  EXPECT_EQ(kq::FuncLine, Head("", "Sound File Count") + "Set Counter   Variable = Count");
  EXPECT_EQ(Bytes(kq::WorkRecord.SoundFileCount), Int(1) + Bytes(Var(0, "Count")));
  kq::FuncModify = false;
  Run<kq::frmSoundFileCounter>(52, [&](kq::frmSoundFileCounter& d) { d.cmdOk.UserClick(); });
  EXPECT_EQ(kq::FuncLine, Head("", "Sound File Count") + "Get Counter   Variable = Count");
}

// ---- Run

TEST_F(SystemDialogTest, RunNeedsAProgramAndTrimsTheLastPiece) {
  Run<kq::frmRun>(53, [&](kq::frmRun& d) {
    EXPECT_EQ(Items(d.cboPathVar), (std::vector<std::string>{"Tools"}));
    d.cboFileVar.SetText("  ");
    ExpectRefused(d, "cboFileVar");
    d.cboFileVar.SetText("calc.exe");
    d.cboParmVar.SetText("");
    d.cmdOk.UserClick();
  });
  ASSERT_TRUE(kq::FuncOk);
  // "Term=No " loses its blank when no error target follows.
  EXPECT_EQ(kq::FuncLine, Head("", "Run") + "Tools\\calc.exe Term=No");
  EXPECT_EQ(Bytes(kq::WorkRecord.Run), Field<28>("Tools") + Bytes(Var(10, "calc.exe")) +
                                           Bytes(Var(10, "")) + Int(0) + Bytes(kq::BlankLabelRef));
  Run<kq::frmRun>(53, [&](kq::frmRun& d) {
    d.cboParmVar.UserSelect(1);
    d.chkTermination.UserClick();
    d.cboLabel.SetText(" Fail");
    d.cmdOk.UserClick();
  });
  EXPECT_EQ(kq::FuncLine, Head("", "Run") + "Tools\\Name P=File Term=Yes E=Fail");
  EXPECT_EQ(kq::WorkRecord.Run.WaitForTermination, 1);
}

// ---- Variable Export

class VarExpTest : public SystemDialogTest {
 protected:
  static std::vector<std::string> Exported(const kq::frmVarExp& d) {
    std::vector<std::string> out;
    for (const std::string& s : d.lstExpVariable.Items()) out.push_back(kq::RTrim(s));
    return out;
  }
  // Selects a variable on the left by name and adds it.
  static void Add(kq::frmVarExp& d, const std::string& name) {
    for (int i = 0; i < d.lstVariable.ListCount(); ++i) {
      if (kq::RTrim(d.lstVariable.List(i)) == name) d.lstVariable.UserSelect(i);
    }
    d.cmdAdd.UserClick();
  }
};

TEST_F(VarExpTest, AddInsertsBeforeTheSelectionThenAppends) {
  Run<kq::frmVarExp>(17, [&](kq::frmVarExp& d) {
    EXPECT_EQ(d.lstVariable.ListIndex(), 0);
    EXPECT_TRUE(d.optDataType[0].Value());  // Count, the first in order
    EXPECT_FALSE(d.cmdDelete.Enabled());
    Add(d, "Name");
    Add(d, "Rate");
    EXPECT_TRUE(d.optExpDataType[1].Value());
    d.lstExpVariable.UserSelect(1);
    EXPECT_TRUE(d.cmdDelete.Enabled());
    Add(d, "Count");
    Add(d, "File");
    EXPECT_EQ(Exported(d), (std::vector<std::string>{"Name", "Count", "Rate", "File"}));
    EXPECT_EQ(d.lstExpDataType.Items(), (std::vector<std::string>{"2", "0", "1", "2"}));
    EXPECT_EQ(LastFocus(), "lstVariable");
    // A double click clears the selection and removes nothing.
    d.lstExpVariable.UserSelect(3);
    d.lstExpVariable.RaiseDblClick();
    EXPECT_EQ(Exported(d).size(), 4u);
    const int beeps = p.CountOf("beep");
    d.cmdDelete.UserClick();
    EXPECT_EQ(p.CountOf("beep"), beeps + 1);
    d.lstExpVariable.UserSelect(0);
    d.cmdDelete.UserClick();
    EXPECT_EQ(Exported(d), (std::vector<std::string>{"Count", "Rate", "File"}));
    EXPECT_EQ(d.lstExpDataType.Items(), (std::vector<std::string>{"0", "1", "2"}));
    EXPECT_FALSE(d.cmdDelete.Enabled());
    Add(d, "Rate");
    EXPECT_EQ(BoxTexts(), (std::vector<std::string>{"Variable Rate exist already."}));
    EXPECT_EQ(p.EventsOf("msgbox").back().fields["title"].Str(), "Variable add error");
    d.cboFieldSeparator.UserSelect(3);
    d.cboTextDelimiter.UserSelect(2);
    d.cboVariable.SetFocus();
    d.cboVariable.SetText("");
    Type(d.cboVariable, "out\".csv");
    d.cmdOk.UserClick();
  });
  ASSERT_TRUE(kq::FuncOk);
  EXPECT_EQ(kq::FuncLine,
            Head("", "Variable Export") + "Out\\out.csv Exp=Count & Rate & File  FS=Tab  TD=None");
  const kq::VarExportRec& r = kq::WorkRecord.VarExport;
  std::string vars = Bytes(Var(0, "Count")) + Bytes(Var(1, "Rate")) + Bytes(Var(2, "File"));
  for (int i = 3; i < 25; ++i) vars += Bytes(kq::BlankVarRef);
  EXPECT_EQ(Bytes(r), vars + Int(3) + Int(2) + Field<28>("Out") + Bytes(Var(10, "out.csv")) +
                          Bytes(kq::BlankLabelRef));
}

TEST_F(VarExpTest, TwentyFiveVariablesAtMostAndTheRefusalsOfOk) {
  for (int i = 0; i < 22; ++i) AddVariable("V" + kq::Format000(i), kq::kVarLong);
  Run<kq::frmVarExp>(17, [&](kq::frmVarExp& d) {
    ExpectRefused(d, "lstExpVariable");
    for (int i = 0; i < 26; ++i) {
      d.lstVariable.UserSelect(i);
      d.cmdAdd.UserClick();
    }
    EXPECT_EQ(d.lstExpVariable.ListCount(), 25);
    EXPECT_EQ(BoxTexts(), (std::vector<std::string>{"Maximum number of export variables are  25"}));
    // Clear asks first: Cancel keeps the list.
    p.QueueAnswer(ui::vbCancel);
    d.cmdClear.UserClick();
    EXPECT_EQ(d.lstExpVariable.ListCount(), 25);
    EXPECT_EQ(p.EventsOf("msgbox").back().fields["text"].Str(), "Clear all the export variables ?");
    p.QueueAnswer(ui::vbOK);
    d.cmdClear.UserClick();
    EXPECT_EQ(d.lstExpVariable.ListCount(), 0);
    EXPECT_EQ(d.lstExpDataType.ListCount(), 0);
    d.lstVariable.UserSelect(0);
    d.cmdAdd.UserClick();
    d.cboVariable.SetText("");
    const int boxes = p.CountOf("msgbox");
    d.cmdOk.UserClick();
    EXPECT_EQ(LastFocus(), "cboVariable");
    EXPECT_EQ(p.CountOf("msgbox"), boxes);
    EXPECT_FALSE(kq::FuncOk);
  });
}

TEST_F(VarExpTest, ModifyListsTheStoredVariablesInTheirOrder) {
  AddLine("Exp", 17);
  kq::RecordSet rec = kq::InitRecord;
  kq::VarExportRec& r = rec.VarExport;
  r.ExportVar[0] = Var(2, "Name");
  r.ExportVar[2] = Var(1, "Gone");  // stored as it was added, even when no longer declared
  r.FieldSep = 4;
  r.TextDelim = 1;
  kq::SetField(r.ExportPath, "Out");
  r.ExportFile = Var(2, "File");
  kq::SetField(r.ErrorLabel.LabelRefName, "Exp");
  r.ErrorLabel.LabelRefLine = 0;
  PrepareModify(0, rec);
  Run<kq::frmVarExp>(17, [&](kq::frmVarExp& d) {
    EXPECT_EQ(Exported(d), (std::vector<std::string>{"Name", "Gone"}));
    EXPECT_EQ(kq::RTrim(d.cboFieldSeparator.Text()), "None");
    EXPECT_EQ(kq::RTrim(d.cboTextDelimiter.Text()), "'");
    d.cmdOk.UserClick();
  });
  ASSERT_TRUE(kq::FuncOk);
  EXPECT_EQ(kq::FuncLine,
            Head("Exp", "Variable Export") + "Out\\File Exp=Name & Gone  FS=None  TD=' E=Exp");
  EXPECT_EQ(Bytes(kq::WorkRecord.VarExport.ExportVar[1]), Bytes(Var(1, "Gone")));
  EXPECT_EQ(Bytes(kq::WorkRecord.VarExport.ExportVar[2]), Bytes(kq::BlankVarRef));
  EXPECT_EQ(kq::WorkRecord.VarExport.ErrorLabel.LabelRefLine, 0);
}

// ---- Prototype

TEST_F(SystemDialogTest, PrototypeListsEverySlotThatHoldsSomething) {
  Run<kq::frmPrototype>(55, [&](kq::frmPrototype& d) {
    EXPECT_EQ(d.lblSlots[3].Caption(), "Path type/variables (0..3):");
    d.cmdOk.UserClick();
  });
  ASSERT_TRUE(kq::FuncOk);
  EXPECT_EQ(kq::FuncLine, Head("", "Prototype") +
                              "F=Count V0=Count V1=Count V2=Count V3=Count V4=Count V5=Count "
                              "V6=Count V7=Count PT=Export PV0=Out PV1=Out PV2=Out PV3=Out "
                              "DB=Orders" +
                              std::string(1, '\0'));

  Run<kq::frmPrototype>(55, [&](kq::frmPrototype& d) {
    d.cboVariable.SetFocus();
    d.cboVariable.SetText("");
    Type(d.cboVariable, "-x12");
    d.chkChoice[2].UserClick();
    d.chkChoice[7].UserClick();
    d.cboVar[5].UserSelect(2);
    d.cboLabel[3].SetText(" Next ");
    d.cboPath.UserSelect(1);
    EXPECT_EQ(Items(d.cboPathVar[3]), (std::vector<std::string>{"Msgs", "Greet"}));
    d.cboPathVar[1].UserSelect(1);
    d.cmdOk.UserClick();
  });
  const kq::PrototypeRec& r = kq::WorkRecord.Prototype;
  EXPECT_EQ(Bytes(r.ProtoFunction), Bytes(Var(8, "-12")));
  EXPECT_EQ(r.ProtoCheck[2], 1);
  EXPECT_EQ(r.ProtoCheck[3], 0);
  EXPECT_EQ(Bytes(r.ProtoVar[5]), Bytes(Var(2, "Name")));
  EXPECT_EQ(Bytes(r.ProtoLabel[3]), Field<16>("Next"));
  EXPECT_EQ(r.PathType, 'B');
  EXPECT_EQ(kq::FuncLine.substr(0, Head("", "Prototype").size() + 23),
            Head("", "Prototype") + "F=-12 C2=Yes C7=Yes V0=");
  EXPECT_NE(kq::FuncLine.find(" V5=Name V6=Count V7=Count L3=Next PT=Message PV0=Msgs "
                              "PV1=Greet PV2=Msgs PV3=Msgs DB=Orders"),
            std::string::npos);
}

TEST_F(SystemDialogTest, PrototypeKeepsAnIllegalFunctionValueAsItWas) {
  AddLine("", 55);
  kq::RecordSet rec = kq::InitRecord;
  rec.Prototype.ProtoFunction = Var(8, "7");
  rec.Prototype.ProtoLine[0] = 9;
  PrepareModify(0, rec);
  Run<kq::frmPrototype>(55, [&](kq::frmPrototype& d) {
    EXPECT_EQ(d.cboVariable.Text(), "7");
    d.cboVariable.SetText("");
    d.cmdOk.UserClick();
  });
  ASSERT_TRUE(kq::FuncOk);
  EXPECT_EQ(Bytes(kq::WorkRecord.Prototype.ProtoFunction), Bytes(Var(8, "7")));
  EXPECT_EQ(kq::WorkRecord.Prototype.ProtoLine[0], 9);
  EXPECT_EQ(kq::FuncLine.substr(0, Head("", "Prototype").size() + 4),
            Head("", "Prototype") + "F=7 ");
}

}  // namespace
}  // namespace kqtest
