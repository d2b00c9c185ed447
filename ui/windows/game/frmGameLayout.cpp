// The main window's place on the screen, its size, and the board inside it.

#include <algorithm>
#include <cmath>
#include <utility>

#include <QApplication>
#include <QEvent>
#include <QMenuBar>
#include <QScreen>
#include <QWindow>

#include "storage/OwnFiles.h"
#include "ui/board/BoardLayout.h"
#include "ui/board/BoardView.h"
#include "ui/widgets/WindowPlacing.h"
#include "ui/windows/game/SidePanel.h"
#include "ui/windows/game/frmGame.h"

namespace {

// Room for a title bar and borders, whose size is not known before the window is shown.
constexpr QSize DecorationAllowance(8, 48);

constexpr qint64 OpeningMilliseconds = 1000;

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
// of its frame belongs. A window that is larger than the screen is made to fit into it.
QSize SizeOfHeight(int height, int menuHeight, const QSize& screen) {
  if (height - menuHeight < MinimumHeight()) height = MinimumHeight();
  int side = std::max(height - menuHeight, 1);
  if (side > screen.width() || height > screen.height()) {
    const QSize room = screen - DecorationAllowance;
    side = std::min(room.width(), room.height() - menuHeight);
  }
  side = std::max(side, MinimumHeight() - menuHeight);
  return {side, side + menuHeight};
}

}  // namespace

void frmGame::CreateBoard() {
  connect(board_.get(), &BoardView::SquareClicked, this,
          [this](int index) { Perform([this, index] { game_.pctGrid_Click(index); }); });
  connect(board_.get(), &BoardView::SquareEntered, this,
          [this](int index) { Perform([this, index] { game_.pctGrid_MouseMove(index, 0); }); });
  connect(board_.get(), &BoardView::KeyPressed, this,
          [this](int keyCode) { Perform([this, keyCode] { game_.pctGrid_KeyDown(keyCode); }); });
  connect(board_.get(), &BoardView::Resized, this, [this] {
    // Beside a panel the board takes the room that is there, and the clock goes on.
    HasSidePanel() ? board_->LayOut(globals_.settings) : Form_Resize();
  });
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
  const int designedHeight =
      std::min(static_cast<int>(PixelsFromTwips(DesignedInnerSideTwips)) + menuHeight,
               available.height() - DecorationAllowance.height());
  const int height = PixelFrom(placement.Height, designedHeight);
  const auto boundsOf = [&](const QSize& size) {
    const QPoint centred = CentredPosition(size, available, available);
    return QRect({PixelFrom(placement.Left, centred.x()), PixelFrom(placement.Top, centred.y())},
                 size);
  };
  const QRect room = ScreenOf(boundsOf({height, height}));
  const QRect wanted = boundsOf(SizeOfHeight(height, menuHeight, room.size()));
  const QRect withFrame(wanted.topLeft(), wanted.size() + DecorationAllowance);
  placedBounds_ = wanted.height() < height ? QRect(BroughtInside(withFrame, room), wanted.size())
                                           : BroughtWithinReach(wanted);
  move(placedBounds_.topLeft());
  resize(placedBounds_.size());
  unsettled_ = placement;
  if (!placement.Maximised) return;
  unsettled_.reset();
  setWindowState(windowState() | Qt::WindowMaximized);
}

// Where no window manager gives it the keyboard, the window asks for it.
void frmGame::ShowWindow() {
  if (!sinceShown_.isValid()) sinceShown_.start();
  show();
  activateWindow();
}

// Everywhere but on Wayland a minimised window says so; there it is only not painted any more.
bool frmGame::CanBeSeen() const {
  return windowHandle() != nullptr && windowHandle()->isExposed();
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
  WindowPlacement placement{.Height = TwipsFromPixels(bounds.height()),
                            .Width = TwipsFromPixels(bounds.width()),
                            .Maximised = isMaximized()};
  if (WindowsHavePlaces()) {
    const QPoint place = home_.value_or(bounds.topLeft());
    placement.Left = TwipsFromPixels(place.x());
    placement.Top = TwipsFromPixels(place.y());
  }
  return placement;
}

void frmGame::ComeBack() {
  if (const auto place = std::exchange(home_, std::nullopt)) move(*place);
}

void frmGame::moveEvent(QMoveEvent* event) {
  QMainWindow::moveEvent(event);
  if (!isVisible() || !IsNormal() || !WindowsHavePlaces()) return;
  decoration_ = geometry().topLeft() - pos();
  if (*decoration_ != QPoint()) SettleInFrame();
}

// Only now is the frame known with which a first start is in the middle, and a window as large as
// the screen is inside it.
void frmGame::SettleInFrame() {
  const auto placement = std::exchange(unsettled_, std::nullopt);
  if (!placement) return;
  const QRect frame = windowHandle()->frameGeometry();
  const QRect available = ScreenOf(frame);
  const int surplus =
      std::max({frame.width() - available.width(), frame.height() - available.height(), 0});
  const QSize size = frame.size() - QSize(surplus, surplus);
  const bool fitted = surplus > 0 || PixelFrom(placement->Height, 0) > height();
  const QPoint centred = CentredPosition(size, available, available);
  QPoint place(placement->Left ? frame.left() : centred.x(),
               placement->Top ? frame.top() : centred.y());
  if (fitted) place = BroughtInside({place, size}, available);
  if (surplus > 0) resize(this->size() - QSize(surplus, surplus));
  if (place != frame.topLeft()) move(place);
}

void frmGame::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::WindowStateChange) {
    game_.ClockOnResize(isMinimized(), IsClockResting());
  }
}

// The clock rests while the window cannot be seen. On Wayland whether it can is only found out by
// painting, and painting also brings a title bar up to date that Qt draws itself.
void frmGame::TickInSight() {
  if (!CanBeSeen()) return;
  game_.tmrTime_Timer();
  if (!WindowsHavePlaces()) menuBar()->update();
}

// It rests in a dialog, and also between its closing and what follows from that.
bool frmGame::IsClockResting() const {
  return performing_ || QApplication::activeModalWidget() != nullptr;
}

void frmGame::Form_Resize() {
  FindOutWhetherTiled();
  game_.ClockOnResize(isMinimized(), IsClockResting());
  resizePending_ = state_.ApplyingMoves;
  if (isMinimized() || resizePending_ || SnapToMinimumHeight()) return;
  board_->LayOut(globals_.settings);
  if (!HasGivenShape()) MakeInnerAreaSquare();
}

bool frmGame::HasSidePanel() const {
  return findChild<SidePanel*>() != nullptr;
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

bool frmGame::HasGivenShape() const {
  return tiled_ || isMaximized() || isFullScreen();
}

// Qt says nothing of tiles. But nobody makes a window larger by hand as soon as he sees it, and a
// window that is to fit into the screen is only made smaller.
void frmGame::FindOutWhetherTiled() {
  if (WindowsHavePlaces()) return;
  const bool isNew = sinceShown_.isValid() && !sinceShown_.hasExpired(OpeningMilliseconds);
  if (isNew) tiled_ = size().boundedTo(placedBounds_.size()) != size();
  if (board_->width() == board_->height()) tiled_ = false;
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
