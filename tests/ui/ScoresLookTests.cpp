#include <QApplication>
#include <QLabel>

#include "tests/ui/Contrast.h"
#include "tests/ui/EndgameDesk.h"

namespace {

// Large or bold letters are legible from this contrast on, small ones from the other.
constexpr double LargeText = 3.0;
constexpr double SmallText = 4.5;

QPalette Desktop(const QColor& base, const QColor& text) {
  QPalette palette = QApplication::palette();
  palette.setColor(QPalette::Base, base);
  palette.setColor(QPalette::Text, text);
  return palette;
}

class ScoresLook : public EndgameDesk {
 protected:
  ~ScoresLook() override { QApplication::setPalette(usual_); }

  // The ground of the table over a picture of one colour.
  QColor GroundOver(const QColor& picture) {
    QImage image(40, 30, QImage::Format_RGB32);
    image.fill(picture);
    image.save(ProgramFile("plain.png"));
    globals.settings.ScoresImage = "plain.png";
    frmScores scores(Window().Context(), &Window());
    QWidget* table = LabelAt(scores, "lblNames", 0).parentWidget();
    return scores.grab().toImage().pixelColor(table->mapTo(&scores, QPoint(6, 20)));
  }
  void ExpectLegibleOn(const QColor& base, const QColor& text) {
    QApplication::setPalette(Desktop(base, text));
    Open();
    for (const QColor& picture : {QColor(Qt::black), QColor(Qt::white)}) {
      const QColor ground = GroundOver(picture);
      EXPECT_GE(Contrast(text, ground), SmallText) << picture.name().toStdString();
      EXPECT_GE(Contrast(QColor(255, 0, 0), ground), LargeText) << picture.name().toStdString();
    }
  }

 private:
  const QPalette usual_ = QApplication::palette();
};

}  // namespace

TEST_F(ScoresLook, IsLegibleOnALightDesktopOverAnyPicture) {
  ExpectLegibleOn(QColor(255, 255, 255), QColor(0, 0, 0));
}

TEST_F(ScoresLook, IsLegibleOnADarkDesktopOverAnyPicture) {
  ExpectLegibleOn(QColor(30, 30, 30), QColor(235, 235, 235));
}

TEST_F(ScoresLook, ShowsTheNewRowInLargeBoldLetters) {
  Open();
  frmScores scores(Window().Context(), &Window());
  scores.LoadLow();
  scores.SendScore(5, 1, false);
  EXPECT_TRUE(LabelAt(scores, "lblMoves", 0).font().bold());
  EXPECT_FALSE(LabelAt(scores, "lblMoves", 1).font().bold());
}

TEST_F(ScoresLook, ShowsTheWholeNumberOfTheLastRowAlsoInBoldLetters) {
  Open();
  WriteScores("[Low Scores]\nName 10=Last\nMoves 10=1\nTime 10=0\n");
  const QFont usual = QApplication::font();
  for (const double scale : {1.0, 1.5, 2.0}) {
    QFont letters = usual;
    letters.setPointSizeF(usual.pointSizeF() * scale);
    QApplication::setFont(letters);
    frmScores scores(Window().Context(), &Window());
    scores.LoadLow();
    scores.grab();
    const QLabel& number = LabelAt(scores, "lblNumbers", 9);
    EXPECT_EQ(number.text(), " 10.");
    QFont bold = number.font();
    bold.setBold(true);
    EXPECT_GE(number.width(), QFontMetrics(bold).horizontalAdvance(number.text())) << scale;
  }
  QApplication::setFont(usual);
}

TEST_F(ScoresLook, GrowsWithTheLettersOfTheDesktop) {
  Open();
  const QFont usual = QApplication::font();
  const QSize small = frmScores(Window().Context(), &Window()).size();
  QFont large = usual;
  large.setPointSizeF(usual.pointSizeF() * 2);
  QApplication::setFont(large);
  const QSize grown = frmScores(Window().Context(), &Window()).size();
  QApplication::setFont(usual);
  EXPECT_GT(grown.width(), small.width());
  EXPECT_GT(grown.height(), small.height());
}
