#include "ui/board/AccessibleCursor.h"

#include "ui/board/BoardView.h"

QAccessibleInterface* AccessibleCursor::parent() const {
  return QAccessible::queryAccessibleInterface(&view_);
}

QAccessible::State AccessibleCursor::state() const {
  QAccessible::State state;
  state.focusable = true;
  state.focused = view_.hasFocus();
  state.invisible = !view_.isVisible();
  return state;
}

QRect AccessibleCursor::rect() const {
  const QRect place = Square() == -1 ? view_.rect() : view_.SquareRectangle(Square());
  return QRect(view_.mapToGlobal(place.topLeft()), place.size()) -
         QMargins(inset_, inset_, inset_, inset_);
}

QString AccessibleCursor::text(QAccessible::Text text) const {
  switch (text) {
    case QAccessible::Name:
      return QString::fromStdString(sentence_.name);
    case QAccessible::Description:
      return QString::fromStdString(sentence_.description);
    default:
      return {};
  }
}
