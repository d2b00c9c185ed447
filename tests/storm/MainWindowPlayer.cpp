#include <algorithm>

#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QTest>

#include "tests/storm/Hand.h"
#include "tests/storm/Invariants.h"
#include "ui/board/BoardView.h"

namespace {

struct Deed {
  int weight;
  void (*act)(const Hand& hand);
};

struct MenuWish {
  int weight;
  const char* name;
};

constexpr MenuWish MenuWishes[] = {
    {6, "mnuFileNew"},
    {3, "mnuFileOpen"},
    {1, "mnuFileSave"},
    {8, "mnuFileRestart"},
    {14, "mnuFileSolve"},
    {8, "mnuFileAutoplay"},
    {2, "mnuFileOpenReplay"},
    {2, "mnuFileSaveReplay"},
    {1, "mnuFileExit"},
    {40, "mnuEditUndo"},
    {40, "mnuEditRedo"},
    {10, "mnuEditHistory"},
    {1, "mnuEditChessboardOpen"},
    {1, "mnuEditChessboardSave"},
    {5, "mnuPrefs"},
    {14, "mnuViewReplay"},
    {4, "mnuViewHistory"},
    {5, "mnuViewScore"},
    {5, "mnuViewTime"},
    {3, "mnuViewHighScores"},
    {3, "mnuViewLowScores"},
    {1, "mnuHelpContents"},
    {1, "mnuHelpHowToPlay"},
    {2, "mnuHelpAbout"},
};

constexpr Qt::Key BoardKeys[] = {Qt::Key_Left,      Qt::Key_Right, Qt::Key_Up,     Qt::Key_Down,
                                 Qt::Key_Home,      Qt::Key_End,   Qt::Key_PageUp, Qt::Key_PageDown,
                                 Qt::Key_Return,    Qt::Key_Space, Qt::Key_Enter,  Qt::Key_Clear,
                                 Qt::Key_Backspace, Qt::Key_Tab,   Qt::Key_Escape, Qt::Key_A,
                                 Qt::Key_5,         Qt::Key_F5};

constexpr int KeypadDigits[] = {2, 4, 5, 6, 8, 0, 9};

struct Shortcut {
  int weight;
  Qt::Key key;
  Qt::KeyboardModifier modifier;
};

constexpr Shortcut Shortcuts[] = {
    {2, Qt::Key_F2, Qt::NoModifier},     {1, Qt::Key_O, Qt::ControlModifier},
    {1, Qt::Key_S, Qt::ControlModifier}, {8, Qt::Key_Z, Qt::ControlModifier},
    {8, Qt::Key_Y, Qt::ControlModifier}, {3, Qt::Key_R, Qt::ControlModifier},
    {1, Qt::Key_F1, Qt::NoModifier},     {1, Qt::Key_F4, Qt::AltModifier},
    {2, Qt::Key_F, Qt::AltModifier},     {2, Qt::Key_E, Qt::AltModifier},
    {2, Qt::Key_V, Qt::AltModifier},     {2, Qt::Key_H, Qt::AltModifier}};

QPoint PointOn(const Hand& hand, int square) {
  const QRect place = hand.window.Board().SquareRectangle(square);
  return place.topLeft() + QPoint(hand.chance.Below(std::max(place.width(), 1)),
                                  hand.chance.Below(std::max(place.height(), 1)));
}

void Click(const Hand& hand, int square) {
  const int before = hand.window.State().MoveCount;
  hand.journal.Note("click " + SquareName(ColumnOf(square), RowOf(square)));
  QTest::mouseClick(&hand.window.Board(), Qt::LeftButton, Qt::NoModifier,
                    hand.window.Board().SquareRectangle(square).center());
  const GameState& state = hand.window.State();
  const bool moved = state.MoveCount == before + 1 && !state.ApplyingMoves;
  if (!moved || QApplication::activeModalWidget() != nullptr) return;
  const std::string complaint = ComplaintAboutCaption(hand.window);
  if (!complaint.empty()) hand.journal.Fail(complaint);
}

void ClickLegalSquare(const Hand& hand) {
  const GameState& state = hand.window.State();
  std::vector<int> squares;
  for (const Offset offset : KnightMoveOffsets) {
    const int x = state.KnightX + offset.dx;
    const int y = state.KnightY + offset.dy;
    if (IsSquare(x, y) && state.Cell(x, y) == GameState::Unvisited) {
      squares.push_back(SquareIndex(x, y));
    }
  }
  if (!squares.empty()) Click(hand, hand.chance.Pick(squares));
}

void ClickAnySquare(const Hand& hand) {
  Click(hand, hand.chance.Below(SquareCount));
}

void MovePointer(const Hand& hand) {
  hand.journal.Note("move the pointer");
  QTest::mouseMove(&hand.window.Board(), PointOn(hand, hand.chance.Below(SquareCount)));
}

void Drag(const Hand& hand) {
  hand.journal.Note("drag");
  BoardView& board = hand.window.Board();
  const Qt::MouseButton button = hand.chance.OneIn(4) ? Qt::RightButton : Qt::LeftButton;
  QTest::mousePress(&board, button, Qt::NoModifier, PointOn(hand, hand.chance.Below(SquareCount)));
  QTest::mouseMove(&board, PointOn(hand, hand.chance.Below(SquareCount)));
  QTest::mouseRelease(&board, button, Qt::NoModifier,
                      PointOn(hand, hand.chance.Below(SquareCount)));
}

void ClickOddly(const Hand& hand) {
  hand.journal.Note("click another button, or twice, or in the frame");
  BoardView& board = hand.window.Board();
  const QPoint place = PointOn(hand, hand.chance.Below(SquareCount));
  switch (hand.chance.Below(3)) {
    case 0:
      QTest::mouseClick(&board, Qt::RightButton, Qt::NoModifier, place);
      break;
    case 1:
      QTest::mouseDClick(&board, Qt::LeftButton, Qt::NoModifier, place);
      break;
    default:
      QTest::mouseClick(&board, Qt::LeftButton, Qt::NoModifier, QPoint(1, 1));
  }
}

void PressBoardKey(const Hand& hand) {
  if (hand.chance.OneIn(4)) {
    const int digit = hand.chance.Pick(KeypadDigits);
    hand.journal.Note("keypad " + std::to_string(digit));
    QTest::keyClick(&hand.window.Board(), static_cast<Qt::Key>(Qt::Key_0 + digit),
                    Qt::KeypadModifier);
  } else {
    const Qt::Key key = hand.chance.Pick(BoardKeys);
    hand.journal.Note("key " + QKeySequence(key).toString().toStdString());
    QTest::keyClick(&hand.window.Board(), key);
  }
}

void PressShortcut(const Hand& hand) {
  const Shortcut& shortcut = hand.chance.PickWeighted(Shortcuts);
  hand.journal.Note("shortcut " +
                    QKeySequence(shortcut.key | shortcut.modifier).toString().toStdString());
  QTest::keyClick(&hand.window.Board(), shortcut.key, shortcut.modifier);
}

void ChooseFromMenu(const Hand& hand) {
  const MenuWish& wish = hand.chance.PickWeighted(MenuWishes);
  hand.journal.Note(wish.name);
  hand.window.findChild<QAction*>(wish.name)->trigger();
}

void Resize(const Hand& hand) {
  hand.journal.Note("resize");
  const int side = hand.chance.OneIn(8) ? hand.chance.Below(60) : 200 + hand.chance.Below(500);
  hand.window.resize(side + hand.chance.Below(80), side);
}

void CloseWindow(const Hand& hand) {
  if (hand.chance.OneIn(3)) {
    hand.journal.Note("quit");
    QApplication::closeAllWindows();
  } else {
    hand.journal.Note("close the main window");
    hand.window.close();
  }
}

constexpr Deed Deeds[] = {
    {300, ClickLegalSquare},
    {60, ClickAnySquare},
    {60, MovePointer},
    {25, Drag},
    {10, ClickOddly},
    {130, PressBoardKey},
    {70, PressShortcut},
    {200, ChooseFromMenu},
    {6, Resize},
    {2, CloseWindow},
};

}  // namespace

void ActOnMainWindow(const Hand& hand) {
  hand.chance.PickWeighted(Deeds).act(hand);
}
