#include "ui/widgets/pictures/PictureReader.h"

#include <algorithm>
#include <utility>

#include <QDir>
#include <QFileInfo>
#include <QImageReader>

#include "storage/FileReader.h"
#include "ui/widgets/pictures/EncodedPicture.h"
#include "ui/widgets/pictures/MeteredBytes.h"

namespace {

// As many passes over the largest picture as a decoder makes in well under a second; pictures on
// the web have about ten.
constexpr qint64 MaximumPassedPixels = 32LL * MaximumPictureSide * MaximumPictureSide;

bool IsTooLarge(const QSize& size) {
  return size.width() > MaximumPictureSide || size.height() > MaximumPictureSide;
}

bool MayBeDecoded(const EncodedPicture& picture, const QSize& size, qint64 freeBytes) {
  if (size.isEmpty() || IsTooLarge(size)) return false;
  const qint64 pixels = 1LL * size.width() * size.height();
  return pixels * picture.passes <= MaximumPassedPixels &&
         pixels * picture.bytesPerPixel + picture.bytes.size() <= freeBytes;
}

// Formats of more than 32 bits take twice the room, and those with a plain alpha channel would be
// copied whenever they are drawn.
QImage AsItIsDrawn(QImage image) {
  if (image.depth() >= 32) {
    image.convertTo(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                            : QImage::Format_RGB32);
  }
  return image;
}

QImage Decode(const EncodedPicture& picture, const PictureBudget& left) {
  if (picture.format.isEmpty()) return {};
  MeteredBytes bytes(picture.bytes, std::clock() + left.processorTime);
  QImageReader reader(&bytes, picture.format);
  reader.setAutoDetectImageFormat(false);
  const QSize size = reader.size();
  if (!MayBeDecoded(picture, size.expandedTo(picture.canvas), left.bytes)) return {};
  QImage image = reader.read();
  if (bytes.IsStopped() || IsTooLarge(image.size())) return {};
  return AsItIsDrawn(std::move(image));
}

// A file that does not say how large it is may never come to an end. For a while there are the file
// and what is taken out of it.
QImage ReadFrom(const QFileInfo& file, const QByteArray& suffix, const PictureBudget& left) {
  if (file.size() == 0 || file.size() > MaximumPictureBytes) return {};
  if (left.processorTime <= 0 || 2 * file.size() > left.bytes) return {};
  const EncodedPicture picture =
      EncodedPictureIn(ReadFile(file.filePath(), file.size()).bytes, suffix);
  return Decode(picture, left);
}

}  // namespace

PictureReader::PictureReader(QString programDirectory, PictureBudget budget)
    : programDirectory_(std::move(programDirectory)), budget_(budget) {}

const PictureReader::ReadPicture* PictureReader::Find(const Pictures& pictures,
                                                      const QFileInfo& file,
                                                      const PictureBudget& left) {
  const QDateTime changed = file.lastModified();
  for (const ReadPicture& picture : pictures) {
    if (picture.pathName != file.filePath() || picture.changed != changed) continue;
    const bool hasMoreLeft =
        left.bytes > picture.left.bytes || left.processorTime > picture.left.processorTime;
    return picture.image.isNull() && hasMoreLeft ? nullptr : &picture;
  }
  return nullptr;
}

PictureReader::ReadPicture PictureReader::Take(const QFileInfo& file, const QByteArray& suffix,
                                               PictureBudget& left) const {
  ReadPicture picture{file.filePath(), file.lastModified(), left, QImage()};
  const ReadPicture* former = Find(pictures_, file, left);
  const std::clock_t begun = std::clock();
  picture.image = former != nullptr ? former->image : ReadFrom(file, suffix, left);
  left.processorTime -= std::clock() - begun;
  left.bytes -= picture.image.sizeInBytes();
  return picture;
}

std::vector<QImage> PictureReader::Read(const QStringList& names) {
  Pictures pictures;
  std::vector<QImage> images;
  PictureBudget left = budget_;
  for (const QString& name : names) {
    const QFileInfo named(QDir(programDirectory_).absoluteFilePath(name));
    const QFileInfo file(name.isEmpty() ? QString() : named.canonicalFilePath());
    if (Find(pictures, file, left) == nullptr) {
      pictures.push_back(Take(file, named.suffix().toLower().toLatin1(), left));
    }
    images.push_back(Find(pictures, file, left)->image);
  }
  pictures_ = std::move(pictures);
  return images;
}

QImage LoadPicture(const QString& name, const QString& programDirectory) {
  return PictureReader(programDirectory).Read(QStringList(name)).front();
}
