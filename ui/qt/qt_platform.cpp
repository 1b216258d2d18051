#include "ui/qt/qt_platform.h"
#include "ui/qt/qt_media.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QMessageBox>
#include <QPrintDialog>
#include <QScreen>
#include <QSettings>
#include <QStandardPaths>
#include <QTimer>
#include <cstdio>
#include <cstdlib>

#include "ui/model/form.h"
#include "ui/platform/durable_file.h"
#include "ui/qt/cp1252.h"
#include "ui/qt/form_windows.h"
#include "ui/qt/help_window.h"
#include "ui/qt/print_job.h"

namespace ui::qt {

namespace {

QString BoxText(const std::string& text) {
  // A carriage return alone breaks the line in the system's boxes.
  QString t = ToQt(text);
  t.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  t.replace(u'\r', u'\n');
  return t;
}

QMessageBox::StandardButtons ButtonsOf(int flags) {
  switch (flags & kButtonsMask) {
    case vbOKCancel:
      return QMessageBox::Ok | QMessageBox::Cancel;
    case vbAbortRetryIgnore:
      return QMessageBox::Abort | QMessageBox::Retry | QMessageBox::Ignore;
    case vbYesNoCancel:
      return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case vbYesNo:
      return QMessageBox::Yes | QMessageBox::No;
    case vbRetryCancel:
      return QMessageBox::Retry | QMessageBox::Cancel;
    default:
      return QMessageBox::Ok;
  }
}

// The buttons in the order the system shows them, for the default button flags.
QList<QMessageBox::StandardButton> OrderOf(int flags) {
  switch (flags & kButtonsMask) {
    case vbOKCancel:
      return {QMessageBox::Ok, QMessageBox::Cancel};
    case vbAbortRetryIgnore:
      return {QMessageBox::Abort, QMessageBox::Retry, QMessageBox::Ignore};
    case vbYesNoCancel:
      return {QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel};
    case vbYesNo:
      return {QMessageBox::Yes, QMessageBox::No};
    case vbRetryCancel:
      return {QMessageBox::Retry, QMessageBox::Cancel};
    default:
      return {QMessageBox::Ok};
  }
}

QMessageBox::Icon IconOf(int flags) {
  switch (flags & kIconMask) {
    case vbCritical:
      return QMessageBox::Critical;
    case vbQuestion:
      return QMessageBox::Question;
    case vbExclamation:
      return QMessageBox::Warning;
    case vbInformation:
      return QMessageBox::Information;
    default:
      return QMessageBox::NoIcon;
  }
}

// The answer of a box closed without a button: Cancel where there is one, else the
// only button.
int EscapeAnswer(int flags) {
  switch (flags & kButtonsMask) {
    case vbOKOnly:
      return vbOK;
    case vbYesNo:
    case vbAbortRetryIgnore:
      return 0;
    default:
      return vbCancel;
  }
}

std::string EnsureDir(const QString& path) {
  QDir().mkpath(path);
  return FromQt(QDir::toNativeSeparators(path));
}

}  // namespace

int AnswerOfButton(int standardButton) {
  switch (standardButton) {
    case QMessageBox::Ok:
      return vbOK;
    case QMessageBox::Cancel:
      return vbCancel;
    case QMessageBox::Abort:
      return vbAbort;
    case QMessageBox::Retry:
      return vbRetry;
    case QMessageBox::Ignore:
      return vbIgnore;
    case QMessageBox::Yes:
      return vbYes;
    case QMessageBox::No:
      return vbNo;
    default:
      return 0;
  }
}

QString QtFilter(const std::string& filter, int filterIndex, QString* selected) {
  const QStringList parts = ToQt(filter).split(u'|');
  QStringList out;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    QString description = parts[i];
    const QString patterns = QString(parts[i + 1]).replace(u';', u' ');
    // "V/R Files (*.kqx)" already names its pattern; the toolkit reads it from there.
    if (!description.contains(patterns)) description += QStringLiteral(" (") + patterns + u')';
    out << description;
  }
  if (selected && filterIndex >= 1 && filterIndex <= out.size()) *selected = out[filterIndex - 1];
  return out.join(QStringLiteral(";;"));
}

