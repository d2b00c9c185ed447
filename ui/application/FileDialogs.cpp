#include "ui/application/FileDialogs.h"

#include <QFileInfo>
#include <QMimeDatabase>

#include "ui/application/FileDialog.h"

QString ChooseFileToOpen(QWidget& mainWindow, const FileQuestion& question) {
  FileDialog dialog(mainWindow, "Open", question);
  dialog.setFileMode(question.mustExist ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
  return dialog.exec() == QDialog::Accepted ? dialog.Chosen() : QString();
}

QString ChooseFileToSave(QWidget& mainWindow, const FileQuestion& question) {
  FileDialog dialog(mainWindow, "Save As", question);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setFileMode(QFileDialog::AnyFile);
  return dialog.exec() == QDialog::Accepted ? dialog.Chosen() : QString();
}

QString QtNameFilters(const QString& filter) {
  const QStringList parts = filter.split('|');
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    QString patterns = parts[i + 1];
    patterns.replace(';', ' ').replace("*.*", "*");
    filters << parts[i] + " (" + patterns.simplified() + ")";
  }
  return filters.join(";;");
}

QIcon FileIcons::icon(const QFileInfo& file) const {
  return icon(file.isDir() ? QFileIconProvider::Folder : QFileIconProvider::File);
}

QString FileIcons::type(const QFileInfo& file) const {
  if (!file.isFile()) return QFileIconProvider::type(file);
  return QMimeDatabase().mimeTypeForFile(file, QMimeDatabase::MatchExtension).comment();
}
