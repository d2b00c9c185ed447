#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTest>

#include "storage/FileLock.h"
#include "storage/OpenFolder.h"
#include "storage/ScoreLists.h"
#include "tests/ui/PreferencesDesk.h"
#include "ui/board/BoardView.h"

// The program goes on with what the player has chosen, also where nothing of it can be kept.
class WhereNothingCanBeKept : public PreferencesDesk {
 protected:
  // In the place of the file lies a folder that is not empty, which not even the superuser can
  // write over.
  void Obstruct(const char* name) { ASSERT_TRUE(QDir().mkpath(ProgramFile(name) + "/inside")); }
  void OpenObstructed() {
    Open();
    Obstruct("GallopadeNova.ini");
  }
};

TEST_F(WhereNothingCanBeKept, ThePreferencesApply) {
  OpenObstructed();
  Choose("mnuViewTime");
  InPreferences([this](frmPreferences& window) {
    ChooseColor(Qt::red);
    Click(window, "chkUseImages");
    Click(window, "cmdLight");
    Click(window, "optHighlight(0)");
    Click(window, "cmdOK");
  });
  EXPECT_EQ(InMemory().LightColor, 255);
  EXPECT_FALSE(InMemory().UseImages);
  EXPECT_EQ(InMemory().HighlightingMethod, Highlighting::None);
  EXPECT_FALSE(InMemory().ShowTime);
  EXPECT_FALSE(MenuItem("mnuViewTime").isChecked());
}

TEST_F(WhereNothingCanBeKept, TheyApplyInTheNextDialogToo) {
  OpenObstructed();
  InPreferences([](frmPreferences& window) {
    Click(window, "optHighlight(1)");
    Click(window, "cmdOK");
  });
  InPreferences([](frmPreferences& window) { Click(window, "cmdOK"); });
  EXPECT_EQ(InMemory().HighlightingMethod, Highlighting::CursorPosition);
}

TEST_F(WhereNothingCanBeKept, AChessboardIsOpened) {
  OpenObstructed();
  QFile look(ProgramFile("a.chessboard"));
  ASSERT_TRUE(look.open(QIODevice::WriteOnly));
  look.write("[Chessboard]\nUse Images=0\nDark Color=255\nCorner Distance=600\n");
  look.close();
  ChooseFile(ProgramFile("a.chessboard"));
  Choose("mnuEditChessboardOpen");
  EXPECT_EQ(InMemory().DarkColor, 255);
  EXPECT_EQ(InMemory().CornerDistance, 600);
  EXPECT_EQ(Window().Board().SquareRectangle(0).topLeft(), QPoint(40, 40));
}

TEST_F(WhereNothingCanBeKept, TheDefaultsAreRestored) {
  Open("[Chessboard]\nUse Images=0\nLight Color=255\n");
  QFile::remove(ProgramFile("GallopadeNova.ini"));
  Obstruct("GallopadeNova.ini");
  InPreferences([this](frmPreferences& window) {
    Answer("Gallopade Nova", "Are you sure you want to restore the default configuration?",
           QMessageBox::Yes);
    Click(window, "cmdDefaultConfiguration");
    Click(window, "cmdCancel");
  });
  EXPECT_EQ(InMemory().LightColor, Settings().LightColor);
  EXPECT_TRUE(InMemory().UseImages);
}

// A copy that is stopped while it changes a file keeps the folder's lock.
class WhileAnotherCopyIsStopped : public PreferencesDesk {
 protected:
  void StopAnotherCopy() {
    other_.emplace(QFile::encodeName(QFileInfo(ProgramFile("x")).path()));
    ASSERT_EQ(TakeLock(other_->Number(), Wait::Not), FileLock::Taken);
  }
  void LetItGoOn() { other_.reset(); }
  ScoreRows LowScores() const {
    return RowsFrom(KeptFile(ProgramFile("Scores.dat")).Values(), ScoreList::Low);
  }

 private:
  std::optional<OpenFolder> other_;
};

TEST_F(WhileAnotherCopyIsStopped, ThePreferencesApplyAndAreSavedLater) {
  Open();
  StopAnotherCopy();
  InPreferences([](frmPreferences& window) {
    Click(window, "optHighlight(0)");
    Click(window, "cmdOK");
  });
  EXPECT_EQ(InMemory().HighlightingMethod, Highlighting::None);
  EXPECT_EQ(Stored("Highlight", "Highlighting Method"), "");
  LetItGoOn();
  EXPECT_TRUE(
      QTest::qWaitFor([this] { return Stored("Highlight", "Highlighting Method") == "0"; }));
}

TEST_F(WhileAnotherCopyIsStopped, AScoreIsShownAndJoinsThoseOfTheOtherCopyLater) {
  Open();
  StopAnotherCopy();
  SaveScore(globals.ScoreFile, ScoreList::Low, {20, 0}, "Ann");
  EXPECT_EQ(RowsFrom(globals.ScoreFile.Values(), ScoreList::Low)[0].name, "Ann");
  EXPECT_EQ(LowScores()[0].name, "");
  QFile file(ProgramFile("Scores.dat"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("[Low Scores]\r\nName 1=Bob\r\nMoves 1=10\r\nTime 1=9\r\n");
  file.close();
  LetItGoOn();
  EXPECT_TRUE(QTest::qWaitFor([this] { return LowScores()[1].name == "Ann"; }));
  EXPECT_EQ(LowScores()[0].name, "Bob");
}

TEST_F(WhileAnotherCopyIsStopped, TheProgramSavesItsScoresBeforeItEnds) {
  Open();
  StopAnotherCopy();
  SaveScore(globals.ScoreFile, ScoreList::Low, {20, 0}, "Ann");
  EXPECT_TRUE(Close());
  LetItGoOn();
  FinishSaving(globals, Wait::AsLongAsItTakes);
  EXPECT_EQ(LowScores()[0].name, "Ann");
}
