#pragma once

#include <memory>

#include "ui/application/SpokenObject.h"

class QRect;
class QWidget;

// Where a screen reader is in a widget that shows many things and has the keyboard as a whole. The
// reader is led to something that lies at such a thing and says what is to be said. Each is new,
// since readers do not read again what they are at already; and it lies beside the widget, whose
// name they would say each time.
class ReaderCursor {
 public:
  // The widget outlives the cursor.
  explicit ReaderCursor(QWidget& widget);

  // place: in the widget. onward: what readers go on with when they are to read all that follows.
  void LeadTo(const QRect& place, const QString& text,
              std::unique_ptr<QAccessibleTextInterface> onward = nullptr);

 private:
  QWidget& widget_;
  SpokenObjects spoken_;
  int inset_ = 0;
};
