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

double Median(Values values) {
  std::sort(values.begin(), values.end());
  return values[Runs / 2];
}

double ReferenceNanosecondsAnEntry() {
  ReferenceSearch reference;
  const double begun = SecondsSpent();
  const std::int64_t entries = reference.Run(ReferenceEntries);
  return (SecondsSpent() - begun) * 1e9 / static_cast<double>(entries);
}

double NanosecondsAnEntry(const SearchReport& report) {
  return report.seconds * 1e9 / static_cast<double>(report.entries);
}

void PrintPaints(const SearchReport& report) {
  const auto redraws = static_cast<double>(report.redraws);
  std::printf("painted at a redraw   %.3f boards, %.2f cells, %.3f counts, %.3f squares\n",
              static_cast<double>(report.boardPaints) / redraws,
              static_cast<double>(report.cellsPainted) / redraws,
              static_cast<double>(report.countPaints) / redraws,
              static_cast<double>(report.squarePaints) / redraws);
}

// The bare search, paused as often as for these redraws.
double SearchMicrosecondsARedraw(int refreshRate) {
  GameState corner;
  corner.Cell(0, 0) = GameState::Visited;
  corner.MoveList[0] = {0, 0};
  corner.MoveCount = 1;
  TourSearch search(corner);
  const double begun = SecondsSpent();
  for (int redraw = 0; redraw < BareRedraws; ++redraw) search.Run(refreshRate + 1);
  return (SecondsSpent() - begun) * 1e6 / BareRedraws;
}

void MeasureSpeed(SolveSession& session) {
  Values speed{};
  Values microseconds{};
  Values redraw{};
  SearchReport usual;
  for (std::size_t run = 0; run < Runs; ++run) {
    const double reference = ReferenceNanosecondsAnEntry();
    const SearchReport slow = session.Search(SlowRefresh, SearchMilliseconds);
    usual = session.Search(UsualRefresh, SearchMilliseconds);
    speed[run] = reference / NanosecondsAnEntry(slow);
    microseconds[run] = usual.seconds * 1e6 / static_cast<double>(usual.redraws) -
                        SearchMicrosecondsARedraw(UsualRefresh);
    redraw[run] = microseconds[run] * 1e3 / (reference * UsualRefresh);
  }
  std::printf("entries at rate 32000 %6.2f times the reference's\n", Median(speed));
  std::printf("redraw at rate 1000   %6.2f times 1,000 entries of the reference (%.1f us)\n",
              Median(redraw), Median(microseconds));
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
