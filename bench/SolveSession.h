#pragma once

#include <cstdint>
#include <functional>

#include <QApplication>
#include <QTemporaryDir>

#include "app/Globals.h"
#include "ui/windows/game/frmGame.h"

// What a search came to until it was stopped.
struct SearchReport {
  std::int64_t entries = 0;
  double seconds = 0;           // on the clock
  double processorSeconds = 0;  // of the program, without the X server's
  double paintingSeconds = 0;   // on the clock
  std::int64_t boardPaints = 0;
  std::uint64_t cellsPainted = 0;
};

// Kilobytes resident.
struct MemoryReport {
  long early = 0;
  long late = 0;
};

double SecondsOnTheClock();
double ProcessorSeconds();

// The application, with its eye on the time that painting the windows takes.
class PaintClock : public QApplication {
 public:
  using QApplication::QApplication;

  double Seconds() const { return seconds_; }

  bool notify(QObject* receiver, QEvent* event) override;

 private:
  double seconds_ = 0;
};

// The program with a game that begins in the corner, and a player who starts and stops searches.
class SolveSession {
 public:
  // The clock outlives the session.
  explicit SolveSession(const PaintClock& paintClock);

  SearchReport Search(int refreshRate, int milliseconds);
  // From a click on Stop at some moment of a search to the end of the search.
  double MillisecondsToStop(int refreshRate);
  MemoryReport MemoryOverAMinute(int refreshRate);

 private:
  // Opens the Solve window, and closes it after what is done there.
  void InSolveWindow(int refreshRate, const std::function<void(QWidget& solve)>& act);

  const PaintClock& paintClock_;
  QTemporaryDir directory_;
  Globals globals_;
  frmGame window_;
};
