#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>
#include <gtest/gtest.h>

// The windows are driven offscreen, whatever desktop the tests are started from, and Qt's dialogs
// remember nothing of other runs.
int main(int argumentCount, char* arguments[]) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qunsetenv("QT_QPA_PLATFORMTHEME");
  qunsetenv("XDG_CURRENT_DESKTOP");
  testing::InitGoogleTest(&argumentCount, arguments);
  const QTemporaryDir settings;
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
  const QApplication application(argumentCount, arguments);
  return RUN_ALL_TESTS();
}
