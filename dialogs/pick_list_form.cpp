#include "dialogs/pick_list_form.h"

namespace kq {

namespace {
constexpr int kButtonWidth = 1200;
constexpr int kEnter = 13;
}  // namespace

void PickListForm::WireButtons(ui::CommandButton& ok, ui::CommandButton& cancel) {
  ok.SetWidth(kButtonWidth);
  cancel.SetWidth(kButtonWidth);
  ok.OnClick = [this] { cmdOk_Click(); };
  cancel.OnClick = [this] { cmdCancel_Click(); };
}

void PickListForm::WireList(ui::ListBox& list, int width) {
  list.SetWidth(width);
  list.OnDblClick = [this] { cmdOk_Click(); };
  list.OnKeyPress = [this](int& keyAscii) { EnterActsAsOk(keyAscii); };
}

bool PickListForm::EnterActsAsOk(int& keyAscii) {
  if (keyAscii != kEnter) return false;
  keyAscii = 0;
  cmdOk_Click();
  return true;
}

void PickListForm::PlaceList(ui::ListBox& list, int columns, ui::CommandButton& ok,
                             ui::CommandButton& cancel, int okColumn) {
  Place(list, 0, 0, 1, columns);
  Place(ok, 1, okColumn);
  Place(cancel, 1, okColumn + 1);
}

}  // namespace kq
