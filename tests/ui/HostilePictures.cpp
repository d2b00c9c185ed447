#include "tests/ui/HostilePictures.h"

#include <initializer_list>

#include <QBuffer>
#include <QDataStream>
#include <QImage>

namespace {

// Bits into bytes, beginning with the highest of each.
class BitsFromTheTop {
 public:
  void Put(quint32 bits, int count) {
    for (int i = count - 1; i >= 0; --i) {
      pending_ = (pending_ << 1) | ((bits >> i) & 1);
      if (++held_ == 8) Flush();
    }
  }
  // Filled up with ones, as in a scan.
  QByteArray Take() {
    while (held_ != 0) Put(1, 1);
    return std::exchange(bytes_, {});
  }

 private:
  void Flush() {
    bytes_.append(static_cast<char>(pending_));
    if ((pending_ & 0xFF) == 0xFF) bytes_.append('\0');
    held_ = 0;
  }

  QByteArray bytes_;
  quint32 pending_ = 0;
  int held_ = 0;
};

QByteArray Bytes(std::initializer_list<int> values) {
  QByteArray bytes;
  for (const int value : values) bytes.append(static_cast<char>(value));
  return bytes;
}

QByteArray Segment(int marker, const QByteArray& content) {
  const auto length = static_cast<int>(content.size()) + 2;
  return Bytes({0xFF, marker, length >> 8, length & 0xFF}) + content;
}

// One code of one bit for one symbol.
QByteArray CodeTable(int table, int symbol) {
  return Segment(0xC4, Bytes({table, 1}) + QByteArray(15, '\0') + Bytes({symbol}));
}

QByteArray BigEndian(quint32 value) {
  QByteArray bytes;
  QDataStream(&bytes, QIODevice::WriteOnly) << value;
  return bytes;
}

quint32 Checksum(const QByteArray& bytes) {
  quint32 rest = 0xFFFFFFFF;
  for (const char byte : bytes) {
    rest ^= static_cast<quint8>(byte);
    for (int bit = 0; bit < 8; ++bit) rest = (rest >> 1) ^ ((rest & 1) != 0 ? 0xEDB88320 : 0);
  }
  return ~rest;
}

QByteArray Chunk(const QByteArray& name, const QByteArray& content) {
  const QByteArray checked = name + content;
  return BigEndian(static_cast<quint32>(content.size())) + checked + BigEndian(Checksum(checked));
}

QByteArray Encoded(const char* format) {
  QImage image(8, 8, QImage::Format_RGB32);
  image.fill(0xFF008080);
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, format);
  return buffer.data();
}

QByteArray GifHeader(const QSize& screen) {
  QByteArray bytes("GIF89a");
  QDataStream out(&bytes, QIODevice::Append);
  out.setByteOrder(QDataStream::LittleEndian);
  out << quint16(screen.width()) << quint16(screen.height()) << quint8(0x80) << quint8(0)
      << quint8(0);
  return bytes + Bytes({0, 0x80, 0x80, 255, 255, 255});
}

QByteArray GifFrame(const QSize& size) {
  return Bytes({0x2C, 0, 0, 0, 0, size.width(), 0, size.height(), 0, 0});
}

// In blocks of at most 255 bytes, the last of which is empty.
QByteArray GifBlocks(const QByteArray& codes) {
  QByteArray blocks;
  for (qsizetype at = 0; at < codes.size(); at += 255) {
    const QByteArray block = codes.mid(at, 255);
    blocks += Bytes({static_cast<int>(block.size())}) + block;
  }
  return blocks + Bytes({0});
}

}  // namespace

QByteArray ProgressiveJpeg(const QSize& size, int scans) {
  const int blocks = ((size.width() + 7) / 8) * ((size.height() + 7) / 8);
  QByteArray bytes = Bytes({0xFF, 0xD8}) + Segment(0xDB, Bytes({0}) + QByteArray(64, '\1')) +
                     Segment(0xC2, Bytes({8, size.height() >> 8, size.height() & 0xFF,
                                          size.width() >> 8, size.width() & 0xFF, 1, 1, 0x11, 0}));
  bytes += CodeTable(0x00, 0) + Segment(0xDA, Bytes({1, 1, 0, 0, 0, 1}));
  BitsFromTheTop bits;
  for (int block = 0; block < blocks; ++block) bits.Put(0, 1);
  bytes += bits.Take();

  // "Nothing more in this block and the 32,766 after it", as often as it takes.
  constexpr int longestRun = 32767;
  bytes += CodeTable(0x10, 0xE0);
  for (int scan = 1; scan < scans; ++scan) {
    bytes += Segment(0xDA, Bytes({1, 1, 0, 1, 63, scan == 1 ? 0x01 : 0x10}));
    for (int done = 0; done < blocks; done += longestRun) bits.Put(0x3FFF, 15);
    bytes += bits.Take();
  }
  return bytes + Bytes({0xFF, 0xD9});
}

QByteArray JpegWithComments(int comments) {
  QByteArray bytes = Encoded("JPG");
  QByteArray flood;
  for (int i = 0; i < comments; ++i) flood += Segment(0xFE, "note: " + QByteArray(60000, 'x'));
  return bytes.insert(2, flood);
}

QByteArray PngWithTexts(int texts) {
  QByteArray bytes = Encoded("PNG");
  constexpr qsizetype afterHeader = 8 + 25;
  // Qt puts the length before what it has compressed.
  const QByteArray text = qCompress(QByteArray(1 << 20, 'x'), 9).mid(4);
  QByteArray flood;
  for (int i = 0; i < texts; ++i) {
    flood += Chunk("zTXt", "note" + QByteArray(2, '\0') + text);
  }
  return bytes.insert(afterHeader, flood);
}

QByteArray EmptyGif(const QSize& screen) {
  // Codes of three bits: clear, the first colour, end.
  return GifHeader(screen) + GifFrame(QSize(1, 1)) + Bytes({2}) + GifBlocks(Bytes({0x44, 0x01})) +
         ";";
}

QByteArray EndlessGif(int kilobytes) {
  // Of twelve bits each: clear, a colour, then each time the string before and one colour more,
  // until no longer one can be told; that one again and again.
  constexpr int clear = 2048;
  constexpr int longest = 4095;
  QByteArray codes;
  const auto put = [&codes](int one, int two) {
    codes += Bytes({one & 0xFF, (one >> 8) | ((two & 0xF) << 4), two >> 4});
  };
  put(clear, 0);
  for (int code = clear + 2; code < longest; code += 2) put(code, code + 1);
  while (codes.size() < kilobytes * 1024) put(longest, longest);
  return GifHeader(QSize(8, 8)) + GifFrame(QSize(8, 8)) + Bytes({11}) + GifBlocks(codes) + ";";
}

QByteArray IconAround(const QByteArray& picture) {
  QByteArray bytes;
  QDataStream out(&bytes, QIODevice::WriteOnly);
  out.setByteOrder(QDataStream::LittleEndian);
  out << quint16(0) << quint16(1) << quint16(1) << quint8(8) << quint8(8) << quint8(0) << quint8(0)
      << quint16(1) << quint16(32) << static_cast<quint32>(picture.size()) << quint32(22);
  return bytes + picture;
}
