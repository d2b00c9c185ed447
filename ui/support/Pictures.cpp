#include "ui/support/Pictures.h"

#include <QDir>
#include <QFileInfo>
#include <QImageReader>

namespace {

QImage Read(const QString& pathName, bool byContent) {
  QImageReader reader(pathName);
  reader.setDecideFormatFromContent(byContent);
  const QSize size = reader.size();
  if (size.width() > MaximumPictureSide || size.height() > MaximumPictureSide) return {};
  const QImage image = reader.read();
  const bool tooLarge = image.width() > MaximumPictureSide || image.height() > MaximumPictureSide;
  return tooLarge ? QImage() : image;
}

}  // namespace

QImage LoadPicture(const QString& name, const QString& programDirectory) {
  if (name.isEmpty()) return {};
  const QString pathName = QDir(programDirectory).absoluteFilePath(name);
  // Only ordinary files: a pipe or a device would never come to an end.
  if (!QFileInfo(pathName).isFile()) return {};
  const QImage image = Read(pathName, true);
  return image.isNull() ? Read(pathName, false) : image;
}
