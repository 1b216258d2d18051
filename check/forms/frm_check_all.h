// The Check All window: every finding of the check of the whole application, one a row;
// a double click selects the finding's line in the edit list.
#pragma once

#include "check/finding.h"
#include "ui/model/controls.h"
#include "ui/model/form.h"
#include "ui/model/list_controls.h"

namespace kq {

class frmCheckAll : public ui::Form {
 public:
  frmCheckAll();

  ui::Label lblSummary{*this, "lblSummary", ""};
  ui::ListBox lstFindings{*this, "lstFindings"};
  ui::CommandButton cmdRefresh{*this, "cmdRefresh", "&Refresh"};
  ui::CommandButton cmdClose{*this, "cmdClose", "&Close"};

  const check::Findings& Findings() const { return findings_; }
  // Checks the application again and lists what it finds.
  void Refresh();

 protected:
  void Form_Load() override;

 private:
  void lstFindings_DblClick();
  check::Findings findings_;
};

// Shows the window beside the main window (a new one for each showing).
void ShowCheckAll();
// The window while it is shown; null otherwise.
frmCheckAll* CheckAllWindow();

}  // namespace kq
