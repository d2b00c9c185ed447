#include "solver/TourSolver.h"

#include "solver/TourSearch.h"

namespace {

void MoveAsSearch(const SolveTask& task, const TourSearch& search, int moveCount) {
  while (task.state.MoveCount + 1 < moveCount) {
    const MoveRow move = search.Move(task.state.MoveCount);
    task.game.MoveUnseen(move.x, move.y);
  }
  if (task.state.MoveCount == moveCount) return;
  const MoveRow last = search.Move(task.state.MoveCount);
  task.game.ValidMove(last.x, last.y);
}

void TakeBackTo(const SolveTask& task, int moveCount) {
  while (task.state.MoveCount > moveCount + 1) task.game.TakeBackUnseen();
  if (task.state.MoveCount > moveCount) task.game.mnuEditUndo_Click();
}

// Brings the live game from where it followed the search last to where the search stands. The last
// undo and the last move are made by the operations that a player's go through: what these do to
// menus and cursor is all that is left of a search that made every one of its moves so. Such a
// search has taken moves back, so at least one is taken back here as well.
void FollowSearch(const SolveTask& task, const TourSearch& search) {
  const int common = search.MovesStandingSince(task.solver.PositionsTested);
  if (task.state.MoveCount == common && search.HasTakenBack()) {
    MoveAsSearch(task, search, common + 1);
  }
  TakeBackTo(task, common);
  MoveAsSearch(task, search, search.MoveCount());
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
