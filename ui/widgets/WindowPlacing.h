#pragma once

#include <optional>

#include <QRect>

class QWidget;

// Centres a dialog on the main window and keeps it on the screen.
void PlaceDialog(QWidget& dialog, const QWidget& mainWindow);

// The arithmetic of PlaceDialog: the dialog's top left corner, all with their frames and in pixels
// of the desktop.
QPoint CentredPosition(const QSize& dialog, const QRect& mainWindow, const QRect& screen);

// Places a dialog beside the main window, which moves aside where the screen has no room for both.
// Gives the main window's former position if it was moved, for the caller to put it back there.
std::optional<QPoint> PlaceBeside(QWidget& dialog, QWidget& mainWindow);

// Top left corners, all in pixels of the desktop.
struct PairPosition {
  QPoint dialog;
  QPoint mainWindow;
};

// The arithmetic of PlaceBeside: the dialog is to the right where there is room, else on the
// roomier side. Where the screen is too narrow for both, they overlap.
PairPosition PositionsSideBySide(const QSize& dialog, const QRect& mainWindow, const QRect& screen);

// Bounds that lie on no screen are brought back onto the nearest; others stay as they are.
QRect BroughtOntoScreen(const QRect& bounds);
