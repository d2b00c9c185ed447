#pragma once

#include <QLabel>

// A line of plain text that asks for no width: what does not fit ends in three dots and is told by
// the tool tip. A screen reader gets all of it.
class ElidedLabel : public QLabel {
 public:
  explicit ElidedLabel(QWidget* parent);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QString ShownText() const;
};
