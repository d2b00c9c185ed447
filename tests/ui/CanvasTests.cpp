#include <set>

#include <QGuiApplication>
#include <QScreen>
#include <gtest/gtest.h>

#include "ui/windows/animations/Canvas.h"

namespace {

QColor ColorAt(const Canvas& view, int x, int y) {
  return view.Picture().toImage().pixelColor(x, y);
}

}  // namespace

TEST(CanvasTests, MeasuresInTwips) {
  Canvas view(nullptr);
  view.resize(100, 60);
  EXPECT_EQ(view.ScaleWidth(), 1500);
  EXPECT_EQ(view.ScaleHeight(), 900);
}

TEST(CanvasTests, SetsAPointWhereItIsTold) {
  Canvas view(nullptr);
  view.resize(20, 20);
  view.Clear(Qt::black);
  view.SetPoint(QPointF(150, 75), Qt::red);
  EXPECT_EQ(ColorAt(view, 10, 5), QColor(Qt::red));
  EXPECT_EQ(ColorAt(view, 11, 5), QColor(Qt::black));
}

TEST(CanvasTests, ForgetsPointsOutsideTheView) {
  Canvas view(nullptr);
  view.resize(20, 20);
  view.Clear(Qt::black);
  view.SetPoint(QPointF(-400, -200), Qt::red);
  view.SetPoint(QPointF(4000, 4000), Qt::red);
  EXPECT_EQ(ColorAt(view, 0, 0), QColor(Qt::black));
}

TEST(CanvasTests, PrintsBelowAndToTheRightOfThePoint) {
  Canvas view(nullptr);
  view.resize(100, 100);
  view.Clear(Qt::black);
  view.SetPoint(QPointF(600, 600), Qt::black);
  view.Print("M", CanvasFont(20, true, false), Qt::white);
  const QImage picture = view.Picture().toImage();
  int lit = 0;
  for (int y = 0; y < 100; ++y) {
    for (int x = 0; x < 100; ++x) {
      if (picture.pixelColor(x, y) == QColor(Qt::black)) continue;
      ++lit;
      EXPECT_GE(x, 39);
      EXPECT_GE(y, 39);
    }
  }
  EXPECT_GT(lit, 0);
}

TEST(CanvasTests, ChoosesPlacesALittleBeyondTheLeftAndTheUpperEdge) {
  Canvas view(nullptr);
  view.resize(100, 100);
  Random random;
  bool left = false;
  bool above = false;
  for (int i = 0; i < 10'000; ++i) {
    const QPointF place = view.RandomPlace(random);
    EXPECT_GE(place.x(), -400);
    EXPECT_LT(place.x(), 1500);
    EXPECT_GE(place.y(), -200);
    EXPECT_LT(place.y(), 1500);
    left = left || place.x() < 0;
    above = above || place.y() < 0;
  }
  EXPECT_TRUE(left);
  EXPECT_TRUE(above);
}

TEST(CanvasTests, KnowsSevenPaletteColours) {
  Random random;
  std::set<QRgb> colors;
  for (int i = 0; i < 1000; ++i) colors.insert(RandomPaletteColor(random).rgb());
  EXPECT_EQ(colors.size(), 7U);
}

TEST(CanvasTests, HasManyColoursOnTodaysScreens) {
  EXPECT_TRUE(HasManyColors(*QGuiApplication::primaryScreen()));
}
