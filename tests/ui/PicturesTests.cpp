#include <algorithm>
#include <sys/stat.h>
#include <unistd.h>

#include <QBuffer>
#include <QDataStream>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "ui/widgets/pictures/PictureReader.h"

namespace {

constexpr QRgb Teal = 0xFF008080;

QImage Plain(int width, int height) {
  QImage image(width, height, QImage::Format_RGB32);
  image.fill(Teal);
  return image;
}

QByteArray Encoded(const char* format) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  EXPECT_TRUE(Plain(8, 8).save(&buffer, format, 100)) << format;
  return bytes;
}

// Qt reads these without being able to write them.
QByteArray Gif(quint16 width, quint16 height) {
  QByteArray bytes("GIF89a");
  QDataStream out(&bytes, QIODevice::Append);
  out.setByteOrder(QDataStream::LittleEndian);
  // Two colours, of which the first is used all over.
  out << width << height << quint8(0x80) << quint8(0) << quint8(0);
  out << quint8(0x00) << quint8(0x80) << quint8(0x80) << quint8(255) << quint8(255) << quint8(255);
  out << quint8(0x2C) << quint16(0) << quint16(0) << width << height << quint8(0);
  out << quint8(2);
  // Codes of three bits, least significant first: "clear" before each pixel keeps them at three.
  QByteArray codes;
  quint32 pending = 0;
  int bits = 0;
  const auto put = [&](quint32 code) {
    pending |= code << bits;
    for (bits += 3; bits >= 8; bits -= 8, pending >>= 8) codes.append(static_cast<char>(pending));
  };
  for (int pixel = 0; pixel < 64; ++pixel) {
    put(4);
    put(0);
  }
  put(5);
  codes.append(static_cast<char>(pending));
  out << quint8(codes.size());
  bytes.append(codes);
  bytes.append('\0');
  return bytes + ';';
}

QByteArray BitmapHeader(qint32 width, qint32 height, quint16 depth, quint32 compression,
                        quint32 dataSize) {
  QByteArray bytes;
  QDataStream out(&bytes, QIODevice::WriteOnly);
  out.setByteOrder(QDataStream::LittleEndian);
  out << quint32(40) << width << height << quint16(1) << depth << compression << dataSize
      << qint32(0) << qint32(0) << quint32(0) << quint32(0);
  return bytes;
}

QByteArray BitmapFile(const QByteArray& headers, const QByteArray& data) {
  QByteArray bytes("BM");
  QDataStream out(&bytes, QIODevice::Append);
  out.setByteOrder(QDataStream::LittleEndian);
  const auto offset = static_cast<quint32>(14 + headers.size());
  out << static_cast<quint32>(offset + data.size()) << quint32(0) << offset;
  return bytes + headers + data;
}

// Eight rows of eight pixels of the first colour, run-length encoded.
QByteArray RunLengthBitmap() {
  QByteArray colours(256 * 4, '\0');
  colours.replace(0, 4, QByteArray("\x80\x80\x00\x00", 4));
  QByteArray data;
  for (int row = 0; row < 8; ++row) data += QByteArray("\x08\x00\x00\x00", 4);
  data += QByteArray("\x00\x01", 2);
  const auto dataSize = static_cast<quint32>(data.size());
  return BitmapFile(BitmapHeader(8, 8, 8, 1, dataSize) + colours, data);
}

// A device-independent bitmap without the file header.
QByteArray BareBitmap() {
  QByteArray pixels;
  for (int i = 0; i < 64; ++i) pixels += QByteArray("\x80\x80\x00\x00", 4);
  return BitmapHeader(8, 8, 32, 0, 256) + pixels;
}

// kind: 1 an icon, 2 a cursor.
QByteArray Icon(quint16 kind) {
  QByteArray image = BitmapHeader(8, 16, 32, 0, 256);
  for (int i = 0; i < 64; ++i) image += QByteArray("\x80\x80\x00\xFF", 4);
  image += QByteArray(32, '\0');
  QByteArray bytes;
  QDataStream out(&bytes, QIODevice::WriteOnly);
  out.setByteOrder(QDataStream::LittleEndian);
  out << quint16(0) << kind << quint16(1) << quint8(8) << quint8(8) << quint8(0) << quint8(0)
      << quint16(kind == 1 ? 1 : 3) << quint16(kind == 1 ? 32 : 3) << quint32(image.size())
      << quint32(22);
  return bytes + image;
}

class Pictures : public testing::Test {
 protected:
  QString Path(const QString& name) const { return directory_.filePath(name); }

