#include "ui/commands/MenuCommands.h"

#include <optional>

#include "solver/Autoplay.h"

void mnuFileNew_Click(const CommandContext& context) {
  context.game.mnuFileNew_Click();
}

void mnuFileRestart_Click(const CommandContext& context) {
  if (!context.game.MayRestart()) return;
  const WatchedWork walk(context.pace, context.state.MoveCount);
  context.game.Restart();
}

void mnuFileAutoplay_Click(const CommandContext& context) {
  const WatchedWork walk(context.pace, SquareCount - context.state.MoveCount);
  Random random;
  mnuFileAutoplay_Click(context.game, context.state, context.window, random);
}

void mnuFileExit_Click(const CommandContext& context) {
  context.window.Exit();
}

void mnuEditUndo_Click(const CommandContext& context) {
  context.game.mnuEditUndo_Click();
}

void mnuEditRedo_Click(const CommandContext& context) {
  context.game.mnuEditRedo_Click();
}

void mnuPrefs_Click(const CommandContext& context) {
  const ClockPause pause(context);
  context.windows.ShowPreferences();
}

void mnuViewHistory_Click(const CommandContext& context) {
  const ClockPause pause(context);
  context.windows.ShowMoveHistory();
}

void mnuViewScore_Click(const CommandContext& context) {
  context.game.mnuViewScore_Click();
}

void mnuViewTime_Click(const CommandContext& context) {
  context.game.mnuViewTime_Click();
}

void mnuViewHighScores_Click(const CommandContext& context) {
  const ClockPause pause(context);
  context.windows.ShowScores(ScoreList::High, std::nullopt);
}

void mnuViewLowScores_Click(const CommandContext& context) {
  const ClockPause pause(context);
  context.windows.ShowScores(ScoreList::Low, std::nullopt);
}

void mnuHelpContents_Click(const CommandContext& context) {
  context.windows.ShowHelp(QString());
}

void mnuHelpHowToPlay_Click(const CommandContext& context) {
  context.windows.ShowHelp("How to Play");
}

void mnuHelpAbout_Click(const CommandContext& context) {
  const ClockPause pause(context);
  context.windows.ShowAbout();
}
