#pragma once

#include <QAccessibleWidget>

class QLineEdit;

// A line of text that is typed, as one run for a screen reader: Qt's own counts an empty run at
// each letter, and Orca takes the end of the last one for the end of the text.
class AccessibleLineEdit : public QAccessibleWidget,
                           public QAccessibleTextInterface,
                           public QAccessibleEditableTextInterface {
 public:
  explicit AccessibleLineEdit(QLineEdit& line);

  // For every line that is made from now on.
  static void Install();

  void* interface_cast(QAccessible::InterfaceType type) override;
  QAccessible::State state() const override;
  QString text(QAccessible::Text kind) const override;
  void setText(QAccessible::Text kind, const QString& text) override;

  QString text(int start, int end) const override;
  int characterCount() const override;
  int cursorPosition() const override;
  void setCursorPosition(int position) override;
  QString attributes(int offset, int* start, int* end) const override;

  int selectionCount() const override;
  void selection(int number, int* start, int* end) const override;
  void addSelection(int start, int end) override;
  void removeSelection(int number) override;
  void setSelection(int number, int start, int end) override;

  QRect characterRect(int offset) const override;
  int offsetAtPoint(const QPoint& point) const override;
  void scrollToSubstring(int start, int end) override;

  void deleteText(int start, int end) override;
  void insertText(int offset, const QString& text) override;
  void replaceText(int start, int end, const QString& text) override;

 private:
  QLineEdit& line_;
};
