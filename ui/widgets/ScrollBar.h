#pragma once

#include <QScrollBar>

// A horizontal scroll bar that shows when it has the keyboard, which the toolkit's does not.
class ScrollBar : public QScrollBar {
  Q_OBJECT

 public:
  explicit ScrollBar(QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
};
