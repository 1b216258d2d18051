// KQEdit: the desktop program. The main window reads its settings before it exists, then
// is loaded and shown; the window system's loop is the program's only loop.
#include <QApplication>
#include <memory>

#include "check/forms/install.h"
#include "editor/frm_edit.h"
#include "ui/qt/qt_platform.h"

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QApplication::setOrganizationName(QStringLiteral("KQEdit"));
  QApplication::setApplicationName(QStringLiteral("KQEdit"));
  QApplication::setQuitOnLastWindowClosed(false);  // the form decides when it is closed
  ui::qt::QtPlatform platform;
  ui::SetPlatform(&platform);
  auto form = std::make_unique<kq::FrmEdit>();  // the first stage of start-up
  kq::InstallCheckWindows();
  platform.Show(*form);
  const int code = QApplication::exec();
  platform.CloseMain();
  form.reset();
  ui::SetPlatform(nullptr);
  return code;
}
