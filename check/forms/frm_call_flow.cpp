#include "check/forms/frm_call_flow.h"

#include <memory>

#include "check/flow.h"
#include "diagram/diagram.h"
#include "document/state.h"
#include "document/text.h"
#include "editor/select_line.h"
#include "ui/model/list_controls.h"
#include "ui/platform/platform.h"

namespace kq {

namespace {
std::unique_ptr<frmCallFlow> g_window;
}  // namespace

frmCallFlow::frmCallFlow() : ui::Form("frmCallFlow", "Call Flow") {
  svgFlow.SetWidth(10000);
  svgFlow.OnClick = [this] { svgFlow_Click(); };
  cmdRefresh.OnClick = [this] { Refresh(); };
  cmdClose.OnClick = [this] { Unload(); };
  cmdClose.SetCancel(true);
  Place(lblInfo, 0, 0, 1, 2);
  Place(svgFlow, 1, 0, 1, 2);
  Place(cmdRefresh, 2, 0);
  Place(cmdClose, 2, 1);
  Move(0, 0, 10500, 8000);
}

frmCallFlow::~frmCallFlow() {
  Follow(false);
}

void frmCallFlow::Form_Load() {
  Refresh();
  Follow(true);
}

void frmCallFlow::Form_Unload() {
  Follow(false);
}

void frmCallFlow::Follow(bool on) {
  if (on == following_) return;
  ui::ListBox& list = EditList();
  if (on) {
    listClick_ = list.OnClick;
    list.OnClick = [this] {
      if (listClick_) listClick_();
      MarkCurrentLine();
    };
  } else {
    list.OnClick = listClick_;
    listClick_ = nullptr;
  }
  following_ = on;
}

void frmCallFlow::Refresh() {
  ui::ListBox& list = EditList();
  const int count = list.ListCount();
  std::vector<std::string> texts, ids;
  for (int i = 0; i < count; ++i) {
    texts.push_back(list.List(i));
    ids.push_back(diagram::NodeName(i));
  }
  std::string svg, error;
  if (!diagram::Render(check::BuildFlow(count), texts, diagram::Format::Svg, svg, error)) {
    lblInfo.SetCaption("The diagram could not be laid out: " + error + ".");
    svgFlow.SetElements({});
    svgFlow.SetSvg({});
    return;
  }
  lblInfo.SetCaption(Num(count) + " line(s). Click a box to go to its line.");
  svgFlow.SetElements(std::move(ids));
  svgFlow.SetSvg(std::move(svg));
  MarkCurrentLine();
}

void frmCallFlow::MarkCurrentLine() {
  const int line = EditList().ListIndex();
  svgFlow.SetMarked(line >= 0 && line < EditList().ListCount() ? diagram::NodeName(line) : "");
}

void frmCallFlow::svgFlow_Click() {
  const int line = diagram::LineOfNode(svgFlow.ClickedId());
  if (line < 0 || line >= EditList().ListCount()) return;
  SelectOnlyLine(line);
  svgFlow.SetMarked(svgFlow.ClickedId());
}

void ShowCallFlow() {
  if (g_window && g_window->Loaded()) {
    g_window->Refresh();
    return;
  }
  g_window = std::make_unique<frmCallFlow>();
  ui::platform().ShowModeless(*g_window);
}

frmCallFlow* CallFlowWindow() {
  return g_window && g_window->Loaded() ? g_window.get() : nullptr;
}

}  // namespace kq
