#pragma once

#include "ui/application/MessageBoxes.h"
#include "ui/commands/Dialogs.h"

// The common dialogs on the screen, above the main window.
class ScreenDialogs : public Dialogs {
 public:
  explicit ScreenDialogs(QWidget& mainWindow) : mainWindow_(mainWindow) {}

  QString OpenFile(const FileQuestion& question) override {
    return ChooseFileToOpen(mainWindow_, question);
  }
  QString SaveFile(const FileQuestion& question) override {
    return ChooseFileToSave(mainWindow_, question);
  }
  std::optional<QColor> ChooseColor(const QColor& initial) override {
    return ::ChooseColor(mainWindow_, initial);
  }
  std::optional<QString> InputBox(const QString& title, const QString& prompt,
                                  const QString& prefilled) override {
    return ::InputBox(mainWindow_, title, prompt, prefilled);
  }

 private:
  QWidget& mainWindow_;
};
