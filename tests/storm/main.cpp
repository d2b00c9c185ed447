// Random players on the real windows: storm [--seeds FIRST[-LAST]] [--actions N] [--show]

#include <cstdio>

#include <QApplication>
#include <QCommandLineParser>
#include <QFileInfo>
#include <QMap>

#include "tests/storm/Storm.h"
#include "tests/storm/VirtualTime.h"

namespace {

QMap<QString, int>& Warnings() {
  static QMap<QString, int> warnings;
  return warnings;
}

void CountWarning(QtMsgType, const QMessageLogContext&, const QString& text) {
  if (!text.startsWith("This plugin does not support")) ++Warnings()[text.left(100)];
}

struct Wishes {
  std::uint64_t firstSeed;
  std::uint64_t lastSeed;
  int actions;
  bool show;
};

Wishes Read(const QStringList& arguments) {
  QCommandLineParser parser;
  parser.addHelpOption();
  parser.addOptions({{"seeds", "One seed, or the first and the last.", "1-10", "1-10"},
                     {"actions", "Actions of each seed.", "5000", "5000"},
                     {"show", "Print every action."}});
  parser.process(arguments);
  const QStringList seeds = parser.value("seeds").split('-');
  return {seeds.first().toULongLong(), seeds.last().toULongLong(), parser.value("actions").toInt(),
          parser.isSet("show")};
}

}  // namespace

int main(int argumentCount, char* arguments[]) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qunsetenv("QT_QPA_PLATFORMTHEME");
  qunsetenv("XDG_CURRENT_DESKTOP");
  qputenv("PATH", "/nowhere");  // no printer
  // Files that live in memory are on the disk at once.
  if (QFileInfo("/dev/shm").isWritable()) qputenv("TMPDIR", "/dev/shm");
  VirtualTime::Begin();
  const QApplication application(argumentCount, arguments);
  const Wishes wishes = Read(QApplication::arguments());
  qInstallMessageHandler(CountWarning);

  Journal journal(wishes.show);
  long long total = 0;
  for (std::uint64_t seed = wishes.firstSeed; seed <= wishes.lastSeed; ++seed) {
    Storm(seed, wishes.actions, journal).Run();
    total += journal.ActionsOfSeed();
    std::printf("seed %llu: %d actions\n", static_cast<unsigned long long>(seed),
                journal.ActionsOfSeed());
    std::fflush(stdout);
  }
  std::printf("%lld actions, %.1f hours of play, 0 findings\n", total,
              static_cast<double>(VirtualTime::Milliseconds()) / 3'600'000);
  for (const auto& [place, count] : journal.Places()) {
    std::printf("%8d %s\n", count, place.c_str());
  }
  for (auto warning = Warnings().begin(); warning != Warnings().end(); ++warning) {
    std::printf("%8d times: %s\n", warning.value(), qUtf8Printable(warning.key()));
  }
  return 0;
}
