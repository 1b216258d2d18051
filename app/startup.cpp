#include "app/startup.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QIcon>
#include <QMimeData>
#include <QObject>
#include <QUrl>
#include <memory>
#include <optional>
#include <string>

#include "check/forms/install.h"
#include "editor/desktop_files.h"
#include "editor/frm_edit.h"
#include "editor/frm_prompts.h"
#include "ui/qt/cp1252.h"
#include "ui/qt/form_windows.h"
#include "ui/qt/qt_clipboard.h"
#include "ui/qt/qt_platform.h"

namespace kq::desktop {

namespace {

// The first local application file among the dragged ones.
std::optional<std::string> DroppedFile(const QMimeData* mime) {
  if (mime == nullptr || !mime->hasUrls()) return std::nullopt;
  for (const QUrl& url : mime->urls()) {
    if (!url.isLocalFile()) continue;
    const std::string path = ui::qt::FromQt(url.toLocalFile());
    if (IsApplicationFile(path)) return path;
  }
  return std::nullopt;
}

// Takes the drags and drops of the main window: only application files are accepted.
class FileDropFilter : public QObject {
 public:
  FileDropFilter(QObject* parent, FrmEdit& form) : QObject(parent), form_(form) {}

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    switch (event->type()) {
      case QEvent::DragEnter:
      case QEvent::DragMove: {
        auto* drag = static_cast<QDragMoveEvent*>(event);
        if (!DroppedFile(drag->mimeData())) return false;
        drag->acceptProposedAction();
        return true;
      }
      case QEvent::Drop: {
        auto* drop = static_cast<QDropEvent*>(event);
        const auto path = DroppedFile(drop->mimeData());
        if (!path) return false;
        drop->acceptProposedAction();
        OpenDroppedFile(form_, *path);
        return true;
      }
      default:
        return QObject::eventFilter(watched, event);
    }
  }

 private:
  FrmEdit& form_;
};

}  // namespace

void StartEditor(ui::qt::QtPlatform& platform, FrmEdit& form, const QStringList& arguments) {
  platform.Show(form);
  if (ui::qt::MainWindow* window = platform.Main()) {
    window->setAcceptDrops(true);
    window->installEventFilter(new FileDropFilter(window, form));
  }
  if (arguments.size() > 1 && !arguments.at(1).isEmpty()) {
    OpenNamedFile(form, ui::qt::FromQt(arguments.at(1)));
  }
}

int RunKQEdit(int argc, char** argv) {
  QApplication app(argc, argv);
  QApplication::setOrganizationName(QStringLiteral("KQEdit"));
  QApplication::setApplicationName(QStringLiteral("KQEdit"));
  QApplication::setDesktopFileName(QStringLiteral("kqedit"));
  QApplication::setQuitOnLastWindowClosed(false);  // the form decides when it is closed
  ui::qt::QtPlatform platform;
  ui::SetPlatform(&platform);
  QApplication::setWindowIcon(
      QIcon(QString::fromStdString(platform.DataDirectory() + "/kqedit.svg")));
  ui::qt::QtClipboard clipboard;
  ui::SetClipboard(&clipboard);
  // Between two spoken prompts the window takes its events, so that Cancel can be clicked.
  frmPrompts::Pump = [] { QCoreApplication::processEvents(); };
  auto form = std::make_unique<FrmEdit>();  // the first stage of start-up
  InstallCheckWindows();
  StartEditor(platform, *form, QApplication::arguments());
  const int code = QApplication::exec();
  platform.CloseMain();
  form.reset();
  ui::SetClipboard(nullptr);
  ui::SetPlatform(nullptr);
  return code;
}

}  // namespace kq::desktop
