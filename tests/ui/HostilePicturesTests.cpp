#include <QBuffer>
#include <QDateTime>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "tests/ui/HostilePictures.h"
#include "ui/widgets/pictures/EncodedPicture.h"
#include "ui/widgets/pictures/MeteredBytes.h"
#include "ui/widgets/pictures/PictureReader.h"

namespace {

constexpr QSize Largest(MaximumPictureSide, MaximumPictureSide);
constexpr std::clock_t Plenty = 600 * CLOCKS_PER_SEC;

// What a look's pictures may take, on machines that are slow as well.
constexpr PictureBudget Patient{.processorTime = Plenty};

class HostilePictures : public testing::Test {
 protected:
  QString Put(const QString& name, const QByteArray& bytes) const {
    QFile file(directory_.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    return name;
  }
  void SetChanged(const QString& name, const QDateTime& time) const {
    QFile file(directory_.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::ReadWrite));
    EXPECT_TRUE(file.setFileTime(time, QFileDevice::FileModificationTime));
  }

  PictureReader Reader(const PictureBudget& budget) const {
    return PictureReader(directory_.path() + "/", budget);
  }
  QImage Load(const QByteArray& bytes, const PictureBudget& budget = Patient) const {
    return Reader(budget).Read({Put("picture", bytes)}).front();
  }

 private:
  QTemporaryDir directory_;
};

qint64 BytesOf(const QSize& size) {
  return 4LL * size.width() * size.height();
}

}  // namespace

TEST_F(HostilePictures, AreRefusedWhenTheyWouldBeGoneOverAgainAndAgain) {
  const QByteArray bytes = ProgressiveJpeg(Largest, 150);
  EXPECT_LT(bytes.size(), 104 * 1024);
  EXPECT_TRUE(Load(bytes).isNull());
}

TEST_F(HostilePictures, MayComeInManyScansWhenTheyAreSmall) {
  EXPECT_EQ(Load(ProgressiveJpeg(QSize(64, 64), 150)).size(), QSize(64, 64));
}

TEST_F(HostilePictures, MayBeLargeWhenTheyComeInFewScans) {
  EXPECT_EQ(Load(ProgressiveJpeg(Largest, 3)).size(), Largest);
}

TEST_F(HostilePictures, AreChargedForTheScansThatAreCollected) {
  const QSize size(512, 512);
  const qint64 inOneGo = BytesOf(size) + 65536;
  EXPECT_TRUE(Load(ProgressiveJpeg(size, 2), {.bytes = inOneGo, .processorTime = Plenty}).isNull());

  QImage plain(size, QImage::Format_RGB32);
  plain.fill(Qt::black);
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  ASSERT_TRUE(plain.save(&buffer, "JPG"));
  EXPECT_FALSE(Load(buffer.data(), {.bytes = inOneGo, .processorTime = Plenty}).isNull());
}

TEST_F(HostilePictures, AreReadWithoutTheTextsBesideThem) {
  for (const QByteArray& bytes :
       {PngWithTexts(64), IconAround(PngWithTexts(64)), JpegWithComments(64)}) {
    const QImage image = Load(bytes);
    EXPECT_EQ(image.size(), QSize(8, 8));
    EXPECT_TRUE(image.textKeys().isEmpty()) << image.textKeys().join(" ").toStdString();
  }
}

TEST_F(HostilePictures, AreReadOnceHoweverOftenTheyAreNamed) {
  const QString name = Put("huge.gif", EmptyGif(Largest));
  const std::vector<QImage> images = Reader(Patient).Read({name, name, name, "./" + name});
  ASSERT_EQ(images.front().size(), Largest);
  for (const QImage& image : images) EXPECT_EQ(image.constBits(), images.front().constBits());
}

TEST_F(HostilePictures, AreChargedOnceHoweverOftenTheyAreNamed) {
  const QSize size(1024, 1024);
  const QString name = Put("1.gif", EmptyGif(size));
  const QString other = Put("2.gif", EmptyGif(size));
  PictureReader reader = Reader({.bytes = 3 * BytesOf(size) + 65536, .processorTime = Plenty});
  EXPECT_FALSE(reader.Read({name, name, name, other}).back().isNull());
}

TEST_F(HostilePictures, AreChargedForColorsOfSixteenBits) {
  const QSize size(256, 256);
  const PictureBudget budget{.bytes = BytesOf(size) + 65536, .processorTime = Plenty};
  for (const QImage::Format format : {QImage::Format_RGB32, QImage::Format_RGBX64}) {
    QImage plain(size, format);
    plain.fill(Qt::black);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    ASSERT_TRUE(plain.save(&buffer, "PNG"));
    EXPECT_EQ(Load(buffer.data(), budget).isNull(), format == QImage::Format_RGBX64);
  }
}

TEST_F(HostilePictures, KeepNoColorsOfSixteenBits) {
  for (const QImage::Format format : {QImage::Format_RGBX64, QImage::Format_RGBA64}) {
    QImage plain(QSize(8, 8), format);
    const QColor color(10, 20, 30, plain.hasAlphaChannel() ? 0 : 255);
    plain.fill(color);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    ASSERT_TRUE(plain.save(&buffer, "PNG"));
    const QImage image = Load(buffer.data());
    EXPECT_EQ(image.depth(), 32);
    EXPECT_EQ(image.hasAlphaChannel(), plain.hasAlphaChannel());
    EXPECT_EQ(image.pixelColor(4, 4), plain.hasAlphaChannel() ? QColor(0, 0, 0, 0) : color);
  }
}

