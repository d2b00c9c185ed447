#include <QDialog>
#include <QGuiApplication>
#include <QMainWindow>
#include <QScreen>
#include <gtest/gtest.h>

#include "ui/widgets/WindowPlacing.h"

namespace {

constexpr QRect Screen(0, 0, 1000, 800);
constexpr QSize Dialog(200, 300);

QRect BoundsOfDialog(const PairPosition& pair) {
  return {pair.dialog, Dialog};
}

}  // namespace

TEST(OnTheMainWindow, ADialogLiesInTheMiddle) {
  EXPECT_EQ(CentredPosition(Dialog, {100, 50, 640, 660}, Screen), QPoint(320, 230));
}

TEST(OnTheMainWindow, ADialogStaysAboveTheScreensBottomAndLeftOfItsRightEdge) {
  EXPECT_EQ(CentredPosition(Dialog, {700, 500, 640, 660}, Screen), QPoint(800, 500));
}

TEST(OnTheMainWindow, ADialogNeverBeginsLeftOfTheDesktopOrAboveIt) {
  EXPECT_EQ(CentredPosition(Dialog, {-500, -600, 640, 660}, Screen), QPoint(0, 0));
  EXPECT_EQ(CentredPosition({1200, 900}, {100, 50, 640, 660}, Screen), QPoint(0, 0));
}

TEST(OnTheMainWindow, TheFrameOfADialogCounts) {
  QMainWindow mainWindow;
  mainWindow.setGeometry(100, 20, 640, 660);
  mainWindow.show();
  ASSERT_NE(mainWindow.frameGeometry(), mainWindow.geometry());
  QDialog dialog;
  dialog.setFixedSize(Dialog);
  PlaceDialog(dialog, mainWindow);
  dialog.show();
  EXPECT_EQ(dialog.geometry().center(), mainWindow.geometry().center());
}

TEST(BesideTheMainWindow, IsToTheRightWhereThereIsRoom) {
  const QRect mainWindow(100, 50, 640, 660);
  const PairPosition pair = PositionsSideBySide(Dialog, mainWindow, Screen);
  EXPECT_EQ(pair.mainWindow, mainWindow.topLeft());
  EXPECT_GT(pair.dialog.x(), mainWindow.right());
  EXPECT_EQ(pair.dialog.y(), mainWindow.top());
}

TEST(BesideTheMainWindow, IsToTheLeftWhereOnlyTheLeftHasRoom) {
  const QRect mainWindow(350, 50, 640, 660);
  const PairPosition pair = PositionsSideBySide(Dialog, mainWindow, Screen);
  EXPECT_EQ(pair.mainWindow, mainWindow.topLeft());
  EXPECT_LT(pair.dialog.x() + Dialog.width(), mainWindow.left() + 1);
}

TEST(BesideTheMainWindow, MovesTheMainWindowToTheLeftForWantOfRoom) {
  const PairPosition pair = PositionsSideBySide(Dialog, {160, 50, 640, 660}, Screen);
  EXPECT_EQ(BoundsOfDialog(pair).right(), Screen.right());
  EXPECT_LT(pair.mainWindow.x(), 160);
  EXPECT_GT(pair.dialog.x(), pair.mainWindow.x() + 640);
}

TEST(BesideTheMainWindow, MovesTheMainWindowToTheRightForWantOfRoom) {
  const PairPosition pair = PositionsSideBySide(Dialog, {190, 50, 640, 660}, Screen);
  EXPECT_EQ(pair.dialog.x(), 0);
  EXPECT_GT(pair.mainWindow.x(), 190);
  EXPECT_LE(pair.mainWindow.x() + 640, Screen.right() + 1);
}

TEST(BesideTheMainWindow, OverlapsItOnAScreenTooNarrowForBoth) {
  const QRect screen(0, 0, 800, 800);
  const PairPosition pair = PositionsSideBySide(Dialog, {80, 50, 640, 660}, screen);
  EXPECT_EQ(pair.mainWindow.x(), 0);
  EXPECT_EQ(BoundsOfDialog(pair).right(), screen.right());
}

