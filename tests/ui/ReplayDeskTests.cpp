#include <random>

#include <QMetaObject>
#include <QTest>

#include "tests/support/Games.h"
#include "tests/ui/Desk.h"
#include "tests/ui/ReplayTest.h"
#include "ui/board/BoardView.h"
#include "ui/commands/GameFiles.h"

namespace {

const QString Fast = "[Replay]\r\nAdvance Speed=1\r\n";
const QString Manual = "[Replay]\r\nAdvancement=1\r\n";

// The replay over the real main window.
class ReplayDesk : public Desk {
 protected:
  using Watching = std::function<void(frmReplay& replay)>;

  // The next window is the replay; it is closed at the end of the game if it is still open then.
  void ExpectReplay(const Watching& watching) {
    WhenNextModalOpens([watching](QWidget& modal) {
      auto& replay = dynamic_cast<frmReplay&>(modal);
      watching(replay);
      if (!replay.isVisible()) return;
      replay.cmdFinish_Click();
      replay.cmdClose_Click();
    });
  }

  void Replay(const Watching& watching) {
    ExpectReplay(watching);
    Choose("mnuViewReplay");
    EXPECT_TRUE(AllVisitsMade());
  }

  void OpenGame(int moves, const QString& settings) {
    Open(settings);
    PlayTour(Window().Context().game, moves);
  }

  QString GameOf(const QByteArray& moves) {
    QString pathName = ProgramFile("game.knight");
    QFile file(pathName);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("7\r\n" + moves + "-1 -1\r\n");
    return pathName;
  }
};

}  // namespace

TEST_F(ReplayDesk, IsOpenedFromTheMenu) {
  OpenGame(10, Manual);
  Replay([](frmReplay& replay) { EXPECT_TRUE(replay.isModal()); });
  EXPECT_EQ(State().MoveCount, 10);
}

TEST_F(ReplayDesk, LeavesTheMainWindowWhereItWas) {
  OpenGame(10, Manual);
  const QPoint place = Window().pos();
  Replay([](frmReplay&) {});
  EXPECT_EQ(Window().pos(), place);
}

TEST_F(ReplayDesk, LeavesThePlaceThatIsKeptAsItWas) {
  OpenGame(10, Manual);
  const QPoint place = Window().pos();
  Replay([&](frmReplay&) {
    EXPECT_NE(Window().pos(), place);
    EXPECT_EQ(Window().Placement().Left, TwipsFromPixels(place.x()));
    EXPECT_EQ(Window().Placement().Top, TwipsFromPixels(place.y()));
  });
}

TEST_F(ReplayDesk, AdvancesByItsTimer) {
  OpenGame(4, Fast);
  Replay([&](frmReplay& replay) {
    EXPECT_TRUE(QTest::qWaitFor([&] { return State().MoveCount == 4; }));
    EXPECT_FALSE(Shown(replay).Timer().isActive());
  });
}

TEST_F(ReplayDesk, DrawsEveryStepOfAWalk) {
  OpenGame(20, Manual);
  Replay([&](frmReplay& replay) {
    QCoreApplication::processEvents();
    const auto before = Window().Board().PaintedCells();
    Shown(replay).Bar().setValue(20);
    EXPECT_GE(Window().Board().PaintedCells() - before, 19U);
  });
}

TEST_F(ReplayDesk, FollowsAGameThatHasJustEnded) {
  Open(Manual);
  Window().Context().state.NoScoreGame = true;
  WhenNextModalOpens([](QWidget& over) {
    EXPECT_EQ(Child<QAbstractButton>(over, "cmdScoresReplay").text(), "View &Replay");
    Child<QAbstractButton>(over, "cmdScoresReplay").click();
  });
  ExpectReplay([&](frmReplay&) { EXPECT_EQ(State().MoveCount, 1); });
  PlaySquares(Window().Context().game, Games::DeadEndAfter20);
  EXPECT_TRUE(AllVisitsMade());
  EXPECT_EQ(State().MoveCount, 20);
  EXPECT_FALSE(Window().IsClockEnabled());
  EXPECT_TRUE(MenuItem("mnuFileSaveReplay").isEnabled());
}

TEST_F(ReplayDesk, ShowsAFinishedGameFromAFile) {
  Answer("Game Over", "This game is over. Do you want to watch a replay of it instead?",
         QMessageBox::Yes);
  ExpectReplay([](frmReplay& replay) {
    Shown(replay).Bar().setValue(64);
    EXPECT_EQ(Shown(replay).Text("lblMoveValue"), "64");
    EXPECT_EQ(Shown(replay).Text("lblPositionValue"), "C1");
  });
  Open(Manual, QString(TEST_DATA_DIRECTORY) + "beverley-1848.knight");
  EXPECT_TRUE(AllVisitsMade());
  EXPECT_EQ(State().MoveCount, 64);
}

TEST_F(ReplayDesk, ShowsAGameOfOneSquareFromAFile) {
  Open();
  ExpectReplay([&](frmReplay& replay) {
    replay.tmrAdvance_Timer();
    EXPECT_FALSE(Shown(replay).IsOn("cmdAdvancePause"));
    EXPECT_EQ(Shown(replay).Text("lblPositionValue"), "D5");
  });
  LoadGame(Window().Context(),
           {.Replaying = true, .NoCdlog = true, .NoCdlogFilename = GameOf("3 3\r\n")});
  EXPECT_TRUE(AllVisitsMade());
  EXPECT_EQ(State().MoveCount, 1);
  EXPECT_TRUE(Window().IsClockEnabled());
  EXPECT_TRUE(MenuItem("mnuFileSave").isEnabled());
}

TEST_F(ReplayDesk, StaysWholeWhateverIsPressedWhileItWalks) {
  OpenGame(30, Manual);
  Replay([&](frmReplay& replay) {
    std::mt19937 random(1917);
    for (int i = 0; i < 500; ++i) {
      for (int queued = 0; queued < 3; ++queued) {
        const auto press = [&] { PressAnything(replay, random); };
        QMetaObject::invokeMethod(&replay, press, Qt::QueuedConnection);
      }
      Shown(replay).Bar().setValue(i % 2 == 0 ? 20 : 1);
      QCoreApplication::sendPostedEvents(&replay);
      ASSERT_EQ(Shown(replay).Text("lblMoveValue").toInt(), State().MoveCount);
    }
  });
  EXPECT_EQ(State().MoveCount, 30);
}

TEST_F(ReplayDesk, ClosesInTheMiddleOfAWalk) {
  OpenGame(30, Manual);
  const auto rows = State().MoveList;
  Replay([&](frmReplay& replay) {
    QMetaObject::invokeMethod(&replay, &frmReplay::cmdClose_Click, Qt::QueuedConnection);
    Answer("End Replay", "Would you like to skip to the end?", QMessageBox::No);
    Shown(replay).Bar().setValue(20);
    EXPECT_FALSE(replay.isVisible());
  });
  EXPECT_EQ(State().MoveCount, 2);
  EXPECT_EQ(State().MoveList, rows);
}
