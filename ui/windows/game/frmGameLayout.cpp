// The main window's place on the screen, its size, and the board inside it.

#include <algorithm>
#include <cmath>

#include <QApplication>
#include <QEvent>
#include <QMenuBar>
#include <QScreen>

#include "storage/OwnFiles.h"
#include "ui/board/BoardLayout.h"
#include "ui/board/BoardView.h"
#include "ui/widgets/WindowPlacing.h"
#include "ui/windows/game/frmGame.h"

namespace {

constexpr int Maximised = 2;  // the stored window state
// Room for a title bar and borders, whose size is not known before the window is shown.
constexpr int DecorationAllowance = 48;

// Far beyond every screen, and safe to calculate with.
constexpr double LargestPixel = 32000;

int PixelFrom(std::optional<double> twips, int otherwise) {
  if (!twips) return otherwise;
  return static_cast<int>(
      std::lround(std::clamp(PixelsFromTwips(*twips), -LargestPixel, LargestPixel)));
}

int MinimumHeight() {
  return static_cast<int>(std::lround(PixelsFromTwips(MinimumInnerHeightTwips)));
}

// The size that the window of this height would give itself as soon as it is shown, whatever its
// width. Asking for it only then would also move the window: its own corner would be put where that
// of its frame belongs. A window that is many times higher than the desktop would fill the memory.
QSize SizeOfHeight(int height, int menuHeight, int desktopHeight) {
  if (height - menuHeight < MinimumHeight()) height = MinimumHeight();
  height = std::min(height, std::max(2 * desktopHeight, MinimumHeight()));
  return {std::max(height - menuHeight, 1), height};
}

}  // namespace

void frmGame::CreateBoard() {
  connect(board_.get(), &BoardView::SquareClicked, this,
          [this](int index) { Perform([this, index] { game_.pctGrid_Click(index); }); });
  connect(board_.get(), &BoardView::SquareEntered, this,
          [this](int index) { Perform([this, index] { game_.pctGrid_MouseMove(index, 0); }); });
  connect(board_.get(), &BoardView::KeyPressed, this,
          [this](int keyCode) { Perform([this, keyCode] { game_.pctGrid_KeyDown(keyCode); }); });
  connect(board_.get(), &BoardView::Resized, this, [this] { Form_Resize(); });
  board_->setFocus();
}

void frmGame::OpenSettingsAndPlaceWindow() {
  globals_.IniFile = KeptFile(globals_.ProgramDirectory + SettingsFileName);
  globals_.ScoreFile = KeptFile(globals_.ProgramDirectory + ScoreFileName);
  lateSaving_.emplace(globals_);
  ApplyPlacement(WindowPlacementFrom(globals_.IniFile.Values()));
}

void frmGame::ApplyPlacement(const WindowPlacement& placement) {
  const QRect available = screen()->availableGeometry();
  const int menuHeight = menuBar()->sizeHint().height();
  const int designedSide =
      std::min({static_cast<int>(PixelsFromTwips(DesignedInnerSideTwips)), available.width(),
                available.height() - menuHeight - DecorationAllowance});
  const QSize size = SizeOfHeight(PixelFrom(placement.Height, designedSide + menuHeight),
                                  menuHeight, screen()->virtualSize().height());
  const QPoint centred(available.left() + (available.width() - size.width()) / 2,
                       available.top() + (available.height() - size.height()) / 2);
  placedBounds_ = BroughtOntoScreen(
      {{PixelFrom(placement.Left, centred.x()), PixelFrom(placement.Top, centred.y())}, size});
  move(placedBounds_.topLeft());
  resize(placedBounds_.size());
  if (placement.State == Maximised) setWindowState(windowState() | Qt::WindowMaximized);
}

// Where no window manager gives it the keyboard, the window asks for it.
void frmGame::ShowWindow() {
  show();
  activateWindow();
}

bool frmGame::IsMinimised() const {
  return isMinimized();
}

bool frmGame::IsNormal() const {
  return !isMaximized() && !isMinimized() && !isFullScreen();
}

// The frame's corner and the window's own size: what a window is moved and resized by.
QRect frmGame::NormalBounds() const {
  if (IsNormal()) return {pos(), size()};
  if (!decoration_) return placedBounds_;
  return {normalGeometry().topLeft() - *decoration_, normalGeometry().size()};
}

WindowPlacement frmGame::Placement() const {
  const QRect bounds = NormalBounds();
  return {.Left = TwipsFromPixels(bounds.left()),
          .Top = TwipsFromPixels(bounds.top()),
          .Height = TwipsFromPixels(bounds.height()),
          .Width = TwipsFromPixels(bounds.width()),
          .State = isMaximized() ? Maximised : 0};
}

void frmGame::moveEvent(QMoveEvent* event) {
  QMainWindow::moveEvent(event);
  if (isVisible() && IsNormal()) decoration_ = geometry().topLeft() - pos();
}

void frmGame::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::WindowStateChange) {
    game_.ClockOnResize(isMinimized(), IsClockResting());
  }
}

// Also between the closing of a dialog and what follows from it.
bool frmGame::IsClockResting() const {
  return performing_ || QApplication::activeModalWidget() != nullptr;
}

void frmGame::Form_Resize() {
  game_.ClockOnResize(isMinimized(), IsClockResting());
  resizePending_ = state_.ApplyingMoves;
  if (isMinimized() || resizePending_ || SnapToMinimumHeight()) return;
  board_->LayOut(globals_.settings);
  if (!isMaximized() && !isFullScreen()) MakeInnerAreaSquare();
}

void frmGame::CatchUpOnResize() {
  if (resizePending_) Form_Resize();
}

// Too low a window is given its smallest height; in that height the board is laid out as usual.
bool frmGame::SnapToMinimumHeight() {
  if (board_->height() >= MinimumHeight() || height() == MinimumHeight() || isMaximized()) {
    return false;
  }
  resize(width(), MinimumHeight());
  return true;
}

// A window manager may refuse the size; it is then not asked for the same thing again.
void frmGame::MakeInnerAreaSquare() {
  const QSize square(width() - board_->width() + board_->height(), height());
  if (square == size()) {
    sizeBeforeSquaring_ = QSize();
  } else if (size() != sizeBeforeSquaring_) {
    sizeBeforeSquaring_ = size();
    resize(square);
  }
}
