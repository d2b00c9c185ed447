#include "ui/support/FileIcons.h"

#include <QFileInfo>
#include <QMimeDatabase>

QIcon FileIcons::icon(const QFileInfo& file) const {
  return icon(file.isDir() ? QFileIconProvider::Folder : QFileIconProvider::File);
}

QString FileIcons::type(const QFileInfo& file) const {
  if (!file.isFile()) return QFileIconProvider::type(file);
  return QMimeDatabase().mimeTypeForFile(file, QMimeDatabase::MatchExtension).comment();
}
