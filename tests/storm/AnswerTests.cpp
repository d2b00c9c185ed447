// Every answer to every file dialog.

#include <ostream>

#include <QDir>
#include <QLineEdit>
#include <QTest>
#include <gtest/gtest.h>

#include "tests/storm/Stage.h"
#include "tests/support/Games.h"

namespace {

enum class Says { No, Yes };

struct AnswerRow {
  const char* name;
  const char* entry;
  const char* fileName;  // none: the dialog is closed
  int movesBefore;
  int movesAfterwards;
  QStringList opens = {};
  Says says = Says::No;
};

void PrintTo(const AnswerRow& row, std::ostream* out) {
  *out << row.name;
}

const std::vector<AnswerRow>& Rows() {
  static const std::vector<AnswerRow> rows{
      {"OpenNothing", "mnuFileOpen", nullptr, 1, 1},
      {"OpenAGame", "mnuFileOpen", "forty.knight", 1, 40},
      {"OpenAFinishedGame", "mnuFileOpen", "finished.knight", 1, 20, {"Game Over"}},
      {"OpenAndWatch",
       "mnuFileOpen",
       "finished.knight",
       1,
       20,
       {"Game Over", "Replay", "End Replay", "Replay"},
       Says::Yes},
      {"OpenAMissingFile", "mnuFileOpen", "missing.knight", 1, 1, {"Open"}},
      {"OpenAFolder", "mnuFileOpen", "folder.knight", 1, 1},
      {"OpenAnEmptyFile", "mnuFileOpen", "empty.knight", 1, 1, {"Sorry..."}},
      {"OpenNoGame", "mnuFileOpen", "text.knight", 1, 1, {"Sorry..."}},
      {"OpenAGameThatIsCut", "mnuFileOpen", "cut.knight", 1, 1, {"Sorry..."}},
      {"OpenAReplay", "mnuFileOpenReplay", "forty.knight", 1, 1, {"Replay", "End Replay"}},
      {"OpenAReplayToItsEnd",
       "mnuFileOpenReplay",
       "forty.knight",
       1,
       40,
       {"Replay", "End Replay", "Replay"},
       Says::Yes},
      {"OpenAFinishedReplay",
       "mnuFileOpenReplay",
       "finished.knight",
       1,
       1,
       {"Replay", "End Replay"}},
      {"OpenABrokenReplay", "mnuFileOpenReplay", "text.knight", 1, 1, {"Sorry..."}},
      {"SaveNothing", "mnuFileSave", nullptr, 4, 4},
      {"SaveUnderANewName", "mnuFileSave", "new.knight", 4, 4},
      {"SaveAndDoNotReplace", "mnuFileSave", "forty.knight", 4, 4, {"Save As"}},
      {"SaveAndReplace", "mnuFileSave", "forty.knight", 4, 4, {"Save As"}, Says::Yes},
      {"SaveUnderTheNameOfAFolder", "mnuFileSave", "folder.knight", 4, 4},
      {"SaveWhereThereIsNoFolder", "mnuFileSave", "nowhere/new.knight", 4, 4, {"Save As"}},
      {"OpenNoLook", "mnuEditChessboardOpen", nullptr, 1, 1},
      {"OpenALook", "mnuEditChessboardOpen", "look.chessboard", 1, 1},
      {"OpenABrokenLook", "mnuEditChessboardOpen", "text.knight", 1, 1},
      {"SaveNoLook", "mnuEditChessboardSave", nullptr, 1, 1},
      {"SaveALook", "mnuEditChessboardSave", "new.chessboard", 1, 1},
      {"SaveAndReplaceALook",
       "mnuEditChessboardSave",
       "look.chessboard",
       1,
       1,
       {"Save As"},
       Says::Yes},
  };
  return rows;
}

class EveryAnswer : public testing::TestWithParam<AnswerRow> {
 protected:
  void SetUp() override {
    PlantFiles();
    stage_.Play(GetParam().movesBefore);
    if (GetParam().says == Says::Yes) stage_.SayYes();
    stage_.AtTheMoment([] {});
    stage_.Next([this](QWidget& dialog) {
      stage_.Moment();
      Answer(dialog);
    });
    stage_.Choose(GetParam().entry);
    stage_.Settle(200);
  }

  void PlantFiles() {
    std::vector<MoveRow> forty = SquaresNamed(Games::CompleteTour);
    forty.resize(40);
    stage_.Plant("forty.knight", GameText(forty));
    stage_.Plant("finished.knight", GameText(SquaresNamed(Games::DeadEndAfter20)));
    stage_.Plant("cut.knight", GameText(forty).left(100));
    stage_.Plant("empty.knight", "");
    stage_.Plant("text.knight", "Dear knight,\nyours\n");
    stage_.Plant("look.chessboard", "[Chessboard]\nCorner Distance=300\n");
    QDir(stage_.Path("")).mkdir("folder.knight");
  }

  void Answer(QWidget& dialog) {
    if (GetParam().fileName == nullptr) {
      dialog.close();
      return;
    }
    auto* edit = dialog.findChild<QLineEdit*>("fileNameEdit");
    edit->setText(stage_.Path(GetParam().fileName));
    QTest::keyClick(edit, Qt::Key_Return);
  }

  bool IsWritten(const char* name) const {
    const AnswerRow& row = GetParam();
    const bool asked = row.opens.contains("Save As");
    return row.fileName != nullptr && QString(row.fileName) == name &&
           (!asked || row.says == Says::Yes);
  }

  bool Saves(const char* entry) const { return QString(GetParam().entry) == entry; }

  Stage stage_{QString()};
};

}  // namespace

TEST_P(EveryAnswer, OpensWhatItShould) {
  EXPECT_EQ(stage_.Opened().join(", ").toStdString(), GetParam().opens.join(", ").toStdString());
}

TEST_P(EveryAnswer, LeavesTheGameThatItShould) {
  EXPECT_EQ(stage_.State().MoveCount, GetParam().movesAfterwards);
  EXPECT_EQ(stage_.TheInspector().ComplaintAbout(stage_.Window(), true), "");
}

TEST_P(EveryAnswer, WritesOnlyWhatWasAskedFor) {
  std::vector<MoveRow> four = SquaresNamed(Games::CompleteTour);
  four.resize(4);
  const QByteArray moves = GameText(four).mid(2);
  for (const char* name : {"new.knight", "forty.knight"}) {
    const bool written = Saves("mnuFileSave") && IsWritten(name);
    EXPECT_EQ(stage_.Content(name).endsWith(moves), written) << name;
  }
  for (const char* name : {"new.chessboard", "look.chessboard"}) {
    const bool written = Saves("mnuEditChessboardSave") && IsWritten(name);
    EXPECT_EQ(stage_.Content(name).contains("Light Color="), written) << name;
  }
}

INSTANTIATE_TEST_SUITE_P(All, EveryAnswer, testing::ValuesIn(Rows()),
                         [](const auto& row) { return std::string(row.param.name); });
