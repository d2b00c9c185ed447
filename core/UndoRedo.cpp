#include "core/Game.h"

void Game::ClearRedo() {
  window_.SetMenuEnabled(MenuEntry::mnuEditRedo, false);
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
  if (next.x == EmptyMove.x) window_.SetMenuEnabled(MenuEntry::mnuEditRedo, false);
  window_.RestoreColors(-1, -1);
}

void Game::mnuEditUndo_Click() {
  state_.CursorX = state_.CursorY = -1;
  if (state_.MoveCount == 0) return;
  const bool playerPickedFirstSquare = state_.GameStartingPosition == 1;

  if (state_.MoveCount == 1) {
    if (!playerPickedFirstSquare) return;
    state_.FirstMoveMade = false;
    window_.SetMenuEnabled(MenuEntry::mnuEditUndo, false);
    window_.SetMenuEnabled(MenuEntry::mnuViewHistory, false);
    window_.SetMenuEnabled(MenuEntry::mnuViewReplay, false);
    window_.SetMenuEnabled(MenuEntry::mnuFileSave, false);
  } else {
    window_.SetMenuEnabled(MenuEntry::mnuFileSave, true);
  }
  window_.SetMenuEnabled(MenuEntry::mnuFileAutoplay, true);
  window_.SetMenuEnabled(MenuEntry::mnuFileSolve, true);
  window_.SetMenuEnabled(MenuEntry::mnuFileSaveReplay, false);
  if (playerPickedFirstSquare && state_.MoveCount == 2) {
    window_.SetMenuEnabled(MenuEntry::mnuFileRestart, false);
    window_.SetMenuEnabled(MenuEntry::mnuViewReplay, false);
  }
  window_.SetMenuEnabled(MenuEntry::mnuEditRedo, true);

  --state_.MoveCount;
  const MoveRow undone = state_.MoveList[static_cast<std::size_t>(state_.MoveCount)];
  state_.Cell(undone.x, undone.y) = GameState::Unvisited;
  const MoveRow before = state_.FirstMoveMade
                             ? state_.MoveList[static_cast<std::size_t>(state_.MoveCount - 1)]
                             : MoveRow{0, 0};
  state_.KnightX = before.x;
  state_.KnightY = before.y;
  window_.RestoreColors(-1, -1);

  if (!state_.ApplyingMoves) window_.EnableClock(true);
  if (!playerPickedFirstSquare && state_.MoveCount == 1) {
    for (const MenuEntry entry :
         {MenuEntry::mnuEditUndo, MenuEntry::mnuViewHistory, MenuEntry::mnuFileRestart,
          MenuEntry::mnuViewReplay, MenuEntry::mnuFileSave, MenuEntry::mnuFileSaveReplay}) {
      window_.SetMenuEnabled(entry, false);
    }
  }
}
