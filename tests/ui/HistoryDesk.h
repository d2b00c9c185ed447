#pragma once

#include <QListWidget>
#include <QTest>

#include "tests/support/Games.h"
#include "tests/ui/Desk.h"
#include "ui/windows/history/frmHistory.h"

// The move history or the command history of a game on the desk.
class HistoryDesk : public Desk {
 protected:
  using Reading = std::function<void(frmHistory& history, QListWidget& list)>;

  void OpenGame(int moves) {
    Open();
    PlayTour(Window().Context().game, moves);
  }

  // Reads the window that a menu entry opens, and closes it if it is still open then.
  void Read(const char* menuEntry, const Reading& reading) {
    WhenNextModalOpens([=](QWidget& modal) {
      auto& history = dynamic_cast<frmHistory&>(modal);
      reading(history, Child<QListWidget>(modal, "lstMoves"));
      if (history.isVisible()) history.cmdClose_Click();
    });
    Choose(menuEntry);
    EXPECT_TRUE(AllVisitsMade());
  }

  static QStringList Rows(const QListWidget& list) {
    QStringList rows;
    for (int row = 0; row < list.count(); ++row) rows += list.item(row)->text();
    return rows;
  }
  static void Click(QListWidget& list, int row) {
    list.scrollToItem(list.item(row));
    QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier,
                      list.visualItemRect(list.item(row)).center());
  }
  static QAbstractButton& Main(frmHistory& history) {
    return Child<QAbstractButton>(history, "cmdOptionsOrUndo");
  }
};
