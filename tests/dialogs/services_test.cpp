#include "dialogs/services.h"
#include "dialogs/dialogs.h"
#include "tests/dialogs/dialog_fixture.h"
#include "tests/dialogs/dialog_values.h"
#include "tests/support/test_text.h"

namespace kqtest {
namespace {

using kq::test::ProgramErrorOf;

using kq::VarRef;

class Host : public ui::Form {
 public:
  Host() : Form("frmHost", "Host") {}
  ui::ComboBox cbo{*this, "cbo"};
  ui::ListBox lst{*this, "lst"};
};

class ServicesTest : public DialogTest {
 protected:
  std::vector<std::string> Items(const ui::ComboBox& c) {
    std::vector<std::string> out;
    for (int i = 0; i < c.ListCount(); ++i) out.push_back(c.List(i));
    return out;
  }
  Host host;
};

// ---- Preconditions

TEST_F(ServicesTest, FunctionNeedingVariableAndPathShowsBothMessagesAndNoDialog) {
  kq::FuncOk = true;  // left by an earlier dialog
  kq::GetFuncParm(12);
  ASSERT_EQ(p.CountOf("msgbox"), 2);
  const auto boxes = p.EventsOf("msgbox");
  EXPECT_EQ(boxes[0].fields["title"].Str(), "Variable Define Error");
  EXPECT_EQ(boxes[0].fields["text"].Str(), "Define a string variable before using this function.");
  EXPECT_EQ(boxes[0].fields["icon"].Str(), "exclamation");
  EXPECT_EQ(boxes[1].fields["title"].Str(), "Path Variable Define Error");
  EXPECT_EQ(boxes[1].fields["text"].Str(),
            "Define a message path variable before using this function.");
  EXPECT_EQ(p.CountOf("show"), 0);
  EXPECT_FALSE(kq::FuncOk);
}

TEST_F(ServicesTest, PrototypeChecksTableThenVariableThenPath) {
  kq::GetFuncParm(55);
  EXPECT_EQ(BoxTexts(), (std::vector<std::string>{
                            "Define a Database table name before using this function.",
                            "Define a long variable before using this function.",
                            "Define a export, message, number, voice or general path variable "
                            "before using this function."}));
  p.ClearEvents();
  kq::GetFuncParm(38);
  EXPECT_EQ(BoxTexts(),
            (std::vector<std::string>{"Define a Database table name before using this function.",
                                      "Define a long variable before using this function."}));
  EXPECT_EQ(p.EventsOf("msgbox")[0].fields["title"].Str(), "Database table name Define Error");
}

TEST_F(ServicesTest, EveryLiveFunctionRunsTheChecksOfItsRow) {
  const std::string var = "Variable Define Error", path = "Path Variable Define Error",
                    table = "Database table name Define Error";
  struct Row {
    std::vector<int> functions;
    std::vector<std::string> titles;
  };
  const std::vector<Row> rows = {
      {{4, 9, 10, 13, 14, 15, 19, 20, 43}, {}},
      {{0, 2, 3, 5, 6, 7, 8, 11, 36, 37, 41, 44, 45, 46, 47, 48, 52, 54}, {var}},
      {{1, 18, 49}, {path}},
      {{12, 16, 17, 21, 50, 51, 53}, {var, path}},
      {{24, 25, 26, 27, 28, 29, 30, 31, 32, 33, 34, 40}, {table}},
      {{38, 39}, {table, var}},
      {{55}, {table, var, path}},
  };
  p.modalDriver = [](ui::Form& f) { f.Unload(); };  // a dialog that opens is closed
  int covered = 0;
  for (const Row& row : rows) {
    for (const int n : row.functions) {
      p.ClearEvents();
      PrepareNew(n);
      kq::GetFuncParm(n);
      std::vector<std::string> titles;
      for (const auto& e : p.EventsOf("msgbox")) {
        if (e.fields["title"].Str() != "Function") titles.push_back(e.fields["title"].Str());
      }
      EXPECT_EQ(titles, row.titles) << "function " << n;
      EXPECT_EQ(p.CountOf("show") + p.CountOf("msgbox") - static_cast<int>(titles.size()),
                titles.empty() ? 1 : 0)
          << "function " << n << ": the dialog opens exactly when nothing is missing";
      ++covered;
    }
  }
  EXPECT_EQ(covered, 52);
}

TEST_F(ServicesTest, OnlyTheMissingDeclarationIsReported) {
  AddVariable("Name", kq::kVarString);
  kq::GetFuncParm(21);
  EXPECT_EQ(
      BoxTexts(),
      (std::vector<std::string>{"Define a message path variable before using this function."}));
}

TEST_F(ServicesTest, EveryLiveFunctionHasADialogAndNoOtherNumber) {
  for (int funcNo = -1; funcNo <= kq::kFuncCount; ++funcNo) {
    EXPECT_EQ(kq::HasFuncDialog(funcNo), kq::IsLiveFunction(funcNo)) << funcNo;
  }
}

TEST_F(ServicesTest, IllegalFunctionNumbersAreProgramErrors) {
  EXPECT_EQ(ProgramErrorOf([] { kq::GetFuncParm(22); }),
            "Illegal Function Number  22 in Global GetFuncParm.");
  EXPECT_EQ(ProgramErrorOf([] { kq::GetFuncParm(-1); }),
            "Illegal Function Number -1 in Global GetFuncParm.");
  EXPECT_EQ(ProgramErrorOf([] { kq::GetFuncParm(56); }),
            "Illegal Function Number  56 in Global GetFuncParm.");
  EXPECT_EQ(ProgramErrorOf([] { kq::DefinedVar(true, 4); }),
            "Illegal Function Number  4 in Global DefinedVar.");
  EXPECT_EQ(ProgramErrorOf([] { kq::DefinedPath(false, 0); }),
            "Illegal Function Number  0 in Global DefinedPath.");
  EXPECT_EQ(p.EventsOf("msgbox").back().fields["title"].Str(), "Program Error");
}

TEST_F(ServicesTest, DefinedVarCountsOnlyTheKindsTheFunctionTakes) {
  AddVariable("D", kq::kVarDouble);
  EXPECT_TRUE(kq::DefinedVar(false, 0));
  EXPECT_FALSE(kq::DefinedVar(false, 5));  // a Double never does for Call Out
  EXPECT_FALSE(kq::DefinedVar(false, 11));
  AddVariable("L", kq::kVarLong);
  EXPECT_TRUE(kq::DefinedVar(false, 11));
  EXPECT_FALSE(kq::DefinedVar(true, 45));  // Long and String both needed
  EXPECT_EQ(
      BoxTexts(),
      (std::vector<std::string>{"Define a long and string variable before using this function."}));
  AddVariable("S", kq::kVarString);
  EXPECT_TRUE(kq::DefinedVar(true, 45));
  EXPECT_EQ(p.CountOf("msgbox"), 1);
}

TEST_F(ServicesTest, AnEntryWithoutNameIsNotADeclaration) {
  kq::PrgHdr.Variable[3].VarRefType = kq::kVarLong;  // a type but a lone NUL as name
  EXPECT_FALSE(kq::DefinedVar(false, 11));
}

TEST_F(ServicesTest, DefinedPathLooksAtRowZeroOfTheTypesNamed) {
  DeclarePath(kq::kPathGeneral, 0, "Gen");
  EXPECT_TRUE(kq::DefinedPath(false, 49));
  EXPECT_FALSE(kq::DefinedPath(false, 51));  // General does not serve Delete File
  DeclarePath(kq::kPathVoice, 1, "V1");      // row 1 alone does not count
  EXPECT_FALSE(kq::DefinedPath(true, 18));
  EXPECT_EQ(BoxTexts().back(), "Define a voice path variable before using this function.");
  DeclarePath(kq::kPathVoice, 0, "V0");
  EXPECT_TRUE(kq::DefinedPath(false, 51));
}

TEST_F(ServicesTest, DefinedDBTblFindsATableAnywhere) {
  EXPECT_FALSE(kq::DefinedDBTbl());
  DeclareTable(49, "Last");
  EXPECT_TRUE(kq::DefinedDBTbl());
  EXPECT_EQ(p.CountOf("msgbox"), 1);
}

// ---- Variables

TEST_F(ServicesTest, AssignListBoxVarLongConstants) {
  AddVariable("Count", kq::kVarLong);
  const VarRef before = Var(kq::kVarLong, "Count");
  struct Case {
    std::string text;
    bool ok;
    std::string name;
  };
  for (const Case& c :
       {Case{"1.5", false, ""}, Case{"", false, ""}, Case{"007", true, "7"}, Case{"-0", true, "0"},
        Case{"-12", true, "-12"}, Case{"3000000000", false, ""}}) {
    host.cbo.SetText(c.text);
    ASSERT_EQ(host.cbo.ListIndex(), -1);
    VarRef v = before;
    EXPECT_EQ(kq::AssignListBoxVar(host.cbo, kq::kVarLong, v), c.ok) << c.text;
    if (c.ok) {
      EXPECT_EQ(v.VarRefType, kq::kConstLong);
      EXPECT_EQ(Bytes(v), Bytes(Var(kq::kConstLong, c.name))) << c.text;
    } else {
      EXPECT_EQ(Bytes(v), Bytes(before)) << c.text;
    }
  }
}

TEST_F(ServicesTest, AssignListBoxVarDoubleAndStringConstants) {
  VarRef v = Var(kq::kVarNone, "");
  host.cbo.SetText("1,5");  // read up to the comma
  EXPECT_TRUE(kq::AssignListBoxVar(host.cbo, kq::kVarDouble, v));
  EXPECT_EQ(Bytes(v), Bytes(Var(kq::kConstDouble, "1")));
  host.cbo.SetText("-2.25");
  EXPECT_TRUE(kq::AssignListBoxVar(host.cbo, kq::kVarDouble, v));
  EXPECT_EQ(Bytes(v), Bytes(Var(kq::kConstDouble, "-2.25")));
  host.cbo.SetText("-0");
  EXPECT_TRUE(kq::AssignListBoxVar(host.cbo, kq::kVarDouble, v));
  EXPECT_EQ(Bytes(v), Bytes(Var(kq::kConstDouble, "0")));
  host.cbo.SetText("");
  EXPECT_FALSE(kq::AssignListBoxVar(host.cbo, kq::kVarDouble, v));
  EXPECT_TRUE(kq::AssignListBoxVar(host.cbo, kq::kVarString, v));  // a valid empty constant
  EXPECT_EQ(Bytes(v), Bytes(Var(kq::kConstString, "")));
  host.cbo.SetText("say \"hi\"");
  EXPECT_TRUE(kq::AssignListBoxVar(host.cbo, kq::kVarString, v));
  EXPECT_EQ(Bytes(v), Bytes(Var(kq::kConstString, "say \"hi\"")));
}

TEST_F(ServicesTest, AssignListBoxVarTakesAChosenVariableWhole) {
  AddVariable("Alpha", kq::kVarString);
  AddVariable("Beta", kq::kVarLong);
  kq::GetListBoxVar(true, true, true, host.cbo, Var(kq::kVarLong, "Beta"));
  ASSERT_EQ(host.cbo.Text(), kq::NulToBlank(kq::View(kq::PrgHdr.Variable[1].VarRefName)));
  VarRef v = Var(kq::kVarNone, "");
  EXPECT_TRUE(kq::AssignListBoxVar(host.cbo, kq::kVarString, v));
  EXPECT_EQ(Bytes(v), Bytes(kq::PrgHdr.Variable[1]));
  EXPECT_TRUE(kq::AssignListBoxVar(host.cbo, -1, v));
  EXPECT_EQ(Bytes(v), Bytes(kq::PrgHdr.Variable[1]));
  EXPECT_EQ(ProgramErrorOf([&] { kq::AssignListBoxVar(host.cbo, 3, v); }),
            "Illegal datatype  3 in Global AssignListBoxVar.");
  host.cbo.SetText("Gamma");
  EXPECT_EQ(ProgramErrorOf([&] { kq::AssignListBoxVar(host.cbo, -1, v); }),
            "Variable name 'Gamma' not found in Global GetListboxVarNo.");
}

TEST_F(ServicesTest, GetListBoxVarShowsTheChosenTypesAndSelectsTheRecordsValue) {
  AddVariable("Sum", kq::kVarDouble);
  AddVariable("Name", kq::kVarString);
  AddVariable("count", kq::kVarLong);
  kq::GetListBoxVar(true, true, false, host.cbo, Var(kq::kVarLong, "count"));
  ASSERT_EQ(host.cbo.ListCount(), 2);
  EXPECT_EQ(kq::RTrim(host.cbo.List(0)), "Sum");
  EXPECT_EQ(host.cbo.List(0).size(), 28u);  // the name field with its NUL as a blank
  EXPECT_EQ(host.cbo.ListIndex(), 1);
  // Same name, other type: not the record's variable; the first is selected.
  kq::GetListBoxVar(true, true, false, host.cbo, Var(kq::kVarDouble, "count"));
  EXPECT_EQ(host.cbo.ListIndex(), 0);
  kq::GetListBoxVar(true, true, true, host.cbo, Var(kq::kConstString, "hello"));
  EXPECT_EQ(host.cbo.Text(), "hello");
  EXPECT_EQ(host.cbo.ListIndex(), -1);
  kq::GetListBoxVar(false, false, true, host.cbo, Var(kq::kVarNone, ""));
  EXPECT_EQ(host.cbo.ListIndex(), 0);
  EXPECT_EQ(ProgramErrorOf([&] { kq::GetListBoxVar(true, true, true, host.cbo, Var(4, "x")); }),
            "Illegal Variable.Type  4 in Global GetListBoxVar.");
  kq::PrgHdr.Variable[1].VarRefType = 7;
  EXPECT_EQ(
      ProgramErrorOf([&] { kq::GetListBoxVar(true, true, true, host.cbo, Var(kq::kVarNone, "")); }),
      "Illegal PrgHdr_Variable.Type  7 in Global GetListBoxVar.");
}

TEST_F(ServicesTest, GetListboxVarNoTakesTheLastMatch) {
  AddVariable("A", kq::kVarLong);
  AddVariable("B", kq::kVarLong);
  AddVariable("A", kq::kVarString);
  host.cbo.SetText("A   ");
  EXPECT_EQ(kq::GetListboxVarNo(host.cbo), 2);
  // An empty text matches the unused entries, whose names are a lone NUL: the last wins.
  EXPECT_EQ(kq::GetListboxVarNo(host.lst), kq::kMaxVariables - 1);
}

// ---- Labels, tables, numbers, operators

TEST_F(ServicesTest, GetListBoxLabelListsTheLabelsOfAllLines) {
  AddLine("Start", 13);
  AddLine("", 4);
  AddLine("Loop", 10);
  char loop[16];
  kq::SetField(loop, "Loop");
  kq::GetListBoxLabel(host.cbo, kq::View(loop));
  EXPECT_EQ(Items(host.cbo), (std::vector<std::string>{"Start", "Loop"}));
  EXPECT_EQ(host.cbo.ListIndex(), 1);
  char unknown[16];
  kq::SetField(unknown, "Nowhere");
  kq::GetListBoxLabel(host.cbo, kq::View(unknown));
  EXPECT_EQ(host.cbo.Text(), "Nowhere");
  EXPECT_EQ(host.cbo.ListIndex(), -1);
  kq::SetField(unknown, "");
  kq::GetListBoxLabel(host.cbo, kq::View(unknown));
  EXPECT_EQ(host.cbo.Text(), "");
  EXPECT_EQ(host.cbo.ListIndex(), -1);
}

TEST_F(ServicesTest, GetListBoxDBTblAndNumber) {
  DeclareTable(0, "Orders");
  DeclareTable(5, "Clients");
  char name[16];
  kq::SetField(name, "Clients");
  kq::GetListBoxDBTbl(host.cbo, kq::View(name));
  EXPECT_EQ(Items(host.cbo), (std::vector<std::string>{"Orders", "Clients"}));
  EXPECT_EQ(host.cbo.ListIndex(), 1);
  kq::SetField(name, "Gone");
  kq::GetListBoxDBTbl(host.cbo, kq::View(name));
  EXPECT_EQ(host.cbo.ListIndex(), 0);

  kq::GetListBoxNumber(host.cbo, 1, 3, 2, 5);
  EXPECT_EQ(Items(host.cbo), (std::vector<std::string>{" 1", " 3", " 5", " 7"}));
  EXPECT_EQ(host.cbo.ListIndex(), 2);
  kq::GetListBoxNumber(host.cbo, -2, 2, 1, 9);
  EXPECT_EQ(Items(host.cbo), (std::vector<std::string>{"-2", "-1", " 0"}));
  EXPECT_EQ(host.cbo.ListIndex(), 0);
}

TEST_F(ServicesTest, OperatorsFollowTheDataTypeOfTheSlot) {
  kq::GetRelationalOpr(host.cbo, kq::kVarString, 4);
  EXPECT_EQ(Items(host.cbo), (std::vector<std::string>{"=", "<>"}));
  EXPECT_EQ(host.cbo.Text(), "=");
  kq::GetRelationalOpr(host.cbo, kq::kVarString, 1);
  EXPECT_EQ(host.cbo.Text(), "<>");
  kq::GetRelationalOpr(host.cbo, kq::kVarDouble, 4);
  EXPECT_EQ(host.cbo.Text(), "<=");
  EXPECT_EQ(host.cbo.ListCount(), 6);
  kq::GetArithmeticOpr(host.cbo, kq::kVarLong, 4);
  EXPECT_EQ(Items(host.cbo), (std::vector<std::string>{"+", "-", "*", "/"}));
  EXPECT_EQ(host.cbo.ListIndex(), 0);
  kq::GetArithmeticOpr(host.cbo, kq::kVarDouble, 4);
  EXPECT_EQ(host.cbo.Text(), "^");
  kq::GetArithmeticOpr(host.cbo, kq::kVarString, 3);
  EXPECT_EQ(Items(host.cbo), (std::vector<std::string>{"&"}));
  EXPECT_EQ(host.cbo.ListIndex(), 0);
  EXPECT_EQ(ProgramErrorOf([&] { kq::GetArithmeticOpr(host.cbo, 8, 0); }),
            "Illegal variable datatype  8 in Global GetArithmeticOpr");
  EXPECT_EQ(ProgramErrorOf([&] { kq::GetRelationalOpr(host.cbo, -1, 0); }),
            "Illegal variable datatype -1 in Global GetRelationalOpr.");
}

TEST_F(ServicesTest, AppendLabelParmAddsOnlyANamedLabel) {
  char err[16];
  kq::SetField(err, "Err");
  EXPECT_EQ(kq::AppendLabelParm("\t\tGosub            \tSub", " E=", kq::View(err)),
            "\t\tGosub            \tSub E=Err");
  const std::string empty = std::string(1, '\0') + std::string(15, ' ');
  EXPECT_EQ(kq::AppendLabelParm("\t\tGosub            \tSub", " E=", empty),
            "\t\tGosub            \tSub");
  EXPECT_EQ(kq::AppendLabelParm("\tL\tReturn           \t", " E=", empty), "\tL\tReturn");
}

// ---- Paths

TEST_F(ServicesTest, PathTypeCombosOfferTheDefinedTypes) {
  DeclarePath(kq::kPathMessage, 0, "Msg");
  DeclarePath(kq::kPathVoice, 0, "Voc");
  DeclarePath(kq::kPathGeneral, 1, "Gen1");  // row 0 empty: General not defined
  kq::GetListBoxPath(host.cbo, kq::kPathExport, kq::kPathVoice);
  ASSERT_EQ(host.cbo.ListCount(), 2);
  EXPECT_EQ(host.cbo.List(1), "Voice          ");
  EXPECT_EQ(host.cbo.ListIndex(), 1);
  EXPECT_EQ(kq::GetPathTypeLetter(host.cbo), kq::kPathVoice);
  kq::GetListBoxPath(host.cbo, kq::kPathNumber, -1);
  EXPECT_EQ(host.cbo.ListCount(), 1);
  EXPECT_EQ(kq::GetPathTypeLetter(host.cbo), kq::kPathVoice);
  host.cbo.SetText("Voice");  // without the padding of the name table
  EXPECT_EQ(kq::GetPathTypeLetter(host.cbo), 0);
  EXPECT_EQ(ProgramErrorOf([&] { kq::GetListBoxPath(host.cbo, 65, 70); }),
            "Illegal Path Type  70 in Global GetListBoxPath.");
}

TEST_F(ServicesTest, PathVariableCombos) {
  DeclarePath(kq::kPathVoice, 0, "Prompts");
  DeclarePath(kq::kPathVoice, 1, "Menus");
  char name[28];
  kq::SetField(name, "Menus");
  kq::GetListBoxPathVar(host.cbo, kq::kPathVoice, kq::View(name));
  EXPECT_EQ(Items(host.cbo), (std::vector<std::string>{"Prompts", "Menus"}));
  EXPECT_EQ(host.cbo.ListIndex(), 1);
  EXPECT_EQ(kq::GetListBoxPathVarNo(host.cbo, kq::kPathVoice), 1);
  kq::SetField(name, "Other");
  kq::GetListBoxPathVar(host.cbo, kq::kPathVoice, kq::View(name));
  EXPECT_EQ(host.cbo.ListIndex(), 0);
  kq::GetListBoxPathVar(host.cbo, -1, kq::View(name));
  EXPECT_EQ(host.cbo.ListCount(), 0);
  EXPECT_EQ(ProgramErrorOf([&] { kq::GetListBoxPathVar(host.cbo, 64, kq::View(name)); }),
            "Illegal Path Type  64 in Global GetListBoxPathVar.");
  host.cbo.SetText("Other");
  EXPECT_EQ(ProgramErrorOf([&] { kq::GetListBoxPathVarNo(host.cbo, kq::kPathVoice); }),
            "Path variable name 'Other' not found in Global GetListBoxPathVarNo.");
}

TEST_F(ServicesTest, HandlePathErrorMessagesAndActions) {
  EXPECT_EQ(kq::HandlePathError(68), 2);
  EXPECT_EQ(kq::HandlePathError(76), 2);
  EXPECT_EQ(kq::HandlePathError(380), 2);
  EXPECT_EQ(kq::HandlePathError(71), 3);
  const auto boxes = p.EventsOf("msgbox");
  ASSERT_EQ(boxes.size(), 3u);
  EXPECT_EQ(boxes[0].fields["title"].Str(), "Disk not found");
  EXPECT_EQ(boxes[0].fields["text"].Str(), "Disk do not exist for the defined path variable.");
  EXPECT_EQ(boxes[2].fields["title"].Str(), "Path not found");
  EXPECT_EQ(boxes[2].fields["text"].Str(), "Path do not exist for the defined path variable.");
}

// ---- Messages, position, selection

TEST_F(ServicesTest, ConvertMessageTexts) {
  kq::ConvertMessage(0);
  EXPECT_EQ(p.CountOf("msgbox"), 0);
  kq::ConvertMessage(9);
  kq::ConvertMessage(7);
  kq::ConvertMessage(19);
  const auto boxes = p.EventsOf("msgbox");
  ASSERT_EQ(boxes.size(), 3u);
  EXPECT_EQ(boxes[0].fields["title"].Str(), "Speech File Convert Error");
  EXPECT_EQ(boxes[0].fields["text"].Str(),
            "Illegal sample rate, must be:\r8000, 11025, 22050 or 44100 KHz.");
  const std::string formats = boxes[1].fields["text"].Str();
  EXPECT_EQ(formats.substr(0, 54), "Illegal audio format, must be one of the following:\r\r1");
  EXPECT_EQ(std::count(formats.begin(), formats.end(), '\r'), 10);
  EXPECT_EQ(formats.substr(formats.rfind('\r') + 1), "9. Linear 128Kbit/Sec");
  EXPECT_EQ(boxes[2].fields["text"].Str(), "Illegal Wave file: No data size.");
  EXPECT_EQ(ProgramErrorOf([] { kq::ConvertMessage(20); }),
            "Illegal return value  20 in Global ConvertMessage.");
}

TEST_F(ServicesTest, CenterFormCentresOnTheMainWindowAndKeepsTheDialogOnScreen) {
  host.Move(0, 0, 4000, 3000);
  kq::CenterForm(host);  // main window 1000,500 12000 x 9000
  EXPECT_EQ(host.Left(), 1000 + 4000);
  EXPECT_EQ(host.Top(), 500 + 3000);
  window.Move(-3000, -2000, 2000, 2000);
  kq::CenterForm(host);
  EXPECT_EQ(host.Left(), 0);
  EXPECT_EQ(host.Top(), 0);
  p.SetScreen(9000, 6000);
  window.Move(7000, 5000, 3000, 2000);
  kq::CenterForm(host);
  EXPECT_EQ(host.Left(), 9000 - 4000);
  EXPECT_EQ(host.Top(), 6000 - 3000);
  EXPECT_EQ(host.Width(), 4000);
}

TEST_F(ServicesTest, DeselectListBoxClearsEverySelection) {
  host.lst.SetMultiSelect(ui::ListBox::MultiSelect::Extended);
  for (const char* s : {"a", "b", "c"}) host.lst.AddItem(s);
  host.lst.SetSelected(0, true);
  host.lst.SetSelected(2, true);
  kq::DeselectListBox(host.lst);
  EXPECT_EQ(host.lst.SelCount(), 0);
}

}  // namespace
}  // namespace kqtest
