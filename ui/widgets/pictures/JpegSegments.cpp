#include "ui/widgets/pictures/JpegSegments.h"

#include <algorithm>
#include <optional>

#include <QtEndian>

namespace {

constexpr QByteArrayView StartOfImage = "\xFF\xD8";
constexpr QByteArrayView StartOfScan = "\xFF\xDA";
constexpr qsizetype MarkerSize = 2;

struct Segment {
  quint8 marker;
  QByteArrayView content;  // begins with its own length in two bytes
};

// Markers that stand alone, bytes that fill up, and bytes of 255 that are no markers.
bool HasNoContent(quint8 marker) {
  return marker <= 0x01 || (marker >= 0xD0 && marker <= 0xD9) || marker == 0xFF;
}

// The next segment of the rest of a file, which then begins after it.
std::optional<Segment> TakeSegment(QByteArrayView& rest) {
  for (qsizetype at = rest.indexOf('\xFF'); at >= 0; at = rest.indexOf('\xFF', at + 1)) {
    const QByteArrayView after = rest.sliced(at + 1);
    if (after.size() < 3) return std::nullopt;
    const auto marker = static_cast<quint8>(after.front());
    if (HasNoContent(marker)) continue;
    const qsizetype length = qFromBigEndian<quint16>(after.data() + 1);
    const QByteArrayView content = after.sliced(1, std::min(length, after.size() - 1));
    rest = after.sliced(1 + content.size());
    return Segment{marker, content};
  }
  return std::nullopt;
}

bool IsFrame(quint8 marker) {
  return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

// A comment, or an application's own; but two applications tell how colours are meant.
bool IsBesideThePicture(quint8 marker) {
  const bool tellsColors = marker == 0xE0 || marker == 0xEE;
  return marker == 0xFE || (marker >= 0xE0 && marker <= 0xEF && !tellsColors);
}

int ByteAt(QByteArrayView content, qsizetype place) {
  return place < content.size() ? static_cast<quint8>(content[place]) : 0;
}

}  // namespace

EncodedPicture JpegIn(const QByteArray& file) {
  EncodedPicture jpeg{.format = "jpeg", .bytes = StartOfImage.toByteArray()};
  int components = 0;
  bool isProgressive = false;
  QByteArrayView rest = QByteArrayView(file).sliced(std::min(file.size(), MarkerSize));
  while (const std::optional<Segment> segment = TakeSegment(rest)) {
    if (IsBesideThePicture(segment->marker)) continue;
    jpeg.bytes.append('\xFF').append(static_cast<char>(segment->marker)).append(segment->content);
    if (IsFrame(segment->marker)) {
      components = ByteAt(segment->content, 7);
      isProgressive = (segment->marker & 3) == 2;
    } else if (segment->marker == static_cast<quint8>(StartOfScan.back())) {
      jpeg.passes = 1 + static_cast<int>(rest.count(StartOfScan));
      // A picture that comes in several scans is collected, in two bytes for each component.
      const bool isWhole = ByteAt(segment->content, 2) == components;
      if (isProgressive || !isWhole || jpeg.passes > 1) jpeg.bytesPerPixel += 2 * components;
      jpeg.bytes.append(rest);
      break;
    }
  }
  return jpeg;
}
