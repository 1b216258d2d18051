// A view of an SVG picture: the document (UTF-8 text), the ids of the elements a person can
// click, and the one element shown as marked. A click on an element sets ClickedId and
// raises Click. Setting the picture or the mark notifies the binding.
#pragma once

#include <string>
#include <vector>

#include "ui/model/control.h"

namespace ui {

class SvgView : public Control {
 public:
  SvgView(Form& parent, std::string name, int index = -1);

  const std::string& Svg() const { return svg_; }
  void SetSvg(std::string svg);
  const std::vector<std::string>& Elements() const { return elements_; }
  void SetElements(std::vector<std::string> ids);
  // The marked element's id; empty for none.
  const std::string& Marked() const { return marked_; }
  void SetMarked(std::string id);
  // The element of the last click.
  const std::string& ClickedId() const { return clicked_; }

  // A person clicks an element (the binding and the script runner deliver it): ignored
  // for an id that is not among the Elements or when the view is not usable.
  void UserClickElement(const std::string& id);

 private:
  std::string svg_;
  std::vector<std::string> elements_;
  std::string marked_;
  std::string clicked_;
};

}  // namespace ui
