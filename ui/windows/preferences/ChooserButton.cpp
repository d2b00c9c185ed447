#include "ui/windows/preferences/ChooserButton.h"

#include <QKeyEvent>

namespace {

// Shift alone with whatever key, the plus key of the keypad, or the menu key.
bool RequestsMenu(const QKeyEvent& event) {
  const Qt::KeyboardModifiers shifts = event.modifiers() & ~Qt::KeypadModifier;
  const bool fromKeypad = event.modifiers().testFlag(Qt::KeypadModifier);
  return shifts == Qt::ShiftModifier || (event.key() == Qt::Key_Plus && fromKeypad) ||
         event.key() == Qt::Key_Menu;
}

}  // namespace

void ChooserButton::mousePressEvent(QMouseEvent* event) {
  QPushButton::mousePressEvent(event);
  if (event->button() == Qt::RightButton) event->accept();
}

void ChooserButton::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::RightButton) {
    emit MenuRequested();
  } else {
    QPushButton::mouseReleaseEvent(event);
  }
}

void ChooserButton::keyReleaseEvent(QKeyEvent* event) {
  if (event->isAutoRepeat() || !RequestsMenu(*event)) {
    QPushButton::keyReleaseEvent(event);
    return;
  }
  setDown(false);
  emit MenuRequested();
}
