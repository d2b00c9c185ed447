#pragma once

#include <QAccessibleInterface>

// Something that only screen readers know of: no object stands behind it, and it holds nothing.
class AccessibleLeaf : public QAccessibleInterface {
 public:
  bool isValid() const override { return true; }
  QObject* object() const override { return nullptr; }
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  void setText(QAccessible::Text, const QString&) override {}
};
