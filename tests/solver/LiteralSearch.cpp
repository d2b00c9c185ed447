#include "tests/solver/LiteralSearch.h"

#include <array>

#include "core/Square.h"

namespace {

constexpr std::array<Offset, 8> OrderOfTries{
    {{+1, +2}, {+2, +1}, {-1, +2}, {-2, +1}, {+1, -2}, {+2, -1}, {-1, -2}, {-2, -1}}};

void ShowAndYield(const SolveTask& task) {
  task.state.SolverRunning = false;
  task.window.RestoreColors(-1, -1);
  task.progress.ShowProgress();
  task.window.DoEvents();
  task.state.SolverRunning = true;
}

bool TryMoves(const SolveTask& task) {
  for (const Offset offset : OrderOfTries) {
    const int x = task.state.KnightX + offset.dx;
    const int y = task.state.KnightY + offset.dy;
    if (!IsSquare(x, y) || task.state.Cell(x, y) != GameState::Unvisited) continue;
    task.game.ValidMove(x, y);
    if (SolveLiterally(task)) return true;
    task.game.mnuEditUndo_Click();
  }
  return false;
}

}  // namespace

bool SolveLiterally(const SolveTask& task) {
  ++task.solver.PositionsTested;
  const bool over = task.game.CheckIfGameOver(task.state.KnightX, task.state.KnightY);
  const bool full = task.state.MoveCount == SquareCount;
  if (over && full) {
    task.window.EnableClock(false);
    ShowAndYield(task);
    return true;
  }
  if (task.solver.StopSolving) return false;
  if (++task.solver.SolveRefreshCounter > task.SolveRefreshRate) {
    task.solver.SolveRefreshCounter = 0;
    ShowAndYield(task);
  }
  return !full && TryMoves(task);
}
