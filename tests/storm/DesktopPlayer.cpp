#include <QApplication>
#include <QPalette>
#include <QScreen>
#include <QStyleFactory>
#include <QWindow>

#include "tests/storm/Hand.h"

namespace {

void ChangeStyle(const Hand& hand) {
  const QStringList styles = QStyleFactory::keys();
  const QString style = hand.chance.Pick(styles);
  hand.journal.Note("style " + style.toStdString());
  QApplication::setStyle(style);
}

void ChangeFont(const Hand& hand) {
  QFont font = QApplication::font();
  font.setPointSize(6 + hand.chance.Below(14));
  hand.journal.Note("letters of " + std::to_string(font.pointSize()) + " points");
  QApplication::setFont(font);
}

void ChangePalette(const Hand& hand) {
  hand.journal.Note("another palette");
  const QColor button = QColor::fromHsv(hand.chance.Below(360), 40, 40 + hand.chance.Below(200));
  QApplication::setPalette(QPalette(button));
}

void ChangeTheme(const Hand& hand) {
  switch (hand.chance.Below(4)) {
    case 0:
      return ChangeStyle(hand);
    case 1:
      return ChangeFont(hand);
    default:
      return ChangePalette(hand);
  }
}

// The screens differ in their scale.
void MoveToAScreen(const Hand& hand, QWidget& window) {
  const QList<QScreen*> screens = QGuiApplication::screens();
  const QScreen* screen = hand.chance.Pick(screens);
  hand.journal.Note("move to the screen " + screen->name().toStdString());
  window.move(screen->geometry().topLeft() +
              QPoint(hand.chance.Below(900) - 100, hand.chance.Below(700) - 100));
}

void ChangeWindowState(const Hand& hand) {
  static constexpr Qt::WindowState States[] = {Qt::WindowMinimized, Qt::WindowMaximized,
                                               Qt::WindowFullScreen, Qt::WindowNoState};
  const Qt::WindowState state =
      hand.window.windowState() == Qt::WindowNoState ? hand.chance.Pick(States) : Qt::WindowNoState;
  hand.journal.Note("window state " + std::to_string(state));
  hand.window.setWindowState(state);
}

}  // namespace

void ActOnDesktop(const Hand& hand, QWidget& window) {
  switch (hand.chance.Below(5)) {
    case 0:
    case 1:
      return ChangeTheme(hand);
    case 2:
    case 3:
      return MoveToAScreen(hand, window);
    default:
      return ChangeWindowState(hand);
  }
}
