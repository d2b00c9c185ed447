#pragma once

#include <QAccessible>

class QWidget;

// What Qt tells screen readers, mended on its way where they could not use it.
namespace ReaderEvents {

// From now on; once per program.
void Install();

// The widget tells by itself where in it the reader is to be, and Qt need not tell that it has got
// the keyboard.
void LeadsReaderItself(QWidget& widget);

// While it exists, readers are told nothing of what widgets do.
class Silence {
 public:
  Silence();
  ~Silence();
  Silence(const Silence&) = delete;
  Silence& operator=(const Silence&) = delete;

 private:
  QAccessible::UpdateHandler before_;
};

}  // namespace ReaderEvents
