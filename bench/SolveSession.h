#pragma once

#include <cstdint>
#include <functional>

#include <QTemporaryDir>

#include "app/Globals.h"
#include "ui/windows/game/frmGame.h"

// What a search came to until it was stopped.
struct SearchReport {
  std::int64_t entries = 0;
  std::int64_t redraws = 0;
  double seconds = 0;           // on the clock
  double processorSeconds = 0;  // of the program, without the X server's
  std::int64_t boardPaints = 0;
  std::uint64_t cellsPainted = 0;
  std::int64_t countPaints = 0;   // of "Tested", which changes at every redraw
  std::int64_t squarePaints = 0;  // of "Position"
};

// Kilobytes resident.
struct MemoryReport {
  long early = 0;
  long late = 0;
};

double SecondsOnTheClock();
double ProcessorSeconds();

// The program with a game that begins in the corner, and a player who starts and stops searches.
class SolveSession {
 public:
  SolveSession();

  SearchReport Search(int refreshRate, int milliseconds);
  // From a click on Stop at some moment of a search to the end of the search.
  double MillisecondsToStop(int refreshRate);
  MemoryReport MemoryOverAMinute(int refreshRate);

 private:
  // Opens the Solve window, and closes it after what is done there.
  void InSolveWindow(int refreshRate, const std::function<void(QWidget& solve)>& act);

  QTemporaryDir directory_;
  Globals globals_;
  frmGame window_;
};
