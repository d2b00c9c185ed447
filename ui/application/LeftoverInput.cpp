#include "ui/application/LeftoverInput.h"

#include <utility>

#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyleHints>
#include <QWidget>

namespace {

// A tool tip or a list of completions leaves the keyboard where it is.
bool ComesOrGoes(const QObject& watched, const QEvent& event) {
  if (event.type() != QEvent::Show && event.type() != QEvent::Hide) return false;
  if (event.spontaneous() || !watched.isWidgetType()) return false;
  const auto& widget = static_cast<const QWidget&>(watched);
  return widget.isWindow() && widget.windowType() != Qt::ToolTip && widget.focusProxy() == nullptr;
}

// Blanks are repeated where they are typed; elsewhere Qt does nothing with a repeat that it knows
// for one.
bool ActsOnce(const QKeyEvent& repeat) {
  switch (repeat.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Escape:
      return true;
    case Qt::Key_Space:
      return !repeat.isAutoRepeat();
    default:
      return false;
  }
}

bool IsArrow(int key) {
  return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
}

}  // namespace

LeftoverInput::LeftoverInput() {
  QCoreApplication::instance()->installEventFilter(this);
}

// Input is looked at where it comes in, on its way to a window and before any widget has it. A key
// that is accepted here is not tried as a shortcut either.
bool LeftoverInput::eventFilter(QObject* watched, QEvent* event) {
  if (ComesOrGoes(*watched, *event)) {
    keysPressed_.clear();
    mouseRelease_.changedWindows = true;
  }
  if (!watched->isWindowType() || !IsLeftover(*event)) return false;
  event->accept();
  return true;
}

bool LeftoverInput::IsLeftover(QEvent& event) {
  switch (event.type()) {
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress:
      return IsLeftoverKey(static_cast<QKeyEvent&>(event));
    case QEvent::KeyRelease:
      RememberRelease(static_cast<QKeyEvent&>(event));
      return false;
    case QEvent::MouseButtonPress:
      ignoringClick_ = IsLeftoverPress(static_cast<QMouseEvent&>(event));
      return ignoringClick_;
    case QEvent::MouseButtonDblClick:
      return ignoringClick_;
    case QEvent::MouseButtonRelease:
      if (std::exchange(ignoringClick_, false)) return true;
      RememberRelease(static_cast<QMouseEvent&>(event));
      return false;
    default:
      return false;
  }
}

bool LeftoverInput::IsLeftoverKey(const QKeyEvent& event) {
  if (!IsRepeat(event)) {
    keysPressed_.insert(event.key());
    return false;
  }
  if (IsArrow(event.key())) return false;
  return ActsOnce(event) || !keysPressed_.contains(event.key());
}

// An X server repeats a key by a release and a press at one time. Qt marks them where it sees both
// together, which it does not always. A key that a screen reader has passed on has lost its time.
bool LeftoverInput::IsRepeat(const QKeyEvent& event) const {
  const quint32 scanCode = event.nativeScanCode();
  return event.isAutoRepeat() || (scanCode != 0 && scanCode == keyRelease_.scanCode &&
                                  event.timestamp() != 0 && event.timestamp() == keyRelease_.time);
}

void LeftoverInput::RememberRelease(const QKeyEvent& event) {
  keyRelease_ = {event.nativeScanCode(), event.timestamp()};
}

bool LeftoverInput::IsLeftoverPress(const QMouseEvent& event) const {
  const QStyleHints& hints = *QGuiApplication::styleHints();
  const QPoint way = event.globalPosition().toPoint() - mouseRelease_.place;
  return mouseRelease_.changedWindows &&
         event.timestamp() - mouseRelease_.time <
             static_cast<quint64>(hints.mouseDoubleClickInterval()) &&
         way.manhattanLength() <= hints.mouseDoubleClickDistance();
}

void LeftoverInput::RememberRelease(const QMouseEvent& event) {
  mouseRelease_ = {event.globalPosition().toPoint(), event.timestamp()};
}
