#include "ui/application/AccessibleDialog.h"

#include <QDialog>
#include <QMenu>

#include "ui/application/AccessibleFactory.h"

AccessibleDialog::AccessibleDialog(QDialog& dialog)
    : QAccessibleWidget(&dialog, QAccessible::Dialog), dialog_(dialog) {}

void AccessibleDialog::Install() {
  InstallAccessible<AccessibleDialog, QDialog>();
}

QMenu* AccessibleDialog::OpenMenu() const {
  for (QMenu* menu : dialog_.findChildren<QMenu*>(QString(), Qt::FindDirectChildrenOnly)) {
    if (menu->isVisible()) return menu;
  }
  return nullptr;
}

int AccessibleDialog::childCount() const {
  return QAccessibleWidget::childCount() + (OpenMenu() == nullptr ? 0 : 1);
}

QAccessibleInterface* AccessibleDialog::child(int number) const {
  QMenu* menu = OpenMenu();
  const bool isMenu = menu != nullptr && number == QAccessibleWidget::childCount();
  return isMenu ? QAccessible::queryAccessibleInterface(menu) : QAccessibleWidget::child(number);
}

int AccessibleDialog::indexOfChild(const QAccessibleInterface* child) const {
  const QMenu* menu = OpenMenu();
  const bool isMenu = menu != nullptr && child != nullptr && child->object() == menu;
  return isMenu ? QAccessibleWidget::childCount() : QAccessibleWidget::indexOfChild(child);
}
