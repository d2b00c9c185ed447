#include <QFile>
#include <QLabel>
#include <QProxyStyle>
#include <QTest>

#include "tests/ui/EndgameDesk.h"

namespace {

using NameEntry = EndgameDesk;

bool IsRed(const QLabel& label) {
  return label.palette().color(label.foregroundRole()) == QColor(255, 0, 0);
}

// A style as some desktops have it, with much room between the frame of a box and its text.
class WideBoxes : public QProxyStyle {
 public:
  QRect subElementRect(SubElement element, const QStyleOption* option,
                       const QWidget* widget) const override {
    const QRect rect = QProxyStyle::subElementRect(element, option, widget);
    return element == SE_LineEditContents ? rect.adjusted(Room, 0, -Room, 0) : rect;
  }

 private:
  static constexpr int Room = 15;
};

// Where the cursor is, once the box has been painted with it in sight.
int CursorPlace(NameBox& box) {
  box.grab();
  return box.inputMethodQuery(Qt::ImCursorRectangle).toRect().left();
}

constexpr const char* BetterAndWorse =
    "[Low Scores]\r\nName 1=Ann\r\nMoves 1=5\r\nTime 1=1\r\n"
    "Name 2=Bob\r\nMoves 2=30\r\nTime 2=1\r\n";

QByteArray TenBetterGames() {
  QByteArray text = "[Low Scores]\r\n";
  for (int rank = 1; rank <= 10; ++rank) {
    const QByteArray number = QByteArray::number(rank);
    text += "Name " + number + "=N\r\nMoves " + number + "=5\r\nTime " + number + "=1\r\n";
  }
  return text;
}

}  // namespace

TEST_F(NameEntry, OpensOverTheNewRow) {
  Open();
  WriteScores(BetterAndWorse);
  SubmitAGame([](frmScores& scores) {
    EXPECT_EQ(Texts(scores, "lblMoves").mid(0, 3), QStringList({"5", "20", "30"}));
    const NameBox& box = BoxOf(scores);
    EXPECT_TRUE(box.isVisible());
    EXPECT_EQ(box.text(), "Enter Your Name");
    EXPECT_EQ(box.selectedText(), "Enter Your Name");
    EXPECT_TRUE(box.geometry().contains(LabelAt(scores, "lblNames", 1).geometry().topLeft()));
    Press(scores, "cmdClose");
  });
}

TEST_F(NameEntry, HasTheKeyboard) {
  Open();
  SubmitAGame([](frmScores& scores) {
    EXPECT_EQ(scores.focusWidget(), &BoxOf(scores));
    Press(scores, "cmdClose");
  });
}

TEST_F(NameEntry, ShowsTheNewRowInRed) {
  Open();
  WriteScores(BetterAndWorse);
  SubmitAGame([](frmScores& scores) {
    for (const char* column : {"lblNumbers", "lblNames", "lblMoves", "lblTimes"}) {
      EXPECT_FALSE(IsRed(LabelAt(scores, column, 0))) << column;
      EXPECT_TRUE(IsRed(LabelAt(scores, column, 1))) << column;
      EXPECT_FALSE(IsRed(LabelAt(scores, column, 2))) << column;
    }
    Press(scores, "cmdClose");
  });
}

TEST_F(NameEntry, NumbersEveryRowThatHasMoves) {
  Open();
  WriteScores("[Low Scores]\r\nMoves 1=5\r\nTime 1=1\r\n");
  SubmitAGame([](frmScores& scores) {
    EXPECT_EQ(Texts(scores, "lblNumbers").mid(0, 3), QStringList({" 1.", " 2.", ""}));
    Press(scores, "cmdClose");
  });
}

TEST_F(NameEntry, LeavesNoDoubtThatThereAreScores) {
  Open();
  SubmitAGame([](frmScores& scores) {
    EXPECT_FALSE(Child<QLabel>(scores, "lblNoScoresYet").isVisible());
    Press(scores, "cmdClose");
  });
}

TEST_F(NameEntry, OffersTheThreeWaysOn) {
  Open();
  SubmitAGame([](frmScores& scores) {
    EXPECT_TRUE(Child<QPushButton>(scores, "cmdNewGame").isVisible());
    EXPECT_TRUE(Child<QPushButton>(scores, "cmdReplay").isVisible());
    Press(scores, "cmdClose");
  });
}

