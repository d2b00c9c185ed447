#pragma once

#include <QScrollBar>

// A horizontal scroll bar that shows when it has the keyboard, which Qt's does not, and whose arrow
// keys lead where they point: Qt's Left leads to the right.
class ScrollBar : public QScrollBar {
  Q_OBJECT

 public:
  explicit ScrollBar(QWidget* parent);

 signals:
  // The keyboard has come to it, or a key has left it where it is: a screen reader is to hear
  // where.
  void Asked();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void Move(QKeyEvent& event);
};
