#include <algorithm>

#include "core/Game.h"
#include "core/Menus.h"

namespace {

std::string EndMessage(int moveCount) {
  if (moveCount == SquareCount) return "Congratulations, you have mastered Gallopade Nova.";
  if (moveCount >= GoodGame) return "Sorry, there are no more valid moves.";
  return "There are no more valid moves.";
}

MoveRow Row(int x, int y) {
  return {static_cast<std::int16_t>(x), static_cast<std::int16_t>(y)};
}

std::int16_t StartingCoordinate(std::int16_t stored) {
  return IsSquare(stored, 0) ? stored : std::int16_t{0};
}

}  // namespace

bool Game::CheckIfGameOver(int x, int y) const {
  return std::none_of(KnightMoveOffsets.begin(), KnightMoveOffsets.end(), [&](Offset offset) {
    const int targetX = x + offset.dx;
    const int targetY = y + offset.dy;
    return IsSquare(targetX, targetY) && state_.Cell(targetX, targetY) == GameState::Unvisited;
  });
}

void Game::ValidMove(int x, int y) {
  // A game file may list squares twice: its list is then full while squares are still free.
  if (state_.MoveCount == SquareCount) return;
  SwitchMenus(window_, state_.MoveCount == 0 ? MenuChange::FirstSquareTaken : MenuChange::MoveMade);

  const MoveRow move = Row(x, y);
  PlaceKnight(move);
  window_.RestoreColors();
  ListMove(move);
  DoCaption();

  if (state_.ApplyingMoves) return;
  window_.EnableClock(true);
  if (CheckIfGameOver(x, y)) AnnounceEnd();
}

void Game::MoveUnseen(int x, int y) {
  const MoveRow move = Row(x, y);
  PlaceKnight(move);
  ListMove(move);
}

void Game::PlaceKnight(MoveRow move) {
  state_.Cell(move.x, move.y) = GameState::Visited;
  state_.KnightX = state_.CursorX = move.x;
  state_.KnightY = state_.CursorY = move.y;
}

void Game::ListMove(MoveRow move) {
  state_.MoveList[static_cast<std::size_t>(state_.MoveCount)] = move;
  ++state_.MoveCount;
}

void Game::AnnounceEnd() {
  SwitchMenus(window_, MenuChange::FinishedGame);
  window_.EnableClock(false);
  window_.EndGame({state_.NoScoreGame ? "View &Replay" : "&Submit to Scores",
                   EndMessage(state_.MoveCount), state_.MoveCount, state_.ElapsedHalfSeconds});
}

void Game::SetupFirstMove() {
  if (options_.StartingPosition == FirstSquare::PlayersChoice) {
    state_.FirstMoveMade = false;
    state_.KnightX = state_.KnightY = 0;
  } else if (options_.StartingPosition == FirstSquare::Stored) {
    ValidMove(StartingCoordinate(options_.StartingX), StartingCoordinate(options_.StartingY));
    state_.FirstMoveMade = true;
  } else {
    MakeRandomStartingMove();
  }
  RefreshHighlight();
}

void Game::MakeRandomStartingMove() {
  random_.Reseed();
  const int x = random_.Below(BoardSide);
  const int y = random_.Below(BoardSide);
  ValidMove(x, y);
  state_.FirstMoveMade = true;
}

void Game::pctGrid_Click(int index) {
  if (state_.ApplyingMoves || !IsSquareIndex(index)) return;
  const int x = ColumnOf(index);
  const int y = RowOf(index);

  if (!state_.FirstMoveMade) {
    ClearRedo();
    ValidMove(x, y);
    state_.FirstMoveMade = true;
    window_.RestoreColors();
    return;
  }
  const bool free = state_.Cell(x, y) == GameState::Unvisited;
  if (!free || !IsKnightsMove(state_.KnightX, state_.KnightY, x, y)) return;
  ClearRedo();
  ValidMove(x, y);
}

void Game::pctGrid_MouseMove(int index, int button) {
  if (!IsSquareIndex(index)) return;
  const bool forced = button == -1;
  if (!forced && (state_.ApplyingMoves || CheckIfGameOver(state_.KnightX, state_.KnightY))) return;
  state_.CursorX = static_cast<std::int16_t>(ColumnOf(index));
  state_.CursorY = static_cast<std::int16_t>(RowOf(index));
  window_.HighlightSquare(index, forced);
}

void Game::RefreshHighlight() {
  pctGrid_MouseMove(SquareIndex(state_.CursorX, state_.CursorY), 0);
}

void Game::RepaintWholeBoard() {
  const std::int16_t cursorX = state_.CursorX;
  const std::int16_t cursorY = state_.CursorY;
  for (int index = SquareCount - 1; index >= 0; --index) pctGrid_MouseMove(index, -1);
  state_.CursorX = cursorX;
  state_.CursorY = cursorY;
  window_.RestoreColors();
}
