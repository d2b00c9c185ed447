#include "ui/application/HelpKey.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

namespace {

bool IsHelpKey(const QEvent& event) {
  return event.type() == QEvent::KeyPress &&
         static_cast<const QKeyEvent&>(event).key() == Qt::Key_F1;
}

}  // namespace

QString HelpTopicOf(const QWidget& widget) {
  const QWidget* window = widget.window();
  while (!window->objectName().startsWith("frm") && window->parentWidget() != nullptr) {
    window = window->parentWidget()->window();
  }
  return window->objectName().startsWith("frm") ? window->objectName() : QString();
}

HelpKey::HelpKey(GetHelp getHelp) : getHelp_(std::move(getHelp)) {
  QCoreApplication::instance()->installEventFilter(this);
}

bool HelpKey::eventFilter(QObject* watched, QEvent* event) {
  if (!IsHelpKey(*event) || QApplication::activeModalWidget() == nullptr) return false;
  const auto* widget = qobject_cast<QWidget*>(watched);
  if (widget == nullptr || QApplication::activePopupWidget() != nullptr) return false;
  getHelp_(HelpTopicOf(*widget));
  return true;
}
