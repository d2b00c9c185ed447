#include "tests/ui/CommandTest.h"
#include "ui/commands/Solve.h"

namespace {

const std::string Warning =
    "ask Solve?|You have made less than 40 moves before choosing Solve.\n"
    "It may take several hours, or even days, to test for a solution.\n"
    "It is recommended that you use the \"Solve\" feature only with games that\n"
    "have 40 or more completed moves.  Proceed?";

class SolveCommand : public CommandTest {
 protected:
  // A game of so many moves, whose steps are forgotten.
  void Play(int moves) {
    Begin();
    PlayTour(game, moves);
    TakeLog();
  }
};

}  // namespace

TEST_F(SolveCommand, ShowsTheWindowWhileTheClockRunsAndTheMenusRest) {
  Play(40);
  mnuFileSolve_Click(context);
  EXPECT_EQ(TakeLog(), (Steps{"clock off", "clock on", "show frmSolve 40", "mnuEditRedo off",
                              "clock on", "mnuFileSave on", "mnuFileSaveReplay off",
                              "mnuFileAutoplay on", "mnuFileSolve on", "CatchUpOnResize"}));
}

TEST_F(SolveCommand, WarnsBelowFortyMoves) {
  Play(39);
  window.answers = {PlayerSays::Yes};
  mnuFileSolve_Click(context);
  const Steps log = TakeLog();
  ASSERT_GE(log.size(), 4U);
  EXPECT_EQ(Steps(log.begin(), log.begin() + 4),
            (Steps{"clock off", Warning, "clock on", "show frmSolve 39"}));
}

TEST_F(SolveCommand, LeavesTheGameAloneWhenThePlayerShrinksFromTheWait) {
  Play(39);
  window.answers = {PlayerSays::No};
  mnuFileSolve_Click(context);
  EXPECT_EQ(TakeLog(), (Steps{"clock off", Warning, "clock on"}));
}

TEST_F(SolveCommand, LeavesAClockThatStoodStillAfterTheWarning) {
  Begin();
  window.answers = {PlayerSays::No};
  mnuFileSolve_Click(context);
  EXPECT_FALSE(window.IsClockEnabled());
}

TEST_F(SolveCommand, WarnsNobodyWhoWantsNoWarnings) {
  Play(39);
  globals.settings.ShowSolveWarnings = false;
  mnuFileSolve_Click(context);
  EXPECT_EQ(TakeWindows(), Steps{"show frmSolve 39"});
}

TEST_F(SolveCommand, KeepsTheWarningsOfOtherPlayers) {
  Play(1);
  window.answers = {PlayerSays::No};
  mnuFileSolve_Click(context);
  EXPECT_TRUE(TakeWindows().empty());
}

TEST_F(SolveCommand, TakesARandomFirstSquareOnAnEmptyBoard) {
  Begin(FirstSquare::PlayersChoice);
  window.answers = {PlayerSays::Yes};
  windows.onShow = [this](const std::string&) {
    EXPECT_EQ(window.log[window.log.size() - 3], "RestoreColors");
    EXPECT_TRUE(state.FirstMoveMade);
    EXPECT_EQ(state.Cell(state.KnightX, state.KnightY), GameState::Visited);
  };
  mnuFileSolve_Click(context);
  EXPECT_EQ(TakeWindows(), Steps{"show frmSolve 1"});
}

TEST_F(SolveCommand, KeepsThePlayersHandsOffTheBoardUntilTheWindowCloses) {
  Play(40);
  windows.onShow = [this](const std::string&) { EXPECT_TRUE(state.ApplyingMoves); };
  mnuFileSolve_Click(context);
  EXPECT_FALSE(state.ApplyingMoves);
}

TEST_F(SolveCommand, DiscardsWhatCouldBeRedone) {
  Play(41);
  game.mnuEditUndo_Click();
  mnuFileSolve_Click(context);
  EXPECT_TRUE(MovesToRedo(state).empty());
  EXPECT_FALSE(window.IsMenuEnabled(MenuEntry::mnuEditRedo));
}

TEST_F(SolveCommand, LeavesASolvedGameToBeSavedAsAReplay) {
  Play(63);
  windows.onShow = [this](const std::string&) {
    const MoveRow last = SquaresNamed(Games::CompleteTour).back();
    window.EnableClock(false);
    game.ValidMove(last.x, last.y);
  };
  mnuFileSolve_Click(context);
  EXPECT_FALSE(window.IsClockEnabled());
  EXPECT_FALSE(window.IsMenuEnabled(MenuEntry::mnuFileSave));
  EXPECT_TRUE(window.IsMenuEnabled(MenuEntry::mnuFileSaveReplay));
  EXPECT_FALSE(window.IsMenuEnabled(MenuEntry::mnuFileAutoplay));
  EXPECT_FALSE(window.IsMenuEnabled(MenuEntry::mnuFileSolve));
}

TEST_F(SolveCommand, EndsNoGameByItself) {
  Play(63);
  windows.onShow = [this](const std::string&) {
    const MoveRow last = SquaresNamed(Games::CompleteTour).back();
    game.ValidMove(last.x, last.y);
  };
  mnuFileSolve_Click(context);
  EXPECT_EQ(TakeWindows(), Steps{"show frmSolve 63"});
}

TEST_F(SolveCommand, LeavesTheCaptionAloneWhenNothingIsSearched) {
  Play(42);
  game.mnuEditUndo_Click();
  mnuFileSolve_Click(context);
  EXPECT_EQ(window.Caption(), "Gallopade Nova: 42 - 0:00:00.0");
}
