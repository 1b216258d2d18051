// A document and a main window for the dialog tests: the headless platform, the name tables,
// the defaults of the records the tests use, an empty header and a list of DisplayLines.
#pragma once

#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <optional>
#include <string>
#include <type_traits>
#include <vector>

#include "dialogs/dialogs.h"
#include "dialogs/func_dialog.h"
#include "document/catalogue.h"
#include "document/document.h"
#include "document/run_scope.h"
#include "document/state.h"
#include "document/text.h"
#include "tests/support/doc_builder.h"
#include "ui/headless/headless_platform.h"
#include "ui/model/controls.h"
#include "ui/model/form.h"
#include "ui/model/list_controls.h"

namespace kqtest {

;

class DialogTest : public ::testing::Test {
 protected:
  void SetUp() override {
    run.emplace(kq::RunParts{&p, &window.lstEdit, &window});
    // A working record left over from elsewhere: the dialogs must not depend on it.
    std::memset(&kq::WorkRecord, 0x55, sizeof kq::WorkRecord);
    kq::PrgHdr.CompiledFlag = -1;
    window.Move(1000, 500, 12000, 9000);
    kq::FuncModify = false;
    kq::FuncOk = false;
    kq::FuncPick = false;
    kq::ChangedFlag = false;
    kq::ShowAllFunctions = false;
  }
  void TearDown() override { run.reset(); }

  // Declares a variable in the next free entry.
  static void AddVariable(const std::string& name, int32_t type) {
    for (auto& v : kq::PrgHdr.Variable) {
      if (kq::FieldEmpty(kq::View(v.VarRefName))) {
        v.VarRefType = type;
        kq::SetField(v.VarRefName, name);
        return;
      }
    }
  }
  static void DeclarePath(int32_t letter, int row, const std::string& name) {
    kq::SetField(kq::PrgHdr.Path[row][letter - 65].PathName, name);
  }
  static void DeclareTable(int index, const std::string& name) {
    kq::SetField(kq::PrgHdr.Table[index].TableName, name);
  }

  // Appends a line with a label and a function to the list and the line table.
  void AddLine(const std::string& label, int funcNo, const std::string& text = "") {
    const int n = window.lstEdit.ListCount();
    window.lstEdit.AddItem(kq::Format0000(n) + text);
    kq::SetField(kq::LineTable[n].LineLabel, label);
    kq::LineTable[n].LineFuncNo = static_cast<int16_t>(funcNo);
    kq::SetField(kq::LineTable[n].LineFuncName, kq::RTrimZ(kq::View(kq::FuncNames[funcNo])));
  }

  // The hand-over fields as the editor sets them before GetFuncParm.
  static void PrepareNew(int funcNo) {
    kq::FuncModify = false;
    kq::FuncNo = static_cast<int16_t>(funcNo);
    kq::FuncName = std::string(kq::View(kq::FuncNames[funcNo]));
    kq::FuncLine = kq::NulToBlank(kq::View(kq::FuncNames[funcNo]));
  }
  void PrepareModify(int line, const kq::RecordSet& rec) {
    const int funcNo = kq::LineTable[line].LineFuncNo;
    PrepareNew(funcNo);
    kq::FuncModify = true;
    std::memcpy(kq::FuncBlock[line], rec.Image(funcNo), kq::RecordLength[funcNo]);
    window.lstEdit.SetListIndex(line);
  }

  // Types the text on a control as a person does, through the form.
  static void Type(ui::Control& control, const std::string& text) {
    for (const char c : text) control.Parent().UserKey(control, static_cast<unsigned char>(c));
  }

  std::vector<std::string> Kinds() const {
    std::vector<std::string> out;
    for (const auto& e : p.Events()) out.push_back(e.kind);
    return out;
  }
  std::vector<std::string> BoxTexts() const {
    std::vector<std::string> out;
    for (const auto& e : p.EventsOf("msgbox")) out.push_back(e.fields["text"].Str());
    return out;
  }
  // The control that the last focus event named, as "name" or "name(index)".
  std::string LastFocus() const {
    const auto focus = p.EventsOf("focus");
    if (focus.empty()) return "";
    const auto& f = focus.back().fields;
    std::string s = f["control"].Str();
    if (!f["index"].IsNull()) s += "(" + std::to_string(f["index"].Int()) + ")";
    return s;
  }

  // Runs function funcNo's dialog through GetFuncParm with act driving it; a dialog that
  // act leaves open is cancelled.
  template <typename D = kq::FuncDialog>
  void Run(int funcNo, const std::function<void(std::type_identity_t<D>&)>& act) {
    if (!kq::FuncModify) PrepareNew(funcNo);
    bool shown = false;
    p.QueueModal("", [&](ui::Form& f) {
      shown = true;
      D* d = dynamic_cast<D*>(&f);
      ASSERT_NE(d, nullptr) << f.Name();
      act(*d);
      if (f.Loaded()) d->cmdCancel.UserClick();
    });
    kq::GetFuncParm(funcNo);
    ASSERT_TRUE(shown);
  }
  // Ok is refused with one beep, no box, the dialog open and the focus on focus.
  void ExpectRefused(kq::FuncDialog& d, const std::string& focus) {
    const int beeps = p.CountOf("beep");
    const int boxes = p.CountOf("msgbox");
    d.cmdOk.UserClick();
    EXPECT_TRUE(d.Loaded());
    EXPECT_FALSE(kq::FuncOk);
    EXPECT_EQ(p.CountOf("beep"), beeps + 1);
    EXPECT_EQ(p.CountOf("msgbox"), boxes);
    EXPECT_EQ(LastFocus(), focus);
  }

  ui::HeadlessPlatform p;
  kq::EditHost window;
  std::optional<kq::RunScope> run;
};

// The bytes of a record as they will stand in the line's block.
template <typename T>
std::string Bytes(const T& rec) {
  return std::string(reinterpret_cast<const char*>(&rec), sizeof rec);
}

}  // namespace kqtest
