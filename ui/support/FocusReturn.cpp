#include "ui/support/FocusReturn.h"

#include <QCoreApplication>
#include <QEvent>
#include <QWindow>

namespace {

void Activate(QWindow& window) {
  const bool isShown = window.isVisible() && !(window.windowStates() & Qt::WindowMinimized);
  if (isShown) window.requestActivate();
}

}  // namespace

FocusReturn::FocusReturn() {
  QCoreApplication::instance()->installEventFilter(this);
}

// Later, when the dialog has been taken off the screen.
bool FocusReturn::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::WindowUnblocked && watched->isWindowType()) {
    auto* window = static_cast<QWindow*>(watched);
    QMetaObject::invokeMethod(
        window, [window] { Activate(*window); }, Qt::QueuedConnection);
  }
  return false;
}
