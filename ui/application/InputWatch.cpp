#include "ui/application/InputWatch.h"

#include <QCoreApplication>
#include <QEvent>

namespace {

bool IsFromHand(QEvent::Type type) {
  return type == QEvent::KeyPress || type == QEvent::KeyRelease || type == QEvent::Shortcut ||
         type == QEvent::MouseButtonPress || type == QEvent::MouseButtonRelease;
}

}  // namespace

InputWatch::InputWatch() {
  QCoreApplication::instance()->installEventFilter(this);
}

// The hand has acted when the event loop, or the first one inside, has come round again.
bool InputWatch::eventFilter(QObject*, QEvent* event) {
  if (!isHandActing_ && IsFromHand(event->type())) {
    isHandActing_ = true;
    QMetaObject::invokeMethod(
        this, [this] { isHandActing_ = false; }, Qt::QueuedConnection);
  }
  return false;
}
