#include "tests/support/GameTest.h"

using ValidMove = GameTest;

TEST_F(ValidMove, TakesItsStepsInOrder) {
  Begin();
  game.ValidMove(2, 1);
  EXPECT_EQ(TakeLog(), (Steps{
                           "mnuEditUndo on",
                           "mnuViewHistory on",
                           "mnuEditHistory on",
                           "mnuFileRestart on",
                           "mnuViewReplay on",
                           "mnuFileSave on",
                           "mnuFileAutoplay on",
                           "mnuFileSolve on",
                           "RestoreColors",
                           "caption Gallopade Nova: 2 - 0:00:00.0",
                           "clock on",
                       }));
}

TEST_F(ValidMove, LeavesRestartAndReplayAloneOnTheFirstSquare) {
  Begin(StartOnPlayersChoice);
  game.ValidMove(4, 4);
  EXPECT_EQ(TakeLog(), (Steps{
                           "mnuEditUndo on",
                           "mnuViewHistory on",
                           "mnuEditHistory on",
                           "mnuFileSave on",
                           "mnuFileAutoplay on",
                           "mnuFileSolve on",
                           "RestoreColors",
                           "caption Gallopade Nova: 1 - 0:00:00.0",
                           "clock on",
                       }));
}

TEST_F(ValidMove, LeavesTheClockAloneWhileTheProgramMakesMoves) {
  Begin();
  state.ApplyingMoves = true;
  game.ValidMove(2, 1);
  EXPECT_EQ(TakeLog().back(), "caption Gallopade Nova: 2 - 0:00:00.0");
}

TEST_F(ValidMove, EndsTheGameInOrder) {
  Begin();
  PlayTour(game, 63);
  window.log.clear();
  game.ValidMove(2, 7);
  const std::string congratulations = "Congratulations, you have mastered Gallopade Nova.";
  EXPECT_EQ(TakeLog(), (Steps{
                           "mnuEditUndo on",
                           "mnuViewHistory on",
                           "mnuEditHistory on",
                           "mnuFileRestart on",
                           "mnuViewReplay on",
                           "mnuFileSave on",
                           "mnuFileAutoplay on",
                           "mnuFileSolve on",
                           "RestoreColors",
                           "caption Gallopade Nova: 64 - 0:00:00.0",
                           "clock on",
                           "mnuFileSave off",
                           "mnuFileSaveReplay on",
                           "mnuFileAutoplay off",
                           "mnuFileSolve off",
                           "clock off",
                           "EndGame &Submit to Scores|" + congratulations + "|64|0",
                       }));
}

TEST_F(ValidMove, IsOnTheBoardBeforeItIsDrawnAndCountedAfterwards) {
  Begin();
  window.onRestoreColors = [this] {
    EXPECT_TRUE(IsTaken("C7"));
    EXPECT_EQ(Knight(), "C7");
    EXPECT_EQ(Cursor(), "C7");
    EXPECT_EQ(state.MoveCount, 1);
  };
  game.ValidMove(2, 1);
  EXPECT_EQ(state.MoveCount, 2);
  EXPECT_EQ(MovesMade(state), SquaresNamed("A8 C7"));
}

TEST_F(ValidMove, IsNotMadeWhenTheListOfMovesIsFull) {
  Begin(StartOnPlayersChoice);
  state.ApplyingMoves = true;
  for (int i = 0; i < 32; ++i) {
    game.ValidMove(0, 0);
    game.ValidMove(2, 1);
  }
  state.ApplyingMoves = false;
  state.FirstMoveMade = true;
  window.log.clear();
  ClickOn("E8");
  EXPECT_EQ(state.MoveCount, 64);
  EXPECT_EQ(state.MoveList[64], (MoveRow{0, 0}));
  EXPECT_FALSE(IsTaken("E8"));
}
