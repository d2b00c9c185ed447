#include <QAccessible>
#include <QGroupBox>
#include <QTest>
#include <gtest/gtest.h>

#include "tests/ui/Displays.h"
#include "ui/widgets/ValueLabel.h"

namespace {

QString Nothing(std::int64_t) {
  return {};
}

// A value in a frame, as it stands in a window.
struct Framed {
  Framed() {
    value.move(10, 30);
    frame.resize(200, 80);
    frame.show();
  }
  // Whether a pixel of this colour is in the picture of the label.
  bool Shows(const QColor& color) {
    const QImage image = frame.grab(value.geometry()).toImage();
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        if (image.pixelColor(x, y) == color) return true;
      }
    }
    return false;
  }

  PicturePace pace{AlwaysReady()};
  QGroupBox frame;
  ValueLabel value{pace, "88888888", &frame};
};

QImage Picture(QWidget& widget) {
  return widget.grab().toImage();
}

}  // namespace

TEST(ValueLabelTest, KeepsTheSizeOfItsLongestText) {
  Framed framed;
  const QSize size = framed.value.size();
  framed.value.ShowValue(1);
  EXPECT_EQ(framed.value.size(), size);
  EXPECT_EQ(framed.value.minimumSize(), framed.value.maximumSize());
}

TEST(ValueLabelTest, StandsOnTheRight) {
  Framed framed;
  framed.value.ShowValue(0, Nothing);
  const QImage empty = Picture(framed.frame);
  framed.value.ShowValue(8);
  const QImage full = Picture(framed.frame);
  const QRect box = framed.value.geometry();
  const QRect left(box.topLeft(), QSize(box.width() / 2, box.height()));
  EXPECT_EQ(full.copy(left), empty.copy(left));
  EXPECT_NE(full, empty);
}

TEST(ValueLabelTest, ShowsItsParentBehindTheText) {
  Framed framed;
  framed.value.ShowValue(0, Nothing);
  const QImage covered = Picture(framed.frame);
  framed.value.hide();
  EXPECT_EQ(Picture(framed.frame), covered);
}

TEST(ValueLabelTest, FollowsTheColoursOfTheDesktop) {
  Framed framed;
  EXPECT_FALSE(framed.Shows(Qt::red));
  QPalette palette = framed.frame.palette();
  palette.setColor(QPalette::WindowText, Qt::red);
  framed.frame.setPalette(palette);
  EXPECT_TRUE(framed.Shows(Qt::red));
}

TEST(ValueLabelTest, HasTheColoursOfAnInactiveWindowOnlyWhileItIsOne) {
  Framed framed;
  QPalette palette = framed.frame.palette();
  palette.setColor(QPalette::Active, QPalette::WindowText, Qt::red);
  palette.setColor(QPalette::Inactive, QPalette::WindowText, Qt::blue);
  framed.frame.setPalette(palette);
  framed.frame.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&framed.frame));
  EXPECT_TRUE(framed.Shows(Qt::red));
  QWidget other;
  other.show();
  other.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  EXPECT_TRUE(framed.Shows(Qt::blue));
  framed.frame.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&framed.frame));
  EXPECT_TRUE(framed.Shows(Qt::red));
}

TEST(ValueLabelTest, LeavesNoTraceOfItsLastValue) {
  Framed framed;
  framed.value.ShowValue(1234);
  const QImage first = Picture(framed.frame);
  framed.value.ShowValue(567);
  Picture(framed.frame);
  framed.value.ShowValue(1234);
  EXPECT_EQ(Picture(framed.frame), first);
}

TEST(ValueLabelTest, TellsItsValueToAScreenReader) {
  Framed framed;
  framed.value.ShowValue(4711);
  QAccessibleInterface* label = QAccessible::queryAccessibleInterface(&framed.value);
  EXPECT_EQ(label->role(), QAccessible::StaticText);
  EXPECT_EQ(label->text(QAccessible::Name), "4711");
}

TEST(ValueLabelTest, TellsAScreenReaderTheNewValueWhenItAsks) {
  Framed framed;
  QAccessibleInterface* label = QAccessible::queryAccessibleInterface(&framed.value);
  framed.value.ShowValue(1);
  framed.value.ShowValue(2);
  EXPECT_EQ(label->text(QAccessible::Name), "2");
}
