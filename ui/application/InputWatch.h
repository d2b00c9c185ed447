#pragma once

#include <QObject>

// Tells what comes from the player's own hands from what a screen reader does for him.
class InputWatch : public QObject {
 public:
  InputWatch();

  // True while a key or a mouse button is being acted on.
  bool IsHandActing() const { return isHandActing_; }

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool isHandActing_ = false;
};
