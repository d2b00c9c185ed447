#pragma once

#include <QLineEdit>

// The box for the player's name. All of its text is selected when it gets the focus, and Enter ends
// the entry without reaching the window.
class NameBox : public QLineEdit {
  Q_OBJECT

 public:
  explicit NameBox(QWidget* parent) : QLineEdit(parent) {}

  // The least width in which all of a text is seen that is so wide.
  int WidthAround(int textWidth) const;

 signals:
  void Entered();

 protected:
  void focusInEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
};
