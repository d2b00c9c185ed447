#include "tests/solver/LiteralSearch.h"

#include <array>

#include "core/Square.h"

namespace {

constexpr std::array<Offset, 8> OrderOfTries{
    {{+1, +2}, {+2, +1}, {-1, +2}, {-2, +1}, {+1, -2}, {+2, -1}, {-1, -2}, {-2, -1}}};

void ShowAndYield(const SolveTask& task) {
  task.state.SolverRunning = false;
  task.window.RestoreColors();
  task.progress.ShowProgress();
  task.window.DoEvents();
  task.state.SolverRunning = true;
}

class Recursion {
 public:
  explicit Recursion(const SolveTask& task) : task_(task) {}

  bool Enter() {
    ++task_.solver.PositionsTested;
    const bool over = task_.game.CheckIfGameOver(task_.state.KnightX, task_.state.KnightY);
    const bool full = task_.state.MoveCount == SquareCount;
    if (over && full) {
      task_.window.EnableClock(false);
      ShowAndYield(task_);
      return true;
    }
    if (task_.solver.StopSolving) return false;
    if (++entriesSinceRedraw_ > task_.SolveRefreshRate) {
      entriesSinceRedraw_ = 0;
      ShowAndYield(task_);
    }
    return !full && TryMoves();
  }

 private:
  bool TryMoves() {
    for (const Offset offset : OrderOfTries) {
      const int x = task_.state.KnightX + offset.dx;
      const int y = task_.state.KnightY + offset.dy;
      if (!IsSquare(x, y) || task_.state.Cell(x, y) != GameState::Unvisited) continue;
      task_.game.ValidMove(x, y);
      if (Enter()) return true;
      task_.game.mnuEditUndo_Click();
    }
    return false;
  }

  const SolveTask& task_;
  int entriesSinceRedraw_ = 0;
};

}  // namespace

bool SolveLiterally(const SolveTask& task) {
  return Recursion(task).Enter();
}
