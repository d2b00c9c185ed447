#include "ui/application/HelpKey.h"

#include <utility>

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>

namespace {

bool IsHelpKey(const QEvent& event) {
  return event.type() == QEvent::KeyPress &&
         static_cast<const QKeyEvent&>(event).key() == Qt::Key_F1;
}

// The dialog is a window of its own or lies inside of another.
bool IsInDialog(const QWidget* widget) {
  while (widget != nullptr && qobject_cast<const QDialog*>(widget) == nullptr) {
    widget = widget->parentWidget();
  }
  return widget != nullptr;
}

}  // namespace

QString HelpTopicOf(const QWidget& widget) {
  const QWidget* owner = &widget;
  while (owner != nullptr && !owner->objectName().startsWith("frm")) owner = owner->parentWidget();
  return owner != nullptr ? owner->objectName() : QString();
}

HelpKey::HelpKey(GetHelp getHelp) : getHelp_(std::move(getHelp)) {
  QCoreApplication::instance()->installEventFilter(this);
}

bool HelpKey::eventFilter(QObject* watched, QEvent* event) {
  if (!IsHelpKey(*event) || QApplication::activePopupWidget() != nullptr) return false;
  const auto* widget = qobject_cast<QWidget*>(watched);
  if (!IsInDialog(widget)) return false;
  getHelp_(HelpTopicOf(*widget));
  return true;
}
