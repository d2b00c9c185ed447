#pragma once

#include <QScrollBar>

// A horizontal scroll bar that shows when it has the keyboard, which Qt's does not, and whose arrow
// keys lead where they point: Qt's Left leads to the right. It sets a value, so a screen reader
// meets it as a spin button, with the value in words.
class ScrollBar : public QScrollBar {
  Q_OBJECT

 public:
  explicit ScrollBar(QWidget* parent);

  // What a screen reader says of the present value.
  void SetSpokenValue(const QString& text) { spokenValue_ = text; }
  const QString& SpokenValue() const { return spokenValue_; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  QString spokenValue_;
};
