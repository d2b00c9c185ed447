#include <algorithm>

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QTest>

#include "tests/support/Games.h"
#include "tests/ui/Desk.h"
#include "ui/board/BoardView.h"

namespace {

class Play : public Desk {
 protected:
  // Steps the keyboard cursor to a square and presses Enter there.
  void TakeByKeys(const MoveRow& square) {
    PressKey(Qt::Key_Home);
    PressKey(Qt::Key_PageUp);
    for (int x = 0; x < square.x; ++x) PressKey(Qt::Key_Right);
    for (int y = 0; y < square.y; ++y) PressKey(Qt::Key_Down);
    PressKey(Qt::Key_Return);
  }

  // A complete tour ends in two windows, whatever is in them; the game is taken up again.
  void UndoTheTour() {
    WhenNextModalOpens([](QWidget& win) { Child<QAbstractButton>(win, "cmdOK").click(); });
    WhenNextModalOpens([](QWidget& over) { Child<QAbstractButton>(over, "cmdUndo").click(); });
  }

  QPoint Middle(int x, int y) {
    return Window().Board().SquareRectangle(SquareIndex(x, y)).center();
  }
};

}  // namespace

TEST_F(Play, BeginsWithTheKnightInTheCorner) {
  Open();
  EXPECT_EQ(State().MoveCount, 1);
  EXPECT_EQ(State().KnightX, 0);
  EXPECT_EQ(State().KnightY, 0);
  EXPECT_EQ(Window().windowTitle(), "Gallopade Nova: 1 - 0:00:00.0");
}

TEST_F(Play, EndsWithItsHelp) {
  Open();
  PressKey(Qt::Key_F1);
  const QWidgetList windows = QApplication::topLevelWidgets();
  const auto help = std::ranges::find(windows, "frmHelp", &QWidget::objectName);
  ASSERT_TRUE(help != windows.end() && (*help)->isVisible());
  EXPECT_TRUE(Close());
  EXPECT_FALSE((*help)->isVisible());
}

TEST_F(Play, GivesTheBoardTheKeyboard) {
  Open();
  EXPECT_TRUE(Window().Board().hasFocus());
}

TEST_F(Play, TakesAWholeTourByMouse) {
  Open();
  UndoTheTour();
  for (const MoveRow& square : SquaresNamed(Games::CompleteTour)) ClickSquare(square.x, square.y);
  EXPECT_TRUE(AllVisitsMade());
  EXPECT_EQ(State().MoveCount, 63);
}

TEST_F(Play, TakesAWholeTourByKeys) {
  Open();
  UndoTheTour();
  for (const MoveRow& square : SquaresNamed(Games::CompleteTour)) TakeByKeys(square);
  EXPECT_TRUE(AllVisitsMade());
  EXPECT_EQ(State().MoveCount, 63);
}

TEST_F(Play, TakesNoSquareWhenTheButtonIsReleasedOverAnother) {
  Open();
  QTest::mousePress(&Window().Board(), Qt::LeftButton, Qt::NoModifier, Middle(2, 1));
  QTest::mouseRelease(&Window().Board(), Qt::LeftButton, Qt::NoModifier, Middle(1, 2));
  EXPECT_EQ(State().MoveCount, 1);
}

TEST_F(Play, TakesNoSquareWithTheRightButton) {
  Open();
  QTest::mouseClick(&Window().Board(), Qt::RightButton, Qt::NoModifier, Middle(2, 1));
  EXPECT_EQ(State().MoveCount, 1);
}

TEST_F(Play, IgnoresTheDigitsOfTheMainKeyboard) {
  Open();
  PressKey(Qt::Key_6);
  EXPECT_EQ(State().CursorX, 0);
  PressKey(Qt::Key_6, Qt::KeypadModifier);
  EXPECT_EQ(State().CursorX, 1);
}

TEST_F(Play, PaintsOnlyTheSquaresThatAMoveChanged) {
  Open();
  QCoreApplication::processEvents();
  const auto before = Window().Board().PaintedCells();
  ClickSquare(2, 1);
  QCoreApplication::processEvents();
  EXPECT_EQ(Window().Board().PaintedCells() - before, 2U);
}

