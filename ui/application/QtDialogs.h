#pragma once

#include "core/GameWindow.h"
#include "ui/support/Dialogs.h"

class QWidget;

// The dialogs on the screen. They belong to the topmost dialog, or to the main window.
class QtDialogs : public Dialogs {
 public:
  explicit QtDialogs(QWidget& mainWindow) : mainWindow_(mainWindow) {}

  QString OpenFile(const FileQuestion& question) override;
  QString SaveFile(const FileQuestion& question) override;
  std::optional<QColor> ChooseColor(const QColor& initial) override;
  std::optional<QString> InputBox(const QString& title, const QString& prompt,
                                  const QString& prefilled) override;

  bool Ask(const QString& title, const QString& text, DefaultAnswer defaultAnswer);
  void Tell(const QString& title, const QString& text, MessageIcon icon);

 private:
  QWidget* Parent() const;

  QWidget& mainWindow_;
};

// "Games (*.a;*.b)|*.a;*.b" becomes "Games (*.a;*.b) (*.a *.b)": the dialog hides the last brackets
// and shows the text as it is worded. "*.*" means every file, with or without a dot.
QString ToolkitNameFilters(const QString& filter);
