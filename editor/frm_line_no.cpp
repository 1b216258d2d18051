#include "editor/frm_line_no.h"

#include "dialogs/services.h"
#include "document/state.h"
#include "document/text.h"
#include "editor/navigation.h"
#include "ui/model/list_controls.h"
#include "ui/platform/platform.h"

namespace kq {

frmLineNo::frmLineNo() : Form("frmLineNo", "Goto Line Number") {
  txtLineNo.SetWidth(1200);
  txtLineNo.OnKeyPress = [this](int& k) { txtLineNo_KeyPress(k); };
  cmdOk.OnClick = [this] { cmdOk_Click(); };
  cmdCancel.OnClick = [this] { Unload(); };
  cmdOk.SetWidth(1200);
  cmdCancel.SetWidth(1200);
  Place(lblLineNo, 0, 0);
  Place(txtLineNo, 0, 1);
  Place(cmdOk, 1, 0);
  Place(cmdCancel, 1, 1);
  Move(0, 0, 3600, 1500);
}

void frmLineNo::Form_Load() {
  CenterForm(*this);
}

void frmLineNo::txtLineNo_KeyPress(int& keyAscii) {
  if (keyAscii == 13) {
    keyAscii = 0;
    cmdOk_Click();
    return;
  }
  LegalInput(txtLineNo, 3, keyAscii);
}

void frmLineNo::cmdOk_Click() {
  const std::string& text = txtLineNo.Text();
  const double value = Val(text);
  if (!text.empty() && value >= 0 && value <= EditList().ListCount() - 1) {
    SelectOnlyLine(static_cast<int>(value));
    Unload();
    return;
  }
  txtLineNo.SetFocus();
  ui::platform().Beep();
}

}  // namespace kq
