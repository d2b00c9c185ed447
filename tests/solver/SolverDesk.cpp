#include "tests/solver/SolverDesk.h"

void SolverDesk::BeginWith(const SolverPosition& position) {
  const std::vector<MoveRow>& moves = position.moves;
  state = GameState();
  options.StartingPosition = position.startingPosition;
  options.StartingX = moves.front().x;
  options.StartingY = moves.front().y;
  game.Form_Load([] {});
  state.ApplyingMoves = true;
  for (const MoveRow& move : moves) {
    const bool made = state.MoveCount == 1 && &move == &moves.front();
    if (!made) game.ValidMove(move.x, move.y);
  }
  state.FirstMoveMade = true;
  for (int undone = 0; undone < position.undos; ++undone) game.mnuEditUndo_Click();
  window.onDoEvents = [this] {
    if (onRedraw) onRedraw();
  };
  ClearLog();
}

bool SolverDesk::Solve(Search search) {
  solver = SolverState();
  redraws.clear();
  state.SolverRunning = true;
  const bool solved = search({game, state, window, solver, refreshRate, *this});
  state.SolverRunning = false;
  return solved;
}

void SolverDesk::ShowProgress() {
  window.log.push_back("ShowProgress");
  const MoveRow square = state.MoveList[static_cast<std::size_t>(state.MoveCount - 1)];
  redraws.push_back(std::to_string(state.MoveCount) + "/" +
                    std::to_string(solver.PositionsTested - 1) + "/" +
                    SquareName(square.x, square.y));
}

std::string Sight(const SolverDesk& desk) {
  std::string sight;
  for (const MoveRow& move : MovesMade(desk.state)) sight += SquareName(move.x, move.y) + " ";
  for (int index = 0; index < SquareCount; ++index) {
    sight += desk.state.Cell(ColumnOf(index), RowOf(index)) == GameState::Visited ? 'x' : '.';
  }
  sight += " knight " + std::to_string(SquareIndex(desk.state.KnightX, desk.state.KnightY));
  sight += " cursor " + std::to_string(SquareIndex(desk.state.CursorX, desk.state.CursorY));
  sight += desk.state.SolverRunning ? " hidden" : " shown";
  sight += desk.window.IsClockEnabled() ? " clock" : "";
  sight += " menus ";
  for (int entry = 0; entry < MenuEntryCount; ++entry) {
    sight += desk.window.IsMenuEnabled(static_cast<MenuEntry>(entry)) ? '+' : '-';
  }
  return sight;
}
