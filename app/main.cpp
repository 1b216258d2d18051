// KQEdit: the desktop program. Settings are read before the window exists, then the main
// window is loaded and shown; the window system's loop is the program's only loop.
#include <QApplication>

#include "ui/model/controls.h"
#include "ui/model/form.h"
#include "ui/model/list_controls.h"
#include "ui/qt/qt_platform.h"

namespace {

// Stands for the main window until the editor's own form is part of the program.
class PlaceholderForm : public ui::Form {
 public:
  PlaceholderForm() : Form("frmEdit", "Zelvox Voice Response Editor: Untitled") {
    lblBar.SetWidth(9000);
    lstEdit.SetWidth(9000);
    Place(lblBar, 0, 0);
    Place(lstEdit, 1, 0);
  }
  ui::Label lblBar{*this, "lblBar", "Line\tLabel\tFunction\tParameters"};
  ui::ListBox lstEdit{*this, "lstEdit"};

 protected:
  void Form_Load() override {
    lstEdit.SetTabStops({25, 79, 150});
    Move(1800, 1350, 10800, 8100);
  }
};

}  // namespace

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QApplication::setOrganizationName(QStringLiteral("KQEdit"));
  QApplication::setApplicationName(QStringLiteral("KQEdit"));
  ui::qt::QtPlatform platform;
  ui::SetPlatform(&platform);
  PlaceholderForm form;
  platform.Show(form);
  const int code = QApplication::exec();
  platform.CloseMain();
  ui::SetPlatform(nullptr);
  return code;
}
