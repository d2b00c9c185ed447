#include "ui/widgets/SecondaryWindow.h"

#include <QPushButton>
#include <QVBoxLayout>

SecondaryWindow::SecondaryWindow(QWidget* mainWindow, const char* name, const QString& title)
    : QDialog(mainWindow, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint) {
  setObjectName(name);
  setWindowTitle(title);
}

QVBoxLayout* SecondaryWindow::AddColumn() {
  auto* column = new QVBoxLayout(this);
  column->setSizeConstraint(QLayout::SetFixedSize);
  return column;
}

void SecondaryWindow::UseNoDefaultButton() {
  for (QPushButton* button : findChildren<QPushButton*>()) button->setAutoDefault(false);
}
