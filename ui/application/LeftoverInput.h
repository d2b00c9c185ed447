#pragma once

#include <QObject>
#include <QPoint>
#include <QSet>

class QKeyEvent;
class QMouseEvent;

// What the player began before a window came or went is not for the window that he then finds in
// front of him: the repeats of a key that he still holds down, and the second press of a double
// click whose first one was enough. Return, Enter, Space and Escape act once however long they are
// held; arrow keys go on, so that they lead from menu to menu.
class LeftoverInput : public QObject {
 public:
  LeftoverInput();

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool IsLeftover(QEvent& event);
  bool IsLeftoverKey(const QKeyEvent& event);
  bool IsLeftoverPress(const QMouseEvent& event) const;
  bool IsRepeat(const QKeyEvent& event) const;
  void RememberRelease(const QKeyEvent& event);
  void RememberRelease(const QMouseEvent& event);

  QSet<int> keysPressed_;  // afresh since a window came or went
  struct {
    quint32 scanCode = 0;
    quint64 time = 0;
  } keyRelease_;
  struct {
    QPoint place;
    quint64 time = 0;
    bool changedWindows = false;  // a window has come or gone since
  } mouseRelease_;
  bool ignoringClick_ = false;  // until the button is up again
};
