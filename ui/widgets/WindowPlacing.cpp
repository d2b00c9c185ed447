#include "ui/widgets/WindowPlacing.h"

#include <algorithm>

#include <QDialog>
#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

#include "ui/widgets/DialogFitting.h"

namespace {

constexpr int GapBetweenWindows = 6;
// The least that a title bar is high, and how much of it a hand can take hold of.
constexpr int TitleBarHeight = 16;
constexpr int GraspableWidth = 80;

// A position from lowest up, so that length fits in before end if it can.
int Within(int position, int length, int lowest, int end) {
  return std::max(std::min(position, end - length), lowest);
}

// As the window system has it now: what the widget remembers of its frame is out of date for a
// while after it was maximised or put back.
QRect FrameOf(const QWidget& window) {
  const QWindow* handle = window.windowHandle();
  return handle != nullptr ? handle->frameGeometry() : window.frameGeometry();
}

QSize FrameThickness(const QWidget& window) {
  const QWindow* handle = window.windowHandle();
  const QMargins frame = handle != nullptr ? handle->frameMargins() : QMargins();
  return {frame.left() + frame.right(), frame.top() + frame.bottom()};
}

// A dialog gets its own frame only when it is shown; it will be about as thick as this one.
QSize FittedSize(QDialog& dialog, const QWidget& mainWindow) {
  const QSize frame = FrameThickness(mainWindow);
  FitDialog(dialog, mainWindow.screen()->availableSize() - frame);
  dialog.adjustSize();
  return dialog.size() + frame;
}

bool FillsScreen(const QWidget& window) {
  return window.isMaximized() || window.isFullScreen();
}

QRect BoardOnDesktop(const QWidget& board) {
  const int side = std::min(board.width(), board.height());
  return {board.mapToGlobal(QPoint()), QSize(side, side)};
}

bool IsGraspable(const QRect& titleBar, const QRect& screen) {
  const QRect seen = titleBar & screen;
  return seen.height() == titleBar.height() &&
         seen.width() >= std::min(titleBar.width(), GraspableWidth);
}

int Overlap(const QRect& a, const QRect& b) {
  const QRect both = a & b;
  return both.isEmpty() ? 0 : both.width() * both.height();
}

}  // namespace

bool WindowsHavePlaces() {
  return !QGuiApplication::platformName().startsWith("wayland");
}

QPoint CentredPosition(const QSize& dialog, const QRect& mainWindow, const QRect& screen) {
  int left = mainWindow.left() + mainWindow.width() / 2 - dialog.width() / 2;
  int top = mainWindow.top() + mainWindow.height() / 2 - dialog.height() / 2;
  top = std::min(top, screen.bottom() + 1 - dialog.height());
  left = std::min(left, screen.right() + 1 - dialog.width());
  return {std::max(left, 0), std::max(top, 0)};
}

void PlaceDialog(QDialog& dialog, const QWidget& mainWindow) {
  const QSize size = FittedSize(dialog, mainWindow);
  dialog.move(CentredPosition(size, FrameOf(mainWindow), mainWindow.screen()->availableGeometry()));
}

PairPosition PositionsSideBySide(const QSize& dialog, const QRect& mainWindow,
                                 const QRect& screen) {
  const QRect main(BroughtInside(mainWindow, screen), mainWindow.size());
  const int needed = dialog.width() + GapBetweenWindows;
  const int roomLeft = main.left() - screen.left();
  const int roomRight = screen.right() - main.right();
  const bool toTheRight = roomRight >= needed || roomRight >= roomLeft;
  const int missing = std::max(needed - (toTheRight ? roomRight : roomLeft), 0);

  const QRect moved(BroughtInside(main.translated(toTheRight ? -missing : missing, 0), screen),
                    main.size());
  const int beside = toTheRight ? moved.right() + 1 + GapBetweenWindows : moved.left() - needed;
  return {BroughtInside({{beside, moved.top()}, dialog}, screen), moved.topLeft()};
}

std::optional<QPoint> PlaceBeside(QDialog& dialog, QWidget& mainWindow, const QWidget& board) {
  const bool stays = FillsScreen(mainWindow);
  const QRect frame = stays ? BoardOnDesktop(board) : FrameOf(mainWindow);
  const PairPosition pair = PositionsSideBySide(FittedSize(dialog, mainWindow), frame,
                                                mainWindow.screen()->availableGeometry());
  dialog.move(pair.dialog);
  if (stays || pair.mainWindow == frame.topLeft()) return std::nullopt;
  mainWindow.move(pair.mainWindow);
  return frame.topLeft();
}

void PlaceBesideWindow(QWidget& window, const QWidget& other, int leastWidth) {
  const QRect screen = other.screen()->availableGeometry();
  const QRect taken = FrameOf(other);
  const QSize frame = FrameThickness(other);
  const int roomLeft = taken.left() - screen.left();
  const int roomRight = screen.right() - taken.right();
  const int room = std::max(roomLeft, roomRight) - GapBetweenWindows - frame.width();
  if (room >= leastWidth) window.resize(std::min(window.width(), room), window.height());
  const QSize size = window.size().expandedTo(window.minimumSizeHint()) + frame;
  const int beside = roomRight >= roomLeft ? taken.right() + 1 + GapBetweenWindows
                                           : taken.left() - GapBetweenWindows - size.width();
  window.move(BroughtInside({{beside, taken.top()}, size}, screen));
}

QPoint BroughtInside(const QRect& bounds, const QRect& screen) {
  return {Within(bounds.left(), bounds.width(), screen.left(), screen.right() + 1),
          Within(bounds.top(), bounds.height(), screen.top(), screen.bottom() + 1)};
}

QRect ScreenOf(const QRect& bounds) {
  QRect best = QGuiApplication::primaryScreen()->availableGeometry();
  for (const QScreen* screen : QGuiApplication::screens()) {
    const QRect available = screen->availableGeometry();
    if (Overlap(available, bounds) > Overlap(best, bounds)) best = available;
  }
  return best;
}

QRect BroughtWithinReach(const QRect& bounds) {
  const QRect titleBar(bounds.topLeft(), QSize(bounds.width(), TitleBarHeight));
  const auto screens = QGuiApplication::screens();
  const bool inReach = std::any_of(screens.begin(), screens.end(), [&](const QScreen* screen) {
    return IsGraspable(titleBar, screen->availableGeometry());
  });
  if (inReach) return bounds;
  return {BroughtInside(bounds, ScreenOf(bounds)), bounds.size()};
}
