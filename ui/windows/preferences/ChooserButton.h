#pragma once

#include <QPushButton>

// One of the buttons that choose a colour or a picture. Beside being pressed it can be asked for
// its popup menu.
class ChooserButton : public QPushButton {
  Q_OBJECT

 public:
  using QPushButton::QPushButton;

 signals:
  // The right mouse button was released, or a key that does the same.
  void MenuRequested();

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;

 private:
  bool RequestsMenu(const QKeyEvent& event);

  bool shiftedKeyDown_ = false;
};
