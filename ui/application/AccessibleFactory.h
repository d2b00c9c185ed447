#pragma once

#include <QAccessible>
#include <QObject>
#include <QString>

// From now on, every widget of this class, and of those made from it that have none of their own,
// is to a screen reader what such an interface says of it.
template <typename Interface, typename Widget>
void InstallAccessible() {
  QAccessible::installFactory(
      [](const QString& className, QObject* object) -> QAccessibleInterface* {
        if (className != Widget::staticMetaObject.className()) return nullptr;
        return new Interface(*static_cast<Widget*>(object));
      });
}
