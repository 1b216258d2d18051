// The editor's main window shown on the Qt platform, with helpers that reach its widgets.
#pragma once

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QListView>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <memory>

#include "dialogs/frm_func.h"
#include "editor/frm_edit.h"
#include "ui/qt/form_binding.h"
#include "ui/qt/form_windows.h"
#include "ui/qt/qt_platform.h"

class EditorWindowTest : public ::testing::Test {
 protected:
  void SetUp() override {
    ui::SetPlatform(&platform);
    platform.SetQuitOnMainUnload(false);
    platform.SetDataDirectory(home.path().toStdString());
    // Start each window with the settings a first run has.
    QSettings(QStringLiteral("KQEdit"), QStringLiteral("KQEdit")).clear();
    form = std::make_unique<kq::FrmEdit>();
    platform.Show(*form);
    window()->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window()));
  }
  void TearDown() override {
    platform.CloseMain();
    form.reset();
    ui::SetPlatform(nullptr);
  }

  ui::qt::MainWindow* window() const { return platform.Main(); }
  ui::qt::FormBinding& binding() const { return window()->binding(); }
  QAction* action(const ui::Menu& m) const { return binding().ActionOf(m); }
  QListView* list() const { return qobject_cast<QListView*>(binding().WidgetOf(form->lstEdit)); }
  QString RowText(int row) const { return list()->model()->index(row, 0).data().toString(); }

  static void TypeChar(QWidget* w, QChar c) {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QString(c));
    QApplication::sendEvent(w, &press);
  }

  // Answers the function picker with a click on the function's row and on Ok.
  void PickFunction(const QString& name) {
    platform.QueueModal([name](QDialog& dialog, ui::qt::FormBinding& b) {
      auto& d = static_cast<kq::frmFunc&>(b.form());
      EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
      auto* view = qobject_cast<QListView*>(b.WidgetOf(d.lstFunc));
      ASSERT_NE(view, nullptr);
      for (int row = 0; row < view->model()->rowCount(); ++row) {
        const QModelIndex idx = view->model()->index(row, 0);
        if (idx.data().toString().trimmed() != name) continue;
        view->scrollTo(idx);
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(idx).center());
        break;
      }
      EXPECT_EQ(kq::RTrim(d.lstFunc.List(d.lstFunc.ListIndex())), name.toStdString());
      QTest::mouseClick(qobject_cast<QPushButton*>(b.WidgetOf(d.cmdOk)), Qt::LeftButton);
    });
  }

  QTemporaryDir home;
  ui::qt::QtPlatform platform;
  std::unique_ptr<kq::FrmEdit> form;
};
