#include "solver/TourSolver.h"

#include "solver/TourSearch.h"

namespace {

void MoveAsSearch(const SolveTask& task, const TourSearch& search) {
  const MoveRow move = search.Move(task.state.MoveCount);
  task.game.ValidMove(move.x, move.y);
}

// Brings the live game from where it followed the search last to where the search stands, by the
// operations that a player's moves go through. While SolverRunning is set none of it is seen. A
// search that has taken moves back leaves marks in the menus and at the cursor, so at least one is
// taken back here as well.
void FollowSearch(const SolveTask& task, const TourSearch& search) {
  const int common = search.MovesStandingSince(task.solver.PositionsTested);
  if (task.state.MoveCount == common && search.HasTakenBack()) MoveAsSearch(task, search);
  while (task.state.MoveCount > common) task.game.mnuEditUndo_Click();
  while (task.state.MoveCount < search.MoveCount()) MoveAsSearch(task, search);
  task.solver.PositionsTested = search.Entries();
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
  FollowSearch(task, search);
  if (solved) {
    task.window.EnableClock(false);
    ShowAndYield(task);
  }
  return solved;
}
