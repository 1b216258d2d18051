// The two windows a form is shown in: a modal dialog, and the main window with its menu
// bar. Closing either by its close button asks the form (QueryUnload, then Unload); the
// window goes away only when the model has unloaded the form.
#pragma once

#include <QDialog>
#include <QMainWindow>
#include <functional>
#include <memory>

#include "ui/qt/form_binding.h"

namespace ui::qt {

class DialogWindow : public QDialog {
 public:
  DialogWindow(Form& form, QWidget* parent);
  FormBinding& binding() { return *binding_; }
  void Finish();  // the form has unloaded
  // Runs once the dialog is shown and its focus is placed (test hooks act from here).
  std::function<void()> afterShown;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void reject() override;
  void showEvent(QShowEvent* event) override;

 private:
  void ApplyForm();
  Form& form_;
  std::unique_ptr<FormBinding> binding_;
  bool finished_ = false;
};

class MainWindow : public QMainWindow {
 public:
  explicit MainWindow(Form& form);
  FormBinding& binding() { return *binding_; }
  void Finish();
  // Puts the window where the model's geometry (twips) and window state say.
  void ApplyGeometry();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void changeEvent(QEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void ApplyForm();
  void ReportGeometry();
  Form& form_;
  std::unique_ptr<FormBinding> binding_;
  bool reporting_ = false;
  bool finished_ = false;
};

}  // namespace ui::qt
