#include <QDialog>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QVBoxLayout>
#include <gtest/gtest.h>

#include "ui/widgets/DialogFitting.h"

namespace {

constexpr QSize Content(500, 700);
constexpr QSize Room(400, 300);

// A large field above a button.
struct LargeDialog {
  LargeDialog() {
    auto* layout = new QVBoxLayout(&dialog);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    content.setMinimumSize(Content);
    layout->addWidget(&content);
    last.move(0, Content.height() - 20);
    layout->addWidget(&button);
  }

  QDialog dialog;
  QWidget content;
  QPushButton first{"first", &content};
  QPushButton last{"last", &content};
  QPushButton button{"OK"};
};

bool IsInSight(const QWidget& widget, const QWidget& window) {
  return !widget.visibleRegion().isEmpty() &&
         window.rect().contains(QRect(widget.mapTo(&window, QPoint()), widget.size()));
}

}  // namespace

TEST(DialogFitting, LeavesADialogAsItIsThatHasRoom) {
  LargeDialog large;
  FitDialog(large.dialog, {2000, 2000});
  EXPECT_EQ(large.dialog.findChild<QScrollArea*>(), nullptr);
}

TEST(DialogFitting, KeepsADialogInsideItsRoomWithTheButtonsInSight) {
  LargeDialog large;
  FitDialog(large.dialog, Room);
  large.dialog.show();
  EXPECT_EQ(large.dialog.size().boundedTo(Room), large.dialog.size());
  EXPECT_TRUE(IsInSight(large.button, large.dialog));
  EXPECT_FALSE(IsInSight(large.last, large.dialog));
}

TEST(DialogFitting, KeepsTheRowInSightThatHasTheButtons) {
  LargeDialog large;
  QPushButton below("below");
  large.dialog.layout()->addWidget(&below);
  KeepInSight(large.button);
  FitDialog(large.dialog, Room);
  large.dialog.show();
  EXPECT_TRUE(IsInSight(large.button, large.dialog));
}

TEST(DialogFitting, ShowsWhatTheKeyboardComesTo) {
  LargeDialog large;
  FitDialog(large.dialog, Room);
  large.dialog.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&large.dialog));
  large.last.setFocus();
  EXPECT_TRUE(IsInSight(large.last, large.dialog));
}

TEST(DialogFitting, NeedsNoBarAtTheSideForOneBelow) {
  LargeDialog large;
  FitDialog(large.dialog, {400, 2000});
  large.dialog.show();
  QCoreApplication::processEvents();
  EXPECT_LE(large.dialog.width(), 400);
  EXPECT_FALSE(large.dialog.findChild<QScrollArea*>()->verticalScrollBar()->isVisible());
}
