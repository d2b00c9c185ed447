#include <unistd.h>

#include <QApplication>
#include <QFileInfo>
#include <gtest/gtest.h>

#include "tests/storm/VirtualTime.h"

namespace {

constexpr unsigned SecondsBeforeHang = 300;

void Silence(QtMsgType, const QMessageLogContext&, const QString&) {}

}  // namespace

// The windows are driven offscreen, in a time of their own, without a printer.
int main(int argumentCount, char* arguments[]) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qunsetenv("QT_QPA_PLATFORMTHEME");
  qunsetenv("XDG_CURRENT_DESKTOP");
  qputenv("PATH", "/nowhere");
  // Files that live in memory are on the disk at once.
  if (QFileInfo("/dev/shm").isWritable()) qputenv("TMPDIR", "/dev/shm");
  VirtualTime::Begin();
  testing::InitGoogleTest(&argumentCount, arguments);
  const QApplication application(argumentCount, arguments);
  QApplication::setQuitOnLastWindowClosed(false);
  qInstallMessageHandler(Silence);
  alarm(SecondsBeforeHang);
  return RUN_ALL_TESTS();
}
