// The hidden window of kqx: it holds the list of DisplayLines that the document's file
// routines fill and read, as the editor's main window does.
#pragma once

#include "ui/model/form.h"
#include "ui/model/list_controls.h"

namespace kqx {

class frmHiddenList : public ui::Form {
 public:
  frmHiddenList() : Form("frmEdit", "Zelvox Voice Response Editor") {}
  ui::ListBox lstEdit{*this, "lstEdit"};
};

}  // namespace kqx
