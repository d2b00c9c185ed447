#include "ui/board/BoardKeys.h"

#include <QKeyEvent>

#include "core/Keyboard.h"

namespace {

int NavigationKeyCode(int key) {
  switch (key) {
    case Qt::Key_Backspace:
      return KeyCode::Backspace;
    case Qt::Key_Clear:
      return KeyCode::Clear;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return KeyCode::Enter;
    case Qt::Key_Space:
      return KeyCode::Space;
    case Qt::Key_PageUp:
      return KeyCode::PageUp;
    case Qt::Key_PageDown:
      return KeyCode::PageDown;
    case Qt::Key_End:
      return KeyCode::End;
    case Qt::Key_Home:
      return KeyCode::Home;
    case Qt::Key_Left:
      return KeyCode::Left;
    case Qt::Key_Up:
      return KeyCode::Up;
    case Qt::Key_Right:
      return KeyCode::Right;
    case Qt::Key_Down:
      return KeyCode::Down;
    default:
      return 0;
  }
}

}  // namespace

int VirtualKeyCode(const QKeyEvent& event) {
  const int key = event.key();
  const bool fromKeypad = event.modifiers().testFlag(Qt::KeypadModifier);
  if (fromKeypad && key >= Qt::Key_0 && key <= Qt::Key_9) {
    return KeyCode::Numeric0 + (key - Qt::Key_0);
  }
  return NavigationKeyCode(key);
}

bool IsClickKey(int keyCode) {
  return keyCode == KeyCode::Enter || keyCode == KeyCode::Space || keyCode == KeyCode::Clear ||
         keyCode == KeyCode::Numeric5;
}
