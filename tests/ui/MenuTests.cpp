#include <QMenu>
#include <QMenuBar>
#include <QTest>

#include "tests/ui/Desk.h"

namespace {

using Menu = Desk;

struct Row {
  QString name;
  QString caption;
  QString shortcut;

  friend bool operator==(const Row&, const Row&) = default;
  friend void PrintTo(const Row& row, std::ostream* stream) {
    *stream << (row.name + " | " + row.caption + " | " + row.shortcut).toStdString();
  }
};

std::vector<Row> RowsOf(const QMenu& menu) {
  std::vector<Row> rows;
  for (const QAction* action : menu.actions()) {
    const QString name =
        action->menu() == nullptr ? action->objectName() : action->menu()->objectName();
    rows.push_back({name, action->text(), action->shortcut().toString()});
  }
  return rows;
}

// Opens it as its letter with Alt does.
QMenu& OpenMenu(frmGame& window, Qt::Key letter, const char* name) {
  QTest::keyPress(window.windowHandle(), Qt::Key_Alt);
  QTest::keyClick(window.windowHandle(), letter, Qt::AltModifier);
  return Child<QMenu>(window, name);
}

Row Separator(int number) {
  return {QString("mnuSeparator%1").arg(number), QString(), QString()};
}

}  // namespace

TEST_F(Menu, HasFourMenusInTheirOrder) {
  Open();
  QStringList captions;
  for (const QAction* action : Window().menuBar()->actions()) captions << action->text();
  EXPECT_EQ(captions, QStringList({"&File", "&Edit", "&View", "&Help"}));
}

TEST_F(Menu, ListsTheFileCommands) {
  Open();
  const std::vector<Row> expected{
      {"mnuFileNew", "&New", "F2"},
      {"mnuFileOpen", "&Open...", "Ctrl+O"},
      {"mnuFileSave", "&Save...", "Ctrl+S"},
      {"mnuFileRestart", "&Restart", ""},
      Separator(0),
      {"mnuFileSolve", "So&lve...", ""},
      {"mnuFileAutoplay", "&Autoplay", ""},
      Separator(1),
      {"mnuFileOpenReplay", "O&pen Replay...", ""},
      {"mnuFileSaveReplay", "Sa&ve Replay...", ""},
      Separator(2),
      {"mnuFileExit", "E&xit\tAlt+F4", "Alt+F4"},
  };
  EXPECT_EQ(RowsOf(Child<QMenu>(Window(), "mnuFile")), expected);
}

TEST_F(Menu, ListsTheEditCommands) {
  Open();
  const std::vector<Row> expected{
      {"mnuEditUndo", "&Undo", "Ctrl+Z"},
      {"mnuEditRedo", "&Redo", "Ctrl+Y"},
      {"mnuEditHistory", "&Command History...", ""},
      Separator(3),
      {"mnuEditChessboard", "Chess&board", ""},
      Separator(4),
      {"mnuPrefs", "&Preferences...", ""},
  };
  EXPECT_EQ(RowsOf(Child<QMenu>(Window(), "mnuEdit")), expected);
}

TEST_F(Menu, ListsTheChessboardCommands) {
  Open();
  const std::vector<Row> expected{{"mnuEditChessboardOpen", "&Open...", ""},
                                  {"mnuEditChessboardSave", "&Save...", ""}};
  EXPECT_EQ(RowsOf(Child<QMenu>(Window(), "mnuEditChessboard")), expected);
}

TEST_F(Menu, ListsTheViewCommands) {
  Open();
  const std::vector<Row> expected{
      {"mnuViewReplay", "&Instant Replay...", "Ctrl+R"},
      {"mnuViewHistory", "&Move History...", ""},
      Separator(5),
      {"mnuViewScore", "Show &Score", ""},
      {"mnuViewTime", "Show &Time", ""},
      Separator(6),
      {"mnuViewHighScores", "&High Scores...", ""},
      {"mnuViewLowScores", "&Low Scores...", ""},
  };
  EXPECT_EQ(RowsOf(Child<QMenu>(Window(), "mnuView")), expected);
}

TEST_F(Menu, ListsTheHelpCommands) {
  Open();
  const std::vector<Row> expected{
      {"mnuHelpContents", "&Contents", "F1"},
      {"mnuHelpHowToPlay", "&How to Play", ""},
      Separator(7),
      {"mnuHelpAbout", "&About Gallopade Nova...", ""},
  };
  EXPECT_EQ(RowsOf(Child<QMenu>(Window(), "mnuHelp")), expected);
}

TEST_F(Menu, ChecksTheViewOptionsThatAreOn) {
  Open("[Settings]\r\nShow Time=0\r\n");
  EXPECT_TRUE(MenuItem("mnuViewScore").isChecked());
  EXPECT_FALSE(MenuItem("mnuViewTime").isChecked());
}

TEST_F(Menu, TogglesAViewOptionOnceForAChoice) {
  Open();
  Choose("mnuViewTime");
  EXPECT_FALSE(MenuItem("mnuViewTime").isChecked());
  EXPECT_EQ(Window().windowTitle(), "Gallopade Nova: 1");
  Choose("mnuViewScore");
  EXPECT_FALSE(MenuItem("mnuViewScore").isChecked());
  EXPECT_EQ(Window().windowTitle(), "Gallopade Nova");
}

TEST_F(Menu, StaysOpenWhenTheAltThatOpenedItComesLate) {
  Open();
  QMenu& menu = OpenMenu(Window(), Qt::Key_E, "mnuEdit");
  ASSERT_TRUE(menu.isVisible());
  QKeyEvent late(QEvent::KeyPress, Qt::Key_Alt, Qt::AltModifier);
  QCoreApplication::sendEvent(&menu, &late);
  EXPECT_TRUE(menu.isVisible());
}

TEST_F(Menu, ClosesOnAnAltThatIsPressedInIt) {
  Open();
  QMenu& menu = OpenMenu(Window(), Qt::Key_E, "mnuEdit");
  QTest::keyClick(Window().windowHandle(), Qt::Key_Alt);
  EXPECT_FALSE(menu.isVisible());
}
