#pragma once

#include <optional>

#include <QRect>

class QDialog;
class QWidget;

// Whether a window is told where it is and may choose its place. Wayland keeps both to itself.
bool WindowsHavePlaces();

// Centres a dialog on the main window, fits it to the screen and keeps it there.
void PlaceDialog(QDialog& dialog, const QWidget& mainWindow);

// The arithmetic of PlaceDialog: the dialog's top left corner, all with their frames and in pixels
// of the desktop.
QPoint CentredPosition(const QSize& dialog, const QRect& mainWindow, const QRect& screen);

// Places a dialog beside the main window, which moves aside where the screen has no room for both;
// beside a maximised one means beside its board, which begins at its left. Gives the main window's
// former position if it was moved, for the caller to put it back there.
std::optional<QPoint> PlaceBeside(QDialog& dialog, QWidget& mainWindow, const QWidget& board);

// Top left corners, all in pixels of the desktop.
struct PairPosition {
  QPoint dialog;
  QPoint mainWindow;
};

// The arithmetic of PlaceBeside: the dialog is to the right where there is room, else on the
// roomier side. Where the screen is too narrow for both, they overlap.
PairPosition PositionsSideBySide(const QSize& dialog, const QRect& mainWindow, const QRect& screen);

// Places a window beside another, on the roomier side, and makes it as narrow as that needs, but
// not narrower than the least width: then it stands at the edge of the screen.
void PlaceBesideWindow(QWidget& window, const QWidget& other, int leastWidth);

// The top left corner with which the bounds lie inside the screen; what is too large begins at its
// top left.
QPoint BroughtInside(const QRect& bounds, const QRect& screen);

// The screen that most of the bounds lie on; the primary one where they lie on none.
QRect ScreenOf(const QRect& bounds);

// Bounds whose title bar cannot be seen and grasped on any screen are brought onto the screen that
// ScreenOf names; others stay as they are.
QRect BroughtWithinReach(const QRect& bounds);
