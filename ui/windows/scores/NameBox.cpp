#include "ui/windows/scores/NameBox.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QStyle>
#include <QStyleOptionFrame>

namespace {

// What every line edit leaves free at both ends of its text, and what its cursor takes.
constexpr int MarginAndCursor = 5;

}  // namespace

int NameBox::WidthAround(int textWidth) const {
  QStyleOptionFrame frame;
  initStyleOption(&frame);
  frame.rect.setWidth(2 * textWidth + MarginAndCursor);
  const QRect contents =
      style()->subElementRect(QStyle::SE_LineEditContents, &frame, this) - textMargins();
  return textWidth + MarginAndCursor + frame.rect.width() - contents.width();
}

// A player who comes back from another program, or from the box's own menu, has not left the box.
void NameBox::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  if (event->reason() == Qt::ActiveWindowFocusReason || event->reason() == Qt::PopupFocusReason) {
    return;
  }
  selectAll();
  // The press of the mouse that is still to come would undo it.
  if (event->reason() == Qt::MouseFocusReason) {
    QMetaObject::invokeMethod(this, &NameBox::selectAll, Qt::QueuedConnection);
  }
}

void NameBox::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
    QLineEdit::keyPressEvent(event);
    return;
  }
  event->accept();
  if (!event->isAutoRepeat()) emit Entered();
}
