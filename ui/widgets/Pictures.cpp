#include "ui/widgets/Pictures.h"

#include <QDir>
#include <QFileInfo>
#include <QImageReader>

namespace {

// The largest picture without any compression, with room for its header.
constexpr qint64 MaximumFileBytes = 4LL * MaximumPictureSide * MaximumPictureSide + 65536;

// The toolkit reads more, but not all of it is safe to read from a stranger's file.
bool IsPictureFormat(const QByteArray& format) {
  const QList<QByteArray> formats{"bmp", "dib", "jpeg", "jpg", "gif", "ico", "cur", "png"};
  return formats.contains(format);
}

QByteArray FormatOf(const QString& pathName) {
  QImageReader reader(pathName);
  reader.setDecideFormatFromContent(true);
  const QByteArray told = reader.format();
  return told.isEmpty() ? QFileInfo(pathName).suffix().toLower().toLatin1() : told;
}

bool IsTooLarge(const QSize& size) {
  return size.width() > MaximumPictureSide || size.height() > MaximumPictureSide;
}

}  // namespace

QImage LoadPicture(const QString& name, const QString& programDirectory) {
  if (name.isEmpty()) return {};
  const QString pathName = QDir(programDirectory).absoluteFilePath(name);
  // Only ordinary files: a pipe or a device would never come to an end.
  const QFileInfo file(pathName);
  if (!file.isFile() || file.size() > MaximumFileBytes) return {};
  const QByteArray format = FormatOf(pathName);
  if (!IsPictureFormat(format)) return {};
  QImageReader reader(pathName, format);
  reader.setAutoDetectImageFormat(false);
  if (IsTooLarge(reader.size())) return {};
  const QImage image = reader.read();
  return IsTooLarge(image.size()) ? QImage() : image;
}