TEST(BesideTheMainWindow, BringsAMainWindowBackThatHangsOverTheScreensEdge) {
  const PairPosition pair = PositionsSideBySide(Dialog, {-100, 400, 640, 660}, Screen);
  EXPECT_EQ(pair.mainWindow, QPoint(0, 140));
}

TEST(BesideTheMainWindow, StaysOnASecondScreen) {
  const QRect second(1000, -200, 1000, 800);
  const PairPosition pair = PositionsSideBySide(Dialog, {1300, -100, 640, 660}, second);
  EXPECT_TRUE(second.contains(BoundsOfDialog(pair)));
  EXPECT_TRUE(second.contains(QRect(pair.mainWindow, QSize(640, 660))));
}

TEST(BesideTheMainWindow, KeepsTheTitleBarOfADialogTallerThanTheScreen) {
  const PairPosition pair = PositionsSideBySide({200, 900}, {100, 50, 640, 660}, Screen);
  EXPECT_EQ(pair.dialog.y(), 0);
}

TEST(BesideTheMainWindow, TellsWhereAMainWindowWasThatHadToMove) {
  QMainWindow mainWindow;
  mainWindow.setGeometry(100, 20, 640, 660);
  QDialog dialog;
  dialog.setFixedSize(Dialog);
  EXPECT_EQ(PlaceBeside(dialog, mainWindow, mainWindow), QPoint(100, 20));
  EXPECT_NE(mainWindow.pos(), QPoint(100, 20));
}

TEST(BesideTheMainWindow, LeavesAMaximisedMainWindowWhereItIs) {
  QMainWindow mainWindow;
  mainWindow.showMaximized();
  QDialog dialog;
  dialog.setFixedSize(Dialog);
  EXPECT_EQ(PlaceBeside(dialog, mainWindow, mainWindow), std::nullopt);
  EXPECT_TRUE(mainWindow.isMaximized());
}

TEST(BesideTheMainWindow, IsBesideTheBoardOfAMaximisedOne) {
  QMainWindow mainWindow;
  QWidget board(&mainWindow);
  mainWindow.showMaximized();
  board.setGeometry(0, 20, 700, 400);
  board.show();
  QDialog dialog;
  dialog.setFixedSize(Dialog);
  PlaceBeside(dialog, mainWindow, board);
  EXPECT_GE(dialog.pos().x(), board.mapToGlobal(QPoint(400, 0)).x());
  EXPECT_LT(dialog.pos().x(), board.mapToGlobal(QPoint(420, 0)).x());
  EXPECT_EQ(dialog.pos().y(), board.mapToGlobal(QPoint(0, 0)).y());
}

TEST(BesideTheMainWindow, LeavesAMainWindowWhereItIsWithRoomForBoth) {
  QMainWindow mainWindow;
  mainWindow.setGeometry(10, 20, 400, 420);
  QDialog dialog;
  dialog.setFixedSize(Dialog);
  EXPECT_EQ(PlaceBeside(dialog, mainWindow, mainWindow), std::nullopt);
  EXPECT_EQ(mainWindow.pos(), QPoint(10, 20));
}

TEST(AStoredPlace, WithItsTitleBarInReachIsKept) {
  const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
  const QRect overTheRightEdge(screen.right() - 100, screen.top() + 10, 400, 400);
  EXPECT_EQ(BroughtWithinReach(overTheRightEdge), overTheRightEdge);
  const QRect overTheLeftAndTheBottom(screen.left() - 300, screen.bottom() - 30, 400, 400);
  EXPECT_EQ(BroughtWithinReach(overTheLeftAndTheBottom), overTheLeftAndTheBottom);
}

TEST(AStoredPlace, WhoseTitleBarCannotBeGraspedIsBroughtOntoTheScreen) {
  const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
  const QSize size(400, 400);
  for (const QPoint& place :
       {screen.topLeft() - QPoint(3, 30), screen.topLeft() + QPoint(-390, 10),
        screen.topRight() + QPoint(-10, 10), screen.bottomLeft() + QPoint(10, -5),
        screen.topLeft() - QPoint(5000, 5000)}) {
    EXPECT_TRUE(screen.contains(BroughtWithinReach({place, size})))
        << place.x() << " " << place.y();
  }
}
