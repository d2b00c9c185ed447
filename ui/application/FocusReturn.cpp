#include "ui/application/FocusReturn.h"

#include <QEvent>
#include <QGuiApplication>
#include <QWindow>

namespace {

void Activate(QWindow& window) {
  const QWindow* modal = QGuiApplication::modalWindow();
  const bool isBlockedAgain = modal != nullptr && modal != &window;
  const bool isMinimized = window.windowStates().testFlag(Qt::WindowMinimized);
  if (window.isVisible() && !isMinimized && !isBlockedAgain) window.requestActivate();
}

}  // namespace

FocusReturn::FocusReturn() {
  qGuiApp->installEventFilter(this);
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
