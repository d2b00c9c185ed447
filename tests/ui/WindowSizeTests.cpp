// The size that the main window gives itself.

#include <QMenuBar>
#include <QTest>

#include "tests/ui/Desk.h"
#include "ui/board/BoardView.h"

namespace {

// 2800 twips.
constexpr int SmallestHeight = 187;

class WindowSize : public Desk {
 protected:
  QSize InnerSize() { return Window().Board().size(); }
  int MenuHeight() { return Window().menuBar()->height(); }
};

}  // namespace

TEST_F(WindowSize, MakesTheInnerAreaSquareAfterAResize) {
  Open();
  Window().resize(300, 500);
  EXPECT_TRUE(QTest::qWaitFor([this] { return InnerSize().width() == InnerSize().height(); }));
  EXPECT_EQ(Window().height(), 500);
  EXPECT_EQ(InnerSize().height(), 500 - MenuHeight());
}

TEST_F(WindowSize, SnapsBackToItsSmallestHeight) {
  Open();
  Window().resize(400, 100);
  EXPECT_TRUE(QTest::qWaitFor([this] { return Window().height() == SmallestHeight; }));
  EXPECT_TRUE(QTest::qWaitFor([this] { return InnerSize().width() == InnerSize().height(); }));
}

TEST_F(WindowSize, KeepsTheShapeOfAMaximisedWindow) {
  Open();
  const int before = Window().height();
  Window().showMaximized();
  ASSERT_TRUE(QTest::qWaitFor([this, before] { return Window().height() > before; }));
  EXPECT_NE(InnerSize().width(), InnerSize().height());
  const QRect last = Window().Board().SquareRectangle(SquareIndex(7, 7));
  EXPECT_LE(last.bottom(), InnerSize().height());
  EXPECT_GT(last.bottom(), InnerSize().height() * 9 / 10);
}

TEST_F(WindowSize, IsStoredWithoutItsStateWhenThePlayerExitsWhileItIsMinimised) {
  Open("[Settings]\r\nState=2\r\nLeft=1500\r\nTop=1200\r\nHeight=6000\r\n");
  Window().showNormal();
  Window().showMinimized();
  ASSERT_TRUE(Window().isMinimized());
  EXPECT_TRUE(Close());
  const QByteArray stored = Contents("GallopadeNova.ini");
  for (const char* line : {"State=2\r\n", "Left=1500\r\n", "Top=1200\r\n", "Height=6000\r\n"}) {
    EXPECT_TRUE(stored.contains(line)) << line << " in\n" << stored.toStdString();
  }
}
