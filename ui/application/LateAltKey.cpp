#include "ui/application/LateAltKey.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenu>

namespace {

bool IsAlt(const QEvent& event, QEvent::Type type) {
  return event.type() == type && static_cast<const QKeyEvent&>(event).key() == Qt::Key_Alt;
}

}  // namespace

LateAltKey::LateAltKey() {
  QCoreApplication::instance()->installEventFilter(this);
}

// Of every key a window is asked at once whether it overrides a shortcut.
bool LateAltKey::eventFilter(QObject* watched, QEvent* event) {
  if (watched->isWindowType() && IsAlt(*event, QEvent::ShortcutOverride)) {
    pressedInMenu_ = QApplication::activePopupWidget() != nullptr;
  }
  return IsAlt(*event, QEvent::KeyPress) && qobject_cast<QMenu*>(watched) != nullptr &&
         !pressedInMenu_;
}
