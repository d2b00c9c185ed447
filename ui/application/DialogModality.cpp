#include "ui/application/DialogModality.h"

#include <QCoreApplication>
#include <QDialog>
#include <QEvent>
#include <QWindow>

DialogModality::DialogModality() {
  QCoreApplication::instance()->installEventFilter(this);
}

// The last moment before the dialog comes onto the screen; its surface may know of the other kind
// already. One that belongs to no window would block none.
bool DialogModality::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::Show || event->spontaneous()) return false;
  auto* dialog = qobject_cast<QDialog*>(watched);
  if (dialog != nullptr && dialog->isModal() && dialog->parentWidget() != nullptr) {
    dialog->setWindowModality(Qt::WindowModal);
    if (dialog->windowHandle() != nullptr) dialog->windowHandle()->setModality(Qt::WindowModal);
  }
  return false;
}
