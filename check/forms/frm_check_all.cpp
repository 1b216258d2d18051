#include "check/forms/frm_check_all.h"

#include <memory>

#include "check/lint.h"
#include "document/state.h"
#include "document/text.h"
#include "editor/select_line.h"
#include "ui/platform/platform.h"

namespace kq {

namespace {
std::unique_ptr<frmCheckAll> g_window;
}  // namespace

frmCheckAll::frmCheckAll() : ui::Form("frmCheckAll", "Check All") {
  lstFindings.SetWidth(9000);
  lstFindings.SetTabStops({30, 75});
  lstFindings.OnDblClick = [this] { lstFindings_DblClick(); };
  cmdRefresh.OnClick = [this] { Refresh(); };
  cmdClose.OnClick = [this] { Unload(); };
  cmdClose.SetCancel(true);
  Place(lblSummary, 0, 0, 1, 2);
  Place(lstFindings, 1, 0, 1, 2);
  Place(cmdRefresh, 2, 0);
  Place(cmdClose, 2, 1);
  Move(0, 0, 9600, 5400);
}

void frmCheckAll::Form_Load() {
  Refresh();
}

void frmCheckAll::Refresh() {
  findings_ = check::Lint(EditList().ListCount());
  lstFindings.Clear();
  int errors = 0;
  for (const check::Finding& f : findings_) {
    if (f.severity == check::Severity::Error) ++errors;
    lstFindings.AddItem((f.line < 0 ? std::string("----") : Format0000(f.line)) + "\t" +
                        check::SeverityName(f.severity) + "\t" + f.message);
  }
  const int warnings = static_cast<int>(findings_.size()) - errors;
  lblSummary.SetCaption(findings_.empty()
                            ? std::string("No findings.")
                            : Num(errors) + " error(s), " + Num(warnings) +
                                  " warning(s). Double-click a row to go to its line.");
  if (!findings_.empty()) lstFindings.SetListIndex(0);
}

void frmCheckAll::lstFindings_DblClick() {
  const int i = lstFindings.ListIndex();
  if (i < 0 || i >= static_cast<int>(findings_.size())) return;
  const int line = findings_[static_cast<size_t>(i)].line;
  if (line < 0 || line >= EditList().ListCount()) return;  // a declaration, or a stale row
  SelectOnlyLine(line);
}

void ShowCheckAll() {
  if (g_window && g_window->Loaded()) {
    g_window->Refresh();
    return;
  }
  g_window = std::make_unique<frmCheckAll>();
  ui::platform().ShowModeless(*g_window);
}

frmCheckAll* CheckAllWindow() {
  return g_window && g_window->Loaded() ? g_window.get() : nullptr;
}

}  // namespace kq
