#pragma once

#include <QObject>

// Asks for the keyboard for a window as soon as the dialogs above it are gone. Window managers give
// it back by themselves, but not all of them when two dialogs close at once; and where a popup was
// open as well, Qt has to be told that the window has it.
class FocusReturn : public QObject {
 public:
  FocusReturn();

  bool eventFilter(QObject* watched, QEvent* event) override;
};
