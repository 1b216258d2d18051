// A dialog that offers a choice in a list (or one field) with Ok and Cancel buttons: a
// double click on the list and Enter in it act as Ok, Cancel unloads, the buttons have
// the standard width and stand in the row below the list. The dialog keeps its controls
// as its own members, in the order it declares them; this base holds none.
#pragma once

#include <string>

#include "ui/model/controls.h"
#include "ui/model/form.h"
#include "ui/model/list_controls.h"

namespace kq {

class PickListForm : public ui::Form {
 public:
  using Form::Form;

 protected:
  virtual void cmdOk_Click() = 0;
  virtual void cmdCancel_Click() { Unload(); }

  // The buttons: standard width, their clicks to the two handlers.
  void WireButtons(ui::CommandButton& ok, ui::CommandButton& cancel);
  // The list: a double click and Enter act as Ok.
  void WireList(ui::ListBox& list, int width);
  // Enter acts as Ok (the key is swallowed); false for any other key.
  bool EnterActsAsOk(int& keyAscii);
  // The list across columns [0, columns) of row 0, the buttons below it, Ok first.
  void PlaceList(ui::ListBox& list, int columns, ui::CommandButton& ok, ui::CommandButton& cancel,
                 int okColumn);
};

}  // namespace kq
