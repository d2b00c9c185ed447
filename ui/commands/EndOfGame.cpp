#include "ui/commands/EndOfGame.h"

#include "storage/ScoreLists.h"
#include "ui/commands/Replay.h"

namespace {

void SubmitToScores(const CommandContext& context, const GameOverReport& report) {
  const ScoreList list = report.moveCount > MostLowMoves ? ScoreList::High : ScoreList::Low;
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
  const std::uint32_t serial = context.state.GameSerial;
  if (report.moveCount == SquareCount && mayScore) context.windows.ShowWin();
  const GameOverAnswer answer = context.windows.ShowGameOver(report);
  if (context.state.GameSerial != serial) return;
  if (answer == GameOverAnswer::Undo) {
    context.game.mnuEditUndo_Click();
  } else if (mayScore) {
    SubmitToScores(context, report);
  } else {
    mnuViewReplay_Click(context);
  }
}
