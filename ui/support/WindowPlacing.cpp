#include "ui/support/WindowPlacing.h"

#include <algorithm>

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

QPoint CentredPosition(const QSize& dialog, const QRect& mainWindow, const QRect& screen) {
  int left = mainWindow.left() + mainWindow.width() / 2 - dialog.width() / 2;
  int top = mainWindow.top() + mainWindow.height() / 2 - dialog.height() / 2;
  top = std::min(top, screen.bottom() + 1 - dialog.height());
  left = std::min(left, screen.right() + 1 - dialog.width());
  return {std::max(left, 0), std::max(top, 0)};
}

void PlaceDialog(QWidget& dialog, const QWidget& mainWindow) {
  dialog.adjustSize();
  dialog.move(CentredPosition(dialog.size(), mainWindow.frameGeometry(),
                              mainWindow.screen()->availableGeometry()));
}

QRect BroughtOntoScreen(const QRect& bounds) {
  const auto screens = QGuiApplication::screens();
  const bool visible = std::any_of(screens.begin(), screens.end(), [&](const QScreen* screen) {
    return screen->availableGeometry().intersects(bounds);
  });
  if (visible) return bounds;
  const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
  const QSize size = bounds.size().boundedTo(screen.size());
  const int left = std::clamp(bounds.left(), screen.left(), screen.right() + 1 - size.width());
  const int top = std::clamp(bounds.top(), screen.top(), screen.bottom() + 1 - size.height());
  return {QPoint(left, top), size};
}
