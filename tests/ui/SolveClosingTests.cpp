#include "tests/ui/SolveTest.h"

// Taking the tour back, and leaving the Solve window in each of its states.
class SolveClosing : public SolveTest {};

TEST_F(SolveClosing, BacktracksMoveByMoveToWhereItWasOpened) {
  Open(Positions::Solvable);
  Press("cmdStartStop");
  Steps counts;
  window.onDoEvents = [&] { counts.push_back(std::to_string(state.MoveCount)); };
  Press("cmdBacktrack");
  ASSERT_EQ(counts.size(), 19U);
  EXPECT_EQ(counts.front(), "63");
  EXPECT_EQ(counts.back(), "45");
  EXPECT_EQ(MovesMade(state), SquaresNamed(Positions::Solvable));
}

TEST_F(SolveClosing, IsReadyAgainAfterBacktracking) {
  Open(Positions::Solvable);
  Press("cmdStartStop");
  Press("cmdBacktrack");
  EXPECT_EQ(Buttons(), "&Start (&Backtrack)");
  EXPECT_EQ(Values(), "45/0/C5");
}

TEST_F(SolveClosing, WritesTheCaptionAnewWhenItHasBacktracked) {
  Open(Positions::Solvable);
  Press("cmdStartStop");
  Press("cmdBacktrack");
  EXPECT_EQ(window.Caption(), "Gallopade Nova: 45 - 0:00:00.0");
}

TEST_F(SolveClosing, BacktracksOnlyOnceWhenItIsPressedAgainOnTheWay) {
  Open(Positions::Solvable);
  Press("cmdStartStop");
  InYield(3, [this] { Press("cmdBacktrack"); });
  Press("cmdBacktrack");
  EXPECT_EQ(state.MoveCount, Positions::MovesOfSolvable);
}

TEST_F(SolveClosing, ClosesWithoutAQuestionWhenThereIsNothingToTakeBack) {
  Open(Positions::Solvable);
  solve->show();
  Press("cmdClose");
  EXPECT_EQ(TakeLog(), Steps{"DoEvents"});
  EXPECT_FALSE(solve->isVisible());
}

TEST_F(SolveClosing, AsksWhetherToBacktrackBeforeItCloses) {
  Open(Positions::Solvable);
  solve->show();
  Press("cmdStartStop");
  TakeLog();
  window.answers = {PlayerSays::No};
  Press("cmdClose");
  EXPECT_EQ(TakeLog(),
            (Steps{"DoEvents", "ask Backtrack?|Do you want to backtrack before closing?"}));
  EXPECT_FALSE(solve->isVisible());
  EXPECT_EQ(state.MoveCount, SquareCount);
}

TEST_F(SolveClosing, BacktracksBeforeItClosesOnAYes) {
  Open(Positions::Solvable);
  solve->show();
  Press("cmdStartStop");
  window.answers = {PlayerSays::Yes};
  Press("cmdClose");
  EXPECT_FALSE(solve->isVisible());
  EXPECT_EQ(state.MoveCount, Positions::MovesOfSolvable);
}

TEST_F(SolveClosing, StopsTheSearchBeforeItCloses) {
  Open(Positions::Unsolvable, 7);
  solve->show();
  InYield(3, [this] {
    Press("cmdClose");
    EXPECT_TRUE(solve->isVisible());
  });
  Press("cmdStartStop");
  EXPECT_FALSE(solve->isVisible());
  EXPECT_EQ(MovesMade(state), SquaresNamed(Positions::Unsolvable));
}

TEST_F(SolveClosing, ClosesOnceWhenItIsClosedAgainMeanwhile) {
  Open(Positions::Unsolvable, 7);
  solve->show();
  window.onDoEvents = [this] { solve->reject(); };
  Press("cmdStartStop");
  EXPECT_FALSE(solve->isVisible());
  EXPECT_EQ(MovesMade(state), SquaresNamed(Positions::Unsolvable));
}

TEST_F(SolveClosing, AsksWhetherToBacktrackWhenItIsClosedInTheMomentTheTourIsFound) {
  Open(Positions::Solvable, 1);
  solve->show();
  WhenTheTourIsFound([this] { Press("cmdClose"); });
  window.answers = {PlayerSays::Yes};
  Press("cmdStartStop");
  EXPECT_FALSE(solve->isVisible());
  EXPECT_EQ(MovesMade(state), SquaresNamed(Positions::Solvable));
}

TEST_F(SolveClosing, StartsNothingWhileItCloses) {
  Open(Positions::Solvable);
  InYield(1, [this] { Press("cmdStartStop"); });
  Press("cmdClose");
  EXPECT_EQ(MovesMade(state), SquaresNamed(Positions::Solvable));
}

TEST_F(SolveClosing, FinishesBacktrackingBeforeItCloses) {
  Open(Positions::Solvable);
  solve->show();
  Press("cmdStartStop");
  InYield(3, [this] { Press("cmdClose"); });
  Press("cmdBacktrack");
  EXPECT_FALSE(solve->isVisible());
  EXPECT_EQ(state.MoveCount, Positions::MovesOfSolvable);
}
