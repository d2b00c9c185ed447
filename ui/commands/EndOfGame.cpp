#include "ui/commands/EndOfGame.h"

#include "storage/ScoreLists.h"
#include "ui/commands/Replay.h"

namespace {

// A tour that the player made alone is celebrated before its end is announced.
void SendScores(const CommandContext& context, const GameOverReport& report) {
  if (report.moveCount == SquareCount && !context.state.NoScoreGame) context.windows.ShowWin();
}

ScoresAnswer SubmitToScores(const CommandContext& context, const GameOverReport& report) {
  context.game.ExcludeFromScores();  // a game is submitted once only
  const FinishedGame finished{report.moveCount, report.elapsedHalfSeconds};
  return context.windows.ShowScores(ListOf(finished), finished);
}

void cmdScoresReplay_Click(const CommandContext& context, const GameOverReport& report) {
  const ScoresAnswer answer =
      context.state.NoScoreGame ? ScoresAnswer::Replay : SubmitToScores(context, report);
  if (answer == ScoresAnswer::Replay) mnuViewReplay_Click(context);
  if (answer == ScoresAnswer::NewGame) context.game.mnuFileNew_Click();
}

}  // namespace

void EndGame(const CommandContext& context, const GameOverReport& report) {
  const std::uint32_t serial = context.state.GameSerial;
  SendScores(context, report);
  const GameOverAnswer answer = context.windows.ShowGameOver(report);
  if (context.state.GameSerial != serial) return;
  if (answer == GameOverAnswer::Undo) {
    context.game.mnuEditUndo_Click();
  } else {
    cmdScoresReplay_Click(context, report);
  }
}
