#pragma once

#include <QAccessible>

#include "ui/application/AccessibleLeaf.h"

// Something that is said to a screen reader, or where it is said: seen by nobody, and listed
// nowhere.
class SpokenObject : public AccessibleLeaf {
 public:
  // parent: 0 for the whole program.
  SpokenObject(QAccessible::Role role, QAccessible::Id parent, const QString& name)
      : role_(role), parent_(parent), name_(name) {}

  QAccessibleInterface* parent() const override;
  // Readers ignore what its parent does not know.
  int indexOfChild(const QAccessibleInterface*) const override { return 0; }
  QAccessible::Role role() const override { return role_; }
  QAccessible::State state() const override { return {}; }
  QRect rect() const override { return {}; }
  QString text(QAccessible::Text kind) const override;

 private:
  QAccessible::Role role_;
  QAccessible::Id parent_;
  QString name_;
};

// What is said one after the other at one place. The last two are kept, since a screen reader may
// still ask about the one before.
class SpokenObjects {
 public:
  // role: of the place; it is what readers take the messages for.
  explicit SpokenObjects(QAccessible::Role role) : role_(role) {}
  SpokenObjects(const SpokenObjects&) = delete;
  SpokenObjects& operator=(const SpokenObjects&) = delete;
  ~SpokenObjects();

  // The place, for the parent of what is said; made with the first call. parent: its own parent.
  QAccessible::Id Place(QAccessible::Id parent);
  // Takes the object over, and tells about it.
  void Tell(QAccessibleInterface* object, QAccessible::Event type);

 private:
  QAccessible::Role role_;
  QAccessible::Id place_ = 0;
  QAccessible::Id present_ = 0;
  QAccessible::Id former_ = 0;
};
