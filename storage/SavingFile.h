#pragma once

#include <QByteArray>
#include <QString>

// Where bytes go until they take the place of an old file: a hidden file in the same folder. It
// disappears again unless it took that place. What fails leaves its reason in errno.
class SavingFile {
 public:
  explicit SavingFile(const QString& folder);
  ~SavingFile();
  SavingFile(const SavingFile&) = delete;
  SavingFile& operator=(const SavingFile&) = delete;

  bool IsOpen() const { return descriptor_ >= 0; }
  // All of the bytes, and onto the disk.
  bool Write(const QByteArray& bytes) const;
  // The other file need not exist; if it does, its permissions are kept.
  bool TakePlaceOf(const QString& pathName);

 private:
  QByteArray name_;
  int descriptor_;
};

// Removes what killed processes left in a folder, and nothing that a living one is saving. Only for
// who has the folder locked.
void RemoveLeftSavingFiles(const QString& folder);
