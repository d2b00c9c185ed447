#include "core/Game.h"
#include "core/Menus.h"

void Game::ClearRedo() {
  SwitchMenus(window_, MenuChange::NothingToRedo);
  for (int i = state_.MoveCount; i < SquareCount; ++i) {
    MoveRow& row = state_.MoveList[static_cast<std::size_t>(i)];
    if (row.x == EmptyMove.x) return;
    row = EmptyMove;
  }
}

void Game::mnuEditRedo_Click() {
  state_.CursorX = state_.CursorY = -1;
  // Row 64 reads (0, 0), as if a 65th move could be made again; there is no place to record one.
  if (state_.MoveCount == SquareCount) return;
  const MoveRow move = state_.MoveList[static_cast<std::size_t>(state_.MoveCount)];
  if (move.x == EmptyMove.x) return;

  state_.FirstMoveMade = true;
  ValidMove(move.x, move.y);
  const MoveRow next = state_.MoveList[static_cast<std::size_t>(state_.MoveCount)];
  if (next.x == EmptyMove.x) SwitchMenus(window_, MenuChange::NothingToRedo);
  window_.RestoreColors();
}

void Game::mnuEditUndo_Click() {
  state_.CursorX = state_.CursorY = -1;
  if (state_.MoveCount == 0) return;
  const bool playerPickedFirstSquare = state_.GameStartingPosition == FirstSquare::PlayersChoice;

  if (state_.MoveCount == 1) {
    if (!playerPickedFirstSquare) return;
    state_.FirstMoveMade = false;
    SwitchMenus(window_, MenuChange::PlayersSquareUndone);
  } else if (playerPickedFirstSquare && state_.MoveCount == 2) {
    SwitchMenus(window_, MenuChange::BackOnPlayersSquare);
  } else {
    SwitchMenus(window_, MenuChange::MoveUndone);
  }

  TakeBackUnseen();
  window_.RestoreColors();

  if (!state_.ApplyingMoves) window_.EnableClock(true);
  if (!playerPickedFirstSquare && state_.MoveCount == 1) {
    SwitchMenus(window_, MenuChange::BackOnFixedSquare);
  }
}

void Game::TakeBackUnseen() {
  --state_.MoveCount;
  const MoveRow undone = state_.MoveList[static_cast<std::size_t>(state_.MoveCount)];
  state_.Cell(undone.x, undone.y) = GameState::Unvisited;
  const MoveRow before = state_.FirstMoveMade
                             ? state_.MoveList[static_cast<std::size_t>(state_.MoveCount - 1)]
                             : MoveRow{0, 0};
  state_.KnightX = before.x;
  state_.KnightY = before.y;
}
