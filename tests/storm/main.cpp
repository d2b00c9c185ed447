// Random players on the real windows: storm [--seeds FIRST[-LAST]] [--actions N] [--show]

#include <cstdio>

#include <QApplication>
#include <QCommandLineParser>
#include <QFileInfo>
#include <QMap>

#include "tests/storm/Screens.h"
#include "tests/storm/Storm.h"
#include "tests/storm/VirtualTime.h"

namespace {

constexpr std::int64_t MillisecondsOfASeed = 1'000'000'000;

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

// Each seed has its own time, whichever came before it: the program rolls its dice by the clock.
std::int64_t BeginTimeOf(std::uint64_t seed) {
  VirtualTime::JumpTo(static_cast<std::int64_t>(seed) * MillisecondsOfASeed);
  return VirtualTime::Milliseconds();
}

}  // namespace

int main(int argumentCount, char* arguments[]) {
  qunsetenv("QT_QPA_PLATFORMTHEME");
  qunsetenv("XDG_CURRENT_DESKTOP");
  qputenv("PATH", "/nowhere");  // no printer
  // Files that live in memory are on the disk at once.
  if (QFileInfo("/dev/shm").isWritable()) qputenv("TMPDIR", "/dev/shm");
  const QTemporaryDir folderOfScreens;
  qputenv("QT_QPA_PLATFORM", PlatformOfScreens(folderOfScreens));
  VirtualTime::Begin();
  const QApplication application(argumentCount, arguments);
  const Wishes wishes = Read(QApplication::arguments());
  qInstallMessageHandler(CountWarning);

  Journal journal(wishes.show);
  long long total = 0;
  std::int64_t played = 0;
  for (std::uint64_t seed = wishes.firstSeed; seed <= wishes.lastSeed; ++seed) {
    const std::int64_t begin = BeginTimeOf(seed);
    Storm(seed, wishes.actions, journal).Run();
    total += journal.ActionsOfSeed();
    played += VirtualTime::Milliseconds() - begin;
    std::printf("seed %llu: %d actions\n", static_cast<unsigned long long>(seed),
                journal.ActionsOfSeed());
    std::fflush(stdout);
  }
  std::printf("%lld actions, %.1f hours of play, 0 findings\n", total,
              static_cast<double>(played) / 3'600'000);
  for (const auto& [place, count] : journal.Places()) {
    std::printf("%8d %s\n", count, place.c_str());
  }
  for (auto warning = Warnings().begin(); warning != Warnings().end(); ++warning) {
    std::printf("%8d times: %s\n", warning.value(), qUtf8Printable(warning.key()));
  }
  return 0;
}