QtPlatform::QtPlatform() = default;

QtPlatform::~QtPlatform() {
  if (print_) print_->End();
  delete help_;
  CloseMain();
}

void QtPlatform::CloseMain() {
  delete main_;
  main_ = nullptr;
}

HelpWindow* QtPlatform::HelpWindowShown() const {
  return help_;
}

QWidget* QtPlatform::TopWindow() const {
  if (!dialogs_.empty()) return dialogs_.back().second;
  return main_;
}

FormBinding* QtPlatform::BindingOf(const Form& form) const {
  if (main_ && &main_->binding().form() == &form) return &main_->binding();
  for (const auto& [f, w] : dialogs_) {
    if (f == &form) return &w->binding();
  }
  return nullptr;
}

QWidget* QtPlatform::WindowOf(const Form& form) const {
  if (main_ && &main_->binding().form() == &form) return main_;
  for (const auto& [f, w] : dialogs_) {
    if (f == &form) return w;
  }
  return nullptr;
}

int QtPlatform::MsgBox(const std::string& text, int flags, const std::string& title) {
  int answer = 0;
  if (!answers_.empty()) {
    answer = answers_.front();
    answers_.pop_front();
  } else {
    QMessageBox box(IconOf(flags), ToQt(title), BoxText(text), ButtonsOf(flags), TopWindow());
    const QList<QMessageBox::StandardButton> order = OrderOf(flags);
    const int def = (flags & vbDefaultButton3) ? 2 : (flags & vbDefaultButton2) ? 1 : 0;
    if (def < order.size()) box.setDefaultButton(order[def]);
    // Restore the mouse pointer while a person reads the box.
    const bool busy = QApplication::overrideCursor() != nullptr;
    if (busy) QApplication::setOverrideCursor(Qt::ArrowCursor);
    const int pressed = box.exec();
    if (busy) QApplication::restoreOverrideCursor();
    answer = AnswerOfButton(pressed);
    if (answer == 0) answer = EscapeAnswer(flags);
    if (answer == 0) answer = AnswerOfButton(order.front());
  }
  boxes_.push_back({title, text, flags, answer});
  return answer;
}

void QtPlatform::Beep() {
  ++beeps_;
  QApplication::beep();
}

void QtPlatform::SetMousePointer(int pointer) {
  if (pointer == pointer_) return;
  if (pointer_ == vbHourglass) QApplication::restoreOverrideCursor();
  pointer_ = pointer;
  if (pointer_ == vbHourglass) QApplication::setOverrideCursor(Qt::WaitCursor);
}

void QtPlatform::ShowModal(Form& form) {
  auto* window = new DialogWindow(form, TopWindow());
  dialogs_.emplace_back(&form, window);
  // The form learns the size its grid gives it before Load, so that CenterForm places the
  // dialog by its real size; the window then stands where the form says, in twips.
  window->adjustSize();
  form.Move(form.Left(), form.Top(), ToTwips(window->width()), ToTwips(window->height()));
  form.DoLoad();
  if (form.Loaded()) {
    window->move(ToPixels(form.Left()), ToPixels(form.Top()));
    if (!modal_.empty()) {
      auto action = std::move(modal_.front());
      modal_.pop_front();
      window->afterShown = [window, action = std::move(action)] {
        action(*window, window->binding());
      };
    }
    window->exec();
  }
  // A form that stays loaded after its window went (never, unless unloaded elsewhere)
  // is unloaded as the window system would.
  for (auto it = dialogs_.begin(); it != dialogs_.end(); ++it) {
    if (it->first == &form) {
      dialogs_.erase(it);
      break;
    }
  }
  delete window;
  // The window that opened the dialog takes the keyboard again.
  if (QWidget* top = TopWindow(); top && top->isVisible()) top->activateWindow();
}

