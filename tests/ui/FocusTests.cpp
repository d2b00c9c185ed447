// Where the keyboard goes when the button that had it is disabled.

#include <QTest>

#include "tests/support/Games.h"
#include "tests/ui/SolveDesk.h"

namespace {

const QString Manual = "[Replay]\r\nAdvancement=1\r\n";
const QString Fast = "[Replay]\r\nAdvance Speed=1\r\n";

class Focus : public SolveDesk {
 protected:
  static QString NameOfFocus(const QWidget& window) { return window.focusWidget()->objectName(); }

  static void PressSpaceOn(QWidget& window, const char* button) {
    Child<QWidget>(window, button).setFocus();
    QTest::keyClick(window.focusWidget(), Qt::Key_Space);
  }

  void Replay(const QString& settings, const std::function<void(QWidget& replay)>& visit) {
    Open(settings);
    PlayTour(Window().Context().game, 3);
    WhenNextModalOpens([this, visit](QWidget& replay) {
      visit(replay);
      if (Child<QWidget>(replay, "cmdFinish").isEnabled()) {
        Answer("End Replay", "Would you like to skip to the end?", QMessageBox::No);
      }
      replay.close();
    });
    Choose("mnuViewReplay");
    EXPECT_TRUE(AllVisitsMade());
  }
};

}  // namespace

TEST_F(Focus, GoesToRestartWhenTheLastMoveIsReplayed) {
  Replay(Manual, [](QWidget& replay) {
    PressSpaceOn(replay, "cmdAdvancePause");
    EXPECT_EQ(NameOfFocus(replay), "cmdAdvancePause");
    PressSpaceOn(replay, "cmdAdvancePause");
    EXPECT_EQ(NameOfFocus(replay), "cmdRestart");
  });
}

TEST_F(Focus, GoesToRestartWhenTheReplayHasEndedByItself) {
  Replay(Fast, [this](QWidget& replay) {
    Child<QWidget>(replay, "cmdAdvancePause").setFocus();
    EXPECT_TRUE(QTest::qWaitFor([this] { return State().MoveCount == 3; }));
    EXPECT_EQ(NameOfFocus(replay), "cmdRestart");
  });
}

TEST_F(Focus, GoesToRestartWhenTheReplayIsFinished) {
  Replay(Manual, [](QWidget& replay) {
    PressSpaceOn(replay, "cmdFinish");
    EXPECT_EQ(NameOfFocus(replay), "cmdRestart");
  });
}

TEST_F(Focus, GoesToTheNextMoveWhenTheReplayIsRestarted) {
  Replay(Manual, [](QWidget& replay) {
    PressSpaceOn(replay, "cmdFinish");
    PressSpaceOn(replay, "cmdRestart");
    EXPECT_EQ(NameOfFocus(replay), "cmdAdvancePause");
  });
}

TEST_F(Focus, StaysWhereItIsWhenOtherButtonsAreDisabled) {
  Replay(Manual, [](QWidget& replay) {
    auto& bar = Child<QWidget>(replay, "hsclSpeedSeekSet");
    bar.setFocus();
    QTest::keyClick(&bar, Qt::Key_End);
    EXPECT_EQ(replay.focusWidget(), &bar);
  });
}

TEST_F(Focus, GoesToBacktrackWhenATourIsFoundAndThenBackToStart) {
  OpenGame(Games::CompleteTour.substr(0, 3 * 60 - 1));
  Solve([this](frmSolve& solve) {
    Answer("Solved Successfully", "The game has been solved!", QMessageBox::Ok);
    PressSpaceOn(solve, "cmdStartStop");
    EXPECT_EQ(State().MoveCount, SquareCount);
    EXPECT_EQ(NameOfFocus(solve), "cmdBacktrack");
    PressSpaceOn(solve, "cmdBacktrack");
    EXPECT_EQ(State().MoveCount, 60);
    EXPECT_EQ(NameOfFocus(solve), "cmdStartStop");
  });
}
