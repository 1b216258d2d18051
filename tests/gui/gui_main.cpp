// Runs the GUI tests inside one application object, on the offscreen platform unless a
// display is asked for, with settings and user folders of their own.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QMessageBox>
#include <QPointer>
#include <QTemporaryDir>
#include <QTimer>
#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QTemporaryDir home;
  qputenv("XDG_CONFIG_HOME", (home.path() + "/config").toUtf8());
  qputenv("XDG_DATA_HOME", (home.path() + "/data").toUtf8());
  qputenv("XDG_RUNTIME_DIR", home.path().toUtf8());
  qputenv("HOME", home.path().toUtf8());
  QApplication app(argc, argv);
  QApplication::setOrganizationName(QStringLiteral("KQEdit"));
  QApplication::setApplicationName(QStringLiteral("KQEdit"));
  ::testing::InitGoogleTest(&argc, argv);
  // A modal window that nothing answers would hang the run: after a few seconds it is
  // reported as a failure and taken down.
  QPointer<QWidget> seen;
  QTimer watchdog;
  QObject::connect(&watchdog, &QTimer::timeout, [&seen] {
    QWidget* modal = QApplication::activeModalWidget();
    if (modal && modal == seen) {
      ADD_FAILURE() << "modal window left open: " << modal->metaObject()->className() << " \""
                    << modal->windowTitle().toStdString() << "\"";
      if (auto* box = qobject_cast<QMessageBox*>(modal)) {
        std::fprintf(stderr, "  text: %s\n", box->text().toStdString().c_str());
      }
      if (auto* dialog = qobject_cast<QDialog*>(modal)) dialog->done(0);
      modal->hide();
      seen = nullptr;
      return;
    }
    seen = modal;
  });
  watchdog.start(3000);
  return RUN_ALL_TESTS();
}