TEST_F(HostilePictures, AreNotReadFromAFileThatTakesTooMuchByItself) {
  const QByteArray bytes = JpegWithComments(16);
  EXPECT_TRUE(Load(bytes, {.bytes = bytes.size(), .processorTime = Plenty}).isNull());
  EXPECT_FALSE(Load(bytes, {.bytes = 2 * bytes.size(), .processorTime = Plenty}).isNull());
}

TEST_F(HostilePictures, ShareOneBudgetOfMemory) {
  PictureReader reader = Reader(Patient);
  const QString first = Put("1.gif", EmptyGif(Largest));
  const QString second = Put("2.gif", EmptyGif(Largest));
  const QString small = Put("3.gif", EmptyGif(QSize(8, 8)));
  const std::vector<QImage> images = reader.Read({first, second, small});
  EXPECT_FALSE(images[0].isNull());
  EXPECT_TRUE(images[1].isNull());
  EXPECT_FALSE(images[2].isNull());
  // By itself it is welcome.
  EXPECT_FALSE(reader.Read({second}).front().isNull());
}

TEST_F(HostilePictures, AreMeasuredByWhatADecoderPaintsOn) {
  // Qt believes so small a picture more than so large a screen, until it decodes it.
  const QSize screen(4000, 4000);
  const PictureBudget budget{.bytes = BytesOf(screen), .processorTime = Plenty};
  EXPECT_TRUE(Load(EmptyGif(screen), budget).isNull());
  EXPECT_FALSE(Load(EmptyGif(screen)).isNull());
}

TEST_F(HostilePictures, EndWhenTheTimeForAllOfThemIsOver) {
  EXPECT_EQ(Load(EndlessGif(8)).size(), QSize(8, 8));
  for (const QByteArray& bytes : {EndlessGif(8), PngWithTexts(1), JpegWithComments(1),
                                  EmptyGif(QSize(8, 8)), ProgressiveJpeg(QSize(8, 8), 2)}) {
    EXPECT_TRUE(Load(bytes, {.processorTime = 0}).isNull());
  }
}

TEST_F(HostilePictures, AreNotShownInPartWhenTheTimeEndsBeforeThem) {
  const QByteArray bytes = ProgressiveJpeg(Largest, 3);
  const std::clock_t begun = std::clock();
  ASSERT_FALSE(Load(bytes).isNull());
  const std::clock_t whole = std::clock() - begun;
  EXPECT_TRUE(Load(bytes, {.processorTime = whole / 16}).isNull());
}

TEST_F(HostilePictures, AreTriedAgainOnlyWhenThereIsMoreToSpend) {
  // They are put right behind the reader's back, without a trace.
  const QDateTime changed = QDateTime::currentDateTime();
  const auto put = [&](const QByteArray& bytes) {
    Put("picture", bytes);
    SetChanged("picture", changed);
  };
  const QString large = Put("large", EmptyGif(Largest));
  PictureReader reader = Reader(Patient);
  put("GIF89a");
  EXPECT_TRUE(reader.Read({large, "picture"}).back().isNull());
  put(EmptyGif(QSize(8, 8)));
  EXPECT_FALSE(reader.Read({"picture"}).back().isNull());

  PictureReader other = Reader(Patient);
  put("GIF89a");
  EXPECT_TRUE(other.Read({"picture"}).back().isNull());
  put(EmptyGif(QSize(8, 8)));
  EXPECT_TRUE(other.Read({"picture"}).back().isNull());
}

TEST_F(HostilePictures, AreReadAfreshWhenTheyHaveChanged) {
  PictureReader reader = Reader(Patient);
  const QString name = Put("a.gif", EmptyGif(QSize(8, 8)));
  const QImage before = reader.Read({name}).front();
  EXPECT_EQ(reader.Read({name}).front().constBits(), before.constBits());
  Put("a.gif", EmptyGif(QSize(9, 9)));
  SetChanged(name, QDateTime::currentDateTime().addSecs(1));
  EXPECT_EQ(reader.Read({name}).front().size(), QSize(9, 9));
}

TEST(MeteredBytes, EndWhenTheirTimeIsOver) {
  MeteredBytes bytes("knight", std::clock() + Plenty);
  EXPECT_EQ(bytes.readAll(), "knight");
  EXPECT_FALSE(bytes.IsStopped());

  MeteredBytes late("knight", 0);
  EXPECT_TRUE(late.readAll().isEmpty());
  EXPECT_TRUE(late.IsStopped());
}

TEST(MeteredBytes, CanBeReadFromAnywhere) {
  MeteredBytes bytes("knight", std::clock() + Plenty);
  EXPECT_TRUE(bytes.seek(3));
  EXPECT_EQ(bytes.read(2), "gh");
  EXPECT_TRUE(bytes.seek(0));
  EXPECT_EQ(bytes.read(2), "kn");
  EXPECT_FALSE(bytes.seek(7));
}
