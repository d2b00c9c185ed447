#include "ui/widgets/ScrollBar.h"

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

void ScrollBar::focusInEvent(QFocusEvent* event) {
  QScrollBar::focusInEvent(event);
  update();
}

void ScrollBar::focusOutEvent(QFocusEvent* event) {
  QScrollBar::focusOutEvent(event);
  update();
}
