#pragma once

#include <array>

#include <QAccessible>
#include <QString>
#include <QTimer>

// Tells a screen reader what goes on in a window, whatever has the keyboard there. What it says
// comes as the messages of a status bar do, which readers read without leaving their place. Without
// a screen reader nothing happens.
class Announcer {
 public:
  // pause: milliseconds that pass at least between two words about the progress of something.
  explicit Announcer(int pause);
  ~Announcer();

  // At once; progress that is yet to be told is out of date then.
  void Say(const QString& sentence);
  // As soon as the pause since the last progress is over; of several only the last.
  void SayProgress(const QString& sentence);
  // The pause begins now.
  void Rest() { pause_.start(); }
  // Somebody listens, and the pause is over.
  bool AwaitsProgress() const { return QAccessible::isActive() && !pause_.isActive(); }

 private:
  void Send(const QString& sentence);
  void SendPending();
  QAccessible::Id Register(QAccessible::Role role, QAccessible::Id parent, const QString& name);

  QTimer pause_;
  QString pending_;
  QAccessible::Id statusBar_ = 0;
  // The present one and the one before it, about which a screen reader may still ask.
  std::array<QAccessible::Id, 2> messages_{};
};
