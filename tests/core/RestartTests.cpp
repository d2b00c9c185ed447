#include <algorithm>

#include "tests/support/GameTest.h"

namespace {

const std::string Question = "ask Restart?|Are you sure you want to restart this game?";

class Restart : public GameTest {
 protected:
  void ChooseRestart(PlayerSays answer) {
    window.answers = {answer};
    game.mnuFileRestart_Click();
  }
  // As the replay does.
  void RestartByTheProgram() {
    state.ApplyingMoves = true;
    game.mnuFileRestart_Click();
  }
};

}  // namespace

TEST_F(Restart, TakesItsStepsInOrder) {
  Begin();
  PlayTour(game, 3);
  window.log.clear();
  ChooseRestart(PlayerSays::Yes);
  EXPECT_EQ(TakeLog(), (Steps{
                           "clock off",
                           Question,
                           "BeginWork",
                           "mnuFileSave on",
                           "mnuFileAutoplay on",
                           "mnuFileSolve on",
                           "mnuFileSaveReplay off",
                           "mnuEditRedo on",
                           "RestoreColors",
                           "clock on",
                           "DoEvents",
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
                           "DoEvents",
                           "EndWork",
                           "mnuEditUndo off",
                           "mnuViewHistory off",
                           "mnuEditHistory off",
                           "mnuFileRestart off",
                           "mnuViewReplay off",
                           "mnuFileSave off",
                           "mnuFileSaveReplay off",
                           "mnuFileAutoplay on",
                           "mnuFileSolve on",
                           "mnuEditRedo off",
                       }));
}

TEST_F(Restart, LeavesTheFirstSquareTaken) {
  for (const FirstSquare position : {StartOnStoredSquare, StartOnPlayersChoice}) {
    Begin(position);
    PlayTour(game, 10);
    ChooseRestart(PlayerSays::Yes);
    EXPECT_EQ(MovesMade(state), SquaresNamed("A8"));
    EXPECT_EQ(SquaresTaken(), 1);
    EXPECT_EQ(Knight(), "A8");
    EXPECT_TRUE(state.FirstMoveMade);
  }
}

TEST_F(Restart, RewindsACompleteTour) {
  Begin();
  PlayTour(game, 64);
  ChooseRestart(PlayerSays::Yes);
  EXPECT_EQ(MovesMade(state), SquaresNamed("A8"));
  EXPECT_TRUE(MovesToRedo(state).empty());
}

TEST_F(Restart, ShowsEveryMoveItTakesBack) {
  Begin();
  PlayTour(game, 10);
  std::vector<int> shown;
  window.onDoEvents = [&] { shown.push_back(state.MoveCount); };
  ChooseRestart(PlayerSays::Yes);
  EXPECT_EQ(shown, (std::vector<int>{9, 8, 7, 6, 5, 4, 3, 2, 1}));
}

TEST_F(Restart, IsNotToBeDisturbedWhileItRewinds) {
  Begin();
  PlayTour(game, 10);
  window.onDoEvents = [this] { EXPECT_TRUE(window.IsWorking()); };
  ChooseRestart(PlayerSays::Yes);
  EXPECT_FALSE(window.IsWorking());
}

TEST_F(Restart, FinishesWithoutWaitingWhenTheWindowShallClose) {
  Begin();
  PlayTour(game, 10);
  window.onDoEvents = [this] { window.Guard().SetCloseRequested(state.MoveCount == 7); };
  window.log.clear();
  ChooseRestart(PlayerSays::Yes);
  EXPECT_EQ(std::count(window.log.begin(), window.log.end(), "DoEvents"), 3);
  EXPECT_EQ(MovesMade(state), SquaresNamed("A8"));
  EXPECT_TRUE(MovesToRedo(state).empty());
  EXPECT_EQ(state.ElapsedHalfSeconds, 0);
  EXPECT_FALSE(IsOn(MenuEntry::mnuEditUndo));
  EXPECT_FALSE(window.IsWorking());
}

TEST_F(Restart, DiscardsWhatCouldBeRedone) {
  Begin();
  PlayTour(game, 10);
  TakeBack(3);
  ChooseRestart(PlayerSays::Yes);
  EXPECT_TRUE(MovesToRedo(state).empty());
  EXPECT_FALSE(IsOn(MenuEntry::mnuEditRedo));
}

TEST_F(Restart, LetsTheGameScoreAgain) {
  Begin();
  PlayTour(game, 10);
  state.NoScoreGame = true;
  ChooseRestart(PlayerSays::Yes);
  EXPECT_FALSE(state.NoScoreGame);
}

TEST_F(Restart, LetsTheClockRunOnFromZero) {
  Begin();
  PlayTour(game, 10);
  state.ElapsedHalfSeconds = 100;
  ChooseRestart(PlayerSays::Yes);
  EXPECT_EQ(state.ElapsedHalfSeconds, 0);
  EXPECT_TRUE(window.IsClockEnabled());
}

TEST_F(Restart, CountsTheTicksOfTheRewindingAsNothing) {
  Begin();
  PlayTour(game, 10);
  window.onDoEvents = [this] { game.tmrTime_Timer(); };
  ChooseRestart(PlayerSays::Yes);
  EXPECT_EQ(state.ElapsedHalfSeconds, 0);
}

TEST_F(Restart, LeavesEverythingAsItWasWhenThePlayerDeclines) {
  Begin();
  PlayTour(game, 3);
  window.log.clear();
  ChooseRestart(PlayerSays::No);
  EXPECT_EQ(TakeLog(), (Steps{"clock off", Question, "clock on"}));
  EXPECT_EQ(MovesMade(state), SquaresNamed("A8 C7 B5"));
}

TEST_F(Restart, LeavesAStoppedClockStoppedWhenThePlayerDeclines) {
  Begin();
  PlaySquares(game, Games::DeadEndAfter20);
  ChooseRestart(PlayerSays::No);
  EXPECT_FALSE(window.IsClockEnabled());
}

TEST_F(Restart, AsksNothingWhenTheProgramRestarts) {
  Begin();
  PlayTour(game, 3);
  RestartByTheProgram();
  EXPECT_EQ(MovesMade(state), SquaresNamed("A8"));
}

TEST_F(Restart, KeepsTheMovesForTheReplayWhenTheProgramRestarts) {
  Begin();
  PlayTour(game, 64);
  RestartByTheProgram();
  EXPECT_EQ(MovesToRedo(state).size(), 63U);
  EXPECT_TRUE(IsOn(MenuEntry::mnuEditRedo));
}

TEST_F(Restart, KeepsTimeScoringAndAStoppedClockWhenTheProgramRestarts) {
  Begin();
  PlayTour(game, 10);
  state.NoScoreGame = true;
  state.ElapsedHalfSeconds = 100;
  RestartByTheProgram();
  EXPECT_TRUE(state.NoScoreGame);
  EXPECT_EQ(state.ElapsedHalfSeconds, 100);
  EXPECT_FALSE(window.IsClockEnabled());
}

TEST_F(Restart, TakesNothingBackBeforeTheFirstSquare) {
  Begin(StartOnPlayersChoice);
  RestartByTheProgram();
  EXPECT_EQ(state.MoveCount, 0);
  EXPECT_FALSE(state.FirstMoveMade);
}
