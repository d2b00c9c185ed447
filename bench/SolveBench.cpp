// The whole Solve against the reference: the real main window with the real Solve window over it,
// every redraw painted, on the platform that QT_QPA_PLATFORM names. In turn in one process, medians
// of five runs.

#include <algorithm>
#include <array>
#include <cstdio>

#include <QApplication>

#include "bench/ReferenceSearch.h"
#include "bench/SolveSession.h"
#include "solver/TourSearch.h"

namespace {

constexpr int Runs = 5;
constexpr std::int64_t ReferenceEntries = 200'000'000;
constexpr int SlowRefresh = 32'000;
constexpr int UsualRefresh = 1'000;
constexpr int SearchMilliseconds = 2'000;
constexpr int BareRedraws = 100'000;
constexpr int StopsMeasured = 25;

using Values = std::array<double, Runs>;

// A redraw is without the search between two redraws.
struct Cost {
  Values entriesAtSlowRefresh{};  // for one of the reference
  Values redraw{};                // in 1,000 entries of the reference
};

double Median(Values values) {
  std::sort(values.begin(), values.end());
  return values[Runs / 2];
}

double ReferenceSecondsAnEntry() {
  ReferenceSearch reference;
  const double begun = ProcessorSeconds();
  const std::int64_t entries = reference.Run(ReferenceEntries);
  return (ProcessorSeconds() - begun) / static_cast<double>(entries);
}

// The bare search, paused as often as for these redraws.
double SearchSecondsARedraw(int refreshRate) {
  GameState corner;
  corner.Cell(0, 0) = GameState::Visited;
  corner.MoveList[0] = {0, 0};
  corner.MoveCount = 1;
  TourSearch search(corner);
  const double begun = ProcessorSeconds();
  for (int redraw = 0; redraw < BareRedraws; ++redraw) search.Run(refreshRate + 1);
  return (ProcessorSeconds() - begun) / BareRedraws;
}

void PrintCost(const char* measure, const Cost& cost) {
  std::printf("%s\n", measure);
  std::printf("  entries at rate 32000 %6.2f times the reference's\n",
              Median(cost.entriesAtSlowRefresh));
  std::printf("  redraw at rate 1000   %6.2f times 1,000 entries of the reference\n",
              Median(cost.redraw));
}

void PrintPaints(const SearchReport& report) {
  const auto redraws = static_cast<double>(report.redraws);
  std::printf("painted at a redraw   %.3f boards, %.2f cells, %.3f counts, %.3f squares\n",
              static_cast<double>(report.boardPaints) / redraws,
              static_cast<double>(report.cellsPainted) / redraws,
              static_cast<double>(report.countPaints) / redraws,
              static_cast<double>(report.squarePaints) / redraws);
}

void MeasureSpeed(SolveSession& session) {
  Cost processor;
  Cost clock;
  SearchReport usual;
  for (std::size_t run = 0; run < Runs; ++run) {
    const double reference = ReferenceSecondsAnEntry();
    const double search = SearchSecondsARedraw(UsualRefresh);
    const SearchReport slow = session.Search(SlowRefresh, SearchMilliseconds);
    usual = session.Search(UsualRefresh, SearchMilliseconds);
    const auto enter = [&](Cost& cost, double SearchReport::*seconds) {
      const double anEntry = slow.*seconds / static_cast<double>(slow.entries);
      const double aRedraw = usual.*seconds / static_cast<double>(usual.redraws);
      cost.entriesAtSlowRefresh[run] = reference / anEntry;
      cost.redraw[run] = (aRedraw - search) / (reference * UsualRefresh);
    };
    enter(processor, &SearchReport::processorSeconds);
    enter(clock, &SearchReport::seconds);
  }
  PrintCost("by the processor time of the program", processor);
  PrintCost("by the clock", clock);
  PrintPaints(usual);
}

void MeasureStops(SolveSession& session) {
  std::array<double, StopsMeasured> milliseconds{};
  for (double& taken : milliseconds) taken = session.MillisecondsToStop(SlowRefresh);
  std::sort(milliseconds.begin(), milliseconds.end());
  std::printf("a Stop is obeyed after %.2f ms, at worst %.2f ms of %d\n",
              milliseconds[StopsMeasured / 2], milliseconds.back(), StopsMeasured);
}

void MeasureMemory(SolveSession& session) {
  const MemoryReport report = session.MemoryOverAMinute(UsualRefresh);
  std::printf("resident after 5 s    %ld KB, after a minute %ld KB\n", report.early, report.late);
}

}  // namespace

int main(int argumentCount, char* arguments[]) {
  const QApplication application(argumentCount, arguments);
  SolveSession session;
  std::printf("on %s\n", qPrintable(QGuiApplication::platformName()));
  MeasureSpeed(session);
  MeasureStops(session);
  if (QApplication::arguments().contains("--minute")) MeasureMemory(session);
}
