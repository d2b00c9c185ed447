#include <algorithm>

#include <QGroupBox>
#include <QScrollBar>

#include "tests/ui/SolveTest.h"

using namespace std::string_literals;

namespace {

class SolveWindow : public SolveTest {
 protected:
  QScrollBar& Refresh() { return *solve->findChild<QScrollBar*>("hsclRefreshRateValue"); }
  std::string TitleOf(const char* frame) {
    return solve->findChild<QGroupBox*>(frame)->title().toStdString();
  }
  // The steps of the last search from the moment when it was over.
  Steps StepsAfterTheSearch() {
    Steps log = TakeLog();
    const auto lastOf = [&](const std::string& step) {
      return std::find(log.rbegin(), log.rend(), step).base();
    };
    log.erase(log.begin(), lastOf("RestoreColors") - 1);
    return log;
  }
};

}  // namespace

TEST_F(SolveWindow, SaysWhatItIs) {
  Open(Positions::Solvable);
  EXPECT_EQ(solve->windowTitle(), "Solve");
  EXPECT_EQ(TitleOf("fraRefresh"), " Refresh:");
  EXPECT_EQ(TitleOf("fraControls"), " Controls:");
  EXPECT_EQ(TitleOf("fraKnight"), " Knight:");
  EXPECT_EQ(Text("lblTested"), "Tested:");
  EXPECT_EQ(Text("lblMove"), "Move:");
  EXPECT_EQ(Text("lblPosition"), "Position:");
  EXPECT_EQ(Button("cmdClose").text(), "&Close");
}

TEST_F(SolveWindow, IsReadyWhenItOpens) {
  Open(Positions::Solvable);
  EXPECT_EQ(Buttons(), "&Start (&Backtrack)");
  EXPECT_EQ(Values(), "45/0/C5");
}

TEST_F(SolveWindow, OffersEveryRefreshRateFromOneToThirtyTwoThousand) {
  Open(Positions::Solvable, 250);
  EXPECT_EQ(Refresh().orientation(), Qt::Horizontal);
  EXPECT_EQ(Refresh().minimum(), 1);
  EXPECT_EQ(Refresh().maximum(), 32000);
  EXPECT_EQ(Refresh().singleStep(), 100);
  EXPECT_EQ(Refresh().pageStep(), 1000);
  EXPECT_EQ(Refresh().value(), 250);
}

TEST_F(SolveWindow, TellsTheRefreshRateInWords) {
  Open(Positions::Solvable, 1);
  EXPECT_EQ(Text("lblRefreshRate"), "On Every Move");
  Refresh().setValue(2);
  EXPECT_EQ(Text("lblRefreshRate"), "Every 2 Moves");
  Refresh().setValue(250);
  EXPECT_EQ(Text("lblRefreshRate"), "Every 250 Moves");
  Refresh().setValue(32000);
  EXPECT_EQ(Text("lblRefreshRate"), "Every 32000 Moves");
}

TEST_F(SolveWindow, PutsANewRefreshRateIntoForceAtOnce) {
  Open(Positions::Solvable);
  Refresh().setSliderPosition(4711);
  EXPECT_EQ(globals.settings.SolveRefreshRate, 4711);
}

TEST_F(SolveWindow, ChangesTheRefreshRateOfARunningSearch) {
  Open(Positions::Unsolvable, 7);
  InYield(2, [this] { Refresh().setValue(1000); });
  Press("cmdStartStop");
  const Steps log = TakeLog();
  EXPECT_EQ(std::count(log.begin(), log.end(), "DoEvents"), 2 + 1);  // one for the end
}

TEST_F(SolveWindow, TakesTheGameOutOfTheScoresWhenASearchStarts) {
  Open(Positions::Unsolvable);
  EXPECT_FALSE(state.NoScoreGame);
  Press("cmdStartStop");
  EXPECT_TRUE(state.NoScoreGame);
}

TEST_F(SolveWindow, LeavesTheScoresToAGameThatWasOnlyLookedAt) {
  Open(Positions::Unsolvable);
  Press("cmdClose");
  EXPECT_FALSE(state.NoScoreGame);
}

TEST_F(SolveWindow, OffersStopWhileItSearches) {
  Open(Positions::Unsolvable, 7);
  InYield(1, [this] { EXPECT_EQ(Buttons(), "&Stop (&Backtrack)"); });
  Press("cmdStartStop");
}

TEST_F(SolveWindow, ShowsWhereTheSearchIs) {
  Open(Positions::Unsolvable, 7);
  Steps shown;
  window.onDoEvents = [&] { shown.push_back(Values()); };
  Press("cmdStartStop");
  shown.pop_back();  // the end
  EXPECT_EQ(shown, (Steps{"57/7/D2", "55/15/D2", "56/23/F3", "57/31/A3", "52/39/E4", "59/47/A3",
                          "55/55/G3", "56/63/F1"}));
}

TEST_F(SolveWindow, ShowsAtTheEndHowManyMovesWereTested) {
  Open(Positions::Unsolvable, 7);
  Press("cmdStartStop");
  EXPECT_EQ(Values(), "50/69/D1");
}

TEST_F(SolveWindow, SaysThatThereIsNoSolution) {
  Open(Positions::Unsolvable);
  Press("cmdStartStop");
  EXPECT_EQ(StepsAfterTheSearch(),
            (Steps{"RestoreColors", "DoEvents",
                   "tell No Solution|At the current position, there is no solution to this game.\n"
                   "Undo a few moves and try solving again.|information"}));
  EXPECT_EQ(Buttons(), "&Start (&Backtrack)");
}

