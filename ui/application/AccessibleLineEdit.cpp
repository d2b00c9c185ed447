#include "ui/application/AccessibleLineEdit.h"

#include <QLineEdit>

#include "ui/application/AccessibleFactory.h"

AccessibleLineEdit::AccessibleLineEdit(QLineEdit& line)
    : QAccessibleWidget(&line, QAccessible::EditableText), line_(line) {}

void AccessibleLineEdit::Install() {
  InstallAccessible<AccessibleLineEdit, QLineEdit>();
}

void* AccessibleLineEdit::interface_cast(QAccessible::InterfaceType type) {
  if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
  if (type == QAccessible::EditableTextInterface) {
    return static_cast<QAccessibleEditableTextInterface*>(this);
  }
  return QAccessibleWidget::interface_cast(type);
}

QAccessible::State AccessibleLineEdit::state() const {
  QAccessible::State state = QAccessibleWidget::state();
  state.readOnly = line_.isReadOnly();
  state.editable = !line_.isReadOnly();
  state.selectable = true;
  state.selected = line_.hasSelectedText();
  return state;
}

QString AccessibleLineEdit::text(QAccessible::Text kind) const {
  return kind == QAccessible::Value ? line_.displayText() : QAccessibleWidget::text(kind);
}

void AccessibleLineEdit::setText(QAccessible::Text kind, const QString& text) {
  if (kind != QAccessible::Value) return QAccessibleWidget::setText(kind, text);
  if (!line_.isReadOnly()) line_.setText(text);
}

QString AccessibleLineEdit::text(int start, int end) const {
  return line_.displayText().mid(start, end - start);
}

int AccessibleLineEdit::characterCount() const {
  return static_cast<int>(line_.displayText().size());
}

int AccessibleLineEdit::cursorPosition() const {
  return line_.cursorPosition();
}

void AccessibleLineEdit::setCursorPosition(int position) {
  line_.setCursorPosition(position);
}

QString AccessibleLineEdit::attributes(int, int* start, int* end) const {
  *start = 0;
  *end = characterCount();
  return {};
}

int AccessibleLineEdit::selectionCount() const {
  return line_.hasSelectedText() ? 1 : 0;
}

void AccessibleLineEdit::selection(int, int* start, int* end) const {
  *start = line_.hasSelectedText() ? line_.selectionStart() : 0;
  *end = line_.hasSelectedText() ? line_.selectionEnd() : 0;
}

void AccessibleLineEdit::addSelection(int start, int end) {
  line_.setSelection(start, end - start);
}

void AccessibleLineEdit::removeSelection(int) {
  line_.deselect();
}

void AccessibleLineEdit::setSelection(int, int start, int end) {
  line_.setSelection(start, end - start);
}

// The text cursor's place is the only one that a line tells.
QRect AccessibleLineEdit::characterRect(int offset) const {
  const QFontMetrics letters = line_.fontMetrics();
  const auto widthUpTo = [&](int end) { return letters.horizontalAdvance(text(0, end)); };
  const QPoint cursor = line_.inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
  const int left = cursor.x() + widthUpTo(offset) - widthUpTo(cursorPosition());
  const QPoint corner(left, cursor.y() - letters.height() / 2);
  return {line_.mapToGlobal(corner),
          QSize(widthUpTo(offset + 1) - widthUpTo(offset), letters.height())};
}

int AccessibleLineEdit::offsetAtPoint(const QPoint& point) const {
  return line_.cursorPositionAt(line_.mapFromGlobal(point));
}

void AccessibleLineEdit::scrollToSubstring(int start, int end) {
  line_.setCursorPosition(end);
  line_.setCursorPosition(start);
}

void AccessibleLineEdit::deleteText(int start, int end) {
  replaceText(start, end, QString());
}

void AccessibleLineEdit::insertText(int offset, const QString& text) {
  replaceText(offset, offset, text);
}

void AccessibleLineEdit::replaceText(int start, int end, const QString& text) {
  if (!line_.isReadOnly()) line_.setText(line_.text().replace(start, end - start, text));
}