TEST_F(Play, PaintsNothingWhileThePointerStaysInOneSquare) {
  Open();
  QTest::mouseMove(&Window().Board(), Middle(2, 1));
  QCoreApplication::processEvents();
  const auto before = Window().Board().PaintedCells();
  QTest::mouseMove(&Window().Board(), Middle(2, 1) + QPoint(5, 5));
  QCoreApplication::processEvents();
  EXPECT_EQ(Window().Board().PaintedCells(), before);
}

TEST_F(Play, RunsTheClockFromThePlayersFirstMove) {
  Open();
  EXPECT_FALSE(Window().IsClockEnabled());
  ClickSquare(2, 1);
  EXPECT_TRUE(Window().IsClockEnabled());
}

TEST_F(Play, UndoesByBackspaceOnlyWhileThereIsSomethingToUndo) {
  Open();
  PressKey(Qt::Key_Backspace);
  EXPECT_EQ(State().MoveCount, 1);
  ClickSquare(2, 1);
  PressKey(Qt::Key_Backspace);
  EXPECT_EQ(State().MoveCount, 1);
}

TEST_F(Play, AsksBeforeAGameIsLeft) {
  Open();
  ClickSquare(2, 1);
  Answer("Exit?", "Your current game is not finished. Do you really want to exit?",
         QMessageBox::No);
  EXPECT_FALSE(Close());
  EXPECT_TRUE(Window().isVisible());
  EXPECT_TRUE(Window().IsClockEnabled());
}

TEST_F(Play, LeavesAFreshGameWithoutAQuestion) {
  Open();
  EXPECT_TRUE(Close());
  EXPECT_TRUE(Contents("GallopadeNova.ini").contains("Show Time=1"));
}

TEST_F(Play, ShowsAScreenReaderATableOfNamedSquares) {
  Open();
  QAccessibleInterface* board = QAccessible::queryAccessibleInterface(&Window().Board());
  ASSERT_NE(board, nullptr);
  EXPECT_EQ(board->text(QAccessible::Name), "Chessboard");
  EXPECT_EQ(board->role(), QAccessible::Table);
  ASSERT_EQ(board->childCount(), SquareCount);
  QAccessibleTableInterface* table = board->tableInterface();
  EXPECT_EQ(table->cellAt(0, 0)->text(QAccessible::Name), "A8");
  EXPECT_EQ(table->cellAt(7, 7)->text(QAccessible::Name), "H1");
  EXPECT_EQ(table->cellAt(0, 0)->text(QAccessible::Description), "knight");
  EXPECT_EQ(table->cellAt(1, 2)->text(QAccessible::Description), "can be reached");
  EXPECT_EQ(table->cellAt(3, 3)->text(QAccessible::Description), "free");
  ClickSquare(2, 1);
  EXPECT_EQ(table->cellAt(0, 0)->text(QAccessible::Description), "visited");
  EXPECT_EQ(board->focusChild(), table->cellAt(1, 2));
}

TEST_F(Play, ShowsAScreenReaderWhatASquareIsWhereItLies) {
  Open();
  QAccessibleInterface* board = QAccessible::queryAccessibleInterface(&Window().Board());
  QAccessibleInterface* square = board->tableInterface()->cellAt(1, 2);
  QAccessibleTextInterface* text = square->textInterface();
  ASSERT_NE(text, nullptr);
  EXPECT_EQ(text->text(0, text->characterCount()), "C7, can be reached");
  EXPECT_EQ(text->characterRect(0), square->rect());
  ClickSquare(2, 1);
  text = square->textInterface();
  EXPECT_EQ(text->text(0, text->characterCount()), "C7, knight");
}

TEST_F(Play, LetsAScreenReaderPressASquare) {
  Open();
  QAccessibleInterface* board = QAccessible::queryAccessibleInterface(&Window().Board());
  QAccessibleInterface* square = board->tableInterface()->cellAt(1, 2);
  square->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  QCoreApplication::processEvents();
  EXPECT_EQ(State().MoveCount, 2);
}

TEST_F(Play, KeepsAScreenReaderOffTheBoardWhileADialogIsOpen) {
  Open();
  QAccessibleInterface* board = QAccessible::queryAccessibleInterface(&Window().Board());
  QAccessibleInterface* square = board->tableInterface()->cellAt(1, 2);
  WhenNextModalOpens([square](QWidget& modal) {
    square->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCoreApplication::processEvents();
    modal.close();
  });
  Choose("mnuHelpAbout");
  EXPECT_EQ(State().MoveCount, 1);
}