TEST_F(SolveWindow, LetsTheClockRunOnWithoutASolution) {
  Open(Positions::Unsolvable);
  Press("cmdStartStop");
  EXPECT_TRUE(window.IsClockEnabled());
}

TEST_F(SolveWindow, SaysThatTheGameHasBeenSolved) {
  Open(Positions::Solvable);
  Press("cmdStartStop");
  EXPECT_EQ(StepsAfterTheSearch(),
            (Steps{"RestoreColors", "caption Gallopade Nova: 64 - 0:00:00.0", "DoEvents",
                   "clock off", "tell Solved Successfully|The game has been solved!|information"}));
  EXPECT_EQ(Buttons(), "(&Start) &Backtrack");
  EXPECT_EQ(Values(), "64/486/B7");
}

TEST_F(SolveWindow, LeavesTheTourOnTheBoard) {
  Open(Positions::Solvable);
  Press("cmdStartStop");
  EXPECT_EQ(MovesMade(state), SquaresNamed(Positions::TourOfSolvable));
}

TEST_F(SolveWindow, SolvesACompleteTourAtOnce) {
  Open(Games::CompleteTour);
  Press("cmdStartStop");
  EXPECT_EQ(Values(), "64/0/C1");
  EXPECT_EQ(Buttons(), "(&Start) &Backtrack");
}

TEST_F(SolveWindow, FindsNothingWhereTheKnightIsStuck) {
  Open(Games::DeadEndAfter32);
  Press("cmdStartStop");
  EXPECT_EQ(Values(), "32/0/A7");
  EXPECT_EQ(TakeLog().back().substr(0, 16), "tell No Solution");
}

TEST_F(SolveWindow, KeepsTheCaptionWhileItSearches) {
  Open(Positions::Solvable, 1);
  window.onDoEvents = [this] {
    if (state.MoveCount != SquareCount) {
      EXPECT_EQ(window.Caption(), "Gallopade Nova: 45 - 0:00:00.0");
    }
  };
  Press("cmdStartStop");
  EXPECT_EQ(window.Caption(), "Gallopade Nova: 64 - 0:00:00.0");
}

TEST_F(SolveWindow, FindsTheGameAsItWasAfterAStop) {
  Open(Positions::Unsolvable, 7);
  const GameState before = state;
  InYield(3, [this] { Press("cmdStartStop"); });
  Press("cmdStartStop");
  EXPECT_EQ(state.MoveCount, before.MoveCount);
  EXPECT_EQ(state.Board, before.Board);
  EXPECT_EQ(MovesMade(state), SquaresNamed(Positions::Unsolvable));
  EXPECT_EQ(Text("lblMoveValue"), "50");
  EXPECT_EQ(Text("lblPositionValue"), "D1");
}

TEST_F(SolveWindow, SaysNothingAfterAStop) {
  Open(Positions::Unsolvable, 7);
  InYield(3, [this] { Press("cmdStartStop"); });
  Press("cmdStartStop");
  EXPECT_EQ(StepsAfterTheSearch(), (Steps{"RestoreColors", "DoEvents"}));
  EXPECT_EQ(Buttons(), "&Start (&Backtrack)");
}

TEST_F(SolveWindow, OffersStartAsSoonAsStopIsPressed) {
  Open(Positions::Unsolvable, 7);
  InYield(3, [this] {
    Press("cmdStartStop");
    EXPECT_EQ(Buttons(), "&Start (&Backtrack)");
  });
  Press("cmdStartStop");
}

TEST_F(SolveWindow, StartsNoSecondSearchWhileTheFirstUnwinds) {
  Open(Positions::Unsolvable, 7);
  InYield(3, [this] {
    Press("cmdStartStop");
    TakeLog();
    Press("cmdStartStop");
    EXPECT_TRUE(TakeLog().empty());
  });
  Press("cmdStartStop");
  EXPECT_EQ(Buttons(), "&Start (&Backtrack)");
}

TEST_F(SolveWindow, SearchesAgainAfterAStop) {
  Open(Positions::Unsolvable, 7);
  InYield(3, [this] { Press("cmdStartStop"); });
  Press("cmdStartStop");
  Press("cmdStartStop");
  EXPECT_EQ(Values(), "50/69/D1");
}

TEST_F(SolveWindow, KeepsTheTourQuietlyWhenStopIsPressedInTheMomentItIsFound) {
  Open(Positions::Solvable, 1);
  WhenTheTourIsFound([this] { Press("cmdStartStop"); });
  Press("cmdStartStop");
  EXPECT_EQ(Buttons(), "&Start &Backtrack");
  EXPECT_EQ(MovesMade(state), SquaresNamed(Positions::TourOfSolvable));
  EXPECT_EQ(std::ranges::count_if(
                TakeLog(), [](const std::string& line) { return line.starts_with("tell "); }),
            0);
}

TEST_F(SolveWindow, TellsOfTheTourWhenStartIsPressedAfterAStopInTheMomentItWasFound) {
  Open(Positions::Solvable, 1);
  WhenTheTourIsFound([this] { Press("cmdStartStop"); });
  Press("cmdStartStop");
  Press("cmdStartStop");
  EXPECT_EQ(Buttons(), "(&Start) &Backtrack");
  EXPECT_EQ(TakeLog().back(), "tell Solved Successfully|The game has been solved!|information");
}

TEST_F(SolveWindow, HasNoSolutionEvenIfStopIsPressedWhenTheSearchIsOver) {
  Open(Positions::Unsolvable);
  InYield(1, [this] { Press("cmdStartStop"); });
  Press("cmdStartStop");
  EXPECT_EQ(TakeLog().back().substr(0, 16), "tell No Solution");
}
