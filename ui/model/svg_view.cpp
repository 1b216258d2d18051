#include "ui/model/svg_view.h"

#include <algorithm>

namespace ui {

SvgView::SvgView(Form& parent, std::string name, int index)
    : Control(parent, ControlKind::SvgView, std::move(name), index) {}

void SvgView::SetSvg(std::string svg) {
  svg_ = std::move(svg);
  Notify();
}

void SvgView::SetElements(std::vector<std::string> ids) {
  elements_ = std::move(ids);
}

void SvgView::SetMarked(std::string id) {
  if (id == marked_) return;
  marked_ = std::move(id);
  Notify();
}

void SvgView::UserClickElement(const std::string& id) {
  if (!Usable() || std::find(elements_.begin(), elements_.end(), id) == elements_.end()) return;
  clicked_ = id;
  RaiseClick();
}

}  // namespace ui
