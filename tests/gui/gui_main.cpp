// Runs the GUI tests inside one application object, on the offscreen platform unless a
// display is asked for, with settings and user folders of their own.
#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryDir>
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
  return RUN_ALL_TESTS();
}
