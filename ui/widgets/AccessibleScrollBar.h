#pragma once

#include <QAccessibleWidget>

class ScrollBar;

// A scroll bar as a screen reader meets it: a spin button with a value to read and set, and with a
// text, which readers say instead of the bare number.
class AccessibleScrollBar : public QAccessibleWidget,
                            public QAccessibleValueInterface,
                            public QAccessibleTextInterface {
 public:
  explicit AccessibleScrollBar(ScrollBar& bar);

  void* interface_cast(QAccessible::InterfaceType type) override;

  QVariant currentValue() const override;
  void setCurrentValue(const QVariant& value) override;
  QVariant maximumValue() const override;
  QVariant minimumValue() const override;
  QVariant minimumStepSize() const override;

  QString text(QAccessible::Text kind) const override { return QAccessibleWidget::text(kind); }
  QString text(int startOffset, int endOffset) const override;
  int characterCount() const override;
  // Nobody can go about in the text, select or change it.
  void selection(int, int* startOffset, int* endOffset) const override;
  int selectionCount() const override { return 0; }
  void addSelection(int, int) override {}
  void removeSelection(int) override {}
  void setSelection(int, int, int) override {}
  int cursorPosition() const override { return 0; }
  void setCursorPosition(int) override {}
  QRect characterRect(int) const override { return rect(); }
  int offsetAtPoint(const QPoint&) const override { return -1; }
  void scrollToSubstring(int, int) override {}
  QString attributes(int offset, int* startOffset, int* endOffset) const override;

 private:
  ScrollBar& bar_;
};
