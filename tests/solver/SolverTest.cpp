#include "tests/solver/SolverTest.h"

std::string ProgressText(const GameState& state, const SolverState& solver) {
  const MoveRow square = state.MoveList[static_cast<std::size_t>(state.MoveCount - 1)];
  return std::to_string(state.MoveCount) + "/" + std::to_string(solver.PositionsTested - 1) + "/" +
         SquareName(square.x, square.y);
}

void SolverTest::BeginWith(const std::vector<MoveRow>& moves) {
  options.StartingX = moves.front().x;
  options.StartingY = moves.front().y;
  game.Form_Load("");
  state.ApplyingMoves = true;
  for (std::size_t i = 1; i < moves.size(); ++i) game.ValidMove(moves[i].x, moves[i].y);
  window.onDoEvents = [this] {
    if (onRedraw) onRedraw();
  };
  window.log.clear();
}

bool SolverTest::Solve() {
  solver = SolverState();
  redraws.clear();
  state.SolverRunning = true;
  const bool solved = SolveTheGameNoRefresh({game, state, window, solver, refreshRate, *this});
  state.SolverRunning = false;
  return solved;
}

void SolverTest::ShowProgress() {
  redraws.push_back(ProgressText(state, solver));
}
