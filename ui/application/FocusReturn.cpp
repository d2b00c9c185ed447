#include "ui/application/FocusReturn.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>
#include <QWindow>

namespace {

void Activate(QWindow& window) {
  const QWindow* modal = QGuiApplication::modalWindow();
  const bool isBlockedAgain = modal != nullptr && modal != &window;
  const bool isMinimized = window.windowStates().testFlag(Qt::WindowMinimized);
  if (window.isVisible() && !isMinimized && !isBlockedAgain) window.requestActivate();
}

QWidget* WidgetOf(const QWindow* window) {
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (widget->windowHandle() == window) return widget;
  }
  return nullptr;
}

// Qt overlooks which window gets the keyboard while a popup is open, as the list of completions is
// when a dialog closes under it: then no widget has the keyboard that the window has.
void CatchUpWithKeyboard() {
  const QWindow* window = QGuiApplication::focusWindow();
  if (window == nullptr || QApplication::activeWindow() != nullptr) return;
  if (QWidget* widget = WidgetOf(window)) QApplication::setActiveWindow(widget);
}

}  // namespace

FocusReturn::FocusReturn() {
  qGuiApp->installEventFilter(this);
}

// Both happen later, when the dialog or the popup has been taken off the screen.
bool FocusReturn::eventFilter(QObject* watched, QEvent* event) {
  if (!watched->isWindowType()) return false;
  auto* window = static_cast<QWindow*>(watched);
  if (event->type() == QEvent::WindowUnblocked) {
    QMetaObject::invokeMethod(
        window, [window] { Activate(*window); }, Qt::QueuedConnection);
  } else if (event->type() == QEvent::Hide && window->type() == Qt::Popup) {
    QMetaObject::invokeMethod(this, CatchUpWithKeyboard, Qt::QueuedConnection);
  }
  return false;
}
