#include "ui/application/ButtonKeys.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPushButton>
#include <QShortcutEvent>

namespace {

// Of several buttons with one letter Qt chooses by itself.
bool IsLetterOf(const QAbstractButton& button, const QEvent& event) {
  if (event.type() != QEvent::Shortcut) return false;
  const auto& shortcut = static_cast<const QShortcutEvent&>(event);
  return !shortcut.isAmbiguous() && shortcut.key() == button.shortcut();
}

// With Shift the blank asks some buttons for their menu.
bool IsPressOf(const QAbstractButton& button, const QEvent& event) {
  if (event.type() != QEvent::KeyPress) return false;
  const auto& press = static_cast<const QKeyEvent&>(event);
  if (press.isAutoRepeat()) return false;
  const bool isEnter = press.key() == Qt::Key_Return || press.key() == Qt::Key_Enter;
  const bool isBlank = press.key() == Qt::Key_Space && press.modifiers() == Qt::NoModifier;
  return isBlank || (isEnter && qobject_cast<const QPushButton*>(&button) != nullptr);
}

}  // namespace

ButtonKeys::ButtonKeys() {
  QCoreApplication::instance()->installEventFilter(this);
}

bool ButtonKeys::eventFilter(QObject* watched, QEvent* event) {
  auto* button = qobject_cast<QAbstractButton*>(watched);
  if (button == nullptr) return false;
  if (!IsLetterOf(*button, *event) && !IsPressOf(*button, *event)) return false;
  if (button->isCheckable()) button->setFocus();
  button->click();
  return true;
}