TEST_F(NameEntry, IsNotOfferedToAGameThatDoesNotRank) {
  Open();
  const QByteArray before = TenBetterGames();
  WriteScores(before);
  SubmitAGame([](frmScores& scores) {
    EXPECT_FALSE(BoxOf(scores).isVisible());
    EXPECT_TRUE(Child<QPushButton>(scores, "cmdNewGame").isVisible());
    EXPECT_TRUE(Child<QPushButton>(scores, "cmdReplay").isVisible());
    Press(scores, "cmdClose");
  });
  EXPECT_EQ(Contents("Scores.dat"), before);
}

TEST_F(NameEntry, CopiesEachChangeToTheRow) {
  Open();
  SubmitAGame([](frmScores& scores) {
    QTest::keyClicks(&BoxOf(scores), "Zo");
    EXPECT_EQ(LabelAt(scores, "lblNames", 0).text(), "Zo");
    QTest::keyClick(&BoxOf(scores), Qt::Key_Backspace);
    EXPECT_EQ(LabelAt(scores, "lblNames", 0).text(), "Z");
    Press(scores, "cmdClose");
  });
}

TEST_F(NameEntry, IsAsWideAsItsText) {
  Open();
  SubmitAGame([](frmScores& scores) {
    TypeName(scores, "Ann");
    const int narrow = BoxOf(scores).width();
    TypeName(scores, "Annabella");
    EXPECT_GT(BoxOf(scores).width(), narrow);
    Press(scores, "cmdClose");
  });
}

TEST_F(NameEntry, ShowsAllOfItsTextWhereTheStyleLeavesMuchFree) {
  Open();
  WideBoxes wide;
  SubmitAGame([&wide](frmScores& scores) {
    NameBox& box = BoxOf(scores);
    box.setStyle(&wide);
    TypeName(scores, "Annabella");
    const int right = CursorPlace(box);
    box.home(false);
    EXPECT_GE(right - CursorPlace(box), box.fontMetrics().horizontalAdvance("Annabella"));
    Press(scores, "cmdClose");
  });
}

TEST_F(NameEntry, NeverCoversTheMoves) {
  Open();
  SubmitAGame([](frmScores& scores) {
    BoxOf(scores).setText(QString(1000, 'W'));
    EXPECT_LT(BoxOf(scores).geometry().right(), LabelAt(scores, "lblMoves", 0).geometry().left());
    Press(scores, "cmdClose");
  });
}

TEST_F(NameEntry, EndsWithEnter) {
  Open();
  SubmitAGame([](frmScores& scores) {
    TypeName(scores, "Ann");
    QTest::keyClick(&BoxOf(scores), Qt::Key_Return);
    EXPECT_FALSE(BoxOf(scores).isVisible());
    EXPECT_TRUE(scores.isVisible());
    EXPECT_EQ(LabelAt(scores, "lblNames", 0).text(), "Ann");
    Press(scores, "cmdClose");
  });
}

TEST_F(NameEntry, LeavesTheKeyboardOnClose) {
  Open();
  SubmitAGame([](frmScores& scores) {
    TypeName(scores, "Ann");
    QTest::keyClick(&BoxOf(scores), Qt::Key_Return);
    EXPECT_EQ(scores.focusWidget()->objectName(), "cmdClose");
    Press(scores, "cmdClose");
  });
}

TEST_F(NameEntry, RefusesTheTextItBeganWith) {
  Open();
  SubmitAGame([this](frmScores& scores) {
    ExpectNameIsMissing();
    QTest::keyClick(&BoxOf(scores), Qt::Key_Return);
    EXPECT_TRUE(AllVisitsMade());
    EXPECT_TRUE(BoxOf(scores).isVisible());
    EXPECT_EQ(scores.focusWidget(), &BoxOf(scores));
    EXPECT_EQ(BoxOf(scores).selectedText(), "Enter Your Name");
    Press(scores, "cmdClose");
  });
}

TEST_F(NameEntry, RefusesAnEmptyText) {
  Open();
  SubmitAGame([this](frmScores& scores) {
    BoxOf(scores).clear();
    ExpectNameIsMissing();
    QTest::keyClick(&BoxOf(scores), Qt::Key_Enter);
    EXPECT_TRUE(AllVisitsMade());
    EXPECT_TRUE(BoxOf(scores).isVisible());
    Press(scores, "cmdClose");
  });
}

