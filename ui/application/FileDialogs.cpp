#include "ui/application/FileDialogs.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMimeDatabase>

#include "ui/application/MessageBoxes.h"

namespace {

// A directory that is gone and has no separator at its end would be taken for the name of a file.
QString AsDirectory(const QString& text) {
  return text.endsWith('/') ? text : text + '/';
}

}  // namespace

QString ChooseFileToOpen(QWidget& mainWindow, const FileQuestion& question) {
  FileIcons icons;
  QFileDialog dialog(DialogParent(mainWindow), QString(), AsDirectory(question.directory),
                     ToolkitNameFilters(question.filter));
  dialog.setIconProvider(&icons);
  dialog.setOption(QFileDialog::HideNameFilterDetails);
  dialog.setFileMode(question.mustExist ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
  return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

QString ChooseFileToSave(QWidget& mainWindow, const FileQuestion& question) {
  FileIcons icons;
  QFileDialog dialog(DialogParent(mainWindow), QString(), AsDirectory(question.directory),
                     ToolkitNameFilters(question.filter));
  dialog.setIconProvider(&icons);
  dialog.setOption(QFileDialog::HideNameFilterDetails);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setFileMode(QFileDialog::AnyFile);
  while (dialog.exec() == QDialog::Accepted) {
    QString pathName = dialog.selectedFiles().value(0);
    if (QFileInfo(pathName).absoluteDir().exists()) return pathName;
    TellMessage(mainWindow, dialog.windowTitle(),
                pathName + "\nPath does not exist.\nVerify that it is the right one.",
                MessageIcon::Exclamation);
  }
  return {};
}

QString ToolkitNameFilters(const QString& filter) {
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
