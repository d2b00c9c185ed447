#include <algorithm>

#include <QAbstractButton>
#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include "tests/ui/HistoryDesk.h"

namespace {

class MoveHistory : public HistoryDesk {};

class CommandHistoryWindow : public HistoryDesk {
 protected:
  // Ten moves made, three of them undone: six rows "Undo", "No Change", three rows "Redo".
  void OpenGameInTheMiddle() {
    OpenGame(10);
    for (int i = 0; i < 3; ++i) Choose("mnuEditUndo");
  }
  static constexpr int NoChange = 6;

  // Which rows are selected, such as "4-5".
  static QString Selected(const QListWidget& list) {
    QList<int> rows;
    for (const QModelIndex& index : list.selectionModel()->selectedIndexes()) rows += index.row();
    std::sort(rows.begin(), rows.end());
    const bool contiguous = !rows.isEmpty() && rows.last() - rows.first() + 1 == rows.size();
    return contiguous ? QString("%1-%2").arg(rows.first()).arg(rows.last()) : "torn";
  }
};

}  // namespace

TEST_F(MoveHistory, ListsTheMovesByNumber) {
  OpenGame(3);
  Read("mnuViewHistory", [](frmHistory& history, QListWidget& list) {
    EXPECT_EQ(history.windowTitle(), "Move History");
    EXPECT_EQ(Rows(list), (QStringList{"1.\tA8", "2.\tC7", "3.\tB5"}));
    EXPECT_EQ(list.property("tag").toString(), "");
    EXPECT_EQ(Main(history).text(), "&Options");
    EXPECT_EQ(Child<QAbstractButton>(history, "cmdClose").text(), "&Close");
  });
}

TEST_F(MoveHistory, LeavesOutWhatCanBeRedone) {
  OpenGame(3);
  Choose("mnuEditUndo");
  Read("mnuViewHistory", [](frmHistory&, QListWidget& list) { EXPECT_EQ(list.count(), 2); });
}

TEST_F(MoveHistory, GivesTheClockBack) {
  OpenGame(3);
  Read("mnuViewHistory",
       [&](frmHistory&, QListWidget&) { EXPECT_FALSE(Window().IsClockEnabled()); });
  EXPECT_TRUE(Window().IsClockEnabled());
  Window().EnableClock(false);
  Read("mnuViewHistory", [](frmHistory&, QListWidget&) {});
  EXPECT_FALSE(Window().IsClockEnabled());
}

TEST_F(MoveHistory, ClosesWhenEnterPressesItsButton) {
  OpenGame(3);
  Read("mnuViewHistory", [](frmHistory& history, QListWidget&) {
    QTest::keyClick(&Child<QAbstractButton>(history, "cmdClose"), Qt::Key_Enter);
    EXPECT_FALSE(history.isVisible());
  });
}

TEST_F(MoveHistory, OpensItsOptionsBelowTheButton) {
  OpenGame(3);
  Read("mnuViewHistory", [](frmHistory& history, QListWidget&) {
    Main(history).click();
    auto& menu = Child<QMenu>(history, "mnuEdit");
    EXPECT_TRUE(menu.isVisible());
    EXPECT_EQ(menu.pos(), Main(history).mapToGlobal(QPoint(0, Main(history).height())));
    QStringList captions;
    for (const QAction* action : menu.actions()) captions += action->text();
    EXPECT_EQ(captions, (QStringList{"Copy &Moves to Clipboard", "&Save Moves to File...",
                                     "&Print Moves on Default Printer", "&Cancel"}));
    menu.close();
  });
}

TEST_F(MoveHistory, CopiesTheListWithLineEnds) {
  OpenGame(3);
  Read("mnuViewHistory",
       [](frmHistory& history, QListWidget&) { Child<QAction>(history, "mnuEditCopy").trigger(); });
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "1.\tA8\r\n2.\tC7\r\n3.\tB5\r\n");
}

TEST_F(MoveHistory, CopiesAnEmptyTextForAnEmptyGame) {
  Open("[Position]\r\nStarting Position=1\r\n");
  QGuiApplication::clipboard()->setText("something else");
  Window().SetMenuEnabled(MenuEntry::mnuViewHistory, true);
  Read("mnuViewHistory", [](frmHistory& history, QListWidget& list) {
    EXPECT_EQ(list.count(), 0);
    Child<QAction>(history, "mnuEditCopy").trigger();
  });
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "");
}

