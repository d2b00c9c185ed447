#include <QApplication>
#include <QLabel>
#include <QScreen>
#include <QTest>

#include "tests/ui/EndgameDesk.h"
#include "ui/windows/frmGameOver.h"

namespace {

class GameOver : public EndgameDesk {
 protected:
  GameOverReport report{"&Submit to Scores", "There are no more valid moves.", 20, 5};
};

}  // namespace

TEST_F(GameOver, SaysHowTheGameEnded) {
  Open();
  frmGameOver over(report, &Window());
  EXPECT_EQ(over.windowTitle(), "Game Over...");
  EXPECT_EQ(Child<QLabel>(over, "lblMessage").text(), "There are no more valid moves.");
  EXPECT_EQ(Child<QPushButton>(over, "cmdScoresReplay").text(), "&Submit to Scores");
  EXPECT_EQ(Child<QPushButton>(over, "cmdUndo").text(), "&Undo Last Move");
  EXPECT_FALSE(Child<QLabel>(over, "imgIcon").pixmap().isNull());
}

TEST_F(GameOver, ShowsItsWholeMessageInLettersTooLargeForOneLine) {
  Open();
  report.message = "Congratulations, you have mastered Gallopade Nova.";
  const QFont usual = QApplication::font();
  QFont large = usual;
  large.setPointSize(28);
  QApplication::setFont(large);
  frmGameOver over(report, &Window());
  over.show();
  QApplication::setFont(usual);
  const auto& lblMessage = Child<QLabel>(over, "lblMessage");
  EXPECT_LE(over.width(), over.screen()->availableSize().width());
  EXPECT_GE(lblMessage.height(), lblMessage.heightForWidth(lblMessage.width()));
  EXPECT_FALSE(lblMessage.visibleRegion().isEmpty());
  EXPECT_EQ(lblMessage.visibleRegion().boundingRect(), lblMessage.rect());
}

TEST_F(GameOver, OffersTheReplayInstead) {
  Open();
  report.buttonCaption = "View &Replay";
  frmGameOver over(report, &Window());
  EXPECT_EQ(Child<QPushButton>(over, "cmdScoresReplay").text(), "View &Replay");
}

TEST_F(GameOver, AnswersWithTheButtonThatWasPressed) {
  Open();
  frmGameOver submitted(report, &Window());
  Press(submitted, "cmdScoresReplay");
  EXPECT_EQ(submitted.Answer(), GameOverAnswer::MainButton);
  frmGameOver undone(report, &Window());
  Press(undone, "cmdUndo");
  EXPECT_EQ(undone.Answer(), GameOverAnswer::Undo);
}

TEST_F(GameOver, TakesItsMainButtonForEnter) {
  Open();
  frmGameOver over(report, &Window());
  over.show();
  QTest::keyClick(&over, Qt::Key_Return);
  EXPECT_FALSE(over.isVisible());
  EXPECT_EQ(over.Answer(), GameOverAnswer::MainButton);
}

TEST_F(GameOver, CountsEscapeAndTheCloseBoxAsItsMainButton) {
  Open();
  frmGameOver escaped(report, &Window());
  escaped.show();
  QTest::keyClick(&escaped, Qt::Key_Escape);
  EXPECT_FALSE(escaped.isVisible());
  EXPECT_EQ(escaped.Answer(), GameOverAnswer::MainButton);
  frmGameOver closed(report, &Window());
  closed.show();
  closed.close();
  EXPECT_EQ(closed.Answer(), GameOverAnswer::MainButton);
}
