#pragma once

#include <QObject>

// A button that is chosen by the letter of its caption acts at once. The toolkit shows it going
// down and up first, and a quick player's next keys would come before it acts.
class ButtonLetters : public QObject {
 public:
  ButtonLetters();

  bool eventFilter(QObject* watched, QEvent* event) override;
};