TEST_F(CommandHistoryWindow, SelectsNoChangeAtFirst) {
  OpenGameInTheMiddle();
  Read("mnuEditHistory", [](frmHistory& history, QListWidget& list) {
    EXPECT_EQ(history.windowTitle(), "Command History");
    EXPECT_EQ(list.count(), 10);
    EXPECT_EQ(list.property("tag").toString(), "6");
    EXPECT_EQ(list.currentRow(), NoChange);
    EXPECT_EQ(Selected(list), "6-6");
    EXPECT_EQ(Main(history).text(), "Undo/Redo");
    EXPECT_FALSE(Main(history).isEnabled());
    EXPECT_EQ(Child<QAbstractButton>(history, "cmdClose").text(), "Cancel");
  });
  EXPECT_EQ(State().MoveCount, 7);
}

TEST_F(CommandHistoryWindow, SelectsFromAnUndoRowDownToTheLastMove) {
  OpenGameInTheMiddle();
  Read("mnuEditHistory", [](frmHistory& history, QListWidget& list) {
    Click(list, 2);
    EXPECT_EQ(Selected(list), "2-5");
    EXPECT_EQ(Main(history).text(), "Un&do");
    EXPECT_TRUE(Main(history).isEnabled());
  });
}

TEST_F(CommandHistoryWindow, SelectsDownToARedoRow) {
  OpenGameInTheMiddle();
  Read("mnuEditHistory", [](frmHistory& history, QListWidget& list) {
    Click(list, 8);
    EXPECT_EQ(Selected(list), "7-8");
    EXPECT_EQ(Main(history).text(), "Re&do");
    EXPECT_TRUE(Main(history).isEnabled());
  });
}

TEST_F(CommandHistoryWindow, GoesBackToNoChange) {
  OpenGameInTheMiddle();
  Read("mnuEditHistory", [](frmHistory& history, QListWidget& list) {
    Click(list, 9);
    Click(list, NoChange);
    EXPECT_EQ(Selected(list), "6-6");
    EXPECT_EQ(Main(history).text(), "Undo/Redo");
    EXPECT_FALSE(Main(history).isEnabled());
  });
}

TEST_F(CommandHistoryWindow, HasOneRowWhenThereIsNothingToUndoOrRedo) {
  OpenGame(2);
  Choose("mnuEditUndo");
  Window().Context().game.ClearRedo();
  Read("mnuEditHistory", [](frmHistory& history, QListWidget& list) {
    EXPECT_EQ(Rows(list), (QStringList{"No Change"}));
    EXPECT_EQ(Selected(list), "0-0");
    Click(list, 0);
    EXPECT_EQ(Main(history).text(), "Undo/Redo");
    EXPECT_FALSE(Main(history).isEnabled());
  });
  EXPECT_EQ(State().MoveCount, 1);
}

