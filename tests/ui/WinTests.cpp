#include <QTest>
#include <QTimer>

#include "tests/ui/EndgameDesk.h"
#include "ui/windows/animations/Canvas.h"
#include "ui/windows/animations/frmWin.h"

namespace {

class Win : public EndgameDesk {
 protected:
  // The picture of a firework that has just opened.
  QImage Opened(bool manyColors) {
    Open();
    frmWin win(manyColors, &Window());
    return PictureOf(win).toImage();
  }
  static const QPixmap& PictureOf(frmWin& win) {
    return dynamic_cast<Canvas&>(Child<QWidget>(win, "picWin")).Picture();
  }
  static const QTimer& DrawTimer(frmWin& win) { return Child<QTimer>(win, "tmrDraw"); }
};

int CountOf(const QColor& color, const QImage& picture) {
  int count = 0;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) count += picture.pixelColor(x, y) == color ? 1 : 0;
  }
  return count;
}

int AreaOf(const QImage& picture) {
  return picture.width() * picture.height();
}

}  // namespace

TEST_F(Win, SaysSoInItsCaption) {
  Open();
  const frmWin win(true, &Window());
  EXPECT_EQ(win.windowTitle(), "You Win!");
}

TEST_F(Win, OpensFullOfColours) {
  const QImage picture = Opened(true);
  EXPECT_LT(CountOf(Qt::black, picture), AreaOf(picture) / 4);
}

TEST_F(Win, HasAYellowTitleAmongManyColours) {
  const QImage picture = Opened(true);
  EXPECT_GT(CountOf(Qt::yellow, picture), AreaOf(picture) / 20);
}

TEST_F(Win, HasABlueTitleAmongFewColours) {
  const QImage picture = Opened(false);
  EXPECT_GT(CountOf(Qt::blue, picture), AreaOf(picture) / 20);
}

TEST_F(Win, UsesAllSevenColoursOfAPalette) {
  const QImage picture = Opened(false);
  for (const QColor& color :
       {QColor(0, 255, 0), QColor(0, 255, 255), QColor(255, 255, 0), QColor(255, 255, 255),
        QColor(255, 0, 255), QColor(192, 192, 192), QColor(255, 0, 0)}) {
    EXPECT_GT(CountOf(color, picture), AreaOf(picture) / 100) << color.name().toStdString();
  }
}

TEST_F(Win, KeepsItsTitleOnTop) {
  Open();
  frmWin win(true, &Window());
  const int before = CountOf(Qt::yellow, PictureOf(win).toImage());
  for (int pass = 0; pass < 200; ++pass) win.tmrDraw_Timer();
  EXPECT_GE(CountOf(Qt::yellow, PictureOf(win).toImage()), before * 9 / 10);
}

TEST_F(Win, ShowsItsTitleWhole) {
  Open();
  frmWin win(true, &Window());
  const QImage picture = PictureOf(win).toImage();
  const QImage edge = picture.copy(picture.width() - 4, 0, 4, picture.height());
  EXPECT_EQ(CountOf(Qt::yellow, edge), 0);
}

TEST_F(Win, GoesOnDrawingWhileItIsSeen) {
  Open();
  frmWin win(true, &Window());
  win.show();
  EXPECT_TRUE(DrawTimer(win).isActive());
  const qint64 before = PictureOf(win).cacheKey();
  EXPECT_TRUE(QTest::qWaitFor([&] { return PictureOf(win).cacheKey() != before; }));
}

TEST_F(Win, RestsWhileItIsHidden) {
  Open();
  frmWin win(true, &Window());
  win.show();
  win.hide();
  EXPECT_FALSE(DrawTimer(win).isActive());
  win.show();
  EXPECT_TRUE(DrawTimer(win).isActive());
}

TEST_F(Win, EndsWithOK) {
  Open();
  frmWin win(true, &Window());
  win.show();
  Press(win, "cmdOK");
  EXPECT_FALSE(win.isVisible());
  EXPECT_FALSE(DrawTimer(win).isActive());
}

TEST_F(Win, EndsWithEnterAndEscape) {
  Open();
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
    frmWin win(true, &Window());
    win.show();
    QTest::keyClick(&win, key);
    EXPECT_FALSE(win.isVisible());
    EXPECT_FALSE(DrawTimer(win).isActive());
  }
}

TEST_F(Win, EndsWithItsCloseBox) {
  Open();
  frmWin win(true, &Window());
  win.show();
  win.close();
  EXPECT_FALSE(DrawTimer(win).isActive());
}
