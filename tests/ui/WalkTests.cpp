// The knight is seen walking: over the real windows, with a clock that every turn of the event loop
// turns on.

#include <algorithm>

#include <QFile>
#include <QListWidget>
#include <QMessageBox>
#include <QScreen>
#include <QTest>
#include <QWindow>

#include "tests/support/Games.h"
#include "tests/ui/HandClock.h"
#include "tests/ui/SolveDesk.h"
#include "tests/ui/SolveTest.h"
#include "ui/board/BoardView.h"

using namespace std::chrono_literals;

namespace {

class Walk : public SolveDesk, public QObject {
 protected:
  Walk() { clock = loopClock.Clock(); }

  void PlayMoves(int moves) {
    Open("[Settings]\r\nShow Solve Warnings=0\r\n");
    PlayTour(Window().Context().game, moves);
    QCoreApplication::processEvents();
    Window().Board().installEventFilter(this);
  }

  // The walk begins now.
  void Begin() {
    seen.clear();
    begun_ = loopClock.Now();
  }
  PicturePace::Time Time() const { return loopClock.Now() - begun_; }

  void Restart() {
    WhenNextModalOpens([this](QWidget& question) {
      Begin();
      dynamic_cast<QMessageBox&>(question).button(QMessageBox::Yes)->click();
    });
    Choose("mnuFileRestart");
  }

  void ExpectSeen(int steps) {
    const PicturePace::Time time = Time();
    EXPECT_GE(static_cast<int>(seen.size()), std::min(steps, 20));
    EXPECT_GE(time, std::min(steps, 20) * HandClock::Refresh);
    EXPECT_LE(time, 500ms);
    ExpectCompletePicture();
  }
  void ExpectNoWait() { EXPECT_LT(Time(), 2 * HandClock::Refresh); }

  void ExpectCompletePicture() {
    const QImage onScreen = Window().screen()->grabWindow(Window().winId()).toImage();
    EXPECT_EQ(onScreen, Window().grab().toImage().convertToFormat(onScreen.format()));
  }

  LoopClock loopClock;
  std::vector<int> seen;  // how many moves the board showed each time it was painted

 private:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) seen.push_back(State().MoveCount);
    return false;
  }

  PicturePace::Time begun_{0};
};

std::vector<MoveRow> FirstOfTour(std::size_t moves) {
  std::vector<MoveRow> rows = SquaresNamed(Games::CompleteTour);
  rows.resize(moves);
  return rows;
}

}  // namespace

TEST_F(Walk, OfARestartShowsEveryStep) {
  PlayMoves(12);
  Restart();
  ExpectSeen(11);
  for (int move = 1; move < 12; ++move) EXPECT_GE(std::count(seen.begin(), seen.end(), move), 1);
}

TEST_F(Walk, OfALongRestartTakesHalfASecondAtMost) {
  PlayMoves(63);
  Restart();
  ExpectSeen(62);
}

TEST_F(Walk, OfAutoplayIsSeen) {
  PlayMoves(1);
  Begin();
  Choose("mnuFileAutoplay");
  EXPECT_GE(Time(), 5 * HandClock::Refresh);
  EXPECT_LE(Time(), 500ms);
  ExpectCompletePicture();
}

TEST_F(Walk, OfAnOpenedGameIsSeen) {
  PlayMoves(1);
  QFile file(ProgramFile("game.knight"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("20\r\n");
  for (const MoveRow& row : FirstOfTour(40)) {
    file.write(QByteArray::number(row.x) + " " + QByteArray::number(row.y) + "\r\n");
  }
  file.write("-1 -1\r\n");
  file.close();
  Begin();
  Window().OpenGameFile(file.fileName());
  EXPECT_EQ(State().MoveCount, 40);
  ExpectSeen(40);
}

TEST_F(Walk, OfBacktrackIsSeen) {
  OpenGame(Positions::Solvable);
  Window().Board().installEventFilter(this);
  Solve([this](frmSolve& solve) {
    Answer("Solved Successfully", "The game has been solved!", QMessageBox::Ok);
    StartStop(solve).click();
    Begin();
    Child<QPushButton>(solve, "cmdBacktrack").click();
    ExpectSeen(SquareCount - Positions::MovesOfSolvable);
  });
}

TEST_F(Walk, OfTheCommandHistoryIsSeen) {
  PlayMoves(12);
  WhenNextModalOpens([this](QWidget& history) {
    Child<QListWidget>(history, "lstMoves").setCurrentRow(0);
    Begin();
    Child<QPushButton>(history, "cmdOptionsOrUndo").click();
    ExpectSeen(11);
    EXPECT_FALSE(history.isVisible());
  });
  Choose("mnuEditHistory");
}

TEST_F(Walk, EndsAtOnceWhenTheWindowIsToClose) {
  PlayMoves(30);
  QTimer closer;
  connect(&closer, &QTimer::timeout, [this, &closer] {
    if (State().MoveCount > 25) return;
    closer.stop();
    Window().windowHandle()->close();
    Begin();
  });
  closer.start(0);
  Restart();
  ExpectNoWait();
  EXPECT_TRUE(QTest::qWaitFor([this] { return !Window().isVisible(); }));
}

TEST_F(Walk, EndsAtOnceWhenTheSolveWindowIsClosed) {
  OpenGame(Positions::Solvable);
  Solve([this](frmSolve& solve) {
    Answer("Solved Successfully", "The game has been solved!", QMessageBox::Ok);
    StartStop(solve).click();
    QTimer closer;
    connect(&closer, &QTimer::timeout, [&] {
      if (State().MoveCount > 60) return;
      closer.stop();
      solve.close();
      Begin();
    });
    closer.start(0);
    Child<QPushButton>(solve, "cmdBacktrack").click();
    ExpectNoWait();
    EXPECT_FALSE(solve.isVisible());
  });
  EXPECT_EQ(State().MoveCount, Positions::MovesOfSolvable);
}

TEST_F(Walk, LeavesTheReplayItsOwnSpeed) {
  PlayMoves(20);
  WhenNextModalOpens([this](QWidget& replay) {
    ExpectNoWait();
    Begin();
    Child<QPushButton>(replay, "cmdFinish").click();
    ExpectNoWait();
    EXPECT_EQ(State().MoveCount, 20);
    replay.close();
  });
  Begin();
  Choose("mnuViewReplay");
}
