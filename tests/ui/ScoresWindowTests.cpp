#include <QAccessible>
#include <QFile>
#include <QLabel>
#include <QTest>

#include "tests/ui/EndgameDesk.h"

namespace {

class ScoresWindow : public EndgameDesk {
 protected:
  // Ten texts that begin with those given.
  QStringList Ten(const QStringList& first) const { return first + empty_.mid(first.size()); }

  const QStringList empty_ = QStringList(10, QString());
};

constexpr const char* TwoScores =
    "[High Scores]\r\nName 1=Ann\r\nMoves 1=64\r\nTime 1=421\r\n"
    "Name 2=Bob\r\nMoves 2=40\r\nTime 2=7321\r\n";

}  // namespace

TEST_F(ScoresWindow, ShowsTenEmptyRowsWithoutAFile) {
  Open();
  LookAtList("mnuViewHighScores", [this](frmScores& scores) {
    for (const char* column : {"lblNumbers", "lblNames", "lblMoves", "lblTimes"}) {
      EXPECT_EQ(Texts(scores, column), empty_) << column;
    }
    EXPECT_TRUE(Child<QLabel>(scores, "lblNoScoresYet").isVisible());
  });
}

TEST_F(ScoresWindow, IsNamedAfterItsList) {
  Open();
  LookAtList("mnuViewHighScores",
             [](frmScores& scores) { EXPECT_EQ(scores.windowTitle(), "High Scores"); });
  LookAtList("mnuViewLowScores",
             [](frmScores& scores) { EXPECT_EQ(scores.windowTitle(), "Low Scores"); });
}

TEST_F(ScoresWindow, HasTitlesOverItsColumns) {
  Open();
  LookAtList("mnuViewHighScores", [](frmScores& scores) {
    EXPECT_EQ(Child<QLabel>(scores, "lblNamesTitle").text(), "Names");
    EXPECT_EQ(Child<QLabel>(scores, "lblMovesTitle").text(), "Moves");
    EXPECT_EQ(Child<QLabel>(scores, "lblTimesTitle").text(), "Times");
    EXPECT_EQ(Child<QLabel>(scores, "lblNoScoresYet").text(), "No Scores Yet");
  });
}

TEST_F(ScoresWindow, ShowsTheScoresOfItsFile) {
  Open();
  WriteScores(TwoScores);
  LookAtList("mnuViewHighScores", [this](frmScores& scores) {
    EXPECT_EQ(Texts(scores, "lblNumbers"), Ten({" 1.", " 2."}));
    EXPECT_EQ(Texts(scores, "lblNames"), Ten({"Ann", "Bob"}));
    EXPECT_EQ(Texts(scores, "lblMoves"), Ten({"64", "40"}));
    EXPECT_EQ(Texts(scores, "lblTimes"), Ten({"0:03:30.5", "1:01:00.5"}));
    EXPECT_FALSE(Child<QLabel>(scores, "lblNoScoresYet").isVisible());
  });
}

TEST_F(ScoresWindow, KeepsTheListsApart) {
  Open();
  WriteScores(TwoScores);
  LookAtList("mnuViewLowScores",
             [this](frmScores& scores) { EXPECT_EQ(Texts(scores, "lblNames"), empty_); });
}

TEST_F(ScoresWindow, FindsTheTenthRow) {
  Open();
  WriteScores("[Low Scores]\r\nName 10=Last\r\n");
  LookAtList("mnuViewLowScores", [](frmScores& scores) {
    EXPECT_EQ(LabelAt(scores, "lblNames", 9).text(), "Last");
    EXPECT_EQ(LabelAt(scores, "lblNumbers", 9).text(), " 10.");
  });
}

TEST_F(ScoresWindow, LeavesAScoreWithoutANameUnnumbered) {
  Open();
  WriteScores("[High Scores]\r\nMoves 1=64\r\nTime 1=2\r\n");
  LookAtList("mnuViewHighScores", [this](frmScores& scores) {
    EXPECT_EQ(Texts(scores, "lblNumbers"), empty_);
    EXPECT_EQ(Texts(scores, "lblMoves"), Ten({"64"}));
    EXPECT_EQ(Texts(scores, "lblTimes"), Ten({"0:00:01.0"}));
    EXPECT_TRUE(Child<QLabel>(scores, "lblNoScoresYet").isVisible());
  });
}

TEST_F(ScoresWindow, FindsRowsInAnyOrderAndWithGaps) {
  Open();
  WriteScores("Name 1=Nowhere\n[high scores]\nTime 3=2\nNAME 3=Cid\nName 1=Ann\n");
  LookAtList("mnuViewHighScores", [this](frmScores& scores) {
    EXPECT_EQ(Texts(scores, "lblNames"), Ten({"Ann", "", "Cid"}));
    EXPECT_EQ(Texts(scores, "lblNumbers"), Ten({" 1.", "", " 3."}));
    EXPECT_EQ(Texts(scores, "lblMoves"), empty_);
    EXPECT_EQ(Texts(scores, "lblTimes"), Ten({"", "", "0:00:01.0"}));
  });
}

TEST_F(ScoresWindow, OpensOverAnEmptyFile) {
  Open();
  WriteScores("");
  LookAtList("mnuViewHighScores",
             [this](frmScores& scores) { EXPECT_EQ(Texts(scores, "lblNames"), empty_); });
}

