#include "ui/commands/Solve.h"

namespace {

constexpr int MovesWithoutWarning = 40;

bool PlayerProceeds(const CommandContext& context) {
  if (context.state.MoveCount >= MovesWithoutWarning) return true;
  if (!context.globals.settings.ShowSolveWarnings) return true;
  return context.window.Ask(
      "Solve?",
      "You have made less than 40 moves before choosing Solve.\n"
      "It may take several hours, or even days, to test for a solution.\n"
      "It is recommended that you use the \"Solve\" feature only with games that\n"
      "have 40 or more completed moves.  Proceed?");
}

}  // namespace

void mnuFileSolve_Click(const CommandContext& context) {
  const bool wasRunning = context.game.DoTiming();
  if (!PlayerProceeds(context)) {
    context.window.EnableClock(wasRunning);
    return;
  }
  if (context.state.MoveCount == 0) {
    context.game.MakeRandomStartingMove();
    context.window.RestoreColors();
  }
  context.window.EnableClock(true);  // the time until a tour is found is time of the game
  {
    const ApplyingMovesScope applying(context.state);
    context.windows.ShowSolve(context.state.MoveCount);
    context.game.ClearRedo();
  }
  context.game.GoOnOrFinish();
  context.window.CatchUpOnResize();
}
