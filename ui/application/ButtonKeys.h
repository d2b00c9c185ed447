#pragma once

#include <QObject>

// A button that is chosen by the letter of its caption acts at once. Qt shows it going down and up
// first, and a quick player's next keys would come before it acts. Enter presses the button that
// has the keyboard; Qt leaves that to dialogs with a default button. Space presses it on its way
// down: on its way up a repeat may be taken for a second press.
class ButtonKeys : public QObject {
 public:
  ButtonKeys();

  bool eventFilter(QObject* watched, QEvent* event) override;
};
