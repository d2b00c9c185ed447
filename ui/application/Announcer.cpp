#include "ui/application/Announcer.h"

#include <QAccessibleInterface>
#include <QGuiApplication>

namespace {

// Something that is said, or where it is said: seen by nobody.
class Spoken : public QAccessibleInterface {
 public:
  // parent: 0 for the whole program; a window's name would be read each time.
  Spoken(QAccessible::Role role, QAccessible::Id parent, const QString& name)
      : role_(role), parent_(parent), name_(name) {}

  bool isValid() const override { return true; }
  QObject* object() const override { return nullptr; }
  QAccessibleInterface* parent() const override {
    return parent_ == 0 ? QAccessible::queryAccessibleInterface(qApp)
                        : QAccessible::accessibleInterface(parent_);
  }
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return 0; }
  QAccessible::Role role() const override { return role_; }
  QAccessible::State state() const override { return {}; }
  QRect rect() const override { return {}; }
  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Name ? name_ : QString();
  }
  void setText(QAccessible::Text, const QString&) override {}

 private:
  QAccessible::Role role_;
  QAccessible::Id parent_;
  QString name_;
};

void Delete(QAccessible::Id id) {
  if (id != 0) QAccessible::deleteAccessibleInterface(id);
}

void SendAbout(QAccessible::Id id, QAccessible::Event type) {
  QAccessibleEvent event(QAccessible::accessibleInterface(id), type);
  QAccessible::updateAccessibility(&event);
}

}  // namespace

Announcer::Announcer(int pause) {
  pause_.setSingleShot(true);
  pause_.setInterval(pause);
  pause_.callOnTimeout([this] { SendPending(); });
}

Announcer::~Announcer() {
  for (const QAccessible::Id id : messages_) Delete(id);
  Delete(statusBar_);
}

void Announcer::Say(const QString& sentence) {
  pending_.clear();
  Send(sentence);
}

void Announcer::SayProgress(const QString& sentence) {
  pending_ = sentence;
  if (!pause_.isActive()) SendPending();
}

void Announcer::SendPending() {
  if (pending_.isEmpty()) return;
  pause_.start();
  Say(QString(pending_));
}

void Announcer::Send(const QString& sentence) {
  if (!QAccessible::isActive()) return;
  if (statusBar_ == 0) statusBar_ = Register(QAccessible::StatusBar, 0, QString());
  Delete(messages_[1]);
  messages_ = {Register(QAccessible::Notification, statusBar_, sentence), messages_[0]};
  SendAbout(messages_[0], QAccessible::ObjectShow);
}

QAccessible::Id Announcer::Register(QAccessible::Role role, QAccessible::Id parent,
                                    const QString& name) {
  return QAccessible::registerAccessibleInterface(new Spoken(role, parent, name));
}
