// What the dialogs of Right String, Left String and In String share:
// target = KEYWORD( source , operand ), each slot a combo of variables.
#pragma once

#include <string>

#include "dialogs/data_slots.h"
#include "dialogs/func_dialog.h"

namespace kq {

class StringOpDialog : public FuncDialog {
 public:
  ui::ComboBox cboVar[3] = {{*this, "cboVar", 0}, {*this, "cboVar", 1}, {*this, "cboVar", 2}};
  ui::Label lblEqual;
  ui::Label lblComma{*this, "lblComma", ","};

 protected:
  // keyword: the operation as the line shows it ("RIGHT"); slots: target, source, operand.
  StringOpDialog(std::string name, std::string caption, int funcNo, std::string keyword,
                 StringOpRec RecordSet::*record, const VarSlot (&slots)[3]);

  void LoadFields(const RecordSet& rec, bool modify) override;
  bool Accept(std::string& parameters) override;

 private:
  std::string keyword_;
  StringOpRec RecordSet::*record_;
  const VarSlot (&slots_)[3];
};

}  // namespace kq
