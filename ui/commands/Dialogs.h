#pragma once

#include <optional>

#include <QColor>
#include <QString>

#include "ui/application/FileDialogs.h"

// The common dialogs behind a small interface, so that commands can be tested without them.
class Dialogs {
 public:
  Dialogs() = default;
  Dialogs(const Dialogs&) = delete;
  Dialogs& operator=(const Dialogs&) = delete;
  virtual ~Dialogs() = default;

  // Each gives the chosen path, empty when cancelled. A file to save may exist, and the player has
  // then agreed to overwrite it.
  virtual QString OpenFile(const FileQuestion& question) = 0;
  virtual QString SaveFile(const FileQuestion& question) = 0;

  // Nothing when cancelled.
  virtual std::optional<QColor> ChooseColor(const QColor& initial) = 0;
  virtual std::optional<QString> InputBox(const QString& title, const QString& prompt,
                                          const QString& prefilled) = 0;
};