  QImage LoadFile(const QString& name, const QByteArray& bytes) {
    QFile file(Path(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    file.close();
    return Load(name);
  }
  QImage Load(const QString& name) { return LoadPicture(name, directory_.path() + "/"); }

  // It is one of the samples: eight by eight pixels of nearly this colour.
  static void ExpectSample(const QImage& picture, const std::string& what) {
    ASSERT_EQ(picture.size(), QSize(8, 8)) << what;
    const QColor seen = picture.pixelColor(4, 4);
    EXPECT_LE(
        std::abs(seen.red() - 0x00) + std::abs(seen.green() - 0x80) + std::abs(seen.blue() - 0x80),
        12)
        << what << " " << seen.name().toStdString();
  }

 private:
  QTemporaryDir directory_;
};

}  // namespace

TEST_F(Pictures, LoadInEveryFormatOfTheDialog) {
  ExpectSample(LoadFile("a.bmp", Encoded("BMP")), "bmp");
  ExpectSample(LoadFile("a.dib", Encoded("BMP")), "dib");
  ExpectSample(LoadFile("bare.dib", BareBitmap()), "dib without a file header");
  ExpectSample(LoadFile("a.rle", RunLengthBitmap()), "rle");
  ExpectSample(LoadFile("a.jpg", Encoded("JPG")), "jpg");
  ExpectSample(LoadFile("a.jpeg", Encoded("JPG")), "jpeg");
  ExpectSample(LoadFile("a.gif", Gif(8, 8)), "gif");
  ExpectSample(LoadFile("a.ico", Icon(1)), "ico");
  ExpectSample(LoadFile("a.cur", Icon(2)), "cur");
}

TEST_F(Pictures, LoadWithCapitalExtensions) {
  ExpectSample(LoadFile("A.DIB", BareBitmap()), "DIB");
  ExpectSample(LoadFile("A.CUR", Icon(2)), "CUR");
}

TEST_F(Pictures, AreToldByTheirContentFirst) {
  ExpectSample(LoadFile("really a jpeg.gif", Encoded("JPG")), "jpeg named gif");
  ExpectSample(LoadFile("no extension", Gif(8, 8)), "gif without extension");
}

TEST_F(Pictures, AreFoundInTheProgramDirectoryOrByTheirWholePath) {
  ExpectSample(LoadFile("a.bmp", Encoded("BMP")), "bare name");
  ExpectSample(LoadPicture(Path("a.bmp"), "/nowhere/"), "whole path");
}

TEST_F(Pictures, LoadUpToTheLargestSide) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  ASSERT_TRUE(Plain(MaximumPictureSide, 2).save(&buffer, "BMP"));
  EXPECT_EQ(LoadFile("wide.bmp", buffer.data()).width(), MaximumPictureSide);
}

TEST_F(Pictures, AreRefusedBeyondTheLargestSide) {
  for (const QSize size : {QSize(MaximumPictureSide + 1, 2), QSize(2, MaximumPictureSide + 1)}) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    ASSERT_TRUE(Plain(size.width(), size.height()).save(&buffer, "BMP"));
    EXPECT_TRUE(LoadFile("large.bmp", buffer.data()).isNull());
  }
}

TEST_F(Pictures, AreRefusedWhenTheyClaimToBeGigantic) {
  EXPECT_TRUE(LoadFile("a.gif", Gif(65535, 65535)).isNull());
  EXPECT_TRUE(
      LoadFile("a.bmp", BitmapFile(BitmapHeader(2147483647, 2147483647, 32, 0, 0), "")).isNull());
  EXPECT_TRUE(
      LoadFile("b.bmp", BitmapFile(BitmapHeader(-2147483647, -2147483647, 1, 0, 0), "")).isNull());
  EXPECT_TRUE(LoadFile("c.dib", BitmapHeader(1 << 30, 1 << 30, 32, 0, 0)).isNull());
}

TEST_F(Pictures, AreRefusedWhenTheFileIsGigantic) {
  LoadFile("a.gif", Gif(8, 8));
  QFile file(Path("a.gif"));
  ASSERT_TRUE(file.resize(10LL << 30));
  EXPECT_TRUE(Load("a.gif").isNull());
}

TEST_F(Pictures, DoNoHarmWhenTheyAreCutOffAnywhere) {
  for (const QByteArray& whole : {Encoded("BMP"), BareBitmap(), RunLengthBitmap(), Encoded("JPG"),
                                  Gif(8, 8), Icon(1), Icon(2)}) {
    for (qsizetype length = 0; length < whole.size(); length += 1 + length / 8) {
      LoadFile("cut.dib", whole.left(length));
    }
  }
}

TEST_F(Pictures, DoNoHarmWhenTheyAreBroken) {
  for (const QByteArray& whole : {Encoded("BMP"), BareBitmap(), RunLengthBitmap(), Encoded("JPG"),
                                  Gif(8, 8), Icon(1), Icon(2)}) {
    for (qsizetype place = 0; place < std::min<qsizetype>(whole.size(), 64); ++place) {
      QByteArray broken = whole;
      broken[place] = '\xFF';
      const QImage image = LoadFile("broken.dib", broken);
      EXPECT_LE(image.width(), MaximumPictureSide);
      EXPECT_LE(image.height(), MaximumPictureSide);
    }
  }
}

TEST_F(Pictures, AreNothingWhereThereIsNone) {
  EXPECT_TRUE(Load("").isNull());
  EXPECT_TRUE(Load("missing.gif").isNull());
  EXPECT_TRUE(Load(".").isNull());
  EXPECT_TRUE(LoadFile("empty.gif", "").isNull());
  EXPECT_TRUE(LoadFile("text.gif", "GIF89a is not enough").isNull());
}

TEST_F(Pictures, AreNotWaitedForInAPipe) {
  ASSERT_EQ(mkfifo(Path("pipe.gif").toLocal8Bit(), 0600), 0);
  EXPECT_TRUE(Load("pipe.gif").isNull());
}

TEST_F(Pictures, AreNotReadFromADevice) {
  EXPECT_TRUE(Load("/dev/zero").isNull());
}

TEST_F(Pictures, AreNothingWhenTheyMayNotBeRead) {
  if (geteuid() == 0) GTEST_SKIP() << "the administrator may read everything";
  LoadFile("secret.gif", Gif(8, 8));
  QFile::setPermissions(Path("secret.gif"), QFile::Permissions());
  EXPECT_TRUE(Load("secret.gif").isNull());
}

TEST_F(Pictures, AreRefusedInFormatsThatMayHoldMoreThanAPicture) {
  EXPECT_TRUE(
      LoadFile("a.svg", "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"8\" height=\"8\"/>")
          .isNull());
}
