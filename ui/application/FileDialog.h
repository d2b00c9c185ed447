#pragma once

#include <QFileDialog>

#include "ui/application/FileDialogs.h"

// Qt's file dialog with questions and messages of our own, in plain text: Qt's take a file's name
// for markup. It takes a name as it is typed, where Qt takes only what stands between double
// quotes. Where the desktop has a dialog of its own, that is shown and asks for itself.
class FileDialog : public QFileDialog {
 public:
  FileDialog(QWidget& mainWindow, const QString& title, const FileQuestion& question);

  // After it has been accepted.
  QString Chosen() const;

  void accept() override;

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  QString PathOf(const QString& typed) const;
  bool MayTake(const QFileInfo& file);
  bool MayOverwrite(const QFileInfo& file);
  void Refuse(const QString& name, const QString& why);
  void ShowWholeColumns();

  FileIcons icons_;
  QString chosen_;
};
