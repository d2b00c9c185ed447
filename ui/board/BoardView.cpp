#include "ui/board/BoardView.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <utility>

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

#include "core/Keyboard.h"
#include "ui/board/AccessibleBoard.h"
#include "ui/board/BoardKeys.h"
#include "ui/board/SystemColors.h"

namespace {

QRect RectangleOf(const std::array<PixelSpan, BoardSide>& spans, int index) {
  const PixelSpan& across = spans[static_cast<std::size_t>(ColumnOf(index))];
  const PixelSpan& down = spans[static_cast<std::size_t>(RowOf(index))];
  return {across.begin, down.begin, across.end - across.begin, down.end - down.begin};
}

BoardNews::Wish WishOf(int keyCode) {
  if (keyCode == KeyCode::Backspace) return BoardNews::Wish::TakeBack;
  return IsClickKey(keyCode) ? BoardNews::Wish::Press : BoardNews::Wish::Step;
}

}  // namespace

BoardView::BoardView(const GameState& state, PicturePace& pace, QWidget* parent)
    : QWidget(parent), state_(state), picture_(pace, *this, [this] { PaintChanges(); }) {
  AccessibleBoard::Install();
  setObjectName("pctGrid");
  setAccessibleName("Chessboard");
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void BoardView::SetPictures(BoardPictures pictures) {
  pictures_ = std::move(pictures);
  cellPainter_.SetPictures(pictures_);
  background_ = QPixmap();
  for (int i = 0; i < SquarePictureCount; ++i) {
    const QSize size = pictures_.squares[static_cast<std::size_t>(i)].size();
    model_.SetPictureSize(static_cast<SquarePicture>(i),
                          {TwipsFromPixels(size.width()), TwipsFromPixels(size.height())});
  }
  PaintEverything();
}

void BoardView::SetBackground(Color color, bool showImage) {
  backgroundColor_ = color;
  showBackgroundImage_ = showImage;
  PaintEverything();
}

// The height; less where a window that cannot be square is narrower than that, so that no square is
// out of sight.
int BoardView::InnerSide() const {
  return std::min(width(), height());
}

void BoardView::LayOut(const BoardLook& look) {
  layout_ = LayOutBoard(TwipsFromPixels(InnerSide()), cornerDistance_);
  model_.SetCellSide(InnerCellSide(layout_, look.UseBorders));
  model_.ReCenterImages(look);
  cellPainter_.Clear();
  background_ = QPixmap();
  PaintEverything();
}

// Whatever changed until now is part of it.
void BoardView::PaintEverything() {
  model_.TakeChanges();
  update();
}

void BoardView::PaintChanges() {
  update(RegionOf(model_.TakeChanges()));
}

void BoardView::ShowChanges() {
  if (model_.HasChanged()) picture_.Changed();
}

QRegion BoardView::RegionOf(BoardModel::CellSet cells) const {
  QRegion region;
  const auto spans = CellSpans(layout_, devicePixelRatioF());
  for (; cells != 0; cells &= cells - 1) region += RectangleOf(spans, std::countr_zero(cells));
  return region;
}

QRect BoardView::SquareRectangle(int index) const {
  return RectangleOf(CellSpans(layout_, devicePixelRatioF()), index);
}

int BoardView::SquareAtPosition(QPointF position) const {
  const double ratio = devicePixelRatioF();
  const int x = SquareAt(layout_, ratio, position.x());
  const int y = SquareAt(layout_, ratio, position.y());
  return IsSquare(x, y) ? SquareIndex(x, y) : -1;
}

QSize BoardView::sizeHint() const {
  const int side = static_cast<int>(PixelsFromTwips(DesignedInnerSideTwips));
  return {side, side};
}

// Small enough for the window to snap back from any size by its own rule.
QSize BoardView::minimumSizeHint() const {
  return {1, 1};
}

// Painted in device pixels, with the view's corner on one of them: whole-pixel edges at every scale
// factor.
void BoardView::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  const double ratio = devicePixelRatioF();
  const QPointF corner = QPointF(mapTo(window(), QPoint(0, 0))) * ratio;
  painter.scale(1 / ratio, 1 / ratio);
  painter.translate(std::round(corner.x()) - corner.x(), std::round(corner.y()) - corner.y());
  PaintBackground(painter, event->region());
  PaintCells(painter, event->region());
}