TEST_F(ScoresWindow, OpensOverABinaryFile) {
  Open();
  QByteArray bytes;
  for (int i = 0; i < 100'000; ++i) bytes.append(static_cast<char>(i * 7919 / 13));
  WriteScores(bytes);
  LookAtList("mnuViewHighScores",
             [this](frmScores& scores) { EXPECT_EQ(Texts(scores, "lblNames"), empty_); });
}

TEST_F(ScoresWindow, OpensOverAFileOfAHundredMegabytes) {
  Open();
  QFile file(ProgramFile("Scores.dat"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  ASSERT_TRUE(file.resize(100'000'000));
  LookAtList("mnuViewHighScores",
             [this](frmScores& scores) { EXPECT_EQ(Texts(scores, "lblNames"), empty_); });
}

TEST_F(ScoresWindow, ShowsAbsurdNumbersAsTheyStand) {
  Open();
  WriteScores("[High Scores]\r\nName 1=A\r\nMoves 1=<i>many</i>\r\nTime 1=99999999999\r\n");
  LookAtList("mnuViewHighScores", [](frmScores& scores) {
    EXPECT_EQ(LabelAt(scores, "lblMoves", 0).text(), "<i>many</i>");
    EXPECT_EQ(LabelAt(scores, "lblTimes", 0).text(), "298261:37:03.5");
  });
}

TEST_F(ScoresWindow, ShowsNoNameAsMarkup) {
  Open();
  WriteScores("[High Scores]\r\nName 1=<h1>Ann</h1>\r\n");
  LookAtList("mnuViewHighScores", [](frmScores& scores) {
    EXPECT_EQ(LabelAt(scores, "lblNames", 0).text(), "<h1>Ann</h1>");
    EXPECT_EQ(LabelAt(scores, "lblNames", 0).textFormat(), Qt::PlainText);
  });
}

TEST_F(ScoresWindow, IsNoLargerForALongName) {
  Open();
  QSize usual;
  LookAtList("mnuViewHighScores", [&usual](frmScores& scores) { usual = scores.size(); });
  const QString name(255, 'W');
  WriteScores("[High Scores]\r\nName 1=" + name.toUtf8() + "\r\n");
  LookAtList("mnuViewHighScores", [&](frmScores& scores) {
    EXPECT_EQ(scores.size(), usual);
    QLabel& label = LabelAt(scores, "lblNames", 0);
    QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&label);
    EXPECT_EQ(accessible->text(QAccessible::Name), name);
  });
}

TEST_F(ScoresWindow, EndsALongNameInDotsBeforeTheMoves) {
  Open();
  WriteScores("[High Scores]\r\nName 1=" + QByteArray(255, 'W') + "\r\nMoves 1=64\r\n");
  LookAtList("mnuViewHighScores", [](frmScores& scores) {
    const QRect name = LabelAt(scores, "lblNames", 0).geometry();
    EXPECT_LT(name.right(), LabelAt(scores, "lblMoves", 0).geometry().left());
  });
}

TEST_F(ScoresWindow, AlignsNumbersAtTheirLastDigit) {
  Open();
  LookAtList("mnuViewHighScores", [](frmScores& scores) {
    for (const char* column : {"lblNumbers", "lblMoves", "lblTimes"}) {
      EXPECT_TRUE(LabelAt(scores, column, 0).alignment() & Qt::AlignRight) << column;
      EXPECT_EQ(LabelAt(scores, column, 0).geometry().right(),
                LabelAt(scores, column, 9).geometry().right());
    }
  });
}

TEST_F(ScoresWindow, OffersOnlyToCloseItFromTheMenu) {
  Open();
  LookAtList("mnuViewHighScores", [](frmScores& scores) {
    EXPECT_TRUE(Child<QPushButton>(scores, "cmdClose").isVisible());
    EXPECT_FALSE(Child<QPushButton>(scores, "cmdNewGame").isVisible());
    EXPECT_FALSE(Child<QPushButton>(scores, "cmdReplay").isVisible());
    EXPECT_FALSE(BoxOf(scores).isVisible());
  });
}

TEST_F(ScoresWindow, WritesNothingWhenItWasOnlyLookedAt) {
  Open();
  LookAtList("mnuViewHighScores", [](frmScores&) {});
  EXPECT_FALSE(QFile::exists(ProgramFile("Scores.dat")));
}

TEST_F(ScoresWindow, PaysNoHeedToClicksWhenItWasOnlyLookedAt) {
  Open();
  WriteScores(TwoScores);
  LookAtList("mnuViewHighScores", [](frmScores& scores) {
    QTest::mouseClick(&LabelAt(scores, "lblNames", 0), Qt::LeftButton);
    EXPECT_FALSE(BoxOf(scores).isVisible());
  });
}

TEST_F(ScoresWindow, LetsTheClockRestWhileItIsOpen) {
  Open();
  ClickSquare(2, 1);
  LookAtList("mnuViewLowScores", [this](frmScores&) { EXPECT_FALSE(Window().IsClockEnabled()); });
  EXPECT_TRUE(Window().IsClockEnabled());
}

TEST_F(ScoresWindow, ClosesOnEscape) {
  Open();
  WhenNextModalOpens([](QWidget& window) { QTest::keyClick(&window, Qt::Key_Escape); });
  Choose("mnuViewHighScores");
  EXPECT_TRUE(AllVisitsMade());
}

TEST_F(ScoresWindow, ClosesOnEnter) {
  Open();
  WhenNextModalOpens([](QWidget& window) {
    QTest::keyClick(window.focusWidget(), Qt::Key_Return);
    EXPECT_FALSE(window.isVisible());
    window.close();
  });
  Choose("mnuViewHighScores");
  EXPECT_TRUE(AllVisitsMade());
}

TEST_F(ScoresWindow, OpensWithoutItsPicture) {
  Open("[Settings]\r\nScores Image=nowhere.gif\r\n");
  LookAtList("mnuViewHighScores", [](frmScores& scores) { EXPECT_TRUE(scores.isVisible()); });
}
