#include <QDir>
#include <QFile>
#include <QLabel>
#include <QTest>

#include "storage/ScoreLists.h"
#include "tests/ui/EndgameDesk.h"

namespace {

class NameSaving : public EndgameDesk {
 protected:
  ScoreRows LowScores() const {
    return RowsFrom(KeptFile(ProgramFile("Scores.dat")).Values(), ScoreList::Low);
  }
  QString FirstName() const { return LowScores()[0].name; }
};

}  // namespace

TEST_F(NameSaving, WritesTheNameThatWasEntered) {
  Open();
  SubmitAGame([](frmScores& scores) {
    TypeName(scores, "Ann");
    QTest::keyClick(&BoxOf(scores), Qt::Key_Return);
    Press(scores, "cmdClose");
  });
  EXPECT_EQ(FirstName(), "Ann");
  EXPECT_EQ(LowScores()[0].moves, "20");
}

TEST_F(NameSaving, WritesANameThatEnterWasNotPressedFor) {
  Open();
  SubmitAGame([](frmScores& scores) {
    TypeName(scores, "Ann");
    Press(scores, "cmdClose");
  });
  EXPECT_EQ(FirstName(), "Ann");
}

TEST_F(NameSaving, WritesAnEmptyNameWhenNoneWasEntered) {
  Open();
  SubmitAGame([](frmScores& scores) { Press(scores, "cmdClose"); });
  EXPECT_EQ(FirstName(), "");
  EXPECT_EQ(LowScores()[0].moves, "20");
}

TEST_F(NameSaving, WritesAnEmptyNameWhenTheTextWasDeleted) {
  Open();
  SubmitAGame([](frmScores& scores) {
    BoxOf(scores).clear();
    Press(scores, "cmdClose");
  });
  EXPECT_EQ(FirstName(), "");
  EXPECT_EQ(LowScores()[0].moves, "20");
}

TEST_F(NameSaving, WritesTheNameAsItWasCorrected) {
  Open();
  SubmitAGame([](frmScores& scores) {
    TypeName(scores, "Amm");
    QTest::keyClick(&BoxOf(scores), Qt::Key_Return);
    QTest::mouseClick(&LabelAt(scores, "lblNames", 0), Qt::LeftButton);
    TypeName(scores, "Ann");
    Press(scores, "cmdClose");
  });
  EXPECT_EQ(FirstName(), "Ann");
}

TEST_F(NameSaving, KeepsTheWindowOpenOverBlanksWhicheverWayItIsClosed) {
  Open();
  SubmitAGame([this](frmScores& scores) {
    TypeName(scores, "  ");
    for (const char* button : {"cmdClose", "cmdNewGame", "cmdReplay"}) {
      ExpectNameIsMissing();
      Press(scores, button);
      EXPECT_TRUE(scores.isVisible()) << button;
    }
    ExpectNameIsMissing();
    QTest::keyClick(&scores, Qt::Key_Escape);
    EXPECT_TRUE(scores.isVisible());
    ExpectNameIsMissing();
    scores.close();
    EXPECT_TRUE(scores.isVisible());
    EXPECT_TRUE(AllVisitsMade());
    EXPECT_FALSE(QFile::exists(ProgramFile("Scores.dat")));
    TypeName(scores, "Ann");
    scores.close();
  });
  EXPECT_EQ(FirstName(), "Ann");
  EXPECT_EQ(State().MoveCount, 20);
}

TEST_F(NameSaving, WritesNothingBeforeTheWindowCloses) {
  Open();
  SubmitAGame([this](frmScores& scores) {
    TypeName(scores, "Ann");
    QTest::keyClick(&BoxOf(scores), Qt::Key_Return);
    EXPECT_FALSE(QFile::exists(ProgramFile("Scores.dat")));
    Press(scores, "cmdClose");
  });
}

TEST_F(NameSaving, SaysNothingWhenTheFileCannotBeWritten) {
  Open();
  QDir().mkdir(ProgramFile("Scores.dat"));
  SubmitAGame([](frmScores& scores) {
    TypeName(scores, "Ann");
    Press(scores, "cmdClose");
  });
  EXPECT_TRUE(AllVisitsMade());
  EXPECT_EQ(State().MoveCount, 20);
}

TEST_F(NameSaving, KeepsWhatAnotherCopyWroteMeanwhile) {
  Open();
  SubmitAGame([this](frmScores& scores) {
    TypeName(scores, "Ann");
    KeptFile other(ProgramFile("Scores.dat"));
    SaveScore(other, ScoreList::Low, {20, 0}, "First");
    SaveScore(other, ScoreList::Low, {19, 500}, "Better");
    Press(scores, "cmdClose");
  });
  const ScoreRows rows = LowScores();
  EXPECT_EQ(rows[0].name, "Better");
  EXPECT_EQ(rows[1].name, "First");
  EXPECT_EQ(rows[2].name, "Ann");
}