void QtPlatform::Show(Form& form) {
  CloseMain();
  main_ = new MainWindow(form);
  form.DoLoad();
  if (!form.Loaded()) return;
  main_->ApplyGeometry();
  main_->show();
}

void QtPlatform::ShowModeless(Form& form) {
  auto* window = new DialogWindow(form, TopWindow());
  window->setModal(false);
  window->adjustSize();
  form.Move(form.Left(), form.Top(), ToTwips(window->width()), ToTwips(window->height()));
  form.DoLoad();
  if (!form.Loaded()) {
    delete window;
    return;
  }
  modeless_.emplace_back(&form, window);
  window->move(ToPixels(form.Left()), ToPixels(form.Top()));
  window->show();
}

void QtPlatform::FormUnloaded(Form& form) {
  for (auto it = modeless_.begin(); it != modeless_.end(); ++it) {
    if (it->first == &form) {
      it->second->Finish();
      it->second->deleteLater();
      modeless_.erase(it);
      return;
    }
  }
  for (auto& [f, w] : dialogs_) {
    if (f == &form) {
      w->Finish();
      return;
    }
  }
  if (main_ && &main_->binding().form() == &form) {
    main_->Finish();
    if (help_) help_->close();
    if (quitOnMainUnload_) QCoreApplication::quit();
  }
}

void QtPlatform::FocusChanged(Form& form, Control& control) {
  FormBinding* b = BindingOf(form);
  QWidget* w = b ? b->WidgetOf(control) : nullptr;
  if (!w) return;
  ControlBinding::SetModelFocusing(true);
  w->setFocus(Qt::OtherFocusReason);
  ControlBinding::SetModelFocusing(false);
}

std::optional<std::string> QtPlatform::FileDialog(const FileDialogRequest& request) {
  fileRequests_.push_back(request);
  if (!files_.empty()) {
    auto answer = files_.front();
    files_.pop_front();
    return answer;
  }
  QString selected;
  const QString filter = QtFilter(request.filter, request.filterIndex, &selected);
  QFileDialog dialog(TopWindow(), QString(), ToQt(request.initDir), filter);
  dialog.setAcceptMode(request.kind == FileDialogRequest::Kind::Save ? QFileDialog::AcceptSave
                                                                     : QFileDialog::AcceptOpen);
  dialog.setFileMode(request.kind == FileDialogRequest::Kind::Save ? QFileDialog::AnyFile
                                                                   : QFileDialog::ExistingFile);
  if (!selected.isEmpty()) dialog.selectNameFilter(selected);
  if (!request.fileName.empty()) dialog.selectFile(ToQt(request.fileName));
  // Saving over an existing file asks nothing, as the system's dialog did.
  dialog.setOption(QFileDialog::DontConfirmOverwrite, true);
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  return FromQt(QDir::toNativeSeparators(dialog.selectedFiles().front()));
}

std::string QtPlatform::GetSetting(const std::string& app, const std::string& section,
                                   const std::string& key, const std::string& def) {
  QSettings s(QStringLiteral("KQEdit"), ToQt(app));
  s.beginGroup(ToQt(section));
  const QVariant v = s.value(ToQt(key));
  return v.isValid() ? FromQt(v.toString()) : def;
}

void QtPlatform::SaveSetting(const std::string& app, const std::string& section,
                             const std::string& key, const std::string& value) {
  QSettings s(QStringLiteral("KQEdit"), ToQt(app));
  s.beginGroup(ToQt(section));
  s.setValue(ToQt(key), ToQt(value));
  // Qt writes the file whole through a flushed temporary file; the folder is flushed here,
  // so that the new file is the one found after a power cut.
  s.sync();
  if (s.status() == QSettings::NoError) (void)SyncFolderOf(FromQt(s.fileName()));
}

