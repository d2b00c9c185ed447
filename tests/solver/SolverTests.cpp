#include "tests/solver/SolverDesk.h"

namespace {

// The first moves of a complete tour.
std::vector<MoveRow> TourMoves(std::size_t count) {
  std::vector<MoveRow> moves = SquaresNamed(Games::CompleteTour);
  moves.resize(count);
  return moves;
}

class SolverTest : public testing::Test {
 protected:
  void StopAtRedraw(std::size_t redraw) {
    desk.onRedraw = [this, redraw] {
      if (desk.redraws.size() == redraw) desk.solver.StopSolving = true;
    };
  }

  SolverDesk desk;
};

}  // namespace

TEST_F(SolverTest, ACompleteTourIsSolvedAtOnce) {
  desk.BeginWith({TourMoves(64)});
  EXPECT_TRUE(desk.Solve());
  EXPECT_EQ(desk.redraws, std::vector<std::string>{"64/0/C1"});
}

TEST_F(SolverTest, WithoutAMoveThereIsNoSolutionAndNothingIsTouched) {
  desk.BeginWith({SquaresNamed(Games::DeadEndAfter20)});
  EXPECT_FALSE(desk.Solve());
  EXPECT_EQ(desk.solver.PositionsTested, 1);
  EXPECT_EQ(desk.window.log, Steps());
}

TEST_F(SolverTest, ATourThatIsFoundStaysOnTheBoard) {
  desk.BeginWith({TourMoves(60)});
  EXPECT_TRUE(desk.Solve());
  EXPECT_EQ(desk.state.MoveCount, 64);
  EXPECT_TRUE(desk.game.CheckIfGameOver(desk.state.KnightX, desk.state.KnightY));
}

TEST_F(SolverTest, ATourThatIsFoundTurnsTheClockOff) {
  desk.BeginWith({TourMoves(60)});
  desk.window.EnableClock(true);
  EXPECT_TRUE(desk.Solve());
  EXPECT_FALSE(desk.window.IsClockEnabled());
}

TEST_F(SolverTest, TheClockRunsOnWhenThereIsNoSolution) {
  desk.BeginWith({SquaresNamed(Games::DeadEndAfter20)});
  desk.window.EnableClock(true);
  EXPECT_FALSE(desk.Solve());
  EXPECT_TRUE(desk.window.IsClockEnabled());
}

TEST_F(SolverTest, AtRateOneEverySecondEntryIsShown) {
  desk.BeginWith({TourMoves(40)});
  desk.refreshRate = 1;
  StopAtRedraw(3);
  desk.Solve();
  EXPECT_EQ(desk.redraws, (std::vector<std::string>{"41/1/G2", "43/3/F3", "45/5/G6"}));
}

TEST_F(SolverTest, AtRateTwoEveryThirdEntryIsShown) {
  desk.BeginWith({TourMoves(40)});
  desk.refreshRate = 2;
  StopAtRedraw(2);
  desk.Solve();
  EXPECT_EQ(desk.redraws, (std::vector<std::string>{"42/2/E1", "45/5/G6"}));
}

TEST_F(SolverTest, AChangedRateCountsFromTheNextEntry) {
  desk.BeginWith({TourMoves(40)});
  desk.refreshRate = 1;
  std::vector<std::int64_t> entries;
  desk.onRedraw = [&] {
    entries.push_back(desk.solver.PositionsTested);
    desk.refreshRate = 4;
    desk.solver.StopSolving = entries.size() == 2;
  };
  desk.Solve();
  EXPECT_EQ(entries, (std::vector<std::int64_t>{2, 7}));
}

TEST_F(SolverTest, ARedrawDrawsTheBoardThenTheLabelsAndThenLetsEventsRun) {
  desk.BeginWith({TourMoves(40)});
  Steps lastSteps;
  bool shown = false;
  desk.onRedraw = [&] {
    lastSteps.assign(desk.window.log.end() - 3, desk.window.log.end());
    shown = !desk.state.SolverRunning;
    desk.solver.StopSolving = true;
  };
  desk.Solve();
  EXPECT_EQ(lastSteps, (Steps{"RestoreColors", "ShowProgress", "DoEvents"}));
  EXPECT_TRUE(shown);
}

TEST_F(SolverTest, BetweenTwoRedrawsNothingIsShown) {
  desk.BeginWith({TourMoves(40)});
  desk.refreshRate = 1;
  int drawn = 0;
  desk.window.onRestoreColors = [&] { drawn += desk.state.SolverRunning ? 0 : 1; };
  StopAtRedraw(25);
  desk.Solve();
  EXPECT_EQ(drawn, 25);
}

TEST_F(SolverTest, AfterAStopTheGameIsWhereItWas) {
  desk.BeginWith({TourMoves(40)});
  StopAtRedraw(2);
  EXPECT_FALSE(desk.Solve());
  EXPECT_EQ(MovesMade(desk.state), TourMoves(40));
  EXPECT_EQ(desk.redraws.size(), 2U);
}

TEST_F(SolverTest, AStoppedSearchCanBeginAnew) {
  desk.BeginWith({TourMoves(40)});
  StopAtRedraw(2);
  desk.Solve();
  const std::vector<std::string> first = desk.redraws;
  desk.Solve();
  EXPECT_EQ(desk.redraws, first);
}

TEST_F(SolverTest, AStopWhileTheTourIsShownComesTooLate) {
  desk.BeginWith({TourMoves(62)});
  StopAtRedraw(1);
  EXPECT_TRUE(desk.Solve());
  EXPECT_EQ(desk.state.MoveCount, 64);
}

TEST_F(SolverTest, AStopOnTheLastSquareButOneComesTooLate) {
  desk.BeginWith({TourMoves(62)});
  desk.refreshRate = 1;
  StopAtRedraw(1);
  EXPECT_TRUE(desk.Solve());
  EXPECT_EQ(desk.redraws, (std::vector<std::string>{"63/1/A2", "64/2/C1"}));
}
