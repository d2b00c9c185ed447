#include "tests/storm/Screens.h"

#include <QFile>

namespace {

// In alphabetical order, in which the platform names them: the first is the main screen.
constexpr char Description[] = R"({"screens": [
  {"name": "at 100 %", "x": 0, "y": 0, "width": 1280, "height": 1024,
   "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1},
  {"name": "at 125 %", "x": 1280, "y": 0, "width": 1280, "height": 1024,
   "logicalDpi": 120, "logicalBaseDpi": 96, "dpr": 1},
  {"name": "at 200 %", "x": 2560, "y": 0, "width": 1280, "height": 1024,
   "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 2}
]})";

}  // namespace

QByteArray PlatformOfScreens(const QTemporaryDir& folder) {
  QFile file(folder.filePath("screens.json"));
  if (!file.open(QIODevice::WriteOnly)) return "offscreen";
  file.write(Description);
  return "offscreen:configfile=" + file.fileName().toUtf8();
}
