#pragma once

#include <QDialog>
#include <QString>

class QVBoxLayout;

// A window beside the main one, made under the name that the program's vocabulary has for it. It
// can be closed, but neither minimised nor maximised.
class SecondaryWindow : public QDialog {
 protected:
  SecondaryWindow(QWidget* mainWindow, const char* name, const QString& title = QString());

  // The column of the window's rows. The window is always as large as they need.
  QVBoxLayout* AddColumn();
  // For a window with all its buttons: Enter presses one only when that has the keyboard.
  void UseNoDefaultButton();
};
