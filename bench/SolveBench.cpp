// The whole Solve against the reference and against the bare search: the real main window with the
// real Solve window over it, on the platform that QT_QPA_PLATFORM names. In turn in one process,
// medians of five runs.

#include <algorithm>
#include <array>
#include <cstdio>

#include <QApplication>

#include "bench/ReferenceSearch.h"
#include "bench/SolveSession.h"
#include "solver/TourSearch.h"

namespace {

constexpr std::size_t Runs = 5;
constexpr std::array<int, 6> Rates{1, 10, 100, 1'000, 10'000, 32'000};
constexpr std::int64_t ReferenceEntries = 200'000'000;
constexpr int SearchMilliseconds = 2'000;
constexpr int UsualRefresh = 1'000;
constexpr int SlowRefresh = 32'000;
constexpr int StopsMeasured = 25;
constexpr double Million = 1e6;

using Values = std::array<double, Runs>;

double Median(Values values) {
  std::sort(values.begin(), values.end());
  return values[Runs / 2];
}

// Entries a second, by the clock and by the processor time of the program.
struct Speed {
  double clock = 0;
  double processor = 0;
};

template <typename Search>
Speed SpeedOf(const Search& search) {
  const double begun = SecondsOnTheClock();
  const double processorBegun = ProcessorSeconds();
  const auto entries = static_cast<double>(search());
  return {entries / (SecondsOnTheClock() - begun), entries / (ProcessorSeconds() - processorBegun)};
}

std::int64_t RunReference() {
  ReferenceSearch reference;
  return reference.Run(ReferenceEntries);
}

// As far as the search with its windows came, since some parts of it are faster than others, and
// paused as often.
std::int64_t RunBareSearch(int refreshRate, std::int64_t entries) {
  GameState corner;
  corner.Cell(0, 0) = GameState::Visited;
  corner.MoveList[0] = {0, 0};
  corner.MoveCount = 1;
  TourSearch search(corner);
  while (search.Entries() < entries) search.Run(refreshRate + 1);
  return search.Entries();
}

Speed SpeedOf(const SearchReport& report) {
  const auto entries = static_cast<double>(report.entries);
  return {entries / report.seconds, entries / report.processorSeconds};
}

void MeasureRate(SolveSession& session, int rate) {
  struct {
    Values speed{}, toReference{}, toBare{}, toReferenceByProcessor{}, toBareByProcessor{};
  } runs;
  for (std::size_t run = 0; run < Runs; ++run) {
    const Speed reference = SpeedOf(RunReference);
    const SearchReport report = session.Search(rate, SearchMilliseconds);
    const Speed whole = SpeedOf(report);
    const Speed bare = SpeedOf([&] { return RunBareSearch(rate, report.entries); });
    runs.speed[run] = whole.clock / Million;
    runs.toReference[run] = whole.clock / reference.clock;
    runs.toBare[run] = whole.clock / bare.clock;
    runs.toReferenceByProcessor[run] = whole.processor / reference.processor;
    runs.toBareByProcessor[run] = whole.processor / bare.processor;
  }
  std::printf(
      "%5d  %8.2f million/s  %7.3f x recursion %6.3f x core   %7.3f x recursion %6.3f x core\n",
      rate, Median(runs.speed), Median(runs.toReference), Median(runs.toBare),
      Median(runs.toReferenceByProcessor), Median(runs.toBareByProcessor));
  std::fflush(stdout);
}

void MeasurePainting(SolveSession& session) {
  const SearchReport report = session.Search(UsualRefresh, SearchMilliseconds);
  const double pictures = static_cast<double>(report.boardPaints);
  std::printf(
      "at rate %d: %.1f boards a second, %.1f squares each; painting takes %.1f %% of the "
      "time, %.2f ms a picture\n",
      UsualRefresh, pictures / report.seconds, static_cast<double>(report.cellsPainted) / pictures,
      100 * report.paintingSeconds / report.seconds, 1'000 * report.paintingSeconds / pictures);
}

void MeasureStops(SolveSession& session, int rate) {
  std::array<double, StopsMeasured> milliseconds{};
  for (double& taken : milliseconds) taken = session.MillisecondsToStop(rate);
  std::sort(milliseconds.begin(), milliseconds.end());
  std::printf("at rate %d a Stop is obeyed after %.2f ms, at worst %.2f ms of %d\n", rate,
              milliseconds[StopsMeasured / 2], milliseconds.back(), StopsMeasured);
}

void MeasureMemory(SolveSession& session) {
  const MemoryReport report = session.MemoryOverAMinute(UsualRefresh);
  std::printf("resident after 5 s    %ld KB, after a minute %ld KB\n", report.early, report.late);
}

}  // namespace

int main(int argumentCount, char* arguments[]) {
  const PaintClock application(argumentCount, arguments);
  SolveSession session(application);
  std::printf("on %s\n", qPrintable(QGuiApplication::platformName()));
  std::printf(" rate                        by the clock                     by the processor\n");
  for (const int rate : Rates) MeasureRate(session, rate);
  MeasurePainting(session);
  for (const int rate : {1, UsualRefresh, SlowRefresh}) MeasureStops(session, rate);
  if (QApplication::arguments().contains("--minute")) MeasureMemory(session);
}