TEST_F(CommandHistoryWindow, SelectsByTheKeyboard) {
  OpenGameInTheMiddle();
  Read("mnuEditHistory", [](frmHistory& history, QListWidget& list) {
    EXPECT_EQ(history.focusWidget(), &list);
    QTest::keyClick(&list, Qt::Key_Up);
    QTest::keyClick(&list, Qt::Key_Up);
    EXPECT_EQ(Selected(list), "4-5");
    QTest::keyClick(&list, Qt::Key_End);
    EXPECT_EQ(Selected(list), "7-9");
    QTest::keyClick(&list, Qt::Key_Home);
    EXPECT_EQ(Selected(list), "0-5");
    QTest::keyClick(&list, Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(Selected(list), "1-5");
    QTest::keyClick(&list, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(Selected(list), "1-5");
    EXPECT_EQ(Main(history).text(), "Un&do");
  });
}

TEST_F(CommandHistoryWindow, SelectsByDragging) {
  OpenGameInTheMiddle();
  Read("mnuEditHistory", [](frmHistory&, QListWidget& list) {
    const auto middle = [&list](int row) { return list.visualItemRect(list.item(row)).center(); };
    QTest::mousePress(list.viewport(), Qt::LeftButton, Qt::NoModifier, middle(NoChange));
    for (const int row : {5, 4, 3}) {
      QMouseEvent move(QEvent::MouseMove, middle(row), list.viewport()->mapToGlobal(middle(row)),
                       Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
      QCoreApplication::sendEvent(list.viewport(), &move);
    }
    QTest::mouseRelease(list.viewport(), Qt::LeftButton, Qt::NoModifier, middle(3));
    EXPECT_EQ(Selected(list), "3-5");
  });
}

TEST_F(CommandHistoryWindow, UndoesWhatIsSelected) {
  OpenGameInTheMiddle();
  Read("mnuEditHistory", [](frmHistory& history, QListWidget& list) {
    Click(list, 0);
    Main(history).click();
  });
  EXPECT_EQ(State().MoveCount, 1);
  EXPECT_EQ(MovesToRedo(State()).size(), 9U);
  EXPECT_TRUE(Window().IsClockEnabled());
}

TEST_F(CommandHistoryWindow, RedoesWhatIsSelected) {
  OpenGameInTheMiddle();
  Read("mnuEditHistory", [](frmHistory& history, QListWidget& list) {
    Click(list, 8);
    Main(history).click();
  });
  EXPECT_EQ(State().MoveCount, 9);
}

TEST_F(CommandHistoryWindow, ChangesNothingWhenItIsCancelled) {
  OpenGameInTheMiddle();
  Read("mnuEditHistory", [](frmHistory& history, QListWidget& list) {
    Click(list, 0);
    QTest::keyClick(&history, Qt::Key_Escape);
    EXPECT_FALSE(history.isVisible());
  });
  EXPECT_EQ(State().MoveCount, 7);
}

namespace {

// What comes while the command history takes nine moves back.
class CommandHistoryAtWork : public CommandHistoryWindow {
 protected:
  void StepBackAnd(const std::function<void(frmHistory&, QListWidget&)>& happens) {
    OpenGame(10);
    WhenNextModalOpens([&](QWidget& modal) {
      auto& history = dynamic_cast<frmHistory&>(modal);
      auto& list = Child<QListWidget>(modal, "lstMoves");
      QTimer yields;
      QObject::connect(&yields, &QTimer::timeout, [&] {
        if (State().MoveCount != 6) return;
        yields.stop();
        EXPECT_TRUE(history.isVisible());
        happens(history, list);
        EXPECT_TRUE(history.isVisible());
      });
      yields.start(0);
      Click(list, 0);
      Main(history).click();
      EXPECT_FALSE(history.isVisible());
    });
    Choose("mnuEditHistory");
    EXPECT_TRUE(AllVisitsMade());
    EXPECT_EQ(State().MoveCount, 1);
    EXPECT_TRUE(Window().PlayerMayAct());
  }
};

}  // namespace

TEST_F(CommandHistoryAtWork, IsOpenUntilTheStepsAreMade) {
  StepBackAnd([](frmHistory&, QListWidget&) {});
}

TEST_F(CommandHistoryAtWork, ClosesOnlyThenWhenItIsToldTo) {
  StepBackAnd([](frmHistory& history, QListWidget&) {
    QTest::keyClick(&history, Qt::Key_Escape);
    history.windowHandle()->close();
    Child<QAbstractButton>(history, "cmdClose").click();
  });
}

TEST_F(CommandHistoryAtWork, TakesNoOtherOrder) {
  StepBackAnd([](frmHistory& history, QListWidget& list) {
    Main(history).click();
    Click(list, 9);
    EXPECT_EQ(Selected(list), "0-8");
    EXPECT_EQ(Main(history).text(), "Un&do");
    Main(history).click();
  });
}

TEST_F(CommandHistoryAtWork, KeepsTheMainWindowFromClosing) {
  StepBackAnd([this](frmHistory&, QListWidget&) {
    Window().windowHandle()->close();
    EXPECT_TRUE(Window().isVisible());
  });
}

namespace {

class CommandHistoryAtTheEnd : public CommandHistoryWindow {
 protected:
  // Redoes the two moves with which a game has ended, and presses this in the window that says so.
  void RedoToTheEndAndPress(const char* button) {
    Open();
    WhenNextModalOpens([](QWidget& over) { Child<QAbstractButton>(over, "cmdUndo").click(); });
    PlaySquares(Context().game, Games::DeadEndAfter20);
    Choose("mnuEditUndo");
    WhenNextModalOpens([this, button](QWidget& modal) {
      auto& history = dynamic_cast<frmHistory&>(modal);
      WhenNextModalOpens([&history, button](QWidget& over) {
        EXPECT_TRUE(history.isVisible());
        EXPECT_EQ(over.objectName(), "frmGameOver");
        Child<QAbstractButton>(over, button).click();
      });
      auto& list = Child<QListWidget>(modal, "lstMoves");
      Click(list, list.count() - 1);
      Main(history).click();
      EXPECT_FALSE(history.isVisible());
    });
    Choose("mnuEditHistory");
    EXPECT_TRUE(AllVisitsMade());
    EXPECT_TRUE(Window().PlayerMayAct());
  }
  const CommandContext& Context() { return Window().Context(); }
};

}  // namespace

TEST_F(CommandHistoryAtTheEnd, ClosesWhenTheLastMoveIsTakenBack) {
  RedoToTheEndAndPress("cmdUndo");
  EXPECT_EQ(State().MoveCount, 19);
}
