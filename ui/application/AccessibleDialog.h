#pragma once

#include <QAccessibleWidget>

class QDialog;
class QMenu;

// A dialog to a screen reader, with the popup menu that is open in it: Qt leaves such menus out of
// what a dialog contains.
class AccessibleDialog : public QAccessibleWidget {
 public:
  explicit AccessibleDialog(QDialog& dialog);

  // For every dialog that is made from now on.
  static void Install();

  int childCount() const override;
  QAccessibleInterface* child(int number) const override;
  int indexOfChild(const QAccessibleInterface* child) const override;

 private:
  // Null when none is open.
  QMenu* OpenMenu() const;

  QDialog& dialog_;
};
