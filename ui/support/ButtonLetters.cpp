#include "ui/support/ButtonLetters.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QShortcutEvent>

namespace {

// Of several buttons with one letter the toolkit chooses by itself.
bool IsLetterOf(const QAbstractButton& button, const QEvent& event) {
  if (event.type() != QEvent::Shortcut) return false;
  const auto& shortcut = static_cast<const QShortcutEvent&>(event);
  return !shortcut.isAmbiguous() && shortcut.key() == button.shortcut();
}

}  // namespace

ButtonLetters::ButtonLetters() {
  QCoreApplication::instance()->installEventFilter(this);
}

bool ButtonLetters::eventFilter(QObject* watched, QEvent* event) {
  auto* button = qobject_cast<QAbstractButton*>(watched);
  if (button == nullptr || !IsLetterOf(*button, *event)) return false;
  if (button->isCheckable()) button->setFocus();
  button->click();
  return true;
}
