#include "core/Keyboard.h"

#include "core/Game.h"

void Game::pctGrid_KeyDown(int keyCode) {
  switch (keyCode) {
    case KeyCode::Backspace:
      if (window_.IsMenuEnabled(MenuEntry::mnuEditUndo)) mnuEditUndo_Click();
      return;
    case KeyCode::Enter:
    case KeyCode::Space:
    case KeyCode::Clear:
    case KeyCode::Numeric5:
      ClickOnCursor();
      return;
    default:
      MoveCursor(keyCode);
  }
}

void Game::ClickOnCursor() {
  if (state_.CursorX != -1) pctGrid_Click(SquareIndex(state_.CursorX, state_.CursorY));
}

// The directions treat the edges differently: the backward keys stay put when there is no cursor
// and the knight is at their edge, the forward keys then show the cursor on the knight.
void Game::MoveCursor(int keyCode) {
  constexpr int last = BoardSide - 1;
  const bool hadCursor = state_.CursorX != -1;
  const bool knightOnBoard = state_.Cell(state_.KnightX, state_.KnightY) == GameState::Visited;
  int x = hadCursor ? state_.CursorX : state_.KnightX;
  int y = hadCursor ? state_.CursorY : state_.KnightY;
  const bool beforeFirstSquare = !hadCursor && !knightOnBoard;

  switch (keyCode) {
    case KeyCode::Right:
    case KeyCode::Numeric6:
      if (hadCursor && x == last) return;
      if (beforeFirstSquare)
        x = y = 0;
      else if (x < last)
        ++x;
      break;
    case KeyCode::Down:
    case KeyCode::Numeric2:
      if (hadCursor && y == last) return;
      if (beforeFirstSquare)
        x = y = 0;
      else if (y < last)
        ++y;
      break;
    case KeyCode::Left:
    case KeyCode::Numeric4:
      if (x == 0) return;
      --x;
      break;
    case KeyCode::Up:
    case KeyCode::Numeric8:
      if (y == 0) return;
      --y;
      break;
    case KeyCode::End:
      if (beforeFirstSquare) y = 0;
      x = last;
      break;
    case KeyCode::PageDown:
      if (beforeFirstSquare) x = 0;
      y = last;
      break;
    case KeyCode::Home:
      if (!hadCursor && x == 0) return;
      x = 0;
      break;
    case KeyCode::PageUp:
      if (!hadCursor && y == 0) return;
      y = 0;
      break;
    default:
      return;
  }
  pctGrid_MouseMove(SquareIndex(x, y), -1);
}
