// The Call Flow window: the laid-out diagram of the application. Clicking a line's box
// selects the line in the edit list; selecting a line in the edit list marks its box.
#pragma once

#include <functional>

#include "ui/model/controls.h"
#include "ui/model/form.h"
#include "ui/model/svg_view.h"

namespace kq {

class frmCallFlow : public ui::Form {
 public:
  frmCallFlow();
  ~frmCallFlow() override;

  ui::Label lblInfo{*this, "lblInfo", ""};
  ui::SvgView svgFlow{*this, "svgFlow"};
  ui::CommandButton cmdRefresh{*this, "cmdRefresh", "&Refresh"};
  ui::CommandButton cmdClose{*this, "cmdClose", "&Close"};

  // Lays the application out again.
  void Refresh();
  // Marks the box of the edit list's current line.
  void MarkCurrentLine();

 protected:
  void Form_Load() override;
  void Form_Unload() override;

 private:
  void svgFlow_Click();
  void Follow(bool on);              // listens to the edit list's clicks while shown
  std::function<void()> listClick_;  // the edit list's own Click handler, kept while shown
  bool following_ = false;
};

void ShowCallFlow();
frmCallFlow* CallFlowWindow();

}  // namespace kq
