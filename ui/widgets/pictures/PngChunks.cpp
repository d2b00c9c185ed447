#include "ui/widgets/pictures/PngChunks.h"

#include <algorithm>

#include <QtEndian>

namespace {

// A chunk is its length, its name, as many bytes and a checksum.
constexpr qsizetype HeaderSize = 8;
constexpr qsizetype ChecksumSize = 4;
constexpr QByteArrayView LastChunk = "IEND";
constexpr QByteArrayView PictureChunks[] = {"IHDR", "PLTE", "tRNS", "IDAT", LastChunk};

// In the header, which is the first chunk.
constexpr qsizetype BitDepthAt = 24;

}  // namespace

EncodedPicture PngIn(const QByteArray& file) {
  EncodedPicture png{.format = "png", .bytes = PngSignature.toByteArray()};
  const QByteArrayView all(file);
  for (qsizetype at = PngSignature.size(); at + HeaderSize <= all.size();) {
    const auto length = qFromBigEndian<quint32>(all.data() + at);
    const qsizetype size = std::min(HeaderSize + length + ChecksumSize, all.size() - at);
    const QByteArrayView name = all.sliced(at + 4, 4);
    if (std::ranges::find(PictureChunks, name) != std::ranges::end(PictureChunks)) {
      png.bytes += all.sliced(at, size);
    }
    if (name == LastChunk) break;
    at += size;
  }
  const bool isDeep = png.bytes.size() > BitDepthAt && png.bytes.at(BitDepthAt) == 16;
  if (isDeep) png.bytesPerPixel = 8;
  return png;
}
