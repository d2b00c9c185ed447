// What a player or the desktop does to the Solve window while a search is on the stack.

#include <random>

#include <QScrollBar>
#include <QTest>
#include <QWindow>

#include "tests/support/Games.h"
#include "tests/ui/Labels.h"
#include "tests/ui/SolveDesk.h"
#include "tests/ui/SolveTest.h"

namespace {

class SolveBadMoments : public SolveDesk {
 protected:
  // Opens a search without end, has this happen in its third pause, and finds the game as it was.
  void InTheMiddle(const Visit& happens) {
    OpenGame("");
    const GameState before = State();
    Solve([&](frmSolve& solve) {
      Search(solve, [&](int pause) {
        if (pause == 3) happens(solve);
      });
      stillOpen_ = solve.isVisible();
    });
    ExpectSameGame(State(), before);
    EXPECT_FALSE(State().ApplyingMoves);
    EXPECT_FALSE(State().SolverRunning);
  }

  int Below(int count) { return std::uniform_int_distribution<int>(0, count - 1)(random_); }

  bool stillOpen_ = false;
  std::mt19937 random_{19481848};
};

// As the desktop asks for it.
void AskToClose(QWidget& window) {
  window.windowHandle()->close();
}

QScrollBar& Refresh(frmSolve& solve) {
  return Child<QScrollBar>(solve, "hsclRefreshRateValue");
}

}  // namespace

TEST_F(SolveBadMoments, ClosesByItsButtonInTheMiddleOfASearch) {
  InTheMiddle([](frmSolve& solve) { Child<QPushButton>(solve, "cmdClose").click(); });
  EXPECT_FALSE(stillOpen_);
}

TEST_F(SolveBadMoments, ClosesByEscapeInTheMiddleOfASearch) {
  InTheMiddle([](frmSolve& solve) { QTest::keyClick(&solve, Qt::Key_Escape); });
  EXPECT_FALSE(stillOpen_);
}

TEST_F(SolveBadMoments, ClosesByTheWindowManagerInTheMiddleOfASearch) {
  InTheMiddle([](frmSolve& solve) { AskToClose(solve); });
  EXPECT_FALSE(stillOpen_);
}

TEST_F(SolveBadMoments, ClosesOnceWhenEverythingAsksForIt) {
  InTheMiddle([](frmSolve& solve) {
    AskToClose(solve);
    Child<QPushButton>(solve, "cmdClose").click();
    QTest::keyClick(&solve, Qt::Key_Escape);
    StartStop(solve).click();
  });
  EXPECT_FALSE(stillOpen_);
}

TEST_F(SolveBadMoments, KeepsTheMainWindowFromClosing) {
  InTheMiddle([this](frmSolve& solve) {
    AskToClose(Window());
    EXPECT_TRUE(Window().isVisible());
    EXPECT_TRUE(IsSearching(solve));
    StartStop(solve).click();
  });
  EXPECT_TRUE(stillOpen_);
}

TEST_F(SolveBadMoments, StopsWhereItIsToldTo) {
  InTheMiddle([](frmSolve& solve) { StartStop(solve).click(); });
  EXPECT_TRUE(stillOpen_);
}

TEST_F(SolveBadMoments, StartsNothingWhileASearchUnwinds) {
  InTheMiddle([](frmSolve& solve) {
    StartStop(solve).click();
    StartStop(solve).click();
    StartStop(solve).click();
  });
  EXPECT_TRUE(stillOpen_);
}

TEST_F(SolveBadMoments, LeavesTheTourOnTheBoardWhenStopComesAsItIsFound) {
  OpenGame(Positions::Solvable, 1);
  Solve([&](frmSolve& solve) {
    Search(solve, [&](int) {
      if (State().MoveCount == SquareCount && IsSearching(solve)) StartStop(solve).click();
    });
    EXPECT_TRUE(StartStop(solve).isEnabled());
    EXPECT_TRUE(Child<QPushButton>(solve, "cmdBacktrack").isEnabled());
  });
  EXPECT_EQ(MovesMade(State()), SquaresNamed(Positions::TourOfSolvable));
}

