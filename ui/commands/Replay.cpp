#include "ui/commands/Replay.h"

namespace {

// A window that is about to close is to find the game where it was.
void MakeAllMovesAgain(const CommandContext& context, int total) {
  while (context.state.MoveCount < total) context.game.mnuEditRedo_Click();
}

void RewindAndShow(const CommandContext& context) {
  const ApplyingMovesScope applying(context.state);
  const int total = context.state.MoveCount;
  context.game.mnuFileRestart_Click();
  if (context.window.Guard().IsCloseRequested()) {
    MakeAllMovesAgain(context, total);
  } else {
    context.windows.ShowReplay(total);
  }
}

}  // namespace

void mnuViewReplay_Click(const CommandContext& context) {
  context.window.EnableClock(false);
  RewindAndShow(context);
  context.game.GoOnOrFinish();
  context.window.CatchUpOnResize();
}