TEST_F(NameSaving, KeepsTheScoresOfTwoWindowsThatWereOpenAtOnce) {
  Open();
  SubmitAGame([this](frmScores& scores) {
    frmScores other(Window().Context(), &Window());
    other.LoadLow();
    other.SendScore(15, 30, false);
    TypeName(other, "Bob");
    other.done(0);
    TypeName(scores, "Ann");
    Press(scores, "cmdClose");
  });
  const ScoreRows rows = LowScores();
  EXPECT_EQ(rows[0].name, "Bob");
  EXPECT_EQ(rows[1].name, "Ann");
}

TEST_F(NameSaving, LeavesTheOtherListAlone) {
  Open();
  WriteScores("[High Scores]\r\nName 1=Hal\r\nMoves 1=64\r\nTime 1=9\r\n");
  SubmitAGame([](frmScores& scores) {
    TypeName(scores, "Ann");
    Press(scores, "cmdClose");
  });
  EXPECT_TRUE(Contents("Scores.dat")
                  .startsWith("[High Scores]\r\nName 1=Hal\r\nMoves 1=64\r\nTime 1=9\r\n"));
}

TEST_F(NameSaving, LosesNoOldScoreToAFileThatIsTooLarge) {
  Open();
  QFile file(ProgramFile("Scores.dat"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  ASSERT_TRUE(file.resize(100'000'000));
  SubmitAGame([](frmScores& scores) {
    TypeName(scores, "Ann");
    Press(scores, "cmdClose");
  });
  EXPECT_EQ(QFileInfo(ProgramFile("Scores.dat")).size(), 100'000'000);
}

// --- names of all kinds ---

struct OddName {
  const char* description;
  QString entered;
  QString found;  // when the list is opened again
};

class OddNames : public NameSaving, public testing::WithParamInterface<OddName> {};

TEST_P(OddNames, AreFoundAgain) {
  const OddName& name = GetParam();
  Open();
  SubmitAGame([&](frmScores& scores) {
    BoxOf(scores).setText(name.entered);
    QTest::keyClick(&BoxOf(scores), Qt::Key_Return);
    Press(scores, "cmdClose");
  });
  LookAtList("mnuViewLowScores", [&](frmScores& scores) {
    EXPECT_EQ(LabelAt(scores, "lblNames", 0).text(), name.found);
    EXPECT_EQ(LabelAt(scores, "lblMoves", 0).text(), "20");
    EXPECT_EQ(LabelAt(scores, "lblNames", 1).text(), "");
  });
}

INSTANTIATE_TEST_SUITE_P(
    Names, OddNames,
    testing::Values(
        OddName{"DoubleQuotes", "\"Ann\"", "\"Ann\""},
        OddName{"OneQuote", "O'Brien \"", "O'Brien \""}, OddName{"EqualsSign", "a=b=c", "a=b=c"},
        OddName{"Brackets", "[High Scores]", "[High Scores]"},
        OddName{"Comment", "; not a comment", "; not a comment"},
        OddName{"Markup", "<b>Ann</b>&amp;", "<b>Ann</b>&amp;"},
        OddName{"Accents", "Zo\u00EB \u00C5ngstr\u00F6m", "Zo\u00EB \u00C5ngstr\u00F6m"},
        OddName{"OtherScripts", "\u9A0E\u58EB \u05D0\u05D1", "\u9A0E\u58EB \u05D0\u05D1"},
        OddName{"OutsideTheBasicPlane", "\U0001F40E", "\U0001F40E"},
        OddName{"BlanksAround", "  Ann  ", "  Ann  "}, OddName{"AKey", "Name 2=Eve", "Name 2=Eve"},
        OddName{"ThousandCharacters", QString(1000, 'W'), QString(255, 'W')}),
    [](const auto& test) { return test.param.description; });

TEST_F(NameSaving, KeepsANameOfSeveralLinesOnOne) {
  Open();
  SubmitAGame([](frmScores& scores) {
    BoxOf(scores).setText("Ann\r\n[High Scores]\nName 1=Eve");
    Press(scores, "cmdClose");
  });
  EXPECT_EQ(RowsFrom(KeptFile(ProgramFile("Scores.dat")).Values(), ScoreList::High)[0].name, "");
  EXPECT_TRUE(FirstName().startsWith("Ann"));
  EXPECT_EQ(LowScores()[0].moves, "20");
}
