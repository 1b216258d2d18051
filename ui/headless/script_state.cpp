#include "ui/headless/script_state.h"

#include <vector>

#include "ui/model/controls.h"
#include "ui/model/file_controls.h"
#include "ui/model/form.h"
#include "ui/model/list_controls.h"
#include "ui/model/media_control.h"
#include "ui/model/menu.h"
#include "ui/model/scroll_bar.h"
#include "ui/model/svg_view.h"

namespace ui {

std::string ControlLabel(const Control& c) {
  return c.Index() < 0 ? c.Name() : c.Name() + "(" + std::to_string(c.Index()) + ")";
}

Json ControlState(const Control& c) {
  Json j;
  j.Set("event", "state");
  j.Set("form", c.Parent().Name());
  j.Set("control", c.Name());
  j.Set("index", c.Index() < 0 ? Json() : Json(c.Index()));
  auto items = [&j](const std::vector<std::string>& list) {
    Json::Array a;
    for (const auto& s : list) a.emplace_back(s);
    j.Set("items", std::move(a));
  };
  switch (c.Kind()) {
    case ControlKind::Label:
    case ControlKind::CommandButton:
    case ControlKind::Frame:
    case ControlKind::Menu:
      j.Set("caption", c.Caption());
      break;
    case ControlKind::TextBox:
      j.Set("text", static_cast<const TextBox&>(c).Text());
      break;
    case ControlKind::CheckBox:
    case ControlKind::OptionButton:
      j.Set("caption", c.Caption());
      break;
    case ControlKind::ComboBox: {
      const auto& cb = static_cast<const ComboBox&>(c);
      j.Set("text", cb.Text());
      break;
    }
    case ControlKind::ListBox:
    case ControlKind::FileListBox:
      break;
    case ControlKind::DriveListBox:
      j.Set("text", static_cast<const DriveListBox&>(c).Drive());
      break;
    case ControlKind::DirListBox:
    case ControlKind::MediaControl:
      break;
    case ControlKind::ScrollBar:
      j.Set("value", static_cast<const HScrollBar&>(c).Value());
      break;
    case ControlKind::SvgView:
      j.Set("text", static_cast<const SvgView&>(c).Marked());
      break;
  }
  j.Set("enabled", c.Enabled());
  j.Set("visible", c.Visible());
  if (c.Kind() == ControlKind::CheckBox) j.Set("value", static_cast<const CheckBox&>(c).Value());
  if (c.Kind() == ControlKind::OptionButton) {
    j.Set("value", static_cast<const OptionButton&>(c).Value());
  }
  if (c.Kind() == ControlKind::Menu) j.Set("checked", static_cast<const Menu&>(c).Checked());
  if (c.Kind() == ControlKind::ComboBox) {
    const auto& cb = static_cast<const ComboBox&>(c);
    j.Set("ListIndex", cb.ListIndex());
    std::vector<std::string> list;
    for (int i = 0; i < cb.ListCount(); ++i) list.push_back(cb.List(i));
    items(list);
  } else if (c.Kind() == ControlKind::ListBox || c.Kind() == ControlKind::FileListBox) {
    const auto& lb = static_cast<const ListBox&>(c);
    j.Set("ListIndex", lb.ListIndex());
    items(lb.Items());
    Json::Array sel;
    for (int i : lb.SelectedIndexes()) sel.emplace_back(i);
    j.Set("selected", std::move(sel));
    if (c.Kind() == ControlKind::FileListBox) {
      const auto& fl = static_cast<const FileListBox&>(c);
      j.Set("path", fl.Path());
      j.Set("pattern", fl.Pattern());
    }
  } else if (c.Kind() == ControlKind::DirListBox) {
    const auto& dl = static_cast<const DirListBox&>(c);
    j.Set("ListIndex", dl.ListIndex());
    std::vector<std::string> list;
    for (int i = 0; i < dl.ListCount(); ++i) list.push_back(dl.List(i));
    items(list);
    j.Set("path", dl.Path());
  }
  return j;
}

Json FormState(const Form& f) {
  Json j;
  j.Set("event", "state");
  j.Set("form", f.Name());
  j.Set("caption", f.Caption());
  j.Set("visible", f.Visible());
  j.Set("active", f.ActiveControl() ? Json(ControlLabel(*f.ActiveControl())) : Json());
  return j;
}

// Why a person could not use the control, or empty when they could.
std::string RefusalOf(const Control& c) {
  if (c.Usable()) return {};
  if (!c.Enabled()) return ControlLabel(c) + " is disabled";
  if (!c.Visible()) return ControlLabel(c) + " is not visible";
  if (c.Kind() == ControlKind::Menu) {
    const auto& m = static_cast<const Menu&>(c);
    if (m.IsSeparator()) return ControlLabel(c) + " is a separator";
    return ControlLabel(c) + " is under a menu that is disabled";
  }
  return ControlLabel(c) + " is in a frame that is disabled";
}

bool IsDiskList(ControlKind kind) {
  return kind == ControlKind::DriveListBox || kind == ControlKind::DirListBox ||
         kind == ControlKind::FileListBox;
}

int ChooseFolder(Control& c, const std::string& folder) {
  switch (c.Kind()) {
    case ControlKind::DriveListBox:
      return static_cast<DriveListBox&>(c).UserPath(folder);
    case ControlKind::DirListBox:
      return static_cast<DirListBox&>(c).UserPath(folder);
    default:
      return static_cast<FileListBox&>(c).UserPath(folder);
  }
}

}  // namespace ui
