#include "ui/windows/preferences/ChooserButton.h"

#include <utility>

#include <QKeyEvent>

namespace {

bool IsWithShiftAlone(const QKeyEvent& event) {
  return (event.modifiers() & ~Qt::KeypadModifier) == Qt::ShiftModifier;
}

}  // namespace

// Shift alone with whatever key, the plus key of the keypad, or the menu key. What a release of
// Shift itself tells of the modifiers depends on whether a screen reader listens; it counts when it
// comes up before the key that was pressed with it.
bool ChooserButton::RequestsMenu(const QKeyEvent& event) {
  const bool shiftedKeyDown = std::exchange(shiftedKeyDown_, false);
  if (event.key() == Qt::Key_Shift) return shiftedKeyDown;
  const bool fromKeypad = event.modifiers().testFlag(Qt::KeypadModifier);
  return IsWithShiftAlone(event) || (event.key() == Qt::Key_Plus && fromKeypad) ||
         event.key() == Qt::Key_Menu;
}

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

void ChooserButton::keyPressEvent(QKeyEvent* event) {
  shiftedKeyDown_ = event->key() != Qt::Key_Shift && IsWithShiftAlone(*event);
  QPushButton::keyPressEvent(event);
}

void ChooserButton::keyReleaseEvent(QKeyEvent* event) {
  if (event->isAutoRepeat() || !RequestsMenu(*event)) {
    QPushButton::keyReleaseEvent(event);
    return;
  }
  setDown(false);
  emit MenuRequested();
}
