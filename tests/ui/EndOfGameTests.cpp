#include "tests/ui/CommandTest.h"

namespace {

class EndOfGame : public CommandTest {
 protected:
  void Play(std::string_view squares) { PlaySquares(game, squares); }
  void PlayAllButTheLastMove() { PlayTour(game, 63); }
};

}  // namespace

TEST_F(EndOfGame, CelebratesACompleteTourBeforeAnythingElse) {
  Begin();
  Play(Games::CompleteTour);
  EXPECT_EQ(TakeWindows(), (Steps{"show frmWin",
                                  "show frmGameOver &Submit to Scores|"
                                  "Congratulations, you have mastered Gallopade Nova.",
                                  "show frmScores high|64|0"}));
}

TEST_F(EndOfGame, CelebratesNoTourThatMayNotScore) {
  Begin();
  PlayAllButTheLastMove();
  state.NoScoreGame = true;
  Play(Games::CompleteTour);
  EXPECT_EQ(TakeWindows(), (Steps{"show frmGameOver View &Replay|"
                                  "Congratulations, you have mastered Gallopade Nova.",
                                  "show frmReplay 64"}));
}

TEST_F(EndOfGame, EntersThirtyTwoMovesInTheLowScores) {
  Begin();
  Play(Games::DeadEndAfter32);
  EXPECT_EQ(TakeWindows(),
            (Steps{"show frmGameOver &Submit to Scores|There are no more valid moves.",
                   "show frmScores low|32|0"}));
}

TEST_F(EndOfGame, EntersThirtyThreeMovesInTheHighScores) {
  Begin();
  Play(Games::DeadEndAfter33);
  EXPECT_EQ(TakeWindows(),
            (Steps{"show frmGameOver &Submit to Scores|Sorry, there are no more valid moves.",
                   "show frmScores high|33|0"}));
}

TEST_F(EndOfGame, EntersTheTimeOnTheClock) {
  Begin();
  PlayTour(game, 2);
  for (int tick = 0; tick < 7; ++tick) game.tmrTime_Timer();
  Play(Games::DeadEndAfter20);
  EXPECT_EQ(TakeWindows().back(), "show frmScores low|20|7");
}

TEST_F(EndOfGame, MaySubmitAGameOnlyOnce) {
  Begin();
  Play(Games::DeadEndAfter20);
  EXPECT_TRUE(state.NoScoreGame);
  TakeLog();
  game.mnuEditUndo_Click();
  game.mnuEditRedo_Click();
  EXPECT_EQ(TakeWindows(), (Steps{"show frmGameOver View &Replay|There are no more valid moves.",
                                  "show frmReplay 20"}));
}

TEST_F(EndOfGame, CountsAsSubmittedBeforeTheScoresAreShown) {
  Begin();
  windows.onShow = [this](const std::string& name) {
    EXPECT_EQ(state.NoScoreGame, name == "frmScores") << name;
  };
  Play(Games::DeadEndAfter20);
}

TEST_F(EndOfGame, TakesTheLastMoveBack) {
  Begin();
  windows.gameOverAnswer = GameOverAnswer::Undo;
  Play(Games::DeadEndAfter20);
  EXPECT_EQ(state.MoveCount, 19);
  EXPECT_EQ(TakeWindows(),
            Steps{"show frmGameOver &Submit to Scores|There are no more valid moves."});
}

TEST_F(EndOfGame, LetsThePlayerGoOnAfterTheUndo) {
  Begin();
  windows.gameOverAnswer = GameOverAnswer::Undo;
  Play(Games::DeadEndAfter20);
  EXPECT_TRUE(window.IsClockEnabled());
  EXPECT_FALSE(window.IsMenuEnabled(MenuEntry::mnuFileSaveReplay));
  EXPECT_TRUE(window.IsMenuEnabled(MenuEntry::mnuFileSave));
  EXPECT_TRUE(window.IsMenuEnabled(MenuEntry::mnuEditRedo));
}

TEST_F(EndOfGame, MayStillScoreAfterTheUndo) {
  Begin();
  windows.gameOverAnswer = GameOverAnswer::Undo;
  Play(Games::DeadEndAfter20);
  EXPECT_FALSE(state.NoScoreGame);
}

TEST_F(EndOfGame, AnnouncesTheSameEndAgainWhenTheMoveIsRedone) {
  Begin();
  windows.gameOverAnswer = GameOverAnswer::Undo;
  Play(Games::DeadEndAfter20);
  TakeLog();
  game.mnuEditRedo_Click();
  EXPECT_EQ(TakeWindows(),
            Steps{"show frmGameOver &Submit to Scores|There are no more valid moves."});
  EXPECT_EQ(state.MoveCount, 19);
  EXPECT_TRUE(window.IsMenuEnabled(MenuEntry::mnuEditRedo));
}

TEST_F(EndOfGame, StaysFinishedWhenTheScoresAreClosed) {
  Begin();
  Play(Games::DeadEndAfter20);
  EXPECT_EQ(state.MoveCount, 20);
  EXPECT_FALSE(window.IsClockEnabled());
  EXPECT_FALSE(window.IsMenuEnabled(MenuEntry::mnuFileSave));
  EXPECT_TRUE(window.IsMenuEnabled(MenuEntry::mnuFileSaveReplay));
}

TEST_F(EndOfGame, LeadsToANewGameWithoutAQuestion) {
  Begin();
  windows.scoresAnswer = ScoresAnswer::NewGame;
  Play(Games::DeadEndAfter20);
  EXPECT_EQ(state.MoveCount, 1);
  EXPECT_FALSE(state.NoScoreGame);
  EXPECT_EQ(TakeWindows().back(), "show frmScores low|20|0");
}

TEST_F(EndOfGame, LeadsToANewGameWhoseFirstSquareThePlayerChooses) {
  Begin(FirstSquare::PlayersChoice);
  windows.scoresAnswer = ScoresAnswer::NewGame;
  Play(Games::DeadEndAfter20);
  EXPECT_EQ(state.MoveCount, 0);
  EXPECT_FALSE(state.FirstMoveMade);
}

TEST_F(EndOfGame, LeavesTheNewGameAloneWhenARedoLedThere) {
  Begin(FirstSquare::PlayersChoice);
  windows.gameOverAnswer = GameOverAnswer::Undo;
  Play(Games::DeadEndAfter20);
  windows.gameOverAnswer = GameOverAnswer::MainButton;
  windows.scoresAnswer = ScoresAnswer::NewGame;
  game.mnuEditRedo_Click();
  EXPECT_EQ(state.MoveCount, 0);
  EXPECT_FALSE(state.FirstMoveMade);
  EXPECT_FALSE(window.IsMenuEnabled(MenuEntry::mnuEditRedo));
}

TEST_F(EndOfGame, LeadsToTheReplayOfTheGameJustPlayed) {
  Begin();
  windows.scoresAnswer = ScoresAnswer::Replay;
  Play(Games::DeadEndAfter20);
  const Steps shown = TakeWindows();
  ASSERT_EQ(shown.size(), 3U);
  EXPECT_EQ(shown.back(), "show frmReplay 20");
}

TEST_F(EndOfGame, TakesNoMoveBackFromAGameThatTookItsPlace) {
  Begin();
  windows.gameOverAnswer = GameOverAnswer::Undo;
  windows.onShow = [this](const std::string&) {
    windows.onShow = nullptr;
    game.StartNewGame();
    PlayTour(game, 3);
  };
  Play(Games::DeadEndAfter20);
  EXPECT_EQ(MovesMade(state).size(), 3U);
}
