#include "ui/application/SpokenObject.h"

#include <utility>

#include <QGuiApplication>

namespace {

void Delete(QAccessible::Id id) {
  if (id != 0) QAccessible::deleteAccessibleInterface(id);
}

}  // namespace

QAccessibleInterface* SpokenObject::parent() const {
  return parent_ == 0 ? QAccessible::queryAccessibleInterface(qApp)
                      : QAccessible::accessibleInterface(parent_);
}

QString SpokenObject::text(QAccessible::Text kind) const {
  return kind == QAccessible::Name ? name_ : QString();
}

SpokenObjects::~SpokenObjects() {
  for (const QAccessible::Id id : {present_, former_, place_}) Delete(id);
}

QAccessible::Id SpokenObjects::Place(QAccessible::Id parent) {
  if (place_ == 0) {
    place_ = QAccessible::registerAccessibleInterface(new SpokenObject(role_, parent, QString()));
  }
  return place_;
}

void SpokenObjects::Tell(QAccessibleInterface* object, QAccessible::Event type) {
  Delete(former_);
  former_ = std::exchange(present_, QAccessible::registerAccessibleInterface(object));
  QAccessibleEvent event(object, type);
  QAccessible::updateAccessibility(&event);
}
