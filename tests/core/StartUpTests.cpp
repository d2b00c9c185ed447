#include "tests/support/GameTest.h"

using StartUp = GameTest;

TEST_F(StartUp, TakesItsStepsInOrder) {
  game.Form_Load([this] { window.log.push_back("the settings"); });
  EXPECT_EQ(
      TakeLog(),
      (Steps{
          "the settings",          "mnuEditUndo on",     "mnuViewHistory on",
          "mnuEditHistory on",     "mnuFileSave on",     "mnuFileAutoplay on",
          "mnuFileSolve on",       "RestoreColors",      "caption Gallopade Nova: 1 - 0:00:00.0",
          "RestoreColors",         "clock off",          "mnuEditRedo off",
          "mnuEditUndo off",       "mnuViewHistory off", "mnuEditHistory off",
          "mnuFileRestart off",    "mnuViewReplay off",  "mnuFileSave off",
          "mnuFileSaveReplay off", "mnuFileAutoplay on", "mnuFileSolve on",
          "HighlightSquare 0",     "RestoreColors",
      }));
}

TEST_F(StartUp, TakesFewerStepsWhenThePlayerPicksTheFirstSquare) {
  options.StartingPosition = StartOnPlayersChoice;
  game.Form_Load([this] { window.log.push_back("the settings"); });
  EXPECT_EQ(TakeLog(), (Steps{
                           "the settings",
                           "RestoreColors",
                           "caption Gallopade Nova: 0 - 0:00:00.0",
                           "clock off",
                           "mnuEditRedo off",
                           "mnuEditUndo off",
                           "mnuViewHistory off",
                           "mnuEditHistory off",
                           "mnuFileRestart off",
                           "mnuViewReplay off",
                           "mnuFileSave off",
                           "mnuFileSaveReplay off",
                           "mnuFileAutoplay on",
                           "mnuFileSolve on",
                           "RestoreColors",
                       }));
}

TEST_F(StartUp, ReadsTheSettingsBeforeItTakesTheFirstSquare) {
  game.Form_Load([this] {
    EXPECT_EQ(state.MoveCount, 0);
    EXPECT_TRUE(state.ApplyingMoves);
    options.StartingX = 7;
    options.StartingY = 7;
  });
  EXPECT_EQ(Knight(), "H1");
}

TEST_F(StartUp, RemembersHowTheGameBegan) {
  for (const FirstSquare position :
       {StartOnStoredSquare, StartOnPlayersChoice, StartOnRandomSquare}) {
    Begin(position);
    EXPECT_EQ(state.GameStartingPosition, position);
  }
}

TEST_F(StartUp, PutsTheCursorOnTheKnight) {
  options.StartingX = 2;
  Begin();
  EXPECT_EQ(Cursor(), "C8");
}

TEST_F(StartUp, ShowsNoCursorBeforeThePlayerPicksTheFirstSquare) {
  Begin(StartOnPlayersChoice);
  EXPECT_EQ(Cursor(), "none");
}

TEST_F(StartUp, LeavesTheGameToThePlayer) {
  Begin();
  EXPECT_FALSE(state.ApplyingMoves);
}

TEST_F(StartUp, LeavesTheClockStoppedAtZero) {
  Begin();
  EXPECT_FALSE(window.IsClockEnabled());
  EXPECT_EQ(state.ElapsedHalfSeconds, 0);
}

TEST_F(StartUp, BeginsFromNothingWhateverWasThere) {
  state.SolverRunning = true;
  state.NoScoreGame = true;
  state.MoveCount = 5;
  game.Form_Load([] {});
  EXPECT_FALSE(state.SolverRunning);
  EXPECT_FALSE(state.NoScoreGame);
  EXPECT_EQ(MovesMade(state), SquaresNamed("A8"));
}

TEST_F(StartUp, WritesTheCaptionBeforeAnyMoveWithoutTheTime) {
  options.ShowTime = false;
  Begin(StartOnPlayersChoice);
  EXPECT_EQ(window.Caption(), "Gallopade Nova: 0");
}

TEST_F(StartUp, WritesAPlainCaptionWhenNothingShallBeShown) {
  options.ShowScore = options.ShowTime = false;
  game.Form_Load([] {});
  EXPECT_EQ(window.Caption(), "Gallopade Nova");
}
