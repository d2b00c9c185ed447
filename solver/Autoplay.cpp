#include "solver/Autoplay.h"

#include "core/Menus.h"
#include "solver/TourOrder.h"

namespace {

// A game file may name squares twice: the list of moves is then full while squares are still free.
bool MayMoveOn(const Game& game, const GameState& state) {
  return state.MoveCount < SquareCount && !game.CheckIfGameOver(state.KnightX, state.KnightY);
}

void MoveAtRandom(Game& game, GameState& state, GameWindow& window, Random& random) {
  const Offset offset = TourMoveOffsets[static_cast<std::size_t>(random.Below(8))];
  const int x = state.KnightX + offset.dx;
  const int y = state.KnightY + offset.dy;
  if (!IsSquare(x, y) || state.Cell(x, y) != GameState::Unvisited) return;
  game.ValidMove(x, y);
  window.RestoreColors();
  window.DoEvents();
}

}  // namespace

void mnuFileAutoplay_Click(Game& game, GameState& state, GameWindow& window, Random& random) {
  const WorkScope work(window.Guard());
  state.NoScoreGame = true;
  game.ClearRedo();
  if (state.MoveCount == 0) {
    game.MakeRandomStartingMove();
    window.RestoreColors();
  }
  random.Reseed();
  {
    const ApplyingMovesScope applying(state);
    while (MayMoveOn(game, state) && !window.Guard().IsCloseRequested()) {
      MoveAtRandom(game, state, window, random);
    }
  }
  window.EnableClock(false);
  // A walk that was broken off leaves a game that can be played on.
  if (!MayMoveOn(game, state)) SwitchMenus(window, MenuChange::AutoplayEnded);
}
