#include "solver/TourSolver.h"

#include <algorithm>

#include "solver/TourSearch.h"

namespace {

int MovesInCommon(const GameState& state, const TourSearch& search) {
  const int both = std::min<int>(state.MoveCount, search.MoveCount());
  int common = 0;
  while (common < both && state.MoveList[static_cast<std::size_t>(common)] == search.Move(common)) {
    ++common;
  }
  return common;
}

void MoveAsSearch(const SolveTask& task, const TourSearch& search) {
  const MoveRow move = search.Move(task.state.MoveCount);
  task.game.ValidMove(move.x, move.y);
}

// Brings the live game to where the search stands, by the operations that a player's moves go
// through. While SolverRunning is set none of it is seen. A search that has taken moves back leaves
// marks in the menus and at the cursor, so at least one is taken back here as well.
void FollowSearch(const SolveTask& task, const TourSearch& search) {
  const int common = MovesInCommon(task.state, search);
  if (task.state.MoveCount == common && search.HasTakenBack()) MoveAsSearch(task, search);
  while (task.state.MoveCount > common) task.game.mnuEditUndo_Click();
  while (task.state.MoveCount < search.MoveCount()) MoveAsSearch(task, search);
}

void ShowAndYield(const SolveTask& task) {
  task.state.SolverRunning = false;
  task.window.RestoreColors();
  task.progress.ShowProgress();
  task.window.DoEvents();
  task.state.SolverRunning = true;
}

TourSearch::Outcome SearchToTheEnd(const SolveTask& task, TourSearch& search) {
  for (;;) {
    const TourSearch::Outcome outcome = search.Run(task.SolveRefreshRate + 1);
    task.solver.PositionsTested = search.Entries();
    if (outcome != TourSearch::Outcome::Paused) return outcome;
    FollowSearch(task, search);
    ShowAndYield(task);
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
  }
  return solved;
}
