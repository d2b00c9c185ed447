#pragma once

#include <QObject>

// A dialog that waits for its answer blocks the windows that it belongs to, and no other: the help
// stays usable beside it. Qt's dialogs block every window of the program.
class DialogModality : public QObject {
 public:
  DialogModality();

  bool eventFilter(QObject* watched, QEvent* event) override;
};
