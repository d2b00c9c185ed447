#pragma once

#include <QString>
#include <QTimer>

#include "ui/application/SpokenObject.h"

class QMenu;

// Tells a screen reader what goes on in a window, whatever has the keyboard there. What it says
// comes as the messages of a status bar do, which readers read without leaving their place. Without
// a screen reader nothing happens.
class Announcer {
 public:
  // pause: milliseconds that pass at least between two words about the progress of something.
  explicit Announcer(int pause = 0);

  // At once; progress that is yet to be told is out of date then.
  void Say(const QString& sentence);
  // As soon as the pause since the last progress is over; of several only the last.
  void SayProgress(const QString& sentence);
  // Progress that is yet to be told is out of date.
  void Forget() { pending_.clear(); }
  // From now on, that the menu opens, by its accessible name.
  void SayOpeningOf(QMenu& menu);
  // The pause begins now.
  void Rest() { pause_.start(); }
  // Somebody listens, and the pause is over.
  bool AwaitsProgress() const { return QAccessible::isActive() && !pause_.isActive(); }

 private:
  void Send(const QString& sentence);
  void SendPending();

  QTimer pause_;
  QString pending_;
  SpokenObjects messages_;
};
