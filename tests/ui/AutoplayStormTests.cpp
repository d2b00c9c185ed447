// Autoplay over the real main window, while the player and the desktop do not leave it alone.

#include <random>
#include <set>

#include <QTest>
#include <QTimer>
#include <QWindow>

#include "tests/support/Games.h"
#include "tests/ui/Desk.h"
#include "ui/board/BoardView.h"

namespace {

class AutoplayStorm : public Desk {
 protected:
  int Below(int count) { return std::uniform_int_distribution<int>(0, count - 1)(random_); }

  void Autoplay(const std::function<void()>& happensOnTheWay) {
    QTimer storm;
    QObject::connect(&storm, &QTimer::timeout, [&] {
      if (Window().PlayerMayAct()) return;
      ++actions_;
      happensOnTheWay();
    });
    storm.start(0);
    Choose("mnuFileAutoplay");
  }

  void PressAnyKey() {
    static constexpr std::array<int, 8> keys{Qt::Key_Left, Qt::Key_Up,     Qt::Key_Return,
                                             Qt::Key_F2,   Qt::Key_Escape, Qt::Key_Backspace,
                                             Qt::Key_Home, Qt::Key_Space};
    QTest::keyClick(Window().windowHandle(), static_cast<Qt::Key>(keys[Any(keys)]));
  }
  void PressAnyShortcut() {
    static constexpr std::array<char, 5> letters{'o', 's', 'z', 'y', 'r'};
    QTest::keyClick(Window().windowHandle(), letters[Any(letters)], Qt::ControlModifier);
  }
  void ChooseAnything() {
    static constexpr std::array<const char*, 8> entries{
        "mnuFileNew",  "mnuFileRestart", "mnuFileSolve", "mnuFileAutoplay",
        "mnuEditUndo", "mnuViewReplay",  "mnuPrefs",     "mnuEditHistory"};
    Choose(entries[Any(entries)]);
  }
  void ClickAnySquare() { ClickSquare(Below(BoardSide), Below(BoardSide)); }

  template <typename Array>
  std::size_t Any(const Array& array) {
    return static_cast<std::size_t>(Below(static_cast<int>(array.size())));
  }

  // Every move made is one that the knight could make.
  void ExpectAWalk() {
    const std::vector<MoveRow> moves = MovesMade(State());
    std::set<int> squares;
    for (std::size_t i = 0; i < moves.size(); ++i) {
      EXPECT_TRUE(squares.insert(SquareIndex(moves[i].x, moves[i].y)).second);
      if (i == 0) continue;
      EXPECT_TRUE(IsKnightsMove(moves[i - 1].x, moves[i - 1].y, moves[i].x, moves[i].y));
    }
    EXPECT_EQ(std::count(State().Board.begin(), State().Board.end(), GameState::Visited),
              State().MoveCount);
    EXPECT_FALSE(State().ApplyingMoves);
  }
  bool IsOver() {
    return Window().Context().game.CheckIfGameOver(State().KnightX, State().KnightY);
  }

  int actions_ = 0;

 private:
  std::mt19937 random_{20261121};
};

}  // namespace

TEST_F(AutoplayStorm, WalksToItsEndWhateverThePlayerDoes) {
  Open();
  for (int walk = 0; walk < 50; ++walk) {
    Autoplay([this] {
      PressAnyKey();
      PressAnyShortcut();
      ChooseAnything();
      ClickAnySquare();
    });
    ExpectAWalk();
    EXPECT_TRUE(IsOver());
    Choose("mnuFileNew");
  }
  EXPECT_GT(actions_, 50);
}

TEST_F(AutoplayStorm, PaintsEveryMoveOfTheWalk) {
  Open();
  QCoreApplication::processEvents();
  const std::uint64_t before = Window().Board().PaintedCells();
  const int firstCount = State().MoveCount;
  Choose("mnuFileAutoplay");
  const auto movesMade = static_cast<std::uint64_t>(State().MoveCount - firstCount);
  // The knight's square and the one that it left; the first of them may have been highlighted.
  EXPECT_GE(Window().Board().PaintedCells() - before, 2 * movesMade);
}

TEST_F(AutoplayStorm, EndsEarlyWhenTheWindowIsToClose) {
  Open();
  Answer("Exit?", "Your current game is not finished. Do you really want to exit?",
         QMessageBox::No);
  Autoplay([this] {
    if (State().MoveCount < 5) return;
    for (int times = 0; times < 3; ++times) Window().windowHandle()->close();
  });
  ExpectAWalk();
  EXPECT_FALSE(IsOver());
  EXPECT_TRUE(QTest::qWaitFor([this] { return AllVisitsMade(); }));
  EXPECT_TRUE(Window().isVisible());
  ExpectAWalk();
}

TEST_F(AutoplayStorm, ClosesInTheNormalWayWhenThePlayerSaysSo) {
  Open();
  Answer("Exit?", "Your current game is not finished. Do you really want to exit?",
         QMessageBox::Yes);
  Autoplay([this] { Window().windowHandle()->close(); });
  EXPECT_TRUE(QTest::qWaitFor([this] { return !Window().isVisible(); }));
  EXPECT_TRUE(AllVisitsMade());
}
