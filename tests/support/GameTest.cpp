#include "tests/support/GameTest.h"

#include <algorithm>
#include <utility>

void GameTest::Begin(FirstSquare startingPosition) {
  state = GameState{};
  options.StartingPosition = startingPosition;
  game.Form_Load([] {});
  window.log.clear();
}

Steps GameTest::TakeLog() {
  return std::exchange(window.log, {});
}

void GameTest::TakeBack(int times) {
  for (int i = 0; i < times; ++i) game.mnuEditUndo_Click();
}

void GameTest::MakeAgain(int times) {
  for (int i = 0; i < times; ++i) game.mnuEditRedo_Click();
}

std::string GameTest::Cursor() const {
  return state.CursorX == -1 ? "none" : SquareName(state.CursorX, state.CursorY);
}

bool GameTest::IsTaken(std::string_view square) const {
  const MoveRow row = SquareNamed(square);
  return state.Cell(row.x, row.y) == GameState::Visited;
}

int GameTest::SquaresTaken() const {
  return static_cast<int>(std::count(state.Board.begin(), state.Board.end(), GameState::Visited));
}
