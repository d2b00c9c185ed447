#pragma once

#include <ctime>
#include <vector>

#include <QByteArray>
#include <QDateTime>
#include <QFileInfo>
#include <QImage>
#include <QString>
#include <QStringList>

inline constexpr int MaximumPictureSide = 4096;

// The largest picture without any compression, with room for its headers.
inline constexpr qint64 MaximumPictureBytes = 4LL * MaximumPictureSide * MaximumPictureSide + 65536;

// What pictures that are read together may take, all in all.
struct PictureBudget {
  qint64 bytes = 2 * MaximumPictureBytes;  // of memory, with what reading takes for a while
  std::clock_t processorTime = CLOCKS_PER_SEC;
};

// Reads pictures, which may be a stranger's: a file of a few kilobytes can ask for gigabytes and
// for hours.
class PictureReader {
 public:
  // programDirectory: where bare and relative names are looked up.
  explicit PictureReader(QString programDirectory, PictureBudget budget = {});

  // One image for each name; a null image where there is no readable picture of at most
  // MaximumPictureSide pixels a side, or where the budget, which is for all of them, does not reach
  // for it. No image has more than 32 bits a pixel. A file that is named more than once is read
  // once. One that is as it was at the last call is not read again, unless it could not be read and
  // there is now more to spend on it.
  std::vector<QImage> Read(const QStringList& names);

 private:
  struct ReadPicture {
    QString pathName;
    QDateTime changed;
    PictureBudget left;  // when it was to be read
    QImage image;
  };
  using Pictures = std::vector<ReadPicture>;

  static const ReadPicture* Find(const Pictures& pictures, const QFileInfo& file,
                                 const PictureBudget& left);
  ReadPicture Take(const QFileInfo& file, const QByteArray& suffix, PictureBudget& left) const;

  QString programDirectory_;
  PictureBudget budget_;
  Pictures pictures_;  // of the last call
};

// Reads a picture by itself.
QImage LoadPicture(const QString& name, const QString& programDirectory);
