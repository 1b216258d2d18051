// What the fuzz targets that open documents share: the headless platform and the hidden
// list live as long as the process; each input gets a run of its own (RunScope), so that
// nothing one input leaves behind reaches the next.
#pragma once

#include "document/edit_host.h"
#include "ui/headless/headless_platform.h"
#include "ui/model/list_controls.h"

namespace kq::fuzz {

struct Harness {
  ui::HeadlessPlatform platform;
  EditHost host{"Editor", ui::ListBox::MultiSelect::None};
};

inline Harness& TheHarness() {
  static Harness h;
  return h;
}

}  // namespace kq::fuzz
