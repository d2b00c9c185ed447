#include "ui/commands/EndOfGame.h"

#include "ui/commands/Replay.h"

namespace {

// The first game that counts as a high score.
constexpr int HighScoreMoves = 33;

void SubmitToScores(const CommandContext& context, const GameOverReport& report) {
  const ScoreList list = report.moveCount < HighScoreMoves ? ScoreList::Low : ScoreList::High;
  context.state.NoScoreGame = true;  // a game is submitted once only
  const FinishedGame finished{report.moveCount, report.elapsedHalfSeconds};
  switch (context.windows.ShowScores(list, finished)) {
    case ScoresAnswer::NewGame:
      context.game.mnuFileNew_Click();
      break;
    case ScoresAnswer::Replay:
      mnuViewReplay_Click(context);
      break;
    case ScoresAnswer::Close:
      break;
  }
}

}  // namespace

void EndGame(const CommandContext& context, const GameOverReport& report) {
  const bool mayScore = !context.state.NoScoreGame;
  if (report.moveCount == SquareCount && mayScore) context.windows.ShowWin();
  if (context.windows.ShowGameOver(report) == GameOverAnswer::Undo) {
    context.game.mnuEditUndo_Click();
  } else if (mayScore) {
    SubmitToScores(context, report);
  } else {
    mnuViewReplay_Click(context);
  }
}
