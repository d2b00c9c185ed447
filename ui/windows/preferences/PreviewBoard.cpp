#include "ui/windows/preferences/PreviewBoard.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QPainter>

#include "core/Keyboard.h"
#include "ui/board/BoardKeys.h"
#include "ui/board/BoardWords.h"
#include "ui/board/SystemColors.h"

namespace {

constexpr int CellSide = 24;
constexpr int FrameWidth = 1;

struct Square {
  int x;
  int y;
};

// Where a key leads; it may be off the board.
Square Target(Square from, int keyCode) {
  switch (keyCode) {
    case KeyCode::Right:
    case KeyCode::Numeric6:
      return {from.x + 1, from.y};
    case KeyCode::Left:
    case KeyCode::Numeric4:
      return {from.x - 1, from.y};
    case KeyCode::Down:
    case KeyCode::Numeric2:
      return {from.x, from.y + 1};
    case KeyCode::Up:
    case KeyCode::Numeric8:
      return {from.x, from.y - 1};
    case KeyCode::End:
      return {BoardSide - 1, from.y};
    case KeyCode::Home:
      return {0, from.y};
    case KeyCode::PageUp:
      return {from.x, 0};
    case KeyCode::PageDown:
      return {from.x, BoardSide - 1};
    default:
      return from;
  }
}

// Keys that click elsewhere keep their meaning in the dialog.
bool IsMovingKey(int keyCode) {
  return keyCode != 0 && keyCode != KeyCode::Backspace && keyCode != KeyCode::Numeric5 &&
         !IsClickKey(keyCode);
}

// Black and white, one of which is seen on any colour.
void DrawFocus(QPainter& painter, const QRect& cell) {
  painter.setPen(Qt::black);
  painter.drawRect(cell.adjusted(1, 1, -2, -2));
  painter.setPen(Qt::white);
  painter.drawRect(cell.adjusted(2, 2, -3, -3));
}

}  // namespace

PreviewCell::PreviewCell(int index, const BoardLook& look, QWidget* parent)
    : QRadioButton(parent), index_(index), look_(look) {
  setObjectName(QString("pctGrid(%1)").arg(index));
  setAccessibleName(QString::fromStdString(SquareName(ColumnOf(index), RowOf(index))));
  setFixedSize(CellSide, CellSide);
}

bool PreviewCell::hitButton(const QPoint& position) const {
  return rect().contains(position);
}

void PreviewCell::paintEvent(QPaintEvent*) {
  const bool isLight = (ColumnOf(index_) + RowOf(index_)) % 2 == 1;
  const Color plain = isLight ? look_.LightColor : look_.DarkColor;
  QPainter painter(this);
  painter.fillRect(rect(), ResolveColor(isChecked() ? look_.KnightColor : plain, palette()));
  if (hasFocus()) DrawFocus(painter, rect());
}

// The keys act when they are released; pressed, they must not move the focus.
void PreviewCell::keyPressEvent(QKeyEvent* event) {
  if (!IsMovingKey(VirtualKeyCode(*event))) QRadioButton::keyPressEvent(event);
}

void PreviewCell::keyReleaseEvent(QKeyEvent* event) {
  const int keyCode = VirtualKeyCode(*event);
  if (!IsMovingKey(keyCode)) {
    QRadioButton::keyReleaseEvent(event);
  } else if (!event->isAutoRepeat()) {
    emit KeyUp(keyCode);
  }
}

PreviewBoard::PreviewBoard(const BoardLook& look, QWidget* parent) : QWidget(parent) {
  setObjectName("pctGrid");
  setAccessibleName("Starting square");
  auto* layout = new QGridLayout(this);
  layout->setSizeConstraint(QLayout::SetFixedSize);
  layout->setContentsMargins(FrameWidth, FrameWidth, FrameWidth, FrameWidth);
  layout->setSpacing(0);
  for (int index = 0; index < SquareCount; ++index) {
    auto* cell = new PreviewCell(index, look, this);
    connect(cell, &PreviewCell::clicked, this, [this, index] { pctGrid_Click(index); });
    // A screen reader toggles it instead.
    connect(cell, &PreviewCell::toggled, this, [this, index](bool checked) {
      if (checked) pctGrid_Click(index);
    });
    connect(cell, &PreviewCell::KeyUp, this, &PreviewBoard::pctGrid_KeyUp);
    layout->addWidget(cell, RowOf(index), ColumnOf(index));
    pctGrid_[static_cast<std::size_t>(index)] = cell;
  }
}

void PreviewBoard::SetupLittleChessboard(int index) {
  // Only the selected cell is a stop of the tab key.
  for (PreviewCell* cell : pctGrid_) cell->setFocusPolicy(Qt::ClickFocus);
  PreviewCell* cell = pctGrid_[static_cast<std::size_t>(index)];
  cell->setFocusPolicy(Qt::StrongFocus);
  const QSignalBlocker blocker(cell);
  cell->setChecked(true);
  selectedX_ = ColumnOf(index);
  selectedY_ = RowOf(index);
  ReColorChessboard();
}

void PreviewBoard::ReColorChessboard() {
  update();
}

void PreviewBoard::pctGrid_Click(int index) {
  SetupLittleChessboard(index);
  emit Clicked();
}

void PreviewBoard::pctGrid_KeyUp(int keyCode) {
  const Square to = Target({selectedX_, selectedY_}, keyCode);
  const bool stays = to.x == selectedX_ && to.y == selectedY_;
  if (stays || !IsSquare(to.x, to.y)) return TellEdge();
  const int index = SquareIndex(to.x, to.y);
  pctGrid_Click(index);
  pctGrid_[static_cast<std::size_t>(index)]->setFocus();
}

void PreviewBoard::TellEdge() {
  const Sentence edge = EdgeSentence(SquareIndex(selectedX_, selectedY_));
  announcer_.Say(QString::fromStdString(edge.text));
}

void PreviewBoard::paintEvent(QPaintEvent*) {
  QPainter(this).fillRect(rect(), palette().color(QPalette::Dark));
}
