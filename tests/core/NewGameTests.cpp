#include "tests/support/GameTest.h"

namespace {

const std::string Question =
    "ask New Game?|Your current game is not finished. Do you want to start a new game?";

class NewGame : public GameTest {
 protected:
  void ChooseNew() { game.mnuFileNew_Click(); }
};

}  // namespace

TEST_F(NewGame, TakesItsStepsInOrder) {
  Begin();
  PlayTour(game, 3);
  window.log.clear();
  window.answers = {PlayerSays::Yes};
  ChooseNew();
  EXPECT_EQ(TakeLog(), (Steps{
                           "clock off",
                           Question,
                           "mnuEditRedo off",
                           "mnuEditUndo on",
                           "mnuViewHistory on",
                           "mnuEditHistory on",
                           "mnuFileSave on",
                           "mnuFileAutoplay on",
                           "mnuFileSolve on",
                           "RestoreColors",
                           "caption Gallopade Nova: 1 - 0:00:00.0",
                           "clock on",
                           "HighlightSquare 0",
                           "RestoreColors",
                           "clock off",
                           "mnuEditUndo off",
                           "mnuViewHistory off",
                           "mnuEditHistory off",
                           "mnuFileRestart off",
                           "mnuViewReplay off",
                           "mnuFileSave off",
                           "mnuFileSaveReplay off",
                           "mnuFileAutoplay on",
                           "mnuFileSolve on",
                       }));
}

TEST_F(NewGame, AsksNothingRightAfterStartUp) {
  for (const FirstSquare position :
       {StartOnStoredSquare, StartOnPlayersChoice, StartOnRandomSquare}) {
    Begin(position);
    ChooseNew();
    EXPECT_NE(window.log[1], Question);
  }
}

TEST_F(NewGame, AsksAfterThePlayersFirstSquare) {
  Begin(StartOnPlayersChoice);
  ClickOn("E4");
  window.log.clear();
  window.answers = {PlayerSays::No};
  ChooseNew();
  EXPECT_EQ(TakeLog(), (Steps{"clock off", Question, "clock on"}));
}

TEST_F(NewGame, AsksAfterThePlayersFirstMove) {
  Begin();
  ClickOn("C7");
  window.answers = {PlayerSays::Yes};
  ChooseNew();
  EXPECT_EQ(state.MoveCount, 1);
}

TEST_F(NewGame, AsksNothingAfterTheEndOfAGame) {
  Begin();
  PlaySquares(game, Games::DeadEndAfter20);
  ChooseNew();
  EXPECT_EQ(state.MoveCount, 1);
}

TEST_F(NewGame, AsksByHowTheGameBeganAndNotByTheSetting) {
  Begin();
  options.StartingPosition = StartOnPlayersChoice;
  ChooseNew();
  EXPECT_EQ(state.MoveCount, 0);
}

TEST_F(NewGame, LeavesEverythingAsItWasWhenThePlayerDeclines) {
  Begin();
  PlayTour(game, 5);
  TakeBack(2);
  state.NoScoreGame = true;
  game.tmrTime_Timer();
  const std::uint32_t serial = state.GameSerial;
  window.answers = {PlayerSays::No};
  ChooseNew();
  EXPECT_EQ(MovesMade(state), SquaresNamed("A8 C7 B5"));
  EXPECT_EQ(MovesToRedo(state), SquaresNamed("D6 E8"));
  EXPECT_TRUE(IsOn(MenuEntry::mnuEditRedo));
  EXPECT_TRUE(state.NoScoreGame);
  EXPECT_EQ(state.ElapsedHalfSeconds, 1);
  EXPECT_EQ(state.GameSerial, serial);
  EXPECT_TRUE(window.IsClockEnabled());
}

TEST_F(NewGame, LeavesAStoppedClockStoppedWhenThePlayerDeclines) {
  Begin();
  PlayTour(game, 5);
  window.EnableClock(false);
  window.answers = {PlayerSays::No};
  ChooseNew();
  EXPECT_FALSE(window.IsClockEnabled());
}

TEST_F(NewGame, ClearsTheBoardAndTheMoves) {
  Begin(StartOnPlayersChoice);
  PlayTour(game, 64);
  ChooseNew();
  EXPECT_EQ(state.MoveCount, 0);
  EXPECT_EQ(SquaresTaken(), 0);
  for (std::size_t row = 0; row < 64; ++row) EXPECT_EQ(state.MoveList[row], EmptyMove) << row;
}

TEST_F(NewGame, LetsThePlayerPickTheFirstSquareAgain) {
  Begin(StartOnPlayersChoice);
  PlayTour(game, 64);
  ChooseNew();
  EXPECT_FALSE(state.FirstMoveMade);
  EXPECT_EQ(Cursor(), "none");
}

TEST_F(NewGame, FollowsTheSettingInForce) {
  Begin();
  options.StartingPosition = StartOnPlayersChoice;
  ChooseNew();
  EXPECT_EQ(state.GameStartingPosition, StartOnPlayersChoice);
  options.StartingPosition = StartOnStoredSquare;
  options.StartingX = 4;
  ChooseNew();
  EXPECT_EQ(state.GameStartingPosition, StartOnStoredSquare);
  EXPECT_EQ(Knight(), "E8");
  EXPECT_EQ(Cursor(), "E8");
}

TEST_F(NewGame, MayScoreAgain) {
  Begin();
  state.NoScoreGame = true;
  ChooseNew();
  EXPECT_FALSE(state.NoScoreGame);
}

TEST_F(NewGame, StopsTheClockAtZero) {
  Begin();
  PlayTour(game, 2);
  game.tmrTime_Timer();
  game.StartNewGame();
  EXPECT_EQ(state.ElapsedHalfSeconds, 0);
  EXPECT_FALSE(window.IsClockEnabled());
  EXPECT_EQ(window.Caption(), "Gallopade Nova: 1 - 0:00:00.0");
}

TEST_F(NewGame, WritesTheCaptionBeforeAnyMoveWithoutTheTime) {
  options.ShowTime = false;
  Begin(StartOnPlayersChoice);
  PlayTour(game, 3);
  game.StartNewGame();
  EXPECT_EQ(window.Caption(), "Gallopade Nova: 0");
}

TEST_F(NewGame, HasASerialNumberOfItsOwn) {
  Begin();
  const std::uint32_t before = state.GameSerial;
  ChooseNew();
  EXPECT_NE(state.GameSerial, before);
}