TEST_F(SolveBadMoments, AsksWhetherToBacktrackWhenItIsClosedAsTheTourIsFound) {
  OpenGame(Positions::Solvable, 1);
  Solve([&](frmSolve& solve) {
    Answer("Backtrack?", "Do you want to backtrack before closing?", QMessageBox::Yes);
    Search(solve, [&](int) {
      if (State().MoveCount == SquareCount && IsSearching(solve)) AskToClose(solve);
    });
    EXPECT_FALSE(solve.isVisible());
  });
  EXPECT_EQ(MovesMade(State()), SquaresNamed(Positions::Solvable));
}

TEST_F(SolveBadMoments, LetsTheRefreshBarBeDraggedThroughoutASearch) {
  OpenGame(Positions::Unsolvable, 1);
  const GameState before = State();
  Solve([&](frmSolve& solve) {
    Answer("No Solution",
           "At the current position, there is no solution to this game.\n"
           "Undo a few moves and try solving again.",
           QMessageBox::Ok);
    QScrollBar& bar = Refresh(solve);
    bar.setSliderDown(true);
    Search(solve, [&](int pause) { bar.setSliderPosition(1 + pause % 3); });
    bar.setSliderDown(false);
    EXPECT_EQ(TextOf(solve, "lblTestedValue"), "69");
    EXPECT_EQ(globals.settings.SolveRefreshRate, bar.value());
  });
  ExpectSameGame(State(), before);
}

TEST_F(SolveBadMoments, CanBeDraggedAcrossAllRatesWithoutLosingAMove) {
  InTheMiddle([&](frmSolve& solve) {
    QScrollBar& bar = Refresh(solve);
    for (int i = 0; i < 100; ++i) {
      bar.setSliderPosition(1 + Below(32000));
      QTest::keyClick(&bar, Below(2) == 0 ? Qt::Key_PageUp : Qt::Key_Left);
    }
    StartStop(solve).click();
  });
}

TEST_F(SolveBadMoments, OpensAndClosesAHundredTimesDuringSearches) {
  OpenGame("", 100);
  const GameState before = State();
  for (int times = 0; times < 100; ++times) {
    const int lastPause = 1 + Below(5);
    const int way = Below(4);
    Solve([&](frmSolve& solve) {
      Search(solve, [&](int pause) {
        if (pause != lastPause) return;
        if (way == 0) Child<QPushButton>(solve, "cmdClose").click();
        if (way == 1) QTest::keyClick(&solve, Qt::Key_Escape);
        if (way == 2) AskToClose(solve);
        if (way == 3) StartStop(solve).click();
      });
    });
  }
  ExpectSameGame(State(), before);
  EXPECT_TRUE(MenuItem("mnuFileSolve").isEnabled());
}

TEST_F(SolveBadMoments, LeavesTheGameAloneWhateverComesDown) {
  OpenGame("", 500);
  const GameState before = State();
  Solve([&](frmSolve& solve) {
    const std::vector<std::function<void()>> actions{
        [&] { StartStop(solve).click(); },
        [&] { Child<QPushButton>(solve, "cmdBacktrack").click(); },
        [&] { Refresh(solve).setValue(1 + Below(2000)); },
        [&] { QTest::keyClick(&solve, Qt::Key_Tab); },
        [&] { QTest::keyClick(&solve, Qt::Key_Space); },
        [&] { QTest::keyClick(Window().windowHandle(), Qt::Key_Backspace); },
        [&] { QTest::keyClick(Window().windowHandle(), Qt::Key_F2); },
        [&] { MenuItem("mnuFileNew").trigger(); },
        [&] { MenuItem("mnuFileSolve").trigger(); },
        [&] { MenuItem("mnuEditUndo").trigger(); },
        [&] { AskToClose(Window()); },
        [&] { solve.resize(50 + Below(500), 50 + Below(500)); },
    };
    QTimer storm;
    int left = 3000;
    QObject::connect(&storm, &QTimer::timeout, [&] {
      if (!IsSearching(solve)) return;
      if (--left > 0) actions[static_cast<std::size_t>(Below(12))]();
      if (left <= 0) solve.reject();
    });
    storm.start(0);
    while (solve.isVisible()) {
      StartStop(solve).click();
      QCoreApplication::processEvents();
    }
  });
  ExpectSameGame(State(), before);
  EXPECT_FALSE(State().SolverRunning);
}
