#include "ui/widgets/WindowPlacing.h"

#include <algorithm>

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

namespace {

constexpr int GapBetweenWindows = 6;

// A position from lowest up, so that length fits in before end if it can.
int Within(int position, int length, int lowest, int end) {
  return std::max(std::min(position, end - length), lowest);
}

QPoint Within(const QRect& bounds, const QRect& screen) {
  return {Within(bounds.left(), bounds.width(), screen.left(), screen.right() + 1),
          Within(bounds.top(), bounds.height(), screen.top(), screen.bottom() + 1)};
}

// A dialog gets its own frame only when it is shown; it will be about as thick as this one.
QSize FrameSize(const QWidget& dialog, const QWidget& mainWindow) {
  return dialog.size() + mainWindow.frameGeometry().size() - mainWindow.size();
}

}  // namespace

QPoint CentredPosition(const QSize& dialog, const QRect& mainWindow, const QRect& screen) {
  int left = mainWindow.left() + mainWindow.width() / 2 - dialog.width() / 2;
  int top = mainWindow.top() + mainWindow.height() / 2 - dialog.height() / 2;
  top = std::min(top, screen.bottom() + 1 - dialog.height());
  left = std::min(left, screen.right() + 1 - dialog.width());
  return {std::max(left, 0), std::max(top, 0)};
}

void PlaceDialog(QWidget& dialog, const QWidget& mainWindow) {
  dialog.adjustSize();
  dialog.move(CentredPosition(FrameSize(dialog, mainWindow), mainWindow.frameGeometry(),
                              mainWindow.screen()->availableGeometry()));
}

PairPosition PositionsSideBySide(const QSize& dialog, const QRect& mainWindow,
                                 const QRect& screen) {
  const QRect main(Within(mainWindow, screen), mainWindow.size());
  const int needed = dialog.width() + GapBetweenWindows;
  const int roomLeft = main.left() - screen.left();
  const int roomRight = screen.right() - main.right();
  const bool toTheRight = roomRight >= needed || roomRight >= roomLeft;
  const int missing = std::max(needed - (toTheRight ? roomRight : roomLeft), 0);

  const QRect moved(Within(main.translated(toTheRight ? -missing : missing, 0), screen),
                    main.size());
  const int beside = toTheRight ? moved.right() + 1 + GapBetweenWindows : moved.left() - needed;
  return {Within({{beside, moved.top()}, dialog}, screen), moved.topLeft()};
}

std::optional<QPoint> PlaceBeside(QWidget& dialog, QWidget& mainWindow) {
  dialog.adjustSize();
  const QRect frame = mainWindow.frameGeometry();
  const PairPosition pair = PositionsSideBySide(FrameSize(dialog, mainWindow), frame,
                                                mainWindow.screen()->availableGeometry());
  dialog.move(pair.dialog);
  if (mainWindow.isMaximized() || mainWindow.isFullScreen() || pair.mainWindow == frame.topLeft()) {
    return std::nullopt;
  }
  mainWindow.move(pair.mainWindow);
  return frame.topLeft();
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
