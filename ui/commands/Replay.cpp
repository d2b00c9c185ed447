#include "ui/commands/Replay.h"

void mnuViewReplay_Click(const CommandContext& context) {
  context.window.EnableClock(false);
  context.state.ApplyingMoves = true;
  const int total = context.state.MoveCount;
  context.game.mnuFileRestart_Click();
  if (context.window.IsCloseRequested()) {
    // The window is about to close: the game is to be found where it was.
    while (context.state.MoveCount < total) context.game.mnuEditRedo_Click();
  } else {
    context.windows.ShowReplay(total);
  }
  context.state.ApplyingMoves = false;
  context.game.GoOnOrFinish();
  context.window.CatchUpOnResize();
}
