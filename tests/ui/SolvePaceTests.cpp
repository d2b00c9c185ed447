// The pictures of a search, over the real windows, with a clock that the test turns.

#include <QScreen>
#include <QTest>

#include "tests/support/Games.h"
#include "tests/ui/HandClock.h"
#include "tests/ui/SolveDesk.h"
#include "tests/ui/SolveTest.h"
#include "ui/board/BoardView.h"
#include "ui/widgets/ValueLabel.h"

namespace {

// Counts how often a widget is painted.
class PaintsOf : public QObject {
 public:
  explicit PaintsOf(QWidget& widget) { widget.installEventFilter(this); }
  int Count() const { return count_; }

 private:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++count_;
    return false;
  }

  int count_ = 0;
};

class SolvePace : public SolveDesk {
 protected:
  SolvePace() { clock = hand.Clock(); }

  // What stands on the screen is the present state.
  static void ExpectComplete(QWidget& window) {
    const QImage onScreen = window.screen()->grabWindow(window.winId()).toImage();
    EXPECT_EQ(onScreen, window.grab().toImage().convertToFormat(onScreen.format()));
  }
  void ExpectBothComplete(QWidget& solve) {
    ExpectComplete(Window());
    ExpectComplete(solve);
  }

  // A search in vain of 35 redraws at the quickest rate; what happens when it says so.
  void SearchInVain(
      frmSolve& solve, const std::function<void()>& whenItSaysSo = [] {}) {
    QCoreApplication::processEvents();
    WhenNextModalOpens([whenItSaysSo](QWidget& box) {
      EXPECT_EQ(box.windowTitle(), "No Solution");
      whenItSaysSo();
      box.close();
    });
    StartStop(solve).click();
  }

  HandClock hand;
};

}  // namespace

TEST_F(SolvePace, PaintsTheBoardOnceWhileTheDisplayIsBusy) {
  OpenGame(Positions::Unsolvable, 1);
  Solve([this](frmSolve& solve) {
    SearchInVain(solve);  // the windows come to rest
    const PaintsOf board(Window().Board());
    // The first redraw, and the end.
    SearchInVain(solve, [&] { EXPECT_LE(board.Count(), 3); });
  });
}

TEST_F(SolvePace, PaintsTheCountOnceWhileTheDisplayIsBusy) {
  OpenGame(Positions::Unsolvable, 1);
  Solve([this](frmSolve& solve) {
    SearchInVain(solve);
    const PaintsOf tested(Child<ValueLabel>(solve, "lblTestedValue"));
    SearchInVain(solve, [&] { EXPECT_LE(tested.Count(), 3); });
  });
}

TEST_F(SolvePace, HasThePresentStateOnTheScreenBeforeAMessageOpens) {
  OpenGame(Positions::Unsolvable, 1);
  Solve([this](frmSolve& solve) { SearchInVain(solve, [&] { ExpectBothComplete(solve); }); });
}

TEST_F(SolvePace, HasTheTourOnTheScreenWhenItSaysSo) {
  OpenGame(Positions::Solvable, 1);
  Solve([this](frmSolve& solve) {
    WhenNextModalOpens([&](QWidget& box) {
      EXPECT_EQ(State().MoveCount, SquareCount);
      ExpectBothComplete(solve);
      box.close();
    });
    StartStop(solve).click();
  });
}

TEST_F(SolvePace, HasThePresentStateOnTheScreenWhenAStoppedSearchEnds) {
  OpenGame("", 1);
  Solve([this](frmSolve& solve) {
    QMetaObject::invokeMethod(
        &solve, [&] { StartStop(solve).click(); }, Qt::QueuedConnection);
    StartStop(solve).click();
    ExpectBothComplete(solve);
  });
}

TEST_F(SolvePace, StartsTwoSearchesWithinOneRefresh) {
  OpenGame(Positions::Unsolvable, 1);
  Solve([this](frmSolve& solve) {
    SearchInVain(solve);
    SearchInVain(solve, [&] { ExpectBothComplete(solve); });
  });
}

namespace {

// A redraw that is late: the display is busy with the picture before.
class LatePicture : public SolvePace {
 protected:
  // Has this happen then, and the work end after it.
  void WhileItIsLate(const std::function<void()>& happens) {
    Open();
    PlayTour(Window().Context().game, 10);
    QCoreApplication::processEvents();
    {
      const WatchedWork search(Window().Context().pace);
      for (int undos = 0; undos < 2; ++undos) {
        Window().Context().game.mnuEditUndo_Click();
        Window().DoEvents();
      }
      happens();
    }
  }
};

}  // namespace

TEST_F(LatePicture, IsNotOnTheScreenYet) {
  WhileItIsLate([this] {
    const QImage onScreen = Window().screen()->grabWindow(Window().winId()).toImage();
    EXPECT_NE(onScreen, Window().grab().toImage().convertToFormat(onScreen.format()));
  });
  ExpectComplete(Window());
}

TEST_F(LatePicture, ComesInTheNewColoursOfTheDesktop) {
  WhileItIsLate([this] {
    QPalette colors = Window().palette();
    colors.setColor(QPalette::Window, Qt::darkBlue);
    Window().setPalette(colors);
  });
  ExpectComplete(Window());
}

TEST_F(LatePicture, ComesInTheNewSizeOfTheWindow) {
  WhileItIsLate([this] {
    Window().resize(Window().width() - 64, Window().height() - 64);
    Window().DoEvents();
  });
  ExpectComplete(Window());
}

TEST_F(LatePicture, ComesBeforeAQuestion) {
  WhileItIsLate([this] {
    WhenNextModalOpens([this](QWidget& box) {
      ExpectComplete(Window());
      box.close();
    });
    Window().Ask("A question", "Is it there?", DefaultAnswer::Yes);
  });
}

TEST_F(LatePicture, IsForgottenByAWindowThatIsHidden) {
  WhileItIsLate([this] { Window().hide(); });
  Window().show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&Window()));
  QCoreApplication::processEvents();
  ExpectComplete(Window());
}