void BoardView::PaintCells(QPainter& painter, const QRegion& region) {
  const double ratio = devicePixelRatioF();
  const auto edges = CellEdges(layout_, ratio);
  const auto spans = CellSpans(layout_, ratio);
  const QPalette& colors = palette();
  for (int index = 0; index < SquareCount; ++index) {
    if (!region.intersects(RectangleOf(spans, index))) continue;
    const BoardCell& cell = model_.Cell(index);
    const auto x = static_cast<std::size_t>(ColumnOf(index));
    const auto y = static_cast<std::size_t>(RowOf(index));
    const QRect square(edges[x], edges[y], edges[x + 1] - edges[x], edges[y + 1] - edges[y]);
    // Inside one rectangle Qt copies a picture at once, and otherwise line by line.
    painter.setClipRect(square);
    painter.drawPixmap(square.topLeft(),
                       cellPainter_.PixmapFor(cell, cell.backColor.value_or(backgroundColor_),
                                              colors, square.size(), ratio));
    ++paintedCells_;
  }
}

void BoardView::PaintBackground(QPainter& painter, const QRegion& region) {
  const double ratio = devicePixelRatioF();
  const auto edges = CellEdges(layout_, ratio);
  const int boardSide = static_cast<int>(std::floor((edges.back() - edges.front()) / ratio));
  const int boardCorner = static_cast<int>(std::ceil(edges.front() / ratio));
  if ((region - QRect(boardCorner, boardCorner, boardSide, boardSide)).isEmpty()) return;

  const int side = static_cast<int>(std::lround(InnerSide() * ratio));
  const QRect everything(0, 0, static_cast<int>(std::ceil(width() * ratio)) + 1,
                         static_cast<int>(std::ceil(height() * ratio)) + 1);
  painter.fillRect(everything, ResolveColor(backgroundColor_, palette()));
  if (!showBackgroundImage_ || pictures_.background.isNull()) return;
  if (background_.isNull()) {
    background_ = QPixmap::fromImage(
        pictures_.background.scaled(side, side, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
  }
  painter.drawPixmap(0, 0, background_);
}

void BoardView::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  emit Resized();
}

void BoardView::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  announcer_.FocusIn();
}

void BoardView::changeEvent(QEvent* event) {
  if (event->type() == QEvent::PaletteChange) {
    cellPainter_.Clear();
    PaintEverything();
  }
  QWidget::changeEvent(event);
}

void BoardView::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) pressedSquare_ = SquareAtPosition(event->position());
}

void BoardView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  const int pressed = std::exchange(pressedSquare_, -1);
  const int released = SquareAtPosition(event->position());
  if (released != -1 && released == pressed) Press(released);
}

void BoardView::mouseMoveEvent(QMouseEvent* event) {
  const int index = SquareAtPosition(event->position());
  if (index != -1) emit SquareEntered(index);
}

void BoardView::keyPressEvent(QKeyEvent* event) {
  const int keyCode = VirtualKeyCode(*event);
  if (keyCode == 0) {
    QWidget::keyPressEvent(event);
  } else if (!event->isAutoRepeat() || !IsClickKey(keyCode)) {
    announcer_.News().Expect(WishOf(keyCode));
    emit KeyPressed(keyCode);
    announcer_.News().Expect(BoardNews::Wish::Nothing);
  }
}

void BoardView::Press(int square) {
  announcer_.News().Expect(BoardNews::Wish::Press, square);
  emit SquareClicked(square);
  announcer_.News().Expect(BoardNews::Wish::Nothing);
}
