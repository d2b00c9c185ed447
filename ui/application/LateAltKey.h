#pragma once

#include <QObject>

// Where a screen reader runs, Qt hands a key on only when the reader has seen it, but acts on a
// shortcut at once. So the Alt of Alt+F may come to the menu that it opened; that one must not
// close the menu, as an Alt does that is pressed in it.
class LateAltKey : public QObject {
 public:
  LateAltKey();

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool pressedInMenu_ = false;
};
