#include <QTest>
#include <gtest/gtest.h>

#include "ui/widgets/ScrollBar.h"

namespace {

// What a key makes of a bar at 50, from 0 to 100 in small steps of 1 and large ones of 10.
int After(Qt::Key key, Qt::LayoutDirection direction = Qt::LeftToRight) {
  ScrollBar bar(nullptr);
  bar.setLayoutDirection(direction);
  bar.setRange(0, 100);
  bar.setSingleStep(1);
  bar.setPageStep(10);
  bar.setValue(50);
  QTest::keyClick(&bar, key);
  return bar.value();
}

}  // namespace

TEST(AScrollBar, FollowsTheArrows) {
  EXPECT_EQ(After(Qt::Key_Left), 49);
  EXPECT_EQ(After(Qt::Key_Right), 51);
  EXPECT_EQ(After(Qt::Key_Up), 49);
  EXPECT_EQ(After(Qt::Key_Down), 51);
}

TEST(AScrollBar, TakesLargeStepsByThePageKeys) {
  EXPECT_EQ(After(Qt::Key_PageUp), 40);
  EXPECT_EQ(After(Qt::Key_PageDown), 60);
}

TEST(AScrollBar, GoesToItsEnds) {
  EXPECT_EQ(After(Qt::Key_Home), 0);
  EXPECT_EQ(After(Qt::Key_End), 100);
}

TEST(AScrollBar, FollowsTheArrowsFromRightToLeft) {
  EXPECT_EQ(After(Qt::Key_Left, Qt::RightToLeft), 51);
  EXPECT_EQ(After(Qt::Key_Right, Qt::RightToLeft), 49);
}

TEST(AScrollBar, LeavesOtherKeysToItsWindow) {
  QWidget window;
  ScrollBar bar(&window);
  QKeyEvent tab(QEvent::KeyPress, Qt::Key_F9, Qt::NoModifier);
  QCoreApplication::sendEvent(&bar, &tab);
  EXPECT_FALSE(tab.isAccepted());
}