TEST_F(NameEntry, RefusesBlanks) {
  Open();
  SubmitAGame([this](frmScores& scores) {
    TypeName(scores, "   ");
    ExpectNameIsMissing();
    QTest::keyClick(&BoxOf(scores), Qt::Key_Return);
    EXPECT_TRUE(AllVisitsMade());
    TypeName(scores, "Ann");
    Press(scores, "cmdClose");
  });
}

TEST_F(NameEntry, ComesBackWhenItsRowIsClicked) {
  Open();
  SubmitAGame([](frmScores& scores) {
    TypeName(scores, "Ann");
    QTest::keyClick(&BoxOf(scores), Qt::Key_Return);
    QTest::mouseClick(&LabelAt(scores, "lblTimes", 0), Qt::LeftButton);
    EXPECT_TRUE(BoxOf(scores).isVisible());
    EXPECT_EQ(scores.focusWidget(), &BoxOf(scores));
    EXPECT_EQ(BoxOf(scores).selectedText(), "Ann");
    Press(scores, "cmdClose");
  });
}

TEST_F(NameEntry, EndsWithAClickBesideIt) {
  Open();
  SubmitAGame([](frmScores& scores) {
    for (QWidget* beside :
         {&Child<QWidget>(scores, "lblNamesTitle"), &Child<QWidget>(scores, "lblMovesTitle"),
          &Child<QWidget>(scores, "lblTimesTitle"), &Child<QWidget>(scores, "picBackground"),
          static_cast<QWidget*>(&LabelAt(scores, "lblNumbers", 5)),
          static_cast<QWidget*>(&LabelAt(scores, "lblNames", 5))}) {
      TypeName(scores, "Ann");
      QTest::mouseClick(beside, Qt::LeftButton, Qt::NoModifier, QPoint(3, 3));
      EXPECT_FALSE(BoxOf(scores).isVisible()) << beside->objectName().toStdString();
      QTest::mouseClick(&LabelAt(scores, "lblMoves", 0), Qt::LeftButton);
      EXPECT_TRUE(BoxOf(scores).isVisible());
    }
    Press(scores, "cmdClose");
  });
}

TEST_F(NameEntry, IsNotLeftByAClickWithoutAName) {
  Open();
  SubmitAGame([this](frmScores& scores) {
    ExpectNameIsMissing();
    QTest::mouseClick(&LabelAt(scores, "lblNames", 5), Qt::LeftButton);
    EXPECT_TRUE(AllVisitsMade());
    EXPECT_TRUE(BoxOf(scores).isVisible());
    Press(scores, "cmdClose");
  });
}

TEST_F(NameEntry, IsSelectedWhenTheKeyboardComesBackToIt) {
  Open();
  SubmitAGame([](frmScores& scores) {
    TypeName(scores, "Ann");
    ASSERT_TRUE(QTest::qWaitForWindowActive(&scores));
    Child<QPushButton>(scores, "cmdClose").setFocus(Qt::TabFocusReason);
    BoxOf(scores).deselect();
    BoxOf(scores).setFocus(Qt::BacktabFocusReason);
    EXPECT_EQ(BoxOf(scores).selectedText(), "Ann");
    Press(scores, "cmdClose");
  });
}

TEST_F(NameEntry, IsSelectedWhenItIsClickedFromElsewhere) {
  Open();
  SubmitAGame([](frmScores& scores) {
    TypeName(scores, "Ann");
    ASSERT_TRUE(QTest::qWaitForWindowActive(&scores));
    Child<QPushButton>(scores, "cmdClose").setFocus(Qt::TabFocusReason);
    QTest::mouseClick(&BoxOf(scores), Qt::LeftButton);
    QCoreApplication::processEvents();
    EXPECT_EQ(BoxOf(scores).selectedText(), "Ann");
    Press(scores, "cmdClose");
  });
}

TEST_F(NameEntry, LosesTheRedOfAnEarlierGame) {
  Open();
  SubmitAGame([](frmScores& scores) {
    scores.SendScore(10, 1, false);
    EXPECT_TRUE(IsRed(LabelAt(scores, "lblMoves", 0)));
    EXPECT_FALSE(IsRed(LabelAt(scores, "lblMoves", 1)));
    EXPECT_EQ(BoxOf(scores).text(), "Enter Your Name");
    Press(scores, "cmdClose");
  });
}
