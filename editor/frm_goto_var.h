// Goto Variable Parameter: the first line that uses the variable chosen; it stays the key
// of Next Variable Parameter. The option buttons show the type of the variable chosen.
#pragma once

#include "ui/model/controls.h"
#include "ui/model/form.h"
#include "ui/model/list_controls.h"

namespace kq {

class frmGotoVar : public ui::Form {
 public:
  frmGotoVar();

  ui::ListBox lstVariable{*this, "lstVariable"};
  ui::Frame fraDataType{*this, "fraDataType", "Data type"};
  ui::OptionButton optDataType[3] = {{*this, "optDataType", "String", 0},
                                     {*this, "optDataType", "Double", 1},
                                     {*this, "optDataType", "Long", 2}};
  ui::ListBox lstDataType{*this, "lstDataType"};  // hidden: the type of each name
  ui::CommandButton cmdOk{*this, "cmdOk", "&Ok"};
  ui::CommandButton cmdCancel{*this, "cmdCancel", "&Cancel"};

 protected:
  void Form_Load() override;

 private:
  void cmdOk_Click();
  void lstVariable_Click();
};

}  // namespace kq
