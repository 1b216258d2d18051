// The hidden window of the runs without a main window (kqx, the fuzz targets, the tests,
// the benchmarks): a form named as the main window holding the list of DisplayLines,
// lstEdit, that the document's file routines fill and read.
#pragma once

#include <string>

#include "ui/model/form.h"
#include "ui/model/list_controls.h"

namespace kq {

class EditHost : public ui::Form {
 public:
  // The caption and selection of the list as the run needs them: the tests take the
  // main window's ("...: Untitled", extended selection), kqx a plain single list.
  explicit EditHost(const std::string& caption = "Zelvox Voice Response Editor: Untitled",
                    ui::ListBox::MultiSelect select = ui::ListBox::MultiSelect::Extended)
      : ui::Form("frmEdit", caption), lstEdit(*this, "lstEdit") {
    lstEdit.SetMultiSelect(select);
  }
  ui::ListBox lstEdit;
};

}  // namespace kq