bool QtPlatform::PrintDialog(PrintDialogRequest& request) {
  if (print_) print_->End();
  print_ = std::make_unique<PrintJob>();
  QPrinter& printer = print_->printer();
  if (!prints_.empty()) {
    auto answer = prints_.front();
    prints_.pop_front();
    if (!answer) {
      print_.reset();
      return false;
    }
    request.fromPage = answer->fromPage;
    request.toPage = answer->toPage;
    request.copies = answer->copies;
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(
        ToQt(printFile_.empty() ? TempDirectory() + "/print.pdf" : printFile_));
    return true;
  }
  QPrintDialog dialog(&printer, TopWindow());
  dialog.setMinMax(1, request.maxPage > 0 ? request.maxPage : 100);
  if (request.fromPage > 0) dialog.setFromTo(request.fromPage, request.toPage);
  printer.setCopyCount(std::max(1, request.copies));
  dialog.setOption(QAbstractPrintDialog::PrintSelection, false);
  dialog.setOption(QAbstractPrintDialog::PrintPageRange, true);
  if (dialog.exec() != QDialog::Accepted) {
    print_.reset();
    return false;
  }
  const bool range = printer.printRange() == QPrinter::PageRange;
  request.fromPage = range ? printer.fromPage() : 0;
  request.toPage = range ? printer.toPage() : 0;
  request.copies = std::max(1, printer.copyCount());
  // The listing picks its pages and repeats its copies itself.
  printer.setCopyCount(1);
  printer.setPrintRange(QPrinter::AllPages);
  printer.setFromTo(0, 0);
  return true;
}

void QtPlatform::PrintRow(const std::string& row) {
  if (!print_) print_ = std::make_unique<PrintJob>();
  print_->Row(ToQt(row));
}

void QtPlatform::NewPage() {
  if (print_) print_->NewPage();
}

void QtPlatform::EndDoc() {
  // The job stays until the next print dialog: a next copy goes to the same printer.
  if (print_) print_->End();
}

int QtPlatform::ScreenWidth() const {
  const QScreen* s = QGuiApplication::primaryScreen();
  return s ? ToTwips(s->geometry().width()) : 0;
}

int QtPlatform::ScreenHeight() const {
  const QScreen* s = QGuiApplication::primaryScreen();
  return s ? ToTwips(s->geometry().height()) : 0;
}

std::string QtPlatform::DataDirectory() const {
  if (!dataDir_.empty()) return dataDir_;
  // Installed: bin/KQEdit beside share/kqedit.
  const QString dir = QCoreApplication::applicationDirPath() + QStringLiteral("/../share/kqedit");
  return FromQt(QDir::cleanPath(dir));
}

std::string QtPlatform::UserDirectory() const {
  return EnsureDir(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
}

std::string QtPlatform::TempDirectory() const {
  return EnsureDir(QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation));
}

void QtPlatform::Help(HelpCommand command) {
  if (command == HelpCommand::CloseAll) {
    if (help_) help_->close();
    return;
  }
  if (!help_) help_ = new HelpWindow(ToQt(DataDirectory() + "/manual"));
  switch (command) {
    case HelpCommand::Contents:
      help_->ShowContents();
      break;
    case HelpCommand::Index:
      help_->ShowIndex();
      break;
    default:
      help_->ShowSearch();
      break;
  }
}

void QtPlatform::End() {
  // The program ends at once, without saving anything.
  if (!ui::LastProgramError().empty()) {
    std::fprintf(stderr, "KQEdit: Program Error: %s\n", ui::LastProgramError().c_str());
  }
  std::fflush(nullptr);
  std::_Exit(1);
}

std::unique_ptr<MediaDevice> QtPlatform::CreateMediaDevice() {
  return std::make_unique<QtMediaDevice>();
}

}  // namespace ui::qt
