#include "ui/widgets/pictures/EncodedPicture.h"

#include <algorithm>

#include <QtEndian>

#include "ui/widgets/pictures/JpegSegments.h"

namespace {

constexpr QByteArrayView PngSignature("\x89PNG\r\n\x1A\n");

struct Signature {
  QByteArrayView begin;
  const char* format;
};

constexpr Signature Signatures[] = {
    {"GIF87a", "gif"},
    {"GIF89a", "gif"},
    {"\xFF\xD8", "jpeg"},
    {PngSignature, "png"},
    {"BM", "bmp"},
    {QByteArrayView("\0\0\1\0", 4), "ico"},
    {QByteArrayView("\0\0\2\0", 4), "cur"},
};

// Qt reads more, but not all of it is safe to read from a stranger's file.
constexpr const char* Suffixes[] = {"bmp", "dib", "jpeg", "jpg", "gif", "ico", "cur", "png"};

QByteArray FormatOf(const QByteArray& file, const QByteArray& suffix) {
  for (const Signature& signature : Signatures) {
    if (file.startsWith(signature.begin)) return signature.format;
  }
  for (const char* known : Suffixes) {
    if (suffix == known) return suffix;
  }
  return {};
}

// The first picture of an icon may be a whole PNG file.
QByteArray WithoutIconAround(const QByteArray& file) {
  constexpr qsizetype sizeAt = 14;
  constexpr qsizetype placeAt = 18;
  if (file.size() < placeAt + 4) return file;
  const auto size = qFromLittleEndian<quint32>(file.constData() + sizeAt);
  const auto place = qFromLittleEndian<quint32>(file.constData() + placeAt);
  const QByteArray picture = file.mid(place, size);
  return picture.startsWith(PngSignature) ? picture : file;
}

// The first picture may be put away in order to come back after it.
EncodedPicture GifIn(const QByteArray& file) {
  constexpr qsizetype screenAt = 6;
  if (file.size() < screenAt + 4) return {};
  const char* screen = file.constData() + screenAt;
  return {.format = "gif",
          .bytes = file,
          .bytesPerPixel = 8,
          .canvas = {qFromLittleEndian<quint16>(screen), qFromLittleEndian<quint16>(screen + 2)}};
}

// A chunk is its length, its name, as many bytes and a checksum; the first one is the header.
EncodedPicture PngIn(const QByteArray& file) {
  constexpr qsizetype beginSize = 8;
  constexpr qsizetype checksumSize = 4;
  constexpr qsizetype bitDepthAt = 24;
  constexpr QByteArrayView lastChunk = "IEND";
  constexpr QByteArrayView pictureChunks[] = {"IHDR", "PLTE", "tRNS", "IDAT", lastChunk};
  EncodedPicture png{.format = "png", .bytes = PngSignature.toByteArray()};
  const QByteArrayView all(file);
  for (qsizetype at = PngSignature.size(); at + beginSize <= all.size();) {
    const auto length = qFromBigEndian<quint32>(all.data() + at);
    const qsizetype size = std::min(beginSize + length + checksumSize, all.size() - at);
    const QByteArrayView name = all.sliced(at + 4, 4);
    if (std::ranges::find(pictureChunks, name) != std::ranges::end(pictureChunks)) {
      png.bytes += all.sliced(at, size);
    }
    if (name == lastChunk) break;
    at += size;
  }
  const bool isDeep = png.bytes.size() > bitDepthAt && png.bytes.at(bitDepthAt) == 16;
  if (isDeep) png.bytesPerPixel = 8;
  return png;
}

}  // namespace

EncodedPicture EncodedPictureIn(const QByteArray& file, const QByteArray& suffix) {
  const QByteArray format = FormatOf(file, suffix);
  if (format == "gif") return GifIn(file);
  if (format == "jpeg" || format == "jpg") return JpegIn(file);
  if (format == "png") return PngIn(file);
  if (format != "ico" && format != "cur") return {.format = format, .bytes = file};
  const QByteArray picture = WithoutIconAround(file);
  return picture.size() == file.size() ? EncodedPicture{.format = format, .bytes = file}
                                       : PngIn(picture);
}
