#include "solver/TourSolver.h"

#include "solver/TourSearch.h"

namespace {

// Brings the live game to where the search stands, by the operations that a player's moves go
// through. While SolverRunning is set none of it is seen.
void FollowSearch(const SolveTask& task, const TourSearch& search) {
  const auto agrees = [&](int i) {
    return i < search.MoveCount() &&
           task.state.MoveList[static_cast<std::size_t>(i)] == search.Move(i);
  };
  int common = 0;
  while (common < task.state.MoveCount && agrees(common)) ++common;
  while (task.state.MoveCount > common) task.game.mnuEditUndo_Click();
  while (task.state.MoveCount < search.MoveCount()) {
    const MoveRow move = search.Move(task.state.MoveCount);
    task.game.ValidMove(move.x, move.y);
  }
}

void ShowAndYield(const SolveTask& task) {
  task.state.SolverRunning = false;
  task.window.RestoreColors(-1, -1);
  task.progress.ShowProgress();
  task.window.DoEvents();
  task.state.SolverRunning = true;
}

void Redraw(const SolveTask& task, const TourSearch& search) {
  task.solver.SolveRefreshCounter = 0;
  FollowSearch(task, search);
  ShowAndYield(task);
}

// The squares that were tried last stay in the list as moves that could be redone, as if each of
// them had been made and taken back on the board.
void LeaveTriedMoves(const SolveTask& task, const TourSearch& search) {
  if (search.DeepestMove() == task.state.MoveCount) return;
  const MoveRow lastTried = search.Move(task.state.MoveCount);
  task.game.ValidMove(lastTried.x, lastTried.y);
  task.game.mnuEditUndo_Click();
  for (int i = task.state.MoveCount; i < search.DeepestMove(); ++i) {
    task.state.MoveList[static_cast<std::size_t>(i)] = search.Move(i);
  }
}

TourSearch::Outcome SearchToTheEnd(const SolveTask& task, TourSearch& search) {
  for (;;) {
    const int untilRedraw = task.SolveRefreshRate + 1 - task.solver.SolveRefreshCounter;
    const TourSearch::Outcome outcome = search.Run(untilRedraw > 0 ? untilRedraw : 1);
    task.solver.PositionsTested = search.Entries();
    if (outcome != TourSearch::Outcome::Paused) return outcome;
    Redraw(task, search);
    if (task.solver.StopSolving) return search.Unwind();
  }
}

}  // namespace

bool SolveTheGameNoRefresh(const SolveTask& task) {
  TourSearch search(task.state);
  const bool solved = SearchToTheEnd(task, search) == TourSearch::Outcome::Solved;
  task.solver.PositionsTested = search.Entries();
  FollowSearch(task, search);
  if (solved) {
    task.window.EnableClock(false);
    ShowAndYield(task);
  } else {
    LeaveTriedMoves(task, search);
  }
  return solved;
}
