#include "ui/widgets/AccessibleScrollBar.h"

#include "ui/widgets/ScrollBar.h"

AccessibleScrollBar::AccessibleScrollBar(ScrollBar& bar)
    : QAccessibleWidget(&bar, QAccessible::SpinBox), bar_(bar) {}

void* AccessibleScrollBar::interface_cast(QAccessible::InterfaceType type) {
  if (type == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
  if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
  return QAccessibleWidget::interface_cast(type);
}

QVariant AccessibleScrollBar::currentValue() const {
  return bar_.value();
}

void AccessibleScrollBar::setCurrentValue(const QVariant& value) {
  bar_.setValue(value.toInt());
}

QVariant AccessibleScrollBar::maximumValue() const {
  return bar_.maximum();
}

QVariant AccessibleScrollBar::minimumValue() const {
  return bar_.minimum();
}

QVariant AccessibleScrollBar::minimumStepSize() const {
  return bar_.singleStep();
}

QString AccessibleScrollBar::text(int startOffset, int endOffset) const {
  return bar_.SpokenValue().mid(startOffset, endOffset - startOffset);
}

int AccessibleScrollBar::characterCount() const {
  return static_cast<int>(bar_.SpokenValue().size());
}

void AccessibleScrollBar::selection(int, int* startOffset, int* endOffset) const {
  *startOffset = *endOffset = 0;
}

QString AccessibleScrollBar::attributes(int, int* startOffset, int* endOffset) const {
  *startOffset = 0;
  *endOffset = characterCount();
  return {};
}
