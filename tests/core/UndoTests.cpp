#include "tests/support/GameTest.h"

using Undo = GameTest;

TEST_F(Undo, TakesItsStepsInOrder) {
  Begin();
  PlayTour(game, 4);
  window.log.clear();
  game.mnuEditUndo_Click();
  EXPECT_EQ(TakeLog(), (Steps{
                           "mnuFileSave on",
                           "mnuFileAutoplay on",
                           "mnuFileSolve on",
                           "mnuFileSaveReplay off",
                           "mnuEditRedo on",
                           "RestoreColors",
                           "clock on",
                       }));
}

TEST_F(Undo, BackToTheAutomaticSquareTakesItsStepsInOrder) {
  Begin();
  PlayTour(game, 2);
  window.log.clear();
  game.mnuEditUndo_Click();
  EXPECT_EQ(TakeLog(), (Steps{
                           "mnuFileSave on",
                           "mnuFileAutoplay on",
                           "mnuFileSolve on",
                           "mnuFileSaveReplay off",
                           "mnuEditRedo on",
                           "RestoreColors",
                           "clock on",
                           "mnuEditUndo off",
                           "mnuViewHistory off",
                           "mnuFileRestart off",
                           "mnuViewReplay off",
                           "mnuFileSave off",
                           "mnuFileSaveReplay off",
                       }));
}

TEST_F(Undo, BackToThePlayersSquareTakesItsStepsInOrder) {
  Begin(StartOnPlayersChoice);
  PlayTour(game, 2);
  window.log.clear();
  game.mnuEditUndo_Click();
  EXPECT_EQ(TakeLog(), (Steps{
                           "mnuFileSave on",
                           "mnuFileAutoplay on",
                           "mnuFileSolve on",
                           "mnuFileSaveReplay off",
                           "mnuFileRestart off",
                           "mnuViewReplay off",
                           "mnuEditRedo on",
                           "RestoreColors",
                           "clock on",
                       }));
}

TEST_F(Undo, OfThePlayersSquareTakesItsStepsInOrder) {
  Begin(StartOnPlayersChoice);
  PlayTour(game, 1);
  window.log.clear();
  game.mnuEditUndo_Click();
  EXPECT_EQ(TakeLog(), (Steps{
                           "mnuEditUndo off",
                           "mnuViewHistory off",
                           "mnuViewReplay off",
                           "mnuFileSave off",
                           "mnuFileAutoplay on",
                           "mnuFileSolve on",
                           "mnuFileSaveReplay off",
                           "mnuEditRedo on",
                           "RestoreColors",
                           "clock on",
                       }));
}

TEST_F(Undo, MovesTheKnightBackAndFreesItsSquare) {
  Begin();
  PlayTour(game, 4);
  game.mnuEditUndo_Click();
  EXPECT_EQ(Knight(), "B5");
  EXPECT_FALSE(IsTaken("D6"));
  EXPECT_EQ(MovesMade(state), SquaresNamed("A8 C7 B5"));
}

TEST_F(Undo, KeepsTheUndoneMoveAsRedoMaterial) {
  Begin();
  PlayTour(game, 4);
  game.mnuEditUndo_Click();
  EXPECT_EQ(MovesToRedo(state), SquaresNamed("D6"));
}

TEST_F(Undo, KeepsTheUndoneMovesInTheOrderInWhichTheyWereMade) {
  Begin();
  PlayTour(game, 4);
  TakeBack(3);
  EXPECT_EQ(MovesToRedo(state), SquaresNamed("C7 B5 D6"));
}

TEST_F(Undo, IsDrawnWithTheKnightBackAndNoCursor) {
  Begin();
  PlayTour(game, 3);
  window.onRestoreColors = [this] {
    EXPECT_EQ(Knight(), "C7");
    EXPECT_EQ(Cursor(), "none");
    EXPECT_EQ(state.MoveCount, 2);
  };
  game.mnuEditUndo_Click();
}

TEST_F(Undo, OfTheAutomaticSquareDropsTheCursorAndDoesNothingElse) {
  Begin();
  game.mnuEditUndo_Click();
  EXPECT_EQ(Cursor(), "none");
  EXPECT_EQ(MovesMade(state), SquaresNamed("A8"));
  EXPECT_TRUE(IsTaken("A8"));
  EXPECT_EQ(TakeLog(), Steps{});
}

TEST_F(Undo, BeforeTheFirstSquareDropsTheCursorAndDoesNothingElse) {
  Begin(StartOnPlayersChoice);
  PointAt("E4");
  window.log.clear();
  game.mnuEditUndo_Click();
  EXPECT_EQ(Cursor(), "none");
  EXPECT_EQ(TakeLog(), Steps{});
}

TEST_F(Undo, OfThePlayersSquareLetsAnySquareBeTheFirst) {
  Begin(StartOnPlayersChoice);
  ClickOn("E4");
  game.mnuEditUndo_Click();
  EXPECT_FALSE(state.FirstMoveMade);
  EXPECT_EQ(Knight(), "A8");
  EXPECT_EQ(SquaresTaken(), 0);
  ClickOn("G1");
  EXPECT_EQ(MovesMade(state), SquaresNamed("G1"));
}

TEST_F(Undo, GoesByHowTheGameBeganAndNotByTheSetting) {
  Begin();
  options.StartingPosition = StartOnPlayersChoice;
  game.mnuEditUndo_Click();
  EXPECT_EQ(state.MoveCount, 1);
}

TEST_F(Undo, LeavesTheCaptionToTheNextTick) {
  Begin();
  PlayTour(game, 3);
  game.mnuEditUndo_Click();
  EXPECT_EQ(window.Caption(), "Gallopade Nova: 3 - 0:00:00.0");
  game.tmrTime_Timer();
  EXPECT_EQ(window.Caption(), "Gallopade Nova: 2 - 0:00:00.5");
}

TEST_F(Undo, StartsTheClock) {
  Begin();
  PlayTour(game, 3);
  window.EnableClock(false);
  game.mnuEditUndo_Click();
  EXPECT_TRUE(window.IsClockEnabled());
}

TEST_F(Undo, ResumesTheClockAfterTheEndOfTheGame) {
  Begin();
  PlaySquares(game, Games::DeadEndAfter20);
  EXPECT_FALSE(window.IsClockEnabled());
  game.mnuEditUndo_Click();
  EXPECT_TRUE(window.IsClockEnabled());
}

TEST_F(Undo, LeavesTheClockAloneWhileTheProgramMakesMoves) {
  Begin();
  PlayTour(game, 3);
  window.EnableClock(false);
  state.ApplyingMoves = true;
  game.mnuEditUndo_Click();
  EXPECT_FALSE(window.IsClockEnabled());
}

TEST_F(Undo, OfTheWholeTourLeavesTheAutomaticSquare) {
  Begin();
  PlayTour(game, 64);
  TakeBack(100);
  EXPECT_EQ(MovesMade(state), SquaresNamed("A8"));
  EXPECT_EQ(MovesToRedo(state).size(), 63U);
}

TEST_F(Undo, WorksWhileTheEndIsAnnounced) {
  Begin();
  window.onEndGame = [this](const GameOverReport&) { game.mnuEditUndo_Click(); };
  PlaySquares(game, Games::DeadEndAfter20);
  EXPECT_EQ(state.MoveCount, 19);
  EXPECT_TRUE(window.IsClockEnabled());
  EXPECT_FALSE(IsOn(MenuEntry::mnuFileSaveReplay));
  EXPECT_TRUE(IsOn(MenuEntry::mnuEditRedo));
}
