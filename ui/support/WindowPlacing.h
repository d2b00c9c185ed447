#pragma once

#include <QRect>

class QWidget;

// Centres a dialog on the main window and keeps it on the screen.
void PlaceDialog(QWidget& dialog, const QWidget& mainWindow);

// The arithmetic of PlaceDialog: the dialog's top left corner, all in pixels of the desktop.
QPoint CentredPosition(const QSize& dialog, const QRect& mainWindow, const QRect& screen);

// Bounds that lie on no screen are brought back onto the nearest; others stay as they are.
QRect BroughtOntoScreen(const QRect& bounds);
