// CT Bus Connect (54): connect a stream and timeslot to another on a board's bus.
#pragma once

#include "dialogs/func_dialog.h"

namespace kq {

class frmCTBusCon : public FuncDialog {
 public:
  frmCTBusCon();

  ui::Frame fraCTBusType{*this, "fraCTBusType", "CT Bus Type"};
  ui::OptionButton optCTBusType[2] = {{*this, "optCTBusType", " MVIP", 0},
                                      {*this, "optCTBusType", " H.100", 1}};
  ui::Label Label1{*this, "Label1", "Board number:"};
  ui::Label lblFrom{*this, "lblFrom", "From"};
  ui::Label lblFS{*this, "lblFS", "1. Stream:"};
  ui::Label lblFT{*this, "lblFT", "2. Timeslot:"};
  ui::Label lblTo{*this, "lblTo", "To"};
  ui::Label lblTS{*this, "lblTS", "1. Stream:"};
  ui::Label lblTT{*this, "lblTT", "2. Timeslot:"};
  // 0 board, 1 from stream, 2 from timeslot, 3 to stream, 4 to timeslot.
  ui::ComboBox cboVar[5] = {{*this, "cboVar", 0},
                            {*this, "cboVar", 1},
                            {*this, "cboVar", 2},
                            {*this, "cboVar", 3},
                            {*this, "cboVar", 4}};
  ui::Label lblError{*this, "lblError", "On error goto:"};
  ui::ComboBox cboLabel{*this, "cboLabel"};

 protected:
  void LoadFields(const RecordSet& rec, bool modify) override;
  bool Accept(std::string& parameters) override;
  std::string Decorate(std::string line) override;
};

}  // namespace kq
