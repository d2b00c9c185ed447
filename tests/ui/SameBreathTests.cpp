// A dialog has closed, and what follows from it is still to come: whatever the player does in that
// moment comes too early.

#include <QFile>
#include <QLineEdit>
#include <QTest>

#include "tests/support/Games.h"
#include "tests/ui/Desk.h"

namespace {

class SameBreath : public Desk {
 protected:
  // Closes the next dialog, and does something before the program has acted on that.
  void CloseAnd(const std::function<void()>& deed) {
    WhenNextModalOpens([deed](QWidget& dialog) {
      dialog.close();
      deed();
    });
  }
};

}  // namespace

TEST_F(SameBreath, AClickIsNoMove) {
  Open();
  CloseAnd([this] { ClickSquare(1, 2); });

  Choose("mnuFileOpen");

  EXPECT_EQ(State().MoveCount, 1);
  ClickSquare(1, 2);
  EXPECT_EQ(State().MoveCount, 2);
}

TEST_F(SameBreath, AKeyMovesNoCursor) {
  Open();
  CloseAnd([this] { PressKey(Qt::Key_Right); });

  Choose("mnuViewHighScores");

  EXPECT_EQ(State().CursorX, 0);
}

TEST_F(SameBreath, AMenuEntryOpensNothing) {
  Open();
  CloseAnd([this] { Choose("mnuFileOpen"); });

  Choose("mnuHelpAbout");

  EXPECT_TRUE(AllVisitsMade());
}

TEST_F(SameBreath, ACheckMarkStays) {
  Open();
  CloseAnd([this] { Choose("mnuViewScore"); });

  Choose("mnuHelpAbout");

  EXPECT_TRUE(MenuItem("mnuViewScore").isChecked());
  EXPECT_TRUE(globals.settings.ShowScore);
}

TEST_F(SameBreath, AResizedWindowDoesNotStartTheClockBehindTheNextDialog) {
  Open();
  ClickSquare(1, 2);
  QFile(ProgramFile("broken.knight")).open(QIODevice::WriteOnly);
  Answer("Open Game?", "Your current game is not finished. Do you want to open a game?",
         QMessageBox::Yes);
  WhenNextModalOpens([this](QWidget& dialog) {
    auto& name = Child<QLineEdit>(dialog, "fileNameEdit");
    name.setText(ProgramFile("broken.knight"));
    QTest::keyClick(&name, Qt::Key_Return);
    Window().resize(Window().size() + QSize(20, 20));
  });
  bool clockRan = true;
  WhenNextModalOpens([&](QWidget& message) {
    clockRan = Window().IsClockEnabled();
    message.close();
  });

  Choose("mnuFileOpen");

  EXPECT_FALSE(clockRan);
}

TEST_F(SameBreath, TheWindowDoesNotCloseBehindTheNextDialog) {
  Open();
  std::vector<MoveRow> moves = SquaresNamed(Games::DeadEndAfter20);
  for (std::size_t i = 1; i + 1 < moves.size(); ++i) ClickSquare(moves[i].x, moves[i].y);
  CloseAnd([this] { EXPECT_FALSE(Window().close()); });
  WhenNextModalOpens([this](QWidget& scores) {
    EXPECT_EQ(scores.objectName(), "frmScores");
    EXPECT_TRUE(Window().isVisible());
    scores.close();
  });

  ClickSquare(moves.back().x, moves.back().y);

  EXPECT_TRUE(AllVisitsMade());
  EXPECT_TRUE(QTest::qWaitFor([this] { return !Window().isVisible(); }));
}

TEST_F(SameBreath, TheWindowClosesOnceTheDialogHasBeenActedOn) {
  Open();
  ClickSquare(1, 2);
  CloseAnd([this] { EXPECT_FALSE(Window().close()); });
  Choose("mnuHelpAbout");
  Answer("Exit?", "Your current game is not finished. Do you really want to exit?",
         QMessageBox::No);

  EXPECT_TRUE(QTest::qWaitFor([this] { return AllVisitsMade(); }));

  EXPECT_TRUE(Window().isVisible());
  EXPECT_TRUE(Window().PlayerMayAct());
}
