#include "ui/widgets/ScrollBar.h"

#include <QKeyEvent>
#include <QPainter>

ScrollBar::ScrollBar(QWidget* parent) : QScrollBar(Qt::Horizontal, parent) {
  setFocusPolicy(Qt::StrongFocus);
}

void ScrollBar::paintEvent(QPaintEvent* event) {
  QScrollBar::paintEvent(event);
  if (!hasFocus() || !window()->testAttribute(Qt::WA_KeyboardFocusChange)) return;
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::Highlight));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void ScrollBar::keyPressEvent(QKeyEvent* event) {
  const int before = value();
  Move(*event);
  if (event->isAccepted() && value() == before) emit Asked();
}

// Qt's way to turn these two round would turn all other keys round as well.
void ScrollBar::Move(QKeyEvent& event) {
  const int towardsEnd = isRightToLeft() ? Qt::Key_Left : Qt::Key_Right;
  if (event.key() != Qt::Key_Left && event.key() != Qt::Key_Right) {
    QScrollBar::keyPressEvent(&event);
  } else {
    triggerAction(event.key() == towardsEnd ? SliderSingleStepAdd : SliderSingleStepSub);
  }
}

void ScrollBar::focusInEvent(QFocusEvent* event) {
  QScrollBar::focusInEvent(event);
  update();
  emit Asked();
}

void ScrollBar::focusOutEvent(QFocusEvent* event) {
  QScrollBar::focusOutEvent(event);
  update();
}
