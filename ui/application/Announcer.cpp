#include "ui/application/Announcer.h"

#include <QMenu>

Announcer::Announcer(int pause) : messages_(QAccessible::StatusBar) {
  pause_.setSingleShot(true);
  pause_.setInterval(pause);
  pause_.callOnTimeout([this] { SendPending(); });
}

void Announcer::Say(const QString& sentence) {
  Forget();
  Send(sentence);
}

void Announcer::SayProgress(const QString& sentence) {
  pending_ = sentence;
  if (!pause_.isActive()) SendPending();
}

void Announcer::SayOpeningOf(QMenu& menu) {
  QObject::connect(&menu, &QMenu::aboutToShow, &pause_,
                   [this, &menu] { Say(menu.accessibleName() + " menu"); });
}

void Announcer::SendPending() {
  if (pending_.isEmpty()) return;
  pause_.start();
  Say(QString(pending_));
}

// A window as the parent would be named each time.
void Announcer::Send(const QString& sentence) {
  if (!QAccessible::isActive()) return;
  messages_.Tell(new SpokenObject(QAccessible::Notification, messages_.Place(0), sentence),
                 QAccessible::ObjectShow);
}
