#include "ui/qt/form_windows.h"

#include <QCloseEvent>
#include <QMenuBar>
#include <QTimer>
#include <QVBoxLayout>
#include <utility>

#include "ui/qt/cp1252.h"

namespace ui::qt {

// ---- DialogWindow

DialogWindow::DialogWindow(Form& form, QWidget* parent) : QDialog(parent), form_(form) {
  setObjectName(QString::fromStdString(form.Name()));
  setWindowFlag(Qt::WindowContextHelpButtonHint, false);
  QMenuBar* bar = nullptr;
  if (!form.MenuBar().empty()) bar = new QMenuBar(this);
  auto* body = new QWidget(this);
  binding_ = std::make_unique<FormBinding>(form, body, bar);
  auto* outer = new QVBoxLayout(this);
  outer->setContentsMargins(0, 0, 0, 0);
  if (bar) outer->setMenuBar(bar);
  outer->addWidget(body);
  outer->setSizeConstraint(QLayout::SetFixedSize);
  binding_->formChanged = [this] { ApplyForm(); };
  ApplyForm();
}

void DialogWindow::ApplyForm() {
  setWindowTitle(ToQt(form_.Caption()));
}

void DialogWindow::Finish() {
  finished_ = true;
  done(0);
  hide();
}

void DialogWindow::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  // The control the form's Load chose gets the focus once the window can take it.
  QTimer::singleShot(0, this, [this] {
    if (finished_) return;
    activateWindow();
    binding_->ApplyFocus();
    if (afterShown) std::exchange(afterShown, nullptr)();
  });
}

void DialogWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (!finished_) form_.Close();
}

void DialogWindow::reject() {
  // Escape reaches the form as a key; a close from the window system asks the form.
  if (!finished_) form_.Close();
}

// ---- MainWindow

MainWindow::MainWindow(Form& form) : form_(form) {
  setObjectName(QString::fromStdString(form.Name()));
  auto* body = new QWidget(this);
  setCentralWidget(body);
  binding_ = std::make_unique<FormBinding>(form, body, form.MenuBar().empty() ? nullptr : menuBar(),
                                           false);
  binding_->formChanged = [this] { ApplyForm(); };
  ApplyForm();
}

void MainWindow::ApplyForm() {
  setWindowTitle(ToQt(form_.Caption()));
  if (!reporting_) ApplyGeometry();
}

void MainWindow::ApplyGeometry() {
  const int state = form_.WindowState();
  if (state == 2) {
    if (!isMaximized()) setWindowState(Qt::WindowMaximized);
    return;
  }
  if (state == 1) {
    if (!isMinimized()) setWindowState(Qt::WindowMinimized);
    return;
  }
  if (isMaximized() || isMinimized()) setWindowState(Qt::WindowNoState);
  // The model's sizes are the outer window's, as the original window measured them.
  const QRect frame = frameGeometry();
  const QRect inner = geometry();
  const int extraW = frame.width() - inner.width();
  const int extraH = frame.height() - inner.height();
  const QRect want(ToPixels(form_.Left()), ToPixels(form_.Top()), ToPixels(form_.Width()),
                   ToPixels(form_.Height()));
  if (want.width() <= 0 || want.height() <= 0) return;
  if (frame.topLeft() != want.topLeft()) move(want.topLeft());
  const QSize size(std::max(1, want.width() - extraW), std::max(1, want.height() - extraH));
  if (inner.size() != size) resize(size);
}

void MainWindow::ReportGeometry() {
  if (reporting_ || finished_ || !isVisible()) return;
  reporting_ = true;
  const int state = isMinimized() ? 1 : isMaximized() ? 2 : 0;
  const QRect f = frameGeometry();
  if (state != form_.WindowState()) form_.SetWindowState(state);
  if (ToTwips(f.left()) != form_.Left() || ToTwips(f.top()) != form_.Top() ||
      ToTwips(f.width()) != form_.Width() || ToTwips(f.height()) != form_.Height()) {
    form_.Move(ToTwips(f.left()), ToTwips(f.top()), ToTwips(f.width()), ToTwips(f.height()));
  }
  reporting_ = false;
  // The form's resize rules may have moved the window (back to the default rectangle).
  if (state == 0 &&
      (ToPixels(form_.Left()) != f.left() || ToPixels(form_.Top()) != f.top() ||
       ToPixels(form_.Width()) != f.width() || ToPixels(form_.Height()) != f.height())) {
    QTimer::singleShot(0, this, [this] { ApplyGeometry(); });
  }
}

void MainWindow::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  ReportGeometry();
}

void MainWindow::moveEvent(QMoveEvent* event) {
  QMainWindow::moveEvent(event);
  ReportGeometry();
}

void MainWindow::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::WindowStateChange) ReportGeometry();
}

void MainWindow::showEvent(QShowEvent* event) {
  QMainWindow::showEvent(event);
  QTimer::singleShot(0, this, [this] {
    if (!finished_) binding_->ApplyFocus();
  });
}

void MainWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (!finished_) form_.Close();
}

void MainWindow::Finish() {
  finished_ = true;
  hide();
}

}  // namespace ui::qt
