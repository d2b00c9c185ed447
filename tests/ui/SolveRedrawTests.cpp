// What is painted while a search runs.

#include <QScreen>

#include "tests/ui/SolveDesk.h"
#include "tests/ui/SolveTest.h"
#include "ui/board/BoardView.h"
#include "ui/widgets/ValueLabel.h"

namespace {

// What a widget says of itself, each time it is painted.
class Paints : public QObject {
 public:
  Paints(
      QWidget& widget, std::function<QString()> state = [] { return QString(); })
      : state_(std::move(state)) {
    widget.installEventFilter(this);
  }
  const QStringList& List() const { return list_; }

  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) list_ += state_();
    return false;
  }

 private:
  std::function<QString()> state_;
  QStringList list_;
};

class SolveRedraws : public SolveDesk {
 protected:
  // Lets a search of 70 entries run to its end; the board is redrawn at every second of them.
  void SearchInVain(frmSolve& solve, const std::function<void()>& happensInPauses) {
    Answer("No Solution",
           "At the current position, there is no solution to this game.\n"
           "Undo a few moves and try solving again.",
           QMessageBox::Ok);
    QCoreApplication::processEvents();
    Search(solve, [&](int) {
      if (IsSearching(solve)) happensInPauses();
    });
  }

  static ValueLabel& Value(frmSolve& solve, const char* name) {
    return Child<ValueLabel>(solve, name);
  }
};

QStringList EverySecondCount() {
  QStringList counts;
  for (int tested = 1; tested < 70; tested += 2) counts += QString::number(tested);
  return counts;
}

// Whether all of these are in the list, one after the other; others may be between them.
bool AreInOrderIn(const QStringList& list, const QStringList& these) {
  qsizetype found = 0;
  for (const QString& text : list) {
    if (found < these.size() && text == these[found]) ++found;
  }
  return found == these.size();
}

}  // namespace

TEST_F(SolveRedraws, PaintTheCountEachTime) {
  OpenGame(Positions::Unsolvable, 1);
  Solve([this](frmSolve& solve) {
    ValueLabel& tested = Value(solve, "lblTestedValue");
    const Paints paints(tested, [&] { return tested.Text(); });
    SearchInVain(solve, [] {});
    EXPECT_TRUE(AreInOrderIn(paints.List(), EverySecondCount()));
  });
}

TEST_F(SolveRedraws, PaintTheSquareEachTime) {
  OpenGame(Positions::Unsolvable, 1);
  Solve([this](frmSolve& solve) {
    ValueLabel& square = Value(solve, "lblPositionValue");
    const Paints paints(square, [&] { return square.Text(); });
    QStringList shown;
    SearchInVain(solve, [&] {
      if (shown.isEmpty() || shown.last() != square.Text()) shown += square.Text();
    });
    EXPECT_GE(shown.size(), 20);
    EXPECT_TRUE(AreInOrderIn(paints.List(), shown));
  });
}

TEST_F(SolveRedraws, PaintTheBoardEachTime) {
  OpenGame(Positions::Unsolvable, 1);
  Solve([this](frmSolve& solve) {
    const Paints paints(Window().Board());
    SearchInVain(solve, [] {});
    EXPECT_GE(paints.List().size(), 35);
  });
}

TEST_F(SolveRedraws, BringTheKnightOntoTheScreenBeforeTheSearchGoesOn) {
  OpenGame(Positions::Unsolvable, 1);
  Solve([this](frmSolve& solve) {
    int pauses = 0;
    SearchInVain(solve, [&] {
      ++pauses;
      const QImage onScreen = Window().screen()->grabWindow(Window().winId()).toImage();
      EXPECT_EQ(onScreen, Window().grab().toImage().convertToFormat(onScreen.format()));
    });
    EXPECT_GE(pauses, 30);
  });
}

TEST_F(SolveRedraws, PaintNothingBehindTheValues) {
  OpenGame(Positions::Unsolvable, 1);
  Solve([this](frmSolve& solve) {
    QWidget& frame = Child<QWidget>(solve, "fraKnight");
    QCoreApplication::processEvents();
    const Paints paints(frame);
    SearchInVain(solve, [] {});
    EXPECT_TRUE(paints.List().isEmpty());
  });
}
